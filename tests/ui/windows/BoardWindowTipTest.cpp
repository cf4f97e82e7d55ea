// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "look/Twips.h"
#include "models/board/TipModel.h"
#include "storage/ConfigFile.h"
#include "support/BoardFixture.h"
#include "windows/QtColour.h"
#include "windows/board/TipStrip.h"
#include "words/Tips.h"

#include <QImage>
#include <QMenu>
#include <QTimer>

#include <string>

namespace quillora {
namespace {

using BoardTips = BoardWindowTest;

int whitePixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor c = image.pixelColor(x, y);
            count += c.red() > 230 && c.green() > 230 && c.blue() > 230 ? 1 : 0;
        }
    }
    return count;
}

TEST_F(BoardTips, TheThemeMenuRunsATipThroughTheStripAndAClickPutsItAway) {
    shared.settings.animated = true;
    SetUpBoardFromFile();
    TipStrip* strip = window->controls().tipStrip;
    QLabel* label = strip->tipLabel();
    EXPECT_TRUE(strip->isVisible()) << "an animated board opens with its hint";
    EXPECT_EQ(label->text(), QString::fromUtf8(TipModel::kStartText));
    EXPECT_FALSE(strip->tipTimer()->isActive()) << "the hint stands still";

    random.queue({0.5});
    QMenu* menu = window->controls().themeBox->buildMenu();
    QAction* entry = menu->actions().at(1);
    ASSERT_EQ(entry->text(), QStringLiteral("Dame un consejo"));
    ASSERT_TRUE(entry->isEnabled());
    entry->trigger();
    delete menu;
    EXPECT_EQ(label->text(), qs(std::string(tipText(5))));
    EXPECT_TRUE(strip->tipTimer()->isActive());

    for (int i = 0; i < 30; ++i) {
        strip->tick();
    }
    EXPECT_TRUE(strip->isVisible());
    EXPECT_EQ(label->x(), strip->width() - 30 * px(TipModel::kStepTwips));
    const QImage look = strip->grab().toImage();
    EXPECT_EQ(look.pixelColor(2, strip->height() / 2), qc(shared.palette.gameColour));
    EXPECT_EQ(look.pixelColor(label->x() - 2, strip->height() / 2), qc(shared.palette.gameColour));
    EXPECT_GT(whitePixels(look), 20) << "the text is white";

    QTest::mouseClick(label, Qt::LeftButton);
    EXPECT_FALSE(strip->isVisible());
    EXPECT_FALSE(strip->tipTimer()->isActive());
    strip->tick();
    EXPECT_FALSE(strip->isVisible()) << "a late tick brings nothing back";
}

} // namespace
} // namespace quillora
