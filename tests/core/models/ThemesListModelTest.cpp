// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/themesList/ThemesListModel.h"

#include "round/ThemeSelection.h"
#include "storage/ConfigFile.h"
#include "storage/Sessions.h"
#include "support/BoardModelFixture.h"
#include "support/Draws.h"
#include "words/ThemeCatalogue.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace quillora {
namespace {

using Outcome = ThemesListModel::Outcome;

class ListModelTest : public BoardModelFixture {
protected:
    ListModelTest() {
        shared.settings.sounds = false;
        shared.settings.theme = 20;
    }
    // The themes list as the phrase window opens it, with `marked` selected
    // before.
    void open(std::initializer_list<int> marked) {
        for (int t : marked) {
            shared.current().selectedThemes[static_cast<std::size_t>(t)] = true;
        }
        list.load();
    }
    void highlightOnly(std::initializer_list<int> themes) {
        list.clearAll();
        for (int t : themes) {
            list.setHighlighted(t - 1, true);
        }
    }
    int highlightedCount() const {
        int n = 0;
        for (int row = 0; row < list.rows(); ++row) {
            n += list.highlighted(row) ? 1 : 0;
        }
        return n;
    }
    std::string savedLine(int n) const { return storedLine(shared.currentSession().filePath, n); }

    ThemesListModel list{shared, model.round().phraseChoice(), dialogs};
};

TEST_F(ListModelTest, OnlyTwoOrMoreMarkedThemesShowHighlightedAndAceptarFollowsTheHighlights) {
    shared.current().selectedThemes[0] = true;
    open({7});
    EXPECT_FALSE(shared.current().selectedThemes[0]) << "entry 0 is cleared on opening";
    ASSERT_EQ(list.rows(), ThemeCatalogue::kThemes);
    for (int row = 0; row < list.rows(); ++row) {
        EXPECT_EQ(list.names()[static_cast<std::size_t>(row)],
                  ThemeCatalogue::storedThemeName(row + 1))
            << "row " << row << " is theme " << row + 1;
    }
    EXPECT_EQ(highlightedCount(), 0) << "a single theme is not shown as a choice";
    EXPECT_FALSE(list.acceptEnabled());

    list.setHighlighted(3, true);
    EXPECT_TRUE(list.acceptEnabled());
    list.setHighlighted(3, false);
    EXPECT_FALSE(list.acceptEnabled());
    list.selectAll();
    EXPECT_EQ(highlightedCount(), 50);
    EXPECT_TRUE(list.acceptEnabled());
    list.clearAll();
    EXPECT_FALSE(list.acceptEnabled());
    EXPECT_EQ(list.acceptChoice(), Outcome::Stay) << "nothing highlighted is nothing to play";
    EXPECT_TRUE(shared.current().selectedThemes[7]) << "and the table is left as it was";

    shared.current().selectedThemes = {};
    open({5, 9, 30});
    EXPECT_EQ(highlightedCount(), 3);
    EXPECT_TRUE(list.highlighted(4) && list.highlighted(8) && list.highlighted(29));
    EXPECT_TRUE(list.acceptEnabled());
}

TEST_F(ListModelTest, AcceptingStoresTheTableAndOneThemeAloneBecomesTheTheme) {
    open({});
    random.queue({theme(14), theme(3), phrase(2)});
    highlightOnly({3, 8, 40});
    ASSERT_EQ(list.acceptChoice(), Outcome::Accepted);
    EXPECT_EQ(shared.settings.theme, 20) << "three themes keep the theme setting";
    EXPECT_TRUE(shared.current().selectedThemes[3] && shared.current().selectedThemes[8] &&
                shared.current().selectedThemes[40]);
    EXPECT_FALSE(shared.current().selectedThemes[20]);
    const PhraseChoice& choice = model.round().phraseChoice();
    EXPECT_EQ(choice.themeWindowLabel(), "????") << "the phrase window drew again";
    EXPECT_EQ(choice.drawnPhrase(), ThemeCatalogue::storedPhrase(3, 3));
    EXPECT_TRUE(shared.themeChosen);

    list.load();
    random.queue({phrase(5)});
    highlightOnly({12});
    ASSERT_EQ(list.acceptChoice(), Outcome::Accepted);
    EXPECT_EQ(shared.settings.theme, 12);
    EXPECT_EQ(savedLine(11), "12") << "the chosen theme is saved at once";
    EXPECT_EQ(choice.themeWindowLabel(), std::string(ThemeCatalogue::storedThemeName(12)));
    EXPECT_EQ(choice.drawnPhrase(), ThemeCatalogue::storedPhrase(12, 6));
    EXPECT_FALSE(shared.current().selectedThemes[40]);
}

// The teacher's file in the data folder shows after the fifty, is chosen
// alone as any theme is, and never reaches the configuration file's line.
TEST_F(ListModelTest, OwnThemesFollowTheFiftyAndAreAddedWithoutOverwriting) {
    std::filesystem::create_directories(temp.path() / "temas");
    std::ofstream(temp.path() / "temas" / "Mis palabras.txt")
        << "Mis palabras\nSOL\nsol y luna\n"
           "12345678901234567890123456789012345678901234\n";
    EXPECT_EQ(readOwnThemes(shared),
              (std::vector<std::string>{"Mis palabras.txt, línea 4: la frase no cabe en el "
                                        "tablero."}));
    open({});
    ASSERT_EQ(list.rows(), ThemeCatalogue::kThemes + 1);
    EXPECT_EQ(list.names().back(), "Mis palabras");
    highlightOnly({12});
    random.queue({phrase(5)});
    ASSERT_EQ(list.acceptChoice(), Outcome::Accepted);
    random.queue({0.9});
    highlightOnly({51});
    ASSERT_EQ(list.acceptChoice(), Outcome::Accepted);
    EXPECT_EQ(shared.settings.theme, 51);
    EXPECT_EQ(model.round().phraseChoice().drawnPhrase(), "SOL Y LUNA");
    EXPECT_EQ(savedLine(11), "12") << "the file keeps the built-in theme it had";
    // The board that opens next reads the file, and plays the own theme on.
    loadSessionSettings(shared, random);
    EXPECT_EQ(shared.settings.theme, 51);
    EXPECT_EQ(shared.current().ownThemeName, "Mis palabras");

    // "Añadir temas…" copies a checked file in, telling what it left out.
    const auto outside = temp.path() / "Verbos.txt";
    std::ofstream(outside) << "Verbos\nCORRER\n¿SALTAR?\n";
    EXPECT_TRUE(list.addThemeFile(outside));
    EXPECT_EQ(slurp(temp.path() / "temas" / "Verbos.txt"), slurp(outside));
    EXPECT_EQ(list.names().back(), "Verbos");
    EXPECT_EQ(themeNameOf(shared, 52), "Verbos");
    ASSERT_EQ(dialogs.shown.size(), 1u);
    EXPECT_NE(dialogs.shown.back().text.find("Verbos.txt, línea 3:"), std::string::npos);

    // The same name, or a file already there, is refused and left alone.
    EXPECT_FALSE(list.addThemeFile(outside));
    std::ofstream(outside) << "Otros verbos\nLEER\n";
    EXPECT_FALSE(list.addThemeFile(outside));
    EXPECT_EQ(slurp(temp.path() / "temas" / "Verbos.txt"), "Verbos\nCORRER\n¿SALTAR?\n");
    EXPECT_EQ(list.rows(), ThemeCatalogue::kThemes + 2);
    EXPECT_EQ(ownThemeNumber(shared, "Verbos"), 52);
    EXPECT_EQ(ownThemeNumber(shared, "Otros verbos"), 0);
}

TEST_F(ListModelTest, OnlyAPressHeldUntilTheTickAcceptsAndPlays) {
    open({});
    highlightOnly({4});
    EXPECT_EQ(list.tickGo(), Outcome::Stay) << "no press, no hold";
    list.press();
    list.release();
    EXPECT_FALSE(list.goTimerRunning());
    EXPECT_EQ(list.tickGo(), Outcome::Stay) << "released before the half second";
    EXPECT_NE(shared.settings.theme, 4);

    list.press();
    EXPECT_TRUE(list.goTimerRunning());
    random.queue({phrase(1)});
    EXPECT_EQ(list.tickGo(), Outcome::Play);
    EXPECT_EQ(shared.settings.theme, 4);
    EXPECT_FALSE(list.goTimerRunning()) << "one hold, one game";

    highlightOnly({});
    list.press();
    EXPECT_EQ(list.tickGo(), Outcome::Stay) << "a hold with nothing highlighted plays nothing";
}

TEST_F(ListModelTest, TheListOpensBesideThePhraseWindowButNotAboveTheScreensTop) {
    EXPECT_GT(ThemesListModel::placeLeft(3000), 3000) << "right of the phrase window";
    // Higher up than the phrase window and moving with it, until the top of
    // the screen stops it.
    constexpr int kMinTop = ThemesListModel::kMinTop;
    for (int top = -300; top <= 6000; top += 15) {
        const int placed = ThemesListModel::placeTop(top);
        EXPECT_GE(placed, kMinTop) << top;
        EXPECT_TRUE(placed < top || placed == kMinTop) << top;
        const int next = ThemesListModel::placeTop(top + 15);
        EXPECT_TRUE(next == placed + 15 || next == kMinTop) << top;
    }
    EXPECT_GT(ThemesListModel::placeTop(6000), kMinTop) << "a low window is not held back";
}

// --- the thematic tour --------------------------------------------------------------

class TourTest : public ListModelTest {
protected:
    // The game on the board is lost at once, and the next one started.
    void loseAndPlayOn() {
        model.round().timeUp();
        ASSERT_TRUE(model.round().state().over);
        countScore();
        model.playPressed(); // "NUEVA PARTIDA" clears the board
        random.queue({phrase(m_next++ % 2)});
        ASSERT_EQ(model.playPressed(), GameStart::Started);
    }
    int m_next = 1;
};

TEST_F(TourTest, ATourWalksEveryThemeInOrderWrapsAndGivesTheSelectionBack) {
    open({5, 9});
    random.queue({phrase(2)});
    ASSERT_EQ(list.tour(), Outcome::Tour);
    EXPECT_EQ(shared.tourPosition, 1);
    EXPECT_TRUE(shared.settings.autoPhrase);
    const PhraseChoice& choice = model.round().phraseChoice();
    EXPECT_TRUE(choice.autoMarkerVisible());
    EXPECT_EQ(choice.autoMarkerCaption(), "T");
    EXPECT_EQ(choice.autoMarkerTooltip(), " Desactivar el tour temático. ");
    EXPECT_FALSE(shared.current().selectedThemes[5]) << "the tour borrows the table";
    EXPECT_EQ(model.round().themeLabel(), ThemeCatalogue::storedThemeName(1))
        << "the first game starts at once";

    for (int expected = 1; expected <= 50; ++expected) {
        ASSERT_EQ(model.round().gameTheme(), expected);
        loseAndPlayOn();
    }
    EXPECT_EQ(model.round().gameTheme(), 1) << "after the fiftieth theme the first again";
    EXPECT_EQ(savedLine(9), "0") << "a tour is never saved as an automatic phrase";

    model.commands().toggleAutoPhrase();
    EXPECT_EQ(shared.tourPosition, 0);
    EXPECT_FALSE(shared.settings.autoPhrase);
    EXPECT_TRUE(shared.current().selectedThemes[5] && shared.current().selectedThemes[9]);
    EXPECT_EQ(shared.current().selectedThemes[1], false);
    EXPECT_EQ(choice.autoMarkerCaption(), "A");
}

TEST_F(TourTest, TheTourStaysWithItsUserThroughASwitchAndBack) {
    open({});
    random.queue({phrase(2)});
    list.tour();
    loseAndPlayOn();
    loseAndPlayOn();
    ASSERT_EQ(shared.tourPosition, 3);
    model.round().timeUp();
    countScore();
    ASSERT_EQ(shared.tourPosition, 4);

    Sessions sessions{shared, dialogs, random};
    random.queue({0.5});
    std::string shown;
    ASSERT_TRUE(sessions.add("Ana", false, shown));
    EXPECT_EQ(shared.tourPosition, 0) << "a new user has no tour";
    ASSERT_TRUE(sessions.switchTo(0, false));
    EXPECT_EQ(shared.tourPosition, 4);

    // The switch opens a fresh board for the user who came back.
    BoardModel board{shared, dialogs, announcer, random, desktop.lookUp};
    board.load();
    EXPECT_TRUE(shared.settings.autoPhrase);
    EXPECT_EQ(board.round().phraseChoice().autoMarkerCaption(), "T");
    random.queue({phrase(5)});
    ASSERT_EQ(board.playPressed(), GameStart::Started) << "no phrase window during a tour";
    EXPECT_EQ(board.round().gameTheme(), 4);
}

} // namespace
} // namespace quillora
