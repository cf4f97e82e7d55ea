// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "state/UserStats.h"

#include "models/start/StartScreenModel.h"
#include "support/BoardModelFixture.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace quillora {
namespace {

using Counters = UserStats::Counters;

void expectCounters(const Counters& c, Counters want, const char* label) {
    EXPECT_EQ(c.errors, want.errors) << label;
    EXPECT_EQ(c.games, want.games) << label;
    EXPECT_EQ(c.best, want.best) << label;
    EXPECT_EQ(c.worst, want.worst) << label;
}

TEST(UserStats, WinsAndLossesAreCountedPerModeAndTheRecordsKeepTheExtremes) {
    struct Step {
        const char* label;
        bool win;
        int points;
        int strikes;
        bool survival;
        Counters normal;
        Counters survivalAfter;
    };
    const std::vector<Step> steps{
        {"first win", true, 450, 3, false, {3, 1, 450, 450}, {}},
        {"a lower win", true, 300, 1, false, {4, 2, 450, 300}, {}},
        {"a loss", false, 0, 8, false, {12, 3, 450, 300}, {}},
        {"a win between", true, 400, 0, false, {12, 4, 450, 300}, {}},
        {"survival apart", true, 500, 2, true, {12, 4, 450, 300}, {2, 1, 500, 500}},
        {"survival loss", false, 0, 8, true, {12, 4, 450, 300}, {10, 2, 500, 500}},
        {"a higher win", true, 900, 0, true, {12, 4, 450, 300}, {10, 3, 900, 500}},
    };
    UserStats stats;
    for (const Step& s : steps) {
        if (s.win) {
            stats.countWin(s.points, s.strikes, s.survival);
        } else {
            stats.countLoss(s.strikes, s.survival);
        }
        expectCounters(stats.normal(), s.normal, s.label);
        expectCounters(stats.survival(), s.survivalAfter, s.label);
    }
    stats.reset();
    expectCounters(stats.normal(), {}, "reset");
    expectCounters(stats.survival(), {}, "reset");
}

TEST(UserStats, AFullCounterStopsOnAWinAndFailsALossWithNothingCounted) {
    UserStats stats;
    stats.countWin(100, 32760, false);
    stats.countWin(100, 8, false);
    expectCounters(stats.normal(), {32767, 2, 100, 100}, "errors stop at the top");
    EXPECT_THROW(stats.countLoss(8, false), std::overflow_error);
    expectCounters(stats.normal(), {32767, 2, 100, 100}, "a failed loss counts nothing");
    EXPECT_NO_THROW(stats.countLoss(8, true)) << "the other column is not full";

    for (int game = 0; game < 32767; ++game) {
        stats.countWin(50, 0, true);
    }
    EXPECT_EQ(stats.survival().games, 32767) << "games stop at the top, never wrap";
    EXPECT_EQ(stats.survival().worst, 50);
    EXPECT_THROW(stats.countLoss(0, true), std::overflow_error) << "no room for one more game";
}

// --- what the board counts ----------------------------------------------------------------

class BoardStatistics : public BoardModelFixture {
protected:
    BoardStatistics() { loadAtStart(shared); }
    // CASA: four letters, so a win is worth 400 / (1 + strikes).
    void play(std::u32string_view letters) { BoardModelFixture::play("CASA", letters); }
    const Counters& normal() const { return shared.current().stats.normal(); }
};

TEST_F(BoardStatistics, GamesAreCountedInTheModeInPlay) {
    play(U"bcas");
    expectCounters(normal(), {1, 1, 200, 200}, "a win with one strike");
    play(U"bdefghij");
    expectCounters(normal(), {9, 2, 200, 200}, "a loss");
    EXPECT_EQ(shared.normalPoints, -800);

    shared.settings.survival = true;
    play(U"cas");
    expectCounters(normal(), {9, 2, 200, 200}, "survival leaves normal alone");
    expectCounters(shared.current().stats.survival(), {0, 1, 400, 400}, "survival win");
}

TEST_F(BoardStatistics, ALossThatWouldOverflowItsCounterIsMadeUpWithTheGift) {
    shared.current().stats.countWin(100, 32760, false);
    play(U"bdefghij");
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(shared.normalPoints, 1500);
    expectCounters(normal(), {32760, 1, 100, 100}, "the loss went uncounted");
}

TEST_F(BoardStatistics, TheCountsStayWithTheirUserAcrossASwitchAndANewBoard) {
    play(U"cas");
    random.queue({0.5});
    std::string shown;
    model.sessions().add("Ana", shown);
    ASSERT_EQ(shared.currentSlot, 1);
    play(U"bdefghij");

    BoardModel next{shared, dialogs, announcer, random, desktop.lookUp};
    next.panels().stats().open();
    EXPECT_EQ(next.panels().stats().value(StatsPanelModel::Games, false), "1");
    EXPECT_EQ(next.panels().stats().value(StatsPanelModel::Errors, false), "8");
    EXPECT_EQ(next.panels().stats().value(StatsPanelModel::Best, false), "0");

    next.sessions().switchTo(0);
    ASSERT_EQ(shared.currentSlot, 0);
    BoardModel main{shared, dialogs, announcer, random, desktop.lookUp};
    main.panels().stats().open();
    EXPECT_EQ(main.panels().stats().value(StatsPanelModel::Games, false), "1");
    EXPECT_EQ(main.panels().stats().value(StatsPanelModel::Best, false), "400");
    EXPECT_EQ(main.panels().stats().value(StatsPanelModel::Errors, false), "0");
}

} // namespace
} // namespace quillora
