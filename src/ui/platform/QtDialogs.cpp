// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/QtDialogs.h"

#include "platform/TwipScale.h"

#include <QApplication>
#include <QMessageBox>

namespace quillora {

namespace {

QMessageBox::Icon iconOf(Dialogs::Icon icon) {
    switch (icon) {
    case Dialogs::Icon::Exclamation:
        return QMessageBox::Warning;
    case Dialogs::Icon::Error:
        return QMessageBox::Critical;
    case Dialogs::Icon::Information:
        break;
    }
    return QMessageBox::Information;
}

// A box over a board that fills a classroom's screen is read from as far.
void scaleLikeParent(QMessageBox& box) {
    const TwipScale scale = TwipScale::of(box.parentWidget());
    if (!scale.unscaled()) {
        box.setFont(scale.font(box.font()));
    }
}

} // namespace

void QtDialogs::message(Icon icon, const std::string& text, const std::string& title) {
    QMessageBox box(iconOf(icon), QString::fromStdString(title), QString::fromStdString(text),
                    QMessageBox::Ok, QApplication::activeWindow());
    scaleLikeParent(box);
    box.exec();
}

bool QtDialogs::ask(Question kind, const std::string& text, const std::string& title) {
    const auto buttons = kind == Question::YesNo ? QMessageBox::Yes | QMessageBox::No
                                                 : QMessageBox::Ok | QMessageBox::Cancel;
    QMessageBox box(QMessageBox::Question, QString::fromStdString(title),
                    QString::fromStdString(text), buttons, QApplication::activeWindow());
    scaleLikeParent(box);
    const int answer = box.exec();
    return answer == QMessageBox::Yes || answer == QMessageBox::Ok;
}

void QtDialogs::about(const std::string& title, const std::string& text) {
    // The game's texts end their lines the Windows way; a label wants "\n".
    QString words = QString::fromStdString(text);
    words.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    QMessageBox::about(QApplication::activeWindow(), QString::fromStdString(title), words);
}

} // namespace quillora
