// SPDX-License-Identifier: Apache-2.0
#include "CommandHelp.h"

#include "CommandOption.h"

#include <host/rendering/SandboxSupport.h>

#include <QCoreApplication>

namespace programs {
inline namespace kvprint {

namespace {

struct CommandHelpText {
    Q_DECLARE_TR_FUNCTIONS(programs::kvprint::CommandLine)
};

constexpr qsizetype lineWidth = 79;
/// The column at which the texts of the options begin.
constexpr qsizetype textColumn = 26;

/// Returns the text in lines; all but the first are indented.
QString wrapped(const QString &text, qsizetype width, qsizetype indent)
{
    QStringList lines;
    QString line;
    for (const QString &word : text.split(u' ')) {
        if (!line.isEmpty() && line.size() + 1 + word.size() > width)
            lines.append(std::exchange(line, QString()));
        line += line.isEmpty() ? word : u' ' + word;
    }
    lines.append(line);
    return lines.join(u'\n' + QString(indent, u' '));
}

QString lines(const QString &option, const QString &text)
{
    QString left = QStringLiteral("  ") + option;
    left = left.size() + 2 <= textColumn ? left.leftJustified(textColumn)
                                         : left + u'\n' + QString(textColumn, u' ');
    return left + wrapped(text, lineWidth - textColumn, textColumn) + u'\n';
}

QString lines(const CommandOption &option)
{
    const QString value = option.value ? u' ' + QString::fromLatin1(option.value) : QString();
    return lines(option.spelling() + value,
                 QCoreApplication::translate("programs::kvprint::CommandLine", option.help));
}

} // namespace

QString commandHelp()
{
    QString help =
        CommandHelpText::tr(
            "Usage: kvprint [OPTION]... [--] [DOCUMENT]...\n"
            "       kvprint -i [QUEUE-]JOB [OPTION]...\n"
            "       kvprint --list | --summary | --dry-run [OPTION]... [--] [DOCUMENT]...\n") +
        u'\n' +
        wrapped(CommandHelpText::tr(
                    "Prints documents (PDF, PNG, JPEG and SVG) on label printers. A dialog for paper, pages "
                    "and cuts shows the label strip as it will come out of the printer. Without a display, "
                    "the documents are printed immediately. \"-\" or no document means standard input."),
                lineWidth, 0) +
        QStringLiteral("\n\n") + CommandHelpText::tr("Options:\n");
    for (const CommandOption &option : commandOptions())
        help += lines(option);
    help += lines(QStringLiteral("--"),
                  CommandHelpText::tr("Ends the options; all following arguments are documents."));
    return help + u'\n' +
           CommandHelpText::tr(
               "Exit status:\n  0  success\n  1  something could not be opened, used, sent or written; "
               "nothing was printed,\n     unless standard error states that the job was sent\n  2  invalid "
               "command line\n  3  printed, but without the cut-options panel\n  4  canceled in the dialog\n "
               " 129, 130, 143  stopped by a signal before the job was sent\n");
}

QString versionText()
{
    const host::SandboxSupport support = host::sandboxSupport();
    QString text =
        QCoreApplication::applicationName() + u' ' + QCoreApplication::applicationVersion() + u'\n';
    if (!support.restrictsFiles)
        text +=
            wrapped(CommandHelpText::tr("The kernel has no Landlock: the processes that read documents can "
                                        "read other files."),
                    lineWidth, 0) +
            u'\n';
    if (!support.restrictsCalls)
        text +=
            wrapped(CommandHelpText::tr("The kernel has no seccomp: the processes that read documents can "
                                        "use the network and start other processes."),
                    lineWidth, 0) +
            u'\n';
    return text;
}

} // namespace kvprint
} // namespace programs
