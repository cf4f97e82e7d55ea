// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/TwipScale.h"

#include <QColor>
#include <QFont>
#include <QLabel>
#include <QPixmap>
#include <QStaticText>

#include <array>
#include <cstddef>

class QPainter;

namespace quillora {

// The rounded ground the board's panels stand on; nothing for a transparent
// colour.
void paintRoundedGround(QPainter& painter, const QRect& area, const QColor& colour,
                        TwipScale scale);

// A label on a rounded panel of its own colour, or on none. The board's lamps
// recolour these after every letter: a colour set by hand repaints the label
// alone, where a style sheet would polish it and its children anew each time,
// and a line of plain text keeps its laid-out glyphs from one paint to the
// next rather than shaping them again at every flash.
class RoundedLabel : public QLabel {
public:
    explicit RoundedLabel(QWidget* parent, const QString& text = QString());

    // The panel's colour and the colour of its text and of its children's.
    void setColours(const QColor& panel, const QColor& text);
    QColor panelColour() const { return m_panel; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    // True when the text is one plain line that this label draws itself;
    // rich text, pictures, wrapped lines and style sheets are QLabel's.
    bool drawsPlainLine();
    void paintGround(QPainter& painter) const;
    void paintLine(QPainter& painter);
    // The panel as it looks now, drawn once and then copied: the lamp takes
    // most panels of the board between two colours after every letter, and
    // a copy costs a fraction of the rounded ground and the text.
    const QPixmap& look();

    struct Look {
        QString text;
        QColor panel;
        QColor ink;
        Qt::Alignment alignment;
        QFont font;
        QPixmap pixmap;
    };
    QColor m_panel = Qt::transparent;
    QString m_checkedText;
    Qt::TextFormat m_checkedFormat = Qt::AutoText;
    bool m_checkedPlain = true;
    QStaticText m_line;
    QFont m_lineFont;
    std::array<Look, 3> m_looks{};
    std::size_t m_nextLook = 0;
};

} // namespace quillora
