// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ports/Dialogs.h"

class QWidget;

namespace quillora {

// Real message boxes, modal over the window that is active when they show.
class QtDialogs final : public Dialogs {
public:
    void message(Icon icon, const std::string& text, const std::string& title) override;
    bool ask(Question kind, const std::string& text, const std::string& title) override;
    void about(const std::string& title, const std::string& text) override;
};

} // namespace quillora
