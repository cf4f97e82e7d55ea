// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/BoardKeys.h"

#include <QKeyEvent>

namespace quillora {

BoardModel::WindowKey shortcutOf(const QKeyEvent& event) {
    using WindowKey = BoardModel::WindowKey;
    const auto mods = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (mods == Qt::ControlModifier) {
        switch (event.key()) {
        case Qt::Key_A:
            return WindowKey::ToggleAuto;
        case Qt::Key_S:
            return WindowKey::ToggleSounds;
        case Qt::Key_J:
            return WindowKey::Names;
        case Qt::Key_H:
            return WindowKey::History;
        case Qt::Key_D:
            return WindowKey::Design;
        default:
            return WindowKey::Other;
        }
    }
    if (mods == Qt::AltModifier) {
        return event.key() == Qt::Key_Backspace ? WindowKey::BackToMenu : WindowKey::Other;
    }
    // Shift+F10 stands in for the menu key on keyboards that have none.
    if (event.key() == Qt::Key_F10 && event.modifiers() & Qt::ShiftModifier) {
        return WindowKey::MenuKey;
    }
    switch (event.key()) {
    case Qt::Key_F1:
        return WindowKey::F1;
    case Qt::Key_F2:
        return WindowKey::F2;
    case Qt::Key_F3:
        return WindowKey::F3;
    case Qt::Key_F4:
        return WindowKey::F4;
    case Qt::Key_F5:
        return WindowKey::F5;
    case Qt::Key_F6:
        return WindowKey::ReadBoard;
    case Qt::Key_F11:
        return WindowKey::FullScreen;
    case Qt::Key_Delete:
        return WindowKey::Delete;
    case Qt::Key_Escape:
        return WindowKey::Escape;
    case Qt::Key_Menu:
        return WindowKey::MenuKey;
    default:
        return WindowKey::Other;
    }
}

char32_t deadAccent(int key) {
    switch (key) {
    case Qt::Key_Dead_Acute:
        return U'\u00B4';
    case Qt::Key_Dead_Grave:
        return U'`';
    case Qt::Key_Dead_Circumflex:
        return U'^';
    case Qt::Key_Dead_Diaeresis:
        return U'\u00A8';
    case Qt::Key_Dead_Tilde:
        return U'~';
    case Qt::Key_Dead_Abovering:
        return U'\u00B0';
    case Qt::Key_Dead_Cedilla:
        return U'\u00B8';
    default:
        return key >= Qt::Key_Dead_Grave && key <= Qt::Key_Dead_Longsolidusoverlay ? U'\u02D9' : 0;
    }
}

} // namespace quillora
