// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/frmMenu/frmMenu.h"

#include "look/Twips.h"
#include "state/SharedState.h"
#include "support/Fakes.h"

#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace quillora {
namespace {

using Spot = MenuModel::Spot;

class MenuWindow : public ::testing::Test {
protected:
    void open(bool locked) {
        shared.locked = locked;
        window = std::make_unique<frmMenu>(shared, dialogs);
        window->onPlay = [this] { ++played; };
        window->onQuit = [this] { ++quit; };
        window->show();
        window->activateWindow();
        window->setFocus();
    }
    QPoint centreOf(Spot spot) const { return window->spotRect(spot).center(); }

    SharedState shared;
    ScriptedDialogs dialogs;
    std::unique_ptr<frmMenu> window;
    int played = 0;
    int quit = 0;
};

TEST_F(MenuWindow, TypedDigitStartsAGameOfThatManyPlayers) {
    open(false);
    QTest::keyClick(window.get(), Qt::Key_7);
    EXPECT_EQ(played, 1);
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(shared.multiplayer);
    EXPECT_EQ(shared.roster.rosterSize, 7);
    EXPECT_EQ(window->numberBox()->text(), "7");
}

TEST_F(MenuWindow, HoverAndClickOnATileReachTheModel) {
    open(false);
    EXPECT_FALSE(window->lockPanel()->isVisible());
    QTest::mouseMove(window.get(), centreOf(Spot::Friend));
    EXPECT_EQ(window->legendLabel()->text(), "JUGAR CON UN AMIGO");
    while (window->model().legendTimerRunning()) {
        window->model().tickLegend();
    }
    window->sync();
    EXPECT_EQ(window->legendLabel()->width(), window->numberBox()->parentWidget()->width());

    QTest::mouseClick(window.get(), Qt::LeftButton, {}, centreOf(Spot::Friend));
    EXPECT_EQ(played, 1);
    EXPECT_TRUE(shared.multiplayer);
    EXPECT_EQ(shared.playerCount, 2);
    EXPECT_EQ(shared.roster.guesserCount, 1);
}

TEST_F(MenuWindow, LockCoversTheTilesAndEscapeQuitsOnYes) {
    open(true);
    EXPECT_TRUE(window->lockPanel()->isVisible());
    QTest::mouseClick(window.get(), Qt::LeftButton, {}, centreOf(Spot::Several));
    EXPECT_EQ(played, 0);
    QTest::mouseMove(window.get(), centreOf(Spot::Solo));
    EXPECT_EQ(window->legendLabel()->text(), "CONTINUAR");

    dialogs.answer({false, true});
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_EQ(quit, 0);
    EXPECT_TRUE(window->isVisible());
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_EQ(quit, 1);
    EXPECT_EQ(played, 0);
}

TEST_F(MenuWindow, OptionsOpeningGrowsTheWindowWithoutAnOptionsWindow) {
    open(false);
    const QPoint centre = window->geometry().center();
    QTest::keyClick(window.get(), Qt::Key_0);
    while (window->model().inTimerRunning()) {
        window->model().tickIn();
        window->sync();
    }
    EXPECT_EQ(window->height(), px(MenuModel::kInFinalHeight));
    EXPECT_NEAR(window->geometry().center().x(), centre.x(), 2);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(played, 0);
}

} // namespace
} // namespace quillora
