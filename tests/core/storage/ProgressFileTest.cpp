// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/ProgressFile.h"

#include "models/menu/MainMenuModel.h"
#include "storage/Sessions.h"
#include "support/LoadedSession.h"
#include "support/RefusedWrites.h"
#include "words/OwnThemes.h"
#include "words/ThemeCatalogue.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace quillora {
namespace {

namespace fs = std::filesystem;

// A user well into the game: every field away from a fresh start.
Progress wellIntoTheGame() {
    Progress p;
    p.normalPoints = -1250;
    p.survivalPoints = 420;
    p.stats = UserStats({17, 3, 450, 300}, {8, 1, 0, 0});
    p.correctionsLeft = 1;
    p.history = "VACA\r\nEL PERRO DE SAN ROQUE\r\nAÑO NUEVO";
    p.selectedThemes[1] = p.selectedThemes[50] = true;
    p.tourPosition = 7;
    p.tourCopy[3] = p.tourCopy[12] = true;
    return p;
}

// The data folder of a player whose game starts: the main user's progress
// is read as the start screen runs.
struct NextRun {
    explicit NextRun(const fs::path& folder, std::vector<OwnTheme> ownThemes = {}) {
        shared.dataFolder = folder;
        shared.ownThemes = std::move(ownThemes);
        loadAtStart(shared);
    }
    void tellAtMenu() {
        MainMenuModel menu(shared, dialogs);
        menu.offerOldConfig();
    }
    SharedState shared;
    ScriptedDialogs dialogs;
};

class ProgressFileTest : public ::testing::Test, protected LoadedSession {
protected:
    ProgressFileTest() : LoadedSession("quillora-progress") {}
    fs::path progressFile() const { return folder / "QuilloraVS5.txt.progreso"; }
    void put(const std::string& bytes) { std::ofstream(progressFile(), std::ios::binary) << bytes; }
};

TEST_F(ProgressFileTest, EveryFieldComesBackInTheNextRunBesideAnUnchangedConfiguration) {
    takeProgress(shared, wellIntoTheGame());
    ASSERT_TRUE(saveSettings(shared, dialogs));
    const std::string config = slurp(folder / "QuilloraVS5.txt");

    const std::string text = slurp(progressFile());
    EXPECT_TRUE(text.starts_with("Quillora Vesta progreso 1\n")) << text;
    EXPECT_NE(text.find("\nnormal points=-1250\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\nhistory=AÑO NUEVO\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\nthemes=1,50\n"), std::string::npos) << text;

    NextRun next(folder);
    EXPECT_EQ(progressOf(next.shared), wellIntoTheGame());
    EXPECT_TRUE(next.shared.themeChosen);
    EXPECT_EQ(next.shared.currentSession().corrections, "1");
    EXPECT_EQ(slurp(folder / "QuilloraVS5.txt"), config) << "the start writes no option";

    // The same progress written again is the same file.
    ASSERT_TRUE(writeProgress(next.shared));
    EXPECT_EQ(slurp(progressFile()), text);
    // Nor did the configuration change: its twenty lines, as before.
    ASSERT_TRUE(writeOptions(next.shared));
    EXPECT_EQ(readConfigLines(folder / "QuilloraVS5.txt")->size(), 20U);
}

// The player's own themes are numbered after their files, which may come
// and go between two runs: the marks, the tour and the theme played alone
// follow the names, and a theme whose file has gone is dropped.
TEST_F(ProgressFileTest, OwnThemesComeBackByNameWhateverTheirNumbers) {
    const auto own = [](const std::string& name) { return OwnTheme{name + ".txt", name, {"SOL"}}; };
    shared.ownThemes = {own("Animales"), own("Verbos")};
    SessionSlot& slot = shared.current();
    slot.selectedThemes[3] = slot.selectedThemes[51] = slot.selectedThemes[52] = true;
    slot.tourCopy = slot.selectedThemes;
    shared.tourPosition = 52;
    shared.settings.theme = 52;
    ASSERT_TRUE(saveSettings(shared, dialogs));
    EXPECT_NE(slurp(progressFile()).find("\nown theme=Verbos\n"), std::string::npos);

    // "Animales.txt" has gone: "Verbos" is theme 51 now.
    NextRun next(folder, {own("Verbos")});
    const SessionSlot& back = next.shared.current();
    EXPECT_TRUE(back.selectedThemes[3]);
    EXPECT_TRUE(back.selectedThemes[51]);
    EXPECT_FALSE(back.selectedThemes[52]);
    EXPECT_TRUE(back.tourCopy[51]);
    EXPECT_FALSE(back.tourCopy[52]);
    EXPECT_EQ(next.shared.tourPosition, 51);
    EXPECT_EQ(back.ownThemeName, "Verbos");
    EXPECT_EQ(progressOf(next.shared).ownThemes, std::vector<std::string>{"Verbos"});

    // With no own theme left the tour goes on after the fifty.
    NextRun none(folder);
    EXPECT_EQ(none.shared.tourPosition, ThemeCatalogue::kThemes);
    EXPECT_FALSE(none.shared.current().selectedThemes[51]);
}

TEST_F(ProgressFileTest, AMissingFileIsAFreshStartWithoutAWord) {
    NextRun next(folder);
    next.tellAtMenu();
    EXPECT_EQ(progressOf(next.shared), Progress{});
    EXPECT_TRUE(next.dialogs.shown.empty());
    EXPECT_FALSE(fs::exists(progressFile())) << "reading writes nothing";
}

TEST_F(ProgressFileTest, LaterKeysCommentsAndBlankLinesAreNoFault) {
    put("Quillora Vesta progreso 1\r\n# mis puntos\r\n\r\nnormal points=90\r\ncolour=red\r\n"
        "survival worst=-5\r\nhistory=\r\nhistory=GATO");
    const ProgressRead read = readProgressFile(progressFile());
    ASSERT_EQ(read.state, ProgressState::Read);
    EXPECT_EQ(read.progress.normalPoints, 90);
    EXPECT_EQ(read.progress.stats.survival().worst, -5);
    EXPECT_EQ(read.progress.history, "\r\nGATO");
    EXPECT_EQ(read.progress.survivalPoints, 1000) << "what is not there starts fresh";
}

class DamagedProgress : public ProgressFileTest,
                        public ::testing::WithParamInterface<std::string> {};

TEST_P(DamagedProgress, StartsFreshKeepsACopyAndSaysSoOnce) {
    const std::string bad = GetParam();
    put(bad);
    NextRun next(folder);
    EXPECT_EQ(progressOf(next.shared), Progress{});
    const fs::path copy = folder / "QuilloraVS5.txt.progreso.bak";
    EXPECT_EQ(slurp(copy), bad);

    next.tellAtMenu();
    next.tellAtMenu();
    ASSERT_EQ(next.dialogs.shown.size(), 1U);
    const std::string start = bad.starts_with("Quillora Vesta progreso 2")
                                  ? "El progreso guardado es de una versión más nueva del juego"
                                  : "No se pudo leer el progreso guardado";
    EXPECT_EQ(next.dialogs.shown[0].text,
              start + "; se empieza de nuevo. Se guardó una copia en " + copy.string() + ".");
    EXPECT_EQ(next.dialogs.shown[0].icon, Dialogs::Icon::Information);

    // The next save writes a good file; the copy stays as it was.
    next.shared.normalPoints = 30;
    ASSERT_TRUE(saveSettings(next.shared, next.dialogs));
    EXPECT_EQ(readProgressFile(progressFile()).progress.normalPoints, 30);
    EXPECT_EQ(slurp(copy), bad);
}

INSTANTIATE_TEST_SUITE_P(
    Files, DamagedProgress,
    ::testing::Values("Quillora Vesta progreso 2\nnormal points=5\n", "puntos: 300\n",
                      "Quillora Vesta progreso 1\nnormal points=mucho\n",
                      "Quillora Vesta progreso 1\nnormal games=40000\n",
                      "Quillora Vesta progreso 1\nthemes=3,51\n",
                      "Quillora Vesta progreso 1\ntour=2\nhistory=A\x01\n",
                      "Quillora Vesta progreso 1\nhistory=\xC3\n", std::string("\x89PNG\0\x1A", 6),
                      "Quillora Vesta progreso 1\n" + std::string(kMaxProgressBytes, '#')));

TEST_F(ProgressFileTest, RestartClearsWhatItResetsOnDiskToo) {
    shared.normalPoints = 800;
    shared.survivalPoints = 0;
    shared.correctionsLeft = 0;
    ASSERT_TRUE(saveSettings(shared, dialogs));
    // "Reiniciar": the start runs again for the same user.
    loadAtStart(shared);
    EXPECT_EQ(shared.normalPoints, 0);

    NextRun next(folder);
    EXPECT_EQ(next.shared.normalPoints, 0);
    EXPECT_EQ(next.shared.survivalPoints, 1000);
    EXPECT_EQ(next.shared.correctionsLeft, 3);
}

TEST_F(ProgressFileTest, AFailedSaveKeepsTheOldFileAndTellsOnce) {
    shared.normalPoints = 120;
    ASSERT_TRUE(saveSettings(shared, dialogs));
    const std::string before = slurp(progressFile());
    shared.normalPoints = 5000;
    {
        RefusedWrites full;
        EXPECT_FALSE(writeProgress(shared));
        saveProgress(shared, dialogs);
        saveProgress(shared, dialogs);
    }
    EXPECT_EQ(slurp(progressFile()), before);
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text,
              "No se pudo guardar el progreso en " + progressFile().string() + ".");
}

TEST_F(ProgressFileTest, AReturningUserBringsTheirProgressAndADeletionLeavesTheFiles) {
    Progress ana;
    ana.normalPoints = 2200;
    ana.history = "LUNA";
    ASSERT_TRUE(writeProgressFile(folder / "Ana.txt.progreso", ana));
    shared.normalPoints = 75;
    ASSERT_TRUE(saveSettings(shared, dialogs));

    QueuedRandom random;
    Sessions sessions(shared, dialogs, random);
    random.queue({0.5});
    std::string shown;
    ASSERT_TRUE(sessions.add("Ana", false, shown));
    EXPECT_EQ(shared.normalPoints, 2200);
    EXPECT_EQ(shared.history, "LUNA");

    ASSERT_TRUE(sessions.deleteCurrent());
    loadAtStart(shared);
    EXPECT_EQ(shared.normalPoints, 75) << "the main user comes back to what they kept";
    EXPECT_TRUE(fs::exists(folder / "Ana.txt.progreso"));
    EXPECT_TRUE(fs::exists(folder / "Ana.txt"));

    // A progress file dropped on the board is no user of its own.
    EXPECT_FALSE(sessions.addFromFiles({(folder / "Ana.txt.progreso").string()}, false));
}

} // namespace
} // namespace quillora
