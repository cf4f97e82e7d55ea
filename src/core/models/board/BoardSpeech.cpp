// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/BoardSpeech.h"

#include "round/Keyboard.h"
#include "round/Round.h"
#include "words/Text.h"

#include <algorithm>
#include <array>

namespace quillora {

namespace {

bool painted(const PhraseBoard::Cell& cell) {
    return cell.revealed || cell.missed;
}

// Whether a tried letter shows in a painted cell: the player sees it there,
// so saying it gives nothing away.
bool shownInPhrase(const PhraseBoard& board, char32_t letter) {
    for (int i = 1; i <= PhraseBoard::kCells; ++i) {
        const PhraseBoard::Cell& cell = board.cell(i);
        if (painted(cell) && cell.character == letter) {
            return true;
        }
    }
    return false;
}

std::string trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

// The strikes the figure shows by its parts.
int figureStep(const Figure& figure) {
    // One part for each of the first six strikes; the seventh is the panic,
    // the eighth the hanging.
    constexpr std::array<Figure::Part, 6> kSteps{Figure::Head,    Figure::Body,
                                                 Figure::LeftArm, Figure::RightArm,
                                                 Figure::LeftLeg, Figure::RightLeg};
    if (figure.hanging()) {
        return RoundState::kSlots;
    }
    if (figure.visible(Figure::PanicPicture)) {
        return RoundState::kSlots - 1;
    }
    int step = 0;
    for (Figure::Part part : kSteps) {
        step += figure.visible(part) ? 1 : 0;
    }
    return step;
}

std::string outOf(const char* what, int count, int total) {
    return std::string(what) + ": " + std::to_string(count) + " de " + std::to_string(total);
}

} // namespace

std::string spokenCellName(const PhraseBoard::Cell& cell) {
    if (painted(cell)) {
        return toUtf8(cell.character);
    }
    return cell.underline ? "oculta" : "";
}

std::string spokenCellDescription(const PhraseBoard& board, int cell) {
    std::string where = "fila " + std::to_string((cell - 1) / PhraseBoard::kColumns + 1) +
                        ", columna " + std::to_string((cell - 1) % PhraseBoard::kColumns + 1);
    if (board.cell(cell).missed) {
        where += ", no adivinada";
    }
    return where;
}

std::string spokenKeyName(const AnswerBox& answer, int key) {
    if (key == kWriteKey) {
        return toUtf8(answer.writeKeyCaption());
    }
    return toUtf8(keyCaption(key));
}

std::string spokenKeyDescription(const Round& round, int key) {
    const char32_t letter = keyLetter(key);
    if (letter == 0) {
        return trimmed(keyTooltip(key));
    }
    const PhraseBoard& board = round.board();
    if (!board.alreadyTried(letter)) {
        return "sin probar";
    }
    return shownInPhrase(board, letter) ? "probada: acierto" : "probada: fallo";
}

std::string spokenCounter(const PhraseBoard& board) {
    return outOf("Letras reveladas", board.revealedCount(), board.letterTotal());
}

std::string spokenStrikes(const RoundState& state, const Figure& figure) {
    int marks = 0;
    for (int slot = 1; slot <= RoundState::kSlots; ++slot) {
        marks += state.slot(slot).empty() ? 0 : 1;
    }
    return outOf("Strikes", std::max(marks, figureStep(figure)), RoundState::kSlots);
}

std::string spokenStrikeMark(const RoundState& state, int slot) {
    const std::string& mark = state.slot(slot);
    if (mark.empty()) {
        return "vacío";
    }
    // A wrong whole answer fills the marks left with a blank.
    return mark == " " ? "respuesta fallida" : mark;
}

std::string spokenFigure(const Figure& figure) {
    return "Ahorcado: paso " + std::to_string(figureStep(figure)) + " de " +
           std::to_string(RoundState::kSlots);
}

std::string spokenStatus(const std::string& status) {
    const auto end = status.find_last_not_of('.');
    return end == std::string::npos ? status : status.substr(0, end + 1);
}

std::string spokenAutoMarker(const std::string& caption) {
    return caption == "T" ? "Tour temático" : "Frase automática";
}

} // namespace quillora
