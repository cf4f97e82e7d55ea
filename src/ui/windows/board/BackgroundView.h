// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/board/BackgroundPicture.h"

#include <QWidget>

namespace quillora {

class BoardModel;

// The picture behind everything on the board. Clicks and drops go
// through it to the board itself.
class BackgroundView final : public QWidget {
public:
    BackgroundView(const BoardModel& model, QWidget* board);

    void sync();
    const BackgroundPicture& picture() const { return m_picture; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const BoardModel& m_model;
    BackgroundPicture m_picture;
};

} // namespace quillora
