// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "look/Twips.h"
#include "storage/ConfigFile.h"
#include "support/BoardFixture.h"
#include "windows/BackgroundPicture.h"
#include "windows/board/SoundButton.h"

#include <QImage>
#include <QMenu>
#include <QTimer>

#include <fstream>

namespace quillora {
namespace {

// What a player hears and sees of the board's looks: the sound button and
// its twins, the sound timer handing numbers to the loudspeaker, and the
// background picture.

class BoardLooks : public BoardWindowTest {
protected:
    // Line 8 of the file the board writes.
    std::string storedSounds() const { return storedLine(shared.currentSession().filePath, 8); }
    QAction* soundsEntry() { return popupEntry(QStringLiteral("Mostrar sonidos")); }
    bool soundsEntryChecked() { return soundsEntry() && soundsEntry()->isChecked(); }
    // One real timeout of a board timer, without its wait.
    static void fire(QTimer* timer) {
        timer->setInterval(0);
        QCoreApplication::processEvents();
    }
    fs::path picture(const char* name, QSize size, QColor colour) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        const fs::path path = folder / name;
        EXPECT_TRUE(image.save(QString::fromStdString(path.string())));
        return path;
    }
    void openWithPicture(const fs::path& path, bool realSize) {
        shared.settings.backgroundPicture = path.string();
        shared.settings.realSize = realSize;
        SetUpBoardFromFile();
    }
};

TEST_F(BoardLooks, TheButtonTheMenuAndCtrlSEachToggleSoundsAndRewriteTheFile) {
    SoundButton* button = window->controls().soundButton;
    const bool on = shared.settings.sounds;
    EXPECT_EQ(button->toolTip(), on ? " Ocultar Sonidos " : " Mostrar Sonidos ");
    EXPECT_EQ(soundsEntryChecked(), on);

    QTest::mousePress(button, Qt::LeftButton);
    EXPECT_TRUE(button->pressed()) << "the rectangle fills while held";
    EXPECT_EQ(shared.settings.sounds, on) << "a press alone toggles nothing";
    QTest::mouseRelease(button, Qt::LeftButton);
    EXPECT_FALSE(button->pressed());
    EXPECT_EQ(shared.settings.sounds, !on);
    EXPECT_EQ(button->toolTip(), on ? " Mostrar Sonidos " : " Ocultar Sonidos ");
    EXPECT_EQ(soundsEntryChecked(), !on);
    EXPECT_EQ(storedSounds(), on ? "0" : "1");

    QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(shared.settings.sounds, on);
    EXPECT_EQ(storedSounds(), on ? "1" : "0");

    ASSERT_NE(soundsEntry(), nullptr);
    soundsEntry()->trigger();
    EXPECT_EQ(shared.settings.sounds, !on);
    EXPECT_EQ(storedSounds(), on ? "0" : "1");
    EXPECT_EQ(button->toolTip(), on ? " Mostrar Sonidos " : " Ocultar Sonidos ");
}

TEST_F(BoardLooks, TheSoundTimerPlaysWhatTheGameAsksAndTheScoreWaitsForTheOpeningSound) {
    shared.settings.sounds = true;
    const int loadsBefore = sounds.loads;
    SetUpBoardFromFile();
    EXPECT_EQ(sounds.loads, loadsBefore + 1) << "the sounds are read as the board opens";

    startVaca();
    ASSERT_TRUE(window->soundTimer()->isActive());
    fire(window->soundTimer());
    EXPECT_EQ(sounds.played, std::vector<int>{2});
    EXPECT_FALSE(window->soundTimer()->isActive());
    EXPECT_FALSE(window->scoreTimer()->isActive()) << "the score waits for the opening sound";
    sounds.endAll();
    EXPECT_TRUE(window->scoreTimer()->isActive());
    type("a");
    fire(window->soundTimer());
    EXPECT_EQ(sounds.played, (std::vector<int>{2, 6})) << "each letter's sound reaches the speaker";

    // A board closed while its sound plays is not called back.
    window.reset();
    sounds.endAll();
}

TEST_F(BoardLooks, TheStoredPictureFillsTheBoardStretchedOrAtItsRealSize) {
    const fs::path red = picture("fondo.png", QSize(40, 30), Qt::red);
    openWithPicture(red, false);
    const BackgroundPicture& shown = window->controls().background->picture();
    ASSERT_TRUE(shown.shown());
    // Stretched over the whole board but its keyboard.
    const QSize board(px(BoardModel::kWidthTwips), px(BoardModel::kBaseHeightTwips));
    EXPECT_EQ(shown.pixmap().deviceIndependentSize().toSize(), board);
    EXPECT_EQ(window->grab().toImage().pixelColor(4, board.height() - 16), QColor(Qt::red))
        << "the picture is painted behind the board";

    openWithPicture(red, true);
    EXPECT_EQ(window->controls().background->picture().pixmap().size(), QSize(40, 30));

    // A dropped picture shows at once; the stored one stays stored.
    const fs::path blue = picture("mar.bmp", QSize(8, 8), Qt::blue);
    ASSERT_TRUE(drop(blue));
    EXPECT_EQ(window->controls().background->picture().pixmap().toImage().pixelColor(0, 0),
              QColor(Qt::blue));
    EXPECT_EQ(shared.settings.backgroundPicture, red.string());

    // Anything that is not a picture leaves the board plain, and says nothing.
    std::ofstream(folder / "roto.jpg", std::ios::binary) << "no soy una foto";
    const std::size_t boxes = dialogs.shown.size();
    openWithPicture(folder / "roto.jpg", false);
    EXPECT_FALSE(window->controls().background->picture().shown());
    openWithPicture(folder / "no-existe.png", false);
    EXPECT_FALSE(window->controls().background->picture().shown());
    EXPECT_EQ(dialogs.shown.size(), boxes);
    EXPECT_EQ(window->windowTitle(), "Quillora Vesta | Puntos");
}

TEST_F(BoardLooks, OnADenseScreenThePictureIsFittedToItsPixelsNotScaledTwice) {
    const fs::path path = picture("fondo.png", QSize(40, 30), Qt::green);
    const QString file = QString::fromStdString(path.string());
    BackgroundPicture picture;
    ASSERT_TRUE(picture.follow(file, false, QSize(783, 356), 2.0));
    EXPECT_EQ(picture.pixmap().size(), QSize(1566, 712));
    EXPECT_EQ(picture.pixmap().deviceIndependentSize().toSize(), QSize(783, 356));
    EXPECT_FALSE(picture.follow(file, false, QSize(783, 356), 2.0)) << "read once";

    ASSERT_TRUE(picture.follow(file, true, QSize(783, 356), 2.0));
    EXPECT_EQ(picture.pixmap().size(), QSize(40, 30)) << "one picture pixel to a screen pixel";

    // A picture larger than the board keeps only what the board shows.
    const QString big =
        QString::fromStdString(this->picture("grande.png", QSize(2000, 900), Qt::gray).string());
    ASSERT_TRUE(picture.follow(big, true, QSize(783, 356), 1.0));
    EXPECT_EQ(picture.pixmap().size(), QSize(783, 356));
    ASSERT_TRUE(picture.follow(QString(), true, QSize(783, 356), 1.0));
    EXPECT_FALSE(picture.shown());
}

} // namespace
} // namespace quillora
