// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Twips.h"

#include <QFont>
#include <QRect>
#include <QSize>

class QWidget;

namespace quillora {

// The board and the windows it opens are laid out in twips and put on the
// screen at one factor: 1 in a window of their own, more when the board
// fills a classroom's screen. Everything grows by the same factor, fonts
// and pictures included, so the board keeps its proportions and stays sharp.
class TwipScale {
public:
    constexpr TwipScale() = default;
    explicit constexpr TwipScale(double factor) : m_factor(factor) {}

    // The scale the widget is shown at: the one the nearest widget or window
    // above it holds, and 1 for a window that holds none.
    static TwipScale of(const QWidget* widget);
    // Gives the holder, every widget under it and every window it opens its
    // new scale, and puts the geometry and fonts kept by the functions below
    // right at once.
    static void hold(QWidget* holder, double factor);

    double factor() const { return m_factor; }
    bool unscaled() const { return m_factor == 1.0; }
    int px(int twips) const {
        return unscaled()
                   ? quillora::px(twips)
                   : static_cast<int>(twips * m_factor / kTwipsPerPixel + (twips < 0 ? -0.5 : 0.5));
    }
    QRect rect(const QRect& twips) const {
        return QRect(px(twips.left()), px(twips.top()), px(twips.width()), px(twips.height()));
    }
    QRect rect(int left, int top, int width, int height) const {
        return rect(QRect(left, top, width, height));
    }
    // Pixels at this scale back in twips.
    int twips(int pixels) const {
        return unscaled() ? pixels * kTwipsPerPixel
                          : static_cast<int>(pixels * kTwipsPerPixel / m_factor + 0.5);
    }
    // A length drawn in pixels at 100 %: a pen, a margin, a corner.
    qreal pixels(qreal unscaled) const { return unscaled * m_factor; }
    int pixels(int unscaled) const { return static_cast<int>(unscaled * m_factor + 0.5); }
    // The font as it is set at 100 %, at this scale.
    QFont font(const QFont& unscaled) const;

private:
    double m_factor = 1.0;
};

// Geometry and fonts a change of scale puts right: each is kept on the widget
// as it is at 100 % and set at the widget's scale of the moment.
void placeInTwips(QWidget* widget, const QRect& twips);
// A window's fixed size; its font, which its controls without one of their
// own take, is kept and scaled with it.
void fixSizeInTwips(QWidget* window, int widthTwips, int heightTwips);
void setScaledFont(QWidget* widget, const QFont& unscaled);

// A font kept at 100 % and at the last scale it was asked for: painting
// code that sets its own fonts asks for them at every paint.
class ScaledFont {
public:
    explicit ScaledFont(const QFont& unscaled) : m_unscaled(unscaled), m_scaled(unscaled) {}
    const QFont& at(TwipScale scale);

private:
    QFont m_unscaled;
    QFont m_scaled;
    double m_factor = 1.0;
};

} // namespace quillora
