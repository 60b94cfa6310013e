// zembro find, with the machine's programs in a directory of its own.
#include "mesadepruebas.h"

#include <QFile>
#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace {

class Find : public MesaConJuegos {
protected:
    Find()
        : m_camino(qgetenv("PATH"))
        , m_casa(qgetenv("HOME"))
    {
        qputenv("PATH", Ruta(u"bin"_s).toUtf8());
        qputenv("HOME", Ruta(u"home"_s).toUtf8()); // where Flatpak would export to
        Pon(u"Zembro.sye"_s,
            "-Jaguar\r\nWEB1=\r\n*.ZIP\r\n*.J64\r\n'\r\n+BigPEmu\r\nWEB2=\r\n'------\r\n[EOF]\r\n");
        PonGuion(u"bin/bigpemu"_s, "exit 0\n");
    }
    ~Find() override
    {
        qputenv("PATH", m_camino);
        qputenv("HOME", m_casa);
    }

private:
    QByteArray m_camino;
    QByteArray m_casa;
};

} // namespace

TEST_F(Find, ShowsWhatItWouldAdd_AndWritesItWhereItIsTold)
{
    const QByteArray antes = Bytes(u"Zembro.emu"_s);
    const Respuesta muestra = Zembro({ u"find"_s, u"--all"_s });
    EXPECT_EQ(muestra.estado, companion::Hallazgos);
    EXPECT_TRUE(muestra.salida.contains("\n+-Jaguar\n")) << muestra.salida.toStdString();
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), antes);
    EXPECT_FALSE(QFile::exists(Ruta(u"roms/Jaguar"_s)));
    const Respuesta escrito = Zembro({ u"find"_s, u"--all"_s, u"--write"_s });
    EXPECT_EQ(escrito.estado, companion::Bien);
    EXPECT_TRUE(
        escrito.salida.startsWith("Configured Jaguar: BigPEmu, " + Ruta(u"bin/bigpemu"_s).toUtf8() + '\n'));
    EXPECT_TRUE(Bytes(u"Zembro.emu"_s).contains("-Jaguar\r\n"));
    EXPECT_TRUE(QFile::exists(Ruta(u"roms/Jaguar"_s)));
    const Respuesta otra = Zembro({ u"find"_s, u"--all"_s, u"--write"_s });
    EXPECT_EQ(otra.salida, "Nothing to add: every emulator that was found is configured.\n");
}

TEST_F(Find, ShowsEveryFileThatItChanges_AndNamesWhatItMakes)
{
    const QStringList ficheros { u"Zembro.emu"_s, u"Zembro.rom"_s, u"Zembro.cfg"_s };
    QHash<QString, QByteArray> antes;
    for (const QString &fichero : ficheros)
        antes[fichero] = Bytes(fichero);
    const QByteArray muestra = Zembro({ u"find"_s, u"--all"_s }).salida;
    const QJsonObject json = Json({ u"find"_s, u"--all"_s }, companion::Hallazgos);
    QStringList hechos;
    for (const QJsonValue &uno : json[u"makes"_s].toArray()) {
        hechos += uno.toString();
        EXPECT_FALSE(QFile::exists(uno.toString())) << uno.toString().toStdString();
        EXPECT_TRUE(muestra.contains("\nWould be made: " + uno.toString().toUtf8() + '\n'));
    }
    EXPECT_TRUE(hechos.contains(Ruta(u"roms/Jaguar/"_s))) << hechos.join(u' ').toStdString();
    QStringList cambiados;
    for (const QJsonValue &uno : json[u"changes"_s].toArray()) {
        cambiados += uno[u"file"_s].toString();
        EXPECT_TRUE(muestra.contains("--- " + uno[u"file"_s].toString().toUtf8() + '\n'));
    }
    for (const QString &fichero : ficheros)
        EXPECT_EQ(Bytes(fichero), antes[fichero]);
    const QJsonObject escrito = Json({ u"find"_s, u"--all"_s, u"--write"_s });
    EXPECT_EQ(escrito[u"changes"_s], json[u"changes"_s]);
    EXPECT_EQ(escrito[u"makes"_s], json[u"makes"_s]);
    for (const QString &uno : std::as_const(hechos))
        EXPECT_TRUE(QFile::exists(uno)) << uno.toStdString();
    for (const QString &fichero : ficheros)
        EXPECT_EQ(Bytes(fichero) != antes[fichero], cambiados.contains(fichero)) << fichero.toStdString();
    EXPECT_EQ(cambiados, QStringList({ u"Zembro.emu"_s, u"Zembro.cfg"_s, u"Zembro.rom"_s }));
}

TEST_F(Find, WithoutGamesItSaysWhereToPutThem)
{
    const Respuesta respuesta = Zembro({ u"find"_s });
    EXPECT_EQ(respuesta.estado, companion::Bien);
    EXPECT_TRUE(respuesta.salida.startsWith(
        "Nothing to add. Put games into a directory of " + Ruta(u"roms,"_s).toUtf8()));
    Pon(u"roms/Jaguar/Game.j64"_s, "x");
    const QJsonObject json = Json({ u"find"_s }, companion::Hallazgos);
    EXPECT_EQ(json[u"written"_s].toBool(), false);
    EXPECT_EQ(json[u"found"_s][0][u"emulator"_s].toString(), u"BigPEmu"_s);
}
