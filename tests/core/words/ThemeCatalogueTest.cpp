// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "words/ThemeCatalogue.h"
#include "words/Text.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace quillora {
namespace {

constexpr std::size_t kRow = 14;

std::vector<std::u32string> wordsOf(std::string_view phrase) {
    std::istringstream in{std::string(phrase)};
    std::vector<std::u32string> words;
    for (std::string word; in >> word;)
        words.push_back(toU32(word));
    return words;
}

// Lays the words out for the board from scratch: a word that would straddle a
// row boundary after its single space goes to the start of the next row.
std::u32string laidOut(const std::vector<std::u32string>& words) {
    std::u32string text = words.at(0);
    for (std::size_t i = 1; i < words.size(); ++i) {
        const std::size_t first = text.size() + 1; // 0-based cell after one space
        const std::size_t last = first + words[i].size() - 1;
        if (first / kRow == last / kRow) {
            text += U' ';
        } else {
            text.append((kRow - text.size() % kRow) % kRow, U' ');
        }
        text += words[i];
    }
    return text;
}

TEST(ThemeCatalogueTest, ThemeNamesLoadDistinctAndApartFromTheNoThemeEntry) {
    ThemeCatalogue catalogue;
    catalogue.loadThemeNames();
    std::set<std::string> names;
    for (int theme = 1; theme <= ThemeCatalogue::kThemes; ++theme) {
        EXPECT_FALSE(catalogue.themeName(theme).empty()) << theme;
        EXPECT_EQ(catalogue.themeName(theme), ThemeCatalogue::storedThemeName(theme));
        names.insert(catalogue.themeName(theme));
    }
    EXPECT_EQ(names.size(), std::size_t{ThemeCatalogue::kThemes}) << "no two themes share a name";
    // Entry 0 is what a random theme shows; no real theme may read the same.
    EXPECT_FALSE(catalogue.themeName(0).empty());
    EXPECT_FALSE(names.contains(catalogue.themeName(0)));
    EXPECT_EQ(catalogue.themeName(-1), "");
    EXPECT_EQ(catalogue.themeName(ThemeCatalogue::kThemes + 1), "");
    EXPECT_EQ(ThemeCatalogue::storedThemeName(ThemeCatalogue::kThemes + 1), "");
}

TEST(ThemeCatalogueTest, PhraseLoadFillsTheThemeAndIgnoresThemesWithoutPhrases) {
    ThemeCatalogue catalogue;
    for (int theme = 1; theme <= ThemeCatalogue::kThemes; ++theme) {
        catalogue.loadPhrases(theme);
        for (int index = 1; index <= ThemeCatalogue::kPhrasesPerTheme; ++index)
            EXPECT_EQ(catalogue.phrase(index), ThemeCatalogue::storedPhrase(theme, index))
                << theme << "/" << index;
    }

    catalogue.loadPhrases(3);
    catalogue.loadPhrases(0);
    catalogue.loadPhrases(ThemeCatalogue::kThemes + 1);
    catalogue.loadPhrases(-1);
    for (int index = 1; index <= ThemeCatalogue::kPhrasesPerTheme; ++index)
        EXPECT_EQ(catalogue.phrase(index), ThemeCatalogue::storedPhrase(3, index)) << index;
    EXPECT_EQ(catalogue.phrase(0), "");
    EXPECT_EQ(catalogue.phrase(ThemeCatalogue::kPhrasesPerTheme + 1), "");
    EXPECT_EQ(ThemeCatalogue::storedPhrase(0, 1), "");
    EXPECT_EQ(ThemeCatalogue::storedPhrase(1, 0), "");
    EXPECT_EQ(ThemeCatalogue::storedPhrase(1, ThemeCatalogue::kPhrasesPerTheme + 1), "");
}

TEST(ThemeCatalogueTest, EveryPhraseFitsTheBoardCanBeTypedAndKeepsToTheRowLayout) {
    std::set<std::string_view> departures;
    for (int theme = 1; theme <= ThemeCatalogue::kThemes; ++theme) {
        for (int index = 1; index <= ThemeCatalogue::kPhrasesPerTheme; ++index) {
            const std::string_view stored = ThemeCatalogue::storedPhrase(theme, index);
            const std::u32string text = toU32(stored);
            SCOPED_TRACE(::testing::Message() << theme << "/" << index);
            ASSERT_FALSE(text.empty());
            EXPECT_LE(text.size(), 35u);
            EXPECT_NE(text.front(), U' ');
            EXPECT_NE(text.back(), U' ');
            for (const char32_t ch : text) {
                const bool typeable = (ch >= U'A' && ch <= U'Z') || ch == U'Ñ' || ch == U' ' ||
                                      ch == U'3' || ch == U'7';
                EXPECT_TRUE(typeable) << static_cast<unsigned>(ch);
            }
            // The friend's phrase box and the board count cells the same way,
            // an Ñ as one.
            EXPECT_EQ(charCount(stored), text.size());
            if (laidOut(wordsOf(stored)) != text)
                departures.insert(stored);
        }
    }
    const std::set<std::string_view> expected{
        "LOS           PICAPIEDRA",
        "EL PAJARO     LOCO",
        "GARFIELD Y    SUS AMIGOS",
        "LA GALLINA    DE LOS HUEVOS DE ORO",
    };
    EXPECT_EQ(departures, expected);
}

} // namespace
} // namespace quillora
