// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/options/OptionChoices.h"

#include "models/options/ColourCodeField.h"
#include "ports/Dialogs.h"
#include "state/Settings.h"
#include "storage/ConfigFile.h"
#include "words/ThemeCatalogue.h"

namespace quillora {

namespace {

const std::string kPlaceholder = "Nombre";
const std::string kDefaultName = "Quillora VS";
const std::string kNoName = "JUGADOR 1";

// What a number field holds: its digits.
std::string digitsOf(const std::string& text) {
    std::string kept;
    for (char c : text) {
        if (c >= '0' && c <= '9') {
            kept.push_back(c);
        }
    }
    return kept;
}

std::size_t at(int index) {
    return static_cast<std::size_t>(index);
}

} // namespace

OptionChoices::OptionChoices(ColourCodeField& colourCode, Dialogs& dialogs)
    : m_colourCode(colourCode), m_dialogs(dialogs) {}

void OptionChoices::fill(const Settings& s) {
    m_boxes[kPoints] = s.pointsSystem;
    m_boxes[kSurvival] = s.survival;
    m_boxes[kCountdown] = s.countdown == 1 || s.countdown == 2;
    m_boxes[kHardCountdown] = s.countdown == 2;
    m_boxes[kFewerPoints] = s.moreNegativePoints;
    m_boxes[kOpaque] = s.opaqueLetters;
    m_boxes[kWhiteLetters] = s.whiteLetters;
    m_boxes[kWhiteLines] = s.whiteLines;
    m_boxes[kRealSize] = s.realSize;
    m_boxes[kSounds] = s.sounds;
    m_boxes[kAutoPhrase] = s.autoPhrase;
    m_boxes[kEncyclopedia] = s.useEncyclopedia;
    m_boxes[kNoPlayButton] = s.playButtonHidden;
    m_boxes[kKeyboardKept] = s.keyboardKeptOpen;
    m_style = std::to_string(s.letterStyle);
    m_theme = std::to_string(s.theme);
    if (s.userName == kDefaultName) {
        m_name = kPlaceholder;
    } else if (s.userName.empty()) {
        m_name = kDefaultName;
    } else {
        m_name = s.userName;
    }
    // Through the field's own rule: the window opens in the colour it shows.
    m_colourCode.setText(std::to_string(s.gameColour.packed()));
}

void OptionChoices::store(Settings& s) {
    if (m_style.empty()) {
        m_style = "0";
    }
    if (m_theme.empty()) {
        m_theme = "0";
    }
    s.letterStyle = leadingCount(m_style);
    s.theme = leadingCount(m_theme);

    s.pointsSystem = box(kPoints);
    s.survival = box(kPoints) && box(kSurvival);
    s.moreNegativePoints = box(kPoints) && box(kFewerPoints);
    s.countdown = !box(kCountdown) ? 0 : box(kHardCountdown) ? 2 : 1;
    s.opaqueLetters = box(kOpaque);
    s.whiteLetters = box(kWhiteLetters);
    s.whiteLines = box(kWhiteLines);
    s.realSize = box(kRealSize);
    s.sounds = box(kSounds);
    s.autoPhrase = box(kAutoPhrase);
    s.useEncyclopedia = box(kEncyclopedia);
    s.playButtonHidden = box(kNoPlayButton);
    s.keyboardKeptOpen = box(kKeyboardKept);

    if (m_name.empty()) {
        m_name = kNoName;
    } else if (m_name == kPlaceholder) {
        m_name = kDefaultName;
    }
    s.userName = m_name;
    // The colour the field chose is the one stored.
    s.gameColour = m_colourCode.gameColour();
}

// --- check boxes -------------------------------------------------------------------------

bool OptionChoices::box(int index) const {
    return isBox(index) && m_boxes[at(index)];
}

void OptionChoices::setBox(int index, bool on) {
    m_boxes[at(index)] = on;
}

bool OptionChoices::clickBox(int index) {
    if (!isBox(index)) {
        return true;
    }
    // Only the free style leaves the shading and the letter colour to the
    // player; every other style decides them itself.
    if ((index == kOpaque || index == kWhiteLetters) && m_style != "0") {
        m_dialogs.exclamation("Lo siento, pero para cambiar estas opciones debe tener el diseño "
                              "en estilo libre (0).");
        return false;
    }
    setBox(index, !box(index));
    if (box(index)) {
        if (index == kSurvival || index == kFewerPoints) {
            setBox(kPoints, true);
        } else if (index == kHardCountdown) {
            setBox(kCountdown, true);
        }
    }
    applyDependencies();
    return true;
}

// Survival and fewer points only mean something with points; the hard
// countdown is a kind of countdown.
void OptionChoices::applyDependencies() {
    if (!box(kPoints)) {
        setBox(kSurvival, false);
        setBox(kFewerPoints, false);
    }
    if (!box(kCountdown)) {
        setBox(kHardCountdown, false);
    }
}

// --- fields --------------------------------------------------------------------------------

void OptionChoices::setStyleText(const std::string& text) {
    m_style = digitsOf(text);
    if (m_style.empty() || m_style == "0") {
        return;
    }
    if (m_style == "1" || m_style == "4") {
        setBox(kOpaque, false);
        setBox(kWhiteLetters, false);
    } else if (m_style == "2") {
        setBox(kOpaque, true);
        setBox(kWhiteLetters, false);
    } else if (m_style == "3") {
        setBox(kOpaque, true);
        setBox(kWhiteLetters, true);
    } else {
        m_dialogs.exclamation("No existen más estilos en los diseños.");
        m_style = "4";
        setBox(kOpaque, false);
        setBox(kWhiteLetters, false);
    }
}

void OptionChoices::setThemeText(const std::string& text) {
    m_theme = digitsOf(text);
    if (leadingNumber(m_theme) > ThemeCatalogue::kThemes) {
        m_dialogs.exclamation("No existen más temas para jugar.");
        m_theme = std::to_string(ThemeCatalogue::kThemes);
    }
}

void OptionChoices::setNameText(const std::string& text) {
    // The name goes into the file and names the user's file: only what a
    // line of it can hold.
    m_name = storableText(text);
}

void OptionChoices::nameEntered() {
    if (m_name == kPlaceholder) {
        m_name.clear();
    }
}

void OptionChoices::nameLeft() {
    if (m_name.empty()) {
        m_name = kPlaceholder;
    }
}

} // namespace quillora
