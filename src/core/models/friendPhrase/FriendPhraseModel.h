// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

namespace quillora {

class Dialogs;
struct SharedState;

// What a friend's phrase hands to the board: the phrase in capitals, the
// letters to guess and the text of the theme label.
struct FriendPhrase {
    std::string phrase;
    int letterTotal = 0;
    std::string themeText;
};

// "LA FRASE ES:": one of the players types the phrase the others guess,
// with a preview of the board's three rows.
class FriendPhraseModel {
public:
    static constexpr int kMaxPhraseChars = 42;
    static constexpr int kMaxThemeChars = 35;
    static constexpr int kRowChars = 14;
    static constexpr int kPreviewRows = 3;
    static constexpr const char* kNoTheme = "(Ninguno)";
    static constexpr const char* kRefusal =
        "Espere, hay mínimo un símbolo o letra con acento, revise si los hay y quítelos.";

    // Opens with an empty phrase and the theme of the game played last.
    explicit FriendPhraseModel(const SharedState& shared);

    // --- theme box --------------------------------------------------------------
    const std::string& themeText() const { return m_theme; }
    void setThemeText(const std::string& text);
    void themeFocusIn();
    void themeFocusOut();

    // --- phrase box ---------------------------------------------------------------
    const std::string& phraseText() const { return m_phrase; }
    // Every change of the box, typed or pasted; text past the box's length
    // is cut.
    void setPhraseText(const std::string& text);
    // Whether a typed key may reach the box: the game's alphabet, backspace,
    // and a blank once something is written; nothing past the last cell.
    bool keyAllowed(int keyCode) const;
    // A key typed with the caret at the end of the text.
    void type(char32_t key);

    bool okEnabled() const;
    // Row 1..3 of the board as the phrase would fill it, in capitals.
    std::string previewRow(int row) const;

    // " Aceptar ", or Enter. Refused while the button is disabled, and with
    // a character the board has no cell for, which the friend is told about;
    // either way the window stays. On success the author leaves the guessers
    // and the theme is remembered for the next phrase.
    std::optional<FriendPhrase> accept(SharedState& shared, Dialogs& dialogs);

private:
    std::string m_theme;
    std::string m_phrase;
};

} // namespace quillora
