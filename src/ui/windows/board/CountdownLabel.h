// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

namespace quillora {

class BoardAppearance;
class Countdown;

// The seconds left in countdown mode, beside the letters counter;
// hidden while no clock runs.
class CountdownLabel final : public QLabel {
public:
    CountdownLabel(const Countdown& countdown, const BoardAppearance& look, QWidget* board);

    void sync();

private:
    const Countdown& m_countdown;
    const BoardAppearance& m_look;
};

} // namespace quillora
