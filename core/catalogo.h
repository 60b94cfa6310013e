// Reading a catalogue file into the tables.
//
// One line, one thing, told by how the line begins: "-" a system, "+" an emulator, "*." an extension, and the
// keys EXE, XDI, ROM, IMG, PAR1, PAR2, WEB1, WEB2. Only the prefix counts, and the line is kept whole. Every
// other line is passed over.
#pragma once

#include "core/modulo.h"

#include <memory>
#include <vector>

namespace core {

inline constexpr int PrefijoRuta = 4; // "EXE=", "ROM=", "IMG="
inline constexpr int PrefijoParametro = 5; // "PAR1=", "PAR2=", "WEB1=", "WEB2="

// Where the lines go that both catalogue files have.
struct TablasDeSistemas {
    Tabla2<QString> &nombre;
    Tabla2<QString> &extension;
    Tabla<QString> &web1;
    Tabla2<QString> &web2;
    int &sistema;
    int &emulador;
};

class LectorDeSistemas {
public:
    // Sets the cursors ahead of the first line.
    explicit LectorDeSistemas(const TablasDeSistemas &tablas);

    // Fails with 9 for a system, an emulator or an extension past the tables, and for a line of a system
    // ahead of the first one.
    void Linea(const QString &linea);

private:
    TablasDeSistemas m_tablas;
    // Goes back to 0 at an emulator, not at a system: behind a system without emulators the next one's
    // extensions stand further back, and it reads as having none.
    int m_extension = 0;
};

class LectorDeCatalogo {
public:
    // Clears the tables, and sets the cursors ahead of the first line.
    explicit LectorDeCatalogo(Modulo &M);

    // Fails as LectorDeSistemas does.
    void Linea(const QString &linea);

private:
    Modulo &M;
    LectorDeSistemas m_sistemas;
};

// Reads Zembro.sye in the view of the database, else Zembro.emu, under number 1; a failure leaves the number
// open.
void LeeCatalogo(Modulo &M);

// A state whose tables hold the catalogue of this text, as far as it fits them.
std::unique_ptr<Modulo> CatalogoDe(const QString &texto);

// Number of emulators of a system.
int TotalEmuladores(const Modulo &M, int sistema);

// The systems, counted from 0, and the rows of a system's emulators, counted from 1, in the order in which
// the lists show them.
std::vector<int> SistemasEnOrden(const Modulo &M);
std::vector<int> EmuladoresEnOrden(const Modulo &M, int sistema);

// The position of a name among the sorted names of the systems, counted from 0; 0 if it isn't there.
int PosicionDeSistema(const Modulo &M, const QString &sistema);

// What Portada's exit saves: the positions of these names in the sorted lists, counted from 0.
struct Posiciones {
    int sistema = 0;
    int emulador = 0; // or NingunEmulador
};
Posiciones PosicionesDe(const Modulo &M, const QString &sistema, const QString &emulador);

// The same in a catalogue of this text, which somebody else may have changed since the tables were read; by
// the tables where it lacks the system. A pair whose emulator it lacks is one without.
Posiciones PosicionesEnTexto(
    const Modulo &M, const QString &texto, const QString &sistema, const QString &emulador);

// Where the pair at these positions of a catalogue stands in a later one of it. Among systems or emulators of
// one name it is the same one of them. A position where nothing stands, or whose name the later one lacks,
// stays as it is.
Posiciones PosicionesEn(const Modulo &despues, const Modulo &antes, const Posiciones &posiciones);

} // namespace core
