// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/frmQlvs/QlvsModel.h"

#include "storage/ConfigFile.h"
#include "support/Fakes.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

namespace quillora {
namespace {

using Key = QlvsModel::WindowKey;

class QlvsModelTest : public ::testing::Test {
protected:
    void start() { model.round().startPhrase("CASA", 1, "ANIMAL"); }

    SharedState shared;
    ScriptedDialogs dialogs;
    QueuedRandom random;
    QlvsModel model{shared, dialogs, random};
};

TEST_F(QlvsModelTest, QuitLabelOffersTheCorrectionAndDeleteUsesIt) {
    start();
    model.hoverQuit();
    EXPECT_EQ(model.quitCaption(), "");
    model.keyTyped(Key::Character, U'b');
    model.hoverQuit();
    EXPECT_EQ(model.quitCaption(), "<");
    EXPECT_EQ(model.quitTooltip(), " Borrar un strike. ");
    model.ColorFall();
    EXPECT_EQ(model.quitCaption(), "");
    EXPECT_EQ(model.quitTooltip(), " Octavo Strike. ");

    dialogs.answer({true});
    model.keyTyped(Key::Delete);
    EXPECT_EQ(model.round().state().strikeCount, 0);
    model.keyTyped(Key::Character, U'd');
    model.hoverQuit();
    EXPECT_EQ(model.quitCaption(), "") << "one correction a game";
}

TEST_F(QlvsModelTest, KeyFacesFollowHoverPressAndRelease) {
    start();
    const Palette& p = shared.palette;
    model.hoverKey(1);
    EXPECT_EQ(model.keyFace(1).face, p.redLamp);
    EXPECT_EQ(model.keyFace(1).caption, kNearWhite);
    model.hoverKey(2);
    EXPECT_EQ(model.keyFace(2).face, p.gameColour);
    EXPECT_EQ(model.keyFace(1).face, kKeyGrey);

    model.pressKey(3);
    model.hoverKey(4);
    EXPECT_EQ(model.hoveredKey(), 2) << "no hover while a key is held";
    EXPECT_EQ(model.keyFace(3).face, p.greenLamp);
    EXPECT_EQ(model.keyFace(3).caption, (Rgb{0, 130, 0}));
    model.releaseMouse(4);
    EXPECT_TRUE(model.round().board().triedLetters().empty()) << "released off the key";

    model.pressKey(3);
    model.releaseMouse(3);
    EXPECT_EQ(model.round().board().triedLetters(), U"C");
    EXPECT_EQ(model.keyFace(3).face, kWhite);
    EXPECT_EQ(model.keyFace(3).caption, kBlack);
}

TEST_F(QlvsModelTest, KeyboardGrowsSixtyTwipsATickAndLampsFollowTheRound) {
    model.openKeyboard();
    for (int tick = 1; tick < 18; ++tick) {
        model.tickOpen();
    }
    EXPECT_EQ(model.heightTwips(), QlvsModel::kBaseHeightTwips + 17 * 60);
    EXPECT_FALSE(model.keyboardShown());
    model.tickOpen();
    EXPECT_TRUE(model.keyboardShown());
    EXPECT_FALSE(model.openTimerRunning());
    EXPECT_EQ(model.heightTwips(), QlvsModel::kBaseHeightTwips + 1080);

    start();
    model.keyTyped(Key::Character, U'z');
    EXPECT_EQ(model.lampColours().light, kRedLamp);
    EXPECT_EQ(model.lampColours().dark, (Rgb{194, 37, 37}));
    model.round().tickLamp();
    EXPECT_EQ(model.lampColours().light, model.gameColour());
    EXPECT_EQ(model.lampColours().dark, model.shade());
}

} // namespace
} // namespace quillora

namespace quillora {
namespace {

TEST(QlvsModelKeyboard, AKeptKeyboardOpensAtOnceAndTheBoardClimbsSixHundredTwips) {
    SharedState shared;
    ScriptedDialogs dialogs;
    QueuedRandom random;
    TempFolder folder("quillora-keyboard");
    shared.currentSession().Archivo = (folder.path() / "QuilloraVS5.txt").string();
    shared.settings.tecladoPermanente = true;
    ASSERT_TRUE(ConfSave(shared, dialogs)); // the board takes it from the file
    QlvsModel model{shared, dialogs, random};
    model.load();
    EXPECT_TRUE(model.keyboardShown());
    EXPECT_EQ(model.heightTwips(), QlvsModel::kBaseHeightTwips + QlvsModel::kKeyboardExtraTwips);
    EXPECT_EQ(model.openingDropTwips(), 120);
    int climbed = 0;
    while (model.topTimerRunning()) {
        climbed += model.tickTop();
    }
    EXPECT_EQ(climbed, 600);
}

} // namespace
} // namespace quillora
