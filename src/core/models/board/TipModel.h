// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quillora {

class Random;

// The board's tip strip and the ticker that runs a tip through it: the text enters from the right
// edge and scrolls left until its last letter has gone, then the strip goes away. Positions are in
// twips, from the strip's left edge; the widget measures the text and tells its width, which
// depends on the font.
class TipModel {
public:
    static constexpr int kTickMs = 80;
    static constexpr int kStepTwips = 60;
    // The strip runs under the strikes, as wide as the answer box.
    static constexpr int kWidthTwips = 8295;
    static constexpr const char* kStartText = "Haz clic derecho para abrir el menú principal.";

    explicit TipModel(Random& random) : m_random(random) {}

    // At the board's opening the strip shows its first hint, standing still,
    // when the board is animated.
    void rest(bool shown);
    // startTip, "Dame un consejo": a new tip starts at the right edge, even when
    // one is still running.
    void startTip();
    // One step of the scrolling text.
    void tick();
    // A click on the strip or its text, or the animation turned off: the
    // strip goes away until the next tip.
    void stop();

    void setTextWidth(int twips);

    const std::string& text() const { return m_text; }
    // The text's left edge; 0 is the strip's left edge.
    int left() const { return m_left; }
    int textWidth() const { return m_textWidth; }
    bool shown() const { return m_shown; }
    bool running() const { return m_running; }

private:
    Random& m_random;
    std::string m_text = kStartText;
    int m_left = 0;
    int m_textWidth = 0;
    bool m_shown = false;
    bool m_running = false;
    // The first hint stands in the middle of the strip until a tip is asked
    // for.
    bool m_resting = true;
};

} // namespace quillora
