#include "launch/carpetadecorrida.h"

#include "launch/destino.h"

#include "host/encoding.h"

#include <utility>

#include <fcntl.h>

namespace launch {

CarpetaDeCorrida::CarpetaDeCorrida()
    : m_deAntes(RescataRestos())
    , m_corrida(NuevaCorrida())
{
}

CarpetaDeCorrida::~CarpetaDeCorrida()
{
    Recoge();
}

bool CarpetaDeCorrida::Escribe(const QByteArray &nombre, const QByteArray &bytes) const
{
    const host::Descriptor directorio(
        open(host::nameToDisk(m_corrida.ruta).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    FicheroNuevo fichero(directorio);
    return fichero.Abierto() && fichero.Escribe(bytes.constData(), bytes.size())
        && fichero.Termina(nombre, false);
}

Rescate CarpetaDeCorrida::Recoge()
{
    const bool hecho = std::exchange(m_recogida, true) || m_corrida.ruta.isEmpty();
    return hecho || SigueEnMarcha(m_corrida.ruta) ? Rescate() : RescataCorrida(m_corrida.ruta);
}

} // namespace launch
