// Drives: any file that names them, paths on them, and what programs for DOS and Windows get of those paths.
#include "entrada.h"
#include "mundo.h"
#include "temas.h"

#include "launch/nombresdos.h"
#include "launch/unidadesdos.h"
#include "launch/wine.h"

#include "host/drives.h"
#include "host/encoding.h"
#include "host/failure.h"
#include "host/paths.h"

#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace pelusa {

namespace {

constexpr qsizetype MasLargaEnDOS = 78;

std::vector<host::Drive> leidas(const QByteArray &bytes)
{
    PonFichero("Zembro.uni", bytes);
    const std::vector<host::Drive> unidades = host::drives();
    QChar anterior;
    for (const host::Drive &unidad : unidades) {
        Exige(unidad.letter >= u'A' && unidad.letter <= u'Z', "a drive has a letter", unidad.letter);
        Exige(unidad.letter > anterior, "drives stand in the order of their letters", unidad.letter);
        Exige(host::isAbsolute(unidad.place), "a drive's place is absolute", unidad.place);
        Exige(host::driveLetter(unidad.place).isNull(), "a drive's place is on no drive", unidad.place);
        Exige(unidad.place.size() == 1 || !unidad.place.endsWith(u'/'), "a place isn't closed", unidad.place);
        const host::Drive *hallada = host::driveNamed(unidad.letter);
        Exige(hallada && hallada->place == unidad.place, "a drive is found by its letter", unidad.letter);
        anterior = unidad.letter;
    }
    return unidades;
}

// What would be written for them names the same.
void escritas(const std::vector<host::Drive> &unidades)
{
    QString texto;
    for (const host::Drive &unidad : unidades)
        texto += host::lineOf(unidad) + u"\r\n"_s;
    const std::vector<host::Drive> otra = host::drivesIn(texto, u"/base"_s);
    Exige(otra.size() == unidades.size(), "as many drives are read back", texto);
    for (std::size_t i = 0; i < otra.size(); ++i) {
        ExigeIgual(otra[i].letter, unidades[i].letter, "a drive is read back");
        ExigeIgual(otra[i].place, unidades[i].place, "a place is read back");
    }
}

// A path as DOS gets it leads back to the file by the drive that is mounted.
void enDOS(const QString &enDisco)
{
    launch::UnidadesDOS unidades;
    const std::optional<QByteArray> dicha = unidades.RutaOApodo(enDisco);
    if (!dicha)
        return;
    const QString texto = QString::fromLatin1(*dicha);
    Exige(dicha->size() <= MasLargaEnDOS, "a path of DOS isn't too long", texto);
    Exige(
        dicha->size() > 3 && (*dicha)[1] == ':' && (*dicha)[2] == '\\', "a path of DOS is on a drive", texto);
    for (const QByteArray &parte : dicha->sliced(3).split('\\'))
        Exige(launch::SeAbreEnDOS(parte), "each part of it is opened by DOS", texto);
    const std::vector<launch::UnidadesDOS::Montaje> montajes = unidades.Montajes();
    Exige(montajes.size() == 1 && montajes[0].letra == (*dicha)[0], "its drive is mounted, and no other",
        texto);
    const QByteArray lugar = host::nameToDisk(enDisco);
    Exige(lugar.startsWith(montajes[0].lugar), "the drive lies above the file", enDisco, texto);
    if (!montajes[0].apodos.empty())
        ExigeIgual(host::nameFromDisk(montajes[0].lugar + '/' + montajes[0].apodos[0].fichero), enDisco,
            "a file under another name is that file");
    launch::UnidadesDOS otras;
    Exige(otras.RutaOApodo(enDisco) == dicha, "the same path gets the same letters", texto);
}

// A directory that is made beside another one has a name of its own in DOS, whichever is listed first.
void nuevaEnDOS(const QByteArray &una, const QByteArray &otra)
{
    const QByteArray nombre = launch::NombresDOS({ otra })[0];
    if (!launch::SeAbreEnDOS(nombre) || nombre.contains('.'))
        return;
    const launch::NombreNuevo nuevo = launch::NombreNuevoEnDOS({ una }, nombre);
    Exige(launch::SeAbreEnDOS(nuevo.enDOS), "a new directory is opened by DOS",
        QString::fromLatin1(nuevo.enDOS));
    if (nuevo.enDisco == una)
        return;
    for (const QByteArrayList &entradas : { QByteArrayList { una, nuevo.enDisco }, { nuevo.enDisco, una } }) {
        const QByteArrayList nombres = launch::NombresDOS(entradas);
        Exige(nombres[entradas.indexOf(nuevo.enDisco)] == nuevo.enDOS && nombres[0] != nombres[1],
            "a new directory has its name alone", QString::fromLatin1(una), QString::fromLatin1(nombre));
    }
}

void enWindows(const QString &enDisco, const std::vector<host::Drive> &unidades)
{
    const QString dicha = launch::RutaDeWindows(enDisco, unidades);
    if (dicha == enDisco)
        return;
    Exige(launch::SeDiceEnWindows(enDisco), "only what Windows can say is said", enDisco);
    Exige(!host::driveLetter(dicha).isNull() && !dicha.contains(u'/'), "a path of Windows is on a drive",
        dicha);
    const host::OtherDrives otras(unidades);
    Exige(host::findOnDisk(dicha) == host::nameToDisk(enDisco), "it leads to the file", enDisco, dicha);
}

void camino(const QByteArray &directorio, const QByteArray &nombre)
{
    const QByteArray raiz = Rincon() + "unidad/";
    mkdir(raiz.constData(), 0700);
    const QByteArray dentro = raiz + directorio;
    mkdir(dentro.constData(), 0700);
    const QByteArray ruta = dentro + '/' + nombre;
    const int fichero = open(ruta.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    if (fichero >= 0) {
        close(fichero);
        const QString enDisco = host::nameFromDisk(ruta);
        const host::OtherDrives otras({ { u'D', host::nameFromDisk(raiz.chopped(1)) } });
        const QString enUnidad = u"D:/"_s + host::nameFromDisk(directorio + '/' + nombre);
        if (!enUnidad.contains(u'\\'))
            Exige(host::findOnDisk(enUnidad) == ruta, "a file is found on its drive", enUnidad);
        Exige(host::findOnDisk(host::spelledOnDrive(u'D', enDisco)) == ruta,
            "what is spelled on a drive leads to the file", enDisco);
        nuevaEnDOS(directorio, nombre);
        enDOS(enDisco);
        enWindows(enDisco, host::drives());
        unlink(ruta.constData());
    }
    rmdir(dentro.constData());
    rmdir(raiz.constData());
}

bool puedeSerNombre(const QByteArray &nombre)
{
    return !nombre.isEmpty() && nombre.size() < 200 && nombre != "." && nombre != ".."
        && !nombre.contains('/');
}

} // namespace

void probarUnidades(Bytes bytes)
{
    Entrada entrada(bytes);
    const QByteArray directorio = entrada.Campo();
    const QByteArray nombre = entrada.Campo();
    const QString pedida = entrada.Nombre();
    const std::vector<host::Drive> unidades = leidas(entrada.Resto());
    escritas(unidades);
    // Whatever the drives are, a path on one leads somewhere or nowhere.
    const QByteArray hallada = host::findOnDisk(pedida);
    Exige(hallada.isEmpty() || host::exists(host::nameFromDisk(hallada)), "what is found is there", pedida);
    if (puedeSerNombre(directorio) && puedeSerNombre(nombre))
        camino(directorio, nombre);
}

} // namespace pelusa
