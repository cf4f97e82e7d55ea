// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace quillora {

// Everything the game accepts as a character: digits, the 26 Latin letters
// and Ñ, in both cases. Accented letters are left out on purpose: no phrase
// carries one.
inline constexpr std::u32string_view kAlphabet =
    U"1234567890ABCDEFGHIJKLMN\u00D1OPQRSTUVWXYZabcdefghijklmn\u00F1opqrstuvwxyz";

inline constexpr char32_t kUpperEnye = U'\u00D1';
inline constexpr char32_t kLowerEnye = U'\u00F1';

// The 40 keys of the on-screen keyboard: 1..14 A..N, 15 Ñ, 16..27 O..Z,
// 28..36 "1".."9", 37 "0", 38 "123", 39 "Escribir", 0 the "x" of the digit
// panel.
inline constexpr int kKeyCount = 40;
inline constexpr int kDigitPanelKey = 38;
inline constexpr int kWriteKey = 39;
inline constexpr int kCloseDigitsKey = 0;

enum class KeyPanel { Letters, Digits };

// Where a key sits, in twips relative to its panel.
struct KeyPlace {
    KeyPanel panel;
    int left;
    int top;
    int width;
    int height;
};

KeyPlace keyPlace(int key);
// The caption of a key ("Escribir" is the resting caption of key 39).
std::u32string_view keyCaption(int key);
// The key that guesses this character, or -1 when it has none.
int keyIndexOf(char32_t letter);
// The character key 1..37 guesses, or 0 for the other keys.
char32_t keyLetter(int key);

// The filter of the answer box: the typed character code comes back when it
// may go in, 0 when it is swallowed. A space is only let in after some text,
// and backspace (8) always.
int filterAnswerKey(int keyCode, bool boxHasText);

// What a key typed on the computer's keyboard does while a game is in play.
enum class KeyAction { None, Guess, ToggleAnswer, ToggleDigits };
struct ComputerKey {
    KeyAction action = KeyAction::None;
    char32_t letter = 0; // the upper-case guess for KeyAction::Guess
};
ComputerKey mapComputerKey(char32_t typed);

// What a dead key makes of the next character, as the keyboard would
// compose it: an acute and "a" make "á", a tilde and "n" make "ñ", an accent
// followed by a blank is the accent itself. 0 where the pair composes to
// nothing. `accent` is the spacing form of the dead key ("´", "`", "^",
// "¨", "~", "°", "¸").
char32_t composeDeadKey(char32_t accent, char32_t base);

// The tooltip of an on-screen key: the keys that are no letter say what they
// do; letters and digits have none.
std::string_view keyTooltip(int key);

// Upper case within the game's alphabet only ("ñ" becomes "Ñ"); anything
// else comes back as it is.
char32_t gameUpper(char32_t ch);

} // namespace quillora
