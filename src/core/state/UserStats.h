// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace quillora {

// What one user has played in the games where points count, normal play and
// survival kept apart. Sixteen-bit counters, as the game has always had them.
class UserStats {
public:
    struct Counters {
        std::int16_t errors = 0;
        std::int16_t games = 0;
        // The most and the fewest points of one won game; a worst of 0 means
        // no game has been won yet.
        std::int16_t best = 0;
        std::int16_t worst = 0;
        bool operator==(const Counters&) const = default;
    };

    UserStats() = default;
    // The counters as an earlier run of the game left them.
    UserStats(const Counters& normal, const Counters& survival)
        : m_normal(normal), m_survival(survival) {}
    bool operator==(const UserStats&) const = default;

    const Counters& normal() const { return m_normal; }
    const Counters& survival() const { return m_survival; }
    const Counters& of(bool survival) const { return survival ? m_survival : m_normal; }

    // A win has nothing to fall back on when a counter is full, and losing a
    // win to its count would be worse than a count that stops: the errors
    // and the games stop at 32767.
    void countWin(int points, int strikes, bool survival);
    // A loss is counted under the loss handler's trap: a counter that would
    // pass 32767 throws std::overflow_error with nothing counted, and the
    // handler makes it up to the player with its gift.
    void countLoss(int strikes, bool survival);
    // Both columns back to 0, as when the normal points go into survival.
    void reset();

private:
    Counters& counters(bool survival) { return survival ? m_survival : m_normal; }

    Counters m_normal;
    Counters m_survival;
};

} // namespace quillora
