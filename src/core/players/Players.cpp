// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "players/Players.h"

#include "state/SharedState.h"

#include <algorithm>

namespace quillora {

void setUpRoster(SharedState& shared, bool multiplayer, int rosterSize) {
    PlayerRoster& roster = shared.roster;
    shared.multiplayer = multiplayer;
    roster.rosterSize = rosterSize;
    roster.currentPlayer = 1;
    if (roster.rosterSize == 0) {
        roster.rosterSize = 1;
        shared.multiplayer = false;
    }
    roster.guesserCount = roster.rosterSize - 1;
    shared.playerCount = roster.rosterSize;
}

void passTurn(SharedState& shared) {
    if (freeTurnOn(shared)) {
        return;
    }
    PlayerRoster& roster = shared.roster;
    ++roster.currentPlayer;
    if (roster.currentPlayer > roster.guesserCount) {
        roster.currentPlayer = 1;
    }
}

void moveTurnForward(SharedState& shared) {
    if (freeTurnOn(shared)) {
        return;
    }
    PlayerRoster& roster = shared.roster;
    ++roster.currentPlayer;
    if (roster.currentPlayer > roster.rosterSize) {
        roster.currentPlayer = 1;
    }
}

void moveTurnBack(SharedState& shared) {
    if (freeTurnOn(shared)) {
        return;
    }
    PlayerRoster& roster = shared.roster;
    --roster.currentPlayer;
    if (roster.currentPlayer < 1) {
        roster.currentPlayer = roster.rosterSize;
    }
}

bool turnMovesEnabled(const SharedState& shared) {
    return shared.multiplayer && shared.playerCount != 1;
}

bool freeTurnOn(const SharedState& shared) {
    return shared.current().freeTurn;
}

void toggleFreeTurn(SharedState& shared) {
    bool& on = shared.current().freeTurn;
    on = !on;
}

void moveAuthorLast(SharedState& shared) {
    auto& names = shared.current().playerNames;
    const int author = shared.roster.currentPlayer;
    const int last = std::min(shared.playerCount, kMaxPlayers);
    // An author outside the players of this game would be copied over a
    // guesser instead of moved, so the order is left alone.
    if (author < 1 || author > last) {
        return;
    }
    const std::string authorName = names[static_cast<std::size_t>(author - 1)];
    for (int position = author; position < last; ++position) {
        names[static_cast<std::size_t>(position - 1)] = names[static_cast<std::size_t>(position)];
    }
    names[static_cast<std::size_t>(last - 1)] = authorName;
}

std::string playerName(const SharedState& shared, int position) {
    if (position < 1 || position > kMaxPlayers) {
        return {};
    }
    return shared.current().playerNames[static_cast<std::size_t>(position - 1)];
}

PlayerLabel playerLabelFor(SharedState& shared, const std::string& currentCaption) {
    if (shared.settings.userName.empty()) {
        shared.settings.userName = kDefaultUserName;
    }
    PlayerLabel label;
    const int position = shared.roster.currentPlayer;
    if (freeTurnOn(shared)) {
        // Nobody's turn is tracked, so no name may replace the notice.
        label.caption = kFreeTurnCaption;
    } else if (position == 1 && !shared.multiplayer) {
        label.caption = shared.settings.userName;
    } else if (position >= 1 && position <= kMaxPlayers) {
        label.caption = playerName(shared, position);
    } else {
        label.caption = currentCaption;
    }
    label.tooltip = shared.playerCount == 1
                        ? std::string(" Jugando solo ")
                        : " " + std::to_string(shared.playerCount) + " Jugadores están jugando ";
    return label;
}

} // namespace quillora
