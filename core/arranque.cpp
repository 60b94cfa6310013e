#include "core/arranque.h"

#include "host/letters.h"
#include "host/paths.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace core {

namespace {

// What failed may be a line without end; a box has room for a little of it.
QString acortado(const QString &texto)
{
    constexpr qsizetype largo = 300; // characters
    const qsizetype fin = host::behindFirst(texto, largo);
    return fin < texto.size() ? texto.first(fin) + u"..."_s : texto;
}

bool hayIdiomas()
{
    try {
        return !host::listFiles(host::programFile(u"LNG"_s), u"*.lng"_s).isEmpty();
    } catch (const host::Failure &) {
        return false; // no such directory
    }
}

} // namespace

void CompruebaFicheros()
{
    for (const QLatin1StringView nombre : { "Zembro.emu"_L1, "Zembro.rom"_L1, "Zembro.sye"_L1,
             "Zembro.cfg"_L1, "Zembro.faq"_L1, "Zembro.txt"_L1, "Cvtgif15.exe"_L1 })
        host::attributes(host::programFile(nombre));
    if (!hayIdiomas())
        throw host::Failure(host::FileNotFound, u"find a language file"_s, host::programFile(u"LNG"_s));
}

void LeeFichero(const QString &fichero, const std::function<void()> &lectura)
{
    try {
        lectura();
    } catch (const host::Failure &fallo) {
        if (fallo.about().contains(fichero))
            throw;
        const QString detalle = fallo.about().isEmpty() ? QString() : u" ("_s + fallo.about() + u')';
        throw host::Failure(fallo.number(), fallo.operation() + detalle, fichero);
    }
}

QString TextoDeFallo(const host::Failure &fallo, bool arrancando)
{
    QStringList lineas;
    if (arrancando && fallo.number() == host::FileNotFound) {
        lineas = { u"Cannot find any of these files:"_s, u"¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯"_s,
            u"In the program directory"_s, u"   Zembro.cfg"_s, u"   Zembro.emu"_s, u"   Zembro.rom"_s,
            u"   Zembro.sye"_s, u"   Zembro.txt"_s, u"   Zembro.faq"_s, u"   Cvtgif15.exe"_s,
            u"In LNG subdirectory any *.LNG file"_s };
    } else {
        lineas = { u"An unknown error has occurred. (ERR"_s + QString::number(fallo.number()) + u')' };
    }
    lineas += u"Failed to "_s + acortado(fallo.operation()) + u": "_s + acortado(fallo.about());
    return lineas.join(u'\n');
}

} // namespace core
