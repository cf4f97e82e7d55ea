// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/ConfigFile.h"
#include "support/BoardModelFixture.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace quillora {
namespace {

using Key = BoardModel::WindowKey;

class Survival : public BoardModelFixture {
protected:
    Survival() { shared.settings.survival = true; }
    // "ABCDEFGHIJ": ten letters, `shown` of them guessed, then eight misses.
    void loseWithShown(int shown) {
        model.round().startPhrase("ABCDEFGHIJ", 1, "ANIMAL");
        guess(std::u32string_view(U"ABCDEFGHIJ").substr(0, static_cast<std::size_t>(shown)));
        guess(U"KLMNOPQR");
        ASSERT_TRUE(st().over);
    }
};

TEST_F(Survival, TheLastPointsLostLeaveNoPointsAndJugarRefuses) {
    shared.survivalPoints = 300;
    model.scoring().showAccount();
    loseWithShown(4); // worth 600
    EXPECT_EQ(shared.survivalPoints, 0);
    EXPECT_FALSE(model.survival().againShown()) << "not while the score still counts";
    countScore();
    EXPECT_EQ(model.scoring().scoreLabel(), "Sin puntos");
    EXPECT_TRUE(model.survival().againShown());
    EXPECT_TRUE(model.scorePulse().running());

    model.commands().clearBoard();
    EXPECT_EQ(model.playPressed(), GameStart::Nothing);
    ASSERT_FALSE(dialogs.shown.empty());
    EXPECT_EQ(dialogs.shown.back().text,
              "Reinicia el juego o consigue puntos para volver a jugar en este modo.");
    EXPECT_EQ(dialogs.shown.back().title, "No puedes jugar sin puntos");
    shared.multiplayer = true;
    EXPECT_EQ(model.playPressed(), GameStart::FriendWindow) << "friends play without points";
    shared.multiplayer = false;

    model.survival().againGetPoints();
    EXPECT_FALSE(shared.settings.survival);
    EXPECT_TRUE(model.survival().reopenRequested());
}

TEST_F(Survival, TheTransferDrainsTheNormalScoreTenThenOneAtATime) {
    shared.settings.survival = false;
    shared.survivalPoints = 0;
    shared.normalPoints = 2500;
    shared.current().stats.countWin(300, 2, false);
    shared.current().stats.countLoss(8, true);
    ASSERT_TRUE(model.scoring().giftOffered());
    model.scoring().startGift();
    EXPECT_EQ(shared.survivalPoints, 2500);
    for (bool survival : {false, true}) {
        const UserStats::Counters& c = shared.current().stats.of(survival);
        EXPECT_EQ(c.games + c.errors + c.best + c.worst, 0) << "both records start afresh";
    }
    EXPECT_FALSE(model.scoring().giftOffered()) << "one transfer at a time";
    EXPECT_FALSE(model.scoring().playEnabled()) << "JUGAR waits from the start";

    std::vector<double> steps;
    double before = shared.normalPoints;
    while (model.scoring().gifting()) {
        model.scoring().tickGift();
        if (shared.normalPoints != before) {
            steps.push_back(before - shared.normalPoints);
            EXPECT_FALSE(model.scoring().playEnabled());
        }
        before = shared.normalPoints;
    }
    ASSERT_EQ(steps.size(), 286U);
    EXPECT_EQ(std::count(steps.begin(), steps.begin() + 246, 10.0), 246);
    EXPECT_EQ(std::count(steps.begin() + 246, steps.end(), 1.0), 40);
    EXPECT_EQ(shared.normalPoints, 0);
    EXPECT_TRUE(model.scoring().playEnabled());

    // With survival points left there is nothing to offer.
    shared.normalPoints = 100;
    EXPECT_FALSE(model.scoring().giftOffered());
}

TEST_F(Survival, SwitchingSavesReopensAndIsToldOnce) {
    shared.settings.survival = false;
    model.keyTyped(Key::F5);
    EXPECT_TRUE(dialogs.shown.empty()) << "F5 out of survival mode does nothing";
    EXPECT_FALSE(model.survival().reopenRequested());

    model.survival().toggle();
    EXPECT_TRUE(model.survival().reopenRequested());
    const auto saved = readConfigLines(shared.currentSession().filePath);
    ASSERT_TRUE(saved);
    EXPECT_EQ((*saved)[12], "1") << "line 13 keeps the mode";

    BoardModel reopened{shared, dialogs, announcer, random, desktop.lookUp};
    reopened.load();
    EXPECT_EQ(reopened.windowTitle(), "Quillora Vesta | Supervivencia");
    reopened.survival().tickAnnounce();
    reopened.survival().tickAnnounce();
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown.back().text, "El modo supervivencia se ha activado.");

    dialogs.answer({false, true});
    reopened.keyTyped(Key::F5);
    EXPECT_TRUE(shared.settings.survival) << "Cancel stays";
    reopened.keyTyped(Key::F5);
    EXPECT_EQ(dialogs.shown.back().text, "Está apunto de salirse del modo supervivencia.");
    EXPECT_FALSE(shared.settings.survival);
    EXPECT_TRUE(reopened.survival().reopenRequested());
}

TEST_F(Survival, TheScorePulsesAtFiveHundredOrLess) {
    for (const auto& [points, pulses] :
         std::vector<std::pair<double, bool>>{{501, false}, {500, true}, {0, true}}) {
        shared.survivalPoints = points;
        model.scoring().showAccount();
        EXPECT_EQ(model.scorePulse().running(), pulses) << points;
    }
    // From light to dark and back, an even step a tick, turning at both ends.
    std::vector<int> levels;
    for (int tick = 0; tick < 40; ++tick) {
        model.scorePulse().tick();
        levels.push_back(model.scorePulse().textColour().red);
    }
    const auto [darkest, lightest] = std::minmax_element(levels.begin(), levels.end());
    EXPECT_TRUE(*darkest >= 0 && *lightest <= 255 && *lightest - *darkest >= 128)
        << *darkest << " to " << *lightest;
    int turns = 0;
    for (std::size_t i = 2; i < levels.size(); ++i) {
        EXPECT_EQ(std::abs(levels[i] - levels[i - 1]), std::abs(levels[1] - levels[0])) << i;
        turns += (levels[i] > levels[i - 1]) != (levels[i - 1] > levels[i - 2]) ? 1 : 0;
    }
    EXPECT_GE(turns, 2);
}

} // namespace
} // namespace quillora
