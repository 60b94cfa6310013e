// What a launch does to the machine: the launch itself does it, a rehearsal only tells it.
#pragma once

#include "launch/encargo.h"
#include "launch/lineadeorden.h"
#include "launch/vbunzbas.h"

#include "core/modulo.h"

#include <QString>
#include <QStringList>

namespace launch {

class Pantalla;

class Obras {
public:
    virtual ~Obras() = default;

    // What is being played.
    virtual void Juego(const QString &sistema, const QString &emulador, const QString &entrada) = 0;

    // What an earlier run left in the temporary directory goes; at the end the directory around it.
    virtual void BarreTemporal() = 0;
    virtual void RecogeTemporal() = 0;

    // Makes the directory for what a ZIP holds; false if it is somebody else's, or can't be made.
    virtual bool HazTemporal(const QString &carpeta) = 0;
    virtual void VaciaTemporal(const QString &carpeta) = 0;

    // The directory of a game beside its emulator: absolute, empty if there can be none. It is cleaned of
    // these files, and goes, when the emulator has ended.
    virtual QString AbreCarpeta(const QString &ExeDir, const QString &Carpeta) = 0;
    virtual void LimpiaCarpeta(const QStringList &desempaquetados) = 0;

    virtual Desempaquetado Desempaqueta(const QString &ArchivoZip, const QString &destino) = 0;
    virtual QStringList FicherosEn(const QString &carpeta) = 0; // the plain ones; none where it fails

    // Instead of a start, or ahead of one.
    virtual void Aviso(const QString &titulo, const QString &texto) = 0;
    virtual void AvisoPrevio(const QString &titulo, const QString &texto) = 0;
    virtual void EnsenaOrden(const QString &texto) = 0; // in the debug mode
    // And stays until the emulator has ended. `exe` is its executable as the catalogue has it.
    virtual void Arranca(const LineaDeOrden &orden, const QString &exe, const Lugares &lugares) = 0;
};

// One launch, or the rehearsal of one: by what stands selected.
void Juega(core::Modulo &M, Pantalla &pantalla, Obras &obras);

} // namespace launch
