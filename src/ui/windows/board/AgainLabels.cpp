// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/AgainLabels.h"

#include "look/Twips.h"
#include "models/board/SurvivalSwitch.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "windows/ButtonLike.h"
#include "windows/board/BoardAccessible.h"

#include <QLabel>
#include <QMouseEvent>

namespace quillora {

namespace {
// Where the answer box would be, which no game shows while there are no
// points to play with.
constexpr int kTop = 4290, kHeight = 540;
constexpr int kGetPointsLeft = 5880, kGetPointsWidth = 2760;
constexpr int kRestartLeft = 8760, kRestartWidth = 2535;

QLabel* makeLabel(const QString& text, int left, int width, QWidget* board) {
    auto* label = new QLabel(text, board);
    placeInTwips(label, QRect(left, kTop, width, kHeight));
    label->setAlignment(Qt::AlignCenter);
    setScaledFont(label, Fonts::display(11));
    label->setCursor(Qt::PointingHandCursor);
    setAccessibleRole(label, QAccessible::Button);
    label->hide();
    return label;
}

} // namespace

AgainLabels::AgainLabels(SurvivalSwitch& survival, std::function<void()> changed, QWidget* board)
    : QObject(board), m_survival(survival), m_changed(std::move(changed)) {
    m_restart = makeLabel(QStringLiteral("Reiniciar"), kRestartLeft, kRestartWidth, board);
    m_getPoints =
        makeLabel(QStringLiteral("Consigue puntos"), kGetPointsLeft, kGetPointsWidth, board);
    m_restart->installEventFilter(this);
    m_getPoints->installEventFilter(this);
    new ButtonLike(
        m_restart, [this] { press(m_restart); }, Qt::TabFocus);
    new ButtonLike(
        m_getPoints, [this] { press(m_getPoints); }, Qt::TabFocus);
}

void AgainLabels::press(QObject* label) {
    if (label == m_restart) {
        m_survival.againRestart();
    } else {
        m_survival.againGetPoints();
    }
    m_changed();
}

void AgainLabels::paint(const QString& gameColour) {
    const QString style = QStringLiteral("background: %1; color: white; border-radius: %2px;")
                              .arg(gameColour)
                              .arg(TwipScale::of(m_restart).px(90));
    m_restart->setStyleSheet(style);
    m_getPoints->setStyleSheet(style);
}

void AgainLabels::sync() {
    const bool shown = m_survival.againShown();
    m_restart->setVisible(shown);
    m_getPoints->setVisible(shown);
    if (shown) {
        m_restart->raise();
        m_getPoints->raise();
    }
}

bool AgainLabels::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonRelease) {
        return false;
    }
    // The click is the label's, never the board's background behind it.
    if (static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton) {
        return false;
    }
    if (event->type() == QEvent::MouseButtonRelease) {
        press(watched);
    }
    return true;
}

} // namespace quillora
