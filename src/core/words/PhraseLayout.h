// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace quillora {

// The board shows a phrase on three rows of fourteen cells.
inline constexpr int kPhraseColumns = 14;
inline constexpr int kPhraseCells = 42;

// Words separated by single blanks, padded so that no word of up to
// fourteen letters is split between two rows; a longer word starts a row
// and runs on, as the catalogue's own long words do. Empty when the padded
// phrase would pass the 42 cells.
std::u32string layOutPhrase(std::u32string_view words);

} // namespace quillora
