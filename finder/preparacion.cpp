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
    return anterior.isSymLink() && QDir::cleanPath(anterior.symLinkTarget()) == QDir::cleanPath(destino);
}

struct Enlace {
    QString destino;
    QString lugar;
    bool mudable = false; // both move with the program's directory, so that it leads from one to the other
};

void enlaza(const Enlace &enlace)
{
    if (estaEnlazado(enlace.destino, enlace.lugar))
        return;
    if (QFileInfo(enlace.lugar).isSymLink())
        QFile::remove(enlace.lugar);
    const QString destino =
        enlace.mudable ? QFileInfo(enlace.lugar).dir().relativeFilePath(enlace.destino) : enlace.destino;
    if (!QFile::link(destino, enlace.lugar))
        throw host::Failure(host::PathAccess, u"make a link"_s, enlace.lugar);
}

std::vector<Enlace> enlacesDe(const Hallazgo &hallazgo)
{
    if (hallazgo.arranque.isEmpty())
        return {};
    return { { hallazgo.programa, hallazgo.emulador.exe },
        { QDir::cleanPath(hallazgo.emulador.rom), hallazgo.arranque + u"/roms"_s, true } };
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
        enlaza(enlace);
}

} // namespace finder
