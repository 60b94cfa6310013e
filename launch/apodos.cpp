#include "launch/apodos.h"

#include "launch/apodado.h"
#include "launch/intenta.h"
#include "launch/mostrado.h"

#include "host/encoding.h"
#include "host/letters.h"
#include "host/paths.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace launch {

namespace {

// The directory of one drive, and its twin with the links alone: what the game was shown is known by that
// also after it has deleted or replaced some of them.
class Unidad {
public:
    Unidad(const QString &corrida, char letra)
        : m_lugar(host::nameToDisk(corrida) + '/' + UnidadDeCorrida + letra)
        , m_enlaces(host::nameToDisk(corrida) + '/' + MostradoEnCorrida + letra)
        , m_hecha(mkdir(m_enlaces.constData(), 0700) == 0 && mkdir(m_lugar.constData(), 0700) == 0)
    {
    }

    const QByteArray &Lugar() const { return m_lugar; }
    bool Hecha() const { return m_hecha; }

    // False where none can be made, or something has that name. The two are one link with two names, if the
    // disk has that: so it is known again wherever the game moves it.
    bool Ensena(const QByteArray &fichero, const QByteArray &nombre) const
    {
        const QByteArray enlace = m_enlaces + '/' + nombre;
        const QByteArray aqui = m_lugar + '/' + nombre;
        if (symlink(fichero.constData(), enlace.constData()) != 0)
            return false;
        ponSuHora(fichero, enlace);
        if (linkat(AT_FDCWD, enlace.constData(), AT_FDCWD, aqui.constData(), 0) == 0)
            return true;
        const bool hecho = symlink(fichero.constData(), aqui.constData()) == 0;
        ponSuHora(fichero, aqui);
        return hecho;
    }
    void EnsenaLoGuardado(const QByteArray &casa, const UnidadesDOS::Apodo &apodo) const
    {
        QSet<QString> dados { host::upper(host::nameFromDisk(apodo.nombre)) };
        const auto ensena = [&](const QByteArray &enCasa, const QByteArray &nombre) {
            const QString dado = host::upper(host::nameFromDisk(nombre));
            if (!dados.contains(dado) && Ensena(casa + '/' + enCasa, nombre))
                dados.insert(dado); // of those that differ by their case alone the game sees one
        };
        Intenta([&] {
            for (const QByteArray &enCasa : guardados(casa, apodo.fichero))
                ensena(enCasa, NombreMostrado(apodo.fichero, apodo.nombre, enCasa));
            for (const QString &nombre : host::listDirectories(host::nameFromDisk(casa)))
                ensena(host::nameToDisk(nombre), host::nameToDisk(nombre));
        });
    }
    // What begins with the name of another file that begins so is that one's.
    static QByteArrayList guardados(const QByteArray &casa, const QByteArray &juego)
    {
        QByteArrayList posibles;
        for (const QString &nombre : host::listFiles(host::nameFromDisk(casa))) {
            if (!NombreMostrado(juego, {}, host::nameToDisk(nombre)).isEmpty())
                posibles += host::nameToDisk(nombre);
        }
        QByteArrayList suyos;
        std::ranges::copy_if(posibles, std::back_inserter(suyos), [&](const QByteArray &uno) {
            return std::ranges::none_of(
                posibles, [&](const QByteArray &otro) { return uno.startsWith(PrefijoEnCasa(otro)); });
        });
        return suyos;
    }
    // Of the same game.
    void Hereda(const Pendiente &pendiente, const QByteArray &casa, const QByteArray &fichero) const
    {
        const QByteArray deEntonces = host::nameToDisk(pendiente.lugar);
        QByteArray enlaces = deEntonces;
        const qsizetype corte = deEntonces.lastIndexOf('/') + 1;
        enlaces.replace(corte, qstrlen(UnidadDeCorrida), MostradoEnCorrida);
        const Mostrado mostrado(enlaces);
        if (pendiente.destino != host::nameFromDisk(casa) || mostrado.Juego() != fichero
            || !separaRenombrados(deEntonces, mostrado))
            return;
        for (const QByteArray &nombre : EntradasDe(deEntonces)) {
            const QByteArray suyo = deEntonces + '/' + nombre;
            if (loVe(suyo, nombre))
                rename(suyo.constData(), (m_lugar + '/' + nombre).constData());
        }
    }

private:
    // By that it is known whether somebody has changed the file meanwhile.
    static void ponSuHora(const QByteArray &fichero, const QByteArray &enlace)
    {
        struct stat estado;
        if (stat(fichero.constData(), &estado) != 0)
            return;
        const std::array<timespec, 2> tiempos { estado.st_mtim, estado.st_mtim };
        utimensat(AT_FDCWD, enlace.constData(), tiempos.data(), AT_SYMLINK_NOFOLLOW);
    }
    // What was renamed then leads to bytes at home that this run may replace. False if it has to wait there,
    // and all the rest with it.
    bool separaRenombrados(const QByteArray &deEntonces, const Mostrado &mostrado) const
    {
        QStringList vueltos;
        if (mostrado.EstaEnCasa())
            return GuardaRenombrados(mostrado, deEntonces, vueltos);
        return std::ranges::none_of(EntradasDe(deEntonces), [&](const QByteArray &nombre) {
            return mostrado.Renombrado(deEntonces + '/' + nombre, true) && EstadoDe(m_lugar + '/' + nombre);
        });
    }
    // Where nothing stands here, or a link to an older file that has this name at home too.
    bool loVe(const QByteArray &suyo, const QByteArray &nombre) const
    {
        const QByteArray aqui = m_lugar + '/' + nombre;
        const auto estado = EstadoDe(suyo);
        const auto enlace = EstadoDe(aqui);
        struct stat enCasa;
        if (!estado || !enlace)
            return estado.has_value();
        return S_ISREG(estado->st_mode) && S_ISLNK(enlace->st_mode) && stat(aqui.constData(), &enCasa) == 0
            && S_ISREG(enCasa.st_mode) && Mostrado(m_enlaces).Propio(nombre)
            && std::pair(enCasa.st_mtim.tv_sec, enCasa.st_mtim.tv_nsec)
            <= std::pair(estado->st_mtim.tv_sec, estado->st_mtim.tv_nsec);
    }

    QByteArray m_lugar;
    QByteArray m_enlaces;
    bool m_hecha;
};

} // namespace

QByteArray HazCarpetaDeApodos(const CarpetaDeCorrida &corrida, const UnidadesDOS::Montaje &montaje)
{
    const Unidad unidad(corrida.Ruta(), montaje.letra);
    bool bien = unidad.Hecha();
    for (const UnidadesDOS::Apodo &apodo : montaje.apodos) {
        bien = bien && unidad.Ensena(montaje.lugar + '/' + apodo.fichero, apodo.nombre);
        unidad.EnsenaLoGuardado(montaje.lugar, apodo);
        const std::vector<Pendiente> &deAntes = corrida.DeAntes();
        for (auto ultimo = deAntes.rbegin(); ultimo != deAntes.rend(); ++ultimo)
            unidad.Hereda(*ultimo, montaje.lugar, apodo.fichero);
    }
    return bien ? unidad.Lugar() : QByteArray();
}

} // namespace launch
