// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "round/Keyboard.h"

#include <gtest/gtest.h>

namespace quillora {
namespace {

struct FilterCase {
    int code;
    bool boxHasText;
    int expected;
};

class AnswerBoxFilterTest : public ::testing::TestWithParam<FilterCase> {};

TEST_P(AnswerBoxFilterTest, LetsInTheAlphabetBackspaceAndASpaceAfterText) {
    const FilterCase& c = GetParam();
    EXPECT_EQ(Verificar_Tecla(c.code, c.boxHasText), c.expected);
}

INSTANTIATE_TEST_SUITE_P(Keys, AnswerBoxFilterTest,
                         ::testing::Values(FilterCase{' ', false, 0}, FilterCase{' ', true, ' '},
                                           FilterCase{8, false, 8}, FilterCase{8, true, 8},
                                           FilterCase{'a', false, 'a'}, FilterCase{'Z', true, 'Z'},
                                           FilterCase{'0', false, '0'},
                                           FilterCase{0xF1, false, 0xF1},
                                           FilterCase{0xD1, true, 0xD1}, FilterCase{0xE1, true, 0},
                                           FilterCase{0xC1, true, 0}, FilterCase{0xFC, true, 0},
                                           FilterCase{'@', true, 0}, FilterCase{'!', true, 0},
                                           FilterCase{'\t', true, 0}, FilterCase{13, true, 0},
                                           FilterCase{0, true, 0}, FilterCase{-65, true, 0}));

struct ComputerKeyCase {
    char32_t typed;
    KeyAction action;
    char32_t letter;
};

class ComputerKeyTest : public ::testing::TestWithParam<ComputerKeyCase> {};

TEST_P(ComputerKeyTest, GuessesInCapitalsTogglesOrSwallows) {
    const ComputerKey key = mapComputerKey(GetParam().typed);
    EXPECT_EQ(key.action, GetParam().action);
    EXPECT_EQ(key.letter, GetParam().letter);
}

INSTANTIATE_TEST_SUITE_P(Keys, ComputerKeyTest,
                         ::testing::Values(ComputerKeyCase{U'a', KeyAction::Guess, U'A'},
                                           ComputerKeyCase{U'z', KeyAction::Guess, U'Z'},
                                           ComputerKeyCase{U'Q', KeyAction::Guess, U'Q'},
                                           ComputerKeyCase{U'\u00F1', KeyAction::Guess, U'\u00D1'},
                                           ComputerKeyCase{U'\u00D1', KeyAction::Guess, U'\u00D1'},
                                           ComputerKeyCase{U'0', KeyAction::Guess, U'0'},
                                           ComputerKeyCase{U'9', KeyAction::Guess, U'9'},
                                           ComputerKeyCase{U'!', KeyAction::ToggleAnswer, 0},
                                           ComputerKeyCase{U'#', KeyAction::ToggleDigits, 0},
                                           ComputerKeyCase{U'\u00E1', KeyAction::None, 0},
                                           ComputerKeyCase{U'\u00DC', KeyAction::None, 0},
                                           ComputerKeyCase{U' ', KeyAction::None, 0},
                                           ComputerKeyCase{U'@', KeyAction::None, 0}));

TEST(KeyboardTest, EveryGuessingKeyMapsBackToItsOwnLetter) {
    for (int key = 1; key <= 37; ++key) {
        const char32_t letter = keyLetter(key);
        EXPECT_EQ(keyIndexOf(letter), key) << "key " << key;
    }
    EXPECT_EQ(keyIndexOf(U'\u00D1'), 15);
    EXPECT_EQ(keyIndexOf(U'O'), 16);
    EXPECT_EQ(keyIndexOf(U'1'), 28);
    EXPECT_EQ(keyIndexOf(U'0'), 37);
    EXPECT_EQ(keyIndexOf(U'a'), -1);
    EXPECT_EQ(keyIndexOf(U' '), -1);
    for (int key : {kCloseDigitsKey, kDigitPanelKey, kWriteKey}) {
        EXPECT_EQ(keyLetter(key), 0);
    }
}

} // namespace
} // namespace quillora
