// The program as a user meets it: started, a game chosen and played, the list back, left.

#include "host/windows.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int Patience = 30'000; // ms; a bound, not a wait

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

QImage pictureOf(host::WindowId window)
{
    return QGuiApplication::primaryScreen()->grabWindow(window).toImage().convertToFormat(QImage::Format_RGB32);
}

QImage thumbnail(const QImage &picture)
{
    return picture.convertToFormat(QImage::Format_RGB32).scaled(40, 30, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
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
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) + std::abs(qBlue(p) - qBlue(q));
        }
    }
    return sum / (3.0 * one.width() * one.height());
}

// A program directory as the user gets it, and the program running in it.
class Journey : public testing::Test {
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

    void start()
    {
        m_program.setProcessChannelMode(QProcess::ForwardedChannels);
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

    host::WindowId emulatorWindow()
    {
        QProcess search;
        search.start(u"xdotool"_s, { u"search"_s, u"--onlyvisible"_s, u"--name"_s, u"Stella"_s });
        search.waitForFinished();
        return search.readAllStandardOutput().split('\n').first().toUInt();
    }

    QTemporaryDir m_home;
    QProcess m_program;
};

TEST_F(Journey, ChosenGamePlaysInItsEmulatorAndTheListIsBackWhenItEnds)
{
    start();
    const host::WindowId main = acceptFirstRun();
    ASSERT_NE(main, 0u);

    // The second entry: its capture and its facts show, and the pointer leaves the list.
    const QImage firstEntry = pictureOf(main);
    click(main, 60, 88 + 22);
    ASSERT_TRUE(waitFor([&] { return pictureOf(main) != firstEntry; }));
    run(u"xdotool"_s, { u"mousemove"_s, u"--window"_s, QString::number(main), u"205"_s, u"60"_s });
    QImage before;
    ASSERT_TRUE(waitFor([&] {
        const QImage now = pictureOf(main);
        const bool still = now == before;
        before = now;
        return still;
    }));

    click(main, 184, 341);
    const host::WindowId emulator = waitForWindow([this] { return emulatorWindow(); });
    ASSERT_NE(emulator, 0u) << "the emulator's window didn't come";

    const QImage own(QStringLiteral(SOURCE_DIRECTORY "/data/demo/") + SecondGame + u".gif"_s);
    ASSERT_FALSE(own.isNull());
    EXPECT_TRUE(waitFor([&] { return difference(pictureOf(emulator), own) < 12; }))
        << "the window doesn't show the game: " << difference(pictureOf(emulator), own);
    for (const QString &other : OtherGames)
        EXPECT_GT(difference(pictureOf(emulator), QImage(QStringLiteral(SOURCE_DIRECTORY "/data/demo/") + other + u".gif"_s)), 12);

    host::closeWindow(emulator);
    ASSERT_TRUE(waitFor([this] { return emulatorWindow() == 0; }));
    run(u"xdotool"_s, { u"mousemove"_s, u"--window"_s, QString::number(main), u"205"_s, u"60"_s });
    EXPECT_TRUE(waitFor([&] { return pictureOf(main) == before; })) << "the main screen isn't as it was";

    click(main, 391, 359);
    ASSERT_TRUE(m_program.waitForFinished(Patience));
    EXPECT_EQ(m_program.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(m_program.exitCode(), 0);
}

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
