// SPDX-License-Identifier: Apache-2.0
#include "MailRecipient.h"

#include <host/cups/server/Background.h>

#include <QSysInfo>

#include <cups/cups.h>

#include <array>
#include <chrono>
#include <future>
#include <memory>

namespace host {
inline namespace cups {
inline namespace jobs {

namespace {

/// A machine that knows its own name responds much sooner.
constexpr std::chrono::milliseconds timeout{1000};

QByteArray fullHostName()
{
    // Runs on a separate thread, since the lookup of a name cannot be interrupted.
    auto found = std::make_shared<std::promise<QByteArray>>();
    std::future<QByteArray> name = found->get_future();
    Background::detach([found] {
        std::array<char, HTTP_MAX_HOST> text = {};
        found->set_value(httpGetHostname(nullptr, text.data(), static_cast<int>(text.size())));
    });
    if (name.wait_for(timeout) == std::future_status::ready)
        return name.get();
    return QSysInfo::machineHostName().toUtf8();
}

} // namespace

QByteArray mailRecipient(const std::optional<QString> &user)
{
    const QByteArray name = user ? user->toUtf8() : QByteArray(cupsUser());
    return "mailto:" + name + '@' + fullHostName();
}

} // namespace jobs
} // namespace cups
} // namespace host
