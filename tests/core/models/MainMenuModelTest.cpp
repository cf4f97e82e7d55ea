// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/menu/MainMenuModel.h"

#include "state/SharedState.h"
#include "storage/ConfigFile.h"
#include "support/Fakes.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <tuple>
#include <vector>

namespace quillora {
namespace {

using Spot = MainMenuModel::Spot;
using Outcome = MainMenuModel::Outcome;
using Key = MainMenuModel::Key;

class MenuModelTest : public ::testing::Test {
protected:
    MenuModelTest() {
        leaveAnEarlierGame();
        shared.currentSession().filePath = (temp.path() / kMainConfigName).string();
    }
    // A way of playing left over from an earlier game, so a menu choice that
    // forgets a field shows.
    void leaveAnEarlierGame() {
        shared.multiplayer = true;
        shared.playerCount = 6;
        shared.roster = PlayerRoster{6, 5, 4};
    }
    void load(bool locked) {
        shared.locked = locked;
        model.load();
    }
    void expectRoster(bool multiplayer, int players) const {
        EXPECT_EQ(shared.multiplayer, multiplayer);
        EXPECT_EQ(shared.playerCount, players);
        EXPECT_EQ(shared.roster.rosterSize, players);
        EXPECT_EQ(shared.roster.guesserCount, players - 1);
        EXPECT_EQ(shared.roster.currentPlayer, 1);
    }
    void expectRosterUntouched() const {
        EXPECT_TRUE(shared.multiplayer);
        EXPECT_EQ(shared.playerCount, 6);
        EXPECT_EQ(shared.roster.rosterSize, 6);
        EXPECT_EQ(shared.roster.currentPlayer, 4);
    }

    TempFolder temp{"quillora-menu"};
    SharedState shared;
    ScriptedDialogs dialogs;
    MainMenuModel model{shared, dialogs};
};

TEST_F(MenuModelTest, KeysStartTheRightGameOrNothingInEitherState) {
    // Locked, key, character, players of the game that starts (0: the menu
    // stays), options opening.
    const std::vector<std::tuple<bool, Key, char32_t, int, bool>> keys{
        {false, Key::Character, U'1', 1, false}, {false, Key::Character, U'2', 2, false},
        {false, Key::Character, U'9', 9, false}, {false, Key::Character, U'0', 0, true},
        {false, Key::Character, U'a', 0, false}, {false, Key::Character, U'\u0663', 0, false},
        {false, Key::Enter, 0, 0, false},        {false, Key::Other, 0, 0, false},
        {true, Key::Character, U'1', 1, false},  {true, Key::Character, U'2', 0, false},
        {true, Key::Character, U'0', 0, false},  {true, Key::Enter, 0, 0, false}};
    for (const auto& [locked, key, character, players, optionsOpening] : keys) {
        SCOPED_TRACE(::testing::Message() << locked << " U+" << std::hex << int(character));
        leaveAnEarlierGame();
        shared.locked = locked;
        MainMenuModel menu{shared, dialogs};
        menu.load();
        EXPECT_EQ(menu.keyTyped(key, character), players ? Outcome::OpenBoard : Outcome::Stay);
        if (players) {
            expectRoster(players > 1, players);
        } else {
            expectRosterUntouched();
        }
        EXPECT_EQ(menu.inTimerRunning(), optionsOpening);
    }
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(MenuModelTest, EscapeAsksInEitherStateAndOnlyYesQuits) {
    for (const bool locked : {false, true}) {
        load(locked);
        dialogs.answer({false, true});
        EXPECT_EQ(model.keyTyped(Key::Escape), Outcome::Stay);
        EXPECT_EQ(model.keyTyped(Key::Escape), Outcome::Quit);
        expectRosterUntouched();
    }
    ASSERT_EQ(dialogs.shown.size(), 4U);
    for (const auto& shown : dialogs.shown) {
        EXPECT_TRUE(shown.question);
        EXPECT_EQ(shown.kind, Dialogs::Question::YesNo);
        EXPECT_EQ(shown.text, "¿Seguro de cerrar?");
    }
}

// --- the mouse -----------------------------------------------------------------------

TEST_F(MenuModelTest, EachTileSetsUpItsWayOfPlayingWhereThePressBegan) {
    load(false);
    model.press(Spot::Solo);
    EXPECT_EQ(model.tileColour(Spot::Solo), shared.palette.greenLamp);
    EXPECT_EQ(model.release(Spot::Friend), Outcome::Stay);
    EXPECT_EQ(model.tileColour(Spot::Solo), shared.palette.redLamp);
    EXPECT_EQ(model.release(Spot::Friend), Outcome::Stay);
    expectRosterUntouched();

    for (const auto& [spot, players] :
         {std::pair{Spot::Solo, 1}, {Spot::Friend, 2}, {Spot::Several, 3}}) {
        model.hover(spot);
        model.press(spot);
        EXPECT_EQ(model.release(spot), Outcome::OpenBoard);
        expectRoster(players > 1, players);
    }
}

TEST_F(MenuModelTest, LockedSessionOffersOnlyToContinue) {
    load(true);
    for (const Spot covered : {Spot::Friend, Spot::Several, Spot::Options, Spot::Lock}) {
        model.hover(covered);
        EXPECT_EQ(model.legend(), "BLOQUEADO");
        model.press(covered);
        EXPECT_EQ(model.release(covered), Outcome::Stay);
    }
    EXPECT_FALSE(model.inTimerRunning());
    EXPECT_EQ(model.numberText(), "3");
    expectRosterUntouched();
    model.hover(Spot::Solo);
    EXPECT_EQ(model.legend(), "CONTINUAR");
}

TEST_F(MenuModelTest, HoverNamesTheTileAndLightsOnlyIt) {
    load(false);
    EXPECT_EQ(model.legend(), "BIENVENIDOS");
    const std::vector<std::pair<Spot, std::string>> legends{
        {Spot::Solo, "JUGAR SOLO"},
        {Spot::Friend, "JUGAR CON UN AMIGO"},
        {Spot::Several, "JUGAR CON VARIOS AMIGOS"},
        {Spot::Options, "CONFIGURACIÓN"},
        {Spot::Lock, "BIENVENIDOS"}, // no lock on an open session
    };
    const Palette& p = shared.palette;
    for (const auto& [spot, legend] : legends) {
        model.hover(spot);
        EXPECT_EQ(model.legend(), legend);
        EXPECT_EQ(model.tileColour(Spot::Solo), spot == Spot::Solo ? p.greenLamp : p.redLamp);
        EXPECT_EQ(model.tileColour(Spot::Friend),
                  spot == Spot::Friend ? p.greenLamp : p.gameColour);
        EXPECT_EQ(model.tileColour(Spot::Options),
                  spot == Spot::Options ? p.greenLamp : p.yellowLamp);
    }
    // The legend is no option: passing over it keeps what it names.
    model.hover(Spot::Friend);
    model.hover(Spot::Legend);
    EXPECT_EQ(model.legend(), "JUGAR CON UN AMIGO");
    model.hover(Spot::Background);
    EXPECT_EQ(model.legend(), "BIENVENIDOS");
    EXPECT_EQ(model.tileColour(Spot::Friend), p.gameColour);
    model.press(Spot::Legend);
    EXPECT_EQ(model.release(Spot::Legend), Outcome::About);
}

TEST_F(MenuModelTest, LegendOpensFromItsCentreOnceForEachNewName) {
    load(false);
    EXPECT_FALSE(model.legendTimerRunning());
    model.hover(Spot::Solo);
    const int centre2 = 2 * model.legendLeft() + model.legendWidth();
    int ticks = 0;
    while (model.legendTimerRunning() && ticks < 1000) {
        model.tickLegend();
        ++ticks;
        EXPECT_EQ(2 * model.legendLeft() + model.legendWidth(), centre2);
    }
    EXPECT_GT(ticks, 1) << "it opens, it does not jump";
    EXPECT_EQ(model.legendLeft(), 0);
    EXPECT_EQ(model.legendWidth(), MainMenuModel::kWidthTwips);
    // Moving on within the same tile leaves the open legend alone.
    model.hover(Spot::Solo);
    EXPECT_FALSE(model.legendTimerRunning());
}

// --- the number box ------------------------------------------------------------------

TEST_F(MenuModelTest, NumberBoxTakesThreeOnHoverAndTheTypedDigit) {
    load(false);
    model.keyTyped(Key::Character, U'0');
    EXPECT_EQ(model.numberText(), "3") << "0 opens the options, not the box";
    model.hover(Spot::Several);
    EXPECT_EQ(model.numberText(), "3");
    EXPECT_TRUE(model.numberSelected());
    model.hover(Spot::Background);
    EXPECT_FALSE(model.numberSelected());

    EXPECT_EQ(model.keyTyped(Key::Character, U'1'), Outcome::OpenBoard);
    EXPECT_EQ(model.numberText(), "1");
    // The box keeps the typed count for a click that follows without a hover.
    EXPECT_EQ(model.keyTyped(Key::Character, U'5'), Outcome::OpenBoard);
    EXPECT_EQ(model.choose(Spot::Several), Outcome::OpenBoard);
    expectRoster(true, 5);
}

// --- the opening towards the options ---------------------------------------------------

TEST_F(MenuModelTest, OptionsTileSwellsTheWindowAroundItsCentreThenHandsOver) {
    load(false);
    model.placeWindow(3000, 2000);
    const int centreX2 = 2 * model.windowLeft() + model.windowWidth();
    model.press(Spot::Options);
    EXPECT_EQ(model.release(Spot::Options), Outcome::Stay);
    ASSERT_TRUE(model.inTimerRunning());
    Outcome outcome = Outcome::Stay;
    int ticks = 0;
    while (model.inTimerRunning() && ticks < 1000) {
        outcome = model.tickIn();
        ++ticks;
    }
    EXPECT_EQ(outcome, Outcome::OpenOptions);
    EXPECT_GE(model.windowWidth(), MainMenuModel::kInFinalWidth);
    EXPECT_LT(model.windowWidth(), MainMenuModel::kInFinalWidth + MainMenuModel::kInGrowWidth);
    EXPECT_EQ(model.windowHeight(), MainMenuModel::kInFinalHeight);
    EXPECT_EQ(2 * model.windowLeft() + model.windowWidth(), centreX2);
    EXPECT_EQ(model.tickIn(), Outcome::Stay) << "the options open once";
    expectRosterUntouched();
}

// Line 18 is read as the board reads it; the tiles take its colour.
TEST_F(MenuModelTest, TheSessionsFileGivesTheTilesTheirColour) {
    shared.palette.gameColour = Rgb{1, 2, 3};
    shared.settings.userName = "Ana";
    load(false);
    EXPECT_EQ(model.gameColour(), kDefaultBlue) << "no file";
    EXPECT_EQ(shared.settings.userName, "Quillora VS");

    std::vector<std::string> lines(20, "0");
    lines[17] = " 1327650 azul";
    ASSERT_TRUE(writeConfigLines(shared.currentSession().filePath, lines));
    shared.settings.userName = "Ana";
    load(false);
    EXPECT_EQ(model.gameColour(), (Rgb{34, 66, 20}));
    EXPECT_EQ(model.tileColour(Spot::Friend), (Rgb{34, 66, 20}));
    EXPECT_EQ(shared.settings.userName, "Ana");
}

// The constructor of the window loads the model before the menu shows: only
// the separate call once it is on screen may ask.
TEST_F(MenuModelTest, TheImportIsOfferedApartFromTheLoadAndColoursTheMenuAtOnce) {
    shared.dataFolder = temp.path();
    std::vector<std::string> lines(20, "0");
    lines[17] = "255";
    ASSERT_TRUE(writeConfigLines(temp.path() / "Quillora5.txt", lines));
    load(false);
    load(false);
    EXPECT_TRUE(dialogs.shown.empty());
    EXPECT_EQ(model.gameColour(), kDefaultBlue);

    dialogs.answer({true});
    model.offerOldConfig();
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(model.tileColour(Spot::Friend), (Rgb{255, 0, 0})) << "not only at the next showing";

    model.load();
    model.offerOldConfig();
    EXPECT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(model.gameColour(), (Rgb{255, 0, 0}));
}

} // namespace
} // namespace quillora
