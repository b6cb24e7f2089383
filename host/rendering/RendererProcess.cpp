// SPDX-License-Identifier: Apache-2.0
#include "RendererProcess.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <ctime>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/eventfd.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace host {
inline namespace rendering {

namespace {

/// A process that waits instead of working uses no processor time. Much longer than any request on a busy
/// machine.
constexpr std::chrono::milliseconds maxSilence = std::chrono::minutes(2);
/// The exit status of a program whose libraries are not found.
constexpr int notLoaded = 127;

/// The variables that choose languages, fonts and libraries. The process gets no others.
std::vector<char *> rendererEnvironment()
{
    constexpr std::string_view passed[] = {
        "HOME=", "LANG=", "LC_", "XDG_", "TZ=", "LD_LIBRARY_PATH=", "ASAN_OPTIONS=", "UBSAN_OPTIONS="};
    std::vector<char *> variables;
    for (char **variable = environ; *variable; ++variable) {
        for (const std::string_view start : passed) {
            if (std::string_view(*variable).starts_with(start))
                variables.push_back(*variable);
        }
    }
    variables.push_back(nullptr);
    return variables;
}

/// What the new process starts with: the end of the channel as its only descriptor beside the standard
/// streams, which lead nowhere, and a process group of its own, so that Ctrl+C in the terminal does not end
/// it before kvprint has ended.
class SpawnSettings {
public:
    explicit SpawnSettings(int channel)
    {
        posix_spawn_file_actions_init(&m_files);
        posix_spawn_file_actions_adddup2(&m_files, channel, rendererDescriptor);
        for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
            posix_spawn_file_actions_addopen(&m_files, stream, "/dev/null", O_RDWR, 0);
        posix_spawn_file_actions_addclosefrom_np(&m_files, rendererDescriptor + 1);
        posix_spawnattr_init(&m_attributes);
        posix_spawnattr_setpgroup(&m_attributes, 0);
        sigset_t all;
        sigfillset(&all);
        sigset_t none;
        sigemptyset(&none);
        posix_spawnattr_setsigdefault(&m_attributes, &all);
        posix_spawnattr_setsigmask(&m_attributes, &none);
        posix_spawnattr_setflags(&m_attributes,
                                 POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    }
    ~SpawnSettings()
    {
        posix_spawn_file_actions_destroy(&m_files);
        posix_spawnattr_destroy(&m_attributes);
    }
    Q_DISABLE_COPY_MOVE(SpawnSettings)

    /// Returns the new process; 0 if it cannot be started.
    pid_t spawn(const QString &program) const
    {
        QByteArray path = QFile::encodeName(program);
        std::array<char *, 2> arguments = {path.data(), nullptr};
        pid_t process = 0;
        const int error = posix_spawn(&process, path.constData(), &m_files, &m_attributes, arguments.data(),
                                      rendererEnvironment().data());
        return error == 0 ? process : 0;
    }

private:
    posix_spawn_file_actions_t m_files = {};
    posix_spawnattr_t m_attributes = {};
};

RenderFault faultOf(int status)
{
    if (WIFEXITED(status))
        return WEXITSTATUS(status) == notLoaded ? RenderFault::Missing : RenderFault::Crashed;
    switch (WTERMSIG(status)) {
    case SIGXCPU:
        return RenderFault::TooLong;
    case SIGSYS:
        return RenderFault::Forbidden;
    default:
        return RenderFault::Crashed;
    }
}

} // namespace

RendererProcess::RendererProcess(QString program)
    : m_program(std::move(program))
    , m_wake(eventfd(0, EFD_CLOEXEC))
{
}

RendererProcess::~RendererProcess()
{
    kill();
}

void RendererProcess::start()
{
    // The system may have ended the process since the last request.
    if (isRunning() && waitpid(m_process, nullptr, WNOHANG) == m_process)
        m_process = 0;
    if (isRunning() || m_isCanceled)
        return;
    auto ends = RenderChannel::makeEnds();
    if (!ends)
        return;
    m_process = SpawnSettings(ends->second.number()).spawn(m_program);
    if (!isRunning())
        return;
    m_channel.emplace(std::move(ends->first));
    ++m_generation;
}

Result<RendererProcess::Answer, RenderFault> RendererProcess::ask(const RenderRequest &request,
                                                                  int descriptor)
{
    if (m_isCanceled) {
        kill();
        return RenderFault::Canceled;
    }
    start();
    if (!isRunning())
        return RenderFault::Missing;
    limitProcessorTime();
    if (!m_channel->send(messageBytes(request), descriptor))
        return reap();
    if (const std::optional<RenderFault> fault = waitForAnswer()) {
        kill();
        return *fault;
    }
    const std::optional<ChannelMessage> message = m_channel->receive();
    if (!message || message->bytes.size() < static_cast<qsizetype>(sizeof(RenderReply)))
        return reap();
    Answer answer;
    std::memcpy(&answer.reply, message->bytes.constData(), sizeof(RenderReply));
    answer.bytes = message->bytes.sliced(sizeof(RenderReply));
    return answer;
}

void RendererProcess::limitProcessorTime() const
{
    clockid_t clock = 0;
    timespec used = {};
    rlimit limit = {};
    if (clock_getcpuclockid(m_process, &clock) != 0 || clock_gettime(clock, &used) != 0 ||
        prlimit(m_process, RLIMIT_CPU, nullptr, &limit) != 0)
        return;
    limit.rlim_cur = static_cast<rlim_t>(used.tv_sec) + secondsPerRequest;
    prlimit(m_process, RLIMIT_CPU, &limit, nullptr);
}

std::optional<RenderFault> RendererProcess::waitForAnswer() const
{
    std::array<pollfd, 2> events = {pollfd{m_channel->descriptor(), POLLIN, 0},
                                    pollfd{m_wake.number(), POLLIN, 0}};
    for (;;) {
        const int count = poll(events.data(), events.size(), static_cast<int>(maxSilence.count()));
        if (count < 0 && errno == EINTR)
            continue;
        if (m_isCanceled)
            return RenderFault::Canceled;
        return count > 0 ? std::nullopt : std::optional(RenderFault::TooLong);
    }
}

RenderFault RendererProcess::reap()
{
    // The process cannot answer any more: a closed channel ends it if it has not ended.
    m_channel.reset();
    int status = 0;
    while (waitpid(m_process, &status, 0) < 0 && errno == EINTR) {
    }
    m_process = 0;
    return faultOf(status);
}

void RendererProcess::kill()
{
    if (!isRunning())
        return;
    ::kill(m_process, SIGKILL);
    reap();
}

void RendererProcess::cancel()
{
    m_isCanceled = true;
    const quint64 one = 1;
    const ssize_t written = write(m_wake.number(), &one, sizeof(one));
    Q_UNUSED(written);
}

} // namespace rendering
} // namespace host
