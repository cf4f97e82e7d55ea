// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/CountdownLabel.h"

#include "look/Twips.h"
#include "models/board/BoardAppearance.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "scoring/Countdown.h"
#include "windows/QtColour.h"

namespace quillora {

namespace {
// Left of the counter, in the strip between the status and the phrase.
constexpr int kLeft = 9240, kTop = 1050, kWidth = 900, kHeight = 360;
} // namespace

CountdownLabel::CountdownLabel(const Countdown& countdown, const BoardAppearance& look,
                               QWidget* board)
    : QLabel(board), m_countdown(countdown), m_look(look) {
    placeInTwips(this, QRect(kLeft, kTop, kWidth, kHeight));
    setAlignment(Qt::AlignCenter);
    setScaledFont(this, Fonts::display(12));
    setToolTip(QStringLiteral(" Segundos para que se acabe la partida del juego. "));
    hide();
}

void CountdownLabel::sync() {
    setVisible(m_countdown.visible());
    setText(qs(m_countdown.text()));
    // A dark ground, so that both the white and the game colour read on it.
    const QString style =
        QStringLiteral("color: %1; background: %2; border-radius: %3px;")
            .arg(css(m_look.countdownColour(m_countdown.urgent())), css(kKeyboardPanel))
            .arg(TwipScale::of(this).px(90));
    if (style != styleSheet()) {
        setStyleSheet(style);
    }
}

} // namespace quillora
