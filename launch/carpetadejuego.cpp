#include "launch/carpetadejuego.h"

#include "launch/intenta.h"

#include "host/paths.h"

namespace launch {

CarpetaDeJuego::CarpetaDeJuego(const QString &ExeDir, const QString &Carpeta)
{
    if (ExeDir.isEmpty() || Carpeta.isEmpty())
        return;
    m_nueva = Intenta([&] { host::makeDirectory(ExeDir + Carpeta); });
    m_ruta = host::trueSpelling(ExeDir + Carpeta);
}

void CarpetaDeJuego::Limpia(const QStringList &desempaquetados) const
{
    if (m_ruta.isEmpty())
        return;
    if (m_nueva)
        Intenta([&] { host::deleteFiles(m_ruta); });
    else
        Intenta([&] { host::deleteFiles(m_ruta, desempaquetados); });
    Intenta([&] { host::removeDirectory(m_ruta); });
}

} // namespace launch
