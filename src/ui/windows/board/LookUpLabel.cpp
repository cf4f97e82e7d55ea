// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/LookUpLabel.h"

#include "look/Twips.h"
#include "models/board/BoardLookUps.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "round/Round.h"
#include "windows/ButtonLike.h"
#include "windows/board/BoardAccessible.h"

#include <QMouseEvent>

namespace quillora {

namespace {
constexpr int kLeft = 240, kTop = 4380, kWidth = 2520, kHeight = 360;
} // namespace

LookUpLabel::LookUpLabel(const Round& round, BoardLookUps& lookUps, QWidget* board)
    : QLabel(QStringLiteral("¿Qué es eso?"), board), m_round(round), m_lookUps(lookUps) {
    placeInTwips(this, QRect(kLeft, kTop, kWidth, kHeight));
    setAlignment(Qt::AlignCenter);
    setScaledFont(this, Fonts::display(10));
    setCursor(Qt::PointingHandCursor);
    setAccessibleRole(this, QAccessible::PushButton);
    new ButtonLike(
        this, [this] { m_lookUps.lookUpAnswer(); }, Qt::TabFocus);
}

void LookUpLabel::sync() {
    setVisible(m_round.lookUpVisible());
}

void LookUpLabel::paint(const QString& shade) {
    setStyleSheet(QStringLiteral("color: %1; background: transparent; text-decoration: underline;")
                      .arg(shade));
}

void LookUpLabel::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        m_lookUps.lookUpAnswer();
    }
    event->accept();
}

} // namespace quillora
