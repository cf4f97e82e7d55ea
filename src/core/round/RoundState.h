// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>

namespace quillora {

// Where one game of hangman stands.
struct RoundState {
    static constexpr int kSlots = 8;

    char32_t guessedLetter = 0;
    int strikeCount = 0; // the number of the last strike slot written
    bool hit = false;    // the last guess revealed something
    bool alreadyTried = false;
    bool over = false; // won or lost
    bool waitingForPhrase = false;
    bool correctionUsed = false;
    bool manyErrors = false; // five strikes or more with points on: no leaving
    bool earlyAnswerBonus = false;
    // "" empty, the wrong letter, or " " when a wrong whole answer filled it.
    std::array<std::string, kSlots> strikeSlots{};

    const std::string& slot(int number) const {
        return strikeSlots[static_cast<std::size_t>(number - 1)];
    }
    std::string& slot(int number) { return strikeSlots[static_cast<std::size_t>(number - 1)]; }
};

} // namespace quillora
