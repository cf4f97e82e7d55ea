// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The configuration reader: any bytes as the main user's file, read as the
// board reads it at its opening, turned into options, and written back.

#include "FuzzPorts.h"
#include "models/start/StartScreenModel.h"
#include "state/SharedState.h"
#include "storage/ConfigFile.h"

#include <cstdlib>

using namespace quillora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    SharedState shared;
    shared.dataFolder = fuzz::dataFolder();
    loadAtStart(shared);
    fuzz::writeInput("QuilloraVS5.txt", data, size);
    fuzz::FixedRandom random;
    fuzz::QuietDialogs dialogs;
    clearForBoardLoad(shared);
    readSessionFile(shared, random);
    applyLineValues(shared);
    // What was read always goes back as twenty storable lines.
    const auto lines = settingsLines(shared.settings);
    if (lines.size() != static_cast<std::size_t>(kConfigLines)) {
        std::abort();
    }
    for (const std::string& line : lines) {
        if (line.find_first_of("\r\n") != std::string::npos) {
            std::abort();
        }
    }
    saveSettings(shared, dialogs);
    return 0;
}
