// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/FileReplace.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <tuple>
#include <vector>

namespace quillora {
namespace {

namespace fs = std::filesystem;

const std::string kOlder = "vieja\r\n";
const std::string kNewer = "nueva\r\n";

class FileReplaceTest : public ::testing::Test {
protected:
    void SetUp() override { std::ofstream(file, std::ios::binary) << kOlder; }

    std::vector<fs::path> othersInFolder() const {
        std::vector<fs::path> others;
        for (const auto& entry : fs::directory_iterator(temp.path())) {
            if (entry.path() != file) {
                others.push_back(entry.path().filename());
            }
        }
        return others;
    }

    TempFolder temp{"quillora-replace"};
    const fs::path file = temp.path() / "QuilloraVS5.txt";
};

ino_t inodeOf(const fs::path& path) {
    struct stat info {};
    return ::stat(path.c_str(), &info) == 0 ? info.st_ino : 0;
}

// Each flush a save asks for: whether a folder was flushed, which one or
// which file, and what the file's name held at that moment.
using Flush = std::tuple<bool, ino_t, std::string>;

class FlushRecorder : public SaveWatcher {
public:
    FlushRecorder(fs::path file, bool failFileFlush)
        : m_file(std::move(file)), m_failFileFlush(failFileFlush) {}
    int sync(int fd) override {
        struct stat flushed {};
        ::fstat(fd, &flushed);
        flushes.emplace_back(S_ISDIR(flushed.st_mode), flushed.st_ino, slurp(m_file));
        return m_failFileFlush && !S_ISDIR(flushed.st_mode) ? -1 : SaveWatcher::sync(fd);
    }
    std::vector<Flush> flushes;

private:
    fs::path m_file;
    bool m_failFileFlush;
};

// Without the first flush a power cut after the rename can leave the name
// on an empty file; without the second, the old name can come back.
TEST_F(FileReplaceTest, TheBytesReachTheDiskBeforeTheRenameAndTheRenameWithItsFolder) {
    FlushRecorder recorder(file, false);
    ASSERT_TRUE(replaceFile(file, kNewer, &recorder));
    const std::vector<Flush> expected{{false, inodeOf(file), kOlder},
                                      {true, inodeOf(temp.path()), kNewer}};
    EXPECT_EQ(recorder.flushes, expected);

    // Bytes the disk would not flush never take the file's place.
    FlushRecorder refused(file, true);
    EXPECT_FALSE(replaceFile(file, kOlder, &refused));
    EXPECT_EQ(slurp(file), kNewer);
    EXPECT_EQ(othersInFolder(), std::vector<fs::path>{});
}

// Dies at its step of the save, as a crash or a kill may.
class KillAt : public SaveWatcher {
public:
    explicit KillAt(SaveStep step) : m_step(step) {}
    void reached(SaveStep step) override {
        if (step == m_step) {
            ::raise(SIGKILL);
        }
    }

private:
    SaveStep m_step;
};

// A save killed at each of its steps in turn, in a process of its own: the
// file is the old one, whole, until the rename and the new one from it on,
// and what the kill left beside it goes at the next start.
TEST_F(FileReplaceTest, AKillAtEveryStepLeavesOneWholeFileAndTheNextStartTidiesUp) {
    bool renamed = false;
    for (const SaveStep step : kSaveSteps) {
        const int at = static_cast<int>(step);
        renamed = renamed || step == SaveStep::Renamed;
        std::ofstream(file, std::ios::binary) << kOlder;
        const pid_t saver = ::fork();
        ASSERT_NE(saver, -1);
        if (saver == 0) {
            KillAt killer(step);
            replaceFile(file, kNewer, &killer);
            ::_exit(0);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(saver, &status, 0), saver);
        ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "step " << at;

        EXPECT_EQ(slurp(file), renamed ? kNewer : kOlder) << "step " << at;
        EXPECT_EQ(othersInFolder().size(), renamed ? 0U : 1U) << "step " << at;
        removeStaleTemporaries(temp.path());
        EXPECT_EQ(othersInFolder(), std::vector<fs::path>{}) << "step " << at;
    }
}

} // namespace
} // namespace quillora
