#include "core/catalogo.h"

#include "core/ordburbuja.h"

#include "host/letters.h"
#include "host/paths.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace core {

LectorDeSistemas::LectorDeSistemas(const TablasDeSistemas &tablas)
    : m_tablas(tablas)
{
    m_tablas.sistema = -1;
    m_tablas.emulador = -1;
}

void LectorDeSistemas::Linea(const QString &linea)
{
    int &s = m_tablas.sistema;
    int &e = m_tablas.emulador;
    if (linea.startsWith(u'-')) {
        e = 0;
        m_tablas.nombre(++s, 0) = linea;
    } else if (linea.startsWith(u'+')) {
        m_extension = 0;
        m_tablas.nombre(s, ++e) = linea;
    } else if (linea.startsWith(u"*.")) {
        m_tablas.extension(s, m_extension++) = linea;
    } else if (linea.startsWith(u"WEB1")) {
        m_tablas.web1(s) = linea;
    } else if (linea.startsWith(u"WEB2")) {
        m_tablas.web2(s, e) = linea;
    }
}

LectorDeCatalogo::LectorDeCatalogo(Modulo &modulo)
    : M(modulo)
    , m_sistemas({ M.Cat_Nombre, M.Cat_EXT, M.Cat_WEB1, M.Cat_WEB2, M.Indice_Sistema, M.Indice_Emulador })
{
    for (Tabla2<QString> *tabla : { &M.Cat_Nombre, &M.Cat_EXE, &M.Cat_XDI, &M.Cat_ROM, &M.Cat_IMG,
             &M.Cat_PAR1, &M.Cat_PAR2, &M.Cat_EXT, &M.Cat_WEB2 })
        tabla->vacia();
    M.Cat_WEB1.vacia();
}

void LectorDeCatalogo::Linea(const QString &linea)
{
    m_sistemas.Linea(linea);
    const struct {
        QLatin1StringView prefijo;
        Tabla2<QString> &tabla;
    } claves[] = { { "EXE"_L1, M.Cat_EXE }, { "XDI"_L1, M.Cat_XDI }, { "ROM"_L1, M.Cat_ROM },
        { "IMG"_L1, M.Cat_IMG }, { "PAR1"_L1, M.Cat_PAR1 }, { "PAR2"_L1, M.Cat_PAR2 } };
    for (const auto &clave : claves) {
        if (linea.startsWith(clave.prefijo))
            clave.tabla(M.Indice_Sistema, M.Indice_Emulador) = linea;
    }
}

void LeeCatalogo(Modulo &M)
{
    LectorDeCatalogo lector(M);
    M.Ficheros.openForInput(1, host::programFile(M.VerBaseDeDatos == 1 ? u"Zembro.sye"_s : u"Zembro.emu"_s));
    do
        lector.Linea(M.Ficheros.readLine(1));
    while (!M.Ficheros.atEnd(1));
    M.Ficheros.close(1);
}

std::unique_ptr<Modulo> CatalogoDe(const QString &texto)
{
    auto M = std::make_unique<Modulo>();
    LectorDeCatalogo lector(*M);
    host::TextSource fuente(texto);
    try {
        while (!fuente.atEnd())
            lector.Linea(fuente.readLine());
    } catch (const host::Failure &) {
        // What fits is there.
    }
    return M;
}

int TotalEmuladores(const Modulo &M, int sistema)
{
    int total = 0;
    while (total + 1 < MaxSistemas && !M.Cat_Nombre(sistema, total + 1).isEmpty())
        ++total;
    return total;
}

namespace {

// Position from 0 of a name among names that start at entry 1 of the table; 0 if it isn't there.
int posicionOrdenada(std::vector<QString> nombres, const QString &nombre)
{
    const int ultimo = static_cast<int>(nombres.size()) - 1;
    Ordenar(nombres, 1, ultimo);
    const QString buscado = host::upper(nombre);
    for (int i = 1; i <= ultimo; ++i) {
        if (nombres[static_cast<size_t>(i)] == buscado)
            return i - 1;
    }
    return 0;
}

int posicionDeEmulador(const Modulo &M, const QString &sistema, const QString &emulador)
{
    for (int s = 0; s < M.TotalSistemas; ++s) {
        if (M.Cat_Nombre(s, 0) != u'-' + sistema)
            continue;
        std::vector<QString> nombres(1);
        for (int e = 1; e <= TotalEmuladores(M, s); ++e)
            nombres.push_back(host::upper(Valor(M.Cat_Nombre(s, e), 1)));
        return posicionOrdenada(std::move(nombres), emulador);
    }
    return 0;
}

} // namespace

int PosicionDeSistema(const Modulo &M, const QString &sistema)
{
    std::vector<QString> nombres(1);
    for (int s = 0; s < M.TotalSistemas; ++s)
        nombres.push_back(host::upper(Valor(M.Cat_Nombre(s, 0), 1)));
    return posicionOrdenada(std::move(nombres), sistema);
}

Posiciones PosicionesDe(const Modulo &M, const QString &sistema, const QString &emulador)
{
    Posiciones posiciones;
    posiciones.sistema = PosicionDeSistema(M, sistema);
    if (!emulador.isEmpty())
        posiciones.emulador = posicionDeEmulador(M, sistema, emulador);
    else if (!sistema.isEmpty())
        posiciones.emulador = NingunEmulador;
    return posiciones;
}

Posiciones PosicionesEnTexto(
    const Modulo &M, const QString &texto, const QString &sistema, const QString &emulador)
{
    const std::unique_ptr<Modulo> leido = CatalogoDe(texto);
    leido->TotalSistemas = std::min(leido->Indice_Sistema + 1, MaxSistemas); // of a text with too many
    int s = 0;
    while (s < leido->TotalSistemas && leido->Cat_Nombre(s, 0) != u'-' + sistema)
        ++s;
    if (s >= leido->TotalSistemas)
        return PosicionesDe(M, sistema, emulador);
    int e = TotalEmuladores(*leido, s);
    while (e > 0 && leido->Cat_Nombre(s, e) != u'+' + emulador)
        --e;
    return PosicionesDe(*leido, sistema, e > 0 ? emulador : QString());
}

namespace {

// The names of the systems, or of the emulators of one, in the file's order.
std::vector<QString> nombresDeSistemas(const Modulo &M)
{
    std::vector<QString> nombres;
    for (int s = 0; s <= M.Indice_Sistema && s < MaxSistemas; ++s)
        nombres.push_back(M.Cat_Nombre(s, 0));
    return nombres;
}

std::vector<QString> nombresDeEmuladores(const Modulo &M, size_t sistema)
{
    const int s = static_cast<int>(sistema);
    std::vector<QString> nombres;
    for (int e = 1; e <= TotalEmuladores(M, s); ++e)
        nombres.push_back(M.Cat_Nombre(s, e));
    return nombres;
}

// The indices of the names as a sorted list shows them.
std::vector<size_t> enOrden(const std::vector<QString> &nombres)
{
    std::vector<size_t> indices(nombres.size());
    std::iota(indices.begin(), indices.end(), size_t { 0 });
    std::stable_sort(indices.begin(), indices.end(),
        [&nombres](size_t uno, size_t otro) { return host::compareNames(nombres[uno], nombres[otro]) < 0; });
    return indices;
}

// The index in the later names of what has this index in the earlier ones.
std::optional<size_t> indiceEn(
    const std::vector<QString> &despues, const std::vector<QString> &antes, size_t indice)
{
    auto iguales =
        std::count(antes.begin(), antes.begin() + static_cast<std::ptrdiff_t>(indice), antes[indice]);
    for (size_t i = 0; i < despues.size(); ++i) {
        if (despues[i] == antes[indice] && iguales-- == 0)
            return i;
    }
    return std::nullopt;
}

int posicionDe(const std::vector<QString> &nombres, size_t indice)
{
    const std::vector<size_t> orden = enOrden(nombres);
    return static_cast<int>(std::find(orden.begin(), orden.end(), indice) - orden.begin());
}

// The index of what stands at this position.
std::optional<size_t> indiceDe(const std::vector<QString> &nombres, int posicion)
{
    const std::vector<size_t> orden = enOrden(nombres);
    if (posicion < 0 || static_cast<size_t>(posicion) >= orden.size())
        return std::nullopt;
    return orden[static_cast<size_t>(posicion)];
}

std::vector<int> comoFilas(const std::vector<size_t> &indices, int primera)
{
    std::vector<int> filas;
    for (const size_t indice : indices)
        filas.push_back(static_cast<int>(indice) + primera);
    return filas;
}

} // namespace

std::vector<int> SistemasEnOrden(const Modulo &M)
{
    return comoFilas(enOrden(nombresDeSistemas(M)), 0);
}

std::vector<int> EmuladoresEnOrden(const Modulo &M, int sistema)
{
    return comoFilas(enOrden(nombresDeEmuladores(M, static_cast<size_t>(sistema))), 1);
}

Posiciones PosicionesEn(const Modulo &despues, const Modulo &antes, const Posiciones &posiciones)
{
    const std::vector<QString> sistemas = nombresDeSistemas(antes);
    const std::vector<QString> nuevos = nombresDeSistemas(despues);
    const std::optional<size_t> sistema = indiceDe(sistemas, posiciones.sistema);
    const std::optional<size_t> suyo = sistema ? indiceEn(nuevos, sistemas, *sistema) : std::nullopt;
    if (!suyo)
        return posiciones;
    Posiciones resultado { posicionDe(nuevos, *suyo), posiciones.emulador };
    const std::vector<QString> emuladores = nombresDeEmuladores(antes, *sistema);
    const std::vector<QString> otros = nombresDeEmuladores(despues, *suyo);
    const std::optional<size_t> emulador = indiceDe(emuladores, posiciones.emulador);
    const std::optional<size_t> otro = emulador ? indiceEn(otros, emuladores, *emulador) : std::nullopt;
    if (otro)
        resultado.emulador = posicionDe(otros, *otro);
    return resultado;
}

} // namespace core
