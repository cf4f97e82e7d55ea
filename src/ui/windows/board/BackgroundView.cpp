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
    if (m_picture.follow(QString::fromStdString(m_appearance.shownPicture()),
                         m_appearance.pictureRealSize(), size(), devicePixelRatioF())) {
        update();
    }
}

void BackgroundView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    m_picture.paint(p);
}

} // namespace quillora
