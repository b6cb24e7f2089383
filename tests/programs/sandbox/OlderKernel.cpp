// SPDX-License-Identifier: Apache-2.0
// Runs a program as if the kernel were older or built with less:
//
//     older_kernel landlock|seccomp PROGRAM [ARGUMENT]...
//
// The system calls of the named facility fail in the program as they do where it does not exist.
#include <cerrno>
#include <cstdio>
#include <cstring>

#include <seccomp.h>
#include <sys/prctl.h>
#include <unistd.h>

int main(int argc, char **argv)
{
    constexpr int firstArgument = 2;
    if (argc <= firstArgument)
        return 2;
    const scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ALLOW);
    if (std::strcmp(argv[1], "landlock") == 0) {
        seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(landlock_create_ruleset), 0);
    } else {
        seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(seccomp), 0);
        const scmp_arg_cmp setsFilter = {0, SCMP_CMP_EQ, PR_SET_SECCOMP, 0};
        seccomp_rule_add(filter, SCMP_ACT_ERRNO(EINVAL), SCMP_SYS(prctl), 1, setsFilter);
    }
    if (seccomp_load(filter) != 0) {
        std::perror("older_kernel");
        return 2;
    }
    execv(argv[firstArgument], argv + firstArgument);
    std::perror(argv[firstArgument]);
    return 2;
}
