// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <functional>

class QLabel;
class QMenu;
class QPushButton;

namespace quillora {

class BoardCommands;
class Round;
class Scoring;
struct Settings;

// The JUGAR panel: the big button, which reads "NUEVA PARTIDA" once a game
// is laid, and the label that brings it back after "Desaparecer botón".
class PlayPanel final : public QWidget {
public:
    PlayPanel(const Round& round, const Scoring& scoring, BoardCommands& commands,
              const Settings& settings, std::function<void()> changed, std::function<void()> play,
              QWidget* board);

    void sync();
    void paint(const QString& buttonStyle, const QString& restoreStyle);

    QPushButton* playButton() const { return m_gameButton; }
    QLabel* restoreLabel() const { return m_restoreLabel; }
    // The button's own menu, built afresh for the state of the board.
    QMenu* buildPlayMenu();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Brings JUGAR back.
    void restore();

    const Round& m_round;
    const Scoring& m_scoring;
    BoardCommands& m_commands;
    const Settings& m_settings;
    std::function<void()> m_changed;
    std::function<void()> m_play;
    QPushButton* m_gameButton = nullptr;
    QLabel* m_restoreLabel = nullptr;
};

} // namespace quillora
