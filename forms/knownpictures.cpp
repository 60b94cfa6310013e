#include "forms/knownpictures.h"

#include "forms/pictures.h"

#include "host/failure.h"
#include "host/lengths.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <iterator>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace forms {

namespace {

constexpr auto PartOfAFrame = 5ms; // the rest is for whoever asks, and for painting
constexpr int AlwaysAtOnce = 4; // pictures, so that a few never show what can't stay
constexpr qsizetype LooksInOneGo = 256; // a quarter of a millisecond on a disk of the machine

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
    m_unseen.clear();
    m_idle.stop();
    m_directory = directory;
    const host::LengthsIn looks(directory);
    QStringList unlisted;
    for (const QString &path : paths)
        (looks.lists(path) ? m_unseen : unlisted).append(path);
    // Whatever is missing is found before anything is decoded.
    std::vector<Picture> pictures = lookAt(looks, unlisted);
    int decoded = 0;
    do {
        std::ranges::move(lookAtSome(looks), std::back_inserter(pictures));
        for (Picture &picture : pictures) {
            const bool late =
                !isKnown(picture) && (!m_putOff.empty() || (decoded++ >= AlwaysAtOnce && time.isOver()));
            if (late)
                m_putOff.push_back(std::move(picture));
            else if (!isLoadable(picture))
                throw host::Failure(host::InvalidPicture, u"load a picture"_s, picture.path);
        }
        pictures.clear();
    } while (!m_unseen.empty() && !time.isOver());
    m_cantLoad = std::move(cantLoad);
    if (!m_putOff.empty() || !m_unseen.empty())
        m_idle.start();
}

// In their order. Fails with 53.
std::vector<KnownPictures::Picture> KnownPictures::lookAt(
    const host::LengthsIn &directory, const QStringList &paths)
{
    const std::vector<std::optional<host::FileState>> states = directory.states(paths);
    std::vector<Picture> pictures;
    pictures.reserve(states.size());
    for (qsizetype i = 0; i < paths.size(); ++i)
        pictures.push_back({ paths[i], states[static_cast<std::size_t>(i)] });
    return pictures;
}

// The first of those not seen yet.
std::vector<KnownPictures::Picture> KnownPictures::lookAtSome(const host::LengthsIn &directory)
{
    const qsizetype some = std::min(LooksInOneGo, m_unseen.size());
    const QStringList paths = m_unseen.first(some);
    m_unseen.remove(0, some);
    return lookAt(directory, paths);
}

bool KnownPictures::isKnown(const Picture &picture) const
{
    return picture.state && m_loadable.contains(*picture.state);
}

bool KnownPictures::isLoadable(const Picture &picture)
{
    if (isKnown(picture))
        return m_loadable.value(*picture.state);
    bool loadable = false;
    try {
        loadable = isPicture(picture.path);
    } catch (const host::Failure &) {
        return false; // for now: what it holds isn't known
    }
    constexpr qsizetype Most = 50'000;
    if (m_loadable.size() >= Most)
        m_loadable.clear();
    if (picture.state)
        m_loadable.insert(*picture.state, loadable);
    return loadable;
}

// Goes on where a check stopped, for a part of a frame: true if all that it came to can be loaded.
bool KnownPictures::areSomeLoadable()
{
    const TimeToSpend time;
    while (!time.isOver()) {
        if (m_putOff.empty() && m_unseen.empty())
            return true;
        if (m_putOff.empty())
            m_putOff = lookAtSome(host::LengthsIn(m_directory));
        else if (isLoadable(m_putOff.back()))
            m_putOff.pop_back();
        else
            return false;
    }
    return true;
}

void KnownPictures::checkMore()
{
    bool allLoadable = false;
    try {
        allLoadable = areSomeLoadable();
    } catch (const host::Failure &) {
        // It has gone since it was listed.
    }
    if (allLoadable && !(m_putOff.empty() && m_unseen.empty()))
        return;
    m_putOff.clear();
    m_unseen.clear();
    m_idle.stop();
    const std::function<void()> cantLoad = std::exchange(m_cantLoad, {});
    if (!allLoadable)
        cantLoad();
}

} // namespace forms
