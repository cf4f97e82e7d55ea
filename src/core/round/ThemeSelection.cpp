// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "round/ThemeSelection.h"

#include "state/SharedState.h"
#include "words/ThemeCatalogue.h"

#include <algorithm>

namespace quillora {

int themeCount(const SharedState& shared) {
    return ThemeCatalogue::kThemes + static_cast<int>(shared.ownThemes.size());
}

std::string themeNameOf(const SharedState& shared, int theme) {
    if (theme > ThemeCatalogue::kThemes && theme <= themeCount(shared)) {
        return shared.ownThemes[static_cast<std::size_t>(theme - ThemeCatalogue::kThemes - 1)].name;
    }
    return std::string(ThemeCatalogue::storedThemeName(theme));
}

int ownThemeNumber(const SharedState& shared, std::string_view name) {
    return ownThemeNumber(shared.ownThemes, name);
}

std::vector<std::string> takenThemeNames(const SharedState& shared) {
    std::vector<std::string> names;
    for (int theme = 1; theme <= themeCount(shared); ++theme) {
        names.push_back(themeNameOf(shared, theme));
    }
    return names;
}

std::vector<std::string> readOwnThemes(SharedState& shared) {
    shared.ownThemes.clear();
    OwnThemeSet set = loadOwnThemes(shared.dataFolder / kOwnThemesFolder, takenThemeNames(shared));
    shared.ownThemes = std::move(set.themes);
    return set.refusals;
}

bool addOwnTheme(SharedState& shared, OwnTheme theme) {
    if (shared.ownThemes.size() >= static_cast<std::size_t>(kMaxOwnThemes)) {
        return false;
    }
    shared.ownThemes.push_back(std::move(theme));
    return true;
}

std::string ownThemesNotice(const std::vector<std::string>& refusals) {
    // Enough lines to mend a file by, few enough for a message box.
    constexpr std::size_t kShown = 12;
    std::string text = "Algunas líneas de tus temas no se usan:\n";
    for (std::size_t i = 0; i < refusals.size() && i < kShown; ++i) {
        text += "\n" + refusals[i];
    }
    if (refusals.size() > kShown) {
        text += "\n... y " + std::to_string(refusals.size() - kShown) + " más.";
    }
    return text;
}

int markedThemes(const SessionSlot& slot) {
    return static_cast<int>(
        std::count(slot.selectedThemes.begin(), slot.selectedThemes.end(), true));
}

std::vector<int> selectedThemeNumbers(const SessionSlot& slot) {
    std::vector<int> themes;
    for (int theme = 1; theme < kThemeFlags; ++theme) {
        if (slot.selectedThemes[static_cast<std::size_t>(theme)]) {
            themes.push_back(theme);
        }
    }
    return themes;
}

void beginTour(SharedState& shared) {
    SessionSlot& slot = shared.current();
    slot.tourCopy = slot.selectedThemes;
    slot.selectedThemes = {};
    shared.tourPosition = 1;
}

void endTour(SharedState& shared) {
    shared.tourPosition = 0;
    shared.current().selectedThemes = shared.current().tourCopy;
}

} // namespace quillora
