#include "companion/fuentes.h"

#include "host/encoding.h"
#include "host/letters.h"
#include "host/paths.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

constexpr qsizetype MaxLinea = 65536; // bytes; a longer one is none
constexpr qsizetype MaxTexto = 4096; // characters of a name or a description

const QByteArray Marca = "\xEF\xBB\xBF"; // of UTF-8, at the beginning
const QByteArray MarcaLE = "\xFF\xFE"; // of UTF-16, the low byte first
const QByteArray MarcaBE = "\xFE\xFF";

constexpr int UnaDeCuantas = 10; // a text with more characters of control is none

// Not those that end lines and pages, nor the end of the text as old editors mark it.
bool esDeControl(char byte)
{
    return byte >= 0 && byte < ' ' && !QByteArrayView("\t\n\r\f\x1a").contains(byte);
}

bool esJuego(QStringView elemento)
{
    return elemento == u"game" || elemento == u"machine" || elemento == u"software";
}

} // namespace

LectorDeFuente::LectorDeFuente(QSet<QString> buscados)
    : m_buscados(std::move(buscados))
{
}

void LectorDeFuente::Trozo(const QByteArray &bytes)
{
    if (m_empezado) {
        trozoEnUtf8(m_deUtf16 ? QByteArray(m_enUtf8.encode(m_deUtf16->decode(bytes))) : bytes);
        return;
    }
    m_principio += bytes;
    if (m_principio.size() < MarcaLE.size())
        return;
    m_empezado = true;
    if (m_principio.startsWith(MarcaLE) || m_principio.startsWith(MarcaBE))
        m_deUtf16.emplace(
            m_principio.startsWith(MarcaLE) ? QStringConverter::Utf16LE : QStringConverter::Utf16BE);
    Trozo(std::exchange(m_principio, {}));
}

// What the XML says of its own encoding is of no use where it has been another.
void LectorDeFuente::daXml(const QByteArray &bytes)
{
    if (m_deUtf16)
        m_xml.addData(QString::fromUtf8(bytes));
    else
        m_xml.addData(bytes);
    leeXml();
}

void LectorDeFuente::trozoEnUtf8(const QByteArray &bytes)
{
    if (m_error || bytes.isEmpty())
        return;
    if (m_clase == Clase::Xml) {
        daXml(bytes);
        return;
    }
    m_pendiente += bytes;
    m_bytes += bytes.size();
    m_hayNulos = m_hayNulos || bytes.contains('\0');
    m_deControl += std::ranges::count_if(bytes, esDeControl);
    if (m_clase == Clase::SinSaber) {
        QByteArray inicio = m_pendiente.trimmed();
        if (inicio.startsWith(Marca))
            inicio = inicio.sliced(Marca.size()).trimmed();
        if (inicio.isEmpty() || (inicio.size() < Marca.size() && Marca.startsWith(inicio)))
            return;
        m_clase = inicio.startsWith('<') ? Clase::Xml : Clase::Lineas;
        if (m_clase == Clase::Xml) {
            daXml(m_pendiente.sliced(m_pendiente.indexOf('<')));
            m_pendiente.clear();
            return;
        }
    }
    leeLineas(false);
}

void LectorDeFuente::Fin()
{
    if (!m_empezado) {
        m_empezado = true;
        trozoEnUtf8(std::exchange(m_principio, {}));
    }
    if (m_clase == Clase::Lineas)
        leeLineas(true);
    else if (m_clase == Clase::Xml && !m_error && !m_xml.atEnd())
        m_error = Error { m_xml.lineNumber(), u"unexpected end"_s };
    else if (m_clase == Clase::Xml && !m_error
        && m_xml.error() == QXmlStreamReader::PrematureEndOfDocumentError)
        m_error = Error { m_xml.lineNumber(), m_xml.errorString() };
}

void LectorDeFuente::leeXml()
{
    while (!m_xml.atEnd()) {
        m_xml.readNext();
        if (m_xml.isStartElement())
            empiezaElemento();
        else if (m_xml.isEndElement())
            acabaElemento();
        else if (m_xml.isCharacters() && !m_elemento.isEmpty()) {
            QString &texto = m_elemento == u"description" ? m_descripcion
                : m_elemento == u"path"                   ? m_ruta
                                                          : m_titulo;
            texto += m_xml.text().left(MaxTexto - std::min(MaxTexto, texto.size()));
        }
    }
    // More may come.
    if (m_xml.hasError() && m_xml.error() != QXmlStreamReader::PrematureEndOfDocumentError)
        m_error = Error { m_xml.lineNumber(), m_xml.errorString() };
}

void LectorDeFuente::empiezaElemento()
{
    ++m_hondo;
    m_elemento.clear();
    const QStringView nombre = m_xml.name();
    if (m_juego == 0 && esJuego(nombre)) {
        m_juego = m_hondo;
        m_nombre = m_xml.attributes().value(u"name"_s).left(MaxTexto).toString();
        m_descripcion.clear();
        m_ruta.clear();
        m_titulo.clear();
        m_rom.clear();
        m_roms = 0;
    } else if (m_juego > 0 && m_hondo == m_juego + 1) {
        if (nombre == u"description" || nombre == u"path" || nombre == u"name")
            m_elemento = nombre.toString();
        if (nombre == u"rom" && ++m_roms == 1)
            m_rom = m_xml.attributes().value(u"name"_s).left(MaxTexto).toString();
    }
}

void LectorDeFuente::acabaElemento()
{
    m_elemento.clear();
    if (m_hondo-- != m_juego || m_juego == 0)
        return;
    m_juego = 0;
    if (!m_ruta.isEmpty()) {
        const QString ruta = m_ruta.trimmed();
        anota(ruta.sliced(host::lastSeparator(ruta) + 1), m_titulo);
        return;
    }
    m_deCatalogo = true;
    anota(m_nombre, m_descripcion);
    // A game of one file goes by the file's name too; of several they are its parts.
    if (m_roms == 1)
        anota(m_rom, m_descripcion);
}

void LectorDeFuente::leeLineas(bool hastaElFin)
{
    qsizetype desde = 0;
    for (qsizetype fin = m_pendiente.indexOf('\n'); fin >= 0; fin = m_pendiente.indexOf('\n', desde)) {
        if (!m_demasiado && fin - desde <= MaxLinea)
            linea(m_pendiente.sliced(desde, fin - desde));
        m_demasiado = false;
        desde = fin + 1;
    }
    m_pendiente.remove(0, desde);
    if (m_pendiente.size() > MaxLinea) {
        m_pendiente.clear();
        m_demasiado = true;
    }
    if (hastaElFin && !m_demasiado)
        linea(std::exchange(m_pendiente, {}));
}

bool LectorDeFuente::EsAjeno() const
{
    return m_clase != Clase::Xml && (m_hayNulos || m_deControl * UnaDeCuantas > m_bytes);
}

void LectorDeFuente::linea(const QByteArray &bytes)
{
    const QString texto = host::decodeText(bytes).text;
    const qsizetype tabulador = texto.indexOf(u'\t');
    if (tabulador > 0)
        anota(texto.first(tabulador).trimmed(), texto.sliced(tabulador + 1));
}

void LectorDeFuente::anota(const QString &nombre, const QString &texto)
{
    const QString clave = host::upper(nombre);
    const QString descripcion = texto.simplified();
    m_nombres += !descripcion.isEmpty() && !clave.isEmpty();
    if (!descripcion.isEmpty() && m_buscados.contains(clave) && !m_textos.contains(clave))
        m_textos.insert(clave, descripcion);
}

} // namespace companion
