// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace quillora {

class Random;

// The board's tips about how to play: eleven sentences, of which the draw
// gives the last ten; the first stays in the table and is never drawn.
inline constexpr int kTipCount = 11;

// The tip's text; a number outside the table answers an empty text.
std::string_view tipText(int number);

// The number one fraction of the generator gives, worked out in single
// precision as the tips always were: 0..10.
int tipNumberOf(double fraction);

// drawTipNumber: a fresh seed for each try, and tries again while it gives 0, so
// each of the tips 1..10 comes as often as the others.
int drawTipNumber(Random& random);

} // namespace quillora
