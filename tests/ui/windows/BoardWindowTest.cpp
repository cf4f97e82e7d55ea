// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "players/Players.h"
#include "storage/ConfigFile.h"
#include "support/BoardFixture.h"
#include "windows/board/KeyboardView.h"
#include "windows/board/LookUpLabel.h"
#include "windows/board/PhraseView.h"
#include "windows/friendPhrase/FriendPhraseWindow.h"
#include "windows/players/PlayersWindow.h"
#include "words/ThemeCatalogue.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPaintEvent>
#include <QTimer>

#include <chrono>
#include <fstream>

namespace quillora {
namespace {

// The rules themselves are the core's to check; these tests check that what a
// player does on the window reaches them, and that the window shows the result.

TEST_F(BoardWindowTest, KeysTypedOnTheWindowPlayAGameToItsEnd) {
    EXPECT_FALSE(window->controls().counterLabel->isVisible());

    startVaca();
    EXPECT_EQ(window->controls().statusLabel->text(), "JUGANDO...");
    EXPECT_EQ(window->controls().playPanel->playButton()->text(), "NUEVA PARTIDA");
    EXPECT_EQ(window->controls().themeBox->themeLabel()->text(),
              qs(std::string(ThemeCatalogue::storedThemeName(1))));
    EXPECT_TRUE(window->controls().counterLabel->isVisible());
    EXPECT_EQ(window->controls().counterLabel->text(), "0/4");

    type("a");
    EXPECT_EQ(window->controls().counterLabel->text(), "2/4");
    type(QStringLiteral("xñá?"));
    EXPECT_EQ(strike(1), "X");
    EXPECT_EQ(strike(2), QStringLiteral("Ñ"));
    EXPECT_EQ(strike(3), "");

    type("bdefghk");
    EXPECT_EQ(strike(8), "H");
    EXPECT_EQ(window->controls().statusLabel->text(), QStringLiteral("¡MUERTO!"));
    EXPECT_FALSE(window->controls().counterLabel->isVisible());
    EXPECT_EQ(window->model().round().board().triedLetters(), U"AXÑBDEFGH") << "K came too late";
    EXPECT_TRUE(dialogs.shown.empty());
}

// Where a widget was asked to paint, whatever the reason.
class PaintedRegion : public QObject {
public:
    explicit PaintedRegion(QWidget* widget) { widget->installEventFilter(this); }
    QRegion region;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            region += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }
};

TEST_F(BoardWindowTest, ALetterRepaintsOnlyItsCellsAndItsKey) {
    startVaca();
    openKeyboard();
    PaintedRegion phrase(window->controls().phrase);
    PaintedRegion keys(window->controls().keyboard);
    // The board as it opened, painted whole once.
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    window->repaint();
    QCoreApplication::processEvents();
    phrase.region = keys.region = QRegion();

    type("a");
    QCoreApplication::processEvents();
    QRegion found;
    for (int cell = 1; cell <= PhraseBoard::kCells; ++cell) {
        if (window->model().round().board().cell(cell).character == U'A') {
            found += window->controls().phrase->cellRect(cell);
        }
    }
    ASSERT_FALSE(found.isEmpty());
    EXPECT_TRUE(phrase.region.contains(found.boundingRect())) << "the found letters show";
    EXPECT_LT(phrase.region.boundingRect().width(), window->controls().phrase->width() / 2)
        << "the other cells stay as they were";
    const QRect keyA = window->controls().keyboard->keyRect(keyIndexOf(U'A'));
    EXPECT_TRUE(keys.region.contains(keyA));
    EXPECT_EQ(keys.region.boundingRect(), keyA) << "no other key is painted";
}

TEST_F(BoardWindowTest, ClicksOnTheOnScreenKeyboardGuessAndOpenTheDigits) {
    startVaca();
    // The keyboard slides out on the board's own timer, run here without its wait.
    for (QTimer* timer : window->findChildren<QTimer*>()) {
        if (timer->isActive() && timer->interval() == KeyboardSlide::kOpenTickMs) {
            timer->setInterval(0);
        }
    }
    KeyboardView* keys = window->controls().keyboard;
    ASSERT_TRUE(QTest::qWaitFor([keys] { return keys->isVisible(); }, 5000));
    const auto click = [keys](int key) {
        QTest::mouseClick(keys, Qt::LeftButton, {}, keys->keyRect(key).center());
    };

    click(1);
    EXPECT_EQ(window->controls().counterLabel->text(), "2/4");
    EXPECT_EQ(keys->keyAt(keys->keyRect(1).center()), -1) << "a tried key is hidden";
    EXPECT_EQ(announcer.last(), "A: 2 letras. 2 de 4.") << "a click is heard like a key";
    click(kDigitPanelKey);
    ASSERT_TRUE(window->model().round().digitPanelVisible());
    click(28);
    EXPECT_EQ(strike(1), "1");
    QTest::keyClick(window.get(), Qt::Key_F6);
    EXPECT_EQ(announcer.last().rfind("Tema: ", 0), 0u) << "F6 reads the board";
    click(kCloseDigitsKey);
    EXPECT_FALSE(window->model().round().digitPanelVisible());
}

TEST_F(BoardWindowTest, TheAnswerBoxFiltersItsKeysAndAsksBeforeComparing) {
    startVaca();
    type("!");
    QLineEdit* box = window->controls().answerPanel->answerBox();
    ASSERT_TRUE(box->isVisible());
    EXPECT_FALSE(window->controls().answerPanel->okButton()->isEnabled());

    type(QStringLiteral(" @vá"), box);
    EXPECT_EQ(box->text(), "v");
    type("aca", box);
    dialogs.answer({true});
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(dialogs.shown.back().text, "¿Está seguro?, morirá si se equivoca.");
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(window->controls().statusLabel->text(), QStringLiteral("¡VICTORIA!"));
}

TEST_F(BoardWindowTest, JugarAsksBeforeLeavingAGameUnderWay) {
    startVaca();
    dialogs.answer({false, true});
    QTest::mouseClick(window->controls().playPanel->playButton(), Qt::LeftButton);
    EXPECT_EQ(window->controls().statusLabel->text(), "JUGANDO...");
    QTest::mouseClick(window->controls().playPanel->playButton(), Qt::LeftButton);
    EXPECT_EQ(window->controls().statusLabel->text(), "NUEVA PARTIDA");
    EXPECT_EQ(window->controls().playPanel->playButton()->text(), "JUGAR");
    EXPECT_EQ(dialogs.shown.back().text, "¿Seguro de salirse de la partida?");
}

TEST_F(BoardWindowTest, AWinCountsItsPointsUpAndSavesTheOptions) {
    EXPECT_TRUE(window->controls().scorePanel->scoreFrame()->isVisible());
    EXPECT_EQ(window->controls().scorePanel->scoreLabel()->text(), "0");
    startVaca();
    type("vac");
    EXPECT_EQ(window->controls().statusLabel->text(), QStringLiteral("¡VICTORIA!"));
    EXPECT_EQ(window->windowTitle(), "Quillora Vesta | Puntos | +400");
    for (int ticks = 0; window->model().scoring().counting() && ticks < 1000; ++ticks) {
        window->model().tickScore();
    }
    window->sync();
    EXPECT_EQ(window->controls().scorePanel->scoreLabel()->text(), "400");
    EXPECT_TRUE(window->controls().playPanel->playButton()->isEnabled());
    const auto saved = readConfigLines(shared.currentSession().filePath);
    ASSERT_TRUE(saved) << "the end of a game writes the options";
    EXPECT_EQ(saved->size(), 20U);
}

TEST_F(BoardWindowTest, AGameLostInOneRunShowsItsPointsAtTheNextStart) {
    startVaca();
    type("bdefghik");
    ASSERT_EQ(window->controls().statusLabel->text(), QStringLiteral("¡MUERTO!"));
    window.reset();

    // The program starts again on the same data folder.
    SharedState next;
    next.dataFolder = folder;
    loadAtStart(next);
    BoardWindow board(next, dialogs, announcer, random, sounds, desktop.lookUp);
    board.show();
    EXPECT_EQ(board.controls().scorePanel->scoreLabel()->text(), "-1000");
    EXPECT_EQ(next.current().stats.normal().games, 1);
    EXPECT_EQ(next.history, "VACA");
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(BoardWindowTest, TheBoardHandsItsPagesAndItsAboutBoxToTheDesktop) {
    startVaca();
    type("vac");
    ASSERT_TRUE(window->controls().lookUpLabel->isVisible());
    QTest::mouseClick(window->controls().lookUpLabel, Qt::LeftButton);
    ASSERT_EQ(desktop.web.opened.size(), 1U);
    EXPECT_EQ(desktop.web.opened[0].rfind("https://www.bing.com/search?q=vaca&qs=n", 0), 0U);

    desktop.network.alive = false;
    QTest::keyClick(window.get(), Qt::Key_F1);
    popupEntry(QStringLiteral("Ayuda"))->trigger();
    EXPECT_EQ(desktop.web.opened,
              (std::vector<std::string>{desktop.web.opened[0], FakeDesktop::kHelpPage,
                                        FakeDesktop::kHelpPage}));
    EXPECT_TRUE(dialogs.shown.empty()) << "the installed help needs no network";

    popupEntry(QStringLiteral("Acerca"))->trigger();
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_TRUE(dialogs.shown[0].about);
}

TEST_F(BoardWindowTest, F3RestartsOnOkAndHandsOverOnceTheEventIsOver) {
    bool restarted = false;
    window->onRestart = [&restarted] { restarted = true; };
    dialogs.answer({false, true});
    QTest::keyClick(window.get(), Qt::Key_F3);
    EXPECT_EQ(dialogs.shown.back().text, "Está apunto de reiniciar el juego, se borrará todo.");
    EXPECT_EQ(dialogs.shown.back().kind, Dialogs::Question::OkCancel);
    EXPECT_FALSE(window->model().commands().restartRequested());
    QTest::keyClick(window.get(), Qt::Key_F3);
    EXPECT_TRUE(window->model().commands().restartRequested());
    EXPECT_FALSE(restarted);
    QCoreApplication::processEvents();
    EXPECT_TRUE(restarted);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(BoardWindowTest, ADroppedConfigurationFileBecomesASession) {
    const fs::path file = folder / "ana.txt";
    std::ofstream(file, std::ios::binary)
        << "\r\n\r\n1\r\n0\r\n0\r\n0\r\n0\r\n1\r\n0\r\n0\r\n5\r\n1"
           "\r\n0\r\n0\r\nAna\r\n";
    ASSERT_TRUE(drop(file));
    EXPECT_EQ(shared.currentSession().displayName, "Ana");
    EXPECT_TRUE(window->model().commands().restartRequested());
}

TEST_F(BoardWindowTest, OnlyTheCloseBoxEndsTheGame) {
    int closes = 0, menus = 0;
    window->onClose = [&closes] { ++closes; };
    window->onMenu = [&menus] { ++menus; };
    startVaca();
    dialogs.answer({true});
    QTest::keyClick(window.get(), Qt::Key_Backspace, Qt::AltModifier);
    EXPECT_EQ(dialogs.shown.back().text, "¿Seguro de salirse de la partida?");
    QCoreApplication::processEvents();
    EXPECT_EQ(menus, 1);
    EXPECT_EQ(closes, 0) << "going back to the menu does not end the game";

    BoardWindowTest::TearDown();
    SetUpBoard();
    window->onClose = [&closes] { ++closes; };
    window->close();
    EXPECT_EQ(closes, 1);
}

TEST_F(BoardWindowTest, TheClockShowsOnlyWhileItCountsAndItsTimerFollowsTheModel) {
    EXPECT_FALSE(window->controls().timeLabel->isVisible());
    shared.settings.countdown = 2;
    SetUpBoardFromFile();
    EXPECT_EQ(window->controls().timeLabel->toolTip(),
              QStringLiteral(" Segundos para que se acabe la partida del juego. "));
    EXPECT_FALSE(window->countdownTimer()->isActive());
    startVaca();
    EXPECT_TRUE(window->controls().timeLabel->isVisible());
    EXPECT_EQ(window->controls().timeLabel->text(), "20");
    EXPECT_EQ(window->countdownTimer()->intervalAsDuration(), std::chrono::seconds(1))
        << "the clock counts seconds";
    ASSERT_TRUE(window->countdownTimer()->isActive());

    // One real timeout, without the wait: the timer reaches the model and
    // the label shows what the model counted.
    window->countdownTimer()->setInterval(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(window->controls().timeLabel->text(), "19");

    type("vac");
    EXPECT_EQ(window->controls().statusLabel->text(), QStringLiteral("¡VICTORIA!"));
    EXPECT_FALSE(window->controls().timeLabel->isVisible());
    EXPECT_FALSE(window->countdownTimer()->isActive());
}

TEST_F(BoardWindowTest, FriendsStartWithTheirNamesThenOneOfThemWritesThePhrase) {
    setUpRoster(shared, true, 3);
    shared.sessions[0].playerNames = {"Ana", "Beto", "Ciro"};
    SetUpBoard();
    EXPECT_EQ(window->windowTitle(), "Quillora Vesta");
    EXPECT_FALSE(window->controls().scorePanel->scoreFrame()->isVisible());
    EXPECT_EQ(window->controls().scorePanel->playerLabel()->text(), "Ana");
    EXPECT_EQ(window->controls().scorePanel->playerLabel()->toolTip(),
              " 3 Jugadores están jugando ");

    window->openPlayersWindow();
    ASSERT_NE(window->namesWindow(), nullptr);
    EXPECT_FALSE(window->isVisible()) << "the board steps aside for the names";
    window->namesWindow()->close();
    QCoreApplication::processEvents();
    EXPECT_TRUE(window->isVisible());

    QTest::keyClick(window.get(), Qt::Key_Return);
    ASSERT_NE(window->friendWindow(), nullptr);
    QLineEdit* phrase = window->friendWindow()->phraseBox();
    type(QStringLiteral("la casa"), phrase);
    EXPECT_EQ(window->friendWindow()->previewRow(1)->text(), "LA CASA");
    QTest::keyClick(phrase, Qt::Key_Return);
    EXPECT_EQ(window->controls().themeBox->themeLabel()->text(), "Frase de Ana");
    EXPECT_EQ(window->controls().counterLabel->text(), "0/6");
    EXPECT_EQ(window->controls().scorePanel->playerLabel()->text(), "Beto")
        << "Ana wrote it and moved last";
    type("x");
    EXPECT_EQ(window->controls().scorePanel->playerLabel()->text(), "Ciro");
    type("y");
    EXPECT_EQ(window->controls().scorePanel->playerLabel()->text(), "Beto");
}

} // namespace
} // namespace quillora
