// Paths as a program for DOS opens them: letters for places of this disk, and the names that DOSBox shows.
#pragma once

#include "host/drives.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

#include <optional>
#include <vector>

namespace launch {

// The drives of one run, given out as its paths ask for them: the user's own, and for a path that lies on
// none of them, or that can't be said there, its directory as a drive of a free letter. The same paths in the
// same order always get the same letters.
class UnidadesDOS {
public:
    explicit UnidadesDOS(const std::vector<host::Drive> &propias = host::drives());

    // A file under a name of its own making: DOS can't open it by the one that it has.
    struct Apodo {
        QByteArray nombre; // see ApodoEnDOS
        QByteArray fichero; // in the place of its drive
    };
    struct Montaje {
        char letra; // upper case
        QByteArray lugar; // absolute, as the disk spells it
        bool esCD; // a compact disc lies there
        std::vector<Apodo> apodos = {}; // if there are any, the drive shows DOS nothing else of its place
    };

    // Where a place lies on several of the user's drives, the one that a path names that was typed goes ahead
    // of the nearest: for what that path leads to, and less so for all the rest.
    void Prefiere(const QString &tecleada);

    // "D:\ROMS\GAME.NES", for an absolute path in its spelling on the disk; of a directory that ends in a
    // slash with its backslash. None where DOS can't open a file of this name, or all letters are given.
    std::optional<QByteArray> Ruta(const QString &enDisco);

    // The same, of a file that DOS can't open by its name under another one.
    std::optional<QByteArray> RutaOApodo(const QString &enDisco);

    // Of the user's own drives those that a parameter names, "d:\roms".
    void Nombra(const QString &parametros);

    // The drive that a directory lies on; nothing for one that lies on none.
    void NombraLaDe(const QString &directorio);

    // What has been asked for, by letter.
    std::vector<Montaje> Montajes() const;

private:
    struct Unidad {
        char letra;
        QByteArray lugar; // with a closing slash
        bool montada;
        std::vector<Apodo> apodos = {};
        bool preferida = false;
        QByteArrayList tecleadas = {}; // the paths that named it, each with a closing slash
    };

    struct Dicho {
        Unidad *unidad = nullptr;
        QByteArray directorio;
    };
    Dicho masCercana(const QByteArray &lugar, const QByteArray &entrada = {});
    std::optional<QByteArray> directorio(const QByteArray &lugar, const QByteArray &entrada);
    Unidad *nueva(const QByteArray &lugar);

    std::vector<Unidad> m_unidades;
};

} // namespace launch
