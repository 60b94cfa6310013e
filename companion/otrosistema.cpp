#include "companion/otrosistema.h"

#include "core/catalogo.h"
#include "core/rutas.h"

#include "host/drives.h"
#include "host/encoding.h"
#include "host/paths.h"

#include "launch/codigo437.h"
#include "launch/dosbox.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

QString nombreDe(launch::Corredor corredor)
{
    return corredor == launch::Corredor::Wine ? u"Windows"_s : u"DOS"_s;
}

QString lineaDOS(const launch::Encargo &encargo)
{
    return QString::fromLatin1(encargo.programaDOS) + launch::DeCodigo437(encargo.colaDOS);
}

QString lugarDe(const launch::UnidadesDOS::Montaje &montaje)
{
    return host::nameFromDisk(montaje.lugar);
}

class Unidades {
public:
    Unidades(Sesion &sesion, const Pareja &pareja, Revision &revision)
        : m_sesion(sesion)
        , m_pareja(pareja)
        , m_revision(revision)
    {
    }

    // A path of the catalogue: its drive has to be named, and its place to be there.
    void Mira(const QString &ruta)
    {
        const QChar letra = host::driveLetter(ruta);
        if (letra.isNull() || m_vistas.contains(letra))
            return;
        m_vistas += letra;
        const host::Drive *unidad = host::driveNamed(letra);
        const Palabras &palabras = m_sesion.palabras;
        if (!unidad)
            halla(u"no-drive"_s, palabras.Zbo_NoUnidad.arg(QString(letra), ruta), ruta);
        else if (!host::exists(unidad->place))
            halla(
                u"drive-missing"_s, palabras.Zbo_SinSitio.arg(QString(letra), unidad->place), unidad->place);
    }
    void Corredor(const launch::Encargo &encargo)
    {
        if (encargo.traba != launch::Traba::Ninguna)
            halla(u"foreign-program"_s, launch::TextoDe(encargo.traba, encargo.corredor, m_sesion.M.Palabras),
                encargo.trabadoEn);
    }

private:
    void halla(const QString &clase, const QString &dicho, const QString &fichero)
    {
        m_revision.push_back(
            { clase, fichero, 0, m_pareja.nombreSistema + u" / "_s + m_pareja.nombreEmulador, dicho });
    }

    Sesion &m_sesion;
    const Pareja &m_pareja;
    Revision &m_revision;
    QString m_vistas; // letters
};

} // namespace

QStringList ArgumentosParaLaConsola(const launch::Encargo &encargo)
{
    return encargo.corredor == launch::Corredor::DOSBox ? launch::ArgumentosDeDOSBox(encargo)
                                                        : encargo.argumentos;
}

QStringList DichoDe(const Sesion &sesion, const launch::Encargo &encargo)
{
    if (encargo.corredor == launch::Corredor::Ninguno || encargo.herramienta.isEmpty())
        return {};
    QStringList lineas { sesion.palabras.Zbo_CorreEn.arg(nombreDe(encargo.corredor), encargo.herramienta) };
    for (const launch::UnidadesDOS::Montaje &montaje : encargo.montajes)
        lineas += u"    %1: %2"_s.arg(QString(QLatin1Char(montaje.letra)), lugarDe(montaje));
    if (encargo.corredor == launch::Corredor::DOSBox && !encargo.programaDOS.isEmpty())
        lineas += sesion.palabras.Zbo_LineaDOS.arg(lineaDOS(encargo));
    return lineas;
}

void AnadeCorredor(QJsonObject &objeto, const launch::Encargo &encargo)
{
    if (encargo.corredor == launch::Corredor::Ninguno)
        return;
    QJsonArray unidades;
    for (const launch::UnidadesDOS::Montaje &montaje : encargo.montajes)
        unidades += QJsonObject { { u"letter"_s, QString(QLatin1Char(montaje.letra)) },
            { u"place"_s, lugarDe(montaje) }, { u"read_only"_s, montaje.soloLectura } };
    objeto[u"program_for"_s] = nombreDe(encargo.corredor).toLower();
    objeto[u"runner"_s] = encargo.herramienta;
    objeto[u"drives"_s] = unidades;
    if (!encargo.programaDOS.isEmpty())
        objeto[u"dos_line"_s] = lineaDOS(encargo);
}

launch::Encargo EncargoDe(const core::Modulo &M, const Pareja &pareja)
{
    const QString exe = host::trueSpelling(core::RutaDeLinea(M.Cat_EXE(pareja.sistema, pareja.fila)));
    launch::LineaDeOrden orden;
    orden.Ruta(exe, exe);
    return launch::EncargoDe(orden);
}

void RevisaOtroSistema(Sesion &sesion, const Pareja &pareja, Revision &revision)
{
    Unidades unidades(sesion, pareja, revision);
    for (const auto *tabla : { &sesion.M.Cat_EXE, &sesion.M.Cat_ROM, &sesion.M.Cat_IMG })
        unidades.Mira(core::RutaDeLinea((*tabla)(pareja.sistema, pareja.fila)));
    unidades.Corredor(EncargoDe(sesion.M, pareja));
}

} // namespace companion
