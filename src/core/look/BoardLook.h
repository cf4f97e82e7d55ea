// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Colour.h"

namespace quillora {

enum class Lamp { None, Yellow, Green, Red };

// How one letter cell of the board is painted.
struct CellLook {
    Rgb background;
    bool filled = false;
    Rgb letter;
    Rgb underline;
    bool operator==(const CellLook&) const = default;
};

// The letter style (0 "Libre" .. 4 "Tinta Azul") and the three flags that
// only some styles heed: together they decide how the cells are painted.
struct LetterStyle {
    int style = 1;
    bool opaqueLetters = false;
    bool whiteLetters = false;
    bool whiteLines = false;
};

// The letter style and flags applied to cell 1..42 of the board.
CellLook styledCell(const LetterStyle& letters, int cell);

// The label that holds the whole hidden phrase takes the cells' look,
// except in "Colorido", whose colours belong to single cells: there it keeps
// the look it had.
CellLook phraseLabelLook(const LetterStyle& letters, const CellLook& before);

// Colour of the letters left unguessed at the death.
Rgb missColour(const LetterStyle& letters, const Palette& palette);

// Background of the board window behind the panels.
Rgb windowBackground(const LetterStyle& letters);

// Panels flash in a lamp's colour; its lines and the strike counter take the
// darker form. With no lamp lit they are the game colour and its shade.
struct LampColours {
    Rgb light;
    Rgb dark;
};
LampColours lampColours(Lamp lamp, const Palette& palette);

// The on-screen keyboard: keys 1..27 letters, 28..37 digits, 38 "123",
// 39 "Escribir", 0 the "x" that closes the digit panel.
struct KeyLook {
    Rgb face;
    Rgb caption;
    bool operator==(const KeyLook&) const = default;
};
Rgb keyRestColour(int key);
KeyLook keyLook(int key, bool hovered, bool pressed, const Palette& palette);

} // namespace quillora
