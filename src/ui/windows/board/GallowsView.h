// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace quillora {

class Figure;

// The gallows and the figure, drawn in the board's twips straight from the
// figure's state.
class GallowsView final : public QWidget {
public:
    GallowsView(const Figure& figure, QWidget* parent);

    // The area of the board the drawing covers, in twips.
    static constexpr int kWidthTwips = 2760;
    static constexpr int kHeightTwips = 4320;

    // Repaints, and names the figure by the strikes it shows.
    void sync();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Figure& m_figure;
};

} // namespace quillora
