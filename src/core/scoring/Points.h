// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

namespace quillora {

class Dialogs;
struct Settings;
struct SharedState;

// Nearest integer with halves to the even neighbour, as a signed 16-bit
// value; anything outside that range throws std::overflow_error.
int roundHalfEven16(double value);

int winPoints(int revealed, int strikes, bool moreNegativePoints);
// The 50 % bonus of a whole answer given early.
int withHalfBonus(int points);
int lossPoints(int revealed, int total, bool moreNegativePoints);

// The board's title: the game's name and the modes in force.
std::string boardTitle(const Settings& settings, bool severalPlayers);

// The points of the current user as the board shows them: the two accounts,
// the score label counting towards the account in use, and the title that
// tells what the last game was worth.
class Scoring {
public:
    static constexpr int kBigStep = 10;
    static constexpr int kBigGap = 50;
    static constexpr int kCompensation = 1500;
    static constexpr double kPulseBelow = 500;

    Scoring(SharedState& shared, Dialogs& dialogs);

    double& accountInUse();
    double accountInUse() const;
    // One player with the points system on.
    bool pointsCount() const;
    // With a friend or more the title tells no modes and no clock runs.
    bool severalPlayers() const;

    void refreshTitle();
    // The label shows the account in use (a new game, the board's opening).
    void showAccount();
    // What the score label reads: the shown points, or "Sin puntos" once the
    // survival account has run dry.
    std::string scoreLabel() const;
    // Survival mode with nothing left to play with: "Sin puntos", and the
    // labels that offer a restart or points from normal play.
    bool noPoints() const;
    void scoreWin(int revealed, int strikes, bool& earlyAnswerBonus);
    void scoreLoss(int revealed, int total);
    // The score timer starts without new points: the count just settles.
    void startCounting() { m_counting = true; }
    // One tick of the score timer; the end of the count clears the strikes.
    void tick(int& strikeCount);

    // "Pasar puntos a supervivencia": offered to one player out of survival
    // mode whose survival account is empty and whose normal one is not.
    bool giftOffered() const;
    // Moves the normal points into the survival account; the normal score
    // then drains to 0 on screen, tick by tick.
    void startGift();
    void tickGift();
    bool gifting() const { return m_gifting; }
    // Told when a transfer wipes the user's statistics.
    std::function<void()> onStatisticsReset;

    // Run before the points of a loss; may throw when a counter overflows.
    std::function<void()> onLossStatistics;
    // Told the points of a win.
    std::function<void(int)> onWinStatistics;

    const std::string& title() const { return m_title; }
    // What the last game did to the account in use, as its title tells it:
    // the points won (or the gift) and lost, and the note after them.
    int lastChange() const { return m_lastChange; }
    const std::string& lastNote() const { return m_lastNote; }
    double shownScore() const { return m_shown; }
    std::string scoreText() const;
    bool counting() const { return m_counting; }
    bool playEnabled() const { return m_playEnabled; }
    // The small JUGAR button works like the big one, but not behind a lock.
    bool smallPlayEnabled() const;
    // In a game with friends, or without points, the JUGAR panel and the
    // theme move to their compact places beside the board.
    bool compactLayout() const { return !pointsCount(); }
    bool pulseWanted() const { return m_pulse; }
    bool survivalEmpty() const;

private:
    void compensate();

    SharedState& m_shared;
    Dialogs& m_dialogs;
    std::string m_title;
    int m_lastChange = 0;
    std::string m_lastNote;
    double m_shown = 0;
    bool m_counting = false;
    bool m_playEnabled = true;
    bool m_upwardsAfterGift = false;
    bool m_pulse = false;
    bool m_gifting = false;
};

} // namespace quillora
