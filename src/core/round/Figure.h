// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Colour.h"

#include <array>
#include <string>

namespace quillora {

// Geometry in twips of the board window.
struct TwipLine {
    int x1, y1, x2, y2;
    constexpr bool operator==(const TwipLine&) const = default;
};
struct TwipBox {
    int left, top, width, height;
    constexpr bool operator==(const TwipBox&) const = default;
};

// The gallows never change; they are drawn whatever the strikes.
struct GallowsLine {
    TwipLine line;
    Rgb colour;
    int width;
};
inline constexpr TwipBox kPost{600, 960, 135, 3255};
inline constexpr TwipBox kBeam{600, 840, 1935, 135};
inline constexpr Rgb kGallowsWood{64, 0, 0};
inline constexpr std::array<GallowsLine, 3> kBraces{
    GallowsLine{{660, 1500, 1200, 960}, kGallowsWood, 7},
    GallowsLine{{1110, 945, 720, 1340}, kBlack, 2}, GallowsLine{{720, 1520, 1280, 960}, kBlack, 2}};
inline constexpr GallowsLine kRope{{1740, 840, 1740, 1560}, Rgb{192, 192, 0}, 5};
inline constexpr Rgb kKnotColour{192, 192, 0};
inline constexpr Rgb kTrapdoorColour{192, 64, 0};
inline constexpr Rgb kPanicStrokeColour{0, 0, 128};

// The hanged figure, part by part, with the strike count from which each part
// shows. The panic (strike 7) and the hanging (strike 8) move and swap parts.
class Figure {
public:
    enum Part {
        Head,
        Face,
        Knot,
        Body,
        LeftArm,
        RightArm,
        LeftLeg,
        RightLeg,
        PanicPicture,
        PanicStroke1,
        PanicStroke2,
        PanicStroke3,
        Trapdoor,
        PartCount
    };

    Figure() { reset(); }

    // Back to the initial geometry, face "- -", every part of the figure
    // hidden; the trapdoor stays.
    void reset();
    // Shows what `strikes` strikes have drawn, the panic at 7 and the
    // hanging at 8.
    void draw(int strikes);
    // The win calms the face again.
    void calm();

    bool visible(Part part) const { return m_visible[part]; }
    const std::string& faceText() const { return m_face; }
    TwipBox headBox() const { return m_head; }
    TwipBox faceBox() const { return m_faceBox; }
    static constexpr TwipBox trapdoorBox() { return {1560, 3960, 495, 255}; }
    static constexpr TwipBox panicPictureBox() { return {1560, 1800, 480, 480}; }
    // The line of a line-drawn part (knot, body, arms, legs, panic strokes).
    TwipLine line(Part part) const { return m_lines[part]; }
    bool hanging() const { return m_hanging; }

private:
    void hang();

    std::array<bool, PartCount> m_visible{};
    std::array<TwipLine, PartCount> m_lines{};
    TwipBox m_head{};
    TwipBox m_faceBox{};
    std::string m_face;
    bool m_hanging = false;
};

} // namespace quillora
