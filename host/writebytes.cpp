#include "host/writebytes.h"

#include "host/retried.h"

#include <cerrno>

#include <unistd.h>

namespace host {

bool writeBytes(int file, const char *bytes, std::size_t count)
{
    while (count > 0) {
        const ssize_t written = retried([&] { return ::write(file, bytes, count); });
        if (written == 0)
            errno = EIO;
        if (written <= 0)
            return false;
        bytes += written;
        count -= std::size_t(written);
    }
    return true;
}

} // namespace host
