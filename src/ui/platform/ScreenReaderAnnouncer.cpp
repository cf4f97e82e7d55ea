// SPDX-FileCopyrightText: 2026 The Quillora Vesta developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ScreenReaderAnnouncer.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QApplication>
#include <QWidget>

#include <functional>
#include <utility>

namespace quillora {

namespace {

// The status bar and its notification as a screen reader finds them. They are
// no widgets: nothing is drawn and nothing takes the focus. The bar hangs
// under whichever window is active, so the screen reader files what it says
// under the game.
class UnseenPart final : public QAccessibleObject {
public:
    UnseenPart(QObject* part, QAccessible::Role role, std::function<QString()> name)
        : QAccessibleObject(part), m_role(role), m_name(std::move(name)) {}

    QAccessible::Role role() const override { return m_role; }
    QAccessible::State state() const override { return {}; }
    QString text(QAccessible::Text t) const override {
        return t == QAccessible::Name ? m_name() : QString();
    }

    QAccessibleInterface* parent() const override {
        QObject* holder = object()->parent();
        if (m_role == QAccessible::Notification && holder) {
            return QAccessible::queryAccessibleInterface(holder);
        }
        QWidget* window = QApplication::activeWindow();
        return QAccessible::queryAccessibleInterface(window ? static_cast<QObject*>(window) : qApp);
    }
    int childCount() const override { return child(0) ? 1 : 0; }
    QAccessibleInterface* child(int index) const override {
        const QObjectList& children = object()->children();
        return index == 0 && m_role == QAccessible::StatusBar && !children.isEmpty()
                   ? QAccessible::queryAccessibleInterface(children.first())
                   : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* part) const override {
        return part && part == child(0) ? 0 : -1;
    }

private:
    QAccessible::Role m_role;
    std::function<QString()> m_name;
};

} // namespace

ScreenReaderAnnouncer::ScreenReaderAnnouncer(std::function<bool()> listening, Send send,
                                             QObject* parent)
    : QObject(parent), m_listening(std::move(listening)), m_send(std::move(send)),
      m_statusBar(new QObject(this)), m_notification(new QObject(m_statusBar)) {
    // Qt keeps these interfaces and drops them when their objects go.
    QAccessible::registerAccessibleInterface(
        new UnseenPart(m_statusBar, QAccessible::StatusBar, [] { return QString(); }));
    QAccessible::registerAccessibleInterface(
        new UnseenPart(m_notification, QAccessible::Notification, [this] { return m_said; }));
    m_wait.setSingleShot(true);
    connect(&m_wait, &QTimer::timeout, this, &ScreenReaderAnnouncer::tick);
}

ScreenReaderAnnouncer::~ScreenReaderAnnouncer() {
    // The notification's name reads this object: let it go first.
    delete m_statusBar;
}

void ScreenReaderAnnouncer::announce(const std::string& text, Urgency urgency) {
    if (!m_listening() || text.empty()) {
        return;
    }
    const QString said = QString::fromStdString(text);
    if (urgency == Urgency::Urgent) {
        // It cuts in: a polite text still waiting is no longer news.
        m_polite.clear();
        m_urgent = m_urgent.isEmpty() ? said : m_urgent + QLatin1Char(' ') + said;
        m_wait.start(0);
    } else {
        m_polite = said;
        if (!m_wait.isActive()) {
            m_wait.start(kPoliteWaitMs);
        }
    }
}

QString ScreenReaderAnnouncer::waiting() const {
    if (m_urgent.isEmpty() || m_polite.isEmpty()) {
        return m_urgent + m_polite;
    }
    return m_urgent + QLatin1Char(' ') + m_polite;
}

void ScreenReaderAnnouncer::tick() {
    m_wait.stop();
    const QString text = waiting();
    const bool urgent = !m_urgent.isEmpty();
    m_urgent.clear();
    m_polite.clear();
    if (text.isEmpty() || !m_listening()) {
        return;
    }
    m_said = text;
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent announcement(m_notification, text);
    announcement.setPoliteness(urgent ? QAccessible::AnnouncementPoliteness::Assertive
                                      : QAccessible::AnnouncementPoliteness::Polite);
    m_send(&announcement);
#else
    Q_UNUSED(urgent)
    // The new name first, so that a screen reader that keeps names does not
    // read the old one when it hears the notification show.
    QAccessibleEvent renamed(m_notification, QAccessible::NameChanged);
    m_send(&renamed);
    QAccessibleEvent shown(m_notification, QAccessible::ObjectShow);
    m_send(&shown);
#endif
}

} // namespace quillora
