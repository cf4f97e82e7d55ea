// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/LookUpLabel.h"

#include "look/Twips.h"
#include "models/board/BoardModel.h"
#include "platform/Fonts.h"
#include "windows/board/BoardAccessible.h"

#include <QMouseEvent>

namespace quillora {

namespace {
constexpr int kLeft = 240, kTop = 4380, kWidth = 2520, kHeight = 360;
} // namespace

LookUpLabel::LookUpLabel(BoardModel& model, QWidget* board)
    : QLabel(QStringLiteral("¿Qué es eso?"), board), m_model(model) {
    setGeometry(px(kLeft), px(kTop), px(kWidth), px(kHeight));
    setAlignment(Qt::AlignCenter);
    setFont(Fonts::display(10));
    setCursor(Qt::PointingHandCursor);
    setAccessibleRole(this, QAccessible::PushButton);
}

void LookUpLabel::sync() {
    setVisible(m_model.round().lookUpVisible());
}

void LookUpLabel::paint(const QString& shade) {
    setStyleSheet(QStringLiteral("color: %1; background: transparent; text-decoration: underline;")
                      .arg(shade));
}

void LookUpLabel::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        m_model.lookUpAnswer();
    }
    event->accept();
}

} // namespace quillora
