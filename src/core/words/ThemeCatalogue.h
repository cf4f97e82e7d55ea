// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace quillora {

// The built-in word bank: 50 themes of 20 phrases, compiled in. Phrases are
// stored in capitals and already padded with blanks so that no word is split
// across the board's 14-cell rows.
class ThemeCatalogue {
public:
    static constexpr int kThemes = 50;
    static constexpr int kPhrasesPerTheme = 20;

    // Sets the draw ranges (40 for phrases, 100 for themes) and the theme
    // count derived from them (100 / 2).
    void initDrawRanges();
    int phraseDrawRange() const { return m_phraseDrawRange; }
    int themeDrawRange() const { return m_themeDrawRange; }
    int themeCount() const { return m_themeCount; }

    // Fills the theme names 0..50; entry 0 is "????", no theme.
    void loadThemeNames();
    // Fills phrases 1..20 of the theme; a theme without phrases (0 or out of
    // range) leaves the previous ones in place.
    void loadPhrases(int theme);

    // Callers keep to 0..50 and 1..20; anything else answers an empty text.
    const std::string& themeName(int theme) const;
    const std::string& phrase(int index) const;

    // The compiled-in tables themselves, for whoever needs them without the
    // load steps (the themes list, tests).
    static std::string_view storedThemeName(int theme);
    static std::string_view storedPhrase(int theme, int index);

private:
    int m_phraseDrawRange = 0;
    int m_themeDrawRange = 0;
    int m_themeCount = 0;
    std::array<std::string, kThemes + 1> m_themeNames{};
    std::array<std::string, kPhrasesPerTheme + 1> m_phrases{};
};

} // namespace quillora
