// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/StrikeStrip.h"

#include "look/Twips.h"
#include "models/board/BoardSpeech.h"
#include "models/board/KeyFaces.h"
#include "models/board/SidePanels.h"
#include "platform/Fonts.h"
#include "round/Round.h"
#include "windows/ButtonLike.h"
#include "windows/QtColour.h"
#include "windows/RoundedLabel.h"
#include "windows/board/BoardAccessible.h"

#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

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
    setGeometry(px(kLeft - kMargin), px(kTop - kMargin), px(kPitch * 7 + kWidth + 2 * kMargin),
                px(kHeight + 2 * kMargin));
    setAccessibleRole(this, QAccessible::Grouping);
    for (int slot = 1; slot <= RoundState::kSlots; ++slot) {
        auto* label = new RoundedLabel(this);
        label->setGeometry(px(kMargin + kPitch * (slot - 1)), px(kMargin), px(kWidth), px(kHeight));
        label->setAlignment(Qt::AlignCenter);
        label->setFont(Fonts::display(14));
        label->setToolTip(QString::fromUtf8(kStrikeTips[static_cast<std::size_t>(slot - 1)]));
        label->setAccessibleDescription(label->toolTip().trimmed());
        m_strikeLabel[static_cast<std::size_t>(slot - 1)] = label;
    }
    m_correctionLabel = new QLabel(this);
    m_correctionLabel->setObjectName(QStringLiteral("lblQuit"));
    m_correctionLabel->setGeometry(m_strikeLabel.back()->geometry());
    m_correctionLabel->setAlignment(Qt::AlignCenter);
    m_correctionLabel->setFont(Fonts::display(16));
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

void StrikeStrip::paint(const QColor& lamp, const QColor& lines) {
    for (RoundedLabel* label : m_strikeLabel) {
        label->setColours(lamp, Qt::white);
    }
    if (lines != m_lines) {
        m_lines = lines;
        update();
    }
}

void StrikeStrip::paintEvent(QPaintEvent*) {
    // The strip's rules above and below the marks.
    QPainter p(this);
    p.setPen(QPen(m_lines, 2));
    p.drawLine(0, 1, width(), 1);
    p.drawLine(0, height() - 1, width(), height() - 1);
}

void StrikeStrip::sync() {
    const RoundState& state = m_round.state();
    for (int slot = 1; slot <= RoundState::kSlots; ++slot) {
        strikeLabel(slot)->setText(qs(state.slot(slot)));
        setSpokenName(strikeLabel(slot), qs(spokenStrikeMark(state, slot)));
    }
    setSpokenName(this, qs(spokenStrikes(state, m_round.figure())));
    m_correctionLabel->setText(qs(m_faces.correctionCaption()));
    m_correctionLabel->setToolTip(qs(m_faces.correctionTooltip()));
    setAccessibleUnavailable(m_correctionLabel, !m_round.correctionOffered());
    m_correctionLabel->raise();
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
