// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/frmInicio/InicioModel.h"
#include "state/SharedState.h"

#include "support/Fakes.h"

#include <gtest/gtest.h>

namespace quillora {
namespace {

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

} // namespace
} // namespace quillora
