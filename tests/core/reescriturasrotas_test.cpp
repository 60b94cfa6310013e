// Rewrites of files that no writer of the program leaves behind: without an anchor to change anything at,
// they come out byte for byte.
#include "directoriodeprograma.h"

#include "core/ajustes.h"
#include "core/altas.h"
#include "core/bajas.h"
#include "core/notas.h"

using namespace Qt::StringLiterals;

namespace {

struct Reescritura {
    const char *nombre;
    QString (*cambio)(const QString &texto);
};

void PrintTo(const Reescritura &reescritura, std::ostream *salida)
{
    *salida << reescritura.nombre;
}

const core::Parametros Nuevos { u"A"_s, u"s"_s, u"e"_s, u"-n"_s };

const Reescritura Reescrituras[] = {
    { "setting",
        [](const QString &texto) { return core::ConAjuste(texto, core::Ajuste::MsgEndDOS, { u"n"_s }); } },
    { "last selection",
        [](const QString &texto) {
            return core::ConAjuste(texto, core::Ajuste::UltimaSeleccion, core::LineasDeUltimaSeleccion(1, 2));
        } },
    { "filters", [](const QString &texto) { return core::ConFiltros(texto, { u"F"_s }); } },
    { "new description",
        [](const QString &texto) { return core::ConDescripcionNueva(texto, u"Console"_s, u"A"_s, u"a"_s); } },
    { "changed description",
        [](const QString &texto) {
            return core::ConDescripcionCambiada(texto, u"old one"_s, u"A"_s, u"a"_s);
        } },
    { "new parameters", [](const QString &texto) { return core::ConParametrosNuevos(texto, Nuevos); } },
    { "new system of the database",
        [](const QString &texto) { return core::ConSistemaEnBase(texto, u"New"_s); } },
    { "new emulator of the database",
        [](const QString &texto) { return core::ConEmuladorEnBase(texto, u"-System"_s, u"New"_s); } },
    { "configured system",
        [](const QString &texto) {
            return core::ConSistemaConfigurado(texto, { u"New"_s, {}, {}, {} });
        } },
    { "configured emulator",
        [](const QString &texto) { return core::ConEmuladorConfigurado(texto, u"-System"_s, {}); } },
    { "changed emulator",
        [](const QString &texto) {
            return core::ConEmuladorCambiado(texto, { u"Emulator"_s, {}, {}, {}, {}, {}, {}, {} });
        } },
    { "extensions",
        [](const QString &texto) { return core::ConExtensiones(texto, u"System"_s, { u"ZIP"_s }); } },
    { "address of a system",
        [](const QString &texto) { return core::ConWebDeSistema(texto, u"System"_s, u"w"_s); } },
    { "address of an emulator",
        [](const QString &texto) {
            return core::ConWebDeEmulador(texto, u"System"_s, u"Emulator"_s, u"w"_s);
        } },
    { "removed system", [](const QString &texto) { return core::SinSistema(texto, u"System"_s); } },
    { "removed emulator of the database",
        [](const QString &texto) { return core::SinEmuladorEnBase(texto, u"System"_s, u"Emulator"_s); } },
    { "removed only emulator",
        [](const QString &texto) { return core::SinUnicoEmulador(texto, u"System"_s); } },
    { "removed emulator", [](const QString &texto) { return core::SinEmulador(texto, u"Emulator"_s); } },
    { "removed last emulator",
        [](const QString &texto) { return core::SinUltimoEmulador(texto, u"System"_s, 2); } },
    { "removed notes", [](const QString &texto) { return core::SinNotasDeSistema(texto, u"System"_s); } },
    { "new system", [](const QString &texto) { return core::ConSistemaNuevo(texto, u"New"_s); } },
};

class ReescriturasRotas : public DirectorioDePrograma, public testing::WithParamInterface<Reescritura> {
protected:
    QByteArray Reescrito(const QByteArray &bytes)
    {
        Pon(u"Zembro.rom"_s, bytes);
        const qint64 antes = TiempoDeTrabajo();
        Reescribe(u"Zembro.rom"_s, GetParam().cambio);
        EXPECT_LT(TiempoDeTrabajo() - antes, 500);
        EXPECT_EQ(Nombres(), QStringList { u"Zembro.rom"_s });
        return Bytes(u"Zembro.rom"_s);
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Reescrituras, ReescriturasRotas, testing::ValuesIn(Reescrituras));

TEST_P(ReescriturasRotas, AnEmptyFileStaysEmpty)
{
    for (const QByteArray &vacio : { QByteArray(), QByteArray("\x1A") })
        EXPECT_EQ(Reescrito(vacio), vacio);
}

TEST_P(ReescriturasRotas, ABinaryFileComesOutByteForByte)
{
    // Every byte but the bracket, at which a system would be put in.
    const QByteArray binario = BytesSinOrden().replace('[', '(');
    for (const QByteArray &bytes :
        { binario, binario + '\x1A', QByteArray(5000, '\0'), QByteArray(5000, '\n'), QByteArray(5000, '\r'),
            QByteArray(5000, '"'), QByteArray(5000, ','), QByteArray(5000, '\xFF'),
            QByteArray("\xEF\xBB\xBF"), QByteArray("\xEF\xBB\xBF\xC3\xB1\n"), QByteArray("\r\r\n\n\r") })
        EXPECT_EQ(Reescrito(bytes), bytes);
}

TEST_P(ReescriturasRotas, LinesOfAMillionCharactersComeOutByteForByteAndFast)
{
    const QByteArray millon(1000000, 'x');
    for (const QByteArray &bytes : { millon, "A,\"" + millon + "\"\n'" + millon + "\r\n", '"' + millon,
             millon + ",", QByteArray(1000000, '\n') })
        EXPECT_EQ(Reescrito(bytes), bytes);
}

TEST_F(ReescriturasRotas, AChangeOfParametersFailsAtTheEndAndFast_WithoutASection)
{
    for (const QByteArray &bytes : { BytesSinOrden(), QByteArray(1000000, '\n'), QByteArray(1000000, 'x') }) {
        Pon(u"Zembro.rom"_s, bytes);
        const qint64 antes = TiempoDeTrabajo();
        EXPECT_EQ(NumeroDeFallo([this] {
            Reescribe(u"Zembro.rom"_s,
                [](const QString &texto) { return core::ConParametrosCambiados(texto, Nuevos); });
        }),
            host::PastEndOfFile);
        EXPECT_LT(TiempoDeTrabajo() - antes, 1000);
        EXPECT_EQ(Bytes(u"Zembro.rom"_s), bytes);
        M.Ficheros.closeAll();
    }
}

TEST_F(ReescriturasRotas, ARemovalOfParametersIsFast_InAFileOfManyLinesOrSections)
{
    for (const QByteArray &bytes : { BytesSinOrden(), QByteArray(1000000, '\n'), QByteArray(1000000, 'x'),
             QByteArray("Parametros\r\n'\r\n").repeated(20000),
             "Parametros\r\n" + QByteArray(1000000, ',') }) {
        Pon(u"Zembro.rom"_s, bytes);
        const qint64 antes = TiempoDeTrabajo();
        Reescribe(u"Zembro.rom"_s,
            [](const QString &texto) { return core::SinParametrosDeSistema(texto, u"s"_s); });
        EXPECT_LT(TiempoDeTrabajo() - antes, 2000);
    }
}

TEST_F(ReescriturasRotas, AChangeOfParametersIsFast_InASectionOfManyOrLongRecords)
{
    const QByteArray cierre = "'\r\nfin\r\nfin,\"fin\"\r\n";
    for (const QByteArray &registros :
        { QByteArray("B,s,e,-b\r\n").repeated(20000), "B,s,e," + QByteArray(1000000, 'x') + "\r\n" }) {
        const QByteArray bytes = "Parametros especificos\r\n" + registros + cierre;
        Pon(u"Zembro.rom"_s, bytes);
        const qint64 antes = TiempoDeTrabajo();
        Reescribe(u"Zembro.rom"_s,
            [](const QString &texto) { return core::ConParametrosCambiados(texto, Nuevos); });
        EXPECT_LT(TiempoDeTrabajo() - antes, 1000);
        EXPECT_EQ(Bytes(u"Zembro.rom"_s), bytes);
    }
}
