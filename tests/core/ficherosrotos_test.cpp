// Files that no writer of the program leaves behind: empty, cut off, binary, of one endless line, unreadable.
// Each reader reads what there is, or fails by a number of its own, and leaves the file as it was.
#include "directoriodeprograma.h"

#include "core/ajustes.h"
#include "core/basededatos.h"
#include "core/catalogo.h"
#include "core/configuracion.h"
#include "core/idiomas.h"
#include "core/lista.h"
#include "core/notas.h"
#include "core/parrom.h"
#include "core/textos.h"

#include "host/paths.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr uid_t Nadie = 65534;

struct Lector {
    const char *nombre;
    QString fichero;
    QByteArray bueno;
    void (*lee)(core::Modulo &M);
};

void PrintTo(const Lector &lector, std::ostream *salida)
{
    *salida << lector.nombre;
}

void leeIdioma(core::Modulo &M)
{
    core::LectorDeTextos lector(M, [](const QString &, const QString &) {});
    M.Ficheros.openForInput(1, host::programFile(u"LNG/ZB-ESP.LNG"_s));
    do
        lector.Linea(M.Ficheros.readLine(1));
    while (!M.Ficheros.atEnd(1));
    M.Ficheros.closeAll();
}

void leeParametros(core::Modulo &M)
{
    M.Ficheros.openForInput(1, host::programFile(u"Zembro.rom"_s));
    QString texto;
    while (!M.Ficheros.atEnd(1))
        texto += M.Ficheros.readLine(1) + u'\n';
    M.Ficheros.closeAll();
    host::TextSource fuente(texto);
    core::ParametrosDe(fuente, u"A"_s);
}

const QByteArray CatalogoBueno =
    "-Console\r\nWEB1=\r\n*.BIN\r\n'\r\n+Emulator\r\nWEB2=\r\nEXE=/opt/emu\r\nXDI=0\r\nROM=/roms/\r\n"
    "IMG=\r\nPAR1=\r\nPAR2=\r\n'----\r\n[EOF]\r\n";
const QByteArray NotasBuenas =
    "Console\r\nA,\"a \xF1\"\r\n'\r\n[\r\nParametros especificos\r\nA,s,e,-a\r\n'\r\nfin\r\nfin,\"fin\"\r\n";
const QByteArray IdiomaBueno =
    "' comment\r\nTXT_Jugar.........=\"Jugar\"\r\nTXT_InfoLNG.......=\"Lng: Espa\xF1ol\"\r\n";

const Lector Lectores[] = {
    { "catalogue", u"Zembro.emu"_s, CatalogoBueno, [](core::Modulo &M) { core::LeeCatalogo(M); } },
    { "database", u"Zembro.sye"_s, CatalogoBueno,
        [](core::Modulo &M) {
            M.VerBaseDeDatos = 1;
            core::LeeCatalogo(M);
        } },
    { "choice of a system", u"Zembro.sye"_s, CatalogoBueno,
        [](core::Modulo &M) { core::LeeBaseDeDatos(M); } },
    { "addresses", u"Zembro.sye"_s, CatalogoBueno,
        [](core::Modulo &M) { core::LeeWebs(M, u"Console"_s, u"None"_s); } },
    { "old values", u"Zembro.emu"_s, CatalogoBueno,
        [](core::Modulo &M) { core::LeePrevios(M, u"Emulator"_s); } },
    { "first run", u"Zembro.cfg"_s, core::AjustesPorDefecto(u"ZB-ESP.LNG"_s).toLatin1(),
        [](core::Modulo &M) { core::EsPrimeraVez(M); } },
    { "settings", u"Zembro.cfg"_s, core::AjustesPorDefecto(u"ZB-ESP.LNG"_s).toLatin1(),
        [](core::Modulo &M) { core::LeeAjustes(M); } },
    { "language", u"LNG/ZB-ESP.LNG"_s, IdiomaBueno, leeIdioma },
    { "credit", u"LNG/ZB-ESP.LNG"_s, IdiomaBueno,
        [](core::Modulo &M) { core::CreditoDeIdioma(M, u"ZB-ESP.LNG"_s); } },
    { "notes", u"Zembro.rom"_s, NotasBuenas,
        [](core::Modulo &M) { core::CargaNotasEnMayusculas(M, u"Console"_s); } },
    { "reload", u"Zembro.rom"_s, NotasBuenas, [](core::Modulo &M) { core::RecargaNotas(M, u"Console"_s); } },
    { "parameters", u"Zembro.rom"_s, NotasBuenas, leeParametros },
};

class FicherosRotos : public DirectorioDePrograma, public testing::WithParamInterface<Lector> {
protected:
    // Reads these bytes; the number of the failure, or 0. The file has to stay the same, with nothing beside
    // it.
    int Lee(const QByteArray &bytes)
    {
        const QString &fichero = GetParam().fichero;
        Pon(fichero, bytes);
        const QStringList antes = Nombres();
        M.Ficheros.closeAll();
        const int fallo = NumeroDeFallo([this] { GetParam().lee(M); });
        EXPECT_EQ(Bytes(fichero), bytes);
        EXPECT_EQ(Nombres(), antes);
        return fallo;
    }

    // As Lee, with a bound that is far above what a reading takes.
    int LeeDePrisa(const QByteArray &bytes)
    {
        const qint64 antes = TiempoDeTrabajo();
        const int fallo = Lee(bytes);
        EXPECT_LT(TiempoDeTrabajo() - antes, 500);
        return fallo;
    }

    bool Es(const char *nombre) const { return qstrcmp(GetParam().nombre, nombre) == 0; }
    bool LeeHastaElFinal() const { return Es("credit") || Es("reload") || Es("parameters"); }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Lectores, FicherosRotos, testing::ValuesIn(Lectores));

TEST_P(FicherosRotos, AGoodFileIsRead)
{
    EXPECT_EQ(Lee(GetParam().bueno), 0);
    EXPECT_FALSE(M.Ficheros.isOpen(1));
}

TEST_P(FicherosRotos, AGoodFileOfLineFeedsIsRead)
{
    EXPECT_EQ(Lee(QByteArray(GetParam().bueno).replace("\r\n", "\n")), 0);
}

TEST_P(FicherosRotos, AGoodFileInUtf8IsRead_WithAMarkAndWithout)
{
    const QByteArray utf8 = QString::fromLatin1(GetParam().bueno).toUtf8();
    EXPECT_EQ(Lee(utf8), 0);
    EXPECT_EQ(Lee("\xEF\xBB\xBF" + utf8), 0);
}

TEST_P(FicherosRotos, AGoodFileWithAnEndMarkIsRead)
{
    EXPECT_EQ(Lee(GetParam().bueno + '\x1A'), 0);
}

TEST_P(FicherosRotos, AnEmptyFileEndsTheReadingAtItsEnd_OrIsNoFailure)
{
    for (const QByteArray &vacio : { QByteArray(), QByteArray("\x1A") }) {
        EXPECT_EQ(Lee(vacio), LeeHastaElFinal() ? 0 : host::PastEndOfFile);
        EXPECT_EQ(M.Ficheros.isOpen(1), !LeeHastaElFinal());
    }
}

TEST_P(FicherosRotos, AFileCutOffAnywhereIsRead_OrFailsAsInvalidOrAtItsEnd)
{
    const QByteArray &bueno = GetParam().bueno;
    const qsizetype paso = 1 + bueno.size() / 300;
    for (qsizetype largo = 1; largo < bueno.size(); largo += paso) {
        const int fallo = Lee(bueno.first(largo));
        EXPECT_THAT(fallo, testing::AnyOf(0, host::InvalidArgument, host::PastEndOfFile)) << largo;
        if (LeeHastaElFinal() && !Es("credit")) {
            EXPECT_EQ(fallo, 0) << largo;
        }
    }
}

TEST_P(FicherosRotos, ABinaryFileIsReadFast_OrFailsAsInvalidOutOfRangeOrAtItsEnd)
{
    const QByteArray bytes = BytesSinOrden();
    for (const QByteArray &basura : { bytes, bytes + GetParam().bueno, GetParam().bueno + bytes,
             QByteArray(20000, '\0'), QByteArray(20000, '\n'), QByteArray(20000, '\r'),
             QByteArray(20000, '"'), QByteArray(20000, ','), QByteArray(20000, '\xFF') }) {
        EXPECT_THAT(LeeDePrisa(basura),
            testing::AnyOf(0, host::InvalidArgument, host::OutOfRange, host::PastEndOfFile));
    }
}

TEST_P(FicherosRotos, ALineOfAMillionCharactersIsReadFast)
{
    const QByteArray millon(1000000, 'x');
    const QByteArray &bueno = GetParam().bueno;
    const qsizetype primera = bueno.indexOf('\n') + 1;
    for (const QByteArray &bytes : { millon, millon + "\r\n" + bueno, bueno + millon,
             bueno.first(primera) + millon + "\r\n" + bueno.sliced(primera),
             bueno.first(primera) + "*." + millon, bueno.first(primera) + "TXT_Jugar........." + millon,
             bueno.first(primera) + "A,\"" + millon + "\"\r\n'\r\n", bueno + '"' + millon,
             millon.left(500000).replace('x', "x,"), QByteArray(1000000, ' ') }) {
        EXPECT_THAT(LeeDePrisa(bytes),
            testing::AnyOf(0, host::InvalidArgument, host::OutOfRange, host::PastEndOfFile));
    }
}

TEST_P(FicherosRotos, AMissingFileIsNotFound)
{
    EXPECT_EQ(NumeroDeFallo([this] { GetParam().lee(M); }), host::FileNotFound);
    EXPECT_EQ(Nombres(), QStringList());
    EXPECT_FALSE(M.Ficheros.isOpen(1));
}

TEST_P(FicherosRotos, SomethingElseInTheFilesPlaceCannotBeRead)
{
    PonDirectorio(GetParam().fichero);
    EXPECT_EQ(NumeroDeFallo([this] { GetParam().lee(M); }), host::PathAccess);
    ASSERT_EQ(rmdir(Ruta(GetParam().fichero).toUtf8().constData()), 0);
    ASSERT_EQ(mkfifo(Ruta(GetParam().fichero).toUtf8().constData(), 0600), 0);
    EXPECT_EQ(NumeroDeFallo([this] { GetParam().lee(M); }), host::PathAccess);
    EXPECT_FALSE(M.Ficheros.isOpen(1));
}

TEST_P(FicherosRotos, AFileThatTheUserMayNotReadFails)
{
    Pon(GetParam().fichero, GetParam().bueno);
    ASSERT_EQ(chmod(Ruta(GetParam().fichero).toUtf8().constData(), 0), 0);
    ASSERT_EQ(chmod(Ruta(QString()).toUtf8().constData(), 0755), 0);
    const bool administrador = geteuid() == 0;
    ASSERT_TRUE(!administrador || seteuid(Nadie) == 0);
    const int fallo = NumeroDeFallo([this] { GetParam().lee(M); });
    ASSERT_TRUE(!administrador || seteuid(0) == 0);
    EXPECT_EQ(fallo, host::PathAccess);
    EXPECT_FALSE(M.Ficheros.isOpen(1));
}
