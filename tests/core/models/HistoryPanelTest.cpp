// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/HistoryPanelModel.h"

#include "storage/Sessions.h"
#include "support/BoardModelFixture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillora {
namespace {

using Content = SidePanelModel::Content;
using Key = BoardModel::WindowKey;
using Entries = std::vector<std::string>;

class HistoryPanelTest : public BoardModelFixture {
protected:
    HistoryPanelTest() { shared.settings.sounds = false; }
    // A game of `phrase` won, or lost when `win` is false.
    void round(const std::string& phrase, bool win) {
        model.round().clearBoard();
        model.round().startPhrase(phrase, 1, "ANIMAL");
        if (win) {
            for (char c : phrase) {
                model.round().guess(static_cast<unsigned char>(c));
            }
        } else {
            model.round().timeUp();
        }
        ASSERT_TRUE(model.round().state().over);
        countScore();
    }
    // The board as the next opening builds it.
    Entries reopened() {
        BoardModel board{shared, dialogs, announcer, random, desktop.lookUp};
        board.load();
        return board.panels().history().entries();
    }
};

TEST_F(HistoryPanelTest, EveryEndedGameIsRecordedOnceInOrderAndABoardRebuildsTheList) {
    round("CASA", true);
    round("LA   VACA", false); // the answer text has one blank between words
    shared.multiplayer = true;
    round("PERRO", true); // without points too
    EXPECT_EQ(shared.history, "CASA\r\nLA VACA\r\nPERRO");
    EXPECT_EQ(model.panels().history().entries(), (Entries{"CASA", "LA VACA", "PERRO"}));
    EXPECT_EQ(reopened(), (Entries{"CASA", "LA VACA", "PERRO"}));
    EXPECT_EQ(reopened(), (Entries{"CASA", "LA VACA", "PERRO"})) << "each phrase once, always";

    shared.history.clear();
    EXPECT_TRUE(reopened().empty()) << "an empty text is an empty list, not one empty entry";
}

TEST_F(HistoryPanelTest, ClearingAsksFirstAndAnEmptiedListStaysEmptyThroughSwitches) {
    round("CASA", true);
    round("PERRO", true);
    dialogs.answer({false});
    model.panels().history().askToClear();
    EXPECT_EQ(dialogs.shown.back().text, "¿Quiere borrar la lista de forma completa?");
    EXPECT_EQ(model.panels().history().entries().size(), 2U) << "No keeps the list";
    dialogs.answer({true});
    model.panels().history().askToClear();
    EXPECT_TRUE(model.panels().history().entries().empty());
    EXPECT_EQ(shared.history, "");

    Sessions sessions{shared, dialogs, random};
    random.queue({0.5});
    std::string shown;
    ASSERT_TRUE(sessions.add("Ana", false, shown));
    shared.history = "GATO"; // Ana's own game
    ASSERT_TRUE(sessions.switchTo(0, false));
    EXPECT_TRUE(reopened().empty());
    ASSERT_TRUE(sessions.switchTo(1, false));
    EXPECT_EQ(reopened(), (Entries{"GATO"}));
    ASSERT_TRUE(sessions.switchTo(0, false));
    EXPECT_TRUE(reopened().empty());
}

TEST_F(HistoryPanelTest, ASelectedEntryIsLookedUpInSmallLetters) {
    shared.history = "ÁRBOL DE NAVIDAD\r\nAÑO 2000";
    model.panels().history().load();
    EXPECT_FALSE(model.panels().history().chooseForLookUp(-1)) << "no entry selected, no menu";
    EXPECT_FALSE(model.panels().history().chooseForLookUp(2));
    ASSERT_TRUE(model.panels().history().chooseForLookUp(1));
    EXPECT_EQ(model.panels().history().lookUpText(), "año 2000");
    ASSERT_TRUE(model.panels().history().chooseForLookUp(0));
    EXPECT_EQ(model.panels().history().lookUpText(), "árbol de navidad");
}

TEST_F(HistoryPanelTest, HistoryAndThemesTakeTurnsBesideTheBoard) {
    model.panels().openStats();
    ASSERT_TRUE(model.panels().stats().shown());
    model.keyTyped(Key::History);
    EXPECT_EQ(model.panels().side().content(), Content::History);
    while (model.panels().stats().animating()) {
        model.panels().stats().tick();
    }
    EXPECT_FALSE(model.panels().stats().shown()) << "the history rolls the statistics up";

    shared.current().selectedThemes[30] = shared.current().selectedThemes[2] = true;
    model.panels().openThemes();
    EXPECT_EQ(model.panels().side().content(), Content::Themes) << "one panel at a time";
    EXPECT_EQ(model.panels().themes().names(),
              (Entries{std::string(ThemeCatalogue::storedThemeName(2)),
                       std::string(ThemeCatalogue::storedThemeName(30))}));
    model.keyTyped(Key::History);
    EXPECT_EQ(model.panels().side().content(), Content::History);
    model.keyTyped(Key::History);
    EXPECT_FALSE(model.panels().side().shown()) << "Ctrl+H again puts it away";

    model.panels().toggleHistory();
    model.round().startPhrase("CASA", 1, "ANIMAL");
    model.round().answerBox().toggle();
    EXPECT_FALSE(model.panels().side().shown()) << "the answer box takes the panel's place";
}

} // namespace
} // namespace quillora
