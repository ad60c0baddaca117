#include "tests/common/TracedChild.h"

#include <csignal>
#include <cstddef>
#include <utility>

#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kCallStop = SIGTRAP | 0x80;  // by PTRACE_O_TRACESYSGOOD

constexpr std::pair<long, const char *> kNames[] = {
    {SYS_brk, "brk"},
    {SYS_clock_gettime, "clock_gettime"},
    {SYS_close, "close"},
    {SYS_exit_group, "exit_group"},
    {SYS_faccessat2, "faccessat2"},
    {SYS_fchmod, "fchmod"},
    {SYS_fcntl, "fcntl"},
    {SYS_fdatasync, "fdatasync"},
    {SYS_fstat, "fstat"},
    {SYS_fsync, "fsync"},
    {SYS_ftruncate, "ftruncate"},
    {SYS_futex, "futex"},
    {SYS_getcwd, "getcwd"},
    {SYS_getpid, "getpid"},
    {SYS_getrandom, "getrandom"},
    {SYS_geteuid, "geteuid"},
    {SYS_gettid, "gettid"},
    {SYS_getuid, "getuid"},
    {SYS_ioctl, "ioctl"},
    {SYS_linkat, "linkat"},
    {SYS_lseek, "lseek"},
    {SYS_madvise, "madvise"},
    {SYS_mmap, "mmap"},
    {SYS_mprotect, "mprotect"},
    {SYS_mremap, "mremap"},
    {SYS_munmap, "munmap"},
    {SYS_newfstatat, "newfstatat"},
    {SYS_openat, "openat"},
    {SYS_pwrite64, "pwrite64"},
    {SYS_read, "read"},
    {SYS_renameat, "renameat"},
    {SYS_renameat2, "renameat2"},
    {SYS_rt_sigaction, "rt_sigaction"},
    {SYS_rt_sigprocmask, "rt_sigprocmask"},
    {SYS_statx, "statx"},
    {SYS_tgkill, "tgkill"},
    {SYS_umask, "umask"},
    {SYS_write, "write"},
    {SYS_writev, "writev"},
#if defined(__x86_64__)  // newer systems have the forms with "at" alone
    {SYS_access, "access"},
    {SYS_lstat, "lstat"},
    {SYS_readlink, "readlink"},
    {SYS_rename, "rename"},
    {SYS_stat, "stat"},
    {SYS_unlink, "unlink"},
#endif
};

#if defined(__x86_64__)
constexpr bool kCanFail = true;

void SetRegister(pid_t child, size_t offset, long value)
{
    ptrace(PTRACE_POKEUSER, child, offset, value);
}
void SkipCall(pid_t child)
{
    SetRegister(child, offsetof(user_regs_struct, orig_rax), -1);
}
void SetResult(pid_t child, long result)
{
    SetRegister(child, offsetof(user_regs_struct, rax), result);
}
#else
constexpr bool kCanFail = false;

void SkipCall(pid_t) {}
void SetResult(pid_t, long) {}
#endif

// The child's part; it stops itself before the function, for the parent to take over.
[[noreturn]] void BeTraced(const std::function<int()> &run)
{
    constexpr int kForbidden = 0;
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0)
        _exit(kForbidden);
    std::raise(SIGSTOP);
    _exit(run());
}

STracedEnd Follow(pid_t child, const std::function<STracedFate(const SSystemCall &)> &judge)
{
    STracedEnd end;
    int status = 0;
    if (waitpid(child, &status, 0) != child || !WIFSTOPPED(status))
        return end;
    end.traced = true;
    ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    SSystemCall call{-1, 0, true, false};
    int error = 0;   // of the call that is under way
    int signal = 0;  // to be handed on
    while (ptrace(PTRACE_SYSCALL, child, nullptr, signal) == 0 &&
           waitpid(child, &status, 0) == child && WIFSTOPPED(status)) {
        signal = 0;
        if (WSTOPSIG(status) != kCallStop) {
            signal = WSTOPSIG(status);
            continue;
        }
        __ptrace_syscall_info info = {};
        ptrace(PTRACE_GET_SYSCALL_INFO, child, sizeof info, &info);
        call.done = info.op != PTRACE_SYSCALL_INFO_ENTRY;
        call.failed = call.done && (info.exit.is_error || error != 0);
        if (!call.done) {
            call.number = static_cast<long>(info.entry.nr);
            ++call.index;
            error = 0;
        } else if (error != 0) {
            SetResult(child, -error);
        }
        const STracedFate fate = judge(call);
        if (fate.kill) {
            kill(child, SIGKILL);
            waitpid(child, &status, 0);
            break;
        }
        if (!call.done && fate.error != 0) {
            error = fate.error;
            SkipCall(child);
        }
    }
    end.killed = WIFSIGNALED(status);
    end.result = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return end;
}

}  // namespace

bool CanFailSystemCalls()
{
    return kCanFail;
}

STracedEnd RunTraced(const std::function<int()> &run,
                     const std::function<STracedFate(const SSystemCall &)> &judge)
{
    const pid_t child = fork();
    if (child == 0)
        BeTraced(run);
    return child < 0 ? STracedEnd() : Follow(child, judge);
}

std::string SystemCallName(long number)
{
    for (const auto &[known, name] : kNames) {
        if (known == number)
            return name;
    }
    return "call " + std::to_string(number);
}
