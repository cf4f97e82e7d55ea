// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/start/StartScreenModel.h"
#include "state/SharedState.h"
#include "support/Fakes.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <string>

namespace quillora {

// A data folder of its own with the main session loaded from it, as the
// game stands once the start screen has run.
struct LoadedSession {
    explicit LoadedSession(const std::string& prefix) : temp(prefix) {
        shared.dataFolder = folder;
        loadAtStart(shared);
    }

    TempFolder temp;
    const std::filesystem::path& folder = temp.path();
    SharedState shared;
    ScriptedDialogs dialogs;
};

} // namespace quillora
