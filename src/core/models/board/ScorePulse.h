// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Colour.h"
#include "scoring/Points.h"

namespace quillora {

// The score's text pulsing from light to dark grey and back while survival
// points run low or are gone, a step a tick; white the rest of the time.
class ScorePulse {
public:
    static constexpr int kTickMs = 100;

    explicit ScorePulse(const Scoring& scoring) : m_scoring(scoring) {}

    bool running() const { return m_scoring.pulseWanted() || m_scoring.noPoints(); }
    void tick();
    Rgb textColour() const;

private:
    static constexpr int kHigh = 250;
    static constexpr int kLow = 70;
    static constexpr int kStep = 10;

    const Scoring& m_scoring;
    int m_level = kHigh;
    bool m_falling = true;
};

} // namespace quillora
