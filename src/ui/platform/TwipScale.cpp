// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/TwipScale.h"

#include <QVariant>
#include <QWidget>

#include <utility>
#include <vector>

namespace quillora {

namespace {

constexpr const char* kTwipsProperty = "quilloraTwips";
constexpr const char* kSizeProperty = "quilloraTwipsSize";
constexpr const char* kFontProperty = "quilloraUnscaledFont";
constexpr const char* kWatchedProperty = "quilloraScaleWatched";

void applyKept(QWidget* widget, TwipScale scale) {
    const QVariant font = widget->property(kFontProperty);
    if (font.isValid()) {
        widget->setFont(scale.font(font.value<QFont>()));
    }
    const QVariant twips = widget->property(kTwipsProperty);
    if (twips.isValid()) {
        widget->setGeometry(scale.rect(twips.toRect()));
    }
    const QVariant size = widget->property(kSizeProperty);
    if (size.isValid()) {
        const QSize twipsSize = size.toSize();
        widget->setFixedSize(scale.px(twipsSize.width()), scale.px(twipsSize.height()));
    }
}

// The windows that hold a scale other than 1: a board shown full screen, at
// most. Kept apart from Qt's properties, which are looked up by name, since
// the board asks for its scale as it paints after every letter.
std::vector<std::pair<const QWidget*, double>>& holders() {
    static std::vector<std::pair<const QWidget*, double>> held;
    return held;
}

} // namespace

TwipScale TwipScale::of(const QWidget* widget) {
    const auto& held = holders();
    if (held.empty() || !widget) {
        return TwipScale();
    }
    // A widget takes its window's scale, and a window the scale of the window
    // that opened it.
    for (const QWidget* window = widget->window(); window;) {
        for (const auto& [holder, factor] : held) {
            if (holder == window) {
                return TwipScale(factor);
            }
        }
        const QWidget* opener = window->parentWidget();
        window = opener ? opener->window() : nullptr;
    }
    return TwipScale();
}

void TwipScale::hold(QWidget* holder, double factor) {
    auto& held = holders();
    std::erase_if(held, [holder](const auto& entry) { return entry.first == holder; });
    if (factor != 1.0) {
        held.emplace_back(holder, factor);
        if (!holder->property(kWatchedProperty).toBool()) {
            holder->setProperty(kWatchedProperty, true);
            QObject::connect(holder, &QObject::destroyed, [holder] {
                std::erase_if(holders(),
                              [holder](const auto& entry) { return entry.first == holder; });
            });
        }
    }
    const TwipScale scale(factor);
    applyKept(holder, scale);
    for (QWidget* widget : holder->findChildren<QWidget*>()) {
        applyKept(widget, scale);
    }
}

QFont TwipScale::font(const QFont& base) const {
    if (unscaled()) {
        return base;
    }
    QFont scaled = base;
    if (base.pixelSize() <= 0) {
        // The system's own font, given in points.
        scaled.setPointSizeF(base.pointSizeF() * m_factor);
        return scaled;
    }
    // Rounded down: glyphs do not grow quite in step with their size, and
    // a caption that just fits its control at 100 % must still fit.
    scaled.setPixelSize(static_cast<int>(base.pixelSize() * m_factor));
    return scaled;
}

void placeInTwips(QWidget* widget, const QRect& twips) {
    widget->setProperty(kTwipsProperty, twips);
    widget->setGeometry(TwipScale::of(widget).rect(twips));
}

void fixSizeInTwips(QWidget* window, int widthTwips, int heightTwips) {
    // The window's font, which its controls without one of their own take,
    // grows with it.
    if (!window->property(kFontProperty).isValid()) {
        setScaledFont(window, window->font());
    }
    window->setProperty(kSizeProperty, QSize(widthTwips, heightTwips));
    const TwipScale scale = TwipScale::of(window);
    window->setFixedSize(scale.px(widthTwips), scale.px(heightTwips));
}

void setScaledFont(QWidget* widget, const QFont& unscaled) {
    widget->setProperty(kFontProperty, unscaled);
    widget->setFont(TwipScale::of(widget).font(unscaled));
}

const QFont& ScaledFont::at(TwipScale scale) {
    if (scale.factor() != m_factor) {
        m_factor = scale.factor();
        m_scaled = scale.font(m_unscaled);
    }
    return m_scaled;
}

} // namespace quillora
