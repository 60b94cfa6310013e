#include "companion/documento.h"

#include "host/encoding.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// A name of bytes that are no text would be another one.
bool esTexto(const QString &texto)
{
    return texto.isValidUtf16() && host::nameToDisk(texto) == texto.toUtf8();
}

// All but plain letters and signs as numbers, so that neither a terminal nor a reader of lines obeys them.
QString enXml(const QString &texto)
{
    QString escrito;
    for (const QChar letra : texto) {
        const auto clase = letra.category();
        if (letra == u'&' || letra == u'<' || letra == u'>' || letra == u'"' || clase == QChar::Other_Control
            || clase == QChar::Other_Format || clase == QChar::Separator_Line
            || clase == QChar::Separator_Paragraph)
            escrito += u"&#"_s + QString::number(letra.unicode()) + u';';
        else
            escrito += letra;
    }
    return escrito;
}

void ponElemento(QString &texto, const QString &nombre, const QString &valor)
{
    texto += u"    <%1>"_s.arg(nombre) + enXml(valor) + u"</%1>\n"_s.arg(nombre);
}

// In double quotes, which none of the pieces may hold.
QString enComillas(const QStringList &piezas)
{
    QString linea;
    for (const QString &pieza : piezas)
        linea += (linea.isEmpty() ? u"\""_s : u" \""_s) + pieza + u'"';
    return linea;
}

bool cabeEntreComillas(const QStringList &piezas)
{
    return !piezas.isEmpty() && std::ranges::all_of(piezas, [](const QString &pieza) {
        return CabeEnPegasus(pieza) && !pieza.contains(u'"') && !pieza.contains(u'\\')
            && !pieza.contains(u'{');
    });
}

} // namespace

bool CabeEnXml(const QString &texto)
{
    return esTexto(texto) && !texto.isEmpty() && std::ranges::none_of(texto, [](QChar letra) {
        return (letra < u' ' && letra != u'\t' && letra != u'\n' && letra != u'\r') || letra >= QChar(0xFFFE);
    });
}

bool CabeEnPegasus(const QString &texto)
{
    return esTexto(texto) && !texto.isEmpty() && texto == texto.trimmed()
        && std::ranges::none_of(texto, [](QChar letra) { return letra.category() == QChar::Other_Control; });
}

QString Gamelist(const std::vector<Entrega> &entregas)
{
    QString texto = u"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<gameList>\n"_s;
    for (const Entrega &entrega : entregas) {
        for (const Entregado &juego : entrega.juegos) {
            if (!CabeEnXml(juego.fichero) || !CabeEnXml(juego.titulo))
                continue;
            texto += u"  <game>\n"_s;
            ponElemento(texto, u"path"_s, juego.fichero);
            ponElemento(texto, u"name"_s, juego.titulo);
            if (CabeEnXml(juego.captura))
                ponElemento(texto, u"image"_s, juego.captura);
            texto += u"  </game>\n"_s;
        }
    }
    return texto + u"</gameList>\n"_s;
}

QString Pegasus(const std::vector<Entrega> &entregas)
{
    QString texto;
    for (const Entrega &entrega : entregas) {
        if (!CabeEnPegasus(entrega.nombre))
            continue;
        QString ficheros;
        QString juegos;
        for (const Entregado &juego : entrega.juegos) {
            if (!CabeEnPegasus(juego.fichero) || !CabeEnPegasus(juego.titulo))
                continue;
            ficheros += u"  "_s + juego.fichero + u'\n';
            juegos += u"\ngame: "_s + juego.titulo + u"\nfile: "_s + juego.fichero + u'\n';
            if (CabeEnPegasus(juego.captura))
                juegos += u"assets.screenshot: "_s + juego.captura + u'\n';
        }
        texto += (texto.isEmpty() ? QString() : u"\n"_s) + u"collection: "_s + entrega.nombre + u'\n';
        if (cabeEntreComillas(entrega.orden))
            texto += u"launch: "_s + enComillas(entrega.orden) + u" \"{file.name}\"\n"_s;
        texto += (ficheros.isEmpty() ? QString() : u"files:\n"_s + ficheros) + juegos;
    }
    return texto;
}

} // namespace companion
