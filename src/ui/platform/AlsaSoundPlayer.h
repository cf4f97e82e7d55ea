// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SoundBank.h"
#include "ports/SoundPlayer.h"

#include <QObject>

#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

// alsa-lib's handle of an open device, as <alsa/asoundlib.h> names it.
using snd_pcm_t = struct _snd_pcm;

namespace quillora {

// Plays the game's sounds through an ALSA device ("default" reaches
// PipeWire or PulseAudio on a desktop) on a thread of its own, so the board
// keeps answering while a sound plays. No device, or a busy one, is
// silence: the game never waits on the sound card.
class AlsaSoundPlayer final : public SoundPlayer {
public:
    explicit AlsaSoundPlayer(std::string device = "default");
    ~AlsaSoundPlayer() override;
    AlsaSoundPlayer(const AlsaSoundPlayer&) = delete;
    AlsaSoundPlayer& operator=(const AlsaSoundPlayer&) = delete;

    void load() override;
    void play(int number, std::function<void()> ended) override;

    // Plays a decoded sound at once; what play() does a frame after it is
    // asked, once it has the number.
    void playPcm(std::shared_ptr<const Pcm> pcm, std::function<void()> ended);

private:
    struct Request {
        std::shared_ptr<const Pcm> pcm;
        std::function<void()> ended;
    };

    // The sound thread and what only it touches: the open device.
    void run();
    // Plays one sound to its end or until a newer request cuts it short;
    // false when the device failed.
    bool playOne(const Pcm& pcm);
    bool openDevice(int channels, int rate);
    void closeDevice();
    // Whether a newer request or the end of the program is waiting; the
    // second form first waits a moment for one.
    bool cutShort();
    bool interrupted();
    void tellEnded(std::function<void()> ended);

    const std::string m_device;
    SoundBank m_bank;
    // Lives on the game's thread: the ends of sounds are told through it,
    // and die with it.
    QObject m_receiver;

    std::mutex m_mutex;
    std::condition_variable m_wake;
    Request m_next;
    bool m_hasNext = false;
    bool m_quit = false;
    std::thread m_worker;
    snd_pcm_t* m_pcm = nullptr;
    int m_channels = 0;
    int m_rate = 0;
};

} // namespace quillora
