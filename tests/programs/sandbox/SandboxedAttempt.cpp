// SPDX-License-Identifier: Apache-2.0
// Enters the sandbox and attempts one thing:
//
//     sandboxed_attempt NAME READABLE-FOLDER PATH
//
// The exit status is 0 if the attempt succeeds and 1 if the system refuses it. The system may also end the
// process.
#include <programs/sandbox/Sandbox.h>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <new>
#include <thread>

#include <fcntl.h>
#include <netinet/in.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr std::size_t addressSpace = std::size_t{1} << 30U;

struct Attempt {
    const char *name;
    std::function<bool(const char *path)> run;
};

bool opens(const char *path, int flags)
{
    const int descriptor = open(path, flags, 0600); // NOLINT
    return descriptor >= 0;
}

bool spendsTime()
{
    volatile bool goesOn = true;
    while (goesOn) {
    }
    return true;
}

const Attempt attempts[] = {
    {"nothing", [](const char *) { return true; }},
    {"read", [](const char *path) { return opens(path, O_RDONLY); }},
    {"write", [](const char *path) { return opens(path, O_WRONLY); }},
    {"create", [](const char *path) { return opens(path, O_WRONLY | O_CREAT); }},
    {"truncate", [](const char *path) { return truncate(path, 0) == 0; }},
    {"make-folder", [](const char *path) { return mkdir(path, 0700) == 0; }},
    {"remove", [](const char *path) { return unlink(path) == 0; }},
    {"rename", [](const char *path) { return std::rename(path, "/tmp/elsewhere") == 0; }},
    {"change-mode", [](const char *path) { return chmod(path, 0777) == 0; }},
    {"socket", [](const char *) { return socket(AF_INET, SOCK_STREAM, 0) >= 0; }},
    {"local-socket", [](const char *) { return socket(AF_UNIX, SOCK_STREAM, 0) >= 0; }},
    {"fork", [](const char *) { return fork() >= 0; }},
    {"execute", [](const char *) { return execl("/bin/true", "true", nullptr) == 0; }},
    {"shell", [](const char *) { return std::system("true") == 0; }}, // NOLINT
    {"kill-parent", [](const char *) { return kill(getppid(), 0) == 0; }},
    {"trace-parent", [](const char *) { return ptrace(PTRACE_ATTACH, getppid(), nullptr, nullptr) == 0; }},
    {"raise-limit",
     [](const char *) {
         const rlimit limit = {0, 0};
         return setrlimit(RLIMIT_NOFILE, &limit) == 0;
     }},
    {"limit-of-parent",
     [](const char *) {
         const rlimit limit = {1, 1};
         return prlimit(getppid(), RLIMIT_CPU, &limit, nullptr) == 0;
     }},
    {"thread",
     [](const char *) {
         bool hasRun = false;
         std::thread([&] { hasRun = true; }).join();
         return hasRun;
     }},
    {"memory", [](const char *) { return new (std::nothrow) char[addressSpace] != nullptr; }},
    {"some-memory", [](const char *) { return new (std::nothrow) char[addressSpace / 8] != nullptr; }},
    {"time", [](const char *) { return spendsTime(); }},
    {"abort", [](const char *) -> bool { std::abort(); }},
};

} // namespace

int main(int argc, char **argv)
{
    constexpr int argumentCount = 4;
    if (argc != argumentCount)
        return 2;
    for (const Attempt &attempt : attempts) {
        if (std::strcmp(attempt.name, argv[1]) != 0)
            continue;
        programs::enterSandbox(
            {.seconds = 1, .bytes = addressSpace, .readableFolders = {argv[2], "/nowhere"}});
        return attempt.run(argv[3]) ? 0 : 1;
    }
    return 2;
}
