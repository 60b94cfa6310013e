#include "host/statuses.h"

#include "host/descriptor.h"
#include "host/encoding.h"
#include "host/retried.h"
#include "host/slowdisk.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>

namespace host {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr std::size_t InOneGo = 32; // names between two looks at the clock, from the sixth look on
constexpr auto Patience = 3ms; // a disk of the machine takes a tenth of a millisecond for as many
constexpr std::size_t WorthAHelper = 512; // names; fewer are done before it has begun
constexpr std::size_t Helpers = 1; // a second processor, where there is one
constexpr std::size_t HelpersIfSlow = 15; // they only wait

std::function<void()> &watching()
{
    static std::function<void()> tell;
    return tell;
}

// One pass over the names, by as many threads as join in.
class Looking {
public:
    Looking(const Descriptor &directory, const QStringList &names, const TellStatus &tell)
        : m_directory(directory)
        , m_names(names)
        , m_tell(tell)
    {
    }

    std::size_t total() const { return static_cast<std::size_t>(m_names.size()); }

    bool isSlow() const { return m_slow; }

    // The next few of the names; false if there are none.
    bool takeSome(std::size_t some)
    {
        const std::size_t first = m_next.fetch_add(some);
        const std::size_t end = std::min(first + some, total());
        const auto start = Clock::now();
        for (std::size_t i = first; i < end; ++i)
            lookAt(i);
        if (Clock::now() - start > Patience)
            m_slow = true;
        return first < end;
    }

private:
    void lookAt(std::size_t i) const
    {
        struct stat status;
        const QByteArray name = nameToDisk(m_names[static_cast<qsizetype>(i)]);
        if (retried([&] { return fstatat(m_directory.number(), name.constData(), &status, 0); }) == 0)
            m_tell(i, status);
    }

    const Descriptor &m_directory;
    const QStringList &m_names;
    const TellStatus &m_tell;
    std::atomic<std::size_t> m_next = 0;
    std::atomic<bool> m_slow = false;
};

// Up to so many, as the system grants them; whoever asks does the work too.
void addHelpers(std::vector<std::jthread> &helpers, std::size_t wanted, Looking &looking)
{
    try {
        while (helpers.size() < wanted) {
            helpers.emplace_back([&looking] {
                while (looking.takeSome(looking.isSlow() ? 1 : InOneGo)) { }
            });
        }
    } catch (const std::system_error &) {
        return;
    }
}

} // namespace

void lookAtEach(const Descriptor &directory, const QStringList &names, const TellStatus &tell)
{
    Looking looking(directory, names, tell);
    std::vector<std::jthread> helpers;
    if (looking.total() >= WorthAHelper)
        addHelpers(helpers, Helpers, looking);
    // A single look may take long.
    for (std::size_t some = 1; looking.takeSome(some);) {
        some = looking.isSlow() ? 1 : std::min(2 * some, InOneGo);
        if (!looking.isSlow())
            continue;
        addHelpers(helpers, HelpersIfSlow, looking);
        if (watching())
            watching()();
    }
}

SlowDiskWatch::SlowDiskWatch(std::function<void()> tell)
{
    watching() = std::move(tell);
}

SlowDiskWatch::~SlowDiskWatch()
{
    watching() = nullptr;
}

} // namespace host
