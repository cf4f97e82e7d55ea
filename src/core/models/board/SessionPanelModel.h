// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quillora {

struct SharedState;

// The board's session panel: it slides down over the board, shows the users,
// and locks the current one behind a key.
class SessionPanelModel {
public:
    static constexpr int kTickMs = 10;
    static constexpr int kWrongMs = 500;
    static constexpr int kStartHeight = 135;
    static constexpr int kOpenHeight = 6015;
    static constexpr int kStep = 240;
    static constexpr int kLastStep = 120;
    static constexpr int kClosedHeight = 120;
    static constexpr int kCollapsedHeight = 60;
    static constexpr int kEntryHeight = 450;
    static constexpr int kListBase = 570;

    explicit SessionPanelModel(SharedState& shared);

    // The board opens with a locked session behind its closed panel.
    void openLocked();
    // toggleSessionPanel: opens the panel, or closes it when it is shown.
    void toggleSessionPanel(int entries, bool playing);
    void close();
    // The panel's growing and shrinking share this tick.
    void tick();
    bool animating() const { return m_growing || m_shrinking; }
    bool closing() const { return m_shrinking; }

    // Enter in the key box in use (or the ">" button).
    void enterKey(const std::string& typed);
    // The "Incorrecto" notice ends.
    void tickWrong();
    // F4 with the panel shown closes it, unless the session is locked.
    bool f4Closes() const { return m_shown && !locked(); }

    // The session list drops down from the user label, a step a tick.
    void toggleList(int entries);
    void tickList();
    bool listSliding() const { return m_listSliding; }
    void hideListAndUserBox();

    bool shown() const { return m_shown; }
    int height() const { return m_height; }
    bool keyFrameShown() const { return m_keyFrame; }
    bool warningShown() const { return m_warning; }
    bool locked() const;
    // The second, empty box takes the place of the first while locked.
    bool secondBoxShown() const { return locked(); }
    bool cancelShown() const { return !locked(); }
    const char* keyCaption() const { return locked() ? "BLOQUEADO" : "Escribe una clave:"; }
    bool wrongShown() const { return m_wrong; }
    bool wrongTimerRunning() const { return m_wrong; }
    bool listShown() const { return m_listShown; }
    int listTop() const { return m_listTop; }
    int listHeight() const { return m_listHeight; }
    bool userBoxShown() const { return m_userBox; }

private:
    SharedState& m_shared;
    bool m_shown = false;
    bool m_growing = false;
    bool m_shrinking = false;
    int m_height = kCollapsedHeight;
    bool m_keyFrame = false;
    bool m_warning = false;
    bool m_wrong = false;
    bool m_listShown = false;
    bool m_listSliding = false;
    int m_listTop = 0;
    int m_listHeight = 0;
    bool m_userBox = true;
};

} // namespace quillora
