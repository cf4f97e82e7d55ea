// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/friendPhrase/FriendPhraseModel.h"

#include "players/Players.h"
#include "ports/Dialogs.h"
#include "round/Keyboard.h"
#include "state/SharedState.h"
#include "words/Text.h"

namespace quillora {

namespace {

constexpr int kBackspace = 8;

// Capitals as the friend would expect them, accented letters included, so a
// pasted "á" shows as "Á" and is refused as an accent, not as a small letter.
char32_t friendUpper(char32_t ch) {
    if (ch >= 0xE0 && ch <= 0xFE && ch != 0xF7) {
        return ch - 0x20;
    }
    return gameUpper(ch);
}

std::u32string upper(std::u32string text) {
    for (char32_t& ch : text) {
        ch = friendUpper(ch);
    }
    return text;
}

bool hasBoardCell(char32_t ch) {
    return (ch >= U'0' && ch <= U'9') || (ch >= U'A' && ch <= U'Z') || ch == kUpperEnye ||
           ch == U' ';
}

std::string firstChars(const std::string& text, std::size_t count) {
    std::u32string chars = toU32(text);
    if (chars.size() > count) {
        chars.resize(count);
    }
    return toUtf8(chars);
}

} // namespace

FriendPhraseModel::FriendPhraseModel(const SharedState& shared)
    : m_theme(shared.lastGameTheme.empty() ? kNoTheme : shared.lastGameTheme) {}

void FriendPhraseModel::setThemeText(const std::string& text) {
    m_theme = firstChars(text, kMaxThemeChars);
}

void FriendPhraseModel::themeFocusIn() {
    if (m_theme == kNoTheme) {
        m_theme.clear();
    }
}

void FriendPhraseModel::themeFocusOut() {
    if (m_theme.empty()) {
        m_theme = kNoTheme;
    }
}

void FriendPhraseModel::setPhraseText(const std::string& text) {
    m_phrase = firstChars(text, kMaxPhraseChars);
}

bool FriendPhraseModel::keyAllowed(int keyCode) const {
    if (filterAnswerKey(keyCode, !m_phrase.empty()) == 0) {
        return false;
    }
    return keyCode == kBackspace || charCount(m_phrase) < kMaxPhraseChars;
}

void FriendPhraseModel::type(char32_t key) {
    if (!keyAllowed(static_cast<int>(key))) {
        return;
    }
    std::u32string chars = toU32(m_phrase);
    if (key == kBackspace) {
        if (!chars.empty()) {
            chars.pop_back();
        }
    } else {
        chars.push_back(key);
    }
    m_phrase = toUtf8(chars);
}

bool FriendPhraseModel::okEnabled() const {
    return !m_phrase.empty() && m_phrase.front() != ' ';
}

std::string FriendPhraseModel::previewRow(int row) const {
    const std::u32string chars = upper(toU32(m_phrase));
    const auto start = static_cast<std::size_t>((row - 1) * kRowChars);
    if (row < 1 || row > kPreviewRows || start >= chars.size()) {
        return {};
    }
    return toUtf8(std::u32string_view(chars).substr(start, kRowChars));
}

std::optional<FriendPhrase> FriendPhraseModel::accept(SharedState& shared, Dialogs& dialogs) {
    if (!okEnabled()) {
        return std::nullopt;
    }
    const std::u32string phrase = upper(toU32(m_phrase));
    m_phrase = toUtf8(phrase);
    int blanks = 0;
    for (char32_t ch : phrase) {
        if (!hasBoardCell(ch)) {
            dialogs.exclamation(kRefusal);
            return std::nullopt;
        }
        blanks += ch == U' ' ? 1 : 0;
    }

    FriendPhrase result;
    result.phrase = m_phrase;
    result.letterTotal = static_cast<int>(phrase.size()) - blanks;

    const std::string author = playerName(shared, shared.roster.currentPlayer);
    moveAuthorLast(shared);
    shared.playerCount = shared.roster.guesserCount;

    result.themeText = m_theme.empty() || m_theme == kNoTheme ? "Frase de " + author : m_theme;
    return result;
}

} // namespace quillora
