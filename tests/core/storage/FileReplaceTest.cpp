// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/FileReplace.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
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
