// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "words/PhraseLayout.h"

#include <cstddef>

namespace quillora {

std::u32string layOutPhrase(std::u32string_view words) {
    constexpr auto columns = static_cast<std::size_t>(kPhraseColumns);
    std::u32string out;
    std::size_t start = 0;
    while (start < words.size()) {
        std::size_t end = words.find(U' ', start);
        if (end == std::u32string_view::npos) {
            end = words.size();
        }
        const std::u32string_view word = words.substr(start, end - start);
        start = end + 1;
        if (word.empty()) {
            continue;
        }
        if (!out.empty()) {
            // After one blank the word would take cells first..last (from 0).
            const std::size_t first = out.size() + 1;
            const std::size_t last = first + word.size() - 1;
            if (first / columns == last / columns) {
                out.push_back(U' ');
            } else {
                // A row filled to its end still needs a blank between the
                // two words, or the answer would run them together: the
                // word then waits for the row after.
                out.append(columns - out.size() % columns, U' ');
            }
        }
        out.append(word);
        if (out.size() > static_cast<std::size_t>(kPhraseCells)) {
            return {};
        }
    }
    return out;
}

} // namespace quillora
