// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/themesList/ThemesListModel.h"

#include "round/PhraseChoice.h"
#include "round/ThemeSelection.h"
#include "state/SharedState.h"
#include "storage/ConfigFile.h"
#include "words/ThemeCatalogue.h"

#include <algorithm>

namespace quillora {

ThemesListModel::ThemesListModel(SharedState& shared, PhraseChoice& choice, Dialogs& dialogs)
    : m_shared(shared), m_choice(choice), m_dialogs(dialogs) {}

void ThemesListModel::load() {
    SessionSlot& slot = m_shared.current();
    slot.selectedThemes[0] = false;
    m_names.clear();
    for (int theme = 1; theme <= ThemeCatalogue::kThemes; ++theme) {
        m_names.emplace_back(ThemeCatalogue::storedThemeName(theme));
    }
    const bool showMarks = markedThemes(slot) >= 2;
    m_highlighted.assign(m_names.size(), false);
    for (std::size_t row = 0; row < m_names.size(); ++row) {
        m_highlighted[row] = showMarks && slot.selectedThemes[row + 1];
    }
    m_going = false;
}

bool ThemesListModel::highlighted(int row) const {
    return row >= 0 && row < rows() && m_highlighted[static_cast<std::size_t>(row)];
}

void ThemesListModel::setHighlighted(int row, bool on) {
    if (row >= 0 && row < rows()) {
        m_highlighted[static_cast<std::size_t>(row)] = on;
    }
}

bool ThemesListModel::acceptEnabled() const {
    return std::find(m_highlighted.begin(), m_highlighted.end(), true) != m_highlighted.end();
}

void ThemesListModel::selectAll() {
    std::fill(m_highlighted.begin(), m_highlighted.end(), true);
}

void ThemesListModel::clearAll() {
    std::fill(m_highlighted.begin(), m_highlighted.end(), false);
}

ThemesListModel::Outcome ThemesListModel::acceptChoice() {
    // A double click can come with nothing left highlighted; an empty table
    // would leave nothing to draw from.
    if (!acceptEnabled()) {
        return Outcome::Stay;
    }
    SessionSlot& slot = m_shared.current();
    for (int row = 0; row < rows(); ++row) {
        slot.selectedThemes[static_cast<std::size_t>(row + 1)] = highlighted(row);
    }
    const std::vector<int> chosen = selectedThemeNumbers(slot);
    // One theme alone is the player's theme from now on: the highlighted
    // one, which is what the player sees chosen, even when the row last
    // clicked was another one clicked off again.
    if (chosen.size() == 1) {
        m_shared.settings.theme = chosen.front();
    }
    m_shared.themeChosen = true;
    saveSettings(m_shared, m_dialogs);
    m_choice.prepareThemeWindow();
    m_choice.drawThemeAndPhrase();
    return Outcome::Accepted;
}

ThemesListModel::Outcome ThemesListModel::tickGo() {
    if (!m_going) {
        return Outcome::Stay;
    }
    m_going = false;
    return acceptChoice() == Outcome::Accepted ? Outcome::Play : Outcome::Stay;
}

ThemesListModel::Outcome ThemesListModel::tour() {
    m_going = false;
    m_choice.startTour();
    return Outcome::Tour;
}

} // namespace quillora
