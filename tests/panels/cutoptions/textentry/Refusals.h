// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/NotificationCenter.h>
#include <platform/Sound.h>
#include <textentry/PDEFormatter.h>

#include <vector>

/// Records the beeps and the formatters' notifications for as long as it lives.
class Refusals {
public:
    Refusals()
    {
        for (const QString &name :
             {PDEFormatter::invalidCharacterNotification, PDEFormatter::formatErrorNotification})
            platform::NotificationCenter::defaultCenter().addObserver(
                this, name, nullptr, [this](const platform::Notification &notification) {
                    notifications.push_back(notification);
                });
    }
    ~Refusals() { platform::NotificationCenter::defaultCenter().removeObserver(this); }
    Refusals(const Refusals &) = delete;
    Refusals &operator=(const Refusals &) = delete;

    std::uint64_t beeps() const { return platform::beepCount() - m_beepsBefore; }

    std::vector<platform::Notification> notifications;

private:
    std::uint64_t m_beepsBefore = platform::beepCount();
};

/// Types the text at the end of the original one.
inline bool typed(const PDEFormatter &formatter, const QString &original, const QString &text)
{
    return formatter.isPartialStringValid(original + text, PDETextRange{original.size() + text.size(), 0},
                                          original, {original.size(), 0}, nullptr);
}
