// Reading the catalogue and the database into the tables, and what the tables answer.
#include "entrada.h"
#include "mundo.h"
#include "temas.h"

#include "core/basededatos.h"
#include "core/catalogo.h"
#include "core/configuracion.h"
#include "core/lineas.h"
#include "core/modulo.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/paths.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace pelusa {

namespace {

using Nombres = core::Tabla2<QString>;

// The rows of a table of names one after the other: the lines of the file that name something.
QStringList enUnaFila(const Nombres &tabla, int sistemas)
{
    QStringList nombres;
    for (int s = 0; s < sistemas; ++s) {
        for (int e = 0; e < core::MaxSistemas && !tabla(s, e).isEmpty(); ++e)
            nombres << tabla(s, e);
    }
    return nombres;
}

QStringList nombresEnElTexto(const QString &texto)
{
    QStringList nombres;
    for (const core::LineaConFin &linea : core::EnLineas(texto)) {
        if (linea.linea.startsWith(u'-') || linea.linea.startsWith(u'+'))
            nombres << linea.linea.toString();
    }
    return nombres;
}

// Each value is the last line of its key under its name.
void valores(const core::Modulo &M, const QString &texto)
{
    const struct {
        QLatin1StringView prefijo;
        const Nombres &tabla;
    } claves[] = { { "EXE"_L1, M.Cat_EXE }, { "XDI"_L1, M.Cat_XDI }, { "ROM"_L1, M.Cat_ROM },
        { "IMG"_L1, M.Cat_IMG }, { "PAR1"_L1, M.Cat_PAR1 }, { "PAR2"_L1, M.Cat_PAR2 },
        { "WEB2"_L1, M.Cat_WEB2 } };
    for (const auto &clave : claves) {
        int s = -1;
        int e = -1;
        QString ultimo;
        const auto compara = [&] {
            if (s >= 0)
                ExigeIgual(clave.tabla(s, e), ultimo, "a value is its last line");
            ultimo.clear();
        };
        for (const core::LineaConFin &linea : core::EnLineas(texto)) {
            if (linea.linea.startsWith(u'-') || linea.linea.startsWith(u'+')) {
                compara();
                e = linea.linea.startsWith(u'-') ? 0 : e + 1;
                s += e == 0 ? 1 : 0;
            } else if (linea.linea.startsWith(clave.prefijo)) {
                ultimo = linea.linea.toString();
            }
        }
        compara();
    }
}

// Each extension stands where the counter was, which goes back to 0 at an emulator and not at a system.
void extensiones(const Nombres &tabla, const QString &texto)
{
    QHash<int, QStringList> serian;
    int s = -1;
    int k = 0;
    for (const core::LineaConFin &linea : core::EnLineas(texto)) {
        s += linea.linea.startsWith(u'-') ? 1 : 0;
        k = linea.linea.startsWith(u'+') ? 0 : k;
        if (!linea.linea.startsWith(u"*."))
            continue;
        QStringList &fila = serian[s];
        while (fila.size() <= k)
            fila << QString();
        fila[k++] = linea.linea.toString();
    }
    for (int fila = 0; fila <= s; ++fila) {
        for (int i = 0; i < core::MaxSistemas; ++i)
            ExigeIgual(tabla(fila, i), serian.value(fila).value(i), "an extension is where it was read");
    }
}

void preguntas(core::Modulo &M)
{
    for (int s = 0; s < M.TotalSistemas; ++s) {
        const QString sistema = core::Valor(M.Cat_Nombre(s, 0), 1);
        const int total = core::TotalEmuladores(M, s);
        const core::Posiciones ninguno = core::PosicionesDe(M, sistema, {});
        Exige(ninguno.sistema >= 0 && ninguno.sistema < M.TotalSistemas, "a position is one of the list");
        for (int e = 1; e <= total; ++e) {
            const QString emulador = core::Valor(M.Cat_Nombre(s, e), 1);
            const core::Posiciones ambos = core::PosicionesDe(M, sistema, emulador);
            Exige(ambos.emulador == core::NingunEmulador || (ambos.emulador >= 0 && ambos.emulador < 150),
                "a position is one of the list", sistema, emulador);
            if (core::SituacionDe(M, sistema, emulador) == core::EmuladorYaConfigurado) {
                ExigeIgual(
                    M.Cat_Nombre(M.Indice_Sistema, 0), u'-' + sistema, "the pair is where it was found");
                ExigeIgual(M.Cat_Nombre(M.Indice_Sistema, M.Indice_Emulador), u'+' + emulador,
                    "the pair is where it was found");
            }
            Exige(core::SituacionDe(M, sistema, emulador) != core::SinSistemaConfigurado || s > 0,
                "a system of the catalogue is found", sistema);
        }
        Fallo({ host::OutOfRange }, "looking for a system", [&] { core::SistemaEnCatalogo(M, sistema); });
        core::EmuladorEnCatalogo(M, sistema);
    }
}

void catalogo(core::Modulo &M, const QByteArray &bytes)
{
    PonFichero("Zembro.emu", bytes);
    const int fallo = Fallo(
        { host::OutOfRange, host::PastEndOfFile }, "reading the catalogue", [&M] { core::LeeCatalogo(M); });
    Exige((fallo == host::PastEndOfFile) == host::decodeText(bytes).text.isEmpty(),
        "only an empty file fails so");
    if (fallo != 0)
        return;
    M.TotalSistemas = M.Indice_Sistema + 1;
    const QString texto = host::decodeText(bytes).text;
    ExigeIgual(enUnaFila(M.Cat_Nombre, M.TotalSistemas).join(u'\n'), nombresEnElTexto(texto).join(u'\n'),
        "the tables hold every name in its order");
    valores(M, texto);
    extensiones(M.Cat_EXT, texto);
    preguntas(M);
}

void baseDeDatos(core::Modulo &M, const QByteArray &bytes, const QString &sistema, const QString &emulador)
{
    PonFichero("Zembro.sye", bytes);
    M.Ficheros.closeAll();
    const int fallo = Fallo(
        { host::OutOfRange, host::PastEndOfFile }, "reading the database", [&M] { core::LeeBaseDeDatos(M); });
    M.Ficheros.closeAll();
    Fallo({ host::PastEndOfFile }, "reading addresses", [&] { core::LeeWebs(M, sistema, emulador); });
    M.Ficheros.closeAll();
    if (fallo != 0)
        return;
    const QString texto = host::decodeText(bytes).text;
    ExigeIgual(enUnaFila(M.BD_Nombre, M.BD_TotalSistemas).join(u'\n'), nombresEnElTexto(texto).join(u'\n'),
        "the tables hold every name in its order");
    for (int s = 0; s < M.BD_TotalSistemas; ++s) {
        Exige(core::SistemaEnBase(M, core::Valor(M.BD_Nombre(s, 0), 1)), "a system of the base is found");
        const int total = core::TotalEmuladoresDeBase(M, s);
        for (int e = 1; e <= total; ++e)
            Exige(core::EmuladorEnBase(M, s, core::Valor(M.BD_Nombre(s, e), 1)), "an emulator is found");
        QString oferta;
        const int sinNada = Fallo({ host::InvalidArgument }, "offering extensions",
            [&] { oferta = core::OfertaDeExtensiones(M, s); });
        Exige((sinNada != 0) == M.BD_EXT(s, 0).isEmpty(), "only a system without extensions has no offer");
        Fallo({ host::OutOfRange }, "copying extensions", [&] { core::ExtensionesDeBase(M, s); });
    }
}

} // namespace

void probarCatalogo(Bytes bytes)
{
    Entrada entrada(bytes);
    const QString sistema = entrada.Texto();
    const QString emulador = entrada.Texto();
    const QByteArray resto = entrada.Resto();
    core::Modulo M;
    catalogo(M, resto);
    M.Ficheros.closeAll();
    Fallo({ host::PastEndOfFile }, "reading an emulator", [&] { core::LeePrevios(M, emulador); });
    baseDeDatos(M, resto, sistema, emulador);
}

} // namespace pelusa
