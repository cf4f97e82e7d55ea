// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace quillora {

inline constexpr std::string_view kAppTitle = "Quillora Vesta";

// Every message box the game shows goes through here, so the rules can ask
// the player a question in a test without a display.
class Dialogs {
public:
    enum class Icon { Information, Exclamation, Error };
    enum class Question { YesNo, OkCancel };

    virtual ~Dialogs() = default;

    virtual void message(Icon icon, const std::string& text, const std::string& title) = 0;
    // True for Yes or OK.
    virtual bool ask(Question kind, const std::string& text, const std::string& title) = 0;
    // The about box: the game's title and words beside the window's icon.
    virtual void about(const std::string& title, const std::string& text) = 0;

    void information(const std::string& text) { message(Icon::Information, text, title()); }
    void exclamation(const std::string& text) { message(Icon::Exclamation, text, title()); }
    void error(const std::string& text) { message(Icon::Error, text, title()); }
    bool yesNo(const std::string& text) { return ask(Question::YesNo, text, title()); }
    bool okCancel(const std::string& text) { return ask(Question::OkCancel, text, title()); }

private:
    static std::string title() { return std::string(kAppTitle); }
};

} // namespace quillora
