// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QTest>

namespace quillora {

// Makes `window` the one the keys go to. A dialog counts as active while
// its board is, for QTest::qWaitForWindowActive, so this waits for the
// application's own answer.
inline bool takeKeys(QWidget* window) {
    window->activateWindow();
    return QTest::qWaitFor([window] { return QApplication::activeWindow() == window; });
}

// A key as the player types it: to whatever has the focus, or else to the
// active window, the way the keyboard's own events go.
inline void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* target = QApplication::focusWidget();
    if (!target) {
        target = QApplication::activeWindow();
    }
    if (target) {
        QTest::keyClick(target, key, modifiers);
    }
}

} // namespace quillora
