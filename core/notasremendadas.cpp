#include "core/notasremendadas.h"

#include "core/lineas.h"
#include "core/lineasvacias.h"
#include "core/notas.h"
#include "core/repetidos.h"

#include "host/textsource.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace core {

namespace {

// Each of them makes room for another at most: a line taken away lets what stood around it be seen as one.
constexpr int PasadasDeRemiendo = 8;

// A key, and a description that begins with double quotes; the name of a system may hold a comma too.
bool esNotaEntera(QStringView linea)
{
    if (linea.count(u'"') % 2 != 0)
        return false;
    host::TextSource fuente(linea.toString());
    if (fuente.atEnd() || fuente.readField().isEmpty() || fuente.atEnd())
        return false;
    const bool conComillas = fuente.rest().trimmed().startsWith(u'"');
    fuente.readField();
    return conComillas && fuente.atEnd();
}

// Systems without a block of their own.
QStringList sinBloque(const QString &texto, const QStringList &sistemas)
{
    const QSet<QString> nombres(sistemas.begin(), sistemas.end());
    QSet<QString> estan; // not all lines of a file that may be large
    for (const LineaConFin &linea : EnLineas(texto)) {
        const QString entera = linea.linea.toString();
        if (nombres.contains(entera))
            estan.insert(entera);
    }
    QStringList faltan;
    for (const QString &sistema : sistemas) {
        // A carriage return is in no line that is written.
        if (!estan.contains(sistema) && !sistema.contains(u'\r'))
            faltan += sistema;
    }
    faltan.removeDuplicates();
    return faltan;
}

QString conBloques(QString texto, const QStringList &sistemas)
{
    for (const QString &sistema : sinBloque(texto, sistemas))
        texto = ConSistemaNuevo(texto, sistema);
    return texto;
}

using Paso = std::function<QString(const QString &)>;

// Closes the blocks without an end, and joins those of one name, which that one was missing for.
QString conBloquesEnteros(const QString &texto, const QStringList &conocidos)
{
    return SinRepetidos(ConNotasCerradas(texto, conocidos), conocidos);
}

std::vector<Paso> pasos(
    const QStringList &delCatalogo, const QStringList &conocidos, const SistemasDeClaves &deQuien)
{
    return {
        SinRetornosSueltos, // the one copy of a file that may be large
        [&](const QString &texto) { return SinVaciasEntreRegistros(texto, conocidos); },
        [&](const QString &texto) { return ConNombreDeNotas(texto, conocidos, deQuien); },
        [&](const QString &texto) { return ConMarcaDeNotas(texto, conocidos); },
        [&](const QString &texto) { return conBloquesEnteros(texto, conocidos); },
        [&](const QString &texto) {
            return NotasSinNombre(texto, conocidos).empty() ? conBloques(texto, delCatalogo) : texto;
        },
        [&](const QString &texto) { return ConCabeceraDeParametros(texto, conocidos); },
        ConParametrosCerrados,
        [&](const QString &texto) { return SinRepetidos(texto, conocidos); },
    };
}

} // namespace

std::vector<SinCierre> NotasSinNombre(const QString &texto, const QStringList &sistemas)
{
    const QSet<QString> nombres(sistemas.begin(), sistemas.end());
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    std::vector<SinCierre> tramos;
    bool dentro = false; // of a block, whoever's
    bool suelto = false;
    for (size_t i = 0; i < lineas.size(); ++i) {
        const QStringView linea = lineas[i].linea;
        if (AcabaLosSistemas(lineas, i, sistemas) || linea.startsWith(CabeceraParametros))
            break;
        const bool cabecera = nombres.contains(linea.toString());
        const bool cierra = CierraLasNotas(linea);
        if (cabecera || cierra || linea.startsWith(u'\'')) {
            dentro = cabecera || (dentro && !cierra);
            suelto = suelto && !cabecera && !cierra;
        } else if (suelto && !linea.isEmpty()) {
            tramos.back().fin = i + 1;
        } else if (!dentro && !linea.isEmpty()) {
            suelto = esNotaEntera(linea);
            dentro = !suelto;
            if (suelto)
                tramos.push_back({ i, i + 1 });
        }
    }
    return tramos;
}

QString ConNombreDeNotas(const QString &texto, const QStringList &sistemas, const SistemasDeClaves &deQuien)
{
    const std::vector<SinCierre> tramos = NotasSinNombre(texto, sistemas);
    const QStringList faltan = sinBloque(texto, sistemas);
    if (tramos.size() != 1 || faltan.size() != 1)
        return texto;
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    const auto principio = lineas.begin() + std::ptrdiff_t(tramos.front().inicio);
    const auto final = lineas.begin() + std::ptrdiff_t(tramos.front().fin);
    if (!std::all_of(principio, final,
            [](const LineaConFin &linea) { return linea.linea.isEmpty() || esNotaEntera(linea.linea); }))
        return texto;
    QStringList claves;
    for (auto linea = principio; linea != final; ++linea) {
        if (!linea->linea.isEmpty())
            claves += host::TextSource(linea->linea.toString()).readField();
    }
    if (deQuien(claves) != faltan)
        return texto;
    Copia copia;
    copia.Copiar(lineas, 0, tramos.front().inicio);
    copia.Nueva(faltan.front());
    copia.Copiar(lineas, tramos.front().inicio, lineas.size());
    return copia.Texto();
}

QString NotasRemendadas(const QString &texto, const QStringList &delCatalogo, const QStringList &conocidos,
    const JuegosDelDisco &juegos)
{
    const std::vector<Paso> todos = pasos(delCatalogo, conocidos, juegos.deQuien);
    const auto unaPasada = [&](const QString &antes, bool dePasoEnPaso) {
        QString remendado = antes;
        for (const Paso &paso : todos) {
            const QString otro = paso(remendado);
            if (!dePasoEnPaso || DicenLoMismo(remendado, otro, conocidos, juegos.hay))
                remendado = otro;
        }
        return remendado;
    };
    QString remendado = texto;
    for (int pasada = 0; pasada < PasadasDeRemiendo; ++pasada) {
        QString otro = unaPasada(remendado, false);
        if (!DicenLoMismo(remendado, otro, conocidos, juegos.hay))
            otro = unaPasada(remendado, true);
        if (otro == remendado)
            break;
        remendado = otro;
    }
    return DicenLoMismo(texto, remendado, conocidos, juegos.hay) ? remendado : texto;
}

} // namespace core
