// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "round/PhraseBoard.h"

#include <string>

namespace quillora {

class Announcer;
class Countdown;
class PlayersTurn;
class Round;
class Scoring;

// A letter as the screen reader should say it: "Y" alone reads as the word
// "y", which sounds like "I", so it gets its name.
std::string spokenLetter(char32_t letter);
// The phrase as the board paints it, word by word: a painted cell says its
// letter, an underlined one "oculta", and a run of blanks "espacio".
std::string spokenPhrase(const PhraseBoard& board);

// What the board tells a player who cannot see it, and when: one short
// utterance for each letter played, the start and the end of a game, the
// warnings of survival and of the clock, and the whole board on demand.
// Every text is made from what the board paints at that moment.
class BoardNarration {
public:
    BoardNarration(Announcer& announcer, const Round& round, const Scoring& scoring,
                   const Countdown& countdown, const PlayersTurn& turn)
        : m_announcer(announcer), m_round(round), m_scoring(scoring), m_countdown(countdown),
          m_turn(turn) {}

    // "Tema: ANIMALES. 3 palabras, 14 letras.", with the clock and whose
    // turn it is where the board shows them.
    void phraseLaid();
    // What the letter just played did; a letter that ended the game leaves
    // the word to the end of the game.
    void letterPlayed();
    // A character the board ignores while a game is on. Only an accented
    // letter is worth a word: the player meant a letter and nothing showed.
    void keyIgnored(char32_t typed);
    // The win or the loss, once, with the phrase and the points.
    void gameEnded();
    void clockWarning();
    // The clock ran out: the loss that follows says so.
    void clockRanOut() { m_timeUp = true; }
    void strikeTakenBack();
    // The turn menu moved the turn, or freed it.
    void turnMoved();
    // The score's count is over: survival without points says it cannot go on.
    void scoreSettled();
    // F6: the whole board.
    void readBoard();

private:
    // Whose turn it is, when that is shown and has changed since last said.
    std::string turnNews();
    std::string turnNow() const;

    Announcer& m_announcer;
    const Round& m_round;
    const Scoring& m_scoring;
    const Countdown& m_countdown;
    const PlayersTurn& m_turn;
    std::string m_turnSaid;
    bool m_timeUp = false;
};

} // namespace quillora
