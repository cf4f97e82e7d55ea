// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// saver: saves one user's configuration file over and over, as the game
// does after every game, each save a little different from the one before,
// until it is killed. scripts/kill-test.sh kills it at random moments and
// checks that the file left is always one whole save.
//
//   saver FILE            saves for ever
//   saver --first FILE    writes save 0 once: the file as it was before
//   saver --check FILE    exit 0 when FILE is one whole save of saver's

#include "storage/ConfigFile.h"

#include <cstdio>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

namespace {

// Save n: twenty lines, every one naming n, so a file mixed from two saves
// or cut short shows at once. The name line is long, so a save takes more
// than one write of the disk's blocks.
std::vector<std::string> save(long n) {
    std::vector<std::string> lines;
    for (int line = 1; line <= quillora::kConfigLines; ++line) {
        std::string text = std::to_string(n);
        if (line == 15) {
            text += std::string(3000, 'x');
        }
        lines.push_back(text);
    }
    return lines;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 3 && std::strcmp(argv[1], "--check") == 0) {
        const std::optional<std::vector<std::string>> lines = quillora::readConfigLines(argv[2]);
        if (!lines || lines->size() != static_cast<std::size_t>(quillora::kConfigLines)) {
            std::fprintf(stderr, "%s is not a whole file\n", argv[2]);
            return 1;
        }
        const long n = std::strtol(lines->front().c_str(), nullptr, 10);
        if (*lines != save(n)) {
            std::fprintf(stderr, "%s mixes saves or is cut short\n", argv[2]);
            return 1;
        }
        std::printf("%ld\n", n);
        return 0;
    }
    if (argc == 3 && std::strcmp(argv[1], "--first") == 0) {
        return quillora::writeConfigLines(argv[2], save(0)) ? 0 : 1;
    }
    if (argc != 2) {
        std::fprintf(stderr, "usage: saver FILE | saver --first FILE | saver --check FILE\n");
        return 2;
    }
    for (long n = 1;; ++n) {
        if (!quillora::writeConfigLines(argv[1], save(n))) {
            std::fprintf(stderr, "save %ld failed\n", n);
            return 1;
        }
    }
}
