// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QColor>

namespace quillora {

// A check box of the options window: a picture, ticked or empty, beside its
// caption on a panel of the game colour. A click does not tick it; whoever
// owns it asks the rules and says what it shows.
class CheckPicture final : public QAbstractButton {
public:
    CheckPicture(const QString& caption, QWidget* parent);

    void setTicked(bool ticked);
    bool ticked() const { return isChecked(); }
    void setPanelColour(const QColor& panel);

    // The two pictures, drawn rather than loaded, so the game needs no image
    // file for them.
    static void paintPicture(QPainter& p, const QRectF& r, bool ticked, const QColor& tick);

protected:
    void paintEvent(QPaintEvent* event) override;
    void nextCheckState() override {}

private:
    QColor m_panel;
};

} // namespace quillora
