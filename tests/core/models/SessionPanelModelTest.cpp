// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/frmQlvs/SessionPanelModel.h"
#include "state/SharedState.h"

#include <gtest/gtest.h>

namespace quillora {
namespace {

class SessionPanelTest : public ::testing::Test {
protected:
    int ticksUntilStill() {
        int ticks = 0;
        while (panel.animating() && ticks < 1000) {
            panel.tick();
            ++ticks;
        }
        return ticks;
    }

    SharedState shared;
    SessionPanelModel panel{shared};
};

TEST_F(SessionPanelTest, OpensInStepsShowsTheKeyOnArrivalAndASecondCallClosesIt) {
    panel.eBlueScreen(2, true);
    EXPECT_EQ(panel.height(), SessionPanelModel::kStartHeight);
    EXPECT_EQ(panel.listTop(), 570 - 900);
    EXPECT_FALSE(panel.keyFrameShown());
    EXPECT_EQ(ticksUntilStill(), 25); // 135 + 25 * 240 reaches 6015
    EXPECT_GE(panel.height(), SessionPanelModel::kOpenHeight);
    EXPECT_TRUE(panel.keyFrameShown());
    EXPECT_TRUE(panel.warningShown()) << "a game is being played";

    panel.eBlueScreen(2, true);
    ticksUntilStill();
    EXPECT_FALSE(panel.shown());
    EXPECT_LE(panel.height(), SessionPanelModel::kClosedHeight);
}

TEST_F(SessionPanelTest, EnterLocksThenOnlyTheExactKeyUnlocks) {
    panel.eBlueScreen(1, false);
    ticksUntilStill();
    EXPECT_STREQ(panel.keyCaption(), "Escribe una clave:");
    panel.enterKey("Clave");
    EXPECT_TRUE(shared.locked);
    EXPECT_STREQ(panel.keyCaption(), "BLOQUEADO");
    EXPECT_TRUE(panel.secondBoxShown());
    EXPECT_FALSE(panel.cancelShown());
    EXPECT_FALSE(panel.f4Closes());

    panel.enterKey("clave");
    EXPECT_TRUE(shared.locked) << "the key is compared case by case";
    EXPECT_TRUE(panel.wrongShown());
    panel.tickWrong();
    EXPECT_FALSE(panel.wrongShown());

    panel.enterKey("Clave");
    EXPECT_FALSE(shared.locked);
    ticksUntilStill();
    EXPECT_FALSE(panel.shown()) << "the right key closes the panel";
}

TEST_F(SessionPanelTest, AnEmptyKeyLocksAndUnlocks) {
    panel.eBlueScreen(1, false);
    panel.enterKey("");
    EXPECT_TRUE(shared.locked);
    panel.enterKey("");
    EXPECT_FALSE(shared.locked);
}

TEST_F(SessionPanelTest, TheSessionListSlidesDownAndStops) {
    panel.eBlueScreen(3, false);
    panel.toggleList(3);
    EXPECT_EQ(panel.listTop(), 570 - 1350);
    int ticks = 0;
    while (panel.listSliding() && ticks < 1000) {
        panel.tickList();
        ++ticks;
    }
    EXPECT_GE(panel.listTop(), 540);
    EXPECT_LT(panel.listTop(), 600);
    panel.toggleList(3);
    EXPECT_FALSE(panel.listShown());
}

} // namespace
} // namespace quillora
