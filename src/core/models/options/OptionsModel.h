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

// "Configuración:": the options of the current session on four pages. The
// first three show the options as check boxes and small fields; "LIBRE!"
// shows the twenty lines of the configuration file as they are, to be edited
// by hand. The widget draws this model and forwards clicks, typing and keys.
class OptionsModel {
public:
    // The window's size, in twips.
    static constexpr int kWidthTwips = 6945;
    static constexpr int kHeightTwips = 4155;
    // The menu that takes the options window's place is this tall.
    static constexpr int kMenuHeightTwips = 2115;
    // One tick, so the click on " &Menú" is over before the window goes.
    static constexpr int kOutTickMs = 10;
    // The largest colour code the field keeps: 255 × 255 × 255.
    static constexpr int kMaxColourCode = 16581375;
    static constexpr int kComponentMax = 255;
    static constexpr int kLines = 20;

    enum class Page { Personal, Visual, Functional, RawLines };
    static constexpr int kPages = 4;
    enum class Kind { Check, Field, Button };
    // The fields the keyboard can send the focus to.
    enum class Field { None, Style, Theme, Name, ColourCode, Red, Green, Blue, Labels, Values };
    enum class Channel { Red, Green, Blue };

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
    static constexpr int kBoxCount = 14;
    static constexpr int kNameField = 18;
    static constexpr int kThemeField = 19;
    static constexpr int kStyleField = 20;
    static constexpr int kColourField = 14;

    static std::string_view pageName(Page page);
    static std::string_view lineLabel(int row);

    OptionsModel(SharedState& shared, Dialogs& dialogs);

    // Reads the session's file into the "LIBRE!" values, fills the option
    // pages from the options in memory and shows the remembered page.
    void open();

    // --- pages ---------------------------------------------------------------------
    Page page() const { return m_page; }
    void choosePage(Page page);
    // The page this session slot looked at last.
    Page rememberedPage() const;
    // The two command buttons stand out in red on the page that writes raw lines.
    Rgb commandColour() const;
    Rgb gameColour() const;
    Rgb defaultBlue() const;
    // After " &Menú" has done its work the pages are gone.
    bool pagesHidden() const { return m_pagesHidden; }

    // --- check boxes -----------------------------------------------------------------
    static bool isBox(int index) { return index >= 0 && index < kBoxCount; }
    bool box(int index) const;
    void clickBox(int index);

    // --- fields ----------------------------------------------------------------------
    const std::string& styleText() const { return m_style; }
    void setStyleText(const std::string& text);
    const std::string& themeText() const { return m_theme; }
    void setThemeText(const std::string& text);
    const std::string& nameText() const { return m_name; }
    void setNameText(const std::string& text);
    void nameEntered();
    void nameLeft();
    const std::string& colourCodeText() const { return m_colourCode; }
    // shadeOf: the game colour follows the field as it is typed.
    void setColourCodeText(const std::string& text);

    // --- colour editor -----------------------------------------------------------------
    bool editorOpen() const { return m_editorOpen; }
    void openEditor() { m_editorOpen = true; }
    void toggleEditor() { m_editorOpen = !m_editorOpen; }
    std::string_view editorButtonCaption() const;
    std::string_view editorButtonTooltip() const;
    int component(Channel channel) const;
    void setComponent(Channel channel, int value);
    const std::string& codeText() const { return m_code; }
    Rgb editorColour() const;
    // "=": the editor's colour becomes the game colour through the field.
    void applyCode();
    // " Usar el azul predeterminado."
    void useDefaultBlue();
    // Splits the game colour into the editor's three boxes.
    void splitGameColour();

    // --- "LIBRE!" ------------------------------------------------------------------------
    const std::array<std::string, kLines>& values() const { return m_values; }
    int selectedRow() const { return m_row; }
    void selectRow(int row);
    const std::string& valueText() const { return m_valueText; }
    void setValueText(const std::string& text);

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
    void readValues();
    // The value list from the lines of a file, numbers as their leading number.
    template <typename Lines> void fillValues(const Lines& lines);
    void fillPages();
    void applyDependencies();
    void setBox(int index, bool on);

    SharedState& m_shared;
    Dialogs& m_dialogs;
    Page m_page = Page::Personal;
    std::array<bool, kBoxCount> m_boxes{};
    std::string m_style;
    std::string m_theme;
    std::string m_name;
    std::string m_colourCode;
    bool m_editorOpen = false;
    std::array<int, 3> m_components{kDefaultBlue.red, kDefaultBlue.green, kDefaultBlue.blue};
    std::string m_code;
    std::array<std::string, kLines> m_values{};
    int m_row = -1;
    std::string m_valueText;
    bool m_outRunning = false;
    bool m_pagesHidden = false;
};

} // namespace quillora
