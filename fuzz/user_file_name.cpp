// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A user's name as a file name: whatever is typed, the file stays a plain
// file right inside the data folder.

#include "storage/ConfigFile.h"

#include <cstdlib>
#include <string_view>

using namespace quillora;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view name(reinterpret_cast<const char*>(data), size);
    const std::filesystem::path folder = "/data/quillora-vesta";
    const std::filesystem::path file = sessionFilePath(folder, name);
    const std::string leaf = file.filename().string();
    if (file.parent_path() != folder || leaf.empty() || leaf == "." || leaf == ".." ||
        leaf.find('/') != std::string::npos || leaf.find('\0') != std::string::npos) {
        std::abort();
    }
    return 0;
}
