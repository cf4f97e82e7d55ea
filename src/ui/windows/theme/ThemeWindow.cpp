// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/theme/ThemeWindow.h"

#include "look/Twips.h"
#include "platform/Fonts.h"
#include "platform/ScreenKeeper.h"
#include "platform/TwipScale.h"
#include "round/PhraseChoice.h"
#include "state/SharedState.h"
#include "windows/AccessibleControl.h"
#include "windows/ButtonLike.h"
#include "windows/FocusRing.h"
#include "windows/QtColour.h"
#include "windows/themesList/ThemesListWindow.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace quillora {

namespace {

constexpr int kWidthTwips = 5400;
constexpr int kHeightTwips = 2160;

} // namespace

ThemeWindow::ThemeWindow(PhraseChoice& choice, SharedState& shared, Dialogs& dialogs,
                         std::function<void()> changed, QWidget* board)
    : QDialog(board), m_choice(choice), m_shared(shared), m_dialogs(dialogs),
      m_changed(std::move(changed)) {
    const Palette& palette = shared.palette;
    setWindowTitle(QStringLiteral("EL TEMA ES:"));
    setModal(true);
    fixSizeInTwips(this, kWidthTwips, kHeightTwips);
    setStyleSheet(QStringLiteral("QDialog { background: %1; }"
                                 "QLabel { color: white; }"
                                 "QPushButton { background: %2; color: white; border: none;"
                                 " border-radius: 6px; padding: 4px 10px; }"
                                 "QPushButton:hover { background: %3; }"
                                 "QPushButton:disabled { background: rgb(150,150,150); }")
                      .arg(css(palette.gameColour), css(shadeOf(palette.gameColour)),
                           css(palette.greenLamp)));

    auto* caption = new QLabel(QStringLiteral("EL TEMA ES:"), this);
    placeInTwips(caption, QRect(240, 120, kWidthTwips - 480, 360));
    setScaledFont(caption, Fonts::display(10));

    m_themeLabel = new QLabel(this);
    placeInTwips(m_themeLabel, QRect(240, 480, kWidthTwips - 480, 720));
    m_themeLabel->setAlignment(Qt::AlignCenter);
    setScaledFont(m_themeLabel, Fonts::display(16));
    m_themeLabel->setToolTip(QStringLiteral(" Tema "));
    m_themeLabel->setWordWrap(true);
    m_themeLabel->setCursor(Qt::PointingHandCursor);
    m_themeLabel->installEventFilter(this);
    // Reached by Tab too, as the theme it names can be changed from it.
    new ButtonLike(
        m_themeLabel, [this] { return m_themeLabel->text(); }, [this] { openThemesList(); });
    m_themeLabel->setAccessibleDescription(QStringLiteral("Más temas"));

    // The phrase travels in a box the player never sees.
    m_wordBox = new QLineEdit(this);
    placeInTwips(m_wordBox, QRect(-6000, 0, 3000, 300));
    m_wordBox->setMaxLength(42);
    m_wordBox->setToolTip(QStringLiteral("  Frase a jugar. "));
    // Out of reach of the keyboard too: the keys belong to the window, and
    // the player must not land in the phrase by tabbing.
    m_wordBox->setFocusPolicy(Qt::NoFocus);
    // And out of a screen reader's hearing: the player is about to guess it.
    AccessibleControl::hidden(m_wordBox);

    m_otherButton = new QPushButton(QStringLiteral(" Más temas  "), this);
    placeInTwips(m_otherButton, QRect(360, 1440, 2160, 480));
    setScaledFont(m_otherButton, Fonts::display(10));
    // Enter presses the focused button; elsewhere it accepts.
    m_otherButton->setAutoDefault(true);
    connect(m_otherButton, &QPushButton::clicked, this, &ThemeWindow::openThemesList);

    m_okButton = new QPushButton(QStringLiteral(" Aceptar "), this);
    placeInTwips(m_okButton, QRect(kWidthTwips - 2520, 1440, 2160, 480));
    setScaledFont(m_okButton, Fonts::display(10));
    m_okButton->setDefault(true);
    connect(m_okButton, &QPushButton::clicked, this, &ThemeWindow::acceptPhrase);

    m_okButton->setFocus();
    new FocusRing(this);

    m_choice.prepareThemeWindow();
    m_choice.drawThemeAndPhrase();
    showDraw();

    if (board) {
        const QRect b = board->frameGeometry();
        move(b.left() + (b.width() - width()) / 2,
             std::max(b.top() + (b.height() - height()) / 2, TwipScale::of(this).px(60)));
    }
}

void ThemeWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        acceptPhrase();
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

void ThemeWindow::showDraw() {
    m_themeLabel->setText(qs(m_choice.themeWindowLabel()));
    // The theme stands on a button, which a screen reader does not read
    // with the window's title; as the window's description it does.
    setAccessibleDescription(m_themeLabel->text());
    m_wordBox->setText(qs(m_choice.drawnPhrase()));
}

void ThemeWindow::acceptPhrase() {
    m_choice.layDrawnPhrase();
    m_finished = true;
    accept();
    if (m_changed) {
        m_changed();
    }
}

void ThemeWindow::openThemesList() {
    if (m_list) {
        return;
    }
    m_list = new ThemesListWindow(
        m_shared, m_choice, m_dialogs,
        [this](ThemesListModel::Outcome outcome) {
            switch (outcome) {
            case ThemesListModel::Outcome::Accepted:
                showDraw();
                break;
            case ThemesListModel::Outcome::Play:
                showDraw();
                acceptPhrase();
                break;
            case ThemesListModel::Outcome::Tour:
                // The tour laid its first phrase itself: this window's draw
                // is not played.
                m_finished = true;
                reject();
                if (m_changed) {
                    m_changed();
                }
                break;
            case ThemesListModel::Outcome::Stay:
                break;
            }
        },
        this);
    m_list->setAttribute(Qt::WA_DeleteOnClose);
    ScreenKeeper::watch(*m_list);
    // The phrase window steps aside while the list is open, and comes back
    // when the list closes without playing.
    connect(m_list, &QObject::destroyed, this, [this] {
        m_list = nullptr;
        if (result() == QDialog::Rejected && !m_finished) {
            show();
            activateWindow();
            // Back with a new draw, Enter plays it.
            m_okButton->setFocus();
        }
    });
    m_list->open();
    hide();
}

ThemeWindow::~ThemeWindow() {
    // A list still open goes with this window, once this window is gone:
    // it must not bring back a window that no longer is.
    if (m_list) {
        disconnect(m_list, nullptr, this, nullptr);
    }
}

bool ThemeWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_themeLabel && event->type() == QEvent::MouseButtonRelease) {
        openThemesList();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace quillora
