// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace quillora {

// Texts travel through the game as UTF-8; the board works on characters, and
// "Ñ" takes two bytes, so anything that counts or indexes cells goes through
// these code-point views.
std::u32string toU32(std::string_view utf8);
std::string toUtf8(std::u32string_view text);
std::string toUtf8(char32_t ch);

// Number of characters (code points) in a UTF-8 text.
std::size_t charCount(std::string_view utf8);

// The text in small letters: the capitals of the game's code page, "Ñ" and
// the accented ones too; anything else stays.
std::string lowerCase(std::string_view utf8);

// A number as the game shows and stores it: whole numbers without a
// fraction ("450", "-600"), others with the digits they need.
std::string formatNumber(double value);

} // namespace quillora
