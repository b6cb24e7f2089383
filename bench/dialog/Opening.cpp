// SPDX-License-Identifier: Apache-2.0
#include "Opening.h"

#include <QFile>

#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace bench {

namespace {

std::vector<char *> pointers(QList<QByteArray> &texts)
{
    std::vector<char *> result;
    for (QByteArray &text : texts)
        result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

} // namespace

Opening::Opening(const QStringList &command, const QList<QByteArray> &environment, const QString &output)
{
    QList<QByteArray> arguments;
    for (const QString &argument : command)
        arguments.append(QFile::encodeName(argument));
    QList<QByteArray> variables = environment;
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, QFile::encodeName(output).constData(),
                                     O_WRONLY | O_CREAT | O_APPEND, 0600);
    posix_spawn_file_actions_adddup2(&files, STDOUT_FILENO, STDERR_FILENO);
    const std::vector<char *> argv = pointers(arguments);
    const std::vector<char *> envp = pointers(variables);
    m_start = Clock::now();
    if (posix_spawn(&m_process, argv[0], &files, nullptr, argv.data(), envp.data()) != 0)
        m_process = -1;
    posix_spawn_file_actions_destroy(&files);
}

Opening::~Opening()
{
    if (m_process < 0)
        return;
    ::kill(m_process, SIGTERM);
    const Clock::time_point timeout = Clock::now() + std::chrono::seconds(2);
    while (waitpid(m_process, nullptr, WNOHANG) == 0) {
        if (Clock::now() > timeout)
            ::kill(m_process, SIGKILL);
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
}

QByteArray Opening::readStatus(const char *name) const
{
    QFile file(QStringLiteral("/proc/%1/%2").arg(QString::number(m_process), QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

qint64 Opening::peakMemory() const
{
    for (const QByteArray &line : readStatus("status").split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.simplified().split(' ').value(1).toLongLong();
    }
    return 0;
}

double Opening::processorTime() const
{
    return readStatus("schedstat").split(' ').first().toDouble() / 1e6;
}

} // namespace bench
