// What is wrong with the files of the program directory, and with the pairs that it configures.
#pragma once

#include "companion/lineasdelcatalogo.h"
#include "companion/mundo.h"

#include "core/remiendos.h"

#include <QString>

#include <chrono>
#include <functional>
#include <vector>

namespace companion {

struct Hallazgo {
    QString clase; // a word of English, the same in every language
    QString fichero; // of the program directory, or a path
    int linea = 0; // counted from 1, 0 where none is meant
    QString pareja; // "System / Emulator"; empty for a file's
    QString texto; // what is wrong and what to do
    int primera = 0; // of what stands twice, the line that counts
    QString copia = {}; // of the files, that holds what is lost
    bool seRemienda = false; // found no more where all repairs are made
};

using Revision = std::vector<Hallazgo>;

// A file that can't be read is a finding, and the others are looked at all the same.
template <typename Parte>
void Revisa(Revision &revision, const QString &fichero, const Palabras &palabras, Parte &&parte)
{
    try {
        parte();
    } catch (const host::Failure &fallo) {
        revision.push_back({ QStringLiteral("unreadable"), fichero, 0, {}, TextoDe(fallo, palabras) });
    }
}

// By what a finding is known where lines have come and gone.
QString SenaDe(const Hallazgo &hallazgo);

// Of all files that follow.
void RevisaFicheros(Sesion &sesion, Revision &revision);

// Names the newest copy that holds what is lost, with what no repair is for. What the files hold isn't read
// any more behind it.
void MarcaCopias(Sesion &sesion, Revision &revision);

// Whether nothing stands in a file of which a copy holds something: then nothing else is said of it, and no
// repair makes a file of it that looks whole.
bool SeReponeDeUnaCopia(const QString &fichero, const QString &texto);

// Of Zembro.emu and Zembro.sye; of Zembro.rom; of Zembro.cfg; of the language files.
void RevisaCatalogo(const Sesion &sesion, const QString &fichero, Revision &revision);
void RevisaNotas(Sesion &sesion, Revision &revision);
void RevisaAjustes(Sesion &sesion, Revision &revision);
void RevisaIdiomas(const Sesion &sesion, Revision &revision);

// A game without a capture, and where it is looked for.
struct SinCaptura {
    QString entrada;
    QString ruta;
};

// What was counted of a pair.
struct Cuenta {
    qsizetype listados = 0;
    qsizetype otraExtension = 0;
    qsizetype filtrados = 0;
    qsizetype otroTipo = 0;
    QStringList otraCosa; // names of what is no file, or where directories are games no directory
    QStringList ocultos; // names that are never listed
    std::vector<SinCaptura> sinCaptura;
    qsizetype sinVerificar = 0; // games that MAME was not asked about
};

// Of one pair: program, directories, list. The lines are those of Zembro.emu.
Cuenta RevisaPareja(
    Sesion &sesion, const Pareja &pareja, const LineasDelCatalogo &lineas, Revision &revision);

// How long a MAME may take until it is ended: to begin, and for each game that it is asked about. It may hand
// on all that it says at its end, so its silence tells nothing.
struct PacienciaConMAME {
    std::chrono::milliseconds alPrincipio = std::chrono::seconds(60);
    std::chrono::milliseconds porJuego = std::chrono::seconds(5); // of gigabytes on a slow disk
};
extern PacienciaConMAME Paciencia;

// What MAME says of the ROMs of the machine that a pair's parameters name; and where they name none, of those
// of the games whose names a launch hands on. It is asked about so many games only, unless the pair is asked
// for: yields how many are left.
void RevisaMaquinaDeMAME(
    const Sesion &sesion, const Pareja &pareja, const LineasDeEmulador &lineas, Revision &revision);
qsizetype RevisaJuegosDeMAME(Sesion &sesion, const Pareja &pareja, const LineasDeEmulador &lineas,
    const QStringList &entradas, Revision &revision);

// Of the listed files, or directories, of a pair's games.
void RevisaJuegos(const Sesion &sesion, const Pareja &pareja, const QString &directorio,
    const QStringList &nombres, Revision &revision);

// Of the captures of these pairs; a directory that pairs share is told of once, and none of its captures is
// alone that fits a game of any of them.
void RevisaCapturas(
    Sesion &sesion, const std::vector<Pareja> &parejas, const LineasDelCatalogo &lineas, Revision &revision);

// A text file of the program directory, or what is read in its place.
QString TextoDelPrograma(const core::Modulo &M, const QString &fichero);

// The names of the systems of the catalogue and of the database, of that alone that can be read.
QStringList SistemasConocidos(const core::Modulo &M);

// What kept a directory of the configuration from being listed, and what to do where it isn't there.
QString TextoDeDirectorio(const host::Failure &fallo, const Palabras &palabras);

// What the disk has under a value of the catalogue.
core::EnDisco LoQueHayEn(const QString &valor);

// A change of a text file that has one answer only. It reads the other files.
struct Remiendo {
    QString fichero;
    std::function<QString(const QString &)> cambio;
};
std::vector<Remiendo> Remiendos(const core::Modulo &M);

} // namespace companion
