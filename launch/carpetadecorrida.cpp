#include "launch/carpetadecorrida.h"

#include "launch/destino.h"
#include "launch/intenta.h"
#include "launch/temporal.h"

#include "host/descriptor.h"
#include "host/encoding.h"
#include "host/paths.h"

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace launch {

namespace {

const QString Prefijo = u"ZB-DOS-"_s; // and the process, and a number

void vacia(const QString &ruta)
{
    const QByteArray lugar = host::nameToDisk(ruta) + '/';
    Intenta([&] {
        for (const QByteArray &nombre : host::listInDiskOrder(ruta))
            unlink((lugar + nombre).constData());
    });
    rmdir(lugar.constData());
}

// What killed runs left.
void barre(const QString &temporal)
{
    QStringList nombres;
    Intenta([&] { nombres = host::listDirectories(temporal); });
    for (const QString &nombre : nombres) {
        const pid_t proceso = nombre.startsWith(Prefijo) ? nombre.split(u'-').value(2).toInt() : 0;
        if (proceso > 0 && kill(proceso, 0) != 0 && errno == ESRCH && EsDirectorioPropio(temporal + nombre))
            vacia(temporal + nombre);
    }
}

QString nuevaCarpeta()
{
    static int numero = 0;
    const QString temporal = DirectorioTemporal();
    if (temporal.isEmpty())
        return {};
    barre(temporal);
    const QString ruta = temporal + Prefijo + QString::number(getpid()) + u'-' + QString::number(++numero);
    return mkdir(host::nameToDisk(ruta).constData(), 0700) == 0 ? ruta : QString();
}

} // namespace

CarpetaDeCorrida::CarpetaDeCorrida()
    : m_ruta(nuevaCarpeta())
{
}

CarpetaDeCorrida::~CarpetaDeCorrida()
{
    if (!m_ruta.isEmpty())
        vacia(m_ruta);
}

bool CarpetaDeCorrida::Escribe(const QByteArray &nombre, const QByteArray &bytes) const
{
    const host::Descriptor directorio(
        open(host::nameToDisk(m_ruta).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    FicheroNuevo fichero(directorio);
    return fichero.Abierto() && fichero.Escribe(bytes.constData(), bytes.size())
        && fichero.Termina(nombre, false);
}

} // namespace launch
