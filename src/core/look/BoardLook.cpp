// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "look/BoardLook.h"

#include <array>

namespace quillora {

namespace {

constexpr std::array<Rgb, 5> kColoridoCells{Rgb{255, 0, 0}, Rgb{255, 128, 0}, Rgb{255, 255, 0},
                                            Rgb{0, 255, 0}, Rgb{0, 0, 255}};

constexpr Rgb minus(Rgb a, Rgb b) {
    return Rgb{a.red - b.red, a.green - b.green, a.blue - b.blue};
}

bool isVowelKey(int key) {
    return key == 1 || key == 5 || key == 9 || key == 16 || key == 22;
}

} // namespace

CellLook styledCell(const LetterStyle& s, int cell) {
    const Rgb line = s.whiteLines ? kWhite : kBlack;
    switch (s.style) {
    case 1:
        return CellLook{kWhite, false, kBlack, line};
    case 2:
        return CellLook{kColoridoCells[static_cast<std::size_t>((cell - 1) % 5)], true, kBlack,
                        line};
    case 3:
        return CellLook{kBlack, true, kWhite, line};
    case 4:
        return CellLook{kWhite, false, kInkBlue, kInkBlue};
    default:
        return CellLook{kWhite, s.opaqueLetters, s.whiteLetters ? kWhite : kBlack, line};
    }
}

CellLook phraseLabelLook(const LetterStyle& s, const CellLook& before) {
    return s.style == 2 ? before : styledCell(s, 1);
}

Rgb missColour(const LetterStyle& s, const Palette& palette) {
    return s.style == 2 ? kNearWhite : palette.redLamp;
}

Rgb windowBackground(const LetterStyle& s) {
    if (s.whiteLines || (s.whiteLetters && s.style != 3)) {
        return kLightBlueBackground;
    }
    return kNearWhite;
}

LampColours lampColours(Lamp lamp, const Palette& palette) {
    switch (lamp) {
    case Lamp::Yellow:
        return {palette.yellowLamp, minus(palette.yellowLamp, Rgb{30, 30, 20})};
    case Lamp::Green:
        return {palette.greenLamp, minus(palette.greenLamp, Rgb{0, 30, 0})};
    case Lamp::Red:
        return {palette.redLamp, minus(palette.redLamp, Rgb{30, 30, 30})};
    case Lamp::None:
        break;
    }
    return {palette.gameColour, shadeOf(palette.gameColour)};
}

Rgb keyRestColour(int key) {
    if (key == 0) {
        return kCloseKeyPink;
    }
    if (isVowelKey(key) || key >= 28) {
        return kKeyGrey;
    }
    return kWhite;
}

KeyLook keyLook(int key, bool hovered, bool pressed, const Palette& palette) {
    if (pressed) {
        return {palette.greenLamp, minus(palette.greenLamp, Rgb{0, 30, 0})};
    }
    if (hovered) {
        const bool warm = isVowelKey(key) || key == 0;
        return {warm ? palette.redLamp : palette.gameColour, kNearWhite};
    }
    return {keyRestColour(key), kBlack};
}

} // namespace quillora
