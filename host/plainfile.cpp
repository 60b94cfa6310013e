#include "host/plainfile.h"

#include "host/descriptor.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <fcntl.h>

namespace host {

namespace {

bool readBegin(const Descriptor &file, qint64 most, QByteArray &bytes)
{
    std::array<char, 65536> buffer;
    while (bytes.size() < most) {
        const size_t wanted = size_t(std::min<qint64>(most - bytes.size(), buffer.size()));
        const ssize_t count = ::read(file.number(), buffer.data(), wanted);
        if (count == 0)
            return true;
        if (count > 0)
            bytes.append(buffer.data(), count);
        else if (errno != EINTR)
            return false;
    }
    return true;
}

} // namespace

std::optional<PlainFile> readPlainFile(int directory, const QByteArray &name, int openFlags, qint64 most)
{
    // Not blocking: a pipe in the file's place would never open.
    const Descriptor file(openat(directory, name.constData(), openFlags | O_NONBLOCK | O_CLOEXEC));
    PlainFile result;
    if (!file.isOpen() || fstat(file.number(), &result.status) != 0)
        return std::nullopt;
    if (!S_ISREG(result.status.st_mode)) {
        errno = EISDIR;
        return std::nullopt;
    }
    if (!readBegin(file, most, result.bytes))
        return std::nullopt;
    return result;
}

} // namespace host
