// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "players/Players.h"

#include "state/SharedState.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillora {
namespace {

SharedState withPlayers(int count) {
    SharedState shared;
    shared.currentSlot = 1;
    shared.sessions[1].playerNames = {"Ana", "Beto", "Ciro", "Dora"};
    setUpRoster(shared, count > 1, count);
    return shared;
}

TEST(PlayersTest, MenuMovesGoRoundEveryPlayerAndLettersOnlyTheGuessers) {
    SharedState shared = withPlayers(4);
    shared.roster.currentPlayer = 3;
    std::vector<int> seen;
    for (auto move : {adelantar, adelantar, atrasar, eNext, eNext, eNext, eNext}) {
        move(shared);
        seen.push_back(shared.roster.currentPlayer);
    }
    EXPECT_EQ(seen, (std::vector<int>{4, 1, 4, 1, 2, 3, 1}));
    EXPECT_TRUE(turnMovesEnabled(shared));
}

TEST(PlayersTest, FreeTurnFreezesTheTurnAndKeepsItsCaption) {
    SharedState shared = withPlayers(3);
    toggleFreeTurn(shared);
    for (auto move : {eNext, adelantar, atrasar}) {
        move(shared);
    }
    EXPECT_EQ(shared.roster.currentPlayer, 1);
    EXPECT_EQ(ePlayerName(shared, "Ana").caption, "Turno libre");
    EXPECT_FALSE(shared.sessions[0].freeTurn) << "the flag belongs to the current slot";
    toggleFreeTurn(shared);
    eNext(shared);
    EXPECT_EQ(ePlayerName(shared, "Turno libre").caption, "Beto");
}

TEST(PlayersTest, AlonePlayerIsTheUserWithoutTurnMoves) {
    SharedState shared = withPlayers(0);
    EXPECT_FALSE(shared.multiplayer);
    EXPECT_EQ(shared.playerCount, 1);
    shared.settings.nombre.clear();
    const PlayerLabel label = ePlayerName(shared, "");
    EXPECT_EQ(label.caption, "Quillora VS");
    EXPECT_EQ(shared.settings.nombre, "Quillora VS");
    EXPECT_EQ(label.tooltip, " Jugando solo ");
    EXPECT_FALSE(turnMovesEnabled(shared));
    shared.roster.currentPlayer = 0;
    EXPECT_EQ(ePlayerName(shared, "antes").caption, "antes");
}

TEST(PlayersTest, TwoPlayersTakeTurnsWriting) {
    SharedState shared = withPlayers(2);
    std::vector<std::string> guessers;
    for (int game = 0; game < 3; ++game) {
        shared.playerCount = shared.roster.rosterSize;
        shared.roster.currentPlayer = 1;
        MoveAuthorLast(shared);
        shared.playerCount = shared.roster.guesserCount;
        eNext(shared);
        guessers.push_back(ePlayerName(shared, "").caption);
    }
    EXPECT_EQ(guessers, (std::vector<std::string>{"Beto", "Ana", "Beto"}));
    EXPECT_EQ(shared.sessions[1].playerNames[2], "Ciro") << "names past the players stay put";
}

} // namespace
} // namespace quillora
