// The program itself, as a process: the ends that it comes to before its screen is up.

#include "host/windows.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int Patience = 30'000; // ms; a bound, not a wait

const QStringList Files { u"Zembro.emu"_s, u"Zembro.rom"_s, u"Zembro.sye"_s, u"Zembro.cfg"_s, u"Zembro.faq"_s,
    u"Zembro.txt"_s, u"Cvtgif15.exe"_s, u"LNG/ZB-ESP.LNG"_s };

// A directory with the program and all files that it asks for; what is in them plays no part here.
class ProgramTest : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_directory.isValid());
        ASSERT_TRUE(QDir(m_directory.path()).mkdir(u"LNG"_s));
        for (const QString &name : Files) {
            QFile file(m_directory.filePath(name));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
            file.write("x\r\n");
        }
        ASSERT_TRUE(QFile::copy(QStringLiteral(BUILD_DIRECTORY "/Zembrolix"), program()));
        m_process.setProgram(program());
    }
    void TearDown() override
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    QString program() const { return m_directory.filePath(u"Zembrolix"_s); }
    QString standardError() { return QString::fromUtf8(m_process.readAllStandardError()); }

    QTemporaryDir m_directory;
    QProcess m_process;
};

TEST_F(ProgramTest, WithoutADisplayItSaysSoOnTheStandardErrorAndEndsWithStatusOne)
{
    struct Displays {
        QString x;
        QString wayland;
    };
    const QString noSocket = m_directory.filePath(u"Zembro.txt"_s);
    for (const Displays &displays : { Displays { {}, {} }, Displays { u":4711"_s, {} },
             Displays { {}, u"none"_s }, Displays { u":4711"_s, u"none"_s }, Displays { {}, u"Zembro.txt"_s },
             Displays { {}, u"/no/such/socket"_s }, Displays { {}, noSocket } }) {
        SCOPED_TRACE((displays.x + u' ' + displays.wayland).toStdString());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_RUNTIME_DIR"_s, m_directory.path());
        environment.insert(u"WAYLAND_DISPLAY"_s, displays.wayland);
        environment.insert(u"DISPLAY"_s, displays.x);
        m_process.setProcessEnvironment(environment);
        m_process.start();
        ASSERT_TRUE(m_process.waitForFinished(Patience));
        EXPECT_EQ(m_process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(m_process.exitCode(), 1);
        EXPECT_EQ(standardError(), u"Zembrolix: there is no display to show the screen on.\n"_s);
    }
}

TEST_F(ProgramTest, AWaylandDisplayThatIsGoneLeavesTheXServerToIt)
{
    ASSERT_TRUE(QFile::remove(m_directory.filePath(u"Zembro.rom"_s)));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"WAYLAND_DISPLAY"_s, u"none"_s);
    m_process.setProcessEnvironment(environment);
    m_process.start();
    host::WindowId box = 0;
    EXPECT_TRUE(QTest::qWaitFor([&box] { return (box = host::findWindow(u"ERROR"_s)) != 0; }, Patience));
    host::closeWindow(box);
    EXPECT_TRUE(m_process.waitForFinished(Patience));
}

TEST_F(ProgramTest, AMissingFileIsNamedInABoxAndOnTheStandardErrorAndTheStatusIsOne)
{
    ASSERT_TRUE(QFile::remove(m_directory.filePath(u"Zembro.rom"_s)));
    m_process.start();
    host::WindowId box = 0;
    ASSERT_TRUE(QTest::qWaitFor([&box] { return (box = host::findWindow(u"ERROR"_s)) != 0; }, Patience));
    EXPECT_EQ(host::findWindow(u"Zembrolix v2.0"_s), 0u);
    EXPECT_EQ(m_process.state(), QProcess::Running);
    host::closeWindow(box);
    ASSERT_TRUE(m_process.waitForFinished(Patience));
    EXPECT_EQ(m_process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(m_process.exitCode(), 1);
    const QString said = standardError();
    EXPECT_TRUE(said.contains(u"ERROR: Cannot find any of these files:\n"_s)) << said.toStdString();
    EXPECT_TRUE(said.contains(u": "_s + m_directory.filePath(u"Zembro.rom"_s) + u'\n')) << said.toStdString();
}

TEST_F(ProgramTest, ItsWindowsHaveThePictureOfTheProgram)
{
    ASSERT_TRUE(QFile::remove(m_directory.filePath(u"Zembro.rom"_s)));
    m_process.start();
    host::WindowId box = 0;
    ASSERT_TRUE(QTest::qWaitFor([&box] { return (box = host::findWindow(u"ERROR"_s)) != 0; }, Patience));
    QProcess properties;
    properties.start(u"xprop"_s, { u"-id"_s, QString::number(box), u"_NET_WM_ICON"_s });
    ASSERT_TRUE(properties.waitForFinished(Patience));
    const QString told = QString::fromUtf8(properties.readAllStandardOutput());
    EXPECT_TRUE(told.contains(u"Icon (16 x 16)"_s)) << told.left(200).toStdString();
    host::closeWindow(box);
    EXPECT_TRUE(m_process.waitForFinished(Patience));
}

} // namespace

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
