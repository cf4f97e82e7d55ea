// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/frmWord2/frmWord2.h"

#include "look/Twips.h"
#include "platform/Fonts.h"
#include "round/Round.h"
#include "windows/QtColour.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace quillora {

namespace {

constexpr int kWidthTwips = 5400;
constexpr int kHeightTwips = 2160;

} // namespace

frmWord2::frmWord2(Round& round, const Palette& palette, std::function<void()> accepted,
                   QWidget* board)
    : QDialog(board), m_round(round), m_accepted(std::move(accepted)) {
    setWindowTitle(QStringLiteral("EL TEMA ES:"));
    setModal(true);
    setFixedSize(px(kWidthTwips), px(kHeightTwips));
    setStyleSheet(
        QStringLiteral("QDialog { background: %1; }"
                       "QLabel { color: white; }"
                       "QPushButton { background: %2; color: white; border: none;"
                       " border-radius: 6px; padding: 4px 10px; }"
                       "QPushButton:hover { background: %3; }"
                       "QPushButton:disabled { background: rgb(150,150,150); }")
            .arg(css(palette.gameColour), css(eColor(palette.gameColour)), css(palette.greenLamp)));

    auto* caption = new QLabel(QStringLiteral("EL TEMA ES:"), this);
    caption->setGeometry(px(240), px(120), px(kWidthTwips - 480), px(360));
    caption->setFont(Fonts::display(10));

    m_lblTheme = new QLabel(this);
    m_lblTheme->setGeometry(px(240), px(480), px(kWidthTwips - 480), px(720));
    m_lblTheme->setAlignment(Qt::AlignCenter);
    m_lblTheme->setFont(Fonts::display(16));
    m_lblTheme->setToolTip(QStringLiteral(" Tema "));
    m_lblTheme->setWordWrap(true);

    // The phrase travels in a box the player never sees.
    m_txtWord = new QLineEdit(this);
    m_txtWord->setGeometry(-px(6000), 0, px(3000), px(300));
    m_txtWord->setMaxLength(42);
    m_txtWord->setToolTip(QStringLiteral("  Frase a jugar. "));

    // The themes list comes with the theme selection; until then the
    // button is there but cannot be used.
    m_cmdOther = new QPushButton(QStringLiteral(" Más temas  "), this);
    m_cmdOther->setGeometry(px(360), px(1440), px(2160), px(480));
    m_cmdOther->setFont(Fonts::display(10));
    m_cmdOther->setEnabled(false);
    m_cmdOther->setAutoDefault(false);

    m_cmdOk = new QPushButton(QStringLiteral(" Aceptar "), this);
    m_cmdOk->setGeometry(px(kWidthTwips - 2520), px(1440), px(2160), px(480));
    m_cmdOk->setFont(Fonts::display(10));
    m_cmdOk->setDefault(true);
    connect(m_cmdOk, &QPushButton::clicked, this, &frmWord2::eOk);

    m_round.BotonTema();
    m_round.eOther();
    m_lblTheme->setText(QString::fromStdString(m_round.word2ThemeLabel()));
    m_txtWord->setText(QString::fromStdString(m_round.drawnPhrase()));

    if (board) {
        const QRect b = board->frameGeometry();
        move(b.left() + (b.width() - width()) / 2,
             std::max(b.top() + (b.height() - height()) / 2, px(60)));
    }
}

void frmWord2::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        eOk();
        return;
    }
    QDialog::keyPressEvent(event);
}

void frmWord2::eOk() {
    m_round.eOk();
    accept();
    if (m_accepted) {
        m_accepted();
    }
}

} // namespace quillora
