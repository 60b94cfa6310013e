#include "tracer.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <iterator>

#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

namespace faults {

namespace {

constexpr int EndedByException = 99;
constexpr unsigned LongestRun = 60; // seconds
constexpr int SyscallStop = SIGTRAP | 0x80;

int runCount = 0;

// Failing these says nothing of files, and the languages' libraries don't survive it.
constexpr long Passed[] = { SYS_brk, SYS_mmap, SYS_munmap, SYS_mremap, SYS_mprotect, SYS_madvise, SYS_futex,
    SYS_rt_sigaction, SYS_rt_sigprocmask, SYS_rt_sigreturn, SYS_sigaltstack, SYS_exit, SYS_exit_group,
    SYS_getpid, SYS_gettid, SYS_getuid, SYS_geteuid, SYS_getgid, SYS_getegid, SYS_clock_gettime,
    SYS_clock_nanosleep, SYS_nanosleep, SYS_sched_yield, SYS_sched_getaffinity, SYS_getrandom, SYS_prlimit64,
    SYS_clone, SYS_clone3, SYS_set_robust_list, SYS_rseq, SYS_prctl };
// Failed or not, these are done with what they were given.
constexpr long DoneAnyway[] = { SYS_close };
constexpr long Transfers[] = { SYS_read, SYS_write, SYS_pread64, SYS_pwrite64 };
constexpr long Writes[] = { SYS_write, SYS_pwrite64 };

template <typename Table> bool holds(const Table &table, long number)
{
    return std::ranges::find(table, number) != std::end(table);
}

#ifdef __x86_64__
constexpr bool KnowsRegisters = true;
void setNumber(pid_t child, long number)
{
    ptrace(PTRACE_POKEUSER, child, offsetof(user_regs_struct, orig_rax), number);
}
void setResult(pid_t child, long result)
{
    ptrace(PTRACE_POKEUSER, child, offsetof(user_regs_struct, rax), result);
}
void setThirdArgument(pid_t child, long value)
{
    ptrace(PTRACE_POKEUSER, child, offsetof(user_regs_struct, rdx), value);
}
#else
constexpr bool KnowsRegisters = false;
void setNumber(pid_t, long) { }
void setResult(pid_t, long) { }
void setThirdArgument(pid_t, long) { }
#endif

pid_t startTraced(const std::function<int()> &operation)
{
    const pid_t child = fork();
    if (child != 0)
        return child;
    ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    alarm(LongestRun);
    raise(SIGSTOP);
    int status = EndedByException;
    try {
        status = operation();
    } catch (...) {
    }
    _exit(status);
}

class Tracer {
public:
    Tracer(pid_t child, const Fault &fault)
        : m_child(child)
        , m_fault(fault)
    {
    }

    End run();

private:
    void go(int signal = 0) { ptrace(PTRACE_SYSCALL, m_child, nullptr, signal); }
    bool counts(const __ptrace_syscall_info &call) const;
    void enter(const __ptrace_syscall_info &call);
    void leave();
    long shortened() const { return m_fault.stays ? 100 : 1; }

    pid_t m_child;
    Fault m_fault;
    End m_end;
    int m_calls = 0;
    bool m_wrong = false; // the call that is being made
};

bool Tracer::counts(const __ptrace_syscall_info &call) const
{
    const long number = long(call.entry.nr);
    if (m_fault.kind == Kind::Short)
        return holds(Transfers, number) && long(call.entry.args[2]) > shortened();
    // The language's library writes to the standard ones, and for ever where they take nothing.
    if (m_fault.kind == Kind::Nothing)
        return holds(Writes, number) && long(call.entry.args[0]) > STDERR_FILENO;
    return !holds(Passed, number);
}

void Tracer::enter(const __ptrace_syscall_info &call)
{
    const long number = long(call.entry.nr);
    if (!counts(call))
        return;
    const int index = m_calls++;
    m_wrong = m_fault.stays ? index >= m_fault.call : index == m_fault.call;
    if (!m_wrong)
        return;
    m_end.number = m_end.reached ? m_end.number : number;
    m_end.reached = true;
    m_end.killed = m_fault.kind == Kind::KillBefore;
    if (m_end.killed)
        kill(m_child, SIGKILL);
    else if (m_fault.kind == Kind::Short)
        setThirdArgument(m_child, shortened());
    else if (m_fault.kind == Kind::Nothing || (m_fault.kind == Kind::Fail && !holds(DoneAnyway, number)))
        setNumber(m_child, -1);
}

void Tracer::leave()
{
    if (!m_wrong)
        return;
    m_wrong = false;
    m_end.killed = m_fault.kind == Kind::KillBehind;
    if (m_end.killed)
        kill(m_child, SIGKILL);
    else if (m_fault.kind == Kind::Fail || m_fault.kind == Kind::Nothing)
        setResult(m_child, -m_fault.error);
}

End Tracer::run()
{
    int status = 0;
    waitpid(m_child, &status, 0);
    ptrace(PTRACE_SETOPTIONS, m_child, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    for (go(); waitpid(m_child, &status, 0) == m_child && WIFSTOPPED(status);) {
        __ptrace_syscall_info call {};
        if (WSTOPSIG(status) != SyscallStop) {
            go(WSTOPSIG(status));
            continue;
        }
        ptrace(PTRACE_GET_SYSCALL_INFO, m_child, sizeof(call), &call);
        if (call.op == PTRACE_SYSCALL_INFO_ENTRY)
            enter(call);
        else if (call.op == PTRACE_SYSCALL_INFO_EXIT)
            leave();
        const bool done = m_end.reached && !m_wrong && !m_fault.stays;
        ptrace(done && !m_end.killed ? PTRACE_CONT : PTRACE_SYSCALL, m_child, nullptr, 0);
    }
    m_end.hung = WIFSIGNALED(status) && !m_end.killed;
    m_end.status = WIFEXITED(status) ? WEXITSTATUS(status) : 0;
    return m_end;
}

} // namespace

bool canTrace()
{
    return KnowsRegisters
        && runWith({ Kind::Fail, 0, EIO, false }, [] { return rmdir("") == 0 || errno != EIO ? 1 : 2; })
               .status
        == 2;
}

End runWith(const Fault &fault, const std::function<int()> &operation)
{
    ++runCount;
    return Tracer(startTraced(operation), fault).run();
}

int runs()
{
    return runCount;
}

} // namespace faults
