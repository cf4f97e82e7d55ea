// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/AlsaSoundPlayer.h"
#include "platform/SoundBank.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <gtest/gtest.h>

#include <cmath>

namespace quillora {
namespace {

std::shared_ptr<const Pcm> tone(int milliseconds) {
    auto pcm = std::make_shared<Pcm>();
    pcm->channels = 2;
    pcm->rate = 44100;
    const int frames = 44100 * milliseconds / 1000;
    for (int i = 0; i < frames; ++i) {
        const auto v = static_cast<std::int16_t>(8000 * std::sin(i * 2 * M_PI * 440 / 44100));
        pcm->samples.push_back(v);
        pcm->samples.push_back(v);
    }
    return pcm;
}

// What each embedded sound must decode to: its channels, its rate and, as
// the MPEG decoder adds its own delay, the least number of frames.
struct Expected {
    int channels;
    int rate;
    std::size_t leastFrames;
};

TEST(SoundBankTest, AllSevenEmbeddedSoundsDecode) {
    const SoundBank bank = SoundBank::loadEmbedded();
    const Expected expected[] = {{2, 44100, 44100}, {2, 44100, 44100}, {2, 44100, 39808},
                                 {2, 44100, 23552}, {2, 44100, 71296}, {2, 44100, 34000},
                                 {1, 16000, 14336}};
    for (int n = 1; n <= 7; ++n) {
        const auto sound = bank.sound(n);
        ASSERT_NE(sound, nullptr) << "sound " << n;
        const Expected& e = expected[n - 1];
        EXPECT_EQ(sound->channels, e.channels) << "sound " << n;
        EXPECT_EQ(sound->rate, e.rate) << "sound " << n;
        EXPECT_GE(sound->frames(), e.leastFrames) << "sound " << n;
        // Not a second longer than it should be either.
        EXPECT_LT(sound->frames(), e.leastFrames + static_cast<std::size_t>(e.rate))
            << "sound " << n;
    }
    EXPECT_EQ(bank.sound(0), nullptr);
    EXPECT_EQ(bank.sound(8), nullptr);
}

TEST(SoundBankTest, WhatIsNotAWholeSoundDecodesToNothing) {
    QFile file(QStringLiteral(":/sounds/104.wav"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray wave = file.readAll();
    EXPECT_NE(SoundBank::decode(wave), nullptr);
    EXPECT_EQ(SoundBank::decode(QByteArray()), nullptr);
    EXPECT_EQ(SoundBank::decode(QByteArray("RIFF\x10\0\0\0WAVEfmt ", 16)), nullptr);
    EXPECT_EQ(SoundBank::decode(wave.left(44)), nullptr) << "a header without its samples";
}

TEST(AlsaSoundPlayerTest, EverySoundEndsWhetherPlayedCutShortOrWithoutADevice) {
    // ALSA's null device plays like a card that nobody listens to.
    AlsaSoundPlayer player("null");
    std::vector<int> ended;
    player.playPcm(tone(300), [&ended] { ended.push_back(1); });
    player.playPcm(tone(300), [&ended] { ended.push_back(2); });
    ASSERT_TRUE(QTest::qWaitFor([&ended] { return ended.size() == 2; }, 5000));
    EXPECT_EQ(ended, (std::vector<int>{1, 2})) << "the cut sound ends first";

    // A sound that is not there, or no device at all: silence, and the end
    // comes at once rather than after the sound's length.
    player.play(3, [&ended] { ended.push_back(3); }); // nothing loaded yet
    AlsaSoundPlayer missing("no-such-device");
    QElapsedTimer clock;
    clock.start();
    missing.playPcm(tone(3000), [&ended] { ended.push_back(4); });
    ASSERT_TRUE(QTest::qWaitFor([&ended] { return ended.size() == 4; }, 2500));
    EXPECT_LT(clock.elapsed(), 2500);

    // A player that goes away with a sound under way neither hangs nor calls
    // back into what is gone.
    {
        AlsaSoundPlayer leaving("null");
        leaving.playPcm(tone(2000), [&ended] { ended.push_back(5); });
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(ended.size(), 4U);
}

} // namespace
} // namespace quillora
