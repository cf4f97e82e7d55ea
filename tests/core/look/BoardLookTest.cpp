// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "look/BoardLook.h"
#include "round/Keyboard.h"
#include "state/Settings.h"

#include <gtest/gtest.h>

namespace quillora {
namespace {

constexpr Rgb kRed{255, 0, 0};
constexpr Rgb kOrange{255, 128, 0};
constexpr Rgb kBlue{0, 0, 255};

struct ShadeCase {
    Rgb colour;
    Rgb shade;
};

class ShadeTest : public ::testing::TestWithParam<ShadeCase> {};

TEST_P(ShadeTest, ComponentsAboveThirtyDropAndTheOthersRise) {
    EXPECT_EQ(eColor(GetParam().colour), GetParam().shade);
}

INSTANTIATE_TEST_SUITE_P(Colours, ShadeTest,
                         ::testing::Values(ShadeCase{kDefaultBlue, {60, 90, 210}},
                                           ShadeCase{{30, 31, 0}, {60, 1, 30}},
                                           ShadeCase{{31, 30, 255}, {1, 60, 225}},
                                           ShadeCase{{255, 255, 255}, {225, 225, 225}}));

struct StyleCase {
    int estilo;
    bool opaca, blanca, linea;
    int cell;
    CellLook look;
};

class LetterStyleTest : public ::testing::TestWithParam<StyleCase> {};

TEST_P(LetterStyleTest, CellLooksFollowStyleAndFlags) {
    const StyleCase& c = GetParam();
    Settings s;
    s.estilo = c.estilo;
    s.letraOpaca = c.opaca;
    s.letraBlanca = c.blanca;
    s.lineaBlanca = c.linea;
    const CellLook look = ApplyLetterStyle(s, c.cell);
    EXPECT_EQ(look.background, c.look.background);
    EXPECT_EQ(look.filled, c.look.filled);
    EXPECT_EQ(look.letter, c.look.letter);
    EXPECT_EQ(look.underline, c.look.underline);
}

INSTANTIATE_TEST_SUITE_P(
    Styles, LetterStyleTest,
    ::testing::Values(StyleCase{0, false, false, false, 1, {kWhite, false, kBlack, kBlack}},
                      StyleCase{0, true, true, true, 1, {kWhite, true, kWhite, kWhite}},
                      StyleCase{1, true, true, false, 1, {kWhite, false, kBlack, kBlack}},
                      StyleCase{2, false, false, false, 1, {kRed, true, kBlack, kBlack}},
                      StyleCase{2, true, true, false, 5, {kBlue, true, kBlack, kBlack}},
                      StyleCase{2, false, false, true, 6, {kRed, true, kBlack, kWhite}},
                      StyleCase{2, false, false, false, 15, {kBlue, true, kBlack, kBlack}},
                      StyleCase{2, false, false, false, 16, {kRed, true, kBlack, kBlack}},
                      StyleCase{2, false, false, false, 42, {kOrange, true, kBlack, kBlack}},
                      StyleCase{3, true, false, true, 1, {kBlack, true, kWhite, kWhite}},
                      StyleCase{4, true, true, true, 1, {kWhite, false, kInkBlue, kInkBlue}},
                      StyleCase{4, false, false, false, 2, {kWhite, false, kInkBlue, kInkBlue}}));

struct BackgroundCase {
    int estilo;
    bool blanca, linea;
    Rgb expected;
};

class WindowBackgroundTest : public ::testing::TestWithParam<BackgroundCase> {};

TEST_P(WindowBackgroundTest, LightBlueBehindWhiteLinesOrWhiteLettersOutsideStyleThree) {
    Settings s;
    s.estilo = GetParam().estilo;
    s.letraBlanca = GetParam().blanca;
    s.lineaBlanca = GetParam().linea;
    s.letraOpaca = true;
    EXPECT_EQ(windowBackground(s), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Flags, WindowBackgroundTest,
                         ::testing::Values(BackgroundCase{1, false, false, kNearWhite},
                                           BackgroundCase{3, false, true, kLightBlueBackground},
                                           BackgroundCase{3, true, false, kNearWhite},
                                           BackgroundCase{0, true, false, kLightBlueBackground},
                                           BackgroundCase{4, true, false, kLightBlueBackground},
                                           BackgroundCase{2, false, true, kLightBlueBackground}));

TEST(BoardLookTest, LampsMissesAndKeysTakeTheirColours) {
    const Palette palette;
    EXPECT_EQ(lampColours(Lamp::Yellow, palette).dark, (Rgb{220, 180, 0}));
    EXPECT_EQ(lampColours(Lamp::Green, palette).dark, (Rgb{0, 130, 0}));

    Settings s;
    s.estilo = 2;
    EXPECT_EQ(missColour(s, palette), kNearWhite);
    s.estilo = 3;
    EXPECT_EQ(missColour(s, palette), kRedLamp);

    for (int key : {1, 5, 9, 16, 22, 28, 37, kDigitPanelKey, kWriteKey}) {
        EXPECT_EQ(keyRestColour(key), kKeyGrey) << key;
    }
    for (int key : {2, 15, 21, 27}) {
        EXPECT_EQ(keyRestColour(key), kWhite) << key;
    }
    EXPECT_EQ(keyRestColour(0), kCloseKeyPink);
    EXPECT_EQ(keyLook(0, true, false, palette).face, kRedLamp);
    EXPECT_EQ(keyLook(30, true, false, palette).face, palette.gameColour);
}

} // namespace
} // namespace quillora
