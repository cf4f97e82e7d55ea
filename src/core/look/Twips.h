// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillora {

// The board is laid out in twips of the reference layout: 15 twips make one
// pixel at 100 % scale, and Qt's own scaling takes care of denser screens.
inline constexpr int kTwipsPerPixel = 15;
inline constexpr int px(int twips) {
    return twips >= 0 ? (twips + kTwipsPerPixel / 2) / kTwipsPerPixel
                      : -((-twips + kTwipsPerPixel / 2) / kTwipsPerPixel);
}
// The board window before its keyboard slides out: the design window's
// preview shows the picture at this size too.
inline constexpr int kBoardWidthTwips = 11745;
inline constexpr int kBoardBaseHeightTwips = 5340;
// Font sizes are given in points: 20 twips to the point.
inline constexpr int pointsToPixels(double points) {
    return static_cast<int>(points * 20.0 / kTwipsPerPixel + 0.5);
}

} // namespace quillora
