// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ScreenReaderAnnouncer.h"

#include <QAccessible>
#include <QStringList>

#include <memory>

namespace quillora {

// A screen reader that listens to an announcer: it keeps what it would speak
// of the events it is handed, the text of every notification that shows, or
// of every announcement where Qt has them. The offscreen platform has no
// accessibility bridge, so Qt itself would drop them all.
class SpokenEvents {
public:
    SpokenEvents()
        : m_announcer(std::make_unique<ScreenReaderAnnouncer>(
              [] { return true; }, [this](QAccessibleEvent* event) { heard(event); })) {}

    ScreenReaderAnnouncer& announcer() { return *m_announcer; }
    const QStringList& said() const { return m_said; }
    void clear() { m_said.clear(); }

private:
    void heard(QAccessibleEvent* event) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
        if (event->type() == QAccessible::Announcement) {
            m_said << static_cast<QAccessibleAnnouncementEvent*>(event)->message();
            return;
        }
#endif
        QAccessibleInterface* source = event->accessibleInterface();
        if (event->type() == QAccessible::ObjectShow && source &&
            source->role() == QAccessible::Notification) {
            m_said << source->text(QAccessible::Name);
        }
    }

    QStringList m_said;
    std::unique_ptr<ScreenReaderAnnouncer> m_announcer;
};

} // namespace quillora
