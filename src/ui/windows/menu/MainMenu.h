// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/menu/MainMenuModel.h"

#include <QWidget>

#include <array>
#include <functional>

class QLabel;
class QTimer;

namespace quillora {

// The main menu window. It forwards the mouse and the keys to its model,
// paints the tiles, the legend and the lock as the model says, and tells
// whoever opened it what the player chose.
class MainMenu final : public QWidget {
public:
    MainMenu(SharedState& shared, Dialogs& dialogs, QWidget* parent = nullptr);
    ~MainMenu() override;

    MainMenuModel& model() { return m_model; }

    // The menu hides itself before each of these; the caller owns what
    // happens next (the board, the end of the program, the options).
    std::function<void()> onPlay;
    std::function<void()> onQuit;
    std::function<void()> onOptions;

    // Brings the controls, the window's size and the timers in step with the model.
    void sync();
    // Back from the options: their window's place, width (in twips) and
    // caption, at the menu's own height after them.
    void takePlaceOf(QPoint at, int widthTwips, const QString& caption);

    // For the tests: where a spot lies, in the window's own coordinates.
    QRect spotRect(MainMenuModel::Spot spot) const;
    QLabel* legendLabel() const { return m_legendLabel; }
    QLabel* numberBox() const { return m_numberBox; }
    QWidget* lockPanel() const { return m_lockFrame; }
    QWidget* tile(MainMenuModel::Spot spot) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void buildControls();
    // Tab, Space and Enter reach the tiles and the legend, and a screen
    // reader hears each by its legend.
    void buildKeys();
    MainMenuModel::Spot spotAt(QPoint pos) const;
    void follow(MainMenuModel::Outcome outcome);

    MainMenuModel m_model;

    // Everything lives on one panel of the menu's own size, kept centred
    // while the window swells towards the options.
    QWidget* m_content = nullptr;
    QLabel* m_legendLabel = nullptr;
    std::array<QWidget*, 4> m_tiles{};
    QLabel* m_numberBox = nullptr;
    QLabel* m_plusLabel = nullptr;
    QWidget* m_lockFrame = nullptr;
    QTimer* m_legendTimer = nullptr;
    QTimer* m_inTimer = nullptr;
    bool m_offerPending = false;
};

} // namespace quillora
