// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/frmWord2/frmWord2.h"

#include "look/Twips.h"
#include "models/frmQlvs/QlvsModel.h"
#include "platform/Fonts.h"
#include "windows/AccessibleControl.h"
#include "windows/ButtonLike.h"
#include "windows/FocusRing.h"
#include "windows/QtColour.h"
#include "windows/frmList/frmList.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace quillora {

namespace {

constexpr int kWidthTwips = 5400;
constexpr int kHeightTwips = 2160;

} // namespace

frmWord2::frmWord2(QlvsModel& model, std::function<void()> changed, QWidget* board)
    : QDialog(board), m_model(model), m_changed(std::move(changed)) {
    const Palette& palette = model.shared().palette;
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
    m_lblTheme->setCursor(Qt::PointingHandCursor);
    m_lblTheme->installEventFilter(this);
    // Reached by Tab too, as the theme it names can be changed from it.
    new ButtonLike(
        m_lblTheme, [this] { return m_lblTheme->text(); }, [this] { openThemesList(); });
    m_lblTheme->setAccessibleDescription(QStringLiteral("Más temas"));

    // The phrase travels in a box the player never sees.
    m_txtWord = new QLineEdit(this);
    m_txtWord->setGeometry(-px(6000), 0, px(3000), px(300));
    m_txtWord->setMaxLength(42);
    m_txtWord->setToolTip(QStringLiteral("  Frase a jugar. "));
    // Out of reach of the keyboard too: the keys belong to the window, and
    // the player must not land in the phrase by tabbing.
    m_txtWord->setFocusPolicy(Qt::NoFocus);
    // And out of a screen reader's hearing: the player is about to guess it.
    AccessibleControl::hidden(m_txtWord);

    m_cmdOther = new QPushButton(QStringLiteral(" Más temas  "), this);
    m_cmdOther->setGeometry(px(360), px(1440), px(2160), px(480));
    m_cmdOther->setFont(Fonts::display(10));
    // Enter presses the focused button; elsewhere it accepts.
    m_cmdOther->setAutoDefault(true);
    connect(m_cmdOther, &QPushButton::clicked, this, &frmWord2::openThemesList);

    m_cmdOk = new QPushButton(QStringLiteral(" Aceptar "), this);
    m_cmdOk->setGeometry(px(kWidthTwips - 2520), px(1440), px(2160), px(480));
    m_cmdOk->setFont(Fonts::display(10));
    m_cmdOk->setDefault(true);
    connect(m_cmdOk, &QPushButton::clicked, this, &frmWord2::eOk);

    m_cmdOk->setFocus();
    new FocusRing(this);

    m_model.round().BotonTema();
    m_model.round().eOther();
    showDraw();

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
    // The plus key beside Enter opens the themes list too ("=" on layouts
    // where that key types it).
    if (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Equal) {
        openThemesList();
        return;
    }
    QDialog::keyPressEvent(event);
}

void frmWord2::showDraw() {
    m_lblTheme->setText(qs(m_model.round().word2ThemeLabel()));
    m_txtWord->setText(qs(m_model.round().drawnPhrase()));
}

void frmWord2::eOk() {
    m_model.round().eOk();
    m_finished = true;
    accept();
    if (m_changed) {
        m_changed();
    }
}

void frmWord2::openThemesList() {
    if (m_list) {
        return;
    }
    m_list = new frmList(
        m_model.shared(), m_model.round(), m_model.dialogs(),
        [this](ListModel::Outcome outcome) {
            switch (outcome) {
            case ListModel::Outcome::Accepted:
                showDraw();
                break;
            case ListModel::Outcome::Play:
                showDraw();
                eOk();
                break;
            case ListModel::Outcome::Tour:
                // The tour laid its first phrase itself: this window's draw
                // is not played.
                m_finished = true;
                reject();
                if (m_changed) {
                    m_changed();
                }
                break;
            case ListModel::Outcome::Stay:
                break;
            }
        },
        this);
    m_list->setAttribute(Qt::WA_DeleteOnClose);
    // The phrase window steps aside while the list is open, and comes back
    // when the list closes without playing.
    connect(m_list, &QObject::destroyed, this, [this] {
        m_list = nullptr;
        if (result() == QDialog::Rejected && !m_finished) {
            show();
            activateWindow();
            // Back with a new draw, Enter plays it.
            m_cmdOk->setFocus();
        }
    });
    m_list->open();
    hide();
}

bool frmWord2::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_lblTheme && event->type() == QEvent::MouseButtonRelease) {
        openThemesList();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace quillora
