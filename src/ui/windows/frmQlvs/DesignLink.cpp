// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/frmQlvs/DesignLink.h"

#include "models/frmQlvs/QlvsModel.h"

#include <QDir>
#include <QGuiApplication>
#include <QScreen>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <limits>

namespace quillora {

namespace {

// The window works on the board behind it: it goes where it hides the least
// of the board that the screen leaves room for.
QPoint placeBeside(const QRect& board, QSize size) {
    const QScreen* screen = QGuiApplication::screenAt(board.center());
    if (!screen) {
        screen = QGuiApplication::primaryScreen();
    }
    const QRect area = screen ? screen->availableGeometry() : board;
    const int middleX = board.center().x() - size.width() / 2;
    const int middleY = board.center().y() - size.height() / 2;
    const std::array<QPoint, 4> places{
        QPoint(middleX, board.bottom() + 1), QPoint(middleX, board.top() - size.height()),
        QPoint(board.right() + 1, middleY), QPoint(board.left() - size.width(), middleY)};
    QPoint best = board.center() - QPoint(size.width() / 2, size.height() / 2);
    qint64 leastHidden = std::numeric_limits<qint64>::max();
    for (QPoint place : places) {
        // Kept on the screen, even if that brings it over the board.
        place.setX(
            std::clamp(place.x(), area.left(), std::max(area.left(), area.right() - size.width())));
        place.setY(
            std::clamp(place.y(), area.top(), std::max(area.top(), area.bottom() - size.height())));
        const QRect hidden = QRect(place, size).intersected(board);
        const qint64 hiddenArea = static_cast<qint64>(hidden.width()) * hidden.height();
        if (hiddenArea < leastHidden) {
            leastHidden = hiddenArea;
            best = place;
        }
    }
    return best;
}

} // namespace

DesignLink::DesignLink(QlvsModel& model, QWidget* board, std::function<void()> boardChanged)
    : m_model(model), m_board(board), m_boardChanged(std::move(boardChanged)) {}

DesignLink::~DesignLink() {
    delete m_window.data();
}

void DesignLink::eMenuColors() {
    if (!m_model.designOffered()) {
        return;
    }
    if (!m_window) {
        m_window = new frmDiseno(m_model, m_boardChanged,
                                 QStandardPaths::writableLocation(QStandardPaths::PicturesLocation),
                                 QDir::homePath(), m_board);
        m_window->setAttribute(Qt::WA_DeleteOnClose);
        m_window->move(placeBeside(m_board->frameGeometry(), m_window->size()));
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
