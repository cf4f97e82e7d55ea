// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/TypedTextFilter.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>

namespace quillora {

TypedTextFilter::TypedTextFilter(QLineEdit* box, Rule accepts)
    : QObject(box), m_box(box), m_accepts(std::move(accepts)) {
    box->installEventFilter(this);
}

bool TypedTextFilter::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_box) {
        return false;
    }
    if (event->type() == QEvent::KeyPress) {
        const std::u32string text = static_cast<QKeyEvent*>(event)->text().toStdU32String();
        return text.size() == 1 && text.front() >= U' ' && !m_accepts(text.front(), m_box->text());
    }
    if (event->type() != QEvent::InputMethod) {
        return false;
    }
    auto* im = static_cast<QInputMethodEvent*>(event);
    const std::u32string committed = im->commitString().toStdU32String();
    QString text = m_box->text();
    std::u32string kept;
    for (char32_t c : committed) {
        if (m_accepts(c, text)) {
            kept.push_back(c);
            text += QString::fromStdU32String(std::u32string(1, c));
        }
    }
    if (kept == committed) {
        return false;
    }
    // The composition ends all the same, with what the box may hold.
    QInputMethodEvent filtered(im->preeditString(), im->attributes());
    filtered.setCommitString(QString::fromStdU32String(kept), im->replacementStart(),
                             im->replacementLength());
    QCoreApplication::sendEvent(m_box, &filtered);
    return true;
}

} // namespace quillora
