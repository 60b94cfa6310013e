#include "host/plainfile.h"

#include "host/descriptor.h"

#include <array>
#include <cerrno>

#include <fcntl.h>

namespace host {

namespace {

bool readToEnd(const Descriptor &file, QByteArray &bytes)
{
    std::array<char, 65536> buffer;
    for (;;) {
        const ssize_t count = ::read(file.number(), buffer.data(), buffer.size());
        if (count == 0)
            return true;
        if (count > 0)
            bytes.append(buffer.data(), count);
        else if (errno != EINTR)
            return false;
    }
}

} // namespace

std::optional<PlainFile> readPlainFile(int directory, const QByteArray &name, int openFlags)
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
    if (!readToEnd(file, result.bytes))
        return std::nullopt;
    return result;
}

} // namespace host
