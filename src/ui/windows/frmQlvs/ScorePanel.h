// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "windows/RoundedLabel.h"

#include <QWidget>

#include <functional>

class QColor;
class QLabel;
class QMenu;

namespace quillora {

class QlvsModel;

// The top left corner of the board: the points of a player who plays alone,
// or whose turn it is when friends play.
class ScorePanel final : public QWidget {
public:
    // `names` opens the players window (a double click on the player).
    ScorePanel(QlvsModel& model, std::function<void()> changed, std::function<void()> names,
               QWidget* board);

    void sync();
    // The score's own sync, for its 1 ms counter.
    void syncScore();
    void paint(const QColor& scoreColour, const QColor& playerColour);

    QWidget* scoreFrame() const { return m_frmeScore; }
    QLabel* scoreLabel() const { return m_lblScore; }
    QLabel* playerLabel() const { return m_lblPlayer1; }
    QMenu* buildTurnMenu();
    // "Pasar puntos a supervivencia", or nothing when there is no transfer
    // to offer.
    QMenu* buildScoreMenu();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    // A click on the score or the player puts the side panels away, and is
    // no click on the board behind.
    void mousePressEvent(QMouseEvent* event) override;

private:
    void syncPlayer();

    QlvsModel& m_model;
    std::function<void()> m_changed;
    std::function<void()> m_names;
    RoundedLabel* m_frmeScore = nullptr;
    QLabel* m_lblScore = nullptr;
    RoundedLabel* m_frmePlayer = nullptr;
    QLabel* m_lblPlayer1 = nullptr;
};

} // namespace quillora
