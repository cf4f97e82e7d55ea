// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/AlsaSoundPlayer.h"

#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QTimer>

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
constexpr unsigned kLatencyMicroseconds = 200000;
constexpr int kPollMilliseconds = 10;
constexpr auto kHandOver = std::chrono::milliseconds(16);
constexpr auto kPoll = std::chrono::milliseconds(kPollMilliseconds);
// A device left idle this long is closed until the next sound.
constexpr auto kIdleClose = std::chrono::seconds(30);
// However the sound card behaves, a sound gives up this long after it
// should have ended.
constexpr auto kGrace = std::chrono::seconds(2);

// alsa-lib writes its complaints to stderr; a machine without a sound card
// is normal for this game, so nothing is said.
void quiet(const char*, int, const char*, int, const char*, ...) {}

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
    // A new sound goes to the worker a frame after the event that asked
    // for it. Cutting the sound still playing and starting the next wakes
    // the worker, the client library's thread and the sound server at once;
    // on two cores they take the processor from the window in the very
    // millisecond it draws the letter. Sixteen milliseconds later is nothing
    // to the ear: sound covers five metres in that time.
    QTimer::singleShot(
        kHandOver, Qt::PreciseTimer, &m_receiver,
        [this, pcm = m_bank.sound(number), ended = std::move(ended)] { playPcm(pcm, ended); });
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
        // The device stays open between sounds, so the next one starts at
        // once; after a long quiet it is handed back to the system.
        if (!m_wake.wait_for(lock, kIdleClose, [this] { return m_quit || m_hasNext; })) {
            closeDevice();
            continue;
        }
        if (m_quit) {
            closeDevice();
            return;
        }
        Request request = std::move(m_next);
        m_hasNext = false;
        lock.unlock();
        if (request.pcm && !playOne(*request.pcm)) {
            // A device in trouble is opened afresh for the next sound.
            closeDevice();
        }
        tellEnded(std::move(request.ended));
        lock.lock();
    }
}

bool AlsaSoundPlayer::cutShort() {
    std::lock_guard lock(m_mutex);
    return m_quit || m_hasNext;
}

bool AlsaSoundPlayer::interrupted() {
    std::unique_lock lock(m_mutex);
    return m_wake.wait_for(lock, kPoll, [this] { return m_quit || m_hasNext; });
}

bool AlsaSoundPlayer::openDevice(int channels, int rate) {
    if (m_pcm && channels == m_channels && rate == m_rate) {
        return snd_pcm_prepare(m_pcm) >= 0;
    }
    closeDevice();
    // Opened without blocking: a device held by another program fails at
    // once instead of holding the sound thread.
    if (snd_pcm_open(&m_pcm, m_device.c_str(), SND_PCM_STREAM_PLAYBACK, SND_PCM_NONBLOCK) < 0) {
        m_pcm = nullptr;
        return false;
    }
    if (snd_pcm_set_params(m_pcm, SND_PCM_FORMAT_S16, SND_PCM_ACCESS_RW_INTERLEAVED,
                           static_cast<unsigned>(channels), static_cast<unsigned>(rate), 1,
                           kLatencyMicroseconds) < 0) {
        closeDevice();
        return false;
    }
    m_channels = channels;
    m_rate = rate;
    return true;
}

void AlsaSoundPlayer::closeDevice() {
    if (m_pcm) {
        snd_pcm_drop(m_pcm);
        snd_pcm_close(m_pcm);
        m_pcm = nullptr;
    }
}

bool AlsaSoundPlayer::playOne(const Pcm& sound) {
    if (!openDevice(sound.channels, sound.rate)) {
        return false;
    }
    snd_pcm_t* pcm = m_pcm;
    // Whatever happens below, the sound is over for the card when this ends.
    struct Stop {
        snd_pcm_t* pcm;
        ~Stop() { snd_pcm_drop(pcm); }
    } stop{pcm};

    const auto frames = static_cast<snd_pcm_uframes_t>(sound.frames());
    const auto length =
        std::chrono::milliseconds(frames * 1000 / static_cast<unsigned>(sound.rate));
    const Clock::time_point started = Clock::now();
    const Clock::time_point giveUp = started + length + kGrace;

    snd_pcm_uframes_t done = 0;
    while (done < frames) {
        if (Clock::now() > giveUp) {
            return false;
        }
        const std::int16_t* from =
            sound.samples.data() + done * static_cast<unsigned>(sound.channels);
        const snd_pcm_sframes_t written = snd_pcm_writei(pcm, from, frames - done);
        if (written == -EAGAIN || written == 0) {
            snd_pcm_wait(pcm, kPollMilliseconds);
            if (cutShort()) {
                return true;
            }
            continue;
        }
        if (written < 0) {
            if (snd_pcm_recover(pcm, static_cast<int>(written), 1) < 0) {
                return false;
            }
            continue;
        }
        done += static_cast<snd_pcm_uframes_t>(written);
    }
    // A sound shorter than the buffer has not started yet.
    if (snd_pcm_state(pcm) == SND_PCM_STATE_PREPARED) {
        snd_pcm_start(pcm);
    }
    // Let the tail play out, still ready to be cut by the next sound. A
    // sound server may take the whole sound at once and report no delay
    // while it is still playing it, so the clock has the last word.
    const Clock::time_point heard =
        started + length + std::chrono::microseconds(kLatencyMicroseconds);
    while (Clock::now() < giveUp) {
        snd_pcm_sframes_t left = 0;
        const bool cardDone = snd_pcm_state(pcm) != SND_PCM_STATE_RUNNING ||
                              snd_pcm_delay(pcm, &left) < 0 || left <= 0;
        if ((cardDone && Clock::now() >= heard) || interrupted()) {
            return true;
        }
    }
    return false;
}

void AlsaSoundPlayer::tellEnded(std::function<void()> ended) {
    if (ended) {
        QMetaObject::invokeMethod(&m_receiver, std::move(ended), Qt::QueuedConnection);
    }
}

} // namespace quillora
