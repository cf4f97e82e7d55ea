// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/AlsaSoundPlayer.h"

#include <QElapsedTimer>
#include <QLoggingCategory>

#include <alsa/asoundlib.h>

#include <algorithm>
#include <chrono>

namespace quillora {

// QT_LOGGING_RULES="quillora.sound.debug=true" tells how long the sounds
// take to decode; the benchmark reads it.
Q_LOGGING_CATEGORY(lcSound, "quillora.sound", QtWarningMsg)

namespace {

using Clock = std::chrono::steady_clock;

// Short enough that a new sound cuts the old one without a noticeable gap,
// long enough that a busy machine does not stutter.
constexpr unsigned kLatencyMicroseconds = 60000;
constexpr auto kPoll = std::chrono::milliseconds(10);
// However the sound card behaves, a sound gives up this long after it
// should have ended.
constexpr auto kGrace = std::chrono::seconds(2);

// alsa-lib writes its complaints to stderr; a machine without a sound card
// is normal for this game, so nothing is said.
void quiet(const char*, int, const char*, int, const char*, ...) {}

struct PcmHandle {
    snd_pcm_t* pcm = nullptr;
    ~PcmHandle() {
        if (pcm) {
            snd_pcm_drop(pcm);
            snd_pcm_close(pcm);
        }
    }
};

} // namespace

AlsaSoundPlayer::AlsaSoundPlayer(std::string device) : m_device(std::move(device)) {
    snd_lib_error_set_handler(quiet);
    m_worker = std::thread([this] { run(); });
}

AlsaSoundPlayer::~AlsaSoundPlayer() {
    {
        std::lock_guard lock(m_mutex);
        m_quit = true;
    }
    m_wake.notify_all();
    m_worker.join();
}

void AlsaSoundPlayer::load() {
    QElapsedTimer clock;
    clock.start();
    m_bank = SoundBank::loadEmbedded();
    qCDebug(lcSound, "sounds decoded in %.2f ms", static_cast<double>(clock.nsecsElapsed()) / 1e6);
}

void AlsaSoundPlayer::play(int number, std::function<void()> ended) {
    playPcm(m_bank.sound(number), std::move(ended));
}

void AlsaSoundPlayer::playPcm(std::shared_ptr<const Pcm> pcm, std::function<void()> ended) {
    Request replaced;
    bool wasWaiting = false;
    {
        std::lock_guard lock(m_mutex);
        // A request the worker has not taken yet is replaced; it still ends.
        if (m_hasNext) {
            replaced = std::move(m_next);
            wasWaiting = true;
        }
        m_next = Request{std::move(pcm), std::move(ended)};
        m_hasNext = true;
    }
    m_wake.notify_all();
    if (wasWaiting) {
        tellEnded(std::move(replaced.ended));
    }
}

void AlsaSoundPlayer::run() {
    std::unique_lock lock(m_mutex);
    while (true) {
        m_wake.wait(lock, [this] { return m_quit || m_hasNext; });
        if (m_quit) {
            return;
        }
        Request request = std::move(m_next);
        m_hasNext = false;
        lock.unlock();
        if (request.pcm) {
            playOne(*request.pcm);
        }
        tellEnded(std::move(request.ended));
        lock.lock();
    }
}

bool AlsaSoundPlayer::interrupted() {
    std::unique_lock lock(m_mutex);
    return m_wake.wait_for(lock, kPoll, [this] { return m_quit || m_hasNext; });
}

void AlsaSoundPlayer::playOne(const Pcm& sound) {
    PcmHandle handle;
    // Opened without blocking: a device held by another program fails at
    // once instead of holding the sound thread.
    if (snd_pcm_open(&handle.pcm, m_device.c_str(), SND_PCM_STREAM_PLAYBACK, SND_PCM_NONBLOCK) <
        0) {
        handle.pcm = nullptr;
        return;
    }
    snd_pcm_t* pcm = handle.pcm;
    if (snd_pcm_set_params(pcm, SND_PCM_FORMAT_S16, SND_PCM_ACCESS_RW_INTERLEAVED,
                           static_cast<unsigned>(sound.channels), static_cast<unsigned>(sound.rate),
                           1, kLatencyMicroseconds) < 0) {
        return;
    }
    const auto frames = static_cast<snd_pcm_uframes_t>(sound.frames());
    const auto length =
        std::chrono::milliseconds(frames * 1000 / static_cast<unsigned>(sound.rate));
    const Clock::time_point giveUp = Clock::now() + length + kGrace;

    snd_pcm_uframes_t done = 0;
    while (done < frames) {
        if (Clock::now() > giveUp) {
            return;
        }
        const std::int16_t* from =
            sound.samples.data() + done * static_cast<unsigned>(sound.channels);
        const snd_pcm_sframes_t written = snd_pcm_writei(pcm, from, frames - done);
        if (written == -EAGAIN || written == 0) {
            if (interrupted()) {
                return;
            }
            continue;
        }
        if (written < 0) {
            if (snd_pcm_recover(pcm, static_cast<int>(written), 1) < 0) {
                return;
            }
            continue;
        }
        done += static_cast<snd_pcm_uframes_t>(written);
    }
    // A sound shorter than the buffer has not started yet.
    if (snd_pcm_state(pcm) == SND_PCM_STATE_PREPARED) {
        snd_pcm_start(pcm);
    }
    // Let the tail play out, still ready to be cut by the next sound.
    while (Clock::now() < giveUp && snd_pcm_state(pcm) == SND_PCM_STATE_RUNNING) {
        snd_pcm_sframes_t left = 0;
        if (snd_pcm_delay(pcm, &left) < 0 || left <= 0 || interrupted()) {
            return;
        }
    }
}

void AlsaSoundPlayer::tellEnded(std::function<void()> ended) {
    if (ended) {
        QMetaObject::invokeMethod(&m_receiver, std::move(ended), Qt::QueuedConnection);
    }
}

} // namespace quillora
