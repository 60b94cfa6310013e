// Changes in the catalogue and in the database: extensions, addresses, an emulator configured anew.
#include "catalogos.h"
#include "temas.h"

#include "core/altas.h"

#include "host/encoding.h"
#include "host/letters.h"
#include "host/paths.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace pelusa {

namespace {

using Cambio = std::function<QString(const QString &texto)>;

QStringList anclas(const QString &texto)
{
    QStringList lineas = LineasDe(texto);
    lineas.removeIf([](const QString &linea) { return !linea.startsWith(u"'-") && !linea.startsWith(u'['); });
    return lineas;
}

// What holds of every change of a system, in any file. Returns the changed text.
QString cambiado(const QString &texto, const QString &sistema, const Cambio &cambio)
{
    const QString despues = cambio(texto);
    ExigeOtrosComoEran(texto, despues, sistema);
    Exige(anclas(texto) == anclas(despues), "the lines that close a system or the data stay", texto, despues);
    ExigeIgual(cambio(despues), despues, "twice is the same");
    return despues;
}

// Of a file as the program writes it.
std::optional<Catalogo> regular(const QString &texto)
{
    return EsRegular(texto) ? Leido(texto) : std::nullopt;
}

void extensiones(const QString &texto, const QString &sistema, const QStringList &nuevas)
{
    const QString despues =
        cambiado(texto, sistema, [&](const QString &t) { return core::ConExtensiones(t, sistema, nuevas); });
    std::optional<Catalogo> seria = regular(texto);
    const qsizetype suyo = seria ? SistemaDe(*seria, u'-' + sistema) : -1;
    if (suyo < 0 || (*seria)[suyo].web1.isEmpty())
        return;
    QStringList &lista = (*seria)[suyo].extensiones;
    lista.clear();
    for (const QString &nueva : nuevas) {
        if (nueva.isEmpty())
            break;
        lista << u"*."_s + host::upper(nueva);
    }
    ExigeCatalogo(despues, *seria, "the extensions are read back, and nothing else changes");
}

void webDeSistema(const QString &texto, const QString &sistema, const QString &direccion)
{
    const QString despues = cambiado(
        texto, sistema, [&](const QString &t) { return core::ConWebDeSistema(t, sistema, direccion); });
    std::optional<Catalogo> seria = regular(texto);
    const qsizetype suyo = seria ? SistemaDe(*seria, u'-' + sistema) : -1;
    if (suyo < 0)
        return;
    (*seria)[suyo].web1 = u"WEB1="_s + direccion;
    ExigeCatalogo(despues, *seria, "the address is read back, and nothing else changes");
}

void webDeEmulador(
    const QString &texto, const QString &sistema, const QString &emulador, const QString &direccion)
{
    const QString despues = cambiado(texto, sistema,
        [&](const QString &t) { return core::ConWebDeEmulador(t, sistema, emulador, direccion); });
    std::optional<Catalogo> seria = regular(texto);
    if (!seria)
        return;
    const qsizetype suyo = SistemaDe(*seria, u'-' + sistema);
    const qsizetype suya = suyo < 0 ? -1 : EmuladorDe((*seria)[suyo], u'+' + emulador);
    if (suya < 0) {
        ExigeIgual(despues, texto, "without the pair nothing changes");
        return;
    }
    (*seria)[suyo].emuladores[suya].valores.last() = u"WEB2="_s + direccion;
    ExigeCatalogo(despues, *seria, "the address is read back, and nothing else changes");
}

// The block of the first emulator of that name, whichever system it belongs to. A name is written in one
// line, so that of one with a carriage return a blank would be made.
void emulador(const QString &texto, const core::EmuladorNuevo &nuevo)
{
    std::optional<Catalogo> seria = Leido(texto);
    const qsizetype suyo = seria ? DueñoDe(*seria, u'+' + nuevo.nombre) : -1;
    if (suyo < 0 || nuevo.nombre.contains(u'\r'))
        return;
    SistemaLeido &sistema = (*seria)[suyo];
    // One behind its system's closing line stands in no block.
    if (NombresCon(u'+', LineasDeOtros(texto, sistema.emuladores[0].nombre.sliced(1)).join(QString()))
            .contains(nuevo.nombre))
        return;
    const QString despues = cambiado(texto, sistema.emuladores[0].nombre.sliced(1),
        [&nuevo](const QString &t) { return core::ConEmuladorCambiado(t, nuevo); });
    if (!EsRegular(texto))
        return;
    sistema.emuladores[EmuladorDe(sistema, u'+' + nuevo.nombre)].valores = { u"EXE="_s + nuevo.exe,
        u"XDI="_s + nuevo.tipo, u"ROM="_s + host::withClosingSeparator(nuevo.rom),
        u"IMG="_s + host::withClosingSeparator(nuevo.img), u"PAR1="_s + nuevo.par1, u"PAR2="_s + nuevo.par2,
        nuevo.web2 };
    ExigeCatalogo(despues, *seria, "the changed emulator is read back, and nothing else changes");
}

} // namespace

void probarCambios(Bytes bytes)
{
    Entrada entrada(bytes);
    const int clase = entrada.Numero(4);
    const int cualSistema = entrada.Numero(64);
    const int cualEmulador = entrada.Numero(64);
    const QString nuevo = UnaLinea(entrada);
    const QString otro = UnaLinea(entrada);
    const QString texto = host::decodeText(entrada.Resto()).text;
    const QString sistema = NombresCon(u'-', texto).value(cualSistema, otro);
    const QString nombre = NombresCon(u'+', texto).value(cualEmulador, otro);
    switch (clase) {
    case 0:
        extensiones(texto, sistema, nuevo.split(u',').mid(0, 150));
        break;
    case 1:
        webDeSistema(texto, sistema, nuevo);
        break;
    case 2:
        webDeEmulador(texto, sistema, nombre, nuevo);
        break;
    default:
        emulador(texto, { nombre, u"WEB2="_s + otro, nuevo, u"3"_s, otro, nuevo, nuevo, otro });
    }
}

} // namespace pelusa
