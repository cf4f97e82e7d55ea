// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring/Countdown.h"

namespace quillora {

void Countdown::start(int letterTotal, int mode, bool onePlayer) {
    // A clock left from the game before never carries over.
    stop();
    if (!onePlayer || (mode != 1 && mode != 2)) {
        return;
    }
    m_seconds = letterTotal * (mode == 1 ? kSecondsPerLetter : kHardSecondsPerLetter);
    m_on = true;
}

Countdown::Tick Countdown::tick() {
    if (!running()) {
        return Tick::Nothing;
    }
    --m_seconds;
    if (m_seconds <= 0) {
        m_seconds = 0;
        stop();
        return Tick::TimeUp;
    }
    return m_seconds == kWarningSeconds ? Tick::Warning : Tick::Nothing;
}

void Countdown::stop() {
    m_on = false;
    m_paused = false;
}

} // namespace quillora
