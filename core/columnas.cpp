#include "core/columnas.h"

#include <QSet>
#include <QStringView>

#include <cstddef>
#include <string>

namespace core {

namespace {

constexpr int LineasSeguidas = 3;

bool esTrazo(QChar letra)
{
    return letra.unicode() >= 0x2500 && letra.unicode() <= 0x259F;
}

// Four of them in a row: one alone is a letter.
bool tieneTrazos(const QString &texto)
{
    constexpr int Bastantes = 4;
    static const QString trazosDeConsola = QStringLiteral("ÄÍÛÜß°±²");
    int iguales = 0;
    for (qsizetype i = 0; i < texto.size(); ++i) {
        if (esTrazo(texto[i]))
            return true;
        iguales = i > 0 && texto[i] == texto[i - 1] ? iguales + 1 : 1;
        if (iguales == Bastantes && trazosDeConsola.contains(texto[i]))
            return true;
    }
    return false;
}

// By characters: one beyond U+FFFF is one of a column too.
using Linea = std::u32string;

Linea sinTabuladores(const Linea &linea)
{
    Linea ancha;
    for (const char32_t letra : linea) {
        if (letra == U'\t')
            ancha.append(AnchoDeTabulador - ancha.size() % AnchoDeTabulador, U' ');
        else
            ancha += letra;
    }
    return ancha;
}

// The line between the rows of a table: "+---+---+".
bool esBorde(const Linea &linea)
{
    const bool deTrazos = linea.find_first_not_of(U"+-=|: \r") == Linea::npos;
    const bool largo = linea.find(U"--") != Linea::npos || linea.find(U"==") != Linea::npos;
    return deTrazos && largo && linea.find(U'+') != Linea::npos;
}

// Where a word begins behind a gap, or an upright stroke stands; where strokes cross, too.
QSet<qsizetype> columnasDe(const Linea &linea)
{
    const bool borde = esBorde(linea);
    QSet<qsizetype> columnas;
    bool empezada = false;
    for (std::size_t i = 0; i < linea.size(); ++i) {
        if (linea[i] == U' ')
            continue;
        const bool trasHueco = i >= 2 && linea[i - 1] == U' ' && linea[i - 2] == U' ';
        if ((empezada && trasHueco) || linea[i] == U'|' || (borde && linea[i] == U'+'))
            columnas.insert(qsizetype(i));
        empezada = true;
    }
    return columnas;
}

bool sonSignos(const Linea &linea)
{
    constexpr int Bastantes = 3;
    int signos = 0;
    int letras = 0;
    for (const char32_t letra : linea) {
        if (QChar::isSpace(letra))
            continue;
        ++(QChar::isLetterOrNumber(letra) ? letras : signos);
    }
    return signos >= Bastantes && signos > letras;
}

} // namespace

bool TieneColumnas(const QString &texto)
{
    if (tieneTrazos(texto))
        return true;
    QList<QSet<qsizetype>> columnas;
    int deSignos = 0;
    for (const QStringView &escrita : QStringView(texto).split(u'\n')) {
        const Linea linea = escrita.toString().remove(u'\r').toStdU32String();
        deSignos = sonSignos(linea) ? deSignos + 1 : 0;
        columnas.append(columnasDe(sinTabuladores(linea)));
        if (columnas.size() > LineasSeguidas)
            columnas.removeFirst();
        QSet<qsizetype> comunes = columnas.first();
        for (const QSet<qsizetype> &otras : std::as_const(columnas))
            comunes &= otras;
        if (deSignos == LineasSeguidas || (columnas.size() == LineasSeguidas && !comunes.isEmpty()))
            return true;
    }
    return false;
}

} // namespace core
