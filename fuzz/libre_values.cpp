// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The options window's "LIBRE!" page: any text as the value of any of the
// twenty lines, saved, and the file read back as the board would.

#include "FuzzPorts.h"
#include "models/options/OptionsModel.h"
#include "models/start/StartScreenModel.h"
#include "state/SharedState.h"
#include "storage/ConfigFile.h"

using namespace quillora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 1) {
        return 0;
    }
    SharedState shared;
    shared.dataFolder = fuzz::dataFolder();
    loadAtStart(shared);
    fuzz::QuietDialogs dialogs;
    fuzz::FixedRandom random;
    OptionsModel options(shared, dialogs);
    options.selectRow(data[0] % OptionsModel::kLines);
    options.setValueText(std::string(reinterpret_cast<const char*>(data + 1), size - 1));
    options.saveFromRawLines();
    clearForBoardLoad(shared);
    readSessionFile(shared, random);
    applyLineValues(shared);
    return 0;
}
