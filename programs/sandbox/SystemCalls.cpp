// SPDX-License-Identifier: Apache-2.0
#include "SystemCalls.h"

#include <cerrno>
#include <fcntl.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace programs {
inline namespace sandbox {

namespace {

/// Memory, threads, clocks and open descriptors. No call of these reaches beyond the process.
constexpr int harmlessCalls[] = {
    // Memory
    SCMP_SYS(brk),
    SCMP_SYS(mmap),
    SCMP_SYS(munmap),
    SCMP_SYS(mremap),
    SCMP_SYS(mprotect),
    SCMP_SYS(madvise),
    SCMP_SYS(mincore),
    SCMP_SYS(memfd_create),
    SCMP_SYS(membarrier),
    // Threads and signals of the process itself
    SCMP_SYS(futex),
    SCMP_SYS(set_robust_list),
    SCMP_SYS(get_robust_list),
    SCMP_SYS(set_tid_address),
    SCMP_SYS(rseq),
    SCMP_SYS(arch_prctl),
    SCMP_SYS(sched_yield),
    SCMP_SYS(sched_getaffinity),
    SCMP_SYS(sched_getparam),
    SCMP_SYS(sched_getscheduler),
    SCMP_SYS(sched_get_priority_max),
    SCMP_SYS(sched_get_priority_min),
    SCMP_SYS(rt_sigaction),
    SCMP_SYS(rt_sigprocmask),
    SCMP_SYS(rt_sigreturn),
    SCMP_SYS(sigaltstack),
    SCMP_SYS(restart_syscall),
    SCMP_SYS(exit),
    SCMP_SYS(exit_group),
    SCMP_SYS(getcpu),
    // Clocks, and what the process is
    SCMP_SYS(clock_gettime),
    SCMP_SYS(clock_getres),
    SCMP_SYS(clock_nanosleep),
    SCMP_SYS(nanosleep),
    SCMP_SYS(gettimeofday),
    SCMP_SYS(time),
    SCMP_SYS(times),
    SCMP_SYS(getrusage),
    SCMP_SYS(getrlimit),
    SCMP_SYS(getpid),
    SCMP_SYS(gettid),
    SCMP_SYS(getppid),
    SCMP_SYS(getuid),
    SCMP_SYS(geteuid),
    SCMP_SYS(getgid),
    SCMP_SYS(getegid),
    SCMP_SYS(getresuid),
    SCMP_SYS(getresgid),
    SCMP_SYS(uname),
    SCMP_SYS(sysinfo),
    SCMP_SYS(getrandom),
    SCMP_SYS(umask),
    // Open descriptors
    SCMP_SYS(read),
    SCMP_SYS(readv),
    SCMP_SYS(pread64),
    SCMP_SYS(preadv),
    SCMP_SYS(write),
    SCMP_SYS(writev),
    SCMP_SYS(pwrite64),
    SCMP_SYS(pwritev),
    SCMP_SYS(lseek),
    SCMP_SYS(_llseek),
    SCMP_SYS(close),
    SCMP_SYS(dup),
    SCMP_SYS(dup2),
    SCMP_SYS(dup3),
    SCMP_SYS(fcntl),
    SCMP_SYS(fsync),
    SCMP_SYS(fdatasync),
    SCMP_SYS(ftruncate),
    SCMP_SYS(fadvise64),
    SCMP_SYS(poll),
    SCMP_SYS(ppoll),
    SCMP_SYS(select),
    SCMP_SYS(pselect6),
    SCMP_SYS(epoll_create1),
    SCMP_SYS(epoll_ctl),
    SCMP_SYS(epoll_wait),
    SCMP_SYS(epoll_pwait),
    SCMP_SYS(eventfd2),
    SCMP_SYS(pipe),
    SCMP_SYS(pipe2),
    SCMP_SYS(sendmsg),
    SCMP_SYS(recvmsg),
    // Files: what may be opened is a matter of Landlock
    SCMP_SYS(fstat),
    SCMP_SYS(stat),
    SCMP_SYS(lstat),
    SCMP_SYS(newfstatat),
    SCMP_SYS(statx),
    SCMP_SYS(fstatfs),
    SCMP_SYS(statfs),
    SCMP_SYS(access),
    SCMP_SYS(faccessat),
    SCMP_SYS(faccessat2),
    SCMP_SYS(readlink),
    SCMP_SYS(readlinkat),
    SCMP_SYS(getcwd),
    SCMP_SYS(getdents64),
    SCMP_SYS(getdents),
};

/// What no document needs: a process that calls these executes code from a hostile document, and is ended.
constexpr int hostileCalls[] = {
    SCMP_SYS(socket),
    SCMP_SYS(socketpair),
    SCMP_SYS(connect),
    SCMP_SYS(bind),
    SCMP_SYS(listen),
    SCMP_SYS(accept),
    SCMP_SYS(accept4),
    SCMP_SYS(sendto),
    SCMP_SYS(fork),
    SCMP_SYS(vfork),
    SCMP_SYS(execve),
    SCMP_SYS(execveat),
    SCMP_SYS(kill),
    SCMP_SYS(ptrace),
    SCMP_SYS(process_vm_readv),
    SCMP_SYS(process_vm_writev),
    SCMP_SYS(pidfd_open),
    SCMP_SYS(unshare),
    SCMP_SYS(setns),
    SCMP_SYS(mount),
    SCMP_SYS(umount2),
    SCMP_SYS(chroot),
    SCMP_SYS(pivot_root),
    SCMP_SYS(bpf),
    SCMP_SYS(perf_event_open),
    SCMP_SYS(io_uring_setup),
    SCMP_SYS(userfaultfd),
    SCMP_SYS(keyctl),
    SCMP_SYS(add_key),
    SCMP_SYS(request_key),
    SCMP_SYS(init_module),
    SCMP_SYS(finit_module),
    SCMP_SYS(setuid),
    SCMP_SYS(setgid),
    SCMP_SYS(unlink),
    SCMP_SYS(unlinkat),
    SCMP_SYS(rename),
    SCMP_SYS(renameat),
    SCMP_SYS(renameat2),
};

/// The flags of open() that create or change a file.
constexpr unsigned long writingFlags = O_WRONLY | O_RDWR | O_CREAT | O_TRUNC | O_APPEND;

/// The condition that an argument of a call, counted from 0, has this value.
constexpr scmp_arg_cmp equals(unsigned argument, scmp_datum_t value)
{
    return {argument, SCMP_CMP_EQ, value, 0};
}

/// The condition that the bits of the mask have this value.
constexpr scmp_arg_cmp hasBits(unsigned argument, scmp_datum_t mask, scmp_datum_t value)
{
    return {argument, SCMP_CMP_MASKED_EQ, mask, value};
}

void addOpening(scmp_filter_ctx filter)
{
    seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(open), 1, hasBits(1, writingFlags, 0));
    seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(openat), 1, hasBits(2, writingFlags, 0));
}

void addThreads(scmp_filter_ctx filter)
{
    // The arguments of clone3() are in memory, where a filter cannot read them; the C library uses clone()
    // instead when there is none.
    seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3), 0);
    seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(clone), 1, hasBits(0, CLONE_THREAD, CLONE_THREAD));
    seccomp_rule_add(filter, SCMP_ACT_KILL_PROCESS, SCMP_SYS(clone), 1, hasBits(0, CLONE_THREAD, 0));
    // What abort() uses.
    seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(tgkill), 1,
                     equals(0, static_cast<scmp_datum_t>(getpid())));
    seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(prctl), 1, equals(0, PR_SET_NAME));
    seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(prctl), 1, equals(0, PR_GET_NAME));
    // Reading a limit, not setting one.
    seccomp_rule_add(filter, SCMP_ACT_ALLOW, SCMP_SYS(prlimit64), 2, equals(0, 0), equals(2, 0));
}

} // namespace

void allowSystemCallsOfReaders()
{
    const scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ERRNO(EPERM));
    if (!filter)
        return;
    for (const int call : harmlessCalls)
        seccomp_rule_add(filter, SCMP_ACT_ALLOW, call, 0);
    for (const int call : hostileCalls)
        seccomp_rule_add(filter, SCMP_ACT_KILL_PROCESS, call, 0);
    addOpening(filter);
    addThreads(filter);
    seccomp_load(filter);
    seccomp_release(filter);
}

} // namespace sandbox
} // namespace programs
