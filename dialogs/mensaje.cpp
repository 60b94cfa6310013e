#include "dialogs/mensaje.h"

#include "forms/yield.h"

#include <utility>

namespace dialogs {

namespace {

enum Tipo : int { Entrada = 1, Pregunta = 2, Advertencia = 3, Aviso = 4 };

}

CajaDeMensajes::CajaDeMensajes(
    core::Modulo &modulo, std::function<QWidget *()> dueño, std::function<Teja()> teja)
    : M(modulo)
    , m_dueño(std::move(dueño))
    , m_caja([&modulo, teja = std::move(teja)] { return std::make_unique<Caja>(modulo, teja()); })
{
}

void CajaDeMensajes::Mensaje(int Tipo, const QString &mensaje, const QString &TituloVentana,
    const QString &Boton1, const QString &Boton2, const QString &MeterEnCajaDeTexto)
{
    if (Tipo < Entrada || Tipo > Aviso)
        return;

    if (Tipo == Entrada)
        m_caja->PreparaEntrada(mensaje, TituloVentana, MeterEnCajaDeTexto);
    else if (Tipo == Pregunta)
        m_caja->PreparaPregunta(mensaje, TituloVentana);
    else if (Tipo == Advertencia)
        m_caja->PreparaAdvertencia(mensaje, TituloVentana);
    else
        m_caja->PreparaAviso(mensaje, TituloVentana);
    m_caja->TXT_Aceptar->SetCaption(Boton1);
    m_caja->TXT_Volver->SetCaption(Boton2);
    m_caja->Aceptar2->setAccessibleName(Boton1);
    m_caja->Flecha2->setAccessibleName(Boton2);
    m_caja->Casilla->setAccessibleName(mensaje);
    m_caja->setAccessibleDescription(mensaje);
    m_caja.ShowModal(m_dueño());
    forms::DoEvents();
}

} // namespace dialogs
