#include "companion/lista.h"

#include "companion/mundo.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

QJsonObject enJson(const Juego &juego)
{
    QJsonObject objeto { { u"entry"_s, juego.entrada }, { u"described"_s, juego.descrito },
        { u"file"_s, juego.fichero }, { u"facts"_s, juego.datos } };
    if (juego.bytes)
        objeto[u"bytes"_s] = *juego.bytes;
    if (!juego.captura.isEmpty())
        objeto[u"capture"_s] = juego.captura;
    return objeto;
}

// The games of one pair, one a line: entry, file, facts, capture, with a tab between two.
int listaUna(Sesion &sesion, const Pareja &pareja, QJsonArray &parejas)
{
    QJsonObject objeto { { u"system"_s, pareja.nombreSistema }, { u"emulator"_s, pareja.nombreEmulador },
        { u"type"_s, TipoDe(sesion.M, pareja) }, { u"directory"_s, DirectorioDeJuegos(sesion.M, pareja) } };
    QJsonArray juegos;
    int estado = Bien;
    const bool json = sesion.EnJson();
    try {
        const Listado listado = Lista(sesion, pareja);
        objeto[u"summary"_s] = listado.resumen.trimmed();
        if (!json)
            sesion.Escribe(u"[%1 / %2]  %3"_s.arg(
                pareja.nombreSistema, pareja.nombreEmulador, listado.resumen.trimmed()));
        const LectorDeJuegos lector(sesion.M, pareja);
        for (const QString &entrada : listado.recuento.entradas) {
            const Juego juego = lector.De(entrada);
            if (json)
                juegos += enJson(juego);
            else
                sesion.EscribeColumnas({ juego.entrada, juego.fichero, juego.datos, juego.captura });
        }
    } catch (const host::Failure &fallo) {
        estado = Hallazgos;
        const QString motivo = TextoDe(fallo, sesion.palabras);
        objeto[u"problem"_s] = motivo;
        if (!json)
            sesion.Escribe(u"[%1 / %2]  %3"_s.arg(pareja.nombreSistema, pareja.nombreEmulador, motivo));
    }
    objeto[u"games"_s] = juegos;
    parejas += objeto;
    return estado;
}

int lista(Sesion &sesion)
{
    LeeMundo(sesion);
    const std::vector<Pareja> pedidas = ParejasPedidas(sesion, sesion.Argumento(0), sesion.Argumento(1));
    if (pedidas.empty() && !(sesion.Argumento(0) + sesion.Argumento(1)).isEmpty())
        return NoPudo;
    int estado = Bien;
    QJsonArray parejas;
    for (const Pareja &pareja : pedidas)
        estado = std::max(estado, listaUna(sesion, pareja, parejas));
    if (sesion.EnJson())
        sesion.Json({ { u"pairs"_s, parejas } });
    return estado;
}

} // namespace

const Orden &OrdenLista()
{
    static const Orden orden { u"list"_s, u"[SYSTEM [EMULATOR]]"_s, &Palabras::Zbo_List, {}, lista };
    return orden;
}

} // namespace companion
