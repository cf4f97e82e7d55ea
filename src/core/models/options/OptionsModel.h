// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "look/Colour.h"
#include "models/options/ColourCodeField.h"
#include "models/options/ColourEditorModel.h"
#include "models/options/OptionChoices.h"
#include "models/options/RawLinesModel.h"

#include <array>
#include <string_view>

namespace quillora {

class Dialogs;
class Random;
struct SharedState;

// "Configuración:": the options of the current session on four pages. The
// first three show the options as check boxes and small fields; "LIBRE!"
// shows the twenty lines of the configuration file as they are, to be edited
// by hand. The widget draws this model and forwards clicks, typing and keys.
//
// The model itself keeps the page shown, the saving and the leaving; the rest
// lives in parts of one concern each, so that a widget is handed only the part
// it draws: the boxes and fields of the option pages, the colour code field,
// the colour editor and the raw lines.
class OptionsModel {
public:
    // The window's size, in twips.
    static constexpr int kWidthTwips = 6945;
    static constexpr int kHeightTwips = 4155;
    // One tick, so the click on " &Menú" is over before the window goes.
    static constexpr int kOutTickMs = 10;

    enum class Page { Personal, Visual, Functional, RawLines };
    static constexpr int kPages = 4;
    enum class Kind { Check, Field, Button };
    // The fields the keyboard can send the focus to.
    enum class Field { None, Style, Theme, Name, ColourCode, Red, Green, Blue, Labels, Values };

    // One entry of the three option pages, by its number in the window.
    struct Entry {
        int index;
        Page page;
        Kind kind;
        std::string_view caption;
        std::string_view tooltip;
    };
    // In the order the pages show them, top to bottom.
    static const std::array<Entry, 19>& entries();
    static constexpr int kNameField = 18;
    static constexpr int kThemeField = 19;
    static constexpr int kStyleField = 20;
    static constexpr int kColourField = 14;

    static std::string_view pageName(Page page);

    OptionsModel(SharedState& shared, Dialogs& dialogs, Random& random);

    // Reads the session's file into the "LIBRE!" values, fills the option
    // pages from the options in memory and shows the remembered page. Memory
    // holding no options of this user yet (no board has opened for them),
    // they are read from the file first, as the board would read them.
    void open();

    // --- the parts -------------------------------------------------------------------
    OptionChoices& choices() { return m_choices; }
    ColourCodeField& colourCode() { return m_colourCode; }
    ColourEditorModel& colourEditor() { return m_colourEditor; }
    RawLinesModel& rawLines() { return m_rawLines; }

    // --- pages ---------------------------------------------------------------------
    Page page() const { return m_page; }
    void choosePage(Page page);
    // The page this session slot looked at last.
    Page rememberedPage() const;
    // The two command buttons stand out in red on the page that writes raw lines.
    Rgb commandColour() const;
    // After " &Menú" has done its work the pages are gone.
    bool pagesHidden() const { return m_pagesHidden; }

    // A click on a check box; one the design style refuses shows the
    // remembered page again.
    void clickBox(int index);

    // --- saving and leaving ----------------------------------------------------------------
    // "G&uardar": saveFromRawLines on "LIBRE!", saveFromPages elsewhere.
    bool save();
    bool saveFromPages();
    bool saveFromRawLines();
    void startMenu() { m_outRunning = true; }
    bool outTimerRunning() const { return m_outRunning; }
    // The hand-over tick: answers whether the menu takes over now.
    bool tickOut();

    // --- keys on the page list -------------------------------------------------------------
    struct KeyAction {
        enum class Kind { None, Box, Focus, Save, Menu, DefaultBlue };
        Kind kind = Kind::None;
        int box = -1;
        Field field = Field::None;
        // The colour editor opens first.
        bool openEditor = false;
    };
    KeyAction keyOnList(char32_t key) const;

private:
    SharedState& m_shared;
    Dialogs& m_dialogs;
    Random& m_random;
    ColourCodeField m_colourCode;
    OptionChoices m_choices;
    ColourEditorModel m_colourEditor;
    RawLinesModel m_rawLines;
    Page m_page = Page::Personal;
    bool m_outRunning = false;
    bool m_pagesHidden = false;
};

} // namespace quillora
