#include "companion/exportacion.h"

#include "companion/cambio.h"
#include "companion/diferencia.h"
#include "companion/documento.h"
#include "companion/mundo.h"

#include "core/lista.h"

#include "host/failure.h"
#include "host/paths.h"
#include "host/replacement.h"

#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// Of one directory, in which the document lies, the files go by their names, so that it may move with them;
// else by their paths.
struct Forma {
    bool pegasus = false;
    bool porNombre = false;
};

// As the disk spells it, without a closing separator but for the root.
QString directorioDe(const core::Modulo &M, const Pareja &pareja)
{
    return host::directoryPath(DirectorioDeJuegos(M, pareja));
}

// Whether they go by their names.
bool porNombre(const Sesion &sesion, const std::vector<Pareja> &parejas)
{
    try {
        const QString primero = directorioDe(sesion.M, parejas.front());
        if (sesion.Tiene(u"to"_s)) {
            const QString destino = sesion.Valor(u"to"_s);
            const QString lugar = destino.first(host::lastSeparator(destino) + 1);
            if (host::directoryPath(lugar.isEmpty() ? u"."_s : lugar) != primero)
                return false;
        }
        return std::ranges::all_of(
            parejas, [&](const Pareja &pareja) { return directorioDe(sesion.M, pareja) == primero; });
    } catch (const host::Failure &) {
        return false;
    }
}

Entrega entregaDe(Sesion &sesion, const Pareja &pareja, const Forma &forma)
{
    // An entry may begin with a hyphen.
    Entrega entrega { u"%1 (%2)"_s.arg(pareja.nombreSistema, pareja.nombreEmulador),
        { host::programFile(u"zembro"_s), u"play"_s, u"--directory"_s, host::programDirectory(), u"--"_s,
            pareja.nombreSistema, pareja.nombreEmulador },
        {} };
    const Listado listado = Lista(sesion, pareja);
    const QString directorio = host::withClosingSeparator(directorioDe(sesion.M, pareja));
    const QString delante = !forma.porNombre ? directorio : forma.pegasus ? QString() : u"./"_s;
    const LectorDeJuegos lector(sesion.M, pareja);
    for (const QString &entrada : listado.recuento.entradas) {
        const Juego juego = lector.De(entrada);
        entrega.juegos.push_back(
            { juego.fichero.isEmpty() ? QString() : delante + juego.fichero, entrada, juego.captura });
    }
    return entrega;
}

std::vector<Entrega> entregasDe(Sesion &sesion, const std::vector<Pareja> &parejas, bool &todas)
{
    const Forma forma { sesion.Tiene(u"pegasus"_s), porNombre(sesion, parejas) };
    std::vector<Entrega> entregas;
    for (const Pareja &pareja : parejas) {
        try {
            entregas.push_back(entregaDe(sesion, pareja, forma));
        } catch (const host::Failure &fallo) {
            todas = false;
            sesion.Avisa(u"[%1 / %2]  %3"_s.arg(
                pareja.nombreSistema, pareja.nombreEmulador, TextoDe(fallo, sesion.palabras)));
        }
    }
    return entregas;
}

// Games that the document leaves out.
QStringList omitidos(const std::vector<Entrega> &entregas, bool (*cabe)(const QString &))
{
    QStringList nombres;
    for (const Entrega &entrega : entregas) {
        for (const Entregado &juego : entrega.juegos) {
            if (!cabe(juego.fichero) || !cabe(juego.titulo))
                nombres += juego.titulo;
        }
    }
    return nombres;
}

// Whether nothing stands there, or a list of the same kind, which may be written anew.
bool puedeIr(const QString &ruta, bool pegasus)
{
    if (!host::exists(ruta))
        return true;
    constexpr qint64 principio = 4096;
    const QString antes = host::decodeText(host::readBytes(ruta, principio)).text;
    return antes.isEmpty() || (pegasus ? antes.startsWith(u"collection:") : antes.contains(u"<gameList"));
}

// The file that --to names: the difference, or the file itself with --write. True if it stands as it should.
bool entrega(const Sesion &sesion, const QString &texto, QJsonObject &objeto)
{
    const QString ruta = sesion.Valor(u"to"_s);
    const bool escribe = sesion.Tiene(u"write"_s);
    QString antes = host::exists(ruta) ? host::decodeText(host::readBytes(ruta)).text : QString();
    if (escribe) {
        host::Replacement nuevo(ruta, u".zembro.tmp"_s);
        nuevo.read();
        nuevo.write(texto.toUtf8());
        nuevo.commit();
    }
    const QStringList diferencia = Diferencia(ruta, antes, texto);
    objeto[u"file"_s] = ruta;
    objeto[u"changed"_s] = antes != texto;
    objeto[u"written"_s] = escribe;
    objeto[u"diff"_s] = QJsonArray::fromStringList(diferencia);
    if (!sesion.EnJson())
        sesion.Escribe(escribe ? QStringList { sesion.palabras.Zbo_Escrito.arg(ruta) } : diferencia);
    return escribe || antes == texto;
}

int exporta(Sesion &sesion)
{
    if (sesion.Tiene(u"write"_s) && sesion.Valor(u"to"_s).isEmpty())
        return sesion.Falla(sesion.palabras.Zbo_WriteTo);
    const bool pegasus = sesion.Tiene(u"pegasus"_s);
    if (sesion.Tiene(u"to"_s) && !puedeIr(sesion.Valor(u"to"_s), pegasus))
        return sesion.Falla(sesion.palabras.Zbo_NoEsLista.arg(sesion.Valor(u"to"_s)));
    LeeMundo(sesion);
    const std::vector<Pareja> parejas = ParejasDelSistema(sesion, sesion.Argumento(0), sesion.Argumento(1));
    if (parejas.empty())
        return NoPudo;
    bool bien = true;
    const std::vector<Entrega> entregas = entregasDe(sesion, parejas, bien);
    const QString texto = pegasus ? Pegasus(entregas) : Gamelist(entregas);
    const QStringList fuera = omitidos(entregas, pegasus ? CabeEnPegasus : CabeEnXml);
    QJsonObject objeto { { u"format"_s, pegasus ? u"pegasus"_s : u"gamelist"_s },
        { u"omitted"_s, QJsonArray::fromStringList(fuera) } };
    if (sesion.Tiene(u"to"_s))
        bien = entrega(sesion, texto, objeto) && bien;
    else
        objeto[u"text"_s] = texto;
    if (sesion.EnJson())
        sesion.Json(objeto);
    else if (!sesion.Tiene(u"to"_s))
        sesion.EscribeDocumento(texto);
    for (const QString &nombre : fuera)
        sesion.Avisa(nombre + u": "_s + sesion.palabras.Zbo_NoExporta);
    return bien && fuera.isEmpty() ? Bien : Hallazgos;
}

} // namespace

const Orden &OrdenExportar()
{
    static const Orden orden { u"export"_s, u"SYSTEM [EMULATOR]"_s, &Palabras::Zbo_Export,
        { { u"pegasus"_s, {}, &Palabras::Zbo_OpPegasus }, { u"to"_s, u"FILE"_s, &Palabras::Zbo_OpTo },
            OpcionWrite() },
        exporta };
    return orden;
}

} // namespace companion
