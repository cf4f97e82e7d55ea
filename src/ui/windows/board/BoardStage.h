// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/TwipScale.h"

#include <QRect>
#include <QSize>

namespace quillora {

// The scale at which the whole board, its keyboard out, fits a screen: its
// width or its height is the screen's.
double fullScreenFactor(QSize screen);

// Where the board's controls stand in its window: the whole window, or,
// full screen, the board's size at the scale in the middle of the screen,
// with room below for the keyboard whether or not it is out yet.
QRect stageRect(QSize window, bool fullScreen, int boardHeightTwips, TwipScale scale);

} // namespace quillora
