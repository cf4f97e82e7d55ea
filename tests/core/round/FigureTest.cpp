// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "round/Figure.h"

#include <gtest/gtest.h>

namespace quillora {
namespace {

using P = Figure::Part;

TEST(FigureTest, ShowsExactlyThePartsOfTheStrikeCount) {
    // The first and the last strike count at which each part shows, in the
    // order of the parts: the head with its face and knot, the body and limbs,
    // the four panic parts, the trapdoor.
    const int from[Figure::PartCount] = {1, 1, 1, 2, 3, 4, 5, 6, 7, 7, 7, 7, 0};
    const int until[Figure::PartCount] = {8, 8, 8, 8, 8, 8, 8, 8, 7, 7, 7, 7, 7};
    for (int strikes = 0; strikes <= 8; ++strikes) {
        Figure figure;
        figure.draw(strikes);
        for (int p = 0; p < Figure::PartCount; ++p) {
            EXPECT_EQ(figure.visible(static_cast<P>(p)), from[p] <= strikes && strikes <= until[p])
                << strikes << " strikes, part " << p;
        }
        EXPECT_EQ(figure.faceText(), strikes < 7 ? "- -" : strikes == 7 ? "o o" : "x x");
        EXPECT_EQ(figure.hanging(), strikes == 8);
    }
}

TEST(FigureTest, TheHangedFigureDropsAndMunecoPutsItBack) {
    Figure figure;
    const TwipLine leftArm = figure.line(P::LeftArm);
    const TwipBox head = figure.headBox();
    figure.draw(8);
    EXPECT_EQ(figure.line(P::Knot), (TwipLine{1740, 2160, 1860, 2160}));
    EXPECT_EQ(figure.headBox(), (TwipBox{1440, 1560, 735, 615}));
    EXPECT_EQ(figure.line(P::Body), (TwipLine{1800, 2160, 1800, 3000}));
    EXPECT_EQ(figure.line(P::LeftArm), (TwipLine{1800, 2160, 1680, 3120}));
    EXPECT_EQ(figure.line(P::RightArm), (TwipLine{1800, 2160, 1920, 3120}));
    EXPECT_EQ(figure.line(P::LeftLeg), (TwipLine{1800, 2880, 1680, 4080}));
    EXPECT_EQ(figure.line(P::RightLeg), (TwipLine{1800, 2880, 1920, 4080}));
    EXPECT_EQ(figure.faceBox().top, 1740);

    // Drawing the death again must not drop the figure a second time.
    figure.draw(8);
    EXPECT_EQ(figure.headBox().top, 1560);

    figure.reset();
    EXPECT_EQ(figure.line(P::LeftArm), leftArm);
    EXPECT_EQ(figure.headBox(), head);
    EXPECT_EQ(figure.faceBox(), (TwipBox{1650, 1560, 495, 375}));
    EXPECT_EQ(figure.faceText(), "- -");
    EXPECT_FALSE(figure.hanging());
    EXPECT_FALSE(figure.visible(P::Head));
    EXPECT_TRUE(figure.visible(P::Trapdoor));
}

} // namespace
} // namespace quillora
