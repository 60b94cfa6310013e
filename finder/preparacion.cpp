#include "finder/preparacion.h"

#include "host/failure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace finder {

namespace {

void haceDirectorio(const QString &ruta)
{
    if (!QDir().mkpath(ruta))
        throw host::Failure(host::PathAccess, u"make a directory"_s, ruta);
}

void enlaza(const QString &destino, const QString &enlace)
{
    const QFileInfo anterior(enlace);
    if (anterior.isSymLink()) {
        if (anterior.symLinkTarget() == QDir::cleanPath(destino))
            return;
        QFile::remove(enlace);
    }
    if (!QFile::link(destino, enlace))
        throw host::Failure(host::PathAccess, u"make a link"_s, enlace);
}

} // namespace

void PreparaJuegos(const Hallazgo &hallazgo)
{
    haceDirectorio(hallazgo.emulador.rom);
}

void Prepara(const Hallazgo &hallazgo)
{
    PreparaJuegos(hallazgo);
    haceDirectorio(hallazgo.emulador.img);
    if (hallazgo.arranque.isEmpty())
        return;
    haceDirectorio(hallazgo.arranque);
    enlaza(hallazgo.programa, hallazgo.emulador.exe);
    enlaza(QDir::cleanPath(hallazgo.emulador.rom), hallazgo.arranque + u"/roms"_s);
}

} // namespace finder
