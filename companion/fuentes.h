// Descriptions of games out of lists of other makers, read in pieces of any length.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringConverter>
#include <QXmlStreamReader>

#include <optional>

namespace companion {

// A list is XML where it begins with "<": a DAT, a list of MAME or of its software, or a gamelist.xml. Else
// it is lines of name, tab, description; other lines are passed over. With its mark it may be UTF-16. Only
// what is asked for is kept, so that a list of any length takes little room.
class LectorDeFuente {
public:
    // Names in upper case, with their endings and without.
    explicit LectorDeFuente(QSet<QString> buscados);

    // Does nothing behind an error.
    void Trozo(const QByteArray &bytes);
    void Fin();

    // The first description of each name asked for, by the names.
    const QHash<QString, QString> &Textos() const { return m_textos; }

    // How many names with a description it has, asked for or not.
    qint64 Nombres() const { return m_nombres; }

    // Whether the descriptions are those of a DAT or of MAME, with marks in brackets and articles behind.
    bool EsDeCatalogo() const { return m_deCatalogo; }

    // Whether lines hold what no text does: bytes of 0, or a tenth of those that only a terminal takes.
    bool EsAjeno() const;

    struct Error {
        qint64 linea;
        QString motivo;
    };
    const std::optional<Error> &ElError() const { return m_error; }

private:
    enum class Clase { SinSaber, Xml, Lineas };

    void trozoEnUtf8(const QByteArray &bytes);
    void daXml(const QByteArray &bytes);

    void leeXml();
    void empiezaElemento();
    void acabaElemento();
    void leeLineas(bool hastaElFin);
    void linea(const QByteArray &bytes);
    void anota(const QString &nombre, const QString &texto);

    const QSet<QString> m_buscados;
    QHash<QString, QString> m_textos;
    qint64 m_nombres = 0;
    std::optional<Error> m_error;
    Clase m_clase = Clase::SinSaber;
    QByteArray m_principio; // of which it isn't known yet whether it is a mark of UTF-16
    std::optional<QStringDecoder> m_deUtf16;
    QStringEncoder m_enUtf8 { QStringConverter::Utf8 }; // keeps half a character until the rest comes
    bool m_empezado = false;
    qint64 m_bytes = 0; // of lines
    qint64 m_deControl = 0; // of those
    bool m_hayNulos = false;
    QByteArray m_pendiente; // bytes without an end of line yet
    bool m_demasiado = false; // the line that they belong to is none

    QXmlStreamReader m_xml;
    int m_hondo = 0;
    int m_juego = 0; // the depth of the game's element, 0 outside of one
    QString m_elemento; // the child whose text is being read
    QString m_nombre;
    QString m_descripcion;
    QString m_ruta; // of a gamelist.xml
    QString m_titulo;
    QString m_rom;
    int m_roms = 0;
    bool m_deCatalogo = false;
};

} // namespace companion
