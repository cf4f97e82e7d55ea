// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/KeyFaces.h"

#include "round/Keyboard.h"
#include "round/Round.h"

namespace quillora {

void KeyFaces::hover(int key) {
    if (m_pressed >= 0) {
        return;
    }
    m_hovered = key;
    restore();
}

void KeyFaces::leave() {
    if (m_pressed < 0) {
        m_hovered = -1;
    }
}

void KeyFaces::release(int keyUnderMouse) {
    const int pressed = m_pressed;
    m_pressed = -1;
    m_hovered = keyUnderMouse;
    restore();
    if (pressed >= 0 && pressed == keyUnderMouse) {
        // A clicked letter or digit returns to its resting face before it is
        // guessed; the digits' switch and "Escribir" stay lit under the mouse.
        if (pressed < kDigitPanelKey) {
            m_hovered = -1;
        }
        m_round.clickKey(pressed);
    }
}

KeyLook KeyFaces::face(int key) const {
    return keyLook(key, key == m_hovered, key == m_pressed, m_palette);
}

void KeyFaces::hoverCorrection() {
    if (m_round.correctionOffered()) {
        m_correctionCaption = "<";
        m_correctionTooltip = " Borrar un strike. ";
    }
}

void KeyFaces::restore() {
    m_correctionCaption.clear();
    m_correctionTooltip = " Octavo Strike. ";
}

} // namespace quillora
