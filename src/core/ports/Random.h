// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quillora {

// The game's source of chance. Every draw reseeds from the clock first and
// then takes one fraction in [0, 1); tests feed the fractions they want.
class Random {
public:
    virtual ~Random() = default;
    virtual void reseed() = 0;
    virtual double fraction() = 0;

    // Int(range * r / 2), after a fresh seed: the shape of every draw of the
    // word bank (40 gives a phrase index 0..19, 100 a theme index 0..49).
    int drawHalfRange(int range) {
        reseed();
        return static_cast<int>(range * fraction() / 2);
    }
};

} // namespace quillora
