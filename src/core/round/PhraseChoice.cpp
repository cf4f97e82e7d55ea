// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "round/PhraseChoice.h"

#include "ports/Random.h"
#include "round/RoundEvents.h"
#include "round/ThemeSelection.h"
#include "state/SharedState.h"

#include <algorithm>

namespace quillora {

PhraseChoice::PhraseChoice(PhraseChoiceGame& game, SharedState& shared, Random& random,
                           RoundEvents& events)
    : m_game(game), m_shared(shared), m_random(random), m_events(events) {
    m_catalogue.setOwnThemes(&m_shared.ownThemes);
    m_catalogue.initDrawRanges();
}

// --- the player's phrase window ---------------------------------------------------

void PhraseChoice::prepareThemeWindow() {
    m_randomTheme = markedThemes(m_shared.current()) > 1;
    m_catalogue.loadThemeNames();
    m_themeWindowLabel = m_randomTheme ? "????" : m_catalogue.themeName(m_shared.settings.theme);
}

int PhraseChoice::drawPhraseNumber() {
    const int range = m_catalogue.phraseDrawRange(m_theme);
    int number = m_random.drawHalfRange(range);
    // A theme of one phrase has nothing else to give.
    while (number == m_shared.previousPhraseNumber && range > 2) {
        number = m_random.drawHalfRange(range);
    }
    return number;
}

void PhraseChoice::drawThemeAndPhrase() {
    m_catalogue.initDrawRanges();
    const auto& selected = m_shared.current().selectedThemes;
    const auto themes = static_cast<std::size_t>(m_catalogue.themeCount());
    // Marks left on themes of one's own whose files have gone since would
    // have the draw below look for ever.
    if (m_randomTheme && std::find(selected.begin() + 1, selected.begin() + themes + 1, true) ==
                             selected.begin() + themes + 1) {
        m_randomTheme = false;
    }
    if (m_randomTheme) {
        m_theme = m_random.drawHalfRange(m_catalogue.themeDrawRange());
        // The draw gives 0..49; a 0 drawn again stands for the fiftieth theme.
        while (!selected[static_cast<std::size_t>(m_theme)]) {
            m_theme = m_random.drawHalfRange(m_catalogue.themeDrawRange());
            if (m_theme == 0) {
                m_theme = m_catalogue.themeCount();
            }
        }
    } else {
        m_theme = m_shared.settings.theme;
        if (m_theme > m_catalogue.themeCount()) {
            m_theme = 1;
        }
    }
    m_phraseNumber = drawPhraseNumber();
    m_catalogue.loadPhrases(m_theme);
    m_drawnPhrase = m_catalogue.phrase(m_phraseNumber + 1);
    m_themeName = m_themeWindowLabel;
}

void PhraseChoice::layDrawnPhrase() {
    layCataloguePhrase(true);
}

void PhraseChoice::layCataloguePhrase(bool mayStartAuto) {
    const auto slot = static_cast<std::size_t>(m_shared.currentSlot);
    m_shared.sessions[slot].lastThemeName = m_themeName;
    if (mayStartAuto &&
        m_shared.sessions[slot].previousThemeName == m_shared.sessions[slot].lastThemeName) {
        switchAutoOn();
    } else {
        m_shared.sessions[slot].previousThemeName = m_shared.sessions[slot].lastThemeName;
    }
    m_game.layChosenPhrase(m_drawnPhrase, m_theme, m_themeName);
}

// --- the automatic phrase and the tour ---------------------------------------------

void PhraseChoice::layAutomaticPhrase() {
    if (m_shared.tourPosition >= 1) {
        drawTourPhrase();
    } else {
        prepareThemeWindow();
        drawThemeAndPhrase();
        layDrawnPhrase();
    }
}

void PhraseChoice::drawTourPhrase() {
    m_catalogue.initDrawRanges();
    // A tour that stood on a theme of one's own since taken away goes on
    // from the first.
    if (m_shared.tourPosition > m_catalogue.themeCount()) {
        m_shared.tourPosition = 1;
    }
    m_catalogue.loadThemeNames();
    m_themeName = m_catalogue.themeName(m_shared.tourPosition);
    m_catalogue.initDrawRanges();
    m_theme = m_shared.tourPosition;
    m_phraseNumber = drawPhraseNumber();
    m_catalogue.loadPhrases(m_theme);
    m_drawnPhrase = m_catalogue.phrase(m_phraseNumber + 1);
    layCataloguePhrase(false);
}

void PhraseChoice::switchAutoOn() {
    m_shared.settings.autoPhrase = true;
}

bool PhraseChoice::autoMarkerVisible() const {
    return m_shared.settings.autoPhrase;
}

void PhraseChoice::toggleAutoPhrase() {
    if (!m_shared.settings.autoPhrase) {
        switchAutoOn();
    } else {
        m_shared.settings.autoPhrase = false;
        endTour(m_shared);
    }
    m_autoCaption = "A";
    m_autoTooltip = " Desactivar la frase automática. ";
    if (!m_game.gameOver()) {
        m_events.titleChanged();
    }
    m_events.settingsChanged();
}

void PhraseChoice::startTour() {
    beginTour(m_shared);
    switchAutoOn();
    m_events.titleChanged();
    showTourMarker();
    m_events.settingsChanged();
    drawTourPhrase();
}

void PhraseChoice::showTourMarker() {
    m_autoCaption = "T";
    m_autoTooltip = " Desactivar el tour temático. ";
}

void PhraseChoice::moveTourOn() {
    if (m_shared.tourPosition >= 1) {
        m_shared.tourPosition = m_shared.tourPosition % m_catalogue.themeCount() + 1;
    }
}

} // namespace quillora
