// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace quillora {

// A 24-bit colour. On disk and in arithmetic it is the packed number
// blue*65536 + green*256 + red, red in the low byte.
struct Rgb {
    int red = 0;
    int green = 0;
    int blue = 0;

    constexpr std::uint32_t packed() const {
        return static_cast<std::uint32_t>(blue) * 65536U +
               static_cast<std::uint32_t>(green) * 256U + static_cast<std::uint32_t>(red);
    }
    static constexpr Rgb fromPacked(std::uint32_t value) {
        const auto b = static_cast<int>(value / 65536U);
        const auto rest = value % 65536U;
        return Rgb{static_cast<int>(rest % 256U), static_cast<int>(rest / 256U), b % 256};
    }
    constexpr bool operator==(const Rgb&) const = default;
};

inline constexpr Rgb kDefaultBlue{30, 120, 240};
inline constexpr Rgb kRedLamp{224, 67, 67};
inline constexpr Rgb kGreenLamp{0, 160, 0};
inline constexpr Rgb kYellowLamp{250, 210, 20};
inline constexpr Rgb kWhite{255, 255, 255};
inline constexpr Rgb kBlack{0, 0, 0};
inline constexpr Rgb kKeyGrey{224, 224, 224};
inline constexpr Rgb kCloseKeyPink{255, 128, 128};
inline constexpr Rgb kKeyboardPanel{30, 30, 30};
inline constexpr Rgb kNearWhite{250, 250, 250};
inline constexpr Rgb kLightBlueBackground{110, 160, 250};
inline constexpr Rgb kInkBlue{30, 50, 200};
inline constexpr Rgb kPictureButtonBack{180, 180, 180};
inline constexpr Rgb kAutoMarkerText{110, 110, 110};

// The colours chosen once at start: the player's game colour and its copy of
// the default, plus the three lamps.
struct Palette {
    Rgb gameColour = kDefaultBlue;
    Rgb defaultBlue = kDefaultBlue;
    Rgb redLamp = kRedLamp;
    Rgb greenLamp = kGreenLamp;
    Rgb yellowLamp = kYellowLamp;
};

// The derived shade used for lines and counters: each component above 30 is
// lowered by 30, each of 30 or less raised by 30.
Rgb shadeOf(Rgb gameColour);

} // namespace quillora
