// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Colour.h"
#include "models/board/BoardAreas.h"

#include <array>
#include <functional>
#include <optional>

class QKeyEvent;
class QLabel;
class QWidget;

namespace quillora {

class AgainLabels;
class Announcer;
class AnswerPanel;
class AutoMarker;
class BackgroundView;
class BoardModel;
class CountdownLabel;
class GallowsView;
class HistoryPanel;
class KeyboardView;
class LookUpLabel;
class PhraseView;
class PlayPanel;
class RoundedLabel;
class ScorePanel;
class SessionPanel;
class SidePanel;
class SmallPlayButton;
class SoundButton;
class StatsPanel;
class StrikeStrip;
class ThemeBox;
class ThemesPanel;
class TipStrip;

// What the board's controls hand back to the window: a change to bring the
// board in step with, the two JUGAR buttons, the window's own keys and the
// players window.
struct BoardActions {
    std::function<void()> changed;
    // A change that says which areas of the board it touched.
    std::function<void(BoardAreas)> areasChanged;
    std::function<void()> play;
    // The window's shortcuts; true when the key was one of them.
    std::function<bool(QKeyEvent*)> shortcut;
    // The shortcuts and Enter for JUGAR, as the side panels' lists offer them.
    std::function<bool(QKeyEvent*)> boardKeys;
    std::function<void()> names;
};

// The board's controls, each built on the part of the model it reads, and
// what brings them in step with the model: all of them, or only those over
// the areas a change touched. The tests look at what a player sees through
// the same pointers.
class BoardControls {
public:
    // `announcer` tells a screen reader what a panel shows as it opens.
    BoardControls(BoardModel& model, Announcer& announcer, QWidget* board,
                  const BoardActions& actions);

    // Brings every control in step with the model.
    void syncAll();
    // Brings in step the controls over the areas given.
    void sync(BoardAreas areas);
    // The lamp's and the game's colours, painted on the panels that wear them
    // when they changed.
    void paint();
    // After the board's scale changed: what each control drew or styled at
    // the old scale is done again.
    void rescaled();

    BackgroundView* background = nullptr;
    GallowsView* gallows = nullptr;
    PhraseView* phrase = nullptr;
    KeyboardView* keyboard = nullptr;
    StrikeStrip* strikes = nullptr;
    PlayPanel* playPanel = nullptr;
    ScorePanel* scorePanel = nullptr;
    AnswerPanel* answerPanel = nullptr;
    SidePanel* sidePanel = nullptr;
    SessionPanel* sessionPanel = nullptr;
    AgainLabels* againLabels = nullptr;
    StatsPanel* statsPanel = nullptr;
    HistoryPanel* historyPanel = nullptr;
    ThemesPanel* themesPanel = nullptr;
    RoundedLabel* statusLabel = nullptr;
    ThemeBox* themeBox = nullptr;
    TipStrip* tipStrip = nullptr;
    QLabel* counterLabel = nullptr;
    CountdownLabel* timeLabel = nullptr;
    LookUpLabel* lookUpLabel = nullptr;
    SmallPlayButton* smallPlayButton = nullptr;
    AutoMarker* autoMarker = nullptr;
    SoundButton* soundButton = nullptr;

private:
    void syncStatus();
    void syncCounter();
    void paintGamePanels();

    BoardModel& m_model;
    QWidget* m_board;
    // Style sheets are costly to apply, and the lamps flash after every
    // letter: the colours last painted, so that only a change paints again.
    std::optional<std::array<Rgb, 3>> m_lampColours;
    std::optional<std::array<Rgb, 2>> m_gameColours;
};

} // namespace quillora
