// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/design/DesignWindow.h"
#include "storage/ConfigFile.h"
#include "support/AccessibleTree.h"
#include "support/BoardFixture.h"
#include "support/Keys.h"
#include "windows/QtColour.h"
#include "windows/design/DesignToggle.h"
#include "windows/design/FolderViews.h"
#include "windows/design/GoButton.h"
#include "windows/design/PreviewView.h"

#include <QComboBox>
#include <QFile>
#include <QFileSystemModel>
#include <QImage>
#include <QImageWriter>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QSignalSpy>
#include <QTimer>
#include <QWindow>

#include <fstream>

namespace quillora {
namespace {

// "Diseño:" over a real board: how it opens, and how a picture, a style or
// a toggle chosen in it reaches the board at once.

const QColor kRefused(255, 128, 128);

class DesignWindowTest : public BoardWindowTest {
protected:
    DesignWindow* openFromMenu() {
        QAction* entry = popupEntry(QStringLiteral("Cambiar diseño"));
        EXPECT_TRUE(entry && entry->isEnabled());
        if (entry) {
            entry->trigger();
        }
        return window->designWindow();
    }
    fs::path picture(const char* name, QColor colour, const char* format = nullptr) {
        QImage image(QSize(40, 30), QImage::Format_RGB32);
        image.fill(colour);
        const fs::path path = pictures / name;
        EXPECT_TRUE(image.save(QString::fromStdString(path.string()), format));
        return path;
    }
    // The first half of a real picture: what a download cut short leaves.
    fs::path cutShort(const fs::path& whole, const char* name) {
        const std::string bytes = slurp(whole);
        const fs::path path = pictures / name;
        std::ofstream(path, std::ios::binary) << bytes.substr(0, bytes.size() / 2);
        return path;
    }
    // The player types the folder in the address and goes there; File1
    // lists it on Qt's own thread, which the test waits for.
    void goTo(DesignWindow* design, const fs::path& folder) {
        design->addressBox()->setFocus();
        design->addressBox()->selectAll();
        QTest::keyClicks(design->addressBox(), QString::fromStdString(folder.string()));
        EXPECT_TRUE(design->goButton()->showsGo());
        EXPECT_EQ(design->goButton()->toolTip(), QStringLiteral(" Ir a Esta Dirección "));
        QTest::mouseClick(design->goButton(), Qt::LeftButton);
        EXPECT_FALSE(design->goButton()->showsGo());
        EXPECT_EQ(design->goButton()->toolTip(), QStringLiteral(" Actualizar Dirección "));
        waitForListing(design);
    }
    // Each folder is read by models of its own, which tell once they have it.
    static void waitForListing(DesignWindow* design) {
        QSignalSpy listed(design->folderViews()->fileModel(), &QFileSystemModel::directoryLoaded);
        QSignalSpy folders(design->folderViews()->folderModel(),
                           &QFileSystemModel::directoryLoaded);
        ASSERT_TRUE(listed.wait(10000)) << "the folder was never listed";
        ASSERT_TRUE(folders.count() > 0 || folders.wait(10000)) << "its folders were never listed";
        QCoreApplication::processEvents();
    }
    // Dir1's entry of that name, opened with Enter as the player would.
    void open(DesignWindow* design, const QString& name) {
        QListView* list = design->folderList();
        QFileSystemModel* folders = design->folderViews()->folderModel();
        // The model lists on its own thread: the entry may still be coming.
        QModelIndex entry;
        const auto found = [&] {
            for (int row = 0; row < folders->rowCount(list->rootIndex()); ++row) {
                entry = folders->index(row, 0, list->rootIndex());
                if (folders->fileName(entry) == name) {
                    return true;
                }
            }
            return false;
        };
        if (!QTest::qWaitFor(found, 10000)) {
            ADD_FAILURE() << "no " << name.toStdString() << " in the folder list";
            return;
        }
        list->setFocus();
        list->setCurrentIndex(entry);
        QTest::keyClick(list, Qt::Key_Return);
    }
    // A click on a file of File1, as the player picks it.
    void pick(DesignWindow* design, const fs::path& file) {
        const QModelIndex row =
            design->folderViews()->fileModel()->index(QString::fromStdString(file.string()));
        ASSERT_TRUE(row.isValid()) << file;
        QListView* list = design->fileList();
        list->scrollTo(row);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(row).center());
        ASSERT_EQ(list->currentIndex(), row);
    }
    QColor boardPixel() const {
        return window->controls().background->picture().pixmap().toImage().pixelColor(0, 0);
    }
    // The colour the player sees under the last file of File1.
    QColor listColour(DesignWindow* design) const {
        QWidget* list = design->fileList()->viewport();
        return list->grab().toImage().pixelColor(list->width() / 2, list->height() - 4);
    }
    std::string storedLine(int n) const {
        return quillora::storedLine(shared.currentSession().filePath, n);
    }

    const fs::path pictures = [this] {
        const fs::path path = folder / "fotos";
        fs::create_directories(path);
        return path;
    }();
};

TEST_F(DesignWindowTest, TheMenuEntryAndCtrlDOpenOneWindowButNotAfterADeath) {
    DesignWindow* design = openFromMenu();
    ASSERT_NE(design, nullptr);
    EXPECT_TRUE(design->isVisible());
    EXPECT_EQ(design->windowTitle(), QStringLiteral("Diseño:"));
    // Where windows cannot place themselves (Wayland), the compositor keeps
    // it with the board only as the board's own.
    EXPECT_EQ(design->windowHandle()->transientParent(), window->windowHandle());
    design->close();
    settle();
    EXPECT_EQ(window->designWindow(), nullptr);

    window->activateWindow();
    QTest::keyClick(window.get(), Qt::Key_D, Qt::ControlModifier);
    design = window->designWindow();
    ASSERT_NE(design, nullptr);
    EXPECT_TRUE(design->isVisible());
    QTest::keyClick(window.get(), Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(window->designWindow(), design) << "one window at a time";
    design->close();
    settle();

    startVaca();
    type("xbdefghk");
    ASSERT_EQ(window->controls().statusLabel->text(), QStringLiteral("¡MUERTO!"));
    QAction* entry = popupEntry(QStringLiteral("Cambiar diseño"));
    ASSERT_NE(entry, nullptr);
    EXPECT_FALSE(entry->isEnabled());
    QTest::keyClick(window.get(), Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(window->designWindow(), nullptr);
}

TEST_F(DesignWindowTest, APictureChosenInTheListShowsOnTheBoardAndIsSaved) {
    const fs::path red = picture("rojo.png", Qt::red);
    const fs::path blue = picture("AZUL.JPG", Qt::blue, "JPEG");
    picture("notas.txt", Qt::green, "PNG"); // a picture by its bytes, not by its name
    DesignWindow* design = openFromMenu();
    ASSERT_NE(design, nullptr);
    EXPECT_FALSE(window->controls().background->picture().shown());
    EXPECT_FALSE(design->removeButton()->isVisible()) << "nothing to take away yet";

    goTo(design, pictures);
    QFileSystemModel* files = design->folderViews()->fileModel();
    const QModelIndex root = design->fileList()->rootIndex();
    EXPECT_EQ(files->rowCount(root), 2) << "only pictures are listed, whatever their case";

    pick(design, red);
    ASSERT_TRUE(window->controls().background->picture().shown());
    EXPECT_EQ(boardPixel(), QColor(Qt::red));
    EXPECT_TRUE(design->preview()->picture().shown());
    EXPECT_TRUE(design->removeButton()->isVisible());
    EXPECT_EQ(listColour(design), QColor(Qt::white));

    pick(design, blue);
    EXPECT_LT(qAbs(boardPixel().blue() - 255) + boardPixel().red(), 40) << "a JPEG, near blue";

    QTest::mouseClick(design->saveButton(), Qt::LeftButton);
    settle();
    EXPECT_EQ(window->designWindow(), nullptr);
    EXPECT_EQ(storedLine(1), blue.string());
    EXPECT_EQ(storedLine(2), pictures.string());
    EXPECT_EQ(shared.settings.backgroundPicture, blue.string());
    EXPECT_TRUE(window->controls().background->picture().shown()) << "the saved picture stays";
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(DesignWindowTest, TheFolderListOpensAFolderAndGoesBackUp) {
    fs::create_directories(pictures / "viaje");
    const fs::path beach = pictures / "viaje" / "playa.png";
    ASSERT_TRUE(
        QImage(QSize(8, 8), QImage::Format_RGB32).save(QString::fromStdString(beach.string())));
    DesignWindow* design = openFromMenu();
    ASSERT_NE(design, nullptr);
    goTo(design, pictures);

    open(design, QStringLiteral("viaje"));
    EXPECT_EQ(design->addressBox()->text(), QString::fromStdString((pictures / "viaje").string()));
    EXPECT_EQ(design->model().folder(), (pictures / "viaje").string());
    waitForListing(design);
    pick(design, beach);
    EXPECT_TRUE(window->controls().background->picture().shown());

    // The folder just left is no picture of the one above.
    open(design, QStringLiteral(".."));
    EXPECT_EQ(design->model().listFolder(), pictures.string());
    waitForListing(design);
    EXPECT_EQ(design->folderViews()->fileModel()->rowCount(design->fileList()->rootIndex()), 0);
}

TEST_F(DesignWindowTest, TheKeysAloneChooseAPictureAndAToggleAndAScreenReaderHearsAll) {
    const fs::path red = picture("rojo.png", Qt::red);
    const fs::path blue = picture("azul.png", Qt::blue);
    DesignWindow* design = openFromMenu();
    ASSERT_NE(design, nullptr);
    ASSERT_TRUE(takeKeys(design));
    goTo(design, pictures);
    ASSERT_TRUE(design->addressBox()->hasFocus());

    const AccessibleTree tree(design);
    EXPECT_EQ(tree.root()->text(QAccessible::Name), QStringLiteral("Diseño:"));
    EXPECT_EQ(tree.unheardControls(), "");
    // Every picture listed is heard, not only the first one read.
    QAccessibleInterface* fileRows = tree.find(design->fileList());
    ASSERT_NE(fileRows, nullptr);
    QStringList heardFiles;
    for (int i = 0; i < fileRows->childCount(); ++i) {
        heardFiles << fileRows->child(i)->text(QAccessible::Name);
    }
    heardFiles.sort();
    EXPECT_EQ(heardFiles, QStringList({"azul.png", "rojo.png"}));
    EXPECT_EQ(tree.find(design->goButton())->text(QAccessible::Name), "Actualizar Dirección");
    QAccessibleInterface* lines = tree.find(design->toggleButton(DesignModel::Toggle::White));
    EXPECT_EQ(lines->role(), QAccessible::CheckBox);
    EXPECT_FALSE(lines->state().checked);

    // Address, go, folders, pictures: passing into the pictures by Tab
    // changes nothing yet; Enter takes the one the list stands on, and the
    // arrows the next.
    for (int i = 0; i < 3; ++i) {
        pressKey(Qt::Key_Tab);
    }
    QListView* files = design->fileList();
    ASSERT_EQ(QApplication::focusWidget(), files);
    EXPECT_FALSE(window->controls().background->picture().shown());
    const auto chosen = [&] {
        const QString name = design->folderViews()->fileModel()->fileName(files->currentIndex());
        return pictures / name.toStdString();
    };
    const auto colourOf = [&](const fs::path& file) {
        return QColor(file == red ? Qt::red : Qt::blue);
    };
    pressKey(Qt::Key_Return);
    ASSERT_TRUE(window->controls().background->picture().shown());
    const fs::path first = chosen();
    EXPECT_EQ(boardPixel(), colourOf(first));
    pressKey(Qt::Key_Down);
    EXPECT_NE(chosen(), first);
    ASSERT_NE(fileRows->focusChild(), nullptr);
    EXPECT_EQ(fileRows->focusChild()->text(QAccessible::Name).toStdString(),
              chosen().filename().string());
    EXPECT_EQ(boardPixel(), colourOf(chosen()));
    EXPECT_EQ(design->model().picture(), chosen().string());

    // Backspace goes up a folder.
    pressKey(Qt::Key_Backspace);
    EXPECT_EQ(design->model().listFolder(), folder.string());

    design->toggleButton(DesignModel::Toggle::White)->setFocus(Qt::TabFocusReason);
    pressKey(Qt::Key_Space);
    EXPECT_TRUE(shared.settings.whiteLines);
    EXPECT_TRUE(lines->state().checked);
}

TEST_F(DesignWindowTest, ADamagedPictureTurnsTheListRedAndLeavesTheBoardAsItWas) {
    const fs::path red = picture("rojo.png", Qt::red);
    // A photo with something in it, so the cut falls in its picture data.
    QImage scene(QSize(300, 200), QImage::Format_RGB32);
    for (int y = 0; y < scene.height(); ++y) {
        for (int x = 0; x < scene.width(); ++x) {
            scene.setPixelColor(x, y, QColor(x % 256, y % 256, (x * y) % 256));
        }
    }
    const fs::path photo = pictures / "foto.jpg";
    ASSERT_TRUE(scene.save(QString::fromStdString(photo.string()), "JPEG"));
    std::ofstream(pictures / "ruido.jpg", std::ios::binary) << "\x12\x9c no soy una foto \xff";
    const fs::path cutJpeg = cutShort(photo, "cortada.jpg");
    QImageWriter progressive(QString::fromStdString((pictures / "progresiva.jpg").string()));
    progressive.setProgressiveScanWrite(true);
    ASSERT_TRUE(progressive.write(scene));
    const fs::path cutProgressive = cutShort(pictures / "progresiva.jpg", "a-medias.jpg");
    const fs::path cutBmp = cutShort(picture("mapa.bmp", Qt::cyan), "mapa-cortado.bmp");
    const fs::path cutPng = cutShort(red, "rojo-cortado.png");

    DesignWindow* design = openFromMenu();
    ASSERT_NE(design, nullptr);
    goTo(design, pictures);
    pick(design, red);
    ASSERT_EQ(boardPixel(), QColor(Qt::red));

    for (const fs::path& bad : {pictures / "ruido.jpg", cutJpeg, cutProgressive, cutBmp, cutPng}) {
        SCOPED_TRACE(bad.filename().string());
        pick(design, bad);
        EXPECT_EQ(listColour(design), kRefused);
        EXPECT_EQ(boardPixel(), QColor(Qt::red));
        EXPECT_EQ(design->model().picture(), red.string());
        EXPECT_EQ(design->preview()->picture().pixmap().toImage().pixelColor(0, 0),
                  QColor(Qt::red));
    }
    // The whole files they were cut from are good.
    pick(design, pictures / "progresiva.jpg");
    EXPECT_EQ(listColour(design), QColor(Qt::white));
    pick(design, photo);
    EXPECT_EQ(design->model().picture(), photo.string());
    EXPECT_TRUE(dialogs.shown.empty()) << "a bad picture is no message";
}

TEST_F(DesignWindowTest, ClosingWithoutSavingPutsTheStoredPictureBack) {
    const fs::path red = picture("rojo.png", Qt::red);
    const fs::path blue = picture("azul.bmp", Qt::blue);
    shared.settings.backgroundPicture = red.string();
    SetUpBoardFromFile();
    ASSERT_EQ(boardPixel(), QColor(Qt::red));

    DesignWindow* design = openFromMenu();
    ASSERT_NE(design, nullptr);
    EXPECT_TRUE(design->preview()->picture().shown()) << "the board's picture, in small";
    EXPECT_TRUE(design->removeButton()->isVisible());
    goTo(design, pictures);
    pick(design, blue);
    EXPECT_EQ(boardPixel(), QColor(Qt::blue));
    QTest::mouseClick(design->removeButton(), Qt::LeftButton);
    EXPECT_FALSE(window->controls().background->picture().shown());
    EXPECT_FALSE(design->preview()->picture().shown());

    QTest::keyClick(design, Qt::Key_Escape);
    settle();
    EXPECT_EQ(window->designWindow(), nullptr);
    EXPECT_EQ(boardPixel(), QColor(Qt::red));
    EXPECT_EQ(storedLine(1), red.string());
}

TEST_F(DesignWindowTest, StylesAndTogglesReachTheBoardAtOnce) {
    shared.settings.letterStyle = 1;
    SetUpBoardFromFile();
    DesignWindow* design = openFromMenu();
    ASSERT_NE(design, nullptr);
    EXPECT_EQ(design->styleList()->currentText(), QStringLiteral("Tinta Negra"));
    ASSERT_TRUE(design->styleTimer()->isActive());

    // Down to the last item, "Sombra Negra", from the keyboard.
    design->styleList()->setFocus();
    QTest::keyClick(design->styleList(), Qt::Key_End);
    EXPECT_EQ(shared.settings.letterStyle, 3);
    EXPECT_EQ(window->model().appearance().phraseLabel().background, kBlack);
    EXPECT_EQ(window->model().appearance().cellLook(1).letter, kWhite);
    DesignToggle* letters = design->toggleButton(DesignModel::Toggle::Letter);
    EXPECT_FALSE(letters->isEnabled());
    EXPECT_TRUE(letters->lit());

    DesignToggle* lines = design->toggleButton(DesignModel::Toggle::White);
    QTest::mouseClick(lines, Qt::LeftButton);
    EXPECT_TRUE(lines->lit());
    EXPECT_EQ(window->palette().color(QPalette::Window), qc(kLightBlueBackground));

    // A style changed behind the window's back is shown by the next tick.
    shared.settings.letterStyle = 1;
    design->styleTimer()->setInterval(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(window->model().appearance().phraseLabel().background, kWhite);
}

TEST_F(DesignWindowTest, APictureDroppedOnTheBoardGoesToTheOpenWindow) {
    const fs::path blue = picture("azul.png", Qt::blue);
    std::ofstream(pictures / "roto.gif", std::ios::binary) << "GIF89a, pero nada mas";
    DesignWindow* design = openFromMenu();
    ASSERT_NE(design, nullptr);

    ASSERT_TRUE(drop(blue));
    EXPECT_EQ(boardPixel(), QColor(Qt::blue));
    EXPECT_EQ(design->addressBox()->text(), QString::fromStdString(blue.string()));
    EXPECT_TRUE(design->preview()->picture().shown());
    ASSERT_TRUE(drop(pictures / "roto.gif"));
    EXPECT_EQ(listColour(design), kRefused);
    EXPECT_EQ(boardPixel(), QColor(Qt::blue));
}

} // namespace
} // namespace quillora
