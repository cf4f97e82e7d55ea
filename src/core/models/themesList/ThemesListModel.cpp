// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/themesList/ThemesListModel.h"

#include "ports/Dialogs.h"
#include "round/PhraseChoice.h"
#include "round/ThemeSelection.h"
#include "state/SharedState.h"
#include "storage/ConfigFile.h"
#include "storage/FileReplace.h"
#include "words/OwnThemes.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace quillora {

ThemesListModel::ThemesListModel(SharedState& shared, PhraseChoice& choice, Dialogs& dialogs)
    : m_shared(shared), m_choice(choice), m_dialogs(dialogs) {}

void ThemesListModel::load() {
    SessionSlot& slot = m_shared.current();
    slot.selectedThemes[0] = false;
    m_names.clear();
    for (int theme = 1; theme <= themeCount(m_shared); ++theme) {
        m_names.push_back(themeNameOf(m_shared, theme));
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

std::filesystem::path ThemesListModel::themesFolder() {
    const std::filesystem::path folder = m_shared.dataFolder / kOwnThemesFolder;
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    return folder;
}

bool ThemesListModel::addThemeFile(const std::filesystem::path& file) {
    OwnThemeFile read = readOwnThemeFile(file);
    if (!read.usable) {
        std::string text = "El tema no se puede añadir:\n";
        for (const std::string& refusal : read.refusals) {
            text += "\n" + refusal;
        }
        m_dialogs.exclamation(text);
        return false;
    }
    const std::vector<std::string> taken = takenThemeNames(m_shared);
    if (std::find(taken.begin(), taken.end(), read.theme.name) != taken.end()) {
        m_dialogs.exclamation("Ya hay un tema llamado «" + read.theme.name + "».");
        return false;
    }
    if (m_shared.ownThemes.size() >= static_cast<std::size_t>(kMaxOwnThemes)) {
        m_dialogs.exclamation("Ya hay 100 temas propios; no caben más.");
        return false;
    }
    const std::filesystem::path target = themesFolder() / file.filename();
    std::error_code error;
    if (std::filesystem::exists(std::filesystem::symlink_status(target, error))) {
        m_dialogs.exclamation("Ya hay un archivo «" + read.theme.fileName +
                              "» en la carpeta de temas. Cambia el nombre del archivo "
                              "para añadirlo.");
        return false;
    }
    // The file was found whole a moment ago and within the size a theme may
    // have; it goes over as it is, comments and all, for the player to edit.
    std::ifstream in(file, std::ios::binary);
    std::string bytes(kMaxOwnThemeBytes, '\0');
    in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(in.gcount()));
    if (in.bad() || !replaceFile(target, bytes)) {
        m_dialogs.error("No se pudo copiar el tema en la carpeta de temas.");
        return false;
    }
    if (!read.refusals.empty()) {
        m_dialogs.information(ownThemesNotice(read.refusals));
    }
    m_names.push_back(read.theme.name);
    m_highlighted.push_back(false);
    addOwnTheme(m_shared, std::move(read.theme));
    return true;
}

} // namespace quillora
