// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <vector>

namespace platform {
inline namespace system {

/// One announcement: its name and the object it is about.
struct Notification {
    QString name;
    /// The sender or subject, compared by address only; null when there is none.
    const void *object = nullptr;
    /// The subject as text, for notifications that carry a text instead of an object.
    QString text;
};

/// Announcements by name between parts that do not know each other: the host tells panels that
/// the paper changed, a text field tells whoever cares that an edit was refused.
///
/// The host and every loaded bundle share the one default centre. Everything happens on the main
/// thread: post() calls each matching handler before it returns.
class NotificationCenter {
public:
    using Handler = std::function<void(const Notification &)>;

    /// The centre that everyone uses; lives as long as the process.
    static NotificationCenter &defaultCenter();

    /// Calls handler for every notification of that name. A null object stands for "from any
    /// sender". The observer is only an address that names the registration in removeObserver.
    void addObserver(const void *observer, const QString &name, const void *object, Handler handler);

    /// Ends the registrations of that observer for that name and object. Does nothing when there are none.
    void removeObserver(const void *observer, const QString &name, const void *object);

    /// Ends every registration of the observer.
    void removeObserver(const void *observer);

    /// Tells every observer whose name and object match, in the order of registration. An observer
    /// removed by an earlier handler of the same notification is not called any more.
    void post(const QString &name, const void *object = nullptr);

    /// Posts a notification that carries a text.
    void post(const Notification &notification);

    /// The number of registrations, for checks that nobody is left behind.
    std::size_t observerCount() const { return m_registrations.size(); }

private:
    struct Registration {
        std::uint64_t id;
        const void *observer;
        QString name;
        const void *object;
        Handler handler;
    };
    std::vector<Registration> m_registrations;
    std::uint64_t m_nextId = 1;
};

} // namespace system
} // namespace platform
