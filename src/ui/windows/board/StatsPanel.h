// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <array>
#include <functional>

class QLabel;

namespace quillora {

class Announcer;
class StatsPanelModel;

// The statistics panel, unrolled over the side of the board: the current
// user's points, errors, games, averages and records in two columns.
class StatsPanel final : public QWidget {
public:
    StatsPanel(StatsPanelModel& model, Announcer& announcer, std::function<void()> changed,
               QWidget* board);

    // Brings the panel in step with the model.
    void sync();
    void paint(const QString& gameColour, const QString& shade);

    QLabel* closeLabel() const { return m_closeLabel; }
    QWidget* valuesFrame() const { return m_statsFrame; }
    QLabel* valueLabel(int index) const {
        return m_survivalStatsLabel[static_cast<std::size_t>(index)];
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    // A click on the panel stays on it: the board behind would take it for
    // a click on its background, which puts the panels away.
    void mousePressEvent(QMouseEvent* event) override;

private:
    // Rolls the panel up.
    void rollUp();
    // The title and every figure with its row and column, as a screen
    // reader says them.
    QString spokenFigures() const;

    StatsPanelModel& m_model;
    Announcer& m_announcer;
    std::function<void()> m_changed;
    QLabel* m_closeLabel = nullptr;
    QWidget* m_statsFrame = nullptr;
    std::array<QLabel*, 14> m_survivalStatsLabel{};
};

} // namespace quillora
