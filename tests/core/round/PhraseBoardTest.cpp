// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "round/PhraseBoard.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace quillora {
namespace {

PhraseBoard laid(std::u32string_view phrase) {
    PhraseBoard board;
    EXPECT_TRUE(board.lay(phrase, PhraseBoard::countLetters(phrase)));
    return board;
}

TEST(PhraseBoardTest, RunsOfBlanksShrinkToOneAndOnlyNonBlanksCount) {
    const std::vector<std::tuple<std::u32string, std::u32string, int>> phrases{
        {U"CASA", U"CASA", 4},
        {U"CODIGO        GENETICO", U"CODIGO GENETICO", 14},
        {U"  A  B  ", U" A B ", 2},
        {U"", U"", 0},
        {U"NI\u00D1O 2", U"NI\u00D1O 2", 5}};
    for (const auto& [phrase, answer, letters] : phrases) {
        EXPECT_EQ(PhraseBoard::answerTextOf(phrase), answer);
        EXPECT_EQ(PhraseBoard::countLetters(phrase), letters);
    }
}

TEST(PhraseBoardTest, GuessRevealsEveryCellOfTheLetterAndRecordsMisses) {
    PhraseBoard board = laid(U"CASA");
    EXPECT_EQ(board.counterText(), "0/4");
    EXPECT_TRUE(board.reveal(U'A'));
    EXPECT_EQ(board.counterText(), "2/4");
    EXPECT_TRUE(board.cell(2).revealed && board.cell(4).revealed);
    EXPECT_FALSE(board.cell(1).revealed || board.cell(3).revealed);
    EXPECT_TRUE(board.cell(1).underline);
    // Comparison is exact: a lower-case guess matches nothing.
    EXPECT_FALSE(board.reveal(U'c'));

    EXPECT_FALSE(board.reveal(U'Z'));
    EXPECT_EQ(board.counterText(), "2/4");
    EXPECT_EQ(board.triedLetters(), U"AcZ");
    EXPECT_TRUE(board.alreadyTried(U'Z'));
    EXPECT_FALSE(board.keyVisible(1) || board.keyVisible(27));
    EXPECT_TRUE(board.keyVisible(26));
}

TEST(PhraseBoardTest, BlanksBetweenWordsHaveNoUnderlineAndAreNeverRevealed) {
    PhraseBoard board = laid(U"CODIGO        GENETICO");
    EXPECT_FALSE(board.cell(7).underline);
    EXPECT_FALSE(board.cell(14).underline);
    EXPECT_EQ(board.cell(15).character, U'G'); // first cell of row 2
    EXPECT_FALSE(board.cell(23).underline);    // past the phrase

    EXPECT_FALSE(board.reveal(U' '));
    EXPECT_FALSE(board.cell(7).revealed);
    board.revealAll();
    EXPECT_EQ(board.counterText(), "14/14");
    EXPECT_TRUE(board.complete());
    EXPECT_TRUE(board.cell(22).revealed);
    EXPECT_FALSE(board.cell(7).revealed);
}

TEST(PhraseBoardTest, FullBoardThenClearLeavesNothingPastAShorterPhrase) {
    PhraseBoard board = laid(std::u32string(42, U'X'));
    board.reveal(U'X');
    EXPECT_EQ(board.counterText(), "42/42");
    EXPECT_FALSE(board.lay(std::u32string(43, U'Y'), 43));
    EXPECT_EQ(board.cell(1).character, U'X');

    board.clear();
    EXPECT_TRUE(board.triedLetters().empty());
    board.lay(U"CASA", 4);
    board.RestoreKeyboard();
    EXPECT_TRUE(board.keyVisible(keyIndexOf(U'X')));
    EXPECT_FALSE(board.cell(5).underline || board.cell(5).revealed || board.cell(42).underline);
    board.reveal(U'A');
    board.showMissed();
    EXPECT_TRUE(board.cell(1).missed && board.cell(3).missed);
    EXPECT_FALSE(board.cell(2).missed || board.cell(5).missed);
}

} // namespace
} // namespace quillora
