// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/board/BoardModel.h"
#include "support/Fakes.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace quillora {

// A board's model saving to a folder of its own, and the ways a test plays it.
class BoardModelFixture : public ::testing::Test {
protected:
    // Users added on the way write their files here too, not where the tests run.
    BoardModelFixture() {
        shared.dataFolder = temp.path();
        shared.currentSession().filePath = (temp.path() / kMainConfigName).string();
    }

    // A game from the menu, `letters` typed on the board, its points counted out.
    void play(const std::string& phrase, std::u32string_view letters) {
        model.commands().clearBoard();
        model.round().startPhrase(phrase, 1, "ANIMAL");
        for (const char32_t c : letters) {
            model.keyTyped(BoardModel::WindowKey::Character, c);
        }
        countScore();
    }
    void guess(std::u32string_view letters) {
        for (const char32_t c : letters) {
            model.round().guess(c);
        }
    }
    void countScore() {
        while (model.scoring().counting()) {
            model.tickScore();
        }
    }
    const RoundState& st() const { return model.round().state(); }

    TempFolder temp{"quillora-model"};
    SharedState shared;
    ScriptedDialogs dialogs;
    RecordingAnnouncer announcer;
    QueuedRandom random;
    RecordingEvents events;
    FakeDesktop desktop{dialogs};
    BoardModel model{shared, dialogs, announcer, random, desktop.lookUp, &events};
};

} // namespace quillora
