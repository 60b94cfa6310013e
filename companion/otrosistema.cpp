#include "companion/otrosistema.h"

#include "core/catalogo.h"
#include "core/lineas.h"
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

const QString Catalogo = u"Zembro.emu"_s;
const QString Unidades = u"Zembro.uni"_s;

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

// The line of Zembro.uni, counted from 1, that names a drive; 0 if none does.
int lineaDeUnidad(const core::Modulo &M, QChar letra)
{
    int numero = 0;
    try {
        const QString texto = TextoDelPrograma(M, Unidades);
        for (const core::LineaConFin &linea : core::EnLineas(texto)) {
            ++numero;
            const std::vector<host::Drive> suyas =
                host::drivesIn(linea.linea.toString(), host::programDirectory());
            if (!suyas.empty() && suyas.front().letter == letra)
                return numero;
        }
    } catch (const host::Failure &) {
        // They are those of Wine.
    }
    return 0;
}

class RevisorDeUnidades {
public:
    RevisorDeUnidades(
        Sesion &sesion, const Pareja &pareja, const LineasDeEmulador &lineas, Revision &revision)
        : m_sesion(sesion)
        , m_pareja(pareja)
        , m_lineas(lineas)
        , m_revision(revision)
    {
    }

    // A path of the catalogue, and its line there: its drive has to be named, and its place to be there.
    void Mira(const QString &ruta, int linea)
    {
        const QChar letra = host::driveLetter(ruta);
        if (letra.isNull() || m_vistas.contains(letra))
            return;
        m_vistas += letra;
        const host::Drive *unidad = host::driveNamed(letra);
        const Palabras &palabras = m_sesion.palabras;
        if (!unidad) {
            halla(u"no-drive"_s, palabras.Zbo_NoUnidad.arg(QString(letra), ruta), Catalogo, linea);
        } else if (!host::exists(unidad->place)) {
            const int suya = lineaDeUnidad(m_sesion.M, letra);
            halla(u"drive-missing"_s, palabras.Zbo_SinSitio.arg(QString(letra), unidad->place),
                suya > 0 ? Unidades : Catalogo, suya > 0 ? suya : linea);
        }
    }
    void Corredor(const launch::Encargo &encargo)
    {
        if (encargo.traba != launch::Traba::Ninguna)
            halla(u"foreign-program"_s, launch::TextoDe(encargo.traba, encargo.corredor, m_sesion.M.Palabras),
                Catalogo, m_lineas.EXE);
    }

private:
    void halla(const QString &clase, const QString &dicho, const QString &fichero, int linea)
    {
        m_revision.push_back({ clase, fichero, linea > 0 ? linea : m_lineas.nombre,
            m_pareja.nombreSistema + u" / "_s + m_pareja.nombreEmulador, dicho });
    }

    Sesion &m_sesion;
    const Pareja &m_pareja;
    const LineasDeEmulador m_lineas;
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

void RevisaOtroSistema(
    Sesion &sesion, const Pareja &pareja, const LineasDeEmulador &lineas, Revision &revision)
{
    RevisorDeUnidades revisor(sesion, pareja, lineas, revision);
    const core::Modulo &M = sesion.M;
    revisor.Mira(core::RutaDeLinea(M.Cat_EXE(pareja.sistema, pareja.fila)), lineas.EXE);
    revisor.Mira(core::RutaDeLinea(M.Cat_ROM(pareja.sistema, pareja.fila)), lineas.ROM);
    revisor.Mira(core::RutaDeLinea(M.Cat_IMG(pareja.sistema, pareja.fila)), lineas.IMG);
    revisor.Corredor(EncargoDe(M, pareja));
}

} // namespace companion
