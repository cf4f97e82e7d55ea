// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/BoardFixture.h"
#include "windows/board/KeyboardView.h"
#include "windows/board/PhraseView.h"
#include "windows/players/PlayersWindow.h"

#include <QScreen>

#include <cstdlib>
#include <map>
#include <vector>

namespace quillora {
namespace {

// The board in front of a classroom: F11 fills the screen with the board
// grown by one factor, so it keeps its proportions, and Esc or F11 brings
// the window back as it was.

class BoardFullScreen : public BoardWindowTest {
protected:
    struct Placed {
        QRect geometry;
        int fontPixels;
    };
    // Every control on the board and its own parts, and their fonts: the
    // inner parts Qt makes for its lists, and the tip's text, measured from
    // its font, aside.
    std::map<const QWidget*, Placed> placed() const {
        std::map<const QWidget*, Placed> all;
        for (const QWidget* widget : window->stage()->findChildren<QWidget*>()) {
            bool ours = widget->objectName() != QStringLiteral("lblTip");
            for (const QWidget* up = widget; ours && up != window->stage();
                 up = up->parentWidget()) {
                ours = !up->objectName().startsWith(QStringLiteral("qt_"));
            }
            if (ours) {
                all[widget] = {widget->geometry(), widget->font().pixelSize()};
            }
        }
        return all;
    }
    // The places of the parts the board paints itself.
    std::vector<QRect> paintedParts() const {
        std::vector<QRect> parts;
        for (int key = 0; key < kKeyCount; ++key) {
            parts.push_back(window->controls().keyboard->keyRect(key));
        }
        for (int cell = 1; cell <= PhraseBoard::kCells; ++cell) {
            parts.push_back(window->controls().phrase->cellRect(cell));
        }
        for (int slot = 1; slot <= RoundState::kSlots; ++slot) {
            parts.push_back(window->controls().strikes->markRect(slot));
        }
        return parts;
    }
    static bool grown(const QRect& before, const QRect& after, int factor) {
        // Each edge is rounded to the pixel on its own.
        const auto near = [factor](int one, int other) {
            return std::abs(one * factor - other) <= 1;
        };
        return near(before.x(), after.x()) && near(before.y(), after.y()) &&
               near(before.width(), after.width()) && near(before.height(), after.height());
    }
    void openNames() { QTest::keyClick(window.get(), Qt::Key_J, Qt::ControlModifier); }
    // F4, and the session panel's slide to its end.
    void switchSessionPanel() {
        QTest::keyClick(window.get(), Qt::Key_F4);
        while (window->model().sessions().panel().animating()) {
            window->model().sessions().panel().tick();
        }
        window->sync();
    }
};

TEST_F(BoardFullScreen, EveryControlAndPaintedPartGrowsByOneFactorAndComesBackToTheSamePixels) {
    startVaca();
    type(QStringLiteral("AZ"));
    openKeyboard();
    openNames();
    ASSERT_NE(window->namesWindow(), nullptr);
    const QSize namesBefore = window->namesWindow()->size();
    window->namesWindow()->close();
    settle();
    QTest::keyClick(window.get(), Qt::Key_H, Qt::ControlModifier);
    // The session panel places its list and labels once it is open.
    switchSessionPanel();
    const auto before = placed();
    const std::vector<QRect> partsBefore = paintedParts();

    window->showAtScale(2.0);
    const auto after = placed();
    ASSERT_EQ(after.size(), before.size());
    for (const auto& [widget, was] : before) {
        const Placed& now = after.at(widget);
        EXPECT_TRUE(grown(was.geometry, now.geometry, 2))
            << widget->metaObject()->className() << " " << widget->objectName().toStdString()
            << " in " << widget->parentWidget()->metaObject()->className() << ": "
            << was.geometry.x() << "," << was.geometry.y() << " " << was.geometry.width() << "x"
            << was.geometry.height() << " -> " << now.geometry.x() << "," << now.geometry.y() << " "
            << now.geometry.width() << "x" << now.geometry.height();
        if (was.fontPixels > 0) {
            EXPECT_LE(now.fontPixels, 2 * was.fontPixels) << widget->metaObject()->className();
            EXPECT_GE(now.fontPixels, 2 * was.fontPixels - 2) << widget->metaObject()->className();
        }
    }
    const std::vector<QRect> partsAfter = paintedParts();
    for (std::size_t i = 0; i < partsBefore.size(); ++i) {
        EXPECT_TRUE(grown(partsBefore[i], partsAfter[i], 2)) << "painted part " << i;
    }
    switchSessionPanel();
    openNames();
    ASSERT_NE(window->namesWindow(), nullptr);
    EXPECT_TRUE(
        grown(QRect(QPoint(), namesBefore), QRect(QPoint(), window->namesWindow()->size()), 2))
        << "a window the board opens takes its scale";
    window->namesWindow()->close();
    settle();

    switchSessionPanel();
    window->showAtScale(1.0);
    const auto back = placed();
    for (const auto& [widget, was] : before) {
        EXPECT_EQ(back.at(widget).geometry, was.geometry) << widget->metaObject()->className();
        EXPECT_EQ(back.at(widget).fontPixels, was.fontPixels) << widget->metaObject()->className();
    }
    EXPECT_EQ(paintedParts(), partsBefore);
}

TEST_F(BoardFullScreen, F11FillsTheScreenWithTheBoardCentredAndEscPutsTheWindowBack) {
    startVaca();
    window->move(40, 50);
    const QRect windowed = window->geometry();
    const auto before = placed();

    QTest::keyClick(window.get(), Qt::Key_F11);
    const QRect screen = window->screen()->geometry();
    EXPECT_TRUE(window->windowState() & Qt::WindowFullScreen);
    EXPECT_EQ(window->geometry(), screen);
    // The whole board, keyboard out, fits the screen: the width or the
    // height is the screen's, and the board keeps its proportions.
    const double factor = std::min(screen.width() * 15.0 / BoardModel::kWidthTwips,
                                   screen.height() * 15.0 / (5340 + 1080));
    const QRect stage = window->stage()->geometry();
    EXPECT_NEAR(stage.width(), BoardModel::kWidthTwips * factor / 15, 1);
    EXPECT_NEAR(stage.center().x(), screen.width() / 2, 1);
    EXPECT_NEAR(window->controls().keyboard->width(), KeyboardView::kWidthTwips * factor / 15, 1);

    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_FALSE(window->windowState() & Qt::WindowFullScreen);
    EXPECT_EQ(window->geometry(), windowed);
    EXPECT_EQ(window->stage()->geometry(), window->rect());
    for (const auto& [widget, was] : before) {
        EXPECT_EQ(widget->geometry(), was.geometry) << widget->metaObject()->className();
    }

    // The choice stays for the next board, until the program ends.
    QTest::keyClick(window.get(), Qt::Key_F11);
    SetUpBoard();
    EXPECT_TRUE(window->windowState() & Qt::WindowFullScreen);
    EXPECT_EQ(window->geometry(), window->screen()->geometry());
}

} // namespace
} // namespace quillora
