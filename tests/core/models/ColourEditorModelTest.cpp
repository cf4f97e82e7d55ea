// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/options/ColourEditorModel.h"

#include "models/options/ColourCodeField.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace quillora {
namespace {

using Channel = ColourEditorModel::Channel;

// The colour code field and the editor that hands its colour over through it.
class ColourEditorModelTest : public ::testing::Test {
protected:
    Palette palette;
    ColourCodeField colourCode{palette};
    ColourEditorModel editor{colourCode};
};

TEST_F(ColourEditorModelTest, TheCodeFieldRepaintsAtOnceWithinItsLimits) {
    // Typed, shown, the colour it paints.
    const std::vector<std::tuple<std::string, std::string, Rgb>> cases{
        {"-5", "0", Rgb{0, 0, 0}},
        {"15759390", "15759390", Rgb{30, 120, 240}},
        {"255", "255", Rgb{255, 0, 0}},
        // Cut to 255 × 255 × 255, not to white.
        {"16777215", "16581375", Rgb{255, 2, 253}},
        {"16581376", "16581375", Rgb{255, 2, 253}},
        {"99999999999999999999", "16581375", Rgb{255, 2, 253}},
        {"12-3", "123", Rgb{123, 0, 0}},
        {"", "", Rgb{0, 0, 0}}};
    for (const auto& [typed, shown, colour] : cases) {
        SCOPED_TRACE(typed);
        colourCode.setText(typed);
        EXPECT_EQ(colourCode.text(), shown);
        EXPECT_EQ(palette.gameColour, colour);
    }
}

TEST_F(ColourEditorModelTest, TheEditorMakesCodesAndHandsThemOver) {
    colourCode.setText("255");
    EXPECT_EQ(editor.codeText(), "15759390");
    EXPECT_EQ(editor.buttonCaption(), "...");
    EXPECT_EQ(editor.buttonTooltip(), " Abrir colores. ");
    editor.toggle();
    EXPECT_EQ(editor.buttonCaption(), "x");
    EXPECT_EQ(editor.buttonTooltip(), " Cerrar colores. ");

    editor.splitGameColour();
    EXPECT_EQ(editor.component(Channel::Red), 255);
    EXPECT_EQ(editor.component(Channel::Green), 0);
    EXPECT_EQ(editor.component(Channel::Blue), 0);

    editor.setComponent(Channel::Green, 300);
    editor.setComponent(Channel::Blue, 1);
    EXPECT_EQ(editor.component(Channel::Green), 255);
    EXPECT_EQ(editor.codeText(), std::to_string(255 + 255 * 256 + 65536));
    EXPECT_EQ(palette.gameColour, (Rgb{255, 0, 0})) << "not before \"=\"";
    editor.applyCode();
    EXPECT_EQ(colourCode.text(), editor.codeText());
    EXPECT_EQ(palette.gameColour, (Rgb{255, 255, 1}));

    editor.setComponent(Channel::Red, -4);
    EXPECT_EQ(editor.component(Channel::Red), 0);

    editor.useDefaultBlue();
    EXPECT_EQ(palette.gameColour, kDefaultBlue);
    EXPECT_EQ(colourCode.text(), "15759390");
    EXPECT_EQ(editor.component(Channel::Red), 30);
    EXPECT_EQ(editor.component(Channel::Green), 120);
    EXPECT_EQ(editor.component(Channel::Blue), 240);
    EXPECT_EQ(editor.codeText(), "15759390");

    editor.toggle();
    EXPECT_FALSE(editor.isOpen());
}

} // namespace
} // namespace quillora
