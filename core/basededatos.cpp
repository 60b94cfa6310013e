#include "core/basededatos.h"

#include "core/bloques.h"
#include "core/catalogo.h"

#include "host/letters.h"
#include "host/paths.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace core {

namespace {

constexpr int MaxBusquedaDeEmulador = 150; // steps of the search for an emulator in the catalogue
constexpr int MaxExtensionesDeAlta = 150; // extensions that a new block of the catalogue takes

} // namespace

void LeeBaseDeDatos(Modulo &M)
{
    M.BD_Nombre.vacia();
    M.Lista1Lista = 0;
    LectorDeSistemas lector({ M.BD_Nombre, M.BD_EXT, M.BD_WEB1, M.BD_WEB2, M.BD_Sistema, M.BD_Emulador });
    M.Ficheros.openForInput(1, host::programFile(u"Zembro.sye"_s));
    do
        lector.Linea(M.Ficheros.readLine(1));
    while (!M.Ficheros.atEnd(1));
    M.Ficheros.close(1);
    if (M.CambioConfig1 != 1)
        M.BD_TotalSistemas = M.BD_Sistema + 1;
}

int TotalEmuladoresDeBase(const Modulo &M, int sistema)
{
    int total = 0;
    while (total + 1 < MaxSistemas && !M.BD_Nombre(sistema, total + 1).isEmpty())
        ++total;
    return total;
}

bool SistemaEnBase(const Modulo &M, const QString &nombre)
{
    for (int s = 0; s < M.BD_TotalSistemas; ++s) {
        if (host::sameName(Valor(M.BD_Nombre(s, 0), 1), nombre))
            return true;
    }
    return false;
}

bool EmuladorEnBase(const Modulo &M, int sistema, const QString &nombre)
{
    const int total = TotalEmuladoresDeBase(M, sistema);
    for (int e = 1; e <= total; ++e) {
        if (host::sameName(M.BD_Nombre(sistema, e), u'+' + nombre))
            return true;
    }
    return false;
}

int FilaEnBase(const Modulo &M, const QString &sistema)
{
    for (int s = 0; s < MaxSistemas; ++s) {
        if (M.BD_Nombre(s, 0) == u'-' + sistema)
            return s;
    }
    return -1;
}

QStringList SistemasDelTexto(const QString &texto)
{
    QStringList nombres;
    for (const LineaConFin &linea : EnLineas(texto)) {
        if (linea.linea.startsWith(u'-'))
            nombres << linea.linea.sliced(1).toString();
    }
    return nombres;
}

bool SistemaEnTexto(const QString &texto, const QString &nombre)
{
    const QStringList nombres = SistemasDelTexto(texto);
    return std::any_of(
        nombres.begin(), nombres.end(), [&](const QString &otro) { return host::sameName(otro, nombre); });
}

Hueco HuecoParaEmulador(const QString &texto, const QString &sistema, const QString &nombre)
{
    const std::vector<LineaConFin> lineas = EnLineas(texto);
    const std::vector<Bloque> bloques = BloquesDe(lineas, u'-' + sistema);
    for (const Bloque &bloque : bloques) {
        for (size_t i = bloque.inicio; i < bloque.fin; ++i) {
            if (host::sameName(lineas[i].linea.toString(), u'+' + nombre))
                return Hueco::Ocupado;
        }
    }
    return bloques.empty() ? Hueco::SinSistema : Hueco::Libre;
}

bool EsComoEnBase(const Modulo &M, int fila, const QString &texto)
{
    const std::unique_ptr<const Modulo> leido = CatalogoDe(texto);
    for (int s = 0; s < MaxSistemas && !leido->Cat_Nombre(s, 0).isEmpty(); ++s) {
        int e = 0;
        while (e < MaxSistemas && leido->Cat_Nombre(s, e) == M.BD_Nombre(fila, e))
            ++e;
        if (e == MaxSistemas)
            return true;
    }
    return false;
}

bool SistemaEnCatalogo(const Modulo &M, const QString &nombre)
{
    for (int s = 0; !M.Cat_Nombre(s, 0).isEmpty(); ++s) {
        if (M.Cat_Nombre(s, 0) == u'-' + nombre)
            return true;
    }
    return false;
}

bool EmuladorEnCatalogo(const Modulo &M, const QString &nombre)
{
    int sistema = 0;
    int columna = 0;
    for (int paso = 0; paso < MaxBusquedaDeEmulador; ++paso) {
        const QString &linea = M.Cat_Nombre(sistema, columna);
        if (linea == u'+' + nombre)
            return true;
        if (linea.isEmpty()) {
            ++sistema;
            columna = 0;
        }
        ++columna;
    }
    return false;
}

OrigenDeSistema OrigenDe(const QString &sistema)
{
    static constexpr QStringView conocidos[] = { u"Atari 2600", u"Atari 5200", u"Lynx", u"Colecovision",
        u"Game Gear", u"Game Boy", u"Mega Drive/Genesis", u"NES", u"Nintendo 64", u"Super Nintendo",
        u"PC-Engine/TG16", u"Vectrex", u"Amiga", u"Atari ST", u"Amstrad CPC", u"MSX", u"Spectrum",
        u"Commodore 64", u"Master System", u"Virtual Boy", u"Play Station", u"Amstrad PCW", u"Apple II",
        u"Macintosh", u"Sinclair QL", u"X68000", u"Atari 7800" };
    if (std::find(std::begin(conocidos), std::end(conocidos), sistema) != std::end(conocidos))
        return SistemaConocido;
    return sistema == u"Arcade" || sistema == u"Neo-Geo" ? SistemaRecreativo : OtroSistema;
}

QStringList ExtensionesDeBase(const Modulo &M, int sistema)
{
    QStringList extensiones;
    for (int k = 0; k < M.BD_EXT.columnas() && !M.BD_EXT(sistema, k).isEmpty(); ++k) {
        if (k == MaxExtensionesDeAlta)
            throw host::Failure(host::OutOfRange, u"copy the extensions of a system"_s, QString::number(k));
        extensiones += M.BD_EXT(sistema, k);
    }
    return extensiones;
}

QString OfertaDeExtensiones(Modulo &M, int sistema)
{
    M.ExtTexto.clear();
    for (int k = 0; k < M.BD_EXT.columnas() && !M.BD_EXT(sistema, k).isEmpty(); ++k) {
        const QString &linea = M.BD_EXT(sistema, k);
        M.ExtTexto += linea.sliced(linea.lastIndexOf(u'.') + 1) + u',';
    }
    M.ExtLargo = static_cast<int>(M.ExtTexto.size());
    if (M.ExtLargo == 0)
        throw host::Failure(
            host::InvalidArgument, u"show the extensions of a system"_s, Valor(M.BD_Nombre(sistema, 0), 1));
    return M.ExtTexto.chopped(1);
}

QStringList PartirExtensiones(const QString &respuesta)
{
    QStringList piezas = respuesta.split(u',');
    if (piezas.size() > MaxSistemas)
        throw host::Failure(
            host::OutOfRange, u"take the extensions of a system"_s, QString::number(piezas.size()));
    return piezas;
}

} // namespace core
