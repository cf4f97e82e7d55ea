// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/ConfigFile.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace quillora {

// A data folder of its own for one test, gone when the test ends.
class TempFolder {
public:
    explicit TempFolder(const std::string& prefix)
        : m_path(std::filesystem::temp_directory_path() /
                 (prefix + "-" + std::to_string(std::random_device{}()))) {
        std::filesystem::create_directories(m_path);
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

// The bytes of a file, as they are on disk.
inline std::string slurp(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

// Line `n`, counted from 1, of a configuration file as it is on disk.
inline std::string storedLine(const std::filesystem::path& file, int n) {
    const auto lines = readConfigLines(file);
    return lines && lines->size() >= static_cast<std::size_t>(n) ? (*lines)[n - 1] : "(no line)";
}

} // namespace quillora
