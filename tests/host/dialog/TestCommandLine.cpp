// SPDX-License-Identifier: Apache-2.0
#include <host/dialog/CommandLine.h>

#include <gtest/gtest.h>

using dialog::CommandLine;
using dialog::UsageProblem;

namespace {

host::Result<CommandLine, dialog::UsageError> parse(const char *line)
{
    return CommandLine::parse(
        QStringLiteral("kvprint %1").arg(QLatin1String(line)).split(u' ', Qt::SkipEmptyParts));
}

} // namespace

TEST(CommandLine, ReadsEverything)
{
    const auto command =
        parse("--ppd a.ppd --paper 24x60mm --bundle b --output o --screenshot s.png --no-dialog d.pdf");
    ASSERT_TRUE(command) << command.error().message.toStdString();
    EXPECT_EQ(command.value().ppd, QStringLiteral("a.ppd"));
    EXPECT_EQ(command.value().paper, QByteArray("24x60mm"));
    EXPECT_EQ(command.value().bundle, QStringLiteral("b"));
    EXPECT_EQ(command.value().output, QStringLiteral("o"));
    EXPECT_EQ(command.value().screenshot, QStringLiteral("s.png"));
    EXPECT_TRUE(command.value().noDialog);
    EXPECT_EQ(command.value().document, QStringLiteral("d.pdf"));
}

TEST(CommandLine, LeavesOutWhatIsNotGiven)
{
    const auto command = parse("--ppd=a.ppd d.pdf");
    ASSERT_TRUE(command);
    EXPECT_FALSE(command.value().paper || command.value().bundle || command.value().output ||
                 command.value().screenshot || command.value().noDialog);
}

TEST(CommandLine, RefusesWhatItDoesNotUnderstand)
{
    const std::pair<const char *, const char *> rows[] = {
        {"", "--ppd"},
        {"d.pdf", "--ppd"},
        {"--ppd a.ppd", "document"},
        {"--ppd a.ppd one.pdf two.pdf", "2"},
        {"--ppd", "ppd"},
        {"--colour --ppd a.ppd d.pdf", "colour"},
    };
    for (const auto &[line, reason] : rows) {
        const auto command = parse(line);
        ASSERT_FALSE(command) << line;
        EXPECT_EQ(command.error().kind, UsageProblem::Wrong) << line;
        EXPECT_TRUE(command.error().message.contains(QLatin1String(reason)))
            << line << ": " << command.error().message.toStdString();
    }
}

TEST(CommandLine, HelpNamesEveryOptionAndExitStatus)
{
    const auto help = parse("--help");
    ASSERT_FALSE(help);
    EXPECT_EQ(help.error().kind, UsageProblem::HelpWanted);
    for (const char *const part : {"--ppd", "--paper", "--bundle", "--output", "--screenshot", "--no-dialog",
                                   "  0  ", "  1  ", "  2  ", "  3  ", "  4  "})
        EXPECT_TRUE(help.error().message.contains(QLatin1String(part))) << part;
    EXPECT_EQ(parse("--version").error().kind, UsageProblem::VersionWanted);
}
