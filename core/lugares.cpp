#include "core/lugares.h"

#include "core/bloques.h"
#include "core/catalogo.h"

#include <algorithm>
#include <vector>

namespace core {

namespace {

// True if both hold the same of a system, line for line.
bool mismaFila(const Modulo &M, int fila, const Modulo &N, int otra)
{
    static constexpr Tabla2<QString> Modulo::*tablas[] = { &Modulo::Cat_Nombre, &Modulo::Cat_EXE,
        &Modulo::Cat_XDI, &Modulo::Cat_ROM, &Modulo::Cat_IMG, &Modulo::Cat_PAR1, &Modulo::Cat_PAR2,
        &Modulo::Cat_EXT, &Modulo::Cat_WEB2 };
    for (const auto tabla : tablas) {
        for (int e = 0; e < MaxSistemas; ++e) {
            if ((M.*tabla)(fila, e) != (N.*tabla)(otra, e))
                return false;
        }
    }
    return M.Cat_WEB1(fila) == N.Cat_WEB1(otra);
}

// The rows of this name, in their order.
std::vector<int> filasDe(const Modulo &M, const QString &lineaDeSistema)
{
    std::vector<int> filas;
    for (int s = 0; s < MaxSistemas && !M.Cat_Nombre(s, 0).isEmpty(); ++s) {
        if (M.Cat_Nombre(s, 0) == lineaDeSistema)
            filas.push_back(s);
    }
    return filas;
}

bool tieneEmulador(const Modulo &M, int fila, const QString &lineaDeEmulador)
{
    for (int e = 1; e < MaxSistemas; ++e) {
        if (M.Cat_Nombre(fila, e) == lineaDeEmulador)
            return true;
    }
    return false;
}

// The row of the first system that has this emulator, -1 if none has.
int primeraFilaCon(const Modulo &M, const QString &lineaDeEmulador)
{
    for (int s = 0; s < MaxSistemas && !M.Cat_Nombre(s, 0).isEmpty(); ++s) {
        if (tieneEmulador(M, s, lineaDeEmulador))
            return s;
    }
    return -1;
}

// True if the first emulator of this name stands in the same system, here and in the tables, and that one has
// stayed as it was.
bool sigueElPrimero(const Modulo &M, const Modulo &leido, int primera, const QString &lineaDeEmulador)
{
    const int antes = primeraFilaCon(M, lineaDeEmulador);
    return antes >= 0 && mismaFila(M, antes, leido, primera);
}

} // namespace

std::optional<int> BloqueDeLaFila(const Modulo &M, int fila, const QString &texto)
{
    const QString &nombre = M.Cat_Nombre(fila, 0);
    const std::unique_ptr<Modulo> leido = CatalogoDe(texto);
    if (BloquesDe(EnLineas(texto), nombre).size() != filasDe(M, nombre).size())
        return {};
    int homonimo = 0;
    for (const int otra : filasDe(*leido, nombre)) {
        if (mismaFila(M, fila, *leido, otra))
            return homonimo;
        ++homonimo;
    }
    return {};
}

bool SonLosDeLasTablas(const Modulo &M, int fila, const QString &texto)
{
    const QString &nombre = M.Cat_Nombre(fila, 0);
    const std::unique_ptr<Modulo> leido = CatalogoDe(texto);
    const std::vector<int> antes = filasDe(M, nombre);
    const std::vector<int> ahora = filasDe(*leido, nombre);
    if (BloquesDe(EnLineas(texto), nombre).size() != antes.size())
        return false;
    return std::equal(antes.begin(), antes.end(), ahora.begin(), ahora.end(),
        [&](int una, int otra) { return mismaFila(M, una, *leido, otra); });
}

bool PrimeroDeLaFila(const Modulo &M, int fila, const QString &emulador, const QString &texto)
{
    const std::unique_ptr<Modulo> leido = CatalogoDe(texto);
    const int primera = primeraFilaCon(*leido, u'+' + emulador);
    if (primera < 0)
        return false;
    return mismaFila(M, fila, *leido, primera) || sigueElPrimero(M, *leido, primera, u'+' + emulador);
}

bool PrimeroDelSistema(const Modulo &M, const QString &sistema, const QString &emulador, const QString &texto)
{
    const QString lineaDeEmulador = u'+' + emulador;
    const std::unique_ptr<Modulo> leido = CatalogoDe(texto);
    const int primera = primeraFilaCon(*leido, lineaDeEmulador);
    if (primera < 0)
        return false;
    if (leido->Cat_Nombre(primera, 0) == u'-' + sistema)
        return true;
    const std::vector<int> filas = filasDe(M, u'-' + sistema);
    return !filas.empty() && tieneEmulador(M, filas.front(), lineaDeEmulador)
        && sigueElPrimero(M, *leido, primera, lineaDeEmulador);
}

} // namespace core
