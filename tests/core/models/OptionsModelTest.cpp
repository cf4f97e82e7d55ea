// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/options/OptionsModel.h"

#include "storage/ConfigFile.h"
#include "support/LoadedSession.h"
#include "support/RefusedWrites.h"

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace quillora {
namespace {

using Page = OptionsModel::Page;
using Field = OptionsModel::Field;
using Act = OptionsModel::KeyAction::Kind;
using Icon = Dialogs::Icon;
using Channel = OptionsModel::Channel;

constexpr std::array<int, OptionsModel::kBoxCount> kEveryBox{0, 1, 2, 3,  4,  5,  6,
                                                             7, 8, 9, 10, 11, 12, 13};

// A session file with every option off, style 0 (so every box may be
// clicked) and a name of its own. `changed` puts other text on some lines,
// counted from 1.
std::vector<std::string> fileLines(const std::map<int, std::string>& changed = {}) {
    std::vector<std::string> lines{"",  "",  "0", "0", "0",   "0", "0", "0",        "0", "0",
                                   "7", "0", "0", "0", "Ana", "0", "0", "15759390", "0", "0"};
    for (const auto& [line, text] : changed) {
        lines.at(static_cast<std::size_t>(line - 1)) = text;
    }
    return lines;
}

class OptionsModelTest : public ::testing::Test {
protected:
    std::filesystem::path file() const { return shared.currentSession().filePath; }
    // The file, then the options in memory as the board reads them.
    void givenFile(const std::vector<std::string>& lines) {
        ASSERT_TRUE(writeConfigLines(file(), lines));
        boardLoad();
    }
    void boardLoad() {
        clearForBoardLoad(shared);
        readSessionFile(shared, random);
        applyLineValues(shared);
    }
    OptionsModel& open() {
        model = std::make_unique<OptionsModel>(shared, dialogs);
        model->open();
        return *model;
    }
    std::set<int> ticked() const {
        std::set<int> on;
        for (int box : kEveryBox) {
            if (model->box(box)) {
                on.insert(box);
            }
        }
        return on;
    }
    std::vector<std::string> savedLines() const {
        return readConfigLines(file()).value_or(std::vector<std::string>{});
    }
    std::string savedLine(int line) const { return storedLine(file(), line); }

    LoadedSession session{"quillora-options"};
    SharedState& shared = session.shared;
    ScriptedDialogs& dialogs = session.dialogs;
    QueuedRandom random;
    std::unique_ptr<OptionsModel> model;
};

// --- check boxes ---------------------------------------------------------------------------

TEST_F(OptionsModelTest, BoxesFollowTheBoxTheyHangOn) {
    struct Clicks {
        const char* why;
        std::string style;
        // Clicked in this order on a page with every box off.
        std::vector<int> clicks;
        std::set<int> expected;
        bool refused = false;
    };
    const std::vector<Clicks> cases{
        {"survival ticks points", "0", {1}, {0, 1}},
        {"fewer points ticks points", "0", {11}, {0, 11}},
        {"points off clears both", "0", {1, 11, 0}, {}},
        {"survival off leaves points", "0", {1, 1}, {0}},
        {"hard countdown ticks countdown", "0", {10}, {2, 10}},
        {"countdown off clears hard", "0", {10, 2}, {}},
        {"hard off leaves countdown", "0", {10, 10}, {2}},
        {"plain boxes stand alone", "0", {5, 6, 7, 8, 9, 12, 13, 8}, {5, 6, 7, 9, 12, 13}},
        {"free style lets shading and letters", "0", {3, 4}, {3, 4}},
        {"empty style refuses shading", "", {3}, {}, true},
        {"style one refuses white letters", "1", {4}, {}, true},
        {"no such box", "0", {-1, 14, 99}, {}}};
    for (const Clicks& c : cases) {
        SCOPED_TRACE(c.why);
        dialogs.shown.clear();
        givenFile(fileLines());
        open();
        model->setStyleText(c.style);
        for (int box : c.clicks) {
            model->clickBox(box);
        }
        EXPECT_EQ(ticked(), c.expected);
        ASSERT_EQ(dialogs.shown.size(), c.refused ? 1U : 0U);
        if (c.refused) {
            EXPECT_EQ(dialogs.shown[0].icon, Icon::Exclamation);
            EXPECT_EQ(dialogs.shown[0].text, "Lo siento, pero para cambiar estas opciones debe "
                                             "tener el diseño en estilo libre (0).");
        }
    }
}

TEST_F(OptionsModelTest, ARefusedClickGoesBackToTheRememberedPage) {
    givenFile(fileLines({{3, "3"}}));
    open();
    model->choosePage(Page::Visual);
    const std::set<int> before = ticked();
    model->clickBox(4);
    EXPECT_EQ(ticked(), before);
    EXPECT_EQ(model->page(), Page::Visual);
    EXPECT_EQ(shared.current().optionsPage, static_cast<int>(Page::Visual));
}

// --- the style, theme and colour fields ----------------------------------------------------------

TEST_F(OptionsModelTest, StyleFieldSetsTheLetterBoxesOrRefuses) {
    struct Typed {
        std::string typed;
        std::string shown;
        bool opaque;
        bool whiteLetters;
        bool message;
    };
    const std::vector<Typed> cases{{"", "", true, true, false},     {"0", "0", true, true, false},
                                   {"1", "1", false, false, false}, {"2", "2", true, false, false},
                                   {"3", "3", true, true, false},   {"4", "4", false, false, false},
                                   {"7", "4", false, false, true},  {"10", "4", false, false, true},
                                   {"x", "", true, true, false}};
    for (const Typed& c : cases) {
        SCOPED_TRACE(c.typed);
        dialogs.shown.clear();
        givenFile(fileLines({{4, "1"}, {5, "1"}}));
        open();
        ASSERT_EQ(ticked(), (std::set<int>{3, 4}));
        model->setStyleText(c.typed);
        EXPECT_EQ(model->styleText(), c.shown);
        EXPECT_EQ(model->box(3), c.opaque);
        EXPECT_EQ(model->box(4), c.whiteLetters);
        ASSERT_EQ(dialogs.shown.size(), c.message ? 1U : 0U);
        if (c.message) {
            EXPECT_EQ(dialogs.shown[0].icon, Icon::Exclamation);
            EXPECT_EQ(dialogs.shown[0].text, "No existen más estilos en los diseños.");
        }
    }
}

TEST_F(OptionsModelTest, ThemeFieldStopsAtTheLastTheme) {
    givenFile(fileLines());
    open();
    EXPECT_EQ(model->themeText(), "7");
    // Typed, message expected, shown.
    const std::vector<std::tuple<std::string, bool, std::string>> cases{
        {"50", false, "50"},  {"51", true, "50"},
        {"0051", true, "50"}, {"99999999999999999999", true, "50"},
        {"", false, ""},      {"1a2", false, "12"}};
    for (const auto& [typed, message, shown] : cases) {
        SCOPED_TRACE(typed);
        dialogs.shown.clear();
        model->setThemeText(typed);
        EXPECT_EQ(model->themeText(), shown);
        ASSERT_EQ(dialogs.shown.size(), message ? 1U : 0U);
        if (message) {
            EXPECT_EQ(dialogs.shown[0].text, "No existen más temas para jugar.");
            EXPECT_EQ(dialogs.shown[0].icon, Icon::Exclamation);
        }
    }
}

TEST_F(OptionsModelTest, ColourFieldRepaintsAtOnceWithinItsLimits) {
    // Typed, shown, the colour it paints.
    const std::vector<std::tuple<std::string, std::string, Rgb>> cases{
        {"-5", "0", Rgb{0, 0, 0}},
        {"15759390", "15759390", Rgb{30, 120, 240}},
        {"255", "255", Rgb{255, 0, 0}},
        // Cut to 255 × 255 × 255, not to white.
        {"16777215", "16581375", Rgb{255, 2, 253}},
        {"16581376", "16581375", Rgb{255, 2, 253}},
        {"99999999999999999999", "16581375", Rgb{255, 2, 253}},
        {"12-3", "123", Rgb{123, 0, 0}},
        {"", "", Rgb{0, 0, 0}}};
    givenFile(fileLines());
    open();
    for (const auto& [typed, shown, colour] : cases) {
        SCOPED_TRACE(typed);
        model->setColourCodeText(typed);
        EXPECT_EQ(model->colourCodeText(), shown);
        EXPECT_EQ(shared.palette.gameColour, colour);
        EXPECT_EQ(model->gameColour(), colour);
    }
    EXPECT_TRUE(dialogs.shown.empty());
}

// --- the name ---------------------------------------------------------------------------------

TEST_F(OptionsModelTest, NamePlaceholderComesAndGoes) {
    // Name in memory, what the field shows.
    const std::vector<std::pair<std::string, std::string>> shown{
        {"Quillora VS", "Nombre"}, {"", "Quillora VS"}, {"Ana", "Ana"}, {"Nombre", "Nombre"}};
    for (const auto& [name, field] : shown) {
        SCOPED_TRACE(name);
        shared.settings.userName = name;
        open();
        EXPECT_EQ(model->nameText(), field);
    }

    shared.settings.userName = "Quillora VS";
    open();
    model->nameEntered();
    EXPECT_EQ(model->nameText(), "");
    model->nameLeft();
    EXPECT_EQ(model->nameText(), "Nombre");
    model->nameEntered();
    model->setNameText("Bea\u2603");
    model->nameLeft();
    EXPECT_EQ(model->nameText(), "Bea") << "only what a line of the file can hold";
    model->nameEntered();
    EXPECT_EQ(model->nameText(), "Bea");
}

TEST_F(OptionsModelTest, SavedNamesLeaveNoPlaceholderOrBlank) {
    // Field at the save, line 15 after it.
    const std::vector<std::pair<std::string, std::string>> saved{
        {"", "JUGADOR 1"}, {"Nombre", "Quillora VS"}, {"Carla", "Carla"}};
    for (const auto& [field, line] : saved) {
        SCOPED_TRACE(field);
        givenFile(fileLines());
        open();
        model->setNameText(field);
        ASSERT_TRUE(model->saveFromPages());
        EXPECT_EQ(savedLine(15), line);
        EXPECT_EQ(shared.settings.userName, line);
    }
}

// --- saving from the option pages ----------------------------------------------------------------

TEST_F(OptionsModelTest, SavingThePagesWritesTheBoxesAndTheBoardReadsThem) {
    givenFile(fileLines({{1, "fondo.jpg"}, {2, "/fotos"}, {10, "1"}}));
    open();
    for (int box : {1, 10, 5, 7, 9, 12}) {
        model->clickBox(box);
    }
    model->setThemeText("23");
    model->setColourCodeText("255");
    ASSERT_TRUE(model->saveFromPages());

    const std::vector<std::string> expected{"fondo.jpg", "/fotos", "0", "0",   "0", "1", "0",
                                            "1",         "0",      "1", "23",  "1", "1", "2",
                                            "Ana",       "1",      "0", "255", "1", "0"};
    EXPECT_EQ(savedLines(), expected);
    EXPECT_EQ(shared.settings.countdown, 2);
    EXPECT_EQ(shared.palette.gameColour, (Rgb{255, 0, 0}));

    // The board opened next reads the same.
    shared.settings = Settings{};
    shared.palette.gameColour = kDefaultBlue;
    boardLoad();
    EXPECT_TRUE(shared.settings.survival);
    EXPECT_TRUE(shared.settings.whiteLines);
    EXPECT_TRUE(shared.settings.useEncyclopedia);
    EXPECT_EQ(shared.settings.countdown, 2);
    EXPECT_EQ(shared.settings.theme, 23);
    EXPECT_EQ(shared.palette.gameColour, (Rgb{255, 0, 0}));
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(OptionsModelTest, SavingThePagesKeepsHangersOnOnlyUnderTheirBox) {
    // Survival and fewer points on while points are off, as a hand-edited
    // file may have them: the save drops them.
    givenFile(fileLines({{13, "1"}, {17, "1"}, {14, "1"}}));
    open();
    EXPECT_EQ(ticked(), (std::set<int>{1, 2, 11}));
    model->setStyleText("");
    model->setThemeText("");
    ASSERT_TRUE(model->saveFromPages());
    EXPECT_EQ(savedLine(12), "0");
    EXPECT_EQ(savedLine(13), "0");
    EXPECT_EQ(savedLine(17), "0");
    EXPECT_EQ(savedLine(14), "1");
    EXPECT_EQ(savedLine(3), "0") << "an empty style field is style 0";
    EXPECT_EQ(savedLine(11), "0") << "an empty theme field is theme 0";
    EXPECT_EQ(model->styleText(), "0");
    EXPECT_EQ(model->themeText(), "0");
}

TEST_F(OptionsModelTest, SavingThePagesKeepsTheAnimationOnlyForAOne) {
    // Line 10 as the file has it, line 10 after the save.
    const std::vector<std::pair<std::string, std::string>> cases{
        {"1", "1"}, {"2", "0"}, {"1.5", "0"}, {"0", "0"}, {"", "0"}, {"1abc", "1"}};
    for (const auto& [line, saved] : cases) {
        SCOPED_TRACE(line);
        givenFile(fileLines({{10, line}}));
        open();
        ASSERT_TRUE(model->saveFromPages());
        EXPECT_EQ(savedLine(10), saved);
    }
}

TEST_F(OptionsModelTest, SavingThePagesShowsTheSavedLinesOnTheFreePage) {
    givenFile(fileLines());
    open();
    model->choosePage(Page::RawLines);
    model->selectRow(7);
    EXPECT_EQ(model->valueText(), "0");
    model->choosePage(Page::Functional);
    model->clickBox(7);
    ASSERT_TRUE(model->saveFromPages());
    model->choosePage(Page::RawLines);
    EXPECT_EQ(model->values()[7], "1");
    EXPECT_EQ(model->valueText(), "1");
}

// --- "LIBRE!" ------------------------------------------------------------------------------------

TEST_F(OptionsModelTest, TheFreeListShowsTheFileAsNumbers) {
    givenFile(fileLines({{1, "fondo 1.jpg"},
                         {3, "2abc"},
                         {11, "x"},
                         {15, "12 Ana"},
                         {16, "0.5"},
                         {18, ""},
                         {20, "-3"}}));
    shared.palette.gameColour = Rgb{1, 2, 3};
    shared.settings.gameColour = Rgb{1, 2, 3};
    open();
    const auto& values = model->values();
    EXPECT_EQ(values[0], "fondo 1.jpg");
    EXPECT_EQ(values[2], "2");
    EXPECT_EQ(values[10], "0");
    EXPECT_EQ(values[14], "12 Ana");
    EXPECT_EQ(values[15], "0.5");
    EXPECT_EQ(values[17], std::to_string(Rgb{1, 2, 3}.packed())) << "an empty colour line";
    EXPECT_EQ(values[19], "-3");
    // Line 16 stands under the label of the points option, as it always has.
    EXPECT_EQ(OptionsModel::lineLabel(15), "Más puntos negativos");
    EXPECT_EQ(OptionsModel::lineLabel(16), "Usar Wikipedia");
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(OptionsModelTest, SavingTheRawLinesWritesWhatWasTypedAndTheBoardReadsIt) {
    givenFile(fileLines());
    open();
    model->choosePage(Page::RawLines);
    model->selectRow(12); // "M. supervivencia", line 13
    EXPECT_EQ(model->valueText(), "0");
    model->setValueText("2");
    EXPECT_EQ(model->values()[12], "2");
    model->selectRow(17);
    model->setValueText("255");
    ASSERT_TRUE(model->save());

    EXPECT_EQ(savedLine(13), "2") << "saved as typed";
    EXPECT_EQ(savedLine(18), "255");
    EXPECT_EQ(savedLines().size(), 20U);
    EXPECT_TRUE(shared.settings.survival);
    EXPECT_EQ(shared.palette.gameColour, (Rgb{255, 0, 0}));
    EXPECT_TRUE(model->box(1)) << "the option pages follow the file";

    shared.settings = Settings{};
    boardLoad();
    EXPECT_TRUE(shared.settings.survival);
    EXPECT_EQ(shared.palette.gameColour, (Rgb{255, 0, 0}));
}

TEST_F(OptionsModelTest, AFailedSaveFromEitherPageKeepsTheFileAndSaysSo) {
    for (const bool libre : {false, true}) {
        SCOPED_TRACE(libre ? "LIBRE!" : "option pages");
        givenFile(fileLines());
        const std::string before = slurp(file());
        dialogs.shown.clear();
        open();
        if (libre) {
            model->choosePage(Page::RawLines);
            model->selectRow(7);
            model->setValueText("1");
        } else {
            model->clickBox(7);
        }
        {
            RefusedWrites full;
            EXPECT_FALSE(model->save());
        }
        EXPECT_EQ(slurp(file()), before);
        ASSERT_EQ(dialogs.shown.size(), 1U);
        EXPECT_EQ(dialogs.shown[0].icon, Icon::Information);
    }
    EXPECT_EQ(dialogs.shown[0].text, "No se pudo guardar, intente más tarde.");
    EXPECT_FALSE(shared.settings.sounds) << "raw lines not saved are not read";
}

TEST_F(OptionsModelTest, TypingWithNoRowSelectedChangesNoLine) {
    givenFile(fileLines());
    open();
    model->choosePage(Page::RawLines);
    const auto before = model->values();
    model->setValueText("9");
    EXPECT_EQ(model->values(), before);
    model->selectRow(20);
    model->selectRow(-1);
    EXPECT_EQ(model->selectedRow(), -1);
}

// --- opening -------------------------------------------------------------------------------------

TEST_F(OptionsModelTest, AnUnreadableFileIsReportedAndThePagesShowMemory) {
    shared.settings.sounds = false;
    shared.settings.userName = "Dora";
    shared.settings.theme = 12;
    open(); // no file yet
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].icon, Icon::Error);
    EXPECT_EQ(dialogs.shown[0].text, "Hubo una falla al cargar la configuración, tenga el "
                                     "cuidado de no guardar sin revisar.");
    EXPECT_FALSE(model->box(7));
    EXPECT_EQ(model->nameText(), "Dora");
    EXPECT_EQ(model->themeText(), "12");
    // The free page shows the same, not twenty blanks a save would write.
    EXPECT_EQ(model->values()[7], "0");
    EXPECT_EQ(model->values()[10], "12");
    EXPECT_EQ(model->values()[14], "Dora");
}

TEST_F(OptionsModelTest, TheBoxesOpenAsTheOptionsInMemoryStand) {
    givenFile(fileLines({{3, "2"}, {12, "1"}, {14, "1"}, {8, "1"}, {20, "1"}, {18, "65280"}}));
    shared.palette.gameColour = kDefaultBlue; // as a menu might have left it
    open();
    EXPECT_EQ(ticked(), (std::set<int>{0, 2, 7, 13}));
    EXPECT_EQ(model->styleText(), "2");
    EXPECT_EQ(model->colourCodeText(), "65280");
    EXPECT_EQ(model->gameColour(), (Rgb{0, 255, 0}));
    shared.settings.countdown = 2;
    open();
    EXPECT_TRUE(model->box(2));
    EXPECT_TRUE(model->box(10));
}

TEST_F(OptionsModelTest, EachSessionSlotRemembersItsPage) {
    givenFile(fileLines());
    EXPECT_EQ(open().page(), Page::Personal);
    model->choosePage(Page::Visual);
    EXPECT_EQ(open().page(), Page::Visual);

    shared.currentSlot = 2;
    EXPECT_EQ(open().page(), Page::Personal);
    model->choosePage(Page::RawLines);
    EXPECT_EQ(model->commandColour(), kRedLamp);

    shared.currentSlot = 0;
    EXPECT_EQ(open().page(), Page::Visual);
    EXPECT_EQ(model->commandColour(), model->gameColour());
    shared.currentSlot = 2;
    EXPECT_EQ(open().page(), Page::RawLines);
}

// --- the colour editor ---------------------------------------------------------------------------

TEST_F(OptionsModelTest, TheColourEditorMakesCodesAndHandsThemOver) {
    givenFile(fileLines({{18, "255"}}));
    open();
    EXPECT_EQ(model->codeText(), "15759390");
    EXPECT_EQ(model->editorButtonCaption(), "...");
    EXPECT_EQ(model->editorButtonTooltip(), " Abrir colores. ");
    model->toggleEditor();
    EXPECT_EQ(model->editorButtonCaption(), "x");
    EXPECT_EQ(model->editorButtonTooltip(), " Cerrar colores. ");

    model->choosePage(Page::Visual); // splitGameColour
    EXPECT_EQ(model->component(Channel::Red), 255);
    EXPECT_EQ(model->component(Channel::Green), 0);
    EXPECT_EQ(model->component(Channel::Blue), 0);

    model->setComponent(Channel::Green, 300);
    model->setComponent(Channel::Blue, 1);
    EXPECT_EQ(model->component(Channel::Green), 255);
    EXPECT_EQ(model->codeText(), std::to_string(255 + 255 * 256 + 65536));
    EXPECT_EQ(model->gameColour(), (Rgb{255, 0, 0})) << "not before \"=\"";
    model->applyCode();
    EXPECT_EQ(model->colourCodeText(), model->codeText());
    EXPECT_EQ(model->gameColour(), (Rgb{255, 255, 1}));

    model->setComponent(Channel::Red, -4);
    EXPECT_EQ(model->component(Channel::Red), 0);

    model->useDefaultBlue();
    EXPECT_EQ(model->gameColour(), kDefaultBlue);
    EXPECT_EQ(model->colourCodeText(), "15759390");
    EXPECT_EQ(model->component(Channel::Red), 30);
    EXPECT_EQ(model->component(Channel::Green), 120);
    EXPECT_EQ(model->component(Channel::Blue), 240);
    EXPECT_EQ(model->codeText(), "15759390");

    model->toggleEditor();
    EXPECT_FALSE(model->editorOpen());
}

// --- leaving -------------------------------------------------------------------------------------

TEST_F(OptionsModelTest, MenuTicksOnceAndHidesThePages) {
    givenFile(fileLines());
    open();
    EXPECT_FALSE(model->tickOut());
    model->startMenu();
    EXPECT_TRUE(model->outTimerRunning());
    EXPECT_TRUE(model->tickOut());
    EXPECT_FALSE(model->outTimerRunning());
    EXPECT_TRUE(model->pagesHidden());
    EXPECT_FALSE(model->tickOut());
}

// --- keys on the page list -----------------------------------------------------------------------

TEST_F(OptionsModelTest, KeysOnThePageListSayWhatTheWindowDoes) {
    givenFile(fileLines());
    open();
    // Every key of `keys` on `page` does `expected`.
    const auto expectKeys = [this](Page page, std::u32string_view keys,
                                   OptionsModel::KeyAction expected) {
        model->choosePage(page);
        for (const char32_t key : keys) {
            SCOPED_TRACE(::testing::Message() << OptionsModel::pageName(page) << " U+" << std::hex
                                              << static_cast<unsigned>(key));
            const OptionsModel::KeyAction action = model->keyOnList(key);
            EXPECT_EQ(action.kind, expected.kind);
            EXPECT_EQ(action.box, expected.box);
            EXPECT_EQ(action.field, expected.field);
            EXPECT_EQ(action.openEditor, expected.openEditor);
        }
    };
    constexpr auto P = Page::Personal, V = Page::Visual, F = Page::Functional, L = Page::RawLines;
    // The digit and the letter of each box, page by page.
    const std::vector<std::tuple<Page, std::u32string, int>> boxes{
        {P, U"1p", 0}, {P, U"2S", 1}, {P, U"3E", 11}, {P, U"4C", 2}, {P, U"5D", 10},
        {V, U"2s", 3}, {V, U"3L", 4}, {V, U"4I", 5},  {V, U"5E", 6}, {F, U"1S", 7},
        {F, U"2A", 8}, {F, U"3W", 9}, {F, U"4J", 12}, {F, U"5T", 13}};
    for (const auto& [page, keys, box] : boxes) {
        expectKeys(page, keys, {Act::Box, box});
    }
    for (const Page page : {P, V, F, L}) {
        expectKeys(page, U"Uu", {Act::Save});
        expectKeys(page, U"Mm", {Act::Menu});
    }
    expectKeys(P, U"6N", {Act::Focus, -1, Field::Name});
    expectKeys(V, U"1D", {Act::Focus, -1, Field::Style});
    expectKeys(V, U"6T", {Act::Focus, -1, Field::ColourCode});
    expectKeys(V, U"7A", {Act::DefaultBlue, -1, Field::None, true});
    expectKeys(V, U"R", {Act::Focus, -1, Field::Red, true});
    expectKeys(V, U"g", {Act::Focus, -1, Field::Green, true});
    expectKeys(V, U"B", {Act::Focus, -1, Field::Blue, true});
    expectKeys(F, U"6n", {Act::Focus, -1, Field::Theme});
    expectKeys(L, U"1", {Act::Focus, -1, Field::Labels});
    expectKeys(L, U"2l", {Act::Focus, -1, Field::Values});
    for (const auto& [page, keys] : std::vector<std::pair<Page, std::u32string>>{
             {P, U"7T"}, {V, U"8"}, {F, U"R"}, {L, U"3\u00d1"}}) {
        expectKeys(page, keys, {Act::None});
    }
}

} // namespace
} // namespace quillora
