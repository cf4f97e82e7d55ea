// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/FocusRing.h"

#include "windows/AccessibleControl.h"
#include "windows/QtColour.h"

#include <QApplication>
#include <QPainter>

namespace quillora {

namespace {

// The ring lies just outside the control, so it covers none of it: a yellow
// band between two dark lines, which stands out on white, on the game colour
// and on the yellow tile alike.
constexpr qreal kOuter = 2;
constexpr qreal kBand = 3;
constexpr qreal kInner = 1.5;
constexpr int kMargin = 7;
constexpr qreal kRadius = 6;

} // namespace

FocusRing::FocusRing(QWidget* window) : QWidget(window), m_window(window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    AccessibleControl::hidden(this);
    hide();
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { follow(now); });
}

FocusRing* FocusRing::of(const QWidget* window) {
    for (QObject* child : window->children()) {
        if (auto* ring = dynamic_cast<FocusRing*>(child)) {
            return ring;
        }
    }
    return nullptr;
}

void FocusRing::follow(QWidget* focus) {
    for (const QPointer<QWidget>& watched : std::as_const(m_watched)) {
        if (watched) {
            watched->removeEventFilter(this);
        }
    }
    m_watched.clear();
    m_target = nullptr;
    if (!focus || focus == m_window || focus->window() != m_window) {
        hide();
        return;
    }
    m_target = focus;
    for (QWidget* w = focus; w && w != m_window; w = w->parentWidget()) {
        w->installEventFilter(this);
        m_watched.append(w);
    }
    place();
}

void FocusRing::place() {
    if (!m_target || !m_target->isVisibleTo(m_window)) {
        hide();
        return;
    }
    const QRect around(m_target->mapTo(m_window, QPoint(0, 0)), m_target->size());
    setGeometry(around.adjusted(-kMargin, -kMargin, kMargin, kMargin));
    raise();
    show();
    update();
}

bool FocusRing::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
    case QEvent::Hide:
        place();
        break;
    case QEvent::ZOrderChange:
        // A panel that puts itself on top of the board would cover the ring
        // around its own control.
        if (isVisible()) {
            raise();
        }
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void FocusRing::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(Qt::NoBrush);
    const QRectF box = QRectF(rect());
    const auto stroke = [&p, &box](qreal from, qreal width, const QColor& colour) {
        const qreal at = from + width / 2;
        p.setPen(QPen(colour, width));
        p.drawRoundedRect(box.adjusted(at, at, -at, -at), kRadius - from / 2, kRadius - from / 2);
    };
    stroke(0, kOuter, qc(kFocusEdge));
    stroke(kOuter, kBand, qc(kFocusBand));
    stroke(kOuter + kBand, kInner, qc(kFocusEdge));
}

} // namespace quillora
