// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/design/DesignModel.h"

#include "ports/PictureLoader.h"
#include "storage/ConfigFile.h"
#include "support/BoardModelFixture.h"
#include "support/RefusedWrites.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace quillora {
namespace {

namespace fs = std::filesystem;
using Toggle = DesignModel::Toggle;

// A preview that can read only the pictures the test calls good, and keeps
// what it was asked for.
class FakePreview : public PictureLoader {
public:
    bool load(const std::string& path, bool realSize) override {
        asked.push_back(path);
        realSizes.push_back(realSize);
        return good.contains(path);
    }

    std::set<std::string> good;
    std::vector<std::string> asked;
    std::vector<bool> realSizes;
};

// The design window's model over a board loaded from its file.
class DesignModelTest : public BoardModelFixture {
protected:
    DesignModelTest() { fs::create_directories(pictures); }

    // The board reads the options as they now stand from its file.
    void loadBoard() {
        ASSERT_TRUE(saveSettings(shared, dialogs));
        model.load();
    }
    // The board shows the stored beach, which the preview reads like `alsoGood`.
    void givenPlaya(std::set<std::string> alsoGood = {}) {
        shared.settings.backgroundPicture = "/fotos/playa.jpg";
        loadBoard();
        preview.good = std::move(alsoGood);
        preview.good.insert("/fotos/playa.jpg");
    }
    // The mountain chosen in the window over the stored beach.
    DesignModel& openOnMonte() {
        givenPlaya({"/fotos/monte.gif"});
        DesignModel& window = open();
        window.folderChanged("/fotos");
        window.chooseFile("monte.gif");
        return window;
    }
    DesignModel& open() {
        design.emplace(model.appearance(), model.shared(), model.dialogs(), preview,
                       pictures.string(), temp.path().string());
        design->open();
        return *design;
    }
    std::string storedLine(int n) const {
        return quillora::storedLine(shared.currentSession().filePath, n);
    }

    const fs::path pictures = temp.path() / "Imágenes";
    FakePreview preview;
    std::optional<DesignModel> design;
};

// --- the style list and Option0 ... Option4 ---------------------------------------------

TEST_F(DesignModelTest, EachStyleItemStoresItsStyleSetsTheShadowsAndLightsTheToggles) {
    // -1 where the toggle's rectangle shows the flag itself.
    constexpr int kFlag = -1;
    struct StyleRow {
        int item;
        const char* name;
        int letterStyle;
        // opaqueLetters after the choice; kFlag keeps it.
        int opaque;
        bool togglesEnabled;
        int opaqueLit;
        int letterLit;
    };
    const std::vector<StyleRow> rows{{0, "Libre", 0, kFlag, true, kFlag, kFlag},
                                     {1, "Tinta Negra", 1, 0, false, 0, 0},
                                     {2, "Tinta Azul", 4, 0, false, 0, 0},
                                     {3, "Colorido", 2, 1, false, 1, 0},
                                     {4, "Sombra Negra", 3, 1, false, 1, 1}};
    for (const StyleRow& row : rows) {
        for (const bool flags : {false, true}) {
            SCOPED_TRACE(::testing::Message()
                         << row.name << (flags ? ", flags on" : ", flags off"));
            shared.settings.letterStyle = 0;
            shared.settings.opaqueLetters = flags;
            shared.settings.whiteLetters = flags;
            loadBoard();
            DesignModel& window = open();
            window.chooseStyle(row.item);

            EXPECT_EQ(window.styleItem(), row.item);
            EXPECT_EQ(shared.settings.letterStyle, row.letterStyle);
            EXPECT_EQ(shared.settings.opaqueLetters, row.opaque == kFlag ? flags : row.opaque == 1);
            EXPECT_EQ(shared.settings.whiteLetters, flags) << "no style touches the white letters";
            const auto opaque = window.toggle(Toggle::Opaque);
            const auto letter = window.toggle(Toggle::Letter);
            EXPECT_EQ(opaque.enabled, row.togglesEnabled);
            EXPECT_EQ(letter.enabled, row.togglesEnabled);
            EXPECT_EQ(opaque.lit, row.opaqueLit == kFlag ? flags : row.opaqueLit == 1);
            EXPECT_EQ(letter.lit, row.letterLit == kFlag ? flags : row.letterLit == 1);
            EXPECT_TRUE(window.toggle(Toggle::Size).enabled);
            EXPECT_TRUE(window.toggle(Toggle::White).enabled);

            // Opened on a stored style, the list shows its item.
            window.close();
            shared.settings.letterStyle = row.letterStyle;
            EXPECT_EQ(open().styleItem(), row.item);
            design.reset();
        }
    }
}

TEST_F(DesignModelTest, TogglesFlipTheirFlagsUnlessTheStyleHasTakenThemOver) {
    shared.settings.letterStyle = 0;
    loadBoard();
    DesignModel& window = open();

    window.flip(Toggle::Opaque);
    EXPECT_TRUE(shared.settings.opaqueLetters);
    EXPECT_TRUE(window.toggle(Toggle::Opaque).lit);
    window.flip(Toggle::Letter);
    EXPECT_TRUE(shared.settings.whiteLetters);
    window.flip(Toggle::White);
    EXPECT_TRUE(shared.settings.whiteLines);
    EXPECT_TRUE(window.toggle(Toggle::White).lit);
    window.flip(Toggle::White);
    EXPECT_FALSE(shared.settings.whiteLines);
    EXPECT_FALSE(window.toggle(Toggle::White).lit);

    window.chooseStyle(1); // "Tinta Negra"
    window.flip(Toggle::Letter);
    window.flip(Toggle::Opaque);
    EXPECT_TRUE(shared.settings.whiteLetters) << "a disabled toggle does nothing";
    EXPECT_FALSE(shared.settings.opaqueLetters);
    EXPECT_FALSE(window.toggle(Toggle::Letter).lit);

    // Back in "Libre" the rectangles tell the flags again.
    window.chooseStyle(0);
    EXPECT_TRUE(window.toggle(Toggle::Letter).lit);
    EXPECT_FALSE(window.toggle(Toggle::Opaque).lit);

    // The real size takes the board's picture and the preview with it.
    window.flip(Toggle::Size);
    EXPECT_TRUE(shared.settings.realSize);
    EXPECT_TRUE(model.appearance().pictureRealSize());
    EXPECT_TRUE(window.previewRealSize());
    preview.good.insert("/fotos/playa.jpg");
    window.typeAddress("/fotos/playa.jpg");
    window.loadTypedPicture();
    EXPECT_EQ(preview.realSizes.back(), true);
}

TEST_F(DesignModelTest, OpeningLightsTheToggleOfEveryFlagThatIsOn) {
    shared.settings.letterStyle = 2; // "Colorido" darkens the white letters...
    shared.settings.whiteLetters = true;
    shared.settings.realSize = true;
    loadBoard();
    DesignModel& window = open();
    // ...but the flag is on, and the opening lights what is on.
    EXPECT_TRUE(window.toggle(Toggle::Letter).lit);
    EXPECT_FALSE(window.toggle(Toggle::Letter).enabled);
    EXPECT_TRUE(window.toggle(Toggle::Size).lit);
    EXPECT_FALSE(window.toggle(Toggle::White).lit);
    EXPECT_TRUE(window.toggle(Toggle::Opaque).lit);
}

TEST_F(DesignModelTest, TheStyleTickBringsTheBoardInStep) {
    shared.settings.letterStyle = 1;
    loadBoard();
    DesignModel& window = open();
    EXPECT_TRUE(window.styleTimerRunning());
    const CellLook before = model.appearance().phraseLabel();

    window.chooseStyle(4); // "Sombra Negra"
    EXPECT_EQ(model.appearance().phraseLabel().background, before.background)
        << "not before the tick";
    window.tickStyle();
    EXPECT_EQ(model.appearance().phraseLabel().background, kBlack);
    EXPECT_TRUE(model.appearance().phraseLabel().filled);

    window.flip(Toggle::White);
    EXPECT_EQ(model.appearance().background(), kLightBlueBackground);
    window.close();
    EXPECT_FALSE(window.styleTimerRunning());
    EXPECT_EQ(shared.settings.letterStyle, 3) << "the style stays in effect unsaved";
}

// --- opening, saving, closing ------------------------------------------------------------

TEST_F(DesignModelTest, OpeningTakesTheStoredPictureAndBrowsesThePicturesFolder) {
    shared.settings.pictureFolder = "/fotos";
    givenPlaya();
    DesignModel& window = open();

    EXPECT_EQ(window.address(), pictures.string());
    EXPECT_EQ(window.listFolder(), pictures.string());
    EXPECT_FALSE(window.goShown());
    EXPECT_STREQ(window.goTooltip(), " Actualizar Dirección ");
    EXPECT_EQ(window.picture(), "/fotos/playa.jpg");
    EXPECT_EQ(window.folder(), "/fotos");
    EXPECT_EQ(window.preview(), "/fotos/playa.jpg");
    EXPECT_TRUE(window.removeShown());
    EXPECT_FALSE(window.listRefused());
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(DesignModelTest, AStoredPictureThePreviewCannotReadIsToldWhileOpening) {
    shared.settings.backgroundPicture = "/fotos/borrada.jpg";
    loadBoard();
    DesignModel& window = open();
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_EQ(dialogs.shown[0].text, "Hubo un problema al cargar el diseño de esta ventana.");
    // The window goes on as far as it got.
    EXPECT_EQ(window.address(), pictures.string());
    EXPECT_EQ(window.preview(), "");
    EXPECT_EQ(window.picture(), "/fotos/borrada.jpg");
    EXPECT_TRUE(window.removeShown()) << "the dead picture can still be taken away";
}

TEST_F(DesignModelTest, RemovingThePictureThenSavingStoresAnEmptyPicture) {
    shared.settings.pictureFolder = "/fotos";
    givenPlaya();
    DesignModel& window = open();

    window.removePicture();
    EXPECT_EQ(model.appearance().shownPicture(), "");
    EXPECT_EQ(window.preview(), "");
    EXPECT_FALSE(window.removeShown());
    ASSERT_TRUE(window.save());
    EXPECT_FALSE(window.isOpen());
    EXPECT_EQ(shared.settings.backgroundPicture, "");
    EXPECT_EQ(storedLine(1), "");
    EXPECT_EQ(storedLine(2), "/fotos");
    EXPECT_EQ(model.appearance().shownPicture(), "");
}

TEST_F(DesignModelTest, SavingStoresTheChosenPictureTheStyleAndTheFlags) {
    loadBoard();
    const std::string playa = (pictures / "playa.png").string();
    preview.good.insert(playa);
    DesignModel& window = open();
    window.chooseFile("playa.png");
    window.chooseStyle(2); // "Tinta Azul"
    window.flip(Toggle::White);
    ASSERT_TRUE(window.save());
    EXPECT_EQ(storedLine(1), playa);
    EXPECT_EQ(storedLine(2), pictures.string());
    EXPECT_EQ(storedLine(3), "4");
    EXPECT_EQ(storedLine(6), "1");
    EXPECT_EQ(model.appearance().shownPicture(), playa);
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(DesignModelTest, ClosingWithoutSavingPutsTheStoredPictureBackAndKeepsTheStyle) {
    DesignModel& window = openOnMonte();
    const std::string before = slurp(shared.currentSession().filePath);
    window.chooseStyle(3);
    EXPECT_EQ(model.appearance().shownPicture(), "/fotos/monte.gif");

    window.close();
    EXPECT_EQ(model.appearance().shownPicture(), "/fotos/playa.jpg");
    EXPECT_EQ(shared.settings.backgroundPicture, "/fotos/playa.jpg");
    EXPECT_EQ(shared.settings.letterStyle, 2);
    EXPECT_EQ(slurp(shared.currentSession().filePath), before) << "nothing was written";
}

TEST_F(DesignModelTest, ASaveTheDiskRefusesIsToldInTheWindowsOwnWords) {
    DesignModel& window = openOnMonte();
    const std::string before = slurp(shared.currentSession().filePath);
    {
        RefusedWrites full;
        EXPECT_FALSE(window.save());
    }
    ASSERT_EQ(dialogs.shown.size(), 1U) << "one box, the window's";
    EXPECT_EQ(dialogs.shown[0].text, "El diseño no se guardó, para ver la causa véalo en Ayuda.");
    EXPECT_TRUE(window.isOpen());
    EXPECT_EQ(slurp(shared.currentSession().filePath), before);
    EXPECT_EQ(shared.settings.backgroundPicture, "/fotos/playa.jpg")
        << "what was not saved is not kept";
    window.close();
    EXPECT_EQ(model.appearance().shownPicture(), "/fotos/playa.jpg");
}

// --- pictures ----------------------------------------------------------------------------

TEST_F(DesignModelTest, OnlyAPictureNameTypedInTheAddressIsLoaded) {
    givenPlaya({"/otras/Mapa.Gif", "/otras/notas.txt"});
    for (const auto& [path, taken] :
         std::vector<std::pair<std::string, bool>>{{"/otras/notas.txt", false},
                                                   {"/otras", false},
                                                   {"", false},
                                                   {"/otras/Mapa.Gif", true}}) {
        SCOPED_TRACE(path);
        DesignModel& window = open();
        preview.asked.clear();
        window.typeAddress(path);
        window.loadTypedPicture();
        if (taken) {
            EXPECT_EQ(model.appearance().shownPicture(), path);
            EXPECT_EQ(window.preview(), path);
            EXPECT_EQ(window.picture(), path);
            EXPECT_EQ(window.folder(), "/otras");
        } else {
            EXPECT_TRUE(preview.asked.empty()) << "not even tried";
            EXPECT_EQ(model.appearance().shownPicture(), "/fotos/playa.jpg");
            EXPECT_EQ(window.picture(), "/fotos/playa.jpg");
        }
        EXPECT_FALSE(window.listRefused());
        window.close();
    }
}

TEST_F(DesignModelTest, APictureThatCannotBeReadTurnsTheListRedAndChangesNothingElse) {
    givenPlaya({"/fotos/monte.png"});
    DesignModel& window = open();
    window.folderChanged("/fotos");

    for (const char* bad : {"rota.jpg", "cortada.jpg"}) {
        window.chooseFile(bad);
        EXPECT_TRUE(window.listRefused()) << bad;
        EXPECT_EQ(model.appearance().shownPicture(), "/fotos/playa.jpg");
        EXPECT_EQ(window.preview(), "/fotos/playa.jpg");
        EXPECT_EQ(window.picture(), "/fotos/playa.jpg");
    }
    window.typeAddress("/fotos/rota.bmp");
    window.loadTypedPicture();
    EXPECT_TRUE(window.listRefused());
    EXPECT_EQ(model.appearance().shownPicture(), "/fotos/playa.jpg");

    window.chooseFile("monte.png");
    EXPECT_FALSE(window.listRefused()) << "a good picture makes the list white again";
    EXPECT_EQ(model.appearance().shownPicture(), "/fotos/monte.png");
}

TEST_F(DesignModelTest, APathTheConfigurationFileCannotHoldIsRefused) {
    loadBoard();
    DesignModel& window = open();
    window.folderChanged("/fotos/写真");
    preview.good.insert("/fotos/写真/a.jpg");
    preview.asked.clear();
    window.chooseFile("a.jpg");
    EXPECT_TRUE(window.listRefused());
    EXPECT_TRUE(preview.asked.empty());
    EXPECT_EQ(model.appearance().shownPicture(), "");

    // A line break in a name would split the file's line in two.
    window.folderChanged("/fotos");
    preview.good.insert("/fotos/dos\nlineas.png");
    window.chooseFile("dos\nlineas.png");
    EXPECT_TRUE(window.listRefused());
}

TEST_F(DesignModelTest, TheFolderAndTheNameMeetWithOneSeparator) {
    EXPECT_EQ(joinPicturePath("/home/ana/Imágenes", "playa.jpg"), "/home/ana/Imágenes/playa.jpg");
    EXPECT_EQ(joinPicturePath("/home/ana/Imágenes/", "playa.jpg"), "/home/ana/Imágenes/playa.jpg");
    EXPECT_EQ(joinPicturePath("/", "raiz.png"), "/raiz.png");
    loadBoard();
    DesignModel& window = open();
    window.folderChanged("/");
    window.chooseFile("raiz.png");
    ASSERT_FALSE(preview.asked.empty());
    EXPECT_EQ(preview.asked.back(), "/raiz.png");
}

// --- drops on the board ------------------------------------------------------------------

TEST_F(DesignModelTest, APictureDroppedBeforeOpeningIsTheWindowsToKeepOrDrop) {
    givenPlaya({"/descargas/luna.png"});
    model.sessions().dropFiles({"/descargas/luna.png"});
    DesignModel& window = open();
    EXPECT_EQ(window.picture(), "/descargas/luna.png");
    EXPECT_EQ(window.address(), "/descargas/luna.png");
    EXPECT_EQ(window.folder(), "/descargas");
    EXPECT_EQ(window.preview(), "/descargas/luna.png");
    window.close();
    EXPECT_EQ(model.appearance().shownPicture(), "/fotos/playa.jpg");
}

TEST_F(DesignModelTest, WhileOpenADropOnTheBoardIsHandedToTheWindow) {
    givenPlaya({"/descargas/luna.png"});
    DesignModel& window = open();

    model.sessions().dropFiles({"/descargas/rota.jpg"});
    EXPECT_TRUE(window.listRefused());
    EXPECT_EQ(model.appearance().shownPicture(), "/fotos/playa.jpg")
        << "the board waits for the window";
    model.sessions().dropFiles({"/descargas/luna.png"});
    EXPECT_EQ(model.appearance().shownPicture(), "/descargas/luna.png");
    EXPECT_EQ(window.address(), "/descargas/luna.png");
    EXPECT_EQ(window.preview(), "/descargas/luna.png");

    // Closed, the board takes its drops itself again.
    window.close();
    model.sessions().dropFiles({"/descargas/rota.jpg"});
    EXPECT_EQ(model.appearance().shownPicture(), "/descargas/rota.jpg");
}

// --- folders -------------------------------------------------------------------------------

TEST_F(DesignModelTest, TheAddressGoesToATypedFolderAndReadsAShownOneAgain) {
    loadBoard();
    DesignModel& window = open();
    const fs::path fotos = temp.path() / "fotos";
    fs::create_directories(fotos);

    window.typeAddress(fotos.string() + "/");
    EXPECT_TRUE(window.goShown());
    EXPECT_STREQ(window.goTooltip(), " Ir a Esta Dirección ");
    window.goToAddress();
    EXPECT_EQ(window.listFolder(), fotos.string());
    EXPECT_EQ(window.folder(), fotos.string());
    EXPECT_EQ(window.address(), fotos.string());
    EXPECT_STREQ(window.goTooltip(), " Actualizar Dirección ");

    const int reads = window.listReads();
    window.goToAddress();
    EXPECT_EQ(window.listReads(), reads + 1);
    EXPECT_EQ(window.listFolder(), fotos.string());

    // "~" is the home folder.
    window.typeAddress("~");
    window.goToAddress();
    EXPECT_EQ(window.listFolder(), temp.path().string());
    window.typeAddress("~/fotos");
    window.goToAddress();
    EXPECT_EQ(window.listFolder(), fotos.string());

    // A picture's path is loaded, and the lists stay where they are.
    const std::string luna = (fotos / "luna.PNG").string();
    preview.good.insert(luna);
    window.typeAddress(luna);
    window.goToAddress();
    EXPECT_EQ(model.appearance().shownPicture(), luna);
    EXPECT_EQ(window.listFolder(), fotos.string());

    // No folder there, or not a place at all: the lists stay put.
    for (const std::string& typed :
         {(temp.path() / "no-existe").string(), std::string("fotos"), std::string("")}) {
        window.typeAddress(typed);
        window.goToAddress();
        EXPECT_EQ(window.listFolder(), fotos.string()) << typed;
        EXPECT_TRUE(window.goShown());
    }

    // Moving the folder list shows and keeps the folder it reaches.
    window.folderChanged(pictures.string());
    EXPECT_EQ(window.address(), pictures.string());
    EXPECT_EQ(window.folder(), pictures.string());
    EXPECT_FALSE(window.goShown());
}

TEST(UserPictureFolder, FallsBackToTheHomeFolderWithoutAPicturesFolder) {
    TempFolder home("quillora-home");
    const fs::path pictures = home.path() / "Imágenes";
    EXPECT_EQ(userPictureFolder(pictures.string(), home.path().string()), home.path().string());
    EXPECT_EQ(userPictureFolder("", home.path().string()), home.path().string());
    fs::create_directories(pictures);
    EXPECT_EQ(userPictureFolder(pictures.string(), home.path().string()), pictures.string());
}

} // namespace
} // namespace quillora
