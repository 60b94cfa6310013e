// What the list is made of: the entries of a ROM directory, the filters, the extensions.
#include "directoriodeprograma.h"

#include "core/lista.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class Exploracion : public DirectorioDePrograma {
protected:
    int Explora(int tipo) { return core::ExploraDirectorio(M, tipo, Ruta(u"roms/"_s)); }

    QStringList Nombrados(int cuantos) const
    {
        QStringList nombres;
        for (int i = 0; i < cuantos; ++i)
            nombres += M.Arch_Nombre(i) + u'|' + M.Arch_Mayus(i);
        return nombres;
    }

    void PonFiltros(const QStringList &filtros)
    {
        for (int i = 0; i < filtros.size(); ++i)
            M.Filtros(i) = filtros[i];
    }

    void PonExtensiones(const QStringList &extensiones)
    {
        for (int i = 0; i < extensiones.size(); ++i)
            M.ExtActivas(i) = extensiones[i];
        m_extensiones = static_cast<int>(extensiones.size());
    }

    int Veces(const QString &nombre) const
    {
        return core::ExtensionesEnVigor(M, m_extensiones).VecesQueEncaja(nombre);
    }

    int m_extensiones = 0;
};

} // namespace

TEST(Tipos, TellHowTheGamesLie)
{
    struct {
        int tipo;
        bool directorio, suelto, zip, soloEmulador;
    } const casos[] = { { 0, false, true, false, false }, { 1, true, false, false, false },
        { 2, false, false, true, false }, { 3, false, false, true, false }, { 4, false, false, false, false },
        { 5, false, true, false, true }, { 6, true, false, false, true }, { 7, false, false, true, true },
        { 8, false, false, true, true }, { 9, false, false, false, false },
        { -1, false, false, false, false } };
    for (const auto &caso : casos) {
        EXPECT_EQ(core::UnDirectorioPorJuego(caso.tipo), caso.directorio) << caso.tipo;
        EXPECT_EQ(core::FicherosSueltos(caso.tipo), caso.suelto) << caso.tipo;
        EXPECT_EQ(core::UnZipPorJuego(caso.tipo), caso.zip) << caso.tipo;
        EXPECT_EQ(core::CargaSoloElEmulador(caso.tipo), caso.soloEmulador) << caso.tipo;
    }
}

TEST_F(Exploracion, FilesAreTakenAsTheDiskSpellsThem_SortedByNameWithoutRegardToCase)
{
    for (const QString &nombre :
        { u"b.BIN"_s, u"Árbol.zip"_s, u"a.bin"_s, u"_c.bin"_s, u"C.bin"_s, u"no point"_s })
        Pon(u"roms/"_s + nombre, "x");
    PonDirectorio(u"roms/DIR"_s);
    Pon(u"roms/.hidden.bin"_s, "x");
    for (const int tipo : { 0, 5, 2, 3, 7, 8, 4, -1 }) {
        EXPECT_EQ(Explora(tipo), 6) << tipo;
        EXPECT_EQ(Nombrados(6),
            (QStringList { u"a.bin|A.BIN"_s, u"b.BIN|B.BIN"_s, u"C.bin|C.BIN"_s, u"no point|NO POINT"_s,
                u"_c.bin|_C.BIN"_s, u"Árbol.zip|ÁRBOL.ZIP"_s }))
            << tipo;
    }
}

TEST_F(Exploracion, SubDirectoriesAreTakenInUpperCase_ForADirectoryAGame)
{
    for (const QString &nombre : { u"beta"_s, u"Alpha"_s, u"GAMMA.x"_s })
        PonDirectorio(u"roms/"_s + nombre);
    Pon(u"roms/file.bin"_s, "x");
    for (const int tipo : { 1, 6 }) {
        EXPECT_EQ(Explora(tipo), 3) << tipo;
        EXPECT_EQ(Nombrados(3), (QStringList { u"ALPHA|ALPHA"_s, u"BETA|BETA"_s, u"GAMMA.X|GAMMA.X"_s }))
            << tipo;
    }
}

TEST_F(Exploracion, LinksCountAsWhatTheyLeadTo)
{
    Pon(u"roms/a.bin"_s, "x");
    PonDirectorio(u"roms/dir"_s);
    ASSERT_TRUE(QFile::link(Ruta(u"roms/a.bin"_s), Ruta(u"roms/link.bin"_s)));
    ASSERT_TRUE(QFile::link(Ruta(u"roms/dir"_s), Ruta(u"roms/linked"_s)));
    ASSERT_TRUE(QFile::link(Ruta(u"roms/none"_s), Ruta(u"roms/broken.bin"_s)));
    EXPECT_EQ(Explora(0), 2);
    EXPECT_EQ(Nombrados(2), (QStringList { u"a.bin|A.BIN"_s, u"link.bin|LINK.BIN"_s }));
    EXPECT_EQ(Explora(1), 2);
    EXPECT_EQ(Nombrados(2), (QStringList { u"DIR|DIR"_s, u"LINKED|LINKED"_s }));
}

TEST_F(Exploracion, ADirectoryThatAFilterNamesLeavesItsEntryEmpty)
{
    PonFiltros({ u"ROMS"_s, u"SNAP"_s });
    for (const QString &nombre : { u"game"_s, u"roms"_s, u"Snap"_s, u"snaps"_s })
        PonDirectorio(u"roms/"_s + nombre);
    EXPECT_EQ(Explora(1), 4);
    EXPECT_EQ(Nombrados(4), (QStringList { u"GAME|GAME"_s, u"|"_s, u"|"_s, u"SNAPS|SNAPS"_s }));
}

TEST_F(Exploracion, ADroppedDirectoryLeavesNoOldEntry)
{
    for (const QString &nombre : { u"game"_s, u"roms"_s })
        PonDirectorio(u"roms/"_s + nombre);
    EXPECT_EQ(Explora(1), 2);
    PonFiltros({ u"ROMS"_s });
    EXPECT_EQ(Explora(1), 2);
    EXPECT_EQ(Nombrados(2), (QStringList { u"GAME|GAME"_s, u"|"_s }));
}

TEST_F(Exploracion, FiltersAreComparedAsStoredWithTheUpperCasedName)
{
    PonFiltros({ u"roms"_s, u" SNAP"_s });
    PonDirectorio(u"roms/roms"_s);
    PonDirectorio(u"roms/SNAP"_s);
    Explora(1);
    EXPECT_EQ(Nombrados(2), (QStringList { u"ROMS|ROMS"_s, u"SNAP|SNAP"_s }));
}

TEST_F(Exploracion, FiltersBehindAnEmptyOneAreNotLookedAt)
{
    PonFiltros({ u"ROMS"_s, QString(), u"SNAP"_s });
    PonDirectorio(u"roms/SNAP"_s);
    Explora(1);
    EXPECT_EQ(Nombrados(1), QStringList { u"SNAP|SNAP"_s });
}

TEST_F(Exploracion, WithTwentySixFiltersEveryDirectoryIsDropped)
{
    PonDirectorio(u"roms/game"_s);
    QStringList filtros;
    for (int i = 0; i < 25; ++i)
        filtros += u"F%1"_s.arg(i);
    PonFiltros(filtros);
    EXPECT_EQ(Explora(1), 1);
    EXPECT_EQ(Nombrados(1), QStringList { u"GAME|GAME"_s });
    PonFiltros(filtros << u"F25"_s);
    EXPECT_EQ(Explora(1), 1);
    EXPECT_EQ(Nombrados(1), QStringList { u"|"_s });
}

TEST_F(Exploracion, FiltersDoNotTouchFiles)
{
    PonFiltros({ u"ROMS"_s });
    Pon(u"roms/ROMS"_s, "x");
    EXPECT_EQ(Explora(0), 1);
    EXPECT_EQ(Nombrados(1), QStringList { u"ROMS|ROMS"_s });
}

TEST_F(Exploracion, FailsAsAPathNotFound_ForADirectoryThatIsEmptyTextOrMissingOrNone)
{
    Pon(u"file"_s, "x");
    for (const int tipo : { 0, 1, 3, 4 }) {
        for (const QString &directorio : { QString(), Ruta(u"none/"_s), Ruta(u"file/"_s), Ruta(u"file"_s) }) {
            EXPECT_EQ(
                NumeroDeFallo([&] { core::ExploraDirectorio(M, tipo, directorio); }), host::PathNotFound)
                << tipo << directorio.toStdString();
        }
    }
}

TEST_F(Exploracion, DirectoryIsFoundInAnyCaseAndWithEitherSeparator)
{
    Pon(u"roms/Sub/a.bin"_s, "x");
    for (const QString &directorio : { Ruta(u"ROMS/sub/"_s), Ruta(u"roms\\Sub\\"_s), Ruta(u"roms/Sub"_s) })
        EXPECT_EQ(core::ExploraDirectorio(M, 0, directorio), 1) << directorio.toStdString();
}

TEST_F(Exploracion, TakesSixThousandSixHundredSixtySevenFiles_AndFailsAsOutOfRangeAtOneMore)
{
    for (int i = 0; i < 6667; ++i)
        Pon(u"roms/%1"_s.arg(i, 4, 10, QChar(u'0')), "");
    EXPECT_EQ(Explora(0), 6667);
    EXPECT_EQ(M.Arch_Nombre(6666), u"6666");
    Pon(u"roms/9999"_s, "");
    EXPECT_EQ(NumeroDeFallo([this] { Explora(0); }), host::OutOfRange);
}

TEST_F(Exploracion, ExtensionsAreThoseOfTheSystemUpToTheFirstEmptyLine)
{
    M.Cat_EXT(3, 0) = u"*.BIN"_s;
    M.Cat_EXT(3, 1) = u"*."_s;
    M.Cat_EXT(3, 2) = u"*.zip "_s;
    M.Cat_EXT(3, 4) = u"*.LATE"_s;
    EXPECT_EQ(core::CargaExtensiones(M, 3), 3);
    EXPECT_EQ(M.ExtActivas(0), u"BIN");
    EXPECT_EQ(M.ExtActivas(1), QString());
    EXPECT_EQ(M.ExtActivas(2), u"zip ");
    EXPECT_EQ(core::CargaExtensiones(M, 4), 0);
}

struct Encaje {
    QString nombre;
    QStringList extensiones;
    int veces;
};

void PrintTo(const Encaje &caso, std::ostream *salida)
{
    *salida << caso.nombre.toStdString() << " / " << caso.extensiones.join(u',').toStdString();
}

class VecesQueEncaja : public Exploracion, public testing::WithParamInterface<Encaje> { };

TEST_P(VecesQueEncaja, CountsTheExtensionsThatEqualTheLastOneTwoOrThreeCharacters)
{
    PonExtensiones(GetParam().extensiones);
    EXPECT_EQ(Veces(GetParam().nombre), GetParam().veces);
}

INSTANTIATE_TEST_SUITE_P(Nombres, VecesQueEncaja,
    testing::Values(Encaje { u"ROM.BIN"_s, { u"BIN"_s }, 1 }, Encaje { u"ROM.BIN"_s, { u"ZIP"_s }, 0 },
        // The point is no part of the test.
        Encaje { u"ROM.BIN"_s, { u"N"_s }, 1 }, Encaje { u"ROM.BIN"_s, { u"IN"_s }, 1 },
        Encaje { u"ROMBIN"_s, { u"BIN"_s }, 1 }, Encaje { u"ROM.BIN"_s, { u".BI"_s }, 0 },
        // Two that fit count twice.
        Encaje { u"ROM.ZIP"_s, { u"ZIP"_s, u"IP"_s }, 2 }, Encaje { u"ROM.ZIP"_s, { u"ZIP"_s, u"ZIP"_s }, 2 },
        // More than three characters, lower case, blanks and nothing never fit.
        Encaje { u"ROM.JPEG"_s, { u"JPEG"_s }, 0 }, Encaje { u"ROM.JPEG"_s, { u"PEG"_s }, 1 },
        Encaje { u"ROM.BIN"_s, { u"bin"_s }, 0 }, Encaje { u"ROM.BIN"_s, { u"BIN "_s }, 0 },
        Encaje { u"ROM.BIN"_s, { QString() }, 0 }, Encaje { u"ROM.BIN"_s, {}, 0 },
        // Names shorter than an extension.
        Encaje { u"N"_s, { u"N"_s }, 1 }, Encaje { u"N"_s, { u"BIN"_s }, 0 },
        Encaje { u"AB"_s, { u"AB"_s }, 1 },
        // An extension once, though its one character is also the last of two.
        Encaje { u"XX"_s, { u"X"_s }, 1 }));

TEST_F(Exploracion, ExtensionsLeftFromALongerListAreNotLookedAt)
{
    PonExtensiones({ u"BIN"_s, u"ZIP"_s });
    PonExtensiones({ u"BIN"_s });
    EXPECT_EQ(Veces(u"ROM.ZIP"_s), 0);
}
