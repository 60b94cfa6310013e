// What a game was shown on a drive with other names, and what it has renamed there: its files are links to
// those at home, so a renamed one is still the only way to bytes that may be about to be replaced.
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

#include <sys/stat.h>

namespace launch {

// Of the entry itself, not of what a link leads to.
std::optional<struct stat> EstadoDe(const QByteArray &ruta);

// None where it can't be listed.
QByteArrayList EntradasDe(const QByteArray &lugar);

// Read from the links of the run's beginning.
class Mostrado {
public:
    explicit Mostrado(const QByteArray &enlaces);

    // The directory that they lead to.
    const QByteArray &Casa() const { return m_casa; }
    // The file of the game there; empty if it isn't known.
    const QByteArray &Juego() const { return m_juego; }
    // A disk that isn't there now leaves an empty directory in its place, or none.
    bool EstaEnCasa() const { return m_esta; }
    // What a file of this name is called at home, and where the game's name begins in that.
    struct Nombre {
        QByteArray nombre;
        qsizetype desde = 0;
    };
    Nombre EnCasa(const QByteArray &nombre) const;

    struct Enlace {
        timespec visto; // the time that the file had then
        QByteArray nombre; // that it was shown under
        QByteArray ruta; // of the link of the beginning
        QByteArray destino;
        bool propio = false; // a directory, or what the game has saved; else it is the game itself
    };
    const QHash<QByteArray, Enlace> &Enlaces() const { return m_enlaces; } // by what they lead to

    // The file of its own that the game saw under this name; null also for that of the game, whose name there
    // is made up.
    const Enlace *Propio(const QByteArray &nombre) const;

    // What a link was shown as that has another name now or, not `deArriba`, lies in a directory; null for
    // any other entry.
    const Enlace *Renombrado(const QByteArray &ruta, bool deArriba) const;

private:
    QByteArray m_casa;
    QByteArray m_juego;
    QByteArray m_apodo; // that it was shown under
    bool m_esta = false;
    QHash<QByteArray, Enlace> m_enlaces;
};

// Lets what the game renamed stand by itself: at home under its new name where that is free and nothing came
// under the old one, else as a file of the drive in the place of its link. Also in the directories at home
// that the game saw. False if one couldn't be kept: then nothing may be replaced at home.
bool GuardaRenombrados(const Mostrado &mostrado, const QByteArray &lugar, QStringList &vueltos);

} // namespace launch
