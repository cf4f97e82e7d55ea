// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/StrikeStrip.h"

#include "look/Twips.h"
#include "models/board/BoardSpeech.h"
#include "models/board/KeyFaces.h"
#include "models/board/SidePanels.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "round/Round.h"
#include "windows/ButtonLike.h"
#include "windows/QtColour.h"
#include "windows/RoundedLabel.h"
#include "windows/board/BoardAccessible.h"

#include <QEvent>
#include <QHelpEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QStaticText>
#include <QToolTip>

namespace quillora {

namespace {

constexpr int kLeft = 3000, kTop = 3600, kMargin = 60;
constexpr int kWidth = 735, kHeight = 495, kPitch = 720;

const std::array<const char*, RoundState::kSlots> kStrikeTips{
    " Primer Strike. ", " Segundo Strike.", " Tercer Strike. ", " Cuarto Strike. ",
    " Quinto Strike. ", " Sexto Strike. ",  " Séptimo Strike.", " Octavo Strike. "};

} // namespace

StrikeStrip::StrikeStrip(Round& round, KeyFaces& faces, SidePanels& panels,
                         std::function<void()> changed, QWidget* board)
    : QWidget(board), m_round(round), m_faces(faces), m_panels(panels),
      m_changed(std::move(changed)) {
    placeInTwips(this, QRect(kLeft - kMargin, kTop - kMargin, kPitch * 7 + kWidth + 2 * kMargin,
                             kHeight + 2 * kMargin));
    setScaledFont(this, Fonts::display(14));
    m_correctionLabel = new QLabel(this);
    m_correctionLabel->setObjectName(QStringLiteral("lblQuit"));
    placeInTwips(m_correctionLabel, markTwips(RoundState::kSlots));
    m_correctionLabel->setAlignment(Qt::AlignCenter);
    setScaledFont(m_correctionLabel, Fonts::display(16));
    m_correctionLabel->setCursor(Qt::PointingHandCursor);
    m_correctionLabel->setMouseTracking(true);
    // The correction is offered on the mouse's hover; a screen reader finds
    // it as a button, there whether or not it can be used now.
    setAccessibleRole(m_correctionLabel, QAccessible::Button);
    m_correctionLabel->setAccessibleName(QStringLiteral("Borrar un strike"));
    m_correctionLabel->setAccessibleDescription(QStringLiteral("Corrección de strikes"));
    m_correctionLabel->installEventFilter(this);
    new ButtonLike(
        m_correctionLabel, [this] { takeBackStrike(); }, Qt::TabFocus);
    QPalette white = m_correctionLabel->palette();
    white.setColor(QPalette::WindowText, Qt::white);
    m_correctionLabel->setPalette(white);
}

QRect StrikeStrip::markTwips(int slot) {
    return {kMargin + kPitch * (slot - 1), kMargin, kWidth, kHeight};
}

QRect StrikeStrip::markRect(int slot) const {
    return m_scale.rect(markTwips(slot));
}

void StrikeStrip::followScale() {
    const TwipScale scale = TwipScale::of(this);
    if (scale.factor() != m_scale.factor()) {
        // The grounds were drawn, and the marks laid out, at the old scale.
        m_scale = scale;
        m_grounds.clear();
        m_nextGround = 0;
        m_marks = {};
        update();
    }
}

int StrikeStrip::markAt(QPoint point) const {
    for (int slot = 1; slot <= RoundState::kSlots; ++slot) {
        if (markRect(slot).contains(point)) {
            return slot;
        }
    }
    return 0;
}

QString StrikeStrip::spokenMark(int slot) const {
    return qs(spokenStrikeMark(m_round.state(), slot));
}

QString StrikeStrip::markTip(int slot) const {
    return QString::fromUtf8(kStrikeTips[index(slot)]);
}

void StrikeStrip::paint(const QColor& lamp, const QColor& lines) {
    if (lamp != m_lamp) {
        m_lamp = lamp;
        update(markRect(1).united(markRect(RoundState::kSlots)));
    }
    if (lines != m_lines) {
        m_lines = lines;
        update();
    }
}

void StrikeStrip::sync() {
    followScale();
    const RoundState& state = m_round.state();
    QList<int> changed;
    for (int slot = 1; slot <= RoundState::kSlots; ++slot) {
        const QString mark = qs(state.slot(slot));
        if (mark != m_marks[index(slot)].text()) {
            // Laid out once, when the mark is written: the lamps repaint
            // it after every letter.
            QStaticText& text = m_marks[index(slot)];
            text.setText(mark);
            text.setTextFormat(Qt::PlainText);
            text.prepare(QTransform(), font());
            update(markRect(slot));
            changed << slot - 1;
        }
    }
    announceChildren(this, changed, QAccessible::NameChanged);
    setSpokenName(this, qs(spokenStrikes(state, m_round.figure())));
    m_correctionLabel->setText(qs(m_faces.correctionCaption()));
    if (const QString tip = qs(m_faces.correctionTooltip()); m_correctionLabel->toolTip() != tip) {
        m_correctionLabel->setToolTip(tip);
    }
    setAccessibleUnavailable(m_correctionLabel, !m_round.correctionOffered());
}

const QPixmap& StrikeStrip::ground() {
    const qreal ratio = devicePixelRatioF();
    for (const Ground& kept : m_grounds) {
        if (kept.lamp == m_lamp && kept.pixmap.devicePixelRatio() == ratio) {
            return kept.pixmap;
        }
    }
    // One for each colour the lamp takes in a game, and one more while the
    // board's colour changes.
    constexpr std::size_t kKeptGrounds = 4;
    if (m_grounds.size() < kKeptGrounds) {
        m_grounds.push_back({});
        m_nextGround = m_grounds.size() - 1;
    }
    Ground& drawn = m_grounds[m_nextGround];
    m_nextGround = (m_nextGround + 1) % kKeptGrounds;
    const QSize size = markRect(1).size();
    drawn.lamp = m_lamp;
    drawn.pixmap = QPixmap(size * ratio);
    drawn.pixmap.setDevicePixelRatio(ratio);
    drawn.pixmap.fill(Qt::transparent);
    QPainter painter(&drawn.pixmap);
    paintRoundedGround(painter, QRect(QPoint(0, 0), size), m_lamp, m_scale);
    return drawn.pixmap;
}

void StrikeStrip::paintEvent(QPaintEvent* event) {
    followScale();
    QPainter p(this);
    // The strip's rules above and below the marks.
    const int rule = m_scale.pixels(2);
    p.setPen(QPen(m_lines, rule));
    p.drawLine(0, rule / 2, width(), rule / 2);
    p.setPen(Qt::white);
    p.setFont(font());
    for (int slot = 1; slot <= RoundState::kSlots; ++slot) {
        const QRect area = markRect(slot);
        if (!event->region().intersects(area)) {
            continue;
        }
        p.drawPixmap(area.topLeft(), ground());
        QStaticText& mark = m_marks[index(slot)];
        if (!mark.text().isEmpty()) {
            const QSizeF size = mark.size();
            p.drawStaticText(QPointF(area.left() + (area.width() - size.width()) / 2,
                                     area.top() + (area.height() - size.height()) / 2),
                             mark);
        }
    }
}

bool StrikeStrip::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        if (const int slot = markAt(help->pos())) {
            QToolTip::showText(help->globalPos(), markTip(slot), this, markRect(slot));
        } else {
            QToolTip::hideText();
            event->ignore();
        }
        return true;
    }
    return QWidget::event(event);
}

void StrikeStrip::takeBackStrike() {
    m_round.takeBackStrike();
    m_faces.restore();
    m_changed();
}

void StrikeStrip::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        m_panels.closeAll();
        m_changed();
    }
    event->accept();
}

bool StrikeStrip::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_correctionLabel) {
        return QWidget::eventFilter(watched, event);
    }
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::MouseMove:
        m_faces.hoverCorrection();
        sync();
        return false;
    case QEvent::MouseButtonPress:
        // The press stays here: it must not reach the board as a click on
        // its background.
        return true;
    case QEvent::MouseButtonRelease:
        takeBackStrike();
        return true;
    // The keyboard's focus offers the correction as the mouse over it does.
    case QEvent::FocusIn:
        m_faces.hoverCorrection();
        sync();
        return false;
    case QEvent::FocusOut:
        m_faces.restore();
        sync();
        return false;
    default:
        return false;
    }
}

} // namespace quillora
