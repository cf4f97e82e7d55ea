// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/PlayPanel.h"

#include "look/Twips.h"
#include "models/board/BoardCommands.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "round/Round.h"
#include "scoring/Points.h"
#include "state/Settings.h"
#include "windows/ButtonLike.h"
#include "windows/QtColour.h"
#include "windows/board/BoardAccessible.h"

#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>

namespace quillora {

namespace {
constexpr int kWidth = 2295, kHeight = 615;
// Under the theme, or in a game without points beside the status.
constexpr int kLeft = 9000, kTop = 3570;
constexpr int kCompactLeft = 9000, kCompactTop = 352;
} // namespace

PlayPanel::PlayPanel(const Round& round, const Scoring& scoring, BoardCommands& commands,
                     const Settings& settings, std::function<void()> changed,
                     std::function<void()> play, QWidget* board)
    : QWidget(board), m_round(round), m_scoring(scoring), m_commands(commands),
      m_settings(settings), m_changed(std::move(changed)), m_play(std::move(play)) {
    placeInTwips(this, QRect(kLeft, kTop, kWidth, kHeight));
    setAccessibleRole(this, QAccessible::Grouping);
    setAccessibleName(QStringLiteral("JUGAR"));
    m_gameButton = new QPushButton(this);
    placeInTwips(m_gameButton, QRect(0, 0, kWidth, kHeight));
    // Tab reaches JUGAR, a click leaves the focus on the board.
    new ButtonLike(
        m_gameButton, [this] { m_gameButton->click(); }, Qt::TabFocus);
    setScaledFont(m_gameButton, Fonts::display(13));
    m_gameButton->setCursor(Qt::PointingHandCursor);
    connect(m_gameButton, &QPushButton::clicked, this, [this] { m_play(); });
    m_gameButton->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_gameButton, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { buildPlayMenu()->popup(m_gameButton->mapToGlobal(at)); });

    m_restoreLabel = new QLabel(this);
    placeInTwips(m_restoreLabel, QRect(0, 0, kWidth, kHeight));
    m_restoreLabel->setCursor(Qt::PointingHandCursor);
    m_restoreLabel->installEventFilter(this);
    setAccessibleRole(m_restoreLabel, QAccessible::Button);
    m_restoreLabel->setAccessibleName(QStringLiteral("Regresar botón JUGAR"));
    new ButtonLike(
        m_restoreLabel, [this] { restore(); }, Qt::TabFocus);
}

void PlayPanel::restore() {
    m_commands.hidePlayButton(false);
    m_changed();
}

void PlayPanel::paint(const QString& buttonStyle, const QString& restoreStyle) {
    m_gameButton->setStyleSheet(buttonStyle);
    m_restoreLabel->setStyleSheet(restoreStyle);
}

void PlayPanel::sync() {
    const bool compact = m_scoring.compactLayout();
    placeInTwips(
        this, QRect(compact ? kCompactLeft : kLeft, compact ? kCompactTop : kTop, kWidth, kHeight));
    m_gameButton->setText(qs(m_round.playCaption()));
    m_gameButton->setEnabled(m_scoring.playEnabled());
    const bool hidden = m_settings.playButtonHidden;
    m_gameButton->setVisible(!hidden);
    m_restoreLabel->setVisible(hidden);
    m_restoreLabel->setToolTip(hidden ? QStringLiteral(" Regresar botón JUGAR. ") : QString());
}

QMenu* PlayPanel::buildPlayMenu() {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* autoPhrase = menu->addAction(QStringLiteral("Frase automática"));
    autoPhrase->setCheckable(true);
    autoPhrase->setChecked(m_settings.autoPhrase);
    connect(autoPhrase, &QAction::triggered, this, [this] {
        m_commands.toggleAutoPhrase();
        m_changed();
    });
    connect(menu->addAction(QStringLiteral("Desaparecer botón")), &QAction::triggered, this,
            [this] {
                m_commands.hidePlayButton(true);
                m_changed();
            });
    return menu;
}

bool PlayPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_restoreLabel) {
        return QWidget::eventFilter(watched, event);
    }
    // The whole left click belongs to the label: its press must not fall
    // through to the board, where a press on the background plays.
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
        return static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    }
    if (event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        restore();
        return true;
    }
    return false;
}

} // namespace quillora
