// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// A file dropped on the board: any bytes under a configuration file's name,
// taken in as a further user as the board takes them, then switched to.

#include "FuzzPorts.h"
#include "desktop/WebLookUp.h"
#include "models/board/BoardModel.h"
#include "models/start/StartScreenModel.h"
#include "ports/NetworkCheck.h"
#include "ports/Web.h"

using namespace quillora;

namespace {
struct Offline final : NetworkCheck {
    bool networkAlive() override { return false; }
};
struct NoBrowser final : Web {
    void openUrl(const std::string&) override {}
};
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::filesystem::remove_all(fuzz::dataFolder());
    std::filesystem::create_directories(fuzz::dataFolder());
    SharedState shared;
    shared.dataFolder = fuzz::dataFolder();
    shared.settings.userName = "Quillora VS";
    loadAtStart(shared);
    fuzz::QuietDialogs dialogs;
    fuzz::FixedRandom random;
    Offline network;
    NoBrowser browser;
    WebLookUp lookUp(network, browser, dialogs, Endpoints::fromBuild("file:///ayuda.html"));
    BoardModel board(shared, dialogs, random, lookUp);
    board.load();
    const auto dropped = fuzz::writeInput("Soltado.txt", data, size);
    board.dropFiles({dropped.string()});
    for (int slot = 0; slot < kSessionSlots; ++slot) {
        board.switchSession(slot);
        BoardModel next(shared, dialogs, random, lookUp);
        next.load();
    }
    return 0;
}
