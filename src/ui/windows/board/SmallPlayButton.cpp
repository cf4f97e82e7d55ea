// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/SmallPlayButton.h"

#include "look/Twips.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "round/Round.h"
#include "scoring/Points.h"
#include "state/Settings.h"
#include "windows/ButtonLike.h"

namespace quillora {

namespace {
constexpr int kLeft = 2130, kTop = 3630, kWidth = 780, kHeight = 435;
} // namespace

SmallPlayButton::SmallPlayButton(const Round& round, const Scoring& scoring,
                                 const Settings& settings, std::function<void()> play,
                                 QWidget* board)
    : QPushButton(QStringLiteral("JUGAR"), board), m_round(round), m_scoring(scoring),
      m_settings(settings) {
    placeInTwips(this, QRect(kLeft, kTop, kWidth, kHeight));
    setScaledFont(this, Fonts::display(5));
    setCursor(Qt::PointingHandCursor);
    // Only Tab gives it the focus: after a click, Enter still plays from
    // the board, and letters typed on it are guesses either way.
    new ButtonLike(
        this, [this] { click(); }, Qt::TabFocus);
    connect(this, &QPushButton::clicked, this, std::move(play));
}

void SmallPlayButton::sync() {
    setVisible(!m_settings.playButtonHidden);
    setText(QString::fromStdString(m_round.playCaption()));
    setEnabled(m_scoring.smallPlayEnabled());
}

void SmallPlayButton::paint(const QString& game, const QString& disabled) {
    setStyleSheet(QStringLiteral("QPushButton { background: %1; color: white; border: none;"
                                 " border-radius: 4px; } QPushButton:disabled { background: %2; }")
                      .arg(game, disabled));
}

} // namespace quillora
