// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/WebLookUp.h"
#include "desktop/About.h"
#include "desktop/BuildConfig.h"
#include "support/BoardModelFixture.h"
#include "support/Fakes.h"

#include <gtest/gtest.h>

namespace quillora {
namespace {

TEST(WebLookUp, APhraseReachesBothPagesWholeWhateverItsSigns) {
    const Endpoints endpoints = Endpoints::fromBuild("file:///help.html");
    // Blanks, the signs that would cut or bend a query, and the game's own
    // letters all arrive as the player's words.
    const std::string text = "pan & vino #1? 100% ñu";
    const std::string word = "pan%20%26%20vino%20%231%3F%20100%25%20%C3%B1u";
    EXPECT_EQ(lookUpUrl(text, false, endpoints), "https://www.bing.com/search?q=" + word +
                                                     "&qs=n&form=QBRE&filt=all&pq=" + word +
                                                     "&sc=0-0&sp=-1&sk=");
    EXPECT_EQ(lookUpUrl(text, true, endpoints), "https://es.wikipedia.org/wiki/" + word);
    EXPECT_EQ(percentEncoded("a-b.c_d~e/f+g"), "a-b.c_d~e%2Ff%2Bg");
}

TEST(WebLookUp, WithoutANetworkThePlayerIsToldAndNothingOpensButTheInstalledHelp) {
    ScriptedDialogs dialogs;
    FakeDesktop desktop(dialogs);
    desktop.network.alive = false;
    desktop.lookUp.openLookUp("vaca", false);
    EXPECT_FALSE(desktop.lookUp.downloadFont());
    desktop.lookUp.openHelp();
    ASSERT_EQ(dialogs.shown.size(), 2U);
    EXPECT_EQ(dialogs.shown[0].text, "Se requiere una conexión a Internet, intente más tarde.");
    EXPECT_EQ(dialogs.shown[1].text,
              "Se requiere una conexión a Internet para descargar, intente más tarde.");
    EXPECT_EQ(dialogs.shown[0].icon, Dialogs::Icon::Information);
    // The help that comes with the game needs no network, and is not asked
    // for one.
    EXPECT_EQ(desktop.web.opened, std::vector<std::string>{FakeDesktop::kHelpPage});
    EXPECT_EQ(desktop.network.asked, 2);

    // A help page on the web does need it.
    FakeNetwork down;
    down.alive = false;
    Endpoints web = Endpoints::fromBuild("https://quillora.example/ayuda");
    WebLookUp online(down, desktop.web, dialogs, web);
    online.openHelp();
    EXPECT_EQ(dialogs.shown.size(), 3U);
    EXPECT_EQ(desktop.web.opened.size(), 1U);

    desktop.network.alive = true;
    EXPECT_TRUE(desktop.lookUp.downloadFont());
    EXPECT_EQ(desktop.web.opened.back(), build::kFontDownloadUrl);
}

TEST(About, TellsTheMakerTheGameItsVersionAndTheLicences) {
    ScriptedDialogs dialogs;
    showAbout(dialogs);
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_TRUE(dialogs.shown[0].about);
    EXPECT_EQ(dialogs.shown[0].title, "Quillora Vesta");
    const std::string& text = dialogs.shown[0].text;
    EXPECT_EQ(text.rfind(std::string("Ondrel Works\r\nQuillora Vesta: Versión ") + build::kVersion +
                             "\r\n",
                         0),
              0U);
    EXPECT_NE(std::string(build::kVersion).find('.'), std::string::npos);
    for (const char* part : {"GNU, versión 3 o posterior", "Quicksand", "Comic Neue",
                             "SIL Open Font License", "Qt 6", "libsndfile"}) {
        EXPECT_NE(text.find(part), std::string::npos) << part;
    }
}

class BoardLookUp : public BoardModelFixture {};

TEST_F(BoardLookUp, TheEndedGameIsLookedUpInSmallLettersWhereTheOptionSays) {
    play("EL OSO PANDA", U"elospand");
    ASSERT_TRUE(model.round().lookUpVisible());
    model.lookUps().lookUpAnswer();
    shared.settings.useEncyclopedia = true;
    model.lookUps().lookUpAnswer();
    ASSERT_EQ(desktop.web.opened.size(), 2U);
    EXPECT_EQ(desktop.web.opened[0].rfind("https://www.bing.com/search?q=el%20oso%20panda&", 0),
              0U);
    EXPECT_EQ(desktop.web.opened[1], "https://es.wikipedia.org/wiki/el%20oso%20panda");

    // The history's entry, as chosen there.
    ASSERT_TRUE(model.panels().history().chooseForLookUp(0));
    desktop.network.alive = false;
    model.lookUps().lookUpHistoryEntry();
    EXPECT_EQ(desktop.web.opened.size(), 2U);
    desktop.network.alive = true;
    model.lookUps().lookUpHistoryEntry();
    EXPECT_EQ(desktop.web.opened.back(), "https://es.wikipedia.org/wiki/el%20oso%20panda");

    // F1 opens the help even behind a dead network.
    desktop.network.alive = false;
    model.keyTyped(BoardModel::WindowKey::F1);
    EXPECT_EQ(desktop.web.opened.back(), FakeDesktop::kHelpPage);
}

} // namespace
} // namespace quillora
