// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Colour.h"
#include "state/PlayerRoster.h"
#include "state/Settings.h"
#include "state/UserSession.h"
#include "state/UserStats.h"
#include "words/OwnThemes.h"

#include <array>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace quillora {

inline constexpr int kSessionSlots = 4;
// Themes 0..50 of the catalogue, then the player's own.
inline constexpr int kThemeFlags = 51 + kMaxOwnThemes;
inline constexpr int kMaxPlayers = 9;
inline constexpr const char* kMainConfigName = "QuilloraVS5.txt";

// Everything one user slot keeps while the program runs: the ten fields a
// switch copies in and out, and what belongs to the user beside them.
struct SessionSlot {
    UserSession record;
    std::array<bool, kThemeFlags> selectedThemes{};
    // The selection as it was before a thematic tour took it over.
    std::array<bool, kThemeFlags> tourCopy{};
    std::array<std::string, kMaxPlayers> playerNames{};
    // The theme names of the last two games drawn from the catalogue.
    std::string lastThemeName;
    std::string previousThemeName;
    // The name of the theme of one's own the user plays alone, empty while
    // a built-in theme is the theme: the configuration file only holds
    // numbers 1 to 50, so this stands in for its theme line while the
    // program runs, and is what keeps the choice from one run to the next.
    std::string ownThemeName;
    // "Turno libre".
    bool freeTurn = false;
    // The page of the options window the user looked at last, shown first
    // when the window opens again: 0 PERSONAL, 1 VISUAL, 2 FUNCIONAL, 3 LIBRE!.
    int optionsPage = 0;
    // Kept in memory only: a restart of the board or a change of user leaves
    // them, the end of the program forgets them.
    UserStats stats;
};

// What every window of the game reads and writes: the options of the current
// session, the palette, the live values of the current user and the four
// session slots. One object, made by main and handed to the windows.
struct SharedState {
    // --- options of the current session -------------------------------------------
    Settings settings;
    // The twenty line values as last read or written, before the options
    // take their bounds: what the file holds, so a save keeps what a load
    // did not interpret.
    std::array<std::string, 20> configLines{};
    // The file those values were read from. Until a session's own file has
    // been read, what memory holds is the start's defaults or the options of
    // the user before, and no ground for saving over that file.
    std::string settingsFile;
    Palette palette;
    // Where the configuration files live.
    std::filesystem::path dataFolder;
    // The themes of the player's own, read from the data folder at the start.
    std::vector<OwnTheme> ownThemes;
    // Files whose last save failed and the player has been told so.
    std::set<std::string> saveFailuresTold;
    // The board fills the screen, scaled up for a classroom (F11): kept
    // from one opening of the board to the next until the program ends.
    bool boardFullScreen = false;
    // The player said No to copying an older installation's configuration:
    // the menu does not ask again until the program ends.
    bool importDeclined = false;
    // The next start reads the current user's progress file rather than
    // starting them afresh: at program start, and when a deleted session
    // hands back to the main one.
    bool progressToRead = true;
    // What the player is to be told of a progress file that could not be
    // read; the main menu says it once.
    std::string progressNotice;

    // --- live values of the current user ----------------------------------------
    double normalPoints = 0;
    double survivalPoints = 1000;
    int correctionsLeft = 3;
    std::string history;
    std::string key;
    bool locked = false;
    int tourPosition = 0;
    // A theme was picked from the themes list in this session.
    bool themeChosen = false;

    // --- sessions ----------------------------------------------------------------
    std::array<SessionSlot, kSessionSlots> sessions{};
    int currentSlot = 0;
    // Some session was switched to, added or deleted since the start.
    bool sessionLoaded = false;
    // A switch asked the start of the board not to apply the first-run
    // defaults again.
    bool skipStartDefaults = false;
    // Survival mode was just switched: the board that reopens says so once.
    bool survivalAnnounce = false;

    // --- players -----------------------------------------------------------------
    // The phrase is typed by a friend rather than drawn from the catalogue.
    bool multiplayer = false;
    int playerCount = 1;
    PlayerRoster roster;
    // --- the game laid last, whoever laid it -------------------------------------
    // Its theme text, offered to the next friend who writes a phrase.
    std::string lastGameTheme;
    // Its phrase number: the next draw never repeats it, even after a trip
    // to the menu has built a new board.
    int previousPhraseNumber = 0;

    SessionSlot& current() { return sessions[static_cast<std::size_t>(currentSlot)]; }
    const SessionSlot& current() const { return sessions[static_cast<std::size_t>(currentSlot)]; }
    UserSession& currentSession() { return current().record; }
    const UserSession& currentSession() const { return current().record; }
    std::filesystem::path mainConfigPath() const { return dataFolder / kMainConfigName; }
};

} // namespace quillora
