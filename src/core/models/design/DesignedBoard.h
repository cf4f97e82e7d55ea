// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>

namespace quillora {

// What the design window may do to the board behind it, and nothing more:
// show a picture without storing it, take the pictures dropped on the board
// while it is open, and repaint the letters in the style being tried.
class DesignedBoard {
public:
    virtual ~DesignedBoard() = default;

    // The background picture shown now, which need not be the stored one.
    virtual const std::string& shownPicture() const = 0;
    virtual void showPicture(const std::string& path) = 0;
    // An empty taker gives the board its drops back.
    virtual void handPicturesTo(std::function<void(const std::string&)> taker) = 0;
    // The letter style and flags as they now stand in the options.
    virtual void applyLetterStyle() = 0;
};

} // namespace quillora
