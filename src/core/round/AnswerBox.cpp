// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "round/AnswerBox.h"

#include "ports/Dialogs.h"
#include "round/Keyboard.h"
#include "round/RoundEvents.h"
#include "words/Text.h"

namespace quillora {

namespace {

// The answer box shows the typed text in capitals, accented letters too, so
// the player sees the very letter that gets the answer refused.
char32_t answerUpper(char32_t c) {
    if (c >= U'\u00E0' && c <= U'\u00FE' && c != U'\u00F7') {
        return c - 0x20;
    }
    if (c == U'\u00FF') {
        return U'\u0178';
    }
    return gameUpper(c);
}

bool answerCharAllowed(char32_t c) {
    return (c >= U'0' && c <= U'9') || (c >= U'A' && c <= U'Z') || c == kUpperEnye || c == U' ';
}

} // namespace

void AnswerBox::close() {
    m_open = false;
    m_text.clear();
}

void AnswerBox::toggle() {
    if (m_open) {
        close();
    } else {
        m_open = true;
        m_events.answerBoxOpened();
    }
}

bool AnswerBox::submit() {
    if (!m_open || !m_game.takesAnswers()) {
        return false;
    }
    std::u32string typed = toU32(m_text);
    for (char32_t& c : typed) {
        c = answerUpper(c);
    }
    m_text = toUtf8(typed);
    for (char32_t c : typed) {
        if (!answerCharAllowed(c)) {
            m_dialogs.exclamation(
                "Espere, hay mínimo un símbolo o letra con acento, revise si los hay y quítelos.");
            return false;
        }
    }
    if (!m_dialogs.yesNo("¿Está seguro?, morirá si se equivoca.")) {
        return false;
    }
    // The clock keeps running behind the question and may have ended the
    // game meanwhile: an answer to a lost game changes nothing.
    if (!m_game.takesAnswers()) {
        return true;
    }
    m_game.judgeAnswer(toU32(m_text));
    close();
    return true;
}

} // namespace quillora
