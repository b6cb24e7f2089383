// SPDX-License-Identifier: Apache-2.0
#include "CommandRequest.h"

#include <host/cups/jobs/MailRecipient.h>

#include <QLocale>

#include <algorithm>

namespace programs {
inline namespace kvprint {

host::CupsServer cupsServer(const CommandLine &command)
{
    host::CupsServer server;
    server.address = command.server;
    server.user = command.user;
    if (command.encrypt)
        server.encryption = host::Encryption::Required;
    return server;
}

host::SetupRequest setupRequest(const CommandLine &command)
{
    host::SetupRequest requested{command.options, command.paper, QLocale().name(), command.force};
    constexpr const char *recipient = "notify-recipient-uri";
    const bool isNamed = std::ranges::find(requested.choices, QByteArray(recipient),
                                           &host::JobChoice::name) != requested.choices.end();
    if (command.mail && !isNamed)
        requested.choices.push_back({recipient, host::mailRecipient(command.user)});
    return requested;
}

host::PanelSource panelSource(const CommandLine &command)
{
    if (command.retryPanels)
        host::PanelCallRecord::forgetAll();
    return {command.bundle, QLocale().uiLanguages()};
}

} // namespace kvprint
} // namespace programs
