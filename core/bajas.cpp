#include "core/bajas.h"

#include "core/altas.h"
#include "core/catalogo.h"
#include "core/lineas.h"

using namespace Qt::StringLiterals;

namespace core {

QString SinSistema(const QString &texto, const QString &sistema)
{
    const QString lineaDeSistema = u'-' + sistema;
    Copia copia;
    bool dentro = false;
    for (const LineaConFin &linea : EnLineas(texto)) {
        if (linea.linea == lineaDeSistema)
            dentro = true;
        if (!dentro)
            copia.Copiar(linea);
        if (linea.linea.startsWith(u"'-"))
            dentro = false;
    }
    return copia.Texto();
}

QString SinEmuladorEnBase(const QString &texto, const QString &sistema, const QString &emulador)
{
    const QString lineaDeSistema = u'-' + sistema;
    const QString lineaDeEmulador = u'+' + emulador;
    Copia copia;
    bool enSistema = false;
    bool corta = false;
    for (const LineaConFin &linea : EnLineas(texto)) {
        if (linea.linea == lineaDeSistema)
            enSistema = true;
        if (enSistema && linea.linea == lineaDeEmulador)
            corta = true;
        if (!corta)
            copia.Copiar(linea);
        else if (linea.linea.startsWith(u"WEB2"))
            enSistema = corta = false;
    }
    return copia.Texto();
}

QString SinUnicoEmulador(const QString &texto, const QString &sistema)
{
    const QString lineaDeSistema = u'-' + sistema;
    Copia copia;
    bool enCabeza = false;
    bool corta = false;
    for (const LineaConFin &linea : EnLineas(texto)) {
        if (linea.linea == lineaDeSistema)
            enCabeza = true;
        if (enCabeza && linea.linea.startsWith(u'\'')) {
            copia.Nueva(LineaDeCierre());
            corta = true;
            enCabeza = false;
        }
        if (!corta)
            copia.Copiar(linea);
        if (corta && linea.linea.startsWith(u"'-"))
            corta = enCabeza = false;
    }
    return copia.Texto();
}

QString SinEmulador(const QString &texto, const QString &emulador)
{
    const QString lineaDeEmulador = u'+' + emulador;
    Copia copia;
    bool cortado = false;
    bool corta = false;
    for (const LineaConFin &linea : EnLineas(texto)) {
        if (!cortado && linea.linea == lineaDeEmulador)
            corta = cortado = true;
        if (!corta)
            copia.Copiar(linea);
        if (linea.linea.startsWith(u'\''))
            corta = false;
    }
    return copia.Texto();
}

QString SinUltimoEmulador(const QString &texto, const QString &sistema, int total)
{
    const QString lineaDeSistema = u'-' + sistema;
    Copia copia;
    bool enSistema = false;
    bool corta = false;
    int apostrofos = 0;
    for (const LineaConFin &linea : EnLineas(texto)) {
        if (linea.linea == lineaDeSistema)
            enSistema = true;
        if (enSistema && linea.linea.startsWith(u'\'') && ++apostrofos == total)
            corta = true;
        if (linea.linea.startsWith(u"'-"))
            corta = false;
        if (!corta)
            copia.Copiar(linea);
    }
    return copia.Texto();
}

int PosicionParaBorrar(const Modulo &M, const QString &sistema)
{
    // The names are sorted in a table of 151 that they use from entry 1 on.
    if (M.TotalSistemas >= MaxSistemas)
        throw host::Failure(
            host::OutOfRange, u"sort the names of the systems"_s, QString::number(M.TotalSistemas));
    return PosicionDeSistema(M, sistema);
}

int PosicionTrasBorrar(int posicion, int total)
{
    return posicion > 0 && posicion == total - 1 ? posicion - 1 : posicion;
}

} // namespace core
