// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/ConfigFile.h"
#include "storage/SharedState.h"

#include "support/Fakes.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>

namespace quillora {
namespace {

namespace fs = std::filesystem;

// Twenty lines as another copy of the game would write them.
std::vector<std::string> fileLines() {
    return {"fondo.jpg", "C:\\Fotos", "2", "1", "0",   "1", "0", "1",   "1", "1",
            "12",        "1",         "0", "1", "Ana", "1", "0", "255", "0", "1"};
}

class ConfigFileTest : public ::testing::Test {
protected:
    void SetUp() override {
        shared.dataFolder = folder;
        shared.currentSession().Archivo = (folder / "QuilloraVS5.txt").string();
    }

    void writeRaw(const std::string& bytes) {
        std::ofstream(shared.currentSession().Archivo, std::ios::binary) << bytes;
    }
    void write(std::vector<std::string> lines) {
        std::string bytes;
        for (const auto& l : lines) {
            bytes += l + "\r\n";
        }
        writeRaw(bytes);
    }
    void load() {
        clearForBoardLoad(shared);
        DataLoad(shared, random);
        ConfLoad(shared);
    }
    std::vector<std::string> savedLines() {
        return readConfigLines(shared.currentSession().Archivo)
            .value_or(std::vector<std::string>{});
    }

    TempFolder temp{"quillora-config"};
    const fs::path& folder = temp.path();
    SharedState shared;
    QueuedRandom random;
};

TEST(ConfigText, LeadingNumbersAndWindows1252) {
    const std::vector<std::pair<std::string, double>> numbers{
        {"12", 12}, {"  7abc", 7}, {"1.5", 1.5}, {"-5", -5},
        {"abc", 0}, {"", 0},       {"+3", 3},    {".5", 0.5}};
    for (const auto& [text, value] : numbers) {
        EXPECT_DOUBLE_EQ(leadingNumber(text), value) << text;
    }
    EXPECT_EQ(toWindows1252("PEÑA €"), std::string("PE\xD1"
                                                   "A \x80"));
    EXPECT_EQ(fromWindows1252(std::string("PE\xD1"
                                          "A \x80")),
              "PEÑA €");
    EXPECT_EQ(toWindows1252("日本"), "??");
}

TEST_F(ConfigFileTest, AFileFromAnotherCopyLoadsLineByLine) {
    write(fileLines());
    load();
    const Settings& s = shared.settings;
    EXPECT_EQ(s.fondo, "fondo.jpg");
    EXPECT_EQ(s.carpetaFondo, "C:\\Fotos");
    EXPECT_EQ(s.estilo, 2);
    EXPECT_TRUE(s.letraOpaca && !s.letraBlanca && s.lineaBlanca && !s.tamanoReal);
    EXPECT_TRUE(s.sonidos && s.fraseAutomatica && s.animacion && s.sistemaPuntos);
    EXPECT_FALSE(s.supervivencia);
    EXPECT_EQ(s.contratiempo, 1);
    EXPECT_EQ(s.tema, 12);
    EXPECT_EQ(s.nombre, "Ana");
    EXPECT_EQ(shared.currentSession().displayName, "Ana");
    EXPECT_TRUE(s.usarEnciclopedia) << "line 16 is the encyclopedia";
    EXPECT_FALSE(s.masPuntosNegativos) << "line 17 is the points option";
    EXPECT_EQ(s.colorJuego, (Rgb{255, 0, 0}));
    EXPECT_FALSE(s.sinBotonJugar);
    EXPECT_TRUE(s.tecladoPermanente);
}

struct LineCase {
    int line;
    std::string text;
    int expected;
};
class ConfigLineTest : public ConfigFileTest, public ::testing::WithParamInterface<LineCase> {};

TEST_P(ConfigLineTest, NumbersTakeTheirBounds) {
    auto lines = fileLines();
    lines[static_cast<std::size_t>(GetParam().line - 1)] = GetParam().text;
    shared.settings.tema = 33; // what a theme out of range leaves in place
    write(lines);
    load();
    const Settings& s = shared.settings;
    const int got = GetParam().line == 3    ? s.estilo
                    : GetParam().line == 11 ? s.tema
                                            : s.contratiempo;
    EXPECT_EQ(got, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Lines, ConfigLineTest,
                         ::testing::Values(LineCase{3, "5", 0}, LineCase{3, "4", 4},
                                           LineCase{3, "0", 0}, LineCase{3, "x", 0},
                                           LineCase{11, "0", 1}, LineCase{11, "51", 33},
                                           LineCase{11, "50", 50}, LineCase{11, "-3", 33},
                                           LineCase{14, "1.5", 0}, LineCase{14, "2", 2},
                                           LineCase{14, "3", 2}, LineCase{14, "-1", 0}));

TEST_F(ConfigFileTest, AShortOldFileLoadsWithDefaultsAndSavesTwentyLines) {
    auto lines = fileLines();
    lines.resize(17);
    write(lines);
    load();
    EXPECT_EQ(shared.settings.colorJuego, kDefaultBlue);
    EXPECT_FALSE(shared.settings.sinBotonJugar || shared.settings.tecladoPermanente);
    ASSERT_TRUE(ConfSave(shared));
    const std::string bytes = slurp(shared.currentSession().Archivo);
    std::size_t crlf = 0;
    for (std::size_t at = bytes.find("\r\n"); at != std::string::npos;
         at = bytes.find("\r\n", at + 2)) {
        ++crlf;
    }
    EXPECT_EQ(crlf, 20U);
    EXPECT_EQ(bytes.substr(bytes.size() - 2), "\r\n");
    EXPECT_EQ(bytes.find('\n', 0), bytes.find("\r\n", 0) + 1) << "every line ends in CR LF";
    EXPECT_EQ(savedLines()[17], "15759390");
}

TEST_F(ConfigFileTest, SavingWritesFlagsAsOnesAndTheGameRulesForNameAndLineNine) {
    auto lines = fileLines();
    lines[3] = "2"; // a flag of 2
    lines[14] = ""; // no name
    write(lines);
    load();
    shared.themeChosen = false;
    ASSERT_TRUE(ConfSave(shared));
    auto saved = savedLines();
    ASSERT_EQ(saved.size(), 20U);
    EXPECT_EQ(saved[3], "1");
    EXPECT_EQ(saved[14], "Quillora VS");
    EXPECT_EQ(saved[8], "0") << "the automatic phrase needs a chosen theme";

    shared.themeChosen = true;
    ASSERT_TRUE(ConfSave(shared));
    EXPECT_EQ(savedLines()[8], "1");
    shared.tourPosition = 4;
    ASSERT_TRUE(ConfSave(shared));
    EXPECT_EQ(savedLines()[8], "0") << "never during a tour";
    EXPECT_FALSE(fs::exists(fs::path(shared.currentSession().Archivo + ".tmp")));
}

TEST_F(ConfigFileTest, AnEnyeInTheNameIsOneByteOnDiskAndComesBack) {
    shared.settings.nombre = "NUÑEZ";
    ASSERT_TRUE(ConfSave(shared));
    EXPECT_NE(slurp(shared.currentSession().Archivo)
                  .find("\r\nNU\xD1"
                        "EZ\r\n"),
              std::string::npos);
    shared.settings.nombre.clear();
    load();
    EXPECT_EQ(shared.settings.nombre, "NUÑEZ");
}

TEST_F(ConfigFileTest, AMissingFileGivesTheDefaultsAndKeepsNameAndColour) {
    shared.configLines[14] = "Quillora VS";
    shared.configLines[17] = "255";
    random.queue({0.5});
    load();
    EXPECT_EQ(shared.settings.estilo, 1);
    EXPECT_TRUE(shared.settings.sonidos && shared.settings.sistemaPuntos);
    EXPECT_FALSE(shared.settings.fraseAutomatica || shared.settings.animacion);
    EXPECT_EQ(shared.settings.tema, 25);
    EXPECT_EQ(shared.settings.nombre, "Quillora VS");
    EXPECT_EQ(shared.settings.colorJuego, (Rgb{255, 0, 0}));
    EXPECT_FALSE(fs::exists(shared.currentSession().Archivo)) << "reading never creates the file";
}

TEST_F(ConfigFileTest, FilesThatAreNotConfigurationsLoadAsMissingAndStayUntouched) {
    const std::string binary("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16);
    writeRaw(binary);
    load(); // a binary reads as odd lines, harmlessly
    EXPECT_EQ(slurp(shared.currentSession().Archivo), binary);

    writeRaw(std::string(kMaxConfigBytes + 1, 'A'));
    EXPECT_FALSE(readConfigLines(shared.currentSession().Archivo));
    EXPECT_FALSE(readConfigLines(folder));
    EXPECT_FALSE(writeConfigLines(folder, {"x"})) << "a folder is never written over";
    EXPECT_TRUE(fs::is_directory(folder));
}

TEST_F(ConfigFileTest, AFreshFileHoldsTheNewUsersDefaults) {
    const fs::path file = folder / "nuevo.txt";
    random.queue({0.01});
    ASSERT_TRUE(NewConfFile(file, "Beto", random));
    const auto lines = readConfigLines(file);
    ASSERT_TRUE(lines);
    const std::vector<std::string> expected{"",     "",  "1", "0",        "0", "0", "0",
                                            "1",    "0", "0", "0",        "1", "0", "0",
                                            "Beto", "0", "0", "15759390", "0", "0"};
    EXPECT_EQ(*lines, expected);
    shared.currentSession().Archivo = file.string();
    load();
    EXPECT_EQ(shared.settings.tema, 1) << "a theme drawn as 0 loads as the first";
}

TEST_F(ConfigFileTest, UserNamesNeverLeaveTheDataFolder) {
    for (const char* name : {"../x", "/etc/passwd", ".", "..", "a/../../b", ""}) {
        const fs::path file = sessionFilePath(folder, name);
        EXPECT_EQ(file.parent_path(), folder) << name;
        EXPECT_NE(file.filename().string().front(), '.') << name;
    }
    EXPECT_EQ(sessionFilePath(folder, "Usuario 2").filename(), "Usuario 2.txt");
}

} // namespace
} // namespace quillora
