// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "words/PhraseLayout.h"

#include "round/Keyboard.h"

#include <array>
#include <string>

namespace quillora {

// The 42 letter cells (three rows of fourteen) and what has been guessed of
// the phrase laid on them.
class PhraseBoard {
public:
    static constexpr int kCells = kPhraseCells;
    static constexpr int kColumns = kPhraseColumns;

    struct Cell {
        char32_t character = U' ';
        bool underline = false; // shown for a letter cell of the laid phrase
        bool revealed = false;
        bool missed = false; // left unguessed at the death
        bool isLetter() const { return character != U' '; }
        bool operator==(const Cell&) const = default;
    };

    // Non-space characters of a phrase: each occurrence counts.
    static int countLetters(std::u32string_view phrase);
    // The phrase with every run of blanks reduced to one blank.
    static std::u32string answerTextOf(std::u32string_view phrase);

    // Lays a phrase of at most 42 characters; a longer one is refused (false)
    // and the board is left as it was.
    bool lay(std::u32string_view phrase, int letterTotal);
    // All cells and underlines hidden, nothing tried: the board between games.
    void clear();

    bool alreadyTried(char32_t letter) const;
    // Reveals every cell holding the letter, records it as tried and brings
    // the keyboard in step. True when at least one cell was revealed.
    bool reveal(char32_t letter);
    void revealAll();
    void showMissed();
    // Forgets the last tried letter, so its key comes back.
    void dropLastTried();
    // Every key 1..37 shown, then the keys of the tried letters hidden.
    void RestoreKeyboard();

    const Cell& cell(int index) const { return m_cells[static_cast<std::size_t>(index - 1)]; }
    const std::u32string& phrase() const { return m_phrase; }
    const std::u32string& answerText() const { return m_answer; }
    const std::u32string& triedLetters() const { return m_tried; }
    int letterTotal() const { return m_letterTotal; }
    int revealedCount() const { return m_revealedCount; }
    bool complete() const { return m_revealedCount == m_letterTotal; }
    std::string counterText() const;
    bool keyVisible(int key) const { return m_keyVisible[static_cast<std::size_t>(key)]; }

private:
    std::array<Cell, kCells> m_cells{};
    std::u32string m_phrase;
    std::u32string m_answer;
    std::u32string m_tried;
    int m_letterTotal = 0;
    int m_revealedCount = 0;
    std::array<bool, kKeyCount> m_keyVisible = allKeysShown();

    static constexpr std::array<bool, kKeyCount> allKeysShown() {
        std::array<bool, kKeyCount> keys{};
        keys.fill(true);
        return keys;
    }
};

} // namespace quillora
