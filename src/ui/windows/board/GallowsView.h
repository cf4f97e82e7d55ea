// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "round/Figure.h"

#include <QFont>
#include <QPixmap>
#include <QRect>
#include <QRegion>
#include <QStaticText>
#include <QString>
#include <QWidget>

#include <array>

namespace quillora {

// The gallows and the figure, drawn in the board's twips straight from the
// figure's state.
class GallowsView final : public QWidget {
public:
    GallowsView(const Figure& figure, QWidget* parent);

    // The area of the board the drawing covers, in twips.
    static constexpr int kWidthTwips = 2760;
    static constexpr int kHeightTwips = 4320;
    // Where the view starts to draw: the beam's top, less the rope's cap.
    static constexpr int kTopTwips = 780;

    // Repaints what changed of the figure, and names it by the strikes it
    // shows.
    void sync();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // Draws the gallows and the figure; parts wholly outside area may be
    // left out.
    void draw(QPainter& p, const QRect& area);

    const Figure& m_figure;
    // The drawing as the figure stands: the score's panel over the gallows
    // wears the lamp's colour and repaints after every letter, and what lies
    // under it is then copied rather than drawn again.
    QPixmap m_drawn;
    // What of the drawing a change of the figure left out of date.
    QRegion m_stale;
    // Each part as last painted: a strike adds one part, and only its place
    // is painted again, not the gallows and the controls over it.
    std::array<QRect, Figure::PartCount> m_painted{};
    std::string m_paintedFace;
    // The scale the parts were last measured and drawn at.
    double m_factor = 1.0;
    QFont m_faceFont;
    QStaticText m_faceLine;
};

} // namespace quillora
