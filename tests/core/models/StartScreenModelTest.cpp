// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/start/StartScreenModel.h"
#include "storage/ConfigFile.h"

#include "support/LoadedSession.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace quillora {
namespace {

namespace fs = std::filesystem;

TEST(StartScreen, TheLineRunsSixtyFiveTicksThenShowsTheMenuOrOffersTheFont) {
    SharedState shared;
    StartScreenModel withFont(shared, true);
    StartScreenModel withoutFont(shared, false);
    for (int i = 0; i < 64; ++i) {
        withFont.tick();
        withoutFont.tick();
    }
    EXPECT_EQ(withFont.outcome(), StartScreenModel::Outcome::Waiting);
    EXPECT_TRUE(withoutFont.timerRunning());
    withFont.tick();
    withoutFont.tick();
    EXPECT_EQ(withFont.outcome(), StartScreenModel::Outcome::ShowMenu);
    EXPECT_FALSE(withFont.timerRunning() || withoutFont.timerRunning());
    EXPECT_EQ(withFont.lineLength(), 65 * 120);
    EXPECT_FALSE(withFont.noticeShown());
    EXPECT_TRUE(withoutFont.noticeShown());
    EXPECT_EQ(withoutFont.outcome(), StartScreenModel::Outcome::Waiting);

    ScriptedDialogs dialogs;
    FakeDesktop desktop(dialogs);
    const FakeWeb& web = desktop.web;
    desktop.network.alive = false;
    withoutFont.download(desktop.lookUp);
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text,
              "Se requiere una conexión a Internet para descargar, intente más tarde.");
    EXPECT_TRUE(web.opened.empty());
    EXPECT_FALSE(withoutFont.downloaded());

    desktop.network.alive = true;
    withoutFont.download(desktop.lookUp);
    EXPECT_EQ(web.opened.size(), 1U);
    EXPECT_TRUE(withoutFont.downloaded());
    EXPECT_EQ(withoutFont.pointerLeft(), StartScreenModel::kPointerAtRestart);
    withoutFont.restart();
    EXPECT_EQ(withoutFont.outcome(), StartScreenModel::Outcome::Restart);
}

TEST(StartScreen, APlainRestartResetsTheUserButASwitchKeepsThem) {
    SharedState shared;
    // What an earlier user left behind.
    const auto leftBehind = [&shared] {
        shared.normalPoints = 300;
        shared.survivalPoints = 50;
        shared.sessions[0].playerNames[0] = "Ana";
        shared.currentSession().corrections = "1";
    };
    leftBehind();
    StartScreenModel plain(shared, true);
    EXPECT_EQ(shared.normalPoints, 0);
    EXPECT_EQ(shared.survivalPoints, 1000);
    EXPECT_EQ(shared.correctionsLeft, 3);
    EXPECT_EQ(shared.sessions[0].playerNames[0], "Jugador 1");
    EXPECT_EQ(shared.sessions[0].record.filePath, shared.mainConfigPath().string());

    leftBehind();
    shared.skipStartDefaults = true;
    StartScreenModel afterSwitch(shared, true);
    EXPECT_EQ(shared.normalPoints, 300);
    EXPECT_EQ(shared.survivalPoints, 50);
    EXPECT_EQ(shared.sessions[0].playerNames[0], "Ana");
    EXPECT_EQ(shared.correctionsLeft, 1);
    EXPECT_FALSE(shared.skipStartDefaults) << "the flag is used once";
}

// What a save killed half-way leaves in the data folder goes at the next start;
// a save of another copy of the game still running, and anything that is not
// one of the game's temporary files, stays.
TEST(StartScreen, ClearsLeftoverTemporaryFilesOfTheGameAndNothingElse) {
    TempFolder folder("quillora-start");
    const auto at = [&folder](const std::string& name) { return folder.path() / name; };
    const pid_t gone = ::fork();
    if (gone == 0) {
        ::_exit(0);
    }
    ASSERT_GT(gone, 0);
    ::waitpid(gone, nullptr, 0);
    const std::string running = std::to_string(::getppid());

    const std::vector<std::string> leftovers{
        ".quillora-" + std::to_string(gone) + "-81234-1.tmp", // its process is gone
        ".quillora-5551234-2.tmp",                            // an earlier build's name
        ".quillora-" + running + "-99-3.tmp",                 // running, but hours old
    };
    const std::vector<std::string> kept{".quillora-" + running + "-77-4.tmp",
                                        ".quillora-notas.tmp",
                                        ".quillora-12-34.tmp.bak",
                                        "quillora-12-34.tmp",
                                        ".quillora--1.tmp",
                                        "QuilloraVS5.txt",
                                        "Ana.txt"};
    for (const auto* names : {&leftovers, &kept}) {
        for (const auto& name : *names) {
            std::ofstream(at(name)) << "mitad";
        }
    }
    fs::last_write_time(at(leftovers[2]), fs::file_time_type::clock::now() - std::chrono::hours(3));
    fs::create_directory(at(".quillora-" + std::to_string(gone) + "-1-5.tmp"));

    SharedState shared;
    shared.dataFolder = folder.path();
    StartScreenModel model(shared, true);
    for (const auto& name : leftovers) {
        EXPECT_FALSE(fs::exists(at(name))) << name;
    }
    for (const auto& name : kept) {
        EXPECT_TRUE(fs::exists(at(name))) << name;
    }
    EXPECT_TRUE(fs::is_directory(at(".quillora-" + std::to_string(gone) + "-1-5.tmp")))
        << "the game never writes a folder of that name";
}

// --- a save killed half-way ------------------------------------------------------------

constexpr int kKills = 200;
constexpr int kLongestWaitMicroseconds = 3000;

std::vector<fs::path> filesBeside(const fs::path& file) {
    std::vector<fs::path> others;
    for (const auto& entry : fs::directory_iterator(file.parent_path())) {
        if (entry.path() != file) {
            others.push_back(entry.path().filename());
        }
    }
    return others;
}

// A real process saves the options over and over, two versions in turn, and
// is killed at a random moment; the file must be one version or the other,
// whole, and the next start must leave no temporary file behind. Kills that
// land between two saves prove nothing, so the test also insists that some
// of them caught a save under way.
TEST(KilledSave, TheFileIsAlwaysWholeAndTheNextStartLeavesNoTemporaryFile) {
    LoadedSession session("quillora-killed");
    SharedState& shared = session.shared;
    ScriptedDialogs& dialogs = session.dialogs;
    const fs::path file = shared.currentSession().filePath;

    // Long enough lines that a save takes a moment.
    shared.settings.backgroundPicture = std::string(3000, 'v');
    shared.settings.userName = "Nueva";
    ASSERT_TRUE(saveSettings(shared, dialogs));
    const std::string newer = slurp(file);
    shared.settings.userName = "Vieja";
    shared.settings.pictureFolder = std::string(2000, 'c');
    ASSERT_TRUE(saveSettings(shared, dialogs));
    const std::string older = slurp(file);
    ASSERT_NE(older, newer);

    std::mt19937 chance(std::random_device{}());
    std::uniform_int_distribution<int> wait(0, kLongestWaitMicroseconds);
    int caughtSaving = 0;
    for (int kill = 0; kill < kKills; ++kill) {
        // The saver says when its first save is done, so the wait is spent
        // among its saves however slowly a loaded machine starts it.
        int started[2];
        ASSERT_EQ(::pipe(started), 0);
        const pid_t saver = ::fork();
        ASSERT_NE(saver, -1);
        if (saver == 0) {
            SharedState mine = shared;
            for (bool flip = false;; flip = !flip) {
                mine.settings.userName = flip ? "Nueva" : "Vieja";
                mine.settings.pictureFolder = flip ? "" : std::string(2000, 'c');
                saveSettings(mine, dialogs);
                if (!flip) {
                    [[maybe_unused]] const auto told = ::write(started[1], "s", 1);
                }
            }
        }
        char first = 0;
        ASSERT_EQ(::read(started[0], &first, 1), 1);
        ::close(started[0]);
        ::close(started[1]);
        std::this_thread::sleep_for(std::chrono::microseconds(wait(chance)));
        ::kill(saver, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(saver, &status, 0), saver);
        ASSERT_TRUE(WIFSIGNALED(status));

        const std::string bytes = slurp(file);
        ASSERT_TRUE(bytes == older || bytes == newer)
            << "kill " << kill << " left " << bytes.size() << " bytes";
        caughtSaving += !filesBeside(file).empty();
        loadAtStart(shared);
        ASSERT_EQ(filesBeside(file), std::vector<fs::path>{}) << "kill " << kill;
    }
    EXPECT_GT(caughtSaving, 0) << "no kill landed during a save";
    EXPECT_TRUE(dialogs.shown.empty());
}

} // namespace
} // namespace quillora
