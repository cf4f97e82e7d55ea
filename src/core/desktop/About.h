// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quillora {

class Dialogs;

// The about box's words: the maker, the game and its version, then the
// licence and the free fonts and libraries the game carries with theirs.
std::string aboutText();

// showAbout: the menu's legend and the board's "Acerca".
void showAbout(Dialogs& dialogs);

} // namespace quillora
