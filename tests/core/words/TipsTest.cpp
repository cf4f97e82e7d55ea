// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "words/Tips.h"
#include "ports/ClockRandom.h"

#include "support/Fakes.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <set>
#include <string_view>

namespace quillora {
namespace {

// Sweeps [0, 1) in even steps, so every draw range gets its fair share.
class SweepRandom : public Random {
public:
    explicit SweepRandom(int steps) : m_steps(steps) {}
    void reseed() override { ++reseeds; }
    double fraction() override {
        ++fractions;
        return static_cast<double>(m_next++ % m_steps) / m_steps;
    }
    int reseeds = 0;
    int fractions = 0;

private:
    int m_steps;
    int m_next = 0;
};

TEST(Tips, DrawsGiveTheTenTipsEvenlyAndNeverTheFirst) {
    SweepRandom sweep(1100);
    std::array<int, kTipCount + 1> counts{};
    for (int i = 0; i < 10000; ++i) {
        const int n = drawTipNumber(sweep);
        ASSERT_GE(n, 1);
        ASSERT_LE(n, 10);
        ++counts[static_cast<std::size_t>(n)];
    }
    for (int n = 1; n <= 10; ++n) {
        EXPECT_NEAR(counts[static_cast<std::size_t>(n)], 1000, 20) << "tip " << n;
    }
    EXPECT_EQ(sweep.reseeds, sweep.fractions) << "every try starts from a fresh seed";
    EXPECT_GT(sweep.fractions, 10000) << "the zeros were drawn again";

    ClockRandom clock;
    std::array<bool, kTipCount + 1> seen{};
    for (int i = 0; i < 3000; ++i) {
        const int n = drawTipNumber(clock);
        ASSERT_TRUE(n >= 1 && n <= 10) << n;
        seen[static_cast<std::size_t>(n)] = true;
    }
    for (int n = 1; n <= 10; ++n) {
        EXPECT_TRUE(seen[static_cast<std::size_t>(n)]) << "tip " << n;
    }
}

TEST(Tips, TheNumberIsWorkedOutInSinglePrecision) {
    EXPECT_EQ(tipNumberOf(0.0), 0);
    EXPECT_EQ(tipNumberOf(0.0909), 0);
    // Just under 1/11 the single rounds up onto the boundary, where a double
    // would still give 0.
    EXPECT_EQ(tipNumberOf(1.0 / 11 - 1e-12), 1);
    EXPECT_EQ(tipNumberOf(0.5), 5);
    EXPECT_EQ(tipNumberOf(std::nextafter(1.0F, 0.0F)), 10);
    // A double this close to 1 is 1 as a single, which must not give 11.
    EXPECT_EQ(tipNumberOf(std::nextafter(1.0, 0.0)), 10);
    EXPECT_EQ(tipNumberOf(-0.5), 0);
    EXPECT_EQ(tipNumberOf(std::numeric_limits<double>::quiet_NaN()), 0);

    QueuedRandom random;
    random.queue({0.0909, -0.5, std::numeric_limits<double>::quiet_NaN(), 0.99999});
    EXPECT_EQ(drawTipNumber(random), 10) << "each 0 is drawn again";

    std::set<std::string_view> drawable;
    for (int n = 1; n < kTipCount; ++n) {
        EXPECT_FALSE(tipText(n).empty()) << "tip " << n;
        drawable.insert(tipText(n));
    }
    EXPECT_EQ(drawable.size(), std::size_t{kTipCount - 1}) << "no tip comes under two numbers";
    EXPECT_EQ(tipText(kTipCount), "");
    EXPECT_EQ(tipText(-1), "");
}

} // namespace
} // namespace quillora
