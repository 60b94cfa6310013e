#include "maintenance/bajas.h"

#include "core/bajas.h"
#include "core/catalogo.h"
#include "core/lista.h"

#include "host/letters.h"

#include "mainscreen/escritura.h"
#include "mainscreen/portada.h"

#include "maintenance/reescritura.h"
#include "maintenance/relectura.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace maintenance {

namespace {

const QString Zembro_emu = u"Zembro.emu"_s;

} // namespace

Bajas::Bajas(core::Modulo &modulo, mainscreen::Portada &portada)
    : M(modulo)
    , P(portada)
{
    P.Menos2a->Release = [this] { Menos2a_Release(); };
    P.Menos2b->Release = [this] { Menos2b_Release(); };
}

void Bajas::Menos2a_Release()
{
    if (P.Combo1->Text().isEmpty())
        SinNadaQueJugar();
    else
        BorraSistema();
    P.Combo1->setFocus();
}

void Bajas::Menos2b_Release()
{
    if (!P.Combo2->Text().isEmpty())
        BorraEmulador();
    P.Combo2->setFocus();
}

bool Bajas::Confirma(const QString &titulo, const QString &mensaje)
{
    P.Mensaje(2, mensaje + u'?', titulo, M.TXT_Aceptar, M.TXT_Volver, QString());
    return M.Respuesta_Opcion != 1;
}

// Takes out of the catalogue what the tables say. Where it isn't what they hold any more, nothing goes: the
// user is told so, and sees what it is now. False then, and where nothing can be written.
bool Bajas::Quita(const std::function<std::optional<QString>(const QString &)> &baja)
{
    bool escrito = false;
    if (!mainscreen::Escribe(M, P, [&] { escrito = reescribeSi(M, Zembro_emu, baja); }) || escrito)
        return escrito;
    releeTodo(M, P);
    avisaDeCambio(M, P);
    return false;
}

// Reads the catalogue anew, and selects by places in the sorted lists.
void Bajas::RefrescaCombos(int posicion, int emulador)
{
    M.UltimoSistema = QString::number(posicion);
    M.UltimoEmulador = QString::number(emulador);
    P.Llena_Combos();
}

void Bajas::BorraSistema()
{
    const QString sistema = P.Combo1->Text();
    const int fila = Sistema();
    const int posicion = core::PosicionParaBorrar(M, sistema);
    if (!Confirma(M.Msg_BorrarSis0, M.Msg_BorrarSis1 + sistema))
        return;
    if (!Quita([&](const QString &texto) { return core::SinSistemaDeLaFila(M, fila, texto); }))
        return;
    const int antes = M.TotalSistemas;
    const int quedan = leeSoloTablas(M, P);
    RefrescaCombos(
        std::min(core::PosicionTrasBorrar(posicion, antes), std::max(quedan - 1, 0)), core::NingunEmulador);
    P.TXT_Info->SetCaption(M.TXT_NingunaROM);
    if (!P.Combo1->Text().isEmpty()) {
        QuedanOtrosSistemas();
        return;
    }
    P.Lista1->Clear();
    SinNadaQueJugar();
    PonNegro();
}

void Bajas::QuedanOtrosSistemas()
{
    P.Lista1->Clear();
    if (core::TotalEmuladores(M, Sistema()) == 1)
        P.Combo2->SetText(P.Combo2->List(0));
    if (P.Combo2->Text().isEmpty()) {
        P.TXT_InfoRoms->SetCaption(M.TXT_EmuNoSelec);
        P.TXT_Boton->SetCaption(core::SinPalabra);
    }
}

// What is to go is known ahead of the question, so that what was asked for is what goes.
void Bajas::BorraEmulador()
{
    const int total = core::TotalEmuladores(M, Sistema());
    const Elegido elegido { P.Combo1->Text(), P.Combo2->Text(), Sistema(), Emulador(), total };
    core::PosicionParaBorrar(M, elegido.sistema); // fails where the table is full
    if (!Confirma(M.Msg_BorrarEmu0, M.Msg_BorrarEmu1 + elegido.emulador))
        return;
    const auto baja = [&](const QString &texto) {
        return core::SinEmuladorDeLaFila(M, elegido.fila, elegido.columna, texto);
    };
    if (!Quita(baja))
        return;
    leeSoloTablas(M, P);
    if (total == 1)
        BorraUnico(elegido);
    else
        BorraUnoDeVarios(elegido);
}

// The system stays in the catalogue and in Combo1, empty.
void Bajas::BorraUnico(const Elegido &elegido)
{
    RefrescaCombos(core::PosicionDeSistema(M, elegido.sistema), core::NingunEmulador);
    if (P.Combo2->Text().isEmpty())
        SinNadaQueJugar();
    P.Lista1->Clear();
    OlvidaRuta();
    P.TXT_Info->SetCaption(M.TXT_NingunaROM);
    PonNegro();
}

// A single one that remains is selected at once, and listed unless the slots of the ROM lines are equal.
void Bajas::BorraUnoDeVarios(const Elegido &elegido)
{
    if (M.IndiceRutas == 0)
        M.IndiceRutas = 1;
    RefrescaCombos(
        core::PosicionDeSistema(M, elegido.sistema), elegido.total == 2 ? 0 : core::NingunEmulador);
    const bool hayEmulador = !P.Combo2->Text().isEmpty();
    if (hayEmulador)
        M.RutasROM(M.IndiceRutas) = host::upper(M.Cat_ROM(Sistema(), Emulador()));
    if (M.RutasROM(2) != M.RutasROM(1))
        P.Llena_Lista();
    if (!hayEmulador) {
        P.Lista1->Clear();
        OlvidaRuta();
        SinNadaQueJugar();
        PonNegro();
    }
}

void Bajas::SinNadaQueJugar()
{
    P.TXT_InfoRoms->SetCaption(core::ResumenVacio);
    P.TXT_Boton->SetCaption(core::SinPalabra);
}

void Bajas::PonNegro()
{
    P.Graf_Imagen->show();
    P.PonNegro();
}

// An empty slot: the next emulator picked compares unequal, and is listed.
void Bajas::OlvidaRuta()
{
    if (M.IndiceRutas == 0)
        M.IndiceRutas = 1;
    M.RutasROM(M.IndiceRutas).clear();
}

int Bajas::Sistema() const
{
    return P.Combo1->ItemData(P.Combo1->ListIndex());
}

int Bajas::Emulador() const
{
    return P.Combo2->ItemData(P.Combo2->ListIndex()) + 1;
}

} // namespace maintenance
