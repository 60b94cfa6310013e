// The desktop's trash.
#pragma once

#include <QString>

namespace host {

// Moves a file, or a directory with all in it, to the trash of the volume that it lies on (the trash
// standard of freedesktop.org), by the bytes of its name. The trash directory is made or verified first.
// False if there is none for this volume, or the file can't be moved: everything then stays as it was.
bool moveToTrash(const QString &path);

} // namespace host
