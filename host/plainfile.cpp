#include "host/plainfile.h"

#include "host/retried.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <fcntl.h>

namespace host {

namespace {

bool readBegin(const Descriptor &file, qint64 size, qint64 most, QByteArray &bytes)
{
    constexpr qint64 InOnePiece = 16 << 20; // room that a wrong size may take in vain
    bytes.reserve(std::min({ size, most, InOnePiece }));
    std::array<char, 65536> buffer;
    while (bytes.size() < most) {
        const size_t wanted = size_t(std::min<qint64>(most - bytes.size(), buffer.size()));
        const ssize_t count = retried([&] { return ::read(file.number(), buffer.data(), wanted); });
        if (count <= 0)
            return count == 0;
        bytes.append(buffer.data(), count);
    }
    return true;
}

} // namespace

std::optional<PlainFile> readPlainFile(int directory, const QByteArray &name, int openFlags, qint64 most)
{
    // Not blocking: a pipe in the file's place would never open.
    const int flags = openFlags | O_NONBLOCK | O_CLOEXEC;
    PlainFile result { {}, {},
        Descriptor(retried([&] { return openat(directory, name.constData(), flags); })) };
    if (!result.descriptor.isOpen()
        || retried([&] { return fstat(result.descriptor.number(), &result.status); }) != 0)
        return std::nullopt;
    if (!S_ISREG(result.status.st_mode)) {
        errno = EISDIR;
        return std::nullopt;
    }
    if (!readBegin(result.descriptor, result.status.st_size, most, result.bytes))
        return std::nullopt;
    return result;
}

} // namespace host
