// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "look/Twips.h"
#include "storage/ConfigFile.h"
#include "support/BoardFixture.h"
#include "windows/BackgroundPicture.h"
#include "windows/board/SoundButton.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QMenu>
#include <QPainter>
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
    fs::path picture(const char* name, QSize size, QColor colour,
                     QImage::Format format = QImage::Format_RGB32) {
        QImage image(size, format);
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

TEST_F(BoardLooks, ThePanelsWearEachLampInTurnAndTheirNewTextAfterEveryLetter) {
    startVaca();
    RoundedLabel* status = window->controls().statusLabel;
    StrikeStrip* strikes = window->controls().strikes;
    // The panels keep the looks they wore: each must still show the lamp
    // and the text of the moment, however often the colours come round.
    const auto ground = [](QWidget* panel) {
        return panel->grab().toImage().pixelColor(8, panel->height() / 2);
    };
    const auto lamp = [this](Lamp which) {
        return qc(window->model().appearance().lampColours(which).light);
    };
    const auto fade = [this] {
        for (int tick = 0; tick < 100 && window->model().round().lamp() != Lamp::None; ++tick) {
            window->model().round().tickLamp();
        }
        window->sync();
    };
    const QColor calm = ground(status);
    EXPECT_EQ(calm, lamp(Lamp::None));
    // VACA: two right letters and two wrong ones, the game still on.
    for (const char* letter : {"a", "x", "c", "z"}) {
        const bool right = *letter == 'a' || *letter == 'c';
        type(QString::fromLatin1(letter));
        EXPECT_EQ(ground(status), lamp(right ? Lamp::Green : Lamp::Red)) << letter;
        EXPECT_EQ(strikes->grab(strikes->markRect(1)).toImage().pixelColor(8, 10), ground(status))
            << letter;
        fade();
        EXPECT_EQ(ground(status), calm) << letter;
    }
    // The marks share their kept looks, each by its own letter: X and Z
    // differ, the empty ones do not.
    const auto mark = [strikes](int slot) {
        return strikes->grab(strikes->markRect(slot)).toImage();
    };
    EXPECT_NE(mark(1), mark(2));
    EXPECT_EQ(mark(3), mark(4));
    EXPECT_NE(mark(2), mark(3));
}

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

TEST_F(BoardLooks, APhotoOfAnySizeIsDecodedOnlyAsLargeAsTheBoardShowsIt) {
    // More pixels than any picture decoded whole may have, and the toolkit
    // allowed a fraction of what decoding it whole would take.
    const QString file = QString::fromStdString(
        picture("foto.jpg", QSize(8200, 8200), Qt::gray, QImage::Format_Grayscale8).string());
    struct Limit {
        int before = QImageReader::allocationLimit();
        Limit() { QImageReader::setAllocationLimit(32); }
        ~Limit() { QImageReader::setAllocationLimit(before); }
    } limit;
    BackgroundPicture picture;
    ASSERT_TRUE(picture.follow(file, false, QSize(783, 356), 1.0));
    EXPECT_EQ(picture.pixmap().size(), QSize(783, 356));
    EXPECT_NEAR(qGray(picture.pixmap().toImage().pixel(700, 300)), qGray(QColor(Qt::gray).rgb()),
                4);
    ASSERT_TRUE(picture.follow(file, true, QSize(783, 356), 1.0));
    EXPECT_EQ(picture.pixmap().size(), QSize(783, 356)) << "the corner the board shows";
}

TEST_F(BoardLooks, APhotoStoredOnItsSideShowsItsUprightCornerAtRealSize) {
    // As a phone stores a photo taken upright: on its side, with a mark where
    // the upright photo's top left corner is, and the file saying to turn it
    // a quarter clockwise.
    QImage stored(400, 300, QImage::Format_RGB32);
    stored.fill(Qt::white);
    QPainter(&stored).fillRect(0, 250, 50, 50, Qt::red);
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(stored.save(&buffer, "JPG", 95));
    const QByteArray exif("\xFF\xE1\x00\x22"
                          "Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0\x06\0\0\0\0\0\0\0",
                          36);
    const fs::path path = folder / "movil.jpg";
    std::ofstream(path, std::ios::binary) << (jpeg.left(2) + exif + jpeg.mid(2)).toStdString();

    BackgroundPicture picture;
    for (const bool realSize : {true, false}) {
        ASSERT_TRUE(
            picture.follow(QString::fromStdString(path.string()), realSize, QSize(120, 110), 1.0));
        EXPECT_EQ(picture.pixmap().size(), QSize(120, 110));
        EXPECT_GT(qRed(picture.pixmap().toImage().pixel(3, 3)), 220) << realSize;
        EXPECT_LT(qGreen(picture.pixmap().toImage().pixel(3, 3)), 40) << realSize;
    }
}

} // namespace
} // namespace quillora
