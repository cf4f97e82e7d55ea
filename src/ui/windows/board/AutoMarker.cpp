// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/AutoMarker.h"

#include "look/Twips.h"
#include "models/board/BoardSpeech.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "round/PhraseChoice.h"
#include "windows/ButtonLike.h"
#include "windows/QtColour.h"
#include "windows/board/BoardAccessible.h"

namespace quillora {

namespace {
constexpr int kLeft = 2610, kTop = 345, kSize = 330;
} // namespace

AutoMarker::AutoMarker(PhraseChoice& choice, std::function<void()> changed, QWidget* board)
    : QLabel(board), m_choice(choice), m_changed(std::move(changed)) {
    placeInTwips(this, QRect(kLeft, kTop, kSize, kSize));
    setAlignment(Qt::AlignCenter);
    setScaledFont(this, Fonts::display(9));
    setCursor(Qt::PointingHandCursor);
    setAccessibleRole(this, QAccessible::Button);
    // Tab reaches it, and the mouse leaves the focus on the board, where
    // Enter plays.
    new ButtonLike(
        this, [this] { toggle(); }, Qt::TabFocus);
    setStyleSheet(QStringLiteral("background: %1; color: %2; border-radius: 3px;")
                      .arg(css(kPictureButtonBack), css(kAutoMarkerText)));
}

void AutoMarker::sync() {
    const PhraseChoice& choice = m_choice;
    setVisible(choice.autoMarkerVisible());
    setText(qs(choice.autoMarkerCaption()));
    setToolTip(qs(choice.autoMarkerTooltip()));
    setSpokenName(this, qs(spokenAutoMarker(choice.autoMarkerCaption())));
}

void AutoMarker::mousePressEvent(QMouseEvent*) {
    // The press is the marker's own: it must not reach the board behind,
    // where a press on the background plays.
}

void AutoMarker::mouseReleaseEvent(QMouseEvent*) {
    toggle();
}

void AutoMarker::toggle() {
    m_choice.toggleAutoPhrase();
    m_changed();
}

} // namespace quillora
