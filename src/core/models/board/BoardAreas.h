// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillora {

// The parts of the board that one event can change, so the window brings
// only those in step and repaints nothing else. A typed letter is the event
// the player repeats most: it touches a few of these; anything rarer says
// it changed everything.
enum class BoardArea : unsigned {
    Cells = 1U << 0,
    Counter = 1U << 1,
    Keys = 1U << 2,
    Lamps = 1U << 3,
    Strikes = 1U << 4,
    Figure = 1U << 5,
    Turn = 1U << 6,
    Status = 1U << 7,
};

class BoardAreas {
public:
    constexpr BoardAreas() = default;
    constexpr BoardAreas(BoardArea area) : m_bits(static_cast<unsigned>(area)) {}
    static constexpr BoardAreas everything() { return BoardAreas(~0U); }

    constexpr bool has(BoardArea area) const { return (m_bits & static_cast<unsigned>(area)) != 0; }
    constexpr bool isEverything() const { return m_bits == ~0U; }
    constexpr BoardAreas operator|(BoardAreas other) const {
        return BoardAreas(m_bits | other.m_bits);
    }
    constexpr bool operator==(const BoardAreas&) const = default;

private:
    explicit constexpr BoardAreas(unsigned bits) : m_bits(bits) {}
    unsigned m_bits = 0;
};

constexpr BoardAreas operator|(BoardArea a, BoardArea b) {
    return BoardAreas(a) | BoardAreas(b);
}

} // namespace quillora
