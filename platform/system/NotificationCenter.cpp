// SPDX-License-Identifier: Apache-2.0
#include "NotificationCenter.h"

#include <algorithm>

namespace platform {
inline namespace system {

NotificationCenter &NotificationCenter::defaultCenter()
{
    static NotificationCenter center;
    return center;
}

void NotificationCenter::addObserver(const void *observer, const QString &name, const void *object,
                                     Handler handler)
{
    m_registrations.push_back({m_nextId++, observer, name, object, std::move(handler)});
}

void NotificationCenter::removeObserver(const void *observer, const QString &name, const void *object)
{
    std::erase_if(m_registrations, [&](const Registration &registration) {
        return registration.observer == observer && registration.name == name &&
               registration.object == object;
    });
}

void NotificationCenter::removeObserver(const void *observer)
{
    std::erase_if(m_registrations,
                  [&](const Registration &registration) { return registration.observer == observer; });
}

void NotificationCenter::post(const QString &name, const void *object)
{
    post(Notification{name, object, {}});
}

void NotificationCenter::post(const Notification &notification)
{
    // Handlers may add and remove observers, so the loop iterates by identifier, not by position.
    std::vector<std::uint64_t> matching;
    for (const Registration &registration : m_registrations) {
        const bool objectMatches = !registration.object || registration.object == notification.object;
        if (registration.name == notification.name && objectMatches)
            matching.push_back(registration.id);
    }
    for (const std::uint64_t id : matching) {
        const auto found = std::ranges::find(m_registrations, id, &Registration::id);
        if (found == m_registrations.end())
            continue;
        const Handler handler = found->handler;
        handler(notification);
    }
}

} // namespace system
} // namespace platform
