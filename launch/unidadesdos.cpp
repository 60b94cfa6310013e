#include "launch/unidadesdos.h"

#include "launch/apodado.h"
#include "launch/intenta.h"
#include "launch/nombresdos.h"

#include "host/encoding.h"
#include "host/paths.h"
#include "host/volumes.h"

#include <algorithm>
#include <tuple>

namespace launch {

namespace {

constexpr char UnidadDeDOSBox = 'Z'; // its own programs
constexpr char PrimeraLibre = 'C';
constexpr qsizetype MasLargoElDirectorio = 63; // that DOS makes the current one, without the letter
constexpr qsizetype MasLargaLaRuta = 78;

// The name that DOS knows this entry by; empty if it opens none. One that isn't there yet comes last.
QByteArray nombreEn(const QByteArray &directorio, const QByteArray &entrada)
{
    QByteArrayList entradas;
    Intenta([&] { entradas = host::listInDiskOrder(host::nameFromDisk(directorio)); });
    if (!entradas.contains(entrada))
        entradas.append(entrada);
    const QByteArray nombre = NombresDOS(entradas)[entradas.indexOf(entrada)];
    return SeAbreEnDOS(nombre) ? nombre : QByteArray();
}

// "\EMUS\NES\" of what lies below a place; none if a part of it can't be said.
std::optional<QByteArray> directoriosDesde(QByteArray lugar, const QByteArray &resto)
{
    QByteArray dicho = "\\";
    for (const QByteArray &parte : resto.split('/')) {
        if (parte.isEmpty())
            continue;
        const QByteArray nombre = nombreEn(lugar, parte);
        if (nombre.isEmpty())
            return std::nullopt;
        dicho += nombre + '\\';
        lugar += parte + '/';
    }
    return dicho.size() - 1 <= MasLargoElDirectorio ? std::optional(dicho) : std::nullopt;
}

// Without what leads through a directory and back.
QByteArray directo(const QByteArray &ruta)
{
    QByteArrayList partes;
    for (const QByteArray &parte : ruta.split('/')) {
        if (parte == ".." && !partes.isEmpty())
            partes.removeLast();
        else if (!parte.isEmpty() && parte != "." && parte != "..")
            partes.append(parte);
    }
    return partes.isEmpty() ? QByteArray("/") : '/' + partes.join('/') + '/';
}

} // namespace

UnidadesDOS::UnidadesDOS(const std::vector<host::Drive> &propias)
{
    for (const host::Drive &unidad : propias) {
        const QByteArray lugar = host::findOnDisk(unidad.place);
        const char letra = unidad.letter.toLatin1();
        if (letra != UnidadDeDOSBox && !lugar.isEmpty())
            m_unidades.push_back({ letra, directo(lugar), false });
    }
}

std::optional<QByteArray> UnidadesDOS::Ruta(const QString &enDisco)
{
    const QByteArray ruta = host::nameToDisk(enDisco);
    const qsizetype corte = ruta.lastIndexOf('/') + 1;
    if (!ruta.startsWith('/'))
        return std::nullopt;
    const QByteArray lugar = directo(ruta.first(corte));
    const QByteArray entrada = ruta.sliced(corte);
    const QByteArray nombre = entrada.isEmpty() ? QByteArray() : nombreEn(lugar, entrada);
    if (nombre.isEmpty() != entrada.isEmpty())
        return std::nullopt;
    const std::optional<QByteArray> dicho = directorio(lugar, entrada);
    return dicho && dicho->size() + nombre.size() <= MasLargaLaRuta ? std::optional(*dicho + nombre)
                                                                    : std::nullopt;
}

std::optional<QByteArray> UnidadesDOS::RutaOApodo(const QString &enDisco)
{
    if (const std::optional<QByteArray> ruta = Ruta(enDisco))
        return ruta;
    const QByteArray ruta = host::nameToDisk(enDisco);
    const QByteArray lugar = directo(ruta.first(ruta.lastIndexOf('/') + 1));
    const QByteArray entrada = ruta.sliced(ruta.lastIndexOf('/') + 1);
    if (!ruta.startsWith('/') || entrada.isEmpty())
        return std::nullopt;
    const auto esSuya = [&](const Unidad &unidad) {
        return unidad.apodos.size() == 1 && unidad.lugar == lugar && unidad.apodos[0].fichero == entrada;
    };
    const auto hecha = std::ranges::find_if(m_unidades, esSuya);
    Unidad *unidad = hecha == m_unidades.end() ? nueva(lugar) : &*hecha;
    if (!unidad)
        return std::nullopt;
    unidad->apodos = { { ApodoEnDOS(entrada), entrada } };
    unidad->montada = true;
    return unidad->letra + (":\\" + unidad->apodos[0].nombre);
}

// The drive that lies nearest above it, or one that is preferred, and what it is there. For a file in it that
// has been typed itself another one may be.
UnidadesDOS::Dicho UnidadesDOS::masCercana(const QByteArray &lugar, const QByteArray &entrada)
{
    const QByteArray ruta = entrada.isEmpty() ? lugar : lugar + entrada + '/';
    const auto rango = [&](const Unidad &una) {
        qsizetype tecleado = 0;
        for (const QByteArray &tecleada : una.tecleadas)
            tecleado = ruta.startsWith(tecleada) ? qMax(tecleado, tecleada.size()) : tecleado;
        return std::tuple(tecleado, una.preferida, una.lugar.size());
    };
    Dicho mejor;
    for (Unidad &unidad : m_unidades) {
        if (!unidad.apodos.empty() || !lugar.startsWith(unidad.lugar)
            || (mejor.unidad && rango(unidad) <= rango(*mejor.unidad)))
            continue;
        if (const auto posible = directoriosDesde(unidad.lugar, lugar.sliced(unidad.lugar.size())))
            mejor = { &unidad, *posible };
    }
    return mejor;
}

std::optional<QByteArray> UnidadesDOS::directorio(const QByteArray &lugar, const QByteArray &entrada)
{
    Dicho dicho = masCercana(lugar, entrada);
    if (!dicho.unidad)
        dicho = { nueva(lugar), "\\" };
    if (!dicho.unidad)
        return std::nullopt;
    dicho.unidad->montada = true;
    return dicho.unidad->letra + (':' + dicho.directorio);
}

void UnidadesDOS::Prefiere(const QString &tecleada)
{
    const auto unidad = std::ranges::find(m_unidades, host::driveLetter(tecleada).toLatin1(), &Unidad::letra);
    if (unidad == m_unidades.end())
        return;
    unidad->preferida = true;
    const QByteArray enDisco = host::findOnDisk(tecleada);
    if (!enDisco.isEmpty())
        unidad->tecleadas += directo(enDisco);
}

void UnidadesDOS::NombraLaDe(const QString &directorio)
{
    const QByteArray lugar = host::findOnDisk(host::withClosingSeparator(directorio));
    if (!lugar.startsWith('/'))
        return;
    if (Unidad *unidad = masCercana(directo(lugar)).unidad)
        unidad->montada = true;
}

UnidadesDOS::Unidad *UnidadesDOS::nueva(const QByteArray &lugar)
{
    for (char letra = PrimeraLibre; letra < UnidadDeDOSBox; ++letra) {
        if (std::ranges::find(m_unidades, letra, &Unidad::letra) == m_unidades.end())
            return &m_unidades.insert(m_unidades.end(), { letra, lugar, false })[0];
    }
    return nullptr;
}

void UnidadesDOS::Nombra(const QString &parametros)
{
    for (qsizetype i = 0; i + 1 < parametros.size(); ++i) {
        const bool enMedio = i > 0 && parametros[i - 1].isLetterOrNumber();
        const QChar letra = enMedio ? QChar() : host::driveLetter(QStringView(parametros).sliced(i));
        const auto unidad = std::ranges::find(m_unidades, letra.toLatin1(), &Unidad::letra);
        if (unidad != m_unidades.end() && !letra.isNull())
            unidad->montada = true;
    }
}

std::vector<UnidadesDOS::Montaje> UnidadesDOS::Montajes() const
{
    std::vector<Montaje> montajes;
    for (const Unidad &unidad : m_unidades) {
        QByteArray lugar = unidad.lugar;
        if (lugar.size() > 1)
            lugar.chop(1);
        if (unidad.montada)
            montajes.push_back({ unidad.letra, lugar, unidad.apodos.empty() && host::isOnCompactDisc(lugar),
                unidad.apodos });
    }
    std::ranges::sort(montajes, {}, &Montaje::letra);
    return montajes;
}

} // namespace launch
