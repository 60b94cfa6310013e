// How large the screen is: picked by keys, or by the wheel on the title, for the next start. The toolkit
// can't change it while a window stands. Controls: Titulo1. State: none of the settings; Zembro.tam.

#include "mainscreen/escritura.h"
#include "mainscreen/portada.h"

#include "core/tamano.h"

#include "forms/plaintext.h"

#include "host/process.h"

#include <QShortcut>
#include <QToolTip>

#include <cmath>
#include <cstdlib>
#include <utility>

namespace mainscreen {

void Portada::ConectaTamano()
{
    // Where + needs Shift, it is the key of = alone that is pressed.
    for (const auto &[tecla, mayor] :
        { std::pair(Qt::Key_Plus, true), { Qt::Key_Equal, true }, { Qt::Key_Minus, false } })
        connect(new QShortcut(Qt::CTRL | tecla, this), &QShortcut::activated, this,
            [this, mayor = mayor] { PideTamano(mayor); });
    Titulo1->Wheel = [this](const QWheelEvent &rueda) {
        if (!rueda.modifiers().testFlag(Qt::ControlModifier))
            return;
        m_ruedaDelTitulo += rueda.angleDelta().y();
        const int pasos = m_ruedaDelTitulo / QWheelEvent::DefaultDeltasPerStep;
        m_ruedaDelTitulo %= QWheelEvent::DefaultDeltasPerStep;
        for (int paso = 0; paso < std::abs(pasos); ++paso)
            PideTamano(pasos > 0);
    };
}

void Portada::PideTamano(bool mayor)
{
    // A tip that comes up under the pointer goes at once.
    const bool enTitulo = Titulo1->rect().contains(Titulo1->mapFromGlobal(QCursor::pos()));
    const QPoint junto = Titulo1->mapToGlobal(QPoint(0, enTitulo ? Titulo1->height() : 0));
    // What the user has set there holds at the next start too.
    if (!host::rememberedVariable("QT_SCALE_FACTOR").value_or(QByteArray()).isEmpty()) {
        QToolTip::showText(junto, forms::asTip(M.Palabras.Zem_NoTamano), Titulo1);
        return;
    }
    m_tamanoPedido = core::OtroTamano(m_tamanoPedido > 0 ? m_tamanoPedido : devicePixelRatioF(), mayor);
    try {
        if (!Escribe(M, *this, [this] { core::GuardaTamano(m_tamanoPedido); }))
            return;
    } catch (const host::Failure &) {
        Mensaje(
            3, M.Palabras.Zem_SoloTamano1, M.Palabras.Zem_SoloLeer0, M.TXT_Aceptar, M.TXT_Volver, QString());
        return;
    }
    QString aviso = M.Palabras.Zem_Tamano;
    aviso.replace(QStringLiteral("%1"), QString::number(std::lround(m_tamanoPedido * 100)));
    QToolTip::showText(junto, forms::asTip(aviso), Titulo1);
}

} // namespace mainscreen
