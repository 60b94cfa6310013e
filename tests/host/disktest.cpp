#include "disktest.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr uid_t Nobody = 65534;
constexpr int EndedByFailure = 255;
constexpr int EndedBySignal = 254;

using Stream = std::unique_ptr<FILE, int (*)(FILE *)>;

// Not by QTemporaryDir, which can't see the names that are no UTF-8.
void removeWhole(const QByteArray &directory)
{
    namespace fs = std::filesystem;
    const fs::path root(directory.constData());
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(root)) {
        if (fs::is_directory(entry.symlink_status()))
            fs::permissions(entry, fs::perms::owner_all, fs::perm_options::add);
    }
    fs::remove_all(root);
}

} // namespace

DiskTest::DiskTest()
{
    std::array<char, PATH_MAX> buffer;
    m_workingDirectory = getcwd(buffer.data(), buffer.size());
    m_directory = testing::TempDir().c_str() + QByteArray("zembrolix-XXXXXX");
    EXPECT_NE(mkdtemp(m_directory.data()), nullptr);
    // Open to the users that some tests turn into.
    setMode({}, 0755);
}

DiskTest::~DiskTest()
{
    EXPECT_EQ(chdir(m_workingDirectory.constData()), 0);
    removeWhole(m_directory);
}

QByteArray DiskTest::place(const QByteArray &name) const
{
    return m_directory + (name.isEmpty() ? QByteArray() : '/' + name);
}

QString DiskTest::path(const QString &name) const
{
    return QString::fromUtf8(m_directory) + (name.isEmpty() ? QString() : u'/' + name);
}

void DiskTest::makeFile(const QByteArray &name, const QByteArray &bytes) const
{
    const Stream file(fopen(place(name).constData(), "wb"), &fclose);
    ASSERT_TRUE(file) << name.constData();
    ASSERT_EQ(fwrite(bytes.constData(), 1, std::size_t(bytes.size()), file.get()), std::size_t(bytes.size()));
}

void DiskTest::makeDirectory(const QByteArray &name) const
{
    ASSERT_EQ(mkdir(place(name).constData(), 0755), 0) << name.constData();
}

void DiskTest::makeLink(const QByteArray &target, const QByteArray &name) const
{
    ASSERT_EQ(symlink(target.constData(), place(name).constData()), 0) << name.constData();
}

void DiskTest::setMode(const QByteArray &name, mode_t mode) const
{
    ASSERT_EQ(chmod(place(name).constData(), mode), 0) << name.constData();
}

bool DiskTest::exists(const QByteArray &name) const
{
    struct stat status;
    return lstat(place(name).constData(), &status) == 0;
}

mode_t DiskTest::mode(const QByteArray &name) const
{
    struct stat status;
    EXPECT_EQ(stat(place(name).constData(), &status), 0) << name.constData();
    return status.st_mode & 07777;
}

std::optional<QByteArray> DiskTest::bytes(const QByteArray &name) const
{
    const Stream file(fopen(place(name).constData(), "rb"), &fclose);
    if (!file)
        return std::nullopt;
    QByteArray result;
    std::array<char, 4096> buffer;
    while (const std::size_t count = fread(buffer.data(), 1, buffer.size(), file.get()))
        result.append(buffer.data(), qsizetype(count));
    return result;
}

QList<QByteArray> DiskTest::names() const
{
    QList<QByteArray> result;
    DIR *stream = opendir(place().constData());
    while (const dirent *entry = readdir(stream)) {
        const QByteArray name(entry->d_name);
        if (name != "." && name != "..")
            result.append(name);
    }
    closedir(stream);
    std::sort(result.begin(), result.end());
    return result;
}

int failureOf(const std::function<void()> &operation)
{
    try {
        operation();
    } catch (const host::Failure &failure) {
        return failure.number();
    }
    return 0;
}

pid_t startChild(const std::function<int()> &operation)
{
    const pid_t child = fork();
    if (child == 0) {
        int result = EndedByFailure;
        try {
            result = operation();
        } catch (const std::exception &failure) {
            fprintf(stderr, "%s\n", failure.what());
        }
        _exit(result);
    }
    return child;
}

int endOf(pid_t child)
{
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : EndedBySignal;
}

int inChild(const std::function<int()> &operation)
{
    return endOf(startChild(operation));
}

int inChildOfOrdinaryUser(const std::function<int()> &operation)
{
    return inChild([&operation] {
        const bool ready =
            geteuid() != 0 || (setgroups(0, nullptr) == 0 && setgid(Nobody) == 0 && setuid(Nobody) == 0);
        return ready ? operation() : EndedByFailure;
    });
}
