// Extensions and web addresses, which both catalogue files hold and which stay equal in them. Controls:
// Boton_E, Boton_W1, Boton_W2. An emptied box is an answer like any other.

#include "maintenance/configuracion1.h"

#include "core/altas.h"
#include "core/basededatos.h"
#include "core/catalogo.h"

#include "mainscreen/portada.h"

#include "maintenance/reescritura.h"

using namespace Qt::StringLiterals;

namespace maintenance {

// False if the user has gone back, or has left the offer as it was.
bool Configuracion1::Pide(const QString &mensaje, const QString &titulo, const QString &oferta)
{
    Mensaje(1, mensaje, titulo, oferta);
    return M.Respuesta_Caja != oferta && M.Respuesta_Opcion != 1;
}

// enUso: whether the catalogue holds what has changed; asked for once the tables are fresh.
void Configuracion1::CambiaEnAmbos(const Cambio &cambio, const std::function<bool()> &enUso)
{
    reescribe(M, u"Zembro.sye"_s, cambio);
    M.CambioConfig1 = 1;
    Llena_Configuracion1();
    M.CambioConfig1 = 0;
    if (!enUso())
        return;
    reescribe(M, u"Zembro.emu"_s, cambio);
    // The combos of the main screen stay as they are, alive or not.
    const std::pair listos(M.Combo1Listo, M.Combo2Listo);
    M.SoloTablas = 1;
    P.Llena_Combos();
    M.SoloTablas = 0;
    std::tie(M.Combo1Listo, M.Combo2Listo) = listos;
}

void Configuracion1::Boton_E_Click()
{
    if (Lista1->ListIndex() < 0)
        return;
    const QString sistema = Lista1->Text();
    if (!Pide(M.Msg_EXT1, M.Msg_EXT0, core::OfertaDeExtensiones(M, Sistema())))
        return;
    const QStringList extensiones = core::PartirExtensiones(M.Respuesta_Caja);
    CambiaEnAmbos([&](const QString &texto) { return core::ConExtensiones(texto, sistema, extensiones); },
        [&] { return core::SistemaEnCatalogo(M, sistema); });
}

void Configuracion1::Boton_W1_Click()
{
    if (Lista1->ListIndex() < 0)
        return;
    const QString sistema = Lista1->Text();
    const QString oferta = core::Valor(M.BD_WEB1(Sistema()), core::PrefijoParametro);
    if (!Pide(M.Msg_NuevaWWWROMS1, M.Msg_NuevaWWWROMS0, oferta))
        return;
    const QString direccion = M.Respuesta_Caja;
    CambiaEnAmbos([&](const QString &texto) { return core::ConWebDeSistema(texto, sistema, direccion); },
        [&] { return core::SistemaEnCatalogo(M, sistema); });
}

// The database decides whether the catalogue is gone through too: where the pair isn't configured, nothing
// changes in it.
void Configuracion1::Boton_W2_Click()
{
    if (Lista2->ListIndex() < 0)
        return;
    const QString sistema = Lista1->Text();
    const QString emulador = Lista2->Text();
    const int fila = Sistema();
    const QString oferta = core::Valor(M.BD_WEB2(fila, Emulador()), core::PrefijoParametro);
    if (!Pide(M.Msg_NuevaWWW1, M.Msg_NuevaWWW0, oferta))
        return;
    const QString direccion = M.Respuesta_Caja;
    CambiaEnAmbos(
        [&](const QString &texto) { return core::ConWebDeEmulador(texto, sistema, emulador, direccion); },
        [&] { return core::EmuladorEnBase(M, fila, emulador); });
}

} // namespace maintenance
