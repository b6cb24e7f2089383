// SPDX-License-Identifier: Apache-2.0
#include "CommandChecks.h"

#include <dialog/job/QueueSender.h>

#include <QCoreApplication>

namespace programs {
inline namespace kvprint {

namespace {

struct CommandChecksText {
    Q_DECLARE_TR_FUNCTIONS(programs::kvprint::HeadlessRun)
};

/// The papers' names for a message, and "…" in place of most of them when there are many.
QString paperNames(const host::PpdFile &ppd)
{
    constexpr int max = 12;
    QStringList names;
    for (const host::PpdPaper &paper : ppd.papers())
        names.append(QString::fromUtf8(paper.name));
    if (names.size() > max)
        names = names.first(max) << QStringLiteral("…");
    return names.join(QStringLiteral(", "));
}

} // namespace

CommandChecks::CommandChecks(const CommandLine &command, const Console &console)
    : m_command(command)
    , m_console(console)
{
}

QString CommandChecks::errorText(const host::ChoiceError &error, const host::PrinterSetup &setup) const
{
    const bool isPaperOfFile =
        m_command.ppd && m_command.paper && error.kind == host::ChoiceErrorKind::UnknownPaper;
    if (!isPaperOfFile)
        return error.message;
    return QCoreApplication::translate("programs::kvprint::PrintRun",
                                       "The PPD file \"%1\" has no paper \"%2\"; it has: %3")
        .arg(*m_command.ppd, QString::fromUtf8(*m_command.paper), paperNames(setup.ppd()));
}

bool CommandChecks::accepts(const host::PrinterSetup &setup) const
{
    for (const host::ChoiceError &error : setup.choiceErrors())
        m_console.printError(errorText(error, setup));
    if (!setup.choiceErrors().empty() && !m_command.force)
        return false;
    for (const host::BundleError &error : setup.panelErrors())
        m_console.printError(error.message);
    for (const QString &notice : setup.panelNotices())
        m_console.printError(notice);
    return true;
}

void CommandChecks::reportReplaced(const host::PrinterSetup &setup) const
{
    // By the names that the command line uses.
    for (const host::ReplacedChoice &each : setup.replaced())
        m_console.printError(host::PrinterSetup::replacedSentence(each));
}

bool CommandChecks::accepts(const host::Ticket &ticket, const host::PrinterSetup &setup) const
{
    if (ticket.panel.error) {
        m_console.printError(*ticket.panel.error);
        return false;
    }
    reportReplaced(setup);
    for (const host::Conflict &conflict : ticket.conflicts)
        m_console.printError(conflict.sentence());
    if (ticket.remedy)
        m_console.printError(
            CommandChecksText::tr("To resolve the conflict: %1").arg(ticket.remedy->sentence()));
    // A summary of conflicting settings reports the conflicts, as the dialog does.
    return ticket.conflicts.empty() || m_command.force || m_command.task == Task::Summary;
}

void CommandChecks::printRequestId(const dialog::QueueSender &sender) const
{
    if (!m_command.quiet)
        m_console.printRequestId(sender.lastJob()->queue, sender.lastJob()->id,
                                 qMax(qsizetype(1), m_command.documents.size()));
}

ExitStatus CommandChecks::statusOf(ExitStatus status, const host::PrinterSetup &setup) const
{
    for (const host::BundleError &error : setup.laterPanelErrors())
        m_console.printError(error.message);
    return status == ExitStatus::Printed && !setup.panelErrors().empty() ? ExitStatus::PrintedWithoutPanel
                                                                         : status;
}

} // namespace kvprint
} // namespace programs
