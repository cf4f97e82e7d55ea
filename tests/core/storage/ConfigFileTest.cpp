// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/ConfigFile.h"
#include "state/SharedState.h"
#include "storage/ProgressFile.h"

#include "support/Fakes.h"
#include "support/RefusedWrites.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <map>
#include <set>
#include <tuple>

namespace quillora {
namespace {

namespace fs = std::filesystem;

constexpr double kMax = std::numeric_limits<double>::max();
const std::string kNines(400, '9');

// Twenty lines as another copy of the game would write them, each line a
// value no other line holds, so a line read into the wrong option shows.
// `changed` puts other text on some lines, counted from 1.
std::vector<std::string> fileLines(const std::map<int, std::string>& changed = {}) {
    std::vector<std::string> lines{"fondo.jpg", "C:\\Fotos", "2", "1",   "0", "1", "0",
                                   "1",         "1",         "1", "12",  "1", "0", "1",
                                   "Ana",       "1",         "0", "255", "0", "1"};
    for (const auto& [line, text] : changed) {
        lines.at(static_cast<std::size_t>(line - 1)) = text;
    }
    return lines;
}

// The lines joined as a file holds them.
std::string joined(const std::vector<std::string>& lines, const std::string& ending = "\r\n") {
    std::string bytes;
    for (const auto& l : lines) {
        bytes += l + ending;
    }
    return bytes;
}

class ConfigFileTest : public ::testing::Test {
protected:
    void SetUp() override {
        shared.dataFolder = folder;
        shared.currentSession().filePath = file().string();
    }

    fs::path file() const { return folder / "QuilloraVS5.txt"; }
    void writeRaw(const std::string& bytes) { std::ofstream(file(), std::ios::binary) << bytes; }
    void write(const std::vector<std::string>& lines) { writeRaw(joined(lines)); }
    void load() {
        clearForBoardLoad(shared);
        readSessionFile(shared, random);
        applyLineValues(shared);
    }
    std::vector<std::string> savedLines() const {
        return readConfigLines(file()).value_or(std::vector<std::string>{});
    }

    TempFolder temp{"quillora-config"};
    const fs::path& folder = temp.path();
    SharedState shared;
    ScriptedDialogs dialogs;
    QueuedRandom random;
};

TEST(ConfigText, LeadingNumbersAndWindows1252) {
    const std::string tiny = "0." + std::string(400, '0') + "1";
    const std::vector<std::pair<std::string, double>> numbers{
        {"1.5", 1.5}, {"-5", -5},  {"12abc", 12}, {"abc", 0}, {"", 0},        {" \t7", 7},
        {"+3", 3},    {".5", 0.5}, {"5.", 5},     {"-", 0},   {".", 0},       {"- 4", 0},
        {"1e3", 1},   {"1,5", 1},  {"0x1F", 0},   {"inf", 0}, {kNines, kMax}, {"-" + kNines, -kMax},
        {tiny, 0}};
    for (const auto& [text, value] : numbers) {
        EXPECT_DOUBLE_EQ(leadingNumber(text), value) << text.substr(0, 12);
    }

    for (int b = 0; b < 256; ++b) {
        const std::string byte(1, static_cast<char>(b));
        EXPECT_EQ(toWindows1252(fromWindows1252(byte)), byte) << b;
    }
    const std::vector<std::pair<std::string, std::string>> pairs{
        {"\xD1", "Ñ"}, {"\xF1", "ñ"}, {"\xE1", "á"}, {"\x80", "€"},
        {"\x8A", "Š"}, {"\x96", "–"}, {"\x9F", "Ÿ"}, {"\x81", "\u0081"}};
    for (const auto& [bytes, utf8] : pairs) {
        EXPECT_EQ(fromWindows1252(bytes), utf8);
        EXPECT_EQ(toWindows1252(utf8), bytes) << utf8;
    }
    EXPECT_EQ(toWindows1252("日本 \u0080"), "?? ?");
}

TEST_F(ConfigFileTest, AFileFromAnotherCopyLoadsLineByLine) {
    for (const std::string ending : {"\r\n", "\n", "\r"}) {
        SCOPED_TRACE(ending == "\n" ? "LF" : ending == "\r" ? "CR" : "CR LF");
        writeRaw(joined(fileLines(), ending));
        load();
        const Settings& s = shared.settings;
        EXPECT_EQ(s.backgroundPicture, "fondo.jpg");
        EXPECT_EQ(s.pictureFolder, "C:\\Fotos");
        EXPECT_EQ(s.letterStyle, 2);
        EXPECT_TRUE(s.opaqueLetters && !s.whiteLetters && s.whiteLines && !s.realSize);
        EXPECT_TRUE(s.sounds && s.autoPhrase && s.animated && s.pointsSystem);
        EXPECT_FALSE(s.survival);
        EXPECT_EQ(s.countdown, 1);
        EXPECT_EQ(s.theme, 12);
        EXPECT_EQ(s.userName, "Ana");
        EXPECT_EQ(shared.currentSession().displayName, "Ana");
        EXPECT_TRUE(s.useEncyclopedia) << "line 16 is the encyclopedia";
        EXPECT_FALSE(s.moreNegativePoints) << "line 17 is the points option";
        EXPECT_EQ(s.gameColour, (Rgb{255, 0, 0}));
        EXPECT_EQ(shared.palette.gameColour, (Rgb{255, 0, 0}));
        EXPECT_FALSE(s.playButtonHidden);
        EXPECT_TRUE(s.keyboardKeptOpen);
    }
}

TEST_F(ConfigFileTest, TheBoardClearsAllButStyleSoundsThemePointsNameAndColour) {
    shared.configLines.fill("7");
    clearForBoardLoad(shared);
    const std::array<std::string, kConfigLines> expected{"",  "",  "7", "0", "0", "0", "0",
                                                         "7", "0", "0", "7", "7", "0", "0",
                                                         "7", "0", "0", "7", "0", "0"};
    EXPECT_EQ(shared.configLines, expected);
}

TEST_F(ConfigFileTest, EachLineTakesItsBounds) {
    const int blue = static_cast<int>(kDefaultBlue.packed());
    const std::string over = std::to_string(0x1000000);
    // Line, its text, and what it loads as; a theme out of range leaves 33 in place.
    const std::vector<std::tuple<int, std::string, int>> table{
        {3, "5", 0},      {3, "4", 4},      {3, "0", 0},       {3, " 2x", 2},    {3, "-1", 0},
        {4, "2", 1},      {4, "0.5", 0},    {4, "-1", 0},      {4, "1abc", 1},   {4, "", 0},
        {11, "0", 1},     {11, "51", 33},   {11, "50", 50},    {11, "-3", 33},   {11, "", 1},
        {11, kNines, 33}, {14, "1.5", 0},   {14, "1", 1},      {14, "2", 2},     {14, "3", 2},
        {14, "-1", 0},    {14, "x", 0},     {18, "", blue},    {18, "255", 255}, {18, "abc", 0},
        {18, "-1", blue}, {18, over, blue}, {18, kNines, blue}};
    for (const auto& [line, text, expected] : table) {
        shared.settings.theme = 33;
        write(fileLines({{line, text}}));
        load();
        const Settings& s = shared.settings;
        const std::map<int, int> read{{3, s.letterStyle},
                                      {4, s.opaqueLetters},
                                      {11, s.theme},
                                      {14, s.countdown},
                                      {18, static_cast<int>(s.gameColour.packed())}};
        EXPECT_EQ(read.at(line), expected) << "line " << line << " " << text.substr(0, 12);
    }
}

TEST_F(ConfigFileTest, AShortOldFileLoadsWithDefaultsAndSavesTwentyLines) {
    auto lines = fileLines();
    lines.resize(17);
    write(lines);
    load();
    EXPECT_EQ(shared.settings.gameColour, kDefaultBlue);
    EXPECT_FALSE(shared.settings.playButtonHidden || shared.settings.keyboardKeptOpen);
    ASSERT_TRUE(saveSettings(shared, dialogs));
    ASSERT_EQ(savedLines().size(), 20U);
    EXPECT_EQ(slurp(file()), joined(savedLines())) << "every line ends in CR LF";
    EXPECT_EQ(savedLines()[17], "15759390");
}

TEST_F(ConfigFileTest, SavingWritesEveryLineFromTheLiveOptions) {
    write(fileLines({{4, "2"}, {15, ""}})); // a flag of 2, no name
    load();
    shared.themeChosen = false;
    ASSERT_TRUE(saveSettings(shared, dialogs));
    // The automatic phrase needs a chosen theme.
    EXPECT_EQ(savedLines(), fileLines({{4, "1"}, {9, "0"}, {15, "Quillora VS"}}));
    EXPECT_EQ(shared.settings.userName, "Quillora VS");

    shared.themeChosen = true;
    ASSERT_TRUE(saveSettings(shared, dialogs));
    EXPECT_EQ(savedLines()[8], "1");
    shared.tourPosition = 4;
    ASSERT_TRUE(saveSettings(shared, dialogs));
    EXPECT_EQ(savedLines()[8], "0") << "never during a tour";

    shared.settings.backgroundPicture = "a\r\nb";
    ASSERT_TRUE(saveSettings(shared, dialogs));
    const auto saved = savedLines();
    ASSERT_EQ(saved.size(), 20U) << "a line break in a value shifts no line";
    EXPECT_EQ(saved[14], "Quillora VS");
}

TEST_F(ConfigFileTest, AMissingFileGivesTheDefaultsAndKeepsNameAndColour) {
    // What the main menu leaves when it cannot read the file either, over
    // raw lines of an earlier user.
    shared.settings.userName = "Quillora VS";
    shared.palette.gameColour = Rgb{255, 0, 0};
    write(fileLines());
    load();
    fs::remove(file());
    random.queue({0.5});
    load();
    const Settings& s = shared.settings;
    EXPECT_EQ(s.letterStyle, 1);
    EXPECT_TRUE(s.sounds && s.pointsSystem);
    EXPECT_FALSE(s.opaqueLetters || s.autoPhrase || s.animated || s.keyboardKeptOpen);
    EXPECT_EQ(s.countdown, 0);
    EXPECT_EQ(s.backgroundPicture, "");
    EXPECT_EQ(s.theme, 25);
    EXPECT_EQ(s.userName, "Ana");
    EXPECT_EQ(s.gameColour, (Rgb{255, 0, 0}));
    EXPECT_FALSE(fs::exists(file())) << "reading never creates the file";

    shared.settings.userName = "Quillora VS";
    shared.palette.gameColour = kDefaultBlue;
    random.queue({0.0});
    load();
    EXPECT_EQ(shared.currentSession().displayName, "Quillora VS");
    EXPECT_EQ(s.gameColour, kDefaultBlue);
    EXPECT_EQ(s.theme, 1);
}

TEST_F(ConfigFileTest, FilesThatAreNotConfigurationsNeitherCrashNorChange) {
    const std::string binary("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\xFF\xD8", 18);
    writeRaw(binary);
    random.queue({0.2});
    load();
    EXPECT_EQ(shared.settings.letterStyle, 1) << "a picture loads as a missing file";
    EXPECT_EQ(slurp(file()), binary);

    writeRaw(std::string(kMaxConfigBytes, '\n'));
    EXPECT_TRUE(readConfigLines(file()));
    const std::string huge(kMaxConfigBytes + 1, '7');
    writeRaw(huge);
    random.queue({0.2});
    load();
    EXPECT_EQ(shared.settings.theme, 10) << "too large to be ours: loads as missing";
    EXPECT_EQ(slurp(file()), huge);

    fs::remove(file());
    fs::create_directory(file());
    random.queue({0.2});
    load();
    EXPECT_EQ(shared.settings.letterStyle, 1);
    EXPECT_FALSE(saveSettings(shared, dialogs)) << "a folder is never written over";
    EXPECT_TRUE(fs::is_directory(file()));
}

TEST_F(ConfigFileTest, AFreshFileHoldsTheNewUsersDefaults) {
    const fs::path fresh = folder / "nuevo.txt";
    random.queue({0.7, 0.01});
    ASSERT_TRUE(writeNewUserFile(fresh, "Beto", random));
    const std::vector<std::string> expected{"",     "",  "1", "0",        "0", "0", "0",
                                            "1",    "0", "0", "35",       "1", "0", "0",
                                            "Beto", "0", "0", "15759390", "0", "0"};
    EXPECT_EQ(readConfigLines(fresh), expected);

    ASSERT_TRUE(writeNewUserFile(fresh, "Beto", random));
    EXPECT_EQ(readConfigLines(fresh).value_or(expected)[10], "0");
    shared.currentSession().filePath = fresh.string();
    load();
    EXPECT_EQ(shared.settings.theme, 1) << "a theme drawn as 0 loads as the first";
}

TEST_F(ConfigFileTest, UserNamesNeverLeaveTheDataFolder) {
    for (const std::string& name : std::vector<std::string>{
             "../x", "/etc/passwd", ".", "..", "a/../../b", "", std::string("a\0b", 3)}) {
        const fs::path path = sessionFilePath(folder, name);
        EXPECT_EQ(path.parent_path(), folder) << name;
        EXPECT_NE(path.filename().string().front(), '.') << name;
    }
    EXPECT_EQ(sessionFilePath(folder, "Usuario 2").filename(), "Usuario 2.txt");
    EXPECT_EQ(sessionFilePath(folder, std::string("a\0b", 3)).filename(), "a_b.txt");
    EXPECT_EQ(sessionFilePath(folder, "quilloraVS5").filename(), "_quilloraVS5.txt")
        << "no user may take the main session's file";

    random.queue({0.5});
    ASSERT_TRUE(writeNewUserFile(sessionFilePath(folder, "../x"), "../x", random));
    EXPECT_TRUE(fs::exists(folder / "_._x.txt"));
    EXPECT_FALSE(fs::exists(folder.parent_path() / "x.txt"));
}

TEST_F(ConfigFileTest, SavingCreatesTheFolderAndLeavesNoTemporaryFile) {
    const fs::path nested = folder / "quillora-vesta" / "QuilloraVS5.txt";
    shared.currentSession().filePath = nested.string();
    ASSERT_TRUE(saveSettings(shared, dialogs));
    ASSERT_TRUE(saveSettings(shared, dialogs));
    std::set<fs::path> entries;
    for (const auto& entry : fs::directory_iterator(nested.parent_path())) {
        entries.insert(entry.path());
    }
    EXPECT_EQ(entries, (std::set<fs::path>{nested, progressFilePath(nested)}));

    writeRaw("not a folder");
    shared.currentSession().filePath = (file() / "QuilloraVS5.txt").string();
    EXPECT_FALSE(saveSettings(shared, dialogs));
    EXPECT_EQ(slurp(file()), "not a folder");
}

TEST_F(ConfigFileTest, TheOldEndOfFileMarkIsNotPartOfTheText) {
    const std::string text = joined(fileLines());
    const std::string lastLineOpen = text.substr(0, text.size() - 2);
    for (const std::string& bytes :
         {text + "\x1A", text + "\x1A\x1A\x1A", text + "\x1A\r\n", lastLineOpen + "\x1A"}) {
        writeRaw(bytes);
        EXPECT_EQ(readConfigLines(file()), fileLines())
            << testing::PrintToString(bytes.substr(bytes.size() - 4));
    }
    writeRaw(lastLineOpen + "\x1A");
    load();
    EXPECT_TRUE(shared.settings.keyboardKeptOpen) << "line 20 reads \"1\", mark and all";

    // Anywhere else it is a control character like any other: no text file.
    writeRaw("\x1A" + text);
    EXPECT_FALSE(readConfigLines(file()));
}

TEST_F(ConfigFileTest, ABigFileLoadsItsTwentyLinesAndIsCopiedBeforeItIsReplaced) {
    std::string bytes = joined(fileLines());
    while (bytes.size() <= 2 * kMaxConfigBytes) {
        bytes += "notas del jugador que la partida no conoce\r\n";
    }
    writeRaw(bytes);
    load();
    EXPECT_EQ(shared.settings.userName, "Ana");
    EXPECT_EQ(shared.settings.theme, 12);
    EXPECT_EQ(shared.settings.gameColour, (Rgb{255, 0, 0}));

    shared.themeChosen = true; // so line 9 is written back as it was
    ASSERT_TRUE(saveSettings(shared, dialogs));
    EXPECT_EQ(savedLines(), fileLines());
    EXPECT_EQ(slurp(folder / "QuilloraVS5.txt.bak"), bytes) << "nothing of the player's is lost";
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(ConfigFileTest, AnUnreadableFileIsCopiedAsideWithoutWritingOverAnEarlierCopy) {
    const fs::path firstCopy = folder / "QuilloraVS5.txt.bak";
    std::ofstream(firstCopy, std::ios::binary) << "una copia anterior";
    const std::string picture("\xFF\xD8\xFF\xE0\0\x10JFIF\0", 11);
    writeRaw(picture);
    random.queue({0.2});
    load();
    ASSERT_TRUE(saveSettings(shared, dialogs));
    EXPECT_EQ(savedLines().size(), 20U);
    EXPECT_EQ(slurp(firstCopy), "una copia anterior");
    EXPECT_EQ(slurp(folder / "QuilloraVS5.txt.bak2"), picture);

    // The file is the game's own now: later saves copy nothing more.
    ASSERT_TRUE(saveSettings(shared, dialogs));
    EXPECT_FALSE(fs::exists(folder / "QuilloraVS5.txt.bak3"));

    // Twenty lines and then more: copied as well, since the save drops the rest.
    writeRaw(joined(fileLines()) + "notas\r\n");
    load();
    ASSERT_TRUE(saveSettings(shared, dialogs));
    EXPECT_NE(slurp(folder / "QuilloraVS5.txt.bak3").find("\r\nnotas\r\n"), std::string::npos);
}

TEST_F(ConfigFileTest, SavingWritesThroughALinkAndKeepsTheFileMode) {
    fs::create_directory(folder / "elsewhere");
    const fs::path real = folder / "elsewhere" / "real.txt";
    std::ofstream(real, std::ios::binary) << "";
    write(fileLines());
    fs::rename(file(), real);
    fs::create_symlink(fs::path("elsewhere") / "real.txt", file());
    fs::permissions(real, fs::perms::owner_read | fs::perms::owner_write);
    load();
    shared.settings.userName = "Beto";
    ASSERT_TRUE(saveSettings(shared, dialogs));
    EXPECT_TRUE(fs::is_symlink(file()));
    EXPECT_EQ(fs::read_symlink(file()), fs::path("elsewhere") / "real.txt");
    EXPECT_EQ(readConfigLines(real).value_or(fileLines())[14], "Beto");
    EXPECT_EQ(fs::status(real).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "elsewhere"), {}), 1)
        << "no temporary file is left beside the target";

    // A plain file keeps an unusual mode too, whatever the umask.
    fs::remove(file());
    write(fileLines());
    const fs::perms odd = fs::perms::owner_read | fs::perms::owner_write | fs::perms::others_read;
    fs::permissions(file(), odd);
    ASSERT_TRUE(saveSettings(shared, dialogs));
    EXPECT_EQ(fs::status(file()).permissions(), odd);

    // A link to a file not made yet makes it, and stays a link.
    fs::remove(file());
    fs::create_symlink("nuevo.txt", file());
    ASSERT_TRUE(saveSettings(shared, dialogs));
    EXPECT_TRUE(fs::is_symlink(file()));
    EXPECT_EQ(readConfigLines(folder / "nuevo.txt").value_or(fileLines())[14], "Beto");
}

TEST_F(ConfigFileTest, AFailedSaveKeepsTheOldFileAndTellsThePlayerOnce) {
    write(fileLines());
    const std::string before = slurp(file());
    load();
    shared.settings.userName = "Beto";
    const std::string told = "No se pudo guardar la configuración en " + file().string() + ".";
    {
        RefusedWrites refused;
        EXPECT_FALSE(saveSettings(shared, dialogs));
        EXPECT_FALSE(saveSettings(shared, dialogs));
    }
    EXPECT_EQ(slurp(file()), before);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 1) << "no temporary file left";
    ASSERT_EQ(dialogs.shown.size(), 1U) << "not a box after every game";
    EXPECT_EQ(dialogs.shown[0].text, told);
    EXPECT_EQ(dialogs.shown[0].icon, Dialogs::Icon::Information);

    // Once the file saves again, a new failure is news.
    ASSERT_TRUE(saveSettings(shared, dialogs));
    {
        RefusedWrites refused;
        EXPECT_FALSE(saveSettings(shared, dialogs));
    }
    EXPECT_EQ(dialogs.shown.size(), 2U);

    // Another file that fails is told of by its own name.
    shared.currentSession().filePath = (file() / "QuilloraVS5.txt").string();
    EXPECT_FALSE(saveSettings(shared, dialogs));
    ASSERT_EQ(dialogs.shown.size(), 3U);
    EXPECT_NE(dialogs.shown[2].text.find("QuilloraVS5.txt/QuilloraVS5.txt"), std::string::npos);
}

} // namespace
} // namespace quillora
