// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/KeyboardSlide.h"

namespace quillora {

void KeyboardSlide::showAtOnce() {
    m_heightTwips = kBoardBaseHeightTwips + kKeyboardExtraTwips;
    m_shown = true;
}

void KeyboardSlide::open() {
    if (!m_shown) {
        m_opening = true;
    }
}

void KeyboardSlide::tickOpen() {
    if (!m_opening) {
        return;
    }
    m_heightTwips += kOpenStepTwips;
    if (m_heightTwips >= kBoardBaseHeightTwips + kKeyboardExtraTwips) {
        m_heightTwips = kBoardBaseHeightTwips + kKeyboardExtraTwips;
        m_shown = true;
        m_opening = false;
        if (m_settings.keyboardKeptOpen) {
            m_climbSteps = kClimbSteps;
        }
    }
}

int KeyboardSlide::tickClimb() {
    if (m_climbSteps == 0) {
        return 0;
    }
    --m_climbSteps;
    return kClimbStepTwips;
}

} // namespace quillora
