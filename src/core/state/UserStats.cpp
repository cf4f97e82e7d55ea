// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/UserStats.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace quillora {

namespace {
constexpr int kTop = std::numeric_limits<std::int16_t>::max();
constexpr int kBottom = std::numeric_limits<std::int16_t>::min();

std::int16_t saturated(int value) {
    return static_cast<std::int16_t>(std::clamp(value, kBottom, kTop));
}
} // namespace

void UserStats::countWin(int points, int strikes, bool survival) {
    Counters& c = counters(survival);
    c.errors = saturated(c.errors + strikes);
    c.games = saturated(c.games + 1);
    const std::int16_t p = saturated(points);
    if (c.worst == 0) {
        c.worst = p;
    }
    if (p >= c.best) {
        c.best = p;
    }
    if (p <= c.worst) {
        c.worst = p;
    }
}

void UserStats::countLoss(int strikes, bool survival) {
    Counters& c = counters(survival);
    if (c.errors + strikes > kTop || c.games + 1 > kTop) {
        throw std::overflow_error("statistics counter full");
    }
    c.errors = static_cast<std::int16_t>(c.errors + strikes);
    c.games = static_cast<std::int16_t>(c.games + 1);
}

void UserStats::reset() {
    m_normal = {};
    m_survival = {};
}

} // namespace quillora
