#include "host/scratch.h"

#include "host/retried.h"

#include <cerrno>
#include <charconv>
#include <csignal>
#include <memory>
#include <optional>
#include <string_view>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace host {

namespace {

constexpr mode_t NewFileMode = 0666; // less the process's mask
constexpr int MostNames = 100;

struct CloseDirectory {
    void operator()(DIR *stream) const { closedir(stream); }
};

// A number as it is written into a name: without a sign, and without a nought ahead of others.
std::optional<int> takeNumber(std::string_view &text)
{
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool plain = !text.empty() && text[0] != '-' && (text[0] != '0' || end == text.data() + 1);
    if (error != std::errc() || !plain)
        return {};
    text.remove_prefix(std::size_t(end - text.data()));
    return number;
}

bool take(std::string_view &text, std::string_view beginning)
{
    if (!text.starts_with(beginning))
        return false;
    text.remove_prefix(beginning.size());
    return true;
}

// The process that made a file of this name, if it is such a name.
std::optional<pid_t> writerOf(std::string_view name, const std::string &prefix)
{
    if (!take(name, '.' + prefix + '-'))
        return {};
    const std::optional<int> process = takeNumber(name);
    if (!process || *process <= 0 || !take(name, "-"))
        return {};
    const std::optional<int> number = takeNumber(name);
    return number && *number < MostNames && name.empty() ? process : std::nullopt;
}

bool isGone(pid_t process)
{
    return kill(process, 0) != 0 && errno == ESRCH;
}

bool lockAtOnce(const Descriptor &file)
{
    return retried([&] { return flock(file.number(), LOCK_EX | LOCK_NB); }) == 0;
}

// A process in another container, or on another machine, isn't seen from here, and one of an earlier
// container may have had our own number: the lock tells. Where there are no locks the number alone does.
bool isLeft(const Descriptor &file, pid_t writer)
{
    if (lockAtOnce(file))
        return true;
    return errno != EWOULDBLOCK && writer != getpid();
}

Descriptor openEntry(int directory, const char *name)
{
    const auto openFor = [&](int access) {
        constexpr int Flags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
        return Descriptor(retried([&] { return openat(directory, name, access | Flags); }));
    };
    // Some shared disks lock only what can be written.
    Descriptor file = openFor(O_RDWR);
    return file.isOpen() ? std::move(file) : openFor(O_RDONLY);
}

void removeIfLeft(int directory, const char *name, pid_t writer)
{
    if (writer != getpid() && !isGone(writer))
        return;
    struct stat named;
    if (retried([&] { return fstatat(directory, name, &named, AT_SYMLINK_NOFOLLOW); }) != 0
        || !S_ISREG(named.st_mode) || named.st_uid != geteuid())
        return;
    const Descriptor file = openEntry(directory, name);
    struct stat opened;
    const bool same = file.isOpen() && retried([&] { return fstat(file.number(), &opened); }) == 0
        && opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
    if (same && isLeft(file, writer))
        retried([&] { return unlinkat(directory, name, 0); });
}

} // namespace

ScratchFile openScratchFile(int directory, const std::string &prefix)
{
    constexpr int Flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    ScratchFile scratch;
    for (int i = 0; i < MostNames && !scratch.file.isOpen(); ++i) {
        scratch.name = '.' + prefix + '-' + std::to_string(getpid()) + '-' + std::to_string(i);
        scratch.file =
            Descriptor(retried([&] { return openat(directory, scratch.name.c_str(), Flags, NewFileMode); }));
        if (!scratch.file.isOpen() && errno != EEXIST)
            break;
    }
    if (scratch.file.isOpen())
        lockAtOnce(scratch.file);
    return scratch;
}

void sweepScratchFiles(int directory, const std::string &prefix)
{
    const int listed = retried([&] { return openat(directory, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    const std::unique_ptr<DIR, CloseDirectory> stream(listed < 0 ? nullptr : fdopendir(listed));
    while (const dirent *entry = stream ? readdir(stream.get()) : nullptr) {
        if (const std::optional<pid_t> writer = writerOf(entry->d_name, prefix))
            removeIfLeft(directory, entry->d_name, *writer);
    }
}

} // namespace host
