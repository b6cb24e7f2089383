// SPDX-License-Identifier: Apache-2.0
#include "Sandbox.h"

#include "FileAccess.h"
#include "SystemCalls.h"

#include <cstdlib>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace programs {
inline namespace sandbox {

namespace {

/// Sets the soft and the hard limit.
void setLimit(__rlimit_resource resource, rlim_t value)
{
    const rlimit limit = {value, value};
    setrlimit(resource, &limit);
}

void setLimits(const SandboxRules &rules)
{
    setLimit(RLIMIT_CORE, 0);
    if (rules.seconds > 0)
        setLimit(RLIMIT_CPU, rules.seconds);
#ifndef KV_SANITIZED
    // AddressSanitizer reserves terabytes of addresses.
    setLimit(RLIMIT_AS, rules.bytes);
#endif
}

/// Returns the folder that the variable names, or else the folder in the user's home folder.
std::string userFolder(const char *variable, const char *inHome)
{
    if (const char *const folder = std::getenv(variable); folder && *folder == '/')
        return folder;
    const char *const home = std::getenv("HOME");
    return home && *home == '/' ? std::string(home) + inHome : std::string();
}

} // namespace

void enterSandbox(const SandboxRules &rules)
{
    setLimits(rules);
    // Landlock and seccomp need it, and it is of use without them: no program that is started gets rights.
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    allowReadingOnly(rules.readableFolders);
    allowSystemCallsOfReaders();
}

std::vector<std::string> fontFolders()
{
    std::vector<std::string> folders = {
        "/etc/fonts",
        "/usr/share/fontconfig",
        "/usr/share/fonts",
        "/usr/local/share/fonts",
        "/usr/share/X11/fonts",
        "/usr/share/ghostscript/fonts",
        "/usr/share/texmf/fonts",
        "/var/lib/ghostscript/fonts",
        "/var/cache/fontconfig",
    };
    const std::string data = userFolder("XDG_DATA_HOME", "/.local/share");
    const std::string settings = userFolder("XDG_CONFIG_HOME", "/.config");
    const std::string cache = userFolder("XDG_CACHE_HOME", "/.cache");
    const std::string home = userFolder("HOME", "");
    if (!data.empty())
        folders.push_back(data + "/fonts");
    for (const std::string &base : {settings, cache}) {
        if (!base.empty())
            folders.push_back(base + "/fontconfig");
    }
    if (!home.empty())
        folders.push_back(home + "/.fonts");
    return folders;
}

} // namespace sandbox
} // namespace programs

#ifdef KV_SANITIZED
/// Turns off the leak check at the end of a program, whatever the environment requests: it starts a process,
/// which the sandbox forbids.
extern "C" __attribute__((visibility("default"))) int __lsan_is_turned_off();
int __lsan_is_turned_off()
{
    return 1;
}
#endif
