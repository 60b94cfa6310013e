// Which captures of a pair are to be made, and of what.
#pragma once

#include "companion/captura.h"
#include "companion/encaje.h"
#include "companion/mundo.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace companion {

// A game of a pair, and the path where its capture is looked for.
struct JuegoConCaptura {
    QString entrada;
    QString fichero; // its name, or its directory's
    QString descripcion; // empty if it has none
    QString captura; // empty where none can be looked for
};

// Those of a pair, in the order of its list. Reads the list; fails as Lista, and where the pair has no line
// for its captures.
std::vector<JuegoConCaptura> JuegosConCaptura(
    Sesion &sesion, const Pareja &pareja, const QString &directorio);

// What a game goes by where pictures are looked for.
Nombrado NombradoDe(const JuegoConCaptura &juego);

// The files of a directory that may be pictures, by what they hold or by their names' endings: what only
// seems to be one is told of. Of GIFs in a directory of captures only those of `sueltos`.
QStringList PosiblesImagenes(const QString &directorio, const std::optional<QStringList> &sueltos);

struct PorHacer {
    QString entrada;
    QString imagen; // paths
    QString captura;
    bool enSuSitio = false; // something stands there that is no picture
};

// What stands in the place of a capture and stays, as no picture fits, or nothing may take its place.
struct CapturaMala {
    QString ruta;
    EstadoDeCaptura estado;
};

struct Plan {
    std::vector<PorHacer> nuevas;
    int compartidas = 0; // games whose capture is to be made for another one already
    int habia = 0; // that stay as they are
    int sinImagen = 0; // games without a capture for which there is no picture
    std::vector<CapturaMala> malas;
    QSet<QString> usadas; // names of pictures that fit a game, whether it needs one or not
};

// The captures that pictures of a directory become. Those of `hechas`, in upper case, are made already, and
// the new ones join them.
Plan PlanDeCapturas(const std::vector<JuegoConCaptura> &juegos, const QString &directorio,
    const QStringList &imagenes, bool rehace, QSet<QString> &hechas);

} // namespace companion
