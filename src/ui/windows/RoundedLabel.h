// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QLabel>
#include <QStaticText>

namespace quillora {

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
    // Draws the text from its kept layout; false for what only QLabel draws
    // (rich text, pictures, wrapped lines, a style sheet of its own).
    bool paintLine(QPainter& painter);

    QColor m_panel = Qt::transparent;
    QStaticText m_line;
    QFont m_lineFont;
};

} // namespace quillora
