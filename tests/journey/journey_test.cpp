// The program as a user meets it: started, a game chosen and played, the list back, left.

#include "host/windows.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QProcessEnvironment>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int Patience = 30'000; // ms; a bound, not a wait

constexpr int RowHeight = 12; // pixels of an entry of the list
constexpr double Alike = 30; // mean difference below which two pictures are of one game

const QString MainTitle = u"Zembrolix v2.0"_s;

bool waitFor(const std::function<bool()> &condition)
{
    return QTest::qWaitFor(condition, Patience);
}

host::WindowId waitForWindow(const std::function<host::WindowId()> &find)
{
    host::WindowId window = 0;
    waitFor([&] { return (window = find()) != 0; });
    return window;
}

void run(const QString &program, const QStringList &arguments)
{
    ASSERT_EQ(QProcess::execute(program, arguments), 0) << program.toStdString();
}

QString output(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

// A number out of lines like "WIDTH=411".
int numberOf(const QString &lines, const QString &name)
{
    const qsizetype start = lines.indexOf(name + u'=');
    return start < 0 ? 0 : lines.mid(start + name.size() + 1).section(u'\n', 0, 0).toInt();
}

// As it stands on the screen: a window that draws by itself, past the server, is black when asked for its own
// picture.
QImage pictureOf(host::WindowId window)
{
    const QString geometry =
        output(u"xdotool"_s, { u"getwindowgeometry"_s, u"--shell"_s, QString::number(window) });
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, numberOf(geometry, u"X"_s), numberOf(geometry, u"Y"_s),
            numberOf(geometry, u"WIDTH"_s), numberOf(geometry, u"HEIGHT"_s))
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

QImage captureOf(const QString &game)
{
    return QImage(QStringLiteral(SOURCE_DIRECTORY "/data/demo/captures/") + game + u".gif"_s);
}

QImage thumbnail(const QImage &picture)
{
    return picture.convertToFormat(QImage::Format_RGB32)
        .scaled(40, 30, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// Mean difference of the colour channels of two pictures, each seen from afar: 0 alike, 255 black and white.
double difference(const QImage &a, const QImage &b)
{
    const QImage one = thumbnail(a);
    const QImage other = thumbnail(b);
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb p = one.pixel(x, y);
            const QRgb q = other.pixel(x, y);
            sum +=
                std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q));
        }
    }
    return sum / (3.0 * one.width() * one.height());
}

// The share of what isn't black in a picture that has a colour of the other one.
double coloursShared(const QImage &picture, const QImage &other)
{
    constexpr int Black = 24;
    constexpr int Near = 4; // of each channel
    const QList<QRgb> colours = other.convertToFormat(QImage::Format_Indexed8).colorTable();
    const auto known = [&colours](QRgb p) {
        return std::any_of(colours.begin(), colours.end(), [p](QRgb q) {
            return std::abs(qRed(p) - qRed(q)) <= Near && std::abs(qGreen(p) - qGreen(q)) <= Near
                && std::abs(qBlue(p) - qBlue(q)) <= Near;
        });
    };
    const QImage seen = picture.scaled(160, 114);
    int lit = 0;
    int shared = 0;
    for (int y = 0; y < seen.height(); ++y) {
        for (int x = 0; x < seen.width(); ++x) {
            const QRgb p = seen.pixel(x, y);
            if (qRed(p) + qGreen(p) + qBlue(p) < Black)
                continue;
            ++lit;
            shared += known(p);
        }
    }
    return lit == 0 ? 0 : static_cast<double>(shared) / lit;
}

struct Game {
    int row; // in the list, counted from 0
    QString name; // of its capture
    QByteArrayList parameters; // that are the game's own
    bool moving = false; // all of its picture, which only its colours tell then
};

void PrintTo(const Game &game, std::ostream *out)
{
    *out << game.name.toStdString();
}

// A program directory as the user gets it, and the program running in it.
class StartedProgram : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_home.isValid());
        const QString build = qEnvironmentVariable("JOURNEY_BUILD", QStringLiteral(BUILD_DIRECTORY));
        ASSERT_TRUE(QFile::exists(build + u"/Zembrolix"_s)) << "no program under " << build.toStdString();
        run(QStringLiteral(SOURCE_DIRECTORY "/packaging/assemble.sh"), { build, directory() });
    }

    void TearDown() override
    {
        m_program.kill();
        m_program.waitForFinished();
    }

    QString directory() const { return m_home.filePath(u"program"_s); }

    void start(QProcess::ProcessChannelMode channels = QProcess::ForwardedChannels)
    {
        // What the emulator keeps of its own stays out of the user's home.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, m_home.path());
        m_program.setProcessEnvironment(environment);
        m_program.setProcessChannelMode(channels);
        m_program.start(directory() + u"/Zembrolix"_s, QStringList());
        ASSERT_TRUE(m_program.waitForStarted());
    }

    void click(host::WindowId window, int x, int y)
    {
        run(u"xdotool"_s,
            { u"mousemove"_s, u"--window"_s, QString::number(window), QString::number(x), QString::number(y),
                u"click"_s, u"1"_s });
    }

    // The first run's accept button; then the main screen, listed and at rest.
    host::WindowId acceptFirstRun()
    {
        const host::WindowId first = waitForWindow([] { return host::findWindow(u"Zembrolix"_s); });
        click(first, 135, 77);
        return waitForWindow([] { return host::findWindow(MainTitle); });
    }

    void key(const QStringList &words) { run(u"xdotool"_s, words); }

    // An entry of a drop-down list, told by what it begins with.
    void choose(host::WindowId main, int y, const QString &beginning)
    {
        click(main, 90, y);
        waitFor([&] { return popupIsOpen(main); });
        key({ u"type"_s, beginning });
        key({ u"key"_s, u"Return"_s });
        waitFor([&] { return !popupIsOpen(main); });
    }

    // A drop-down list's entries stand in a window of their own, without a name.
    static bool popupIsOpen(host::WindowId main)
    {
        const QStringList windows =
            output(u"xdotool"_s, { u"search"_s, u"--onlyvisible"_s, u"--class"_s, u"^Zembrolix$"_s })
                .split(u'\n', Qt::SkipEmptyParts);
        return windows.size() > 1 && windows.contains(QString::number(main));
    }

    // The catalogue holds the emulators of the machine too: the games are for the first Atari, in Stella.
    void chooseStella(host::WindowId main)
    {
        choose(main, 291, u"ata"_s);
        choose(main, 315, u"st"_s);
    }

    host::WindowId emulatorWindow()
    {
        return output(u"xdotool"_s, { u"search"_s, u"--onlyvisible"_s, u"--name"_s, u"^Stella .*: "_s })
            .section(u'\n', 0, 0)
            .toUInt();
    }

    // What the emulator was started with, its own name aside.
    static QByteArrayList argumentsOf(host::WindowId window)
    {
        QFile file(u"/proc/"_s
            + output(u"xdotool"_s, { u"getwindowpid"_s, QString::number(window) }).trimmed() + u"/cmdline"_s);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        return file.readAll().chopped(1).split('\0').sliced(1);
    }

    // The main screen once two pictures of it are the same, with the pointer on the title.
    QImage atRest(host::WindowId main)
    {
        run(u"xdotool"_s, { u"mousemove"_s, u"--window"_s, QString::number(main), u"205"_s, u"60"_s });
        QImage last;
        waitFor([&] {
            const QImage now = pictureOf(main);
            const bool still = now == last;
            last = now;
            return still;
        });
        return last;
    }

    QTemporaryDir m_home;
    QProcess m_program;
};

class Journey : public StartedProgram, public testing::WithParamInterface<Game> {
protected:
    static void expectPicture(host::WindowId emulator, const QImage &own)
    {
        double distance = 255;
        EXPECT_TRUE(waitFor([&] { return (distance = difference(pictureOf(emulator), own)) < Alike; }))
            << "the window shows something else: " << distance;
        for (const QString &other : othersThan(GetParam().name))
            EXPECT_GT(difference(pictureOf(emulator), captureOf(other)), 1.5 * distance)
                << other.toStdString();
    }
    static void expectColours(host::WindowId emulator, const QImage &own)
    {
        double share = 0;
        EXPECT_TRUE(waitFor([&] { return (share = coloursShared(pictureOf(emulator), own)) > 0.7; }))
            << "the window shows something else: " << share;
        for (const QString &other : othersThan(GetParam().name))
            EXPECT_LT(coloursShared(pictureOf(emulator), captureOf(other)), 0.6) << other.toStdString();
    }
    static QStringList othersThan(const QString &game)
    {
        QStringList names { u"Star Catcher"_s, u"hedgerow"_s, u"prisma"_s };
        names.removeOne(game);
        return names;
    }
};

TEST_P(Journey, ChosenGamePlaysInItsEmulatorAndTheListIsBackWhenItEnds)
{
    start();
    const host::WindowId main = acceptFirstRun();
    ASSERT_NE(main, 0u);
    atRest(main);
    chooseStella(main);
    atRest(main);
    click(main, 60, 88 + 1 + RowHeight * GetParam().row + RowHeight / 2);
    const QImage before = atRest(main);

    click(main, 184, 341);
    const host::WindowId emulator = waitForWindow([this] { return emulatorWindow(); });
    ASSERT_NE(emulator, 0u) << "the emulator's window didn't come";
    const QByteArrayList arguments = argumentsOf(emulator);
    ASSERT_FALSE(arguments.isEmpty());
    EXPECT_EQ(arguments.sliced(1), GetParam().parameters);
    const QImage own = captureOf(GetParam().name);
    ASSERT_FALSE(own.isNull());
    if (GetParam().moving)
        expectColours(emulator, own);
    else
        expectPicture(emulator, own);

    host::closeWindow(emulator);
    ASSERT_TRUE(waitFor([this] { return emulatorWindow() == 0; }));
    EXPECT_TRUE(waitFor([&] { return atRest(main) == before; })) << "the main screen isn't as it was";

    click(main, 391, 359);
    ASSERT_TRUE(m_program.waitForFinished(Patience));
    EXPECT_EQ(m_program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(m_program.exitCode(), 0);
}

TEST_F(StartedProgram, AFileThatGoesMissingLaterIsNoFaultOfTheStart)
{
    start(QProcess::SeparateChannels);
    const host::WindowId main = acceptFirstRun();
    ASSERT_NE(main, 0u);
    atRest(main);
    ASSERT_TRUE(QFile::remove(directory() + u"/Zembro.cfg"_s));
    click(main, 391, 359); // the way out, which saves
    const host::WindowId box = waitForWindow([] { return host::findWindow(u"ERROR"_s); });
    ASSERT_NE(box, 0u);
    host::closeWindow(box);
    ASSERT_TRUE(m_program.waitForFinished(Patience));
    EXPECT_EQ(m_program.exitCode(), 1);
    const QString said = QString::fromUtf8(m_program.readAllStandardError());
    EXPECT_TRUE(said.contains(u"ERROR: An unknown error has occurred. (ERR53)\n"_s)) << said.toStdString();
    EXPECT_TRUE(said.contains(directory() + u"/Zembro.cfg\n"_s)) << said.toStdString();
}

INSTANTIATE_TEST_SUITE_P(OutOfAZipWithParametersAndPlain, Journey,
    testing::Values(Game { 0, u"hedgerow"_s, {} }, Game { 1, u"prisma"_s, { "-ld", "A" }, true },
        Game { 2, u"Star Catcher"_s, {} }));

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
