// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/design/PreviewView.h"

#include "look/Twips.h"
#include "windows/QtColour.h"

#include <QPainter>

#include <utility>

namespace quillora {

namespace {

// The board's picture area, which the preview shows in small.
QSize boardArea() {
    return QSize(px(kBoardWidthTwips), px(kBoardBaseHeightTwips));
}

constexpr Rgb kFrame{160, 160, 160};

} // namespace

PreviewView::PreviewView(QWidget* parent) : QWidget(parent) {}

bool PreviewView::load(const std::string& path, bool realSize) {
    BackgroundPicture trial;
    trial.follow(QString::fromStdString(path), realSize, boardArea(), 1.0);
    if (!trial.shown()) {
        return false;
    }
    m_picture = std::move(trial);
    update();
    return true;
}

void PreviewView::follow(const std::string& path, bool realSize) {
    if (m_picture.follow(QString::fromStdString(path), realSize, boardArea(), 1.0)) {
        update();
    }
}

void PreviewView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.fillRect(rect(), qc(kNearWhite));
    p.save();
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSize area = boardArea();
    p.scale(static_cast<qreal>(width()) / area.width(),
            static_cast<qreal>(height()) / area.height());
    m_picture.paint(p);
    p.restore();
    p.setPen(qc(kFrame));
    p.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace quillora
