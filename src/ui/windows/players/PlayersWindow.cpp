// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/players/PlayersWindow.h"

#include "look/Twips.h"
#include "platform/Fonts.h"
#include "platform/TwipScale.h"
#include "windows/EnterPresses.h"
#include "windows/FocusRing.h"
#include "windows/QtColour.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

namespace quillora {

namespace {

constexpr int kWidth = 4200, kBaseHeight = 840, kRowTop = 120,
              kRowHeight = PlayersModel::kRowHeightTwips;

} // namespace

PlayersWindow::PlayersWindow(SharedState& shared, std::function<void()> closed, QWidget* parent)
    : QWidget(parent, Qt::Window), m_model(shared), m_shared(shared), m_closed(std::move(closed)) {
    setWindowTitle(QStringLiteral("Jugadores:"));
    setAttribute(Qt::WA_StyledBackground);
    setObjectName(QStringLiteral("PlayersWindow"));
    const Rgb game = shared.palette.gameColour;
    for (int box = 1; box <= PlayersModel::kRows; ++box) {
        auto* row = new QWidget(this);
        row->setObjectName(QStringLiteral("row"));
        row->setAttribute(Qt::WA_StyledBackground);
        placeInTwips(row,
                     QRect(120, kRowTop + kRowHeight * (box - 1), kWidth - 240, kRowHeight - 60));
        row->setStyleSheet(
            m_model.rowColoured(box)
                ? QStringLiteral("#row { background: %1; border-radius: 6px; }").arg(css(game))
                : QStringLiteral("#row { background: rgb(230,230,230); border-radius: 6px; }"));
        auto* text = new QLineEdit(row);
        placeInTwips(text, QRect(120, 60, kWidth - 1080, 420));
        setScaledFont(text, Fonts::display(10));
        text->setText(qs(m_model.text(box)));
        text->setAccessibleName(QStringLiteral("Jugador %1").arg(box));
        text->installEventFilter(this);
        connect(text, &QLineEdit::textEdited, this,
                [this, box](const QString& value) { m_model.setText(box, value.toStdString()); });
        auto* check = new QCheckBox(row);
        // Two ticks swap two players.
        check->setAccessibleName(QStringLiteral("Cambiar de lugar al jugador %1").arg(box));
        placeInTwips(check, QRect(kWidth - 840, 90, 420, 360));
        // The box's own state is what counts, whether a click, Space or a
        // screen reader's toggle changed it.
        connect(check, &QCheckBox::toggled, this, [this, box](bool on) {
            const bool kept = m_model.setTicked(box, on);
            if (kept != on) {
                checkBox(box)->setChecked(kept);
            }
            if (m_model.changeTimerRunning() && !m_changeTimer->isActive()) {
                m_changeTimer->start();
            }
        });
        m_rows[static_cast<std::size_t>(box - 1)] = row;
        m_boxes[static_cast<std::size_t>(box - 1)] = text;
        m_checks[static_cast<std::size_t>(box - 1)] = check;
    }
    m_changeTimer = new QTimer(this);
    m_changeTimer->setSingleShot(true);
    m_changeTimer->setInterval(PlayersModel::kChangeTickMs);
    connect(m_changeTimer, &QTimer::timeout, this, [this] {
        m_model.tickChange();
        refresh();
    });
    setStyleSheet(QStringLiteral("#PlayersWindow { background: %1; }").arg(css(kNearWhite)));
    fixSizeInTwips(this, kWidth, kBaseHeight + m_model.extraHeightTwips());
    refresh();
    QLineEdit* first = nameBox(m_model.firstFocusBox());
    first->setFocus();
    first->selectAll();
    new FocusRing(this);
    new EnterPresses(this);
}

void PlayersWindow::keyPressEvent(QKeyEvent* event) {
    // Esc is the close box, which keeps the names.
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

void PlayersWindow::refresh() {
    for (int box = 1; box <= PlayersModel::kRows; ++box) {
        m_rows[static_cast<std::size_t>(box - 1)]->setVisible(m_model.rowVisible(box));
        QLineEdit* text = nameBox(box);
        if (text->text() != qs(m_model.text(box))) {
            text->setText(qs(m_model.text(box)));
        }
        checkBox(box)->setChecked(m_model.checked(box));
    }
}

int PlayersWindow::boxOf(QObject* watched) const {
    for (int box = 1; box <= PlayersModel::kRows; ++box) {
        if (nameBox(box) == watched) {
            return box;
        }
    }
    return 0;
}

bool PlayersWindow::eventFilter(QObject* watched, QEvent* event) {
    const int box = boxOf(watched);
    if (box == 0) {
        return QWidget::eventFilter(watched, event);
    }
    if (event->type() == QEvent::FocusIn) {
        m_model.focusIn(box);
        refresh();
    } else if (event->type() == QEvent::FocusOut) {
        m_model.focusOut(box);
        refresh();
    } else if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            const PlayersModel::EnterMove move = m_model.enter(box);
            if (move.close) {
                close();
            } else {
                QLineEdit* next = nameBox(move.focusBox);
                next->setFocus();
                next->end(false);
            }
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void PlayersWindow::closeEvent(QCloseEvent* event) {
    if (!m_stored) {
        m_stored = true;
        for (int box = 1; box <= PlayersModel::kRows; ++box) {
            m_model.setText(box, nameBox(box)->text().toStdString());
        }
        m_model.keepNames(m_shared);
        if (m_closed) {
            m_closed();
        }
    }
    event->accept();
}

} // namespace quillora
