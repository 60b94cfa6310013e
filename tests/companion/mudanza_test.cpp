// zembro move.
#include "mesadepruebas.h"

#include "companion/mudanza.h"
#include "companion/perdidos.h"

#include "host/paths.h"

#include <QDir>
#include <QJsonArray>

using namespace Qt::StringLiterals;
using companion::ConRutasMudadas;
using companion::LugaresViejos;

namespace {

class Move : public MesaConJuegos {
protected:
    // As if the directory had stood elsewhere when it was configured.
    void MudaDesde(const QByteArray &viejo) const
    {
        Pon(u"Zembro.emu"_s, Bytes(u"Zembro.emu"_s).replace(Ruta(QString()).toUtf8(), viejo));
    }
};

struct Caso {
    QString linea;
    QString viejo;
    QString mudada;
};

} // namespace

TEST(ConRutasMudadas, ChangesWholeComponentsOfTheThreeKindsOfLines)
{
    const Caso casos[] = {
        { u"EXE=/a/b/x"_s, u"/a/b"_s, u"EXE=/N/x"_s },
        { u"ROM=/a/b/"_s, u"/a/b"_s, u"ROM=/N/"_s },
        { u"IMG=/a/b"_s, u"/a/b"_s, u"IMG=/N"_s },
        { u"ROM=\\a\\b\\x y\\"_s, u"/a/b"_s, u"ROM=/N\\x y\\"_s },
        { u"ROM=/a/bc/"_s, u"/a/b"_s, u"ROM=/a/bc/"_s },
        { u"ROM=/x/a/b/"_s, u"/a/b"_s, u"ROM=/x/a/b/"_s },
        { u"ROM=/A/b/"_s, u"/a/b"_s, u"ROM=/A/b/"_s },
        { u"ROM=/a"_s, u"/a/b"_s, u"ROM=/a"_s },
        { u"ROM=/a/b/"_s, u""_s, u"ROM=/N/a/b/"_s },
        { u"ROM=a/b/"_s, u""_s, u"ROM=a/b/"_s },
        { u"ROM="_s, u"/a"_s, u"ROM="_s },
        { u"ROM=b/"_s, u"/a"_s, u"ROM=b/"_s },
        { u"ROM=b/"_s, u"/b"_s, u"ROM=b/"_s },
        { u"PAR1=/a/b/x"_s, u"/a/b"_s, u"PAR1=/a/b/x"_s },
        { u"rom=/a/b/x"_s, u"/a/b"_s, u"rom=/a/b/x"_s },
        { u"' ROM=/a/b/x"_s, u"/a/b"_s, u"' ROM=/a/b/x"_s },
        { u"WEB1=/a/b/x"_s, u"/a/b"_s, u"WEB1=/a/b/x"_s },
    };
    for (const Caso &caso : casos)
        EXPECT_EQ(ConRutasMudadas(caso.linea + u"\r\n"_s, caso.viejo, u"/N"_s, u"/here"_s),
            caso.mudada + u"\r\n"_s);
}

TEST(ConRutasMudadas, KeepsEveryEndOfLine)
{
    EXPECT_EQ(ConRutasMudadas(u"ROM=/a/\nEXE=/a/x\r\nIMG=/a"_s, u"/a"_s, u"/b"_s, u"/here"_s),
        u"ROM=/b/\nEXE=/b/x\r\nIMG=/b"_s);
}

TEST(ConRutasMudadas, NamesWhatLiesBelowTheProgramsDirectoryFromThere)
{
    const struct {
        QString linea;
        QString nuevo;
        QString mudada;
    } casos[] = {
        { u"ROM=/old/roms/x/"_s, u"/here"_s, u"ROM=roms/x/"_s },
        { u"ROM=/old/x/"_s, u"/here/roms"_s, u"ROM=roms/x/"_s },
        { u"ROM=/old\\roms\\"_s, u"/here"_s, u"ROM=roms\\"_s },
        { u"EXE=/old/x"_s, u"/heres"_s, u"EXE=/heres/x"_s },
        // The directory itself has no such name, nor has what would be read as another place.
        { u"ROM=/old/"_s, u"/here"_s, u"ROM=/here/"_s },
        { u"ROM=/old"_s, u"/here"_s, u"ROM=/here"_s },
        { u"ROM=/old/C:/x/"_s, u"/here"_s, u"ROM=/here/C:/x/"_s },
        { u"ROM=/old//x/"_s, u"/here"_s, u"ROM=/here//x/"_s },
    };
    for (const auto &caso : casos)
        EXPECT_EQ(ConRutasMudadas(caso.linea, u"/old"_s, caso.nuevo, u"/here"_s), caso.mudada);
    // Nothing goes anywhere.
    EXPECT_EQ(
        ConRutasMudadas(u"ROM=/here/roms/"_s, u"/here"_s, u"/here"_s, u"/here"_s), u"ROM=/here/roms/"_s);
}

TEST(LugaresViejos, AreWhereWhatLiesInThisDirectoryHasGoneFrom)
{
    const auto hay = [](const QStringList &rutas) {
        return [rutas](const QString &ruta) { return rutas.contains(companion::SinCierre(ruta)); };
    };
    const QString texto = u"EXE=/usr/bin/x\r\nROM=/old/z/roms/\r\nIMG=/old/z/img/\r\nROM=/other/roms/\r\n"_s;
    const QStringList aqui { u"/new/roms"_s, u"/new/img"_s, u"/usr/bin/x"_s };
    EXPECT_EQ(LugaresViejos(texto, u"/new"_s, hay(aqui)), QStringList({ u"/old/z"_s, u"/other"_s }));
    // What is still there was not moved ...
    EXPECT_EQ(LugaresViejos(texto, u"/new"_s, hay(aqui + QStringList { u"/other/roms"_s })),
        QStringList({ u"/old/z"_s }));
    // ... but copied, if a catalogue lies beside it.
    EXPECT_EQ(
        LugaresViejos(texto, u"/new"_s, hay(aqui + QStringList { u"/other/roms"_s, u"/other/Zembro.emu"_s })),
        QStringList({ u"/old/z"_s, u"/other"_s }));
    EXPECT_EQ(
        LugaresViejos(u"ROM=/new/roms/\r\nROM=roms/\r\nROM=/\r\n"_s, u"/new"_s, hay(aqui)), QStringList());
    EXPECT_EQ(LugaresViejos(u"ROM=/old/gone/\r\n"_s, u"/new"_s, hay(aqui)), QStringList());
}

TEST_F(Move, ShowsWhatItWouldChange_AndChangesNothing)
{
    const QByteArray antes = Bytes(u"Zembro.emu"_s);
    const Respuesta respuesta =
        Zembro({ u"move"_s, u"--old"_s, Ruta(u"roms"_s), u"--new"_s, Ruta(u"img"_s) + u'/' });
    EXPECT_EQ(respuesta.estado, companion::Hallazgos) << respuesta.error.toStdString();
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), antes);
    const QByteArray base = Ruta(QString()).toUtf8();
    EXPECT_TRUE(respuesta.salida.contains("--- Zembro.emu\n+++ Zembro.emu\n@@ "))
        << respuesta.salida.toStdString();
    EXPECT_TRUE(respuesta.salida.contains("\n-ROM=" + base + "roms/\n+ROM=img/\n"));
    EXPECT_EQ(respuesta.salida.count("\n-"), 1);
    EXPECT_EQ(respuesta.salida.count("\n+"), 2);
}

TEST_F(Move, WithWriteChangesTheLinesAndNothingElse)
{
    const QByteArray base = Ruta(QString()).toUtf8();
    QByteArray despues = Bytes(u"Zembro.emu"_s);
    despues.replace("ROM=" + base + "roms/", "ROM=img/");
    const QStringList nombres = Nombres();
    EXPECT_EQ(
        Zembro({ u"move"_s, u"--old"_s, Ruta(u"roms"_s), u"--new"_s, Ruta(u"img"_s), u"--write"_s }).estado,
        companion::Bien);
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), despues);
    EXPECT_EQ(Nombres(), nombres);
}

TEST_F(Move, FindsTheOldPlaceOfTheDirectory)
{
    const QByteArray bien = Bytes(u"Zembro.emu"_s).replace('=' + Ruta(QString()).toUtf8(), "=");
    MudaDesde("/where/it/was/");
    const QJsonObject oferta = Json({ u"move"_s }, companion::Hallazgos);
    EXPECT_EQ(oferta[u"old"_s].toString(), u"/where/it/was"_s);
    EXPECT_EQ(oferta[u"new"_s].toString(), host::programDirectory());
    EXPECT_FALSE(oferta[u"written"_s].toBool());
    EXPECT_GT(oferta[u"diff"_s].toArray().size(), 10);
    EXPECT_NE(Bytes(u"Zembro.emu"_s), bien);
    EXPECT_TRUE(Json({ u"move"_s, u"--write"_s })[u"written"_s].toBool());
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), bien);
    EXPECT_FALSE(Json({ u"move"_s })[u"changed"_s].toBool());
    EXPECT_EQ(Zembro({ u"move"_s }).salida, "Nothing would change.\n");
}

TEST_F(Move, LeavesAloneWhatCountsFromTheProgramsDirectory)
{
    Pon(u"Zembro.emu"_s, Bytes(u"Zembro.emu"_s).replace("=" + Ruta(QString()).toUtf8(), "="));
    const QByteArray antes = Bytes(u"Zembro.emu"_s);
    ASSERT_TRUE(antes.contains("ROM=roms/"));
    EXPECT_EQ(Zembro({ u"move"_s, u"--write"_s }).salida, "Nothing would change.\n");
    EXPECT_FALSE(Json({ u"move"_s, u"--old"_s, u"/roms"_s, u"--write"_s })[u"changed"_s].toBool());
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), antes);
}

// To where the lines lead then, not by the working directory of the command line.
TEST_F(Move, WarnsOfANewPlaceThatIsNotThere)
{
    EXPECT_EQ(Zembro({ u"move"_s, u"--old"_s, u"/x"_s, u"--new"_s, u"roms"_s }).error, "");
    EXPECT_TRUE(
        Zembro({ u"move"_s, u"--old"_s, u"/x"_s, u"--new"_s, u"no-such"_s }).error.contains("no-such"));
}

TEST_F(Move, OfSeveralOldPlacesTheUserChooses)
{
    MudaDesde("/where/it/was/");
    Cambia(u"Zembro.emu"_s, "IMG=/where/it/was/", "IMG=/somewhere/else/");
    const QByteArray antes = Bytes(u"Zembro.emu"_s);
    const Respuesta respuesta = Zembro({ u"move"_s, u"--write"_s });
    EXPECT_EQ(respuesta.estado, companion::NoPudo);
    EXPECT_TRUE(respuesta.error.endsWith(":\n    /where/it/was\n    /somewhere/else\n"))
        << respuesta.error.toStdString();
    EXPECT_EQ(Bytes(u"Zembro.emu"_s), antes);
    // Without --new it goes to this directory.
    EXPECT_TRUE(Json({ u"move"_s, u"--old"_s, u"/somewhere/else"_s, u"--write"_s })[u"written"_s].toBool());
    EXPECT_FALSE(Bytes(u"Zembro.emu"_s).contains("/somewhere/else"));
}

TEST_F(Move, RefusesWhatIsNoPath_AndSaysWhatIsNotThere)
{
    const QByteArray antes = Bytes(u"Zembro.emu"_s);
    const QList<QStringList> malos { { u"--new"_s, u"/x"_s }, { u"--old"_s, u""_s, u"--new"_s, u"/x"_s },
        { u"--old"_s, u"/x"_s, u"--new"_s, u""_s }, { u"--old"_s, u"/x"_s, u"--new"_s, u"/y\r\n-Other"_s } };
    for (const QStringList &malo : malos) {
        EXPECT_EQ(Zembro(QStringList { u"move"_s, u"--write"_s } + malo).estado, companion::NoPudo);
        EXPECT_EQ(Bytes(u"Zembro.emu"_s), antes);
    }
    EXPECT_EQ(Zembro({ u"move"_s, u"--new"_s, u"/x"_s }).error,
        "zembro: --new goes with --old: name the old place too.\n");
    EXPECT_EQ(Zembro({ u"move"_s, u"--old"_s, Ruta(u"roms"_s), u"--new"_s, u"/not/mounted yet"_s }).error,
        "zembro: There is no /not/mounted yet.\n");
}

TEST_F(Move, NamesThatTheOldCodeCannotHoldAreKept)
{
    ASSERT_TRUE(
        Zembro({ u"move"_s, u"--old"_s, Ruta(u"roms"_s), u"--new"_s, u"/日本\"',&<"_s, u"--write"_s }).estado
        == companion::Bien);
    EXPECT_TRUE(Bytes(u"Zembro.emu"_s).contains(u"\r\nROM=/日本\"',&</\r\n"_s.toUtf8()));
}

namespace {

QStringList perdidos(const QString &texto, const QStringList &estan)
{
    const auto hay = [&](const QString &ruta) {
        return std::ranges::any_of(
            estan, [&](const QString &uno) { return uno == ruta || uno.startsWith(ruta + u'/'); });
    };
    const auto directorios = [&](const QString &donde) {
        QStringList nombres;
        for (const QString &uno : estan) {
            if (uno.startsWith(donde))
                nombres += uno.sliced(donde.size()).section(u'/', 0, 0);
        }
        nombres.removeDuplicates();
        return nombres;
    };
    QStringList todos;
    for (const companion::Perdido &uno : companion::LugaresPerdidos(texto, hay, directorios))
        todos += u"%1:%2 %3 > %4"_s.arg(uno.primera).arg(uno.lineas).arg(uno.viejo, uno.nuevo);
    return todos;
}

} // namespace

TEST(LostPlaces, AreWhatSeveralLinesLeadThrough)
{
    EXPECT_EQ(perdidos(u"-S\nROM=/media/old/nes/\nIMG=/media/old/img/\nEXE=/bin/a\n"_s,
                  { u"/media/x"_s, u"/bin"_s }),
        QStringList { u"2:2 /media/old > "_s });
    EXPECT_EQ(perdidos(u"ROM=/media/old/nes/\nIMG=/media/old/img"_s,
                  { u"/media/new/nes"_s, u"/media/new/img"_s, u"/media/other/nes"_s }),
        QStringList { u"1:2 /media/old > /media/new"_s });
    EXPECT_EQ(
        perdidos(u"ROM=/media/old/nes/\nIMG=/media/old/nes"_s, { u"/media/a/nes"_s, u"/media/b/nes"_s }),
        QStringList { u"1:2 /media/old > "_s });
    // Blanks behind what is there, and behind what isn't.
    EXPECT_EQ(perdidos(u"ROM=/media/nes/ \nIMG=/media/nes \n"_s, { u"/media/nes"_s }), QStringList());
    EXPECT_EQ(perdidos(u"ROM=/media/old/ \nIMG=/media/old\n"_s, { u"/media"_s }),
        QStringList { u"1:2 /media/old > "_s });
    // One line, and a program that is mistyped.
    EXPECT_EQ(perdidos(u"ROM=/media/old/nes/\n"_s, { u"/media"_s }), QStringList());
    EXPECT_EQ(perdidos(u"EXE=/bin/aa\nEXE=/bin/aa\nEXE=/\nROM=\nROM=roms/\nROM=/\n"_s, { u"/bin"_s }),
        QStringList());
    EXPECT_EQ(perdidos(u"ROM=/a/1/\nROM=/b/2\nROM=/b/3\nIMG=/b/4\nIMG=/a/5\n"_s, {}),
        QStringList({ u"2:3 /b > "_s, u"1:2 /a > "_s }));
}

TEST_F(Move, ACollectionThatWentToAnotherDiskIsTold_WithTheCommand)
{
    const QByteArray base = Ruta(QString()).toUtf8();
    Cambia(u"Zembro.emu"_s, "ROM=" + base + "roms/", "ROM=" + base + "my disk/roms/");
    Cambia(u"Zembro.emu"_s, "ROM=" + base + "dirs/", "ROM=" + base + "my disk/dirs/");
    const QByteArray dicho = "Lines that lead to " + base
        + "my disk, which isn't there or is where this directory was before: 2. If what it holds lies "
          "elsewhere now: zembro move --old '"
        + base + "my disk' --new NEWPLACE\n";
    const Respuesta mueve = Zembro({ u"move"_s });
    EXPECT_EQ(mueve.salida, dicho);
    EXPECT_EQ(mueve.estado, companion::Hallazgos);
    EXPECT_EQ(Json({ u"move"_s }, companion::Hallazgos)[u"lost"_s][0][u"lines"_s].toInt(), 2);
    EXPECT_TRUE(Zembro({ u"check"_s }).salida.contains("Zembro.emu:8: " + dicho))
        << Zembro({ u"check"_s }).salida.toStdString();
    PonDirectorio(u"disk 2/roms"_s);
    PonDirectorio(u"disk 2/dirs"_s);
    EXPECT_TRUE(Zembro({ u"move"_s }).salida.endsWith("my disk' --new '" + base + "disk 2'\n"))
        << Zembro({ u"move"_s }).salida.toStdString();
}

TEST_F(Move, CheckLeadsToItWhereTheDirectoryItselfWasMoved)
{
    MudaDesde("/where/it/was/");
    EXPECT_TRUE(
        Zembro({ u"check"_s })
            .salida.contains("zembro move --old /where/it/was --new " + host::programDirectory().toUtf8()))
        << Zembro({ u"check"_s }).salida.toStdString();
}

TEST_F(Move, AnEmptyNameIsToldAsEmpty)
{
    EXPECT_EQ(
        Zembro({ u"move"_s, u"--old"_s, QString() }).error, "zembro: The name behind --old is empty.\n");
    EXPECT_EQ(Zembro({ u"move"_s, u"--old"_s, u"/x"_s, u"--new"_s, QString() }).error,
        "zembro: The name behind --new is empty.\n");
}
