#include "host/statuses.h"

#include "host/descriptor.h"
#include "host/encoding.h"
#include "host/retried.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstddef>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>

namespace host {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr std::size_t InOneGo = 32; // names between two looks at the clock
constexpr auto Patience = 3ms; // a disk of the machine takes a tenth of a millisecond for as many
constexpr std::size_t Helpers = 15;

Status statusOf(const Descriptor &directory, const QString &name)
{
    struct stat status;
    const QByteArray bytes = nameToDisk(name);
    if (retried([&] { return fstatat(directory.number(), bytes.constData(), &status, 0); }) != 0)
        return {};
    return { status.st_mode, status.st_size };
}

// As many as the system grants.
template <typename Work> std::vector<std::jthread> started(const Work &work)
{
    std::vector<std::jthread> helpers;
    try {
        while (helpers.size() < Helpers)
            helpers.emplace_back(work);
    } catch (const std::system_error &) {
        // Whoever asked does the work too.
    }
    return helpers;
}

} // namespace

std::vector<Status> statusesIn(const Descriptor &directory, const QStringList &names)
{
    const auto count = static_cast<std::size_t>(names.size());
    std::vector<Status> statuses(count);
    const auto look = [&](std::size_t i) {
        statuses[i] = statusOf(directory, names[static_cast<qsizetype>(i)]);
    };
    std::size_t done = 0;
    bool slow = false;
    while (done < count && !slow) {
        const auto start = Clock::now();
        for (const std::size_t end = std::min(done + InOneGo, count); done < end; ++done)
            look(done);
        slow = Clock::now() - start > Patience;
    }
    if (done == count)
        return statuses;

    std::atomic<std::size_t> next = done;
    const auto lookOn = [&] {
        for (std::size_t i = next++; i < count; i = next++)
            look(i);
    };
    {
        const std::vector<std::jthread> helpers = started(lookOn);
        lookOn();
    }
    return statuses;
}

} // namespace host
