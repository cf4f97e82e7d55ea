// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/design/DesignWindow.h"

#include <QPointer>

#include <functional>

namespace quillora {

class BoardAppearance;
class Dialogs;
class Round;
struct SharedState;

// The board's side of the design window: it opens one over the board, and
// closes it before the board's model goes, since the window works on it.
class DesignLink {
public:
    DesignLink(BoardAppearance& look, const Round& round, SharedState& shared, Dialogs& dialogs,
               QWidget* board, std::function<void()> boardChanged);
    ~DesignLink();
    DesignLink(const DesignLink&) = delete;
    DesignLink& operator=(const DesignLink&) = delete;

    // The part of the board the window keeps clear of where it can: the
    // phrase, whose letters show the style.
    void keepInSight(QWidget* phrase) { m_phrase = phrase; }
    // openDesign: "Cambiar diseño" and Ctrl+D. An open window comes to the
    // front rather than a second one.
    void openDesign();
    // The board took a drop the window may have been handed.
    void sync();
    DesignWindow* window() const { return m_window; }

private:
    BoardAppearance& m_look;
    const Round& m_round;
    SharedState& m_shared;
    Dialogs& m_dialogs;
    QWidget* m_board;
    std::function<void()> m_boardChanged;
    QWidget* m_phrase = nullptr;
    QPointer<DesignWindow> m_window;
};

} // namespace quillora
