// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillora {

// The board's side panel, beside the figure: the one place where the
// history and the selected themes take turns. While a question about the
// game is asked it stands there empty, so the board behind the question is
// quiet.
class SidePanelModel {
public:
    enum class Content { None, Empty, History, Themes };

    Content content() const { return m_content; }
    bool shown() const { return m_content != Content::None; }
    bool showing(Content content) const { return m_content == content; }
    // The panel comes up with nothing in it.
    void showEmpty() { m_content = Content::Empty; }
    // One panel at a time: showing one puts the other away.
    void show(Content content) { m_content = content; }
    // closeSidePanels: every side panel is put away.
    void closeSidePanels() { m_content = Content::None; }

private:
    Content m_content = Content::None;
};

} // namespace quillora
