// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace quillora {

// A label on a rounded panel of its own colour. The board's lamps recolour
// these after every letter: a colour set by hand repaints the label alone,
// where a style sheet would polish it and its children anew each time.
class RoundedLabel : public QLabel {
public:
    explicit RoundedLabel(QWidget* parent, const QString& text = QString());

    // The panel's colour and the colour of its text and of its children's.
    void setColours(const QColor& panel, const QColor& text);
    QColor panelColour() const { return m_panel; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_panel = Qt::transparent;
};

} // namespace quillora
