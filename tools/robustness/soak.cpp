// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// soak: plays thousands of whole games through the game's own rules, as a
// restless player would: random letters (and keys that are no letters),
// whole answers right and wrong, strike corrections, new users and switches
// between them, every game saved to a real data folder. It prints the
// resident memory at the games asked for and fails when a game does not
// end or a save goes missing.
//
//   soak GAMES DATA_FOLDER [SEED]

#include "desktop/WebLookUp.h"
#include "models/board/BoardModel.h"
#include "models/start/StartScreenModel.h"
#include "ports/Announcer.h"
#include "ports/Dialogs.h"
#include "ports/NetworkCheck.h"
#include "ports/Random.h"
#include "ports/Web.h"
#include "storage/ConfigFile.h"
#include "words/Text.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>
#include <string>

namespace {

using namespace quillora;

std::mt19937_64 chance;

bool coin(double odds) {
    return std::uniform_real_distribution<double>(0, 1)(chance) < odds;
}
int pick(int count) {
    return std::uniform_int_distribution<int>(0, count - 1)(chance);
}

// The game's draws, from the soak's own seed so a run can be repeated.
class SeededRandom final : public Random {
public:
    void reseed() override {}
    double fraction() override { return std::uniform_real_distribution<double>(0, 1)(chance); }
};

// A player who answers every question one way or the other.
class RestlessDialogs final : public Dialogs {
public:
    void message(Icon, const std::string&, const std::string&) override { ++messages; }
    bool ask(Question, const std::string&, const std::string&) override { return coin(0.7); }
    void about(const std::string&, const std::string&) override {}
    long messages = 0;
};

struct Offline final : NetworkCheck {
    bool networkAlive() override { return false; }
};
struct NoBrowser final : Web {
    void openUrl(const std::string&) override {}
};

long residentKb() {
    std::ifstream statm("/proc/self/statm");
    long pages = 0, resident = 0;
    statm >> pages >> resident;
    return resident * 4;
}

int usersInUse(const SharedState& shared) {
    int count = 0;
    for (const SessionSlot& slot : shared.sessions) {
        count += slot.record.inUse() ? 1 : 0;
    }
    return count;
}

const std::u32string kKeys = U"ABCDEFGHIJKLMNÑOPQRSTUVWXYZ0123456789áé!#?@ ";

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: soak GAMES DATA_FOLDER [SEED]\n");
        return 2;
    }
    const long games = std::atol(argv[1]);
    chance.seed(argc > 3 ? std::strtoull(argv[3], nullptr, 10) : 1);

    SharedState shared;
    shared.dataFolder = std::filesystem::path(argv[2]);
    std::filesystem::create_directories(shared.dataFolder);
    shared.settings.userName = "Quillora VS";
    loadAtStart(shared);
    RestlessDialogs dialogs;
    SilentAnnouncer quiet;
    SeededRandom random;
    Offline network;
    NoBrowser browser;
    WebLookUp lookUp(network, browser, dialogs, Endpoints::fromBuild("file:///ayuda.html"));

    auto board = std::make_unique<BoardModel>(shared, dialogs, quiet, random, lookUp);
    board->load();
    long wins = 0, losses = 0, switches = 0;
    for (long game = 1; game <= games; ++game) {
        Round& round = board->round();
        while (board->scoring().counting()) {
            board->tickScore();
        }
        round.clearBoard();
        round.phraseChoice().drawThemeAndPhrase();
        round.phraseChoice().layDrawnPhrase();
        // A game is at most 45 keys of its own, answers and corrections
        // included; more means it no longer ends.
        for (int step = 0; round.inPlay(); ++step) {
            if (step > 400) {
                std::fprintf(stderr, "game %ld does not end\n", game);
                return 1;
            }
            if (coin(0.03)) {
                AnswerBox& box = round.answerBox();
                box.toggle();
                const std::string right = toUtf8(round.board().answerText());
                box.setText(coin(0.5) ? right : right + "X");
                box.submit();
                if (box.isOpen()) {
                    box.toggle();
                }
            } else if (coin(0.04)) {
                board->keyTyped(BoardModel::WindowKey::Delete);
            } else {
                board->keyTyped(
                    BoardModel::WindowKey::Character,
                    kKeys[static_cast<std::size_t>(pick(static_cast<int>(kKeys.size())))]);
            }
        }
        (round.state().strikeCount >= 8 ? losses : wins) += 1;
        // Now and then a new user or another one, on a fresh board, as the
        // game does after a switch.
        if (coin(0.01)) {
            std::string shown;
            if (coin(0.3) && usersInUse(shared) < kSessionSlots) {
                board->sessions().add("Soak " + std::to_string(game), shown);
            } else {
                board->sessions().switchTo(pick(4));
            }
            ++switches;
            board = std::make_unique<BoardModel>(shared, dialogs, quiet, random, lookUp);
            board->load();
        }
        if (!std::filesystem::exists(shared.currentSession().filePath)) {
            std::fprintf(stderr, "game %ld: the user's file is missing\n", game);
            return 1;
        }
        if (game == 1000 || game == games || game % 2500 == 0) {
            std::printf("game %ld: resident %ld kB\n", game, residentKb());
            std::fflush(stdout);
        }
    }
    std::printf("%ld games: %ld won, %ld lost, %ld session changes, %ld notices\n", games, wins,
                losses, switches, dialogs.messages);
    return 0;
}
