// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "round/ThemeSelection.h"

#include "state/SharedState.h"

#include <algorithm>

namespace quillora {

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
