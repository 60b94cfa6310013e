#include "core/clasedeprograma.h"

#include "host/failure.h"
#include "host/letters.h"
#include "host/numberedfiles.h"
#include "host/paths.h"

#include <QtEndian>

using namespace Qt::StringLiterals;

namespace core {

namespace {

constexpr qsizetype Cabecera = 20; // of an ELF file, up to the machine
constexpr qsizetype Clase = 4; // 32 or 64 bits
constexpr qsizetype Maquina = 18; // two bytes
constexpr qsizetype LugarDeLaSegunda = 0x3c; // where a program for DOS tells of a second header
constexpr qsizetype LugarDelSistema = 0x36; // within a header of 16 bits
constexpr char DeOS2 = 1;
constexpr qsizetype Principio = 0x10000; // what is read; a second header further on belongs to an extender
constexpr qsizetype MasLargoDeCOM = 0xff00;

// One with two headers shows the older system the first one.
ClaseDePrograma claseDeMZ(const QByteArray &principio)
{
    if (principio.size() < LugarDeLaSegunda + 4)
        return ClaseDePrograma::DOS;
    const auto segunda = qFromLittleEndian<quint32>(principio.constData() + LugarDeLaSegunda);
    const QByteArray firma = segunda < Principio ? principio.mid(segunda, 4) : QByteArray();
    if (firma == QByteArray("PE\0\0", 4))
        return ClaseDePrograma::Windows;
    // An extender's programs have a header of 32 bits, "LE" or "LX"; those of OS/2 run on DOS if at all.
    const bool de16 = firma.startsWith("NE");
    return de16 && principio.mid(segunda + LugarDelSistema, 1) != QByteArray(1, DeOS2)
        ? ClaseDePrograma::Windows
        : ClaseDePrograma::DOS;
}

ClaseDePrograma claseDeELF(const QByteArray &principio, const QByteArray &propia)
{
    if (principio.size() < Cabecera)
        return ClaseDePrograma::Desconocida;
    const QByteArray maquina = principio.mid(Maquina, 2);
    const bool igual = maquina == propia.mid(Maquina, 2) && principio[Clase] == propia[Clase];
    // A PC of 64 bits runs its programs of 32 bits too; they need libraries of their own.
    const bool hermana =
        maquina == QByteArray("\x03\0", 2) && propia.mid(Maquina, 2) == QByteArray("\x3e\0", 2);
    return igual || hermana ? ClaseDePrograma::DeEstaMaquina : ClaseDePrograma::OtraMaquina;
}

} // namespace

ClaseDePrograma ClasePorBytes(const QByteArray &principio, const QByteArray &propia, QStringView nombre)
{
    if (principio.startsWith("#!"))
        return ClaseDePrograma::DeEstaMaquina;
    if (principio.startsWith("\x7f"
                             "ELF"))
        return claseDeELF(principio, propia);
    if (principio.startsWith("MZ") || principio.startsWith("ZM"))
        return claseDeMZ(principio);
    const QString mayus = host::upper(nombre.toString());
    const bool com = mayus.endsWith(u".COM") && principio.size() <= MasLargoDeCOM;
    const bool bat = mayus.endsWith(u".BAT");
    return !principio.isEmpty() && (com || bat) ? ClaseDePrograma::DOS : ClaseDePrograma::Desconocida;
}

ClaseDePrograma ClaseDe(const QString &ruta)
{
    try {
        return ClasePorBytes(
            host::readBytes(ruta, Principio), host::readBytes(u"/proc/self/exe"_s, Cabecera), ruta);
    } catch (const host::Failure &) {
        return ClaseDePrograma::Desconocida;
    }
}

bool EsDe32Bits(const QByteArray &principio)
{
    if (ClasePorBytes(principio, {}, {}) != ClaseDePrograma::Windows)
        return false;
    const auto segunda = qFromLittleEndian<quint32>(principio.constData() + LugarDeLaSegunda);
    const QByteArray maquina = principio.mid(segunda + 4, 2); // behind "PE" and two zeros
    return principio.mid(segunda, 2) == "NE" || maquina == QByteArray("\x4c\x01", 2);
}

bool EsDe32Bits(const QString &ruta)
{
    try {
        return EsDe32Bits(host::readBytes(ruta, Principio));
    } catch (const host::Failure &) {
        return false;
    }
}

} // namespace core
