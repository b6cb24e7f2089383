// SPDX-License-Identifier: Apache-2.0
#include "CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace dialog {

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(dialog::CommandLine)
};

QString exitStatuses()
{
    return QStringLiteral("\n") +
           Text::tr("Exit status:\n"
                    "  0  printed\n"
                    "  1  something could not be opened, used or written; nothing was printed\n"
                    "  2  the command line was not understood\n"
                    "  3  printed, but without the cut-options panel\n"
                    "  4  cancelled in the dialog\n");
}

UsageError wrong(const QString &message)
{
    return {UsageProblem::Wrong, message};
}

std::optional<QString> valueOf(const QCommandLineParser &parser, const QString &name)
{
    if (!parser.isSet(name))
        return std::nullopt;
    return parser.value(name);
}

void describe(QCommandLineParser &parser)
{
    parser.setApplicationDescription(
        Text::tr("Prints the pages of a PDF as labels, with a dialog for paper, pages and cuts that shows "
                 "the label strip as it will come out. Without a display it prints at once."));
    parser.addOptions({
        {QStringLiteral("ppd"), Text::tr("The printer's PPD file, plain or gzip. Required."),
         QStringLiteral("FILE")},
        {QStringLiteral("paper"),
         Text::tr("The paper's name in the PPD, or Custom.WIDTHxLENGTHmm where the printer takes free "
                  "sizes. The PPD's default without it."),
         QStringLiteral("NAME")},
        {QStringLiteral("bundle"), Text::tr("The bundle with the cut-options panel, or the folder it is in."),
         QStringLiteral("DIR")},
        {QStringLiteral("output"),
         Text::tr("The folder for strip.pdf and job.json, made when it is not there. A new folder among "
                  "the user's data without it."),
         QStringLiteral("DIR")},
        {QStringLiteral("screenshot"), Text::tr("Saves a picture of the dialog, as it opens, in a PNG file."),
         QStringLiteral("OUT.png")},
        {QStringLiteral("no-dialog"),
         Text::tr("Prints at once, with the settings that the dialog would open with.")},
        {{QStringLiteral("h"), QStringLiteral("help")}, Text::tr("Shows this help.")},
        {{QStringLiteral("v"), QStringLiteral("version")}, Text::tr("Shows the version.")},
    });
    parser.addPositionalArgument(QStringLiteral("DOCUMENT.pdf"), Text::tr("The labels, one a page."));
}

} // namespace

host::Result<CommandLine, UsageError> CommandLine::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    describe(parser);
    if (!parser.parse(arguments))
        return wrong(parser.errorText());
    if (parser.isSet(QStringLiteral("help")))
        return UsageError{UsageProblem::HelpWanted, parser.helpText() + exitStatuses()};
    if (parser.isSet(QStringLiteral("version")))
        return UsageError{UsageProblem::VersionWanted, QCoreApplication::applicationName() + u' ' +
                                                           QCoreApplication::applicationVersion() + u'\n'};
    const QStringList documents = parser.positionalArguments();
    if (!parser.isSet(QStringLiteral("ppd")))
        return wrong(Text::tr("No printer was named: --ppd FILE is missing"));
    if (documents.isEmpty())
        return wrong(Text::tr("No document was named"));
    if (documents.size() > 1)
        return wrong(
            Text::tr("Only one document can be printed at a time, and %1 were named").arg(documents.size()));
    CommandLine command;
    command.ppd = parser.value(QStringLiteral("ppd"));
    command.document = documents.constFirst();
    if (const std::optional<QString> paper = valueOf(parser, QStringLiteral("paper")))
        command.paper = paper->toUtf8();
    command.bundle = valueOf(parser, QStringLiteral("bundle"));
    command.output = valueOf(parser, QStringLiteral("output"));
    command.screenshot = valueOf(parser, QStringLiteral("screenshot"));
    command.noDialog = parser.isSet(QStringLiteral("no-dialog"));
    return command;
}

} // namespace dialog
