// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillora {

// The game has no options of its own, but answers the two anyone tries
// from a terminal, --help and --version (and -h, -v, --help-all), there
// and then, and ends with 0. Nothing in the answer needs a window, so it
// works without a display as well. Any other command line starts the game,
// the toolkit's own options included.
void answerTerminalQuestions(int argc, char** argv);

// The name and version the terminal, the window system and the about box
// show.
void nameApplication();

} // namespace quillora
