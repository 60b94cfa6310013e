// A directory's name.
#pragma once

#include <QString>

namespace host {

// Gives a directory another name beside itself, in one step. Fails with 5 for a name that is taken or is
// none, 76 if there is no such path, 75 if it can't be done.
void renameDirectory(const QString &path, const QString &name);

} // namespace host
