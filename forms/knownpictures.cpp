#include "forms/knownpictures.h"

#include "forms/pictures.h"

#include "host/lengths.h"

#include <optional>
#include <vector>

namespace forms {

void KnownPictures::Check(const QString &directory, const QStringList &paths)
{
    // Whatever is missing is found before anything is decoded.
    const std::vector<std::optional<host::FileState>> states = host::LengthsIn(directory).states(paths);
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const std::optional<host::FileState> &state = states[static_cast<std::size_t>(i)];
        if (state && m_loaded.contains(*state))
            continue;
        LoadPicture(paths[i]);
        constexpr qsizetype Most = 50'000;
        if (m_loaded.size() >= Most)
            m_loaded.clear();
        if (state)
            m_loaded.insert(*state);
    }
}

} // namespace forms
