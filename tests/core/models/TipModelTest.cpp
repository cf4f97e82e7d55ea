// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/board/TipModel.h"
#include "words/Tips.h"

#include "support/BoardModelFixture.h"

#include <gtest/gtest.h>

#include <string>

namespace quillora {
namespace {

constexpr int kTextWidth = 600;

class TipModelTest : public BoardModelFixture {
protected:
    TipModel& tip = model.tip();
};

TEST_F(TipModelTest, ATipEntersAtTheRightEdgeAndGoesWithItsLastLetter) {
    tip.setTextWidth(300);
    EXPECT_EQ(tip.text(), TipModel::kStartText);
    EXPECT_EQ(tip.left(), (TipModel::kWidthTwips - 300) / 2) << "the hint stands in the middle";
    EXPECT_FALSE(tip.running());

    random.queue({0.5});
    tip.startTip();
    tip.setTextWidth(kTextWidth);
    EXPECT_EQ(tip.text(), tipText(5));
    EXPECT_EQ(tip.left(), TipModel::kWidthTwips);
    EXPECT_TRUE(tip.running());

    int ticks = 0;
    int last = tip.left();
    while (tip.running() && ticks < 1000) {
        tip.tick();
        ++ticks;
        if (tip.running()) {
            EXPECT_TRUE(tip.shown());
            EXPECT_EQ(tip.left(), last - TipModel::kStepTwips);
            last = tip.left();
        }
    }
    // The text moves until its right end is at or past the left edge, and
    // the tick after that puts the strip away.
    EXPECT_LE(last + kTextWidth, 0);
    EXPECT_GT(last + kTextWidth + TipModel::kStepTwips, 0) << "not a step later";
    EXPECT_EQ(ticks, (TipModel::kWidthTwips - last) / TipModel::kStepTwips + 1);
    EXPECT_FALSE(tip.shown());
    tip.tick();
    EXPECT_EQ(tip.left(), last) << "a stopped ticker stands still";
}

TEST_F(TipModelTest, AskingAgainRestartsAndAClickOrAStillBoardPutsItAway) {
    random.queue({0.95});
    tip.startTip();
    tip.setTextWidth(kTextWidth);
    for (int i = 0; i < 20; ++i) {
        tip.tick();
    }
    ASSERT_TRUE(tip.shown());

    random.queue({0.05, 0.15});
    tip.startTip();
    EXPECT_EQ(tip.text(), tipText(1)) << "0 was drawn again";
    EXPECT_EQ(tip.left(), TipModel::kWidthTwips);
    EXPECT_TRUE(tip.running());

    tip.stop();
    EXPECT_FALSE(tip.shown());
    EXPECT_FALSE(tip.running());

    shared.settings.animated = true;
    random.queue({0.3});
    tip.startTip();
    tip.tick();
    model.commands().toggleAnimation();
    EXPECT_FALSE(tip.shown());
    EXPECT_FALSE(tip.running());
    model.commands().toggleAnimation();
    EXPECT_FALSE(tip.shown()) << "it waits for the next tip";
}

} // namespace
} // namespace quillora
