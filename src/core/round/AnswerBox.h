// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>

namespace quillora {

class Dialogs;
class RoundEvents;

// The game the answer box answers.
class AnswerBoxGame {
public:
    // Whether an answer can still change the game.
    virtual bool takesAnswers() const = 0;
    // The answer the player confirmed, in capitals: the phrase wins, anything
    // else is a death.
    virtual void judgeAnswer(const std::u32string& answer) = 0;

protected:
    ~AnswerBoxGame() = default;
};

// The box for answering the whole phrase at once: opened by "Escribir" or
// "!", closed by "Cancelar", and OK once something is typed. A confirmed
// answer wins the game or loses it.
class AnswerBox {
public:
    AnswerBox(AnswerBoxGame& game, Dialogs& dialogs, RoundEvents& events)
        : m_game(game), m_dialogs(dialogs), m_events(events) {}

    void toggle();
    // Closing forgets what was typed.
    void close();
    bool isOpen() const { return m_open; }
    const std::string& text() const { return m_text; }
    void setText(std::string text) { m_text = std::move(text); }
    bool okEnabled() const { return !m_text.empty(); }
    // OK: false when the box stays open for more typing.
    bool submit();
    // The on-screen keyboard's key that opens and closes the box.
    std::u32string writeKeyCaption() const { return m_open ? U"Cancelar" : U"Escribir"; }

private:
    AnswerBoxGame& m_game;
    Dialogs& m_dialogs;
    RoundEvents& m_events;
    std::string m_text;
    bool m_open = false;
};

} // namespace quillora
