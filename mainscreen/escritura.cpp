#include "mainscreen/escritura.h"

#include "host/failure.h"

#include "mainscreen/portada.h"

namespace mainscreen {

bool Escribe(core::Modulo &M, Portada &P, const std::function<void()> &escritura)
{
    try {
        escritura();
    } catch (const host::ReadOnlyPlace &) {
        AvisaDeSoloLectura(M, P, M.Palabras.Zem_SoloLeer1);
        return false;
    }
    return true;
}

void EscribeAlSalir(core::Modulo &M, Portada &P, const std::function<void()> &escritura)
{
    try {
        escritura();
    } catch (const host::ReadOnlyPlace &) {
        if (!M.SoloLecturaDicha)
            AvisaDeSoloLectura(M, P, M.Palabras.Zem_SoloFin1);
    }
}

void AvisaDeSoloLectura(core::Modulo &M, Portada &P, const QString &texto)
{
    M.SoloLecturaDicha = true;
    P.Mensaje(3, texto, M.Palabras.Zem_SoloLeer0, M.TXT_Aceptar, M.TXT_Volver, QString());
}

} // namespace mainscreen
