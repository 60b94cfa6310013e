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

bool estaEnlazado(const QString &destino, const QString &enlace)
{
    const QFileInfo anterior(enlace);
    return anterior.isSymLink() && anterior.symLinkTarget() == QDir::cleanPath(destino);
}

void enlaza(const QString &destino, const QString &enlace)
{
    if (estaEnlazado(destino, enlace))
        return;
    if (QFileInfo(enlace).isSymLink())
        QFile::remove(enlace);
    if (!QFile::link(destino, enlace))
        throw host::Failure(host::PathAccess, u"make a link"_s, enlace);
}

struct Enlace {
    QString destino;
    QString lugar;
};

std::vector<Enlace> enlacesDe(const Hallazgo &hallazgo)
{
    if (hallazgo.arranque.isEmpty())
        return {};
    return { { hallazgo.programa, hallazgo.emulador.exe },
        { QDir::cleanPath(hallazgo.emulador.rom), hallazgo.arranque + u"/roms"_s } };
}

QStringList losQueFaltan(const QStringList &directorios)
{
    QStringList faltan;
    for (const QString &ruta : directorios) {
        if (!ruta.isEmpty() && !QFileInfo(ruta).isDir())
            faltan += QDir::cleanPath(ruta) + u'/';
    }
    return faltan;
}

} // namespace

QStringList FaltaParaJuegos(const Hallazgo &hallazgo)
{
    return losQueFaltan({ hallazgo.emulador.rom });
}

QStringList FaltaPara(const Hallazgo &hallazgo)
{
    QStringList falta = losQueFaltan({ hallazgo.emulador.rom, hallazgo.emulador.img, hallazgo.arranque });
    for (const Enlace &enlace : enlacesDe(hallazgo)) {
        if (!estaEnlazado(enlace.destino, enlace.lugar))
            falta += enlace.lugar;
    }
    return falta;
}

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
    for (const Enlace &enlace : enlacesDe(hallazgo))
        enlaza(enlace.destino, enlace.lugar);
}

} // namespace finder
