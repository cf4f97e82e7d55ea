// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The friend's phrase window: any text pasted into the phrase and theme
// boxes, then typed key by key, and the preview of the board it gives.

#include "models/friendPhrase/FriendPhraseModel.h"
#include "state/SharedState.h"
#include "words/Text.h"

#include <cstdlib>
#include <string>

using namespace quillora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    SharedState shared;
    FriendPhraseModel model(shared);
    model.setThemeText(text);
    model.themeFocusOut();
    model.setPhraseText(text);
    if (charCount(model.phraseText()) >
        static_cast<std::size_t>(FriendPhraseModel::kMaxPhraseChars)) {
        std::abort();
    }
    model.setPhraseText("");
    for (const char32_t key : toU32(text)) {
        if (model.keyAllowed(static_cast<int>(key))) {
            model.type(key);
        }
    }
    for (int row = 1; row <= FriendPhraseModel::kPreviewRows; ++row) {
        if (charCount(model.previewRow(row)) >
            static_cast<std::size_t>(FriendPhraseModel::kRowChars)) {
            std::abort();
        }
    }
    (void)model.okEnabled();
    return 0;
}
