// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quillora {

struct SharedState;

inline constexpr const char* kFreeTurnCaption = "Turno libre";
inline constexpr const char* kDefaultUserName = "Quillora VS";

// What the board's player labels show: the caption of the first player label and the
// tooltip of both labels.
struct PlayerLabel {
    std::string caption;
    std::string tooltip;
};

// The part every way of playing in the main menu shares, once it has chosen
// whether friends play and how many players there are.
void setUpRoster(SharedState& shared, bool multiplayer, int rosterSize);

// After every letter played: the turn goes round the guessers only, since
// the one who wrote a friend's phrase sits last and does not guess it.
void passTurn(SharedState& shared);

// "Adelantar" and "Atrasar" of the board's turn menu: these go round every
// player, writer included.
void moveTurnForward(SharedState& shared);
void moveTurnBack(SharedState& shared);
bool turnMovesEnabled(const SharedState& shared);

// "Turno libre" of the turn menu, kept for the current session slot.
bool freeTurnOn(const SharedState& shared);
void toggleFreeTurn(SharedState& shared);

// The player who wrote the phrase goes to the end of the order, so the
// guessers are the positions before.
void moveAuthorLast(SharedState& shared);

// The name of the position 1..9 in the current session slot ("" outside).
std::string playerName(const SharedState& shared, int position);

// The label of the player whose turn it is. A caption for a position outside
// 1..9 stays what it was, hence `currentCaption`.
PlayerLabel playerLabelFor(SharedState& shared, const std::string& currentCaption);

} // namespace quillora
