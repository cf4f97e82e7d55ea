// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "round/Round.h"
#include "models/friendPhrase/FriendPhraseModel.h"
#include "state/SharedState.h"
#include "words/Text.h"
#include "words/ThemeCatalogue.h"

#include "support/Draws.h"
#include "support/Fakes.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace quillora {
namespace {

class RoundTest : public ::testing::Test {
public:
    void start(const std::string& phrase = "CASA") { round.startPhrase(phrase, 1, "ANIMAL"); }
    void guessAll(std::u32string_view letters) {
        for (char32_t c : letters) {
            round.guess(c);
        }
    }
    // Types a whole answer and presses OK, answering the question with `yes`.
    bool answer(const std::string& typed, bool yes = true) {
        box.toggle();
        box.setText(typed);
        dialogs.answer({yes});
        return box.submit();
    }
    const RoundState& st() const { return round.state(); }
    void restart(const std::string& phrase = "CASA") {
        round.clearBoard();
        start(phrase);
    }
    // Asks for a correction, answering the question if one comes.
    void correct(bool yes = true) {
        if (round.correctionOffered()) {
            dialogs.answer({yes});
        }
        round.takeBackStrike();
    }
    const ScriptedDialogs::Shown& lastShown() const { return dialogs.shown.back(); }

    SharedState shared;
    ScriptedDialogs dialogs;
    QueuedRandom random;
    RecordingEvents events;
    Round round{shared, dialogs, random, &events};
    AnswerBox& box = round.answerBox();
    PhraseChoice& choice = round.phraseChoice();
};

TEST_F(RoundTest, KeysGuessOrToggleOnlyWhileAGameIsInPlay) {
    for (char32_t typed : {U'a', U'#', U'!'}) {
        round.typeKey(typed);
    }
    round.clickKey(kDigitPanelKey);
    EXPECT_TRUE(round.board().triedLetters().empty());
    EXPECT_FALSE(round.digitPanelVisible() || box.isOpen());

    start("NIÑO");
    EXPECT_EQ(round.pendingSound().number(), 2);
    for (char32_t typed : {U'\u00F1', U'\u00E1', U'@', U'o'}) {
        round.typeKey(typed);
    }
    EXPECT_EQ(round.board().triedLetters(), U"\u00D1O");
    EXPECT_TRUE(round.board().cell(3).revealed && round.board().cell(4).revealed);
    round.typeKey(U'!');
    EXPECT_EQ(box.writeKeyCaption(), U"Cancelar");
    box.setText("NI");
    round.clickKey(kWriteKey);
    EXPECT_FALSE(box.isOpen());
    EXPECT_EQ(box.writeKeyCaption(), U"Escribir");
    EXPECT_TRUE(box.text().empty());
    round.typeKey(U'#');
    EXPECT_TRUE(round.digitPanelVisible());
    round.clickKey(kCloseDigitsKey);
    EXPECT_FALSE(round.digitPanelVisible());

    round.clickKey(keyIndexOf(U'N'));
    round.clickKey(keyIndexOf(U'I'));
    ASSERT_TRUE(st().over);
    round.typeKey(U'b');
    round.clickKey(kDigitPanelKey);
    EXPECT_EQ(round.board().triedLetters(), U"\u00D1ONI");
    EXPECT_FALSE(round.digitPanelVisible());
}

TEST_F(RoundTest, MissesFillSlotsInOrderUntilTheDeath) {
    start();
    round.guess(U'A');
    const std::u32string misses = U"BDEFGHIJ";
    const int sounds[] = {4, 4, 4, 4, 4, 4, 1, 3};
    for (int n = 1; n <= 8; ++n) {
        round.tickLamp();
        EXPECT_EQ(round.lamp(), Lamp::None);
        round.guess(misses[static_cast<std::size_t>(n - 1)]);
        EXPECT_EQ(st().strikeCount, n);
        EXPECT_EQ(st().slot(n), toUtf8(misses[static_cast<std::size_t>(n - 1)]));
        EXPECT_EQ(round.pendingSound().number(), sounds[n - 1]) << "strike " << n;
        EXPECT_EQ(round.lamp(), Lamp::Red);
        // The eighth strike leaves its lamp to the death, which starts no timer.
        EXPECT_EQ(round.lampTimerRunning(), n < 8);
        EXPECT_EQ(st().manyErrors, n >= 5 && n < 8);
        EXPECT_EQ(round.figure().visible(Figure::RightLeg), n >= 6);
    }
    EXPECT_EQ(round.status(), "¡MUERTO!");
    EXPECT_TRUE(st().over && round.figure().hanging() && round.deathColours());
    EXPECT_FALSE(round.counterVisible() || round.designEnabled());
    EXPECT_EQ(events.lost, 1);
    EXPECT_TRUE(round.board().cell(1).missed && round.board().cell(3).missed);
    EXPECT_FALSE(round.board().cell(2).missed);
    round.tickLamp();
    EXPECT_EQ(round.lamp(), Lamp::Red);
}

TEST_F(RoundTest, RightLetterSoundsSixAndTheCompletingOneOnlyTheWin) {
    start("OSO");
    guessAll(U"ABCDEFG");
    ASSERT_EQ(round.figure().faceText(), "o o");
    round.tickLamp();
    round.guess(U'O');
    EXPECT_EQ(round.pendingSound().number(), 6);
    EXPECT_EQ(round.lamp(), Lamp::Green);
    EXPECT_TRUE(round.lampTimerRunning());
    round.tickLamp();

    round.guess(U'S');
    EXPECT_EQ(round.pendingSound().number(), 5);
    // A green lamp lit before the game ended would have started the timer.
    EXPECT_FALSE(round.lampTimerRunning());
    EXPECT_EQ(round.status(), "¡VICTORIA!");
    EXPECT_TRUE(st().over);
    EXPECT_FALSE(st().manyErrors || round.counterVisible());
    EXPECT_EQ(round.figure().faceText(), "- -");
    EXPECT_FALSE(round.figure().visible(Figure::PanicPicture));
    EXPECT_EQ(events.won, 1);
    EXPECT_EQ(events.turns, 9);
    round.tickLamp();
    EXPECT_EQ(round.lamp(), Lamp::Green);
}

TEST_F(RoundTest, RepeatedLetterOnlyLightsTheYellowLamp) {
    start();
    guessAll(U"BA");
    EXPECT_FALSE(round.correctionOffered()) << "the last letter was a hit";
    round.tickLamp();
    round.pendingSound().tick();
    guessAll(U"B");
    EXPECT_EQ(round.lamp(), Lamp::Yellow);
    EXPECT_EQ(st().strikeCount, 1);
    EXPECT_TRUE(st().slot(2).empty());
    EXPECT_EQ(round.board().triedLetters(), U"BA");
    EXPECT_EQ(round.pendingSound().number(), 0);
    EXPECT_EQ(events.turns, 2);
    EXPECT_TRUE(round.correctionOffered()) << "a repeat clears the hit";
}

TEST_F(RoundTest, SymbolsAndAccentsKeepTheAnswerBoxOpenInCapitals) {
    start();
    box.toggle();
    const std::vector<std::pair<std::string, std::string>> refused{
        {"CAS@", "CAS@"}, {"casá", "CASÁ"}, {"pingüino", "PINGÜINO"}, {"la\tcasa", "LA\tCASA"}};
    for (const auto& [typed, shown] : refused) {
        box.setText(typed);
        EXPECT_FALSE(box.submit());
        EXPECT_TRUE(box.isOpen());
        EXPECT_EQ(box.text(), shown);
    }
    ASSERT_EQ(dialogs.shown.size(), refused.size()) << "no question after a refusal";
    for (const auto& notice : dialogs.shown) {
        EXPECT_EQ(notice.icon, Dialogs::Icon::Exclamation);
        EXPECT_EQ(
            notice.text,
            "Espere, hay mínimo un símbolo o letra con acento, revise si los hay y quítelos.");
        EXPECT_EQ(notice.title, "Quillora Vesta");
    }
    EXPECT_FALSE(st().over);
}

TEST_F(RoundTest, AnsweringNoKeepsTheBoxOpenAndYesComparesInCapitals) {
    start("CODIGO        GENETICO");
    EXPECT_FALSE(answer("codigo genetico", false));
    EXPECT_TRUE(lastShown().question);
    EXPECT_EQ(lastShown().text, "¿Está seguro?, morirá si se equivoca.");
    EXPECT_TRUE(box.isOpen());
    EXPECT_EQ(box.text(), "CODIGO GENETICO");
    EXPECT_FALSE(st().over);

    dialogs.answer({true});
    EXPECT_TRUE(box.submit());
    EXPECT_EQ(round.status(), "¡VICTORIA!");
    EXPECT_FALSE(box.isOpen());
    EXPECT_TRUE(box.text().empty());
    EXPECT_EQ(round.board().counterText(), "14/14");
    EXPECT_TRUE(round.board().cell(22).revealed);
}

TEST_F(RoundTest, HalfBonusOnlyWhenFewerThanHalfRevealed) {
    const std::vector<std::tuple<std::string, std::u32string, std::string, bool>> answers{
        {"MURCIELAGO", U"MURCI", "murcielago", false},
        {"MURCIELAGO", U"MUR", "MURCIELAGO", true},
        {"BLANQUITO", U"BLANQ", "BLANQUITO", false},
        {"BLANQUITO", U"BLAN", "blanquito", true},
        {"ABC", U"", "abc", true}};
    for (const auto& [phrase, hits, typed, bonus] : answers) {
        SCOPED_TRACE(phrase + " " + typed);
        restart(phrase);
        guessAll(hits);
        guessAll(U"XYZW");
        EXPECT_TRUE(answer(typed));
        EXPECT_EQ(round.status(), "¡VICTORIA!");
        EXPECT_EQ(st().earlyAnswerBonus, bonus);
        EXPECT_EQ(st().slot(1), bonus ? "" : "X");
        EXPECT_EQ(st().slot(4), bonus ? "" : "W");
    }
    EXPECT_EQ(events.won, 5);
}

TEST_F(RoundTest, WrongWholeAnswerFillsTheEmptySlotsAndKills) {
    shared.multiplayer = true;
    start();
    guessAll(U"BD");
    EXPECT_TRUE(answer("caso"));
    EXPECT_EQ(st().slot(2), "D");
    for (int n = 3; n <= 8; ++n) {
        EXPECT_EQ(st().slot(n), " ");
    }
    EXPECT_EQ(st().strikeCount, 8);
    EXPECT_EQ(round.status(), "¡MUERTO!");
    EXPECT_TRUE(round.figure().hanging());
    EXPECT_EQ(round.pendingSound().number(), 3);
    EXPECT_FALSE(box.isOpen());
    EXPECT_EQ(events.lost, 0) << "a friend's game scores nothing";
}

TEST_F(RoundTest, ACorrectionTakesBackTheLastMissOfAGameUnderWayOnceAGame) {
    EXPECT_NE(Round::correctionQuestion(1).find(" 1 oportunidad para"), std::string::npos);
    struct Row {
        const char* why;
        int left;
        std::u32string played; // '*' takes a correction on the way
        bool yes;
        int strikes;
        std::size_t boxes;
        std::u32string tried;
        int leftAfter;
        std::u32string then;
        int strikesThen;
    };
    const std::vector<Row> rows{
        {"no strikes", 3, U"A", true, 0, 0, U"A", 3, U"", 0},
        {"the last guess was a hit", 3, U"ABC", true, 1, 0, U"ABC", 3, U"", 1},
        {"one a game", 3, U"ABCD*E", true, 2, 0, U"ABCE", 2, U"", 2},
        {"the game is over", 3, U"BDEFGHIJ", true, 8, 0, U"BDEFGHIJ", 3, U"", 8},
        {"none left", 0, U"B", true, 1, 0, U"B", 0, U"", 1},
        {"answered no", 3, U"B", false, 1, 1, U"B", 3, U"", 1},
        {"the last miss, told of", 3, U"BDEFG", true, 4, 2, U"BDEF", 2, U"", 4},
        {"a repeat clears the hit and goes, not the miss", 3, U"BAA", true, 0, 2, U"B", 2, U"A", 0},
        {"two left afterwards: told", 3, U"BDEFGHI", true, 6, 2, U"BDEFGH", 2, U"IJ", 8},
        {"one left afterwards", 2, U"BDEFGHI", true, 6, 1, U"BDEFGH", 1, U"IJ", 8},
        {"none left afterwards", 1, U"BDEFGHI", true, 6, 1, U"BDEFGH", 0, U"IJ", 8}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.why);
        shared.correctionsLeft = row.left;
        restart();
        for (char32_t c : row.played) {
            c == U'*' ? correct() : round.guess(c);
        }
        dialogs.shown.clear();
        EXPECT_EQ(round.correctionOffered(), row.boxes > 0);
        correct(row.yes);
        EXPECT_EQ(st().strikeCount, row.strikes);
        EXPECT_EQ(dialogs.shown.size(), row.boxes);
        EXPECT_EQ(round.board().triedLetters(), row.tried);
        EXPECT_EQ(shared.correctionsLeft, row.leftAfter);
        EXPECT_EQ(round.correctionOffered(), row.boxes > 0 && !row.yes);
        // The figure is drawn again for the strikes left.
        EXPECT_EQ(round.figure().faceText(), row.strikes == 8 ? "x x" : "- -");
        EXPECT_EQ(round.figure().visible(Figure::LeftLeg), row.strikes >= 5);
        EXPECT_EQ(st().manyErrors, row.strikes >= 5 && row.strikes < 8);
        guessAll(row.then);
        EXPECT_EQ(st().strikeCount, row.strikesThen);
        EXPECT_TRUE(row.strikesThen == 8 || st().slot(row.strikesThen + 1).empty());
        EXPECT_EQ(st().over, row.strikesThen == 8);
    }

    // The last miss taken back, looked at closely.
    shared.correctionsLeft = 3;
    restart();
    guessAll(U"BDEFG");
    dialogs.shown.clear();
    events.panelShown.clear();
    correct();
    EXPECT_EQ(dialogs.shown.at(0).text,
              "La corrección de strikes es muy limitado, sólo tienes 3 oportunidades para "
              "corregir en todo el juego. ¿Deseas usar una?");
    EXPECT_TRUE(round.board().keyVisible(keyIndexOf(U'G')));
    EXPECT_FALSE(round.board().keyVisible(keyIndexOf(U'F')));
    EXPECT_TRUE(st().slot(4) == "F" && st().slot(5).empty());
    EXPECT_TRUE(round.figure().visible(Figure::RightArm));
    EXPECT_EQ(events.panelShown, (std::vector<bool>{true, false}));
    EXPECT_EQ(dialogs.shown.at(1).icon, Dialogs::Icon::Information);
    EXPECT_EQ(dialogs.shown[1].text,
              "Has usado una de tus correcciones, para usar otra tienes que jugar otra partida.");
    round.guess(U'G');
    EXPECT_TRUE(st().slot(5) == "G" && st().strikeCount == 5);
}

TEST_F(RoundTest, LeavingIsRefusedWithManyErrorsAndAskedDuringPlay) {
    EXPECT_TRUE(round.backToMenu()) << "nothing under way";
    start();
    dialogs.answer({false, true});
    EXPECT_FALSE(round.backToMenu());
    EXPECT_EQ(lastShown().text, "¿Seguro de salirse de la partida?");
    EXPECT_TRUE(round.backToMenu());

    guessAll(U"BDEFG");
    dialogs.shown.clear();
    EXPECT_FALSE(round.backToMenu());
    EXPECT_EQ(lastShown().icon, Dialogs::Icon::Exclamation);
    EXPECT_EQ(lastShown().text, "Tiene bastantes errores, termine la partida.");
    round.clearBoard();
    EXPECT_EQ(lastShown().text, "Tienes bastantes errores, termina el juego.");
    EXPECT_EQ(round.board().letterTotal(), 4);
    EXPECT_EQ(st().strikeCount, 5);

    guessAll(U"HIJ");
    EXPECT_TRUE(round.backToMenu()) << "a dead game is left without asking";
    round.clearBoard();
    EXPECT_EQ(round.playCaption(), "JUGAR");
    EXPECT_TRUE(st().slot(8).empty() && round.board().triedLetters().empty());
}

TEST_F(RoundTest, PointsOffNeverHoldTheGame) {
    shared.settings.pointsSystem = false;
    start();
    guessAll(U"BDEFGH");
    EXPECT_FALSE(st().manyErrors);
    guessAll(U"IJ");
    EXPECT_EQ(events.lost, 0);
}

TEST_F(RoundTest, StatusDotsCycleOnlyWhilePlaying) {
    shared.settings.animated = true;
    round.tickStatus();
    EXPECT_EQ(round.status(), "NUEVA PARTIDA");
    shared.settings.animated = false;
    start();
    round.tickStatus();
    EXPECT_EQ(round.status(), "JUGANDO");
    shared.settings.animated = true;
    for (const char* expected : {"JUGANDO.", "JUGANDO..", "JUGANDO...", "JUGANDO", "JUGANDO."}) {
        round.tickStatus();
        EXPECT_EQ(round.status(), expected);
    }
    guessAll(U"BDEFGHIJ");
    round.tickStatus();
    EXPECT_EQ(round.status(), "¡MUERTO!");
}

// --- starting a game ---------------------------------------------------------------

class RoundStartTest : public RoundTest {
protected:
    // Plays through the theme window: opening draws, accepting lays.
    void playThroughWindow() {
        ASSERT_EQ(round.play(), GameStart::ThemeWindow);
        choice.prepareThemeWindow();
        choice.drawThemeAndPhrase();
        choice.layDrawnPhrase();
    }
    void finishGame() {
        // Every letter of the alphabet ends any catalogue game one way or the other.
        guessAll(U"AEIOUSRNLTCDMPBGVFHJQYZXKW\u00D137");
        ASSERT_TRUE(round.state().over);
        round.play(); // "NUEVA PARTIDA" clears the board
    }
    std::string laid() const { return toUtf8(round.board().phrase()); }
};

TEST_F(RoundStartTest, OneOrNoSelectedThemeUsesTheThemeSetting) {
    shared.settings.theme = 20;
    shared.sessions[0].selectedThemes[7] = true; // a single selection is not a random theme
    random.queue({phrase(3)});
    playThroughWindow();
    const std::string themeName(ThemeCatalogue::storedThemeName(20));
    EXPECT_FALSE(choice.randomTheme());
    EXPECT_EQ(choice.themeWindowLabel(), themeName);
    EXPECT_EQ(laid(), ThemeCatalogue::storedPhrase(20, 4));
    EXPECT_EQ(round.themeLabel(), themeName);
    EXPECT_EQ(round.status(), "JUGANDO...");
    EXPECT_EQ(round.playCaption(), "NUEVA PARTIDA");
}

TEST_F(RoundStartTest, SeveralThemesDrawOnlySelectedOnesAndHideTheName) {
    shared.sessions[0].selectedThemes[5] = true;
    shared.sessions[0].selectedThemes[50] = true;
    // 12 is not selected, a 0 drawn again stands for theme 50.
    random.queue({theme(12), theme(0), phrase(4)});
    playThroughWindow();
    EXPECT_TRUE(choice.randomTheme());
    EXPECT_EQ(choice.themeWindowLabel(), "????");
    EXPECT_EQ(round.gameTheme(), 50);
    EXPECT_EQ(round.themeLabel(), "????") << "the theme shows only at the end";
    EXPECT_EQ(shared.sessions[0].lastThemeName, "????");
    finishGame();
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(RoundStartTest, TheSamePhraseNumberNeverComesTwiceInARowEvenOnANewBoard) {
    random.queue({phrase(6)});
    playThroughWindow();
    finishGame();
    shared.settings.theme = 9; // another theme: the rule compares numbers only
    random.queue({phrase(6), phrase(6), phrase(2)});
    playThroughWindow();
    EXPECT_EQ(choice.phraseNumber(), 2);
    EXPECT_EQ(laid(), ThemeCatalogue::storedPhrase(9, 3));
    finishGame();

    // "Volver al menú" and JUGAR build the board, and its round, anew.
    Round next{shared, dialogs, random, &events};
    random.queue({phrase(2), phrase(4)});
    ASSERT_EQ(next.play(), GameStart::ThemeWindow);
    next.phraseChoice().prepareThemeWindow();
    next.phraseChoice().drawThemeAndPhrase();
    EXPECT_EQ(next.phraseChoice().phraseNumber(), 4);
}

TEST_F(RoundStartTest, EveryGameEndsUnderItsThemeAndLeavesItsThemeForTheNextFriend) {
    shared.settings.theme = 12;
    random.queue({phrase(3)});
    playThroughWindow();
    EXPECT_EQ(FriendPhraseModel(shared).themeText(),
              std::string(ThemeCatalogue::storedThemeName(12)))
        << "a friend is offered the theme of the game played last, whatever its kind";
    round.guess(U'A');
    finishGame();

    round.startPhrase("LA CASA", 0, "Frase de Ana");
    EXPECT_EQ(round.themeLabel(), "Frase de Ana");
    guessAll(U"LACS");
    ASSERT_TRUE(round.state().over);
    EXPECT_EQ(round.themeLabel(), "????") << "the catalogue's name of theme 0 at the end";
    EXPECT_EQ(FriendPhraseModel(shared).themeText(), "Frase de Ana");
}

TEST_F(RoundStartTest, ClearingTheBoardRebuildsTheTitle) {
    const int before = events.titles;
    round.clearBoard();
    EXPECT_EQ(events.titles, before + 1);
}

TEST_F(RoundStartTest, TwoGamesOfOneThemeSwitchTheAutomaticPhraseOn) {
    shared.settings.theme = 3;
    random.queue({phrase(1)});
    playThroughWindow();
    EXPECT_FALSE(shared.settings.autoPhrase);
    finishGame();
    random.queue({phrase(2)});
    playThroughWindow();
    EXPECT_TRUE(shared.settings.autoPhrase);
    EXPECT_TRUE(choice.autoMarkerVisible());
    finishGame();

    random.queue({phrase(3)});
    EXPECT_EQ(round.play(), GameStart::Started) << "no window with the automatic phrase";
    EXPECT_EQ(laid(), ThemeCatalogue::storedPhrase(3, 4));
}

TEST_F(RoundStartTest, SwitchingTheAutomaticPhraseOffEndsTheTourAndRestoresTheSelection) {
    shared.settings.autoPhrase = true;
    shared.tourPosition = 12;
    shared.sessions[0].tourCopy[5] = shared.sessions[0].tourCopy[9] = true;
    choice.showTourMarker(); // as a board opened during the tour shows it
    choice.toggleAutoPhrase();
    EXPECT_FALSE(shared.settings.autoPhrase);
    EXPECT_EQ(shared.tourPosition, 0);
    EXPECT_TRUE(shared.sessions[0].selectedThemes[5] && shared.sessions[0].selectedThemes[9]);
    EXPECT_FALSE(choice.autoMarkerVisible());
    EXPECT_EQ(choice.autoMarkerCaption(), "A") << "no tour any more";
    EXPECT_EQ(events.saved, 1);
    choice.toggleAutoPhrase();
    EXPECT_TRUE(shared.settings.autoPhrase);
    EXPECT_TRUE(choice.autoMarkerVisible());
    EXPECT_EQ(shared.tourPosition, 0) << "switching on starts no tour";
}

// A theme of one's own plays as the built-in ones do: drawn from its own
// number of phrases without repeating the last, named at the end, toured.
TEST_F(RoundStartTest, AnOwnThemeIsDrawnNamedAndTouredLikeTheOthers) {
    shared.ownThemes.push_back({"a.txt", "Mis palabras", {"SOL", "LUNA", "ESTRELLA"}});
    shared.settings.theme = 51;
    const auto own = [](int i) { return (i + 0.5) / 3.0; }; // Int(6 * r / 2) == i
    random.queue({own(2)});
    playThroughWindow();
    EXPECT_EQ(choice.themeWindowLabel(), "Mis palabras");
    EXPECT_EQ(laid(), "ESTRELLA");
    EXPECT_EQ(round.themeLabel(), "Mis palabras");
    finishGame();
    random.queue({own(2), own(0)});
    playThroughWindow();
    EXPECT_EQ(laid(), "SOL");
    guessAll(U"SOL");
    EXPECT_TRUE(round.state().over);
    EXPECT_EQ(round.themeLabel(), "Mis palabras");

    // The tour goes on from the fiftieth theme to the player's own, and
    // from the last of those back to the first.
    shared.tourPosition = 50;
    choice.moveTourOn();
    EXPECT_EQ(shared.tourPosition, 51);
    choice.moveTourOn();
    EXPECT_EQ(shared.tourPosition, 1);
}

TEST_F(RoundStartTest, AThemeOfOnePhrasePlaysItAgainAndLostThemesAreNotDrawn) {
    shared.ownThemes.push_back({"a.txt", "Uno", {"SOL"}});
    shared.settings.theme = 51;
    random.queue({0.1});
    playThroughWindow();
    finishGame();
    random.queue({0.1});
    playThroughWindow();
    EXPECT_EQ(laid(), "SOL") << "the only phrase comes again";
    finishGame();

    // Marks left on themes whose files are gone fall back on the setting.
    shared.ownThemes.clear();
    shared.sessions[0].selectedThemes[51] = shared.sessions[0].selectedThemes[52] = true;
    shared.settings.theme = 7;
    shared.settings.autoPhrase = false; // two games of one theme switched it on
    random.queue({phrase(5)});
    playThroughWindow();
    EXPECT_EQ(laid(), ThemeCatalogue::storedPhrase(7, 6));
}

} // namespace
} // namespace quillora
