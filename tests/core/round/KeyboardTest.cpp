// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "round/Keyboard.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace quillora {
namespace {

TEST(KeyboardTest, TheAnswerBoxLetsInTheAlphabetBackspaceAndASpaceAfterText) {
    // The key typed, whether the box holds text, and what gets through.
    const std::vector<std::tuple<int, bool, int>> keys{
        {' ', false, 0},  {' ', true, ' '},  {8, false, 8},       {'a', false, 'a'},
        {'Z', true, 'Z'}, {'0', false, '0'}, {0xF1, false, 0xF1}, {0xD1, true, 0xD1},
        {0xE1, true, 0},  {0xC1, true, 0},   {0xFC, true, 0},     {'@', true, 0},
        {'!', true, 0},   {'\t', true, 0},   {13, true, 0},       {0, true, 0},
        {-65, true, 0}};
    for (const auto& [code, boxHasText, expected] : keys) {
        EXPECT_EQ(filterAnswerKey(code, boxHasText), expected) << code << " " << boxHasText;
    }
}

TEST(KeyboardTest, ComputerKeysGuessInCapitalsToggleOrAreSwallowed) {
    const std::vector<std::pair<char32_t, char32_t>> guesses{
        {U'a', U'A'}, {U'z', U'Z'},           {U'Q', U'Q'}, {U'\u00F1', U'\u00D1'},
        {U'0', U'0'}, {U'\u00D1', U'\u00D1'}, {U'9', U'9'}};
    for (const auto& [typed, letter] : guesses) {
        EXPECT_EQ(mapComputerKey(typed).action, KeyAction::Guess) << static_cast<unsigned>(typed);
        EXPECT_EQ(mapComputerKey(typed).letter, letter) << static_cast<unsigned>(typed);
    }
    EXPECT_EQ(mapComputerKey(U'!').action, KeyAction::ToggleAnswer);
    EXPECT_EQ(mapComputerKey(U'#').action, KeyAction::ToggleDigits);
    for (const char32_t typed : {U'\u00E1', U'\u00DC', U' ', U'@'}) {
        EXPECT_EQ(mapComputerKey(typed).action, KeyAction::None) << static_cast<unsigned>(typed);
    }
}

TEST(KeyboardTest, EveryCharacterTheGameGuessesHasOneKeyInTheAlphabetsOrder) {
    for (int key = 1; key <= 37; ++key) {
        EXPECT_EQ(keyIndexOf(keyLetter(key)), key) << "key " << key;
    }
    // Capitals and digits are guessed on screen; small letters only through
    // the computer's keys, which turn them to capitals first.
    for (const char32_t ch : kAlphabet) {
        EXPECT_EQ(keyIndexOf(ch) > 0, gameUpper(ch) == ch) << static_cast<unsigned>(ch);
    }
    // The letters read A to Z with Ñ after N, the digits 1 to 0, as the
    // alphabet lists them.
    const auto place = [](int key) { return kAlphabet.find(keyLetter(key)); };
    for (int key = 1; key < 37; ++key) {
        if (key != 27) {
            EXPECT_LT(place(key), place(key + 1)) << "key " << key;
        }
    }
    EXPECT_EQ(keyIndexOf(U' '), -1);
    for (int key : {kCloseDigitsKey, kDigitPanelKey, kWriteKey}) {
        EXPECT_EQ(keyLetter(key), 0);
    }
}

} // namespace
} // namespace quillora
