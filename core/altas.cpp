#include "core/altas.h"

#include "core/lineas.h"

#include "host/letters.h"
#include "host/paths.h"

using namespace Qt::StringLiterals;

namespace core {

namespace {

constexpr qsizetype MaxExtensiones = 151; // entries of the table that the extensions are written from

void escribe(Copia &copia, const QStringList &lineas)
{
    for (const QString &linea : lineas)
        copia.Nueva(linea);
}

QString conLineasAntesDelFin(const QString &texto, const QStringList &lineas)
{
    Copia copia;
    for (const LineaConFin &linea : EnLineas(texto)) {
        if (linea.linea.startsWith(u'['))
            escribe(copia, lineas);
        copia.Copiar(linea);
    }
    return copia.Texto();
}

QString conLineasAntesDelCierre(
    const QString &texto, const QString &lineaDeSistema, const QStringList &lineas)
{
    Copia copia;
    bool dentro = false;
    for (const LineaConFin &linea : EnLineas(texto)) {
        if (linea.linea == lineaDeSistema)
            dentro = true;
        if (dentro && linea.linea.startsWith(u"'-")) {
            escribe(copia, lineas);
            dentro = false;
        }
        copia.Copiar(linea);
    }
    return copia.Texto();
}

QStringList lineasDeExtensiones(const QStringList &extensiones)
{
    QStringList lineas;
    for (const QString &extension : extensiones) {
        if (extension.isEmpty())
            break;
        lineas += u"*."_s + host::upper(extension);
    }
    if (lineas.size() < MaxExtensiones)
        lineas += u"'"_s;
    return lineas;
}

} // namespace

QString LineaDeCierre()
{
    return u'\'' + QString(70, u'-');
}

QString ConSistemaEnBase(const QString &texto, const QString &sistema)
{
    return conLineasAntesDelFin(texto, { u'-' + sistema, u"WEB1="_s, u"*.ZIP"_s, u"'"_s, LineaDeCierre() });
}

QString ConEmuladorEnBase(const QString &texto, const QString &lineaDeSistema, const QString &emulador)
{
    return conLineasAntesDelCierre(texto, lineaDeSistema, { u'+' + emulador, u"WEB2="_s });
}

QStringList LineasDeEmulador(const EmuladorNuevo &emulador)
{
    return { u'+' + emulador.nombre, emulador.web2, u"EXE="_s + emulador.exe, u"XDI="_s + emulador.tipo,
        u"ROM="_s + host::withClosingSeparator(emulador.rom),
        u"IMG="_s + host::withClosingSeparator(emulador.img), u"PAR1="_s + emulador.par1,
        u"PAR2="_s + emulador.par2 };
}

QString ConSistemaConfigurado(const QString &texto, const SistemaNuevo &sistema)
{
    QStringList lineas { u'-' + sistema.nombre, sistema.web1 };
    lineas += sistema.extensiones;
    lineas += u"'"_s;
    lineas += LineasDeEmulador(sistema.emulador);
    lineas += LineaDeCierre();
    return conLineasAntesDelFin(texto, lineas);
}

QString ConEmuladorConfigurado(
    const QString &texto, const QString &lineaDeSistema, const EmuladorNuevo &emulador)
{
    return conLineasAntesDelCierre(
        texto, lineaDeSistema, QStringList { u"'"_s } + LineasDeEmulador(emulador));
}

QString ConEmuladorCambiado(const QString &texto, const EmuladorNuevo &emulador)
{
    const QString lineaDeEmulador = u'+' + emulador.nombre;
    Copia copia;
    bool cambiado = false;
    bool dentro = false;
    for (const LineaConFin &linea : EnLineas(texto)) {
        if (!cambiado && linea.linea == lineaDeEmulador)
            dentro = true;
        if (dentro && linea.linea.startsWith(u'\'')) {
            escribe(copia, LineasDeEmulador(emulador));
            dentro = false;
            cambiado = true;
        }
        if (!dentro)
            copia.Copiar(linea);
    }
    return copia.Texto();
}

QString ConExtensiones(const QString &texto, const QString &sistema, const QStringList &extensiones)
{
    const QString lineaDeSistema = u'-' + sistema;
    Copia copia;
    bool dentro = false;
    bool salta = false;
    for (const LineaConFin &linea : EnLineas(texto)) {
        if (!salta)
            copia.Copiar(linea);
        if (linea.linea == lineaDeSistema)
            dentro = true;
        if (dentro && linea.linea.startsWith(u"WEB1")) {
            salta = true;
            escribe(copia, lineasDeExtensiones(extensiones));
        }
        if (dentro && linea.linea.startsWith(u'\''))
            salta = dentro = false;
    }
    return copia.Texto();
}

QString ConWebDeSistema(const QString &texto, const QString &sistema, const QString &direccion)
{
    const QString lineaDeSistema = u'-' + sistema;
    Copia copia;
    bool salta = false;
    for (const LineaConFin &linea : EnLineas(texto)) {
        if (!salta)
            copia.Copiar(linea);
        if (linea.linea == lineaDeSistema) {
            copia.Nueva(u"WEB1="_s + direccion);
            salta = true;
        }
        if (linea.linea.startsWith(u"WEB1"))
            salta = false;
    }
    return copia.Texto();
}

QString ConWebDeEmulador(
    const QString &texto, const QString &sistema, const QString &emulador, const QString &direccion)
{
    const QString lineaDeSistema = u'-' + sistema;
    const QString lineaDeEmulador = u'+' + emulador;
    Copia copia;
    bool dentro = false;
    bool salta = false;
    for (const LineaConFin &linea : EnLineas(texto)) {
        if (!salta)
            copia.Copiar(linea);
        if (linea.linea == lineaDeSistema)
            dentro = true;
        if (salta && dentro && linea.linea.startsWith(u"WEB2")) {
            copia.Nueva(u"WEB2="_s + direccion);
            salta = dentro = false;
        }
        if (dentro && linea.linea == lineaDeEmulador)
            salta = true;
    }
    return copia.Texto();
}

} // namespace core
