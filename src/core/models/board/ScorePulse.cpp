// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/ScorePulse.h"

namespace quillora {

void ScorePulse::tick() {
    m_level += m_falling ? -kStep : kStep;
    if (m_level <= kLow) {
        m_falling = false;
    } else if (m_level >= kHigh) {
        m_falling = true;
    }
}

Rgb ScorePulse::textColour() const {
    if (!running()) {
        return kNearWhite;
    }
    return Rgb{m_level, m_level, m_level};
}

} // namespace quillora
