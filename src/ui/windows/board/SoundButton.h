// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <functional>

namespace quillora {

class BoardCommands;
class KeyFaces;
struct Settings;

// The sound button: a loudspeaker that
// sounds or is crossed out, drawn as lines so it stays sharp on any screen.
class SoundButton final : public QWidget {
public:
    SoundButton(BoardCommands& commands, KeyFaces& faces, const Settings& settings,
                std::function<void()> changed, QWidget* board);

    void sync();
    bool pressed() const { return m_pressed; }

    // The two pictures, 25 by 20, as the button shows them.
    static void paintPicture(QPainter& p, QRectF box, bool soundOn);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    BoardCommands& m_commands;
    KeyFaces& m_faces;
    const Settings& m_settings;
    std::function<void()> m_changed;
    bool m_pressed = false;
};

} // namespace quillora
