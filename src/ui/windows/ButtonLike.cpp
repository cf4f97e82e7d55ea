// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/ButtonLike.h"

#include <QKeyEvent>
#include <QWidget>

namespace quillora {

ButtonLike::ButtonLike(QWidget* control, AccessibleControl::Text name, std::function<void()> press,
                       Qt::FocusPolicy focus)
    : QObject(control), m_press(press) {
    control->setFocusPolicy(focus);
    AccessibleControl::button(control, std::move(name), std::move(press));
    control->installEventFilter(this);
}

ButtonLike::ButtonLike(QWidget* control, std::function<void()> press, Qt::FocusPolicy focus)
    : QObject(control), m_press(std::move(press)) {
    control->setFocusPolicy(focus);
    control->installEventFilter(this);
}

bool ButtonLike::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return QObject::eventFilter(watched, event);
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool pressKey =
        key->key() == Qt::Key_Space || key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (!pressKey || (key->modifiers() & ~Qt::KeypadModifier)) {
        return false;
    }
    // A held key presses once. The press may close the window and this
    // filter with it, so it runs on a copy.
    if (!key->isAutoRepeat()) {
        const auto press = m_press;
        press();
    }
    return true;
}

} // namespace quillora
