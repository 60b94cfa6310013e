// What launching needs of the main screen: what stands selected there, what it shows, the yield and the
// message.
#pragma once

#include <QString>

#include <sys/types.h>

namespace launch {

class Pantalla {
public:
    virtual ~Pantalla() = default;

    // The selection. The numbers are those that the entries carry: system index, emulator index minus 1;
    // they fail with 380 where nothing is selected.
    virtual QString TextoCombo2() const = 0;
    virtual int Sistema() const = 0;
    virtual int Emulador() const = 0;
    virtual int EntradasLista1() const = 0;
    virtual QString TextoLista1() const = 0;

    // The red line of the start; the colour back to black; the system's colour at the end of a launch.
    virtual void MuestraCargando() = 0;
    virtual void InfoEnNegro() = 0;
    virtual void InfoEnColorDelSistema() = 0;
    virtual void MuestraNingunaROM() = 0;
    virtual void LLena_INFO() = 0;

    // Selects the first entry of the list with this text, which runs its selection event, and gives the list
    // the focus.
    virtual void SeleccionaEnLista1(const QString &texto) = 0;
    virtual void EnfocaLista1() = 0;

    // The emulator has been started, as the leader of a session of its own.
    virtual void EnMarcha(pid_t) { }

    // Lets the event loop run until something happened there, the descriptor (-1: none) is readable, or the
    // time in milliseconds is over.
    virtual void Cede(int descriptor, int milisegundos) = 0;

    // Asks another program's window with this title, case apart, to close.
    virtual void CierraVentana(const QString &titulo) = 0;

    // The message box, type 4.
    virtual void Aviso(const QString &titulo, const QString &texto) = 0;
};

} // namespace launch
