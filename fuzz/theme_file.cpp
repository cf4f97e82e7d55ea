// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A theme file of one's own: any bytes, read as the start reads the themes
// folder. Whatever it keeps must be playable on the board.

#include "round/Keyboard.h"
#include "round/PhraseBoard.h"
#include "words/OwnThemes.h"
#include "words/Text.h"

#include <cstdlib>
#include <string>

using namespace quillora;

namespace {

// Every kept phrase fits the cells, is typed with the keyboard alone and
// splits no word of a row's length between two rows.
void checkPhrase(const std::string& phrase) {
    const std::u32string text = toU32(phrase);
    if (text.empty() || text.size() > static_cast<std::size_t>(PhraseBoard::kCells)) {
        std::abort();
    }
    std::size_t start = 0;
    for (std::size_t i = 0; i <= text.size(); ++i) {
        if (i < text.size() && text[i] != U' ') {
            if (keyIndexOf(text[i]) < 1) {
                std::abort();
            }
            continue;
        }
        const std::size_t length = i - start;
        const auto columns = static_cast<std::size_t>(PhraseBoard::kColumns);
        if (length > 0 && length <= columns && start / columns != (i - 1) / columns) {
            std::abort();
        }
        start = i + 1;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const OwnThemeFile read = readOwnTheme("fuzz.txt", bytes);
    if (read.usable == (read.theme.name.empty() || read.theme.phrases.empty()) ||
        read.theme.phrases.size() > static_cast<std::size_t>(kMaxOwnPhrases) ||
        charCount(read.theme.name) > kMaxOwnThemeNameChars) {
        std::abort();
    }
    for (const std::string& phrase : read.theme.phrases) {
        checkPhrase(phrase);
        // Laid out once, a phrase is laid out for good.
        if (checkOwnPhrase(phrase).laidOut != phrase) {
            std::abort();
        }
    }
    return 0;
}
