#include "grabaciontest.h"

#include "forms/checks.h"

using namespace Qt::StringLiterals;
using testing::HasSubstr;

GrabacionTest::GrabacionTest()
{
    database = "' all\r\n" + known("NES", "http://nes", { "N1", "N2" })
        + known("Arcade", "", { "Mame", "Fbn" }) + known("Own", "http://own", { "O1", "N1" })
        + known("Play Station", "", { "P1" }) + known("PSX", "", { "P2" }) + "[EOF]\r\n";
    notes = "' notes\r\nNES\r\n'\r\nArcade\r\n'\r\nOwn\r\n'\r\nPlay Station\r\n'\r\n[EOF]\r\nParametros "
            "especificos\r\n'"
            "\r\nfin\r\nfin,\"fin\"\r\n";
    for (const QString &game : { u"a/one.bin"_s, u"b/two.bin"_s, u"b/three.bin"_s })
        files.writeSize(game, 2048);
    files.makeDirectory(u"games/Asteroids"_s);
    files.writeGif(u"red/ONE.GIF"_s, Qt::red);
    files.writeGif(u"blue/ONE.GIF"_s, Qt::blue);
}

QByteArray GrabacionTest::known(
    const QByteArray &name, const QByteArray &web, const QList<QByteArray> &emulators)
{
    QByteArray block = '-' + name + "\r\nWEB1=" + web + "\r\n*.BIN\r\n*.ZIP\r\n'\r\n";
    for (const QByteArray &emulator : emulators)
        block += '+' + emulator + "\r\nWEB2=http://" + emulator.toLower() + "\r\n";
    return block + Closing;
}

QByteArray GrabacionTest::emulator(const QByteArray &name, const Block &block)
{
    return "+" + name + "\r\nWEB2=http://" + name.toLower() + "\r\nEXE=" + block.exe + "\r\nXDI=" + block.type
        + "\r\nROM=" + block.roms + "\r\nIMG=" + block.captures + "\r\nPAR1=" + block.before
        + "\r\nPAR2=" + block.behind + "\r\n";
}

QByteArray GrabacionTest::configured(const QByteArray &name, const QByteArray &web, const QByteArray &blocks)
{
    return '-' + name + "\r\nWEB1=" + web + "\r\n*.BIN\r\n*.ZIP\r\n'\r\n" + blocks + Closing;
}

QByteArray GrabacionTest::manyConfigured(int number)
{
    QByteArray systems;
    for (int s = 0; s < number; ++s)
        systems += configured("S" + QByteArray::number(s).rightJustified(3, '0'), "", emulator("E", {}));
    return systems;
}

void GrabacionTest::withNes(const Block &block)
{
    catalogue = Top + configured("NES", "http://nes", emulator("N1", block)) + End;
    begin();
}

void GrabacionTest::mark(const forms::Form &form, int number)
{
    click(controlOf<forms::CheckBox>(form, u"Check%1"_s.arg(number)));
}

void GrabacionTest::save(const forms::Form &form)
{
    click(controlOf<QWidget>(form, u"Disco1"_s));
}

void GrabacionTest::writeMinimum(forms::Form &form, const QString &roms)
{
    write(form, u"Casilla1"_s, u"/bin/emu"_s);
    write(form, u"Casilla2"_s, roms);
}

void GrabacionTest::saveWell(forms::Form &form)
{
    atNotice(u"Msg_CFGGrabada"_s);
    save(form);
    EXPECT_FALSE(form.isVisible());
}

void GrabacionTest::saveWithoutGames(forms::Form &form)
{
    atWarning(u"Msg_NingunaROM"_s);
    save(form);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(info(), u"TXT_NingunaROM"_s);
}

void GrabacionTest::expectRefused(forms::Form &form, const QString &message)
{
    atWarning(message);
    save(form);
    EXPECT_TRUE(form.isVisible());
    expectFilesUnchanged();
}

void GrabacionTest::expectEnd(const forms::Form &form, const char *number)
{
    const std::optional<ProcessEnd> end = endOf([&form] { save(form); });
    ASSERT_TRUE(end);
    EXPECT_THAT(end->text.toStdString(), HasSubstr(number));
}

void GrabacionTest::showRed()
{
    QPixmap red(4, 4);
    red.fill(Qt::red);
    control<forms::Image>(u"Graf_Imagen"_s).SetPicture(red);
    controlOf<forms::Image>(portada->Aumento, u"Imagen"_s).SetPicture(red);
}
