// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "round/Figure.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace quillora {
namespace {

using P = Figure::Part;

struct DrawCase {
    int strikes;
    std::set<P> shown;
    std::string face;
};

class FigureDrawTest : public ::testing::TestWithParam<DrawCase> {};

TEST_P(FigureDrawTest, ShowsExactlyThePartsOfTheStrikeCount) {
    Figure figure;
    figure.draw(GetParam().strikes);
    for (int p = 0; p < Figure::PartCount; ++p) {
        const auto part = static_cast<P>(p);
        EXPECT_EQ(figure.visible(part), GetParam().shown.count(part) == 1) << "part " << p;
    }
    EXPECT_EQ(figure.faceText(), GetParam().face);
    EXPECT_EQ(figure.hanging(), GetParam().strikes >= 8);
}

const std::set<P> kHead{P::Head, P::Face, P::Knot, P::Trapdoor};
std::set<P> with(std::set<P> parts, std::initializer_list<P> more) {
    parts.insert(more);
    return parts;
}
const std::set<P> kWhole = with(kHead, {P::Body, P::LeftArm, P::RightArm, P::LeftLeg, P::RightLeg});

INSTANTIATE_TEST_SUITE_P(
    Strikes, FigureDrawTest,
    ::testing::Values(
        DrawCase{0, {P::Trapdoor}, "- -"}, DrawCase{1, kHead, "- -"},
        DrawCase{2, with(kHead, {P::Body}), "- -"},
        DrawCase{3, with(kHead, {P::Body, P::LeftArm}), "- -"},
        DrawCase{4, with(kHead, {P::Body, P::LeftArm, P::RightArm}), "- -"},
        DrawCase{5, with(kHead, {P::Body, P::LeftArm, P::RightArm, P::LeftLeg}), "- -"},
        DrawCase{6, kWhole, "- -"},
        DrawCase{7,
                 with(kWhole, {P::PanicPicture, P::PanicStroke1, P::PanicStroke2, P::PanicStroke3}),
                 "o o"},
        DrawCase{8,
                 [] {
                     std::set<P> hanged = kWhole;
                     hanged.erase(P::Trapdoor);
                     return hanged;
                 }(),
                 "x x"}));

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

    figure.Muneco();
    EXPECT_EQ(figure.line(P::LeftArm), leftArm);
    EXPECT_EQ(figure.line(P::LeftArm), (TwipLine{1800, 2040, 1560, 3000}));
    EXPECT_EQ(figure.headBox(), head);
    EXPECT_EQ(figure.faceBox(), (TwipBox{1650, 1560, 495, 375}));
    EXPECT_EQ(figure.faceText(), "- -");
    EXPECT_FALSE(figure.hanging());
    EXPECT_FALSE(figure.visible(P::Head));
    EXPECT_TRUE(figure.visible(P::Trapdoor));
}

} // namespace
} // namespace quillora
