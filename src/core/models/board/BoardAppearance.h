// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/BoardLook.h"
#include "models/design/DesignedBoard.h"
#include "state/SharedState.h"

#include <functional>
#include <string>

namespace quillora {

// How the board looks under the current options: the cells' letter style,
// the missed letters' colour, the window's background colour, and the
// background picture, which a drop or the design window may show for a
// while without storing it.
class BoardAppearance final : public DesignedBoard {
public:
    explicit BoardAppearance(const SharedState& shared) : m_shared(shared) {}

    CellLook cellLook(int cell) const { return styledCell(m_shared.settings.letters(), cell); }
    Rgb missColour() const {
        return quillora::missColour(m_shared.settings.letters(), m_shared.palette);
    }
    Rgb background() const { return windowBackground(m_shared.settings.letters()); }
    // The label over the phrase wears the style of the cells.
    const CellLook& phraseLabel() const { return m_phraseLabel; }
    Rgb gameColour() const { return m_shared.palette.gameColour; }
    Rgb shade() const { return shadeOf(m_shared.palette.gameColour); }
    LampColours lampColours(Lamp lamp) const {
        return quillora::lampColours(lamp, m_shared.palette);
    }
    // The countdown's figures: white while time is plenty, the game colour
    // when it runs short.
    Rgb countdownColour(bool urgent) const { return urgent ? gameColour() : kWhite; }
    bool pictureRealSize() const { return m_shared.settings.realSize; }

    // The stored picture, as the options hold it after a load.
    void showStoredPicture() { m_picture = m_shared.settings.backgroundPicture; }
    // A picture dropped on the board: shown at once, or handed to the design
    // window while it is open, which shows it only if it can be read.
    void dropPicture(const std::string& path);

    const std::string& shownPicture() const override { return m_picture; }
    void showPicture(const std::string& path) override { m_picture = path; }
    void handPicturesTo(std::function<void(const std::string&)> taker) override {
        m_pictureTaker = std::move(taker);
    }
    void applyLetterStyle() override {
        m_phraseLabel = phraseLabelLook(m_shared.settings.letters(), m_phraseLabel);
    }

private:
    const SharedState& m_shared;
    CellLook m_phraseLabel = styledCell(LetterStyle{}, 1);
    std::string m_picture;
    std::function<void(const std::string&)> m_pictureTaker;
};

} // namespace quillora
