// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/BackgroundView.h"

#include "platform/TwipScale.h"

#include "look/Twips.h"
#include "models/board/BoardModel.h"
#include "windows/board/BoardAccessible.h"

#include <QPainter>

namespace quillora {

BackgroundView::BackgroundView(const BoardAppearance& appearance, QWidget* board)
    : QWidget(board), m_appearance(appearance) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleRole(this, QAccessible::Graphic);
    setAccessibleName(QStringLiteral("Imagen de fondo"));
    // The picture area is the board without its keyboard.
    placeInTwips(this, QRect(0, 0, BoardModel::kWidthTwips, BoardModel::kBaseHeightTwips));
    lower();
}

void BackgroundView::sync() {
    const bool realSize = m_appearance.pictureRealSize();
    const double growth = realSize ? TwipScale::of(this).factor() : 1.0;
    // A stretched picture is decoded to the pixels it covers, and stays sharp.
    const QSize area(static_cast<int>(width() / growth + 0.5),
                     static_cast<int>(height() / growth + 0.5));
    if (m_picture.follow(QString::fromStdString(m_appearance.shownPicture()), realSize, area,
                         devicePixelRatioF()) ||
        growth != m_realSizeGrowth) {
        m_realSizeGrowth = growth;
        update();
    }
}

void BackgroundView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (m_realSizeGrowth != 1.0) {
        p.setRenderHint(QPainter::SmoothPixmapTransform);
        p.scale(m_realSizeGrowth, m_realSizeGrowth);
    }
    m_picture.paint(p);
}

} // namespace quillora
