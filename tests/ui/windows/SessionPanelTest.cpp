// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/SessionPanel.h"
#include "models/board/BoardModel.h"
#include "models/start/StartScreenModel.h"
#include "support/Fakes.h"
#include "support/TempFolder.h"

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace quillora {
namespace {

// The user box takes only what line 15 of a configuration file can hold,
// whether it is typed, pasted or composed by an input method, so a user's
// file and the name written in it never disagree.
TEST(SessionPanelUserBox, TakesOnlyCharactersAConfigurationLineCanHold) {
    TempFolder folder("quillora-panel");
    SharedState shared;
    shared.dataFolder = folder.path();
    loadAtStart(shared);
    ScriptedDialogs dialogs;
    QueuedRandom random;
    FakeDesktop desktop(dialogs);
    SilentAnnouncer announcer;
    BoardModel model(shared, dialogs, announcer, random, desktop.lookUp);
    QWidget board;
    board.resize(800, 500);
    SessionPanel panel(
        model.sessions(), model.appearance(), [] {}, &board);
    board.show();
    panel.show();
    QLineEdit* box = panel.userBox();
    box->setFocus();

    for (const QChar ch : QStringLiteral("Zoë Иван€")) {
        QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, QString(ch), {});
    }
    EXPECT_EQ(box->text(), QStringLiteral("Zoë €"));
    EXPECT_EQ(box->cursorPosition(), box->text().size());

    box->clear();
    QGuiApplication::clipboard()->setText(QStringLiteral("Ana 日本\tPérez"));
    box->paste();
    EXPECT_EQ(box->text(), QStringLiteral("Ana Pérez"));

    box->setCursorPosition(3);
    QInputMethodEvent composing(QStringLiteral("ива"), {});
    QApplication::sendEvent(box, &composing);
    QInputMethodEvent committed;
    committed.setCommitString(QStringLiteral("Иñ"));
    QApplication::sendEvent(box, &committed);
    EXPECT_EQ(box->text(), QStringLiteral("Anañ Pérez"));
    EXPECT_EQ(box->cursorPosition(), 4) << "the cursor stays after what was kept";
}

} // namespace
} // namespace quillora
