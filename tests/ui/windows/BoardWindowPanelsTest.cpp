// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "look/Twips.h"
#include "platform/Fonts.h"
#include "ports/Random.h"
#include "storage/ConfigFile.h"
#include "support/BoardFixture.h"
#include "support/Keys.h"
#include "windows/board/KeyboardView.h"
#include "windows/board/PhraseView.h"
#include "windows/board/SessionPanel.h"
#include "windows/board/SidePanel.h"
#include "windows/board/StatsPanel.h"
#include "windows/players/PlayersWindow.h"

#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QSet>
#include <QToolTip>

#include <stdexcept>

namespace quillora {
namespace {

// What reaches the board's controls from the mouse and the keyboard, and
// what the panels show around the game.
using BoardPanels = BoardWindowTest;

void commit(QWidget* box, const QString& text) {
    QInputMethodEvent composed;
    composed.setCommitString(text);
    QCoreApplication::sendEvent(box, &composed);
}

TEST_F(BoardPanels, TheRestoreLabelBringsJugarBackAndStartsNothing) {
    QMenu* menu = window->controls().playPanel->buildPlayMenu();
    menu->actions().at(1)->trigger(); // "Desaparecer botón"
    delete menu;
    ASSERT_TRUE(window->controls().playPanel->restoreLabel()->isVisible());
    EXPECT_EQ(window->controls().playPanel->restoreLabel()->toolTip(),
              QStringLiteral(" Regresar botón JUGAR. "));

    QTest::mouseClick(window->controls().playPanel->restoreLabel(), Qt::LeftButton);
    EXPECT_TRUE(window->controls().playPanel->playButton()->isVisible());
    EXPECT_TRUE(window->controls().smallPlayButton->isVisible());
    EXPECT_FALSE(shared.settings.playButtonHidden);
    EXPECT_EQ(window->themeWindow(), nullptr) << "the click only restores";
    EXPECT_EQ(window->controls().statusLabel->text(), "NUEVA PARTIDA");
}

TEST_F(BoardPanels, BehindTheSessionPanelAndTheLockNoShortcutActs) {
    const bool sounds = shared.settings.sounds;
    QTest::keyClick(window.get(), Qt::Key_F4);
    ASSERT_TRUE(window->model().sessions().panel().shown());
    // Ctrl+J opens its window itself; the other keys go through the model.
    QTest::keyClick(window.get(), Qt::Key_J, Qt::ControlModifier);
    QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(window->namesWindow(), nullptr);
    EXPECT_EQ(shared.settings.sounds, sounds);

    QLineEdit* key = window->controls().sessionPanel->keyBox();
    key->setFocus();
    QTest::keyClick(key, Qt::Key_Return); // an empty key locks too
    ASSERT_TRUE(shared.locked);
    window->setFocus();
    QTest::keyClick(window.get(), Qt::Key_F4);
    QTest::keyClick(window.get(), Qt::Key_J, Qt::ControlModifier);
    QTest::keyClick(window.get(), Qt::Key_Return);
    EXPECT_TRUE(window->model().sessions().panel().shown()) << "F4 does not close a locked panel";
    EXPECT_EQ(window->namesWindow(), nullptr);
    EXPECT_EQ(window->themeWindow(), nullptr);
    EXPECT_FALSE(window->controls().smallPlayButton->isEnabled());

    // Nor does a user dropped on the board, who would take its place.
    random.queue({0.1});
    ASSERT_TRUE(writeNewUserFile(folder / "ana.txt", "Ana", random));
    EXPECT_FALSE(drop(folder / "ana.txt"));
    window->model().sessions().dropFiles({(folder / "ana.txt").string()});
    EXPECT_EQ(shared.currentSlot, 0);
}

TEST_F(BoardPanels, TheBoardsShortcutsComeBeforeTheAnswerBox) {
    startVaca();
    type("z");
    type("!");
    QLineEdit* box = window->controls().answerPanel->answerBox();
    ASSERT_TRUE(box->isVisible());
    box->setFocus();
    QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
    EXPECT_TRUE(shared.settings.autoPhrase);
    EXPECT_TRUE(window->controls().autoMarker->isVisible());
    dialogs.answer({false});
    QTest::keyClick(box, Qt::Key_Delete);
    ASSERT_FALSE(dialogs.shown.empty());
    EXPECT_EQ(dialogs.shown.back().text, Round::correctionQuestion(3));
}

TEST_F(BoardPanels, OnlyWhatTheGameAcceptsIsComposed) {
    startVaca();
    // A dead acute and "a" make "á", which the board has no key for.
    QTest::sendKeyEvent(QTest::Click, window.get(), Qt::Key_Dead_Acute, QString(), {});
    type("a");
    EXPECT_TRUE(window->model().round().board().triedLetters().empty());
    EXPECT_EQ(strike(1), "");

    type("!");
    QLineEdit* box = window->controls().answerPanel->answerBox();
    commit(box, QStringLiteral("h\u00FAa"));
    EXPECT_EQ(box->text(), "ha") << "an input method's accents stay out";
    commit(box, QStringLiteral("\u00F1"));
    EXPECT_EQ(box->text(), QStringLiteral("ha\u00F1"));
}

TEST_F(BoardPanels, TheSmallJugarReadsNuevaPartidaAndComesBackAfterTheCount) {
    startVaca();
    EXPECT_EQ(window->controls().smallPlayButton->text(), "NUEVA PARTIDA");
    type("vac");
    window->model().tickScore();
    window->sync();
    EXPECT_FALSE(window->controls().smallPlayButton->isEnabled()) << "not while the points count";
    int ticks = 0;
    while (window->model().scoring().counting() && ticks++ < 1000) {
        window->model().tickScore();
    }
    window->sync();
    EXPECT_TRUE(window->controls().smallPlayButton->isEnabled());
    QTest::mouseClick(window->controls().smallPlayButton, Qt::LeftButton);
    EXPECT_EQ(window->controls().smallPlayButton->text(), "JUGAR");
}

TEST_F(BoardPanels, ALostGameLeavesItsTitleWhenTheBoardIsCleared) {
    startVaca();
    type("bdefghij");
    EXPECT_NE(window->windowTitle(), "Quillora Vesta | Puntos");
    QTest::keyClick(window.get(), Qt::Key_F2);
    EXPECT_EQ(window->windowTitle(), "Quillora Vesta | Puntos");
}

TEST_F(BoardPanels, WithoutPointsJugarAndTheThemeMoveBesideTheBoard) {
    const QPoint normal = window->controls().playPanel->playButton()->mapTo(window.get(), QPoint());
    const QPoint theme = window->controls().themeBox->themeLabel()->mapTo(window.get(), QPoint());
    shared.settings.pointsSystem = false;
    SetUpBoardFromFile();
    EXPECT_LT(window->controls().playPanel->playButton()->mapTo(window.get(), QPoint()).y(),
              normal.y());
    EXPECT_GT(window->controls().themeBox->themeLabel()->mapTo(window.get(), QPoint()).y(),
              theme.y());
    EXPECT_FALSE(window->controls().scorePanel->scoreFrame()->isVisible());
}

TEST_F(BoardPanels, EveryReleaseOfTheMouseTakesTheCorrectionOfferAway) {
    startVaca();
    type("z");
    QTest::mouseMove(window->controls().strikes->correctionLabel());
    ASSERT_EQ(window->controls().strikes->correctionLabel()->text(), "<");
    QTest::mouseClick(window->controls().statusLabel, Qt::LeftButton);
    EXPECT_EQ(window->controls().strikes->correctionLabel()->text(), "");
    EXPECT_EQ(window->controls().strikes->correctionLabel()->toolTip(), " Octavo Strike. ");
}

TEST_F(BoardPanels, MessageBoxesComeUpOverTheBoardAsItStands) {
    startVaca();
    type("z");
    bool sidePanel = false;
    QString slotOne = QStringLiteral("unseen");
    dialogs.onAsk = [&] {
        sidePanel = window->controls().sidePanel->isVisible();
        slotOne = strike(1);
    };
    dialogs.answer({true});
    QTest::keyClick(window.get(), Qt::Key_Delete);
    ASSERT_EQ(dialogs.shown.size(), 2U);
    EXPECT_EQ(slotOne, "") << "the notice after the correction shows the strike gone";
    EXPECT_TRUE(sidePanel) << "the correction's boxes stand over the empty side panel";
    EXPECT_FALSE(window->controls().sidePanel->isVisible());
}

TEST_F(BoardPanels, EveryTextAndTooltipIsTheGamesOwn) {
    EXPECT_TRUE(window->controls().themeBox->themeLabel()->toolTip().isEmpty());
    EXPECT_TRUE(window->controls().sessionPanel->userBox()->toolTip().isEmpty());
    EXPECT_EQ(window->controls().counterLabel->toolTip(), " Letras reveladas. ");
    openKeyboard();
    KeyboardView* keys = window->controls().keyboard;
    auto tipAt = [keys](int key) {
        const QPoint at = keys->keyRect(key).center();
        QHelpEvent help(QEvent::ToolTip, at, keys->mapToGlobal(at));
        QCoreApplication::sendEvent(keys, &help);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    };
    EXPECT_EQ(tipAt(1), "") << "a letter says nothing";
    EXPECT_EQ(tipAt(kWriteKey), " Escribir respuesta. ");
    EXPECT_EQ(tipAt(kDigitPanelKey), QStringLiteral(" Mostrar números "));
    const QFont letters = window->controls().phrase->cellFont();
    EXPECT_TRUE(letters.bold()) << letters.toString().toStdString();
    EXPECT_EQ(letters.family(), Fonts::displayFamily());
}

TEST_F(BoardPanels, EstadisticasUnrollsTheCountsAndEscRollsThemUp) {
    shared.current().stats.countWin(200, 1, false);
    shared.current().stats.countLoss(8, false);
    shared.normalPoints = -800;
    StatsPanel* panel = window->controls().statsPanel;
    auto settle = [this] {
        while (window->model().panels().stats().animating()) {
            window->model().panels().stats().tick();
        }
        window->sync();
    };

    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QAction* entry = popupEntry(QStringLiteral("Estadísticas"));
    ASSERT_NE(entry, nullptr);
    ASSERT_TRUE(entry->isEnabled());
    entry->trigger();
    EXPECT_TRUE(panel->isVisible());
    EXPECT_TRUE(panel->hasFocus()) << "a screen reader reads it as it opens";
    EXPECT_FALSE(panel->valuesFrame()->isVisible()) << "the values come at the full height";
    settle();
    ASSERT_TRUE(panel->valuesFrame()->isVisible());
    EXPECT_EQ(panel->height(), px(window->model().panels().stats().height()));
    const QStringList shown{"-800", "9", "2", "4", "-400", "200", "200",
                            "1000", "0", "0", "0", "0",    "0",   "0"};
    for (int i = 0; i < 14; ++i) {
        EXPECT_EQ(panel->valueLabel(i)->text(), shown[i]) << i;
    }
    // No key reaches the figures: a screen reader says them all as they show.
    const QString figures = QString::fromStdString(announcer.last());
    EXPECT_TRUE(figures.startsWith(
        QStringLiteral("Estadísticas. Puntos -800 normal, 1000 supervivencia. Errores 9 normal")))
        << announcer.last();
    EXPECT_TRUE(figures.contains(QStringLiteral("Récord: Máximo/p. 200 normal, 0 supervivencia.")));
    // Every row of counts has a tip of its own.
    QSet<QString> tips;
    for (const QLabel* l : panel->findChildren<QLabel*>()) {
        if (!l->toolTip().isEmpty()) {
            tips << l->toolTip();
        }
    }
    EXPECT_EQ(tips.size(), StatsPanelModel::kSurvivalColumn);

    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_FALSE(panel->valuesFrame()->isVisible());
    EXPECT_TRUE(panel->isVisible()) << "it rolls up, it does not vanish";
    settle();
    EXPECT_FALSE(panel->isVisible());

    announcer.clear();
    window->model().panels().openStats();
    settle();
    EXPECT_EQ(announcer.said.size(), 1U) << "said again on every opening, once";
    QTest::mouseClick(panel->closeLabel(), Qt::LeftButton);
    settle();
    EXPECT_FALSE(panel->isVisible());

    // Tab reaches " Cerrar " and Enter rolls the panel up.
    popupEntry(QStringLiteral("Estadísticas"))->trigger();
    settle();
    ASSERT_TRUE(panel->hasFocus());
    pressKey(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), panel->closeLabel());
    pressKey(Qt::Key_Return);
    EXPECT_TRUE(window->hasFocus()) << "the board takes the keys back";
    settle();
    EXPECT_FALSE(panel->isVisible());
}

// A clock that fails once, as the board opens: with no file yet, the
// opening draws a theme.
struct BrokenRandom : Random {
    void reseed() override {}
    double fraction() override {
        if (!failed) {
            failed = true;
            throw std::runtime_error("no clock");
        }
        return 0.3;
    }
    bool failed = false;
};

TEST_F(BoardPanels, AStepThatFailsOnOpeningIsToldInTheTitleAndTheBoardPlays) {
    window.reset();
    BrokenRandom broken;
    BoardWindow board(shared, dialogs, announcer, broken, sounds, desktop.lookUp);
    board.show();
    EXPECT_EQ(board.windowTitle(), "Quillora Vesta | Puntos | Error al cargar datos");
    QTest::keyClick(&board, Qt::Key_Return);
    EXPECT_NE(board.themeWindow(), nullptr) << "the board still plays";
}

TEST_F(BoardPanels, TheMenuGoesBackWhereTheBoardCameFrom) {
    const QPoint menu(640, 400);
    window->placeOver(menu);
    EXPECT_EQ(window->menuCentre(), menu);
}

} // namespace
} // namespace quillora
