#include "companion/otrosistema.h"

#include "core/catalogo.h"
#include "core/clasedeprograma.h"
#include "core/lineas.h"
#include "core/rutas.h"

#include "host/drives.h"
#include "host/encoding.h"
#include "host/paths.h"

#include "launch/codigo437.h"
#include "launch/dosbox.h"
#include "launch/rescate.h"

#include <QDir>
#include <QHash>
#include <QJsonArray>

#include <algorithm>

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

// What a drive shows: its place, or files of it under other names.
QStringList mostradoEn(const Palabras &palabras, const launch::UnidadesDOS::Montaje &montaje)
{
    QStringList mostrados;
    for (const launch::UnidadesDOS::Apodo &apodo : montaje.apodos)
        mostrados += palabras.Zbo_Apodo.arg(
            lugarDe(montaje) + u'/' + host::nameFromDisk(apodo.fichero), host::nameFromDisk(apodo.nombre));
    return mostrados.isEmpty() ? QStringList { lugarDe(montaje) } : mostrados;
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

// For another number of bits than Wine is there for; empty if it runs, or nobody can tell.
QString faltaDeWine(const launch::Encargo &encargo, const Palabras &palabras)
{
    if (encargo.corredor != launch::Corredor::Wine || encargo.herramienta.isEmpty()
        || !core::EsDe32Bits(encargo.programa))
        return {};
    const QString prefijo = QDir::cleanPath(encargo.herramienta + u"/../.."_s);
    bool de64 = false;
    for (const QString &lugar : { u"/lib/wine/"_s, u"/lib64/wine/"_s, u"/lib32/wine/"_s,
             u"/lib/x86_64-linux-gnu/wine/"_s, u"/lib/i386-linux-gnu/wine/"_s }) {
        if (host::exists(prefijo + lugar + u"i386-unix"_s)
            || host::exists(prefijo + lugar + u"i386-windows"_s))
            return {};
        de64 = de64 || host::exists(prefijo + lugar + u"x86_64-unix"_s);
    }
    return de64 ? palabras.Zbo_SinWine32 : QString();
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
        const QString falta = FaltaDeUnidad(ruta, m_sesion.palabras);
        const int suya = host::driveNamed(letra) ? lineaDeUnidad(m_sesion.M, letra) : 0;
        if (!falta.isEmpty())
            halla(host::driveNamed(letra) ? u"drive-missing"_s : u"no-drive"_s, falta,
                suya > 0 ? Unidades : Catalogo, suya > 0 ? suya : linea);
    }
    void Corredor(const launch::Encargo &encargo)
    {
        if (encargo.traba != launch::Traba::Ninguna)
            halla(u"foreign-program"_s, launch::TextoDe(encargo.traba, encargo.corredor, m_sesion.M.Palabras),
                Catalogo, m_lineas.EXE);
        const QString falta = faltaDeWine(encargo, m_sesion.palabras);
        if (!falta.isEmpty())
            halla(u"no-wine32"_s, falta, Catalogo, m_lineas.EXE);
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
    if (encargo.corredor == launch::Corredor::Ninguno)
        return {};
    QStringList lineas;
    if (!encargo.herramienta.isEmpty())
        lineas += sesion.palabras.Zbo_CorreEn.arg(nombreDe(encargo.corredor), encargo.herramienta);
    std::vector<launch::UnidadesDOS::Montaje> unidades = encargo.montajes;
    unidades.insert(unidades.end(), encargo.apodos.begin(), encargo.apodos.end());
    for (const launch::UnidadesDOS::Montaje &montaje : unidades) {
        for (const QString &mostrado : mostradoEn(sesion.palabras, montaje))
            lineas += u"    %1: %2"_s.arg(QString(QLatin1Char(montaje.letra)), mostrado);
    }
    if (encargo.corredor == launch::Corredor::DOSBox && !encargo.programaDOS.isEmpty())
        lineas += sesion.palabras.Zbo_LineaDOS.arg(lineaDOS(encargo));
    const QString falta = faltaDeWine(encargo, sesion.palabras);
    if (!falta.isEmpty())
        lineas += falta;
    return lineas;
}

void AnadeCorredor(QJsonObject &objeto, const launch::Encargo &encargo)
{
    if (encargo.corredor == launch::Corredor::Ninguno)
        return;
    QJsonArray unidades;
    for (const launch::UnidadesDOS::Montaje &montaje : encargo.montajes) {
        QJsonObject unidad { { u"letter"_s, QString(QLatin1Char(montaje.letra)) },
            { u"place"_s, lugarDe(montaje) }, { u"read_only"_s, montaje.esCD } };
        for (const launch::UnidadesDOS::Apodo &apodo : montaje.apodos) {
            unidad[u"shows"_s] = host::nameFromDisk(apodo.fichero);
            unidad[u"as"_s] = host::nameFromDisk(apodo.nombre);
        }
        unidades += unidad;
    }
    objeto[u"program_for"_s] = nombreDe(encargo.corredor).toLower();
    objeto[u"runner"_s] = encargo.herramienta;
    objeto[u"drives"_s] = unidades;
    if (!encargo.programaDOS.isEmpty())
        objeto[u"dos_line"_s] = lineaDOS(encargo);
}

Rescatado RescataLoGuardado(const Sesion &sesion, Revision &revision)
{
    const launch::Rescate rescate = launch::RescataRestos();
    for (const launch::Pendiente &pendiente : rescate.pendientes)
        revision.push_back({ u"left-behind"_s, pendiente.lugar, 0, {},
            sesion.M.Palabras.Zem_NoVuelve1.arg(pendiente.destino, pendiente.lugar) });
    Rescatado rescatado { rescate.vueltos, {} };
    for (const QString &vuelto : rescate.vueltos)
        rescatado.lineas += sesion.palabras.Zbo_Vuelto.arg(vuelto);
    return rescatado;
}

QString FaltaDeUnidad(const QString &ruta, const Palabras &palabras)
{
    const QChar letra = core::UnidadQueFalta(ruta);
    const host::Drive *unidad = host::driveNamed(letra);
    if (letra.isNull())
        return {};
    return unidad ? palabras.Zbo_SinSitio.arg(QString(letra), unidad->place)
                  : palabras.Zbo_NoUnidad.arg(QString(letra), ruta);
}

std::vector<LineaDeUnidad> LineasQueNoCuentan(
    const QString &texto, const QString &directorio, const Palabras &palabras)
{
    std::vector<LineaDeUnidad> malas;
    QHash<QChar, int> lineas;
    int numero = 0;
    for (const core::LineaConFin &linea : core::EnLineas(texto)) {
        ++numero;
        const QString escrita = linea.linea.toString();
        const std::vector<host::Drive> suyas = host::drivesIn(escrita, directorio);
        if (escrita.trimmed().isEmpty() || escrita.startsWith(u'\''))
            continue;
        if (suyas.empty())
            malas.push_back({ numero, u"no-drive-line"_s, palabras.Zbo_UniNada });
        else if (const int anterior = lineas.value(suyas[0].letter); anterior > 0)
            malas.push_back(
                { numero, u"drive-twice"_s, palabras.Zbo_UniOtra.arg(suyas[0].letter).arg(anterior) });
        else if (lineas.insert(suyas[0].letter, numero); !host::exists(suyas[0].place))
            malas.push_back({ numero, u"drive-missing"_s,
                palabras.Zbo_SinSitio.arg(QString(suyas[0].letter), suyas[0].place) });
    }
    return malas;
}

void RevisaUnidades(const Sesion &sesion, Revision &revision)
{
    if (!host::exists(host::programFile(Unidades)))
        return;
    for (const LineaDeUnidad &mala :
        LineasQueNoCuentan(TextoDelPrograma(sesion.M, Unidades), host::programDirectory(), sesion.palabras)) {
        const bool dichoYa = std::ranges::any_of(revision, [&](const Hallazgo &hallazgo) {
            return hallazgo.fichero == Unidades && hallazgo.linea == mala.linea;
        });
        if (!dichoYa)
            revision.push_back({ mala.clase, Unidades, mala.linea, {}, mala.dicho });
    }
}

launch::Encargo EncargoDe(const core::Modulo &M, const Pareja &pareja)
{
    const QString exe = host::trueSpelling(core::RutaDeLinea(M.Cat_EXE(pareja.sistema, pareja.fila)));
    launch::LineaDeOrden orden;
    orden.Ruta(exe, exe);
    return launch::EncargoDe(orden, launch::LugaresDe(M, pareja.sistema, pareja.fila));
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
