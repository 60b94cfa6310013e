#include "converter/capturefiles.h"

#include "converter/picture.h"
#include "host/descriptor.h"
#include "host/retried.h"
#include "host/scratch.h"
#include "host/writebytes.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <system_error>

#include <fcntl.h>
#include <strings.h>
#include <sys/stat.h>

namespace converter {

using host::retried;

namespace {

const std::string Unfinished = "cvtgif15";

[[noreturn]] void failWith(int systemError, const std::string &what)
{
    throw std::system_error(systemError, std::generic_category(), what);
}

std::string directoryOf(const std::string &name)
{
    const std::size_t slash = name.rfind('/');
    return slash == std::string::npos ? "." : name.substr(0, slash + 1);
}

std::string nameWithin(const std::string &name)
{
    return name.substr(name.rfind('/') + 1);
}

// A file that is not there any more when this ends, unless it was given its real name.
class NewGif {
public:
    explicit NewGif(int directory)
        : m_directory(directory)
        , m_scratch(host::openScratchFile(directory, Unfinished))
    {
        if (!m_scratch.file.isOpen())
            failWith(errno, "no file can be made beside it");
    }
    NewGif(const NewGif &) = delete;
    NewGif &operator=(const NewGif &) = delete;
    ~NewGif()
    {
        if (!m_renamed)
            retried([this] { return unlinkat(m_directory, m_scratch.name.c_str(), 0); });
    }

    void write(const std::string &bytes)
    {
        if (!host::writeBytes(m_scratch.file.number(), bytes.data(), bytes.size()))
            failWith(errno, "the GIF can't be written");
        if (retried([this] { return fsync(m_scratch.file.number()); }) != 0)
            failWith(errno, "the GIF can't be written to the disk");
    }

    void rename(const std::string &name)
    {
        const auto rename = [&] {
            return renameat(m_directory, m_scratch.name.c_str(), m_directory, name.c_str());
        };
        if (retried(rename) != 0)
            failWith(errno, "the GIF can't be put in its place");
        m_renamed = true;
        // The GIF is in its place whatever this says.
        retried([this] { return fsync(m_directory); });
    }

private:
    int m_directory;
    host::ScratchFile m_scratch;
    bool m_renamed = false;
};

bool isFile(const std::string &name)
{
    struct stat status;
    return retried([&] { return stat(name.c_str(), &status); }) == 0 && !S_ISDIR(status.st_mode);
}

} // namespace

std::vector<std::uint8_t> readCapture(const std::string &name)
{
    // Without waiting for what isn't a plain file.
    const host::Descriptor file(
        retried([&] { return open(name.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC); }));
    struct stat status;
    if (!file.isOpen() || retried([&] { return fstat(file.number(), &status); }) != 0)
        failWith(errno, "it can't be opened");
    if (!S_ISREG(status.st_mode))
        throw Unreadable(S_ISDIR(status.st_mode) ? "it is a directory" : "it is no plain file");
    if (status.st_size > LargestFile)
        throw Unreadable("the file is too large");
    std::vector<std::uint8_t> bytes(std::size_t(status.st_size));
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count =
            retried([&] { return ::read(file.number(), bytes.data() + done, bytes.size() - done); });
        if (count < 0)
            failWith(errno, "it can't be read");
        if (count == 0)
            break;
        done += std::size_t(count);
    }
    bytes.resize(done);
    return bytes;
}

std::string gifNameFor(const std::string &name)
{
    constexpr std::size_t EndingLength = 4;
    std::string stem = name;
    if (stem.size() >= EndingLength && strcasecmp(stem.c_str() + stem.size() - EndingLength, ".pcx") == 0)
        stem.resize(stem.size() - EndingLength);
    // In the order in which a search without regard to case takes them.
    for (const char *ending : { ".GIF", ".GIf", ".GiF", ".Gif", ".gIF", ".gIf", ".giF", ".gif" }) {
        if (isFile(stem + ending))
            return stem + ending;
    }
    return stem + ".GIF";
}

void replaceFile(const std::string &name, const std::string &bytes)
{
    const host::Descriptor directory(
        retried([&] { return open(directoryOf(name).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); }));
    if (!directory.isOpen())
        failWith(errno, "its directory can't be opened");
    host::sweepScratchFiles(directory.number(), Unfinished);
    NewGif gif(directory.number());
    gif.write(bytes);
    gif.rename(nameWithin(name));
}

} // namespace converter
