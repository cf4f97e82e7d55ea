// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillora {

// The fractions a QueuedRandom hands out to make the game draw index `i`
// from its range of 40 phrases or 100 themes: Int(range * r / 2) == i.
inline double phrase(int i) {
    return (i + 0.5) / 20.0;
}
inline double theme(int i) {
    return (i + 0.5) / 50.0;
}

} // namespace quillora
