// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/frmList/frmList.h"

#include "look/Twips.h"
#include "platform/Fonts.h"
#include "state/SharedState.h"
#include "windows/CurrentRowDelegate.h"
#include "windows/FocusRing.h"
#include "windows/QtColour.h"

#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>

namespace quillora {

namespace {
constexpr int kWidthTwips = 4560;
constexpr int kHeightTwips = 6240;
constexpr int kMargin = 180;
constexpr int kListTop = 600;
constexpr int kButtonHeight = 480;
} // namespace

frmList::frmList(SharedState& shared, Round& round, Dialogs& dialogs,
                 std::function<void(ListModel::Outcome)> done, QWidget* phraseWindow)
    : QDialog(phraseWindow), m_model(shared, round, dialogs), m_done(std::move(done)) {
    setWindowTitle(QStringLiteral("Lista de temas:"));
    setWindowModality(Qt::WindowModal);
    setFixedSize(px(kWidthTwips), px(kHeightTwips));

    auto* caption = new QLabel(QStringLiteral("Lista de temas:"), this);
    caption->setGeometry(px(kMargin), px(120), px(kWidthTwips - 2 * kMargin), px(420));
    caption->setFont(Fonts::display(11));

    m_lstTemas = new QListWidget(this);
    m_lstTemas->setGeometry(px(kMargin), px(kListTop), px(kWidthTwips - 2 * kMargin),
                            px(kHeightTwips - kListTop - kButtonHeight - 3 * kMargin));
    m_lstTemas->setFont(Fonts::display(9));
    m_lstTemas->setSelectionMode(QAbstractItemView::MultiSelection);
    m_lstTemas->setToolTip(QStringLiteral(" Click derecho para abrir el menú. "));
    m_lstTemas->setAccessibleName(QStringLiteral("Lista de temas"));
    m_lstTemas->setContextMenuPolicy(Qt::CustomContextMenu);
    CurrentRowDelegate::mark(m_lstTemas);
    m_lstTemas->setAccessibleDescription(
        QStringLiteral("Espacio marca o desmarca un tema, Intro acepta, Control+Intro acepta y "
                       "juega, la tecla de menú o Mayúsculas+F10 abre el menú."));
    m_lstTemas->viewport()->installEventFilter(this);
    m_lstTemas->installEventFilter(this);
    connect(m_lstTemas, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        buildMenu()->popup(m_lstTemas->viewport()->mapToGlobal(at));
    });
    connect(m_lstTemas, &QListWidget::itemSelectionChanged, this, [this] {
        if (m_syncing) {
            return;
        }
        for (int row = 0; row < m_lstTemas->count(); ++row) {
            m_model.setHighlighted(row, m_lstTemas->item(row)->isSelected());
        }
        sync();
    });
    connect(m_lstTemas, &QListWidget::itemDoubleClicked, this, [this] { follow(m_model.eGoTo()); });

    m_cmdOk = new QPushButton(QStringLiteral(" Aceptar "), this);
    m_cmdOk->setGeometry(px(kWidthTwips - kMargin - 1800),
                         px(kHeightTwips - kMargin - kButtonHeight), px(1800), px(kButtonHeight));
    m_cmdOk->setFont(Fonts::display(10));
    m_cmdOk->setDefault(true);
    connect(m_cmdOk, &QPushButton::clicked, this, [this] { follow(m_model.eGoTo()); });

    m_tmrGo = new QTimer(this);
    m_tmrGo->setSingleShot(true);
    m_tmrGo->setInterval(ListModel::kGoTickMs);
    connect(m_tmrGo, &QTimer::timeout, this, [this] { follow(m_model.tickGo()); });

    paint(shared.palette);
    m_model.load();
    for (const std::string& name : m_model.names()) {
        m_lstTemas->addItem(qs(name));
    }
    sync();
    m_lstTemas->setFocus();
    new FocusRing(this);

    if (phraseWindow) {
        const QRect from = phraseWindow->frameGeometry();
        move(px(ListModel::placeLeft(from.left() * kTwipsPerPixel)),
             px(ListModel::placeTop(from.top() * kTwipsPerPixel)));
    }
}

void frmList::paint(const Palette& palette) {
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
            .arg(css(palette.gameColour), css(eColor(palette.gameColour)), css(palette.redLamp)));
}

void frmList::sync() {
    m_syncing = true;
    for (int row = 0; row < m_lstTemas->count(); ++row) {
        QListWidgetItem* item = m_lstTemas->item(row);
        if (item->isSelected() != m_model.highlighted(row)) {
            item->setSelected(m_model.highlighted(row));
        }
    }
    m_syncing = false;
    m_cmdOk->setEnabled(m_model.acceptEnabled());
}

QMenu* frmList::buildMenu() {
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
    return menu;
}

void frmList::follow(ListModel::Outcome outcome) {
    m_tmrGo->stop();
    if (outcome == ListModel::Outcome::Stay) {
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

bool frmList::eventFilter(QObject* watched, QEvent* event) {
    // Control+Enter is the keyboard's long press: accept and play.
    if (watched == m_lstTemas && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if ((key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) &&
            (key->modifiers() & Qt::ControlModifier)) {
            m_model.press();
            follow(m_model.tickGo());
            return true;
        }
        // Shift+F10 opens the menu as the menu key does, beside the current row.
        if (key->key() == Qt::Key_F10 && key->modifiers() == Qt::ShiftModifier) {
            const QRect row = m_lstTemas->visualItemRect(m_lstTemas->currentItem());
            buildMenu()->popup(m_lstTemas->viewport()->mapToGlobal(row.center()));
            return true;
        }
    }
    if (watched == m_lstTemas->viewport()) {
        const auto type = event->type();
        if (type == QEvent::MouseButtonPress &&
            static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
            m_model.press();
            m_tmrGo->start();
        } else if (type == QEvent::MouseButtonRelease) {
            m_model.release();
            m_tmrGo->stop();
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace quillora
