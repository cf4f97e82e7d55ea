// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/board/BoardStage.h"

#include "models/board/BoardModel.h"
#include "models/board/KeyboardSlide.h"

#include <algorithm>

namespace quillora {

namespace {
constexpr int kTallestBoardTwips =
    BoardModel::kBaseHeightTwips + KeyboardSlide::kKeyboardExtraTwips;
} // namespace

double fullScreenFactor(QSize screen) {
    return std::min(screen.width() * static_cast<double>(kTwipsPerPixel) / BoardModel::kWidthTwips,
                    screen.height() * static_cast<double>(kTwipsPerPixel) / kTallestBoardTwips);
}

QRect stageRect(QSize window, bool fullScreen, int boardHeightTwips, TwipScale scale) {
    if (!fullScreen) {
        return QRect(QPoint(), window);
    }
    const QSize board(scale.px(BoardModel::kWidthTwips), scale.px(boardHeightTwips));
    return QRect(QPoint((window.width() - board.width()) / 2,
                        (window.height() - scale.px(kTallestBoardTwips)) / 2),
                 board);
}

} // namespace quillora
