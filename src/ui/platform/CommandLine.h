// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QTranslator;

namespace quillora {

// The game has no options of its own, but answers the two anyone tries
// from a terminal, --help and --version (or -h and -v), in Spanish, there
// and then, and ends with 0. Nothing in the answer needs a window, so it
// works without a display as well. Any other command line starts the game,
// the toolkit's own options included.
void answerTerminalQuestions(int argc, char** argv);

// The name and version the terminal, the window system and the about box
// show.
void nameApplication();

// The toolkit's own texts (the standard buttons, the terminal's help) in
// Spanish like the rest of the game, whatever the desktop's language. The
// translator must outlive their use.
void speakSpanish(QTranslator& qtSpanish);

} // namespace quillora
