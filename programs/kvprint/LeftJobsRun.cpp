// SPDX-License-Identifier: Apache-2.0
#include "LeftJobsRun.h"

#include <dialog/job/BackgroundOutcome.h>

#include <QCoreApplication>

namespace programs {
inline namespace kvprint {

namespace {

struct LeftJobsRunText {
    Q_DECLARE_TR_FUNCTIONS(programs::kvprint::LeftJobsRun)
};

} // namespace

LeftJobsRun::LeftJobsRun(const CommandLine &command, const Console &console)
    : m_command(command)
    , m_console(console)
{
}

host::JobJournal::Left LeftJobsRun::readLeft() const
{
    host::JobJournal::Left left = host::JobJournal().left();
    for (const QString &damage : left.damages)
        m_console.printError(damage);
    return left;
}

void LeftJobsRun::report() const
{
    for (const host::JobRecord &job : readLeft().jobs) {
        m_console.printError(host::leftJobSentence(job));
        m_console.printError(
            LeftJobsRunText::tr(
                "\"kvprint --cancel-left %1\" cancels it, \"kvprint --release-left %1\" releases it.")
                .arg(job.name()));
    }
}

std::optional<host::JobRecord> LeftJobsRun::meant() const
{
    QStringList all;
    QStringList several;
    std::optional<host::JobRecord> found;
    for (const host::JobRecord &job : readLeft().jobs) {
        all.append(job.name());
        if (m_command.leftJob != job.name() && m_command.leftJob != job.identifier())
            continue;
        several.append(QStringLiteral("%1 (%2)").arg(job.identifier(), job.server));
        found = job;
    }
    if (several.size() == 1)
        return found;
    const QString separator = QStringLiteral(", ");
    if (several.size() > 1)
        m_console.printError(
            LeftJobsRunText::tr("Jobs \"%1\" are left on several print servers; specify one of: %2")
                .arg(m_command.leftJob, several.join(separator)));
    else if (all.isEmpty())
        m_console.printError(
            LeftJobsRunText::tr("No interrupted program left a job \"%1\"; there are no such jobs")
                .arg(m_command.leftJob));
    else
        m_console.printError(
            LeftJobsRunText::tr("No interrupted program left a job \"%1\"; there are these: %2")
                .arg(m_command.leftJob, all.join(separator)));
    return std::nullopt;
}

ExitStatus LeftJobsRun::settle(const host::CupsServer &server) const
{
    const std::optional<host::JobRecord> job = meant();
    if (!job)
        return ExitStatus::Failed;
    const host::LeftJobAction action =
        m_command.task == Task::ReleaseLeft ? host::LeftJobAction::Release : host::LeftJobAction::Cancel;
    const auto outcome = dialog::runInBackground([server, job = *job, action](host::BackgroundTask &task) {
        return host::settleLeftJob(server, job, action, task);
    });
    if (!outcome) {
        m_console.printError(outcome.error().message);
        return ExitStatus::Failed;
    }
    m_console.out(outcome.value() + u'\n');
    return ExitStatus::Printed;
}

} // namespace kvprint
} // namespace programs
