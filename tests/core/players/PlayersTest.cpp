// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "players/Players.h"

#include "models/friendPhrase/FriendPhraseModel.h"
#include "models/players/PlayersModel.h"
#include "state/SharedState.h"
#include "support/Fakes.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillora {
namespace {

// Four named players in a session of their own; the user is Lucía.
SharedState players(int count, int slot = 0) {
    SharedState shared;
    shared.currentSlot = slot;
    shared.current().playerNames = {"Ana", "Beto", "Ciro", "Dora"};
    setUpRoster(shared, count > 1, count);
    shared.settings.userName = "Lucía";
    return shared;
}

TEST(PlayersTest, MenuMovesGoRoundEveryPlayerAndLettersOnlyTheGuessers) {
    SharedState shared = players(4, 1);
    shared.roster.currentPlayer = 3;
    std::vector<int> seen;
    for (auto move : {moveTurnForward, moveTurnForward, passTurn, moveTurnBack, moveTurnBack,
                      passTurn, passTurn, passTurn, passTurn}) {
        move(shared);
        seen.push_back(shared.roster.currentPlayer);
    }
    EXPECT_EQ(seen, (std::vector<int>{4, 1, 2, 1, 4, 1, 2, 3, 1}));
    EXPECT_TRUE(turnMovesEnabled(shared));
}

TEST(PlayersTest, FreeTurnFreezesTheTurnAndKeepsItsCaption) {
    SharedState shared = players(3, 1);
    toggleFreeTurn(shared);
    for (auto move : {passTurn, moveTurnForward, moveTurnBack}) {
        move(shared);
    }
    EXPECT_EQ(shared.roster.currentPlayer, 1);
    EXPECT_EQ(playerLabelFor(shared, "Ana").caption, "Turno libre");
    EXPECT_FALSE(shared.sessions[0].freeTurn) << "the flag belongs to the current slot";
    toggleFreeTurn(shared);
    passTurn(shared);
    EXPECT_EQ(playerLabelFor(shared, "Turno libre").caption, "Beto");
}

TEST(PlayersTest, AlonePlayerIsTheUserWithoutTurnMoves) {
    SharedState shared = players(0, 1);
    EXPECT_EQ(shared.playerCount, 1);
    shared.settings.userName.clear();
    const PlayerLabel label = playerLabelFor(shared, "");
    EXPECT_EQ(label.caption, "Quillora VS");
    EXPECT_EQ(shared.settings.userName, "Quillora VS");
    EXPECT_EQ(label.tooltip, " Jugando solo ");
    EXPECT_FALSE(turnMovesEnabled(shared));
    shared.roster.currentPlayer = 0;
    EXPECT_EQ(playerLabelFor(shared, "antes").caption, "antes");
}

TEST(PlayersTest, TwoPlayersTakeTurnsWriting) {
    SharedState shared = players(2, 1);
    std::vector<std::string> guessers;
    for (int game = 0; game < 3; ++game) {
        shared.playerCount = shared.roster.rosterSize;
        shared.roster.currentPlayer = 1;
        moveAuthorLast(shared);
        shared.playerCount = shared.roster.guesserCount;
        passTurn(shared);
        guessers.push_back(playerLabelFor(shared, "").caption);
    }
    EXPECT_EQ(guessers, (std::vector<std::string>{"Beto", "Ana", "Beto"}));
    EXPECT_EQ(shared.sessions[1].playerNames[2], "Ciro") << "names past the players stay put";
}

// --- the names window -----------------------------------------------------------------

TEST(NamesModelTest, ShowsThePlayersRowsAndGoesRoundThemOnEnter) {
    const PlayersModel four(players(4));
    EXPECT_TRUE(four.rowVisible(4) && !four.rowVisible(5));
    EXPECT_EQ(four.enter(3).focusBox, 4);
    EXPECT_EQ(four.enter(4).focusBox, 1);
    EXPECT_FALSE(four.enter(4).close);
    const PlayersModel alone(players(1));
    EXPECT_EQ(alone.text(1), "Lucía");
    EXPECT_TRUE(alone.enter(1).close);
}

TEST(NamesModelTest, TwoTicksSwapAndAThirdIsRefused) {
    PlayersModel model(players(4));
    EXPECT_TRUE(model.setTicked(3, true));
    EXPECT_FALSE(model.changeTimerRunning());
    EXPECT_TRUE(model.setTicked(1, true));
    EXPECT_FALSE(model.setTicked(4, true));
    EXPECT_TRUE(model.setTicked(1, true)) << "a box told again what it is stays ticked";
    model.tickChange();
    EXPECT_EQ(model.text(1), "Ciro");
    EXPECT_EQ(model.text(3), "Ana");
    EXPECT_FALSE(model.checked(1) || model.checked(3) || model.changeTimerRunning());
}

TEST(NamesModelTest, PlaceholderMakesWayAndFillsTheEmptyPlayersOnClose) {
    SharedState shared = players(3);
    PlayersModel model(shared);
    model.setText(2, "JUGADOR 2");
    model.focusIn(2);
    EXPECT_EQ(model.text(2), "");
    model.setText(3, "");
    model.setText(5, "Eva");
    model.keepNames(shared);
    EXPECT_EQ(shared.sessions[0].playerNames,
              (std::array<std::string, 9>{"Ana", "JUGADOR 2", "JUGADOR 3", "Dora", "Eva"}));
    EXPECT_EQ(shared.settings.userName, "Lucía");

    SharedState alone = players(1);
    PlayersModel single(alone);
    single.setText(1, "Marta");
    single.keepNames(alone);
    EXPECT_EQ(alone.settings.userName, "Marta");
    EXPECT_EQ(alone.currentSession().displayName, "Marta");
    EXPECT_EQ(alone.sessions[0].playerNames[0], "Ana");
}

// --- the phrase a friend writes ---------------------------------------------------------

TEST(FriendPhraseModelTest, KeysKeepTheAlphabetUpToTheLastCell) {
    FriendPhraseModel model(SharedState{});
    for (char32_t key : std::u32string_view(U" a\u00F1o \u00FA1!")) {
        model.type(key);
    }
    EXPECT_EQ(model.phraseText(), "año 1");
    EXPECT_EQ(model.previewRow(1), "AÑO 1");
    model.setPhraseText("abcdefghijklmnopqrstuvwxyz0123456789abcdefgh");
    EXPECT_FALSE(model.keyAllowed('g'));
    EXPECT_TRUE(model.keyAllowed(8));
    EXPECT_EQ(model.previewRow(2), "OPQRSTUVWXYZ01");
    EXPECT_EQ(model.previewRow(3), "23456789ABCDEF");
}

TEST(FriendPhraseModelTest, AcceptIsRefusedForEmptyLeadingBlankOrAccents) {
    SharedState shared = players(3);
    ScriptedDialogs dialogs;
    FriendPhraseModel model(shared);
    EXPECT_EQ(model.themeText(), "(Ninguno)");
    for (const char* pasted : {"", " HOLA", "canción"}) {
        model.setPhraseText(pasted);
        EXPECT_FALSE(model.accept(shared, dialogs));
    }
    ASSERT_EQ(dialogs.shown.size(), 1u) << "only the accent is told about";
    EXPECT_EQ(dialogs.shown[0].icon, Dialogs::Icon::Exclamation);
    EXPECT_EQ(dialogs.shown[0].text,
              "Espere, hay mínimo un símbolo o letra con acento, revise si los hay y quítelos.");
    EXPECT_EQ(model.phraseText(), "CANCIÓN");
    EXPECT_EQ(shared.playerCount, 3);
}

TEST(FriendPhraseModelTest, AcceptMovesTheAuthorLastAndNamesTheTheme) {
    SharedState shared = players(3);
    moveTurnForward(shared);
    ScriptedDialogs dialogs;
    FriendPhraseModel first(shared);
    first.setThemeText("Animales");
    first.setPhraseText("el  niño 7");
    const auto phrase = first.accept(shared, dialogs);
    ASSERT_TRUE(phrase);
    EXPECT_EQ(phrase->phrase, "EL  NIÑO 7");
    EXPECT_EQ(phrase->letterTotal, 7);
    EXPECT_EQ(phrase->themeText, "Animales");
    EXPECT_EQ(shared.sessions[0].playerNames,
              (std::array<std::string, 9>{"Ana", "Ciro", "Beto", "Dora"}));
    EXPECT_EQ(playerLabelFor(shared, "").caption, "Ciro");
    EXPECT_EQ(playerLabelFor(shared, "").tooltip, " 2 Jugadores están jugando ");

    setUpRoster(shared, true, 3);
    FriendPhraseModel second(shared);
    second.setThemeText("");
    second.themeFocusOut();
    second.themeFocusIn();
    EXPECT_EQ(second.themeText(), "");
    second.setPhraseText("GATO");
    EXPECT_EQ(second.accept(shared, dialogs)->themeText, "Frase de Ana");
}

} // namespace
} // namespace quillora
