// Paths: names in a directory found as spelled, in any case and by their short forms.
#include "entrada.h"
#include "mundo.h"
#include "temas.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/letters.h"
#include "host/paths.h"

#include <QSet>

#include <filesystem>
#include <map>

#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace pelusa {

namespace {

constexpr int MaxEntradas = 8;

bool puedeSerNombre(const QByteArray &nombre)
{
    return !nombre.isEmpty() && nombre.size() <= NAME_MAX && nombre != "." && nombre != ".."
        && !nombre.contains('/');
}

bool hay(const QByteArray &ruta)
{
    struct stat estado;
    return lstat(ruta.constData(), &estado) == 0;
}

void hazFichero(const QByteArray &ruta)
{
    close(open(ruta.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
}

// Some files, directories, files in them and links; gone at the end.
class Arbol {
public:
    explicit Arbol(Entrada &entrada)
        : m_raiz(Rincon() + "a/b/")
    {
        std::filesystem::create_directories(m_raiz.toStdString());
        hazFichero(Rincon() + "a/outside");
        for (int i = 0; i < MaxEntradas; ++i) {
            const int clase = entrada.Numero(4);
            const QByteArray nombre = entrada.Campo();
            if (!puedeSerNombre(nombre))
                break;
            hazEntrada(clase, nombre, entrada);
        }
    }
    ~Arbol() { std::filesystem::remove_all((Rincon() + "a").toStdString()); }
    Arbol(const Arbol &) = delete;
    Arbol &operator=(const Arbol &) = delete;

    const QByteArray &Raiz() const { return m_raiz; }
    const QByteArrayList &Entradas() const { return m_entradas; } // directly below the root
    const QByteArrayList &Dentro() const { return m_dentro; } // below those

private:
    void hazEntrada(int clase, const QByteArray &nombre, Entrada &entrada)
    {
        const QByteArray ruta = m_raiz + nombre;
        if (hay(ruta))
            return;
        if (clase == 0)
            hazFichero(ruta);
        else if (clase == 3)
            (void)!symlink("../outside", ruta.constData());
        else
            mkdir(ruta.constData(), 0700);
        m_entradas << ruta;
        if (clase != 2)
            return;
        const QByteArray interior = entrada.Campo();
        if (!puedeSerNombre(interior))
            return;
        hazFichero(ruta + '/' + interior);
        m_dentro << ruta + '/' + interior;
    }

    QByteArray m_raiz;
    QByteArrayList m_entradas;
    QByteArrayList m_dentro;
};

void existente(const QByteArray &ruta)
{
    const QString texto = host::nameFromDisk(ruta);
    Exige(host::findOnDisk(texto) == ruta, "what is there is found as it is spelled", texto);
    const QString corta = host::GetShortPathNameA(texto);
    Exige(host::findOnDisk(corta) == ruta, "a short path leads to its file", texto, corta);
    ExigeIgual(host::GetShortPathNameA(corta), corta, "a short path is its own short path");
    const auto blanco = [](QChar letra) { return letra.isSpace(); };
    Exige(std::none_of(corta.begin(), corta.end(), blanco), "a short path has no blanks", corta);
    Exige(host::findForWriting(texto) == ruta, "what is there is written where it is", texto);
}

void enMayusculas(const QByteArray &raiz, const QByteArray &ruta)
{
    const QString mayus = host::upper(host::nameFromDisk(ruta.sliced(raiz.size())));
    if (mayus == u"." || mayus == u"..")
        return;
    const QByteArray hallada = host::findOnDisk(host::nameFromDisk(raiz) + mayus);
    Exige(!hallada.isEmpty(), "a name is found in upper case", mayus);
}

// Any path below the root.
void cualquiera(const QByteArray &raiz, const QString &pedida)
{
    if (pedida.contains(u".."_s) || pedida.contains(QChar::Null))
        return;
    const QString ruta = host::nameFromDisk(raiz) + pedida;
    const QByteArray hallada = host::findOnDisk(ruta);
    Exige(hallada.isEmpty() || (hallada.startsWith(raiz.chopped(1)) && hay(hallada)),
        "what is found is there", ruta, host::nameFromDisk(hallada));
    if (!hallada.isEmpty())
        Exige(host::findOnDisk(host::nameFromDisk(hallada)) == hallada, "what is found is found again", ruta);
    const int sinAtributos =
        Fallo({ host::FileNotFound }, "asking for attributes", [&] { host::attributes(ruta); });
    Exige((sinAtributos == 0) == host::exists(ruta), "what exists has attributes", ruta);
    Fallo({ host::FileNotFound }, "asking for a length", [&] { host::fileLength(ruta); });
    for (const auto &lista : { host::listDirectories, host::listFilesAndDirectories, host::listPlainFiles })
        Fallo({ host::PathNotFound }, "listing", [&] { lista(ruta); });
    Fallo({ host::PathNotFound }, "taking a directory", [&] {
        const QString directorio = host::directoryPath(ruta);
        ExigeIgual(host::directoryPath(directorio), directorio, "a directory is its own path");
    });
    ExigeIgual(host::withClosingSeparator(host::withClosingSeparator(ruta)), host::withClosingSeparator(ruta),
        "one separator closes");
}

bool encaja(QStringView nombre, QStringView patron)
{
    if (patron.isEmpty())
        return nombre.isEmpty();
    if (patron.front() == u'*')
        return encaja(nombre, patron.sliced(1)) || (!nombre.isEmpty() && encaja(nombre.sliced(1), patron));
    return !nombre.isEmpty() && (patron.front() == u'?' || patron.front() == nombre.front())
        && encaja(nombre.sliced(1), patron.sliced(1));
}

// One pattern against a simple reading of it; short, as that one tries all ways.
void patrones(const QString &nombre, const QString &patron)
{
    const QString uno = host::upper(patron.section(u';', 0, 0).left(8).trimmed());
    const QString corto = nombre.left(12);
    const bool seria = uno == u"*.*" || encaja(host::upper(corto), uno);
    Exige(host::fitsPattern(corto, uno) == seria, "a name fits a pattern as it is read", corto, uno);
}

// Files go that lie in the directory itself, and nothing else.
void borrado(const Arbol &arbol)
{
    host::deleteFiles(host::nameFromDisk(arbol.Raiz()));
    for (const QByteArray &ruta : arbol.Entradas()) {
        struct stat estado;
        const bool queda = lstat(ruta.constData(), &estado) == 0;
        Exige(!queda || !S_ISREG(estado.st_mode), "a plain file goes", host::nameFromDisk(ruta));
    }
    for (const QByteArray &ruta : arbol.Dentro())
        Exige(hay(ruta), "what lies further down stays", host::nameFromDisk(ruta));
    Exige(hay(Rincon() + "a/outside"), "what lies outside stays");
}

} // namespace

void probarRutas(Bytes bytes)
{
    Entrada entrada(bytes);
    const QString patron = entrada.Texto();
    const QString pedida = entrada.Nombre();
    const Arbol arbol(entrada);
    for (const QByteArray &ruta : arbol.Entradas()) {
        existente(ruta);
        enMayusculas(arbol.Raiz(), ruta);
        patrones(host::nameFromDisk(ruta.sliced(arbol.Raiz().size())), patron);
    }
    for (const QByteArray &ruta : arbol.Dentro())
        existente(ruta);
    cualquiera(arbol.Raiz(), pedida);
    borrado(arbol);
}

} // namespace pelusa
