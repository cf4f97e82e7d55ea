// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

namespace quillora {

// Who plays and whose turn it is. The names themselves and the free turn are
// kept per user in SessionSlot, and the player count and the with-friends flag
// in SharedState::playerCount and SharedState::multiplayer.
struct PlayerRoster {
    int rosterSize = 1;   // players chosen in the main menu, 1..9
    int guesserCount = 0; // rosterSize - 1: who guesses a friend's phrase
    int currentPlayer = 1;
};

} // namespace quillora
