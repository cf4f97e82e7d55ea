// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/RoundedLabel.h"

class QLabel;
class QTimer;

namespace quillora {

class TipModel;

// The tip strip under the strikes, with the tip's text
// sliding through it on its own ticker. Each tick moves the text
// and nothing else: the board around it is not redrawn.
class TipStrip final : public RoundedLabel {
public:
    TipStrip(TipModel& model, QWidget* board);

    // The game colour, behind the strip and its text.
    void paint(const QColor& gameColour);
    void sync();
    // One step of the scrolling text.
    void tick();

    QLabel* tipLabel() const { return m_tipLabel; }
    QTimer* tipTimer() const { return m_tipTimer; }

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    TipModel& m_model;
    QLabel* m_tipLabel = nullptr;
    QTimer* m_tipTimer = nullptr;
    // The scale the text was last measured at; none before the first sync.
    double m_factor = 0.0;
};

} // namespace quillora
