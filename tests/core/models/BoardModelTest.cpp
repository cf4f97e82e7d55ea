// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/SessionPanelModel.h"
#include "models/board/StatsPanelModel.h"

#include "storage/ConfigFile.h"
#include "support/BoardModelFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

namespace quillora {
namespace {

using Key = BoardModel::WindowKey;

class BoardModelTest : public BoardModelFixture {
protected:
    void start() { model.round().startPhrase("CASA", 1, "ANIMAL"); }
};

TEST_F(BoardModelTest, QuitLabelOffersTheCorrectionAndDeleteUsesIt) {
    start();
    model.keyFaces().hoverCorrection();
    EXPECT_EQ(model.keyFaces().correctionCaption(), "");
    model.keyTyped(Key::Character, U'b');
    model.keyFaces().hoverCorrection();
    EXPECT_EQ(model.keyFaces().correctionCaption(), "<");
    EXPECT_EQ(model.keyFaces().correctionTooltip(), " Borrar un strike. ");
    model.keyFaces().restore();
    EXPECT_EQ(model.keyFaces().correctionCaption(), "");
    EXPECT_EQ(model.keyFaces().correctionTooltip(), " Octavo Strike. ");

    dialogs.answer({true});
    model.keyTyped(Key::Delete);
    EXPECT_EQ(model.round().state().strikeCount, 0);
    model.keyTyped(Key::Character, U'd');
    model.keyFaces().hoverCorrection();
    EXPECT_EQ(model.keyFaces().correctionCaption(), "") << "one correction a game";
}

// The window repaints only what the model says a letter changed: a wrong
// answer here leaves a stale board on screen.
TEST_F(BoardModelTest, ATypedLetterTellsWhichPartsOfTheBoardItChanged) {
    using A = BoardArea;
    start();
    model.keyTyped(Key::Character, U'c');
    const BoardAreas hit = model.changedAreas();
    for (A area : {A::Cells, A::Counter, A::Keys, A::Lamps}) {
        EXPECT_TRUE(hit.has(area)) << static_cast<unsigned>(area);
    }
    EXPECT_FALSE(hit.has(A::Strikes) || hit.has(A::Figure) || hit.isEverything());

    model.keyTyped(Key::Character, U'x');
    const BoardAreas miss = model.changedAreas();
    for (A area : {A::Strikes, A::Figure, A::Keys, A::Lamps}) {
        EXPECT_TRUE(miss.has(area)) << static_cast<unsigned>(area);
    }
    EXPECT_FALSE(miss.has(A::Cells) || miss.isEverything());

    model.keyTyped(Key::Character, U'x');
    EXPECT_EQ(model.changedAreas(), BoardAreas(A::Lamps)) << "a letter tried before lights a lamp";

    model.keyTyped(Key::Character, U'#');
    EXPECT_TRUE(model.changedAreas().isEverything()) << "the digit keys are not a guess";
    model.keyTyped(Key::Character, U'#');

    model.keyTyped(Key::Character, U'a');
    model.keyTyped(Key::Character, U's');
    EXPECT_TRUE(model.round().state().over);
    EXPECT_TRUE(model.changedAreas().isEverything()) << "the last letter ends the game";
    model.keyTyped(Key::Character, U'z');
    EXPECT_TRUE(model.changedAreas().isEverything()) << "after the game nothing is a guess";
}

TEST_F(BoardModelTest, WhatADeadKeyComposesIsJudgedLikeWhatIsTyped) {
    model.round().startPhrase("PANA ANIS", 1, "ANIMAL");
    model.keyTyped(Key::DeadKey, U'\u00B4');
    model.keyTyped(Key::Character, U'a');
    EXPECT_TRUE(model.round().board().triedLetters().empty()) << "an acute and a make an accent";
    EXPECT_EQ(model.round().state().strikeCount, 0);

    model.keyTyped(Key::DeadKey, U'~');
    model.keyTyped(Key::Character, U'n');
    EXPECT_EQ(model.round().board().triedLetters(), U"\u00D1") << "a tilde and n make \u00D1";

    model.keyTyped(Key::DeadKey, U'^');
    model.keyTyped(Key::Character, U'b');
    model.keyTyped(Key::Character, U'a');
    EXPECT_EQ(model.round().board().triedLetters(), U"\u00D1A")
        << "a pair that composes to nothing is dropped, and the next key is a key again";
}

TEST_F(BoardModelTest, ALockedBoardOrAnOpenSessionPanelLetsNoShortcutThrough) {
    start();
    model.sessions().togglePanel();
    ASSERT_TRUE(model.sessions().panel().shown());
    for (Key key : {Key::Character, Key::Delete, Key::Enter, Key::F2, Key::F3, Key::ToggleAuto,
                    Key::ToggleSounds, Key::BackToMenu, Key::Names, Key::MenuKey}) {
        EXPECT_FALSE(model.keyReachesBoard(key)) << static_cast<int>(key);
    }
    EXPECT_TRUE(model.keyReachesBoard(Key::F4)) << "F4 closes the panel it opened";
    const bool sounds = shared.settings.sounds;
    model.keyTyped(Key::ToggleSounds);
    model.keyTyped(Key::Character, U'c');
    EXPECT_EQ(shared.settings.sounds, sounds);
    EXPECT_TRUE(model.round().board().triedLetters().empty());

    model.sessions().keyEntered("clave");
    ASSERT_TRUE(shared.locked);
    EXPECT_FALSE(model.keyReachesBoard(Key::F4)) << "behind the lock only the key box works";
    EXPECT_FALSE(model.scoring().smallPlayEnabled());

    // How the board is shown is not the game's: F11 and Esc still switch it.
    model.keyTyped(Key::FullScreen);
    EXPECT_TRUE(model.fullScreen());
    model.keyTyped(Key::Escape);
    EXPECT_FALSE(model.fullScreen());
}

TEST_F(BoardModelTest, F11SwitchesFullScreenAndEscLeavesItStillClosingThePanels) {
    start();
    model.keyTyped(Key::FullScreen);
    EXPECT_TRUE(model.fullScreen());
    EXPECT_TRUE(shared.boardFullScreen) << "the next board opens full screen too";
    model.keyTyped(Key::FullScreen);
    EXPECT_FALSE(model.fullScreen());

    model.keyTyped(Key::FullScreen);
    model.panels().toggleHistory();
    model.keyTyped(Key::Escape);
    EXPECT_FALSE(model.fullScreen());
    EXPECT_FALSE(model.panels().side().showing(SidePanelModel::Content::History));
    model.keyTyped(Key::Escape);
    EXPECT_FALSE(model.fullScreen()) << "Esc never fills the screen";
}

TEST_F(BoardModelTest, TheWindowNeverRisesAboveTheScreensEdge) {
    constexpr int edge = KeyboardSlide::kMinTopTwips;
    for (int top = -300; top <= 900; top += 15) {
        const int kept = KeyboardSlide::keepTopOnScreen(top);
        EXPECT_GE(kept, edge) << top;
        if (top >= edge) {
            EXPECT_EQ(kept, top) << "a window below the edge stays where it is";
        }
    }
}

TEST_F(BoardModelTest, KeyFacesFollowHoverPressAndRelease) {
    start();
    const Palette& p = shared.palette;
    model.keyFaces().hover(1);
    EXPECT_EQ(model.keyFaces().face(1).face, p.redLamp);
    EXPECT_EQ(model.keyFaces().face(1).caption, kNearWhite);
    model.keyFaces().hover(2);
    EXPECT_EQ(model.keyFaces().face(2).face, p.gameColour);
    EXPECT_EQ(model.keyFaces().face(1).face, kKeyGrey);

    model.keyFaces().press(3);
    model.keyFaces().hover(4);
    EXPECT_EQ(model.keyFaces().hovered(), 2) << "no hover while a key is held";
    EXPECT_EQ(model.keyFaces().face(3).face, p.greenLamp);
    EXPECT_NE(model.keyFaces().face(3).caption, model.keyFaces().face(3).face)
        << "the held key's letter stays readable";
    model.keyFaces().release(4);
    EXPECT_TRUE(model.round().board().triedLetters().empty()) << "released off the key";

    model.keyFaces().press(3);
    model.keyFaces().release(3);
    EXPECT_EQ(model.round().board().triedLetters(), U"C");
    EXPECT_EQ(model.keyFaces().face(3).face, kWhite);
    EXPECT_EQ(model.keyFaces().face(3).caption, kBlack);
}

TEST_F(BoardModelTest, KeyboardGrowsInEqualStepsAndLampsFollowTheRound) {
    const int full = BoardModel::kBaseHeightTwips + KeyboardSlide::kKeyboardExtraTwips;
    model.slide().open();
    std::vector<int> heights{model.slide().heightTwips()};
    while (model.slide().opening() && heights.size() < 1000) {
        EXPECT_FALSE(model.slide().shown()) << "the keys wait for the full height";
        model.slide().tickOpen();
        heights.push_back(model.slide().heightTwips());
    }
    ASSERT_GT(heights.size(), 2U) << "it slides, it does not jump";
    for (std::size_t i = 1; i < heights.size(); ++i) {
        EXPECT_EQ(heights[i] - heights[i - 1], heights[1] - heights[0]) << i;
    }
    EXPECT_GT(heights[1], heights[0]);
    EXPECT_EQ(heights.back(), full);
    EXPECT_TRUE(model.slide().shown());

    start();
    model.keyTyped(Key::Character, U'z');
    const LampColours lit = model.appearance().lampColours(model.round().lamp());
    EXPECT_EQ(lit.light, kRedLamp);
    EXPECT_NE(lit.dark, model.appearance().shade()) << "the lit lamp's lines change too";
    model.round().tickLamp();
    EXPECT_EQ(model.appearance().lampColours(model.round().lamp()).light,
              model.appearance().gameColour());
    EXPECT_EQ(model.appearance().lampColours(model.round().lamp()).dark,
              model.appearance().shade());
}

TEST_F(BoardModelTest, AKeptKeyboardIsThereAtOnceAndOnlyASlidingOneClimbs) {
    shared.settings.keyboardKeptOpen = true;
    ASSERT_TRUE(saveSettings(shared, dialogs)); // the board takes it from the file
    BoardModel kept{shared, dialogs, announcer, random, desktop.lookUp};
    kept.load();
    EXPECT_TRUE(kept.slide().shown());
    EXPECT_EQ(kept.slide().heightTwips(),
              BoardModel::kBaseHeightTwips + KeyboardSlide::kKeyboardExtraTwips);
    EXPECT_GT(kept.slide().openingDropTwips(), 0) << "the board opens lower to leave it room";
    EXPECT_FALSE(kept.slide().climbing()) << "no climb on every opening of the board";

    // A keyboard that slides out while the option is on climbs back up in
    // steps, never by more than the keyboard added.
    shared.settings.keyboardKeptOpen = false;
    ASSERT_TRUE(saveSettings(shared, dialogs));
    BoardModel sliding{shared, dialogs, announcer, random, desktop.lookUp};
    sliding.load();
    EXPECT_EQ(sliding.slide().openingDropTwips(), 0);
    shared.settings.keyboardKeptOpen = true;
    sliding.slide().open();
    while (sliding.slide().opening()) {
        sliding.slide().tickOpen();
    }
    int climbed = 0;
    int steps = 0;
    while (sliding.slide().climbing() && steps < 1000) {
        const int step = sliding.slide().tickClimb();
        EXPECT_GT(step, 0);
        climbed += step;
        ++steps;
    }
    EXPECT_GT(steps, 1);
    EXPECT_LE(climbed, KeyboardSlide::kKeyboardExtraTwips);
    EXPECT_EQ(sliding.slide().tickClimb(), 0) << "the climb ends";
}

TEST_F(BoardModelTest, OnlyTheLastRequestPlaysAndANewGameCountsItsScoreAfterItsSound) {
    shared.settings.sounds = true;
    start();
    EXPECT_FALSE(model.scoring().counting()) << "the score waits for the opening sound";
    // A letter typed before the tick replaces the opening sound.
    model.keyTyped(Key::Character, U'c');
    EXPECT_TRUE(model.round().pendingSound().timerRunning());
    EXPECT_EQ(model.round().pendingSound().tick(), 6);
    EXPECT_EQ(model.round().pendingSound().tick(), 0) << "a played sound is gone";
    EXPECT_FALSE(model.round().pendingSound().timerRunning());

    start();
    EXPECT_EQ(model.round().pendingSound().tick(), 2);
    EXPECT_FALSE(model.scoring().counting());
    model.soundEnded(6);
    EXPECT_FALSE(model.scoring().counting()) << "only the opening sound lets the score go";
    model.soundEnded(2);
    EXPECT_TRUE(model.scoring().counting());

    // With sounds off a request is kept but nothing is armed, and the
    // score counts at once.
    countScore();
    shared.settings.sounds = false;
    start();
    EXPECT_TRUE(model.scoring().counting());
    EXPECT_EQ(model.round().pendingSound().number(), 2);
    EXPECT_FALSE(model.round().pendingSound().timerRunning());
}

TEST_F(BoardModelTest, ADroppedPictureIsShownNotStoredAndALockRefusesIt) {
    shared.settings.backgroundPicture = "/home/ana/Imágenes/playa.jpg";
    ASSERT_TRUE(saveSettings(shared, dialogs));
    model.load();
    EXPECT_EQ(model.appearance().shownPicture(), "/home/ana/Imágenes/playa.jpg");

    model.sessions().dropFiles({"/tmp/notas.txt", "/tmp/Monte.PNG"});
    EXPECT_EQ(model.appearance().shownPicture(), "/tmp/Monte.PNG");
    EXPECT_EQ(shared.settings.backgroundPicture, "/home/ana/Imágenes/playa.jpg");
    EXPECT_EQ(shared.currentSlot, 0) << "a missing text file adds no user";

    shared.locked = true;
    model.sessions().dropFiles({"/tmp/otra.gif"});
    EXPECT_EQ(model.appearance().shownPicture(), "/tmp/Monte.PNG");
}

// --- the session panel ------------------------------------------------------------------

class SessionPanelTest : public ::testing::Test {
protected:
    int ticksUntilStill() {
        int ticks = 0;
        while (panel.animating() && ticks < 1000) {
            panel.tick();
            ++ticks;
        }
        return ticks;
    }

    SharedState shared;
    SessionPanelModel panel{shared};
};

TEST_F(SessionPanelTest, OpensInStepsShowsTheKeyOnArrivalAndASecondCallClosesIt) {
    panel.toggleSessionPanel(2, true);
    EXPECT_EQ(panel.height(), SessionPanelModel::kStartHeight);
    std::vector<int> heights{panel.height()};
    while (panel.animating() && heights.size() < 1000) {
        EXPECT_FALSE(panel.keyFrameShown()) << "the key waits for the full height";
        panel.tick();
        heights.push_back(panel.height());
    }
    ASSERT_GT(heights.size(), 2U) << "it opens in steps";
    EXPECT_EQ(std::adjacent_find(heights.begin(), heights.end(), std::greater_equal<>()),
              heights.end());
    EXPECT_GE(panel.height(), SessionPanelModel::kOpenHeight);
    EXPECT_LT(heights[heights.size() - 2], SessionPanelModel::kOpenHeight)
        << "it stops on the first step that reaches its height";
    EXPECT_TRUE(panel.keyFrameShown());
    EXPECT_TRUE(panel.warningShown()) << "a game is being played";

    panel.toggleSessionPanel(2, true);
    ticksUntilStill();
    EXPECT_FALSE(panel.shown());
    EXPECT_LE(panel.height(), SessionPanelModel::kClosedHeight);
}

TEST_F(SessionPanelTest, EnterLocksThenOnlyTheExactKeyUnlocks) {
    panel.toggleSessionPanel(1, false);
    ticksUntilStill();
    EXPECT_STREQ(panel.keyCaption(), "Escribe una clave:");
    panel.enterKey("Clave");
    EXPECT_TRUE(shared.locked);
    EXPECT_STREQ(panel.keyCaption(), "BLOQUEADO");
    EXPECT_TRUE(panel.secondBoxShown());
    EXPECT_FALSE(panel.cancelShown());
    EXPECT_FALSE(panel.f4Closes());

    panel.enterKey("clave");
    EXPECT_TRUE(shared.locked) << "the key is compared case by case";
    EXPECT_TRUE(panel.wrongShown());
    panel.tickWrong();
    EXPECT_FALSE(panel.wrongShown());

    panel.enterKey("Clave");
    EXPECT_FALSE(shared.locked);
    ticksUntilStill();
    EXPECT_FALSE(panel.shown()) << "the right key closes the panel";

    panel.toggleSessionPanel(1, false);
    panel.enterKey("");
    EXPECT_TRUE(shared.locked) << "an empty key locks and unlocks too";
    panel.enterKey("");
    EXPECT_FALSE(shared.locked);
}

// However many users it holds, the list slides down in steps and comes to
// rest under the user label.
TEST_F(SessionPanelTest, TheSessionListSlidesDownAndStops) {
    for (int entries = 1; entries <= 8; ++entries) {
        SCOPED_TRACE(entries);
        panel.toggleSessionPanel(entries, false);
        panel.toggleList(entries);
        std::vector<int> tops{panel.listTop()};
        while (panel.listSliding() && tops.size() < 1000) {
            panel.tickList();
            tops.push_back(panel.listTop());
        }
        tops.pop_back(); // the tick that finds it at rest
        ASSERT_GT(tops.size(), 2U) << "it slides in steps";
        EXPECT_EQ(std::adjacent_find(tops.begin(), tops.end(), std::greater_equal<>()), tops.end());
        EXPECT_LT(std::abs(panel.listTop() - SessionPanelModel::kListBase), 60);
        panel.toggleList(entries);
        EXPECT_FALSE(panel.listShown());
        panel.close();
        ticksUntilStill();
    }
}

// --- the statistics panel -------------------------------------------------------------

TEST(StatsPanelModel, AveragesRoundDownAndWaitForAGame) {
    using Row = StatsPanelModel::Row;
    SharedState shared;
    StatsPanelModel panel{shared};
    UserStats& stats = shared.current().stats;
    panel.open();
    for (const bool survival : {false, true}) {
        EXPECT_EQ(panel.value(Row::AveragePoints, survival), "0");
        EXPECT_EQ(panel.value(Row::AverageErrors, survival), "0");
    }
    EXPECT_EQ(panel.value(Row::Points, true), "1000");

    struct Case {
        const char* label;
        double normalPoints;
        double survivalPoints;
        const char* normalAverage;
        const char* survivalAverage;
    };
    // Two games in each column from here on: a loss and a win.
    stats.countLoss(8, false);
    stats.countWin(200, 1, false);
    stats.countLoss(8, true);
    stats.countWin(300, 0, true);
    for (const Case& c : {Case{"gain over 1000", 400, 1400, "200", "200"},
                          Case{"below 1000", -800, 900, "-400", "-50"},
                          Case{"down, not towards 0", -601, 999, "-301", "-1"},
                          Case{"up to a whole", 401, 1001, "200", "0"}}) {
        shared.normalPoints = c.normalPoints;
        shared.survivalPoints = c.survivalPoints;
        panel.open();
        EXPECT_EQ(panel.value(Row::AveragePoints, false), c.normalAverage) << c.label;
        EXPECT_EQ(panel.value(Row::AveragePoints, true), c.survivalAverage) << c.label;
    }
    EXPECT_EQ(panel.value(0), "401") << "points read like the score";
    const std::vector<std::string> survival(
        {"1001", "8", "2", "4", "0", "300", "300"}); // points, errors, games, averages, records
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(panel.value(StatsPanelModel::kSurvivalColumn + i), survival[i]) << i;
    }

    stats.reset();
    shared.normalPoints = -5000;
    panel.open();
    EXPECT_EQ(panel.value(Row::Games, false), "0");
    EXPECT_EQ(panel.value(Row::Best, false), "0");
    EXPECT_EQ(panel.value(Row::AveragePoints, false), "200") << "no games: the last text stays";
    EXPECT_EQ(panel.value(Row::AverageErrors, true), "4");
}

TEST(StatsPanelModel, UnrollsToItsFullHeightAndRollsUpOutOfSight) {
    SharedState shared;
    StatsPanelModel panel{shared};
    EXPECT_FALSE(panel.shown());
    panel.open();
    EXPECT_TRUE(panel.shown());
    std::vector<int> heights{panel.height()};
    while (panel.animating() && heights.size() < 100) {
        EXPECT_FALSE(panel.valuesShown()) << "the values wait for the full height";
        panel.tick();
        heights.push_back(panel.height());
    }
    ASSERT_GT(heights.size(), 3U) << "it unrolls in steps";
    EXPECT_EQ(std::adjacent_find(heights.begin(), heights.end(), std::greater_equal<>()),
              heights.end());
    EXPECT_EQ(heights.back(), StatsPanelModel::kOpenHeight);
    EXPECT_TRUE(panel.valuesShown());

    panel.close();
    EXPECT_FALSE(panel.valuesShown()) << "the values go first";
    heights = {panel.height()};
    while (panel.animating() && heights.size() < 100) {
        EXPECT_TRUE(panel.shown());
        panel.tick();
        heights.push_back(panel.height());
    }
    EXPECT_GT(heights.size(), 3U) << "it rolls up in steps";
    EXPECT_EQ(std::adjacent_find(heights.begin(), heights.end(), std::less_equal<>()),
              heights.end());
    EXPECT_FALSE(panel.shown());
    EXPECT_EQ(panel.height(), StatsPanelModel::kRestHeight);

    // Opened again halfway up, it still comes to rest at the full height.
    panel.open();
    for (int tick = 0; tick < 12; ++tick) {
        panel.tick();
    }
    panel.close();
    panel.tick();
    panel.open();
    while (panel.animating()) {
        panel.tick();
    }
    EXPECT_EQ(panel.height(), StatsPanelModel::kOpenHeight);
    panel.close();
    panel.close();
    EXPECT_TRUE(panel.animating()) << "a second close is the same close";
}

} // namespace
} // namespace quillora
