// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/BoardNarration.h"

#include "models/board/BoardSpeech.h"
#include "models/board/PlayersTurn.h"
#include "ports/Announcer.h"
#include "round/Round.h"
#include "scoring/Countdown.h"
#include "scoring/Points.h"
#include "words/Text.h"

#include <cstdlib>
#include <string_view>

namespace quillora {

namespace {

using Urgency = Announcer::Urgency;

std::string counted(int count, const char* one, const char* many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Cells of the phrase that show `letter`: right after a hit, all the cells
// that letter revealed.
int cellsShowing(const PhraseBoard& board, char32_t letter) {
    int cells = 0;
    for (int i = 1; i <= PhraseBoard::kCells; ++i) {
        const PhraseBoard::Cell& cell = board.cell(i);
        cells += cell.underline && cell.character == letter && cell.revealed ? 1 : 0;
    }
    return cells;
}

int wordCount(std::u32string_view answer) {
    int words = 0;
    bool inWord = false;
    for (const char32_t c : answer) {
        words += c != U' ' && !inWord ? 1 : 0;
        inWord = c != U' ';
    }
    return words;
}

// The tried letters the phrase shows, then the ones it does not.
std::string triedLetters(const PhraseBoard& board) {
    std::string right;
    std::string wrong;
    for (const char32_t letter : board.triedLetters()) {
        bool shown = false;
        for (int i = 1; i <= PhraseBoard::kCells && !shown; ++i) {
            const PhraseBoard::Cell& cell = board.cell(i);
            shown = cell.character == letter && (cell.revealed || cell.missed);
        }
        std::string& list = shown ? right : wrong;
        list += (list.empty() ? "" : ", ") + spokenLetter(letter);
    }
    if (right.empty() && wrong.empty()) {
        return "Ninguna letra probada.";
    }
    return "Aciertos: " + (right.empty() ? "ninguno" : right) +
           ". Fallos: " + (wrong.empty() ? "ninguno" : wrong) + ".";
}

// The theme as the board shows it; a game with no theme shows question
// marks, which a screen reader would read out one by one.
std::string spokenTheme(const std::string& label) {
    const std::string theme = trimmed(label);
    return theme.find_first_not_of('?') == std::string::npos ? "sin tema" : theme;
}

bool accented(char32_t c) {
    constexpr std::u32string_view kAccented = U"ÁÉÍÓÚÜÀÈÌÒÙÂÊÎÔÛÄËÏÖáéíóúüàèìòùâêîôûäëïö";
    return kAccented.find(c) != std::u32string_view::npos;
}

} // namespace

std::string spokenLetter(char32_t letter) {
    return letter == U'Y' ? "Y griega" : toUtf8(letter);
}

std::string spokenPhrase(const PhraseBoard& board) {
    std::string text;
    bool blank = false;
    for (int i = 1; i <= static_cast<int>(board.phrase().size()); ++i) {
        const PhraseBoard::Cell& cell = board.cell(i);
        if (!cell.isLetter()) {
            blank = true;
            continue;
        }
        if (!text.empty()) {
            text += blank ? ", espacio, " : " ";
        }
        blank = false;
        // The cell's own accessible name, with a painted Y named like a key.
        const std::string name = spokenCellName(cell);
        text += name == "Y" ? spokenLetter(U'Y') : name;
    }
    return text;
}

std::string BoardNarration::turnNow() const {
    if (!m_scoring.severalPlayers() || m_turn.freeTurn()) {
        return {};
    }
    return trimmed(m_turn.label().caption);
}

std::string BoardNarration::turnNews() {
    const std::string now = turnNow();
    if (now.empty() || now == m_turnSaid) {
        return {};
    }
    m_turnSaid = now;
    return " Turno de " + now + ".";
}

void BoardNarration::phraseLaid() {
    const PhraseBoard& board = m_round.board();
    m_timeUp = false;
    m_turnSaid.clear();
    std::string text = "Tema: " + spokenTheme(m_round.themeLabel()) + ". " +
                       counted(wordCount(board.answerText()), "palabra", "palabras") + ", " +
                       counted(board.letterTotal(), "letra", "letras") + ".";
    if (m_countdown.visible()) {
        text += " Tiempo: " + counted(m_countdown.seconds(), "segundo", "segundos") + ".";
    }
    m_announcer.announce(text + turnNews());
}

void BoardNarration::letterPlayed() {
    if (m_round.state().over) {
        return;
    }
    const PhraseBoard& board = m_round.board();
    const char32_t letter = m_round.state().guessedLetter;
    std::string text = spokenLetter(letter) + ": ";
    switch (m_round.lastGuess()) {
    case Round::GuessEffect::AlreadyTried:
        text += "ya probada.";
        break;
    case Round::GuessEffect::Hit:
        text += counted(cellsShowing(board, letter), "letra", "letras") + ". " +
                std::to_string(board.revealedCount()) + " de " +
                std::to_string(board.letterTotal()) + ".";
        break;
    case Round::GuessEffect::Miss:
        text += "fallo, strike " + std::to_string(m_round.state().strikeCount) + " de " +
                std::to_string(RoundState::kSlots) + ".";
        break;
    case Round::GuessEffect::None:
        return;
    }
    m_announcer.announce(text + turnNews());
}

void BoardNarration::keyIgnored(char32_t typed) {
    if (m_round.inPlay() && accented(typed)) {
        m_announcer.announce(toUtf8(typed) + ": no se juega, las letras van sin acento.");
    }
}

void BoardNarration::gameEnded() {
    const RoundState& state = m_round.state();
    const std::string phrase = trimmed(toUtf8(m_round.board().answerText()));
    std::string text = m_round.status();
    if (state.strikeCount >= RoundState::kSlots) {
        // A loss by strikes leaves the last wrong letter in the eighth mark;
        // the clock and a wrong answer fill the marks with blanks.
        if (m_timeUp) {
            text += " Se acabó el tiempo.";
        } else if (state.slot(RoundState::kSlots) == " ") {
            text += " Respuesta equivocada.";
        }
        text += " La frase era: " + phrase + ".";
    } else {
        text += " " + phrase + ".";
    }
    m_timeUp = false;
    if (m_scoring.pointsCount()) {
        const int change = m_scoring.lastChange();
        std::string note = trimmed(m_scoring.lastNote());
        if (note.size() > 2 && note.front() == '(' && note.back() == ')') {
            note = ", " + note.substr(1, note.size() - 2);
        } else if (!note.empty()) {
            note = " " + note;
        }
        text += std::string(change < 0 ? " Menos " : " Más ") + std::to_string(std::abs(change)) +
                " puntos" + note + ", total " + formatNumber(m_scoring.accountInUse()) + ".";
    }
    m_announcer.announce(text, Urgency::Urgent);
}

void BoardNarration::turnMoved() {
    if (m_turn.freeTurn()) {
        m_turnSaid.clear();
        m_announcer.announce(trimmed(m_turn.label().caption) + ".");
    } else if (const std::string news = turnNews(); !news.empty()) {
        m_announcer.announce(news.substr(1));
    }
}

void BoardNarration::clockWarning() {
    m_announcer.announce("Quedan " + counted(m_countdown.seconds(), "segundo", "segundos") + ".",
                         Urgency::Urgent);
}

void BoardNarration::strikeTakenBack() {
    m_announcer.announce("Strike borrado. " + spokenStrikes(m_round.state(), m_round.figure()) +
                         ".");
}

void BoardNarration::scoreSettled() {
    if (m_scoring.noPoints()) {
        m_announcer.announce(
            "Sin puntos. Reinicia el juego o consigue puntos para volver a jugar en este modo.",
            Urgency::Urgent);
    }
}

void BoardNarration::readBoard() {
    const PhraseBoard& board = m_round.board();
    std::string text;
    if (board.letterTotal() == 0) {
        text = spokenStatus(m_round.status()) +
               ". No hay frase en el tablero. Intro: " + m_round.playCaption() + ".";
    } else {
        if (m_round.state().over) {
            text = m_round.status() + " ";
        }
        text +=
            "Tema: " + spokenTheme(m_round.themeLabel()) + ". Frase: " + spokenPhrase(board) + ". ";
        if (m_round.counterVisible()) {
            text += spokenCounter(board) + ". ";
        }
        text += spokenStrikes(m_round.state(), m_round.figure()) + ". " + triedLetters(board);
        if (m_countdown.visible()) {
            text += " Tiempo: " + counted(m_countdown.seconds(), "segundo", "segundos") + ".";
        }
        if (const std::string turn = turnNow(); !turn.empty()) {
            text += " Turno de " + turn + ".";
        }
    }
    if (m_scoring.pointsCount()) {
        text += m_scoring.noPoints() ? " Sin puntos." : " Puntos: " + m_scoring.scoreText() + ".";
    }
    m_announcer.announce(text);
}

} // namespace quillora
