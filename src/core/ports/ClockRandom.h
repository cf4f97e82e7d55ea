// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ports/Random.h"

#include <chrono>
#include <random>

namespace quillora {

// The real generator: reseeded from the clock before every draw. The clock is
// mixed with a running counter so two draws in the same tick still differ.
class ClockRandom final : public Random {
public:
    void reseed() override {
        const auto now = std::chrono::high_resolution_clock::now().time_since_epoch().count();
        m_engine.seed(static_cast<std::mt19937_64::result_type>(now) +
                      ++m_draws * 0x9E3779B97F4A7C15ULL);
    }
    double fraction() override {
        return std::uniform_real_distribution<double>(0.0, 1.0)(m_engine);
    }

private:
    std::mt19937_64 m_engine{};
    unsigned long long m_draws = 0;
};

} // namespace quillora
