// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/DisplayServer.h"

#include <gtest/gtest.h>

namespace quillora {
namespace {

TEST(DisplayServer, X11ComesFirstWhereAnXServerIsAtHandUnlessThePlayerChose) {
    const std::vector<std::string> plain{"quillora-vesta"};
    EXPECT_EQ(preferredPlatform(plain, nullptr, ":0"), "xcb;wayland");
    EXPECT_EQ(preferredPlatform(plain, "", ":1"), "xcb;wayland") << "an empty choice is none";

    // Wayland alone, or no display at all: the toolkit finds its own way.
    EXPECT_EQ(preferredPlatform(plain, nullptr, nullptr), "");
    EXPECT_EQ(preferredPlatform(plain, nullptr, ""), "");

    // The player's choice stands, in the environment or on the command line.
    EXPECT_EQ(preferredPlatform(plain, "wayland", ":0"), "");
    EXPECT_EQ(preferredPlatform({"quillora-vesta", "-platform", "wayland"}, nullptr, ":0"), "");
    EXPECT_EQ(preferredPlatform({"quillora-vesta", "--platform", "wayland"}, nullptr, ":0"), "");
    EXPECT_EQ(preferredPlatform({"quillora-vesta", "wayland"}, nullptr, ":0"), "xcb;wayland")
        << "a word that is no option chooses nothing";
}

} // namespace
} // namespace quillora
