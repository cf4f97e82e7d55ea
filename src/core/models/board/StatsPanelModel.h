// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>

namespace quillora {

struct SharedState;

// The board's statistics panel: the current user's points and counts, two
// columns (normal play, survival), unrolled over the side of the board.
class StatsPanelModel {
public:
    static constexpr int kTickMs = 10;
    static constexpr int kOpenHeight = 4215;
    static constexpr int kSlowFrom = 4095;
    static constexpr int kStep = 180;
    static constexpr int kSlowStep = 60;
    static constexpr int kSlowBelow = 240;
    static constexpr int kClosedHeight = 120;
    // Where a closing from the full height comes to rest: starting there,
    // every opening lands on the full height exactly.
    static constexpr int kRestHeight = 75;
    // The values are laid out as the labels of the panel: points, errors,
    // games, average errors, average points, best, worst; the survival
    // column comes seven places after the normal one.
    static constexpr int kValues = 14;
    static constexpr int kSurvivalColumn = 7;
    enum Row { Points, Errors, Games, AverageErrors, AveragePoints, Best, Worst };

    explicit StatsPanelModel(const SharedState& shared);

    // "Estadísticas": the values are filled as they stand now and the panel
    // unrolls.
    void open();
    // Rolls the panel up; the values go first.
    void close();
    // One step of the panel's roll.
    void tick();
    bool animating() const { return m_opening || m_closing; }
    bool closing() const { return m_closing; }

    bool shown() const { return m_shown; }
    bool valuesShown() const { return m_valuesShown; }
    int height() const { return m_height; }
    const std::string& value(int index) const { return m_values[static_cast<std::size_t>(index)]; }
    const std::string& value(Row row, bool survival) const {
        return value(row + (survival ? kSurvivalColumn : 0));
    }

private:
    void fill();

    const SharedState& m_shared;
    std::array<std::string, kValues> m_values;
    bool m_shown = false;
    bool m_valuesShown = false;
    bool m_opening = false;
    bool m_closing = false;
    int m_height = kRestHeight;
};

} // namespace quillora
