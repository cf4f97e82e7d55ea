// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "words/ThemeCatalogue.h"

#include <string>

namespace quillora {

class Random;
class RoundEvents;
struct SharedState;

// The game a chosen phrase is laid on.
class PhraseChoiceGame {
public:
    virtual void layChosenPhrase(const std::string& phrase, int theme,
                                 const std::string& themeName) = 0;
    virtual bool gameOver() const = 0;

protected:
    ~PhraseChoiceGame() = default;
};

// Where the phrase of the next game comes from: the draw the player's
// phrase window shows, the automatic phrase that skips the window, and the
// thematic tour that walks every theme in turn. The automatic-phrase marker
// says which of the last two is on.
class PhraseChoice {
public:
    PhraseChoice(PhraseChoiceGame& game, SharedState& shared, Random& random, RoundEvents& events);

    // --- the player's phrase window -----------------------------------------------
    // Whether several themes are selected, and the theme the window shows.
    void prepareThemeWindow();
    // Draws the theme and the phrase of the next game.
    void drawThemeAndPhrase();
    // Lays the drawn phrase; two games of one theme in a row switch the
    // automatic phrase on.
    void layDrawnPhrase();
    bool randomTheme() const { return m_randomTheme; }
    const std::string& themeWindowLabel() const { return m_themeWindowLabel; }
    const std::string& drawnPhrase() const { return m_drawnPhrase; }
    // The number drawn last, which the next draw never repeats.
    int phraseNumber() const { return m_phraseNumber; }

    // --- the automatic phrase and the tour ---------------------------------------
    // JUGAR with the automatic phrase on: the tour's theme, or a draw as the
    // phrase window would make, laid at once.
    void layAutomaticPhrase();
    void toggleAutoPhrase();
    // "Tour temático": the automatic phrase walks every theme from the
    // first, and the first game of the tour starts at once.
    void startTour();
    // The automatic-phrase marker reads "T" while a tour runs.
    void showTourMarker();
    // The end of a game takes a running tour on to the next theme, and from
    // the last back to the first.
    void moveTourOn();
    bool autoMarkerVisible() const;
    const std::string& autoMarkerCaption() const { return m_autoCaption; }
    const std::string& autoMarkerTooltip() const { return m_autoTooltip; }

private:
    int drawPhraseNumber();
    void drawTourPhrase();
    void layCataloguePhrase(bool mayStartAuto);
    void switchAutoOn();

    PhraseChoiceGame& m_game;
    SharedState& m_shared;
    Random& m_random;
    RoundEvents& m_events;
    ThemeCatalogue m_catalogue;

    // The draw: its theme, the name the game goes under, and its phrase.
    int m_theme = 0;
    std::string m_themeName;
    std::string m_drawnPhrase;
    int m_phraseNumber = 0;
    bool m_randomTheme = false;
    std::string m_themeWindowLabel;

    std::string m_autoCaption = "A";
    std::string m_autoTooltip = " Desactivar la frase automática. ";
};

} // namespace quillora
