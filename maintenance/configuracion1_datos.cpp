// Extensions and web addresses, which both catalogue files hold and which stay equal in them. Controls:
// Boton_E, Boton_W1, Boton_W2. An emptied box is an answer like any other.

#include "maintenance/configuracion1.h"

#include "core/altas.h"
#include "core/basededatos.h"
#include "core/bloques.h"
#include "core/catalogo.h"

#include "mainscreen/escritura.h"
#include "mainscreen/portada.h"

#include "maintenance/reescritura.h"
#include "maintenance/relectura.h"

using namespace Qt::StringLiterals;

namespace maintenance {

// False if the user has gone back, or has left the offer as it was.
bool Configuracion1::Pide(const QString &mensaje, const QString &titulo, const QString &oferta)
{
    Mensaje(1, mensaje, titulo, oferta);
    return M.Respuesta_Caja != oferta && M.Respuesta_Opcion != 1;
}

// The lists keep their entries, unless another program has changed the database so that these no longer lead
// to what they name. Lista2 may show another system's emulators, and goes on doing so. Where what is to
// change has gone meanwhile, nothing changes.
void Configuracion1::CambiaEnAmbos(const Cambio &cambio, const Pareja &pareja)
{
    const bool conocida = pareja.deEmulador && core::EmuladorEnBase(M, Sistema(), pareja.emulador);
    const auto cambiada = [&](const QString &texto) -> std::optional<QString> {
        const bool queda = conocida ? core::TieneEmulador(texto, pareja.sistema, pareja.emulador)
                                    : core::TieneSistema(texto, pareja.sistema);
        if (!queda)
            return {};
        return cambio(texto);
    };
    bool escrito = false;
    if (!mainscreen::Escribe(M, P, [&] { escrito = reescribeSi(M, u"Zembro.sye"_s, cambiada); }))
        return;
    if (!escrito) {
        LlenaYElige(pareja.sistema);
        Mensaje(3, M.Palabras.Zem_Cambiado1, M.Palabras.Zem_Cambiado0);
        return;
    }
    const bool suyos = EmuladoresAlDia();
    M.CambioConfig1 = 1;
    Llena_Configuracion1();
    M.CambioConfig1 = 0;
    if (EstaEnUso(pareja)) {
        mainscreen::Escribe(M, P, [&] { reescribe(M, u"Zembro.emu"_s, cambio); });
        releeTablas(M, P);
    }
    if (!SistemasAlDia() || (suyos && !EmuladoresAlDia())) {
        LlenaYElige(pareja.sistema);
        Lista2->SetText(pareja.emulador);
    }
}

// Whether the catalogue holds what has changed: by its tables, or by its file, as another copy may have
// configured it since they were read. Of an emulator the database decides: where the pair isn't configured,
// nothing changes in the catalogue.
bool Configuracion1::EstaEnUso(const Pareja &pareja)
{
    if (pareja.deEmulador) {
        const int fila = core::FilaEnBase(M, pareja.sistema);
        return fila >= 0 && core::EmuladorEnBase(M, fila, pareja.emulador);
    }
    return core::SistemaEnCatalogo(M, pareja.sistema)
        || core::TieneSistema(textoSiHay(M, u"Zembro.emu"_s), pareja.sistema);
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
        { sistema, Lista2->Text() });
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
        { sistema, Lista2->Text() });
}

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
        { sistema, emulador, true });
}

} // namespace maintenance
