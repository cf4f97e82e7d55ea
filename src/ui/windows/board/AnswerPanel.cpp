// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/AnswerPanel.h"

#include "look/Twips.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "round/AnswerBox.h"
#include "round/Keyboard.h"
#include "windows/ButtonLike.h"
#include "windows/QtColour.h"
#include "windows/TypedTextFilter.h"
#include "windows/board/BoardAccessible.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace quillora {

namespace {
constexpr int kLeft = 3000, kTop = 4290, kWidth = 8295, kHeight = 540;
} // namespace

AnswerPanel::AnswerPanel(AnswerBox& box, std::function<void()> changed,
                         std::function<bool(QKeyEvent*)> shortcut, QWidget* board)
    : QWidget(board), m_box(box), m_changed(std::move(changed)), m_shortcut(std::move(shortcut)) {
    setObjectName(QStringLiteral("answerFrame"));
    placeInTwips(this, QRect(kLeft, kTop, kWidth, kHeight));
    setAttribute(Qt::WA_StyledBackground);
    setAccessibleRole(this, QAccessible::Grouping);
    setAccessibleName(QStringLiteral("Introduzca Frase a Adivinar"));
    m_promptLabel = new QLabel(QStringLiteral(" Introduzca Frase a Adivinar "), this);
    placeInTwips(m_promptLabel, QRect(60, 75, 3000, 390));
    setScaledFont(m_promptLabel, Fonts::display(9));
    m_wordBox = new QLineEdit(this);
    placeInTwips(m_wordBox, QRect(3060, 75, 4320, 390));
    setScaledFont(m_wordBox, Fonts::display(11));
    m_wordBox->setAccessibleName(accessibleName());
    // The filter installed last looks first: the board's keys come first,
    // then "!" and Enter, then the typing rule.
    new TypedTextFilter(m_wordBox, [](char32_t c, const QString& before) {
        return filterAnswerKey(static_cast<int>(c), !before.isEmpty()) != 0;
    });
    m_wordBox->installEventFilter(this);
    connect(m_wordBox, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_box.setText(text.toStdString());
        m_okButton->setEnabled(m_box.okEnabled());
    });
    m_okButton = new QPushButton(QStringLiteral("OK"), this);
    placeInTwips(m_okButton, QRect(7470, 60, 765, 420));
    new ButtonLike(
        m_okButton, [this] { m_okButton->click(); }, Qt::TabFocus);
    setScaledFont(m_okButton, Fonts::display(10));
    connect(m_okButton, &QPushButton::clicked, this, &AnswerPanel::okPressed);
}

void AnswerPanel::paint(const QString& gameColour) {
    setStyleSheet(QStringLiteral("#answerFrame { background: %1; border-radius: %2px; }"
                                 "QLabel { color: white; }")
                      .arg(gameColour)
                      .arg(TwipScale::of(this).px(90)) +
                  focusMarkStyle(QStringLiteral("QLineEdit")));
}

void AnswerPanel::sync() {
    const AnswerBox& box = m_box;
    const bool wasOpen = isVisible();
    setVisible(box.isOpen());
    const QString boxText = qs(box.text());
    if (m_wordBox->text() != boxText) {
        m_wordBox->setText(boxText);
    }
    m_okButton->setEnabled(box.okEnabled());
    if (box.isOpen() && !wasOpen) {
        m_wordBox->setFocus();
    } else if (!box.isOpen() && wasOpen) {
        window()->setFocus();
    }
}

void AnswerPanel::okPressed() {
    m_box.setText(m_wordBox->text().toStdString());
    const bool answered = m_box.submit();
    m_changed();
    if (!answered && m_box.isOpen()) {
        m_wordBox->setFocus();
        m_wordBox->end(false);
    }
}

bool AnswerPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_wordBox || event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    auto* key = static_cast<QKeyEvent*>(event);
    if (m_shortcut(key)) {
        return true;
    }
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
        if (m_okButton->isEnabled()) {
            okPressed();
        }
        return true;
    }
    if (key->text() == QStringLiteral("!")) {
        m_box.toggle();
        m_changed();
        return true;
    }
    return false;
}

} // namespace quillora
