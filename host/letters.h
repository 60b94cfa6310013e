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

} // namespace host
