#include "core/info.h"

#include "host/letters.h"
#include "host/numbers.h"

#include <QList>
#include <QSet>
#include <QTextBoundaryFinder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace core {

void BuscaROM(const Modulo &M, const QString &texto, const std::function<void(const FichaDeROM &)> &visita)
{
    bool encontrada = false;
    int i = 0;
    do {
        if (M.Nota_Texto(i) == texto) {
            encontrada = true;
            visita({ host::upper(M.Nota_Clave(i)), true });
        }
        ++i;
    } while (!M.Nota_Clave(i).isEmpty());
    if (!encontrada)
        visita({ texto, false });
}

NotasPorTexto::NotasPorTexto(const Modulo &modulo)
    : M(modulo)
{
    do {
        m_notas[M.Nota_Texto(m_recorridas)] += m_recorridas;
        ++m_recorridas;
    } while (m_recorridas < M.Nota_Clave.tamaño() && !M.Nota_Clave(m_recorridas).isEmpty());
}

void NotasPorTexto::Busca(const QString &texto, const std::function<void(const FichaDeROM &)> &visita) const
{
    const auto suyas = m_notas.constFind(texto);
    if (suyas != m_notas.constEnd()) {
        for (const int i : *suyas)
            visita({ host::upper(M.Nota_Clave(i)), true });
    }
    M.Nota_Clave(m_recorridas); // a full table fails
    if (suyas == m_notas.constEnd())
        visita({ texto, false });
}

int NotasPorTexto::Primera(const QString &texto) const
{
    const auto suyas = m_notas.constFind(texto);
    return suyas == m_notas.constEnd() ? -1 : suyas->first();
}

namespace {

// Gives the notes with a text, or the text itself; fails behind a full table.
using Busqueda = std::function<void(const std::function<void(const FichaDeROM &)> &visita)>;

QString kilobytes(qint64 bytes)
{
    return host::formatGrouped(static_cast<double>(bytes) / 1024);
}

// A size read back as a number and written again: no group signs, and a blank ahead of it.
QString comoNumero(const QString &tamaño)
{
    QString cifras;
    for (const QChar letra : tamaño) {
        if (letra.isDigit())
            cifras += letra;
    }
    if (cifras.isEmpty())
        throw host::Failure(host::TypeMismatch, u"read a size as a number"_s, tamaño);
    return u' ' + cifras;
}

QString hastaElPunto(const QString &nombre)
{
    const qsizetype punto = nombre.indexOf(u'.');
    if (punto < 0)
        throw host::Failure(host::InvalidArgument, u"cut a name at its point"_s, nombre);
    return nombre.left(punto);
}

} // namespace

std::optional<QString> FicheroMedido(int tipo, const FichaDeROM &ficha)
{
    if (UnZipPorJuego(tipo) && ficha.conNota)
        return host::upper(ficha.nombre) + u".ZIP"_s;
    return FicherosSueltos(tipo) || UnZipPorJuego(tipo) ? std::optional(ficha.nombre) : std::nullopt;
}

QString LineaDeInfo(int tipo, const FichaDeROM &ficha, qint64 bytes)
{
    const QString mayus = host::upper(ficha.nombre);
    if (FicherosSueltos(tipo)) {
        const QString marca = mayus.endsWith(u"ZIP") ? u" [ZIP]"_s : u" [NOR]"_s;
        return ficha.nombre + u' ' + kilobytes(bytes) + u"Kb "_s + marca;
    }
    if (UnDirectorioPorJuego(tipo))
        return mayus + u" [DIR]"_s;
    if (!UnZipPorJuego(tipo))
        return {};
    if (ficha.conNota)
        return mayus + u".ZIP "_s + comoNumero(kilobytes(bytes)) + u"Kb [ZIP]"_s;
    return mayus + u' ' + kilobytes(bytes) + u"Kb [ZIP]"_s;
}

namespace {

// False for a ZIP with a note that is so short that its line can't tell how long.
bool seDice(int tipo, const FichaDeROM &ficha, qint64 bytes)
{
    return bytes >= 1024 || !UnZipPorJuego(tipo) || !ficha.conNota || !kilobytes(bytes).isEmpty();
}

// The index of the first file that can't be looked at, or told, else of the last. Those that are sure aren't
// looked at.
qsizetype primeraQueFalla(int tipo, const QList<FichaDeROM> &fichas,
    const std::function<bool(const FichaDeROM &)> &segura, const LargosDeFicheros &largos)
{
    QStringList ficheros;
    QList<qsizetype> lugares;
    const qsizetype ultima = fichas.size() - 1;
    for (qsizetype i = 0; i < ultima; ++i) {
        if (segura(fichas[i]))
            continue;
        ficheros.append(FicheroMedido(tipo, fichas[i]).value());
        lugares.append(i);
    }
    const QList<qint64> bytes = largos(ficheros);
    for (qsizetype i = 0; i < lugares.size(); ++i) {
        if (i >= bytes.size() || !seDice(tipo, fichas[lugares[i]], bytes[i]))
            return lugares[i];
    }
    return ultima;
}

QString ultimaLinea(const Busqueda &busca, int tipo, const QString &directorio,
    const LargosDeFicheros &largos, const EstaSeguro &esta)
{
    QList<FichaDeROM> fichas;
    try {
        busca([&](const FichaDeROM &ficha) { fichas.append(ficha); });
    } catch (const host::Failure &) {
        // A full table ends the walk: the notes ahead count.
    }
    if (fichas.isEmpty())
        return {};
    if (!FicheroMedido(tipo, fichas.last()))
        return LineaDeInfo(tipo, fichas.last(), 0);
    const auto segura = [&](const FichaDeROM &ficha) {
        return FicherosSueltos(tipo) && esta(directorio + ficha.nombre);
    };
    for (qsizetype i = primeraQueFalla(tipo, fichas, segura, largos); i >= 0; --i) {
        const QList<qint64> bytes = largos({ FicheroMedido(tipo, fichas[i]).value() });
        if (!bytes.isEmpty() && seDice(tipo, fichas[i], bytes.first()))
            return LineaDeInfo(tipo, fichas[i], bytes.first());
    }
    return {};
}

} // namespace

QString UltimaLineaDeInfo(const Modulo &M, const QString &texto, int tipo, const QString &directorio,
    const LargosDeFicheros &largos, const EstaSeguro &esta)
{
    return ultimaLinea(
        [&](const auto &visita) { BuscaROM(M, texto, visita); }, tipo, directorio, largos, esta);
}

QString UltimaLineaDeInfo(const NotasPorTexto &notas, const QString &texto, int tipo,
    const QString &directorio, const LargosDeFicheros &largos, const EstaSeguro &esta)
{
    return ultimaLinea(
        [&](const auto &visita) { notas.Busca(texto, visita); }, tipo, directorio, largos, esta);
}

namespace {

// Where the size and the mark of a line of facts begin, or the mark alone; its length for a text without any.
qsizetype finDelNombre(QStringView linea)
{
    if (linea.endsWith(u" [DIR]"))
        return linea.chopped(6).size();
    QStringView resto = linea;
    if (!resto.endsWith(u" [ZIP]") && !resto.endsWith(u" [NOR]"))
        return linea.size();
    resto.chop(5);
    while (resto.endsWith(u' '))
        resto.chop(1);
    const qsizetype blanco = resto.lastIndexOf(u' ');
    if (!resto.endsWith(u"Kb") || blanco < 0)
        return linea.size();
    return blanco > 0 && linea[blanco - 1] == u' ' ? blanco - 1 : blanco;
}

// Between letters as a reader counts them: the accents of one stay with it.
QList<qsizetype> cortesDe(const QString &nombre)
{
    QTextBoundaryFinder letras(QTextBoundaryFinder::Grapheme, nombre);
    QList<qsizetype> cortes { 0 };
    while (letras.toNextBoundary() > 0)
        cortes.append(letras.position());
    return cortes;
}

} // namespace

QString InfoQueCabe(const QString &linea, const std::function<bool(const QString &)> &cabe)
{
    if (cabe(linea))
        return linea;
    // Of a name without end no label shows more.
    constexpr qsizetype Mucho = 2000;
    const qsizetype fin = finDelNombre(linea);
    const QString datos = linea.sliced(fin);
    const QString principio = linea.first(std::min(fin, Mucho));
    const QString final = linea.first(fin).last(std::min(fin, Mucho));
    const QList<qsizetype> delante = cortesDe(principio);
    const QList<qsizetype> detras = cortesDe(final);
    const auto con = [&](qsizetype letras) {
        const qsizetype corte = delante[std::min((letras + 1) / 2, delante.size() - 1)];
        const qsizetype resto = detras[detras.size() - 1 - std::min(letras / 2, detras.size() - 1)];
        return principio.first(corte) + u'…' + final.sliced(resto) + datos;
    };
    qsizetype caben = 0;
    qsizetype sobran = delante.size();
    while (sobran - caben > 1) {
        const qsizetype medio = (caben + sobran) / 2;
        (cabe(con(medio)) ? caben : sobran) = medio;
    }
    return con(caben);
}

QString RutaDeCaptura(int tipo, const QString &directorio, const FichaDeROM &ficha)
{
    const QString gif = u".GIF"_s;
    if (UnDirectorioPorJuego(tipo) || (UnZipPorJuego(tipo) && ficha.conNota))
        return directorio + ficha.nombre + gif;
    if (UnZipPorJuego(tipo) || FicherosSueltos(tipo))
        return directorio + hastaElPunto(ficha.nombre) + gif;
    return {};
}

namespace {

QStringList capturas(const Busqueda &busca, int tipo, const QString &directorio)
{
    QStringList rutas;
    QSet<QString> vistas;
    QString ultima;
    busca([&](const FichaDeROM &ficha) {
        ultima = RutaDeCaptura(tipo, directorio, ficha);
        if (ultima.isEmpty() || vistas.contains(ultima))
            return;
        vistas.insert(ultima);
        rutas.append(ultima);
    });
    if (!rutas.isEmpty())
        rutas.move(rutas.lastIndexOf(ultima), rutas.size() - 1);
    return rutas;
}

} // namespace

QStringList CapturasDe(const Modulo &M, const QString &texto, int tipo, const QString &directorio)
{
    return capturas([&](const auto &visita) { BuscaROM(M, texto, visita); }, tipo, directorio);
}

QStringList CapturasDe(const NotasPorTexto &notas, const QString &texto, int tipo, const QString &directorio)
{
    return capturas([&](const auto &visita) { notas.Busca(texto, visita); }, tipo, directorio);
}

} // namespace core
