// What the text files of an old program directory hold, and the texts of this one with it taken in.
#pragma once

#include "core/altas.h"
#include "core/descripciones.h"
#include "core/seccion.h"

#include "host/drives.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace companion {

struct EmuladorViejo {
    QString sistema;
    QString web1;
    QStringList extensiones; // whole lines
    core::EmuladorNuevo emulador; // relative paths made absolute
};

struct NotasViejas {
    QString sistema;
    std::vector<core::Descripcion> notas;
};

struct DirectorioViejo {
    QString ruta; // absolute
    std::vector<EmuladorViejo> emuladores; // in the file's order
    std::vector<NotasViejas> notas;
    std::vector<core::Parametros> parametros;
    QString textoDeUnidades; // of its own file
    std::vector<host::Drive> unidades; // that it names
};

// Reads what is there; a file that is missing holds nothing. Fails where one can't be read.
DirectorioViejo LeeViejo(const QString &ruta);

// The catalogue with one more emulator, as the last of its system. None where it has that already; the same
// text where it could not take it without a change of what it had.
std::optional<QString> ConEmuladorViejo(const QString &texto, const EmuladorViejo &emulador);

// The notes with those of the old directory. Of a game that has a description, or parameters, its own stay.
struct Anotado {
    QString texto;
    int descripciones = 0;
    int parametros = 0;
};
Anotado ConNotasViejas(const QString &texto, const DirectorioViejo &viejo);

// The file of drives with lines for letters that it lacks. `texto` is none where there is no such file: then
// those that count without it come first, as a file of its own puts them out of use.
QString ConUnidadesViejas(const std::optional<QString> &texto, const std::vector<host::Drive> &actuales,
    const std::vector<host::Drive> &viejas);

} // namespace companion
