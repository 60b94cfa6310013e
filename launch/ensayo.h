// What a launch would do, told without doing it.
#pragma once

#include "launch/encargo.h"
#include "launch/lineadeorden.h"
#include "launch/pantalla.h"
#include "launch/vbunzbas.h"

#include "core/modulo.h"

#include <optional>

namespace launch {

struct Ensayo {
    std::optional<LineaDeOrden> orden; // none if nothing would be started
    Encargo encargo; // what would be started for it
    QString directorio; // the working directory, absolute
    bool enDepuracion = false; // the command would be shown first
    QString tituloDeAviso; // what would be told to the user, empty for nothing
    QString aviso;

    struct Zip {
        QString archivo;
        QString destino;
        Desempaquetado miembros;
        QStringList queEstan; // files of the destination that would be asked about
        QStringList seQuedan; // subdirectories that would have to go ahead of it, with all in them
        bool seVaEntero = true; // the destination goes too; else only what was unpacked directly into it
    };
    std::optional<Zip> zip;
};

// Reads the archive whole, and moves the working directory as the launch would; asks for no password.
Ensayo Ensaya(core::Modulo &M, Pantalla &pantalla);

} // namespace launch
