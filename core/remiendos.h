// Repairs of the text files, from text to text: each of what has one answer only. A text that lacks nothing
// comes back as it is.
#pragma once

#include "core/lineas.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace core {

// The lines whose text ends in a carriage return that is no part of their end, as indices; and the text
// without those. A text whose lines end in nothing else, as those of old Macintoshes do, is one such line,
// and comes back in lines.
std::vector<size_t> LineasConRetorno(const QString &texto);
QString SinRetornosSueltos(const QString &texto);

// Indices of lines.
struct SinCierre {
    size_t inicio = 0; // of the block
    size_t fin = 0; // ahead of which its closing line is missing
};

// The systems of a catalogue whose block has no closing line, and the text with it.
std::vector<SinCierre> BloquesSinCierre(const QString &texto);
QString ConBloquesCerrados(const QString &texto);

// Whether a line that begins with "[" ends the systems of a catalogue, and the text with one.
bool TieneMarcaFinal(const QString &texto);
QString ConMarcaFinal(const QString &texto);

// What the disk has under a value of the catalogue, as it stands there.
enum class EnDisco { Nada, Fichero, Directorio };
using LoQueHay = std::function<EnDisco(const QString &valor)>;

// Whether blanks stand behind the value that no directory's name ends in.
bool SobranBlancos(const QString &valor, const LoQueHay &hay);

// The value of a ROM or IMG line with a separator at its end, in the kind that the path has; not that of a
// file, which no separator makes a directory. Behind blanks that don't belong there it gets none: they go
// where a directory comes of it, else it stays. And the text of a catalogue with such lines.
QString ConSeparadorFinal(const QString &valor, const LoQueHay &hay);
QString ConSeparadoresFinales(const QString &texto, const LoQueHay &hay);

// The systems of these names whose notes run into the next one's, as their closing apostrophe is missing.
std::vector<SinCierre> NotasSinCierre(const QString &texto, const QStringList &sistemas);
QString ConNotasCerradas(const QString &texto, const QStringList &sistemas);

// Whether a line that begins with "[" ends the notes of the systems; and the text with one where its place is
// sure: ahead of the parameters, or behind blocks of these systems and nothing else.
bool TieneMarcaDeNotas(const QString &texto, const QStringList &sistemas);
QString ConMarcaDeNotas(const QString &texto, const QStringList &sistemas);

// The settings with each of their lines where the reader counts it, under the head as the program writes it,
// and an empty line behind the filters. Unchanged where one of them is missing or stands twice, where there
// is no filter, or a line that is none of these.
QString ConAjustesEnSuSitio(const QString &texto);

// The index behind the last line that may belong to the section of parameters: not the two lines that the
// notes as delivered end in, nor empty ones.
size_t FinDeLosParametros(const std::vector<LineaConFin> &lineas);

// The text with the heading of the section of parameters where that has lost it: behind the end of the
// systems, if nothing but whole records and their closing apostrophe, or nothing at all, follows.
QString ConCabeceraDeParametros(const QString &texto, const QStringList &sistemas);

// The index of the line that begins the section of parameters, where its closing apostrophe is missing and
// nothing but whole records follows: else it may belong in several places. And the text with it.
std::optional<size_t> ParametrosSinCierre(const QString &texto);
QString ConParametrosCerrados(const QString &texto);

} // namespace core
