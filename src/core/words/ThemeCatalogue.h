// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillora {

struct OwnTheme;

// The word bank: 50 built-in themes of 20 phrases, compiled in, followed by
// the player's own themes (numbers 51 on) when it is given them. Phrases are
// stored in capitals and already padded with blanks so that no word is split
// across the board's 14-cell rows.
class ThemeCatalogue {
public:
    static constexpr int kThemes = 50;
    static constexpr int kPhrasesPerTheme = 20;

    // The player's own themes, which must outlive the catalogue; none by
    // default.
    void setOwnThemes(const std::vector<OwnTheme>* own) { m_own = own; }

    // Sets the draw ranges (40 for phrases, twice the theme count for
    // themes) and the theme count derived from them: 100 and 50 without
    // themes of one's own.
    void initDrawRanges();
    int phraseDrawRange() const { return m_phraseDrawRange; }
    // An own theme draws among its own number of phrases.
    int phraseDrawRange(int theme) const;
    int themeDrawRange() const { return m_themeDrawRange; }
    int themeCount() const { return m_themeCount; }

    // Fills the theme names 0..themeCount; entry 0 is "????", no theme.
    void loadThemeNames();
    // Fills phrases 1..n of the theme; a theme without phrases (0 or out of
    // range) leaves the previous ones in place.
    void loadPhrases(int theme);

    // Callers keep to the theme count and the theme's phrases; anything
    // else answers an empty text.
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
    const std::vector<OwnTheme>* m_own = nullptr;
    std::vector<std::string> m_themeNames;
    // Entry 0 holds nothing, so phrase n is entry n.
    std::vector<std::string> m_phrases = std::vector<std::string>(kPhrasesPerTheme + 1);

    int ownCount() const;
    const OwnTheme* own(int theme) const;
};

} // namespace quillora
