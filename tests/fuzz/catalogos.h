// A catalogue file as its reader takes it, and what a change of it may do to the lines.
#pragma once

#include "entrada.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace pelusa {

// Whole lines throughout.
struct EmuladorLeido {
    QString nombre;
    QStringList valores; // EXE, XDI, ROM, IMG, PAR1, PAR2, WEB2
};

struct SistemaLeido {
    QString web1;
    QStringList extensiones;
    QList<EmuladorLeido> emuladores; // the first is the system itself
};

using Catalogo = QList<SistemaLeido>;

// None if the reader refuses the text.
std::optional<Catalogo> Leido(const QString &texto);

// The place of a line "-NAME", -1 if there is none; of a line "+NAME" in a system.
qsizetype SistemaDe(const Catalogo &catalogo, const QString &linea);
qsizetype EmuladorDe(const SistemaLeido &sistema, const QString &linea);

// The first system that has this line "+NAME", -1 if there is none.
qsizetype DueñoDe(const Catalogo &catalogo, const QString &linea);

void ExigeCatalogo(const QString &texto, const Catalogo &seria, const char *propiedad);

// A file as the program writes it, whatever its comments are: each system closed, all that is read within a
// system and in the part of it where it belongs, no name twice, one end of the data and nothing to read
// behind it.
bool EsRegular(const QString &texto);

// Lines with their ends; one without an end is given one.
QStringList LineasDe(const QString &texto);

// Those that stand in no block of this system: from a line "-NAME" to the line that closes it, or to what
// can't be its own.
QStringList LineasDeOtros(const QString &texto, const QString &sistema);

// Every old line is there, in the old order.
void ExigeSoloAñade(const QString &antes, const QString &despues);

// Every line was there, in this order, but for such as equal this one.
void ExigeSoloQuita(const QString &antes, const QString &despues, const QString &nueva = {});

// The lines of others are what they were.
void ExigeOtrosComoEran(const QString &antes, const QString &despues, const QString &sistema);

// A text of one line.
QString UnaLinea(Entrada &entrada);

// The names, without their sign, of a text's lines that begin with it.
QStringList NombresCon(QChar signo, const QString &texto);

} // namespace pelusa
