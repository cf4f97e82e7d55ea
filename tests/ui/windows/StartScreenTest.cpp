// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/start/StartScreen.h"
#include "state/SharedState.h"
#include "support/AccessibleTree.h"
#include "support/Fakes.h"
#include "support/Keys.h"
#include "support/TempFolder.h"
#include "windows/QtColour.h"

#include <QLabel>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace quillora {
namespace {

TEST(StartScreenWindow, TheMenuComesAfterTheLineOrTheNoticeStaysAndItsButtonsWork) {
    // Each start reads or writes the user's progress in the data folder.
    TempFolder folder("quillora-start");
    SharedState shared;
    shared.dataFolder = folder.path();
    ScriptedDialogs dialogs;
    FakeDesktop desktop(dialogs);
    int menus = 0, restarts = 0;
    for (const bool font : {true, false}) {
        StartScreen screen(shared, desktop.lookUp, font);
        screen.onMenu = [&menus] { ++menus; };
        screen.onRestart = [&restarts] { ++restarts; };
        screen.show();
        for (int i = 0; i < 100 && screen.timer()->isActive(); ++i) {
            screen.tick();
        }
        EXPECT_FALSE(screen.timer()->isActive());
        EXPECT_EQ(menus, 1) << "only with the font";
        EXPECT_EQ(screen.notice() && screen.notice()->isVisible(), !font);
        if (!font) {
            QTest::mouseClick(screen.downloadButton(), Qt::LeftButton);
            EXPECT_EQ(desktop.web.opened.size(), 1U);
            // The keys press the labels as well, which a screen reader
            // hears as buttons.
            screen.activateWindow();
            ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
            const AccessibleTree tree(&screen);
            EXPECT_EQ(tree.unheardControls(), "");
            EXPECT_EQ(tree.usableControls(), 3);
            for (int i = 0; i < 3 && QApplication::focusWidget() != screen.restartButton(); ++i) {
                pressKey(Qt::Key_Tab);
            }
            ASSERT_EQ(QApplication::focusWidget(), screen.restartButton());
            pressKey(Qt::Key_Space);
            EXPECT_EQ(restarts, 1);
        }
    }
}

// " Cerrar " shows the screen through it, and fills only while it is held.
TEST(StartScreenWindow, CloseIsAnOutlineThatFillsOnlyWhilePressed) {
    SharedState shared;
    ScriptedDialogs dialogs;
    FakeDesktop desktop(dialogs);
    StartScreen screen(shared, desktop.lookUp, true);
    int closes = 0;
    screen.onClose = [&closes] { ++closes; };
    screen.show();
    QLabel* close = screen.closeLabel();
    // Beside the text, inside the outline.
    const auto inside = [&] {
        const QRect at = close->geometry();
        return screen.grab(at).toImage().pixelColor(4, at.height() / 2);
    };
    EXPECT_EQ(inside(), qc(kNearWhite));
    QTest::mousePress(close, Qt::LeftButton);
    EXPECT_EQ(inside(), qc(kDefaultBlue));
    QTest::mouseRelease(close, Qt::LeftButton);
    EXPECT_EQ(inside(), qc(kNearWhite));
    EXPECT_EQ(closes, 1);
}

} // namespace
} // namespace quillora
