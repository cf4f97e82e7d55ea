// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/TwipScale.h"
#include "round/RoundState.h"

#include <QColor>
#include <QPixmap>
#include <QStaticText>
#include <QString>
#include <QWidget>

#include <array>
#include <functional>
#include <vector>

class QLabel;

namespace quillora {

class KeyFaces;
class Round;
class SidePanels;

// The eight strike marks under the phrase, and over the eighth the label
// that offers to take a strike back. The marks are painted by the strip: the
// lamp recolours all eight after every letter, and one widget repainting
// them costs a fraction of eight.
class StrikeStrip final : public QWidget {
public:
    StrikeStrip(Round& round, KeyFaces& faces, SidePanels& panels, std::function<void()> changed,
                QWidget* board);

    void sync();
    // The strip's lines and marks take the lamp of the moment.
    void paint(const QColor& lamp, const QColor& lines);

    // Slots count from 1, as the player does.
    QString markText(int slot) const { return m_marks[index(slot)].text(); }
    QRect markRect(int slot) const;
    static QRect markTwips(int slot);
    // The slot under a point of the strip, or 0.
    int markAt(QPoint point) const;
    // The words a screen reader says of a mark, and of the strip.
    QString spokenMark(int slot) const;
    QString markTip(int slot) const;
    QLabel* correctionLabel() const { return m_correctionLabel; }

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    // A click on a strike mark puts the side panels away, and is no click
    // on the board behind.
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    static std::size_t index(int slot) { return static_cast<std::size_t>(slot - 1); }
    void takeBackStrike();
    // The marks' rounded ground in the lamp of the moment, drawn once for
    // each colour and then copied.
    const QPixmap& ground();

    struct Ground {
        QColor lamp;
        QPixmap pixmap;
    };

    Round& m_round;
    KeyFaces& m_faces;
    SidePanels& m_panels;
    std::function<void()> m_changed;
    std::array<QStaticText, RoundState::kSlots> m_marks{};
    QColor m_lamp = Qt::transparent;
    QColor m_lines;
    // The board's scale, followed as the marks are brought in step and painted.
    void followScale();

    TwipScale m_scale;
    std::vector<Ground> m_grounds;
    std::size_t m_nextGround = 0;
    QLabel* m_correctionLabel = nullptr;
};

} // namespace quillora
