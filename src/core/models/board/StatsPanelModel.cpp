// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/StatsPanelModel.h"

#include "state/SharedState.h"
#include "words/Text.h"

#include <cmath>

namespace quillora {

namespace {
// Survival starts every user at 1000: its average tells the gain over that.
constexpr double kSurvivalStart = 1000;
} // namespace

StatsPanelModel::StatsPanelModel(const SharedState& shared) : m_shared(shared) {
    m_values.fill("0");
}

void StatsPanelModel::fill() {
    const UserStats& stats = m_shared.current().stats;
    for (const bool survival : {false, true}) {
        const UserStats::Counters& c = stats.of(survival);
        const double points = survival ? m_shared.survivalPoints : m_shared.normalPoints;
        const double gain = survival ? points - kSurvivalStart : points;
        auto set = [&](Row row, double number) {
            m_values[static_cast<std::size_t>(row + (survival ? kSurvivalColumn : 0))] =
                formatNumber(number);
        };
        set(Points, points);
        set(Errors, c.errors);
        set(Games, c.games);
        set(Best, c.best);
        set(Worst, c.worst);
        // Without a game there is nothing to divide by: the averages keep
        // what they showed last.
        if (c.games >= 1) {
            set(AverageErrors, std::floor(static_cast<double>(c.errors) / c.games));
            set(AveragePoints, std::floor(gain / c.games));
        }
    }
}

void StatsPanelModel::open() {
    fill();
    m_shown = true;
    m_opening = true;
    m_closing = false;
}

void StatsPanelModel::close() {
    if (!m_shown) {
        return;
    }
    m_valuesShown = false;
    m_opening = false;
    m_closing = true;
}

void StatsPanelModel::tick() {
    if (m_opening) {
        if (m_height < kSlowFrom) {
            m_height += kStep;
        } else if (m_height < kOpenHeight) {
            m_height += kSlowStep;
        }
        if (m_height >= kOpenHeight) {
            m_valuesShown = true;
            m_opening = false;
        }
    } else if (m_closing) {
        if (m_height > kSlowBelow) {
            m_height -= kStep;
        } else if (m_height > kClosedHeight) {
            m_height -= kSlowStep;
        }
        if (m_height <= kClosedHeight) {
            m_shown = false;
            m_closing = false;
        }
    }
}

} // namespace quillora
