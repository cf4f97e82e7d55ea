// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Colour.h"

#include <array>
#include <string>
#include <string_view>

namespace quillora {

class ColourCodeField;

// The colour editor beside the colour code of VISUAL: red, green and blue,
// the code they make, and two ways to hand a colour to the game: "=" and the
// default blue. The editor's colour stays its own until it is handed over,
// and then goes through the colour code field, so the field, the window and
// what a save stores all agree with it.
class ColourEditorModel {
public:
    static constexpr int kComponentMax = 255;
    enum class Channel { Red, Green, Blue };

    explicit ColourEditorModel(ColourCodeField& colourCode);

    bool isOpen() const { return m_open; }
    void open() { m_open = true; }
    void toggle() { m_open = !m_open; }
    // The button that opens the editor closes it too.
    std::string_view buttonCaption() const;
    std::string_view buttonTooltip() const;

    int component(Channel channel) const;
    void setComponent(Channel channel, int value);
    const std::string& codeText() const { return m_code; }
    Rgb colour() const;
    // "=": the editor's colour becomes the game colour through the field.
    void applyCode();
    // " Usar el azul predeterminado."
    void useDefaultBlue();
    // Splits the game colour into the editor's three boxes.
    void splitGameColour();

    // The editor's labels wear the game colour; the blue mark is the default blue.
    Rgb gameColour() const;
    Rgb defaultBlue() const;

private:
    ColourCodeField& m_colourCode;
    bool m_open = false;
    std::array<int, 3> m_components{kDefaultBlue.red, kDefaultBlue.green, kDefaultBlue.blue};
    std::string m_code;
};

} // namespace quillora
