// A catalogue whose paths count from the program's directory, as the demonstration's do.

#include "accionestest.h"

#include "tests/support/desktoptools.h"

#include "host/paths.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

class MovibleTest : public AccionesTest {
protected:
    MovibleTest()
    {
        qputenv("TMPDIR", files.path(u"home"_s).toUtf8());
        files.write(u"bin/Emu"_s, "#!/bin/sh\npwd > ran\nprintf '%s|' \"$@\" >> ran\n");
        QFile(files.path(u"bin/Emu"_s))
            .setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        files.write(u"bin/readme.txt"_s, "Read me");
        configure(u"bin/emu"_s, u"zeta/"_s, u"zetacap/"_s);
    }
    ~MovibleTest() override
    {
        host::changeDirectory(m_working);
        if (m_temporary.isNull())
            qunsetenv("TMPDIR");
        else
            qputenv("TMPDIR", m_temporary);
    }
    void configure(const QString &exe, const QString &roms, const QString &captures)
    {
        EmulatorEntry &emulator = systemsOfCatalogue[0].emulators[0];
        emulator.executable = exe;
        emulator.roms = roms;
        emulator.captures = captures;
        files.writeCatalogue(systemsOfCatalogue);
    }
    void expectGameOne()
    {
        EXPECT_THAT(listed(), ElementsAre(u"Juego uno"_s, u"two.nes"_s));
        EXPECT_EQ(summary(), u"2 ROMS - 0.0MB"_s);
        EXPECT_EQ(info(), u"ONE.NES 1Kb  [NOR]"_s);
        EXPECT_EQ(capture(), QColor(Qt::red));
    }

private:
    QString m_working = host::currentDirectory();
    QByteArray m_temporary = qgetenv("TMPDIR");
};

} // namespace

TEST_F(MovibleTest, GamesAreListedWithTheirFactsAndCaptures_WhateverTheWorkingDirectory)
{
    host::changeDirectory(u"/"_s);
    startAt(Zeta, 0);
    expectGameOne();
    configure(u"bin\\EMU"_s, u"ZETA\\"_s, u"zetacap\\"_s);
    renew();
    startAt(Zeta, 0);
    expectGameOne();
    configure(u"bin/emu"_s, u"../"_s + files.path().section(u'/', -1) + u"/zeta/"_s, u"./zetacap/"_s);
    renew();
    startAt(Zeta, 0);
    expectGameOne();
}

TEST_F(MovibleTest, AGameIsPlayedByWholePaths)
{
    host::changeDirectory(u"/"_s);
    startAt(Zeta, 0);
    click(control(u"JugarB1"_s));
    EXPECT_EQ(files.read(u"bin/ran"_s),
        files.path(u"bin"_s).toUtf8() + '\n' + files.path(u"zeta/one.nes"_s).toUtf8() + '|');
    files.remove(u"bin/ran"_s);
    // Again, from the emulator's own directory, where the first launch has left the program.
    click(control(u"JugarB1"_s));
    EXPECT_TRUE(files.exists(u"bin/ran"_s));
}

TEST_F(MovibleTest, AGameGoesToTheTrash)
{
    host::changeDirectory(u"/"_s);
    startAt(Zeta, 0);
    questions.yesNo = { true };
    discard();
    EXPECT_THAT(trashed(), ElementsAre(u"one.nes"_s));
    EXPECT_THAT(listed(), ElementsAre(u"two.nes"_s));
}

TEST_F(MovibleTest, TheEmulatorsTextsAreFound)
{
    host::changeDirectory(u"/"_s);
    startAt(Zeta, 0);
    click(control(u"BotonC2"_s));
    EXPECT_EQ(control<forms::TextArea>(u"Editor"_s).Text(), u"Read me"_s);
}

TEST_F(MovibleTest, ADriveAndAnEmptyValueLeadNowhereNew)
{
    files.writeSize(u"C:/one.nes"_s, 1000);
    host::changeDirectory(u"/"_s);
    configure(u"bin/emu"_s, u"C:/"_s, QString());
    startAt(Zeta, 0);
    EXPECT_THAT(listed(), ElementsAre());
    configure(u"bin/emu"_s, QString(), QString());
    renew();
    startAt(Zeta, 0);
    EXPECT_THAT(listed(), ElementsAre());
}
