// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ports/Dialogs.h"

#include <functional>

namespace quillora {

// The board's message boxes: before any box comes up the board is drawn as
// the game now stands, so the player reads the question or the notice over
// the board it is about, not over the one before the last move.
class BoardDialogs final : public Dialogs {
public:
    BoardDialogs(Dialogs& boxes, std::function<void()> drawBoard)
        : m_boxes(boxes), m_drawBoard(std::move(drawBoard)) {}

    void message(Icon icon, const std::string& text, const std::string& title) override {
        m_drawBoard();
        m_boxes.message(icon, text, title);
    }
    bool ask(Question kind, const std::string& text, const std::string& title) override {
        m_drawBoard();
        return m_boxes.ask(kind, text, title);
    }

    void about(const std::string& title, const std::string& text) override {
        m_drawBoard();
        m_boxes.about(title, text);
    }

private:
    Dialogs& m_boxes;
    std::function<void()> m_drawBoard;
};

} // namespace quillora
