#include "finder/fichas.h"

#include "host/failure.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace finder {

namespace {

constexpr int Columnas = 5;
const QString MarcaDeROMs = u"rom"_s; // in the sixth column, if there is one
const QString Nada = u"-"_s;
const QString MarcaDeNucleo = u"nucleo"_s;
const QString MarcaDeEnlace = u"{roms}"_s;

bool esTipo(const QString &texto)
{
    return texto.size() == 1 && u"01235678"_s.contains(texto);
}

Ficha fichaDe(const QString &linea)
{
    QStringList columnas = linea.split(u'\t');
    const bool pideROMs = columnas.size() == Columnas + 1 && columnas.last() == MarcaDeROMs;
    if (pideROMs)
        columnas.removeLast();
    if (columnas.size() != Columnas || columnas.contains(QString()) || !esTipo(columnas[2]))
        throw host::Failure(host::InvalidArgument, u"read the table of emulators"_s, linea);
    Ficha ficha { columnas[0], columnas[1].split(u' ', Qt::SkipEmptyParts), columnas[2], columnas[3],
        columnas[4], pideROMs };
    if (ficha.par1 == Nada)
        ficha.par1.clear();
    if (ficha.par2 == Nada)
        ficha.par2.clear();
    return ficha;
}

QString conBlanco(const QString &parametros)
{
    return parametros.isEmpty() ? parametros : u' ' + parametros;
}

} // namespace

std::vector<Ficha> LeeFichas(const QString &texto)
{
    std::vector<Ficha> fichas;
    QSet<QString> nombres;
    for (QString linea : texto.split(u'\n')) {
        if (linea.endsWith(u'\r'))
            linea.chop(1);
        if (linea.isEmpty() || linea.startsWith(u'#'))
            continue;
        fichas.push_back(fichaDe(linea));
        const QString &nombre = fichas.back().emulador;
        if (nombres.contains(nombre))
            throw host::Failure(host::InvalidArgument, u"read the table of emulators"_s, nombre);
        nombres += nombre;
    }
    return fichas;
}

bool EsDeMAME(const Ficha &ficha)
{
    return ficha.ejecutables.contains(u"mame"_s);
}

Parametros ParametrosDe(const Ficha &ficha)
{
    const int tipo = ficha.tipo.toInt();
    return { tipo >= 5 ? conBlanco(ficha.par1) : ficha.par1, tipo == 3 ? conBlanco(ficha.par2) : ficha.par2 };
}

QString NucleoDe(const Ficha &ficha)
{
    return MarcaDe(ficha.par1, MarcaDeNucleo);
}

QString ConNucleo(QString parametros, const QString &ruta)
{
    return parametros.replace(u'{' + MarcaDeNucleo + u':' + MarcaDe(parametros, MarcaDeNucleo) + u'}', ruta);
}

bool SeArrancaJuntoASusROMs(const Ficha &ficha)
{
    return ficha.par1.contains(MarcaDeEnlace);
}

QString ConEnlaceDeROMs(QString parametros)
{
    return parametros.replace(MarcaDeEnlace, u"roms"_s);
}

QString MarcaDe(const QString &texto, const QString &nombre)
{
    const QString principio = u'{' + nombre + u':';
    const qsizetype desde = texto.indexOf(principio);
    const qsizetype hasta = texto.indexOf(u'}', desde);
    if (desde < 0 || hasta < 0)
        return {};
    const qsizetype valor = desde + principio.size();
    return texto.sliced(valor, hasta - valor);
}

} // namespace finder
