#include "launch/apodado.h"

#include "host/encoding.h"
#include "host/letters.h"

#include <QCryptographicHash>
#include <QString>

#include <algorithm>
#include <cstdint>

namespace launch {

namespace {

constexpr qsizetype LargoDelApodo = 8;
constexpr qsizetype LetrasDelNombre = 2; // of these eight, ahead of the checksum
constexpr qsizetype LetrasDeLaTerminacion = 3;
constexpr qsizetype MasLargaLaBase = 100; // in bytes: Windows opens paths of 259 characters
constexpr qsizetype MasLargoElPrefijo = 200; // of 255: the rest is for the name that the game gave
constexpr char Separa[] = " - ";
constexpr char EnLugarDelJuego[] = ".NEW";

// The same for the same name, in capitals and digits. Of two names it is the same once in 36 to the power of
// the length.
QByteArray sumaDe(const QByteArray &nombre, qsizetype largo)
{
    const QByteArray huella = QCryptographicHash::hash(nombre, QCryptographicHash::Sha256);
    std::uint64_t numero = 0;
    for (const char byte : huella.first(8))
        numero = numero << 8U | static_cast<unsigned char>(byte);
    return QByteArray::number(numero, 36).toUpper().rightJustified(largo, '0').last(largo);
}

// Letters and digits, accents gone; what is left over is cut.
QByteArray llano(const QString &parte, qsizetype largo)
{
    QByteArray resultado;
    for (const QChar letra : parte.normalized(QString::NormalizationForm_D).toUpper()) {
        if (letra.unicode() < 128 && letra.isLetterOrNumber() && resultado.size() < largo)
            resultado += letra.toLatin1();
    }
    return resultado;
}

// Whole characters.
QByteArray cortado(QByteArray nombre, qsizetype largo)
{
    if (nombre.size() <= largo)
        return nombre;
    while (largo > 0 && (static_cast<unsigned char>(nombre[largo]) & 0xC0U) == 0x80)
        --largo;
    return nombre.first(largo);
}

QByteArray baseDe(const QByteArray &nombre)
{
    const qsizetype punto = nombre.lastIndexOf('.');
    return nombre.first(punto < 0 ? nombre.size() : punto);
}

} // namespace

bool MismoNombre(const QByteArray &uno, const QByteArray &otro)
{
    return host::sameName(host::nameFromDisk(uno), host::nameFromDisk(otro));
}

QByteArray ApodoEnDOS(const QByteArray &fichero)
{
    const QString nombre = host::nameFromDisk(fichero);
    const qsizetype punto = nombre.lastIndexOf(u'.');
    const QByteArray letras = llano(nombre.first(punto < 0 ? nombre.size() : punto), LetrasDelNombre);
    const QByteArray terminacion =
        punto < 0 ? QByteArray() : llano(nombre.sliced(punto + 1), LetrasDeLaTerminacion);
    return letras + sumaDe(fichero, LargoDelApodo - letras.size())
        + (terminacion.isEmpty() ? QByteArray() : '.' + terminacion);
}

QByteArray ApodoEnWindows(const QByteArray &fichero)
{
    QByteArray nombre = fichero;
    for (char &letra : nombre) {
        if ((letra >= 0 && letra < ' ') || QByteArrayView("\\:*?\"<>|").contains(letra))
            letra = '_';
    }
    while (nombre.endsWith(' ') || nombre.endsWith('.'))
        nombre.chop(1);
    const QByteArray base = baseDe(nombre);
    return cortado(base, MasLargaLaBase) + '-' + sumaDe(fichero, LargoDelApodo)
        + cortado(nombre.sliced(base.size()), MasLargaLaBase);
}

QByteArray PrefijoEnCasa(const QByteArray &fichero)
{
    QByteArray nombre = cortado(fichero, MasLargoElPrefijo - LargoDelApodo - 1);
    nombre.replace('\\', '_'); // which would be taken for a separator
    if (nombre != fichero)
        nombre += '~' + sumaDe(fichero, LargoDelApodo); // there may be another one that begins so
    return nombre + Separa;
}

QByteArray NombreEnCasa(const QByteArray &fichero, const QByteArray &apodo, const QByteArray &nombre)
{
    const QByteArray base = baseDe(apodo);
    const bool suyo = MismoNombre(nombre.first(std::min(nombre.size(), base.size())), base)
        && nombre.sliced(base.size()).startsWith('.');
    if (MismoNombre(nombre, apodo))
        return PrefijoEnCasa(fichero) + EnLugarDelJuego;
    return PrefijoEnCasa(fichero) + (suyo ? nombre.sliced(base.size()) : nombre);
}

QByteArray NombreMostrado(const QByteArray &fichero, const QByteArray &apodo, const QByteArray &enCasa)
{
    const QByteArray prefijo = PrefijoEnCasa(fichero);
    if (enCasa.size() <= prefijo.size() || !enCasa.startsWith(prefijo))
        return {};
    const QByteArray resto = enCasa.sliced(prefijo.size());
    return resto.startsWith('.') ? baseDe(apodo) + resto : resto;
}

} // namespace launch
