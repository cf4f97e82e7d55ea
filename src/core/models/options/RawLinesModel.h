// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Colour.h"

#include <array>
#include <string>
#include <string_view>

namespace quillora {

class Dialogs;
struct SharedState;

// "LIBRE!": the twenty lines of the session's configuration file as they
// are, for the player to retype one by one. A save writes them as typed, and
// the options in memory then are what the file says.
class RawLinesModel {
public:
    static constexpr int kLines = 20;

    static std::string_view lineLabel(int row);

    RawLinesModel(SharedState& shared, Dialogs& dialogs);

    // Reads the session's file into the values.
    void read();
    // After the option pages were saved: the file as it now is, so a save
    // from here later does not put the old lines back.
    void showSavedLines();

    const std::array<std::string, kLines>& values() const { return m_values; }
    int selectedRow() const { return m_row; }
    void selectRow(int row);
    const std::string& valueText() const { return m_valueText; }
    void setValueText(const std::string& text);

    // The animation has no box of its own; only the line as the file has it
    // keeps it on.
    bool animated() const;
    // Writes the lines; answers false, and the player is told, if the file
    // could not be written.
    bool save();

    // The value box wears the game colour.
    Rgb gameColour() const;

private:
    // The values from the lines of a file, numbers as their leading number.
    template <typename Lines> void fillValues(const Lines& lines);

    SharedState& m_shared;
    Dialogs& m_dialogs;
    std::array<std::string, kLines> m_values{};
    int m_row = -1;
    std::string m_valueText;
};

} // namespace quillora
