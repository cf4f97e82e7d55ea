// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace quillora {

// Themes of the player's own: plain UTF-8 text files in the data folder's
// "temas" folder. The first line that is neither blank nor a "#" comment
// names the theme, every further one is a phrase. They follow the fifty
// built-in themes, in the order of their file names.
inline constexpr int kMaxOwnThemes = 100;
inline constexpr int kMaxOwnPhrases = 500;
// Far above any list of words a lesson needs; a bigger file is not read.
inline constexpr std::size_t kMaxOwnThemeBytes = 256 * 1024;
// Longer than the longest built-in name, short enough for the board's label.
inline constexpr std::size_t kMaxOwnThemeNameChars = 40;
inline constexpr std::string_view kOwnThemesFolder = "temas";

struct OwnTheme {
    std::string fileName;
    std::string name;
    // In capitals, without accents, padded for the board like the
    // built-in phrases.
    std::vector<std::string> phrases;
};

// One file as read: the theme when it has a name and at least one phrase,
// and a line for the player about everything that was left out.
struct OwnThemeFile {
    bool usable = false;
    OwnTheme theme;
    std::vector<std::string> refusals;
};

struct OwnThemeSet {
    std::vector<OwnTheme> themes;
    std::vector<std::string> refusals;
};

// A phrase as the board lays it, or empty with the reason it cannot be.
struct PhraseCheck {
    std::string laidOut;
    std::string refusal;
};
PhraseCheck checkOwnPhrase(std::string_view line);

// The file's bytes, whatever they are.
OwnThemeFile readOwnTheme(std::string_view fileName, std::string_view bytes);
// The file on disk; a big one is refused from its size without reading it.
OwnThemeFile readOwnThemeFile(const std::filesystem::path& file);
// Every ".txt" file of the folder in file-name order, up to the limit of
// themes; a name already taken (by a built-in theme or an earlier file) is
// refused, so a name always finds one theme. A missing folder is no theme.
OwnThemeSet loadOwnThemes(const std::filesystem::path& folder,
                          const std::vector<std::string>& takenNames);

// The number of the theme of that name (51 on), or 0 when none has it.
int ownThemeNumber(const std::vector<OwnTheme>& themes, std::string_view name);

} // namespace quillora
