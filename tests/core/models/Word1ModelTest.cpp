// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/frmWord1/Word1Model.h"

#include "players/Players.h"
#include "state/SharedState.h"
#include "support/Fakes.h"

#include <gtest/gtest.h>

namespace quillora {
namespace {

TEST(Word1ModelTest, KeysKeepTheAlphabetUpToTheLastCell) {
    Word1Model model(SharedState{});
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

TEST(Word1ModelTest, AcceptIsRefusedForEmptyLeadingBlankOrAccents) {
    SharedState shared;
    setUpRoster(shared, true, 3);
    ScriptedDialogs dialogs;
    Word1Model model(shared);
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

TEST(Word1ModelTest, AcceptMovesTheAuthorLastAndNamesTheTheme) {
    SharedState shared;
    shared.sessions[0].playerNames = {"Ana", "Beto", "Ciro", "Dora"};
    setUpRoster(shared, true, 3);
    adelantar(shared);
    ScriptedDialogs dialogs;
    Word1Model first(shared);
    first.setThemeText("Animales");
    first.setPhraseText("el  niño 7");
    const auto phrase = first.accept(shared, dialogs);
    ASSERT_TRUE(phrase);
    EXPECT_EQ(phrase->phrase, "EL  NIÑO 7");
    EXPECT_EQ(phrase->letterTotal, 7);
    EXPECT_EQ(phrase->themeText, "Animales");
    EXPECT_EQ(shared.sessions[0].playerNames,
              (std::array<std::string, 9>{"Ana", "Ciro", "Beto", "Dora"}));
    EXPECT_EQ(ePlayerName(shared, "").caption, "Ciro");
    EXPECT_EQ(ePlayerName(shared, "").tooltip, " 2 Jugadores están jugando ");

    setUpRoster(shared, true, 3);
    Word1Model second(shared);
    second.setThemeText("");
    second.themeFocusOut();
    second.themeFocusIn();
    EXPECT_EQ(second.themeText(), "");
    second.setPhraseText("GATO");
    EXPECT_EQ(second.accept(shared, dialogs)->themeText, "Frase de Ana");
}

} // namespace
} // namespace quillora
