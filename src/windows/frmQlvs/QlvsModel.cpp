// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/frmQlvs/QlvsModel.h"

#include "storage/SharedState.h"

namespace quillora {

QlvsModel::QlvsModel(SharedState& shared, Dialogs& dialogs, Random& random, RoundEvents* events)
    : m_shared(shared), m_outer(events ? *events : m_noEvents),
      m_round(shared, dialogs, random, this) {
    if (m_shared.settings.tecladoPermanente) {
        m_heightTwips = kBaseHeightTwips + kKeyboardExtraTwips;
        m_keyboardShown = true;
    }
}

void QlvsModel::phraseLaid() {
    openKeyboard();
    m_outer.phraseLaid();
}

void QlvsModel::keyTyped(WindowKey key, char32_t character) {
    switch (key) {
    case WindowKey::Delete:
        m_round.eBackStrike();
        break;
    case WindowKey::Enter:
        m_round.cmdGame();
        break;
    case WindowKey::Character:
        m_round.typeKey(character);
        break;
    case WindowKey::Escape:
    case WindowKey::Other:
        break;
    }
}

void QlvsModel::hoverKey(int key) {
    if (m_pressedKey >= 0) {
        return;
    }
    m_hoveredKey = key;
    ColorFall();
}

void QlvsModel::leaveKeys() {
    if (m_pressedKey < 0) {
        m_hoveredKey = -1;
    }
}

void QlvsModel::pressKey(int key) {
    m_pressedKey = key;
}

void QlvsModel::releaseMouse(int keyUnderMouse) {
    const int pressed = m_pressedKey;
    m_pressedKey = -1;
    m_hoveredKey = keyUnderMouse;
    ColorFall();
    if (pressed >= 0 && pressed == keyUnderMouse) {
        // The clicked key returns to its resting face before it is guessed.
        if (pressed <= 37) {
            m_hoveredKey = -1;
        }
        m_round.clickKey(pressed);
    }
}

KeyLook QlvsModel::keyFace(int key) const {
    return keyLook(key, key == m_hoveredKey, key == m_pressedKey, m_shared.palette);
}

void QlvsModel::hoverQuit() {
    if (m_round.correctionOffered()) {
        m_quitCaption = "<";
        m_quitTooltip = " Borrar un strike. ";
    }
}

void QlvsModel::ColorFall() {
    m_quitCaption.clear();
    m_quitTooltip = " Octavo Strike. ";
}

void QlvsModel::openKeyboard() {
    if (!m_keyboardShown) {
        m_opening = true;
    }
}

void QlvsModel::tickOpen() {
    if (!m_opening) {
        return;
    }
    m_heightTwips += kOpenStepTwips;
    if (m_heightTwips >= kBaseHeightTwips + kKeyboardExtraTwips) {
        m_heightTwips = kBaseHeightTwips + kKeyboardExtraTwips;
        m_keyboardShown = true;
        m_opening = false;
    }
}

LampColours QlvsModel::lampColours() const {
    return quillora::lampColours(m_round.lamp(), m_shared.palette);
}

} // namespace quillora
