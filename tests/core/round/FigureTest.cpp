// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "round/Figure.h"

#include <gtest/gtest.h>

#include <cstdlib>

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

bool inside(const TwipBox& inner, const TwipBox& outer) {
    return inner.left >= outer.left && inner.top >= outer.top &&
           inner.left + inner.width <= outer.left + outer.width &&
           inner.top + inner.height <= outer.top + outer.height;
}

TEST(FigureTest, TheHangedFigureDropsThroughTheTrapdoorOnceAndMunecoPutsItBack) {
    Figure figure;
    figure.draw(7);
    const Figure standing = figure;
    const int trapdoorTop = Figure::trapdoorBox().top;
    for (const P leg : {P::LeftLeg, P::RightLeg}) {
        EXPECT_EQ(standing.line(leg).y2, trapdoorTop) << "the feet stand on the trapdoor";
    }
    EXPECT_TRUE(inside(standing.faceBox(), standing.headBox()));

    figure.draw(8);
    // Head, knot, body and legs drop together, the body still hanging from
    // the knot, the feet now below the trapdoor.
    const int drop = figure.headBox().top - standing.headBox().top;
    EXPECT_GT(drop, 0);
    for (const P part : {P::Knot, P::Body, P::LeftLeg, P::RightLeg}) {
        EXPECT_EQ(figure.line(part).y1 - standing.line(part).y1, drop) << part;
        EXPECT_EQ(figure.line(part).y2 - standing.line(part).y2, drop) << part;
    }
    EXPECT_EQ(figure.line(P::Body).y1, figure.line(P::Knot).y1);
    EXPECT_GT(figure.line(P::LeftLeg).y2, trapdoorTop);
    EXPECT_TRUE(inside(figure.faceBox(), figure.headBox()));
    // The arms hang from the shoulders, closer to the body than before.
    const int bodyX = figure.line(P::Body).x1;
    for (const P arm : {P::LeftArm, P::RightArm}) {
        EXPECT_EQ(figure.line(arm).y1, figure.line(P::Body).y1) << arm;
        EXPECT_LT(std::abs(figure.line(arm).x2 - bodyX),
                  std::abs(standing.line(arm).x2 - standing.line(P::Body).x1))
            << arm;
    }

    // Drawing the death again must not drop the figure a second time.
    const Figure hanged = figure;
    figure.draw(8);
    EXPECT_EQ(figure.headBox(), hanged.headBox());
    EXPECT_EQ(figure.faceBox(), hanged.faceBox());
    EXPECT_EQ(figure.line(P::LeftLeg), hanged.line(P::LeftLeg));

    figure.reset();
    for (const P part : {P::Knot, P::Body, P::LeftArm, P::RightArm, P::LeftLeg, P::RightLeg}) {
        EXPECT_EQ(figure.line(part), standing.line(part)) << part;
    }
    EXPECT_EQ(figure.headBox(), standing.headBox());
    EXPECT_EQ(figure.faceBox(), standing.faceBox());
    EXPECT_EQ(figure.faceText(), "- -");
    EXPECT_FALSE(figure.hanging());
    EXPECT_FALSE(figure.visible(P::Head));
    EXPECT_TRUE(figure.visible(P::Trapdoor));
}

} // namespace
} // namespace quillora
