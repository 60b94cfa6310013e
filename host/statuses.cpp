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
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>

namespace host {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr std::size_t InOneGo = 32; // names between two looks at the clock
constexpr auto Patience = 3ms; // a disk of the machine takes a tenth of a millisecond for as many
constexpr std::size_t WorthAHelper = 512; // names; fewer are done before it has begun
constexpr std::size_t Helpers = 1; // a second processor, where there is one
constexpr std::size_t HelpersIfSlow = 15; // they only wait

Status statusOf(const Descriptor &directory, const QString &name)
{
    struct stat status;
    const QByteArray bytes = nameToDisk(name);
    if (retried([&] { return fstatat(directory.number(), bytes.constData(), &status, 0); }) != 0)
        return {};
    return { status.st_mode, status.st_size };
}

// One pass over the names, by as many threads as join in.
class Looking {
public:
    Looking(const Descriptor &directory, const QStringList &names)
        : statuses(static_cast<std::size_t>(names.size()))
        , m_directory(directory)
        , m_names(names)
    {
    }

    bool isSlow() const { return m_slow; }

    // The next few of the names; false if there are none.
    bool takeSome()
    {
        const std::size_t first = m_next.fetch_add(InOneGo);
        const std::size_t end = std::min(first + InOneGo, statuses.size());
        const auto start = Clock::now();
        for (std::size_t i = first; i < end; ++i)
            statuses[i] = statusOf(m_directory, m_names[static_cast<qsizetype>(i)]);
        if (Clock::now() - start > Patience)
            m_slow = true;
        return first < end;
    }

    std::vector<Status> statuses;

private:
    const Descriptor &m_directory;
    const QStringList &m_names;
    std::atomic<std::size_t> m_next = 0;
    std::atomic<bool> m_slow = false;
};

// Up to so many, as the system grants them; whoever asks does the work too.
void addHelpers(std::vector<std::jthread> &helpers, std::size_t wanted, Looking &looking)
{
    try {
        while (helpers.size() < wanted) {
            helpers.emplace_back([&looking] {
                while (looking.takeSome()) { }
            });
        }
    } catch (const std::system_error &) {
        return;
    }
}

} // namespace

std::vector<Status> statusesIn(const Descriptor &directory, const QStringList &names)
{
    Looking looking(directory, names);
    {
        std::vector<std::jthread> helpers;
        if (looking.statuses.size() >= WorthAHelper)
            addHelpers(helpers, Helpers, looking);
        while (looking.takeSome()) {
            if (looking.isSlow())
                addHelpers(helpers, HelpersIfSlow, looking);
        }
    }
    return std::move(looking.statuses);
}

} // namespace host
