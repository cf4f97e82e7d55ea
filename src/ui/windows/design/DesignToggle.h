// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Colour.h"

#include <QAbstractButton>

namespace quillora {

// One of the design window's toggles: its caption on the game colour, and
// beside it a rectangle that is filled while the toggle is on.
class DesignToggle final : public QAbstractButton {
public:
    DesignToggle(const QString& caption, const QString& tooltip, QWidget* parent);

    void setLook(bool enabled, bool lit, Rgb colour);
    bool lit() const { return isChecked(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    // The model says whether a click lit it.
    void nextCheckState() override {}

private:
    Rgb m_colour = kDefaultBlue;
};

} // namespace quillora
