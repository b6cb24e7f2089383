// SPDX-License-Identifier: Apache-2.0
#include "ServerRun.h"

#include "DestinationReport.h"

#include <host/cups/DestinationList.h>
#include <host/cups/JobChange.h>

#include <QEventLoop>

namespace dialog {

ServerRun::ServerRun(const CommandLine &command, const Console &console, host::CupsServer server)
    : m_command(command)
    , m_console(console)
    , m_server(std::move(server))
{
}

ExitStatus ServerRun::run()
{
    return m_command.task == Task::ChangeJob ? changeJob() : tellDestinations();
}

ExitStatus ServerRun::tellDestinations()
{
    host::DestinationList list(m_server);
    QEventLoop loop;
    std::optional<host::CupsError> failure;
    QObject::connect(&list, &host::DestinationList::refreshed, &loop, &QEventLoop::quit);
    QObject::connect(&list, &host::DestinationList::failed, &loop, [&](const host::CupsError &error) {
        failure = error;
        loop.quit();
    });
    list.refresh();
    loop.exec();
    if (failure) {
        m_console.complain(failure->message);
        return ExitStatus::Failed;
    }
    m_console.out(m_command.json ? QString::fromUtf8(destinationsAsJson(list.destinations()))
                                 : destinationsInPlainText(list.destinations()));
    return ExitStatus::Printed;
}

ExitStatus ServerRun::changeJob()
{
    host::JobChange change{*m_command.jobToChange, m_command.title, m_command.options, m_command.settings};
    if (m_command.paper)
        change.options.push_back({"PageSize", *m_command.paper});
    host::Background background;
    QEventLoop loop;
    std::optional<host::CupsError> failure;
    background.start([&, server = m_server, change](host::BackgroundTask &task) {
        const std::optional<host::CupsError> error = host::changeJob(server, change, task);
        task.deliver([&, error] {
            failure = error;
            loop.quit();
        });
    });
    loop.exec();
    if (!failure)
        return ExitStatus::Printed;
    m_console.complain(failure->message);
    return ExitStatus::Failed;
}

} // namespace dialog
