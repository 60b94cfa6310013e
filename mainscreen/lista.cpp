// The list of ROMs. Controls: Lista1, TXT_InfoRoms. State: the tables of the list, NumLista.
// The list keeps the order of the file names, whatever the descriptions say.

#include "mainscreen/portada.h"

#include "core/busqueda.h"
#include "core/lista.h"
#include "core/listado.h"

#include "forms/yield.h"

using namespace Qt::StringLiterals;

namespace mainscreen {

void Portada::ConectaLista()
{
    Lista1->Selection = [this] { Lista1_Selection(); };
    Lista1->Find = [this](const QString &texto) { return core::EntradaQueBusca(EntradasDeLista(), texto); };
    Lista1->FindNext = [this](const QString &texto, bool atras) {
        return core::SiguienteEntrada(EntradasDeLista(), texto, Lista1->ListIndex(),
            atras ? core::Sentido::Atras : core::Sentido::Adelante);
    };
}

QStringList Portada::EntradasDeLista() const
{
    QStringList entradas;
    for (int i = 0; i < Lista1->ListCount(); ++i)
        entradas.append(Lista1->List(i));
    return entradas;
}

void Portada::Llena_Lista()
{
    core::VaciaLista(M);
    M.NumROMsBorradas = 0;
    if (Combo2->Text().isEmpty())
        return;

    m_recuento = 0;
    try {
        ActivaParaLista(false);
        PonInfoRoms(u"..."_s);
        TXT_InfoRoms->Redraw();
        Lista1->Clear();
        forms::DoEventsWithoutInput();
        PonNegro();
        TXT_Info->SetForeColor(forms::colourFromNumber(0xC0));
        PonInfo(M.TXT_Leyendo);
        PonPuntero(RelojDeArena);
        LlenaTablasDeLista();
    } catch (const host::Failure &) {
        // The list holds what was reached.
    }
    TXT_Info->SetForeColor(Qt::black);
    ActivaParaLista(true);
    PonPuntero(PunteroNormal);
    M.NumLista = m_recuento + 1;
    if (m_recuento == 0) {
        PonInfoRoms(core::ResumenVacio);
        MuestraNingunaROM();
    }
}

void Portada::LlenaTablasDeLista()
{
    const core::Recuento recuento =
        core::ListaDe(M, Sistema(), Emulador() + 1, Combo1->Text(), [this] { PonInfo(M.TXT_Añadiendo); });
    Lista1->AddItems(recuento.entradas);
    m_recuento = recuento.exploradas;
    if (recuento.interrumpido)
        return;
    PonInfoRoms(core::Resumen(core::Numero(M.TipoEmu), Lista1->ListCount(), recuento, M.TXT_Directorios));
    if (M.RestaurarROM == 1)
        Lista1->SetText(M.ROMGuardada);
    else if (m_recuento > 0)
        Lista1->SetListIndex(0);
}

void Portada::ActivaParaLista(bool activo)
{
    for (QWidget *control : std::initializer_list<QWidget *> { Lista1, BotonA2, BotonB2, Combo1, Combo2, WEB1,
             WEB2, BotonC2, BotonD2, JugarB1, X2, X3, X4, X5, OFF, Boton1b, Boton2b, Boton3b, Boton4b,
             Boton5b, Boton6b, Flecha2, Graf_Imagen, Menos2a, Menos2b, Check1, E1, D1 })
        control->setEnabled(activo);
}

} // namespace mainscreen
