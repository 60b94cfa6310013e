#include "host/reading.h"

#include "host/failure.h"

#include <QProcess>

#include <csignal>

#include <sys/prctl.h>
#include <unistd.h>

namespace host {

namespace {

// Ends with the process that wants to read it.
class Read : public QProcess {
public:
    Read()
    {
        setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
        setProcessChannelMode(ForwardedErrorChannel);
    }
    ~Read() override
    {
        if (state() == NotRunning)
            return;
        if (m_leads && processId() > 0)
            ::kill(-static_cast<pid_t>(processId()), SIGKILL);
        kill();
        waitForFinished();
    }
    Read(const Read &) = delete;
    Read &operator=(const Read &) = delete;

    void leadGroup()
    {
        m_leads = true;
        setProcessChannelMode(MergedChannels);
        setChildProcessModifier([] {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            setpgid(0, 0);
        });
    }

private:
    bool m_leads = false;
};

ProcessEnd readFrom(Read &process, const QStringList &arguments, const QByteArray &input,
    std::chrono::milliseconds patience, const std::function<void(const QByteArray &)> &take);

} // namespace

ProcessEnd readProgram(const QStringList &arguments, const QByteArray &input,
    std::chrono::milliseconds patience, const std::function<void(const QByteArray &)> &take)
{
    Read process;
    return readFrom(process, arguments, input, patience, take);
}

ProcessEnd readAllThatIsSaid(const QString &directory, const QStringList &arguments,
    std::chrono::milliseconds patience, const std::function<void(const QByteArray &)> &take)
{
    Read process;
    process.leadGroup();
    process.setWorkingDirectory(directory);
    return readFrom(process, arguments, {}, patience, take);
}

namespace {

ProcessEnd readFrom(Read &process, const QStringList &arguments, const QByteArray &input,
    std::chrono::milliseconds patience, const std::function<void(const QByteArray &)> &take)
{
    const QString name = arguments.value(0);
    const QString program = findProgram(name);
    process.start(program, arguments.mid(1));
    if (!process.waitForStarted(-1))
        throw Failure(InvalidArgument, QStringLiteral("start a program"), name);
    process.write(input);
    process.closeWriteChannel();
    const int milliseconds = static_cast<int>(patience.count());
    while (process.waitForReadyRead(milliseconds))
        take(process.readAllStandardOutput());
    if (process.state() != QProcess::NotRunning && !process.waitForFinished(0))
        throw Failure(DeviceError, QStringLiteral("wait for what a program says"), name);
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
