#include "host/process.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/paths.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

extern "C" { // the header of this system leaves that out
#include <sys/pidfd.h>
}

namespace host {

namespace {

std::vector<std::string> currentEnvironment()
{
    std::vector<std::string> entries;
    for (char **entry = environ; entry && *entry; ++entry)
        entries.emplace_back(*entry);
    return entries;
}

std::vector<std::string> &environment()
{
    static std::vector<std::string> entries = currentEnvironment();
    return entries;
}

QByteArray searchPath()
{
    const std::optional<QByteArray> path = rememberedVariable("PATH");
    return path ? *path : QByteArray("/usr/local/bin:/usr/bin:/bin");
}

bool isFile(const QByteArray &path)
{
    struct stat status { };
    return stat(path.constData(), &status) == 0 && S_ISREG(status.st_mode);
}

bool mayRun(const QByteArray &path)
{
    return access(path.constData(), X_OK) == 0;
}

std::vector<QByteArray> placesInPath(const QString &name)
{
    std::vector<QByteArray> places;
    const QByteArray bytes = nameToDisk(name);
    for (const QByteArray &directory : searchPath().split(':')) {
        if (!directory.isEmpty())
            places.push_back(directory + '/' + bytes);
    }
    return places;
}

// The places where a program of this name may lie, the best first. A bare name gets a directory in front: an
// interpreter would take one that begins with a dash for an option.
std::vector<QByteArray> candidates(const QString &name)
{
    QByteArray found = findOnDisk(name);
    if (!found.contains('/'))
        found.prepend("./"); // of nothing it makes the directory itself, which is no file
    // A file of that name in the working directory decides, also if it may not run.
    if (lastSeparator(name) >= 0 || isFile(found))
        return { found };

    return placesInPath(name);
}

QByteArray programFor(const QString &name)
{
    bool forbidden = false;
    for (const QByteArray &place : candidates(name)) {
        if (!isFile(place))
            continue;
        if (mayRun(place))
            return place;
        forbidden = true;
    }
    throw Failure(forbidden ? PermissionDenied : FileNotFound, QStringLiteral("start a program"), name);
}

Failure startFailure(int systemError, const QString &name)
{
    int number = InvalidArgument;
    if (systemError == ENOENT || systemError == ENOTDIR)
        number = FileNotFound;
    else if (systemError == EACCES || systemError == EPERM)
        number = PermissionDenied;
    return Failure(number, QStringLiteral("start a program"), name);
}

// The terminated array of pointers that the system wants; the strings must outlive it.
std::vector<char *> pointers(std::vector<std::string> &strings)
{
    std::vector<char *> result;
    for (std::string &string : strings)
        result.push_back(string.data());
    result.push_back(nullptr);
    return result;
}

// How a child begins: a session of its own, default signals, nothing blocked, the standard streams alone.
class StartSettings {
public:
    StartSettings()
    {
        posix_spawnattr_init(&attributes);
        posix_spawn_file_actions_init(&actions);
        sigset_t signals;
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&attributes, &signals);
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&attributes, &signals);
        posix_spawnattr_setflags(
            &attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
        posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
    }
    ~StartSettings()
    {
        posix_spawn_file_actions_destroy(&actions);
        posix_spawnattr_destroy(&attributes);
    }
    StartSettings(const StartSettings &) = delete;
    StartSettings &operator=(const StartSettings &) = delete;

    posix_spawnattr_t attributes;
    posix_spawn_file_actions_t actions;
};

} // namespace

void rememberEnvironment()
{
    environment() = currentEnvironment();
}

std::optional<QByteArray> rememberedVariable(const QByteArray &name)
{
    for (const std::string &entry : environment()) {
        const QByteArray line = QByteArray::fromStdString(entry);
        if (line.startsWith(name + '='))
            return line.sliced(name.size() + 1);
    }
    return std::nullopt;
}

void ArgumentSplitter::addText(QStringView text)
{
    for (const QChar c : text) {
        if (c == u'"') {
            m_quoted = !m_quoted;
            m_begun = true;
        } else if (!m_quoted && (c == u' ' || c == u'\t')) {
            endArgument();
        } else {
            m_current += c;
            m_begun = true;
        }
    }
}

void ArgumentSplitter::addWhole(const QString &text)
{
    m_current += text;
    m_begun = m_begun || !text.isEmpty();
}

void ArgumentSplitter::endArgument()
{
    if (m_begun)
        m_ended << m_current;
    m_current.clear();
    m_begun = false;
}

QStringList ArgumentSplitter::arguments() const
{
    return m_begun ? m_ended + QStringList(m_current) : m_ended;
}

QStringList splitArguments(QStringView text)
{
    ArgumentSplitter splitter;
    splitter.addText(text);
    return splitter.arguments();
}

QString findProgram(const QString &name)
{
    return nameFromDisk(programFor(name));
}

QString findInPath(const QString &name)
{
    for (const QByteArray &place : placesInPath(name)) {
        if (isFile(place) && mayRun(place))
            return nameFromDisk(place);
    }
    return {};
}

bool isNamedByAProcess(const QByteArrayList &texts)
{
    const QString all = QStringLiteral("/proc");
    for (const QString &number : QDir(all).entryList(QDir::Dirs)) {
        const QString process = all + QLatin1Char('/') + number;
        struct stat status { };
        if (number.toInt() <= 0 || number.toInt() == getpid()
            || stat(process.toLatin1().constData(), &status) != 0 || status.st_uid != geteuid())
            continue;
        QFile file(process + QStringLiteral("/cmdline"));
        const QByteArray arguments = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        if (std::ranges::any_of(texts, [&](const QByteArray &text) { return arguments.contains(text); }))
            return true;
    }
    return false;
}

Process::Process(pid_t id)
    : m_id(id)
    , m_ended(false)
    , m_end(pidfd_open(id, 0))
{
}

Process::Process(Process &&other) noexcept
{
    *this = std::move(other);
}

Process &Process::operator=(Process &&other) noexcept
{
    std::swap(m_id, other.m_id);
    std::swap(m_ended, other.m_ended);
    m_end = std::move(other.m_end);
    m_how = other.m_how;
    return *this;
}

// Somebody has to take the end of a child that runs on.
Process::~Process()
{
    if (hasEnded())
        return;
    try {
        std::thread([id = m_id] { waitpid(id, nullptr, 0); }).detach();
    } catch (const std::system_error &) {
        // There are too many threads already: the child stays a zombie until our own end.
    }
}

Process Process::start(const QStringList &arguments)
{
    const QString name = arguments.value(0);
    const QByteArray program = programFor(name);
    std::vector<std::string> words { program.toStdString() };
    for (qsizetype i = 1; i < arguments.size(); ++i)
        words.push_back(nameToDisk(arguments[i]).toStdString());

    const StartSettings settings;
    pid_t id {};
    const int error = posix_spawn(&id, program.constData(), &settings.actions, &settings.attributes,
        pointers(words).data(), pointers(environment()).data());
    if (error != 0)
        throw startFailure(error, name);
    return Process(id);
}

bool Process::hasEnded()
{
    // It yields 0 while the child runs, and fails where somebody else has taken its end.
    int how = 0;
    const pid_t taken = m_ended ? 0 : waitpid(m_id, &how, WNOHANG);
    m_ended = m_ended || taken != 0;
    if (taken == m_id && WIFEXITED(how))
        m_how.status = WEXITSTATUS(how);
    if (taken == m_id && WIFSIGNALED(how))
        m_how.signal = WTERMSIG(how);
    return m_ended;
}

void endProcess(int status)
{
    std::fflush(nullptr);
    std::_Exit(status);
}

} // namespace host
