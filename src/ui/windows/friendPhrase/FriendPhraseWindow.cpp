// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/friendPhrase/FriendPhraseWindow.h"

#include "look/Twips.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "state/SharedState.h"
#include "windows/AccessibleControl.h"
#include "windows/FocusRing.h"
#include "windows/QtColour.h"
#include "windows/TypedTextFilter.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace quillora {

namespace {

constexpr int kWidth = 6600, kHeight = 4080;

} // namespace

FriendPhraseWindow::FriendPhraseWindow(SharedState& shared, Dialogs& dialogs,
                                       std::function<void(const FriendPhrase&)> accepted,
                                       QWidget* board)
    : QDialog(board), m_model(shared), m_shared(shared), m_dialogs(dialogs),
      m_accepted(std::move(accepted)) {
    setWindowTitle(QStringLiteral("LA FRASE ES:"));
    setModal(true);
    fixSizeInTwips(this, kWidth, kHeight);
    const Palette& palette = shared.palette;
    setStyleSheet(
        QStringLiteral("QDialog { background: %1; }"
                       "QLabel { color: white; }"
                       "QLineEdit { background: %4; border-radius: 4px; padding: 2px 6px; }"
                       "QPushButton { background: %2; color: white; border: none;"
                       " border-radius: 6px; padding: 4px 10px; }"
                       "QPushButton:hover { background: %3; }"
                       "QPushButton:disabled { background: rgb(150,150,150); }")
            .arg(css(palette.gameColour), css(shadeOf(palette.gameColour)), css(palette.greenLamp),
                 css(kNearWhite)));

    auto* caption = new QLabel(QStringLiteral("LA FRASE ES:"), this);
    placeInTwips(caption, QRect(240, 120, 3000, 360));
    setScaledFont(caption, Fonts::display(10));

    m_themeBox = new QLineEdit(this);
    placeInTwips(m_themeBox, QRect(3360, 120, 3000, 390));
    m_themeBox->setMaxLength(FriendPhraseModel::kMaxThemeChars);
    m_themeBox->setToolTip(QStringLiteral(" Tema "));
    m_themeBox->setAccessibleName(QStringLiteral("Tema"));
    setScaledFont(m_themeBox, Fonts::display(9));
    m_themeBox->installEventFilter(this);
    connect(m_themeBox, &QLineEdit::textEdited, this,
            [this](const QString& text) { m_model.setThemeText(text.toStdString()); });

    m_wordBox = new QLineEdit(this);
    placeInTwips(m_wordBox, QRect(240, 660, kWidth - 480, 480));
    m_wordBox->setMaxLength(FriendPhraseModel::kMaxPhraseChars);
    m_wordBox->setToolTip(QStringLiteral(" Frase a jugar. "));
    setScaledFont(m_wordBox, Fonts::display(12));
    // The friend sees what he types; a screen reader, which the others hear
    // too, gets a password box.
    AccessibleControl::secret(m_wordBox, QAccessible::EditableText, QStringLiteral("Frase a jugar"),
                              [this] { return static_cast<int>(m_wordBox->text().size()); });
    // Typed or composed, only what the board has cells for gets in; the
    // filter installed last, Enter's, looks first.
    new TypedTextFilter(m_wordBox, [this](char32_t c, const QString&) {
        return m_model.keyAllowed(static_cast<int>(c));
    });
    m_wordBox->installEventFilter(this);
    connect(m_wordBox, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_model.setPhraseText(text.toStdString());
        refresh();
    });

    auto* preview = new QLabel(QStringLiteral("Vista previa >>>"), this);
    placeInTwips(preview, QRect(240, 1320, 3000, 300));
    setScaledFont(preview, Fonts::display(8));
    for (int row = 0; row < 3; ++row) {
        auto* label = new QLabel(QStringLiteral("AAAAAAAAAAAAAA"), this);
        placeInTwips(label, QRect(1200, 1680 + 420 * row, 4200, 390));
        label->setAlignment(Qt::AlignCenter);
        QFont mono = Fonts::display(12);
        mono.setLetterSpacing(QFont::AbsoluteSpacing, TwipScale::of(this).pixels(4.0));
        setScaledFont(label, mono);
        label->setStyleSheet(QStringLiteral("background: %1; color: black; border-radius: 4px;")
                                 .arg(css(kNearWhite)));
        AccessibleControl::secret(label, QAccessible::StaticText,
                                  QStringLiteral("Vista previa, fila %1").arg(row + 1));
        m_rows[static_cast<std::size_t>(row)] = label;
    }
    auto* legend = new QLabel(QStringLiteral("Espacios repetidos se omiten."), this);
    placeInTwips(legend, QRect(240, 3420, 3600, 360));
    setScaledFont(legend, Fonts::display(8));

    m_okButton = new QPushButton(QStringLiteral(" Aceptar "), this);
    placeInTwips(m_okButton, QRect(kWidth - 2280, 3360, 2040, 480));
    setScaledFont(m_okButton, Fonts::display(10));
    // Enter on the focused button accepts, as it does in the boxes.
    m_okButton->setAutoDefault(true);
    connect(m_okButton, &QPushButton::clicked, this, &FriendPhraseWindow::accept);

    m_themeBox->setText(qs(m_model.themeText()));
    m_wordBox->clear();
    refresh();
    m_wordBox->setFocus();
    new FocusRing(this);

    if (board) {
        const QRect b = board->frameGeometry();
        move(b.left() + (b.width() - width()) / 2,
             std::max(b.top() + (b.height() - height()) / 2, TwipScale::of(this).px(60)));
    }
}

void FriendPhraseWindow::refresh() {
    for (int row = 1; row <= 3; ++row) {
        previewRow(row)->setText(qs(m_model.previewRow(row)));
    }
    m_okButton->setEnabled(m_model.okEnabled());
}

void FriendPhraseWindow::accept() {
    m_model.setPhraseText(m_wordBox->text().toStdString());
    const auto phrase = m_model.accept(m_shared, m_dialogs);
    if (!phrase) {
        // Refused: the friend sees the text in capitals and fixes it.
        m_wordBox->setText(qs(m_model.phraseText()));
        m_wordBox->setFocus();
        return;
    }
    QDialog::accept();
    if (m_accepted) {
        m_accepted(*phrase);
    }
}

bool FriendPhraseWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_themeBox && event->type() == QEvent::FocusIn) {
        m_model.themeFocusIn();
        m_themeBox->setText(qs(m_model.themeText()));
    } else if (watched == m_themeBox && event->type() == QEvent::FocusOut) {
        m_model.themeFocusOut();
        m_themeBox->setText(qs(m_model.themeText()));
    }
    if ((watched == m_themeBox || watched == m_wordBox) && event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            if (m_okButton->isEnabled()) {
                accept();
            }
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace quillora
