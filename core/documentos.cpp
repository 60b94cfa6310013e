#include "core/documentos.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/numberedfiles.h"
#include "host/paths.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace core {

namespace {

// The executable's name without its ending of three letters, if it has one.
QString baseDe(const QString &exe)
{
    const QString nombre = exe.sliced(host::lastSeparator(exe) + 1);
    const qsizetype punto = nombre.size() - 4;
    return punto >= 0 && nombre[punto] == u'.' ? nombre.left(punto) : nombre;
}

// Without the first bytes of a character whose other bytes lie behind the end. For texts of four bytes or
// more.
QByteArray sinCaracterPartido(QByteArray bytes)
{
    qsizetype desde = bytes.size();
    while (bytes.size() - desde < 3 && (uchar(bytes[desde - 1]) & 0xC0) == 0x80)
        --desde;
    const uchar cabeza = uchar(bytes[desde - 1]);
    const int largo = cabeza >= 0xF0 ? 4 : cabeza >= 0xE0 ? 3 : cabeza >= 0xC0 ? 2 : 1;
    const bool partido = bytes.size() - (desde - 1) < largo;
    const QByteArray entero = partido ? bytes.left(desde - 1) : bytes;
    return host::decodeText(entero).encoding == host::Encoding::Windows1252 ? bytes : entero;
}

} // namespace

QString DirectorioDe(const QString &exe)
{
    return exe.left(host::lastSeparator(exe) + 1);
}

QStringList CandidatosDeAyuda(const QString &exe)
{
    const QString dir = DirectorioDe(exe);
    const QString base = baseDe(exe);
    // The blank ahead of the last one's ending is meant.
    return { dir + u"readme.txt"_s, dir + base + u".TXT"_s, dir + base + u".DOC"_s, dir + u"readme."_s,
        dir + u"docs\\manual.txt"_s, dir + u"readmee.txt"_s, dir + u"changes.txt"_s, dir + u"beta.txt"_s,
        dir + u"english.txt"_s, dir + base + u".ENG"_s, dir + u"read.me"_s, dir + u"release.txt"_s,
        dir + u"read_me.txt"_s, dir + u"readme98.txt"_s, dir + u"vsmc.doc"_s, dir + u"wrjvspsm doc"_s };
}

QStringList CandidatosDeConfiguracion(const QString &exe)
{
    const QString dir = DirectorioDe(exe);
    const QString base = baseDe(exe);
    return { dir + base + u".INI"_s, dir + base + u".CFG"_s, dir + u"gen.ini"_s, dir + u"joy.cfg"_s,
        dir + u"mame.cfg"_s, dir + u"defctrls.ini"_s, dir + u"settings.cfg"_s, dir + u"kgen98.cfg"_s,
        dir + u"nemu64.ini"_s, dir + u"neorage.ini"_s, dir + u"nez.cfg"_s };
}

std::optional<QString> PrimeroQueExiste(const QStringList &candidatos)
{
    const auto encontrado = std::ranges::find_if(candidatos, host::exists);
    return encontrado == candidatos.end() ? std::nullopt : std::optional(*encontrado);
}

Documento LeeDocumento(const QString &ruta)
{
    Documento documento;
    QByteArray bytes = host::readBytes(ruta, LargoDeDocumento + 1);
    documento.cortado = bytes.size() > LargoDeDocumento;
    if (documento.cortado)
        bytes = sinCaracterPartido(bytes.left(LargoDeDocumento));
    documento.texto = host::decodeText(bytes).text;
    while (documento.texto.endsWith(u' '))
        documento.texto.chop(1);
    return documento;
}

} // namespace core
