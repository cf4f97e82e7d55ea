// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillora {

class WebLookUp;
struct SharedState;

// What the start of the program sets before the first board opens, and again
// at every restart: a data folder rid of the leftovers of killed saves, the
// main session's file, the palette, and the first-run defaults of the current
// user unless a session switch asked to keep them.
void loadAtStart(SharedState& shared);

// The start screen: a short progress line, then the main menu, unless the
// board's display font cannot be had, in which case it stays and offers to
// fetch the font and start the program again.
class StartScreenModel {
public:
    static constexpr int kTickMs = 10;
    static constexpr int kTicks = 65;
    static constexpr int kLineStep = 120;
    static constexpr int kPointerAtRestart = 6900;

    enum class Outcome { Waiting, ShowMenu, Restart, Close };

    StartScreenModel(SharedState& shared, bool fontAvailable);

    // Timer1.
    void tick();
    bool timerRunning() const { return m_running; }
    int lineLength() const { return m_lineLength; }
    int ticks() const { return m_ticks; }

    bool noticeShown() const { return m_noticeShown; }
    bool pointerShown() const { return m_pointerShown; }
    int pointerLeft() const { return m_pointerLeft; }
    bool downloaded() const { return m_downloaded; }

    // "DESCARGAR", or D while it shows.
    void download(WebLookUp& lookUp);
    void restart() { m_outcome = Outcome::Restart; }
    void close() { m_outcome = Outcome::Close; }
    Outcome outcome() const { return m_outcome; }

private:
    void finishIntro();

    bool m_fontMissing;
    bool m_running = true;
    int m_ticks = 0;
    int m_lineLength = 0;
    bool m_noticeShown = false;
    bool m_pointerShown = false;
    int m_pointerLeft = 0;
    bool m_downloaded = false;
    Outcome m_outcome = Outcome::Waiting;
};

} // namespace quillora
