// SPDX-License-Identifier: Apache-2.0
#include "SandboxSupport.h"

#include <linux/landlock.h>
#include <linux/seccomp.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace host {
inline namespace rendering {

SandboxSupport sandboxSupport()
{
    const unsigned action = SECCOMP_RET_KILL_PROCESS;
    return {
        .restrictsFiles =
            syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION) >= 1,
        .restrictsCalls = syscall(SYS_seccomp, SECCOMP_GET_ACTION_AVAIL, 0, &action) == 0,
    };
}

} // namespace rendering
} // namespace host
