// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "round/Figure.h"

namespace quillora {

namespace {

constexpr int kPanicStrikes = 7;
constexpr int kDeathStrikes = 8;
// How far the figure drops when the trapdoor opens.
constexpr int kDrop = 120;

struct PartStart {
    Figure::Part part;
    int fromStrike;
};
constexpr std::array<PartStart, 8> kDrawnFrom{{{Figure::Head, 1},
                                               {Figure::Face, 1},
                                               {Figure::Knot, 1},
                                               {Figure::Body, 2},
                                               {Figure::LeftArm, 3},
                                               {Figure::RightArm, 4},
                                               {Figure::LeftLeg, 5},
                                               {Figure::RightLeg, 6}}};

} // namespace

void Figure::reset() {
    m_visible.fill(false);
    m_visible[Trapdoor] = true;
    m_head = {1440, 1440, 735, 615};
    m_faceBox = {1650, 1560, 495, 375};
    m_face = "- -";
    m_hanging = false;
    m_lines[Knot] = {1740, 2040, 1860, 2040};
    m_lines[Body] = {1800, 2040, 1800, 2880};
    m_lines[LeftArm] = {1800, 2040, 1560, 3000};
    m_lines[RightArm] = {1800, 2040, 2040, 3000};
    m_lines[LeftLeg] = {1800, 2760, 1680, 3960};
    m_lines[RightLeg] = {1800, 2760, 1920, 3960};
    m_lines[PanicStroke1] = {1560, 1680, 1560, 1440};
    m_lines[PanicStroke2] = {1620, 1380, 1620, 1620};
    m_lines[PanicStroke3] = {1680, 1560, 1680, 1320};
}

void Figure::draw(int strikes) {
    for (const auto& [part, from] : kDrawnFrom) {
        if (strikes >= from) {
            m_visible[part] = true;
        }
    }
    if (strikes >= kPanicStrikes) {
        m_face = "o o";
        m_visible[PanicPicture] = m_visible[PanicStroke1] = m_visible[PanicStroke2] =
            m_visible[PanicStroke3] = true;
    }
    if (strikes >= kDeathStrikes) {
        hang();
    }
}

void Figure::hang() {
    if (m_hanging) {
        return;
    }
    m_hanging = true;
    m_visible[Trapdoor] = false;
    m_visible[PanicPicture] = m_visible[PanicStroke1] = m_visible[PanicStroke2] =
        m_visible[PanicStroke3] = false;
    m_lines[Knot].y1 = m_lines[Knot].y2 = 2040 + kDrop;
    m_head.top = 1440 + kDrop;
    m_lines[Body] = {1800, 2040 + kDrop, 1800, 2880 + kDrop};
    m_lines[LeftArm] = {1800, 2040 + kDrop, 1680, 3000 + kDrop};
    m_lines[RightArm] = {1800, 2040 + kDrop, 1920, 3000 + kDrop};
    m_lines[LeftLeg] = {1800, 2760 + kDrop, 1680, 3960 + kDrop};
    m_lines[RightLeg] = {1800, 2760 + kDrop, 1920, 3960 + kDrop};
    m_faceBox.top = 1740;
    m_face = "x x";
}

void Figure::calm() {
    m_face = "- -";
    m_visible[PanicPicture] = m_visible[PanicStroke1] = m_visible[PanicStroke2] =
        m_visible[PanicStroke3] = false;
}

} // namespace quillora
