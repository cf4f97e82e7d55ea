// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// saver: writes one user's configuration file the way the game saves it,
// and kills itself at a chosen step of the save, as a crash or a kill from
// outside would land there. scripts/kill-test.sh does so at every step and
// checks that the file left is always one whole save.
//
//   saver --steps                 names the steps of a save, in order
//   saver --first FILE            writes save 0: the file as it was before
//   saver --stop-at STEP FILE     writes save 1 and dies by SIGKILL at STEP
//   saver --check FILE            exit 0 when FILE is one whole save of
//                                 saver's, whose number it prints

#include "storage/ConfigFile.h"
#include "storage/FileReplace.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using quillora::SaveStep;

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

// The bytes writeConfigLines makes of a save's lines, which are plain ASCII.
std::string bytesOf(const std::vector<std::string>& lines) {
    std::string bytes;
    for (const std::string& line : lines) {
        bytes += line + "\r\n";
    }
    return bytes;
}

std::string_view stepName(SaveStep step) {
    switch (step) {
    case SaveStep::TemporaryCreated:
        return "created";
    case SaveStep::BytesWritten:
        return "written";
    case SaveStep::FileSynced:
        return "synced";
    case SaveStep::Renamed:
        return "renamed";
    case SaveStep::FolderSynced:
        return "folder-synced";
    }
    return "?";
}

class KillAt : public quillora::SaveWatcher {
public:
    explicit KillAt(SaveStep step) : m_step(step) {}
    void reached(SaveStep step) override {
        if (step == m_step) {
            std::raise(SIGKILL);
        }
    }

private:
    SaveStep m_step;
};

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::strcmp(argv[1], "--steps") == 0) {
        for (SaveStep step : quillora::kSaveSteps) {
            std::printf("%s\n", std::string(stepName(step)).c_str());
        }
        return 0;
    }
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
    if (argc == 4 && std::strcmp(argv[1], "--stop-at") == 0) {
        for (SaveStep step : quillora::kSaveSteps) {
            if (stepName(step) == argv[2]) {
                KillAt killer(step);
                quillora::replaceFile(argv[3], bytesOf(save(1)), &killer);
                std::fprintf(stderr, "the save never reached %s\n", argv[2]);
                return 1;
            }
        }
        std::fprintf(stderr, "no step of a save is called %s\n", argv[2]);
        return 2;
    }
    std::fprintf(stderr, "usage: saver --steps | saver --first FILE | "
                         "saver --stop-at STEP FILE | saver --check FILE\n");
    return 2;
}
