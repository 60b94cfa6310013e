#include "forms/knownpictures.h"

#include "forms/pictures.h"

#include "host/lengths.h"

#include <optional>
#include <utility>
#include <vector>

namespace forms {

void KnownPictures::Check(const QString &directory, const QStringList &paths)
{
    // Whatever is missing is found before anything is decoded.
    std::vector<std::pair<QString, std::optional<host::FileState>>> unknown;
    const host::LengthsIn files(directory);
    for (const QString &path : paths) {
        const std::optional<host::FileState> state = files.state(path);
        if (!state || !m_loaded.contains(*state))
            unknown.emplace_back(path, state);
    }
    for (const auto &[path, state] : unknown) {
        LoadPicture(path);
        constexpr qsizetype Most = 50'000;
        if (m_loaded.size() >= Most)
            m_loaded.clear();
        if (state)
            m_loaded.insert(*state);
    }
}

} // namespace forms
