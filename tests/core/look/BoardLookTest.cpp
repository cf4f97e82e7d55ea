// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "look/BoardLook.h"
#include "look/Picture.h"
#include "round/Keyboard.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>
#include <utility>

namespace quillora {
namespace {

constexpr Rgb kRed{255, 0, 0};
constexpr Rgb kOrange{255, 128, 0};
constexpr Rgb kBlue{0, 0, 255};

LetterStyle style(int number, bool opaque, bool whiteLetters, bool whiteLines) {
    return {number, opaque, whiteLetters, whiteLines};
}

TEST(BoardLookTest, ShadesDropComponentsAboveThirtyAndRaiseTheOthers) {
    EXPECT_EQ(shadeOf(kDefaultBlue), (Rgb{60, 90, 210}));
    EXPECT_EQ(shadeOf({30, 31, 0}), (Rgb{60, 1, 30}));
    EXPECT_EQ(shadeOf({31, 30, 255}), (Rgb{1, 60, 225}));
    EXPECT_EQ(shadeOf({255, 255, 255}), (Rgb{225, 225, 225}));
}

TEST(BoardLookTest, CellLooksFollowStyleAndFlags) {
    using Look = std::tuple<Rgb, bool, Rgb, Rgb>; // background, filled, letter, underline
    const std::vector<std::tuple<LetterStyle, int, Look>> cases{
        {style(0, false, false, false), 1, {kWhite, false, kBlack, kBlack}},
        {style(0, true, true, true), 1, {kWhite, true, kWhite, kWhite}},
        {style(1, true, true, false), 1, {kWhite, false, kBlack, kBlack}},
        {style(2, false, false, false), 1, {kRed, true, kBlack, kBlack}},
        {style(2, true, true, false), 5, {kBlue, true, kBlack, kBlack}},
        {style(2, false, false, true), 6, {kRed, true, kBlack, kWhite}},
        {style(2, false, false, false), 15, {kBlue, true, kBlack, kBlack}},
        {style(2, false, false, false), 16, {kRed, true, kBlack, kBlack}},
        {style(2, false, false, false), 42, {kOrange, true, kBlack, kBlack}},
        {style(3, true, false, true), 1, {kBlack, true, kWhite, kWhite}},
        {style(4, true, true, true), 1, {kWhite, false, kInkBlue, kInkBlue}},
        {style(4, false, false, false), 2, {kWhite, false, kInkBlue, kInkBlue}}};
    for (const auto& [settings, cell, expected] : cases) {
        const CellLook look = styledCell(settings, cell);
        EXPECT_EQ(Look(look.background, look.filled, look.letter, look.underline), expected)
            << "style " << settings.style << ", cell " << cell;
    }
}

TEST(BoardLookTest, ThePhraseLabelFollowsTheCellsButKeepsItsLookInColorido) {
    const CellLook sombra = phraseLabelLook(style(3, true, false, false), CellLook{});
    EXPECT_EQ(sombra.background, kBlack);
    EXPECT_EQ(sombra.letter, kWhite);
    EXPECT_TRUE(sombra.filled);
    const CellLook colorido = phraseLabelLook(style(2, true, false, false), sombra);
    EXPECT_EQ(colorido.background, kBlack) << "Colorido leaves the label as it was";
    const CellLook libre = phraseLabelLook(style(0, true, true, false), colorido);
    EXPECT_EQ(libre.background, kWhite);
    EXPECT_EQ(libre.letter, kWhite);
    EXPECT_TRUE(libre.filled);
}

TEST(BoardLookTest, PicturesAreKnownByTheEndOfTheirName) {
    for (const char* name : {"a.jpg", "/x/Playa.JPG", "b.jpeg", "c.gif", "d.bmp", "e.png"}) {
        EXPECT_TRUE(isPictureName(name)) << name;
    }
    for (const char* name :
         {"", ".jpg", "/x/.png", "notas.txt", "jpg", "foto.jpg.txt", "a.pngx", "b.tiff"}) {
        EXPECT_FALSE(isPictureName(name)) << name;
    }
}

TEST(BoardLookTest, LightBlueBehindWhiteLinesOrWhiteLettersOutsideStyleThree) {
    EXPECT_EQ(windowBackground(style(1, true, false, false)), kNearWhite);
    EXPECT_EQ(windowBackground(style(3, true, false, true)), kLightBlueBackground);
    EXPECT_EQ(windowBackground(style(3, true, true, false)), kNearWhite);
    EXPECT_EQ(windowBackground(style(0, true, true, false)), kLightBlueBackground);
    EXPECT_EQ(windowBackground(style(4, true, true, false)), kLightBlueBackground);
    EXPECT_EQ(windowBackground(style(2, true, false, true)), kLightBlueBackground);
}

TEST(BoardLookTest, LampsMissesAndKeysTakeTheirColours) {
    const Palette palette;
    // Each lamp flashes its own colour, and its lines take a darker form of it.
    for (const auto& [lamp, own] :
         {std::pair{Lamp::Yellow, palette.yellowLamp}, std::pair{Lamp::Green, palette.greenLamp},
          std::pair{Lamp::Red, palette.redLamp}}) {
        const LampColours colours = lampColours(lamp, palette);
        EXPECT_EQ(colours.light, own) << static_cast<int>(lamp);
        const Rgb& light = colours.light;
        const Rgb& dark = colours.dark;
        EXPECT_TRUE(dark.red <= light.red && dark.green <= light.green && dark.blue <= light.blue &&
                    dark != light)
            << static_cast<int>(lamp);
        EXPECT_GE(std::min({dark.red, dark.green, dark.blue}), 0) << static_cast<int>(lamp);
    }
    EXPECT_EQ(missColour(style(2, false, false, false), palette), kNearWhite);
    EXPECT_EQ(missColour(style(3, false, false, false), palette), kRedLamp);

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
