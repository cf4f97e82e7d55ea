// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/About.h"

#include "desktop/BuildConfig.h"
#include "ports/Dialogs.h"

namespace quillora {

std::string aboutText() {
    return std::string("Ondrel Works\r\n") + std::string(kAppTitle) + ": Versión " +
           build::kVersion +
           "\r\n\r\n"
           "Software libre: puede redistribuirlo y modificarlo bajo los términos de la "
           "Licencia Pública General de GNU, versión 3 o posterior. Se distribuye sin "
           "ninguna garantía.\r\n\r\n"
           "Lleva consigo:\r\n"
           "Quicksand Bold y Comic Neue Bold: SIL Open Font License 1.1\r\n"
           "Qt 6: GNU LGPL 3\r\n"
           "libsndfile y alsa-lib: GNU LGPL 2.1 o posterior";
}

void showAbout(Dialogs& dialogs) {
    dialogs.about(std::string(kAppTitle), aboutText());
}

} // namespace quillora
