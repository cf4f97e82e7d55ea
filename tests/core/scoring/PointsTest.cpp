// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring/Points.h"

#include "state/SharedState.h"
#include "support/Fakes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <numeric>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

namespace quillora {
namespace {

TEST(Points, RoundingGoesToTheEvenNeighbourWithinSixteenBits) {
    const std::vector<std::pair<double, int>> rounded{
        {333.5, 334}, {332.5, 332}, {0.5, 0},    {1.5, 2},         {-2.5, -2},        {-3.5, -4},
        {-0.5, 0},    {2.4999, 2},  {2.5001, 3}, {32767.4, 32767}, {-32768.5, -32768}};
    for (const auto& [value, expected] : rounded) {
        EXPECT_EQ(roundHalfEven16(value), expected) << value;
    }
    for (const double value : {32767.5, -32769.0, 1e9, std::numeric_limits<double>::quiet_NaN(),
                               std::numeric_limits<double>::infinity()}) {
        EXPECT_THROW(roundHalfEven16(value), std::overflow_error) << value;
    }
}

TEST(Points, WorkedExamples) {
    EXPECT_EQ(winPoints(9, 0, false), 900);
    EXPECT_EQ(winPoints(9, 7, false), 112);
    EXPECT_EQ(winPoints(9, 7, true), 60);
    EXPECT_EQ(winPoints(12, 3, false), 300);
    EXPECT_EQ(winPoints(12, 3, true), 171);
    EXPECT_EQ(winPoints(42, 0, true), 4200);
    EXPECT_EQ(withHalfBonus(900), 1350);
    EXPECT_EQ(withHalfBonus(333), 500);
    EXPECT_EQ(withHalfBonus(3), 4) << "4.5 goes down to the even 4";
    EXPECT_EQ(lossPoints(4, 10, false), 600);
    EXPECT_EQ(lossPoints(4, 10, true), 1200);
    EXPECT_EQ(lossPoints(0, 10, false), 1000);
    EXPECT_EQ(lossPoints(0, 10, true), 2000);
    EXPECT_EQ(lossPoints(1, 3, false), 667);
    EXPECT_EQ(lossPoints(1, 8, true), 1750);
}

TEST(Points, TheTitleNamesTheModesInForceInOrder) {
    const auto title = [](bool points, bool survival, bool doublePenalties, int countdown,
                          bool severalPlayers = false) {
        Settings s;
        s.pointsSystem = points;
        s.survival = survival;
        s.moreNegativePoints = doublePenalties;
        s.countdown = countdown;
        return boardTitle(s, severalPlayers);
    };
    EXPECT_EQ(title(true, false, false, 0), "Quillora Vesta | Puntos");
    EXPECT_EQ(title(true, true, false, 0), "Quillora Vesta | Supervivencia");
    EXPECT_EQ(title(true, false, true, 0), "Quillora Vesta | -Puntos");
    EXPECT_EQ(title(true, false, false, 1), "Quillora Vesta | Puntos | Tiempo");
    EXPECT_EQ(title(true, true, true, 2), "Quillora Vesta | Supervivencia | -Puntos | -Tiempo");
    EXPECT_EQ(title(false, true, true, 0), "Quillora Vesta");
    EXPECT_EQ(title(false, false, false, 2), "Quillora Vesta | -Tiempo");
    EXPECT_EQ(title(true, true, false, 1, true), "Quillora Vesta");
}

// --- the board's score ------------------------------------------------------------------

class ScoringTest : public ::testing::Test {
protected:
    // Ticks the counter to its end and returns every value it showed.
    std::vector<double> countToTheEnd() {
        std::vector<double> shown{scoring.shownScore()};
        while (scoring.counting() && shown.size() < 10000) {
            scoring.tick(strikes);
            shown.push_back(scoring.shownScore());
            if (scoring.counting()) {
                EXPECT_FALSE(scoring.playEnabled()) << "no new game while counting";
            }
            EXPECT_EQ(scoring.pulseWanted(),
                      shared.settings.survival && scoring.shownScore() <= 500);
        }
        EXPECT_FALSE(scoring.counting()) << "the count never ends";
        EXPECT_TRUE(scoring.playEnabled());
        EXPECT_EQ(strikes, 0) << "the end of the count clears the strikes";
        return shown;
    }

    SharedState shared;
    ScriptedDialogs dialogs;
    Scoring scoring{shared, dialogs};
    int strikes = 0;
};

TEST_F(ScoringTest, ABonusWinCountsUpInTensThenOnesToTheExactPoints) {
    std::vector<int> toStatistics;
    scoring.onWinStatistics = [&](int points) { toStatistics.push_back(points); };
    bool bonus = true;
    strikes = 3;
    scoring.scoreWin(12, 3, bonus);
    EXPECT_FALSE(bonus) << "the bonus is paid once";
    EXPECT_EQ(toStatistics, std::vector<int>{450});
    EXPECT_EQ(shared.normalPoints, 450);
    EXPECT_EQ(scoring.title(), "Quillora Vesta | Puntos | +450 (Bono del 50% obtenido)");
    ASSERT_TRUE(scoring.counting());

    const std::vector<double> shown = countToTheEnd();
    std::vector<double> steps(shown.size());
    std::adjacent_difference(shown.begin(), shown.end(), steps.begin());
    EXPECT_EQ(std::count(steps.begin() + 1, steps.end(), 10.0), 41);
    EXPECT_EQ(std::count(steps.begin() + 1, steps.end(), 1.0), 40);
    EXPECT_EQ(shown.size() - 1, 82U) << "one more tick finds the target reached";
    EXPECT_EQ(scoring.scoreText(), "450");
}

TEST_F(ScoringTest, ALossCountsDownToTheAccountLeft) {
    // Survival, doubled penalties, account before, letters revealed of the
    // total, account after, the title and the label the count ends on.
    const std::vector<std::tuple<bool, bool, double, int, int, double, std::string, std::string>>
        losses{
            {false, false, 200, 8, 10, 0, "Quillora Vesta | Puntos | -200", "0"},
            {false, false, 200, 2, 10, -600, "Quillora Vesta | Puntos | -800", "-600"},
            {false, true, 0, 4, 10, -1200, "Quillora Vesta | -Puntos | -1200", "-1200"},
            {true, false, 1000, 4, 10, 400, "Quillora Vesta | Supervivencia | -600", "400"},
            {true, false, 300, 4, 10, 0, "Quillora Vesta | Supervivencia | -600", "0"},
            {true, true, 1500, 0, 10, 0, "Quillora Vesta | Supervivencia | -Puntos | -2000", "0"}};
    for (const auto& [survival, doubled, before, revealed, total, after, title, label] : losses) {
        SCOPED_TRACE(title);
        shared.settings.survival = survival;
        shared.settings.moreNegativePoints = doubled;
        double& account = survival ? shared.survivalPoints : shared.normalPoints;
        double& other = survival ? shared.normalPoints : shared.survivalPoints;
        account = before;
        other = 0; // so a label or a verdict read from the wrong account shows
        scoring.showAccount();

        strikes = 8;
        scoring.scoreLoss(revealed, total);
        EXPECT_EQ(account, after);
        EXPECT_EQ(other, 0);
        EXPECT_EQ(scoring.title(), title);
        const std::vector<double> shown = countToTheEnd();
        EXPECT_TRUE(std::is_sorted(shown.rbegin(), shown.rend())) << "a loss counts downwards";
        EXPECT_EQ(scoring.scoreText(), label);
        EXPECT_EQ(scoring.survivalEmpty(), survival && after == 0);
    }
}

TEST_F(ScoringTest, AFailedLossGivesAGiftThatCountsUpwards) {
    const std::string gift = "Hubo un problema en el cálculo de puntos, como disculpa recibe "
                             "1500 puntos de regalo. Disculpa las molestias.";
    shared.normalPoints = 200;
    scoring.showAccount();
    // The statistics come first: their failure leaves the points untouched.
    scoring.onLossStatistics = [] { throw std::overflow_error("counter"); };
    strikes = 8;
    scoring.scoreLoss(4, 10);
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].icon, Dialogs::Icon::Information);
    EXPECT_EQ(dialogs.shown[0].text, gift);
    EXPECT_EQ(dialogs.shown[0].title, "Quillora Vesta");
    EXPECT_EQ(shared.normalPoints, 1700);
    EXPECT_EQ(scoring.title(), "Quillora Vesta | Puntos | +1500 de regalo");
    std::vector<double> shown = countToTheEnd();
    EXPECT_EQ(shown.back(), 1700) << "the gift counts upwards even after a death";

    // A phrase without letters cannot be priced: the same gift.
    scoring.onLossStatistics = nullptr;
    strikes = 8;
    scoring.scoreLoss(0, 0);
    ASSERT_EQ(dialogs.shown.size(), 2U);
    EXPECT_EQ(dialogs.shown[1].text, gift);
    EXPECT_EQ(shared.normalPoints, 3200);
    countToTheEnd();

    // The next ordinary loss counts downwards again.
    strikes = 8;
    scoring.scoreLoss(4, 10);
    shown = countToTheEnd();
    EXPECT_EQ(shown.back(), 2600);
    EXPECT_LT(shown[1], shown[0]);
}

TEST_F(ScoringTest, NoPointsWithAFriendSeveralPlayersOrThePointsSystemOff) {
    int statistics = 0;
    scoring.onWinStatistics = [&](int) { ++statistics; };
    scoring.onLossStatistics = [&] { ++statistics; };
    const auto noPlayerScores = [&] {
        bool bonus = true;
        scoring.scoreWin(10, 0, bonus);
        scoring.scoreLoss(0, 10);
        scoring.refreshTitle();
        EXPECT_EQ(shared.normalPoints, 0);
        EXPECT_FALSE(scoring.counting());
        EXPECT_EQ(statistics, 0);
        EXPECT_EQ(scoring.title(), "Quillora Vesta");
    };
    shared.multiplayer = true;
    noPlayerScores();
    shared.multiplayer = false;
    shared.playerCount = 2;
    noPlayerScores();
    shared.playerCount = 1;
    shared.settings.pointsSystem = false;
    noPlayerScores();
}

} // namespace
} // namespace quillora
