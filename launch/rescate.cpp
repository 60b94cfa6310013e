#include "launch/rescate.h"

#include "launch/intenta.h"
#include "launch/mostrado.h"
#include "launch/shell.h"
#include "launch/temporal.h"

#include "host/aside.h"
#include "host/encoding.h"
#include "host/letters.h"
#include "host/numberedfiles.h"
#include "host/paths.h"
#include "host/process.h"
#include "host/questions.h"
#include "host/replacement.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace launch {

namespace {

const QString Borrador = u"Zembro.tmp"_s;
const QString Prefijo = u"ZB-DOS-"_s; // and the process, and a number
constexpr char Dicho[] = "/told-"; // and the drive's letter

void borraEnlaces(const QByteArray &lugar, const std::function<bool(const QByteArray &)> &seVa = {})
{
    for (const QByteArray &nombre : EntradasDe(lugar)) {
        const QByteArray ruta = lugar + '/' + nombre;
        const auto estado = EstadoDe(ruta);
        if (estado && S_ISLNK(estado->st_mode) && (!seVa || seVa(ruta)))
            unlink(ruta.constData());
    }
}

// "niño.nes - HISCORE-2.DAT", "niño.nes - 2.SAV".
QString conNumero(const QString &nombre, qsizetype desde, int numero)
{
    const qsizetype punto = nombre.indexOf(u'.', desde);
    const qsizetype fin = punto < 0 ? nombre.size() : punto;
    return nombre.first(fin) + (fin > desde ? u"-"_s : QString()) + QString::number(numero)
        + nombre.sliced(fin);
}

// Whether a game of another run was shown this file: it may have it under another name by now.
bool loVeOtraCorrida(const QByteArray &fichero, const QByteArray &corrida)
{
    const QByteArray temporal = corrida.first(corrida.lastIndexOf('/') + 1);
    for (const QByteArray &otra : EntradasDe(temporal)) {
        if (!otra.startsWith(host::nameToDisk(Prefijo)) || temporal + otra == corrida)
            continue;
        for (const QByteArray &nombre : EntradasDe(temporal + otra)) {
            if (nombre.startsWith(MostradoEnCorrida)
                && Mostrado(temporal + otra + '/' + nombre).Enlaces().contains(fichero))
                return true;
        }
    }
    return false;
}

// Carries what was saved, a directory after the other.
class Porteador {
public:
    Porteador(const QByteArray &corrida, const Mostrado &mostrado, QStringList &vueltos)
        : m_corrida(corrida)
        , m_mostrado(mostrado)
        , m_vueltos(vueltos)
    {
    }

    void Lleva(const QByteArray &de, const QString &a, bool deArriba = true)
    {
        for (const QByteArray &nombre : EntradasDe(de)) {
            const QByteArray guardado = de + '/' + nombre;
            const auto estado = EstadoDe(guardado);
            if (estado && S_ISREG(estado->st_mode))
                Intenta([&] { llevaFichero(guardado, *estado, a, deArriba); });
            else if (estado && S_ISDIR(estado->st_mode))
                Intenta([&] { llevaDirectorio(guardado, a); });
        }
    }

private:
    static QByteArray nombreDe(const QByteArray &ruta) { return ruta.sliced(ruta.lastIndexOf('/') + 1); }
    static std::pair<time_t, long> hora(const timespec &tiempo) { return { tiempo.tv_sec, tiempo.tv_nsec }; }
    // Of a game whose name only the case tells from this one's.
    static bool esDeOtro(const QByteArray &alli, const Mostrado::Nombre &suyo)
    {
        return !alli.isEmpty() && !nombreDe(alli).startsWith(suyo.nombre.first(suyo.desde));
    }
    // Of the user's own links what they lead to; one that leads nowhere now stays.
    static std::optional<EnCasa> enCasa(const QByteArray &alli, const QByteArray &guardado,
        const struct stat &suyo, const Mostrado::Enlace *mostrado)
    {
        if (alli.isEmpty() || !EstadoDe(alli))
            return std::nullopt;
        EnCasa esto { host::nameFromDisk(nombreDe(alli)), false, false, true };
        struct stat estado;
        if (stat(alli.constData(), &estado) != 0)
            return esto;
        esto.directorio = S_ISDIR(estado.st_mode);
        esto.masNuevo = hora(estado.st_mtim) > hora(suyo.st_mtim);
        esto.cambiado = mostrado && hora(estado.st_mtim) != hora(mostrado->visto);
        if (S_ISREG(estado.st_mode) && S_ISREG(suyo.st_mode) && estado.st_size == suyo.st_size)
            Intenta([&] {
                esto.igual = host::readBytes(host::nameFromDisk(alli))
                    == host::readBytes(host::nameFromDisk(guardado));
            });
        return esto;
    }
    Vuelta vueltaDe(const QByteArray &guardado, const struct stat &estado, const QString &a,
        const Mostrado::Nombre &suyo, const Mostrado::Enlace *mostrado) const
    {
        return VueltaDe(
            host::nameFromDisk(suyo.nombre), S_ISDIR(estado.st_mode), mostrado != nullptr,
            [&](const QString &nombre) {
                const QByteArray alli = host::findOnDisk(a + u'/' + nombre);
                return esDeOtro(alli, suyo) ? std::nullopt : enCasa(alli, guardado, estado, mostrado);
            },
            prefijoDe(suyo));
    }
    void llevaFichero(
        const QByteArray &guardado, const struct stat &estado, const QString &a, bool deArriba) const
    {
        const QByteArray nombre = nombreDe(guardado);
        const Mostrado::Nombre suyo = deArriba ? m_mostrado.EnCasa(nombre) : Mostrado::Nombre { nombre };
        Vuelta vuelta = vueltaDe(guardado, estado, a, suyo, deArriba ? m_mostrado.Propio(nombre) : nullptr);
        const bool enUso = vuelta.escribe && m_mostrado.Propio(nombre)
            && loVeOtraCorrida(host::nameToDisk(a + u'/' + vuelta.nombre), m_corrida);
        if ((vuelta.aparta || enUso) && !aparta(a, vuelta.nombre, suyo))
            vuelta = vueltaDe(guardado, estado, a, suyo, nullptr);
        const QString destino =
            vuelta.escribe ? escribe(guardado, estado, a, vuelta.nombre, suyo) : a + u'/' + vuelta.nombre;
        if (unlink(guardado.constData()) == 0)
            m_vueltos << destino;
    }
    // Yields where it is now.
    static QString escribe(const QByteArray &guardado, const struct stat &estado, const QString &a,
        const QString &nombre, const Mostrado::Nombre &suyo)
    {
        const QString destino = a + u'/' + nombre;
        const bool deOtro = esDeOtro(host::findOnDisk(destino), suyo); // which would be replaced
        QString libre = destino;
        for (int numero = 2; deOtro && !host::findOnDisk(libre).isEmpty(); ++numero)
            libre = a + u'/' + conNumero(nombre, prefijoDe(suyo), numero);
        host::Replacement fichero(libre, borradorPara(libre));
        fichero.read();
        fichero.write(host::readBytes(host::nameFromDisk(guardado)));
        fichero.commit();
        const std::array<timespec, 2> tiempos { estado.st_mtim, estado.st_mtim };
        utimensat(AT_FDCWD, host::findOnDisk(libre).constData(), tiempos.data(), 0);
        const bool enSuSitio = deOtro
            && renameat2(AT_FDCWD, host::nameToDisk(libre).constData(), AT_FDCWD,
                   host::nameToDisk(destino).constData(), RENAME_NOREPLACE)
                == 0;
        return enSuSitio ? destino : libre;
    }
    static qsizetype prefijoDe(const Mostrado::Nombre &suyo)
    {
        return host::nameFromDisk(suyo.nombre.first(suyo.desde)).size();
    }
    // What another run, or the user, put there meanwhile.
    static bool aparta(const QString &a, const QString &nombre, const Mostrado::Nombre &suyo)
    {
        const QByteArray alli = host::nameToDisk(a + u'/' + nombre);
        const auto estado = EstadoDe(alli);
        const qsizetype desde = prefijoDe(suyo);
        for (int numero = 2; estado && S_ISREG(estado->st_mode); ++numero) {
            const QString libre = a + u'/' + conNumero(nombre, desde, numero);
            if (host::findOnDisk(libre).isEmpty())
                return renameat2(AT_FDCWD, alli.constData(), AT_FDCWD, host::nameToDisk(libre).constData(),
                           RENAME_NOREPLACE)
                    == 0;
        }
        return false;
    }
    // A name that nothing has, and nothing gets, where the file really lies.
    static QString borradorPara(const QString &destino)
    {
        const std::unique_ptr<char, decltype(&std::free)> verdadero(
            realpath(host::nameToDisk(destino).constData(), nullptr), &std::free);
        const QByteArray fichero = verdadero ? QByteArray(verdadero.get()) : host::nameToDisk(destino);
        const QByteArray lugar = fichero.first(fichero.lastIndexOf('/') + 1);
        QString nombre = Borrador;
        for (int numero = 2; host::sameName(nombre, host::nameFromDisk(nombreDe(fichero)))
             || EstadoDe(lugar + host::nameToDisk(nombre));
             ++numero)
            nombre = conNumero(Borrador, 0, numero);
        return nombre;
    }
    void llevaDirectorio(const QByteArray &guardado, const QString &a)
    {
        const auto estado = EstadoDe(guardado);
        const Vuelta vuelta = vueltaDe(guardado, *estado, a, { nombreDe(guardado) }, nullptr);
        const QString destino = a + u'/' + vuelta.nombre;
        if (vuelta.escribe)
            host::makeDirectory(destino);
        Lleva(guardado, destino, false);
        rmdir(guardado.constData());
    }

    const QByteArray m_corrida;
    const Mostrado &m_mostrado;
    QStringList &m_vueltos;
};

// One drive of a run; true if nothing is left of it.
bool rescataUnidad(const QByteArray &corrida, const QByteArray &letra, Rescate &rescate)
{
    const QByteArray lugar = corrida + '/' + UnidadDeCorrida + letra;
    const QByteArray enlaces = corrida + '/' + MostradoEnCorrida + letra;
    const Mostrado mostrado(enlaces);
    const bool guardado = mostrado.EstaEnCasa() && GuardaRenombrados(mostrado, lugar, rescate.vueltos);
    if (guardado)
        Porteador(corrida, mostrado, rescate.vueltos).Lleva(lugar, host::nameFromDisk(mostrado.Casa()));
    borraEnlaces(lugar, [&](const QByteArray &ruta) { return guardado || !mostrado.Renombrado(ruta, true); });
    const bool falla = mostrado.EstaEnCasa() && !guardado;
    if (falla || (rmdir(lugar.constData()) != 0 && errno != ENOENT)) {
        rescate.pendientes.push_back({ host::nameFromDisk(lugar), host::nameFromDisk(mostrado.Casa()),
            EstadoDe(corrida + Dicho + letra).has_value() });
        return false;
    }
    borraEnlaces(enlaces);
    rmdir(enlaces.constData());
    return true;
}

} // namespace

bool SeRecoge(const Resto &resto)
{
    return resto.propio && !resto.cerrado && !resto.nombrado && (resto.cerrable || !resto.creadorVivo);
}

Vuelta VueltaDe(const QString &nombre, bool directorio, bool mostrado,
    const std::function<std::optional<EnCasa>(const QString &)> &enCasa, qsizetype desde)
{
    QString probado = nombre;
    for (int numero = 2;; ++numero) {
        const std::optional<EnCasa> alli = enCasa(probado);
        if (!alli)
            return { probado, true };
        if (alli->directorio && directorio)
            return { alli->nombre, false };
        if (!alli->directorio && !directorio && alli->igual)
            return { alli->nombre, false };
        if (mostrado && probado == nombre && !alli->directorio && !directorio && !alli->masNuevo)
            return { alli->nombre, true, alli->cambiado };
        probado = conNumero(nombre, desde, numero);
    }
}

Rescate RescataCorrida(const QString &ruta)
{
    Rescate rescate;
    const QByteArray corrida = host::nameToDisk(ruta);
    bool limpia = true;
    for (const QByteArray &nombre : EntradasDe(corrida)) {
        if (nombre.startsWith(UnidadDeCorrida))
            limpia = rescataUnidad(corrida, nombre.sliced(qstrlen(UnidadDeCorrida)), rescate) && limpia;
    }
    for (const QByteArray &nombre : EntradasDe(corrida)) {
        const QByteArray entrada = corrida + '/' + nombre;
        if (limpia && nombre.startsWith(MostradoEnCorrida)) {
            borraEnlaces(entrada); // of a run that was killed ahead of its drive
            rmdir(entrada.constData());
        } else if (limpia || (nombre != CerrojoDeCorrida && !nombre.startsWith(Dicho + 1))) {
            unlink(entrada.constData()); // links of drives, and the configuration
        }
    }
    rmdir(corrida.constData());
    return rescate;
}

bool SigueEnMarcha(const QString &ruta)
{
    const QByteArray nombre = host::nameToDisk(ruta.sliced(ruta.lastIndexOf(u'/') + 1));
    return host::isNamedByAProcess({ nombre + '/', nombre + '\\' });
}

namespace {

// Of a run that may be another's.
class RestoVisto {
public:
    RestoVisto(const QString &ruta, pid_t creador)
        : m_cerrojo(open(host::nameToDisk(ruta + u'/' + QLatin1StringView(CerrojoDeCorrida)).constData(),
            O_RDONLY | O_NOFOLLOW | O_CLOEXEC))
    {
        m_resto.propio = EsDirectorioPropio(ruta);
        m_resto.cerrable = m_cerrojo.isOpen() && flock(m_cerrojo.number(), LOCK_EX | LOCK_NB) == 0;
        m_resto.cerrado = m_cerrojo.isOpen() && !m_resto.cerrable && errno == EWOULDBLOCK;
        m_resto.creadorVivo = kill(creador, 0) == 0 || errno != ESRCH;
        m_resto.nombrado = SeRecoge(m_resto) && SigueEnMarcha(ruta); // which looks at all processes
    }
    const Resto &Visto() const { return m_resto; }

private:
    host::Descriptor m_cerrojo; // nobody else brings it back meanwhile
    Resto m_resto;
};

// Locked ahead of having its name: without one nothing is known by it.
host::Descriptor cierra(const QByteArray &corrida)
{
    const QByteArray nombre = corrida + '/' + CerrojoDeCorrida;
    host::Descriptor cerrojo(
        open((nombre + ".new").constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!cerrojo.isOpen() || flock(cerrojo.number(), LOCK_EX | LOCK_NB) != 0
        || rename((nombre + ".new").constData(), nombre.constData()) != 0)
        unlink((nombre + ".new").constData());
    return cerrojo;
}

} // namespace

namespace {

// The runs in a directory, by the time of their beginning.
QStringList corridasEn(const QString &temporal)
{
    QStringList nombres;
    Intenta([&] { nombres = host::listDirectories(temporal); });
    const auto comienzo = [&](const QString &nombre) {
        const QByteArray corrida = host::nameToDisk(temporal + nombre);
        const auto cerrojo = EstadoDe(corrida + '/' + CerrojoDeCorrida);
        const auto estado = cerrojo ? cerrojo : EstadoDe(corrida);
        return estado ? std::pair(estado->st_mtim.tv_sec, estado->st_mtim.tv_nsec) : std::pair(0L, 0L);
    };
    std::vector<std::pair<std::pair<long, long>, QString>> porHora;
    for (const QString &nombre : std::as_const(nombres)) {
        if (nombre.startsWith(Prefijo))
            porHora.emplace_back(comienzo(nombre), nombre);
    }
    std::ranges::sort(porHora);
    nombres.clear();
    for (const auto &[hora, nombre] : porHora)
        nombres += nombre;
    return nombres;
}

} // namespace

Rescate RescataRestos()
{
    Rescate rescate;
    const QString temporal = DirectorioTemporal();
    for (const QString &nombre : corridasEn(temporal)) {
        const pid_t creador = nombre.split(u'-').value(2).toInt();
        if (creador <= 0)
            continue;
        const RestoVisto resto(temporal + nombre, creador);
        if (!SeRecoge(resto.Visto()))
            continue;
        const Rescate suyo = RescataCorrida(temporal + nombre);
        rescate.vueltos += suyo.vueltos;
        rescate.pendientes.insert(rescate.pendientes.end(), suyo.pendientes.begin(), suyo.pendientes.end());
    }
    return rescate;
}

Corrida NuevaCorrida()
{
    static int numero = 0;
    constexpr int Intentos = 1000; // of an earlier process with the same number some may lie there
    const QString temporal = DirectorioTemporal();
    for (int i = 0; !temporal.isEmpty() && i < Intentos; ++i) {
        const QString ruta =
            temporal + Prefijo + QString::number(getpid()) + u'-' + QString::number(++numero);
        const QByteArray enDisco = host::nameToDisk(ruta);
        if (mkdir(enDisco.constData(), 0700) == 0)
            return { ruta, cierra(enDisco) };
        if (errno != EEXIST)
            break;
    }
    return Corrida();
}

QByteArray LugarPrevisto(char letra)
{
    return host::nameToDisk(DirectorioTemporal() + Prefijo) + "*/" + UnidadDeCorrida + letra;
}

namespace {

// The files of a drive, as they are now.
QByteArray huellaDe(const QByteArray &lugar)
{
    QByteArray huella;
    for (const QByteArray &nombre : EntradasDe(lugar)) {
        const auto estado = EstadoDe(lugar + '/' + nombre);
        if (estado && S_ISDIR(estado->st_mode))
            huella += nombre + '/' + huellaDe(lugar + '/' + nombre) + '/';
        else if (estado && S_ISREG(estado->st_mode))
            huella += nombre + '/' + QByteArray::number(qint64(estado->st_size)) + '/'
                + QByteArray::number(qint64(estado->st_mtim.tv_sec)) + '.'
                + QByteArray::number(qint64(estado->st_mtim.tv_nsec)) + '/';
    }
    return huella;
}

} // namespace

void DiPendiente(const Pendiente &pendiente, const core::Palabras &palabras)
{
    static QSet<QByteArray> dichos; // what each run finds there of the one before it is nothing new
    const QByteArray loDicho =
        host::nameToDisk(pendiente.destino) + '/' + huellaDe(host::nameToDisk(pendiente.lugar));
    if (dichos.contains(loDicho))
        return;
    dichos.insert(loDicho);
    host::questions().tell(
        palabras.Zem_NoVuelve0, palabras.Zem_NoVuelve1.arg(pendiente.destino, pendiente.lugar));
    const QByteArray lugar = host::nameToDisk(pendiente.lugar);
    const qsizetype corte = lugar.lastIndexOf('/');
    const QByteArray letra = lugar.sliced(corte + 1).sliced(qstrlen(UnidadDeCorrida));
    const host::Descriptor nota(open(
        (lugar.first(corte) + Dicho + letra).constData(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600));
}

void RescataAlEmpezar(const core::Palabras &palabras)
{
    const Rescate rescate = RescataRestos();
    for (const QString &vuelto : rescate.vueltos)
        host::tellAside(host::nameToDisk(EnShell({ u"zembrolix"_s, u"brought"_s, u"back"_s, vuelto })));
    for (const Pendiente &pendiente : rescate.pendientes) {
        if (!pendiente.dicho)
            DiPendiente(pendiente, palabras);
    }
}

} // namespace launch
