// Which pictures could be loaded before.
#pragma once

#include "host/filestate.h"

#include <QSet>
#include <QString>
#include <QStringList>

namespace forms {

// Thousands of pictures need not be decoded again only to tell that they can be, while their files stay as
// they were.
class KnownPictures {
public:
    // Fails as LoadPicture does with one of these paths, which all begin as the directory does, if any of
    // them can't be loaded.
    void Check(const QString &directory, const QStringList &paths);

private:
    QSet<host::FileState> m_loaded;
};

} // namespace forms
