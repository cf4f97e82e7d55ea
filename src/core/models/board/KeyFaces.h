// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/BoardLook.h"

#include <string>

namespace quillora {

class Round;
struct Palette;

// The on-screen keyboard under the mouse: which key is lit and which is held
// down, and the label over the eighth strike mark, which turns into the
// strike correction's "<" while the mouse is on it. A click completes only on
// the key it began on.
class KeyFaces {
public:
    KeyFaces(Round& round, const Palette& palette) : m_round(round), m_palette(palette) {}

    void hover(int key);
    void leave();
    void press(int key) { m_pressed = key; }
    // The release of the mouse anywhere, over the key given or none (-1).
    void release(int keyUnderMouse);
    KeyLook face(int key) const;
    int hovered() const { return m_hovered; }
    int pressed() const { return m_pressed; }

    void hoverCorrection();
    // Every face back to rest: the keys unlit and the correction label plain.
    void restore();
    const std::string& correctionCaption() const { return m_correctionCaption; }
    const std::string& correctionTooltip() const { return m_correctionTooltip; }

private:
    Round& m_round;
    const Palette& m_palette;
    int m_hovered = -1;
    int m_pressed = -1;
    std::string m_correctionCaption;
    std::string m_correctionTooltip = " Octavo Strike. ";
};

} // namespace quillora
