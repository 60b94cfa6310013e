// What a game has saved on a drive that shows it files under other names goes to where the game lies: at the
// end of its run or, where the program was left or killed ahead of that, at a later one.
#pragma once

#include "core/palabras.h"

#include "host/descriptor.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace launch {

// Of a run's directory.
inline constexpr char UnidadDeCorrida[] = "files-"; // what the game sees, and the drive's letter
inline constexpr char MostradoEnCorrida[] = "shown-"; // the links that it was shown at the beginning
inline constexpr char CerrojoDeCorrida[] = "lock"; // a file that who made it keeps locked

// What is known of the directory of a run.
struct Resto {
    bool propio = true; // a real directory of this user's
    bool cerrado = false; // who made it has its file locked still
    bool cerrable = true; // else nothing is known by that: there is no such file, or none can be locked
    bool creadorVivo = false; // there is a process of its number
    bool nombrado = false; // by a running process: its game goes on
};

// Whether what lies in it is to be brought back, and the rest to go.
bool SeRecoge(const Resto &resto);

// What stands where something saved is to go.
struct EnCasa {
    QString nombre;
    bool directorio = false;
    bool igual = false; // the same bytes
    bool masNuevo = false; // changed after what was saved
    bool cambiado = false; // since the game was shown it
};

struct Vuelta {
    QString nombre; // that it gets there
    bool escribe = true; // false where it stands there already
    bool aparta = false; // what stands there gets another name first
};

// `mostrado`: the game saw what stands there under this name; else it can't have meant it, and nothing is
// replaced: a number goes into the name that the game gave, which begins at `desde`. Directories come
// together.
Vuelta VueltaDe(const QString &nombre, bool directorio, bool mostrado,
    const std::function<std::optional<EnCasa>(const QString &)> &enCasa, qsizetype desde = 0);

// What couldn't be brought back.
struct Pendiente {
    QString lugar; // the directory that it lies in
    QString destino; // the one where it belongs
    bool dicho = false; // the user has been told
};

struct Rescate {
    QStringList vueltos; // paths of the files, where they are now
    std::vector<Pendiente> pendientes;
};

// Of one run, whose game has ended. What is empty then goes.
Rescate RescataCorrida(const QString &ruta);

// Of all runs that nobody is at any more, in the directory for temporary files.
Rescate RescataRestos();

// The directory of a new run, named after the process and a number, and the lock on it; none if it can't be
// made.
struct Corrida {
    QString ruta;
    host::Descriptor cerrojo;
};
Corrida NuevaCorrida();

// Where a drive of a run lies, told ahead of it: the run's own name stands as "*".
QByteArray LugarPrevisto(char letra);

// Whether it belongs to a game that a running process names.
bool SigueEnMarcha(const QString &ruta);

// Tells the user in a plain box where it lies, and notes that; once for the same files of a place while this
// process runs.
void DiPendiente(const Pendiente &pendiente, const core::Palabras &palabras);

// At a start of the program: brings back what earlier ones left, and tells what can't be if nobody has yet.
void RescataAlEmpezar(const core::Palabras &palabras);

} // namespace launch
