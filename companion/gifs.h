// The GIFs of a directory of captures, against the games of all pairs that keep their captures there: what
// checking tells of them and what making captures takes are one answer.
#pragma once

#include "companion/captura.h"
#include "companion/plandecapturas.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace companion {

// A GIF that no game's capture is called as.
struct GifSuelto {
    QString nombre;
    QString captura; // the name of the capture of the game that it fits; empty where it fits none
    bool hace = false; // that capture doesn't show yet
};

struct GifsDeJuegos {
    std::vector<GifSuelto> sueltos; // pictures, in the order of names

    // What doesn't show: called as a capture, or a file or a link that is called as a GIF.
    struct Malo {
        QString nombre;
        EstadoDeCaptura estado;
    };
    std::vector<Malo> malos;

    // Two that are one game's capture, as case makes no difference.
    struct Iguales {
        QString uno;
        QString otro;
        QString seVe; // the one of them that shows
    };
    std::vector<Iguales> iguales;
};

// The directory of captures of a pair as directoryPath has it; empty for none. Fails where there is no such
// directory.
QString CapturasEnDisco(const core::Modulo &M, const Pareja &pareja);

// Of a directory as CapturasEnDisco gives it. None where the games of one of the pairs can't be told, or
// where no game is listed. Lists their games; fails where the directory can't be listed.
std::optional<GifsDeJuegos> GifsDe(Sesion &sesion, const QString &directorio);

} // namespace companion
