// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CommandLine.h"

#include <QFile>
#include <QGuiApplication>
#include <QImage>

#include <gtest/gtest.h>

namespace quillora {
namespace {

// How the game meets the desktop: its name and its icon.

TEST(Desktop, TheWindowsNameTheDesktopEntryThatCarriesTheIcon) {
    nameApplication();
    EXPECT_TRUE(QFile::exists(
        QStringLiteral(QUILLORA_DATA_DIR "/%1.desktop.in").arg(QGuiApplication::desktopFileName())))
        << QGuiApplication::desktopFileName().toStdString();
}

TEST(Desktop, TheIconsBottomCornersAreRoundedLikeItsTopOnes) {
    for (const int size : {16, 22, 32, 48, 64, 128, 256}) {
        const QImage icon(QStringLiteral(QUILLORA_DATA_DIR "/icons/%1.png").arg(size));
        ASSERT_EQ(icon.size(), QSize(size, size));
        const int far = size - 1;
        // The corner pixel, and on the larger ones a pixel further in
        // along the diagonal, still outside the rounded tile.
        for (const int in : {0, size / 32}) {
            for (const int x : {in, far - in}) {
                EXPECT_NEAR(qAlpha(icon.pixel(x, far - in)), qAlpha(icon.pixel(x, in)), 8)
                    << size << " px, corner at x " << x;
            }
        }
    }
}

} // namespace
} // namespace quillora
