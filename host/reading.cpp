#include "host/reading.h"

#include "host/failure.h"

#include <QProcess>

#include <csignal>

#include <sys/prctl.h>

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
        kill();
        waitForFinished();
    }
    Read(const Read &) = delete;
    Read &operator=(const Read &) = delete;
};

} // namespace

ProcessEnd readProgram(const QStringList &arguments, const QByteArray &input,
    std::chrono::milliseconds patience, const std::function<void(const QByteArray &)> &take)
{
    const QString name = arguments.value(0);
    const QString program = findProgram(name);
    Read process;
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

} // namespace host
