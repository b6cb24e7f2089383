// SPDX-License-Identifier: Apache-2.0
#include <programs/kvprint/CommandHelp.h>
#include <programs/kvprint/CommandOption.h>
#include <programs/kvprint/CommandParser.h>

#include <gtest/gtest.h>

using host::Collate;
using host::Orientation;
using programs::CommandLine;
using programs::Task;
using programs::UsageErrorKind;

namespace {

host::Result<CommandLine, programs::UsageError> parse(const QStringList &words)
{
    return programs::parseCommandLine(QStringList{QStringLiteral("kvprint")} + words);
}

host::Result<CommandLine, programs::UsageError> parse(const char *line)
{
    return parse(QString::fromUtf8(line).split(u' ', Qt::SkipEmptyParts));
}

/// Parses the line. On an error, fails the test and returns an empty command.
CommandLine read(const char *line)
{
    const auto command = parse(line);
    EXPECT_TRUE(command) << line << ": " << (command ? "" : qPrintable(command.error().message));
    return command ? command.value() : CommandLine();
}

/// "NAME=VALUE NAME=VALUE"
QByteArray shown(const std::vector<host::JobChoice> &options)
{
    QByteArrayList words;
    for (const host::JobChoice &each : options) {
        EXPECT_EQ(each.origin, host::Origin::You);
        words.append(each.name + '=' + each.value);
    }
    return words.join(' ');
}

} // namespace

TEST(CommandLine, ReadsLpsLetters)
{
    const CommandLine command = read("-d tape/fine -h server:8631 -U ann -E -c -m -s -n 3 -q 70 -t Jars "
                                     "-H 21:30 -P 1-3,5,8- -o KvHalfCut=ON a.pdf b.png");
    EXPECT_EQ(command.task, Task::Print);
    EXPECT_EQ(command.destination, QStringLiteral("tape/fine"));
    EXPECT_EQ(command.server, QStringLiteral("server:8631"));
    EXPECT_EQ(command.user, QStringLiteral("ann"));
    EXPECT_TRUE(command.encrypt && command.mail && command.quiet);
    EXPECT_TRUE(read("-m").quiet);
    EXPECT_FALSE(read("-n 3").quiet);
    EXPECT_EQ(command.settings.copies, 3);
    EXPECT_EQ(command.settings.priority, 70);
    EXPECT_EQ(command.title, QStringLiteral("Jars"));
    EXPECT_EQ(command.settings.hold, QStringLiteral("21:30"));
    EXPECT_EQ(command.settings.pageRanges, QStringLiteral("1-3,5,8-"));
    EXPECT_EQ(shown(command.options), "KvHalfCut=ON");
    EXPECT_EQ(command.documents, (QStringList{QStringLiteral("a.pdf"), QStringLiteral("b.png")}));
}

TEST(CommandLine, ReadsNames)
{
    const CommandLine command = read("--ppd a.ppd --paper=24x60mm --bundle b --output o --screenshot s.png "
                                     "--no-dialog --force d.pdf");
    EXPECT_EQ(command.ppd, QStringLiteral("a.ppd"));
    EXPECT_EQ(command.paper, QByteArray("24x60mm"));
    EXPECT_EQ(command.bundle, QStringLiteral("b"));
    EXPECT_EQ(command.output, QStringLiteral("o"));
    EXPECT_EQ(command.screenshot, QStringLiteral("s.png"));
    EXPECT_TRUE(command.noDialog && command.force);
    EXPECT_EQ(command.documents, QStringList{QStringLiteral("d.pdf")});
}

TEST(CommandLine, LeavesOutWhatIsNotGiven)
{
    const CommandLine command = read("");
    EXPECT_EQ(command.task, Task::Print);
    EXPECT_TRUE(command.documents.isEmpty() && command.options.empty());
    EXPECT_FALSE(command.ppd || command.destination || command.server || command.user || command.paper ||
                 command.title || command.jobToChange || command.bundle || command.output ||
                 command.screenshot);
    EXPECT_FALSE(command.encrypt || command.quiet || command.mail || command.noDialog || command.force ||
                 command.json);
    EXPECT_FALSE(command.settings.copies || command.settings.priority || command.settings.hold ||
                 command.settings.collate || command.settings.orientation);
    EXPECT_FALSE(command.settings.pageRanges || command.settings.pageSet || command.settings.order);
}

TEST(CommandLine, LettersStandTogetherAndValuesMayBeAttached)
{
    for (const char *line :
         {"-n2 -dtape -sE a.pdf", "-sEn2 -d tape a.pdf", "-cEsd tape a.pdf -n 2", "-sEdtape -n 2 -- a.pdf"}) {
        const CommandLine command = read(line);
        EXPECT_EQ(command.settings.copies, 2) << line;
        EXPECT_EQ(command.destination, QStringLiteral("tape")) << line;
        EXPECT_TRUE(command.quiet && command.encrypt) << line;
        EXPECT_EQ(command.documents, QStringList{QStringLiteral("a.pdf")}) << line;
    }
    // A value is what follows, whatever it looks like.
    EXPECT_EQ(read("-t -n -n 2").title, QStringLiteral("-n"));
    EXPECT_EQ(read("-title").title, QStringLiteral("itle"));
}

TEST(CommandLine, TwoDashesEndOptionsAndOneIsStandardInput)
{
    EXPECT_EQ(read("-s -- -n --list -").documents,
              (QStringList{QStringLiteral("-n"), QStringLiteral("--list"), QStringLiteral("-")}));
    EXPECT_EQ(read("a.pdf - -s").documents, (QStringList{QStringLiteral("a.pdf"), QStringLiteral("-")}));
}

TEST(CommandLine, OptionsAreSplitAndQuotedAsLpDoes)
{
    const std::pair<QString, QByteArray> rows[] = {
        // For one -o, libcups returns the options sorted by name.
        {QStringLiteral("c=d a=b"), "a=b c=d"},
        {QStringLiteral("a=b a=c"), "a=c"},
        {QStringLiteral("mirror nofit-to-page"), "fit-to-page=false mirror=true"},
        {QStringLiteral("note='two words' b=\"x y\" c=z\\ z"), "b=x y c=z z note=two words"},
        {QStringLiteral("KvMirror=ON=1"), "KvMirror=ON=1"},
        {QStringLiteral("a=Gläser"), "a=Gläser"},
        {QStringLiteral("x={a=1 b=2}"), "x={a=1 b=2}"},
    };
    for (const auto &[value, expected] : rows) {
        const auto command = parse({QStringLiteral("-o"), value});
        ASSERT_TRUE(command) << qPrintable(value);
        EXPECT_EQ(shown(command.value().options), expected) << qPrintable(value);
    }
    EXPECT_EQ(shown(read("-o b=1 -oa=2 -o b=3").options), "b=3 a=2");
}

TEST(CommandLine, OptionsThatMeanALetterAreTakenForIt)
{
    EXPECT_EQ(read("-o copies=4").settings.copies, 4);
    EXPECT_EQ(read("-n 2 -o copies=4").settings.copies, 4);
    EXPECT_EQ(read("-o copies=4 -n 2").settings.copies, 2);
    EXPECT_EQ(read("-o page-ranges=2-,1").settings.pageRanges, QStringLiteral("2-,1"));
    EXPECT_EQ(read("-o job-priority=9").settings.priority, 9);
    EXPECT_EQ(read("-o job-hold-until=no-hold").settings.hold, QStringLiteral("no-hold"));
    EXPECT_EQ(read("-o job-name=Jars").title, QStringLiteral("Jars"));
    EXPECT_EQ(read("-o page-set=even").settings.pageSet, host::PageSet::Even);
    EXPECT_EQ(read("-o outputorder=reverse").settings.order, host::PageOrder::Reverse);
    // Highest priority, unless a later option sets the priority.
    EXPECT_EQ(read("-q 50 -H immediate").settings.priority, 100);
    EXPECT_EQ(read("-H immediate -q 50").settings.priority, 50);
    EXPECT_EQ(read("-o collate=true").settings.collate, Collate::Yes);
    EXPECT_EQ(read("-o nocollate").settings.collate, Collate::No);
    EXPECT_EQ(read("-o multiple-document-handling=separate-documents-uncollated-copies").settings.collate,
              Collate::No);
    EXPECT_EQ(read("-o orientation-requested=5").settings.orientation, Orientation::ReverseLandscape);
    EXPECT_EQ(read("-o orientation=reverse-portrait").settings.orientation, Orientation::ReversePortrait);
    EXPECT_EQ(read("-o landscape").settings.orientation, Orientation::Landscape);
    EXPECT_EQ(read("-o PageSize=DC29x90").paper, QByteArray("DC29x90"));
    EXPECT_EQ(read("--paper a -o media=B,c").paper, QByteArray("B,c"));
    EXPECT_EQ(read("-o media=B --paper a").paper, QByteArray("a"));
    EXPECT_TRUE(read("-o copies=4 -o PageSize=a -o landscape").options.empty());
    // A keyword is compared byte for byte: this is another option.
    EXPECT_EQ(shown(read("-o Collate=True").options), "Collate=True");
}

TEST(CommandLine, KnowsItsTasks)
{
    EXPECT_EQ(read("--list --json -h server").task, Task::List);
    EXPECT_EQ(read("--summary --json a.pdf").task, Task::Summary);
    EXPECT_EQ(read("--dry-run --json --force -d tape a.pdf").task, Task::DryRun);
    const CommandLine change = read("-i tape-dispenser-12 -H restart -q 1");
    EXPECT_EQ(change.task, Task::ChangeJob);
    EXPECT_EQ(change.jobToChange, 12);
    EXPECT_EQ(change.destination, QStringLiteral("tape-dispenser"));
    EXPECT_EQ(read("-i7 -Hresume").jobToChange, 7);
    EXPECT_FALSE(read("-i7").destination);
}

TEST(CommandLine, AcceptsEveryTimeToPrintAt)
{
    for (const char *when :
         {"hold", "immediate", "resume", "release", "indefinite", "9:05", "09:05", "23:59:59", "night",
          "evening", "day-time", "second-shift", "third-shift", "weekend"})
        EXPECT_EQ(read(("-H " + QByteArray(when)).constData()).settings.hold, QLatin1String(when));
}

TEST(CommandLine, RefusesWhatItDoesNotUnderstand)
{
    struct Row {
        const char *line;
        std::initializer_list<const char *> named;
    };
    const Row rows[] = {
        {"-n 0", {"-n", "\"0\"", "9999"}},
        {"-n x", {"-n", "\"x\""}},
        {"-n 10000", {"-n", "10000"}},
        {"-n", {"-n", "COPIES"}},
        {"-sn", {"-n", "COPIES"}},
        {"-q 0", {"-q", "\"0\"", "100"}},
        {"-q 101", {"-q", "101"}},
        {"-H 24:00", {"-H", "24:00", "weekend"}},
        {"-H 12:60", {"-H", "12:60"}},
        {"-H 12", {"-H", "\"12\""}},
        {"-H tomorrow", {"-H", "tomorrow"}},
        {"-o raw", {"-o", "raw", "PDF"}},
        {"-o document-format=text/plain", {"-o", "document-format", "text/plain"}},
        {"-o page-set=none", {"-o", "page-set", "none"}},
        {"-o outputorder=up", {"-o", "outputorder", "up"}},
        {"-H restart", {"-H", "restart", "-i"}},
        {"-H no-hold", {"-H", "no-hold"}},
        {"-P 3-1", {"-P", "3-1"}},
        {"-P a", {"-P", "\"a\""}},
        {"-P 0", {"-P", "\"0\""}},
        {"-P 1,", {"-P", "\"1,\""}},
        {"-d /fine", {"-d", "/fine"}},
        {"-d tape/", {"-d", "tape/"}},
        {"-i x", {"-i", "\"x\""}},
        {"-i 0", {"-i", "\"0\""}},
        {"-i tape-", {"-i", "tape-"}},
        {"-i 5 a.pdf", {"-i", "a.pdf"}},
        {"-i 5 -d tape", {"-d", "-i"}},
        {"-i 5 --list", {"-i", "--list"}},
        {"-i 5 --ppd a.ppd", {"--ppd", "-i"}},
        {"--ppd a.ppd -d tape", {"-d", "--ppd"}},
        {"--ppd a.ppd -h server", {"-h", "--ppd"}},
        {"--ppd a.ppd --list", {"--ppd", "--list"}},
        {"--output o a.pdf", {"--output", "--ppd"}},
        {"--list a.pdf", {"--list", "a.pdf"}},
        {"--list -n 2", {"-n", "--list"}},
        {"--list --summary", {"--list", "--summary"}},
        {"--json a.pdf", {"--json", "--list", "--summary", "--dry-run"}},
        {"--json -i 5", {"--json", "-i"}},
        {"--list=yes", {"--list", "not accept a value"}},
        {"--ppd", {"--ppd", "FILE"}},
        {"--paper=", {"--paper", "empty"}},
        {"--colour a.pdf", {"\"--colour\""}},
        {"--d tape", {"\"--d\""}},
        {"-x", {"\"-x\""}},
        {"-sx", {"\"-x\""}},
        {"- a.pdf -", {"\"-\"", "once"}},
        {"-o copies=0", {"-o", "copies", "\"0\""}},
        {"-o job-priority=x", {"-o", "job-priority", "\"x\""}},
        {"-o job-hold-until=restart", {"-o", "job-hold-until", "restart"}},
        {"-o page-ranges=9-2", {"-o", "page-ranges", "9-2"}},
        {"-o collate=maybe", {"-o", "collate", "maybe"}},
        {"-o orientation-requested=7", {"-o", "orientation-requested", "\"7\""}},
        {"-o PageSize=", {"-o", "PageSize"}},
        {"-o =", {"-o", "NAME=VALUE"}},
    };
    for (const auto &[line, named] : rows) {
        const auto command = parse(line);
        ASSERT_FALSE(command) << line;
        EXPECT_EQ(command.error().kind, UsageErrorKind::Wrong) << line;
        for (const char *const part : named)
            EXPECT_TRUE(command.error().message.contains(QLatin1String(part)))
                << line << ": " << command.error().message.toStdString();
    }
}

TEST(CommandLine, ATerminalIsNoDocument)
{
    const auto hint = checkInput(read("-d tape"), true);
    ASSERT_FALSE(hint);
    EXPECT_EQ(hint.error().kind, UsageErrorKind::Wrong);
    EXPECT_TRUE(hint.error().message.contains(QStringLiteral("\"-\""))) << qPrintable(hint.error().message);
    EXPECT_FALSE(checkInput(read("--dry-run"), true));
    EXPECT_TRUE(checkInput(read("-d tape"), false));
    for (const char *const line : {"-d tape -", "a.pdf", "--list", "-i 5 -q 1"})
        EXPECT_TRUE(checkInput(read(line), true)) << line;
}

TEST(CommandLine, HelpNamesEveryOptionAndExitStatus)
{
    const auto help = parse("-d tape --help --colour");
    ASSERT_FALSE(help);
    EXPECT_EQ(help.error().kind, UsageErrorKind::HelpRequested);
    const QString text = help.error().message;
    for (const programs::CommandOption &option : programs::commandOptions())
        EXPECT_TRUE(text.contains(u' ' + option.spelling())) << qPrintable(option.spelling());
    for (const char *const status : {"  0  ", "  1  ", "  2  ", "  3  ", "  4  "})
        EXPECT_TRUE(text.contains(QLatin1String(status))) << status;
    for (const QString &line : text.split(u'\n'))
        EXPECT_LE(line.size(), 80) << qPrintable(line);
    EXPECT_EQ(parse("--version").error().kind, UsageErrorKind::VersionRequested);
}
