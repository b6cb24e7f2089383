// SPDX-License-Identifier: Apache-2.0
#include "FileAccess.h"

#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace programs {
inline namespace sandbox {

namespace {

constexpr unsigned long long readingRights = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;

/// All rights that the first version of Landlock knows, and the later ones that the kernel knows as well.
unsigned long long allRights(long version)
{
    constexpr unsigned long long ofFirstVersion = LANDLOCK_ACCESS_FS_MAKE_SYM * 2 - 1;
#ifdef LANDLOCK_ACCESS_FS_REFER
    if (version >= 2)
        return ofFirstVersion | LANDLOCK_ACCESS_FS_REFER;
#endif
    return version >= 1 ? ofFirstVersion : 0;
}

void allowReading(int rules, const std::string &folder)
{
    const int descriptor = open(folder.c_str(), O_PATH | O_CLOEXEC | O_DIRECTORY);
    if (descriptor < 0)
        return;
    landlock_path_beneath_attr allowed = {};
    allowed.allowed_access = readingRights;
    allowed.parent_fd = descriptor;
    syscall(SYS_landlock_add_rule, rules, LANDLOCK_RULE_PATH_BENEATH, &allowed, 0);
    close(descriptor);
}

} // namespace

void allowReadingOnly(const std::vector<std::string> &folders)
{
    const long version = syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1)
        return;
    landlock_ruleset_attr handled = {};
    handled.handled_access_fs = allRights(version);
    const int rules = static_cast<int>(syscall(SYS_landlock_create_ruleset, &handled, sizeof(handled), 0));
    if (rules < 0)
        return;
    for (const std::string &folder : folders)
        allowReading(rules, folder);
    syscall(SYS_landlock_restrict_self, rules, 0);
    close(rules);
}

} // namespace sandbox
} // namespace programs
