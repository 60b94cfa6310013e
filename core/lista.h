// The list of ROMs: the directory's entries matched against the notes and the extensions of the system, by
// type.
#pragma once

#include "core/modulo.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace core {

// What an emulator's type says of its games: types 5 to 8 are 0 to 3 with the emulator started without a ROM.
bool UnDirectorioPorJuego(int tipo); // 1, 6
bool FicherosSueltos(int tipo); // 0, 5
bool UnZipPorJuego(int tipo); // 2, 3, 7, 8
bool CargaSoloElEmulador(int tipo); // 5 to 8

// Only so many filters are walked; with as many of them, and none fitting, the walk never meets the empty one
// at which a directory is taken.
inline constexpr int FiltrosMirados = 26;

// Fills Arch_Nombre and Arch_Mayus with the entries of a ROM directory, and returns their number. A
// sub-directory that a filter names leaves its entry empty. Fails with 76 for a directory that can't be read,
// 9 for more entries than the tables take.
int ExploraDirectorio(Modulo &M, int tipo, const QString &directorio);

// The notes of a system into Nota_Clave, in upper case, and Nota_Texto. Returns their number; fails as
// CargaNotas.
int CargaNotasEnMayusculas(Modulo &M, const QString &sistema);

// The extensions of a system into ExtActivas, without "*."; returns their number.
int CargaExtensiones(Modulo &M, int sistema);

// The first so many extensions in force, for thousands of names.
class ExtensionesEnVigor {
public:
    ExtensionesEnVigor(const Modulo &M, int total);

    // How many of them a name, in upper case, fits: its last one, two or three characters equal one.
    int VecesQueEncaja(QStringView nombreMayus) const;

private:
    std::vector<QString> m_ordenadas;
};

struct Recuento {
    QStringList entradas; // as the list shows them, in order
    double bytes = 0; // of the files listed
    int exploradas = 0; // entries looked at, not entries listed
    bool interrumpido = false; // a length could not be had: what is here was added before
};

// Lengths in bytes of files of the ROM directory, up to the first that can't be had.
using LargosDeFicheros = std::function<QList<qint64>(const QStringList &nombres)>;

// Matches the entries against the notes: one with a note gives its description, one without its name.
Recuento Empareja(
    const Modulo &M, int tipo, int entradas, int notas, int extensiones, const LargosDeFicheros &largos);

// The line over the list.
QString Resumen(int tipo, qsizetype listadas, const Recuento &recuento, const QString &TXT_Directorios);

// Shown wherever no ROM can be listed, with its comma in every locale.
inline const QString ResumenVacio = QStringLiteral("0 ROMS - 0,00MB");

// Stands under the play button where there is nothing to play.
inline const QString SinPalabra = QStringLiteral("-----");

} // namespace core
