// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "look/Colour.h"

namespace quillora {

namespace {
int shadeComponent(int c) {
    return c > 30 ? c - 30 : c + 30;
}
} // namespace

Rgb shadeOf(Rgb gameColour) {
    // Split from the packed value, as the colour is stored, so a colour read
    // from a file behaves exactly like one picked on screen.
    const Rgb split = Rgb::fromPacked(gameColour.packed());
    return Rgb{shadeComponent(split.red), shadeComponent(split.green), shadeComponent(split.blue)};
}

} // namespace quillora
