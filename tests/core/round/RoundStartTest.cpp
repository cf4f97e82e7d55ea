// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/frmWord1/Word1Model.h"
#include "round/Round.h"
#include "state/SharedState.h"
#include "words/Text.h"
#include "words/ThemeCatalogue.h"

#include "support/Fakes.h"

#include <gtest/gtest.h>

namespace quillora {
namespace {

class RoundStartTest : public ::testing::Test {
protected:
    // A fraction that draws index `i` from a range of 40 (phrases) or 100
    // (themes): Int(range * r / 2) == i.
    static double phrase(int i) { return (i + 0.5) / 20.0; }
    static double theme(int i) { return (i + 0.5) / 50.0; }

    // Plays through the theme window: opening draws, accepting lays.
    void playThroughWindow() {
        ASSERT_EQ(round.eGame(), GameStart::ThemeWindow);
        round.BotonTema();
        round.eOther();
        round.eOk();
    }
    void finishGame() {
        // Every letter of the alphabet ends any catalogue game one way or the other.
        for (char32_t c : std::u32string_view(U"AEIOUSRNLTCDMPBGVFHJQYZXKW\u00D137")) {
            round.guess(c);
        }
        ASSERT_TRUE(round.state().over);
        round.eGame(); // "NUEVA PARTIDA" clears the board
    }
    std::string laid() const { return toUtf8(round.board().phrase()); }

    SharedState shared;
    ScriptedDialogs dialogs;
    QueuedRandom random;
    RecordingEvents events;
    Round round{shared, dialogs, random, &events};
};

TEST_F(RoundStartTest, OneOrNoSelectedThemeUsesTheThemeSetting) {
    shared.settings.tema = 20;
    shared.sessions[0].selectedThemes[7] = true; // a single selection is not a random theme
    random.queue({phrase(3)});
    playThroughWindow();
    EXPECT_FALSE(round.randomTheme());
    EXPECT_EQ(round.word2ThemeLabel(), "FRUTA");
    EXPECT_EQ(laid(), ThemeCatalogue::storedPhrase(20, 4));
    EXPECT_EQ(round.themeLabel(), "FRUTA");
    EXPECT_EQ(round.status(), "JUGANDO...");
    EXPECT_EQ(round.playCaption(), "NUEVA PARTIDA");
}

TEST_F(RoundStartTest, SeveralThemesDrawOnlySelectedOnesAndHideTheName) {
    shared.sessions[0].selectedThemes[5] = true;
    shared.sessions[0].selectedThemes[50] = true;
    // 12 is not selected, a 0 drawn again stands for theme 50.
    random.queue({theme(12), theme(0), phrase(4)});
    playThroughWindow();
    EXPECT_TRUE(round.randomTheme());
    EXPECT_EQ(round.word2ThemeLabel(), "????");
    EXPECT_EQ(round.gameTheme(), 50);
    EXPECT_EQ(round.themeLabel(), "????") << "the theme shows only at the end";
    EXPECT_EQ(shared.sessions[0].lastThemeName, "????");
    finishGame();
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(RoundStartTest, TheSamePhraseNumberNeverComesTwiceInARow) {
    random.queue({phrase(6)});
    playThroughWindow();
    finishGame();
    shared.settings.tema = 9; // another theme: the rule compares numbers only
    random.queue({phrase(6), phrase(6), phrase(2)});
    playThroughWindow();
    EXPECT_EQ(round.phraseNumber(), 2);
    EXPECT_EQ(laid(), ThemeCatalogue::storedPhrase(9, 3));
}

TEST_F(RoundStartTest, TheRepeatRuleHoldsForANewBoardOfTheSameRun) {
    random.queue({phrase(6)});
    playThroughWindow();
    finishGame();
    // "Volver al menú" and JUGAR build the board, and its round, anew.
    Round next{shared, dialogs, random, &events};
    random.queue({phrase(6), phrase(4)});
    ASSERT_EQ(next.eGame(), GameStart::ThemeWindow);
    next.BotonTema();
    next.eOther();
    EXPECT_EQ(next.phraseNumber(), 4);
}

TEST_F(RoundStartTest, EveryGameEndsUnderItsThemeAndLeavesItsThemeForTheNextFriend) {
    shared.settings.tema = 12;
    random.queue({phrase(3)});
    playThroughWindow();
    EXPECT_EQ(Word1Model(shared).themeText(), std::string(ThemeCatalogue::storedThemeName(12)))
        << "a friend is offered the theme of the game played last, whatever its kind";
    round.guess(U'A');
    finishGame();

    round.startPhrase("LA CASA", 0, "Frase de Ana");
    EXPECT_EQ(round.themeLabel(), "Frase de Ana");
    for (char32_t c : std::u32string_view(U"LACS")) {
        round.guess(c);
    }
    ASSERT_TRUE(round.state().over);
    EXPECT_EQ(round.themeLabel(), "????") << "the catalogue's name of theme 0 at the end";
    EXPECT_EQ(Word1Model(shared).themeText(), "Frase de Ana");
}

TEST_F(RoundStartTest, ANewBoardRebuildsTheTitle) {
    const int before = events.titles;
    round.BotonNuevo();
    EXPECT_EQ(events.titles, before + 1);
}

TEST_F(RoundStartTest, TwoGamesOfOneThemeSwitchTheAutomaticPhraseOn) {
    shared.settings.tema = 3;
    random.queue({phrase(1)});
    playThroughWindow();
    EXPECT_FALSE(shared.settings.fraseAutomatica);
    finishGame();
    random.queue({phrase(2)});
    playThroughWindow();
    EXPECT_TRUE(shared.settings.fraseAutomatica);
    EXPECT_TRUE(round.autoMarkerVisible());
    finishGame();

    random.queue({phrase(3)});
    EXPECT_EQ(round.eGame(), GameStart::Started) << "no window with the automatic phrase";
    EXPECT_EQ(laid(), ThemeCatalogue::storedPhrase(3, 4));
}

TEST_F(RoundStartTest, ATourPlaysItsThemeAndMovesOnAfterEachGame) {
    shared.settings.fraseAutomatica = true;
    shared.tourPosition = 7;
    random.queue({phrase(5)});
    ASSERT_EQ(round.eGame(), GameStart::Started);
    EXPECT_EQ(round.gameTheme(), 7);
    EXPECT_EQ(round.themeLabel(), "DEPORTE");
    finishGame();
    EXPECT_EQ(shared.tourPosition, 8);

    shared.tourPosition = 50;
    random.queue({phrase(1)});
    round.eGame();
    finishGame();
    EXPECT_EQ(shared.tourPosition, 1) << "after the last theme the tour starts again";
}

TEST_F(RoundStartTest, SwitchingTheAutomaticPhraseOffEndsTheTourAndRestoresTheSelection) {
    shared.settings.fraseAutomatica = true;
    shared.tourPosition = 12;
    shared.sessions[0].tourCopy[5] = shared.sessions[0].tourCopy[9] = true;
    round.eMenuAuto();
    EXPECT_FALSE(shared.settings.fraseAutomatica);
    EXPECT_EQ(shared.tourPosition, 0);
    EXPECT_TRUE(shared.sessions[0].selectedThemes[5] && shared.sessions[0].selectedThemes[9]);
    EXPECT_FALSE(round.autoMarkerVisible());
    EXPECT_EQ(events.saved, 1);
    round.eMenuAuto();
    EXPECT_TRUE(shared.settings.fraseAutomatica);
    EXPECT_EQ(round.autoMarkerCaption(), "A");
    EXPECT_EQ(round.autoMarkerTooltip(), " Desactivar la frase automática. ");
}

TEST_F(RoundStartTest, SurvivalWithoutPointsRefusesToPlay) {
    shared.settings.supervivencia = true;
    shared.survivalPoints = 0;
    EXPECT_EQ(round.eGame(), GameStart::Nothing);
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].title, "No puedes jugar sin puntos");
    EXPECT_EQ(dialogs.shown[0].text,
              "Reinicia el juego o consigue puntos para volver a jugar en este modo.");
    shared.multiplayer = true;
    EXPECT_EQ(round.eGame(), GameStart::FriendWindow) << "friends play without points";
}

} // namespace
} // namespace quillora
