// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "round/RoundState.h"

#include "windows/RoundedLabel.h"

#include <QWidget>

#include <array>
#include <functional>

class QLabel;
class QColor;

namespace quillora {

class KeyFaces;
class Round;
class SidePanels;

// The eight strike marks under the phrase, and over the eighth the label
// that offers to take a strike back.
class StrikeStrip final : public QWidget {
public:
    StrikeStrip(Round& round, KeyFaces& faces, SidePanels& panels, std::function<void()> changed,
                QWidget* board);

    void sync();
    // The strip's lines and marks take the lamp of the moment.
    void paint(const QColor& lamp, const QColor& lines);

    QLabel* strikeLabel(int slot) const {
        return m_strikeLabel[static_cast<std::size_t>(slot - 1)];
    }
    QLabel* correctionLabel() const { return m_correctionLabel; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    // A click on a strike mark puts the side panels away, and is no click
    // on the board behind.
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void takeBackStrike();

    Round& m_round;
    KeyFaces& m_faces;
    SidePanels& m_panels;
    std::function<void()> m_changed;
    std::array<RoundedLabel*, RoundState::kSlots> m_strikeLabel{};
    QColor m_lines;
    QLabel* m_correctionLabel = nullptr;
};

} // namespace quillora
