// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "players/Players.h"
#include "support/AccessibleTree.h"
#include "support/BoardFixture.h"
#include "support/Draws.h"
#include "support/Keys.h"
#include "windows/friendPhrase/FriendPhraseWindow.h"
#include "windows/players/PlayersWindow.h"
#include "windows/themesList/ThemesListWindow.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTimer>

#include <vector>

namespace quillora {
namespace {

// The windows the board opens before a game, as a player who uses only the
// keys, or a screen reader, finds them; and the phrase they must keep to
// themselves.
class PhraseWindows : public BoardWindowTest {
protected:
    void SetUp() override {
        BoardWindowTest::SetUp();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    static void activate(QWidget* opened) { ASSERT_TRUE(takeKeys(opened)); }
};

TEST_F(PhraseWindows, TheDrawnPhraseIsNeverHeardAndTheThemesAreChosenFromTheKeys) {
    random.queue({phrase(3)});
    QTest::keyClick(window.get(), Qt::Key_Return);
    ThemeWindow* words = window->themeWindow();
    ASSERT_NE(words, nullptr);
    activate(words);
    const QString drawn =
        QString::fromStdString(window->model().round().phraseChoice().drawnPhrase());
    ASSERT_FALSE(drawn.isEmpty());
    {
        const AccessibleTree tree(words);
        EXPECT_EQ(tree.root()->text(QAccessible::Name), "EL TEMA ES:");
        // Read with the title as the window opens, before any control.
        EXPECT_EQ(tree.root()->text(QAccessible::Description), words->themeLabel()->text());
        EXPECT_EQ(tree.unheardControls(), "");
        const QString heard = tree.everything();
        EXPECT_TRUE(heard.contains(words->themeLabel()->text())) << "the walk hears the theme";
        EXPECT_FALSE(heard.contains(drawn, Qt::CaseInsensitive)) << drawn.toStdString();
    }

    // Enter would play: the theme is changed from the label the keys reach.
    EXPECT_EQ(QApplication::focusWidget(), words->acceptButton());
    pressKey(Qt::Key_Tab, Qt::ShiftModifier);
    pressKey(Qt::Key_Tab, Qt::ShiftModifier);
    ASSERT_EQ(QApplication::focusWidget(), words->themeLabel());
    pressKey(Qt::Key_Space);
    ThemesListWindow* list = words->themesList();
    ASSERT_NE(list, nullptr);
    activate(list);
    {
        const AccessibleTree tree(list);
        EXPECT_EQ(tree.root()->text(QAccessible::Name), "Lista de temas:");
        EXPECT_EQ(tree.unheardControls(), "");
    }
    ASSERT_EQ(QApplication::focusWidget(), list->list());
    pressKey(Qt::Key_Space);
    pressKey(Qt::Key_Down);
    pressKey(Qt::Key_Space);
    EXPECT_EQ(list->list()->selectedItems().size(), 2);
    random.queue({theme(2), phrase(6)});
    pressKey(Qt::Key_Return);
    settle();
    EXPECT_EQ(words->themesList(), nullptr);
    EXPECT_TRUE(shared.current().selectedThemes[1] && shared.current().selectedThemes[2]);
    EXPECT_EQ(words->themeLabel()->text(), "????");
    EXPECT_EQ(words->accessibleDescription(), "????");
    const QString redrawn =
        QString::fromStdString(window->model().round().phraseChoice().drawnPhrase());
    EXPECT_FALSE(AccessibleTree(words).everything().contains(redrawn, Qt::CaseInsensitive));

    activate(words);
    EXPECT_EQ(QApplication::focusWidget(), words->acceptButton()) << "back to play the new draw";
    pressKey(Qt::Key_Return);
    settle();
    EXPECT_EQ(window->themeWindow(), nullptr);
    EXPECT_EQ(window->controls().statusLabel->text(), "JUGANDO...");
}

TEST_F(PhraseWindows, TheFriendSeesHisPhraseWhileAScreenReaderHearsAPasswordBox) {
    setUpRoster(shared, true, 3);
    shared.sessions[0].playerNames = {"Ana", "Beto", "Ciro"};
    SetUpBoard();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));

    // The names first: Tab runs along the rows, Space ticks, Esc keeps them.
    window->openPlayersWindow();
    PlayersWindow* names = window->namesWindow();
    ASSERT_NE(names, nullptr);
    activate(names);
    {
        const AccessibleTree tree(names);
        EXPECT_EQ(tree.root()->text(QAccessible::Name), "Jugadores:");
        EXPECT_EQ(tree.unheardControls(), "");
        EXPECT_EQ(tree.usableControls(), 6) << "three rows of a box and a tick";
    }
    ASSERT_EQ(QApplication::focusWidget(), names->nameBox(1));
    pressKey(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), names->checkBox(1));
    pressKey(Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), names->nameBox(2));
    type(QStringLiteral("Bea"), names->nameBox(2));
    pressKey(Qt::Key_Escape);
    QCoreApplication::processEvents();
    EXPECT_EQ(shared.sessions[0].playerNames[1], "Bea");
    ASSERT_TRUE(window->isVisible());
    activate(window.get());

    QTest::keyClick(window.get(), Qt::Key_Return);
    FriendPhraseWindow* friendWindow = window->friendWindow();
    ASSERT_NE(friendWindow, nullptr);
    activate(friendWindow);
    QLineEdit* phraseBox = friendWindow->phraseBox();
    ASSERT_EQ(QApplication::focusWidget(), phraseBox);
    type(QStringLiteral("zorro gris"), phraseBox);
    EXPECT_EQ(phraseBox->echoMode(), QLineEdit::Normal);
    EXPECT_EQ(phraseBox->displayText(), "zorro gris") << "the friend sees what he types";
    EXPECT_EQ(friendWindow->previewRow(1)->text(), "ZORRO GRIS");

    const AccessibleTree tree(friendWindow);
    EXPECT_EQ(tree.root()->text(QAccessible::Name), "LA FRASE ES:");
    EXPECT_EQ(tree.unheardControls(), "");
    const QString heard = tree.everything();
    EXPECT_TRUE(heard.contains("(Ninguno)")) << "the walk reads what the boxes hold";
    EXPECT_FALSE(heard.contains("zorro", Qt::CaseInsensitive));
    QAccessibleInterface* box = tree.find(phraseBox);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->role(), QAccessible::EditableText);
    EXPECT_TRUE(box->state().passwordEdit);
    EXPECT_EQ(box->text(QAccessible::Value), QString(10, QLatin1Char('*')));
    EXPECT_EQ(box->textInterface(), nullptr);

    // Tab to " Aceptar ", and Enter on it plays.
    pressKey(Qt::Key_Tab);
    ASSERT_EQ(QApplication::focusWidget(), friendWindow->acceptButton());
    pressKey(Qt::Key_Return);
    EXPECT_EQ(window->controls().themeBox->themeLabel()->text(), "Frase de Ana");
    EXPECT_EQ(window->controls().statusLabel->text(), "JUGANDO...");
}

// Space on a box and a screen reader's toggle tick as a click does: two
// ticks swap the names and clear both, and a third tick is undone at once.
TEST(PlayersWindowSwap, TheKeysAndAScreenReaderTickAsTheMouseDoes) {
    SharedState shared;
    setUpRoster(shared, true, 3);
    shared.sessions[0].playerNames = {"Ana", "Beto", "Ciro"};
    PlayersWindow names(shared, [] {});
    names.show();
    ASSERT_TRUE(takeKeys(&names));
    names.checkBox(1)->setFocus(Qt::TabFocusReason);
    pressKey(Qt::Key_Space);
    EXPECT_TRUE(names.model().checked(1));
    QAccessibleInterface* third = QAccessible::queryAccessibleInterface(names.checkBox(3));
    ASSERT_NE(third->actionInterface(), nullptr);
    third->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(names.model().checked(3));
    ASSERT_TRUE(names.changeTimer()->isActive());

    names.checkBox(2)->setFocus(Qt::TabFocusReason);
    pressKey(Qt::Key_Space);
    EXPECT_FALSE(names.checkBox(2)->isChecked() || names.model().checked(2));

    names.changeTimer()->setInterval(0);
    names.changeTimer()->start();
    QCoreApplication::processEvents();
    EXPECT_EQ(names.nameBox(1)->text(), "Ciro");
    EXPECT_EQ(names.nameBox(3)->text(), "Ana");
    EXPECT_FALSE(names.checkBox(1)->isChecked() || names.checkBox(3)->isChecked());
}

// However many play, the names window shows one row for each, every row
// whole inside the window, none over another, and no room for one more.
TEST(PlayersWindowRows, EachPlayerHasARowInsideTheWindowAndNoneOverlaps) {
    for (int count = 1; count <= PlayersModel::kRows; ++count) {
        SCOPED_TRACE(count);
        SharedState shared;
        setUpRoster(shared, count > 1, count);
        PlayersWindow names(shared, [] {});
        std::vector<QRect> shown;
        for (int box = 1; box <= PlayersModel::kRows; ++box) {
            QWidget* row = names.nameBox(box)->parentWidget();
            if (!row->isVisibleTo(&names)) {
                EXPECT_GT(box, count);
                EXPECT_FALSE(names.rect().contains(row->geometry())) << "room left for row " << box;
                continue;
            }
            EXPECT_TRUE(names.rect().contains(row->geometry())) << "row " << box;
            EXPECT_TRUE(row->rect().contains(names.nameBox(box)->geometry())) << "row " << box;
            EXPECT_TRUE(row->rect().contains(names.checkBox(box)->geometry())) << "row " << box;
            for (const QRect& other : shown) {
                EXPECT_FALSE(other.intersects(row->geometry())) << "row " << box;
            }
            shown.push_back(row->geometry());
        }
        EXPECT_EQ(shown.size(), static_cast<std::size_t>(count));
    }
}

} // namespace
} // namespace quillora
