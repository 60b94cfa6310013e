// Upper and lower case and the one order of names: the same functions everywhere, so that positions in sorted
// lists, sorted tables and directory listings agree whatever the locale.
#pragma once

#include <QString>
#include <QStringView>

namespace host {

// One character in, one out: a character whose capital would be two (the German sharp s) stays as it is.
QString upper(QStringView text);
QString lower(QStringView text);

// Negative, zero or positive: code point by code point, as the texts stand.
int compareCodes(QStringView a, QStringView b);

// As compareCodes, of the upper-cased texts. Equal names keep their order of insertion in controls.
int compareNames(QStringView a, QStringView b);

// True where the upper-cased texts are equal.
bool sameName(QStringView a, QStringView b);

// Where columns are counted, a character counts once, also one that the text keeps in two halves. Both are
// indices of the text: behind its first characters (its end where it has fewer), and where its last ones
// begin (0 where it has fewer).
qsizetype behindFirst(QStringView text, qsizetype characters);
qsizetype startOfLast(QStringView text, qsizetype characters);

} // namespace host
