// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "scoring/Countdown.h"

#include "support/BoardModelFixture.h"

#include <string>
#include <utility>
#include <vector>

namespace quillora {
namespace {

// Countdown mode played on the board's model: whole games run in ticks.
class CountdownGame : public BoardModelFixture {
protected:
    // A new game of `phrase` with the countdown option set to `mode`.
    void start(const std::string& phrase, int mode) {
        shared.settings.countdown = mode;
        model.commands().clearBoard();
        model.round().startPhrase(phrase, 1, "ANIMAL");
    }
    // Ticks the clock down to `seconds` left.
    void runTo(int seconds) {
        while (clock().running() && clock().seconds() > seconds) {
            model.tickCountdown();
        }
        ASSERT_EQ(clock().seconds(), seconds);
    }
    const Countdown& clock() const { return model.countdown(); }
};

TEST_F(CountdownGame, OnlyOnePlayerInModeOneOrTwoGetsAClockOfSecondsPerLetter) {
    struct Case {
        const char* phrase;
        int mode;
        bool multiplayer;
        int players;
        int seconds; // 0: no clock
        const char* title;
    };
    const std::vector<Case> cases{
        {"CABALLO DE MAR", 1, false, 1, 120, "Quillora Vesta | Puntos | Tiempo"},
        {"CABALLO DE MAR", 2, false, 1, 60, "Quillora Vesta | Puntos | -Tiempo"},
        {"SOL", 2, false, 1, 15, "Quillora Vesta | Puntos | -Tiempo"},
        {"SOL", 0, false, 1, 0, "Quillora Vesta | Puntos"},
        // A friend's phrase leaves one guesser, yet two play.
        {"SOL", 1, true, 1, 0, "Quillora Vesta"},
        {"SOL", 2, false, 3, 0, "Quillora Vesta"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.phrase) + " mode " + std::to_string(c.mode) + " players " +
                     std::to_string(c.players) + (c.multiplayer ? " with friends" : ""));
        shared.multiplayer = c.multiplayer;
        shared.roster.rosterSize = c.players;
        start(c.phrase, c.mode);
        EXPECT_EQ(model.scoring().title(), c.title);
        EXPECT_EQ(clock().visible(), c.seconds > 0);
        EXPECT_EQ(model.countdown().running(), c.seconds > 0);
        if (c.seconds > 0) {
            EXPECT_EQ(clock().text(), std::to_string(c.seconds));
        }
    }
}

TEST_F(CountdownGame, WarnsOnceAtTenInTheGameColourThenTimeTakesEveryStrikeLeft) {
    start("CABALLO DE MAR", 1);
    guess(U"XZ");
    const int strikesBefore = st().strikeCount;
    int warnings = 0;
    int lastSound = 0;
    while (clock().running()) {
        EXPECT_EQ(model.appearance().countdownColour(model.countdown().urgent()),
                  clock().seconds() <= 10 ? model.appearance().gameColour() : kWhite)
            << clock().seconds();
        model.tickCountdown();
        if (clock().running() && model.round().pendingSound().number() == 1) {
            ++warnings;
            EXPECT_EQ(clock().text(), "10");
            EXPECT_TRUE(model.round().pendingSound().timerRunning());
        }
        lastSound = model.round().pendingSound().number();
        model.round().pendingSound().tick();
        EXPECT_FALSE(st().over && clock().seconds() > 0) << "lost before the time was up";
    }
    EXPECT_EQ(warnings, 1);
    EXPECT_EQ(strikesBefore, 2);
    EXPECT_EQ(clock().text(), "0");
    EXPECT_FALSE(clock().visible());
    EXPECT_EQ(st().slot(1), "X");
    EXPECT_EQ(st().slot(2), "Z");
    for (int slot = 3; slot <= 8; ++slot) {
        EXPECT_EQ(st().slot(slot), " ") << slot;
    }
    EXPECT_EQ(st().strikeCount, 8);
    EXPECT_EQ(model.round().status(), "¡MUERTO!");
    EXPECT_TRUE(model.round().figure().hanging());
    EXPECT_EQ(lastSound, 3);
    EXPECT_EQ(events.lost, 1);

    model.tickCountdown();
    EXPECT_EQ(events.lost, 1) << "a stray tick after the end loses nothing more";
}

// MURC shows 4 of 10 letters: the eighth strike would cost 600, or 1200 doubled.
TEST_F(CountdownGame, RunningOutOfTimeCostsWhatTheEighthStrikeCosts) {
    for (const auto& [doublePenalties, cost] :
         std::vector<std::pair<bool, int>>{{false, 600}, {true, 1200}}) {
        SCOPED_TRACE(cost);
        shared.settings.moreNegativePoints = doublePenalties;
        shared.normalPoints = 0;
        model.scoring().showAccount();
        start("MURCIELAGO", 1);
        guess(U"MURC");
        runTo(0);
        ASSERT_TRUE(st().over);
        EXPECT_EQ(shared.normalPoints, -cost);
        const std::string tail = " | -" + std::to_string(cost);
        EXPECT_EQ(model.scoring().title().substr(model.scoring().title().size() - tail.size()),
                  tail);
        countScore();
        EXPECT_EQ(model.scoring().scoreText(), std::to_string(-cost));
        EXPECT_EQ(st().strikeCount, 0) << "the count ends as after any death";
    }
}

TEST_F(CountdownGame, AWinAtOneSecondLeftStopsTheClockAndScoresAsUsual) {
    start("SOL", 2);
    runTo(1);
    guess(U"SOL");
    EXPECT_EQ(model.round().status(), "¡VICTORIA!");
    EXPECT_FALSE(clock().visible() || model.countdown().running());
    model.tickCountdown();
    EXPECT_EQ(model.round().status(), "¡VICTORIA!");
    EXPECT_EQ(events.lost, 0);
    EXPECT_EQ(shared.normalPoints, 300);
    EXPECT_EQ(model.scoring().title(), "Quillora Vesta | Puntos | -Tiempo | +300");
}

TEST_F(CountdownGame, TheCorrectionQuestionHoldsTheClockAndOnlyARunningOneGoesOn) {
    for (const int mode : {1, 0}) {
        SCOPED_TRACE(mode);
        shared.correctionsLeft = 3;
        start("SOL", mode);
        guess(U"X");
        bool heldDuringQuestion = false;
        dialogs.onAsk = [&] {
            const int before = clock().seconds();
            model.tickCountdown();
            heldDuringQuestion = !model.countdown().running() && clock().seconds() == before;
        };
        dialogs.answer({true});
        model.keyTyped(BoardModel::WindowKey::Delete);
        dialogs.onAsk = nullptr;
        ASSERT_EQ(st().strikeCount, 0);
        EXPECT_TRUE(heldDuringQuestion);
        EXPECT_EQ(model.countdown().running(), mode > 0);
        EXPECT_EQ(clock().visible(), mode > 0);
    }
}

TEST_F(CountdownGame, ANewGameStopsTheClockAndAChangedModeWaitsForTheNextGame) {
    start("SOL", 1);
    runTo(25);
    model.commands().clearBoard();
    EXPECT_FALSE(clock().visible() || model.countdown().running());
    model.round().startPhrase("SOL", 1, "ANIMAL");
    EXPECT_EQ(clock().text(), "30") << "the next game starts a full clock";

    shared.settings.countdown = 2;
    model.tickCountdown();
    EXPECT_EQ(clock().text(), "29") << "the game under way keeps its clock";
    start("SOL", 2);
    EXPECT_EQ(clock().text(), "15");

    shared.settings.countdown = 0;
    runTo(1);
    model.tickCountdown();
    EXPECT_TRUE(st().over) << "switched off during the game, the clock still ends it";

    start("SOL", 0);
    shared.settings.countdown = 1;
    model.tickCountdown();
    EXPECT_FALSE(clock().visible());
    guess(U"SOL");
    start("SOL", 1);
    EXPECT_EQ(clock().text(), "30");
}

TEST_F(CountdownGame, TimeRunningOutBehindTheAnswerQuestionIsTheOnlyDeath) {
    start("SOL", 2);
    AnswerBox& box = model.round().answerBox();
    box.toggle();
    box.setText("LUNA");
    dialogs.onAsk = [&] { runTo(0); };
    dialogs.answer({true});
    box.submit();
    EXPECT_EQ(events.lost, 1);
    EXPECT_EQ(shared.normalPoints, -1000);
    EXPECT_FALSE(box.isOpen());
}

} // namespace
} // namespace quillora
