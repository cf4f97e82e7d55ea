// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/frmInicio/InicioModel.h"
#include "state/SharedState.h"
#include "storage/ConfigFile.h"

#include "support/Fakes.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace quillora {
namespace {

namespace fs = std::filesystem;

constexpr int kKills = 200;
constexpr int kLongestWaitMicroseconds = 3000;

std::vector<fs::path> filesBeside(const fs::path& file) {
    std::vector<fs::path> others;
    for (const auto& entry : fs::directory_iterator(file.parent_path())) {
        if (entry.path() != file) {
            others.push_back(entry.path().filename());
        }
    }
    return others;
}

// A real process saves the options over and over, two versions in turn, and
// is killed at a random moment; the file must be one version or the other,
// whole, and the next start must leave no temporary file behind. Kills that
// land between two saves prove nothing, so the test also insists that some
// of them caught a save under way.
TEST(KilledSave, TheFileIsAlwaysWholeAndTheNextStartLeavesNoTemporaryFile) {
    TempFolder folder("quillora-killed");
    SharedState shared;
    shared.dataFolder = folder.path();
    InicioLoad(shared);
    const fs::path file = shared.currentSession().Archivo;
    ScriptedDialogs dialogs;

    // Long enough lines that a save takes a moment.
    shared.settings.fondo = std::string(3000, 'v');
    shared.settings.nombre = "Nueva";
    ASSERT_TRUE(ConfSave(shared, dialogs));
    const std::string newer = slurp(file);
    shared.settings.nombre = "Vieja";
    shared.settings.carpetaFondo = std::string(2000, 'c');
    ASSERT_TRUE(ConfSave(shared, dialogs));
    const std::string older = slurp(file);
    ASSERT_NE(older, newer);

    std::mt19937 chance(std::random_device{}());
    std::uniform_int_distribution<int> wait(0, kLongestWaitMicroseconds);
    int caughtSaving = 0;
    for (int kill = 0; kill < kKills; ++kill) {
        const pid_t saver = ::fork();
        ASSERT_NE(saver, -1);
        if (saver == 0) {
            SharedState mine = shared;
            for (bool flip = false;; flip = !flip) {
                mine.settings.nombre = flip ? "Nueva" : "Vieja";
                mine.settings.carpetaFondo = flip ? "" : std::string(2000, 'c');
                ConfSave(mine, dialogs);
            }
        }
        std::this_thread::sleep_for(std::chrono::microseconds(wait(chance)));
        ::kill(saver, SIGKILL);
        int status = 0;
        ASSERT_EQ(::waitpid(saver, &status, 0), saver);
        ASSERT_TRUE(WIFSIGNALED(status));

        const std::string bytes = slurp(file);
        ASSERT_TRUE(bytes == older || bytes == newer)
            << "kill " << kill << " left " << bytes.size() << " bytes";
        caughtSaving += !filesBeside(file).empty();
        InicioLoad(shared);
        ASSERT_EQ(filesBeside(file), std::vector<fs::path>{}) << "kill " << kill;
    }
    EXPECT_GT(caughtSaving, 0) << "no kill landed during a save";
    EXPECT_TRUE(dialogs.shown.empty());
}

} // namespace
} // namespace quillora
