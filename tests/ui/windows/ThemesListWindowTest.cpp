// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/themesList/ThemesListWindow.h"
#include "support/BoardFixture.h"
#include "support/Draws.h"
#include "windows/QtColour.h"
#include "windows/board/HistoryPanel.h"
#include "windows/board/ThemeBox.h"
#include "windows/board/ThemesPanel.h"
#include "words/ThemeCatalogue.h"

#include <QListWidget>
#include <QMenu>
#include <QPointer>
#include <QScreen>
#include <QTimer>

#include <fstream>
#include <string>

namespace quillora {
namespace {

// The themes list from the phrase window, and the lists beside the board.
class ThemeLists : public BoardWindowTest {
protected:
    // Where the keys go matters here: the board must be the active window.
    void SetUp() override {
        BoardWindowTest::SetUp();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    ThemeWindow* openPhraseWindow() {
        random.queue({phrase(3)});
        QTest::keyClick(window.get(), Qt::Key_Return);
        EXPECT_NE(window->themeWindow(), nullptr);
        return window->themeWindow();
    }
    ThemesListWindow* openList() {
        ThemeWindow* words = openPhraseWindow();
        if (!words) {
            return nullptr;
        }
        QTest::mouseClick(words->moreThemesButton(), Qt::LeftButton);
        return words->themesList();
    }
    static QPoint rowCentre(QListWidget* list, int row) {
        return list->visualItemRect(list->item(row)).center();
    }
    static void clickRow(QListWidget* list, int row) {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, rowCentre(list, row));
    }
};

TEST_F(ThemeLists, TheListStepsInForThePhraseWindowAndHandsBackThreeThemes) {
    ThemeWindow* words = openPhraseWindow();
    ASSERT_NE(words, nullptr);
    const QRect from = words->frameGeometry();
    QTest::mouseClick(words->moreThemesButton(), Qt::LeftButton);
    ThemesListWindow* list = words->themesList();
    ASSERT_NE(list, nullptr);
    EXPECT_TRUE(list->isVisible());
    EXPECT_FALSE(words->isVisible()) << "the phrase window steps aside";
    // Beside the phrase window, to its right and no lower, and on the screen.
    EXPECT_GT(list->frameGeometry().left(), from.left());
    EXPECT_LE(list->frameGeometry().top(), from.top());
    EXPECT_GE(list->frameGeometry().top(), list->screen()->geometry().top());
    EXPECT_EQ(list->list()->count(), ThemeCatalogue::kThemes);
    EXPECT_FALSE(list->acceptButton()->isEnabled());

    for (int row : {4, 8, 29}) {
        clickRow(list->list(), row);
    }
    EXPECT_TRUE(list->acceptButton()->isEnabled());
    clickRow(list->list(), 29);
    clickRow(list->list(), 29); // clicked off and on again
    random.queue({theme(9), phrase(6)});
    QTest::mouseClick(list->acceptButton(), Qt::LeftButton);
    settle();
    EXPECT_EQ(words->themesList(), nullptr);
    EXPECT_TRUE(words->isVisible()) << "closing the list brings the phrase window back";
    EXPECT_EQ(words->themeLabel()->text(), "????");
    for (int t : {5, 9, 30}) {
        EXPECT_TRUE(shared.current().selectedThemes[static_cast<std::size_t>(t)]) << t;
    }

    QTest::mouseClick(words->acceptButton(), Qt::LeftButton);
    settle();
    EXPECT_EQ(window->model().round().gameTheme(), 9);
    EXPECT_EQ(window->controls().themeBox->themeLabel()->text(), "????")
        << "a drawn theme shows only at the end";
    EXPECT_EQ(window->controls().statusLabel->text(), "JUGANDO...");
}

TEST_F(ThemeLists, HoldingTheMouseOnTheListPlaysAndAShortPressOnlySelects) {
    ThemesListWindow* list = openList();
    ASSERT_NE(list, nullptr);
    QWidget* rows = list->list()->viewport();
    QTest::mousePress(rows, Qt::LeftButton, {}, rowCentre(list->list(), 2));
    QTest::mouseRelease(rows, Qt::LeftButton, {}, rowCentre(list->list(), 2));
    EXPECT_FALSE(list->goTimer()->isActive());
    ASSERT_NE(window->themeWindow()->themesList(), nullptr) << "a short press only selects";

    QTest::mousePress(rows, Qt::LeftButton, {}, rowCentre(list->list(), 6));
    ASSERT_TRUE(list->goTimer()->isActive());
    random.queue({theme(7), phrase(1)});
    list->goTimer()->setInterval(0);
    QCoreApplication::processEvents();
    settle();
    EXPECT_EQ(window->themeWindow(), nullptr) << "both windows are gone";
    EXPECT_EQ(window->controls().statusLabel->text(), "JUGANDO...");
    EXPECT_EQ(window->model().round().gameTheme(), 7);
    EXPECT_TRUE(shared.current().selectedThemes[3]) << "the short press selected too";
}

TEST_F(ThemeLists, ThePlusKeyOpensTheListWhereverTheFocusIsInThePhraseWindow) {
    ThemeWindow* words = openPhraseWindow();
    ASSERT_NE(words, nullptr);
    int tried = 0;
    for (QWidget* control : words->findChildren<QWidget*>()) {
        if (!(control->focusPolicy() & Qt::TabFocus)) {
            continue;
        }
        ++tried;
        QTest::keyClick(control, Qt::Key_Plus);
        ASSERT_NE(words->themesList(), nullptr) << control->metaObject()->className();
        words->themesList()->close();
        settle();
    }
    EXPECT_GE(tried, 2) << "both buttons take the focus";
}

TEST_F(ThemeLists, ATourStartedFromTheListPlaysTheFirstThemeAtOnce) {
    ThemesListWindow* list = openList();
    ASSERT_NE(list, nullptr);
    random.queue({phrase(9)});
    QMenu* menu = list->buildMenu();
    entryOf(menu, QStringLiteral("Tour temático"))->trigger();
    settle();
    EXPECT_EQ(window->themeWindow(), nullptr);
    EXPECT_EQ(window->controls().themeBox->themeLabel()->text(),
              qs(std::string(ThemeCatalogue::storedThemeName(1))));
    EXPECT_TRUE(window->controls().autoMarker->isVisible());
    EXPECT_EQ(window->controls().autoMarker->text(), "T");
}

TEST_F(ThemeLists, AddingAThemeFileShowsItsNameAtTheEndOfTheList) {
    ThemesListWindow* list = openList();
    ASSERT_NE(list, nullptr);
    const fs::path file = folder / "Mis palabras.txt";
    std::ofstream(file) << "Mis palabras\nMARIPOSA\n";
    list->chooseFiles = [&file] { return QStringList{QString::fromStdString(file.string())}; };
    QMenu* menu = list->buildMenu();
    entryOf(menu, QStringLiteral("Añadir temas…"))->trigger();
    settle();
    const int rows = list->list()->count();
    ASSERT_EQ(rows, ThemeCatalogue::kThemes + 1);
    EXPECT_EQ(list->list()->item(rows - 1)->text(), QStringLiteral("Mis palabras"));
    EXPECT_TRUE(fs::exists(folder / "temas" / "Mis palabras.txt"));
    // The board may close with the list still open over the phrase window:
    // the phrase window goes first, and must not be asked to show again.
    QPointer<ThemesListWindow> open = list;
    window.reset();
    EXPECT_TRUE(open.isNull());
}

TEST_F(ThemeLists, TheHistoryListKeepsEnterAndAltBackspaceAndGivesTheBoardTheRest) {
    shared.history = "CASA\r\nPERRO\r\nÁRBOL";
    window.reset();
    SetUpBoard();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(window.get(), Qt::Key_H, Qt::ControlModifier);
    QListWidget* history = window->controls().historyPanel->list();
    ASSERT_TRUE(window->controls().historyPanel->isVisible());
    EXPECT_EQ(history->count(), 3);
    EXPECT_TRUE(history->hasFocus());

    QTest::keyClick(history, Qt::Key_Return);
    QTest::keyClick(history, Qt::Key_Backspace, Qt::AltModifier);
    EXPECT_EQ(window->themeWindow(), nullptr) << "Enter starts nothing from the history";
    EXPECT_FALSE(window->model().commands().menuRequested());
    QTest::keyClick(history, Qt::Key_A, Qt::ControlModifier);
    EXPECT_TRUE(shared.settings.autoPhrase) << "Ctrl+A still works";

    history->setCurrentRow(2);
    QMenu* search = window->controls().historyPanel->buildSearchMenu();
    ASSERT_NE(search, nullptr);
    EXPECT_EQ(search->title(), "Buscar");
    EXPECT_EQ(window->model().panels().history().lookUpText(), "árbol");
    QAction* lookUp = entryOf(search, QStringLiteral("¿Qué es eso?"));
    ASSERT_NE(lookUp, nullptr);
    lookUp->trigger();
    ASSERT_EQ(desktop.web.opened.size(), 1U);
    EXPECT_EQ(desktop.web.opened[0].rfind("https://www.bing.com/search?q=%C3%A1rbol&", 0), 0U);
    delete search;

    dialogs.answer({true});
    QTest::mouseClick(history->viewport(), Qt::LeftButton, {}, rowCentre(history, 0));
    QTest::mouseDClick(history->viewport(), Qt::LeftButton, {}, rowCentre(history, 0));
    EXPECT_EQ(history->count(), 0);
    EXPECT_EQ(shared.history, "");

    QTest::keyClick(history, Qt::Key_H, Qt::ControlModifier);
    EXPECT_FALSE(window->controls().historyPanel->isVisible());
    EXPECT_TRUE(window->hasFocus()) << "the board takes the keys back";
}

TEST_F(ThemeLists, TheChosenThemesPanelOpensFromTheThemeAndEnterPlaysFromIt) {
    shared.current().selectedThemes[3] = shared.current().selectedThemes[44] = true;
    QMenu* menu = window->controls().themeBox->buildMenu();
    entryOf(menu, QStringLiteral("Temas seleccionados"))->trigger();
    delete menu;
    QListWidget* themes = window->controls().themesPanel->list();
    ASSERT_TRUE(window->controls().themesPanel->isVisible());
    ASSERT_EQ(themes->count(), 2);
    EXPECT_EQ(themes->item(0)->text(), qs(std::string(ThemeCatalogue::storedThemeName(3))));
    EXPECT_TRUE(themes->hasFocus());

    QTest::keyClick(window.get(), Qt::Key_H, Qt::ControlModifier);
    EXPECT_FALSE(window->controls().themesPanel->isVisible()) << "the history takes its place";
    EXPECT_TRUE(window->controls().historyPanel->isVisible());
    QTest::mouseClick(window->controls().historyPanel->closeLabel(), Qt::LeftButton);
    EXPECT_FALSE(window->controls().historyPanel->isVisible());

    menu = window->controls().themeBox->buildMenu();
    entryOf(menu, QStringLiteral("Temas seleccionados"))->trigger();
    delete menu;
    random.queue({theme(3), phrase(2)});
    QTest::keyClick(themes, Qt::Key_Return);
    EXPECT_NE(window->themeWindow(), nullptr) << "Enter is JUGAR here";
}

} // namespace
} // namespace quillora
