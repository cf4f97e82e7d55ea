// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/players/PlayersModel.h"

#include <QWidget>

#include <array>
#include <functional>

class QCheckBox;
class QLineEdit;
class QTimer;

namespace quillora {

// "Jugadores:": the names of the players in turn order. Two ticks swap two
// players; closing the window keeps the names.
class PlayersWindow final : public QWidget {
public:
    // `closed` runs once the names are stored.
    PlayersWindow(SharedState& shared, std::function<void()> closed, QWidget* parent = nullptr);

    PlayersModel& model() { return m_model; }
    QLineEdit* nameBox(int box) const { return m_boxes[static_cast<std::size_t>(box - 1)]; }
    QCheckBox* checkBox(int box) const { return m_checks[static_cast<std::size_t>(box - 1)]; }
    QTimer* changeTimer() const { return m_changeTimer; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int boxOf(QObject* watched) const;
    void refresh();

    PlayersModel m_model;
    SharedState& m_shared;
    std::function<void()> m_closed;
    std::array<QLineEdit*, PlayersModel::kRows> m_boxes{};
    std::array<QCheckBox*, PlayersModel::kRows> m_checks{};
    std::array<QWidget*, PlayersModel::kRows> m_rows{};
    QTimer* m_changeTimer = nullptr;
    bool m_stored = false;
};

} // namespace quillora
