#include "launch/piezas.h"

#include "launch/intenta.h"
#include "launch/nombresdos.h"

#include "core/clasedeprograma.h"

#include "host/drives.h"
#include "host/encoding.h"
#include "host/letters.h"
#include "host/paths.h"

using namespace Qt::StringLiterals;

namespace launch {

namespace {

Ruta rutaCorta(const QString &ruta, UnidadesDOS *dos, bool conApodos = true)
{
    const QString corta = host::GetShortPathNameA(ruta);
    if (corta.isEmpty())
        return {};
    const QString escrita = host::trueSpelling(ruta);
    const QString enDisco = escrita.startsWith(u'/') ? escrita : host::currentDirectory() + u'/' + escrita;
    std::optional<QByteArray> enDOS;
    if (dos)
        enDOS = conApodos ? dos->RutaOApodo(enDisco) : dos->Ruta(enDisco);
    return { host::lower(enDOS ? QString::fromLatin1(*enDOS) : corta), enDisco };
}

// Found paths are cut at the slash alone: a backslash in one belongs to a name. In those of DOS there is
// none.
qsizetype corteDe(const QString &ruta)
{
    const QChar separador = host::driveLetter(ruta).isNull() ? u'/' : u'\\';
    return ruta.lastIndexOf(separador) + 1;
}

QString nombreDe(const QString &ruta)
{
    return ruta.sliced(corteDe(ruta));
}

QString directorioDe(const QString &ruta)
{
    return ruta.first(corteDe(ruta));
}

Ruta nombreDe(const Ruta &ruta)
{
    return { nombreDe(ruta.texto), nombreDe(ruta.enDisco) };
}

// A name of the game alone: the emulator looks for it in a place of its own, so the text is what it gets.
LineaDeOrden &soloNombre(LineaDeOrden &orden, const QString &nombre)
{
    return orden.Ruta(nombre, nombre);
}

LineaDeOrden &comienzo(LineaDeOrden &orden, const Piezas &p)
{
    return orden.Ruta(p.programa.ExeCorto.texto, p.programa.ExeCorto.enDisco).Texto(u' ' + p.Par1 + u' ');
}

void final(LineaDeOrden &orden, const Piezas &p)
{
    orden.Texto(u' ' + p.Par2 + u' ' + p.ParRom);
}

void finalPegado(LineaDeOrden &orden, const Piezas &p)
{
    orden.Texto(p.Par2 + u' ' + p.ParRom);
}

LineaDeOrden soloExe(const Piezas &p)
{
    LineaDeOrden orden;
    orden.Ruta(p.programa.ExeNombre.texto, p.programa.ExeNombre.enDisco).Texto(p.Par1);
    return orden;
}

LineaDeOrden conRuta(const Piezas &p, const Ruta &ruta)
{
    LineaDeOrden orden;
    final(comienzo(orden, p).Ruta(ruta.texto, ruta.enDisco), p);
    return orden;
}

LineaDeOrden conNombre(const Piezas &p, const QString &nombre)
{
    LineaDeOrden orden;
    final(soloNombre(comienzo(orden, p), nombre), p);
    return orden;
}

LineaDeOrden comprimidoPorFichero(const Piezas &p)
{
    LineaDeOrden orden;
    orden.Ruta(p.programa.ExeNombre.texto, p.programa.ExeNombre.enDisco).Texto(u"  "_s + p.Par1 + u' ');
    final(soloNombre(orden, p.RomBase), p);
    return orden;
}

LineaDeOrden autoComprimidoPorNota(const Piezas &p)
{
    LineaDeOrden orden;
    finalPegado(soloNombre(comienzo(orden, p), p.RomCorto.texto), p);
    return orden;
}

LineaDeOrden neoRagePorNota(const Piezas &p)
{
    const QString enDisco = p.RomCorto.enDisco.isEmpty() ? p.RomCorto.texto + u".zip"_s : p.RomCorto.enDisco;
    LineaDeOrden orden;
    comienzo(orden, p)
        .Ruta(p.RomDir.texto + p.RomCorto.texto + u".zip"_s, p.RomDir.enDisco + enDisco)
        .Texto(u" "_s);
    finalPegado(orden, p);
    return orden;
}

} // namespace

Ruta operator+(const Ruta &directorio, const Ruta &nombre)
{
    return { directorio.texto + nombre.texto, directorio.enDisco + nombre.enDisco };
}

Programa ProgramaDe(const QString &exe, UnidadesDOS *dos)
{
    const Ruta corta = rutaCorta(exe, dos);
    return { corta, nombreDe(corta), { directorioDe(corta.texto), directorioDe(corta.enDisco) } };
}

QString TituloDe(const QString &ExeNombre)
{
    const qsizetype punto = ExeNombre.indexOf(u'.');
    return punto < 0 ? ExeNombre : ExeNombre.first(punto);
}

Ruta RomDirDe(const QString &rom)
{
    return rutaCorta(rom, nullptr);
}

Ruta RomCortoDe(const Ruta &RomDir, const QString &nombre, UnidadesDOS *dos, bool conApodos)
{
    return nombreDe(rutaCorta(RomDir.enDisco + host::lower(nombre), dos, conApodos));
}

QString ClaveEnDOS(const QString &exe, const QString &rom, const QString &nombre)
{
    if (core::ClaseDe(exe) != core::ClaseDePrograma::DOS)
        return {};
    UnidadesDOS dos;
    return host::upper(RomCortoDe(RomDirDe(rom), nombre, &dos).texto);
}

// At once: one by one each asks for the whole directory.
QSet<QString> ClavesEnDOS(const QString &exe, const QString &rom)
{
    QSet<QString> claves;
    const QString lugar = host::trueSpelling(rom);
    if (lugar.isEmpty() || core::ClaseDe(exe) != core::ClaseDePrograma::DOS)
        return claves;
    QByteArrayList entradas;
    Intenta([&] { entradas = host::listInDiskOrder(lugar); });
    const QByteArrayList nombres = NombresDOS(entradas);
    for (qsizetype i = 0; i < entradas.size(); ++i)
        claves.insert(SeAbreEnDOS(nombres[i]) ? host::nameFromDisk(nombres[i])
                                              : ClaveEnDOS(exe, rom, host::nameFromDisk(entradas[i])));
    return claves;
}

QString RomBaseDe(const QString &RomCorto)
{
    return RomCorto.first(qMax(RomCorto.indexOf(u'.'), 0));
}

Ruta ArchivoZipDe(Via via, const Piezas &p)
{
    const bool porNota = via == Via::Nota;
    const QString nombre = (porNota ? p.RomCorto.texto : p.RomBase) + u".zip"_s;
    // By file name the entry may be another file than the archive of its base.
    const bool deLaEntrada = porNota || nombre == p.RomCorto.texto;
    const QString final = porNota ? QString() : u" "_s;
    return { p.RomDir.texto + nombre + final,
        p.RomDir.enDisco + (deLaEntrada ? p.RomCorto.enDisco : nombre) + final };
}

LineaDeOrden Compone(Caso caso, Via via, const Piezas &p)
{
    const bool porNota = via == Via::Nota;
    const Ruta entera = p.RomDir + p.RomCorto;
    switch (caso) {
    case Caso::SoloExe:
        return soloExe(p);
    case Caso::Suelto:
        return conRuta(p, entera);
    case Caso::Desempaquetado:
        return conRuta(p, p.Desempaquetada);
    case Caso::Directorio:
        return conNombre(p, p.RomCorto.texto);
    case Caso::Comprimido:
        return porNota ? conNombre(p, p.RomCorto.texto) : comprimidoPorFichero(p);
    case Caso::AutoComprimido:
        return porNota ? autoComprimidoPorNota(p) : conNombre(p, p.RomBase);
    case Caso::NeoRage:
        return porNota ? neoRagePorNota(p) : conRuta(p, entera);
    }
    return {};
}

} // namespace launch
