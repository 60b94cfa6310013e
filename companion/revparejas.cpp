// The pairs that the catalogue configures: program, directories, list, captures.
#include "companion/revision.h"

#include "companion/eleccion.h"
#include "companion/otrosistema.h"

#include "core/catalogo.h"
#include "core/clasedeprograma.h"
#include "core/info.h"
#include "core/romelegida.h"
#include "core/rutas.h"

#include "host/letters.h"
#include "host/paths.h"
#include "host/process.h"

#include "launch/piezas.h"

#include <QHash>
#include <QProcess>
#include <QSet>

#include <optional>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

class RevisorDePareja {
public:
    RevisorDePareja(Sesion &sesion, const Pareja &pareja, Revision &revision)
        : m_sesion(sesion)
        , M(sesion.M)
        , m_palabras(sesion.palabras)
        , m_pareja(pareja)
        , m_revision(revision)
        , m_tipo(TipoDe(sesion.M, pareja))
    {
    }

    void Programa();
    void Lista();

    Cuenta cuenta;

private:
    void halla(const QString &clase, const QString &dicho, const QString &fichero = {})
    {
        m_revision.push_back(
            { clase, fichero, 0, m_pareja.nombreSistema + u" / "_s + m_pareja.nombreEmulador, dicho });
    }
    void MaquinaDeMAME(const QString &exe);
    void Juegos(const Listado &listado);
    void NoListados(const QString &directorio);

    Sesion &m_sesion;
    core::Modulo &M;
    const Palabras &m_palabras;
    const Pareja &m_pareja;
    Revision &m_revision;
    const int m_tipo;
};

// What is meant may lie beside it: a name that differs in a letter or two.
QString parecido(const QString &ruta)
{
    const qsizetype corte = host::lastSeparator(ruta) + 1;
    try {
        const QStringList nombres = host::listPrograms(ruta.first(corte), u"*.exe;*.com;*.bat"_s);
        return ruta.first(corte) + MasParecido(nombres, ruta.sliced(corte));
    } catch (const host::Failure &) {
        return {};
    }
}

void RevisorDePareja::Programa()
{
    const QString exe = core::RutaDeLinea(M.Cat_EXE(m_pareja.sistema, m_pareja.fila));
    const launch::Programa programa = launch::ProgramaDe(exe);
    if (programa.ExeCorto.enDisco.isEmpty()) {
        const QString otro = parecido(exe);
        halla(u"no-program"_s, m_palabras.Zbo_NoHayEXE.arg(exe), exe);
        if (!otro.isEmpty() && !otro.endsWith(u'/'))
            halla(u"similar-program"_s, m_palabras.Zbo_Parecido.arg(otro), exe);
        return;
    }
    if (EncargoDe(M, m_pareja).corredor != launch::Corredor::Ninguno)
        return;
    try {
        host::findProgram(programa.ExeCorto.enDisco);
    } catch (const host::Failure &) {
        return halla(u"not-executable"_s, m_palabras.Zbo_SinPermiso.arg(exe), exe);
    }
    using core::ClaseDePrograma;
    const ClaseDePrograma clase = core::ClaseDe(programa.ExeCorto.enDisco);
    if (clase == ClaseDePrograma::OtraMaquina)
        halla(u"foreign-program"_s, m_palabras.Zbo_OtraMaquina.arg(exe), exe);
    else if (clase == ClaseDePrograma::Desconocida)
        halla(u"foreign-program"_s, m_palabras.Zbo_NoEsPrograma.arg(exe), exe);
    else
        MaquinaDeMAME(programa.ExeCorto.enDisco);
}

// The first parameter that isn't an option names the machine. MAME itself tells what it lacks.
void RevisorDePareja::MaquinaDeMAME(const QString &exe)
{
    if (!exe.sliced(host::lastSeparator(exe) + 1).startsWith(u"mame"))
        return;
    const QStringList parametros = host::splitArguments(
        host::lower(core::Valor(M.Cat_PAR1(m_pareja.sistema, m_pareja.fila), core::PrefijoParametro)));
    if (parametros.isEmpty() || parametros.first().startsWith(u'-'))
        return;
    constexpr int paciencia = 20'000; // milliseconds
    QProcess mame;
    mame.setStandardInputFile(QProcess::nullDevice());
    mame.start(exe, { u"-verifyroms"_s, parametros.first() });
    const bool acabo = mame.waitForFinished(paciencia);
    if (acabo && mame.exitStatus() == QProcess::NormalExit && mame.exitCode() != 0)
        halla(u"machine-without-roms"_s, m_palabras.Zbo_SinROMs.arg(parametros.first()));
    if (!acabo)
        mame.kill();
}

void RevisorDePareja::Lista()
{
    if (m_tipo < 0 || m_tipo > 8 || m_tipo == 4)
        halla(u"no-type"_s, m_palabras.Zbo_SinTipo);
    const QString directorio = DirectorioDeJuegos(M, m_pareja);
    if (directorio.isEmpty() && core::CargaSoloElEmulador(m_tipo))
        return;
    try {
        const Listado listado = companion::Lista(m_sesion, m_pareja);
        cuenta.listados = listado.recuento.entradas.size();
        if (listado.recuento.interrumpido)
            halla(u"list-cut"_s, m_palabras.Zbo_ListaCortada);
        NoListados(directorio);
        Juegos(listado);
    } catch (const host::Failure &fallo) {
        halla(u"no-list"_s, m_palabras.Zbo_NoSeLista.arg(TextoDe(fallo)), directorio);
    }
}

void RevisorDePareja::NoListados(const QString &directorio)
{
    const core::ExtensionesEnVigor extensiones(M, core::CargaExtensiones(M, m_pareja.sistema));
    const QStringList nombres =
        core::UnDirectorioPorJuego(m_tipo) ? host::listDirectories(directorio) : host::listFiles(directorio);
    for (qsizetype i = 0; i < nombres.size(); ++i) {
        const QString mayus = host::upper(nombres[i]);
        if (core::UnDirectorioPorJuego(m_tipo))
            cuenta.filtrados += M.Arch_Mayus(static_cast<int>(i)).isEmpty();
        else if (core::FicherosSueltos(m_tipo))
            cuenta.otraExtension += extensiones.VecesQueEncaja(mayus) == 0;
        else
            cuenta.otroTipo += !mayus.endsWith(u"ZIP");
        if (core::FicherosSueltos(m_tipo) && extensiones.VecesQueEncaja(mayus) > 1)
            halla(u"listed-twice"_s, m_palabras.Zbo_DosVeces.arg(nombres[i]), nombres[i]);
    }
    const qsizetype fuera = cuenta.otraExtension + cuenta.otroTipo + cuenta.filtrados;
    if (cuenta.listados == 0 && fuera > 0)
        halla(u"nothing-listed"_s, m_palabras.Zbo_NadaEncaja.arg(fuera), directorio);
}

void RevisorDePareja::Juegos(const Listado &listado)
{
    QHash<QString, int> veces;
    for (const QString &entrada : listado.recuento.entradas) {
        const Juego juego = JuegoDe(M, m_pareja, entrada);
        if (++veces[entrada] == 2 && juego.descrito)
            halla(u"description-twice"_s, m_palabras.Zbo_MismaDesc.arg(entrada));
        if (veces[entrada] == 1)
            cuenta.sinCaptura += juego.captura.isEmpty();
    }
}

// Letters and digits alone, without what stands in brackets.
QString soloNombre(const QString &nombre)
{
    QString resultado;
    int dentro = 0;
    for (const QChar letra : host::upper(nombre)) {
        dentro += letra == u'(' || letra == u'[';
        if (dentro == 0 && letra.isLetterOrNumber())
            resultado += letra;
        dentro -= (letra == u')' || letra == u']') && dentro > 0;
    }
    return resultado;
}

QString sinTerminacion(const QString &nombre)
{
    const qsizetype punto = nombre.lastIndexOf(u'.');
    return punto < 0 ? nombre : nombre.first(punto);
}

// Upper-cased names of the captures of a pair's games; none where they can't be told.
std::optional<QSet<QString>> capturasDe(Sesion &sesion, const Pareja &pareja)
{
    QSet<QString> nombres;
    try {
        const core::Modulo &M = sesion.M;
        for (const QString &entrada : Lista(sesion, pareja).recuento.entradas) {
            try {
                for (const QString &ruta :
                    core::CapturasDe(M, entrada, TipoDe(M, pareja), DirectorioDeCapturas(M, pareja)))
                    nombres.insert(host::upper(ruta.sliced(host::lastSeparator(ruta) + 1)));
            } catch (const host::Failure &) {
                // It has none.
            }
        }
    } catch (const host::Failure &) {
        return std::nullopt;
    }
    return nombres;
}

// The captures of a directory, by what they fit.
void revisaDirectorio(const Sesion &sesion, const QStringList &nombres, const QSet<QString> &capturas,
    const Pareja &pareja, Revision &revision)
{
    QSet<QString> presentes;
    for (const QString &nombre : nombres)
        presentes.insert(host::upper(nombre));
    QHash<QString, QString> esperadas; // by what they have in common with another spelling
    for (const QString &nombre : capturas) {
        if (!presentes.contains(nombre))
            esperadas.insert(soloNombre(sinTerminacion(nombre)), nombre);
    }
    for (const QString &nombre : nombres) {
        if (capturas.contains(host::upper(nombre)))
            continue;
        const QString otra = esperadas.value(soloNombre(sinTerminacion(nombre)));
        const QString clase = otra.isEmpty() ? u"capture-without-game"_s : u"capture-spelling"_s;
        const QString dicho = otra.isEmpty() ? sesion.palabras.Zbo_CapturaSola.arg(nombre)
                                             : sesion.palabras.Zbo_CapturaMal.arg(nombre, otra);
        revision.push_back({ clase, DirectorioDeCapturas(sesion.M, pareja) + nombre, 0,
            pareja.nombreSistema + u" / "_s + pareja.nombreEmulador, dicho });
    }
}

QString capturasEnDisco(const core::Modulo &M, const Pareja &pareja)
{
    const QString directorio = core::RutaDeLinea(M.Cat_IMG(pareja.sistema, pareja.fila));
    return directorio.isEmpty() ? QString() : host::directoryPath(directorio);
}

} // namespace

Cuenta RevisaPareja(Sesion &sesion, const Pareja &pareja, Revision &revision)
{
    RevisorDePareja revisor(sesion, pareja, revision);
    revisor.Programa();
    RevisaOtroSistema(sesion, pareja, revision);
    revisor.Lista();
    return revisor.cuenta;
}

void RevisaCapturas(Sesion &sesion, const std::vector<Pareja> &parejas, Revision &revision)
{
    QSet<QString> vistos;
    for (const Pareja &pareja : parejas) {
        QStringList nombres;
        QString directorio;
        try {
            directorio = capturasEnDisco(sesion.M, pareja);
            if (directorio.isEmpty() || vistos.contains(directorio))
                continue;
            nombres = host::listFiles(directorio, u"*.gif"_s);
        } catch (const host::Failure &fallo) {
            revision.push_back(
                { u"no-captures"_s, {}, 0, pareja.nombreSistema + u" / "_s + pareja.nombreEmulador,
                    sesion.palabras.Zbo_SinCapturas.arg(TextoDe(fallo)) });
            continue;
        }
        vistos.insert(directorio);
        QSet<QString> capturas;
        bool todas = true;
        for (const Pareja &otra : Parejas(sesion.M)) {
            const auto suyo = [&] {
                try {
                    return capturasEnDisco(sesion.M, otra);
                } catch (const host::Failure &) {
                    return QString();
                }
            };
            if (suyo() != directorio)
                continue;
            const std::optional<QSet<QString>> suyas = capturasDe(sesion, otra);
            todas = todas && suyas;
            capturas += suyas.value_or(QSet<QString>());
        }
        if (todas)
            revisaDirectorio(sesion, nombres, capturas, pareja, revision);
    }
}

} // namespace companion
