// The main screen over a big directory: filling the list, choosing an entry, the tip, a launch and its watch.
// bench_screen DIRECTORY ROMS EMULATOR

#include "benchmarks/clock.h"

#include "core/modulo.h"

#include "forms/application.h"

#include "host/desktopquestions.h"
#include "host/paths.h"
#include "host/process.h"

#include "mainscreen/portada.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTimer>

#include <cstdlib>
#include <functional>

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Run {
    double begun = 0; // the emulator's main, in milliseconds of the clock
    double ended = 0;
};

Run lastRun()
{
    Run run;
    std::FILE *in = std::fopen(std::getenv("BENCH_OUT"), "r");
    if (!in || std::fscanf(in, "%lf %lf", &run.begun, &run.ended) != 2)
        std::abort();
    std::fclose(in);
    return run;
}

double medianOf(int times, const std::function<double()> &measure)
{
    std::vector<double> values;
    for (int i = 0; i < times; ++i)
        values.push_back(measure());
    return median(values);
}

double timeOf(const std::function<void()> &action)
{
    const double begun = milliseconds();
    action();
    return milliseconds() - begun;
}

double spawn(const char *emulator)
{
    char *const arguments[] = { const_cast<char *>(emulator), nullptr };
    const double begun = milliseconds();
    pid_t child = 0;
    if (posix_spawn(&child, emulator, nullptr, nullptr, arguments, environ) != 0)
        std::abort();
    waitpid(child, nullptr, 0);
    return lastRun().begun - begun;
}

void pressEnter(mainscreen::Portada &portada)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(portada.Lista1, &press);
}

void launches(mainscreen::Portada &portada, const char *roms)
{
    const auto toMain = [&portada] {
        const double begun = milliseconds();
        pressEnter(portada);
        return lastRun().begun - begun;
    };
    std::printf("Enter to the emulator's main, listing kept: %.2f ms\n", medianOf(15, toMain));
    std::printf("Enter to the emulator's main, directory changed: %.2f ms\n", medianOf(15, [&] {
        utimensat(AT_FDCWD, roms, nullptr, 0);
        usleep(50'000); // a directory that has changed this very moment is never kept
        return toMain();
    }));
    std::printf("end of the emulator to the list at rest: %.2f ms\n", medianOf(15, [&portada] {
        pressEnter(portada);
        return milliseconds() - lastRun().ended;
    }));
}

double processorTime()
{
    rusage usage {};
    getrusage(RUSAGE_SELF, &usage);
    const auto of = [](const timeval &t) {
        return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_usec) / 1e3;
    };
    return of(usage.ru_utime) + of(usage.ru_stime);
}

// In percent of a processor, between the first half second of a run and its last.
double idleWatch(mainscreen::Portada &portada)
{
    constexpr int From = 500; // milliseconds
    constexpr int To = 4500;
    double before = 0;
    double after = 0;
    QTimer::singleShot(From, &portada, [&before] { before = processorTime(); });
    QTimer::singleShot(To, &portada, [&after] { after = processorTime(); });
    pressEnter(portada);
    return 100 * (after - before) / (To - From);
}

// With its yield and its repaint, which the bound leaves out.
double tip(mainscreen::Portada &portada, int row)
{
    QWidget *view = portada.Lista1->viewport();
    const QPointF place(40, 6 + 12 * row);
    QMouseEvent move(QEvent::MouseMove, place, view->mapToGlobal(place), Qt::NoButton, Qt::NoButton, {});
    return timeOf([&] { QApplication::sendEvent(view, &move); });
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 4)
        return 2;
    host::rememberEnvironment();
    host::DesktopQuestions preguntas;
    host::setQuestions(&preguntas);
    forms::Application aplicacion(argc, argv);
    host::setProgramDirectory(QString::fromLocal8Bit(argv[1]));
    core::Modulo M;
    mainscreen::Portada portada(M);
    portada.Carga();

    const int entries = portada.Lista1->ListCount();
    std::printf("Llena_Lista, %d entries: %.1f ms\n", entries,
        medianOf(9, [&] { return timeOf([&] { portada.Llena_Lista(); }); }));
    if (std::getenv("BENCH_LIST_ONLY"))
        host::endProcess(0);
    int entry = 0;
    std::printf("choosing an entry with its capture: %.2f ms\n", medianOf(101, [&] {
        entry = (entry + 61) % entries;
        return timeOf([&] { portada.Lista1->SetListIndex(entry); });
    }));
    int row = 0;
    std::printf("a pass of the tip, yield and repaint included: %.2f ms\n",
        medianOf(101, [&] { return tip(portada, row = (row + 1) % 10); }));
    if (std::getenv("BENCH_SLEEP"))
        std::printf("idle watch: %.2f %% of a processor\n", idleWatch(portada));
    else {
        std::printf(
            "posix_spawn to the child's main: %.2f ms\n", medianOf(15, [argv] { return spawn(argv[3]); }));
        launches(portada, argv[2]);
    }
    std::fflush(stdout);
    host::endProcess(0);
}
