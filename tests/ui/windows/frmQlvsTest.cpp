// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/frmQlvs/frmQlvs.h"
#include "models/frmInicio/InicioModel.h"
#include "players/Players.h"
#include "storage/ConfigFile.h"
#include "support/BoardFixture.h"
#include "support/Fakes.h"
#include "support/TempFolder.h"
#include "windows/frmNames/frmNames.h"
#include "windows/frmQlvs/KeyboardView.h"
#include "windows/frmWord1/frmWord1.h"
#include "windows/frmWord2/frmWord2.h"

#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <random>

namespace quillora {
namespace {

TEST_F(BoardWindow, KeysTypedOnTheWindowPlayAGameToVictory) {
    EXPECT_EQ(window->statusLabel()->text(), "NUEVA PARTIDA");
    EXPECT_EQ(window->playButton()->text(), "JUGAR");
    EXPECT_FALSE(window->counterLabel()->isVisible());

    startVaca();
    EXPECT_EQ(window->statusLabel()->text(), "JUGANDO...");
    EXPECT_EQ(window->playButton()->text(), "NUEVA PARTIDA");
    EXPECT_EQ(window->themeLabel()->text(), "ANIMAL");
    EXPECT_TRUE(window->counterLabel()->isVisible());
    EXPECT_EQ(window->counterLabel()->text(), "0/4");

    type("a");
    EXPECT_EQ(window->counterLabel()->text(), "2/4");
    type(QStringLiteral("xñ"));
    EXPECT_EQ(strike(1), "X");
    EXPECT_EQ(strike(2), QStringLiteral("Ñ"));
    type(QStringLiteral("á?"));
    EXPECT_EQ(strike(3), "");

    type("vc");
    EXPECT_EQ(window->statusLabel()->text(), QStringLiteral("¡VICTORIA!"));
    EXPECT_FALSE(window->counterLabel()->isVisible());
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(BoardWindow, EightMissesHangTheFigureAndShowTheMissedLetters) {
    startVaca();
    type("v");
    type("bdefghij");
    EXPECT_EQ(strike(8), "J");
    EXPECT_EQ(window->statusLabel()->text(), QStringLiteral("¡MUERTO!"));
    EXPECT_TRUE(window->model().round().figure().hanging());
    EXPECT_TRUE(window->model().round().board().cell(2).missed);
    // Once the game is over the keys play no more.
    type("k");
    EXPECT_EQ(window->model().round().board().triedLetters(), U"VBDEFGHIJ");
}

TEST_F(BoardWindow, ClicksOnTheOnScreenKeyboardGuessAndOpenTheDigits) {
    startVaca();
    openKeyboard();
    KeyboardView* keys = window->keyboard();
    ASSERT_TRUE(keys->isVisible());

    QTest::mouseClick(keys, Qt::LeftButton, {}, keys->keyRect(1).center());
    EXPECT_EQ(window->counterLabel()->text(), "2/4");
    EXPECT_EQ(keys->keyAt(keys->keyRect(1).center()), -1) << "a tried key is hidden";

    QTest::mouseClick(keys, Qt::LeftButton, {}, keys->keyRect(kDigitPanelKey).center());
    ASSERT_TRUE(window->model().round().digitPanelVisible());
    QTest::mouseClick(keys, Qt::LeftButton, {}, keys->keyRect(28).center());
    EXPECT_EQ(strike(1), "1");
    QTest::mouseClick(keys, Qt::LeftButton, {}, keys->keyRect(kCloseDigitsKey).center());
    EXPECT_FALSE(window->model().round().digitPanelVisible());
}

TEST_F(BoardWindow, TheAnswerBoxFiltersItsKeysAndAsksBeforeComparing) {
    startVaca();
    type("!");
    ASSERT_TRUE(window->answerBox()->isVisible());
    QLineEdit* box = window->answerBox();
    EXPECT_FALSE(window->answerOkButton()->isEnabled());

    type(QStringLiteral(" @vá"), box);
    EXPECT_EQ(box->text(), "v");
    type("aca", box);
    dialogs.answer({false});
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_TRUE(box->isVisible()) << "No keeps the box open";
    EXPECT_EQ(box->text(), "VACA");

    dialogs.answer({true});
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_FALSE(box->isVisible());
    EXPECT_EQ(window->statusLabel()->text(), QStringLiteral("¡VICTORIA!"));
    ASSERT_EQ(dialogs.shown.size(), 2U);
    EXPECT_EQ(dialogs.shown[1].text, "¿Está seguro?, morirá si se equivoca.");
    EXPECT_EQ(dialogs.shown[1].title, "Quillora Vesta");
}

TEST_F(BoardWindow, DeleteOffersTheCorrectionAndTheQuitLabelShowsIt) {
    startVaca();
    type("z");
    QTest::mouseMove(window->quitLabel());
    EXPECT_EQ(window->quitLabel()->text(), "<");
    EXPECT_EQ(window->quitLabel()->toolTip(), " Borrar un strike. ");

    dialogs.answer({true});
    QTest::keyClick(window.get(), Qt::Key_Delete);
    EXPECT_EQ(strike(1), "");
    EXPECT_EQ(shared.correctionsLeft, 2);
    EXPECT_TRUE(dialogs.scriptUsedUp());
    EXPECT_EQ(dialogs.shown.back().text,
              "Has usado una de tus correcciones, para usar otra tienes que jugar otra partida.");
}

TEST_F(BoardWindow, LeavingAGameUnderWayAsksFirst) {
    startVaca();
    dialogs.answer({false});
    QTest::mouseClick(window->playButton(), Qt::LeftButton);
    EXPECT_EQ(window->statusLabel()->text(), "JUGANDO...");

    dialogs.answer({true});
    QTest::mouseClick(window->playButton(), Qt::LeftButton);
    EXPECT_EQ(window->statusLabel()->text(), "NUEVA PARTIDA");
    EXPECT_EQ(window->playButton()->text(), "JUGAR");
    EXPECT_EQ(dialogs.shown.back().text, "¿Seguro de salirse de la partida?");
}

TEST_F(BoardWindow, AWinCountsItsPointsUpAndNamesThemInTheTitle) {
    EXPECT_TRUE(window->scoreFrame()->isVisible());
    EXPECT_EQ(window->scoreLabel()->text(), "0");
    startVaca();
    type("vac");
    EXPECT_EQ(window->windowTitle(), "Quillora Vesta | Puntos | +400");
    int ticks = 0;
    while (window->model().scoreTimerRunning() && ticks++ < 1000) {
        window->model().tickScore();
    }
    window->sync();
    EXPECT_EQ(window->scoreLabel()->text(), "400");
    EXPECT_TRUE(window->playButton()->isEnabled());
    const auto saved = readConfigLines(shared.currentSession().Archivo);
    ASSERT_TRUE(saved) << "the end of a game writes the options";
    EXPECT_EQ(saved->size(), 20U);
}

TEST_F(BoardWindow, ShortcutsReachTheirRoutines) {
    QTest::keyClick(window.get(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_TRUE(shared.settings.fraseAutomatica);
    EXPECT_TRUE(window->autoMarker()->isVisible());
    QTest::keyClick(window.get(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_FALSE(window->autoMarker()->isVisible());

    startVaca();
    dialogs.answer({false});
    QTest::keyClick(window.get(), Qt::Key_F3);
    EXPECT_EQ(dialogs.shown.back().text, "Está apunto de reiniciar el juego, se borrará todo.");
    EXPECT_EQ(dialogs.shown.back().kind, Dialogs::Question::OkCancel);
    EXPECT_FALSE(window->model().restartRequested());

    type("bdefg"); // five strikes with points: no new game
    QTest::keyClick(window.get(), Qt::Key_F2);
    EXPECT_EQ(dialogs.shown.back().text, "Tienes bastantes errores, termina el juego.");
    EXPECT_EQ(window->playButton()->text(), "NUEVA PARTIDA");

    QTest::keyClick(window.get(), Qt::Key_F4);
    EXPECT_TRUE(window->model().panel().shown());
    type("z");
    EXPECT_EQ(strike(6), "") << "no guesses behind the session panel";
}

TEST_F(BoardWindow, ARestartHandsOverOnceTheEventIsOver) {
    bool restarted = false;
    window->onRestart = [&restarted] { restarted = true; };
    dialogs.answer({true});
    QTest::keyClick(window.get(), Qt::Key_F3);
    EXPECT_TRUE(window->model().restartRequested());
    EXPECT_FALSE(restarted);
    QCoreApplication::processEvents();
    EXPECT_TRUE(restarted);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(BoardWindow, ADroppedConfigurationFileBecomesASession) {
    fs::create_directories(folder);
    const fs::path file = folder / "ana.txt";
    std::ofstream(file, std::ios::binary)
        << "\r\n\r\n1\r\n0\r\n0\r\n0\r\n0\r\n1\r\n0\r\n0\r\n5\r\n1\r\n0\r\n0\r\nAna\r\n";
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QString::fromStdString(file.string()))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(window.get(), &drop);
    EXPECT_EQ(shared.currentSlot, 1);
    EXPECT_EQ(shared.currentSession().displayName, "Ana");
    EXPECT_TRUE(window->model().restartRequested());
}

TEST_F(BoardWindow, OnlyTheCloseBoxEndsTheGame) {
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

    BoardWindow::TearDown();
    SetUpBoard();
    window->onClose = [&closes] { ++closes; };
    window->close();
    EXPECT_EQ(closes, 1);
}

TEST_F(BoardWindow, FriendsStartWithTheirNamesThenOneOfThemWritesThePhrase) {
    setUpRoster(shared, true, 3);
    shared.sessions[0].playerNames[0] = "Ana";
    shared.sessions[0].playerNames[1] = "Beto";
    shared.sessions[0].playerNames[2] = "Ciro";
    SetUpBoard();
    EXPECT_EQ(window->windowTitle(), "Quillora Vesta");
    EXPECT_FALSE(window->scoreFrame()->isVisible());
    EXPECT_EQ(window->playerLabel()->text(), "Ana");
    EXPECT_EQ(window->playerLabel()->toolTip(), " 3 Jugadores están jugando ");

    window->eNames();
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
    EXPECT_EQ(window->themeLabel()->text(), "Frase de Ana");
    EXPECT_EQ(window->counterLabel()->text(), "0/6");
    EXPECT_EQ(window->playerLabel()->text(), "Beto") << "Ana wrote it and moved last";
    EXPECT_EQ(window->playerLabel()->toolTip(), " 2 Jugadores están jugando ");
    type("x");
    EXPECT_EQ(window->playerLabel()->text(), "Ciro");
    type("y");
    EXPECT_EQ(window->playerLabel()->text(), "Beto");
}

} // namespace
} // namespace quillora
