// Reading a plain file whole. For the host's own files only.
#pragma once

#include "host/descriptor.h"

#include <QByteArray>

#include <limits>
#include <optional>

#include <sys/stat.h>

namespace host {

struct PlainFile {
    QByteArray bytes;
    struct stat status;
    Descriptor descriptor; // still open
};

// Opens the file of this name in the directory (a descriptor, or AT_FDCWD), and reads the first `most` of its
// bytes. None, with errno set, if that fails or if it is something else than a file.
std::optional<PlainFile> readPlainFile(
    int directory, const QByteArray &name, int openFlags, qint64 most = std::numeric_limits<qint64>::max());

} // namespace host
