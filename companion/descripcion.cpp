#include "companion/descripcion.h"

#include "companion/cambio.h"
#include "companion/fuentes.h"
#include "companion/listados.h"
#include "companion/mame.h"
#include "companion/mundo.h"
#include "companion/rotulos.h"

#include "core/descripciones.h"

#include "host/failure.h"
#include "host/letters.h"
#include "host/paths.h"

#include <QHash>
#include <QJsonArray>

#include <algorithm>
#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

constexpr size_t LargoDeTrozo = 65536;

struct Coleccion {
    std::vector<FicheroListado> ficheros; // each key once
    QSet<QString> textos; // that something is called already
    std::vector<std::pair<QString, QString>> iguales; // names that differ in case alone, and so have one key
    bool entera = true; // every list could be read
};

Coleccion coleccionDe(Sesion &sesion, const std::vector<Pareja> &parejas)
{
    Coleccion coleccion;
    QHash<QString, QString> claves; // with the first name of each
    for (const Pareja &pareja : parejas) {
        try {
            const Listado listado = Lista(sesion, pareja);
            for (const FicheroListado &fichero : FicherosListados(sesion.M, pareja, listado)) {
                coleccion.textos.insert(fichero.entrada);
                const QString primero = claves.value(fichero.clave, fichero.nombre);
                if (!claves.contains(fichero.clave))
                    coleccion.ficheros.push_back(fichero);
                else if (primero != fichero.nombre && host::sameName(primero, fichero.nombre))
                    coleccion.iguales.emplace_back(primero, fichero.nombre);
                claves.insert(fichero.clave, primero);
            }
            for (int i = 0; i < sesion.M.Nota_Clave.tamaño() && !sesion.M.Nota_Clave(i).isEmpty(); ++i)
                coleccion.textos.insert(sesion.M.Nota_Texto(i));
        } catch (const host::Failure &fallo) {
            coleccion.entera = false;
            sesion.Avisa(u"[%1 / %2]  %3"_s.arg(
                pareja.nombreSistema, pareja.nombreEmulador, TextoDe(fallo, sesion.palabras)));
        }
    }
    return coleccion;
}

std::unique_ptr<LectorDeFuente> lectorPara(const Coleccion &coleccion)
{
    QSet<QString> buscados;
    for (const FicheroListado &fichero : coleccion.ficheros)
        buscados << host::upper(fichero.nombre) << host::upper(SinTerminacion(fichero.nombre));
    return std::make_unique<LectorDeFuente>(buscados);
}

// False, told already, where there is no such file.
bool leeFichero(const Sesion &sesion, const QString &nombre, LectorDeFuente &lector)
{
    const QByteArray ruta = host::findOnDisk(nombre);
    const auto cierra = [](std::FILE *fichero) { return fichero == stdin ? 0 : std::fclose(fichero); };
    const std::unique_ptr<std::FILE, decltype(cierra)> abierto(
        nombre == u"-" ? stdin : std::fopen(ruta.constData(), "rbe"), cierra);
    if (!abierto) {
        sesion.Falla(sesion.palabras.Zbo_NoHay.arg(nombre));
        return false;
    }
    QByteArray trozo(LargoDeTrozo, Qt::Uninitialized);
    while (const size_t leidos = std::fread(trozo.data(), 1, LargoDeTrozo, abierto.get()))
        lector.Trozo(trozo.first(qsizetype(leidos)));
    if (std::ferror(abierto.get()) != 0)
        throw host::Failure(host::PathAccess, u"read a file"_s, nombre);
    return true;
}

// False, told already, where there is no MAME, or it doesn't come to its end.
bool leeMAME(const Sesion &sesion, const QString &mame, LectorDeFuente &lector)
{
    if (mame.isEmpty()) {
        sesion.Falla(sesion.palabras.Zbo_SinMAME);
        return false;
    }
    const QString motivo =
        LeeListaDeMAME(mame, sesion.palabras, [&](const QByteArray &trozo) { lector.Trozo(trozo); });
    if (!motivo.isEmpty())
        sesion.Falla(sesion.palabras.Zbo_MAMEMal.arg(mame, motivo));
    return motivo.isEmpty();
}

// None, told already, where the list can't be read.
std::unique_ptr<LectorDeFuente> leeFuente(
    const Sesion &sesion, const Coleccion &coleccion, const std::vector<Pareja> &parejas)
{
    std::unique_ptr<LectorDeFuente> lector = lectorPara(coleccion);
    const bool deMAME = sesion.Tiene(u"mame"_s);
    const QString nombre = deMAME ? MAMEDe(sesion.M, parejas) : sesion.Valor(u"from"_s);
    if (!(deMAME ? leeMAME(sesion, nombre, *lector) : leeFichero(sesion, nombre, *lector)))
        return nullptr;
    lector->Fin();
    if (lector->EsAjeno()) {
        sesion.Falla(sesion.palabras.Zbo_ListaAjena.arg(nombre));
        return nullptr;
    }
    if (!lector->ElError() && lector->Nombres() == 0) {
        sesion.Falla(sesion.palabras.Zbo_ListaVacia.arg(nombre));
        return nullptr;
    }
    if (!lector->ElError())
        return lector;
    sesion.Falla(sesion.palabras.Zbo_ListaMala.arg(
        nombre, QString::number(lector->ElError()->linea), lector->ElError()->motivo));
    return nullptr;
}

// What a file may be called by its name, or by what the list says of it.
Rotulo rotuloDe(const FicheroListado &fichero, const LectorDeFuente *fuente)
{
    const QString nombre = SinTerminacion(fichero.nombre);
    if (!fuente)
        return RotuloDe(nombre);
    const QString texto =
        fuente->Textos().value(host::upper(fichero.nombre), fuente->Textos().value(host::upper(nombre)));
    return fuente->EsDeCatalogo() ? RotuloDe(texto) : Rotulo { texto, {} };
}

// Those that are described already have a part in what tells two of one title apart: what one run does isn't
// done otherwise by the next one.
std::vector<PorDescribir> porDescribir(
    const Sesion &sesion, const Coleccion &coleccion, const LectorDeFuente *fuente)
{
    std::vector<PorDescribir> juegos;
    for (const FicheroListado &fichero : coleccion.ficheros) {
        const bool queda = fichero.descrito && !sesion.Tiene(u"replace"_s);
        const Rotulo rotulo = rotuloDe(fichero, fuente);
        const QString titulo = sesion.Tiene(u"tags"_s) ? rotulo.Entero() : rotulo.titulo;
        if (!titulo.isEmpty())
            juegos.push_back({ fichero.clave, fichero.entrada, titulo, rotulo.Entero(), queda });
    }
    return juegos;
}

QString textoDe(const Sesion &sesion, Motivo motivo)
{
    switch (motivo) {
    case Motivo::SinClave:
        return sesion.palabras.Zbo_NoClave;
    case Motivo::Repetida:
        return sesion.palabras.Zbo_Repetida;
    default:
        return sesion.palabras.Zbo_NoCabe;
    }
}

QString nombreDe(Motivo motivo)
{
    return motivo == Motivo::SinClave ? u"name"_s : motivo == Motivo::Repetida ? u"taken"_s : u"room"_s;
}

// What the games of a system were before.
struct Recuento {
    qsizetype juegos = 0;
    qsizetype descritos = 0; // that stay so
    qsizetype desconocidos = 0; // that the list or their names say nothing new of
    bool conLista = false;
};

Recuento cuenta(
    const Coleccion &coleccion, const std::vector<PorDescribir> &juegos, const LectorDeFuente *fuente)
{
    Recuento recuento;
    recuento.conLista = fuente != nullptr;
    recuento.juegos = static_cast<qsizetype>(coleccion.ficheros.size());
    recuento.descritos = std::ranges::count_if(coleccion.ficheros, &FicheroListado::descrito);
    const qsizetype porHacer = std::ranges::count_if(juegos,
        [](const PorDescribir &juego) { return !juego.estaDescrito && juego.titulo != juego.entrada; });
    recuento.desconocidos = std::max<qsizetype>(recuento.juegos - recuento.descritos - porHacer, 0);
    return recuento;
}

// Why nothing came of it.
QString porqueNada(const Palabras &palabras, const Recuento &recuento)
{
    if (recuento.juegos == 0)
        return palabras.Zbo_DesNada;
    return (recuento.conLista ? palabras.Zbo_DesLista : palabras.Zbo_DesNombres)
        .arg(recuento.juegos)
        .arg(recuento.descritos)
        .arg(recuento.desconocidos);
}

int responde(const Sesion &sesion, int estado, QJsonObject objeto, const core::Descritas &descritas,
    Bautizados bautizados, const Recuento &recuento)
{
    for (const core::Descripcion &fuera : descritas.fuera)
        bautizados.rechazados.push_back({ fuera.texto, Motivo::NoCabe });
    QJsonArray rechazados;
    for (const Rechazado &uno : bautizados.rechazados) {
        rechazados += QJsonObject { { u"entry"_s, uno.entrada }, { u"reason"_s, nombreDe(uno.motivo) } };
        if (!sesion.EnJson())
            sesion.EscribeColumnas({ uno.entrada, textoDe(sesion, uno.motivo) });
    }
    objeto[u"added"_s] = descritas.nuevas;
    objeto[u"replaced"_s] = descritas.cambiadas;
    objeto[u"refused"_s] = rechazados;
    objeto[u"games"_s] = recuento.juegos;
    objeto[u"described"_s] = recuento.descritos;
    objeto[u"unknown"_s] = recuento.desconocidos;
    const QString &dicho = estado == Bien ? sesion.palabras.Zbo_Descrito : sesion.palabras.Zbo_Describiria;
    if (sesion.EnJson())
        sesion.Json(objeto);
    else
        sesion.Escribe(dicho.arg(descritas.nuevas).arg(descritas.cambiadas));
    if (!sesion.EnJson() && descritas.nuevas + descritas.cambiadas == 0)
        sesion.Escribe(porqueNada(sesion.palabras, recuento));
    return rechazados.isEmpty() ? estado : Hallazgos;
}

// Says which names differ in case alone; those that have one description with another.
QJsonArray dichoDeIguales(const Sesion &sesion, const Coleccion &coleccion)
{
    QJsonArray nombres;
    for (const auto &[primero, otro] : coleccion.iguales) {
        nombres += otro;
        sesion.Avisa(sesion.palabras.Zbo_DesIguales.arg(primero, otro));
    }
    return nombres;
}

int describe(Sesion &sesion)
{
    LeeMundo(sesion);
    const std::vector<Pareja> parejas = ParejasDelSistema(sesion, sesion.Argumento(0), {});
    if (parejas.empty())
        return NoPudo;
    const QString sistema = parejas.front().nombreSistema;
    const Coleccion coleccion = coleccionDe(sesion, parejas);
    std::unique_ptr<LectorDeFuente> fuente;
    if (sesion.Tiene(u"from"_s) || sesion.Tiene(u"mame"_s)) {
        fuente = leeFuente(sesion, coleccion, parejas);
        if (!fuente)
            return NoPudo;
    }
    const std::vector<PorDescribir> juegos = porDescribir(sesion, coleccion, fuente.get());
    const Bautizados bautizados = Bautiza(juegos, coleccion.textos);
    std::vector<core::Descripcion> descripciones;
    for (const auto &[clave, texto] : bautizados.descripciones)
        descripciones.push_back({ clave, texto });
    core::Descritas descritas;
    QJsonObject objeto { { u"system"_s, sistema }, { u"alike"_s, dichoDeIguales(sesion, coleccion) } };
    const auto lasQueHay = sesion.Tiene(u"replace"_s) ? core::LasQueHay::Cambian : core::LasQueHay::Quedan;
    const auto cambio = [&](const QString &texto) {
        descritas = core::ConDescripciones(texto, sistema, descripciones, lasQueHay);
        return descritas.texto;
    };
    const int estado = HazCambio(sesion, u"Zembro.rom"_s, cambio, objeto);
    const int respuesta =
        responde(sesion, estado, objeto, descritas, bautizados, cuenta(coleccion, juegos, fuente.get()));
    return coleccion.entera ? respuesta : std::max<int>(respuesta, Hallazgos);
}

} // namespace

const Orden &OrdenDescribir()
{
    static const Orden orden { u"describe"_s, u"SYSTEM"_s, &Palabras::Zbo_Describe,
        { { u"from"_s, u"FILE"_s, &Palabras::Zbo_OpFrom }, { u"mame"_s, {}, &Palabras::Zbo_OpMame },
            { u"tags"_s, {}, &Palabras::Zbo_OpTags }, { u"replace"_s, {}, &Palabras::Zbo_OpReplace },
            OpcionWrite() },
        describe };
    return orden;
}

} // namespace companion
