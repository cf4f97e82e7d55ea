// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring/Points.h"

#include "ports/Dialogs.h"
#include "state/SharedState.h"
#include "words/Text.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace quillora {

namespace {
constexpr int kDeathStrikes = 8;
} // namespace

int roundHalfEven16(double value) {
    // Worked out by hand rather than with nearbyint, so a rounding mode some
    // library left behind cannot change what a game is worth.
    const double lower = std::floor(value);
    const double fraction = value - lower;
    const bool up = fraction > 0.5 || (fraction == 0.5 && std::fmod(lower, 2.0) != 0.0);
    const double rounded = up ? lower + 1 : lower;
    // Written so that NaN (a phrase without letters) fails the test too.
    if (!(rounded >= -32768 && rounded <= 32767)) {
        throw std::overflow_error("points out of 16-bit range");
    }
    return static_cast<int>(rounded);
}

int winPoints(int revealed, int strikes, bool moreNegativePoints) {
    const int divisor = 1 + (moreNegativePoints ? 2 : 1) * strikes;
    return roundHalfEven16(100.0 * revealed / divisor);
}

int withHalfBonus(int points) {
    return roundHalfEven16(points / 2.0 + points);
}

int lossPoints(int revealed, int total, bool moreNegativePoints) {
    const double full = moreNegativePoints ? 2000 : 1000;
    return roundHalfEven16(full - full * revealed / total);
}

std::string boardTitle(const Settings& s, bool severalPlayers) {
    std::string title(kAppTitle);
    if (severalPlayers) {
        return title;
    }
    if (s.pointsSystem) {
        if (!s.survival && !s.moreNegativePoints) {
            title += " | Puntos";
        }
        if (s.survival) {
            title += " | Supervivencia";
        }
        if (s.moreNegativePoints) {
            title += " | -Puntos";
        }
    }
    if (s.countdown == 1) {
        title += " | Tiempo";
    } else if (s.countdown == 2) {
        title += " | -Tiempo";
    }
    return title;
}

Scoring::Scoring(SharedState& shared, Dialogs& dialogs) : m_shared(shared), m_dialogs(dialogs) {
    refreshTitle();
    showAccount();
}

double& Scoring::accountInUse() {
    return m_shared.settings.survival ? m_shared.survivalPoints : m_shared.normalPoints;
}

double Scoring::accountInUse() const {
    return m_shared.settings.survival ? m_shared.survivalPoints : m_shared.normalPoints;
}

bool Scoring::pointsCount() const {
    return m_shared.settings.pointsSystem && !m_shared.multiplayer && m_shared.playerCount <= 1;
}

bool Scoring::smallPlayEnabled() const {
    return m_playEnabled && !m_shared.locked;
}

bool Scoring::severalPlayers() const {
    return m_shared.multiplayer || m_shared.playerCount > 1;
}

void Scoring::refreshTitle() {
    m_title = boardTitle(m_shared.settings, severalPlayers());
}

void Scoring::showAccount() {
    m_shown = accountInUse();
    m_pulse = m_shared.settings.survival && m_shown <= kPulseBelow;
}

bool Scoring::noPoints() const {
    return pointsCount() && !m_counting && survivalEmpty();
}

std::string Scoring::scoreLabel() const {
    return noPoints() ? "Sin puntos" : scoreText();
}

bool Scoring::giftOffered() const {
    return pointsCount() && !m_shared.settings.survival && m_shared.survivalPoints == 0 &&
           m_shared.normalPoints > 0 && !m_gifting;
}

void Scoring::startGift() {
    if (!giftOffered()) {
        return;
    }
    m_shared.survivalPoints += m_shared.normalPoints;
    if (onStatisticsReset) {
        onStatisticsReset();
    }
    m_gifting = true;
    // JUGAR waits from the first moment of the transfer, not its first tick.
    m_playEnabled = false;
}

void Scoring::tickGift() {
    double& normal = m_shared.normalPoints;
    if (normal <= 0) {
        normal = 0;
        m_playEnabled = true;
        m_gifting = false;
        return;
    }
    m_playEnabled = false;
    // A fraction left over from an odd account must not step past 0.
    normal = std::max(0.0, normal - (normal >= kBigGap ? kBigStep : 1));
    m_shown = normal;
}

std::string Scoring::scoreText() const {
    return formatNumber(m_shown);
}

bool Scoring::survivalEmpty() const {
    return m_shared.settings.survival && scoreText() == "0";
}

void Scoring::scoreWin(int revealed, int strikes, bool& earlyAnswerBonus) {
    if (!pointsCount()) {
        return;
    }
    m_shown = accountInUse();
    int points = winPoints(revealed, strikes, m_shared.settings.moreNegativePoints);
    std::string note;
    if (earlyAnswerBonus) {
        points = withHalfBonus(points);
        earlyAnswerBonus = false;
        note = " (Bono del 50% obtenido)";
    }
    if (onWinStatistics) {
        onWinStatistics(points);
    }
    refreshTitle();
    m_title += " | +" + std::to_string(points) + note;
    m_lastChange = points;
    m_lastNote = note;
    accountInUse() += points;
    m_upwardsAfterGift = false;
    m_counting = true;
}

void Scoring::scoreLoss(int revealed, int total) {
    if (!pointsCount()) {
        return;
    }
    try {
        if (onLossStatistics) {
            onLossStatistics();
        }
        m_shown = accountInUse();
        const int points = lossPoints(revealed, total, m_shared.settings.moreNegativePoints);
        refreshTitle();
        m_title += " | -" + std::to_string(points);
        m_lastChange = -points;
        m_lastNote.clear();
        accountInUse() -= points;
        if (m_shared.settings.survival && m_shared.survivalPoints <= 0) {
            m_shared.survivalPoints = 0;
        }
        m_upwardsAfterGift = false;
        m_counting = true;
    } catch (const std::exception&) {
        compensate();
    }
}

void Scoring::compensate() {
    m_dialogs.information(
        "Hubo un problema en el cálculo de puntos, como disculpa recibe 1500 puntos de "
        "regalo. Disculpa las molestias.");
    m_shown = accountInUse();
    refreshTitle();
    m_title += " | +" + std::to_string(kCompensation) + " de regalo";
    m_lastChange = kCompensation;
    m_lastNote = " de regalo";
    accountInUse() += kCompensation;
    m_upwardsAfterGift = true;
    m_counting = true;
}

void Scoring::tick(int& strikeCount) {
    const double target = accountInUse();
    const bool downwards = strikeCount == kDeathStrikes && !m_upwardsAfterGift;
    if (m_shown == target) {
        m_playEnabled = true;
        strikeCount = 0;
        m_counting = false;
        m_upwardsAfterGift = false;
    } else if (downwards ? m_shown > target : m_shown < target) {
        m_playEnabled = false;
        const double step = std::fabs(m_shown - target) >= kBigGap ? kBigStep : 1;
        m_shown += downwards ? -step : step;
    } else {
        // Already past the target the wrong way (the mode changed under the
        // count): settle at once instead of ticking for ever.
        m_shown = target;
    }
    m_pulse = m_shared.settings.survival && m_shown <= kPulseBelow;
}

} // namespace quillora
