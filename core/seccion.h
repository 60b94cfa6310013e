// The section of parameters in Zembro.rom: records of four fields, each with the text that it stood in.
#pragma once

#include "host/textsource.h"

#include "core/lineas.h"

#include <QString>
#include <QStringView>

#include <optional>

namespace core {

struct Parametros {
    QString clave;
    QString sistema;
    QString emulador;
    QString texto;

    bool operator==(const Parametros &) const = default;
};

// A field that may be missing at the end of the file, and then is empty.
QString CampoOVacio(host::TextSource &fuente);

// A key as the first field of a record, in double quotes also where it would pass for an anchor; nothing
// where it would not come back as it is.
std::optional<QString> ClaveEscrita(const QString &clave);

// A record as one line; nothing where one of its fields would not come back as it is.
std::optional<QString> RegistroDeParametros(const Parametros &parametros);

struct RegistroLeido {
    Parametros campos;
    QStringView
        texto; // with the line end behind the last field, if that is what ends it; lives with the source
    bool faltaElUltimo = false; // an empty last field of which the text holds nothing: its comma isn't in it

    bool EsCierre() const { return campos.clave == u"'"; }
};

// The next record; the closing one up to the end of its last line. Fails with 62 at the end.
RegistroLeido LeeRegistro(host::TextSource &fuente);

// A record that stays: on one line, with quotes only around fields that need them. Where that would not give
// the same fields it comes out as it stands.
void CopiaRegistro(Copia &copia, const RegistroLeido &registro);

// The closing record, on three lines. Where a line of it may be the header, or the first note, of a system
// that follows the section, all of them come out as they stand.
void CopiaCierre(Copia &copia, const RegistroLeido &cierre);

} // namespace core
