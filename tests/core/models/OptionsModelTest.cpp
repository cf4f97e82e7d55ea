// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/frmOptions/OptionsModel.h"

#include "storage/ConfigFile.h"
#include "support/LoadedSession.h"
#include "support/RefusedWrites.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
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
    std::filesystem::path file() const { return shared.currentSession().Archivo; }
    // The file, then the options in memory as the board reads them.
    void givenFile(const std::vector<std::string>& lines) {
        ASSERT_TRUE(writeConfigLines(file(), lines));
        boardLoad();
    }
    void boardLoad() {
        clearForBoardLoad(shared);
        DataLoad(shared, random);
        ConfLoad(shared);
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
    std::string savedLine(int line) const {
        const auto lines = savedLines();
        return lines.size() >= static_cast<std::size_t>(line) ? lines[line - 1] : "<missing>";
    }

    LoadedSession session{"quillora-options"};
    SharedState& shared = session.shared;
    ScriptedDialogs& dialogs = session.dialogs;
    QueuedRandom random;
    std::unique_ptr<OptionsModel> model;
};

// --- check boxes ---------------------------------------------------------------------------

struct BoxClicks {
    const char* name;
    std::string style;
    // Clicked in this order on a page with every box off.
    std::vector<int> clicks;
    std::set<int> expected;
    bool refused = false;
};

class BoxDependencies : public OptionsModelTest, public ::testing::WithParamInterface<BoxClicks> {};

TEST_P(BoxDependencies, FollowTheBoxTheyHangOn) {
    givenFile(fileLines());
    open();
    model->setStyleText(GetParam().style);
    for (int box : GetParam().clicks) {
        model->clickBox(box);
    }
    EXPECT_EQ(ticked(), GetParam().expected);
    if (GetParam().refused) {
        ASSERT_EQ(dialogs.shown.size(), 1U);
        EXPECT_EQ(dialogs.shown[0].icon, Icon::Exclamation);
        EXPECT_EQ(dialogs.shown[0].text, "Lo siento, pero para cambiar estas opciones debe tener "
                                         "el diseño en estilo libre (0).");
    } else {
        EXPECT_TRUE(dialogs.shown.empty());
    }
}

INSTANTIATE_TEST_SUITE_P(
    OptionsModel, BoxDependencies,
    ::testing::Values(
        BoxClicks{"SurvivalTicksPoints", "0", {1}, {0, 1}},
        BoxClicks{"FewerPointsTicksPoints", "0", {11}, {0, 11}},
        BoxClicks{"PointsOffClearsBoth", "0", {1, 11, 0}, {}},
        BoxClicks{"SurvivalOffLeavesPoints", "0", {1, 1}, {0}},
        BoxClicks{"HardCountdownTicksCountdown", "0", {10}, {2, 10}},
        BoxClicks{"CountdownOffClearsHard", "0", {10, 2}, {}},
        BoxClicks{"HardOffLeavesCountdown", "0", {10, 10}, {2}},
        BoxClicks{"PlainBoxesStandAlone", "0", {5, 6, 7, 8, 9, 12, 13, 8}, {5, 6, 7, 9, 12, 13}},
        BoxClicks{"FreeStyleLetsShadingAndLetters", "0", {3, 4}, {3, 4}},
        BoxClicks{"EmptyStyleRefusesShading", "", {3}, {}, true},
        BoxClicks{"StyleOneRefusesWhiteLetters", "1", {4}, {}, true},
        BoxClicks{"NoSuchBox", "0", {-1, 14, 99}, {}}),
    [](const auto& info) { return std::string(info.param.name); });

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

struct StyleCase {
    std::string typed;
    std::string shown;
    bool opaque;
    bool whiteLetters;
    bool message;
};

class StyleField : public OptionsModelTest, public ::testing::WithParamInterface<StyleCase> {};

TEST_P(StyleField, SetsTheLetterBoxesOrRefuses) {
    givenFile(fileLines({{4, "1"}, {5, "1"}}));
    open();
    ASSERT_EQ(ticked(), (std::set<int>{3, 4}));
    model->setStyleText(GetParam().typed);
    EXPECT_EQ(model->styleText(), GetParam().shown);
    EXPECT_EQ(model->box(3), GetParam().opaque);
    EXPECT_EQ(model->box(4), GetParam().whiteLetters);
    if (GetParam().message) {
        ASSERT_EQ(dialogs.shown.size(), 1U);
        EXPECT_EQ(dialogs.shown[0].icon, Icon::Exclamation);
        EXPECT_EQ(dialogs.shown[0].text, "No existen más estilos en los diseños.");
    } else {
        EXPECT_TRUE(dialogs.shown.empty());
    }
}

INSTANTIATE_TEST_SUITE_P(OptionsModel, StyleField,
                         ::testing::Values(StyleCase{"", "", true, true, false},
                                           StyleCase{"0", "0", true, true, false},
                                           StyleCase{"1", "1", false, false, false},
                                           StyleCase{"2", "2", true, false, false},
                                           StyleCase{"3", "3", true, true, false},
                                           StyleCase{"4", "4", false, false, false},
                                           StyleCase{"7", "4", false, false, true},
                                           StyleCase{"10", "4", false, false, true},
                                           StyleCase{"x", "", true, true, false}),
                         [](const auto& info) {
                             return info.param.typed.empty() ? std::string("Empty")
                                                             : "Typed_" + info.param.typed;
                         });

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

struct ColourCase {
    const char* name;
    std::string typed;
    std::string shown;
    Rgb colour;
};

class ColourField : public OptionsModelTest, public ::testing::WithParamInterface<ColourCase> {};

TEST_P(ColourField, RepaintsAtOnceWithinItsLimits) {
    givenFile(fileLines());
    open();
    model->setColourCodeText(GetParam().typed);
    EXPECT_EQ(model->colourCodeText(), GetParam().shown);
    EXPECT_EQ(shared.palette.gameColour, GetParam().colour);
    EXPECT_EQ(model->gameColour(), GetParam().colour);
    EXPECT_TRUE(dialogs.shown.empty());
}

INSTANTIATE_TEST_SUITE_P(
    OptionsModel, ColourField,
    ::testing::Values(ColourCase{"Negative", "-5", "0", Rgb{0, 0, 0}},
                      ColourCase{"DefaultBlue", "15759390", "15759390", Rgb{30, 120, 240}},
                      ColourCase{"Red", "255", "255", Rgb{255, 0, 0}},
                      // Cut to 255 × 255 × 255, not to white.
                      ColourCase{"White", "16777215", "16581375", Rgb{255, 2, 253}},
                      ColourCase{"JustAbove", "16581376", "16581375", Rgb{255, 2, 253}},
                      ColourCase{"Huge", "99999999999999999999", "16581375", Rgb{255, 2, 253}},
                      ColourCase{"MinusInside", "12-3", "123", Rgb{123, 0, 0}},
                      ColourCase{"Empty", "", "", Rgb{0, 0, 0}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(OptionsModelTest, TheWindowOpensInTheStoredColour) {
    givenFile(fileLines({{18, "65280"}}));
    shared.palette.gameColour = kDefaultBlue; // as a menu might have left it
    open();
    EXPECT_EQ(model->colourCodeText(), "65280");
    EXPECT_EQ(model->gameColour(), (Rgb{0, 255, 0}));
}

// --- the name ---------------------------------------------------------------------------------

TEST_F(OptionsModelTest, NamePlaceholderComesAndGoes) {
    // Name in memory, what the field shows.
    const std::vector<std::pair<std::string, std::string>> shown{
        {"Quillora VS", "Nombre"}, {"", "Quillora VS"}, {"Ana", "Ana"}, {"Nombre", "Nombre"}};
    for (const auto& [name, field] : shown) {
        SCOPED_TRACE(name);
        shared.settings.nombre = name;
        open();
        EXPECT_EQ(model->nameText(), field);
    }

    shared.settings.nombre = "Quillora VS";
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
        ASSERT_TRUE(model->AltSave1());
        EXPECT_EQ(savedLine(15), line);
        EXPECT_EQ(shared.settings.nombre, line);
    }
}

// --- saving from the option pages
// ------------------------------------------------------------------

TEST_F(OptionsModelTest, AltSave1WritesTheBoxesAndTheBoardReadsThem) {
    givenFile(fileLines({{1, "fondo.jpg"}, {2, "/fotos"}, {10, "1"}}));
    open();
    for (int box : {1, 10, 5, 7, 9, 12}) {
        model->clickBox(box);
    }
    model->setThemeText("23");
    model->setColourCodeText("255");
    ASSERT_TRUE(model->AltSave1());

    const std::vector<std::string> expected{"fondo.jpg", "/fotos", "0", "0",   "0", "1", "0",
                                            "1",         "0",      "1", "23",  "1", "1", "2",
                                            "Ana",       "1",      "0", "255", "1", "0"};
    EXPECT_EQ(savedLines(), expected);
    EXPECT_EQ(shared.settings.contratiempo, 2);
    EXPECT_EQ(shared.palette.gameColour, (Rgb{255, 0, 0}));

    // The board opened next reads the same.
    shared.settings = Settings{};
    shared.palette.gameColour = kDefaultBlue;
    boardLoad();
    EXPECT_TRUE(shared.settings.supervivencia);
    EXPECT_TRUE(shared.settings.lineaBlanca);
    EXPECT_TRUE(shared.settings.usarEnciclopedia);
    EXPECT_EQ(shared.settings.contratiempo, 2);
    EXPECT_EQ(shared.settings.tema, 23);
    EXPECT_EQ(shared.palette.gameColour, (Rgb{255, 0, 0}));
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(OptionsModelTest, AltSave1KeepsHangersOnOnlyUnderTheirBox) {
    // Survival and fewer points on while points are off, as a hand-edited
    // file may have them: the save drops them.
    givenFile(fileLines({{13, "1"}, {17, "1"}, {14, "1"}}));
    open();
    EXPECT_EQ(ticked(), (std::set<int>{1, 2, 11}));
    model->setStyleText("");
    model->setThemeText("");
    ASSERT_TRUE(model->AltSave1());
    EXPECT_EQ(savedLine(12), "0");
    EXPECT_EQ(savedLine(13), "0");
    EXPECT_EQ(savedLine(17), "0");
    EXPECT_EQ(savedLine(14), "1");
    EXPECT_EQ(savedLine(3), "0") << "an empty style field is style 0";
    EXPECT_EQ(savedLine(11), "0") << "an empty theme field is theme 0";
    EXPECT_EQ(model->styleText(), "0");
    EXPECT_EQ(model->themeText(), "0");
}

TEST_F(OptionsModelTest, AltSave1KeepsTheAnimationOnlyForAOne) {
    // Line 10 as the file has it, line 10 after the save.
    const std::vector<std::pair<std::string, std::string>> cases{
        {"1", "1"}, {"2", "0"}, {"1.5", "0"}, {"0", "0"}, {"", "0"}, {"1abc", "1"}};
    for (const auto& [line, saved] : cases) {
        SCOPED_TRACE(line);
        givenFile(fileLines({{10, line}}));
        open();
        ASSERT_TRUE(model->AltSave1());
        EXPECT_EQ(savedLine(10), saved);
    }
}

TEST_F(OptionsModelTest, AltSave1ShowsTheSavedLinesOnTheFreePage) {
    givenFile(fileLines());
    open();
    model->choosePage(Page::Libre);
    model->selectRow(7);
    EXPECT_EQ(model->valueText(), "0");
    model->choosePage(Page::Funcional);
    model->clickBox(7);
    ASSERT_TRUE(model->AltSave1());
    model->choosePage(Page::Libre);
    EXPECT_EQ(model->values()[7], "1");
    EXPECT_EQ(model->valueText(), "1");
}

TEST_F(OptionsModelTest, AFailedAltSave1KeepsTheFileAndSaysSo) {
    givenFile(fileLines());
    const std::string before = slurp(file());
    open();
    model->clickBox(7);
    {
        RefusedWrites full;
        EXPECT_FALSE(model->AltSave1());
    }
    EXPECT_EQ(slurp(file()), before);
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].icon, Icon::Information);
}

// --- "LIBRE!"
// ------------------------------------------------------------------------------------------

TEST_F(OptionsModelTest, TheFreeListShowsTheFileAsNumbers) {
    givenFile(fileLines({{1, "fondo 1.jpg"},
                         {3, "2abc"},
                         {11, "x"},
                         {15, "12 Ana"},
                         {16, "0.5"},
                         {18, ""},
                         {20, "-3"}}));
    shared.palette.gameColour = Rgb{1, 2, 3};
    shared.settings.colorJuego = Rgb{1, 2, 3};
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

TEST_F(OptionsModelTest, AltSave2WritesWhatWasTypedAndTheBoardReadsIt) {
    givenFile(fileLines());
    open();
    model->choosePage(Page::Libre);
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
    EXPECT_TRUE(shared.settings.supervivencia);
    EXPECT_EQ(shared.palette.gameColour, (Rgb{255, 0, 0}));
    EXPECT_TRUE(model->box(1)) << "the option pages follow the file";

    shared.settings = Settings{};
    boardLoad();
    EXPECT_TRUE(shared.settings.supervivencia);
    EXPECT_EQ(shared.palette.gameColour, (Rgb{255, 0, 0}));
}

TEST_F(OptionsModelTest, AFailedAltSave2KeepsTheFileAndSaysSo) {
    givenFile(fileLines());
    const std::string before = slurp(file());
    open();
    model->choosePage(Page::Libre);
    model->selectRow(7);
    model->setValueText("1");
    {
        RefusedWrites full;
        EXPECT_FALSE(model->save());
    }
    EXPECT_EQ(slurp(file()), before);
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].icon, Icon::Information);
    EXPECT_EQ(dialogs.shown[0].text, "No se pudo guardar, intente más tarde.");
    EXPECT_FALSE(shared.settings.sonidos);
}

TEST_F(OptionsModelTest, TypingWithNoRowSelectedChangesNoLine) {
    givenFile(fileLines());
    open();
    model->choosePage(Page::Libre);
    const auto before = model->values();
    model->setValueText("9");
    EXPECT_EQ(model->values(), before);
    model->selectRow(20);
    model->selectRow(-1);
    EXPECT_EQ(model->selectedRow(), -1);
}

// --- opening
// --------------------------------------------------------------------------------------------

TEST_F(OptionsModelTest, AnUnreadableFileIsReportedAndThePagesShowMemory) {
    shared.settings.sonidos = false;
    shared.settings.nombre = "Dora";
    shared.settings.tema = 12;
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
    givenFile(fileLines({{3, "2"}, {12, "1"}, {14, "1"}, {8, "1"}, {20, "1"}}));
    open();
    EXPECT_EQ(ticked(), (std::set<int>{0, 2, 7, 13}));
    EXPECT_EQ(model->styleText(), "2");
    shared.settings.contratiempo = 2;
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
    model->choosePage(Page::Libre);
    EXPECT_EQ(model->commandColour(), kRedLamp);

    shared.currentSlot = 0;
    EXPECT_EQ(open().page(), Page::Visual);
    EXPECT_EQ(model->commandColour(), model->gameColour());
    shared.currentSlot = 2;
    EXPECT_EQ(open().page(), Page::Libre);
}

// --- the colour editor
// ------------------------------------------------------------------------------------

TEST_F(OptionsModelTest, TheColourEditorMakesCodesAndHandsThemOver) {
    givenFile(fileLines({{18, "255"}}));
    open();
    EXPECT_EQ(model->codeText(), "15759390");
    EXPECT_EQ(model->editorButtonCaption(), "...");
    EXPECT_EQ(model->editorButtonTooltip(), " Abrir colores. ");
    model->toggleEditor();
    EXPECT_EQ(model->editorButtonCaption(), "x");
    EXPECT_EQ(model->editorButtonTooltip(), " Cerrar colores. ");

    model->choosePage(Page::Visual); // ExtraerColor
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

// --- leaving
// ----------------------------------------------------------------------------------------------

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

// --- keys on the page list
// --------------------------------------------------------------------------------

struct KeyCase {
    Page page;
    char32_t key;
    Act kind;
    int box = -1;
    Field field = Field::None;
    bool openEditor = false;
};

class PageListKeys : public OptionsModelTest, public ::testing::WithParamInterface<KeyCase> {};

TEST_P(PageListKeys, SayWhatTheWindowDoes) {
    givenFile(fileLines());
    open();
    model->choosePage(GetParam().page);
    const OptionsModel::KeyAction action = model->keyOnList(GetParam().key);
    EXPECT_EQ(action.kind, GetParam().kind);
    EXPECT_EQ(action.box, GetParam().box);
    EXPECT_EQ(action.field, GetParam().field);
    EXPECT_EQ(action.openEditor, GetParam().openEditor);
}

constexpr auto P = Page::Personal;
constexpr auto V = Page::Visual;
constexpr auto F = Page::Funcional;
constexpr auto L = Page::Libre;

INSTANTIATE_TEST_SUITE_P(
    OptionsModel, PageListKeys,
    ::testing::Values(
        KeyCase{P, U'U', Act::Save}, KeyCase{V, U'u', Act::Save}, KeyCase{L, U'U', Act::Save},
        KeyCase{F, U'M', Act::Menu}, KeyCase{L, U'm', Act::Menu},
        // PERSONAL
        KeyCase{P, U'1', Act::Box, 0}, KeyCase{P, U'p', Act::Box, 0}, KeyCase{P, U'2', Act::Box, 1},
        KeyCase{P, U'S', Act::Box, 1}, KeyCase{P, U'3', Act::Box, 11},
        KeyCase{P, U'E', Act::Box, 11}, KeyCase{P, U'4', Act::Box, 2},
        KeyCase{P, U'C', Act::Box, 2}, KeyCase{P, U'5', Act::Box, 10},
        KeyCase{P, U'D', Act::Box, 10}, KeyCase{P, U'6', Act::Focus, -1, Field::Name},
        KeyCase{P, U'N', Act::Focus, -1, Field::Name}, KeyCase{P, U'7', Act::None},
        KeyCase{P, U'T', Act::None},
        // VISUAL
        KeyCase{V, U'1', Act::Focus, -1, Field::Style},
        KeyCase{V, U'D', Act::Focus, -1, Field::Style}, KeyCase{V, U'2', Act::Box, 3},
        KeyCase{V, U's', Act::Box, 3}, KeyCase{V, U'3', Act::Box, 4}, KeyCase{V, U'L', Act::Box, 4},
        KeyCase{V, U'4', Act::Box, 5}, KeyCase{V, U'I', Act::Box, 5}, KeyCase{V, U'5', Act::Box, 6},
        KeyCase{V, U'E', Act::Box, 6}, KeyCase{V, U'6', Act::Focus, -1, Field::ColourCode},
        KeyCase{V, U'T', Act::Focus, -1, Field::ColourCode},
        KeyCase{V, U'7', Act::DefaultBlue, -1, Field::None, true},
        KeyCase{V, U'A', Act::DefaultBlue, -1, Field::None, true},
        KeyCase{V, U'R', Act::Focus, -1, Field::Red, true},
        KeyCase{V, U'g', Act::Focus, -1, Field::Green, true},
        KeyCase{V, U'B', Act::Focus, -1, Field::Blue, true}, KeyCase{V, U'8', Act::None},
        // FUNCIONAL
        KeyCase{F, U'1', Act::Box, 7}, KeyCase{F, U'S', Act::Box, 7}, KeyCase{F, U'2', Act::Box, 8},
        KeyCase{F, U'A', Act::Box, 8}, KeyCase{F, U'3', Act::Box, 9}, KeyCase{F, U'W', Act::Box, 9},
        KeyCase{F, U'4', Act::Box, 12}, KeyCase{F, U'J', Act::Box, 12},
        KeyCase{F, U'5', Act::Box, 13}, KeyCase{F, U'T', Act::Box, 13},
        KeyCase{F, U'6', Act::Focus, -1, Field::Theme},
        KeyCase{F, U'n', Act::Focus, -1, Field::Theme}, KeyCase{F, U'R', Act::None},
        // LIBRE!
        KeyCase{L, U'1', Act::Focus, -1, Field::Labels},
        KeyCase{L, U'2', Act::Focus, -1, Field::Values},
        KeyCase{L, U'l', Act::Focus, -1, Field::Values}, KeyCase{L, U'3', Act::None},
        KeyCase{L, U'\u00d1', Act::None}),
    [](const auto& info) {
        const char32_t key = info.param.key;
        const bool plain = (key >= U'0' && key <= U'9') || (key >= U'a' && key <= U'z') ||
                           (key >= U'A' && key <= U'Z');
        std::string name(OptionsModel::pageName(info.param.page));
        name.erase(std::remove(name.begin(), name.end(), '!'), name.end());
        name += plain ? "_" + std::string(1, static_cast<char>(key)) : "_Other";
        return name + "_" + std::to_string(info.index);
    });

} // namespace
} // namespace quillora
