// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/BoardLook.h"
#include "round/Figure.h"
#include "round/PendingSound.h"
#include "round/PhraseBoard.h"
#include "round/RoundState.h"
#include "words/ThemeCatalogue.h"

#include <string>

namespace quillora {

class Dialogs;
class Random;
struct SharedState;

// What the end of a game and the passing of turns hand over to the rest of
// the game (history, tour, points, statistics, players, countdown). The rules
// of a game do not need to know who listens.
class RoundEvents {
public:
    virtual ~RoundEvents() = default;
    virtual void nextTurn() {}
    virtual void phraseLaid() {}
    virtual void roundWon() {}
    virtual void roundLost() {}
    // Every game, won or lost, with or without points, ends with the text
    // the player had to find.
    virtual void roundEnded(const std::string& /*answerText*/) {}
    // The answer box takes the place of the side panels.
    virtual void answerBoxOpened() {}
    virtual void countdownStopped() {}
    virtual void correctionAsked(bool /*asking*/) {}
    // An option changed that the configuration file keeps.
    virtual void settingsChanged() {}
    // The modes shown in the window title may have changed.
    virtual void titleChanged() {}
    // The score label is still counting towards the new points.
    virtual bool scoreCounting() const { return false; }
};

// What pressing JUGAR leads to.
enum class GameStart {
    Nothing,      // refused, asked and declined, or the board was only cleared
    Started,      // a phrase is laid and the game is on
    ThemeWindow,  // the player's phrase window must open (ThemeWindow)
    FriendWindow, // a friend types the phrase (FriendPhraseWindow)
};

// One game of hangman on the board: guessing, strikes, the figure, the whole
// answer, the strike correction, and what the board shows of all that.
class Round {
public:
    Round(SharedState& shared, Dialogs& dialogs, Random& random, RoundEvents* events = nullptr);

    // --- starting and resetting ---------------------------------------------
    // The play button: asks before abandoning a game under way, then play.
    GameStart pressPlay();
    GameStart play();
    // Clears the board for the next game; refused with many errors.
    void clearBoard();
    // Back to a neutral board, waiting for a phrase.
    void startNewBoard();
    // Lays a phrase as the game of `theme`, shown under `themeLabel`.
    void startPhrase(const std::string& phrase, int theme, const std::string& themeLabel);
    void layPendingPhrase();

    // --- the player's phrase window and the automatic phrase ----------------------
    // Whether several themes are selected, and the theme the window shows.
    void prepareThemeWindow();
    // Draws the theme and the phrase of the next game.
    void drawThemeAndPhrase();
    // Lays the drawn phrase; two games of one theme in a row switch the
    // automatic phrase on.
    void layDrawnPhrase();
    void drawTourPhrase();
    // "Tour temático": the automatic phrase walks every theme from the
    // first, and the first game of the tour starts at once.
    void startTour();
    // The automatic-phrase marker reads "T" while a tour runs.
    void showTourMarker();
    void toggleAutoPhrase();
    bool randomTheme() const { return m_randomTheme; }
    const std::string& themeWindowLabel() const { return m_themeWindowLabel; }
    const std::string& drawnPhrase() const { return m_drawnPhrase; }
    bool autoMarkerVisible() const;
    const std::string& autoMarkerCaption() const { return m_autoCaption; }
    const std::string& autoMarkerTooltip() const { return m_autoTooltip; }
    int phraseNumber() const { return m_phraseNumber; }

    // --- guessing -----------------------------------------------------------
    bool inPlay() const { return m_board.letterTotal() > 0 && !m_state.over; }
    // A character typed on the computer's keyboard.
    void typeKey(char32_t typed);
    // A click on key 0..39 of the on-screen keyboard.
    void clickKey(int key);
    void guess(char32_t letter);
    // What the last character typed did: nothing of a guess, a letter tried
    // before, or a new letter found or missed.
    enum class GuessEffect { None, AlreadyTried, Hit, Miss };
    GuessEffect lastGuess() const { return m_lastGuess; }
    void playGuessedLetter();

    // --- the whole answer -----------------------------------------------------
    void toggleAnswerBox();
    bool answerBoxOpen() const { return m_answerBoxOpen; }
    const std::string& answerBoxText() const { return m_answerText; }
    void setAnswerBoxText(std::string text) { m_answerText = std::move(text); }
    bool answerOkEnabled() const { return !m_answerText.empty(); }
    // OK of the answer box: false when the box stays open for more typing.
    bool submitAnswer();

    // --- the strike correction --------------------------------------------------
    bool correctionOffered() const;
    void takeBackStrike();
    static std::string correctionQuestion(int correctionsLeft);

    // --- leaving ----------------------------------------------------------------
    // True when the board may go back to the menu.
    bool backToMenu();

    // --- timers -------------------------------------------------------------------
    // The lamp goes back to the game colour while the game is on.
    void tickLamp();
    bool lampTimerRunning() const { return m_lampTimerRunning; }
    // The dots of "JUGANDO".
    void tickStatus();
    // The dots only move while a game is played: no other caption animates.
    bool statusTimerRunning() const { return m_status.rfind("JUGANDO", 0) == 0; }
    PendingSound& pendingSound() { return m_sound; }
    // The countdown ran out: every strike left is taken and the game is lost
    // just as at the eighth strike.
    void timeUp();

    // --- what the board shows ---------------------------------------------------
    const PhraseBoard& board() const { return m_board; }
    const RoundState& state() const { return m_state; }
    // The score hands the half bonus back once it is paid, and clears the
    // strikes when its count ends.
    bool& earlyAnswerBonusFlag() { return m_state.earlyAnswerBonus; }
    int& strikeCountForScore() { return m_state.strikeCount; }
    const Figure& figure() const { return m_figure; }
    const std::string& status() const { return m_status; }
    const std::string& playCaption() const { return m_playCaption; }
    const std::string& themeLabel() const { return m_themeLabel; }
    bool counterVisible() const { return m_counterVisible; }
    bool digitPanelVisible() const { return m_digitPanelVisible; }
    bool lookUpVisible() const { return m_lookUpVisible; }
    bool newGameEnabled() const { return m_newGameEnabled; }
    bool designEnabled() const { return m_designEnabled; }
    Lamp lamp() const { return m_lamp; }
    // After the death the score and theme take the red lamp colour.
    bool deathColours() const { return m_deathColours; }
    std::u32string writeKeyCaption() const { return m_answerBoxOpen ? U"Cancelar" : U"Escribir"; }
    int gameTheme() const { return m_gameTheme; }
    const std::string& gameThemeName() const { return m_gameThemeName; }

private:
    void resetBoard();
    void checkAlreadyTried();
    void recordMiss();
    void advanceFigure();
    void checkWin();
    void compareAnswer();
    // A death that does not come from a wrong letter takes every strike left.
    void fillEmptySlots();
    void endRound(const std::string& caption);
    void closeAnswerBox();
    void showDigitPanel(bool shown) { m_digitPanelVisible = shown; }
    void light(Lamp lamp);
    void lightYellowLamp() { light(Lamp::Yellow); }
    void lightGreenLamp() { light(Lamp::Green); }
    void lightRedLamp() { light(Lamp::Red); }
    void requestSound(int number);
    bool pointsCount() const;
    int drawPhraseNumber();
    void layCataloguePhrase(bool switchAutoOn);
    void switchAutoOn();
    void advanceTour();

    SharedState& m_shared;
    Dialogs& m_dialogs;
    Random& m_random;
    RoundEvents m_noEvents;
    RoundEvents& m_events;
    ThemeCatalogue m_catalogue;

    PhraseBoard m_board;
    RoundState m_state;
    Figure m_figure;
    PendingSound m_sound;

    std::u32string m_pendingPhrase;
    int m_pendingLetterTotal = 0;
    int m_gameTheme = 0;
    std::string m_gameThemeName;
    int m_phraseNumber = 0;

    bool m_randomTheme = false;
    std::string m_themeWindowLabel;
    std::string m_drawnPhrase;
    std::string m_autoCaption = "A";
    std::string m_autoTooltip = " Desactivar la frase automática. ";

    std::string m_status = "NUEVA PARTIDA";
    std::string m_playCaption = "JUGAR";
    std::string m_themeLabel;
    std::string m_answerText;
    bool m_answerBoxOpen = false;
    bool m_counterVisible = false;
    bool m_digitPanelVisible = false;
    bool m_lookUpVisible = false;
    bool m_newGameEnabled = false;
    bool m_designEnabled = true;
    bool m_deathColours = false;
    Lamp m_lamp = Lamp::None;
    bool m_lampTimerRunning = false;
    GuessEffect m_lastGuess = GuessEffect::None;
};

} // namespace quillora
