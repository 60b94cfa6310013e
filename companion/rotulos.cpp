#include "companion/rotulos.h"

#include "core/notas.h"

#include "host/letters.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

constexpr qsizetype LetrasDeTerminacion = 4;

// Where the bracket begins that ends the text; -1 if none does.
qsizetype inicioDeMarca(QStringView texto)
{
    if (!texto.endsWith(u')') && !texto.endsWith(u']'))
        return -1;
    const QChar cierra = texto.back();
    const QChar abre = cierra == u')' ? u'(' : u'[';
    int hondo = 0;
    for (qsizetype i = texto.size() - 1; i >= 0; --i) {
        hondo += texto[i] == cierra ? 1 : texto[i] == abre ? -1 : 0;
        if (hondo == 0)
            return i;
    }
    return -1;
}

// "Zelda, The" is "The Zelda".
QString conArticuloDelante(const QString &parte)
{
    static const QStringList articulos { u"The"_s, u"A"_s, u"An"_s, u"Le"_s, u"La"_s, u"Les"_s, u"L'"_s,
        u"Un"_s, u"Une"_s, u"Der"_s, u"Die"_s, u"Das"_s, u"Ein"_s, u"Eine"_s, u"El"_s, u"Los"_s, u"Las"_s,
        u"Una"_s, u"Il"_s, u"Lo"_s, u"Gli"_s, u"Els"_s, u"Het"_s };
    const qsizetype coma = parte.lastIndexOf(u", "_s);
    const QString articulo = coma > 0 ? parte.sliced(coma + 2) : QString();
    if (!articulos.contains(articulo, Qt::CaseInsensitive))
        return parte;
    return articulo + (articulo.endsWith(u'\'') ? QString() : u" "_s) + parte.first(coma);
}

// Of each of the names that stand for one game, and of each part of a name.
QString conArticulosDelante(const QString &titulo)
{
    QStringList nombres = titulo.split(u" ~ "_s);
    for (QString &nombre : nombres) {
        QStringList partes = nombre.split(u" - "_s);
        for (QString &parte : partes)
            parte = conArticuloDelante(parte);
        nombre = partes.join(u" - "_s);
    }
    return nombres.join(u" ~ "_s);
}

} // namespace

Rotulo RotuloDe(const QString &nombre)
{
    QString resto = nombre;
    if (!resto.contains(u' '))
        resto.replace(u'_', u' ');
    resto = resto.simplified();
    QString marcas;
    for (qsizetype desde = inicioDeMarca(resto); desde > 0; desde = inicioDeMarca(resto)) {
        marcas = resto.sliced(desde) + (marcas.isEmpty() ? QString() : u' ' + marcas);
        resto = resto.first(desde).trimmed();
    }
    return { conArticulosDelante(resto), marcas };
}

QString SinTerminacion(const QString &nombre)
{
    const qsizetype punto = nombre.lastIndexOf(u'.');
    const QStringView final = punto > 0 ? QStringView(nombre).sliced(punto + 1) : QStringView();
    const bool esSuya = !final.isEmpty() && final.size() <= LetrasDeTerminacion
        && std::ranges::all_of(final, [](QChar letra) { return letra.isLetterOrNumber(); });
    return esSuya ? nombre.first(punto) : nombre;
}

QString Anotable(const QString &descripcion)
{
    QString linea = descripcion;
    std::ranges::replace_if(
        linea, [](QChar letra) { return letra.category() == QChar::Other_Control; }, u' ');
    linea = linea.simplified();
    // A description ends at double quotes.
    if (core::DescripcionLeida(linea) != linea || !core::EsDescripcionEntera(linea))
        linea.replace(u'"', u'\'');
    return core::DescripcionLeida(linea) == linea && core::EsDescripcionEntera(linea) ? linea : QString();
}

Bautizados Bautiza(const std::vector<PorDescribir> &juegos, const QSet<QString> &ocupados)
{
    QHash<QString, int> veces;
    for (const PorDescribir &juego : juegos)
        ++veces[Anotable(juego.titulo)];
    QSet<QString> usados = ocupados;
    Bautizados bautizados;
    for (const PorDescribir &juego : juegos) {
        const QString titulo = Anotable(juego.titulo);
        if (juego.estaDescrito || juego.titulo.isEmpty() || titulo == juego.entrada)
            continue;
        const bool solo = veces[titulo] == 1 && !usados.contains(titulo);
        const QString texto = solo ? titulo : Anotable(juego.entero);
        if (texto == juego.entrada)
            continue;
        if (texto.isEmpty() || !core::SePuedeDescribir(juego.clave))
            bautizados.rechazados.push_back({ juego.entrada, Motivo::SinClave });
        else if (usados.contains(texto))
            bautizados.rechazados.push_back({ juego.entrada, Motivo::Repetida });
        else
            bautizados.descripciones.emplace_back(juego.clave, texto);
        usados.insert(texto);
    }
    return bautizados;
}

} // namespace companion
