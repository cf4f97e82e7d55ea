// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/start/StartScreenModel.h"
#include "state/SharedState.h"

#include "support/Fakes.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace quillora {
namespace {

namespace fs = std::filesystem;

TEST(StartScreen, TheLineRunsSixtyFiveTicksThenShowsTheMenuOrOffersTheFont) {
    // Each start reads or writes the user's progress in the data folder.
    TempFolder folder("quillora-start");
    SharedState shared;
    shared.dataFolder = folder.path();
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
        shared.sessions[0].optionsPage = 2;
        shared.sessions[3].optionsPage = 3;
    };
    leftBehind();
    StartScreenModel plain(shared, true);
    EXPECT_EQ(shared.normalPoints, 0);
    EXPECT_EQ(shared.survivalPoints, 1000);
    EXPECT_EQ(shared.correctionsLeft, 3);
    EXPECT_EQ(shared.sessions[0].playerNames[0], "Jugador 1");
    EXPECT_EQ(shared.sessions[0].optionsPage, 0);
    EXPECT_EQ(shared.sessions[3].optionsPage, 0) << "every user's, not only the current one's";
    EXPECT_EQ(shared.sessions[0].record.filePath, shared.mainConfigPath().string());

    leftBehind();
    shared.skipStartDefaults = true;
    StartScreenModel afterSwitch(shared, true);
    EXPECT_EQ(shared.normalPoints, 300);
    EXPECT_EQ(shared.survivalPoints, 50);
    EXPECT_EQ(shared.sessions[0].playerNames[0], "Ana");
    EXPECT_EQ(shared.correctionsLeft, 1);
    EXPECT_EQ(shared.sessions[3].optionsPage, 3);
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

} // namespace
} // namespace quillora
