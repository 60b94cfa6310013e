// Saving an emulator's configuration: the one place where Zembro.emu gains a system or an emulator, and where
// the type digit is made that the launch reads.
#pragma once

#include "core/altas.h"
#include "core/configuracion.h"
#include "core/modulo.h"

namespace mainscreen {
class Portada;
}

namespace maintenance {

class Configuracion1;
class Configuracion2;

class Grabacion {
public:
    // Of the pair selected in the first step, with what the second one shows.
    Grabacion(
        core::Modulo &modulo, mainscreen::Portada &portada, Configuracion1 &paso1, Configuracion2 &paso2);

    // Says why it can't be saved, and leaves both steps as they are; or saves, brings the main screen up to
    // date, says so, and closes both. A failed rewrite isn't caught.
    void Graba();

private:
    bool EsRechazada();
    void MiraSituacion();
    core::Situacion SituacionEn(const QString &texto) const;
    bool Escribe();
    void AvisaDeCambio();
    void MuestraSistema();
    void MuestraEmulador();
    void MuestraCambio();

    core::EmuladorNuevo Bloque(const core::Webs &webs) const;
    void OcultaPasos();
    void RellenaCombos();
    void LeeTablas();
    void Renueva(core::Renovacion renovacion);
    void Cierra();
    void Mensaje(int tipo, const QString &mensaje, const QString &titulo);
    int Fila() const; // of the system in the database's tables

    core::Modulo &M;
    mainscreen::Portada &P;
    Configuracion1 &m_paso1;
    Configuracion2 &m_paso2;
    QString m_sistema;
    QString m_emulador;
    core::Casillas m_casillas; // as typed
    QString m_tipo;
};

} // namespace maintenance
