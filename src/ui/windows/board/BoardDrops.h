// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>

namespace quillora {

class BoardSessions;

// Files dropped on the board: pictures for its background, configuration
// files for new users. The model decides what each file is; a locked board
// takes none.
class BoardDrops final : public QObject {
public:
    BoardDrops(BoardSessions& sessions, QWidget* board, std::function<void()> dropped);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    BoardSessions& m_sessions;
    std::function<void()> m_dropped;
};

} // namespace quillora
