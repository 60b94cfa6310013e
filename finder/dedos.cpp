#include "finder/dedos.h"

#include "core/catalogo.h"
#include "core/clasedeprograma.h"
#include "core/rutas.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/letters.h"
#include "host/paths.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <deque>
#include <filesystem>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace finder {

namespace {

namespace fs = std::filesystem;

constexpr int ColumnasDOS = 7;
constexpr qint64 KiB = 1024;

FichaDOS fichaDOSDe(const QString &linea)
{
    const QStringList columnas = linea.split(u'\t');
    const QStringList bytes = columnas.value(3).split(u'-');
    const qint64 desde = bytes[0].toLongLong() * KiB;
    const qint64 hasta = bytes.value(1).toLongLong() * KiB;
    if (columnas.size() != ColumnasDOS || columnas.contains(QString()) || desde <= 0 || hasta < desde)
        throw host::Failure(host::InvalidArgument, u"read the table of emulators for DOS"_s, linea);
    const QStringList comunes { columnas[0], columnas[2].toUpper(), columnas[4], columnas[5], columnas[6] };
    return { LeeFichas(comunes.join(u'\t'))[0], columnas[1], desde, hasta };
}

bool esDeDOS(const QString &ruta, qint64 bytes, const FichaDOS &ficha)
{
    return bytes >= ficha.desde && bytes <= ficha.hasta && core::ClaseDe(ruta) == core::ClaseDePrograma::DOS;
}

// The program of each configured pair, behind its system: the user may have given it a name of his own.
QSet<QString> programasDe(const core::Modulo &catalogo)
{
    QSet<QString> programas;
    for (int s = 0; s <= catalogo.Indice_Sistema; ++s) {
        const QString sistema = core::Valor(catalogo.Cat_Nombre(s, 0), 1);
        for (int e = 1; e <= core::TotalEmuladores(catalogo, s); ++e)
            programas += sistema + u'\n' + host::trueSpelling(core::RutaDeLinea(catalogo.Cat_EXE(s, e)));
    }
    return programas;
}

QString dichoEn(const host::Drive &unidad, const QString &ruta)
{
    QString resto = ruta.sliced(unidad.place.size());
    if (resto.contains(u'\\'))
        return ruta;
    return unidad.letter + u":"_s + resto.replace(u'/', u'\\');
}

// One drive, directory by directory.
class Recorrido {
public:
    Recorrido(const std::vector<FichaDOS> &fichas, const host::Drive &unidad, Alcance alcance)
        : m_fichas(fichas)
        , m_unidad(unidad)
        , m_alcance(alcance)
    {
    }

    void Busca(std::vector<EnUnidad> &vistos)
    {
        const QByteArray raiz = host::findOnDisk(m_unidad.place);
        struct stat estado;
        if (raiz.isEmpty() || raiz == "/" || stat(raiz.constData(), &estado) != 0)
            return;
        m_disco = estado.st_dev;
        m_unidad.place = host::nameFromDisk(raiz);
        m_porVer.push_back({ raiz, 0 });
        while (!m_porVer.empty()) {
            const Directorio directorio = m_porVer.front();
            m_porVer.pop_front();
            mira(directorio, vistos);
        }
    }

private:
    struct Directorio {
        QByteArray ruta;
        int hondo;
    };

    void mira(const Directorio &directorio, std::vector<EnUnidad> &vistos)
    {
        for (const QByteArray &nombre : nombresEn(directorio.ruta)) {
            const QByteArray ruta = directorio.ruta + '/' + nombre;
            struct stat estado;
            if (lstat(ruta.constData(), &estado) != 0)
                continue;
            if (S_ISDIR(estado.st_mode) && directorio.hondo < m_alcance.hondo && estado.st_dev == m_disco)
                m_porVer.push_back({ ruta, directorio.hondo + 1 });
            else if (S_ISREG(estado.st_mode))
                miraFichero(host::nameFromDisk(ruta), host::nameFromDisk(nombre), estado.st_size, vistos);
        }
    }

    // In the order of names; none where it can't be read.
    QByteArrayList nombresEn(const QByteArray &ruta)
    {
        QByteArrayList nombres;
        std::error_code error;
        for (fs::directory_iterator i(ruta.toStdString(), error); !error && i != fs::directory_iterator();
             i.increment(error)) {
            if (--m_alcance.entradas < 0)
                break;
            nombres += QByteArray::fromStdString(i->path().filename().string());
        }
        std::ranges::sort(nombres);
        return nombres;
    }

    void miraFichero(
        const QString &ruta, const QString &nombre, qint64 bytes, std::vector<EnUnidad> &vistos) const
    {
        const QString mayus = host::upper(nombre);
        for (const FichaDOS &ficha : m_fichas) {
            const bool vista = std::ranges::find(vistos, &ficha, &EnUnidad::ficha) != vistos.end();
            if (!vista && ficha.ficha.ejecutables.contains(mayus) && esDeDOS(ruta, bytes, ficha))
                vistos.push_back({ &ficha, ruta, dichoEn(m_unidad, ruta) });
        }
    }

    const std::vector<FichaDOS> &m_fichas;
    host::Drive m_unidad;
    Alcance m_alcance;
    dev_t m_disco = 0;
    std::deque<Directorio> m_porVer;
};

QSet<QString> sistemasDe(const core::Modulo &base)
{
    QSet<QString> sistemas;
    for (int s = 0; s <= base.Indice_Sistema; ++s)
        sistemas += core::Valor(base.Cat_Nombre(s, 0), 1);
    return sistemas;
}

} // namespace

std::vector<FichaDOS> LeeFichasDOS(const QString &texto)
{
    std::vector<FichaDOS> fichas;
    QSet<QString> nombres;
    for (const QString &linea : texto.split(u'\n', Qt::SkipEmptyParts)) {
        if (linea.startsWith(u'#'))
            continue;
        fichas.push_back(fichaDOSDe(linea));
        const QString &nombre = fichas.back().ficha.emulador;
        if (nombres.contains(nombre))
            throw host::Failure(host::InvalidArgument, u"read the table of emulators for DOS"_s, nombre);
        nombres += nombre;
    }
    return fichas;
}

std::vector<EnUnidad> RecorreUnidades(
    const std::vector<FichaDOS> &fichas, const std::vector<host::Drive> &unidades, Alcance alcance)
{
    std::vector<EnUnidad> vistos;
    for (const host::Drive &unidad : unidades)
        Recorrido(fichas, unidad, alcance).Busca(vistos);
    return vistos;
}

std::vector<Hallazgo> HallazgosDOS(const core::Modulo &base, const core::Modulo &catalogo,
    const std::vector<EnUnidad> &vistos, const QString &directorio)
{
    const QSet<QString> sistemas = sistemasDe(base);
    const QSet<QString> configurados = NombresConfigurados(catalogo);
    const QSet<QString> programas = programasDe(catalogo);
    std::vector<Hallazgo> hallazgos;
    for (const EnUnidad &visto : vistos) {
        const Ficha &ficha = visto.ficha->ficha;
        const QString &sistema = visto.ficha->sistema;
        if (!sistemas.contains(sistema) || configurados.contains(u'+' + ficha.emulador)
            || programas.contains(sistema + u'\n' + visto.programa))
            continue;
        const Parametros parametros = ParametrosDe(ficha);
        Hallazgo hallazgo;
        hallazgo.sistema = sistema;
        hallazgo.programa = visto.programa;
        hallazgo.emulador = { ficha.emulador, u"WEB2="_s, visto.dicho, ficha.tipo,
            RutaDeROMs(directorio, sistema), RutaDeCapturas(directorio, sistema), parametros.par1,
            parametros.par2 };
        hallazgos.push_back(hallazgo);
    }
    return hallazgos;
}

} // namespace finder
