// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring/Points.h"
#include "storage/SharedState.h"

#include "support/Fakes.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace quillora {
namespace {

TEST(PointsRounding, HalvesGoToTheEvenNeighbourWithinSixteenBits) {
    const std::vector<std::pair<double, int>> cases{{333.5, 334}, {332.5, 332},  {0.5, 0},
                                                    {1.5, 2},     {-2.5, -2},    {112.5, 112},
                                                    {60.4, 60},   {32767, 32767}};
    for (const auto& [value, rounded] : cases) {
        EXPECT_EQ(roundHalfEven16(value), rounded) << value;
    }
    EXPECT_THROW(roundHalfEven16(32767.6), std::overflow_error);
    EXPECT_THROW(roundHalfEven16(-40000), std::overflow_error);
}

TEST(PointsFormulas, WorkedExamples) {
    EXPECT_EQ(winPoints(9, 0, false), 900);
    EXPECT_EQ(withHalfBonus(900), 1350);
    EXPECT_EQ(winPoints(9, 7, false), 112);
    EXPECT_EQ(winPoints(9, 7, true), 60);
    EXPECT_EQ(winPoints(12, 3, false), 300);
    EXPECT_EQ(winPoints(12, 3, true), 171);
    EXPECT_EQ(withHalfBonus(300), 450);
    EXPECT_EQ(withHalfBonus(333), 500);
    EXPECT_EQ(lossPoints(4, 10, false), 600);
    EXPECT_EQ(lossPoints(4, 10, true), 1200);
    EXPECT_EQ(lossPoints(0, 7, false), 1000);
    EXPECT_EQ(lossPoints(0, 7, true), 2000);
}

TEST(PointsTitle, ModesInOrder) {
    Settings s;
    EXPECT_EQ(eTitle(s, false), "Quillora Vesta | Puntos");
    s.supervivencia = true;
    s.contratiempo = 2;
    EXPECT_EQ(eTitle(s, false), "Quillora Vesta | Supervivencia | -Tiempo");
    s.masPuntosNegativos = true;
    s.contratiempo = 1;
    EXPECT_EQ(eTitle(s, false), "Quillora Vesta | Supervivencia | -Puntos | Tiempo");
    EXPECT_EQ(eTitle(s, true), "Quillora Vesta");
    Settings off;
    off.sistemaPuntos = false;
    off.contratiempo = 2;
    EXPECT_EQ(eTitle(off, false), "Quillora Vesta | -Tiempo");
}

class ScoringTest : public ::testing::Test {
protected:
    // Ticks until the count stops, at most a safe number of times.
    int countToTheEnd() {
        int ticks = 0;
        while (scoring.counting() && ticks < 100000) {
            scoring.tick(strikes);
            ++ticks;
        }
        return ticks;
    }

    SharedState shared;
    ScriptedDialogs dialogs;
    Scoring scoring{shared, dialogs};
    int strikes = 0;
};

TEST_F(ScoringTest, ABonusWinCountsUpInStepsOfTenThenOne) {
    bool bonus = true;
    strikes = 3;
    scoring.scoreWin(12, 3, bonus);
    EXPECT_FALSE(bonus) << "the bonus is paid once";
    EXPECT_EQ(shared.normalPoints, 450);
    EXPECT_EQ(scoring.title(), "Quillora Vesta | Puntos | +450 (Bono del 50% obtenido)");
    EXPECT_EQ(scoring.scoreText(), "0");

    scoring.tick(strikes);
    EXPECT_FALSE(scoring.playEnabled()) << "no new game while counting";
    EXPECT_EQ(scoring.scoreText(), "10");
    EXPECT_EQ(countToTheEnd() + 1, 41 + 40 + 1);
    EXPECT_EQ(scoring.scoreText(), "450");
    EXPECT_TRUE(scoring.playEnabled());
    EXPECT_EQ(strikes, 0) << "the end of the count clears the strikes";
}

TEST_F(ScoringTest, LossesCountDownAndMayGoBelowZeroOnlyInNormalPlay) {
    shared.normalPoints = 200;
    scoring.showAccount();
    strikes = 8;
    scoring.scoreLoss(8, 10);
    EXPECT_EQ(shared.normalPoints, 0);
    countToTheEnd();
    EXPECT_EQ(scoring.scoreText(), "0");

    strikes = 8;
    scoring.scoreLoss(2, 10);
    EXPECT_EQ(scoring.title(), "Quillora Vesta | Puntos | -800");
    countToTheEnd();
    EXPECT_EQ(scoring.scoreText(), "-800");

    shared.settings.supervivencia = true;
    shared.survivalPoints = 300;
    scoring.showAccount();
    strikes = 8;
    scoring.scoreLoss(4, 10);
    EXPECT_EQ(shared.survivalPoints, 0);
    EXPECT_EQ(scoring.title(), "Quillora Vesta | Supervivencia | -600");
    countToTheEnd();
    EXPECT_TRUE(scoring.survivalEmpty());
    EXPECT_TRUE(scoring.pulseWanted());
}

TEST_F(ScoringTest, AFailedLossIsCompensatedWithAGift) {
    shared.normalPoints = 100;
    scoring.showAccount();
    scoring.onLossStatistics = [] { throw std::overflow_error("counter"); };
    strikes = 8;
    scoring.scoreLoss(0, 10);
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].icon, Dialogs::Icon::Information);
    EXPECT_EQ(dialogs.shown[0].text,
              "Hubo un problema en el cálculo de puntos, como disculpa recibe 1500 puntos de "
              "regalo. Disculpa las molestias.");
    EXPECT_EQ(shared.normalPoints, 1600);
    EXPECT_EQ(scoring.title(), "Quillora Vesta | Puntos | +1500 de regalo");
    countToTheEnd();
    EXPECT_EQ(scoring.scoreText(), "1600") << "the gift counts upwards even after a death";
}

TEST_F(ScoringTest, NoPointsWithFriendsOrWithThePointsSystemOff) {
    bool bonus = false;
    shared.multiplayer = true;
    scoring.scoreWin(10, 0, bonus);
    shared.multiplayer = false;
    shared.settings.sistemaPuntos = false;
    scoring.scoreLoss(0, 10);
    EXPECT_EQ(shared.normalPoints, 0);
    EXPECT_FALSE(scoring.counting());
}

} // namespace
} // namespace quillora
