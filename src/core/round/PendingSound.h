// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillora {

// The one sound waiting to be played. Events only record what they want; a
// short timer plays it once the event has finished updating the board, so a
// later request simply replaces an earlier one.
class PendingSound {
public:
    static constexpr int kTickMs = 20;

    void request(int number, bool soundsOn) {
        m_number = number;
        if (soundsOn) {
            m_timerRunning = true;
        }
    }
    // The timer's tick: the sound to play now (1..6), or 0 for none.
    int tick() {
        const int n = m_number;
        m_number = 0;
        m_timerRunning = false;
        return n >= 1 && n <= 6 ? n : 0;
    }
    int number() const { return m_number; }
    bool timerRunning() const { return m_timerRunning; }

private:
    int m_number = 0;
    bool m_timerRunning = false;
};

} // namespace quillora
