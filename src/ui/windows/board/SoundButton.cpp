// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/SoundButton.h"

#include "look/Twips.h"
#include "models/board/BoardCommands.h"
#include "models/board/KeyFaces.h"
#include "platform/TwipScale.h"
#include "state/Settings.h"
#include "windows/ButtonLike.h"
#include "windows/QtColour.h"
#include "windows/board/BoardAccessible.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

namespace quillora {

namespace {

// Beside the status, under the automatic-phrase marker.
constexpr int kLeft = 2580, kTop = 765;
constexpr int kPictureWidth = 25, kPictureHeight = 20;
constexpr int kMargin = 1;
constexpr Rgb kSpeaker{60, 60, 60};

} // namespace

SoundButton::SoundButton(BoardCommands& commands, KeyFaces& faces, const Settings& settings,
                         std::function<void()> changed, QWidget* board)
    : QWidget(board), m_commands(commands), m_faces(faces), m_settings(settings),
      m_changed(std::move(changed)) {
    placeInTwips(this, QRect(kLeft, kTop, (kPictureWidth + 2 * kMargin) * kTwipsPerPixel,
                             (kPictureHeight + 2 * kMargin) * kTwipsPerPixel));
    setCursor(Qt::PointingHandCursor);
    setMouseTracking(true);
    setAccessibleRole(this, QAccessible::Button);
    new ButtonLike(
        this,
        [this] {
            m_commands.toggleSounds();
            m_changed();
        },
        Qt::TabFocus);
}

void SoundButton::sync() {
    setToolTip(QString::fromUtf8(m_commands.soundButtonTooltip()));
    setSpokenName(this, toolTip().trimmed());
    update();
}

void SoundButton::paintPicture(QPainter& p, QRectF box, bool soundOn) {
    p.save();
    p.translate(box.topLeft());
    p.scale(box.width() / kPictureWidth, box.height() / kPictureHeight);
    p.setRenderHint(QPainter::Antialiasing);
    // The loudspeaker: a box and its cone.
    QPainterPath speaker;
    speaker.moveTo(3, 7.5);
    speaker.lineTo(7, 7.5);
    speaker.lineTo(12, 3);
    speaker.lineTo(12, 17);
    speaker.lineTo(7, 12.5);
    speaker.lineTo(3, 12.5);
    speaker.closeSubpath();
    p.setPen(Qt::NoPen);
    p.setBrush(qc(kSpeaker));
    p.drawPath(speaker);
    p.setBrush(Qt::NoBrush);
    if (soundOn) {
        // Two waves leaving it.
        p.setPen(QPen(qc(kSpeaker), 1.6, Qt::SolidLine, Qt::RoundCap));
        p.drawArc(QRectF(9, 6, 8, 8), -50 * 16, 100 * 16);
        p.drawArc(QRectF(8, 3, 14, 14), -50 * 16, 100 * 16);
    } else {
        // Crossed out in the red of a wrong letter.
        p.setPen(QPen(qc(kRedLamp), 2.0, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(15, 6.5), QPointF(22, 13.5));
        p.drawLine(QPointF(22, 6.5), QPointF(15, 13.5));
    }
    p.restore();
}

void SoundButton::paintEvent(QPaintEvent*) {
    QPainter p(this);
    const TwipScale scale = TwipScale::of(this);
    const qreal line = scale.pixels(1.0);
    const QRectF frame = QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2);
    // The rectangle fills while the button is held.
    p.setPen(QPen(qc(kPictureButtonBack), line));
    p.setBrush(m_pressed ? QBrush(qc(kPictureButtonBack)) : QBrush(Qt::NoBrush));
    p.drawRect(frame);
    const qreal margin = scale.pixels(static_cast<qreal>(kMargin));
    paintPicture(p, QRectF(rect()).adjusted(margin, margin, -margin, -margin), m_settings.sounds);
}

void SoundButton::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    m_pressed = true;
    update();
}

void SoundButton::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !m_pressed) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    m_pressed = false;
    if (rect().contains(event->position().toPoint())) {
        m_commands.toggleSounds();
    }
    m_changed();
}

void SoundButton::mouseMoveEvent(QMouseEvent* event) {
    // Passing over the button puts the keyboard's hover faces back.
    const bool highlighted = m_faces.hovered() >= 0 || !m_faces.correctionCaption().empty();
    if (!(event->buttons() & Qt::LeftButton) && highlighted) {
        m_faces.restore();
        m_faces.leave();
        m_changed();
    }
}

} // namespace quillora
