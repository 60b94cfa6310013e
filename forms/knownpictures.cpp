#include "forms/knownpictures.h"

#include "forms/pictures.h"

#include "host/failure.h"
#include "host/lengths.h"

#include <chrono>
#include <ctime>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace forms {

namespace {

constexpr auto PartOfAFrame = 5ms; // the rest is for whoever asks, and for painting
constexpr int AlwaysAtOnce = 4; // pictures, so that a few never show what can't stay

// The processor's: on a busy machine the same work is done, however long that takes.
class TimeToSpend {
public:
    bool isOver() const { return std::clock() - m_begun > CLOCKS_PER_SEC * PartOfAFrame.count() / 1000; }

private:
    std::clock_t m_begun = std::clock();
};

} // namespace

KnownPictures::KnownPictures()
{
    m_idle.setInterval(PartOfAFrame);
    QObject::connect(&m_idle, &QTimer::timeout, &m_idle, [this] { checkMore(); });
}

void KnownPictures::Check(const QString &directory, const QStringList &paths, std::function<void()> cantLoad)
{
    const TimeToSpend time;
    m_putOff.clear();
    m_idle.stop();
    // Whatever is missing is found before anything is decoded.
    const std::vector<std::optional<host::FileState>> states = host::LengthsIn(directory).states(paths);
    int decoded = 0;
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const Picture picture { paths[i], states[static_cast<std::size_t>(i)] };
        const bool known = picture.state && m_loadable.contains(*picture.state);
        const bool late = !known && (!m_putOff.empty() || (decoded++ >= AlwaysAtOnce && time.isOver()));
        if (late)
            m_putOff.push_back(picture);
        else if (!isLoadable(picture))
            throw host::Failure(host::InvalidPicture, u"load a picture"_s, picture.path);
    }
    m_cantLoad = std::move(cantLoad);
    if (!m_putOff.empty())
        m_idle.start();
}

bool KnownPictures::isLoadable(const Picture &picture)
{
    if (picture.state) {
        const auto known = m_loadable.constFind(*picture.state);
        if (known != m_loadable.constEnd())
            return *known;
    }
    const bool loadable = CanLoadPicture(picture.path);
    constexpr qsizetype Most = 50'000;
    if (m_loadable.size() >= Most)
        m_loadable.clear();
    if (picture.state)
        m_loadable.insert(*picture.state, loadable);
    return loadable;
}

void KnownPictures::checkMore()
{
    const TimeToSpend time;
    bool allLoadable = true;
    while (allLoadable && !m_putOff.empty() && !time.isOver()) {
        allLoadable = isLoadable(m_putOff.back());
        m_putOff.pop_back();
    }
    if (allLoadable && !m_putOff.empty())
        return;
    m_putOff.clear();
    m_idle.stop();
    const std::function<void()> cantLoad = std::exchange(m_cantLoad, {});
    if (!allLoadable)
        cantLoad();
}

} // namespace forms
