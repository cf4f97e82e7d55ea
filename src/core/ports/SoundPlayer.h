// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace quillora {

// The loudspeaker. The board reads its seven sounds into memory when it
// opens and then plays them by number; the rules only ever say which number
// they want (PendingSound), never how it is played.
class SoundPlayer {
public:
    static constexpr int kSoundCount = 7;

    virtual ~SoundPlayer() = default;
    // The board's opening: sounds 1..7 are decoded, once per board.
    virtual void load() = 0;
    // Starts sound 1..7 and returns at once; a sound still playing is cut
    // short. `ended` runs on the game's own thread once the sound has
    // finished, was cut short, or could not be played at all (no sound card,
    // a busy one), so whoever waits for a sound never waits forever.
    virtual void play(int number, std::function<void()> ended) = 0;
};

} // namespace quillora
