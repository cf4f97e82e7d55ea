// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/KeyboardView.h"

#include "look/Twips.h"
#include "models/board/BoardSpeech.h"
#include "models/board/KeyFaces.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "round/Round.h"
#include "windows/QtColour.h"
#include "windows/board/BoardAccessible.h"
#include "windows/board/KeyboardAccessible.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

namespace quillora {

namespace {
constexpr BoardAreas kFaces = BoardArea::Keys | BoardArea::Strikes;
} // namespace

namespace {

constexpr double kKeyFontPoints = 12;
constexpr double kWideKeyFontPoints = 10;

} // namespace

KeyboardView::KeyboardView(const Round& round, const AnswerBox& answer, KeyFaces& faces,
                           std::function<void(BoardAreas)> changed, QWidget* parent)
    : QWidget(parent), m_round(round), m_answer(answer), m_mouse(faces),
      m_changed(std::move(changed)), m_keyFont(Fonts::display(kKeyFontPoints)),
      m_wideKeyFont(Fonts::display(kWideKeyFontPoints)) {
    setMouseTracking(true);
    placeInTwips(this, QRect(kLeftTwips, kTopTwips, kWidthTwips, kHeightTwips));
    setAccessibleName(QStringLiteral("Teclado"));
}

bool KeyboardView::keyUsable(int key) const {
    const Round& round = m_round;
    const char32_t letter = keyLetter(key);
    return round.inPlay() && (letter == 0 || !round.board().alreadyTried(letter));
}

void KeyboardView::press(int key) {
    m_mouse.press(key);
    m_mouse.release(key);
    m_mouse.leave();
    m_changed(BoardAreas::everything());
}

KeyboardView::Face KeyboardView::faceOf(int key) const {
    const Round& round = m_round;
    const char32_t letter = keyLetter(key);
    return Face{keyShown(key), keyUsable(key), letter != 0 && round.board().alreadyTried(letter),
                m_mouse.face(key),
                key == kWriteKey ? m_answer.writeKeyCaption() : std::u32string(keyCaption(key))};
}

void KeyboardView::followScale() {
    const TwipScale scale = TwipScale::of(this);
    if (scale.factor() != m_scale.factor()) {
        // The captions were laid out in the fonts of the old scale.
        m_scale = scale;
        m_captions = {};
        update();
    }
}

void KeyboardView::sync() {
    followScale();
    // The digit panel coming or going changes the ground under the keys.
    const bool digits = m_round.digitPanelVisible();
    if (digits != m_digitsShown) {
        m_digitsShown = digits;
        update();
    }
    QList<int> named, described, restated;
    for (int key = 0; key < kKeyCount; ++key) {
        const auto index = static_cast<std::size_t>(key);
        Face face = faceOf(key);
        if (m_faces[index] == face) {
            continue;
        }
        update(keyRect(key));
        Spoken now{qs(spokenKeyName(m_answer, key)), qs(spokenKeyDescription(m_round, key)),
                   face.shown, face.usable};
        Spoken& before = m_spoken[index];
        const int child = KeyboardAccessible::childOfKey(key);
        if (now.name != before.name) {
            named.append(child);
        }
        if (now.description != before.description) {
            described.append(child);
        }
        if (now.shown != before.shown || now.usable != before.usable) {
            restated.append(child);
        }
        before = std::move(now);
        m_faces[index] = std::move(face);
    }
    announceChildren(this, named, QAccessible::NameChanged);
    announceChildren(this, described, QAccessible::DescriptionChanged);
    announceChildren(this, restated, QAccessible::StateChanged);
}

bool KeyboardView::keyShown(int key) const {
    const Round& round = m_round;
    const bool digits = round.digitPanelVisible();
    const KeyPlace place = keyPlace(key);
    if (place.panel == KeyPanel::Digits) {
        return digits && round.board().keyVisible(key);
    }
    if (digits && place.top == 0 && kLeftTwips + place.left >= kDigitsLeftTwips) {
        return false; // under the digit panel
    }
    return key >= 38 || round.board().keyVisible(key);
}

QRect KeyboardView::keyRect(int key) const {
    const KeyPlace place = keyPlace(key);
    const int panelLeft = place.panel == KeyPanel::Digits ? kDigitsLeftTwips - kLeftTwips : 0;
    return m_scale.rect(panelLeft + place.left, place.top, place.width, place.height);
}

int KeyboardView::keyAt(QPoint point) const {
    for (int key = 0; key < kKeyCount; ++key) {
        if (keyShown(key) && keyRect(key).contains(point)) {
            return key;
        }
    }
    return -1;
}

bool KeyboardView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) {
        return QWidget::event(event);
    }
    // The keys are painted, not widgets: each says its own tooltip.
    auto* help = static_cast<QHelpEvent*>(event);
    const std::string_view tip = keyTooltip(keyAt(help->pos()));
    if (tip.empty()) {
        QToolTip::hideText();
        event->ignore();
    } else {
        QToolTip::showText(help->globalPos(),
                           QString::fromUtf8(tip.data(), static_cast<int>(tip.size())), this);
    }
    return true;
}

void KeyboardView::paintEvent(QPaintEvent* event) {
    followScale();
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(event->rect(), qc(kKeyboardPanel));
    if (m_round.digitPanelVisible()) {
        p.fillRect(
            m_scale.rect(kDigitsLeftTwips - kLeftTwips, 0, kDigitsWidthTwips, kDigitsHeightTwips),
            qc(kKeyboardPanel));
    }
    for (int key = 0; key < kKeyCount; ++key) {
        if (!keyShown(key) || !event->rect().intersects(keyRect(key))) {
            continue;
        }
        const qreal inset = m_scale.pixels(1.5);
        const QRectF r = QRectF(keyRect(key)).adjusted(inset, inset, -inset, -inset);
        const KeyLook look = m_mouse.face(key);
        p.setPen(Qt::NoPen);
        p.setBrush(qc(look.face));
        p.drawRoundedRect(r, m_scale.pixels(5.0), m_scale.pixels(5.0));
        p.setFont(keyFont(key));
        p.setPen(qc(look.caption));
        const QStaticText& caption = captionText(key);
        const QSizeF size = caption.size();
        p.drawStaticText(r.center() - QPointF(size.width() / 2, size.height() / 2), caption);
    }
}

const QStaticText& KeyboardView::captionText(int key) {
    const QString caption = QString::fromStdU32String(
        key == kWriteKey ? m_answer.writeKeyCaption() : std::u32string(keyCaption(key)));
    QStaticText& text = m_captions[static_cast<std::size_t>(key)];
    if (text.text() != caption) {
        text.setText(caption);
        text.setTextFormat(Qt::PlainText);
        text.prepare(QTransform(), keyFont(key));
    }
    return text;
}

void KeyboardView::mouseMoveEvent(QMouseEvent* event) {
    const int key = keyAt(event->position().toPoint());
    if (key >= 0) {
        m_mouse.hover(key);
    } else {
        m_mouse.leave();
    }
    // Under the mouse only the keys' faces and the correction label change.
    m_changed(kFaces);
}

void KeyboardView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    const int key = keyAt(event->position().toPoint());
    if (key >= 0) {
        m_mouse.press(key);
        m_changed(kFaces);
    }
}

void KeyboardView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    // A click is a guess, which may change anything.
    m_mouse.release(keyAt(event->position().toPoint()));
    m_changed(BoardAreas::everything());
}

void KeyboardView::leaveEvent(QEvent*) {
    m_mouse.leave();
    m_changed(kFaces);
}

} // namespace quillora
