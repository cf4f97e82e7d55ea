// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/frmInicio/InicioModel.h"
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

int runTimer(InicioModel& model) {
    int ticks = 0;
    while (model.timerRunning() && ticks < 1000) {
        model.tick();
        ++ticks;
    }
    return ticks;
}

TEST(StartScreen, HandsOverToTheMenuAfterSixtyFiveTicks) {
    SharedState shared;
    InicioModel model(shared, true);
    for (int i = 0; i < 64; ++i) {
        model.tick();
    }
    EXPECT_EQ(model.outcome(), InicioModel::Outcome::Waiting);
    model.tick();
    EXPECT_EQ(model.outcome(), InicioModel::Outcome::ShowMenu);
    EXPECT_FALSE(model.timerRunning());
    EXPECT_EQ(model.lineLength(), 65 * 120);
    EXPECT_FALSE(model.noticeShown());
}

TEST(StartScreen, WithoutTheFontItStopsAtTheNoticeAndOffersTheDownload) {
    SharedState shared;
    ScriptedDialogs dialogs;
    FakeWeb web;
    InicioModel model(shared, false);
    EXPECT_EQ(runTimer(model), 65);
    EXPECT_TRUE(model.noticeShown());
    EXPECT_EQ(model.outcome(), InicioModel::Outcome::Waiting);

    web.alive = false;
    model.download(web, dialogs);
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text,
              "Se requiere una conexión a Internet para descargar, intente más tarde.");
    EXPECT_TRUE(web.opened.empty());
    EXPECT_FALSE(model.downloaded());

    web.alive = true;
    model.download(web, dialogs);
    EXPECT_EQ(web.opened.size(), 1U);
    EXPECT_TRUE(model.downloaded());
    EXPECT_EQ(model.pointerLeft(), InicioModel::kPointerAtRestart);
    model.restart();
    EXPECT_EQ(model.outcome(), InicioModel::Outcome::Restart);
}

TEST(StartScreen, APlainRestartResetsTheUserButASwitchKeepsThem) {
    SharedState shared;
    shared.normalPoints = 300;
    shared.survivalPoints = 50;
    shared.sessions[0].playerNames[0] = "Ana";
    shared.currentSession().corrections = "1";
    InicioModel plain(shared, true);
    EXPECT_EQ(shared.normalPoints, 0);
    EXPECT_EQ(shared.survivalPoints, 1000);
    EXPECT_EQ(shared.correctionsLeft, 3);
    EXPECT_EQ(shared.sessions[0].playerNames[0], "Jugador 1");
    EXPECT_EQ(shared.sessions[0].record.Archivo, shared.mainConfigPath().string());

    shared.normalPoints = 300;
    shared.sessions[0].playerNames[0] = "Ana";
    shared.currentSession().corrections = "1";
    shared.skipStartDefaults = true;
    InicioModel afterSwitch(shared, true);
    EXPECT_EQ(shared.normalPoints, 300);
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
    for (const auto& name : leftovers) {
        std::ofstream(at(name)) << "mitad";
    }
    for (const auto& name : kept) {
        std::ofstream(at(name)) << "mitad";
    }
    fs::last_write_time(at(leftovers[2]), fs::file_time_type::clock::now() - std::chrono::hours(3));
    fs::create_directory(at(".quillora-" + std::to_string(gone) + "-1-5.tmp"));

    SharedState shared;
    shared.dataFolder = folder.path();
    InicioModel model(shared, true);
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
