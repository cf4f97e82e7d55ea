// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/options/OptionChoices.h"

#include "models/options/ColourCodeField.h"
#include "state/Settings.h"
#include "support/Fakes.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace quillora {
namespace {

using Icon = Dialogs::Icon;

// Every option off and style 0, so every box may be clicked.
Settings everyOptionOff() {
    Settings s;
    s.letterStyle = 0;
    s.sounds = false;
    s.pointsSystem = false;
    return s;
}

class OptionChoicesTest : public ::testing::Test {
protected:
    std::set<int> ticked() const {
        std::set<int> on;
        for (int box = 0; box < OptionChoices::kBoxCount; ++box) {
            if (choices.box(box)) {
                on.insert(box);
            }
        }
        return on;
    }

    Palette palette;
    ColourCodeField colourCode{palette};
    ScriptedDialogs dialogs;
    OptionChoices choices{colourCode, dialogs};
};

TEST_F(OptionChoicesTest, BoxesFollowTheBoxTheyHangOn) {
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
        choices.fill(everyOptionOff());
        choices.setStyleText(c.style);
        bool taken = true;
        for (int box : c.clicks) {
            taken = choices.clickBox(box) && taken;
        }
        EXPECT_EQ(ticked(), c.expected);
        EXPECT_EQ(taken, !c.refused);
        ASSERT_EQ(dialogs.shown.size(), c.refused ? 1U : 0U);
        if (c.refused) {
            EXPECT_EQ(dialogs.shown[0].icon, Icon::Exclamation);
            EXPECT_EQ(dialogs.shown[0].text, "Lo siento, pero para cambiar estas opciones debe "
                                             "tener el diseño en estilo libre (0).");
        }
    }
}

TEST_F(OptionChoicesTest, StyleFieldSetsTheLetterBoxesOrRefuses) {
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
    Settings shaded = everyOptionOff();
    shaded.opaqueLetters = true;
    shaded.whiteLetters = true;
    for (const Typed& c : cases) {
        SCOPED_TRACE(c.typed);
        dialogs.shown.clear();
        choices.fill(shaded);
        ASSERT_EQ(ticked(), (std::set<int>{3, 4}));
        choices.setStyleText(c.typed);
        EXPECT_EQ(choices.styleText(), c.shown);
        EXPECT_EQ(choices.box(3), c.opaque);
        EXPECT_EQ(choices.box(4), c.whiteLetters);
        ASSERT_EQ(dialogs.shown.size(), c.message ? 1U : 0U);
        if (c.message) {
            EXPECT_EQ(dialogs.shown[0].icon, Icon::Exclamation);
            EXPECT_EQ(dialogs.shown[0].text, "No existen más estilos en los diseños.");
        }
    }
}

TEST_F(OptionChoicesTest, ThemeFieldStopsAtTheLastTheme) {
    Settings settings = everyOptionOff();
    settings.theme = 7;
    choices.fill(settings);
    EXPECT_EQ(choices.themeText(), "7");
    // Typed, message expected, shown.
    const std::vector<std::tuple<std::string, bool, std::string>> cases{
        {"50", false, "50"},  {"51", true, "50"},
        {"0051", true, "50"}, {"99999999999999999999", true, "50"},
        {"", false, ""},      {"1a2", false, "12"}};
    for (const auto& [typed, message, shown] : cases) {
        SCOPED_TRACE(typed);
        dialogs.shown.clear();
        choices.setThemeText(typed);
        EXPECT_EQ(choices.themeText(), shown);
        ASSERT_EQ(dialogs.shown.size(), message ? 1U : 0U);
        if (message) {
            EXPECT_EQ(dialogs.shown[0].text, "No existen más temas para jugar.");
            EXPECT_EQ(dialogs.shown[0].icon, Icon::Exclamation);
        }
    }
}

TEST_F(OptionChoicesTest, NamePlaceholderComesAndGoes) {
    Settings settings;
    // Name in memory, what the field shows.
    const std::vector<std::pair<std::string, std::string>> shown{
        {"Quillora VS", "Nombre"}, {"", "Quillora VS"}, {"Ana", "Ana"}, {"Nombre", "Nombre"}};
    for (const auto& [name, field] : shown) {
        SCOPED_TRACE(name);
        settings.userName = name;
        choices.fill(settings);
        EXPECT_EQ(choices.nameText(), field);
    }

    settings.userName = "Quillora VS";
    choices.fill(settings);
    choices.nameEntered();
    EXPECT_EQ(choices.nameText(), "");
    choices.nameLeft();
    EXPECT_EQ(choices.nameText(), "Nombre");
    choices.nameEntered();
    choices.setNameText("Bea\u2603");
    choices.nameLeft();
    EXPECT_EQ(choices.nameText(), "Bea") << "only what a line of the file can hold";
    choices.nameEntered();
    EXPECT_EQ(choices.nameText(), "Bea");
}

} // namespace
} // namespace quillora
