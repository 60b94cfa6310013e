#include "core/notasleidas.h"

#include "core/modulo.h"
#include "core/notas.h"

#include "host/letters.h"
#include "host/textsource.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace core {

namespace {

// The next field. Carriage returns at its end are no part of what a line says.
QString campoDe(host::TextSource &fuente)
{
    QString campo = fuente.atEnd() ? QString() : fuente.readField();
    while (campo.endsWith(u'\r'))
        campo.chop(1);
    return campo;
}

// Where a system's notes begin, and how far they may reach until they run into something else.
struct Tramo {
    qsizetype desde = 0;
    qsizetype hasta = 0;
};

// The text lives on, so no copy of it is needed.
QString desde(const QString &texto, qsizetype indice)
{
    return QString::fromRawData(texto.constData() + indice, texto.size() - indice);
}

// The first block of each of these systems.
QHash<QString, Tramo> tramosDe(const QString &texto, const QStringList &sistemas)
{
    const QSet<QString> nombres(sistemas.begin(), sistemas.end());
    QHash<QString, Tramo> tramos;
    QString abierto;
    host::TextSource fuente(texto);
    while (!fuente.atEnd()) {
        const qsizetype inicio = texto.size() - fuente.rest().size();
        const QString linea = fuente.readLine();
        const bool cabecera = nombres.contains(linea);
        const bool fin =
            linea.startsWith(CabeceraParametros) || (linea.startsWith(u'[') && !linea.contains(u','));
        if (!abierto.isEmpty() && linea != abierto && (cabecera || fin)) {
            tramos[abierto].hasta = inicio;
            abierto.clear();
        }
        if (!cabecera || tramos.contains(linea))
            continue;
        abierto = linea;
        tramos.insert(linea, { texto.size() - fuente.rest().size(), texto.size() });
    }
    return tramos;
}

struct NotaLeida {
    QString texto;
    bool suya = false; // a line of its own in the system's own block
};
using Notas = QHash<QString, NotaLeida>;

// The first note of each key. None where the list would come up empty: the apostrophe that ends them is
// missing, or the table takes no more.
Notas notasDe(const QString &texto, const Tramo &tramo)
{
    const QString resto = desde(texto, tramo.desde);
    host::TextSource fuente(resto);
    const auto leido = [&] { return resto.size() - fuente.rest().size(); };
    const auto empiezaLinea = [&](qsizetype i) { return i == 0 || resto[i - 1] == u'\n'; };
    Notas notas;
    for (int cuantas = 0; cuantas < MaxROMs && !fuente.atEnd(); ++cuantas) {
        const qsizetype inicio = leido();
        const QString clave = host::upper(fuente.readField());
        if (clave == u"'")
            return notas;
        // The last field of a line, in double quotes: another one's description, out of step.
        const bool esClave = empiezaLinea(inicio) || !empiezaLinea(leido()) || resto[inicio] != u'"';
        const bool enUnaLinea = empiezaLinea(inicio) && !fuente.atEnd() && !empiezaLinea(leido());
        const QString descripcion = campoDe(fuente);
        const bool suya = enUnaLinea && tramo.desde + inicio < tramo.hasta
            && resto.sliced(inicio, leido() - inicio).count(u'\n') == 1 && empiezaLinea(leido());
        if (esClave && !notas.contains(clave))
            notas.insert(clave, { descripcion, suya });
    }
    return {};
}

// The first parameters of each key.
QHash<QString, QString> parametrosDe(const QString &texto)
{
    host::TextSource fuente(texto);
    fuente.passLine(u"Parametros");
    QHash<QString, QString> parametros;
    while (!fuente.atEnd()) {
        const QString clave = host::upper(fuente.readField());
        if (clave == u"'")
            break;
        campoDe(fuente); // the system
        campoDe(fuente); // the emulator
        const QString leidos = campoDe(fuente);
        if (!parametros.contains(clave))
            parametros.insert(clave, leidos);
    }
    return parametros;
}

bool dicenLosMismosParametros(
    const QString &texto, const QString &otro, const QStringList &sistemas, const HayJuego &hay)
{
    const QHash<QString, QString> antes = parametrosDe(texto);
    const QHash<QString, QString> despues = parametrosDe(otro);
    for (auto uno = antes.cbegin(); uno != antes.cend(); ++uno) {
        const bool deAlguien = despues.value(uno.key()) != uno.value()
            && std::ranges::any_of(sistemas, [&](const QString &sistema) { return hay(sistema, uno.key()); });
        if (deAlguien)
            return false;
    }
    return true;
}

} // namespace

bool DicenLoMismo(const QString &texto, const QString &otro, const QStringList &sistemas, const HayJuego &hay)
{
    if (texto == otro)
        return true;
    const QHash<QString, Tramo> tramos = tramosDe(texto, sistemas);
    const QHash<QString, Tramo> otros = tramosDe(otro, sistemas);
    for (auto tramo = tramos.cbegin(); tramo != tramos.cend(); ++tramo) {
        const Notas antes = notasDe(texto, *tramo);
        const Notas despues = otros.contains(tramo.key()) ? notasDe(otro, otros[tramo.key()]) : Notas();
        for (auto nota = antes.cbegin(); nota != antes.cend(); ++nota) {
            const auto suya = despues.constFind(nota.key());
            const bool queda =
                suya != despues.cend() && (suya->texto == nota->texto || (suya->suya && !nota->suya));
            if (!queda && (nota->suya || hay(tramo.key(), nota.key())))
                return false;
        }
    }
    return dicenLosMismosParametros(texto, otro, sistemas, hay);
}

} // namespace core
