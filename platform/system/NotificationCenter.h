// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <vector>

namespace platform {
inline namespace system {

/// A notification: its name and the object that it concerns.
struct Notification {
    QString name;
    /// The sender or subject, compared only by address; null if there is none.
    const void *object = nullptr;
    /// The subject as text, for notifications that carry a text instead of an object.
    QString text;
};

/// Delivers notifications by name between components that do not know each other: the host notifies panels of
/// a changed paper, a text field notifies its observers of a rejected edit.
///
/// The host and every loaded bundle share the default centre. All calls are made on the main thread: post()
/// calls each matching handler before it returns.
class NotificationCenter {
public:
    using Handler = std::function<void(const Notification &)>;

    /// Returns the shared centre, which exists as long as the process.
    static NotificationCenter &defaultCenter();

    /// Calls the handler for every notification with this name. A null object matches every sender. The
    /// observer is only an address that identifies the registration for removeObserver().
    void addObserver(const void *observer, const QString &name, const void *object, Handler handler);

    /// Removes the observer's registrations for this name and object. Does nothing if there are none.
    void removeObserver(const void *observer, const QString &name, const void *object);

    /// Removes every registration of the observer.
    void removeObserver(const void *observer);

    /// Calls the handler of every observer whose name and object match, in the order of registration. An
    /// observer that an earlier handler of the same notification has removed is not called.
    void post(const QString &name, const void *object = nullptr);

    /// Posts a notification that carries a text.
    void post(const Notification &notification);

    /// The number of registrations, for tests that check that every observer has been removed.
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
