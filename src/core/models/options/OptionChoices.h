// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>

namespace quillora {

class ColourCodeField;
class Dialogs;
struct Settings;

// What the three option pages hold: the fourteen check boxes and the style,
// theme and name fields. They are filled from the options in memory, the
// colour code field with them, and a save stores them all back. Some boxes
// only mean something under another, and the design style decides two of
// them, so a click or a typed style can change more than one box.
class OptionChoices {
public:
    // The boxes by their number in the window.
    static constexpr int kPoints = 0, kSurvival = 1, kCountdown = 2, kOpaque = 3, kWhiteLetters = 4,
                         kWhiteLines = 5, kRealSize = 6, kSounds = 7, kAutoPhrase = 8,
                         kEncyclopedia = 9, kHardCountdown = 10, kFewerPoints = 11,
                         kNoPlayButton = 12, kKeyboardKept = 13;
    static constexpr int kBoxCount = 14;

    OptionChoices(ColourCodeField& colourCode, Dialogs& dialogs);

    void fill(const Settings& settings);
    // Blank fields and the name's placeholder become what the save stores,
    // and show it.
    void store(Settings& settings);

    // --- check boxes ---------------------------------------------------------------
    static bool isBox(int index) { return index >= 0 && index < kBoxCount; }
    bool box(int index) const;
    // Answers false when the design style keeps the box as it is; the player
    // has been told why.
    bool clickBox(int index);

    // --- fields --------------------------------------------------------------------
    const std::string& styleText() const { return m_style; }
    void setStyleText(const std::string& text);
    const std::string& themeText() const { return m_theme; }
    void setThemeText(const std::string& text);
    const std::string& nameText() const { return m_name; }
    void setNameText(const std::string& text);
    void nameEntered();
    void nameLeft();

private:
    void applyDependencies();
    void setBox(int index, bool on);

    ColourCodeField& m_colourCode;
    Dialogs& m_dialogs;
    std::array<bool, kBoxCount> m_boxes{};
    std::string m_style;
    std::string m_theme;
    std::string m_name;
};

} // namespace quillora
