// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/options/OptionsModel.h"

#include "storage/ConfigFile.h"
#include "support/LoadedSession.h"
#include "support/RefusedWrites.h"

#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <fstream>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillora {
namespace {

using Page = OptionsModel::Page;
using Field = OptionsModel::Field;
using Act = OptionsModel::KeyAction::Kind;
using Icon = Dialogs::Icon;

constexpr std::array<int, OptionChoices::kBoxCount> kEveryBox{0, 1, 2, 3,  4,  5,  6,
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
        model = std::make_unique<OptionsModel>(shared, dialogs, random);
        model->open();
        return *model;
    }
    std::set<int> ticked() const {
        std::set<int> on;
        for (int box : kEveryBox) {
            if (model->choices().box(box)) {
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

// --- pages ---------------------------------------------------------------------------------------

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

// --- saving from the option pages ----------------------------------------------------------------

TEST_F(OptionsModelTest, SavedNamesLeaveNoPlaceholderOrBlank) {
    // Field at the save, line 15 after it.
    const std::vector<std::pair<std::string, std::string>> saved{
        {"", "JUGADOR 1"}, {"Nombre", "Quillora VS"}, {"Carla", "Carla"}};
    for (const auto& [field, line] : saved) {
        SCOPED_TRACE(field);
        givenFile(fileLines());
        open();
        model->choices().setNameText(field);
        ASSERT_TRUE(model->saveFromPages());
        EXPECT_EQ(savedLine(15), line);
        EXPECT_EQ(shared.settings.userName, line);
    }
}

TEST_F(OptionsModelTest, SavingThePagesWritesTheBoxesAndTheBoardReadsThem) {
    givenFile(fileLines({{1, "fondo.jpg"}, {2, "/fotos"}, {10, "1"}}));
    open();
    for (int box : {1, 10, 5, 7, 9, 12}) {
        model->clickBox(box);
    }
    model->choices().setThemeText("23");
    model->colourCode().setText("255");
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
    model->choices().setStyleText("");
    model->choices().setThemeText("");
    ASSERT_TRUE(model->saveFromPages());
    EXPECT_EQ(savedLine(12), "0");
    EXPECT_EQ(savedLine(13), "0");
    EXPECT_EQ(savedLine(17), "0");
    EXPECT_EQ(savedLine(14), "1");
    EXPECT_EQ(savedLine(3), "0") << "an empty style field is style 0";
    EXPECT_EQ(savedLine(11), "0") << "an empty theme field is theme 0";
    EXPECT_EQ(model->choices().styleText(), "0");
    EXPECT_EQ(model->choices().themeText(), "0");
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
    model->rawLines().selectRow(7);
    EXPECT_EQ(model->rawLines().valueText(), "0");
    model->choosePage(Page::Functional);
    model->clickBox(7);
    ASSERT_TRUE(model->saveFromPages());
    model->choosePage(Page::RawLines);
    EXPECT_EQ(model->rawLines().values()[7], "1");
    EXPECT_EQ(model->rawLines().valueText(), "1");
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
    const auto& values = model->rawLines().values();
    EXPECT_EQ(values[0], "fondo 1.jpg");
    EXPECT_EQ(values[2], "2");
    EXPECT_EQ(values[10], "0");
    EXPECT_EQ(values[14], "12 Ana");
    EXPECT_EQ(values[15], "0.5");
    EXPECT_EQ(values[17], std::to_string(Rgb{1, 2, 3}.packed())) << "an empty colour line";
    EXPECT_EQ(values[19], "-3");
    // Line 16 stands under the label of the points option, as it always has.
    EXPECT_EQ(RawLinesModel::lineLabel(15), "Más puntos negativos");
    EXPECT_EQ(RawLinesModel::lineLabel(16), "Usar Wikipedia");
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(OptionsModelTest, SavingTheRawLinesWritesWhatWasTypedAndTheBoardReadsIt) {
    givenFile(fileLines());
    open();
    model->choosePage(Page::RawLines);
    model->rawLines().selectRow(12); // "M. supervivencia", line 13
    EXPECT_EQ(model->rawLines().valueText(), "0");
    model->rawLines().setValueText("2");
    EXPECT_EQ(model->rawLines().values()[12], "2");
    model->rawLines().selectRow(17);
    model->rawLines().setValueText("255");
    ASSERT_TRUE(model->save());

    EXPECT_EQ(savedLine(13), "2") << "saved as typed";
    EXPECT_EQ(savedLine(18), "255");
    EXPECT_EQ(savedLines().size(), 20U);
    EXPECT_TRUE(shared.settings.survival);
    EXPECT_EQ(shared.palette.gameColour, (Rgb{255, 0, 0}));
    EXPECT_TRUE(model->choices().box(1)) << "the option pages follow the file";

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
            model->rawLines().selectRow(7);
            model->rawLines().setValueText("1");
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
    const auto before = model->rawLines().values();
    model->rawLines().setValueText("9");
    EXPECT_EQ(model->rawLines().values(), before);
    model->rawLines().selectRow(20);
    model->rawLines().selectRow(-1);
    EXPECT_EQ(model->rawLines().selectedRow(), -1);
}

// --- opening -------------------------------------------------------------------------------------

// Straight from the menu, before any board has read the file, and after a
// change of user, memory holds defaults or another user's options: the
// window shows and saves the file instead.
TEST_F(OptionsModelTest, BeforeABoardHasReadTheFileTheWindowShowsAndSavesTheFile) {
    ASSERT_TRUE(writeConfigLines(file(), fileLines({{12, "1"}}))); // sounds off
    open();
    EXPECT_TRUE(dialogs.shown.empty());
    EXPECT_EQ(ticked(), (std::set<int>{0}));
    EXPECT_EQ(model->choices().nameText(), "Ana");
    ASSERT_TRUE(model->save());
    EXPECT_EQ(savedLines(), fileLines({{12, "1"}}));

    // Another user, whose board has not opened yet.
    const std::filesystem::path beto = session.folder / "Beto.txt";
    ASSERT_TRUE(writeConfigLines(beto, fileLines({{8, "1"}, {15, "Beto"}})));
    shared.sessions[1].record.filePath = beto.string();
    shared.currentSlot = 1;
    open();
    EXPECT_EQ(ticked(), (std::set<int>{7}));
    EXPECT_EQ(model->choices().nameText(), "Beto");
}

TEST_F(OptionsModelTest, AMissingFileIsNoFailureButAnUnreadableOneIsReported) {
    random.queue({0.5});
    open();
    EXPECT_TRUE(dialogs.shown.empty());
    // What the board starts a new user with.
    EXPECT_TRUE(model->choices().box(7));
    EXPECT_TRUE(model->choices().box(0));
    EXPECT_EQ(model->choices().themeText(), "25");

    givenFile(fileLines());
    shared.settings.sounds = true;
    shared.settings.userName = "Dora";
    shared.settings.theme = 12;
    {
        std::ofstream garbage(file(), std::ios::binary | std::ios::trunc);
        garbage << "\x01\x02 no es texto\r\n";
    }
    open();
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].icon, Icon::Error);
    EXPECT_EQ(dialogs.shown[0].text, "Hubo una falla al cargar la configuración, tenga el "
                                     "cuidado de no guardar sin revisar.");
    EXPECT_TRUE(model->choices().box(7));
    EXPECT_EQ(model->choices().nameText(), "Dora");
    EXPECT_EQ(model->choices().themeText(), "12");
    // The free page shows the same, not twenty blanks a save would write.
    EXPECT_EQ(model->rawLines().values()[7], "1");
    EXPECT_EQ(model->rawLines().values()[10], "12");
    EXPECT_EQ(model->rawLines().values()[14], "Dora");
}

TEST_F(OptionsModelTest, TheBoxesOpenAsTheOptionsInMemoryStand) {
    givenFile(fileLines({{3, "2"}, {12, "1"}, {14, "1"}, {8, "1"}, {20, "1"}, {18, "65280"}}));
    shared.palette.gameColour = kDefaultBlue; // as a menu might have left it
    open();
    EXPECT_EQ(ticked(), (std::set<int>{0, 2, 7, 13}));
    EXPECT_EQ(model->choices().styleText(), "2");
    EXPECT_EQ(model->colourCode().text(), "65280");
    EXPECT_EQ(model->colourCode().gameColour(), (Rgb{0, 255, 0}));
    shared.settings.countdown = 2;
    open();
    EXPECT_TRUE(model->choices().box(2));
    EXPECT_TRUE(model->choices().box(10));
}

TEST_F(OptionsModelTest, EachSessionSlotRemembersItsPage) {
    givenFile(fileLines());
    EXPECT_EQ(open().page(), Page::Personal);
    model->choosePage(Page::Visual);
    EXPECT_EQ(open().page(), Page::Visual);

    shared.sessions[2].record.filePath = (session.folder / "Eva.txt").string();
    shared.currentSlot = 2;
    givenFile(fileLines());
    EXPECT_EQ(open().page(), Page::Personal);
    model->choosePage(Page::RawLines);
    EXPECT_EQ(model->commandColour(), kRedLamp);

    shared.currentSlot = 0;
    EXPECT_EQ(open().page(), Page::Visual);
    EXPECT_EQ(model->commandColour(), model->colourCode().gameColour());
    shared.currentSlot = 2;
    EXPECT_EQ(open().page(), Page::RawLines);
}

// --- the colour editor ---------------------------------------------------------------------------

TEST_F(OptionsModelTest, ChoosingVisualSplitsTheGameColourIntoTheEditor) {
    givenFile(fileLines({{18, "255"}}));
    ColourEditorModel& editor = open().colourEditor();
    EXPECT_EQ(editor.colour(), kDefaultBlue) << "not before the page shows";
    model->choosePage(Page::Visual);
    EXPECT_EQ(editor.colour(), (Rgb{255, 0, 0}));
    EXPECT_EQ(editor.codeText(), "255");
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

// The letter each caption underlines does, from the page list, what its
// entry is: ticks its box or takes the focus to its field. Every box has one
// digit of its own on its page as well, and "G&uardar" and " &Menú" answer on
// every page.
TEST_F(OptionsModelTest, KeysOnThePageListSayWhatTheWindowDoes) {
    givenFile(fileLines());
    open();
    using Kind = OptionsModel::Kind;
    const std::map<int, Field> fieldOf{{OptionsModel::kStyleField, Field::Style},
                                       {OptionsModel::kThemeField, Field::Theme},
                                       {OptionsModel::kColourField, Field::ColourCode}};
    std::map<int, Page> pageOf;
    for (const OptionsModel::Entry& entry : OptionsModel::entries()) {
        SCOPED_TRACE(std::string(entry.caption));
        if (entry.kind == Kind::Check) {
            pageOf[entry.index] = entry.page;
        }
        const std::size_t mark = entry.caption.find('&');
        if (mark == std::string_view::npos) {
            continue; // the name field and the colours button underline nothing
        }
        model->choosePage(entry.page);
        const auto letter = static_cast<unsigned char>(entry.caption.at(mark + 1));
        for (const int key : {std::tolower(letter), std::toupper(letter)}) {
            const OptionsModel::KeyAction action = model->keyOnList(static_cast<char32_t>(key));
            if (entry.kind == Kind::Check) {
                EXPECT_EQ(action.kind, Act::Box) << key;
                EXPECT_EQ(action.box, entry.index) << key;
            } else {
                EXPECT_EQ(action.kind, Act::Focus) << key;
                EXPECT_EQ(action.field, fieldOf.at(entry.index)) << key;
            }
        }
    }

    std::map<int, int> digits; // box, digits that tick it
    for (const Page page : {Page::Personal, Page::Visual, Page::Functional, Page::RawLines}) {
        model->choosePage(page);
        for (char32_t digit = U'1'; digit <= U'9'; ++digit) {
            const OptionsModel::KeyAction action = model->keyOnList(digit);
            if (action.kind == Act::Box) {
                ++digits[action.box];
                EXPECT_EQ(pageOf.at(action.box), page) << "a box on a hidden page";
            }
        }
        for (const char32_t key : {U'u', U'U'}) {
            EXPECT_EQ(model->keyOnList(key).kind, Act::Save);
        }
        for (const char32_t key : {U'm', U'M'}) {
            EXPECT_EQ(model->keyOnList(key).kind, Act::Menu);
        }
        EXPECT_EQ(model->keyOnList(U'\u00d1').kind, Act::None);
    }
    for (const auto& [box, page] : pageOf) {
        EXPECT_EQ(digits[box], 1) << "box " << box;
    }

    // The keys no caption on the pages underlines.
    const auto expectKey = [this](Page page, char32_t key, OptionsModel::KeyAction expected) {
        model->choosePage(page);
        const OptionsModel::KeyAction action = model->keyOnList(key);
        EXPECT_EQ(action.kind, expected.kind) << static_cast<unsigned>(key);
        EXPECT_EQ(action.field, expected.field) << static_cast<unsigned>(key);
        EXPECT_EQ(action.openEditor, expected.openEditor) << static_cast<unsigned>(key);
    };
    expectKey(Page::Personal, U'n', {Act::Focus, -1, Field::Name});
    expectKey(Page::Visual, U'a', {Act::DefaultBlue, -1, Field::None, true});
    expectKey(Page::Visual, U'r', {Act::Focus, -1, Field::Red, true});
    expectKey(Page::Visual, U'B', {Act::Focus, -1, Field::Blue, true});
    expectKey(Page::RawLines, U'1', {Act::Focus, -1, Field::Labels});
    expectKey(Page::RawLines, U'l', {Act::Focus, -1, Field::Values});
}

} // namespace
} // namespace quillora
