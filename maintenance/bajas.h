// Removals on the main screen: its small buttons Menos2a and Menos2b take the selected system, or the
// selected emulator, out of Zembro.emu. The database and the notes keep theirs, so that both can be
// configured again.
#pragma once

#include "core/modulo.h"

#include <functional>
#include <optional>

namespace mainscreen {
class Portada;
}

namespace maintenance {

class Bajas {
public:
    // Puts its handlers on the two buttons; must live as long as the screen does.
    Bajas(core::Modulo &modulo, mainscreen::Portada &portada);

private:
    // The emulator that is to go.
    struct Elegido {
        QString sistema;
        QString emulador;
        int fila; // of the system in the tables
        int columna; // in the file's order
        int total; // emulators of the system
    };

    void Menos2a_Release();
    void Menos2b_Release();

    bool Confirma(const QString &titulo, const QString &mensaje);
    bool Quita(const std::function<std::optional<QString>(const QString &)> &baja);
    void RefrescaCombos(int posicion, int emulador);

    void BorraSistema();
    void QuedanOtrosSistemas();
    void BorraEmulador();
    void BorraUnico(const Elegido &elegido);
    void BorraUnoDeVarios(const Elegido &elegido);

    void SinNadaQueJugar();
    void PonNegro();
    void OlvidaRuta();
    int Sistema() const; // row of the selected system in the tables
    int Emulador() const; // column of the selected emulator

    core::Modulo &M;
    mainscreen::Portada &P;
};

} // namespace maintenance
