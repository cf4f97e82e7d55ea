// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "round/PhraseBoard.h"

#include <algorithm>

namespace quillora {

int PhraseBoard::countLetters(std::u32string_view phrase) {
    return static_cast<int>(
        std::count_if(phrase.begin(), phrase.end(), [](char32_t c) { return c != U' '; }));
}

std::u32string PhraseBoard::answerTextOf(std::u32string_view phrase) {
    std::u32string out;
    out.reserve(phrase.size());
    for (char32_t c : phrase) {
        if (c != U' ' || out.empty() || out.back() != U' ') {
            out.push_back(c);
        }
    }
    return out;
}

bool PhraseBoard::lay(std::u32string_view phrase, int letterTotal) {
    if (phrase.size() > static_cast<std::size_t>(kCells)) {
        return false;
    }
    m_phrase = phrase;
    m_answer = answerTextOf(phrase);
    m_letterTotal = letterTotal;
    m_revealedCount = 0;
    for (std::size_t i = 0; i < m_phrase.size(); ++i) {
        Cell& c = m_cells[i];
        c.character = m_phrase[i];
        c.underline = c.isLetter();
        c.revealed = false;
        c.missed = false;
    }
    return true;
}

void PhraseBoard::clear() {
    m_cells.fill(Cell{});
    m_phrase.clear();
    m_answer.clear();
    m_tried.clear();
    m_letterTotal = 0;
    m_revealedCount = 0;
}

bool PhraseBoard::alreadyTried(char32_t letter) const {
    return m_tried.find(letter) != std::u32string::npos;
}

bool PhraseBoard::reveal(char32_t letter) {
    bool hit = false;
    // Only the cells of the laid phrase take part: cells past its end keep
    // whatever an earlier, longer phrase left in them, hidden.
    for (std::size_t i = 0; i < m_phrase.size(); ++i) {
        Cell& c = m_cells[i];
        if (c.isLetter() && c.character == letter) {
            hit = true;
            // A strike correction can hand back the key of a letter already
            // found; guessing it again must not count its cells twice.
            if (!c.revealed) {
                c.revealed = true;
                ++m_revealedCount;
            }
        }
    }
    m_tried.push_back(letter);
    RestoreKeyboard();
    return hit;
}

void PhraseBoard::revealAll() {
    for (std::size_t i = 0; i < m_phrase.size(); ++i) {
        if (m_cells[i].isLetter()) {
            m_cells[i].revealed = true;
        }
    }
    m_revealedCount = m_letterTotal;
}

void PhraseBoard::showMissed() {
    for (std::size_t i = 0; i < m_phrase.size(); ++i) {
        Cell& c = m_cells[i];
        if (c.isLetter() && !c.revealed) {
            c.missed = true;
        }
    }
}

void PhraseBoard::dropLastTried() {
    if (!m_tried.empty()) {
        m_tried.pop_back();
    }
}

void PhraseBoard::RestoreKeyboard() {
    for (int key = 1; key <= 37; ++key) {
        m_keyVisible[static_cast<std::size_t>(key)] = true;
    }
    for (char32_t c : m_tried) {
        if (const int key = keyIndexOf(c); key >= 1) {
            m_keyVisible[static_cast<std::size_t>(key)] = false;
        }
    }
}

std::string PhraseBoard::counterText() const {
    return std::to_string(m_revealedCount) + "/" + std::to_string(m_letterTotal);
}

} // namespace quillora
