// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring/Points.h"

#include "state/SharedState.h"
#include "support/Fakes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <stdexcept>
#include <vector>

namespace quillora {
namespace {

// --- rounding ------------------------------------------------------------------

struct RoundCase {
    double value;
    std::optional<int> rounded; // none: the value must not fit
};

class PointsRounding : public ::testing::TestWithParam<RoundCase> {};

TEST_P(PointsRounding, HalvesGoToTheEvenNeighbourWithinSixteenBits) {
    const RoundCase& c = GetParam();
    if (c.rounded) {
        EXPECT_EQ(roundHalfEven16(c.value), *c.rounded);
    } else {
        EXPECT_THROW(roundHalfEven16(c.value), std::overflow_error);
    }
}

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr std::nullopt_t kThrows = std::nullopt;
using R = RoundCase;

INSTANTIATE_TEST_SUITE_P(Values, PointsRounding,
                         ::testing::Values(R{333.5, 334}, R{332.5, 332}, R{0.5, 0}, R{1.5, 2},
                                           R{-2.5, -2}, R{-3.5, -4}, R{-0.5, 0}, R{2.4999, 2},
                                           R{2.5001, 3}, R{32767.4, 32767}, R{-32768.5, -32768},
                                           R{32767.5, kThrows}, R{-32769, kThrows}, R{1e9, kThrows},
                                           R{kNaN, kThrows}, R{kInf, kThrows}));

// --- the formulas -------------------------------------------------------------------

enum class Formula { Win, Bonus, Loss };

struct FormulaCase {
    Formula formula;
    int a; // letters showing, or the points before the bonus
    int b; // strikes, or the letters of the phrase
    bool doublePenalties;
    int expected;
};

class PointsFormulas : public ::testing::TestWithParam<FormulaCase> {};

TEST_P(PointsFormulas, WorkedExamples) {
    const FormulaCase& c = GetParam();
    switch (c.formula) {
    case Formula::Win:
        EXPECT_EQ(winPoints(c.a, c.b, c.doublePenalties), c.expected);
        break;
    case Formula::Bonus:
        EXPECT_EQ(withHalfBonus(c.a), c.expected);
        break;
    case Formula::Loss:
        EXPECT_EQ(lossPoints(c.a, c.b, c.doublePenalties), c.expected);
        break;
    }
}

constexpr Formula W = Formula::Win;
constexpr Formula B = Formula::Bonus;
constexpr Formula L = Formula::Loss;
using F = FormulaCase;

INSTANTIATE_TEST_SUITE_P(
    Examples, PointsFormulas,
    ::testing::Values(F{W, 9, 0, false, 900}, F{W, 9, 7, false, 112}, F{W, 9, 7, true, 60},
                      F{W, 12, 3, false, 300}, F{W, 12, 3, true, 171}, F{W, 42, 0, true, 4200},
                      F{B, 900, 0, false, 1350}, F{B, 300, 0, false, 450}, F{B, 333, 0, false, 500},
                      F{B, 3, 0, false, 4}, // 4.5 goes down to the even 4
                      F{B, 4200, 0, false, 6300}, F{L, 4, 10, false, 600}, F{L, 4, 10, true, 1200},
                      F{L, 0, 10, false, 1000}, F{L, 0, 10, true, 2000}, F{L, 1, 3, false, 667},
                      F{L, 1, 8, true, 1750}));

// --- the title ------------------------------------------------------------------------

struct TitleCase {
    bool points;
    bool survival;
    bool doublePenalties;
    int countdown;
    bool severalPlayers;
    const char* title;
};

class PointsTitle : public ::testing::TestWithParam<TitleCase> {};

TEST_P(PointsTitle, NamesTheModesInForceInOrder) {
    const TitleCase& c = GetParam();
    Settings s;
    s.sistemaPuntos = c.points;
    s.supervivencia = c.survival;
    s.masPuntosNegativos = c.doublePenalties;
    s.contratiempo = c.countdown;
    EXPECT_EQ(eTitle(s, c.severalPlayers), c.title);
}

INSTANTIATE_TEST_SUITE_P(
    Modes, PointsTitle,
    ::testing::ValuesIn(std::vector<TitleCase>{
        {true, false, false, 0, false, "Quillora Vesta | Puntos"},
        {true, true, false, 0, false, "Quillora Vesta | Supervivencia"},
        {true, false, true, 0, false, "Quillora Vesta | -Puntos"},
        {true, true, true, 0, false, "Quillora Vesta | Supervivencia | -Puntos"},
        {true, false, false, 1, false, "Quillora Vesta | Puntos | Tiempo"},
        {true, true, true, 2, false, "Quillora Vesta | Supervivencia | -Puntos | -Tiempo"},
        {false, true, true, 0, false, "Quillora Vesta"},
        {false, false, false, 2, false, "Quillora Vesta | -Tiempo"},
        {true, true, false, 1, true, "Quillora Vesta"}}));

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
                      shared.settings.supervivencia && scoring.shownScore() <= 500);
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
    int tens = 0;
    int ones = 0;
    for (std::size_t i = 1; i < shown.size(); ++i) {
        const double step = shown[i] - shown[i - 1];
        tens += step == 10;
        ones += step == 1;
    }
    EXPECT_EQ(tens, 41);
    EXPECT_EQ(ones, 40);
    EXPECT_EQ(shown.size() - 1, 82U) << "one more tick finds the target reached";
    EXPECT_EQ(scoring.scoreText(), "450");
}

struct LossCase {
    bool survival;
    bool doublePenalties;
    double before;
    int revealed;
    int total;
    double after;
    const char* title;
    const char* label;
};

class ScoringLossTest : public ScoringTest, public ::testing::WithParamInterface<LossCase> {};

TEST_P(ScoringLossTest, CountsDownToTheAccountLeft) {
    const LossCase& c = GetParam();
    shared.settings.supervivencia = c.survival;
    shared.settings.masPuntosNegativos = c.doublePenalties;
    double& account = c.survival ? shared.survivalPoints : shared.normalPoints;
    double& other = c.survival ? shared.normalPoints : shared.survivalPoints;
    account = c.before;
    const double otherBefore = other;
    scoring.showAccount();

    strikes = 8;
    scoring.scoreLoss(c.revealed, c.total);
    EXPECT_EQ(account, c.after);
    EXPECT_EQ(other, otherBefore);
    EXPECT_EQ(scoring.title(), c.title);
    const std::vector<double> shown = countToTheEnd();
    for (std::size_t i = 1; i < shown.size(); ++i) {
        EXPECT_LE(shown[i], shown[i - 1]) << "a loss counts downwards";
    }
    EXPECT_EQ(scoring.scoreText(), c.label);
    EXPECT_EQ(scoring.survivalEmpty(), c.survival && c.after == 0);
}

INSTANTIATE_TEST_SUITE_P(
    Losses, ScoringLossTest,
    ::testing::ValuesIn(std::vector<LossCase>{
        {false, false, 200, 8, 10, 0, "Quillora Vesta | Puntos | -200", "0"},
        {false, false, 200, 2, 10, -600, "Quillora Vesta | Puntos | -800", "-600"},
        {false, true, 0, 4, 10, -1200, "Quillora Vesta | -Puntos | -1200", "-1200"},
        {true, false, 1000, 4, 10, 400, "Quillora Vesta | Supervivencia | -600", "400"},
        {true, false, 300, 4, 10, 0, "Quillora Vesta | Supervivencia | -600", "0"},
        {true, true, 1500, 0, 10, 0, "Quillora Vesta | Supervivencia | -Puntos | -2000", "0"}}));

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
    const auto noPlayerScores = [&](const char* title) {
        bool bonus = true;
        scoring.scoreWin(10, 0, bonus);
        scoring.scoreLoss(0, 10);
        scoring.refreshTitle();
        EXPECT_EQ(shared.normalPoints, 0);
        EXPECT_FALSE(scoring.counting());
        EXPECT_EQ(statistics, 0);
        EXPECT_EQ(scoring.title(), title);
    };
    shared.multiplayer = true;
    noPlayerScores("Quillora Vesta");
    shared.multiplayer = false;
    shared.playerCount = 2;
    noPlayerScores("Quillora Vesta");
    shared.playerCount = 1;
    shared.settings.sistemaPuntos = false;
    noPlayerScores("Quillora Vesta");
}

TEST_F(ScoringTest, TheLabelShowsTheAccountInUseAsPlainText) {
    shared.normalPoints = -600;
    shared.survivalPoints = 0;
    scoring.showAccount();
    EXPECT_EQ(scoring.scoreText(), "-600");
    EXPECT_FALSE(scoring.survivalEmpty());
    shared.settings.supervivencia = true;
    scoring.showAccount();
    EXPECT_EQ(scoring.scoreText(), "0");
    EXPECT_TRUE(scoring.survivalEmpty());
}

} // namespace
} // namespace quillora
