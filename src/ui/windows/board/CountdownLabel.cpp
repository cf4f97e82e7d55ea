// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/CountdownLabel.h"

#include "look/Twips.h"
#include "models/board/BoardModel.h"
#include "platform/Fonts.h"
#include "windows/QtColour.h"

namespace quillora {

namespace {
// Left of the counter, in the strip between the status and the phrase.
constexpr int kLeft = 9240, kTop = 1050, kWidth = 900, kHeight = 360;
} // namespace

CountdownLabel::CountdownLabel(const BoardModel& model, QWidget* board)
    : QLabel(board), m_model(model) {
    setGeometry(px(kLeft), px(kTop), px(kWidth), px(kHeight));
    setAlignment(Qt::AlignCenter);
    setFont(Fonts::display(12));
    setToolTip(QStringLiteral(" Segundos para que se acabe la partida del juego. "));
    hide();
}

void CountdownLabel::sync() {
    setVisible(m_model.countdown().visible());
    setText(qs(m_model.countdown().text()));
    // A dark ground, so that both the white and the game colour read on it.
    const QString style = QStringLiteral("color: %1; background: %2; border-radius: %3px;")
                              .arg(css(m_model.countdownColour()), css(kKeyboardPanel))
                              .arg(px(90));
    if (style != styleSheet()) {
        setStyleSheet(style);
    }
}

} // namespace quillora
