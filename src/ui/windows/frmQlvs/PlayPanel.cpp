// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/frmQlvs/PlayPanel.h"

#include "look/Twips.h"
#include "models/frmQlvs/QlvsModel.h"
#include "platform/Fonts.h"
#include "windows/QtColour.h"
#include "windows/frmQlvs/BoardAccessible.h"

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

PlayPanel::PlayPanel(QlvsModel& model, std::function<void()> changed, std::function<void()> play,
                     QWidget* board)
    : QWidget(board), m_model(model), m_changed(std::move(changed)), m_play(std::move(play)) {
    setGeometry(px(kLeft), px(kTop), px(kWidth), px(kHeight));
    setAccessibleRole(this, QAccessible::Grouping);
    setAccessibleName(QStringLiteral("JUGAR"));
    m_cmdGame = new QPushButton(this);
    m_cmdGame->setGeometry(0, 0, px(kWidth), px(kHeight));
    m_cmdGame->setFocusPolicy(Qt::NoFocus);
    m_cmdGame->setFont(Fonts::display(13));
    m_cmdGame->setCursor(Qt::PointingHandCursor);
    connect(m_cmdGame, &QPushButton::clicked, this, [this] { m_play(); });
    m_cmdGame->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_cmdGame, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { buildPlayMenu()->popup(m_cmdGame->mapToGlobal(at)); });

    m_lblRestore = new QLabel(this);
    m_lblRestore->setGeometry(0, 0, px(kWidth), px(kHeight));
    m_lblRestore->setCursor(Qt::PointingHandCursor);
    m_lblRestore->installEventFilter(this);
    setAccessibleRole(m_lblRestore, QAccessible::Button);
    m_lblRestore->setAccessibleName(QStringLiteral("Regresar botón JUGAR"));
}

void PlayPanel::paint(const QString& buttonStyle, const QString& restoreStyle) {
    m_cmdGame->setStyleSheet(buttonStyle);
    m_lblRestore->setStyleSheet(restoreStyle);
}

void PlayPanel::sync() {
    const bool compact = m_model.compactLayout();
    move(px(compact ? kCompactLeft : kLeft), px(compact ? kCompactTop : kTop));
    m_cmdGame->setText(qs(m_model.round().playCaption()));
    m_cmdGame->setEnabled(m_model.scoring().playEnabled());
    const bool hidden = m_model.shared().settings.sinBotonJugar;
    m_cmdGame->setVisible(!hidden);
    m_lblRestore->setVisible(hidden);
    m_lblRestore->setToolTip(hidden ? QStringLiteral(" Regresar botón JUGAR. ") : QString());
}

QMenu* PlayPanel::buildPlayMenu() {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    QAction* autoPhrase = menu->addAction(QStringLiteral("Frase automática"));
    autoPhrase->setCheckable(true);
    autoPhrase->setChecked(m_model.shared().settings.fraseAutomatica);
    connect(autoPhrase, &QAction::triggered, this, [this] {
        m_model.eMenuAuto();
        m_changed();
    });
    connect(menu->addAction(QStringLiteral("Desaparecer botón")), &QAction::triggered, this,
            [this] {
                m_model.hidePlayButton(true);
                m_changed();
            });
    return menu;
}

bool PlayPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_lblRestore) {
        return QWidget::eventFilter(watched, event);
    }
    // The whole left click belongs to the label: its press must not fall
    // through to the board, where a press on the background plays.
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
        return static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    }
    if (event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        m_model.hidePlayButton(false);
        m_changed();
        return true;
    }
    return false;
}

} // namespace quillora
