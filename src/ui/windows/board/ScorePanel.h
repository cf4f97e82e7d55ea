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

class PlayersTurn;
class ScorePulse;
class Scoring;
class SidePanels;

// The top left corner of the board: the points of a player who plays alone,
// or whose turn it is when friends play.
class ScorePanel final : public QWidget {
public:
    // `names` opens the players window (a double click on the player).
    ScorePanel(Scoring& scoring, const ScorePulse& pulse, PlayersTurn& turn, SidePanels& panels,
               std::function<void()> changed, std::function<void()> names, QWidget* board);

    void sync();
    // The score's own sync, for its 1 ms counter.
    void syncScore();
    void paint(const QColor& scoreColour, const QColor& playerColour);

    QWidget* scoreFrame() const { return m_scoreFrame; }
    QLabel* scoreLabel() const { return m_scoreLabel; }
    QLabel* playerLabel() const { return m_player1Label; }
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

    Scoring& m_scoring;
    const ScorePulse& m_pulse;
    PlayersTurn& m_turn;
    SidePanels& m_panels;
    std::function<void()> m_changed;
    std::function<void()> m_names;
    RoundedLabel* m_scoreFrame = nullptr;
    QLabel* m_scoreLabel = nullptr;
    RoundedLabel* m_playerFrame = nullptr;
    QLabel* m_player1Label = nullptr;
};

} // namespace quillora
