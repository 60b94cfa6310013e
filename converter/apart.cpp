#include "converter/apart.h"

#include "host/descriptor.h"
#include "host/retried.h"
#include "host/writebytes.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <map>
#include <new>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace converter {

using host::retried;

namespace {

// What a pipe holds without a reader.
constexpr std::size_t MostTold = 4000;

struct Running {
    std::size_t piece = 0;
    host::Descriptor told;
};

void limit(int resource, rlim_t value)
{
    rlimit now {};
    getrlimit(resource, &now);
    now.rlim_cur = std::min(value, now.rlim_max);
    setrlimit(resource, &now);
}

// Of memory, beside what is taken at the beginning already.
rlim_t addressesNow()
{
    unsigned long pages = 0;
    if (std::FILE *file = std::fopen("/proc/self/statm", "re")) {
        if (std::fscanf(file, "%lu", &pages) != 1)
            pages = 0;
        std::fclose(file);
    }
    return rlim_t(pages) * rlim_t(sysconf(_SC_PAGESIZE));
}

[[noreturn]] void become(const std::function<Outcome(std::size_t)> &work, std::size_t piece,
    const Limits &limits, pid_t parent, int tellTo)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent)
        _exit(1);
    limit(RLIMIT_CORE, 0);
    limit(RLIMIT_CPU, limits.seconds);
    limit(RLIMIT_AS, addressesNow() + limits.bytes);
    alarm(2 * limits.seconds);
    Outcome outcome;
    try {
        outcome = work(piece);
    } catch (const std::bad_alloc &) {
        outcome = { "too-large", "it takes too much memory" };
    }
    const std::string text = outcome.code + '\0' + outcome.detail;
    const bool written = host::writeBytes(tellTo, text.data(), std::min(text.size(), MostTold));
    _exit(written ? 0 : 1);
}

// False if no process can be started now.
bool begin(const std::function<Outcome(std::size_t)> &work, std::size_t piece, const Limits &limits,
    std::map<pid_t, Running> &running)
{
    std::array<int, 2> ends {};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        return false;
    host::Descriptor reading(ends[0]);
    const host::Descriptor writing(ends[1]);
    const pid_t parent = getpid();
    const pid_t child = fork();
    if (child == 0)
        become(work, piece, limits, parent, writing.number());
    if (child > 0)
        running.emplace(child, Running { piece, std::move(reading) });
    return child > 0;
}

Outcome outcomeOf(int status, const host::Descriptor &told)
{
    if (WIFSIGNALED(status)) {
        const int signal = WTERMSIG(status);
        if (signal == SIGXCPU || signal == SIGALRM || signal == SIGKILL)
            return { "too-large", "it takes too long, or too much memory" };
        return { "damaged", "its reader ended by the signal " + std::to_string(signal) };
    }
    std::string text(MostTold, '\0');
    const ssize_t count = retried([&] { return read(told.number(), text.data(), text.size()); });
    if (WEXITSTATUS(status) != 0 || count <= 0)
        return { "failed", "its reader ended without a word" };
    text.resize(std::size_t(count));
    const std::size_t end = text.find('\0');
    return { text.substr(0, end), end == text.npos ? std::string() : text.substr(end + 1) };
}

void endOne(std::map<pid_t, Running> &running, const std::function<void(std::size_t, const Outcome &)> &tell)
{
    int status = 0;
    const pid_t ended = retried([&] { return waitpid(-1, &status, 0); });
    const auto its = running.find(ended);
    if (its == running.end())
        return;
    const Outcome outcome = outcomeOf(status, its->second.told);
    const std::size_t piece = its->second.piece;
    running.erase(its);
    tell(piece, outcome);
}

} // namespace

void doApart(std::size_t pieces, unsigned atOnce, const Limits &limits,
    const std::function<Outcome(std::size_t)> &work,
    const std::function<void(std::size_t, const Outcome &)> &tell)
{
    std::map<pid_t, Running> running;
    for (std::size_t piece = 0; piece < pieces; ++piece) {
        if (running.size() >= std::max(1U, atOnce))
            endOne(running, tell);
        bool begun = begin(work, piece, limits, running);
        while (!begun && !running.empty()) {
            endOne(running, tell);
            begun = begin(work, piece, limits, running);
        }
        if (!begun)
            tell(piece, { "failed", "no process can be started for it" });
    }
    while (!running.empty())
        endOne(running, tell);
}

} // namespace converter
