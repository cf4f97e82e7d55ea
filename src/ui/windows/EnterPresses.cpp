// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/EnterPresses.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>

namespace quillora {

EnterPresses::EnterPresses(QWidget* window) : QObject(window) {
    // A key the focused control leaves goes on to its window, where this
    // looks at it before the window's own keys do.
    window->installEventFilter(this);
}

bool EnterPresses::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    auto* button = qobject_cast<QAbstractButton*>(QApplication::focusWidget());
    if (!enter || (key->modifiers() & ~Qt::KeypadModifier) || !button || !button->isEnabled() ||
        button->window() != watched) {
        return false;
    }
    // A held key presses once.
    if (!key->isAutoRepeat()) {
        button->click();
    }
    return true;
}

} // namespace quillora
