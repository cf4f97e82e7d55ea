// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/DesignLink.h"

#include "models/board/BoardAppearance.h"
#include "platform/ScreenKeeper.h"
#include "round/Round.h"

#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace quillora {

namespace {

// The window works on the board behind it: it goes where the screen leaves
// the most of the phrase in sight, and then the most of the board.
QPoint placeBeside(const QRect& board, const QRect& phrase, QSize size) {
    const QScreen* screen = QGuiApplication::screenAt(board.center());
    if (!screen) {
        screen = QGuiApplication::primaryScreen();
    }
    const QRect area = screen ? screen->availableGeometry() : board;
    const int middleX = board.center().x() - size.width() / 2;
    const int middleY = board.center().y() - size.height() / 2;
    const std::array<QPoint, 6> places{
        QPoint(middleX, board.bottom() + 1),  QPoint(middleX, board.top() - size.height()),
        QPoint(board.right() + 1, middleY),   QPoint(board.left() - size.width(), middleY),
        QPoint(middleX, phrase.bottom() + 1), QPoint(middleX, phrase.top() - size.height())};
    auto hidden = [](const QRect& window, const QRect& part) {
        const QRect covered = window.intersected(part);
        return static_cast<qint64>(covered.width()) * covered.height();
    };
    QPoint best = places.front();
    std::pair<qint64, qint64> leastHidden{std::numeric_limits<qint64>::max(), 0};
    for (QPoint place : places) {
        // Kept on the screen, even if that brings it over the board.
        place.setX(std::clamp(place.x(), area.left(),
                              std::max(area.left(), area.right() + 1 - size.width())));
        place.setY(std::clamp(place.y(), area.top(),
                              std::max(area.top(), area.bottom() + 1 - size.height())));
        const QRect window(place, size);
        const std::pair<qint64, qint64> cost{hidden(window, phrase), hidden(window, board)};
        if (cost < leastHidden) {
            leastHidden = cost;
            best = place;
        }
    }
    return best;
}

} // namespace

DesignLink::DesignLink(BoardAppearance& look, const Round& round, SharedState& shared,
                       Dialogs& dialogs, QWidget* board, std::function<void()> boardChanged)
    : m_look(look), m_round(round), m_shared(shared), m_dialogs(dialogs), m_board(board),
      m_boardChanged(std::move(boardChanged)) {}

DesignLink::~DesignLink() {
    delete m_window.data();
}

void DesignLink::openDesign() {
    // After a death the missed letters keep their colour until the next
    // game, so the design, which repaints the cells, waits for it.
    if (!m_round.designEnabled()) {
        return;
    }
    if (!m_window) {
        m_window =
            new DesignWindow(m_look, m_shared, m_dialogs, m_boardChanged,
                             QStandardPaths::writableLocation(QStandardPaths::PicturesLocation),
                             QDir::homePath(), m_board);
        m_window->setAttribute(Qt::WA_DeleteOnClose);
        ScreenKeeper::watch(*m_window);
        // The frame the window system adds is not known before the window
        // shows: the board's own frame is a fair guess.
        const QSize frame = m_board->frameGeometry().size() - m_board->size();
        const QRect phrase =
            m_phrase ? QRect(m_phrase->mapToGlobal(QPoint()), m_phrase->size()) : QRect();
        m_window->move(placeBeside(m_board->frameGeometry(), phrase, m_window->size() + frame));
    }
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

void DesignLink::sync() {
    if (m_window) {
        m_window->sync();
    }
}

} // namespace quillora
