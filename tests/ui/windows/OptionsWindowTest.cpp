// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/options/OptionsWindow.h"

#include "models/start/StartScreenModel.h"
#include "state/SharedState.h"
#include "storage/ConfigFile.h"
#include "support/AccessibleTree.h"
#include "support/Fakes.h"
#include "support/Keys.h"
#include "support/TempFolder.h"
#include "windows/QtColour.h"
#include "windows/options/CheckPicture.h"
#include "windows/options/ColourEditor.h"
#include "windows/options/RawLinesPage.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace quillora {
namespace {

using Page = OptionsModel::Page;
using Channel = ColourEditorModel::Channel;

class OptionsWindowTest : public ::testing::Test {
protected:
    OptionsWindowTest() {
        shared.dataFolder = folder.path();
        loadAtStart(shared);
        std::vector<std::string> lines{"",  "",  "0", "0", "0",   "0", "0", "1",        "0", "0",
                                       "7", "1", "0", "0", "Ana", "0", "0", "15759390", "0", "0"};
        EXPECT_TRUE(writeConfigLines(file(), lines));
        clearForBoardLoad(shared);
        readSessionFile(shared, random);
        applyLineValues(shared);
    }
    void open() {
        window = std::make_unique<OptionsWindow>(shared, dialogs, random);
        window->onMenu = [this] { ++menus; };
        window->show();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
        window->pageList()->setFocus();
    }
    std::string file() const { return shared.currentSession().filePath; }
    std::string savedLine(int line) const { return storedLine(file(), line); }
    void showPage(Page page) { window->pageList()->setCurrentRow(static_cast<int>(page)); }

    TempFolder folder{"quillora-options-window"};
    SharedState shared;
    ScriptedDialogs dialogs;
    QueuedRandom random;
    std::unique_ptr<OptionsWindow> window;
    int menus = 0;
};

TEST_F(OptionsWindowTest, AClickOnACheckBoxReachesTheRulesAndRepaintsThePicture) {
    open();
    CheckPicture* survival = window->checkBox(1);
    CheckPicture* points = window->checkBox(0);
    ASSERT_TRUE(survival->isVisible());
    EXPECT_TRUE(points->ticked());
    QTest::mouseClick(points, Qt::LeftButton);
    EXPECT_FALSE(window->model().choices().box(0));
    const QImage empty = survival->grab().toImage();

    QTest::mouseClick(survival, Qt::LeftButton);
    EXPECT_TRUE(window->model().choices().box(1));
    EXPECT_TRUE(survival->ticked());
    EXPECT_TRUE(points->ticked()) << "survival needs the points";
    EXPECT_NE(survival->grab().toImage(), empty) << "the ticked picture shows";

    // A screen reader hears a check box by its caption, and whether it is on.
    QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(survival);
    ASSERT_NE(heard, nullptr);
    EXPECT_EQ(heard->role(), QAccessible::CheckBox);
    EXPECT_EQ(heard->text(QAccessible::Name), "Modo supervivencia");
    EXPECT_TRUE(heard->state().checked);
}

TEST_F(OptionsWindowTest, ARefusedClickLeavesThePictureAsItWas) {
    open();
    showPage(Page::Visual);
    ASSERT_EQ(window->field(OptionsModel::kStyleField)->text(), "0");
    window->field(OptionsModel::kStyleField)->setFocus();
    QTest::keyClick(window->field(OptionsModel::kStyleField), Qt::Key_Backspace);
    QTest::keyClick(window->field(OptionsModel::kStyleField), Qt::Key_1);
    QTest::mouseClick(window->checkBox(4), Qt::LeftButton);
    EXPECT_FALSE(window->checkBox(4)->ticked());
    ASSERT_EQ(dialogs.shown.size(), 1U);
    EXPECT_TRUE(window->page(Page::Visual)->isVisible());
}

TEST_F(OptionsWindowTest, SaveWritesTheFileAndMenuHandsOver) {
    open();
    showPage(Page::Functional);
    QTest::mouseClick(window->checkBox(9), Qt::LeftButton);
    QTest::mouseClick(window->saveButton(), Qt::LeftButton);
    EXPECT_EQ(savedLine(16), "1");
    EXPECT_TRUE(shared.settings.useEncyclopedia);

    QTest::mouseClick(window->menuButton(), Qt::LeftButton);
    EXPECT_EQ(menus, 0) << "the hand-over tick first";
    ASSERT_TRUE(window->outTimer()->isActive());
    window->outTimer()->setInterval(0);
    window->outTimer()->start();
    QCoreApplication::processEvents();
    EXPECT_EQ(menus, 1);
    for (Page page : {Page::Personal, Page::Visual, Page::Functional, Page::RawLines}) {
        EXPECT_FALSE(window->page(page)->isVisible());
    }
}

TEST_F(OptionsWindowTest, EnterPressesTheFocusedButtonAsSpaceDoes) {
    open();
    showPage(Page::Functional);
    window->checkBox(9)->setFocus(Qt::TabFocusReason);
    pressKey(Qt::Key_Return);
    EXPECT_TRUE(window->model().choices().box(9));
    window->saveButton()->setFocus(Qt::TabFocusReason);
    pressKey(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(savedLine(16), "1");
}

TEST_F(OptionsWindowTest, KeysOnThePageListFollowTheModel) {
    open();
    QTest::keyClick(window->pageList(), Qt::Key_S);
    EXPECT_TRUE(window->checkBox(1)->ticked());
    QTest::keyClick(window->pageList(), Qt::Key_N);
    QLineEdit* name = window->field(OptionsModel::kNameField);
    EXPECT_TRUE(name->hasFocus());
    EXPECT_EQ(name->selectedText(), "Ana");
    EXPECT_EQ(window->pageList()->currentRow(), 0) << "typed keys search no page";

    window->pageList()->setFocus();
    QTest::keyClick(window->pageList(), Qt::Key_Down);
    EXPECT_TRUE(window->page(Page::Visual)->isVisible());
    QTest::keyClick(window->pageList(), Qt::Key_G);
    EXPECT_TRUE(window->colourEditor()->isVisible());
    EXPECT_TRUE(window->colourEditor()->numberBox(Channel::Green)->hasFocus());
    EXPECT_EQ(window->editorButton()->text(),
              qs(std::string(window->model().colourEditor().buttonCaption())))
        << "the button now closes the editor";

    window->pageList()->setFocus();
    QTest::keyClick(window->pageList(), Qt::Key_U);
    EXPECT_EQ(savedLine(13), "1");
}

TEST_F(OptionsWindowTest, EveryPageIsHeardAndItsBoxesTickFromTheKeys) {
    open();
    for (Page page : {Page::Personal, Page::Visual, Page::Functional, Page::RawLines}) {
        showPage(page);
        if (page == Page::Visual) {
            QTest::mouseClick(window->editorButton(), Qt::LeftButton);
        }
        const AccessibleTree tree(window.get());
        EXPECT_EQ(tree.root()->text(QAccessible::Name), "Configuración:");
        EXPECT_EQ(tree.unheardControls(), "") << "page " << static_cast<int>(page);
    }
    // The open editor's button is heard by what it does now, not by its caption.
    QPushButton* editorButton = window->editorButton();
    EXPECT_NE(editorButton->accessibleName(), editorButton->text());
    EXPECT_TRUE(editorButton->toolTip().contains(editorButton->accessibleName()));

    // From the page list, Tab reaches the first box of the page and Space
    // ticks it by the rules: survival takes the points along.
    showPage(Page::Personal);
    window->pageList()->setFocus();
    pressKey(Qt::Key_Tab);
    pressKey(Qt::Key_Tab);
    CheckPicture* survival = window->checkBox(1);
    ASSERT_EQ(QApplication::focusWidget(), survival);
    pressKey(Qt::Key_Space);
    EXPECT_TRUE(window->model().choices().box(1));
    EXPECT_TRUE(QAccessible::queryAccessibleInterface(survival)->state().checked);
    pressKey(Qt::Key_Tab, Qt::ShiftModifier);
    pressKey(Qt::Key_Space);
    EXPECT_FALSE(window->model().choices().box(0));
    EXPECT_FALSE(window->model().choices().box(1)) << "no survival without points";

    pressKey(Qt::Key_Escape);
    EXPECT_TRUE(window->outTimer()->isActive()) << "Esc leaves as Menú does";
}

TEST_F(OptionsWindowTest, TheColourRepaintsTheWindow) {
    open();
    showPage(Page::Visual);
    QLineEdit* code = window->field(OptionsModel::kColourField);
    code->setFocus();
    code->selectAll();
    QTest::keyClicks(code, "255");
    EXPECT_EQ(shared.palette.gameColour, (Rgb{255, 0, 0}));
    EXPECT_TRUE(code->styleSheet().contains(css(Rgb{255, 0, 0})));
    EXPECT_TRUE(window->menuButton()->styleSheet().contains(css(Rgb{255, 0, 0})));

    QTest::mouseClick(window->editorButton(), Qt::LeftButton);
    ColourEditor* editor = window->colourEditor();
    ASSERT_TRUE(editor->isVisible());
    // The editor still holds the colour the page opened with.
    EXPECT_EQ(editor->numberBox(Channel::Red)->value(), kDefaultBlue.red);
    editor->slider(Channel::Blue)->setValue(200);
    EXPECT_EQ(editor->numberBox(Channel::Blue)->value(), 200);
    const Rgb mixed{kDefaultBlue.red, kDefaultBlue.green, 200};
    EXPECT_EQ(editor->codeBox()->text(), QString::number(mixed.packed()));
    QTest::mouseClick(editor->applyButton(), Qt::LeftButton);
    EXPECT_EQ(code->text(), QString::number(mixed.packed()));
    EXPECT_TRUE(window->menuButton()->styleSheet().contains(css(mixed)));

    QTest::mouseClick(editor->defaultButton(), Qt::LeftButton);
    EXPECT_EQ(editor->slider(Channel::Red)->value(), kDefaultBlue.red);
    EXPECT_EQ(code->text(), QString::number(kDefaultBlue.packed()));

    // The red lamp on the page that writes raw lines.
    showPage(Page::RawLines);
    EXPECT_TRUE(window->saveButton()->styleSheet().contains(css(kRedLamp)));
}

TEST_F(OptionsWindowTest, TheFreePageEditsTheSelectedLine) {
    open();
    showPage(Page::RawLines);
    RawLinesPage* libre = window->rawLinesPage();
    libre->labelList()->setCurrentRow(12);
    EXPECT_EQ(libre->valueList()->currentRow(), 12);
    EXPECT_EQ(libre->valueBox()->text(), "0");
    libre->valueBox()->selectAll();
    QTest::keyClicks(libre->valueBox(), "2");
    EXPECT_EQ(libre->valueList()->item(12)->text(), "2");
    QTest::mouseClick(window->saveButton(), Qt::LeftButton);
    EXPECT_EQ(savedLine(13), "2");
    EXPECT_TRUE(window->checkBox(1)->ticked());
}

} // namespace
} // namespace quillora
