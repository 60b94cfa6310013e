// Systems and emulators that come into the database and go out of it. Controls: Mas1, Menos1, Boton_Mas2,
// Boton_Menos2. Zembro.sye and Zembro.rom change; what the catalogue uses is refused here, and is taken out
// on the main screen first.

#include "maintenance/configuracion1.h"

#include "core/altas.h"
#include "core/bajas.h"
#include "core/basededatos.h"
#include "core/notas.h"

#include "maintenance/reescritura.h"

using namespace Qt::StringLiterals;

namespace maintenance {

namespace {

const QString Zembro_sye = u"Zembro.sye"_s;
const QString Zembro_rom = u"Zembro.rom"_s;

} // namespace

// Empty if the user has gone back, or has typed nothing.
QString Configuracion1::PideNombre(const QString &mensaje, const QString &titulo)
{
    Mensaje(1, mensaje, titulo);
    const bool nada = M.Respuesta_Caja == M.RespuestaMensaje || M.Respuesta_Opcion == 1;
    return nada ? QString() : M.Respuesta_Caja;
}

bool Configuracion1::Confirma(const QString &mensaje, const QString &titulo)
{
    Mensaje(2, mensaje, titulo);
    return M.Respuesta_Opcion != 1;
}

void Configuracion1::AñadirSistema()
{
    if (Lista1->ListIndex() < 0)
        return;
    const QString nuevo = PideNombre(M.Msg_AñadirSis1, M.Msg_AñadirSis0);
    if (nuevo.isEmpty())
        return;
    if (core::SistemaEnBase(M, nuevo)) {
        Mensaje(3, M.Msg_SisYaAñadido1, M.Msg_SisYaAñadido0);
        return;
    }
    reescribe(M, Zembro_sye, [&](const QString &texto) { return core::ConSistemaEnBase(texto, nuevo); });
    reescribe(M, Zembro_rom, [&](const QString &texto) { return core::ConSistemaNuevo(texto, nuevo); });
    Llena_Configuracion1();
    Lista1->SetText(nuevo);
}

void Configuracion1::AñadirEmulador()
{
    const QString nuevo = PideNombre(M.Msg_AñadirEmu1, M.Msg_AñadirEmu0);
    if (nuevo.isEmpty())
        return;
    const QString sistema = Lista1->Text();
    const int fila = Sistema();
    if (core::EmuladorEnBase(M, fila, nuevo)) {
        Mensaje(3, M.Msg_EmuYaAñadido1, M.Msg_EmuYaAñadido0);
        return;
    }
    reescribe(M, Zembro_sye,
        [&](const QString &texto) { return core::ConEmuladorEnBase(texto, M.BD_Nombre(fila, 0), nuevo); });
    Llena_Configuracion1();
    Lista1->SetText(sistema);
    Lista2->SetText(nuevo);
}

void Configuracion1::BorrarEmulador()
{
    if (Lista2->ListIndex() < 0)
        return;
    const QString emulador = Lista2->Text();
    if (!Confirma(M.Msg_BorrarEmu1 + emulador + u'?', M.Msg_BorrarEmu0))
        return;
    const QString sistema = Lista1->Text();
    if (core::EmuladorEnCatalogo(M, emulador)) {
        Mensaje(3, M.Msg_YaAñadido1, M.Msg_YaAñadido0);
        return;
    }
    reescribe(M, Zembro_sye,
        [&](const QString &texto) { return core::SinEmuladorEnBase(texto, sistema, emulador); });
    Llena_Configuracion1();
    Lista1->SetText(sistema);
    Lista2->SetListIndex(0);
}

void Configuracion1::BorrarSistema()
{
    if (Lista1->ListIndex() < 0)
        return;
    const QString sistema = Lista1->Text();
    if (!Confirma(M.Msg_BorrarSis1 + sistema + u'?', M.Msg_BorrarSis0))
        return;
    if (core::SistemaEnCatalogo(M, sistema)) {
        Mensaje(3, M.Msg_YaAñadido1, M.Msg_YaAñadido0);
        return;
    }
    reescribe(
        M, Zembro_rom, [&](const QString &texto) { return core::SinParametrosDeSistema(texto, sistema); });
    reescribe(M, Zembro_sye, [&](const QString &texto) { return core::SinSistema(texto, sistema); });
    reescribe(M, Zembro_rom, [&](const QString &texto) { return core::SinNotasDeSistema(texto, sistema); });
    Llena_Configuracion1();
}

} // namespace maintenance
