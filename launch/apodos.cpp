#include "launch/apodos.h"

#include "launch/intenta.h"

#include "host/encoding.h"
#include "host/letters.h"
#include "host/numberedfiles.h"
#include "host/paths.h"
#include "host/replacement.h"

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace launch {

namespace {

QByteArray sinTerminacion(const QByteArray &nombre)
{
    const qsizetype punto = nombre.indexOf('.');
    return nombre.first(punto < 0 ? nombre.size() : punto);
}

// False where none can be made: it is missed by DOS alone.
bool enlaza(const QByteArray &fichero, const QByteArray &enlace)
{
    return symlink(fichero.constData(), enlace.constData()) == 0;
}

} // namespace

CarpetaDeApodos::CarpetaDeApodos(const QByteArray &dentroDe, const UnidadesDOS::Montaje &montaje)
    : m_lugar(dentroDe + "/files-" + montaje.letra)
    , m_original(montaje.lugar)
{
    mkdir(m_lugar.constData(), 0700);
    for (const UnidadesDOS::Apodo &apodo : montaje.apodos) {
        enlaza(m_original + '/' + apodo.fichero, m_lugar + '/' + apodo.nombre);
        enlazaLoGuardado(apodo);
    }
}

void CarpetaDeApodos::enlazaLoGuardado(const UnidadesDOS::Apodo &apodo)
{
    const QString base = QString::fromLatin1(sinTerminacion(apodo.nombre));
    Intenta([&] {
        for (const QString &nombre : host::listFiles(host::nameFromDisk(m_original))) {
            const QByteArray bytes = host::nameToDisk(nombre);
            if (host::sameName(QString::fromLatin1(sinTerminacion(bytes)), base)
                && enlaza(m_original + '/' + bytes, m_lugar + '/' + bytes.toUpper()))
                m_mostrados.insert(bytes.toUpper());
        }
    });
}

// The program can't have meant a file that it never saw.
QString CarpetaDeApodos::destinoDe(const QString &nombre) const
{
    const QString directorio = host::nameFromDisk(m_original) + u'/';
    if (m_mostrados.contains(host::nameToDisk(nombre).toUpper()) || !host::exists(directorio + nombre))
        return directorio + nombre;
    const qsizetype punto = nombre.indexOf(u'.');
    const qsizetype fin = punto < 0 ? nombre.size() : punto;
    QString otro;
    for (int numero = 2; otro.isEmpty() || host::exists(directorio + otro); ++numero)
        otro = nombre.first(fin) + u'-' + QString::number(numero) + nombre.sliced(fin);
    return directorio + otro;
}

CarpetaDeApodos::~CarpetaDeApodos()
{
    const QString lugar = host::nameFromDisk(m_lugar);
    Intenta([&] {
        for (const QString &nombre : host::listPlainFiles(lugar)) {
            const QString guardado = lugar + u'/' + nombre;
            const bool llevado = Intenta([&] {
                host::Replacement fichero(destinoDe(nombre), u"Zembro.tmp"_s);
                fichero.read();
                fichero.write(host::readBytes(guardado));
                fichero.commit();
            });
            if (llevado)
                unlink(host::nameToDisk(guardado).constData());
        }
        for (const QByteArray &nombre : host::listInDiskOrder(lugar)) {
            struct stat estado;
            const QByteArray ruta = m_lugar + '/' + nombre;
            if (lstat(ruta.constData(), &estado) == 0 && S_ISLNK(estado.st_mode))
                unlink(ruta.constData());
        }
    });
    rmdir(m_lugar.constData());
}

} // namespace launch
