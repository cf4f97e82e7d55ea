// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Colour.h"

#include <QAbstractButton>

namespace quillora {

// goToAddress: an arrow that goes to the typed folder, or a turning arrow that
// reads the shown folder again, drawn as lines so it is sharp on any screen.
class GoButton final : public QAbstractButton {
public:
    explicit GoButton(QWidget* parent);

    void setLook(bool go, Rgb colour);
    bool showsGo() const { return m_go; }

    // The two pictures, in a box of any size.
    static void paintArrow(QPainter& p, QRectF box, bool go);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_go = false;
    Rgb m_colour = kDefaultBlue;
};

} // namespace quillora
