#include "launch/mostrado.h"

#include "launch/apodado.h"
#include "launch/destino.h"
#include "launch/intenta.h"

#include "host/descriptor.h"
#include "host/encoding.h"
#include "host/paths.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace launch {

namespace {

QByteArray destinoDelEnlace(const QByteArray &enlace)
{
    std::array<char, PATH_MAX> destino;
    const ssize_t largo = readlink(enlace.constData(), destino.data(), destino.size());
    return largo > 0 ? QByteArray(destino.data(), largo) : QByteArray();
}

QByteArray nombreDe(const QByteArray &ruta)
{
    return ruta.sliced(ruta.lastIndexOf('/') + 1);
}

bool esElMismo(const std::optional<struct stat> &uno, const std::optional<struct stat> &otro)
{
    return uno && otro && uno->st_dev == otro->st_dev && uno->st_ino == otro->st_ino;
}

// Of two links to one file: each that the game was shown has the time of its file.
bool sonDeLaMismaHora(const std::optional<struct stat> &uno, const std::optional<struct stat> &otro)
{
    return uno && otro && S_ISLNK(uno->st_mode) && S_ISLNK(otro->st_mode)
        && uno->st_mtim.tv_sec == otro->st_mtim.tv_sec && uno->st_mtim.tv_nsec == otro->st_mtim.tv_nsec;
}

// Puts a copy in the place of the link, whole or not at all, of the time at which the game renamed it: what
// stands at home counts as newer only if somebody changed it after that.
bool copiaEnSuSitio(const QByteArray &fichero, const QByteArray &enlace, const timespec &cuando)
{
    const host::Descriptor origen(open(fichero.constData(), O_RDONLY | O_CLOEXEC));
    const host::Descriptor directorio(
        open(enlace.first(enlace.lastIndexOf('/')).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!origen.isOpen() || !directorio.isOpen())
        return false;
    FicheroNuevo copia(directorio);
    std::array<char, 65536> trozo;
    ssize_t leidos = -1;
    while (copia.Abierto() && (leidos = read(origen.number(), trozo.data(), trozo.size())) > 0) {
        if (!copia.Escribe(trozo.data(), leidos))
            return false;
    }
    if (leidos != 0 || !copia.Termina(nombreDe(enlace), false))
        return false;
    const std::array<timespec, 2> tiempos { cuando, cuando };
    utimensat(AT_FDCWD, enlace.constData(), tiempos.data(), AT_SYMLINK_NOFOLLOW);
    return true;
}

class Renombrados {
public:
    Renombrados(const Mostrado &mostrado, const QByteArray &lugar, QStringList &vueltos)
        : m_mostrado(mostrado)
        , m_lugar(lugar)
        , m_entradas(EntradasDe(lugar))
        , m_deUnNombre(std::ranges::none_of(mostrado.Enlaces(), conDosNombres))
        , m_vueltos(vueltos)
    {
    }

    bool Guarda()
    {
        enLaUnidad(m_lugar, true);
        if (faltaAlguno()) {
            for (auto uno = m_mostrado.Enlaces().begin(); uno != m_mostrado.Enlaces().end(); ++uno)
                enCasa(uno.key());
        }
        return m_bien;
    }

private:
    void enLaUnidad(const QByteArray &directorio, bool deArriba)
    {
        for (const QByteArray &nombre : EntradasDe(directorio)) {
            const QByteArray ruta = directorio + '/' + nombre;
            const auto estado = EstadoDe(ruta);
            if (estado && S_ISDIR(estado->st_mode))
                enLaUnidad(ruta, false);
            else if (const Mostrado::Enlace *enlace = m_mostrado.Renombrado(ruta, deArriba))
                guarda(ruta, *estado, *enlace,
                    deArriba ? m_mostrado.Casa() + '/' + m_mostrado.EnCasa(nombre).nombre : QByteArray());
        }
    }
    // The user's own links there may lead to the same files: the game's are the links of the beginning.
    void enCasa(const QByteArray &directorio)
    {
        for (const QByteArray &nombre : EntradasDe(directorio)) {
            const QByteArray ruta = directorio + '/' + nombre;
            const auto estado = EstadoDe(ruta);
            const Mostrado::Enlace *enlace = m_mostrado.Renombrado(ruta, false);
            if (estado && S_ISDIR(estado->st_mode))
                enCasa(ruta);
            else if (enlace && esSuyo(estado, *enlace))
                guarda(ruta, *estado, *enlace, ruta);
        }
    }
    static bool conDosNombres(const Mostrado::Enlace &enlace)
    {
        const auto estado = EstadoDe(enlace.ruta);
        return estado && estado->st_nlink > 1;
    }
    // A link that has gone from the drive, and lies elsewhere under its second name; or may, if the disk
    // gives a link no second one.
    bool faltaAlguno() const
    {
        return std::ranges::any_of(m_mostrado.Enlaces(), [&](const Mostrado::Enlace &enlace) {
            return (m_deUnNombre || conDosNombres(enlace))
                && !esSuyo(EstadoDe(m_lugar + '/' + enlace.nombre), enlace);
        });
    }
    bool esSuyo(const std::optional<struct stat> &estado, const Mostrado::Enlace &enlace) const
    {
        const auto suyo = EstadoDe(enlace.ruta);
        return esElMismo(estado, suyo) || (m_deUnNombre && sonDeLaMismaHora(estado, suyo));
    }
    // `nuevo`: where it would lie at home; empty for a directory that isn't there yet.
    void guarda(const QByteArray &ruta, const struct stat &estado, const Mostrado::Enlace &enlace,
        const QByteArray &nuevo)
    {
        const QByteArray fichero = destinoDelEnlace(ruta);
        struct stat suyo;
        if (stat(fichero.constData(), &suyo) != 0 && errno != ENOENT) {
            m_bien = false;
            return;
        }
        if (!EstadoDe(fichero) || !S_ISREG(suyo.st_mode)) {
            unlink(ruta.constData()); // nothing of it is ever replaced
            return;
        }
        if (seMuda(fichero, enlace) && muda(fichero, ruta, nuevo))
            m_vueltos << host::nameFromDisk(nuevo);
        else if (!copiaEnSuSitio(fichero, ruta, estado.st_ctim))
            m_bien = false;
        else if (ruta == nuevo)
            m_vueltos << host::nameFromDisk(nuevo);
    }
    // The user's own name for the game stays, and so does what something new is to stand in the place of, and
    // what has been changed meanwhile.
    bool seMuda(const QByteArray &fichero, const Mostrado::Enlace &enlace) const
    {
        const auto estado = EstadoDe(fichero);
        const bool comoEntonces = estado && estado->st_mtim.tv_sec == enlace.visto.tv_sec
            && estado->st_mtim.tv_nsec == enlace.visto.tv_nsec;
        return enlace.propio && comoEntonces && S_ISREG(estado->st_mode)
            && std::ranges::none_of(
                m_entradas, [&](const QByteArray &entrada) { return MismoNombre(entrada, enlace.nombre); });
    }
    static bool muda(const QByteArray &fichero, const QByteArray &ruta, const QByteArray &nuevo)
    {
        if (ruta == nuevo)
            return rename(fichero.constData(), ruta.constData()) == 0;
        const bool libre = !nuevo.isEmpty() && host::findOnDisk(host::nameFromDisk(nuevo)).isEmpty();
        return libre
            && renameat2(AT_FDCWD, fichero.constData(), AT_FDCWD, nuevo.constData(), RENAME_NOREPLACE) == 0
            && unlink(ruta.constData()) == 0;
    }

    const Mostrado &m_mostrado;
    const QByteArray m_lugar;
    const QByteArrayList m_entradas;
    const bool m_deUnNombre;
    QStringList &m_vueltos;
    bool m_bien = true;
};

} // namespace

std::optional<struct stat> EstadoDe(const QByteArray &ruta)
{
    struct stat estado;
    return lstat(ruta.constData(), &estado) == 0 ? std::optional(estado) : std::nullopt;
}

QByteArrayList EntradasDe(const QByteArray &lugar)
{
    QByteArrayList entradas;
    Intenta([&] { entradas = host::listInDiskOrder(host::nameFromDisk(lugar)); });
    return entradas;
}

Mostrado::Mostrado(const QByteArray &enlaces)
{
    for (const QByteArray &nombre : EntradasDe(enlaces)) {
        const QByteArray ruta = enlaces + '/' + nombre;
        const QByteArray destino = destinoDelEnlace(ruta);
        const qsizetype corte = destino.lastIndexOf('/');
        if (corte < 0)
            continue;
        m_casa = destino.first(corte);
        m_esta = m_esta || EstadoDe(destino);
        const auto estado = EstadoDe(ruta);
        m_enlaces.insert(destino,
            { estado ? estado->st_mtim : timespec(), nombre, ruta, destino,
                MismoNombre(nombreDe(destino), nombre) });
    }
    m_esta = m_esta || (!m_casa.isEmpty() && !EntradasDe(m_casa).isEmpty());
    // Under made-up names there are the game, and what begins with its name at home.
    const auto esDe = [&](const QByteArray &destino, const Enlace &enlace, const QByteArray &juego) {
        return NombreMostrado(nombreDe(juego), m_enlaces[juego].nombre, nombreDe(destino)) == enlace.nombre;
    };
    QByteArrayList apodados;
    for (auto uno = m_enlaces.begin(); uno != m_enlaces.end(); ++uno) {
        if (!uno->propio)
            apodados += uno.key();
    }
    for (const QByteArray &destino : apodados) {
        Enlace &enlace = m_enlaces[destino];
        enlace.propio = std::ranges::any_of(
            apodados, [&](const QByteArray &juego) { return esDe(destino, enlace, juego); });
        if (enlace.propio)
            continue;
        m_juego = nombreDe(destino);
        m_apodo = enlace.nombre;
    }
}

const Mostrado::Enlace *Mostrado::Propio(const QByteArray &nombre) const
{
    const auto suyo = std::ranges::find_if(
        m_enlaces, [&](const Enlace &enlace) { return enlace.propio && MismoNombre(enlace.nombre, nombre); });
    return suyo == m_enlaces.end() ? nullptr : &*suyo;
}

Mostrado::Nombre Mostrado::EnCasa(const QByteArray &nombre) const
{
    const QByteArray prefijo = m_juego.isEmpty() ? QByteArray() : PrefijoEnCasa(m_juego);
    const Enlace *propio = Propio(nombre);
    const QByteArray enCasa = propio ? nombreDe(propio->destino)
        : m_juego.isEmpty()          ? nombre
                                     : NombreEnCasa(m_juego, m_apodo, nombre);
    return { enCasa, enCasa.startsWith(prefijo) ? prefijo.size() : 0 };
}

const Mostrado::Enlace *Mostrado::Renombrado(const QByteArray &ruta, bool deArriba) const
{
    const QByteArray destino = destinoDelEnlace(ruta);
    const auto enlace = destino.isEmpty() ? m_enlaces.end() : m_enlaces.find(destino);
    const bool enSuSitio =
        enlace != m_enlaces.end() && deArriba && MismoNombre(enlace->nombre, nombreDe(ruta));
    return enlace == m_enlaces.end() || enSuSitio ? nullptr : &*enlace;
}

bool GuardaRenombrados(const Mostrado &mostrado, const QByteArray &lugar, QStringList &vueltos)
{
    return Renombrados(mostrado, lugar, vueltos).Guarda();
}

} // namespace launch
