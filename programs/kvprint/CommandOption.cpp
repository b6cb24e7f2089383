// SPDX-License-Identifier: Apache-2.0
#include "CommandOption.h"

#include "JobOptionsText.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace programs {
inline namespace kvprint {

namespace {

struct CommandOptionText {
    Q_DECLARE_TR_FUNCTIONS(programs::kvprint::CommandLine)
};

constexpr unsigned bit(Task task)
{
    return 1U << static_cast<unsigned>(task);
}

constexpr unsigned printingTasks = bit(Task::Print);
constexpr unsigned sendingTasks = bit(Task::Print) | bit(Task::DryRun);
constexpr unsigned documentTasks = sendingTasks | bit(Task::Summary);
constexpr unsigned jobTasks = documentTasks | bit(Task::ChangeJob);
constexpr unsigned reportTasks = bit(Task::List) | bit(Task::Summary) | bit(Task::DryRun);
constexpr unsigned allTasks = jobTasks | reportTasks;

template<auto Field>
ParseResult parseText(CommandLine &command, const QString &value)
{
    if (value.isEmpty())
        return CommandOptionText::tr("the value is empty");
    command.*Field = value;
    return {};
}

template<auto Field>
ParseResult parseFlag(CommandLine &command, const QString &)
{
    command.*Field = true;
    return {};
}

template<Task Wanted>
ParseResult parseTask(CommandLine &command, const QString &)
{
    command.task = Wanted;
    return {};
}

ParseResult parseTitle(CommandLine &command, const QString &value)
{
    // An empty title stands for the name of the document, as without the option.
    command.title = value.isEmpty() ? std::nullopt : std::optional(value);
    return {};
}

/// The mail contains the job's number; the run is quiet then, as with lp.
ParseResult parseMail(CommandLine &command, const QString &)
{
    command.mail = true;
    command.quiet = true;
    return {};
}

ParseResult applyPaper(CommandLine &command, const QString &value)
{
    if (value.isEmpty())
        return CommandOptionText::tr("the value is empty");
    command.paper = value.toUtf8();
    return {};
}

template<Task Wanted>
ParseResult parseLeftJob(CommandLine &command, const QString &value)
{
    command.task = Wanted;
    return parseText<&CommandLine::leftJob>(command, value);
}

/// Documents are always copied before the program ends.
ParseResult parseCopyFlag(CommandLine &, const QString &)
{
    return {};
}

constexpr auto Any = CommandOption::Printer::Any;
constexpr auto Queue = CommandOption::Printer::Queue;
constexpr auto Virtual = CommandOption::Printer::Virtual;

constexpr CommandOption optionTable[] = {
    {'d', nullptr, "QUEUE[/INSTANCE]",
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine",
                       "The queue to print on, with an instance if needed. Default: the default queue."),
     documentTasks, Queue, parseDestination},
    {'h', nullptr, "HOST[:PORT]", QT_TRANSLATE_NOOP("programs::kvprint::CommandLine", "The print server."),
     allTasks, Queue, parseText<&CommandLine::server>},
    {'U', nullptr, "USER",
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine", "The user name for the print server."), allTasks,
     Queue, parseText<&CommandLine::user>},
    {'E', nullptr, nullptr,
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine", "Encrypts the connection to the print server."),
     allTasks, Queue, parseFlag<&CommandLine::encrypt>},
    {0, "paper", "NAME",
     QT_TRANSLATE_NOOP(
         "programs::kvprint::CommandLine",
         "The name of the paper in the PPD, or Custom.WIDTHxLENGTHmm if the printer supports custom sizes."),
     jobTasks, Any, applyPaper},
    {'n', nullptr, "COPIES", QT_TRANSLATE_NOOP("programs::kvprint::CommandLine", "The number of copies."),
     jobTasks, Any, parseCopies},
    {'P', nullptr, "PAGES",
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine", "The pages to print, as in 1-3,5,8-."), jobTasks,
     Any, parsePages},
    {'o', nullptr, "NAME=VALUE",
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine",
                       "An option of the PPD or of the print server. Several options are separated by blanks "
                       "or given one by one."),
     jobTasks, Any, parseOptions},
    {'t', nullptr, "TITLE",
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine", "The job's name in the queue."), jobTasks, Any,
     parseTitle},
    {'q', nullptr, "PRIORITY",
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine", "The job's priority, from 1 to 100 (first)."),
     jobTasks, Any, parsePriority},
    {'H', nullptr, "WHEN",
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine",
                       "When to print: hold, immediate, HH:MM (UTC), night, weekend and others; resume and "
                       "restart for a job that was already sent."),
     jobTasks, Any, parseHold},
    {'m', nullptr, nullptr,
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine",
                       "Sends a mail when the job is finished; implies -s."),
     sendingTasks | bit(Task::ChangeJob), Queue, parseMail},
    {'s', nullptr, nullptr,
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine", "Does not print the request id."), allTasks, Any,
     parseFlag<&CommandLine::quiet>},
    {'c', nullptr, nullptr,
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine",
                       "Ignored, for compatibility with lp: documents are always copied."),
     allTasks, Any, parseCopyFlag},
    {'i', nullptr, "[QUEUE-]JOB",
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine", "Changes a job that was already sent."),
     bit(Task::ChangeJob), Queue, parseJob},
    {0, "cancel-left", "JOB",
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine",
                       "Cancels a job that an interrupted program left on a print server."),
     bit(Task::CancelLeft), Queue, parseLeftJob<Task::CancelLeft>},
    {0, "release-left", "JOB",
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine", "Releases such a job; it may be incomplete."),
     bit(Task::ReleaseLeft), Queue, parseLeftJob<Task::ReleaseLeft>},
    {0, "no-dialog", nullptr,
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine",
                       "Prints without the dialog, with the settings that it would show."),
     allTasks, Any, parseFlag<&CommandLine::noDialog>},
    {0, "list", nullptr,
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine", "Lists the queues and their states."),
     bit(Task::List), Queue, parseTask<Task::List>},
    {0, "summary", nullptr,
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine",
                       "Writes the settings that the dialog would show, without printing."),
     bit(Task::Summary), Any, parseTask<Task::Summary>},
    {0, "dry-run", nullptr,
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine",
                       "Prepares the job and writes what would be sent, without sending it."),
     bit(Task::DryRun), Any, parseTask<Task::DryRun>},
    {0, "json", nullptr, QT_TRANSLATE_NOOP("programs::kvprint::CommandLine", "Writes the output as JSON."),
     reportTasks, Any, parseFlag<&CommandLine::json>},
    {0, "force", nullptr,
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine",
                       "Sends the job even with conflicts, or with choices that the printer does not have."),
     sendingTasks | bit(Task::ChangeJob), Any, parseFlag<&CommandLine::force>},
    {0, "screenshot", "OUT.png",
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine", "Saves a screenshot of the dialog as a PNG file."),
     documentTasks, Any, parseText<&CommandLine::screenshot>},
    {0, "bundle", "DIR",
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine",
                       "A panel bundle, or a folder with bundles, to use instead of the installed ones."),
     documentTasks, Any, parseText<&CommandLine::bundle>},
    {0, "retry-panels", nullptr,
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine",
                       "Loads panels again that have ended or blocked the program before."),
     documentTasks, Any, parseFlag<&CommandLine::retryPanels>},
    {0, "ppd", "FILE",
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine",
                       "Prints on a virtual printer with this PPD file, plain or gzip, instead of a queue."),
     documentTasks, Any, parseText<&CommandLine::ppd>},
    {0, "output", "DIR",
     QT_TRANSLATE_NOOP("programs::kvprint::CommandLine",
                       "The folder for strip.pdf and job.json of the virtual printer; created if it does not "
                       "exist. Default: a new folder among the user's data."),
     printingTasks, Virtual, parseText<&CommandLine::output>},
    {0, "help", nullptr, QT_TRANSLATE_NOOP("programs::kvprint::CommandLine", "Shows this help."), allTasks,
     Any, nullptr},
    {0, "version", nullptr, QT_TRANSLATE_NOOP("programs::kvprint::CommandLine", "Shows the version."),
     allTasks, Any, nullptr},
};

} // namespace

QString CommandOption::spelling() const
{
    return letter ? u'-' + QString(QLatin1Char(letter)) : QStringLiteral("--") + QLatin1String(name);
}

bool CommandOption::goesWith(Task task) const
{
    return (tasks & bit(task)) != 0;
}

bool CommandOption::asksFor(Task task) const
{
    return task != Task::Print && tasks == bit(task);
}

std::span<const CommandOption> commandOptions()
{
    return optionTable;
}

const CommandOption *findOption(QChar letter)
{
    const auto *const found =
        std::find_if(std::begin(optionTable), std::end(optionTable), [&](const CommandOption &each) {
            return each.letter != 0 && letter == QLatin1Char(each.letter);
        });
    return found == std::end(optionTable) ? nullptr : found;
}

const CommandOption *findOption(QStringView name)
{
    const auto *const found =
        std::find_if(std::begin(optionTable), std::end(optionTable), [&](const CommandOption &each) {
            return each.name && name == QLatin1String(each.name);
        });
    return found == std::end(optionTable) ? nullptr : found;
}

} // namespace kvprint
} // namespace programs
