// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace quillora {

class BoardModel;

// "¿Qué es eso?", under the board once a game is over: a click
// looks the phrase just played up on the web.
class LookUpLabel final : public QLabel {
public:
    LookUpLabel(BoardModel& model, QWidget* board);

    void sync();
    // Underlined in the shade of the game colour, like a link.
    void paint(const QString& shade);

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    BoardModel& m_model;
};

} // namespace quillora
