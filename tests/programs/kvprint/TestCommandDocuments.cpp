// SPDX-License-Identifier: Apache-2.0
// The manual page and the shells' completions list the same options as the program's table.
#include <programs/kvprint/CommandOption.h>
#include <tests/support/Waiting.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QString completion = QStringLiteral(KV_SOURCE_DIR "/resources/completions/kvprint.bash");

QString content(const char *path)
{
    QFile file(QStringLiteral(KV_SOURCE_DIR "/") + QLatin1String(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    return QString::fromUtf8(file.readAll());
}

struct BashOutcome {
    int status;
    QStringList lines;
    QByteArray error;
};

BashOutcome bash(const QStringList &arguments, const QString &path = {})
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    if (!path.isEmpty())
        environment.insert(QStringLiteral("PATH"), path + u':' + environment.value(QStringLiteral("PATH")));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral("bash"), QStringList{QStringLiteral("--norc")} + arguments);
    EXPECT_TRUE(process.waitForFinished(test_support::failureMilliseconds));
    const QString out = QString::fromUtf8(process.readAllStandardOutput());
    return {process.exitCode(), out.split(u'\n', Qt::SkipEmptyParts), process.readAllStandardError()};
}

/// What the completion offers for the last of the words.
QStringList offered(const QStringList &words, const QString &path = {})
{
    const QString script =
        QStringLiteral(". '%1'; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); "
                       "_kvprint \"$1\" \"${COMP_WORDS[COMP_CWORD]}\" \"${COMP_WORDS[COMP_CWORD-1]}\"; "
                       "printf '%s\\n' \"${COMPREPLY[@]}\"")
            .arg(completion);
    const BashOutcome outcome =
        bash(QStringList{QStringLiteral("-c"), script, QStringLiteral("bash")} + words, path);
    EXPECT_EQ(outcome.error, QByteArray());
    return outcome.lines;
}

/// A program of the test's own in place of another one.
void writeProgram(const QString &path, const QByteArray &script)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n" + script);
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

} // namespace

TEST(CommandDocuments, TheManualPageTellsEveryOptionAndNoOther)
{
    const QString page = content("docs/man/kvprint.1");
    QStringList documented;
    static const QRegularExpression item(QStringLiteral("^\\.It Fl (-?[A-Za-z][a-z-]*)"),
                                         QRegularExpression::MultilineOption);
    for (auto matches = item.globalMatch(page.section(QStringLiteral(".Sh JSON"), 0, 0)); matches.hasNext();)
        documented.append(u'-' + matches.next().captured(1));
    QStringList wanted;
    for (const programs::CommandOption &option : programs::commandOptions())
        wanted.append(option.spelling());
    documented.removeDuplicates();
    documented.sort();
    wanted.sort();
    EXPECT_EQ(documented, wanted);
}

TEST(CommandDocuments, BashCompletesEveryOptionAndNoOther)
{
    QStringList wanted{QStringLiteral("--")};
    for (const programs::CommandOption &option : programs::commandOptions())
        wanted.append(option.spelling());
    QStringList words = offered({QStringLiteral("kvprint"), QStringLiteral("-")});
    words.sort();
    wanted.sort();
    EXPECT_EQ(words, wanted);
    EXPECT_EQ(offered({QStringLiteral("kvprint"), QStringLiteral("-s"), QStringLiteral("--no")}),
              QStringList{QStringLiteral("--no-dialog")});
}

TEST(CommandDocuments, ZshCompletesEveryOptionAndNoOther)
{
    static const QRegularExpression row(QStringLiteral("^    '\\*?(-[^=+\\[]*)([=+]?)\\[[^\\]]+\\](:?)"),
                                        QRegularExpression::MultilineOption);
    QStringList words;
    QStringList wanted;
    for (auto matches = row.globalMatch(content("resources/completions/_kvprint")); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        words.append(match.captured(1) + match.captured(3));
    }
    for (const programs::CommandOption &option : programs::commandOptions())
        wanted.append(option.spelling() + (option.value ? QStringLiteral(":") : QString()));
    words.sort();
    wanted.sort();
    EXPECT_EQ(words, wanted);
}

TEST(CommandDocuments, BashAcceptsItsCompletion)
{
    const BashOutcome outcome = bash({QStringLiteral("-n"), completion});
    EXPECT_EQ(outcome.status, 0) << outcome.error.toStdString();
}

TEST(CommandDocuments, BashRunsNothingThatStandsInAPapersName)
{
    const QTemporaryDir folder;
    const QString trace = folder.filePath(QStringLiteral("trace"));
    writeProgram(folder.filePath(QStringLiteral("lpoptions")), "echo 'PageSize/Paper: *12mm $(>" +
                                                                   trace.toUtf8() + ") [a-z]* `>" +
                                                                   trace.toUtf8() + "`'\n");
    const QStringList papers =
        offered({QStringLiteral("kvprint"), QStringLiteral("--paper"), QString()}, folder.path());
    EXPECT_EQ(papers.size(), 4);
    EXPECT_TRUE(papers.contains(QStringLiteral("12mm")));
    EXPECT_TRUE(papers.contains(QStringLiteral("\\[a-z\\]\\*"))) << papers.join(u' ').toStdString();
    EXPECT_FALSE(QFile::exists(trace));
}

TEST(CommandDocuments, BashCompletesQueuesPapersAndOptions)
{
    const QTemporaryDir folder;
    writeProgram(
        folder.filePath(QStringLiteral("kvprint")),
        "[ \"$*\" = '--list -h server -E' ] || exit 1\n"
        "printf 'tape (default)\\n    Ready.\\ntape/fine\\n    Ready.\\nroll\\n    all: paused\\n'\n");
    writeProgram(folder.filePath(QStringLiteral("lpoptions")),
                 "[ \"$*\" = '-h server -E -p tape -l' ] || exit 1\n"
                 "printf 'PageSize/Paper: 12mm *24mm 24x60mm\\nKvHalfCut/Half Cut: ON *OFF\\n'\n");
    const auto words = [&](const char *more) {
        return offered(QStringLiteral("kvprint -h server -E %1").arg(QLatin1String(more)).split(u' '),
                       folder.path());
    };
    EXPECT_EQ(words("-d "),
              (QStringList{QStringLiteral("tape"), QStringLiteral("tape/fine"), QStringLiteral("roll")}));
    EXPECT_EQ(words("-d ta"), (QStringList{QStringLiteral("tape"), QStringLiteral("tape/fine")}));
    EXPECT_EQ(words("-d tape --paper 24"), (QStringList{QStringLiteral("24mm"), QStringLiteral("24x60mm")}));
    EXPECT_EQ(words("-d tape -o Kv"), QStringList{QStringLiteral("KvHalfCut=")});
    EXPECT_EQ(words("-H re"),
              (QStringList{QStringLiteral("resume"), QStringLiteral("release"), QStringLiteral("restart")}));
}
