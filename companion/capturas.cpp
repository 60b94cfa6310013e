#include "companion/capturas.h"

#include "companion/cambio.h"
#include "companion/conversion.h"
#include "companion/fotos.h"
#include "companion/gifs.h"
#include "companion/plandecapturas.h"
#include "companion/porque.h"
#include "companion/revision.h"

#include "core/catalogo.h"

#include "host/aside.h"
#include "host/encoding.h"
#include "host/failure.h"
#include "host/letters.h"
#include "host/paths.h"

#include <QDateTime>
#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// Seconds that an emulator may take to write a picture after its end was told.
constexpr int Demora = 60;

struct DePareja {
    Pareja pareja;
    QString directorio; // of its captures
    std::vector<JuegoConCaptura> juegos;
    Plan plan;
    QString problema; // why there is no plan; empty if there is one
    std::vector<Convertida> hechas;
};

// Everything that is to be made, and what is told beside it.
struct Encargo {
    std::vector<DePareja> parejas;
    QStringList sobran; // pictures that fit no game
    QStringList dichos; // of the game played last
    bool hayYa = false; // there is a picture of it, and a capture already
};

QString nombreEn(const QString &ruta)
{
    return ruta.sliced(host::lastSeparator(ruta) + 1);
}

std::vector<DePareja> lasDe(Sesion &sesion, const std::vector<Pareja> &parejas)
{
    std::vector<DePareja> todas;
    for (const Pareja &pareja : parejas) {
        DePareja una { pareja, {}, {}, {}, {}, {} };
        try {
            una.directorio = DirectorioDeCapturas(sesion.M, pareja);
            if (una.directorio.isEmpty())
                una.problema = sesion.palabras.Zbo_CapSinDir;
            else
                una.juegos = JuegosConCaptura(sesion, pareja, una.directorio);
        } catch (const host::Failure &fallo) {
            una.problema = TextoDe(fallo, sesion.palabras);
        }
        todas.push_back(std::move(una));
    }
    return todas;
}

// The GIFs among the captures that are no game's.
QStringList sueltosDe(Sesion &sesion, const QString &directorio)
{
    QStringList nombres;
    if (const std::optional<GifsDeJuegos> gifs = GifsDe(sesion, host::directoryPath(directorio))) {
        for (const GifSuelto &suelto : gifs->sueltos)
            nombres += suelto.nombre;
    }
    return nombres;
}

bool esElMismo(const QString &directorio, const QString &otro)
{
    return host::exists(otro) && host::directoryPath(directorio) == host::directoryPath(otro);
}

// By names: of the directory that is asked for, else of each pair's own captures; of none for the game played
// last alone.
void planeaPorNombres(Sesion &sesion, Encargo &encargo, QSet<QString> &hechas)
{
    const bool rehace = sesion.Tiene(u"replace"_s);
    QSet<QString> usadas;
    for (DePareja &una : encargo.parejas) {
        if (!una.problema.isEmpty())
            continue;
        const QString pedido = sesion.Valor(u"from"_s);
        const QString origen = pedido.isEmpty() ? una.directorio : pedido;
        const bool mira = !sesion.Tiene(u"last"_s) && host::exists(origen);
        const bool suyo = mira && (pedido.isEmpty() || esElMismo(pedido, una.directorio));
        const std::optional<QStringList> sueltos =
            suyo ? std::optional(sueltosDe(sesion, origen)) : std::nullopt;
        const QStringList imagenes = mira ? PosiblesImagenes(origen, sueltos) : QStringList();
        const Plan plan = PlanDeCapturas(una.juegos, origen, imagenes, rehace, hechas);
        // That of the game played last is one of those that are made already.
        una.plan.compartidas = plan.compartidas - static_cast<int>(una.plan.nuevas.size());
        una.plan.habia = plan.habia;
        una.plan.sinImagen = plan.sinImagen;
        una.plan.malas = plan.malas;
        una.plan.nuevas.insert(una.plan.nuevas.end(), plan.nuevas.begin(), plan.nuevas.end());
        const QString delante = pedido.isEmpty() ? host::withClosingSeparator(origen) : QString();
        for (const QString &imagen : imagenes) {
            if (plan.usadas.contains(imagen))
                usadas += delante + imagen;
            encargo.sobran += delante + imagen;
        }
    }
    encargo.sobran.removeDuplicates();
    encargo.sobran.removeIf([&](const QString &imagen) { return usadas.contains(imagen); });
}

// The last launch that is told of; none, with the reason in `dichos`.
std::optional<launch::Partida> laUltima(const Sesion &sesion, QStringList &dichos)
{
    const QByteArray ruta = FicheroDeLineas();
    std::optional<launch::Partida> partida;
    try {
        if (const std::optional<QByteArray> lineas = host::readAside(ruta))
            partida = launch::UltimaPartida(host::nameFromDisk(*lineas));
    } catch (const host::Failure &) {
        // There is none.
    }
    if (!partida)
        dichos += sesion.palabras.Zbo_UltNadie.arg(host::nameFromDisk(ruta));
    return partida;
}

// The picture that was taken while it was played.
std::optional<QString> fotoDe(
    Sesion &sesion, const DePareja &una, const launch::Partida &partida, QStringList &dichos)
{
    const QString pedido = sesion.Valor(u"from"_s);
    const core::Modulo &M = sesion.M;
    const QStringList lugares = !pedido.isEmpty()
        ? QStringList { pedido }
        : LugaresDeFotos({ core::Valor(M.Cat_EXE(una.pareja.sistema, una.pareja.fila), core::PrefijoRuta),
            partida.directorio, DirectorioDeJuegos(M, una.pareja) });
    Intervalo intervalo { QDateTime::fromString(partida.momento, Qt::ISODate), std::nullopt };
    if (partida.final.status || partida.final.signal)
        intervalo.hasta = intervalo.desde.addSecs(static_cast<qint64>(partida.segundos) + Demora);
    // What this command made itself is no picture of the emulator's.
    QSet<QString> capturas;
    for (const JuegoConCaptura &juego : una.juegos)
        capturas += host::upper(juego.captura);
    const std::optional<QString> foto = FotoMasNueva(lugares, intervalo,
        [&](const QString &ruta) { return !capturas.contains(host::upper(ruta)) && EsImagen(ruta); });
    if (!foto) {
        dichos += sesion.palabras.Zbo_UltSinFoto.arg(partida.entrada);
        for (const QString &lugar : lugares)
            dichos += u"    "_s + lugar;
    }
    return foto;
}

void planeaUltima(Sesion &sesion, Encargo &encargo, QSet<QString> &hechas)
{
    const std::optional<launch::Partida> partida = laUltima(sesion, encargo.dichos);
    if (!partida)
        return;
    const auto una = std::ranges::find_if(encargo.parejas, [&](const DePareja &otra) {
        return otra.pareja.nombreSistema == partida->sistema
            && otra.pareja.nombreEmulador == partida->emulador;
    });
    if (una == encargo.parejas.end()) {
        encargo.dichos +=
            sesion.palabras.Zbo_UltOtra.arg(partida->sistema, partida->emulador, partida->entrada);
        return;
    }
    const auto juego = std::ranges::find_if(
        una->juegos, [&](const JuegoConCaptura &otro) { return otro.entrada == partida->entrada; });
    if (juego == una->juegos.end() || juego->captura.isEmpty())
        return;
    const std::optional<QString> foto = fotoDe(sesion, *una, *partida, encargo.dichos);
    if (!foto)
        return;
    const EstadoDeCaptura estado = EstadoDe(juego->captura);
    const bool libre = estado == EstadoDeCaptura::Ninguna || SeReemplaza(estado);
    if (!libre && estado != EstadoDeCaptura::SeVe)
        return; // it is told of with the others
    if (!libre && !sesion.Tiene(u"replace"_s)) {
        encargo.dichos += sesion.palabras.Zbo_UltYaHay.arg(partida->entrada, *foto);
        encargo.hayYa = true;
        return;
    }
    hechas += host::upper(juego->captura);
    una->plan.nuevas.push_back(
        { partida->entrada, *foto, juego->captura, libre && estado != EstadoDeCaptura::Ninguna });
}

// The picture of the game played last goes ahead of those that fit by their names.
Encargo planea(Sesion &sesion, const std::vector<Pareja> &parejas)
{
    Encargo encargo { lasDe(sesion, parejas), {}, {}, false };
    QSet<QString> hechas;
    const bool soloUltima = sesion.Tiene(u"last"_s);
    if (soloUltima || !sesion.Tiene(u"from"_s))
        planeaUltima(sesion, encargo, hechas);
    // Who asks for all pictures need not hear that there is none of the last game.
    if (!soloUltima && !encargo.hayYa)
        encargo.dichos.clear();
    planeaPorNombres(sesion, encargo, hechas);
    return encargo;
}

void hazDirectorio(QString directorio)
{
    while (directorio.size() > 1 && host::lastSeparator(directorio) == directorio.size() - 1)
        directorio.chop(1);
    if (host::exists(directorio))
        return;
    const qsizetype corte = host::lastSeparator(directorio);
    if (corte > 0)
        hazDirectorio(directorio.first(corte));
    host::makeDirectory(directorio);
}

// The directories of captures that aren't there yet are made.
void haz(const Sesion &sesion, Encargo &encargo)
{
    std::vector<PorConvertir> pares;
    for (DePareja &una : encargo.parejas) {
        try {
            if (!una.plan.nuevas.empty() && !host::exists(una.directorio))
                hazDirectorio(una.directorio);
        } catch (const host::Failure &fallo) {
            una.problema = TextoDeDirectorio(fallo, sesion.palabras);
            una.plan.nuevas.clear();
        }
        for (const PorHacer &nueva : una.plan.nuevas)
            pares.push_back({ host::findOnDisk(nueva.imagen), host::findForWriting(nueva.captura) });
    }
    if (pares.empty())
        return;
    const std::vector<Convertida> hechas = Convierte(pares);
    auto siguiente = hechas.begin();
    for (DePareja &una : encargo.parejas) {
        const auto suyas = static_cast<std::ptrdiff_t>(una.plan.nuevas.size());
        una.hechas.assign(siguiente, siguiente + suyas);
        siguiente += suyas;
    }
}

QString palabraDe(const Palabras &palabras, const Convertida &hecha)
{
    const std::pair<QString, QString> todas[] = {
        { u"no-picture"_s, palabras.Zbo_CapNoImagen },
        { u"too-large"_s, palabras.Zbo_CapGrande },
        { u"damaged"_s, palabras.Zbo_CapRota },
        { u"unreadable"_s, palabras.Zbo_CapIlegible },
        { u"not-written"_s, palabras.Zbo_CapNoEscrita },
    };
    const auto suya =
        std::ranges::find_if(todas, [&](const auto &una) { return una.first == hecha.problema; });
    const QString palabra = suya == std::end(todas) ? palabras.Zbo_CapNoHecha : suya->second;
    return hecha.detalle.isEmpty() ? palabra : palabra + u" ("_s + hecha.detalle + u')';
}

int logradas(const DePareja &una)
{
    return static_cast<int>(
        std::ranges::count_if(una.hechas, [](const Convertida &hecha) { return hecha.problema.isEmpty(); }));
}

struct Cuentas {
    int nuevas = 0;
    int habia = 0;
    int sinImagen = 0;
};

// All games of the pair are one of the three. A game whose capture could not be made has the former one, or
// none.
Cuentas cuentasDe(const DePareja &una, bool escrito)
{
    Cuentas cuentas { static_cast<int>(una.plan.nuevas.size()) + una.plan.compartidas, una.plan.habia,
        una.plan.sinImagen };
    for (size_t i = 0; escrito && i < una.plan.nuevas.size(); ++i) {
        if (i < una.hechas.size() && una.hechas[i].problema.isEmpty())
            continue;
        --cuentas.nuevas;
        ++(EstadoDe(una.plan.nuevas[i].captura) == EstadoDeCaptura::SeVe ? cuentas.habia : cuentas.sinImagen);
    }
    return cuentas;
}

QJsonObject enJson(const DePareja &una, bool escrito)
{
    QJsonArray capturas;
    for (size_t i = 0; i < una.plan.nuevas.size(); ++i) {
        const PorHacer &nueva = una.plan.nuevas[i];
        QJsonObject captura { { u"entry"_s, nueva.entrada }, { u"picture"_s, nueva.imagen },
            { u"capture"_s, nueva.captura } };
        if (nueva.enSuSitio)
            captura[u"replaces"_s] = true;
        if (i < una.hechas.size()) {
            captura[u"written"_s] = una.hechas[i].problema.isEmpty();
            if (!una.hechas[i].problema.isEmpty())
                captura[u"problem"_s] = una.hechas[i].problema;
            if (!una.hechas[i].detalle.isEmpty())
                captura[u"detail"_s] = una.hechas[i].detalle;
        }
        capturas += captura;
    }
    QJsonArray malas;
    for (const CapturaMala &mala : una.plan.malas)
        malas += QJsonObject { { u"capture"_s, mala.ruta }, { u"kind"_s, ClaseDe(mala.estado) } };
    const Cuentas cuentas = cuentasDe(una, escrito);
    QJsonObject objeto { { u"system"_s, una.pareja.nombreSistema },
        { u"emulator"_s, una.pareja.nombreEmulador }, { u"directory"_s, una.directorio },
        { u"no_pictures"_s, malas }, { u"captures"_s, capturas }, { u"kept"_s, cuentas.habia },
        { u"without"_s, cuentas.sinImagen } };
    if (!una.problema.isEmpty())
        objeto[u"problem"_s] = una.problema;
    return objeto;
}

void cuenta(const Sesion &sesion, const DePareja &una)
{
    const Palabras &palabras = sesion.palabras;
    if (!una.problema.isEmpty()) {
        sesion.Avisa(
            u"[%1 / %2]  %3"_s.arg(una.pareja.nombreSistema, una.pareja.nombreEmulador, una.problema));
        return;
    }
    for (size_t i = 0; i < una.plan.nuevas.size(); ++i) {
        const PorHacer &nueva = una.plan.nuevas[i];
        QStringList columnas { nueva.entrada, nombreEn(nueva.imagen), nombreEn(nueva.captura) };
        if (i < una.hechas.size() && !una.hechas[i].problema.isEmpty())
            columnas += palabraDe(palabras, una.hechas[i]);
        else if (nueva.enSuSitio)
            columnas += palabras.Zbo_CapEnSuSitio;
        sesion.EscribeColumnas(columnas);
    }
    for (const CapturaMala &mala : una.plan.malas)
        sesion.Escribe(TextoDe(mala.estado, mala.ruta, palabras));
    const bool escrito = sesion.Tiene(u"write"_s);
    const Cuentas cuentas = cuentasDe(una, escrito);
    sesion.Escribe(
        (escrito ? palabras.Zbo_CapHechas : palabras.Zbo_CapHaria)
            .arg(una.pareja.nombreSistema, una.pareja.nombreEmulador, QString::number(cuentas.nuevas),
                QString::number(cuentas.habia), QString::number(cuentas.sinImagen)));
}

// The first ones of those that fit no game.
void cuentaSobrantes(const Sesion &sesion, const QStringList &sobran)
{
    constexpr qsizetype unas = 20;
    if (sobran.isEmpty())
        return;
    sesion.Escribe(sesion.palabras.Zbo_CapSobran.arg(sobran.size()));
    for (const QString &imagen : sobran.first(std::min(sobran.size(), unas)))
        sesion.Escribe(u"    "_s + imagen);
    if (sobran.size() > unas)
        sesion.Escribe(u"    "_s + sesion.palabras.Zbo_CapSobranMas.arg(sobran.size() - unas));
}

int responde(const Sesion &sesion, const Encargo &encargo)
{
    bool bien = !sesion.Tiene(u"last"_s) || encargo.dichos.isEmpty();
    QJsonArray parejas;
    for (const DePareja &una : encargo.parejas) {
        bien = bien && una.problema.isEmpty() && una.plan.malas.empty()
            && static_cast<size_t>(logradas(una)) == una.plan.nuevas.size();
        if (sesion.EnJson())
            parejas += enJson(una, sesion.Tiene(u"write"_s));
        else
            cuenta(sesion, una);
    }
    if (sesion.EnJson()) {
        sesion.Json({ { u"pairs"_s, parejas }, { u"unused"_s, QJsonArray::fromStringList(encargo.sobran) },
            { u"last"_s, QJsonArray::fromStringList(encargo.dichos) },
            { u"written"_s, sesion.Tiene(u"write"_s) } });
    } else {
        cuentaSobrantes(sesion, encargo.sobran);
        sesion.Escribe(encargo.dichos);
    }
    return bien ? Bien : Hallazgos;
}

int captura(Sesion &sesion)
{
    LeeMundo(sesion);
    const std::vector<Pareja> parejas = ParejasDelSistema(sesion, sesion.Argumento(0), sesion.Argumento(1));
    if (parejas.empty())
        return NoPudo;
    const QString origen = sesion.Valor(u"from"_s);
    if (sesion.Tiene(u"from"_s) && !host::exists(origen))
        return sesion.Falla(sesion.palabras.Zbo_NoHay.arg(origen));
    Encargo encargo = planea(sesion, parejas);
    if (sesion.Tiene(u"write"_s))
        haz(sesion, encargo);
    return responde(sesion, encargo);
}

} // namespace

const Orden &OrdenCapturas()
{
    static const Orden orden { u"captures"_s, u"SYSTEM [EMULATOR]"_s, &Palabras::Zbo_Captures,
        { { u"from"_s, u"DIR"_s, &Palabras::Zbo_OpFromDir }, { u"last"_s, {}, &Palabras::Zbo_OpLast },
            { u"replace"_s, {}, &Palabras::Zbo_OpRehacer }, OpcionWrite() },
        captura };
    return orden;
}

} // namespace companion
