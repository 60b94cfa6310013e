#include "companion/gifs.h"

#include "companion/encaje.h"

#include "core/info.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/letters.h"
#include "host/paths.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

QString nombreEn(const QString &ruta)
{
    return ruta.sliced(host::lastSeparator(ruta) + 1);
}

QStringList capturasDe(
    const core::NotasPorTexto &notas, const QString &entrada, int tipo, const QString &directorio)
{
    try {
        return core::CapturasDe(notas, entrada, tipo, directorio);
    } catch (const host::Failure &) {
        return {}; // it has none
    }
}

// Without its separator the directory's name runs into those of the captures.
bool estaCerrado(const QString &directorio)
{
    return directorio == host::withClosingSeparator(directorio);
}

struct JuegosDeUnDirectorio {
    std::vector<JuegoConCaptura> juegos;
    QHash<QString, QString> capturas; // paths, by the names in upper case
};

// The captures of all notes with a game's text have to be there for one to show.
void anade(JuegosDeUnDirectorio &todos, Sesion &sesion, const Pareja &pareja, const QString &directorio)
{
    std::vector<JuegoConCaptura> suyos = JuegosConCaptura(sesion, pareja, directorio);
    const core::NotasPorTexto notas(sesion.M);
    for (JuegoConCaptura &juego : suyos) {
        if (juego.captura.isEmpty())
            continue;
        for (const QString &ruta : capturasDe(notas, juego.entrada, TipoDe(sesion.M, pareja), directorio))
            todos.capturas.insert(host::upper(nombreEn(ruta)), ruta);
        todos.capturas.insert(host::upper(nombreEn(juego.captura)), juego.captura);
        todos.juegos.push_back(std::move(juego));
    }
}

// The games of all pairs that keep their captures there; none where those of one can't be told.
std::optional<JuegosDeUnDirectorio> juegosDe(Sesion &sesion, const QString &directorio)
{
    JuegosDeUnDirectorio todos;
    for (const Pareja &pareja : Parejas(sesion.M)) {
        try {
            if (CapturasEnDisco(sesion.M, pareja) != directorio)
                continue;
        } catch (const host::Failure &) {
            continue;
        }
        const QString suyo = DirectorioDeCapturas(sesion.M, pareja);
        if (!estaCerrado(suyo))
            return std::nullopt;
        try {
            anade(todos, sesion, pareja, suyo);
        } catch (const host::Failure &) {
            return std::nullopt;
        }
    }
    return todos;
}

// The names of all entries that end as GIFs do, in the order of names.
QStringList gifsEn(const QString &directorio)
{
    QStringList nombres;
    for (const QByteArray &bytes : host::listInDiskOrder(directorio)) {
        const QString nombre = host::nameFromDisk(bytes);
        if (!nombre.startsWith(u'.') && host::fitsPattern(nombre, u"*.gif"_s))
            nombres += nombre;
    }
    std::ranges::sort(nombres, [](const QString &uno, const QString &otro) {
        return std::pair(host::upper(uno), uno) < std::pair(host::upper(otro), otro);
    });
    return nombres;
}

// Each loose one with the game that it fits, ahead of all one whose capture doesn't show.
void encaja(std::vector<GifSuelto> &sueltos, const std::vector<JuegoConCaptura> &juegos)
{
    QStringList nombres;
    for (const GifSuelto &suelto : sueltos)
        nombres += suelto.nombre;
    std::vector<Nombrado> nombrados;
    for (const JuegoConCaptura &juego : juegos)
        nombrados.push_back(NombradoDe(juego));
    const std::vector<std::optional<qsizetype>> encajados = Encajan(nombrados, nombres);
    for (size_t i = 0; i < juegos.size(); ++i) {
        if (!encajados[i])
            continue;
        GifSuelto &suelto = sueltos[size_t(*encajados[i])];
        if (suelto.hace)
            continue;
        const EstadoDeCaptura estado = EstadoDe(juegos[i].captura);
        const bool hace = estado == EstadoDeCaptura::Ninguna || SeReemplaza(estado);
        if (hace || suelto.captura.isEmpty())
            suelto = { suelto.nombre, nombreEn(juegos[i].captura), hace };
    }
}

} // namespace

QString CapturasEnDisco(const core::Modulo &M, const Pareja &pareja)
{
    const QString directorio = DirectorioDeCapturas(M, pareja);
    return directorio.isEmpty() ? QString() : host::directoryPath(directorio);
}

std::optional<GifsDeJuegos> GifsDe(Sesion &sesion, const QString &directorio)
{
    const QStringList nombres = gifsEn(directorio);
    const std::optional<JuegosDeUnDirectorio> todos = juegosDe(sesion, directorio);
    if (!todos || todos->juegos.empty())
        return std::nullopt;
    GifsDeJuegos gifs;
    QHash<QString, QString> vistos;
    const QString base = host::withClosingSeparator(directorio);
    for (const QString &nombre : nombres) {
        const QString mayus = host::upper(nombre);
        const EstadoDeCaptura estado = EstadoDe(base + nombre);
        const bool esSuya = todos->capturas.contains(mayus);
        if (esSuya && vistos.contains(mayus))
            gifs.iguales.push_back(
                { vistos[mayus], nombre, nombreEn(host::trueSpelling(todos->capturas[mayus])) });
        else if (esSuya)
            vistos.insert(mayus, nombre);
        if (estado != EstadoDeCaptura::SeVe && (esSuya || estado != EstadoDeCaptura::NoEsFichero))
            gifs.malos.push_back({ nombre, estado });
        else if (estado == EstadoDeCaptura::SeVe && !esSuya)
            gifs.sueltos.push_back({ nombre, {}, false });
    }
    encaja(gifs.sueltos, todos->juegos);
    return gifs;
}

} // namespace companion
