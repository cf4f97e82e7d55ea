// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CommandLine.h"
#include "platform/Fonts.h"
#include "platform/ScreenKeeper.h"

#include <QApplication>
#include <QFile>
#include <QFontInfo>
#include <QImage>
#include <QScreen>
#include <QWidget>

#include <gtest/gtest.h>

namespace quillora {
namespace {

// How the game meets the desktop: its windows on the screen, its name, its
// icon and its fonts.

TEST(ScreenKeeper, AWindowOpeningPartlyOffTheScreenIsMovedToShowWhole) {
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    auto opened = [](QSize size, QPoint at) {
        auto window = std::make_unique<QWidget>();
        ScreenKeeper::watch(*window);
        window->resize(size);
        window->move(at);
        window->show();
        return window;
    };
    // A board centred on a magnified screen hangs over both sides; moved
    // to the edge it crossed, frame and all.
    const auto left = opened(QSize(300, 200), area.topLeft() + QPoint(-141, area.height() - 100));
    EXPECT_EQ(left->frameGeometry().left(), area.left());
    EXPECT_EQ(left->frameGeometry().bottom(), area.bottom());
    const auto right = opened(QSize(300, 200), area.topRight() + QPoint(-100, 20));
    EXPECT_EQ(right->frameGeometry().right(), area.right());
    EXPECT_EQ(right->frameGeometry().top(), area.top() + 20);
    // Too wide for the screen: its title bar and left edge stay in sight.
    const auto wide = opened(QSize(area.width() + 200, 100), area.topLeft() + QPoint(-141, -30));
    EXPECT_EQ(wide->frameGeometry().topLeft(), area.topLeft());
    const auto inside = opened(QSize(100, 100), area.topLeft() + QPoint(10, 10));
    EXPECT_EQ(inside->frameGeometry().topLeft(), area.topLeft() + QPoint(10, 10));
}

TEST(Desktop, TheWindowsNameTheDesktopEntryThatCarriesTheIcon) {
    nameApplication();
    EXPECT_TRUE(QFile::exists(
        QStringLiteral(QUILLORA_DATA_DIR "/%1.desktop.in").arg(QGuiApplication::desktopFileName())))
        << QGuiApplication::desktopFileName().toStdString();
}

TEST(Desktop, TheBoardAndTheFaceDrawInTheFamiliesTheGameNames) {
    // A family that is not there is quietly swapped for another, so a
    // misnamed look-alike would show only as the wrong letters on the board.
    EXPECT_TRUE(Fonts::displayAvailable());
    EXPECT_NE(Fonts::faceFamily(), QFont().family()) << "the face has a font of its own";
    for (const QFont& font : {Fonts::display(20), Fonts::face(20)}) {
        const QFontInfo drawn(font);
        EXPECT_EQ(drawn.family(), font.family());
        EXPECT_TRUE(drawn.bold()) << font.family().toStdString();
    }
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
