// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
//
// The seven sounds inside the program, read back as the player will find
// them: each in the exact WAVE layout the player was written against, the
// MPEG ones made of whole 160 kbit/s frames, the PCM ones loud enough to hear
// and never clipped, and no two alike.
#include <QByteArray>
#include <QFile>
#include <QString>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

namespace quillora {
namespace {

constexpr std::uint16_t kPcm = 1;
constexpr std::uint16_t kMpeg = 0x55;

struct Expected {
    const char* name;
    std::uint16_t tag;
    std::uint16_t channels;
    std::uint32_t rate;
    std::uint32_t byteRate;
    std::uint16_t blockAlign;
    std::uint16_t bits;
    std::optional<std::uint32_t> fact; // MPEG only
    std::uint32_t dataSize;
    qsizetype fileSize;
    int mpegFrames; // MPEG only
};

const std::vector<Expected> kSounds = {
    {"101.wav", kMpeg, 2, 44100, 20000, 1, 0, 44100, 26645, 26716, 51},
    {"102.wav", kMpeg, 2, 44100, 20000, 1, 0, 44100, 22988, 23060, 44},
    {"103.wav", kPcm, 2, 44100, 176400, 4, 16, std::nullopt, 159232, 159276, 0},
    {"104.wav", kPcm, 2, 44100, 176400, 4, 16, std::nullopt, 94208, 94252, 0},
    {"105.wav", kPcm, 2, 44100, 176400, 4, 16, std::nullopt, 285184, 285228, 0},
    {"106.wav", kMpeg, 2, 44100, 20000, 1, 0, 0, 15673, 15744, 30},
    {"107.wav", kPcm, 1, 16000, 32000, 2, 16, std::nullopt, 28672, 28716, 0},
};

// The listed size of 102.wav is two bytes more than its three chunks hold,
// and junk bytes would only be there to match it; the frames themselves come
// out exact, so the data chunks are held to the byte.
constexpr qsizetype kMpegFileSlack = 2;

std::uint32_t le(const QByteArray& bytes, qsizetype at, int width) {
    std::uint32_t value = 0;
    for (int i = width - 1; i >= 0; --i) {
        value = (value << 8) | static_cast<std::uint8_t>(bytes[at + i]);
    }
    return value;
}

struct Chunk {
    QByteArray id;
    QByteArray body;
};

// Walks the chunks after "RIFF" size "WAVE"; fails the test on any chunk that
// runs past the end, and on bytes left over that no chunk holds.
std::vector<Chunk> chunksOf(const QByteArray& file) {
    std::vector<Chunk> chunks;
    if (file.size() < 12 || file.left(4) != "RIFF" || file.mid(8, 4) != "WAVE") {
        ADD_FAILURE() << "not a RIFF WAVE file";
        return chunks;
    }
    EXPECT_EQ(le(file, 4, 4), std::uint32_t(file.size() - 8)) << "RIFF size";
    qsizetype at = 12;
    while (at < file.size()) {
        if (file.size() - at < 8) {
            ADD_FAILURE() << "a cut chunk header at byte " << at;
            break;
        }
        const qsizetype size = le(file, at + 4, 4);
        const qsizetype padded = size + (size % 2);
        if (file.size() - at - 8 < padded) {
            ADD_FAILURE() << "chunk " << file.mid(at, 4).toStdString() << " runs past the end";
            break;
        }
        chunks.push_back({file.mid(at, 4), file.mid(at + 8, size)});
        at += 8 + padded;
    }
    return chunks;
}

// Counts the frames of an MPEG-1 Layer III stream at 160 kbit/s, 44.1 kHz and
// two channels; -1 when anything else is found, or a frame is cut short.
int countMpegFrames(const QByteArray& data) {
    int frames = 0;
    qsizetype at = 0;
    while (at < data.size()) {
        if (data.size() - at < 4) {
            return -1;
        }
        const std::uint32_t header = (le(data, at, 1) << 24) | (le(data, at + 1, 1) << 16) |
                                     (le(data, at + 2, 1) << 8) | le(data, at + 3, 1);
        const bool sync = (header >> 21) == 0x7FF;
        const bool mpeg1 = ((header >> 19) & 3) == 3;
        const bool layer3 = ((header >> 17) & 3) == 1;
        const bool kbps160 = ((header >> 12) & 15) == 10;
        const bool hz44100 = ((header >> 10) & 3) == 0;
        const bool twoChannels = ((header >> 6) & 3) != 3;
        if (!sync || !mpeg1 || !layer3 || !kbps160 || !hz44100 || !twoChannels) {
            return -1;
        }
        at += 144 * 160000 / 44100 + ((header >> 9) & 1);
        ++frames;
    }
    return at == data.size() ? frames : -1;
}

QByteArray dataOf(const std::vector<Chunk>& chunks) {
    for (const Chunk& chunk : chunks) {
        if (chunk.id == "data") {
            return chunk.body;
        }
    }
    return {};
}

QByteArray readSound(const char* name) {
    QFile file(QStringLiteral(":/sounds/") + QString::fromLatin1(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << "missing from the resources: " << name;
    return file.readAll();
}

TEST(SoundFiles, EachHasTheLayoutThePlayerExpects) {
    for (const Expected& want : kSounds) {
        SCOPED_TRACE(want.name);
        const QByteArray file = readSound(want.name);
        const std::vector<Chunk> chunks = chunksOf(file);
        std::vector<QByteArray> ids;
        for (const Chunk& chunk : chunks) {
            ids.push_back(chunk.id);
        }
        const bool mpeg = want.tag == kMpeg;
        const std::vector<QByteArray> order = mpeg ? std::vector<QByteArray>{"fmt ", "fact", "data"}
                                                   : std::vector<QByteArray>{"fmt ", "data"};
        ASSERT_EQ(ids, order);

        const QByteArray& fmt = chunks[0].body;
        ASSERT_EQ(fmt.size(), mpeg ? 30 : 16);
        EXPECT_EQ(le(fmt, 0, 2), want.tag);
        EXPECT_EQ(le(fmt, 2, 2), want.channels);
        EXPECT_EQ(le(fmt, 4, 4), want.rate);
        EXPECT_EQ(le(fmt, 8, 4), want.byteRate);
        EXPECT_EQ(le(fmt, 12, 2), want.blockAlign);
        EXPECT_EQ(le(fmt, 14, 2), want.bits);
        if (mpeg) {
            EXPECT_EQ(le(fmt, 16, 2), 12u) << "cbSize";
            EXPECT_EQ(le(fmt, 18, 2), 1u) << "wID";
            EXPECT_EQ(le(fmt, 20, 4), 2u) << "fdwFlags";
            EXPECT_EQ(le(fmt, 24, 2), 522u) << "nBlockSize";
            EXPECT_EQ(le(fmt, 26, 2), 1u) << "nFramesPerBlock";
            EXPECT_EQ(le(fmt, 28, 2), 1393u) << "nCodecDelay";
            ASSERT_EQ(chunks[1].body.size(), 4);
            EXPECT_EQ(le(chunks[1].body, 0, 4), *want.fact);
        }

        const QByteArray data = chunks.back().body;
        EXPECT_EQ(data.size(), qsizetype(want.dataSize));
        EXPECT_LE(std::abs(file.size() - want.fileSize), mpeg ? kMpegFileSlack : 0)
            << "file of " << file.size() << " bytes";
        if (mpeg) {
            const int frames = countMpegFrames(data);
            EXPECT_EQ(frames, want.mpegFrames);
            EXPECT_LE(*want.fact, std::uint32_t(std::max(frames, 0)) * 1152u)
                << "the stream holds fewer samples than its fact chunk promises";
        } else {
            EXPECT_EQ(data.size() % want.blockAlign, 0);
        }
    }
}

TEST(SoundFiles, PcmSoundsAreHeardWithoutClippingOrClicks) {
    for (const Expected& want : kSounds) {
        if (want.tag != kPcm) {
            continue;
        }
        SCOPED_TRACE(want.name);
        const QByteArray data = dataOf(chunksOf(readSound(want.name)));
        ASSERT_GE(data.size(), 4 * want.channels);
        int peak = 0;
        for (qsizetype at = 0; at + 1 < data.size(); at += 2) {
            peak = std::max(peak, std::abs(int(std::int16_t(le(data, at, 2)))));
        }
        // Made to peak at -3 dBFS: well under full scale, well above -6 dBFS.
        EXPECT_GT(peak, 16384);
        EXPECT_LT(peak, 32767);
        // The first and last frames are below -40 dBFS, so no sound clicks.
        for (int channel = 0; channel < want.channels; ++channel) {
            const qsizetype last = data.size() - 2 * (want.channels - channel);
            EXPECT_LT(std::abs(int(std::int16_t(le(data, 2 * channel, 2)))), 328);
            EXPECT_LT(std::abs(int(std::int16_t(le(data, last, 2)))), 328);
        }
    }
}

TEST(SoundFiles, NoTwoSoundsAreTheSame) {
    // Sizes alone tell every file apart, so compare what the sounds share.
    for (std::size_t a = 0; a < kSounds.size(); ++a) {
        for (std::size_t b = a + 1; b < kSounds.size(); ++b) {
            if (kSounds[a].tag != kSounds[b].tag) {
                continue;
            }
            SCOPED_TRACE(std::string(kSounds[a].name) + " and " + kSounds[b].name);
            const QByteArray first = dataOf(chunksOf(readSound(kSounds[a].name)));
            const QByteArray second = dataOf(chunksOf(readSound(kSounds[b].name)));
            const qsizetype common = std::min(first.size(), second.size());
            ASSERT_GT(common, 0);
            EXPECT_NE(first.left(common), second.left(common));
        }
    }
}

} // namespace
} // namespace quillora
