#include "launch/nombresdos.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <vector>

namespace launch {

namespace {

constexpr qsizetype LargoDelNombre = 8;
constexpr qsizetype LargoDeLaTerminacion = 3;

QByteArray sinPuntoFinal(QByteArray nombre)
{
    if (nombre.endsWith('.') && nombre != "." && nombre != "..")
        nombre.chop(1);
    return nombre;
}

qsizetype finDelNombre(const QByteArray &nombre)
{
    const qsizetype punto = nombre.indexOf('.');
    return punto < 0 ? nombre.size() : punto;
}

struct Numerado {
    QByteArray nombre;
    int numero = 0;
};

// Below, at, or above the name that was numbered: what stands ahead of the sign is compared, and of that only
// what the name would keep ahead of a number as long.
int orden(const QByteArray &nombre, const QByteArray &numerado)
{
    const qsizetype signo = numerado.indexOf('~');
    if (signo < 0)
        return nombre.compare(numerado);
    const qsizetype punto = numerado.indexOf('.', signo);
    const qsizetype largoDelNumero = (punto < 0 ? numerado.size() : punto) - signo;
    const qsizetype cabe = std::min(finDelNombre(nombre), LargoDelNombre) - largoDelNumero;
    const qsizetype largo = std::max(signo, cabe);
    return nombre.first(std::min(largo, nombre.size()))
        .compare(numerado.first(std::min(largo, numerado.size())));
}

// One listing, as it grows.
class Listado {
public:
    QByteArray Entra(const QByteArray &entrada);

private:
    int siguienteNumero(const QByteArray &nombre) const;
    QByteArray numerado(const QByteArray &nombre);

    std::set<QByteArray> m_dados;
    std::vector<Numerado> m_numerados; // in the order of their names
};

// The search halves the names as DOSBox does: where the numbers differ in length the order is not quite that
// of the comparison, and what is found first counts.
int Listado::siguienteNumero(const QByteArray &nombre) const
{
    std::size_t abajo = 0;
    std::size_t arriba = m_numerados.size();
    while (abajo < arriba) {
        const std::size_t medio = (abajo + arriba - 1) / 2;
        const int lado = orden(nombre, m_numerados[medio].nombre);
        if (lado == 0) {
            std::size_t ultimo = medio;
            while (ultimo + 1 < m_numerados.size() && orden(nombre, m_numerados[ultimo + 1].nombre) == 0)
                ++ultimo;
            return m_numerados[ultimo].numero + 1;
        }
        (lado > 0 ? abajo : arriba) = lado > 0 ? medio + 1 : medio;
    }
    return 1;
}

QByteArray Listado::numerado(const QByteArray &nombre)
{
    const int numero = siguienteNumero(nombre);
    const QByteArray marca = '~' + QByteArray::number(numero);
    const qsizetype punto = nombre.lastIndexOf('.');
    const QByteArray terminacion = punto < 0 ? QByteArray() : nombre.mid(punto, 1 + LargoDeLaTerminacion);
    const QByteArray corto =
        nombre.first(std::min(finDelNombre(nombre), LargoDelNombre - marca.size())) + marca + terminacion;
    const auto lugar = std::ranges::upper_bound(m_numerados, corto, {}, &Numerado::nombre);
    m_numerados.insert(lugar, { corto, numero });
    return corto;
}

QByteArray Listado::Entra(const QByteArray &entrada)
{
    QByteArray nombre = entrada.toUpper();
    nombre.replace(' ', QByteArray());
    bool acortado = nombre.size() != entrada.size();
    const qsizetype punto = nombre.indexOf('.');
    if (punto >= 0 && nombre.size() - punto > 1 + LargoDeLaTerminacion) {
        acortado = true;
        while (nombre.startsWith('.'))
            nombre.remove(0, 1);
    }
    acortado = acortado || finDelNombre(nombre) > LargoDelNombre || m_dados.contains(sinPuntoFinal(nombre));
    const QByteArray dado = sinPuntoFinal(acortado ? numerado(nombre) : nombre);
    m_dados.insert(dado);
    return dado;
}

} // namespace

QByteArrayList NombresDOS(const QByteArrayList &entradas)
{
    Listado listado;
    QByteArrayList nombres;
    for (const QByteArray &entrada : entradas)
        nombres.append(listado.Entra(entrada));
    return nombres;
}

NombreNuevo NombreNuevoEnDOS(const QByteArrayList &entradas, const QByteArray &nombre)
{
    const QByteArrayList dados = NombresDOS(entradas);
    for (qsizetype i = 0; i < entradas.size(); ++i) {
        if (entradas[i].toUpper() == nombre)
            return { entradas[i], dados[i] };
    }
    QByteArray probado = nombre;
    const qsizetype signo = nombre.indexOf('~');
    const QByteArray base = signo < 0 ? nombre : nombre.first(signo);
    for (int numero = 2; dados.contains(probado); ++numero) {
        const QByteArray marca = '~' + QByteArray::number(numero);
        probado = base.first(std::min(base.size(), LargoDelNombre - marca.size())) + marca;
    }
    return { probado.toLower(), probado };
}

bool SeAbreEnDOS(const QByteArray &nombre)
{
    const qsizetype punto = nombre.indexOf('.');
    const qsizetype terminacion = punto < 0 ? 0 : nombre.size() - punto - 1;
    const auto vale = [](char letra) {
        return std::isalnum(static_cast<unsigned char>(letra)) != 0
            || QByteArrayView("$#@()!%{}`~_-&'+^").contains(letra);
    };
    return !EsDispositivo(nombre) && !nombre.endsWith('.') && finDelNombre(nombre) > 0
        && finDelNombre(nombre) <= LargoDelNombre && punto == nombre.lastIndexOf('.')
        && terminacion <= LargoDeLaTerminacion
        && std::ranges::all_of(QByteArray(nombre).remove(punto, punto < 0 ? 0 : 1), vale);
}

bool EsDispositivo(const QByteArray &nombre)
{
    static const std::set<QByteArray> sueltos { "CON", "PRN", "AUX", "NUL", "CLOCK$", "EMMXXXX0", "XMSXXXX0",
        "MSCD001" };
    QByteArray base = nombre.first(finDelNombre(nombre)).toUpper();
    while (base.endsWith(' '))
        base.chop(1);
    const bool numerado = base.size() == 4 && (base.startsWith("COM") || base.startsWith("LPT"))
        && base[3] >= '1' && base[3] <= '9';
    return numerado || sueltos.contains(base);
}

} // namespace launch
