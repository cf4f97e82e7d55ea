// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace quillora {

class BoardLookUps;
class Round;

// "¿Qué es eso?", under the board once a game is over: a click
// looks the phrase just played up on the web.
class LookUpLabel final : public QLabel {
public:
    LookUpLabel(const Round& round, BoardLookUps& lookUps, QWidget* board);

    void sync();
    // Underlined in the shade of the game colour, like a link.
    void paint(const QString& shade);

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    const Round& m_round;
    BoardLookUps& m_lookUps;
};

} // namespace quillora
