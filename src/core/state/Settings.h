// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/BoardLook.h"
#include "look/Colour.h"

#include <string>

namespace quillora {

// The options of the current session, one per line of its configuration
// file. The defaults are those of a fresh file.
struct Settings {
    std::string backgroundPicture;   // 1: background picture file
    std::string pictureFolder;       // 2: its folder
    int letterStyle = 1;             // 3: letter style 0..4
    bool opaqueLetters = false;      // 4
    bool whiteLetters = false;       // 5
    bool whiteLines = false;         // 6
    bool realSize = false;           // 7
    bool sounds = true;              // 8
    bool autoPhrase = false;         // 9
    bool animated = false;           // 10
    int theme = 1;                   // 11: theme number 1..50
    bool pointsSystem = true;        // 12
    bool survival = false;           // 13
    int countdown = 0;               // 14: 0 off, 1 countdown, 2 hard countdown
    std::string userName;            // 15: user name
    bool useEncyclopedia = false;    // 16
    bool moreNegativePoints = false; // 17
    Rgb gameColour = kDefaultBlue;   // 18
    bool playButtonHidden = false;   // 19
    bool keyboardKeptOpen = false;   // 20

    LetterStyle letters() const { return {letterStyle, opaqueLetters, whiteLetters, whiteLines}; }
};

} // namespace quillora
