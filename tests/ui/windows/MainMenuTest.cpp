// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/menu/MainMenu.h"

#include "look/Twips.h"
#include "state/SharedState.h"
#include "storage/ConfigFile.h"
#include "support/AccessibleTree.h"
#include "support/Fakes.h"
#include "support/Keys.h"
#include "support/TempFolder.h"
#include "windows/FocusRing.h"
#include "windows/QtColour.h"

#include <QCoreApplication>
#include <QLabel>
#include <QSet>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace quillora {
namespace {

using Spot = MainMenuModel::Spot;

class MenuWindowTest : public ::testing::Test {
protected:
    MenuWindowTest() {
        shared.dataFolder = folder.path();
        shared.currentSession().filePath = shared.mainConfigPath().string();
    }
    void open(bool locked) {
        shared.locked = locked;
        window = std::make_unique<MainMenu>(shared, dialogs);
        window->onPlay = [this] { ++played; };
        window->onQuit = [this] { ++quit; };
        window->show();
        window->activateWindow();
        window->setFocus();
    }
    QPoint centreOf(Spot spot) const { return window->spotRect(spot).center(); }

    TempFolder folder{"quillora-menu-window"};
    SharedState shared;
    ScriptedDialogs dialogs;
    std::unique_ptr<MainMenu> window;
    int played = 0;
    int quit = 0;
};

TEST_F(MenuWindowTest, TheMouseAndTheKeysReachTheModel) {
    open(false);
    EXPECT_FALSE(window->lockPanel()->isVisible());
    QTest::mouseMove(window.get(), centreOf(Spot::Friend));
    EXPECT_EQ(window->legendLabel()->text(), "JUGAR CON UN AMIGO");
    while (window->model().legendTimerRunning()) {
        window->model().tickLegend();
    }
    window->sync();
    EXPECT_EQ(window->legendLabel()->width(), window->numberBox()->parentWidget()->width());
    QTest::mouseClick(window.get(), Qt::LeftButton, {}, centreOf(Spot::Legend));
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_TRUE(dialogs.shown[0].about) << "the legend tells about the game";

    // "0" swells the window towards the options, which are not ours to open.
    const QPoint centre = window->geometry().center();
    QTest::keyClick(window.get(), Qt::Key_0);
    while (window->model().inTimerRunning()) {
        window->model().tickIn();
        window->sync();
    }
    EXPECT_EQ(window->height(), px(MainMenuModel::kInFinalHeight));
    EXPECT_NEAR(window->geometry().center().x(), centre.x(), 2);
    EXPECT_TRUE(window->isVisible());

    dialogs.answer({false, true});
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_EQ(quit, 0);
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_EQ(quit, 1);
    EXPECT_EQ(played, 0);

    QTest::keyClick(window.get(), Qt::Key_7);
    EXPECT_EQ(played, 1);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(shared.roster.rosterSize, 7);
    EXPECT_EQ(window->numberBox()->text(), "7");
}

// Back from the options the menu stands where they stood, as wide, under
// their caption, but short: the legend and every tile still whole.
TEST_F(MenuWindowTest, BackFromTheOptionsItTakesTheirPlaceShortWithEveryTileInSight) {
    window = std::make_unique<MainMenu>(shared, dialogs);
    window->takePlaceOf(QPoint(90, 70), 6945, QStringLiteral("Configuración:"));
    window->show();
    EXPECT_EQ(window->pos(), QPoint(90, 70));
    EXPECT_EQ(window->size(), QSize(px(6945), px(2115)));
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Configuración:"));
    for (Spot spot : {Spot::Legend, Spot::Solo, Spot::Friend, Spot::Several, Spot::Options}) {
        EXPECT_TRUE(window->rect().contains(window->spotRect(spot))) << static_cast<int>(spot);
    }
}

TEST_F(MenuWindowTest, TheTilesAreHeardByTheirLegendsAndPlayedFromTheKeys) {
    open(false);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    const AccessibleTree tree(window.get());
    EXPECT_EQ(tree.root()->text(QAccessible::Name), "Quillora Vesta");
    EXPECT_EQ(tree.unheardControls(), "");
    // Each tile is heard by the legend the mouse over it shows, and no two
    // sound alike.
    QSet<QString> heard;
    for (Spot spot : {Spot::Solo, Spot::Friend, Spot::Several, Spot::Options}) {
        QAccessibleInterface* tile = tree.find(window->tile(spot));
        ASSERT_NE(tile, nullptr);
        EXPECT_EQ(tile->role(), QAccessible::Button);
        QTest::mouseMove(window.get(), centreOf(spot));
        EXPECT_EQ(tile->text(QAccessible::Name), window->legendLabel()->text());
        heard << tile->text(QAccessible::Name);
    }
    EXPECT_EQ(heard.size(), 4);
    QTest::mouseMove(window.get(), QPoint(1, 1));

    // Tab walks the tiles; the one reached names itself in the legend and
    // wears the ring.
    pressKey(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), window->tile(Spot::Solo));
    pressKey(Qt::Key_Tab);
    QWidget* friendTile = window->tile(Spot::Friend);
    ASSERT_EQ(QApplication::focusWidget(), friendTile);
    EXPECT_EQ(window->legendLabel()->text(), "JUGAR CON UN AMIGO");
    const FocusRing* ring = FocusRing::of(window.get());
    ASSERT_NE(ring, nullptr);
    EXPECT_EQ(ring->target(), friendTile);
    EXPECT_TRUE(ring->geometry().contains(
        QRect(friendTile->mapTo(window.get(), QPoint(0, 0)), friendTile->size())));
    pressKey(Qt::Key_Right);
    pressKey(Qt::Key_Left);
    EXPECT_EQ(QApplication::focusWidget(), friendTile) << "the arrows walk the tiles too";

    pressKey(Qt::Key_Space);
    EXPECT_EQ(played, 1);
    EXPECT_EQ(shared.roster.rosterSize, 2);
    EXPECT_TRUE(shared.multiplayer);
}

TEST_F(MenuWindowTest, TheLockCoversEveryTileButTheOneThatContinues) {
    shared.multiplayer = true; // left from an earlier game
    open(true);
    EXPECT_TRUE(window->lockPanel()->isVisible());
    // The keys pass the locked tiles by.
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    pressKey(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), window->tile(Spot::Solo));
    pressKey(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), window->legendLabel());
    pressKey(Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_EQ(window->legendLabel()->text(), "CONTINUAR");
    QTest::mouseClick(window.get(), Qt::LeftButton, {}, centreOf(Spot::Several));
    EXPECT_EQ(played, 0);
    QTest::mouseMove(window.get(), centreOf(Spot::Solo));
    EXPECT_EQ(window->legendLabel()->text(), "CONTINUAR");
    QTest::mouseClick(window.get(), Qt::LeftButton, {}, centreOf(Spot::Solo));
    EXPECT_EQ(played, 1);
    EXPECT_FALSE(shared.multiplayer) << "a locked session goes on alone";
}

TEST_F(MenuWindowTest, TheImportIsAskedOnceOverTheShownMenu) {
    std::vector<std::string> lines(20, "0");
    lines[17] = "255";
    ASSERT_TRUE(writeConfigLines(folder.path() / "Quillora5.txt", lines));

    // A menu gone again before the question's turn asks nothing.
    window = std::make_unique<MainMenu>(shared, dialogs);
    window->show();
    window->hide();
    QCoreApplication::processEvents();
    EXPECT_TRUE(dialogs.shown.empty());

    bool menuBehind = false;
    dialogs.onAsk = [this, &menuBehind] { menuBehind = window && window->isVisible(); };
    dialogs.answer({true});
    open(false);
    EXPECT_TRUE(dialogs.shown.empty()) << "not before the menu is on screen";
    QCoreApplication::processEvents();
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_TRUE(menuBehind);
    EXPECT_TRUE(window->legendLabel()->styleSheet().contains(css(Rgb{255, 0, 0})))
        << "the copied colour shows at once";

    window->hide();
    window->show();
    QCoreApplication::processEvents();
    EXPECT_EQ(dialogs.shown.size(), 1U);
}

} // namespace
} // namespace quillora
