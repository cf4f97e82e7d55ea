// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "players/Players.h"
#include "support/BoardModelFixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace quillora {
namespace {

using Key = BoardModel::WindowKey;

// What a player who cannot see the board hears, played through the board's
// model with a recording screen reader.
class BoardNarrationTest : public BoardModelFixture {
protected:
    void type(std::u32string_view letters) {
        for (const char32_t c : letters) {
            model.keyTyped(Key::Character, c);
        }
    }
    // The upper-case words and single letters of a text, where a hidden
    // letter or a word of the phrase would show.
    static std::set<std::string> capitals(const std::string& text) {
        std::set<std::string> words;
        std::string word;
        for (const char c : text + " ") {
            if (c >= 'A' && c <= 'Z') {
                word += c;
            } else if (c >= 'a' && c <= 'z') {
                word += '-'; // part of a Spanish word such as "Tema"
            } else {
                if (!word.empty() && word.find('-') == std::string::npos) {
                    words.insert(word);
                }
                word.clear();
            }
        }
        return words;
    }
};

TEST_F(BoardNarrationTest, EachKeySaysWhatItDidAndNothingGivesAHiddenLetterAway) {
    model.round().startPhrase("LOS TRES CERDITOS", 1, "ANIMAL");
    EXPECT_EQ(announcer.last(), "Tema: ANIMAL. 3 palabras, 15 letras.");

    type(U"sws");
    model.keyTyped(Key::Character, U'\u00E1'); // á
    model.keyTyped(Key::Character, U'#');      // not a guess: nothing to say
    model.keyTyped(Key::DeadKey, U'\u00B4');
    model.keyTyped(Key::Character, U'e'); // composes "é"
    const std::vector<std::string> keys(announcer.said.begin() + 1, announcer.said.end());
    EXPECT_EQ(keys, (std::vector<std::string>{"S: 3 letras. 3 de 15.", "W: fallo, strike 1 de 8.",
                                              "S: ya probada.",
                                              "á: no se juega, las letras van sin acento.",
                                              "é: no se juega, las letras van sin acento."}));
    EXPECT_EQ(std::count(announcer.urgent.begin(), announcer.urgent.end(), true), 0)
        << "a newer letter may replace one not yet said";

    announcer.clear();
    model.keyTyped(Key::ReadBoard);
    EXPECT_EQ(announcer.last(),
              "Tema: ANIMAL. Frase: oculta oculta S, espacio, oculta oculta oculta S, espacio, "
              "oculta oculta oculta oculta oculta oculta oculta S. Letras reveladas: 3 de 15. "
              "Strikes: 1 de 8. Aciertos: S. Fallos: W. Puntos: 0.");
    model.keyTyped(Key::Character, U'y');
    EXPECT_EQ(announcer.last(), "Y griega: fallo, strike 2 de 8.");

    // The reading names no letter the board hides, nor a word of the phrase.
    std::set<std::string> heard;
    for (const std::string& text : announcer.said) {
        const std::set<std::string> words = capitals(text);
        heard.insert(words.begin(), words.end());
    }
    EXPECT_EQ(heard, (std::set<std::string>{"ANIMAL", "S", "W", "Y"}));
}

TEST_F(BoardNarrationTest, AWinOrALossIsSaidOnceWithThePhraseAndThePoints) {
    shared.normalPoints = 550;
    model.round().startPhrase("CASA", 1, "ANIMAL");
    type(U"cas");
    ASSERT_TRUE(model.round().state().over);
    EXPECT_EQ(announcer.last(), "¡VICTORIA! CASA. Más 400 puntos, total 950.");
    EXPECT_TRUE(announcer.urgent.back()) << "the end cuts in";
    const std::size_t saidAtTheEnd = announcer.said.size();
    EXPECT_EQ(announcer.said[saidAtTheEnd - 2], "A: 2 letras. 3 de 4.")
        << "the last letter leaves the word to the win";
    countScore();
    EXPECT_EQ(announcer.said.size(), saidAtTheEnd) << "the count of the score says nothing";

    model.keyTyped(Key::Enter); // NUEVA PARTIDA clears the board
    model.keyTyped(Key::ReadBoard);
    EXPECT_EQ(announcer.last(), "NUEVA PARTIDA. No hay frase en el tablero. Intro: JUGAR. "
                                "Puntos: 950.");

    model.round().startPhrase("LOS TRES CERDITOS", 1, "ANIMAL");
    type(U"sabfghjk");
    ASSERT_FALSE(model.round().state().over);
    model.keyTyped(Key::Character, U'm');
    EXPECT_EQ(announcer.last(),
              "¡MUERTO! La frase era: LOS TRES CERDITOS. Menos 800 puntos, total 150.");
    model.keyTyped(Key::ReadBoard);
    EXPECT_EQ(announcer.last(),
              "¡MUERTO! Tema: ANIMAL. Frase: L O S, espacio, T R E S, espacio, C E R D I T O S. "
              "Strikes: 8 de 8. Aciertos: S. Fallos: A, B, F, G, H, J, K, M. Puntos: 950.")
        << "the loss paints the phrase, and the score has yet to count down";
    countScore();

    // Without points the end has no points to tell; the clock warns once
    // and running out says why the game was lost.
    model.keyTyped(Key::Enter);
    shared.settings.pointsSystem = false;
    shared.settings.countdown = 2;
    model.round().startPhrase("OSO", 1, "ANIMAL");
    EXPECT_EQ(announcer.last(), "Tema: ANIMAL. 1 palabra, 3 letras. Tiempo: 15 segundos.");
    announcer.clear();
    for (int second = 0; second < 15; ++second) {
        model.tickCountdown();
    }
    EXPECT_EQ(announcer.said,
              (std::vector<std::string>{"Quedan 10 segundos.",
                                        "¡MUERTO! Se acabó el tiempo. La frase era: OSO."}));
    EXPECT_EQ(announcer.urgent, (std::vector<bool>{true, true}));
}

TEST_F(BoardNarrationTest, SurvivalWithoutPointsACorrectionAndTheTurnAreSaid) {
    shared.settings.survival = true;
    shared.survivalPoints = 300;
    model.round().startPhrase("CASA", 1, "ANIMAL");
    model.keyTyped(Key::Character, U'x');
    dialogs.answer({false});
    model.keyTyped(Key::Delete);
    EXPECT_EQ(announcer.last(), "X: fallo, strike 1 de 8.") << "a correction refused says nothing";
    dialogs.answer({true});
    model.keyTyped(Key::Delete);
    EXPECT_EQ(announcer.last(), "Strike borrado. Strikes: 0 de 8.");

    // A wrong whole answer loses at once, and the count ends on no points.
    model.round().answerBox().toggle();
    model.round().answerBox().setText("COSA");
    dialogs.answer({true});
    model.round().answerBox().submit();
    EXPECT_EQ(announcer.last(),
              "¡MUERTO! Respuesta equivocada. La frase era: CASA. Menos 1000 puntos, total 0.");
    countScore();
    EXPECT_EQ(announcer.last(), "Sin puntos. Reinicia el juego o consigue puntos para volver a "
                                "jugar en este modo.");
    EXPECT_TRUE(announcer.urgent.back());

    // Several players: each letter says whose turn it is now.
    shared.settings.survival = false;
    model.keyTyped(Key::Enter);
    shared.current().playerNames = {"Ana", "Beto", "Ciro"};
    setUpRoster(shared, true, 3);
    model.friendPhrase("LUNA", "CIELO");
    EXPECT_EQ(announcer.last(), "Tema: CIELO. 1 palabra, 4 letras. Turno de Ana.");
    type(U"l");
    EXPECT_EQ(announcer.last(), "L: 1 letra. 1 de 4. Turno de Beto.");
    model.turn().moveForward();
    EXPECT_EQ(announcer.last(), "Turno de Ciro.");
    model.turn().toggleFreeTurn();
    EXPECT_EQ(announcer.last(), "Turno libre.");
    type(U"u");
    EXPECT_EQ(announcer.last(), "U: 1 letra. 2 de 4.") << "a free turn is nobody's";
    type(U"na");
    model.keyTyped(Key::ReadBoard);
    EXPECT_EQ(announcer.last(), "¡VICTORIA! Tema: sin tema. Frase: L U N A. Strikes: 0 de 8. "
                                "Aciertos: L, U, N, A. Fallos: ninguno.")
        << "a friend's game ends under no theme, and with no points to tell";
}

} // namespace
} // namespace quillora
