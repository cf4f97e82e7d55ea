// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The progress reader: any bytes as a user's progress file. What it takes
// must write back to a file that reads as the very same progress, or the
// next run would lose or change what the player had.

#include "storage/ProgressFile.h"

#include <cstdlib>
#include <string_view>

using namespace quillora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const ParsedProgress parsed = parseProgress(bytes);
    if (parsed.state != ProgressState::Read) {
        if (!(parsed.progress == Progress{})) {
            std::abort();
        }
        return 0;
    }
    const ParsedProgress again = parseProgress(progressBytes(parsed.progress));
    if (again.state != ProgressState::Read || !(again.progress == parsed.progress)) {
        std::abort();
    }
    return 0;
}
