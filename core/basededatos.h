// The database of all systems and emulators known, Zembro.sye, in the tables BD_..., and what the tables
// answer while a system is being chosen for configuring.
#pragma once

#include "core/modulo.h"

namespace core {

// Reads Zembro.sye under number 1 into BD_Nombre, BD_WEB1, BD_WEB2 and BD_EXT, and sets Lista1Lista to 0.
// Only BD_Nombre is cleared first: what a removed system or a longer list of extensions left in the others
// stays until something else is written there. BD_TotalSistemas is set only with CambioConfig1 at 0. Fails
// with 62 for an empty file, and with 9 for what doesn't fit the tables and for a line of a system ahead of
// the first one; the number stays open then.
void LeeBaseDeDatos(Modulo &M);

// Number of emulators of a row of BD_Nombre.
int TotalEmuladoresDeBase(const Modulo &M, int sistema);

// True if the database has a system of this name, case apart.
bool SistemaEnBase(const Modulo &M, const QString &nombre);

// True if this row of the database has an emulator of this name, case apart.
bool EmuladorEnBase(const Modulo &M, int sistema, const QString &nombre);

// The row of the system of exactly this name, -1 if there is none.
int FilaEnBase(const Modulo &M, const QString &sistema);

// The names of the systems in the text of Zembro.sye or Zembro.emu.
QStringList SistemasDelTexto(const QString &texto);

// What the text of Zembro.sye says, whatever the tables held when they were read: whether it has a system of
// this name, case apart, and whether a new emulator finds its system, spelled exactly so, and its name free
// there, case apart.
bool SistemaEnTexto(const QString &texto, const QString &nombre);
enum class Hueco { SinSistema, Ocupado, Libre };
Hueco HuecoParaEmulador(const QString &texto, const QString &sistema, const QString &nombre);

// True if the text has the system of a row of the database, with its emulators, as the row does.
bool EsComoEnBase(const Modulo &M, int fila, const QString &texto);

// True if the catalogue has configured this system, or this emulator under any system, spelled exactly so.
// The search for an emulator takes 150 steps in all, an empty column being one, and one that stands further
// back isn't found. The search for a system fails with 9 where all 151 rows are others.
bool SistemaEnCatalogo(const Modulo &M, const QString &nombre);
bool EmuladorEnCatalogo(const Modulo &M, const QString &nombre);

// Config_Origen of a system, by its exact name.
enum OrigenDeSistema : int { SistemaConocido = 0, SistemaRecreativo = 1, OtroSistema = 2 };
OrigenDeSistema OrigenDe(const QString &sistema);

// The "*." lines of a row up to the first empty entry, as a new block of the catalogue takes them. Fails with
// 9 for 151 of them.
QStringList ExtensionesDeBase(const Modulo &M, int sistema);

// What the input box offers: the extensions, each what stands behind its last point, joined by commas. Leaves
// ExtTexto with one comma more, and its length in ExtLargo. Fails with 5 for a system without extensions.
QString OfertaDeExtensiones(Modulo &M, int sistema);

// The answer cut at every comma; nothing is trimmed or left out. Fails with 9 for more than 151 pieces.
QStringList PartirExtensiones(const QString &respuesta);

} // namespace core
