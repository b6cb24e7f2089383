// SPDX-License-Identifier: Apache-2.0
#include "Kvprint.h"

#include <tests/support/Waiting.h>

#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <deque>
#include <memory>
#include <unistd.h>

namespace {

/// The program mostly waits for the server, so a few more than there are processors.
constexpr std::size_t atATime = 4;

std::unique_ptr<QProcess> begin(const QString &program, const QStringList &words,
                                const QProcessEnvironment &environment, const QByteArray &input)
{
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment);
    // The program must not ask for a password on the terminal that the tests are started from.
    process->setChildProcessModifier([] { setsid(); });
    process->start(program, words);
    process->write(input);
    process->closeWriteChannel();
    return process;
}

Outcome end(QProcess &process)
{
    Outcome outcome;
    const bool ended = process.waitForFinished(test_support::failureMilliseconds);
    EXPECT_TRUE(ended) << "the program does not end";
    if (ended && process.exitStatus() == QProcess::NormalExit)
        outcome.status = process.exitCode();
    outcome.out = process.readAllStandardOutput();
    outcome.error = process.readAllStandardError();
    return outcome;
}

} // namespace

int Outcome::jobId() const
{
    static const QRegularExpression line(
        QStringLiteral("^request id is .+-([0-9]+) \\([0-9]+ file\\(s\\)\\)\n$"));
    return line.match(QString::fromUtf8(out)).captured(1).toInt();
}

std::ostream &operator<<(std::ostream &stream, const Outcome &outcome)
{
    return stream << "status " << outcome.status << "\nstandard output: " << outcome.out.toStdString()
                  << "\nstandard error: " << outcome.error.toStdString();
}

Kvprint::Kvprint(const QString &server)
    : environment(QProcessEnvironment::systemEnvironment())
{
    for (const char *name :
         {"LPDEST", "PRINTER", "CUPS_USER", "CUPS_ENCRYPTION", "DISPLAY", "WAYLAND_DISPLAY"})
        environment.remove(QString::fromLatin1(name));
    environment.insert(QStringLiteral("CUPS_SERVER"), server);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
}

Outcome Kvprint::run(const QStringList &words, const QByteArray &input) const
{
    return runOther(QStringLiteral(KV_PROGRAM), words, input);
}

Outcome Kvprint::runOther(const QString &program, const QStringList &words, const QByteArray &input) const
{
    return end(*begin(program, words, environment, input));
}

std::vector<Outcome> Kvprint::runAll(const std::vector<QStringList> &lists) const
{
    std::vector<Outcome> outcomes;
    std::deque<std::unique_ptr<QProcess>> running;
    const auto endOne = [&] {
        outcomes.push_back(end(*running.front()));
        running.pop_front();
    };
    for (const QStringList &words : lists) {
        if (running.size() == atATime)
            endOne();
        running.push_back(begin(QStringLiteral(KV_PROGRAM), words, environment, {}));
        // Without an event loop, only this call ensures that the program receives the end of its input.
        running.back()->waitForStarted();
    }
    while (!running.empty())
        endOne();
    return outcomes;
}

void Kvprint::preload(const QString &library)
{
    // LD_PRELOAD separates libraries by blanks, which the path of a library may contain.
    const QFileInfo file(library);
    environment.insert(QStringLiteral("LD_PRELOAD"), file.fileName());
    environment.insert(QStringLiteral("LD_LIBRARY_PATH"), file.path());
}

std::vector<ReportedChange> toldChanges(const QByteArray &error)
{
    static const QRegularExpression line(
        QStringLiteral(
            "^kvprint: \"(.+)\" cannot be \"(.*)\" with this paper .*; \"(.*)\" is used instead\\.$"),
        QRegularExpression::MultilineOption);
    std::vector<ReportedChange> changes;
    for (auto matches = line.globalMatch(QString::fromUtf8(error)); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        changes.push_back(
            {match.captured(1).toUtf8(), match.captured(2).toUtf8(), match.captured(3).toUtf8()});
    }
    return changes;
}
