#include "maintenance/relectura.h"

#include "core/catalogo.h"
#include "core/lista.h"

#include "mainscreen/portada.h"

#include <tuple>

namespace maintenance {

namespace {

// Number of systems in the tables.
int totalSistemas(const core::Modulo &M)
{
    int total = 0;
    while (total < core::MaxSistemas && !M.Cat_Nombre(total, 0).isEmpty())
        ++total;
    return total;
}

bool estaEnTablas(const core::Modulo &M, const QString &sistema, const QString &emulador)
{
    for (int s = 0; s < totalSistemas(M); ++s) {
        if (M.Cat_Nombre(s, 0) != u'-' + sistema)
            continue;
        for (int e = 1; e <= core::TotalEmuladores(M, s); ++e) {
            if (M.Cat_Nombre(s, e) == u'+' + emulador)
                return true;
        }
        return false;
    }
    return false;
}

void sinEmulador(core::Modulo &M, mainscreen::Portada &P)
{
    P.Lista1->Clear();
    P.TXT_InfoRoms->SetCaption(P.Combo1->Text().isEmpty() ? core::ResumenVacio : M.TXT_EmuNoSelec);
    P.TXT_Boton->SetCaption(core::SinPalabra);
    P.TXT_Info->SetCaption(M.TXT_NingunaROM);
    P.Graf_Imagen->show();
    P.PonNegro();
}

} // namespace

int leeSoloTablas(core::Modulo &M, mainscreen::Portada &P)
{
    M.SoloTablas = 1;
    P.Llena_Combos();
    M.SoloTablas = 0;
    const int total = totalSistemas(M);
    if (total > 0)
        M.TotalSistemas = total;
    return total;
}

bool combosAlDia(const core::Modulo &M, const mainscreen::Portada &P)
{
    if (P.Combo1->ListCount() != totalSistemas(M))
        return false;
    for (int i = 0; i < P.Combo1->ListCount(); ++i) {
        if (M.Cat_Nombre(P.Combo1->ItemData(i), 0) != u'-' + P.Combo1->List(i))
            return false;
    }
    const int elegido = P.Combo1->ListIndex();
    if (elegido < 0)
        return true;
    const int fila = P.Combo1->ItemData(elegido);
    if (P.Combo2->ListCount() != core::TotalEmuladores(M, fila))
        return false;
    for (int i = 0; i < P.Combo2->ListCount(); ++i) {
        if (M.Cat_Nombre(fila, P.Combo2->ItemData(i) + 1) != u'+' + P.Combo2->List(i))
            return false;
    }
    return true;
}

void releeTablas(core::Modulo &M, mainscreen::Portada &P)
{
    const std::pair listos(M.Combo1Listo, M.Combo2Listo);
    leeSoloTablas(M, P);
    std::tie(M.Combo1Listo, M.Combo2Listo) = listos;
    if (!combosAlDia(M, P))
        releeTodo(M, P);
}

void releeTodo(core::Modulo &M, mainscreen::Portada &P)
{
    const QString sistema = P.Combo1->Text();
    const QString emulador = P.Combo2->Text();
    leeSoloTablas(M, P);
    const bool quedaEmulador = estaEnTablas(M, sistema, emulador);
    const core::Posiciones posiciones = core::PosicionesDe(M, sistema, quedaEmulador ? emulador : QString());
    M.UltimoSistema = QString::number(posiciones.sistema);
    M.UltimoEmulador = QString::number(quedaEmulador ? posiciones.emulador : core::NingunEmulador);
    P.Llena_Combos();
    // An empty slot: the next emulator picked compares unequal, and is listed.
    if (M.IndiceRutas == 0)
        M.IndiceRutas = 1;
    M.RutasROM(M.IndiceRutas).clear();
    if (P.Combo2->Text().isEmpty())
        sinEmulador(M, P);
    else
        P.Llena_Lista();
}

void avisaDeCambio(const core::Modulo &M, mainscreen::Portada &P)
{
    P.Mensaje(3, M.Palabras.Zem_Cambiado1, M.Palabras.Zem_Cambiado0, M.TXT_Aceptar, M.TXT_Volver, QString());
}

} // namespace maintenance
