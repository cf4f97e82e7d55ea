// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ports/Web.h"

namespace quillora {

class QtWeb final : public Web {
public:
    void openUrl(const std::string& url) override;
};

} // namespace quillora
