// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

class QMenu;
class QWidget;

namespace quillora {

class BoardModel;

// The board's popup menu, built afresh for the state of the board: every
// entry calls its routine, then `changed`; "Editar jugadores", "Cambiar
// diseño" and "Salir" are the board's own to carry out.
QMenu* buildBoardPopup(BoardModel& model, QWidget* board, const std::function<void()>& changed,
                       const std::function<void()>& names, const std::function<void()>& design,
                       const std::function<void()>& quit);

} // namespace quillora
