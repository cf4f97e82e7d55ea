// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

namespace quillora {

// Who plays and whose turn it is. The names themselves are kept per user in
// SharedState::playerNames, and the player count and the with-friends flag
// in SharedState::playerCount and SharedState::multiplayer.
struct PlayerRoster {
    int rosterSize = 1;   // players chosen in the main menu, 1..9
    int guesserCount = 0; // rosterSize - 1: who guesses a friend's phrase
    int currentPlayer = 1;
    std::array<bool, 4> freeTurn{}; // "Turno libre", per session slot
};

} // namespace quillora
