// A directory held open: it stays the same one, whatever becomes of its path.
#pragma once

#include "host/descriptor.h"

#include <QString>
#include <QStringList>

namespace host {

class HeldDirectory {
public:
    // The directory itself. Fails with 5 if the path isn't absolute, 76 if there is no such directory, or a
    // link in its place.
    explicit HeldDirectory(const QString &path);

    // Whether it is what lies at the path, by its device and its number there, and not through a link.
    bool isAt(const QString &path) const;

    // As the function of the same name in host/paths.h.
    void deleteFiles() const;
    void deleteFiles(const QStringList &names) const;

private:
    Descriptor m_descriptor;
};

} // namespace host
