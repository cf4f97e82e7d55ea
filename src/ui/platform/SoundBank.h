// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace quillora {

// One sound, decoded: interleaved 16-bit samples ready for the sound card.
struct Pcm {
    int channels = 0;
    int rate = 0;
    std::vector<std::int16_t> samples;

    std::size_t frames() const {
        return channels > 0 ? samples.size() / static_cast<std::size_t>(channels) : 0;
    }
};

// The game's seven sounds, decoded from the WAVE files built into the
// program (PCM, and MPEG Layer III inside WAVE for the long ones).
class SoundBank {
public:
    // Reads the embedded sounds 1..7. One that cannot be decoded stays
    // empty and is simply not heard.
    static SoundBank loadEmbedded();
    // A whole WAVE file held in memory; nothing when it is not one.
    static std::shared_ptr<const Pcm> decode(const QByteArray& wave);

    // Sound 1..7, or nothing for another number or an undecodable sound.
    std::shared_ptr<const Pcm> sound(int number) const;

private:
    std::array<std::shared_ptr<const Pcm>, 7> m_sounds;
};

} // namespace quillora
