// The short forms of the names in a directory.
#include "entrada.h"
#include "temas.h"

#include "host/directory.h"
#include "host/encoding.h"
#include "host/letters.h"
#include "host/shortnames.h"

#include <QSet>

#include <algorithm>

#include <dirent.h>
#include <limits.h>

namespace pelusa {

namespace {

constexpr int MaxNombres = 64;

bool puedeSerNombre(const QByteArray &nombre)
{
    return !nombre.isEmpty() && nombre.size() <= NAME_MAX && nombre != "." && nombre != ".."
        && !nombre.contains('/') && !nombre.contains('\0');
}

void forma(const QString &nombre, const QString &corta)
{
    const auto blanco = [](QChar letra) { return letra.isSpace(); };
    Exige(std::none_of(corta.begin(), corta.end(), blanco), "a short form has no blanks", nombre, corta);
    Exige(corta.count(u'.') <= 1, "a short form has one point at most", nombre, corta);
    Exige(host::lower(corta) == corta, "a short form is in lower case", nombre, corta);
}

} // namespace

void probarNombresCortos(Bytes bytes)
{
    Entrada entrada(bytes);
    QSet<QByteArray> nombres;
    while (!entrada.Acabada() && nombres.size() < MaxNombres) {
        const QByteArray nombre = entrada.Campo();
        if (puedeSerNombre(nombre))
            nombres.insert(nombre);
    }
    std::vector<host::Directory::Entry> entradas;
    QSet<QString> textos;
    for (const QByteArray &nombre : nombres) {
        const QString texto = host::nameFromDisk(nombre);
        entradas.push_back({ texto, DT_REG });
        textos.insert(texto);
    }
    // One that names all at once, and one that is asked for each alone.
    const host::Directory juntos(entradas);
    juntos.find(QStringLiteral("none~1"));
    QSet<QString> tomadas;
    for (const host::Directory::Entry &una : juntos.entries()) {
        const QString corta = juntos.shortForm(una.name);
        forma(una.name, corta);
        ExigeIgual(
            host::Directory(entradas).shortForm(una.name), corta, "a form is the same asked for alone");
        Exige(!tomadas.contains(host::upper(corta)), "no two names have one short form", una.name, corta);
        tomadas.insert(host::upper(corta));
        Exige(
            corta == una.name || !textos.contains(corta), "no form is another file's name", una.name, corta);
        if (corta != una.name)
            Exige(juntos.find(corta) == una.name, "a form leads to its file", una.name, corta);
        const QString hallado = juntos.find(host::lower(una.name));
        Exige(!hallado.isEmpty() || host::upper(host::lower(una.name)) != host::upper(una.name),
            "a name is found in lower case", una.name);
    }
}

} // namespace pelusa
