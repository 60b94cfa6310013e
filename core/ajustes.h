// The settings file: read by line number, written by the fixed order of its lines.
#pragma once

#include "core/modulo.h"

#include <QString>
#include <QStringList>

namespace core {

// The first-run mark: a settings file that holds this field hasn't been written yet.
inline const QString MarcaVacio = QStringLiteral("VACIO");

// True if a field of Zembro.cfg is the first-run mark. Fails with 62 for an empty file. Reads under number 1.
bool EsPrimeraVez(Modulo &M);

// Reads Zembro.cfg, or what a first run couldn't write into it, under number 1 into the settings. Fails with
// 62 for an empty file, 5 for a setting without a value and for a list of filters that is empty, 9 for one
// that fills the table.
void LeeAjustes(Modulo &M);

// What stands behind the last "=" of a line and one character more. Fails with 5 where nothing does.
QString ValorDeAjuste(const QString &linea);

// The file as first written.
QString AjustesPorDefecto(const QString &LanguageFile);

// The settings that are rewritten one by one; the last selection's two lines go together.
enum class Ajuste { UltimaSeleccion, GuardarUltimo, TypeOfEditor, MsgEndDOS, LanguageFile };

// The file's text with one setting's lines replaced. Lines behind the change are lost if the key that ends
// the skipping is missing. Of the settings other than the last selection, that key's line comes out twice
// where nothing is being skipped.
QString ConAjuste(const QString &texto, Ajuste ajuste, const QStringList &lineasNuevas);

// Rewrites Zembro.cfg with one setting's new lines, with this pair by Zembro.emu as it is now, or with
// another [Filters] section. Fails with what a rewrite fails with; where the pair stands there already,
// nothing is lost by a directory that can't be written to.
void GuardaAjuste(Modulo &M, Ajuste ajuste, const QStringList &lineasNuevas);
void GuardaUltimaSeleccion(Modulo &M, const QString &sistema, const QString &emulador);
void GuardaFiltros(Modulo &M, const QStringList &filtros);

// The text of Zembro.cfg with the last selection as the program goes on with it in another catalogue. The
// text stays as it is before the first run, where nothing changes, and where another line would be lost or
// the start would read something else, as its lines aren't those that the program writes.
QString ConSeleccionEn(const QString &texto, const Modulo &despues, const Modulo &antes);

// The new lines of a changed setting.
QStringList LineasDeUltimaSeleccion(int sistema, int emulador);
QString LineaDeGuardarUltimo(int valor);
QString LineaDeEditor(int tipo);
QString LineaDeMsgEndDOS(const QString &texto);
QString LineaDeIdioma(const QString &fichero); // the name in upper case

// The filters of a text that separates them by commas, blanks and all: the first one in any case, then those
// up to the next empty one. Fails with 9 for a text with a name past the 101st.
QStringList FiltrosDeTexto(const QString &texto);

// Whether the next start reads as it is given what the user chooses for a language, and types for the end of
// a program and for the directories to leave out: false also for what would pass for the first-run mark. Of
// the directories the reader's own rules hold: upper case, no blanks behind a name, two commas end the list,
// an empty list is none.
bool VuelveIdioma(const QString &fichero);
bool VuelveMsgEndDOS(const QString &texto);
bool VuelvenFiltros(const QString &texto);

// The file's text with another [Filters] section: one line a filter, in upper case, and the file ends behind
// it.
QString ConFiltros(const QString &texto, const QStringList &filtros);

} // namespace core
