// SPDX-License-Identifier: Apache-2.0
#include "ServerRun.h"

#include "DestinationReport.h"

#include <dialog/job/BackgroundOutcome.h>
#include <host/cups/jobs/ChoiceCheck.h>
#include <host/cups/queues/DestinationList.h>
#include <host/cups/queues/PpdLoader.h>

#include <QEventLoop>

namespace programs {
inline namespace kvprint {

ServerRun::ServerRun(const CommandLine &command, const Console &console, host::CupsServer server)
    : m_command(command)
    , m_console(console)
    , m_server(std::move(server))
{
}

ExitStatus ServerRun::run()
{
    return m_command.task == Task::ChangeJob ? changeJob() : printDestinations();
}

ExitStatus ServerRun::printDestinations()
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
        m_console.printError(failure->message);
        return ExitStatus::Failed;
    }
    m_console.out(m_command.json ? QString::fromUtf8(destinationsAsJson(list.destinations()))
                                 : destinationsInPlainText(list.destinations()));
    return ExitStatus::Printed;
}

host::Result<std::shared_ptr<host::PpdFile>, host::CupsError> ServerRun::ppdOfJob(int jobId)
{
    const auto queue = dialog::runInBackground([server = m_server, jobId](host::BackgroundTask &task) {
        return host::queueOfJob(server, jobId, task);
    });
    if (!queue)
        return queue.error();
    host::Destination destination;
    destination.queue = queue.value();
    host::PpdLoader loader(m_server);
    QEventLoop loop;
    std::shared_ptr<host::PpdFile> ppd;
    std::optional<host::CupsError> failure;
    QObject::connect(&loader, &host::PpdLoader::loaded, &loop, [&](const QString &, const auto &loaded) {
        ppd = loaded;
        loop.quit();
    });
    QObject::connect(&loader, &host::PpdLoader::absent, &loop, &QEventLoop::quit);
    QObject::connect(&loader, &host::PpdLoader::failed, &loop,
                     [&](const QString &, const host::CupsError &error) {
                         failure = error;
                         loop.quit();
                     });
    loader.load(destination);
    loop.exec();
    if (failure)
        return *failure;
    return ppd;
}

bool ServerRun::printerHas(const host::JobChange &change)
{
    const auto ppd = ppdOfJob(change.jobId);
    if (!ppd) {
        m_console.printError(host::notChanged(change.jobId, ppd.error()).message);
        return false;
    }
    bool hasAll = true;
    for (const host::JobChoice &choice : change.options) {
        if (!ppd.value())
            continue;
        const auto checked = host::checkChoice(*ppd.value(), choice);
        if (!checked)
            m_console.printError(checked.error().message);
        hasAll = hasAll && checked;
    }
    return hasAll;
}

ExitStatus ServerRun::changeJob()
{
    host::JobChange change{*m_command.jobToChange, m_command.title, m_command.options, m_command.settings};
    if (m_command.paper)
        change.options.push_back({"PageSize", *m_command.paper});
    if (!m_command.force && !change.options.empty() && !printerHas(change))
        return ExitStatus::Failed;
    const auto changed = dialog::runInBackground([server = m_server, change](host::BackgroundTask &task) {
        return host::changeJob(server, change, task);
    });
    if (changed)
        return ExitStatus::Printed;
    m_console.printError(changed.error().message);
    return ExitStatus::Failed;
}

} // namespace kvprint
} // namespace programs
