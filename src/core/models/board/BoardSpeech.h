// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "round/Figure.h"
#include "round/PhraseBoard.h"
#include "round/RoundState.h"

#include <string>

namespace quillora {

class AnswerBox;
class Round;

// What a screen reader is told about the board, in Spanish. Each text is
// made from what the board paints and nothing else, so a player who listens
// learns exactly what a player who looks does: a letter not yet on the board
// is "oculta" until the board paints it.

// A cell: its letter once painted, "oculta" for an underlined blank, and
// nothing for a space or a cell the phrase does not reach.
std::string spokenCellName(const PhraseBoard::Cell& cell);
// Where the cell is ("fila 2, columna 5", counted from 1), and whether the
// letter was left unguessed at the death.
std::string spokenCellDescription(const PhraseBoard& board, int cell);

// A key of the on-screen keyboard by its caption ("Cancelar" while the answer
// box is open).
std::string spokenKeyName(const AnswerBox& answer, int key);
// A letter or digit key: "sin probar", or tried and whether the board shows
// it in the phrase; the other keys say what they do.
std::string spokenKeyDescription(const Round& round, int key);

// "Letras reveladas: 5 de 14".
std::string spokenCounter(const PhraseBoard& board);
// "Strikes: 3 de 8", counting the marks the strip shows, or the strikes the
// figure shows where more: a right answer given early empties the marks but
// leaves the figure as it stood.
std::string spokenStrikes(const RoundState& state, const Figure& figure);
// A strike mark: its wrong letter, "vacío", or the mark of a wrong answer.
std::string spokenStrikeMark(const RoundState& state, int slot);
// "Ahorcado: paso 3 de 8", by the parts drawn.
std::string spokenFigure(const Figure& figure);
// The status without the dots of its animation, which would otherwise be
// announced twice a second.
std::string spokenStatus(const std::string& status);
// The automatic-phrase marker, whose caption is a single letter.
std::string spokenAutoMarker(const std::string& caption);

} // namespace quillora
