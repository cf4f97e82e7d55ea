// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/TipModel.h"

#include "words/Tips.h"

namespace quillora {

void TipModel::rest(bool shown) {
    m_shown = shown;
}

void TipModel::startTip() {
    m_text = std::string(tipText(drawTipNumber(m_random)));
    m_resting = false;
    m_left = kWidthTwips;
    m_running = true;
}

void TipModel::tick() {
    if (!m_running) {
        return;
    }
    // The strip comes up with the first step, and goes once the last letter
    // has passed its left edge.
    if (m_left > -m_textWidth) {
        m_shown = true;
        m_left -= kStepTwips;
    } else {
        stop();
    }
}

void TipModel::stop() {
    m_shown = false;
    m_running = false;
}

void TipModel::setTextWidth(int twips) {
    m_textWidth = twips;
    if (m_resting) {
        m_left = (kWidthTwips - twips) / 2;
    }
}

} // namespace quillora
