// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ports/Dialogs.h"
#include "ports/Random.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace quillora::fuzz {

// The outside world of a fuzzed input: every question answered the same,
// every draw the same, so an input always takes the same way through.
class QuietDialogs final : public Dialogs {
public:
    void message(Icon, const std::string&, const std::string&) override {}
    bool ask(Question, const std::string&, const std::string&) override { return true; }
    void about(const std::string&, const std::string&) override {}
};

class FixedRandom final : public Random {
public:
    void reseed() override {}
    double fraction() override { return 0.37; }
};

// A data folder of this process's own, in memory where the system has one.
inline const std::filesystem::path& dataFolder() {
    static const std::filesystem::path folder = [] {
        const std::filesystem::path base = std::filesystem::exists("/dev/shm")
                                               ? "/dev/shm"
                                               : std::filesystem::temp_directory_path();
        auto path = base / ("quillora-fuzz-" + std::to_string(::getpid()));
        std::filesystem::create_directories(path);
        return path;
    }();
    return folder;
}

// The input as a file of the data folder, whole.
inline std::filesystem::path writeInput(const std::string& name, const uint8_t* data, size_t size) {
    const auto path = dataFolder() / name;
    std::ofstream(path, std::ios::binary | std::ios::trunc)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    return path;
}

} // namespace quillora::fuzz
