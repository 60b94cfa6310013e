// What stands selected, for a launch without a screen.
#pragma once

#include "companion/mundo.h"

#include "launch/pantalla.h"

#include "host/caughtsignals.h"

#include <optional>

namespace companion {

class PantallaDeTexto : public launch::Pantalla {
public:
    PantallaDeTexto(const Sesion &sesion, Pareja pareja, int entradas, QString entrada);

    // Hands these on to the emulator while it runs.
    void Entrega(host::CaughtSignals &senales) { m_senales = &senales; }
    // The last one handed on; none if none came.
    std::optional<int> Entregada() const { return m_entregada; }

    QString TextoCombo2() const override { return m_pareja.nombreEmulador; }
    int Sistema() const override { return m_pareja.sistema; }
    int Emulador() const override { return m_pareja.fila - 1; }
    int EntradasLista1() const override { return m_entradas; }
    QString TextoLista1() const override { return m_entrada; }

    void MuestraCargando() override { }
    void InfoEnNegro() override { }
    void InfoEnColorDelSistema() override { }
    void MuestraNingunaROM() override { }
    void LLena_INFO() override { }
    void SeleccionaEnLista1(const QString &) override { }
    void EnfocaLista1() override { }
    void EnMarcha(pid_t emulador) override { m_emulador = emulador; }
    void Cede(int descriptor, int milisegundos) override;
    void CierraVentana(const QString &) override { } // without a screen none is found
    void Aviso(const QString &titulo, const QString &texto) override;

private:
    const Sesion &m_sesion;
    const Pareja m_pareja;
    const int m_entradas;
    const QString m_entrada;
    host::CaughtSignals *m_senales = nullptr;
    pid_t m_emulador = -1;
    std::optional<int> m_entregada;
};

// The game that a command line asks for by SYSTEM EMULATOR ENTRY. None, told already, where it can't be told
// which one. An emulator that is started without a game needs none.
struct Pedida {
    Pareja pareja;
    int entradas = 0;
    QString entrada;
};
std::optional<Pedida> JuegoPedido(Sesion &sesion);

} // namespace companion
