// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/BoardDrops.h"

#include "models/board/BoardSessions.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

#include <string>
#include <vector>

namespace quillora {

BoardDrops::BoardDrops(BoardSessions& sessions, QWidget* board, std::function<void()> dropped)
    : QObject(board), m_sessions(sessions), m_dropped(std::move(dropped)) {
    board->setAcceptDrops(true);
    board->installEventFilter(this);
}

bool BoardDrops::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::DragEnter) {
        auto* enter = static_cast<QDragEnterEvent*>(event);
        if (enter->mimeData()->hasUrls() && m_sessions.dropsAccepted()) {
            enter->acceptProposedAction();
        } else {
            enter->ignore();
        }
        return true;
    }
    if (event->type() == QEvent::Drop) {
        auto* drop = static_cast<QDropEvent*>(event);
        std::vector<std::string> paths;
        for (const QUrl& url : drop->mimeData()->urls()) {
            if (url.isLocalFile()) {
                paths.push_back(url.toLocalFile().toStdString());
            }
        }
        drop->acceptProposedAction();
        m_sessions.dropFiles(paths);
        m_dropped();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace quillora
