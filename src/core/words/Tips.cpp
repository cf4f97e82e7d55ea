// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "words/Tips.h"

#include "ports/Random.h"

#include <array>
#include <cmath>

namespace quillora {

namespace {

constexpr std::array<std::string_view, kTipCount> kTips{
    "Juegue con el teclado de la computadora si le cansa hacer tanto clic.",
    "Si quiere retirar el botón 'JUGAR', haga clic derecho sobre él. Para restaurarlo haga clic "
    "donde se situaba.",
    "Para eliminar un strike, haga clic en el campo del octavo strike, el error debe ser reciente.",
    "Al seleccionar un tema antes de jugar, haga clic sin soltar para jugar directamente.",
    "Si ya se sabe la respuesta, presione 'Escribir', puede ganar más puntos si hay pocas letras "
    "reveladas.",
    "Para jugar sin límites, juegue sin el modo supervivencia.",
    "Para conocer una palabra del juego, haga clic en '¿Qué es eso?'.",
    "Cuando el botón 'JUGAR' no esté, haga clic en cualquier sitio vacío, hará lo mismo.",
    "Para retirar 'Frase automática' y seleccionar otro tema, hacer clic en el pequeño botón 'A'.",
    "Para ver todas las palabras que se han jugado, revice el historial (Ctrl+h).",
    "Para retirar el tour temático, hacer clic en el pequeño botón 'T'.",
};

constexpr float kRange = 22.0F;
constexpr float kHalf = 2.0F;

} // namespace

std::string_view tipText(int number) {
    if (number < 0 || number >= kTipCount) {
        return {};
    }
    return kTips[static_cast<std::size_t>(number)];
}

int tipNumberOf(double fraction) {
    float f = static_cast<float>(fraction);
    // A double a hair under 1 rounds up to 1 in single precision, which would
    // give 11; the generator's own single never reached 1.
    if (f >= 1.0F) {
        f = std::nextafter(1.0F, 0.0F);
    }
    if (!(f > 0.0F)) {
        f = 0.0F; // nothing below 0, and no NaN, reaches the conversion
    }
    return static_cast<int>(f * kRange / kHalf);
}

int drawTipNumber(Random& random) {
    int number = 0;
    while (number == 0) {
        random.reseed();
        number = tipNumberOf(random.fraction());
    }
    return number;
}

} // namespace quillora
