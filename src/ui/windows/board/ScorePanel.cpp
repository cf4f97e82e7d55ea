// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/ScorePanel.h"

#include "look/Twips.h"
#include "models/board/PlayersTurn.h"
#include "models/board/ScorePulse.h"
#include "models/board/SidePanels.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "scoring/Points.h"
#include "windows/QtColour.h"
#include "windows/RoundedLabel.h"
#include "windows/board/BoardAccessible.h"

#include <QEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>

namespace quillora {

namespace {
constexpr int kLeft = 120, kTop = 60, kWidth = 2415, kHeight = 720;
constexpr int kCaptionHeight = 210;
} // namespace

ScorePanel::ScorePanel(Scoring& scoring, const ScorePulse& pulse, PlayersTurn& turn,
                       SidePanels& panels, std::function<void()> changed,
                       std::function<void()> names, QWidget* board)
    : QWidget(board), m_scoring(scoring), m_pulse(pulse), m_turn(turn), m_panels(panels),
      m_changed(std::move(changed)), m_names(std::move(names)) {
    placeInTwips(this, QRect(kLeft, kTop, kWidth, kHeight));
    setAccessibleRole(this, QAccessible::Grouping);
    setAccessibleName(QStringLiteral("Marcador"));

    m_scoreFrame = new RoundedLabel(this);
    m_scoreFrame->setObjectName(QStringLiteral("scoreFrame"));
    setAccessibleRole(m_scoreFrame, QAccessible::Grouping);
    m_scoreFrame->setAccessibleName(QStringLiteral("Puntos"));
    placeInTwips(m_scoreFrame, QRect(0, 0, kWidth, kHeight));
    // The caption is the frame's own text, drawn into its kept looks with
    // the ground: the lamp recolours the frame after every letter.
    m_scoreFrame->setText(QStringLiteral(" Puntos "));
    m_scoreFrame->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setScaledFont(m_scoreFrame, Fonts::display(7));
    m_scoreLabel = new RoundedLabel(m_scoreFrame);
    placeInTwips(m_scoreLabel, QRect(0, kCaptionHeight, kWidth, kHeight - 240));
    m_scoreLabel->setAlignment(Qt::AlignCenter);
    setScaledFont(m_scoreLabel, Fonts::display(14));
    m_scoreLabel->setAccessibleDescription(QStringLiteral("Puntos"));
    // The score's menu is there only while it has something to offer.
    m_scoreFrame->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_scoreFrame, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        if (QMenu* menu = buildScoreMenu()) {
            menu->popup(m_scoreFrame->mapToGlobal(at));
        }
    });

    m_playerFrame = new RoundedLabel(this);
    m_playerFrame->setObjectName(QStringLiteral("playerFrame"));
    setAccessibleRole(m_playerFrame, QAccessible::Grouping);
    m_playerFrame->setAccessibleName(QStringLiteral("Jugador"));
    placeInTwips(m_playerFrame, QRect(0, 0, kWidth, kHeight));
    m_player1Label = new RoundedLabel(m_playerFrame);
    placeInTwips(m_player1Label, QRect(0, 0, kWidth, kHeight));
    m_player1Label->setAlignment(Qt::AlignCenter);
    setScaledFont(m_player1Label, Fonts::display(11));
    m_player1Label->setMouseTracking(true);
    m_player1Label->setContextMenuPolicy(Qt::CustomContextMenu);
    m_player1Label->installEventFilter(this);
    connect(m_player1Label, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { buildTurnMenu()->popup(m_player1Label->mapToGlobal(at)); });
}

void ScorePanel::paint(const QColor& scoreColour, const QColor& playerColour) {
    m_scoreFrame->setColours(scoreColour, Qt::white);
    m_playerFrame->setColours(playerColour, Qt::white);
}

void ScorePanel::sync() {
    m_scoreFrame->setContentsMargins(0, TwipScale::of(this).px(15), 0, 0);
    const bool points = m_scoring.pointsCount();
    m_scoreFrame->setVisible(points);
    m_playerFrame->setVisible(!points);
    syncPlayer();
    syncScore();
}

void ScorePanel::syncScore() {
    m_scoreLabel->setText(qs(m_scoring.scoreLabel()));
    // The pulse recolours the points ten times a second: a palette, not a
    // style sheet, so only the label repaints.
    const QColor colour = qc(m_pulse.textColour());
    if (m_scoreLabel->palette().color(QPalette::WindowText) != colour) {
        QPalette text = m_scoreLabel->palette();
        text.setColor(QPalette::WindowText, colour);
        m_scoreLabel->setPalette(text);
    }
}

void ScorePanel::syncPlayer() {
    m_player1Label->setText(qs(m_turn.label().caption));
    // Who is playing is told by the player labels' tooltip, on the points
    // as well while they stand in the player's place; a screen reader hears
    // it as the panel's description.
    const QString players = qs(m_turn.label().tooltip);
    for (QWidget* label : std::initializer_list<QWidget*>{m_player1Label, m_scoreFrame}) {
        if (label->toolTip() != players) {
            label->setToolTip(players);
        }
        setSpokenDescription(label, players.trimmed());
    }
}

QMenu* ScorePanel::buildScoreMenu() {
    if (!m_scoring.giftOffered()) {
        return nullptr;
    }
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(QStringLiteral("Pasar puntos a supervivencia")), &QAction::triggered,
            this, [this] {
                m_scoring.startGift();
                m_changed();
            });
    return menu;
}

QMenu* ScorePanel::buildTurnMenu() {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* free = menu->addAction(QStringLiteral("Turno libre"));
    free->setCheckable(true);
    free->setChecked(m_turn.freeTurn());
    connect(free, &QAction::triggered, this, [this] {
        m_turn.toggleFreeTurn();
        m_changed();
    });
    menu->addSeparator();
    QAction* forward = menu->addAction(QStringLiteral("Adelantar"));
    QAction* back = menu->addAction(QStringLiteral("Atrasar"));
    forward->setEnabled(m_turn.movesEnabled());
    back->setEnabled(m_turn.movesEnabled());
    connect(forward, &QAction::triggered, this, [this] {
        m_turn.moveForward();
        m_changed();
    });
    connect(back, &QAction::triggered, this, [this] {
        m_turn.moveBack();
        m_changed();
    });
    return menu;
}

void ScorePanel::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        m_panels.closeAll();
        m_changed();
    }
    event->accept();
}

bool ScorePanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_player1Label) {
        return QWidget::eventFilter(watched, event);
    }
    if (event->type() == QEvent::MouseMove || event->type() == QEvent::Enter) {
        m_turn.hover();
        syncPlayer();
    } else if (event->type() == QEvent::MouseButtonDblClick) {
        m_names();
        return true;
    }
    return false;
}

} // namespace quillora
