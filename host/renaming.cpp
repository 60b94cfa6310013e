#include "host/renaming.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/paths.h"
#include "host/retried.h"

#include <stdio.h>

using namespace Qt::StringLiterals;

namespace host {

void renameDirectory(const QString &path, const QString &name)
{
    const QString operation = u"give a directory another name"_s;
    QByteArray found = findOnDisk(path);
    while (found.size() > 1 && found.endsWith('/'))
        found.chop(1);
    if (found.isEmpty())
        throw Failure(PathNotFound, operation, path);
    const QByteArray place = found.first(found.lastIndexOf('/') + 1) + nameToDisk(name);
    // An empty directory would give way to it.
    if (name.isEmpty() || name.contains(u'/') || exists(nameFromDisk(place)))
        throw Failure(InvalidArgument, operation, path);
    if (retried([&] { return rename(found.constData(), place.constData()); }) != 0)
        throw Failure(PathAccess, operation, path);
}

} // namespace host
