#include "launch/carpetadejuego.h"

#include "launch/intenta.h"

#include "host/paths.h"

namespace launch {

CarpetaDeJuego::CarpetaDeJuego(const QString &ExeDir, const QString &Carpeta)
{
    // A separator in a game's name would lead somewhere else.
    if (ExeDir.isEmpty() || Carpeta.isEmpty() || host::lastSeparator(Carpeta) >= 0)
        return;
    m_nueva = Intenta([&] { host::makeDirectory(ExeDir + Carpeta); });
    // Nothing is unpacked through a link: what lies behind it isn't ours to clean up.
    Intenta([&] {
        if (host::attributes(ExeDir + Carpeta) & host::DirectoryAttribute)
            m_ruta = host::trueSpelling(ExeDir + Carpeta);
    });
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
