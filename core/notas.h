// The notes on single ROMs in Zembro.rom: descriptions by system, and parameters.
//
// A system's block: a line with its name, records `KEY,"description"`, a line with a lone apostrophe. The
// parameter section: a line that begins with "Parametros especificos", records of four bare fields, a closing
// record whose first field is a lone apostrophe. Every piece is found by its header line, never by its place
// in the file.
#pragma once

#include "core/lineas.h"
#include "core/modulo.h"
#include "core/seccion.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace core {

// How the heading of the parameter section begins.
inline constexpr QStringView CabeceraParametros = u"Parametros especificos";

// Loads the notes of a system from index 0 of Nota_Clave (as the file has them) and Nota_Texto; what the
// tables held behind the last record stays. Returns the number of records. Reads under number 1. Fails with
// 62 where there is no line that equals the system's name, or no closing apostrophe behind it, and with 9 for
// more records than the table takes; the number stays open then.
int CargaNotas(Modulo &M, const QString &sistema);

// The same after a change of the file: its end, wherever it comes, ends the load in silence.
int RecargaNotas(Modulo &M, const QString &sistema);

// The index of the first note with this text, -1 if there is none. The notes end at the first empty key
// behind the first note, which is always tried: without any the empty text is found there.
int NotaConTexto(const Modulo &M, const QString &texto);

// Changes of the file, from text to text. A field that the field reader would split, and a key that would
// pass for an anchor, is written in double quotes. With a key, a system or an emulator that would not come
// back as it is the text stays unchanged.

bool SePuedeEscribir(const QString &clave);

// The same for the key of a description, which needs one: an empty key ends the search through the notes.
bool SePuedeDescribir(const QString &clave);

// Whether the record of this description ends with its line. Behind double quotes of its own a comma would
// begin the next record.
bool EsDescripcionEntera(const QString &descripcion);

// What the reader gives back of a description: with double quotes in it, what stands ahead of them.
QString DescripcionLeida(const QString &descripcion);

// False for parameters of a game that are not kept whole: a comma would cut them for other readers of the
// file, double quotes at their start anywhere. Blanks at the ends of a text with double quotes are dropped.
bool SonParametrosEnteros(const QString &texto);

// The record of a description, its key in upper case; none where it wouldn't come back.
std::optional<QString> RegistroDeDescripcion(const QString &clave, const QString &descripcion);

// The new record stands first in the system's block, its key in upper case; without a block nothing changes.
QString ConDescripcionNueva(
    const QString &texto, const QString &sistema, const QString &clave, const QString &descripcion);

// Replaces the first record of the whole file with this description, whichever system it belongs to, or with
// this key and read as this description. The key is written in upper case.
QString ConDescripcionCambiada(
    const QString &texto, const QString &anterior, const QString &clave, const QString &descripcion);

// Whether there is such a record.
bool HayDescripcion(const QString &texto, const QString &descripcion, const QString &clave);

QString ConParametrosNuevos(const QString &texto, const Parametros &parametros);

// Every record of this key becomes the new one, whatever its system and emulator, or goes if the new
// parameters are empty. The other records come out on one line each, with quotes only where they need them,
// and empty lines outside the section are dropped. Fails with 62 where the section or its closing record is
// missing.
QString ConParametrosCambiados(const QString &texto, const Parametros &parametros);

// Whether the line at this index is the one that begins with "[" behind the last system; the key of a note
// may begin so too. With names of systems, as far as they are known.
bool AcabaLosSistemas(const std::vector<LineaConFin> &lineas, size_t indice, const QStringList &sistemas);

// Whether the reader takes the line for the apostrophe that ends a block, where a record may begin: also
// with blanks around it, in double quotes, or ahead of a comma.
bool CierraLasNotas(QStringView linea);

// An empty block for a system ahead of the first line that begins with "[" and is no note; without such a
// line nothing changes.
QString ConSistemaNuevo(const QString &texto, const QString &sistema);

// Without the parameter records whose second field is the system, case apart. The rest as above.
QString SinParametrosDeSistema(const QString &texto, const QString &sistema);

// Without the system's block, header and closing apostrophe included. Where the apostrophe is missing the
// block ends ahead of the header of another system, of these names, and ahead of the end of the systems.
QString SinNotasDeSistema(const QString &texto, const QString &sistema, const QStringList &otros = {});

} // namespace core
