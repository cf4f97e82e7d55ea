// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/SideListPanel.h"

#include "look/Twips.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "windows/ButtonLike.h"
#include "windows/QtColour.h"
#include "windows/board/BoardAccessible.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>

namespace quillora {

namespace {
// Over the gallows, under the score, where the statistics unroll too.
constexpr int kLeft = 120, kTop = 840, kWidth = 2760, kHeight = 3900;
constexpr int kListTop = 600, kMargin = 120;
} // namespace

SideListPanel::SideListPanel(const QString& name, const QString& title, std::function<void()> close,
                             std::function<bool(QKeyEvent*)> boardKeys, QWidget* board)
    : QWidget(board), m_close(std::move(close)), m_boardKeys(std::move(boardKeys)) {
    setObjectName(name);
    setAttribute(Qt::WA_StyledBackground);
    placeInTwips(this, QRect(kLeft, kTop, kWidth, kHeight));
    setAccessibleRole(this, QAccessible::Grouping);
    QString spoken = title.trimmed();
    if (spoken.endsWith(QLatin1Char(':'))) {
        spoken.chop(1);
    }
    setAccessibleName(spoken);

    auto* caption = new QLabel(title, this);
    placeInTwips(caption, QRect(kMargin, 45, kWidth - 2 * kMargin, 540));
    setScaledFont(caption, Fonts::display(8));
    caption->setWordWrap(true);
    m_closeLabel = new QLabel(QStringLiteral(" Cerrar "), this);
    placeInTwips(m_closeLabel, QRect(kWidth - 960, kHeight - 360, 840, 300));
    setScaledFont(m_closeLabel, Fonts::display(8));
    m_closeLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_closeLabel->setCursor(Qt::PointingHandCursor);
    m_closeLabel->installEventFilter(this);
    setAccessibleRole(m_closeLabel, QAccessible::Button);
    new ButtonLike(
        m_closeLabel, [this] { m_close(); }, Qt::TabFocus);

    m_list = new QListWidget(this);
    placeInTwips(m_list, QRect(kMargin, kListTop, kWidth - 2 * kMargin, kHeight - kListTop - 420));
    setScaledFont(m_list, Fonts::display(8));
    m_list->setAccessibleName(title.trimmed());
    m_list->installEventFilter(this);
    setFocusProxy(m_list);
    hide();
}

void SideListPanel::paint(const QString& gameColour, const QString& shade) {
    setStyleSheet(QStringLiteral("#%1 { background: %2; border-radius: %3px; }"
                                 "QLabel { color: white; background: transparent; }"
                                 "QListWidget { background: white; color: %4; border: none;"
                                 " border-radius: 4px; }"
                                 "QListWidget::item { padding: 1px 2px; }"
                                 "QListWidget::item:selected { background: %4; color: white; }")
                      .arg(objectName(), gameColour)
                      .arg(TwipScale::of(this).px(90))
                      .arg(shade) +
                  focusMarkStyle(QStringLiteral("QListWidget")));
}

void SideListPanel::present(bool shown, const std::vector<std::string>& entries) {
    const bool opening = shown && !isVisible();
    const bool changed = entries != m_shown;
    if (changed) {
        m_shown = entries;
        m_list->clear();
        for (const std::string& entry : entries) {
            m_list->addItem(qs(entry));
        }
    }
    if (!shown) {
        const bool hadFocus = isAncestorOf(QApplication::focusWidget());
        hide();
        if (hadFocus) {
            window()->setFocus();
        }
        return;
    }
    show();
    raise();
    if (opening || changed) {
        m_list->scrollToBottom();
    }
    if (opening) {
        m_list->setFocus();
    }
}

bool SideListPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_closeLabel && event->type() == QEvent::MouseButtonRelease) {
        m_close();
        return true;
    }
    if (watched == m_list && event->type() == QEvent::KeyPress &&
        m_boardKeys(static_cast<QKeyEvent*>(event))) {
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void SideListPanel::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

} // namespace quillora
