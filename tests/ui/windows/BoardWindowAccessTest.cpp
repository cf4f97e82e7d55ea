// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/BoardFixture.h"
#include "support/Keys.h"
#include "windows/FocusRing.h"
#include "windows/board/GallowsView.h"
#include "windows/board/HistoryPanel.h"
#include "windows/board/KeyboardAccessible.h"
#include "windows/board/KeyboardView.h"
#include "windows/board/PhraseView.h"
#include "windows/board/SessionPanel.h"
#include "windows/board/SoundButton.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QSet>

#include <functional>

namespace quillora {
namespace {

// The board as a screen reader finds it through Qt's accessibility
// interfaces, which the desktop's accessibility bus hands on as they are.
using BoardAccess = BoardWindowTest;

QAccessibleInterface* access(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget);
}
QString name(QAccessibleInterface* item) {
    return item ? item->text(QAccessible::Name) : QStringLiteral("<none>");
}
QAccessibleInterface* cell(BoardWindow& board, int index) {
    return access(board.controls().phrase)->child(index - 1);
}
QAccessibleInterface* key(BoardWindow& board, int index) {
    return access(board.controls().keyboard)->child(KeyboardAccessible::childOfKey(index));
}

// Every interface under every window of the program, depth first.
void walk(QAccessibleInterface* item, const std::function<void(QAccessibleInterface*)>& visit,
          int depth = 0) {
    if (!item || depth > 40) {
        return;
    }
    visit(item);
    for (int i = 0; i < item->childCount(); ++i) {
        walk(item->child(i), visit, depth + 1);
    }
}
void walkAll(const std::function<void(QAccessibleInterface*)>& visit) {
    for (QWidget* top : QApplication::topLevelWidgets()) {
        walk(access(top), visit);
    }
}
QStringList textsOf(QAccessibleInterface* item) {
    QStringList texts;
    for (const auto t :
         {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help}) {
        texts << item->text(t);
    }
    if (QAccessibleTextInterface* text = item->textInterface()) {
        texts << text->text(0, text->characterCount());
    }
    return texts;
}

TEST_F(BoardAccess, CellsKeysAndStrikesReadWhatTheBoardShows) {
    startVaca();
    openKeyboard();
    QAccessibleInterface* phrase = access(window->controls().phrase);
    ASSERT_EQ(phrase->role(), QAccessible::Table);
    ASSERT_EQ(phrase->childCount(), 42);
    ASSERT_EQ(phrase->tableInterface()->cellAt(0, 1), cell(*window, 2));
    EXPECT_EQ(cell(*window, 2)->role(), QAccessible::Cell);
    EXPECT_EQ(name(cell(*window, 2)), "oculta");
    EXPECT_EQ(cell(*window, 2)->text(QAccessible::Description), "fila 1, columna 2");
    EXPECT_EQ(name(cell(*window, 5)), "") << "past the phrase there is nothing to read";
    EXPECT_EQ(key(*window, 1)->role(), QAccessible::Button);
    EXPECT_EQ(name(key(*window, 1)), "A");
    EXPECT_EQ(key(*window, 1)->text(QAccessible::Description), "sin probar");
    EXPECT_FALSE(key(*window, 1)->state().invisible);

    type("ax");
    EXPECT_EQ(name(cell(*window, 2)), "A");
    EXPECT_EQ(name(cell(*window, 4)), "A");
    EXPECT_EQ(name(cell(*window, 1)), "oculta");
    EXPECT_EQ(key(*window, 1)->text(QAccessible::Description), "probada: acierto");
    EXPECT_TRUE(key(*window, 1)->state().invisible) << "the board hides a tried key";
    EXPECT_EQ(key(*window, 25)->text(QAccessible::Description), "probada: fallo");
    EXPECT_EQ(name(access(window->controls().counterLabel)), "Letras reveladas: 2 de 4");
    EXPECT_EQ(name(access(window->controls().strikes)), "Strikes: 1 de 8");
    EXPECT_EQ(name(access(window->controls().strikes)->child(0)), "X");
    EXPECT_EQ(name(access(window->controls().strikes)->child(1)), QStringLiteral("vacío"));
    EXPECT_EQ(window->controls().statusLabel->accessibleName(), "JUGANDO") << "no dots to announce";
}

TEST_F(BoardAccess, NoTextOfAnyWindowGivesTheHiddenPhraseAwayUntilTheGameEnds) {
    startVaca();
    // The theme window, which carried the phrase, goes as soon as the
    // program's event loop turns.
    settle();
    ASSERT_EQ(window->themeWindow(), nullptr);
    openKeyboard();
    type("axyz");
    int cells = 0;
    walkAll([&cells](QAccessibleInterface* item) {
        for (const QString& text : textsOf(item)) {
            EXPECT_FALSE(text.contains(QStringLiteral("VACA"), Qt::CaseInsensitive))
                << text.toStdString();
        }
        if (item->role() == QAccessible::Cell) {
            ++cells;
            const QString read = name(item);
            EXPECT_TRUE(read == "oculta" || read == "A" || read.isEmpty()) << read.toStdString();
        }
    });
    EXPECT_EQ(cells, 42) << "the walk reaches the phrase";

    type("bdefg");
    ASSERT_EQ(window->controls().statusLabel->text(), QStringLiteral("¡MUERTO!"));
    QStringList read;
    for (int i = 1; i <= 4; ++i) {
        read << name(cell(*window, i));
    }
    EXPECT_EQ(read.join(""), "VACA");
    EXPECT_EQ(cell(*window, 1)->text(QAccessible::Description), "fila 1, columna 1, no adivinada");
    EXPECT_EQ(name(access(window->controls().strikes)), "Strikes: 8 de 8");
}

// A right answer with few letters shown empties the marks, but the figure
// keeps the parts it had: the strikes are heard as the figure shows them.
// Alone, the points standing in the player's place say so.
TEST_F(BoardAccess, AfterAHalfBonusTheStrikesSayWhatTheFigureShows) {
    startVaca();
    type("xz!");
    QLineEdit* box = window->controls().answerPanel->answerBox();
    type("vaca", box);
    dialogs.answer({true});
    QTest::keyClick(box, Qt::Key_Return);
    ASSERT_EQ(window->controls().statusLabel->text(), QStringLiteral("¡VICTORIA!"));
    ASSERT_EQ(strike(1), "");
    EXPECT_EQ(name(access(window->controls().gallows)), "Ahorcado: paso 2 de 8");
    EXPECT_EQ(name(access(window->controls().strikes)), "Strikes: 2 de 8");

    QStringList heard;
    walk(access(window.get()), [&heard](QAccessibleInterface* item) {
        if (!item->state().invisible) {
            heard << textsOf(item);
        }
    });
    EXPECT_TRUE(heard.contains(QStringLiteral("Jugando solo"))) << heard.join(" | ").toStdString();
}

TEST_F(BoardAccess, TheKeyboardReachesTheMenuAndEveryFocusedControlShowsAMark) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QTest::keyClick(window.get(), Qt::Key_F10, Qt::ShiftModifier);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions().front()->text(), "Nuevo partida");
    menu->close();

    // The mark is a border of the focused control's own, a dark one on
    // these light boxes: its edge turns from the box's white to black.
    const auto edge = [](QWidget* control) {
        return control->grab().toImage().pixelColor(1, control->height() / 2).lightness();
    };
    startVaca();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    type("!");
    QLineEdit* box = window->controls().answerPanel->answerBox();
    ASSERT_TRUE(box->hasFocus());
    EXPECT_LT(edge(box), 60);
    window->setFocus();
    EXPECT_GT(edge(box), 150) << "the mark goes with the focus";
    type("!");

    QTest::keyClick(window.get(), Qt::Key_H, Qt::ControlModifier);
    QListWidget* history = window->controls().historyPanel->list();
    ASSERT_TRUE(history->hasFocus());
    EXPECT_LT(edge(history), 60);
    QTest::keyClick(history, Qt::Key_Escape);
    EXPECT_FALSE(history->isVisible());
    EXPECT_TRUE(window->hasFocus()) << "typing goes back to the board";

    // The session panel covers the board: Tab keeps to its boxes.
    QTest::keyClick(window.get(), Qt::Key_F4);
    while (window->model().sessions().panel().animating()) {
        window->model().sessions().panel().tick();
    }
    window->sync();
    QLineEdit* key = window->controls().sessionPanel->keyBox();
    ASSERT_TRUE(key->hasFocus());
    EXPECT_LT(edge(key), 60);
    for (int tab = 0; tab < 3; ++tab) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_TRUE(window->controls().sessionPanel->isAncestorOf(QApplication::focusWidget()))
            << QApplication::focusWidget()->metaObject()->className();
    }
}

TEST_F(BoardAccess, TabReachesTheBoardsButtonsWithARingAndLettersStillGuess) {
    window.reset();
    random.queue({0.0});
    window =
        std::make_unique<BoardWindow>(shared, dialogs, announcer, random, sounds, desktop.lookUp);
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    EXPECT_EQ(QApplication::focusWidget(), window.get()) << "a board opens playing on Enter";
    QTest::keyClick(window.get(), Qt::Key_A, Qt::ControlModifier); // shows the "A" marker
    const BoardControls& ui = window->controls();
    const FocusRing* ring = FocusRing::of(window.get());
    ASSERT_NE(ring, nullptr);
    QSet<QWidget*> reached;
    for (int tab = 0; tab < 12; ++tab) {
        pressKey(Qt::Key_Tab);
        QWidget* focus = QApplication::focusWidget();
        if (focus != window.get()) {
            reached << focus;
            EXPECT_EQ(ring->target(), focus) << focus->metaObject()->className();
        }
    }
    for (QWidget* stop :
         {static_cast<QWidget*>(ui.autoMarker), static_cast<QWidget*>(ui.soundButton),
          static_cast<QWidget*>(ui.playPanel->playButton()),
          static_cast<QWidget*>(ui.smallPlayButton),
          static_cast<QWidget*>(ui.strikes->correctionLabel())}) {
        EXPECT_TRUE(reached.contains(stop)) << stop->metaObject()->className();
    }

    // Enter and Space press the focused button, not JUGAR.
    const bool sounds = shared.settings.sounds;
    ui.soundButton->setFocus(Qt::TabFocusReason);
    pressKey(Qt::Key_Return);
    EXPECT_NE(shared.settings.sounds, sounds);
    EXPECT_EQ(window->themeWindow(), nullptr);
    pressKey(Qt::Key_Space);
    EXPECT_EQ(shared.settings.sounds, sounds);

    ui.autoMarker->setFocus(Qt::TabFocusReason);
    pressKey(Qt::Key_Return);
    EXPECT_FALSE(shared.settings.autoPhrase);
    ui.playPanel->playButton()->setFocus(Qt::TabFocusReason);
    random.queue({0.05});
    pressKey(Qt::Key_Enter, Qt::KeypadModifier);
    ASSERT_NE(window->themeWindow(), nullptr);
    QTest::mouseClick(window->themeWindow()->acceptButton(), Qt::LeftButton);
    settle();
    // Whatever has the focus, letters are guesses.
    ui.smallPlayButton->setFocus(Qt::TabFocusReason);
    type("a", ui.smallPlayButton);
    EXPECT_EQ(name(cell(*window, 2)), "A");
    type("z", ui.smallPlayButton);
    EXPECT_EQ(strike(1), "Z");
    ui.strikes->correctionLabel()->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(ui.strikes->correctionLabel()->text(), "<") << "the focus offers the correction";
    dialogs.answer({false});
    pressKey(Qt::Key_Space);
    ASSERT_FALSE(dialogs.shown.empty());
    EXPECT_EQ(dialogs.shown.back().text, Round::correctionQuestion(3));
}

TEST_F(BoardAccess, TheSessionPanelIsPlayedFromTheKeysAlone) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    const auto openPanel = [this] {
        window->setFocus();
        QTest::keyClick(window.get(), Qt::Key_F4);
        while (window->model().sessions().panel().animating()) {
            window->model().sessions().panel().tick();
        }
        window->sync();
    };
    openPanel();
    SessionPanel* panel = window->controls().sessionPanel;
    ASSERT_TRUE(panel->keyBox()->hasFocus());
    // Round the panel: ">", " Cerrar ", the user and the name box.
    QList<QWidget*> stops;
    for (int tab = 0; tab < 4; ++tab) {
        pressKey(Qt::Key_Tab);
        stops << QApplication::focusWidget();
    }
    EXPECT_EQ(stops, (QList<QWidget*>{panel->enterButton(), panel->cancelLabel(),
                                      panel->userLabel(), panel->userBox()}));
    type("Beto", panel->userBox());
    random.queue({0.1}); // the new file's theme
    pressKey(Qt::Key_Return);
    EXPECT_EQ(shared.currentSlot, 1);
    EXPECT_TRUE(fs::exists(folder / "Beto.txt"));
    EXPECT_TRUE(window->model().commands().restartRequested());

    // The board opens again for Beto; the list takes him back to the main user.
    SetUpBoard();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    openPanel();
    panel = window->controls().sessionPanel;
    pressKey(Qt::Key_Tab, Qt::ShiftModifier);
    pressKey(Qt::Key_Tab, Qt::ShiftModifier);
    ASSERT_EQ(QApplication::focusWidget(), panel->userLabel());
    pressKey(Qt::Key_Space);
    ASSERT_TRUE(panel->sessionList()->hasFocus());
    ASSERT_EQ(panel->sessionList()->count(), 2);
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Up);
    pressKey(Qt::Key_Return);
    EXPECT_EQ(shared.currentSlot, 0);

    // Esc closes an unlocked panel and hands the keys back to the board.
    SetUpBoard();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    openPanel();
    pressKey(Qt::Key_Escape);
    EXPECT_TRUE(window->model().sessions().panel().closing());
    EXPECT_TRUE(window->hasFocus());
}

} // namespace
} // namespace quillora
