#include "host/reading.h"

#include "host/failure.h"

#include <QDeadlineTimer>
#include <QProcess>

#include <atomic>
#include <csignal>
#include <iterator>
#include <optional>

#include <sys/prctl.h>
#include <unistd.h>

namespace host {

namespace {

// The process group that ends with this process; 0 for none. Read by a handler of signals.
std::atomic<pid_t> groupToEnd = 0;
static_assert(std::atomic<pid_t>::is_always_lock_free);

void endGroup()
{
    if (const pid_t group = groupToEnd.exchange(0); group > 1)
        ::kill(-group, SIGKILL);
}

// The signal acts as it always does once the handler is gone.
void endGroupAndAct(int signal)
{
    endGroup();
    raise(signal);
}

// While it stands, signals that end this process end the group first. Those that this process was started to
// ignore, or that somebody else has a handler for, stay as they are.
class SignalsThatEnd {
public:
    SignalsThatEnd()
    {
        for (size_t i = 0; i < std::size(Signals); ++i) {
            sigaction(Signals[i], nullptr, &m_before[i]);
            if (m_before[i].sa_handler != SIG_DFL)
                continue;
            struct sigaction action { };
            action.sa_handler = endGroupAndAct;
            action.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER);
            sigaction(Signals[i], &action, nullptr);
        }
    }
    ~SignalsThatEnd()
    {
        for (size_t i = 0; i < std::size(Signals); ++i)
            sigaction(Signals[i], &m_before[i], nullptr);
    }
    SignalsThatEnd(const SignalsThatEnd &) = delete;
    SignalsThatEnd &operator=(const SignalsThatEnd &) = delete;

private:
    static constexpr int Signals[] = { SIGINT, SIGTERM, SIGHUP, SIGQUIT };
    struct sigaction m_before[std::size(Signals)] {};
};

// Leads a group, which doesn't outlive it while it runs.
class Read : public QProcess {
public:
    explicit Read(ProcessChannelMode mode)
    {
        setChildProcessModifier([] {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            setpgid(0, 0);
        });
        setProcessChannelMode(mode);
    }
    ~Read() override
    {
        if (state() == NotRunning) {
            groupToEnd = 0;
            return;
        }
        endGroup();
        kill();
        waitForFinished();
    }
    Read(const Read &) = delete;
    Read &operator=(const Read &) = delete;
};

// How long it may take to the next piece, in milliseconds; none where its time is up.
using Patience = std::function<std::optional<int>()>;

ProcessEnd readFrom(Read &process, const QStringList &arguments, const QByteArray &input,
    const Patience &patience, const std::function<void(const QByteArray &)> &take);

} // namespace

ProcessEnd readProgram(const QStringList &arguments, const QByteArray &input,
    std::chrono::milliseconds patience, const std::function<void(const QByteArray &)> &take)
{
    Read process(QProcess::ForwardedErrorChannel);
    const auto always = [patience] { return std::optional(static_cast<int>(patience.count())); };
    return readFrom(process, arguments, input, always, take);
}

ProcessEnd readAllThatIsSaid(const QString &directory, const QStringList &arguments,
    std::chrono::milliseconds limit, const std::function<void(const QByteArray &)> &take)
{
    Read process(QProcess::MergedChannels);
    process.setWorkingDirectory(directory);
    const QDeadlineTimer end(limit);
    const auto left = [end] {
        return end.hasExpired() ? std::nullopt : std::optional(static_cast<int>(end.remainingTime()));
    };
    return readFrom(process, arguments, {}, left, take);
}

namespace {

ProcessEnd readFrom(Read &process, const QStringList &arguments, const QByteArray &input,
    const Patience &patience, const std::function<void(const QByteArray &)> &take)
{
    const QString name = arguments.value(0);
    const QString program = findProgram(name);
    const SignalsThatEnd signalsThatEnd;
    process.start(program, arguments.mid(1));
    groupToEnd = static_cast<pid_t>(process.processId());
    if (!process.waitForStarted(-1))
        throw Failure(InvalidArgument, QStringLiteral("start a program"), name);
    process.write(input);
    process.closeWriteChannel();
    std::optional<int> left = patience();
    for (; left && process.waitForReadyRead(*left); left = patience())
        take(process.readAllStandardOutput());
    if (process.state() != QProcess::NotRunning && !(left && process.waitForFinished(0)))
        throw Failure(DeviceError, QStringLiteral("wait for what a program says"), name);
    groupToEnd = 0;
    const QByteArray rest = process.readAllStandardOutput();
    if (!rest.isEmpty())
        take(rest);
    ProcessEnd end;
    if (process.exitStatus() == QProcess::NormalExit)
        end.status = process.exitCode();
    else
        end.signal = process.exitCode();
    return end;
}

} // namespace

} // namespace host
