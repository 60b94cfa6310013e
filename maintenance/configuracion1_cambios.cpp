// Systems and emulators that come into the database and go out of it. Controls: Mas1, Menos1, Boton_Mas2,
// Boton_Menos2. Zembro.sye and Zembro.rom change; what the catalogue uses is refused here, and is taken out
// on the main screen first.

#include "maintenance/configuracion1.h"

#include "core/altas.h"
#include "core/bajas.h"
#include "core/basededatos.h"
#include "core/bloques.h"
#include "core/catalogo.h"
#include "core/nombres.h"
#include "core/notas.h"

#include "mainscreen/escritura.h"
#include "mainscreen/portada.h"

#include "maintenance/reescritura.h"

using namespace Qt::StringLiterals;

namespace maintenance {

namespace {

const QString Zembro_sye = u"Zembro.sye"_s;
const QString Zembro_rom = u"Zembro.rom"_s;
const QString Zembro_emu = u"Zembro.emu"_s;

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
    if (!core::SirveDeSistema(nuevo)) {
        Mensaje(3, M.Palabras.Zem_NoNombre1, M.Palabras.Zem_NoNombre0);
        return;
    }
    if (core::SistemaEnBase(M, nuevo)) {
        Mensaje(3, M.Msg_SisYaAñadido1, M.Msg_SisYaAñadido0);
        return;
    }
    Alta alta = Alta::Hecha;
    if (!mainscreen::Escribe(M, P, [&] { alta = AñadeALosFicheros(nuevo); }))
        return;
    Llena_Configuracion1();
    Lista1->SetText(nuevo);
    if (alta == Alta::Repetida)
        Mensaje(3, M.Msg_SisYaAñadido1, M.Msg_SisYaAñadido0);
    else if (alta == Alta::SinNombre)
        Mensaje(3, M.Palabras.Zem_NoNombre1, M.Palabras.Zem_NoNombre0);
}

Configuracion1::Alta Configuracion1::AñadeALosFicheros(const QString &nuevo)
{
    bool repetido = false;
    const bool escrito = reescribeSi(M, Zembro_sye, [&](const QString &texto) -> std::optional<QString> {
        repetido = core::SistemaEnTexto(texto, nuevo); // added by another copy since the tables were read
        if (repetido || core::EsRegistroDeNotas(textoDe(M, Zembro_rom), nuevo))
            return {};
        return core::ConSistemaEnBase(texto, nuevo);
    });
    if (!escrito)
        return repetido ? Alta::Repetida : Alta::SinNombre;
    reescribe(M, Zembro_rom, [&](const QString &texto) { return core::ConSistemaNuevo(texto, nuevo); });
    return Alta::Hecha;
}

void Configuracion1::AñadirEmulador()
{
    const QString nuevo = PideNombre(M.Msg_AñadirEmu1, M.Msg_AñadirEmu0);
    if (nuevo.isEmpty())
        return;
    const QString sistema = Lista1->Text();
    const int fila = Sistema();
    if (!core::SirveDeEmulador(nuevo)) {
        Mensaje(3, M.Palabras.Zem_NoNombre1, M.Palabras.Zem_NoNombre0);
        return;
    }
    if (core::EmuladorEnBase(M, fila, nuevo)) {
        Mensaje(3, M.Msg_EmuYaAñadido1, M.Msg_EmuYaAñadido0);
        return;
    }
    core::Hueco hueco = core::Hueco::Libre;
    const auto conEmulador = [&](const QString &texto) -> std::optional<QString> {
        hueco = core::HuecoParaEmulador(texto, sistema, nuevo);
        if (hueco != core::Hueco::Libre)
            return {};
        return core::ConEmuladorEnBase(texto, u'-' + sistema, nuevo);
    };
    if (!mainscreen::Escribe(M, P, [&] { reescribeSi(M, Zembro_sye, conEmulador); }))
        return;
    LlenaYElige(sistema);
    Lista2->SetText(nuevo);
    if (hueco == core::Hueco::Ocupado)
        Mensaje(3, M.Msg_EmuYaAñadido1, M.Msg_EmuYaAñadido0);
    else if (hueco == core::Hueco::SinSistema)
        Mensaje(3, M.Palabras.Zem_Cambiado1, M.Palabras.Zem_Cambiado0);
}

// What the catalogue uses is refused by the tables, and once more by the file as it is when the change is
// written, as another copy may have configured it meanwhile. A pair that the lists alone make, each of
// another system, is in no file: nothing goes, and nothing has changed.
void Configuracion1::BorrarEmulador()
{
    if (Lista2->ListIndex() < 0)
        return;
    const QString emulador = Lista2->Text();
    if (!Confirma(M.Msg_BorrarEmu1 + emulador + u'?', M.Msg_BorrarEmu0))
        return;
    const QString sistema = Lista1->Text();
    const bool conocido = core::EmuladorEnBase(M, Sistema(), emulador);
    bool enUso = core::EmuladorEnCatalogo(M, emulador);
    bool escrito = false;
    const auto sinEmulador = [&](const QString &texto) -> std::optional<QString> {
        enUso = core::EmuladorEnCatalogo(*core::CatalogoDe(textoSiHay(M, Zembro_emu)), emulador);
        if (enUso || !core::TieneEmulador(texto, sistema, emulador))
            return {};
        return core::SinEmuladorEnBase(texto, sistema, emulador);
    };
    const auto borra = [&] { escrito = reescribeSi(M, Zembro_sye, sinEmulador); };
    if (!enUso && !mainscreen::Escribe(M, P, borra))
        return;
    if (enUso) {
        Mensaje(3, M.Msg_YaAñadido1, M.Msg_YaAñadido0);
        return;
    }
    LlenaYElige(sistema);
    Lista2->SetListIndex(0);
    if (conocido && !escrito)
        Mensaje(3, M.Palabras.Zem_Cambiado1, M.Palabras.Zem_Cambiado0);
}

void Configuracion1::BorrarSistema()
{
    if (Lista1->ListIndex() < 0)
        return;
    const QString sistema = Lista1->Text();
    const int fila = Sistema();
    if (!Confirma(M.Msg_BorrarSis1 + sistema + u'?', M.Msg_BorrarSis0))
        return;
    Baja baja = Baja::EnUso;
    const auto borra = [&] { baja = BorraDeLosFicheros(sistema, fila); };
    if (!core::SistemaEnCatalogo(M, sistema) && !mainscreen::Escribe(M, P, borra))
        return;
    if (baja == Baja::EnUso) {
        Mensaje(3, M.Msg_YaAñadido1, M.Msg_YaAñadido0);
        return;
    }
    Llena_Configuracion1();
    if (baja == Baja::Cambiado) {
        Lista1->SetText(sistema);
        Mensaje(3, M.Palabras.Zem_Cambiado1, M.Palabras.Zem_Cambiado0);
    }
}

// The database goes first, as the files decide then, under one lock: where the system stays, all of it does.
// The notes stay where the system's name can't be told from their own lines.
Configuracion1::Baja Configuracion1::BorraDeLosFicheros(const QString &sistema, int fila)
{
    Baja baja = Baja::Hecha;
    const bool conNotas = !core::EsLineaDeNotas(sistema);
    QStringList otros;
    reescribeSi(M, Zembro_sye, [&](const QString &texto) -> std::optional<QString> {
        if (core::TieneSistema(textoSiHay(M, Zembro_emu), sistema))
            baja = Baja::EnUso;
        else if (!core::EsComoEnBase(M, fila, texto))
            baja = Baja::Cambiado;
        if (baja != Baja::Hecha)
            return {};
        if (conNotas)
            textoDe(M, Zembro_rom); // without which nothing goes
        otros = core::SistemasDelTexto(texto + u'\n' + textoSiHay(M, Zembro_emu));
        return core::SinSistema(texto, sistema);
    });
    if (baja == Baja::Hecha && conNotas)
        reescribe(M, Zembro_rom, [&](const QString &texto) {
            return core::SinNotasDeSistema(core::SinParametrosDeSistema(texto, sistema), sistema, otros);
        });
    return baja;
}

} // namespace maintenance
