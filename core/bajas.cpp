#include "core/bajas.h"

#include "core/altas.h"
#include "core/bloques.h"
#include "core/catalogo.h"
#include "core/lugares.h"

using namespace Qt::StringLiterals;

namespace core {

QString SinSistema(const QString &texto, const QString &sistema)
{
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    Copia copia;
    size_t copiadas = 0;
    for (const Bloque &bloque : BloquesDe(lineas, u'-' + sistema)) {
        copia.Copiar(lineas, copiadas, bloque.inicio);
        copiadas = bloque.fin;
    }
    copia.Copiar(lineas, copiadas, lineas.size());
    return copia.Texto();
}

QString SinEmuladorEnBase(const QString &texto, const QString &sistema, const QString &emulador)
{
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    Copia copia;
    size_t copiadas = 0;
    for (const Bloque &bloque : BloquesDe(lineas, u'-' + sistema)) {
        const std::optional<size_t> suya = LineaDeEmulador(lineas, bloque, emulador);
        if (!suya)
            continue;
        const size_t fin = PrimeraConInicio(lineas, *suya + 1, bloque.cierre(), u"+");
        const size_t web = PrimeraConInicio(lineas, *suya + 1, fin, u"WEB2");
        copia.Copiar(lineas, copiadas, *suya);
        copiadas = (web < fin ? web : *suya) + 1;
    }
    copia.Copiar(lineas, copiadas, lineas.size());
    return copia.Texto();
}

namespace {

QString sinUnico(const std::vector<LineaConFin> &lineas, const Bloque &bloque)
{
    const size_t apostrofo = PrimeraConInicio(lineas, bloque.inicio, bloque.fin, u"'");
    Copia copia;
    copia.Copiar(lineas, 0, apostrofo);
    if (apostrofo < bloque.fin)
        copia.Nueva(LineaDeCierre());
    copia.Copiar(lineas, bloque.fin, lineas.size());
    return copia.Texto();
}

// Where the last emulator's lines begin: at the block's apostrophe of the number told, counted from 1, or, if
// that stands elsewhere than between the emulator ahead and its own line, at the apostrophe next to that; at
// its own line where it has none. The end of the block where that has too few.
size_t inicioDelUltimo(
    const std::vector<LineaConFin> &lineas, const Bloque &bloque, size_t suya, int apostrofos)
{
    size_t contado = bloque.inicio;
    for (int i = 0; i < apostrofos && contado < bloque.cierre(); ++i)
        contado = PrimeraConInicio(lineas, contado + 1, bloque.cierre(), u"'");
    if (contado >= bloque.cierre())
        return bloque.cierre();
    size_t cercano = suya;
    for (size_t i = suya - 1; !EsDelCatalogo(lineas[i].linea); --i) {
        if (i == contado)
            return contado;
        if (cercano == suya && lineas[i].linea.startsWith(u'\''))
            cercano = i;
    }
    return cercano;
}

QString sinUltimo(const std::vector<LineaConFin> &lineas, const Bloque &bloque, int total)
{
    size_t suya = bloque.cierre();
    while (suya > bloque.inicio && !lineas[suya - 1].linea.startsWith(u'+'))
        --suya;
    Copia copia;
    const bool hay = suya > bloque.inicio;
    copia.Copiar(lineas, 0, hay ? inicioDelUltimo(lineas, bloque, suya - 1, total) : bloque.cierre());
    copia.Copiar(lineas, bloque.cierre(), lineas.size());
    return copia.Texto();
}

} // namespace

QString SinUnicoEmulador(const QString &texto, const QString &sistema)
{
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    const std::vector<Bloque> bloques = BloquesDe(lineas, u'-' + sistema);
    return bloques.empty() ? texto : sinUnico(lineas, bloques.front());
}

QString SinUltimoEmulador(const QString &texto, const QString &sistema, int total)
{
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    const std::vector<Bloque> bloques = BloquesDe(lineas, u'-' + sistema);
    return bloques.empty() ? texto : sinUltimo(lineas, bloques.front(), total);
}

QString SinEmulador(const QString &texto, const QString &emulador)
{
    const QString lineaDeEmulador = u'+' + emulador;
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    size_t suya = 0;
    while (suya < lineas.size() && lineas[suya].linea != lineaDeEmulador)
        ++suya;
    if (suya == lineas.size())
        return texto;
    Copia copia;
    copia.Copiar(lineas, 0, suya);
    size_t detras = FinDeEmulador(lineas, suya);
    const bool apostrofo = detras < lineas.size() && lineas[detras].linea.startsWith(u'\'');
    if (apostrofo && !lineas[detras].linea.startsWith(u"'-"))
        detras = CopiaSinRestos(copia, lineas, detras + 1);
    copia.Copiar(lineas, detras, lineas.size());
    return copia.Texto();
}

std::optional<QString> SinSistemaDeLaFila(const Modulo &M, int fila, const QString &texto)
{
    if (!SonLosDeLasTablas(M, fila, texto))
        return {};
    return SinSistema(texto, Valor(M.Cat_Nombre(fila, 0), 1));
}

std::optional<QString> SinEmuladorDeLaFila(const Modulo &M, int fila, int columna, const QString &texto)
{
    const std::optional<int> cual = BloqueDeLaFila(M, fila, texto);
    if (!cual)
        return {};
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    const Bloque bloque = BloquesDe(lineas, M.Cat_Nombre(fila, 0)).at(static_cast<size_t>(*cual));
    const int total = TotalEmuladores(M, fila);
    if (total == 1)
        return sinUnico(lineas, bloque);
    if (columna == total)
        return sinUltimo(lineas, bloque, total);
    const QString emulador = Valor(M.Cat_Nombre(fila, columna), 1);
    if (!PrimeroDeLaFila(M, fila, emulador, texto))
        return {};
    return SinEmulador(texto, emulador);
}

int PosicionParaBorrar(const Modulo &M, const QString &sistema)
{
    // The names are sorted in a table of 151 that they use from entry 1 on.
    if (M.TotalSistemas >= MaxSistemas)
        throw host::Failure(
            host::OutOfRange, u"sort the names of the systems"_s, QString::number(M.TotalSistemas));
    return PosicionDeSistema(M, sistema);
}

int PosicionTrasBorrar(int posicion, int total)
{
    return posicion > 0 && posicion == total - 1 ? posicion - 1 : posicion;
}

} // namespace core
