// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ScreenKeeper.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace quillora {

QMargins ScreenKeeper::s_frame;

ScreenKeeper::ScreenKeeper(QWidget& window) : QObject(&window) {
    window.installEventFilter(this);
}

void ScreenKeeper::watch(QWidget& window) {
    new ScreenKeeper(window);
    // A window already shown is checked now: its next Show is later.
    if (window.isVisible() && window.isWindow()) {
        keepOnScreen(window);
    }
}

QPoint ScreenKeeper::fitted(const QRect& frame, const QRect& area) {
    // Right and bottom first, then left and top, so that a window larger
    // than the screen keeps its title bar and its left edge in sight.
    auto along = [](int start, int length, int areaStart, int areaLength) {
        return std::max(areaStart, std::min(start, areaStart + areaLength - length));
    };
    return {along(frame.x(), frame.width(), area.x(), area.width()),
            along(frame.y(), frame.height(), area.y(), area.height())};
}

bool ScreenKeeper::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && watched == parent()) {
        auto* widget = static_cast<QWidget*>(watched);
        // Menus, tool tips and the like are placed by the toolkit itself.
        const Qt::WindowType type = widget->windowType();
        if (widget->isWindow() && (type == Qt::Window || type == Qt::Dialog)) {
            keepOnScreen(*widget);
        }
    }
    return QObject::eventFilter(watched, event);
}

void ScreenKeeper::keepOnScreen(QWidget& window) {
    const QRect frame = window.frameGeometry();
    const QRect inside = window.geometry();
    const QMargins seen(inside.left() - frame.left(), inside.top() - frame.top(),
                        frame.right() - inside.right(), frame.bottom() - inside.bottom());
    if (!seen.isNull()) {
        s_frame = seen;
    }
    const QRect outer(window.pos(), (inside + (seen.isNull() ? s_frame : seen)).size());
    const QScreen* screen = QGuiApplication::screenAt(outer.center());
    if (!screen) {
        screen = window.screen();
    }
    if (!screen) {
        return;
    }
    const QPoint place = fitted(outer, screen->availableGeometry());
    if (place != outer.topLeft()) {
        window.move(place);
    }
}

} // namespace quillora
