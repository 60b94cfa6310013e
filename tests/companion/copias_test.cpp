// zembro save, zembro restore.
#include "mesadepruebas.h"

#include "companion/copias.h"

#include "host/replacement.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>

#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using companion::NombreDeCopia;
using companion::SonIguales;

namespace {

class Save : public MesaConJuegos {
protected:
    Save() { Pon(u"Zembro.sye"_s, "-Sis\r\n'------\r\n[EOF]\r\n"); }

    QStringList Copias() const
    {
        return QDir(Ruta(u"copias"_s))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }

    QString Guarda() const { return Json({ u"save"_s })[u"copy"_s].toString(); }
};

// A disk that takes no more of the one file that is larger.
class SinSitio {
public:
    explicit SinSitio(rlim_t bytes)
    {
        signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_antes);
        const rlimit poco { bytes, m_antes.rlim_max };
        setrlimit(RLIMIT_FSIZE, &poco);
    }
    ~SinSitio()
    {
        setrlimit(RLIMIT_FSIZE, &m_antes);
        signal(SIGXFSZ, SIG_DFL);
    }
    SinSitio(const SinSitio &) = delete;
    SinSitio &operator=(const SinSitio &) = delete;

private:
    rlimit m_antes {};
};

} // namespace

TEST(NombreDeCopia, StandsBehindTheNewest_AlsoWhereTheClockWentBack)
{
    EXPECT_EQ(NombreDeCopia(u"2026-01-31_12-00-00"_s, {}), u"2026-01-31_12-00-00"_s);
    EXPECT_EQ(NombreDeCopia(u"2026-01-31_12-00-00"_s, u"2026-01-31_11-59-59"_s), u"2026-01-31_12-00-00"_s);
    EXPECT_EQ(NombreDeCopia(u"2026-01-31_12-00-00"_s, u"2026-01-31_12-00-00"_s), u"2026-01-31_12-00-01"_s);
    EXPECT_EQ(NombreDeCopia(u"2026-01-31_12-00-00"_s, u"2027-12-31_23-59-59"_s), u"2028-01-01_00-00-00"_s);
}

TEST(SonIguales, WhatWasSelectedLastMakesNoDifference)
{
    const auto ajustes = [](const QByteArray &bytes) {
        return companion::Ficheros { { u"Zembro.cfg"_s, bytes } };
    };
    EXPECT_TRUE(SonIguales(ajustes("a\r\nLastSisUsed = 1\r\nLastEmuUsed = 22\r\nb\r\n"),
        ajustes("a\r\nLastSisUsed = 33\r\nLastEmuUsed = 4\r\nb\r\n")));
    EXPECT_FALSE(SonIguales(ajustes("a\r\nLastSisUsed = 1\r\n"), ajustes("b\r\nLastSisUsed = 1\r\n")));
    EXPECT_FALSE(SonIguales(ajustes("LastSisUsed = 1\r\n"), ajustes("LastEmuUsed = 1\r\n")));
    EXPECT_FALSE(SonIguales(ajustes("a"), {}));
    EXPECT_FALSE(SonIguales(
        { { u"Zembro.emu"_s, "LastSisUsed = 1\r\n" } }, { { u"Zembro.emu"_s, "LastSisUsed = 2\r\n" } }));
}

TEST_F(Save, KeepsTheBytesOfTheTextFiles_AndChangesNone)
{
    Pon(u"Zembro.rom"_s, BytesSinOrden());
    const QString copia = Guarda();
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), BytesSinOrden());
    for (const QString &nombre : { u"Zembro.cfg"_s, u"Zembro.emu"_s, u"Zembro.rom"_s, u"Zembro.sye"_s })
        EXPECT_EQ(Bytes(u"copias/"_s + copia + u'/' + nombre), Bytes(nombre));
    EXPECT_EQ(QDir(Ruta(u"copias/"_s + copia))
                  .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                  .size(),
        4);
    EXPECT_EQ(Copias(), QStringList({ copia }));
}

TEST_F(Save, KeepsTheDrivesToo_AndACopyWithoutThemLeavesThoseThatAreThere)
{
    const QString sinEllas = Guarda();
    Pon(u"Zembro.uni"_s, "C=.\r\n");
    const QString conEllas = Guarda();
    EXPECT_GT(conEllas, sinEllas);
    EXPECT_EQ(Bytes(u"copias/"_s + conEllas + u"/Zembro.uni"_s), "C=.\r\n");
    const QByteArray emu = Bytes(u"Zembro.emu"_s);
    Pon(u"Zembro.uni"_s, "C=roms\r\n");
    Pon(u"Zembro.emu"_s, emu + "' \r\n");
    EXPECT_EQ(Zembro({ u"restore"_s, sinEllas, u"--write"_s }).estado, companion::Bien);
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), emu);
    EXPECT_EQ(Bytes(u"Zembro.uni"_s), "C=roms\r\n");
    EXPECT_EQ(Zembro({ u"restore"_s, conEllas, u"--write"_s }).estado, companion::Bien);
    EXPECT_EQ(Bytes(u"Zembro.uni"_s), "C=.\r\n");
    Borra(u"Zembro.uni"_s);
    EXPECT_EQ(Zembro({ u"restore"_s, conEllas, u"--write"_s }).estado, companion::Bien);
    EXPECT_EQ(Bytes(u"Zembro.uni"_s), "C=.\r\n");
}

TEST_F(Save, MakesACopyWhereSomethingDiffersFromTheNewest)
{
    const QString primera = Guarda();
    EXPECT_EQ(Guarda(), primera);
    EXPECT_EQ(Zembro({ u"save"_s }).salida, "Nothing has changed since the copy " + primera.toUtf8() + ".\n");
    const QByteArray antes = Bytes(u"Zembro.emu"_s);
    Pon(u"Zembro.emu"_s, antes + "' \r\n");
    const QString segunda = Guarda();
    EXPECT_GT(segunda, primera);
    Pon(u"Zembro.emu"_s, antes);
    EXPECT_GT(Guarda(), segunda);
    EXPECT_EQ(Copias().size(), 3);
}

TEST_F(Save, WhatAWriterThatWasKilledHasLeftIsNoHindrance)
{
    Pon(u"copias/.a-medias/Zembro.emu"_s, "half");
    Pon(u"copias/.a-medias/Zembro.tmp"_s, "half a file");
    const QString copia = Guarda();
    EXPECT_EQ(Copias(), QStringList({ copia }));
    EXPECT_FALSE(QFile::exists(Ruta(u"copias/"_s + copia + u"/Zembro.tmp"_s)));
}

TEST_F(Save, RestoreTellsWhereEndsOfLinesOrTheEncodingAloneDiffer)
{
    Guarda();
    const QByteArray antes = Bytes(u"Zembro.sye"_s);
    Pon(u"Zembro.sye"_s, QByteArray(antes).replace("\r\n", "\n"));
    EXPECT_TRUE(Zembro({ u"restore"_s }).salida.contains("\n--Sis\n"))
        << Zembro({ u"restore"_s }).salida.toStdString();
    EXPECT_TRUE(Zembro({ u"restore"_s }).salida.contains("\n+-Sis\\x0D\n"));
    Pon(u"Zembro.sye"_s, "\xEF\xBB\xBF" + antes);
    EXPECT_TRUE(Zembro({ u"restore"_s })
                    .salida.startsWith("Zembro.sye: Only the ends of lines or the encoding differ.\n"))
        << Zembro({ u"restore"_s }).salida.toStdString();
}

TEST_F(Save, KeepsTheLastTwenty_AndWhatIsNoneOfThem)
{
    for (int i = 0; i < 25; ++i)
        Pon(u"copias/2020-01-01_00-00-%1/Zembro.emu"_s.arg(i, 2, 10, QChar(u'0')), QByteArray::number(i));
    Pon(u"copias/2020-01-01_00-00-03/mine.txt"_s, "mine");
    Pon(u"copias/2019-13-01_00-00-00/Zembro.emu"_s, "no date");
    Pon(u"copias/notes/Zembro.emu"_s, "mine");
    const QString copia = Guarda();
    QStringList quedan { u"2019-13-01_00-00-00"_s, u"2020-01-01_00-00-03"_s };
    for (int i = 6; i < 25; ++i)
        quedan += u"2020-01-01_00-00-%1"_s.arg(i, 2, 10, QChar(u'0'));
    EXPECT_EQ(Copias(), quedan + QStringList({ copia, u"notes"_s }));
    EXPECT_EQ(Bytes(u"copias/2020-01-01_00-00-03/mine.txt"_s), "mine");
    EXPECT_EQ(Bytes(u"copias/notes/Zembro.emu"_s), "mine");
}

TEST_F(Save, WhatAKilledRunLeftHalfwayIsNoCopy)
{
    Pon(u"copias/.a-medias/Zembro.emu"_s, "half");
    const QString copia = Guarda();
    EXPECT_EQ(Copias(), QStringList({ copia }));
    EXPECT_EQ(Bytes(u"copias/"_s + copia + u"/Zembro.emu"_s), Bytes(u"Zembro.emu"_s));
}

TEST_F(Save, OfADirectoryThatCannotBeWrittenItSaysSo)
{
    if (geteuid() == 0)
        Pon(u"copias"_s, "a file in its place");
    else
        chmod(Ruta(QString()).toUtf8().constData(), 0500);
    const Respuesta respuesta = Zembro({ u"save"_s });
    chmod(Ruta(QString()).toUtf8().constData(), 0700);
    EXPECT_EQ(respuesta.estado, companion::NoPudo);
    EXPECT_FALSE(respuesta.error.isEmpty());
}

TEST_F(Save, RestoreShowsWhatItWouldBringBack_AndChangesNothing)
{
    const QString copia = Guarda();
    Cambia(u"Zembro.emu"_s, "PAR1=-a", "PAR1=-b");
    const QByteArray cambiado = Bytes(u"Zembro.emu"_s);
    const Respuesta respuesta = Zembro({ u"restore"_s });
    EXPECT_EQ(respuesta.estado, companion::Hallazgos);
    EXPECT_TRUE(respuesta.salida.contains("\n-PAR1=-b\n+PAR1=-a\n")) << respuesta.salida.toStdString();
    EXPECT_TRUE(respuesta.salida.endsWith("From the copy " + copia.toUtf8() + ": --write brings it back.\n"));
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), cambiado);
    EXPECT_EQ(Copias().size(), 1);
}

TEST_F(Save, RestoreWithWriteBringsTheBytesBack_AndKeepsWhatWasThere)
{
    const QByteArray suyo = BytesSinOrden();
    Pon(u"Zembro.rom"_s, suyo);
    const QString copia = Guarda();
    const QByteArray otro = "Sis\r\n'\r\n";
    Pon(u"Zembro.rom"_s, otro);
    Borra(u"Zembro.sye"_s);
    const QJsonObject hecho = Json({ u"restore"_s, copia.left(15), u"--write"_s });
    EXPECT_TRUE(hecho[u"written"_s].toBool());
    EXPECT_EQ(hecho[u"files"_s].toArray().size(), 2);
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), suyo);
    EXPECT_EQ(Bytes(u"Zembro.sye"_s), Bytes(u"copias/"_s + copia + u"/Zembro.sye"_s));
    EXPECT_EQ(Bytes(u"copias/"_s + hecho[u"kept"_s].toString() + u"/Zembro.rom"_s), otro);
    // And back again.
    EXPECT_TRUE(Json({ u"restore"_s, u"--write"_s })[u"written"_s].toBool());
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), otro);
}

TEST_F(Save, RestoreThatFailsHalfwayRestoresNothing)
{
    Pon(u"Zembro.rom"_s, QByteArray(100'000, 'n'));
    const QString copia = Guarda();
    const QByteArray suyo = Bytes(u"Zembro.cfg"_s);
    Pon(u"Zembro.cfg"_s, suyo + "more\r\n");
    Borra(u"Zembro.emu"_s);
    Pon(u"Zembro.rom"_s, "Sis\r\n'\r\n");
    Pon(u"Zembro.sye"_s, "x");
    Guarda();
    const QStringList pedido { u"restore"_s, copia, u"--write"_s };
    {
        const SinSitio poco(50'000);
        const Respuesta respuesta = Zembro(pedido);
        EXPECT_EQ(respuesta.estado, companion::NoPudo);
        EXPECT_TRUE(respuesta.error.startsWith(
            "zembro: Nothing was restored, and all files are as they were. What failed: "))
            << respuesta.error.toStdString();
        EXPECT_TRUE(respuesta.error.contains("Zembro.rom")) << respuesta.error.toStdString();
        EXPECT_TRUE(
            Json(pedido, companion::NoPudo)[u"error"_s].toString().startsWith(u"Nothing was restored"));
    }
    EXPECT_EQ(Bytes(u"Zembro.cfg"_s), suyo + "more\r\n");
    EXPECT_FALSE(QFile::exists(Ruta(u"Zembro.emu"_s)));
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), "Sis\r\n'\r\n");
    EXPECT_EQ(Bytes(u"Zembro.sye"_s), "x");
    EXPECT_FALSE(QFile::exists(Ruta(u"Zembro.tmp"_s)));
    EXPECT_EQ(Zembro(pedido).estado, companion::Bien);
    EXPECT_EQ(Bytes(u"Zembro.cfg"_s), suyo);
    EXPECT_EQ(Bytes(u"Zembro.rom"_s).size(), 100'000);
}

TEST_F(Save, RestoreTellsWhichFilesCouldNotGoBack)
{
    const companion::Ficheros deCopia { { u"Zembro.cfg"_s, "old" }, { u"Zembro.rom"_s, "old" } };
    // One is too large to go back, the other is not as it was looked at.
    const companion::Ficheros actuales { { u"Zembro.cfg"_s, QByteArray(1000, 'n') },
        { u"Zembro.rom"_s, "new" } };
    Pon(u"Zembro.cfg"_s, actuales[u"Zembro.cfg"_s]);
    Pon(u"Zembro.rom"_s, "another");
    const SinSitio poco(500);
    const companion::Reposicion reposicion =
        companion::Repon({ u"Zembro.cfg"_s, u"Zembro.rom"_s }, deCopia, actuales);
    EXPECT_EQ(reposicion.repuestos, QStringList { u"Zembro.cfg"_s });
    ASSERT_TRUE(reposicion.fallo);
    EXPECT_EQ(reposicion.fallo->operation(), host::ChangedMeanwhile);
    EXPECT_EQ(Bytes(u"Zembro.cfg"_s), "old");
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), "another");
}

TEST_F(Save, RestoreOfTheOldestOfTwentyBringsItBack)
{
    Pon(u"copias/2020-01-01_00-00-00/Zembro.emu"_s, "the oldest");
    for (int i = 1; i < 20; ++i)
        Pon(u"copias/2020-01-01_00-00-%1/Zembro.emu"_s.arg(i, 2, 10, QChar(u'0')), QByteArray::number(i));
    EXPECT_TRUE(Json({ u"restore"_s, u"2020-01-01_00-00-00"_s, u"--write"_s })[u"written"_s].toBool());
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), "the oldest");
    EXPECT_EQ(Copias().size(), 20);
}

TEST_F(Save, RestoreSaysWhichCopiesThereAre_AndWhereNoneFits)
{
    EXPECT_EQ(Zembro({ u"restore"_s }).error, "zembro: There is no copy yet; save makes one.\n");
    EXPECT_EQ(Zembro({ u"restore"_s }).estado, companion::NoPudo);
    const QString copia = Guarda();
    // As save where there is nothing to save: all is as it should be.
    for (const QStringList &orden :
        { QStringList { u"restore"_s }, QStringList { u"restore"_s, u"--write"_s } }) {
        const Respuesta nada = Zembro(orden);
        EXPECT_EQ(nada.estado, companion::Bien);
        EXPECT_EQ(nada.salida, "There is no copy that differs.\n");
        const QJsonObject objeto = Json(orden);
        EXPECT_EQ(objeto[u"copy"_s].toString(u"?"_s), QString());
        EXPECT_FALSE(objeto[u"changed"_s].toBool(true));
        EXPECT_FALSE(objeto[u"written"_s].toBool(true));
    }
    EXPECT_EQ(Zembro({ u"restore"_s, u"2001"_s }).error, "zembro: No copy fits 2001.\n");
    EXPECT_EQ(Json({ u"restore"_s, copia, u"--write"_s })[u"changed"_s].toBool(), false);
    Pon(u"Zembro.sye"_s, "x");
    const QJsonArray copias = Json({ u"restore"_s, u"--list"_s })[u"copies"_s].toArray();
    ASSERT_EQ(copias.size(), 1);
    EXPECT_EQ(copias[0][u"copy"_s].toString(), copia);
    EXPECT_EQ(copias[0][u"different"_s].toArray(), QJsonArray({ u"Zembro.sye"_s }));
    EXPECT_EQ(Zembro({ u"restore"_s, u"--list"_s }).salida, copia.toUtf8() + "\tZembro.sye\n");
}
