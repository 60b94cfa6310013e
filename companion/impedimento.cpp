#include "companion/impedimento.h"

#include "companion/eleccion.h"
#include "companion/otrosistema.h"
#include "companion/partesdeprograma.h"

#include "core/clasedeprograma.h"

#include "finder/lugares.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/numberedfiles.h"
#include "host/paths.h"
#include "host/process.h"

#include <QHash>
#include <QProcess>
#include <QtEndian>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

constexpr qint64 Principio = 4096; // bytes of a program that are looked at

bool seEjecuta(const QString &nombre)
{
    try {
        host::findProgram(nombre);
        return true;
    } catch (const host::Failure &) {
        return false;
    }
}

// The interpreter that a script's first line names: its path, and what `env` would look for.
QString interpreteQueFalta(const QByteArray &principio)
{
    // As the system reads it: a CR at the end of the line belongs to the name.
    const QByteArray linea = principio.sliced(2, std::max<qsizetype>(principio.indexOf('\n'), 2) - 2);
    QByteArrayList partes;
    for (const QByteArray &parte : QByteArray(linea).replace('\t', ' ').split(' ')) {
        if (!parte.isEmpty())
            partes += parte;
    }
    const QString interprete = host::nameFromDisk(partes.value(0));
    if (interprete.isEmpty() || !host::exists(interprete) || !seEjecuta(interprete))
        return interprete.isEmpty() ? u"#!"_s : interprete;
    const QString pedido = host::nameFromDisk(partes.value(1));
    const bool deEntorno = interprete.endsWith(u"/env") && !pedido.startsWith(u'-') && !pedido.contains(u'=');
    return deEntorno && !pedido.isEmpty() && !seEjecuta(pedido) ? pedido : QString();
}

// A script that goes from machine to machine says in a line of its own which program it starts, by the names
// that this has.
std::optional<Impedimento> suplidoQueFalta(const QByteArray &principio, const Palabras &palabras)
{
    const QByteArray aviso = "\n# Stands for ";
    const qsizetype desde = principio.indexOf(aviso);
    const qsizetype hasta = desde < 0 ? -1 : principio.indexOf('\n', desde + aviso.size());
    if (hasta < 0)
        return std::nullopt;
    const QString linea = host::nameFromDisk(principio.first(hasta).sliced(desde + aviso.size()));
    const QStringList nombres = linea.section(u':', 1).split(u' ', Qt::SkipEmptyParts);
    if (nombres.isEmpty() || !finder::RutaDePrograma(nombres, finder::LugaresDeLaMaquina()).isEmpty())
        return std::nullopt;
    QStringList maneras;
    for (const QString &nombre : nombres)
        maneras += (nombre.contains(u'.') ? u"flatpak install flathub "_s : u"sudo apt install "_s) + nombre;
    const QString dicho = palabras.Zbo_SinSuplido.arg(linea.section(u':', 0, 0), maneras.join(u", "_s));
    return Impedimento { u"not-installed"_s, dicho };
}

// What our own loader, which runs nothing of the program, doesn't find for it.
QStringList bibliotecasQueFaltan(const QString &cargador, const QString &programa)
{
    constexpr int paciencia = 5'000; // milliseconds
    QStringList faltan;
    QProcess lista;
    lista.setStandardInputFile(QProcess::nullDevice());
    QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
    entorno.insert(u"LC_ALL"_s, u"C"_s);
    lista.setProcessEnvironment(entorno);
    lista.start(cargador, { u"--list"_s, programa });
    if (!lista.waitForFinished(paciencia)) {
        lista.kill();
        lista.waitForFinished(paciencia);
        return faltan;
    }
    for (const QByteArray &linea : lista.readAllStandardOutput().split('\n')) {
        const qsizetype flecha = linea.indexOf(" => not found");
        if (flecha > 0)
            faltan += host::nameFromDisk(linea.first(flecha).trimmed());
    }
    // Where it asks a library for its versions, it stops at the first one that is missing.
    const QByteArray aviso = "error while loading shared libraries: ";
    const QByteArray error = lista.readAllStandardError();
    const qsizetype desde = error.indexOf(aviso);
    const qsizetype hasta = error.indexOf(": cannot open shared object file");
    if (faltan.isEmpty() && desde >= 0 && hasta > desde)
        faltan += host::nameFromDisk(error.first(hasta).sliced(desde + aviso.size()));
    return faltan;
}

// With a closing separator only a directory is found.
bool esDirectorio(const QString &ruta)
{
    return host::exists(host::withClosingSeparator(ruta));
}

// Pipes, devices and sockets.
bool esFichero(const QString &enDisco, struct stat &estado)
{
    return stat(host::nameToDisk(enDisco).constData(), &estado) == 0 && S_ISREG(estado.st_mode);
}

// One that may be run but not read tells nothing.
bool estaCortado(const QString &programa, qint64 largo)
{
    try {
        return EstaCortado(host::readBytes(programa, Principio), largo);
    } catch (const host::Failure &) {
        return false;
    }
}

// The program that a path names which goes on with parameters, or stands in quotes; empty where there is
// none.
QString programaAlPrincipio(const QString &ruta)
{
    const QString directorio = host::withClosingSeparator(host::programDirectory());
    const QString valor = ruta.startsWith(directorio + u'"') ? ruta.sliced(directorio.size()) : ruta;
    QStringList posibles = host::splitArguments(valor).mid(0, 1);
    for (qsizetype corte = ruta.indexOf(u' '); corte > 0; corte = ruta.indexOf(u' ', corte + 1))
        posibles.prepend(ruta.first(corte));
    struct stat estado { };
    for (const QString &posible : posibles) {
        const QString enDisco = host::trueSpelling(posible);
        if (posible != ruta && !enDisco.isEmpty() && esFichero(enDisco, estado) && seEjecuta(enDisco))
            return enDisco;
    }
    return {};
}

QStringList programasEn(const QString &directorio)
{
    try {
        return host::listPrograms(directorio, u"*.exe;*.com;*.bat"_s);
    } catch (const host::Failure &) {
        return {};
    }
}

} // namespace

std::vector<Impedimento> LoQueLeFalta(const QString &programa, const Palabras &palabras)
{
    QByteArray principio;
    QByteArray propio;
    try {
        principio = host::readBytes(programa, Principio);
        propio = host::readBytes(u"/proc/self/exe"_s, Principio);
    } catch (const host::Failure &) {
        return {}; // one that may be run but not read
    }
    if (principio.startsWith("#!")) {
        const QString falta = interpreteQueFalta(principio);
        if (!falta.isEmpty())
            return { { u"no-interpreter"_s, palabras.Zbo_SinInterp.arg(programa, falta) } };
        const std::optional<Impedimento> suplido = suplidoQueFalta(principio, palabras);
        return suplido ? std::vector { *suplido } : std::vector<Impedimento>();
    }
    const QString cargador = CargadorDe(principio);
    if (cargador.isEmpty()
        || core::ClasePorBytes(principio, propio, programa) != core::ClaseDePrograma::DeEstaMaquina)
        return {};
    if (!host::exists(cargador))
        return { { u"no-interpreter"_s, palabras.Zbo_SinInterp.arg(programa, cargador) } };
    std::vector<Impedimento> faltas;
    if (cargador == CargadorDe(propio)) {
        for (const QString &biblioteca : bibliotecasQueFaltan(cargador, programa))
            faltas.push_back({ u"no-library"_s, palabras.Zbo_SinBiblio.arg(programa, biblioteca) });
    }
    return faltas;
}

QString NoHayPrograma(const QString &programa, const Palabras &palabras)
{
    const QString unidad = FaltaDeUnidad(programa, palabras);
    if (!unidad.isEmpty())
        return unidad;
    if (programa.trimmed().isEmpty())
        return palabras.Zbo_SinEXE;
    const QString principio = programaAlPrincipio(programa);
    return principio.isEmpty() ? palabras.Zbo_NoHayEXE.arg(programa)
                               : palabras.Zbo_EXEConPar.arg(programa, principio);
}

QString ProgramaParecido(const QString &programa)
{
    const qsizetype corte = host::lastSeparator(programa) + 1;
    const QString nombre = programa.sliced(corte);
    if (nombre.trimmed().isEmpty() || !programaAlPrincipio(programa).isEmpty())
        return {};
    const QString vecino = MasParecido(programasEn(programa.first(corte)), nombre);
    if (!vecino.isEmpty())
        return programa.first(corte) + vecino;
    const QString mismo = host::findInPath(nombre);
    if (!mismo.isEmpty())
        return mismo;
    QStringList nombres;
    for (const QByteArray &lugar : host::rememberedVariable("PATH").value_or(QByteArray()).split(':'))
        nombres += lugar.isEmpty() ? QStringList() : programasEn(host::nameFromDisk(lugar) + u'/');
    // Of thousands some short name is always near.
    constexpr qsizetype corto = 5;
    const QString otro =
        nombre.size() < corto ? QString() : MasParecido(nombres, nombre, nombre.size() == corto ? 1 : 2);
    return otro.isEmpty() ? QString() : host::findInPath(otro);
}

QString ProcesadorDe(const QByteArray &principio)
{
    static const QHash<quint16, QString> nombres { { 2, u"SPARC"_s }, { 3, u"Intel 386"_s },
        { 4, u"Motorola 68000"_s }, { 8, u"MIPS"_s }, { 15, u"PA-RISC"_s }, { 20, u"PowerPC"_s },
        { 21, u"PowerPC 64"_s }, { 22, u"S390"_s }, { 40, u"ARM"_s }, { 42, u"SuperH"_s },
        { 43, u"SPARC 64"_s }, { 50, u"Itanium"_s }, { 62, u"x86-64"_s }, { 183, u"ARM 64"_s },
        { 243, u"RISC-V"_s }, { 258, u"LoongArch"_s } };
    constexpr qsizetype lugar = 18;
    constexpr qsizetype orden = 5; // 2: the high byte first
    if (principio.size() < lugar + 2)
        return u"?"_s;
    const char *bytes = principio.constData() + lugar;
    const auto numero =
        principio[orden] == 2 ? qFromBigEndian<quint16>(bytes) : qFromLittleEndian<quint16>(bytes);
    return nombres.value(numero, u"ELF "_s + QString::number(numero));
}

std::optional<Impedimento> ImpedimentoDe(const QString &programa, const Palabras &palabras)
{
    const QString enDisco = host::trueSpelling(programa);
    if (enDisco.isEmpty() || !host::exists(programa))
        return Impedimento { u"no-program"_s, NoHayPrograma(programa, palabras) };
    if (esDirectorio(programa))
        return Impedimento { u"is-directory"_s, palabras.Zbo_EsDirectorio.arg(programa) };
    struct stat estado { };
    if (!esFichero(enDisco, estado))
        return Impedimento { u"is-no-file"_s, palabras.Zbo_EXENoFichero.arg(programa) };
    if (!seEjecuta(enDisco))
        return Impedimento { u"not-executable"_s, palabras.Zbo_SinPermiso.arg(programa) };
    const core::ClaseDePrograma clase = core::ClaseDe(enDisco);
    if (clase == core::ClaseDePrograma::OtraMaquina)
        return Impedimento { u"foreign-program"_s,
            palabras.Zbo_OtraMaquina.arg(programa, ProcesadorDe(host::readBytes(enDisco, Principio))) };
    if (clase != core::ClaseDePrograma::DOS && estaCortado(enDisco, estado.st_size))
        return Impedimento { u"cut-program"_s, palabras.Zbo_EXECortado.arg(programa) };
    const std::vector<Impedimento> faltas = LoQueLeFalta(enDisco, palabras);
    if (!faltas.empty())
        return faltas.front();
    if (clase == core::ClaseDePrograma::Desconocida)
        return Impedimento { u"foreign-program"_s, palabras.Zbo_NoEsPrograma.arg(programa) };
    return std::nullopt;
}

} // namespace companion
