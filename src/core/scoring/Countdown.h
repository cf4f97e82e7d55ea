// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quillora {

// The clock of countdown mode: so many seconds for every hidden letter, one
// less on each tick of the board's one-second timer. It only counts; what
// running out of time means belongs to the round.
class Countdown {
public:
    static constexpr int kTickMs = 1000;
    static constexpr int kSecondsPerLetter = 10;
    static constexpr int kHardSecondsPerLetter = 5;
    // From here down the clock shows in the game colour, and reaching it
    // warns once.
    static constexpr int kWarningSeconds = 10;

    enum class Tick {
        Nothing,
        Warning, // the clock has just reached kWarningSeconds
        TimeUp,  // the clock has just reached 0 and stopped
    };

    // The clock of a freshly laid phrase: mode 1 gives ten seconds a letter,
    // mode 2 five, and any other mode or a game of several players no clock
    // at all. The mode is read only here, so a change of it waits for the
    // next game.
    void start(int letterTotal, int mode, bool onePlayer);
    Tick tick();
    // A won or lost game, or a new one: the clock goes away.
    void stop();
    // While the player is asked about taking a strike back the clock holds
    // still; it goes on afterwards only if it was counting.
    void pause() { m_paused = true; }
    void resume() { m_paused = false; }

    // The board's timer runs only while this holds.
    bool running() const { return m_on && !m_paused; }
    // The label is shown for the whole game, paused or not.
    bool visible() const { return m_on; }
    int seconds() const { return m_seconds; }
    std::string text() const { return std::to_string(m_seconds); }
    // Few seconds left: the label takes the game colour instead of white.
    bool urgent() const { return m_seconds <= kWarningSeconds; }

private:
    int m_seconds = 0;
    bool m_on = false;
    bool m_paused = false;
};

} // namespace quillora
