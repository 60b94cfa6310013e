#include "core/altas.h"

#include "core/bloques.h"

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

// A block that has no closing line gets one.
QString conLineasAntesDelCierre(
    const QString &texto, const QString &lineaDeSistema, const QStringList &nuevas)
{
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    Copia copia;
    size_t copiadas = 0;
    for (const Bloque &bloque : BloquesDe(lineas, lineaDeSistema)) {
        copia.Copiar(lineas, copiadas, bloque.cierre());
        copiadas = bloque.cierre();
        escribe(copia, nuevas);
        if (!bloque.cerrado)
            copia.Nueva(LineaDeCierre());
    }
    copia.Copiar(lineas, copiadas, lineas.size());
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
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    size_t viejo = 0;
    while (viejo < lineas.size() && lineas[viejo].linea != lineaDeEmulador)
        ++viejo;
    if (viejo == lineas.size())
        return texto;
    Copia copia;
    copia.Copiar(lineas, 0, viejo);
    escribe(copia, LineasDeEmulador(emulador));
    const size_t detras = CopiaSinRestos(copia, lineas, FinDeEmulador(lineas, viejo));
    copia.Copiar(lineas, detras, lineas.size());
    return copia.Texto();
}

namespace {

// The head of a block: ahead of its first apostrophe or emulator, and of its end.
size_t finDeCabeza(const std::vector<LineaConFin> &lineas, const Bloque &bloque)
{
    const size_t apostrofo = PrimeraConInicio(lineas, bloque.inicio, bloque.fin, u"'");
    return PrimeraConInicio(lineas, bloque.inicio, apostrofo, u"+");
}

// What the reader gives to a system, or to an emulator, besides the address.
bool esDeSistema(QStringView linea)
{
    return linea.startsWith(u"*.");
}

bool esDeEmulador(QStringView linea)
{
    return esDeSistema(linea) || EsValorDeEmulador(linea);
}

// An address behind the line that it belongs to, in the place of the first line that begins with the key up
// to `fin`. What stands between gives way, but for what is the owner's too.
void copiaConDireccion(Copia &copia, const std::vector<LineaConFin> &lineas, size_t dueña, size_t fin,
    const QString &clave, const QString &direccion, bool (*esDelDueño)(QStringView))
{
    const size_t vieja = PrimeraConInicio(lineas, dueña + 1, fin, clave);
    const bool hay = vieja < fin;
    const bool entreEmuladores = PrimeraConInicio(lineas, dueña + 1, vieja, u"+") < vieja;
    copia.Copiar(lineas[dueña]);
    copia.Nueva(clave + u'=' + direccion);
    for (size_t i = dueña + 1; i < fin; ++i) {
        const bool cede = hay && i < vieja && !entreEmuladores && !esDelDueño(lineas[i].linea);
        if (!cede && i != vieja)
            copia.Copiar(lineas[i]);
    }
}

} // namespace

QString ConExtensiones(const QString &texto, const QString &sistema, const QStringList &extensiones)
{
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    Copia copia;
    size_t copiadas = 0;
    for (const Bloque &bloque : BloquesDe(lineas, u'-' + sistema)) {
        const size_t fin = finDeCabeza(lineas, bloque);
        size_t web = fin;
        while (web > bloque.inicio && !lineas[web - 1].linea.startsWith(u"WEB1"))
            --web;
        if (web == bloque.inicio)
            continue;
        copia.Copiar(lineas, copiadas, web);
        escribe(copia, lineasDeExtensiones(extensiones));
        const bool apostrofoSuelto = fin < bloque.cierre() && lineas[fin].linea.startsWith(u'\'');
        copiadas = apostrofoSuelto ? fin + 1 : fin;
    }
    copia.Copiar(lineas, copiadas, lineas.size());
    return copia.Texto();
}

QString ConWebDeSistema(const QString &texto, const QString &sistema, const QString &direccion)
{
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    Copia copia;
    size_t copiadas = 0;
    for (const Bloque &bloque : BloquesDe(lineas, u'-' + sistema)) {
        copia.Copiar(lineas, copiadas, bloque.inicio);
        copiaConDireccion(copia, lineas, bloque.inicio, bloque.cierre(), u"WEB1"_s, direccion, esDeSistema);
        copiadas = bloque.cierre();
    }
    copia.Copiar(lineas, copiadas, lineas.size());
    return copia.Texto();
}

QString ConWebDeEmulador(
    const QString &texto, const QString &sistema, const QString &emulador, const QString &direccion)
{
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    for (const Bloque &bloque : BloquesDe(lineas, u'-' + sistema)) {
        const std::optional<size_t> suya = LineaDeEmulador(lineas, bloque, emulador);
        if (!suya)
            continue;
        const size_t fin = PrimeraConInicio(lineas, *suya + 1, bloque.cierre(), u"+");
        Copia copia;
        copia.Copiar(lineas, 0, *suya);
        copiaConDireccion(copia, lineas, *suya, fin, u"WEB2"_s, direccion, esDeEmulador);
        copia.Copiar(lineas, fin, lineas.size());
        return copia.Texto();
    }
    return texto;
}

} // namespace core
