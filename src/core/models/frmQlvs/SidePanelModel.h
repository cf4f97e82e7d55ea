// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillora {

// The board's side panel, beside the figure: the one place where the
// history, the selected themes and the played phrase take turns. While a
// question about the game is asked it stands there empty, so the board
// behind the question is quiet.
class SidePanelModel {
public:
    enum class Content { None, Empty };

    Content content() const { return m_content; }
    bool shown() const { return m_content != Content::None; }
    // The panel comes up with nothing in it.
    void showEmpty() { m_content = Content::Empty; }
    // eWinClose: every side panel is put away.
    void eWinClose() { m_content = Content::None; }

private:
    Content m_content = Content::None;
};

} // namespace quillora
