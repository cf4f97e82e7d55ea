// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/BoardLook.h"
#include "round/AnswerBox.h"
#include "round/Figure.h"
#include "round/PendingSound.h"
#include "round/PhraseBoard.h"
#include "round/PhraseChoice.h"
#include "round/RoundEvents.h"
#include "round/RoundState.h"

#include <string>

namespace quillora {

class Dialogs;
class Random;
struct SharedState;

// What pressing JUGAR leads to.
enum class GameStart {
    Nothing,      // refused, asked and declined, or the board was only cleared
    Started,      // a phrase is laid and the game is on
    ThemeWindow,  // the player's phrase window must open (ThemeWindow)
    FriendWindow, // a friend types the phrase (FriendPhraseWindow)
};

// One game of hangman on the board: guessing, strikes, the figure, the strike
// correction, and what the board shows of all that. The whole answer and
// the choice of the next phrase are parts of their own that it holds.
class Round final : private AnswerBoxGame, private PhraseChoiceGame {
public:
    Round(SharedState& shared, Dialogs& dialogs, Random& random, RoundEvents* events = nullptr);

    // --- starting and resetting ---------------------------------------------
    // The play button: asks before abandoning a game under way, then play.
    GameStart pressPlay();
    GameStart play();
    // Clears the board for the next game; refused with many errors.
    void clearBoard();
    // Lays a phrase as the game of `theme`, shown under `themeLabel`.
    void startPhrase(const std::string& phrase, int theme, const std::string& themeLabel);

    // --- the parts ------------------------------------------------------------------
    AnswerBox& answerBox() { return m_answerBox; }
    PhraseChoice& phraseChoice() { return m_choice; }

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
    int gameTheme() const { return m_gameTheme; }

private:
    // What the parts ask of the game.
    bool takesAnswers() const override { return inPlay(); }
    void judgeAnswer(const std::u32string& answer) override;
    void layChosenPhrase(const std::string& phrase, int theme,
                         const std::string& themeName) override {
        startPhrase(phrase, theme, themeName);
    }
    bool gameOver() const override { return m_state.over; }

    // Back to a neutral board, waiting for a phrase.
    void startNewBoard();
    void resetBoard();
    void layPendingPhrase();
    void playGuessedLetter();
    void checkAlreadyTried();
    void recordMiss();
    void advanceFigure();
    void checkWin();
    // A death that does not come from a wrong letter takes every strike left.
    void fillEmptySlots();
    void endRound(const std::string& caption);
    void showDigitPanel(bool shown) { m_digitPanelVisible = shown; }
    void light(Lamp lamp);
    void lightYellowLamp() { light(Lamp::Yellow); }
    void lightGreenLamp() { light(Lamp::Green); }
    void lightRedLamp() { light(Lamp::Red); }
    void requestSound(int number);
    bool pointsCount() const;

    SharedState& m_shared;
    Dialogs& m_dialogs;
    RoundEvents m_noEvents;
    RoundEvents& m_events;
    AnswerBox m_answerBox;
    PhraseChoice m_choice;

    PhraseBoard m_board;
    RoundState m_state;
    Figure m_figure;
    PendingSound m_sound;

    std::u32string m_pendingPhrase;
    int m_pendingLetterTotal = 0;
    int m_gameTheme = 0;

    std::string m_status = "NUEVA PARTIDA";
    std::string m_playCaption = "JUGAR";
    std::string m_themeLabel;
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
