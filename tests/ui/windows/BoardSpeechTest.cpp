// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/BoardFixture.h"
#include "support/SpokenEvents.h"

namespace quillora {
namespace {

// The board played by keys with the game's own announcer behind it: what a
// screen reader would speak of the events the game sends, from the key to
// the notification that shows.
class BoardSpeech : public BoardWindowTest {
protected:
    void SetUp() override { openBoard(); }
    void openBoard() {
        window.reset();
        random.queue({0.0});
        window = std::make_unique<BoardWindow>(shared, dialogs, spoken.announcer(), random, sounds,
                                               desktop.lookUp);
        window->show();
        window->activateWindow();
        window->setFocus();
    }
    // What is said once the announcer's wait is over, since the last call.
    QStringList heard() {
        if (spoken.announcer().timer().isActive()) {
            spoken.announcer().tick();
        }
        QStringList said = spoken.said();
        spoken.clear();
        return said;
    }

    SpokenEvents spoken;
};

TEST_F(BoardSpeech, AHitAMissAndAWinAreEachSaidOnceAndTheLettersStayHiddenTillTheEnd) {
    startVaca();
    ASSERT_EQ(heard().size(), 1) << "the theme as the phrase is laid";

    type("a");
    EXPECT_EQ(heard(), QStringList{QStringLiteral("A: 2 letras. 2 de 4.")});
    type("e");
    const QStringList miss = heard();
    ASSERT_EQ(miss.size(), 1);
    EXPECT_TRUE(miss[0].startsWith(QStringLiteral("E: fallo"))) << miss[0].toStdString();
    EXPECT_TRUE(miss[0].contains(QStringLiteral("1 de 8"))) << miss[0].toStdString();

    // Typed before the first is said, the second letter takes its place.
    type("v");
    type("x");
    const QStringList fast = heard();
    ASSERT_EQ(fast.size(), 1);
    EXPECT_TRUE(fast[0].startsWith(QStringLiteral("X: fallo"))) << fast[0].toStdString();

    type("c");
    const QStringList won = heard();
    ASSERT_EQ(won.size(), 1) << won.join(" | ").toStdString();
    EXPECT_TRUE(won[0].startsWith(QStringLiteral("¡VICTORIA!"))) << won[0].toStdString();
    EXPECT_TRUE(won[0].contains(QStringLiteral("VACA"))) << won[0].toStdString();
    // The points counted on screen step after step; the win is not said again.
    for (int i = 0; i < 1000 && window->model().scoring().counting(); ++i) {
        window->model().tickScore();
        window->sync();
    }
    EXPECT_FALSE(window->model().scoring().counting());
    EXPECT_TRUE(heard().isEmpty());
}

TEST_F(BoardSpeech, ALossIsSaidOnceWithThePhraseAndNoLetterBefore) {
    startVaca();
    heard();
    QStringList before;
    for (const char* letter : {"b", "d", "e", "f", "g", "h", "i"}) {
        type(QString::fromLatin1(letter));
        before << heard();
    }
    EXPECT_EQ(before.size(), 7);
    EXPECT_FALSE(before.join(' ').contains(QStringLiteral("VACA")));
    type("j");
    const QStringList lost = heard();
    ASSERT_EQ(lost.size(), 1) << lost.join(" | ").toStdString();
    EXPECT_TRUE(lost[0].startsWith(QStringLiteral("¡MUERTO!"))) << lost[0].toStdString();
    EXPECT_TRUE(lost[0].contains(QStringLiteral("VACA"))) << lost[0].toStdString();
}

} // namespace
} // namespace quillora
