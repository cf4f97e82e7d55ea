// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/BackgroundPicture.h"

#include <QWidget>

namespace quillora {

class BoardAppearance;

// The picture behind everything on the board. Clicks and drops go
// through it to the board itself.
class BackgroundView final : public QWidget {
public:
    BackgroundView(const BoardAppearance& appearance, QWidget* board);

    void sync();
    const BackgroundPicture& picture() const { return m_picture; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const BoardAppearance& m_appearance;
    BackgroundPicture m_picture;
    // How much a picture at its real size grows as it is painted: with the
    // board, so the board shows the same corner of it at any scale.
    double m_realSizeGrowth = 1.0;
};

} // namespace quillora
