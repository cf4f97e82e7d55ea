// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/themesList/ThemesListWindow.h"

#include "look/Twips.h"
#include "platform/Fonts.h"
#include "platform/QtWeb.h"
#include "platform/TwipScale.h"
#include "state/SharedState.h"
#include "windows/CurrentRowDelegate.h"
#include "windows/FocusRing.h"
#include "windows/QtColour.h"

#include <QFileDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>
#include <QUrl>

namespace quillora {

namespace {
constexpr int kWidthTwips = 4560;
constexpr int kHeightTwips = 6240;
constexpr int kMargin = 180;
constexpr int kListTop = 600;
constexpr int kButtonHeight = 480;
} // namespace

ThemesListWindow::ThemesListWindow(SharedState& shared, PhraseChoice& choice, Dialogs& dialogs,
                                   std::function<void(ThemesListModel::Outcome)> done,
                                   QWidget* phraseWindow)
    : QDialog(phraseWindow), m_model(shared, choice, dialogs), m_done(std::move(done)) {
    setWindowTitle(QStringLiteral("Lista de temas:"));
    setWindowModality(Qt::WindowModal);
    fixSizeInTwips(this, kWidthTwips, kHeightTwips);

    auto* caption = new QLabel(QStringLiteral("Lista de temas:"), this);
    placeInTwips(caption, QRect(kMargin, 120, kWidthTwips - 2 * kMargin, 420));
    setScaledFont(caption, Fonts::display(11));

    m_themesList = new QListWidget(this);
    placeInTwips(m_themesList, QRect(kMargin, kListTop, kWidthTwips - 2 * kMargin,
                                     kHeightTwips - kListTop - kButtonHeight - 3 * kMargin));
    setScaledFont(m_themesList, Fonts::display(9));
    m_themesList->setSelectionMode(QAbstractItemView::MultiSelection);
    m_themesList->setToolTip(QStringLiteral(" Click derecho para abrir el menú. "));
    m_themesList->setAccessibleName(QStringLiteral("Lista de temas"));
    m_themesList->setContextMenuPolicy(Qt::CustomContextMenu);
    CurrentRowDelegate::mark(m_themesList);
    m_themesList->setAccessibleDescription(
        QStringLiteral("Espacio marca o desmarca un tema, Intro acepta, Control+Intro acepta y "
                       "juega, la tecla de menú o Mayúsculas+F10 abre el menú."));
    m_themesList->viewport()->installEventFilter(this);
    m_themesList->installEventFilter(this);
    connect(m_themesList, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        buildMenu()->popup(m_themesList->viewport()->mapToGlobal(at));
    });
    connect(m_themesList, &QListWidget::itemSelectionChanged, this, [this] {
        if (m_syncing) {
            return;
        }
        for (int row = 0; row < m_themesList->count(); ++row) {
            m_model.setHighlighted(row, m_themesList->item(row)->isSelected());
        }
        sync();
    });
    connect(m_themesList, &QListWidget::itemDoubleClicked, this,
            [this] { follow(m_model.acceptChoice()); });

    m_okButton = new QPushButton(QStringLiteral(" Aceptar "), this);
    placeInTwips(m_okButton, QRect(kWidthTwips - kMargin - 1800,
                                   kHeightTwips - kMargin - kButtonHeight, 1800, kButtonHeight));
    setScaledFont(m_okButton, Fonts::display(10));
    m_okButton->setDefault(true);
    connect(m_okButton, &QPushButton::clicked, this, [this] { follow(m_model.acceptChoice()); });

    m_goTimer = new QTimer(this);
    m_goTimer->setSingleShot(true);
    m_goTimer->setInterval(ThemesListModel::kGoTickMs);
    connect(m_goTimer, &QTimer::timeout, this, [this] { follow(m_model.tickGo()); });

    paint(shared.palette);
    m_model.load();
    for (const std::string& name : m_model.names()) {
        m_themesList->addItem(qs(name));
    }
    sync();
    m_themesList->setFocus();
    new FocusRing(this);

    if (phraseWindow) {
        const QRect from = phraseWindow->frameGeometry();
        const TwipScale scale = TwipScale::of(this);
        move(scale.px(ThemesListModel::placeLeft(scale.twips(from.left()))),
             scale.px(ThemesListModel::placeTop(scale.twips(from.top()))));
    }
}

void ThemesListWindow::paint(const Palette& palette) {
    setStyleSheet(
        QStringLiteral("QDialog { background: %1; }"
                       "QLabel { color: white; }"
                       "QListWidget { background: white; color: %2; border: none;"
                       " border-radius: 6px; }"
                       "QListWidget::item { padding: 1px 2px; }"
                       "QListWidget::item:selected { background: %2; color: white; }"
                       "QPushButton { background: %3; color: white; border: none;"
                       " border-radius: 6px; padding: 4px 10px; }"
                       "QPushButton:disabled { color: rgba(255,255,255,110); }")
            .arg(css(palette.gameColour), css(shadeOf(palette.gameColour)), css(palette.redLamp)));
}

void ThemesListWindow::sync() {
    m_syncing = true;
    for (int row = 0; row < m_themesList->count(); ++row) {
        QListWidgetItem* item = m_themesList->item(row);
        if (item->isSelected() != m_model.highlighted(row)) {
            item->setSelected(m_model.highlighted(row));
        }
    }
    m_syncing = false;
    m_okButton->setEnabled(m_model.acceptEnabled());
}

QMenu* ThemesListWindow::buildMenu() {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(QStringLiteral("Tour temático")), &QAction::triggered, this,
            [this] { follow(m_model.tour()); });
    connect(menu->addAction(QStringLiteral("Seleccionar todo")), &QAction::triggered, this, [this] {
        m_model.selectAll();
        sync();
    });
    connect(menu->addAction(QStringLiteral("Limpiar todo")), &QAction::triggered, this, [this] {
        m_model.clearAll();
        sync();
    });
    menu->addSeparator();
    connect(menu->addAction(QStringLiteral("Añadir temas…")), &QAction::triggered, this,
            [this] { addThemes(); });
    connect(menu->addAction(QStringLiteral("Abrir la carpeta de temas")), &QAction::triggered, this,
            [this] {
                const QString folder = QString::fromStdString(m_model.themesFolder().string());
                QtWeb().openUrl(
                    QUrl::fromLocalFile(folder).toString(QUrl::FullyEncoded).toStdString());
            });
    return menu;
}

void ThemesListWindow::addThemes() {
    const QStringList files =
        chooseFiles ? chooseFiles()
                    : QFileDialog::getOpenFileNames(this, QStringLiteral("Añadir temas"), QString(),
                                                    QStringLiteral("Temas (*.txt)"));
    for (const QString& file : files) {
        if (m_model.addThemeFile(file.toStdString())) {
            m_themesList->addItem(QString::fromStdString(m_model.names().back()));
            // The new theme is at the foot of a long list: bring it into view.
            m_themesList->scrollToBottom();
        }
    }
    sync();
}

void ThemesListWindow::follow(ThemesListModel::Outcome outcome) {
    m_goTimer->stop();
    if (outcome == ThemesListModel::Outcome::Stay) {
        sync();
        return;
    }
    // The list goes first, so the phrase window it hands over to is free
    // again when it acts.
    accept();
    if (m_done) {
        m_done(outcome);
    }
}

bool ThemesListWindow::eventFilter(QObject* watched, QEvent* event) {
    // Control+Enter is the keyboard's long press: accept and play.
    if (watched == m_themesList && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
            (key->modifiers() & Qt::ControlModifier)) {
            m_model.press();
            follow(m_model.tickGo());
            return true;
        }
        // Shift+F10 opens the menu as the menu key does, beside the current row.
        if (key->key() == Qt::Key_F10 && key->modifiers() == Qt::ShiftModifier) {
            const QRect row = m_themesList->visualItemRect(m_themesList->currentItem());
            buildMenu()->popup(m_themesList->viewport()->mapToGlobal(row.center()));
            return true;
        }
    }
    if (watched == m_themesList->viewport()) {
        const auto type = event->type();
        if (type == QEvent::MouseButtonPress &&
            static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
            m_model.press();
            m_goTimer->start();
        } else if (type == QEvent::MouseButtonRelease) {
            m_model.release();
            m_goTimer->stop();
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace quillora
