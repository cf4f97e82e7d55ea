// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Colour.h"

#include <string>

namespace quillora {

// The options of the current session, one per line of its configuration
// file. The defaults are those of a fresh file.
struct Settings {
    std::string fondo;               // 1: background picture file
    std::string carpetaFondo;        // 2: its folder
    int estilo = 1;                  // 3: letter style 0..4
    bool letraOpaca = false;         // 4
    bool letraBlanca = false;        // 5
    bool lineaBlanca = false;        // 6
    bool tamanoReal = false;         // 7
    bool sonidos = true;             // 8
    bool fraseAutomatica = false;    // 9
    bool animacion = false;          // 10
    int tema = 1;                    // 11: theme number 1..50
    bool sistemaPuntos = true;       // 12
    bool supervivencia = false;      // 13
    int contratiempo = 0;            // 14: 0 off, 1 countdown, 2 hard countdown
    std::string nombre;              // 15: user name
    bool usarEnciclopedia = false;   // 16
    bool masPuntosNegativos = false; // 17
    Rgb colorJuego = kDefaultBlue;   // 18
    bool sinBotonJugar = false;      // 19
    bool tecladoPermanente = false;  // 20
};

} // namespace quillora
