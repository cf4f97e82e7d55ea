// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/frmQlvs/ScorePanel.h"

#include "look/Twips.h"
#include "models/frmQlvs/QlvsModel.h"
#include "platform/Fonts.h"
#include "windows/QtColour.h"
#include "windows/RoundedLabel.h"
#include "windows/frmQlvs/BoardAccessible.h"

#include <QEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>

namespace quillora {

namespace {
constexpr int kLeft = 120, kTop = 60, kWidth = 2415, kHeight = 720;
constexpr int kCaptionHeight = 210;
} // namespace

ScorePanel::ScorePanel(QlvsModel& model, std::function<void()> changed, std::function<void()> names,
                       QWidget* board)
    : QWidget(board), m_model(model), m_changed(std::move(changed)), m_names(std::move(names)) {
    setGeometry(px(kLeft), px(kTop), px(kWidth), px(kHeight));
    setAccessibleRole(this, QAccessible::Grouping);
    setAccessibleName(QStringLiteral("Marcador"));

    m_frmeScore = new RoundedLabel(this);
    m_frmeScore->setObjectName(QStringLiteral("frmeScore"));
    setAccessibleRole(m_frmeScore, QAccessible::Grouping);
    m_frmeScore->setAccessibleName(QStringLiteral("Puntos"));
    m_frmeScore->setGeometry(0, 0, px(kWidth), px(kHeight));
    auto* caption = new QLabel(QStringLiteral(" Puntos "), m_frmeScore);
    caption->setGeometry(0, px(15), px(kWidth), px(kCaptionHeight));
    caption->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    caption->setFont(Fonts::display(7));
    m_lblScore = new QLabel(m_frmeScore);
    m_lblScore->setGeometry(0, px(kCaptionHeight), px(kWidth), px(kHeight - 240));
    m_lblScore->setAlignment(Qt::AlignCenter);
    m_lblScore->setFont(Fonts::display(14));
    m_lblScore->setAccessibleDescription(QStringLiteral("Puntos"));
    // The score's menu is there only while it has something to offer.
    m_frmeScore->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_frmeScore, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        if (QMenu* menu = buildScoreMenu()) {
            menu->popup(m_frmeScore->mapToGlobal(at));
        }
    });

    m_frmePlayer = new RoundedLabel(this);
    m_frmePlayer->setObjectName(QStringLiteral("frmePlayer"));
    setAccessibleRole(m_frmePlayer, QAccessible::Grouping);
    m_frmePlayer->setAccessibleName(QStringLiteral("Jugador"));
    m_frmePlayer->setGeometry(0, 0, px(kWidth), px(kHeight));
    m_lblPlayer1 = new QLabel(m_frmePlayer);
    m_lblPlayer1->setGeometry(0, 0, px(kWidth), px(kHeight));
    m_lblPlayer1->setAlignment(Qt::AlignCenter);
    m_lblPlayer1->setFont(Fonts::display(11));
    m_lblPlayer1->setMouseTracking(true);
    m_lblPlayer1->setContextMenuPolicy(Qt::CustomContextMenu);
    m_lblPlayer1->installEventFilter(this);
    connect(m_lblPlayer1, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { buildTurnMenu()->popup(m_lblPlayer1->mapToGlobal(at)); });
}

void ScorePanel::paint(const QColor& scoreColour, const QColor& playerColour) {
    m_frmeScore->setColours(scoreColour, Qt::white);
    m_frmePlayer->setColours(playerColour, Qt::white);
}

void ScorePanel::sync() {
    const bool points = m_model.scoring().pointsCount();
    m_frmeScore->setVisible(points);
    m_frmePlayer->setVisible(!points);
    syncPlayer();
    syncScore();
}

void ScorePanel::syncScore() {
    m_lblScore->setText(qs(m_model.scoring().scoreLabel()));
    // The pulse recolours the points ten times a second: a palette, not a
    // style sheet, so only the label repaints.
    const QColor colour = qc(m_model.scoreTextColour());
    if (m_lblScore->palette().color(QPalette::WindowText) != colour) {
        QPalette text = m_lblScore->palette();
        text.setColor(QPalette::WindowText, colour);
        m_lblScore->setPalette(text);
    }
}

void ScorePanel::syncPlayer() {
    m_lblPlayer1->setText(qs(m_model.playerLabel().caption));
    m_lblPlayer1->setToolTip(qs(m_model.playerLabel().tooltip));
}

QMenu* ScorePanel::buildScoreMenu() {
    if (!m_model.giftOffered()) {
        return nullptr;
    }
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(QStringLiteral("Pasar puntos a supervivencia")), &QAction::triggered,
            this, [this] {
                m_model.startGift();
                m_changed();
            });
    return menu;
}

QMenu* ScorePanel::buildTurnMenu() {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* free = menu->addAction(QStringLiteral("Turno libre"));
    free->setCheckable(true);
    free->setChecked(m_model.freeTurn());
    connect(free, &QAction::triggered, this, [this] {
        m_model.toggleFreeTurn();
        m_changed();
    });
    menu->addSeparator();
    QAction* forward = menu->addAction(QStringLiteral("Adelantar"));
    QAction* back = menu->addAction(QStringLiteral("Atrasar"));
    forward->setEnabled(m_model.turnMovesEnabled());
    back->setEnabled(m_model.turnMovesEnabled());
    connect(forward, &QAction::triggered, this, [this] {
        m_model.adelantar();
        m_changed();
    });
    connect(back, &QAction::triggered, this, [this] {
        m_model.atrasar();
        m_changed();
    });
    return menu;
}

void ScorePanel::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        m_model.eWinClose();
        m_changed();
    }
    event->accept();
}

bool ScorePanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_lblPlayer1) {
        return QWidget::eventFilter(watched, event);
    }
    if (event->type() == QEvent::MouseMove || event->type() == QEvent::Enter) {
        m_model.hoverPlayer();
        syncPlayer();
    } else if (event->type() == QEvent::MouseButtonDblClick) {
        m_names();
        return true;
    }
    return false;
}

} // namespace quillora
