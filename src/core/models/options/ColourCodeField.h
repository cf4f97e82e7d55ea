// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Colour.h"

#include <string>

namespace quillora {

// The colour code field of VISUAL: the game colour as one number. The game
// colour follows the field as it is typed, so the whole window repaints while
// the player types, and the field keeps no code past 255 × 255 × 255.
class ColourCodeField {
public:
    // The largest colour code the field keeps: 255 × 255 × 255.
    static constexpr int kMaxColourCode = 16581375;

    explicit ColourCodeField(Palette& palette) : m_palette(palette) {}

    const std::string& text() const { return m_text; }
    // shadeOf: the game colour follows the field as it is typed.
    void setText(const std::string& text);
    Rgb gameColour() const { return m_palette.gameColour; }
    Rgb defaultBlue() const { return m_palette.defaultBlue; }

private:
    Palette& m_palette;
    std::string m_text;
};

} // namespace quillora
