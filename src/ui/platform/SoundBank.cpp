// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SoundBank.h"

#include <QFile>
#include <QLibrary>

#include <sndfile.h>

#include <algorithm>
#include <cstring>

namespace quillora {

namespace {

// libsndfile reads the file straight from the program's memory.
struct MemoryFile {
    const QByteArray& bytes;
    sf_count_t at = 0;
};

sf_count_t memoryLength(void* user) {
    return static_cast<MemoryFile*>(user)->bytes.size();
}

sf_count_t memorySeek(sf_count_t offset, int whence, void* user) {
    auto* file = static_cast<MemoryFile*>(user);
    const sf_count_t size = file->bytes.size();
    sf_count_t to = offset;
    if (whence == SEEK_CUR) {
        to += file->at;
    } else if (whence == SEEK_END) {
        to += size;
    }
    file->at = std::clamp<sf_count_t>(to, 0, size);
    return file->at;
}

sf_count_t memoryRead(void* out, sf_count_t count, void* user) {
    auto* file = static_cast<MemoryFile*>(user);
    const sf_count_t n = std::clamp<sf_count_t>(file->bytes.size() - file->at, 0, count);
    std::memcpy(out, file->bytes.constData() + file->at, static_cast<std::size_t>(n));
    file->at += n;
    return n;
}

sf_count_t memoryWrite(const void*, sf_count_t, void*) {
    return 0;
}

sf_count_t memoryTell(void* user) {
    return static_cast<MemoryFile*>(user)->at;
}

// libsndfile and the codecs it brings along (FLAC, Vorbis, Opus, two for
// MPEG) take a millisecond to load and 1.5 MB of memory, and the game wants
// them only while the board decodes its seven sounds: the library is opened
// for that and closed after. Without it, no sound decodes and the game is
// silent, as it is without a sound card.
class Decoder {
public:
    Decoder() : m_library(QStringLiteral("sndfile"), 1) {
        if (m_library.load()) {
            open = reinterpret_cast<decltype(open)>(m_library.resolve("sf_open_virtual"));
            readFrames =
                reinterpret_cast<decltype(readFrames)>(m_library.resolve("sf_readf_short"));
            close = reinterpret_cast<decltype(close)>(m_library.resolve("sf_close"));
        }
    }
    ~Decoder() { m_library.unload(); }
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;

    bool usable() const { return open && readFrames && close; }
    std::shared_ptr<const Pcm> decode(const QByteArray& wave) const;

private:
    QLibrary m_library;
    decltype(&sf_open_virtual) open = nullptr;
    decltype(&sf_readf_short) readFrames = nullptr;
    decltype(&sf_close) close = nullptr;
};

std::shared_ptr<const Pcm> Decoder::decode(const QByteArray& wave) const {
    if (!usable()) {
        return nullptr;
    }
    SF_VIRTUAL_IO io{memoryLength, memorySeek, memoryRead, memoryWrite, memoryTell};
    MemoryFile file{wave};
    SF_INFO info{};
    SNDFILE* sf = open(&io, SFM_READ, &info, &file);
    if (!sf) {
        return nullptr;
    }
    auto pcm = std::make_shared<Pcm>();
    pcm->channels = info.channels;
    pcm->rate = info.samplerate;
    if (info.channels < 1 || info.channels > 2 || info.samplerate <= 0) {
        close(sf);
        return nullptr;
    }
    // The frame count of an MPEG stream is only a guess: read until the
    // decoder has nothing more.
    constexpr sf_count_t kChunk = 4096;
    std::vector<std::int16_t> chunk(static_cast<std::size_t>(kChunk * info.channels));
    while (true) {
        const sf_count_t got = readFrames(sf, chunk.data(), kChunk);
        if (got <= 0) {
            break;
        }
        pcm->samples.insert(pcm->samples.end(), chunk.begin(),
                            chunk.begin() + static_cast<std::ptrdiff_t>(got * info.channels));
    }
    close(sf);
    if (pcm->samples.empty()) {
        return nullptr;
    }
    return pcm;
}

} // namespace

std::shared_ptr<const Pcm> SoundBank::decode(const QByteArray& wave) {
    return Decoder().decode(wave);
}

SoundBank SoundBank::loadEmbedded() {
    SoundBank bank;
    const Decoder decoder;
    for (int n = 1; n <= static_cast<int>(bank.m_sounds.size()); ++n) {
        QFile file(QStringLiteral(":/sounds/%1.wav").arg(100 + n));
        if (file.open(QIODevice::ReadOnly)) {
            bank.m_sounds[static_cast<std::size_t>(n - 1)] = decoder.decode(file.readAll());
        }
    }
    return bank;
}

std::shared_ptr<const Pcm> SoundBank::sound(int number) const {
    if (number < 1 || number > static_cast<int>(m_sounds.size())) {
        return nullptr;
    }
    return m_sounds[static_cast<std::size_t>(number - 1)];
}

} // namespace quillora
