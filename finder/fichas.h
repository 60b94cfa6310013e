// The table that tells how an emulator of the database is started on Linux: data/emuladores.tsv, which
// describes its own columns.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace finder {

struct Ficha {
    QString emulador;
    QStringList ejecutables; // names, the one to be preferred first
    QString tipo; // one digit
    QString par1; // as the table has them; see ParametrosDe
    QString par2;
    bool pideROMs = false; // its machine doesn't run without ROMs of its own
};

// True if MAME is the emulator, whichever machine it is for.
bool EsDeMAME(const Ficha &ficha);

// Lines that begin with "#" and empty ones are passed over. Fails with 5 for a line that hasn't its
// filled columns or whose type is no type, and for an emulator that comes twice.
std::vector<Ficha> LeeFichas(const QString &texto);

// The parameters as the catalogue keeps them: types 5 to 8 join the first ones to the program's name, and
// type 3 joins the second ones to the game's, so that these bring a blank of their own.
struct Parametros {
    QString par1;
    QString par2;
};
Parametros ParametrosDe(const Ficha &ficha);

// The name of the core that it loads, empty for none; the parameters with the core's path in its place.
QString NucleoDe(const Ficha &ficha);
QString ConNucleo(QString parametros, const QString &ruta);

// Whether it gets bare names of games, and so is started beside a link that is called "roms"; the parameters
// with that link.
bool SeArrancaJuntoASusROMs(const Ficha &ficha);
QString ConEnlaceDeROMs(QString parametros);

// What stands between "{name:" and "}" in a text, empty if there is none.
QString MarcaDe(const QString &texto, const QString &nombre);

} // namespace finder
