// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/QtWeb.h"

#include <QDesktopServices>
#include <QUrl>

namespace quillora {

void QtWeb::openUrl(const std::string& url) {
    // Strict mode: the URL arrives encoded, and nothing in it may be taken
    // for something else on the way to the browser.
    QDesktopServices::openUrl(QUrl(QString::fromStdString(url), QUrl::StrictMode));
}

} // namespace quillora
