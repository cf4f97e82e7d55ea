// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/frmNames/NamesModel.h"

#include "players/Players.h"

#include <gtest/gtest.h>

namespace quillora {
namespace {

SharedState players(int count) {
    SharedState shared;
    shared.sessions[0].playerNames = {"Ana", "Beto", "Ciro", "Dora"};
    setUpRoster(shared, count > 1, count);
    shared.settings.nombre = "Lucía";
    return shared;
}

TEST(NamesModelTest, ShowsThePlayersRowsAndGoesRoundThemOnEnter) {
    const NamesModel four(players(4));
    EXPECT_TRUE(four.rowVisible(4) && !four.rowVisible(5));
    EXPECT_EQ(four.extraHeightTwips(), 1800);
    EXPECT_EQ(four.enter(3).focusBox, 4);
    EXPECT_EQ(four.enter(4).focusBox, 1);
    EXPECT_FALSE(four.enter(4).close);
    const NamesModel alone(players(1));
    EXPECT_EQ(alone.text(1), "Lucía");
    EXPECT_EQ(alone.extraHeightTwips(), 0);
    EXPECT_TRUE(alone.enter(1).close);
}

TEST(NamesModelTest, TwoTicksSwapAndAThirdIsRefused) {
    NamesModel model(players(4));
    EXPECT_TRUE(model.tick(3));
    EXPECT_FALSE(model.changeTimerRunning());
    EXPECT_TRUE(model.tick(1));
    EXPECT_FALSE(model.tick(4));
    model.tickChange();
    EXPECT_EQ(model.text(1), "Ciro");
    EXPECT_EQ(model.text(3), "Ana");
    EXPECT_FALSE(model.checked(1) || model.checked(3) || model.changeTimerRunning());
}

TEST(NamesModelTest, PlaceholderMakesWayAndFillsTheEmptyPlayersOnClose) {
    SharedState shared = players(3);
    NamesModel model(shared);
    model.setText(2, "JUGADOR 2");
    model.focusIn(2);
    EXPECT_EQ(model.text(2), "");
    model.setText(3, "");
    model.setText(5, "Eva");
    model.eOk(shared);
    EXPECT_EQ(shared.sessions[0].playerNames,
              (std::array<std::string, 9>{"Ana", "JUGADOR 2", "JUGADOR 3", "Dora", "Eva"}));
    EXPECT_EQ(shared.settings.nombre, "Lucía");

    SharedState alone = players(1);
    NamesModel single(alone);
    single.setText(1, "Marta");
    single.eOk(alone);
    EXPECT_EQ(alone.settings.nombre, "Marta");
    EXPECT_EQ(alone.currentSession().displayName, "Marta");
    EXPECT_EQ(alone.sessions[0].playerNames[0], "Ana");
}

} // namespace
} // namespace quillora
