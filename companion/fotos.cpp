#include "companion/fotos.h"

#include "converter/kind.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/numberedfiles.h"
#include "host/paths.h"

#include <QStandardPaths>

#include <algorithm>
#include <limits>
#include <vector>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

struct Costumbre {
    QStringList programas; // names of executables, and of Flatpak's applications
    QStringList lugares;
};

// {home}, {config}, {data}, {documents}, {pictures} and {desktop} are the user's, {work} is where the
// emulator is started, {games} where its games lie.
const std::vector<Costumbre> &costumbres()
{
    static const std::vector<Costumbre> todas {
        { { u"stella"_s, u"io.github.stella_emu.Stella"_s }, { u"{home}"_s, u"{desktop}"_s } },
        { { u"mednafen"_s }, { u"{home}/.mednafen/snaps"_s } },
        { { u"mame"_s, u"org.mamedev.MAME"_s },
            { u"{home}/.mame/snap/*"_s, u"{work}/snap/*"_s, u"{data}/mame/snap/*"_s } },
        { { u"fceux"_s }, { u"{home}/.fceux/snaps"_s } },
        { { u"nestopia"_s }, { u"{data}/nestopia/screenshots"_s, u"{home}/.nestopia/screenshots"_s } },
        { { u"mupen64plus"_s }, { u"{data}/mupen64plus/screenshot"_s } },
        { { u"openmsx"_s, u"org.openmsx.openMSX"_s }, { u"{home}/.openMSX/screenshots"_s } },
        { { u"scummvm"_s, u"org.scummvm.ScummVM"_s }, { u"{pictures}/ScummVM Screenshots"_s } },
        { { u"dosbox"_s, u"dosbox-x"_s, u"dosbox-staging"_s },
            { u"{work}/capture"_s, u"{home}/.dosbox/capture"_s, u"{home}/capture"_s } },
        { { u"dolphin-emu"_s, u"dolphin-emu-nogui"_s, u"org.DolphinEmu.dolphin-emu"_s },
            { u"{data}/dolphin-emu/ScreenShots/*"_s } },
        { { u"fs-uae"_s }, { u"{desktop}"_s, u"{documents}/FS-UAE/Screenshots"_s } },
        { { u"retroarch"_s, u"org.libretro.RetroArch"_s }, { u"{config}/retroarch/screenshots/*"_s } },
        { { u"PPSSPP"_s, u"PPSSPPSDL"_s, u"PPSSPPQt"_s, u"ppsspp"_s, u"org.ppsspp.PPSSPP"_s },
            { u"{config}/ppsspp/PSP/SCREENSHOT"_s } },
        { { u"pcsx2"_s, u"pcsx2-qt"_s, u"PCSX2"_s, u"net.pcsx2.PCSX2"_s }, { u"{config}/PCSX2/snaps/*"_s } },
        { { u"duckstation"_s, u"duckstation-qt"_s, u"org.duckstation.DuckStation"_s },
            { u"{data}/duckstation/screenshots/*"_s } },
    };
    return todas;
}

QString deLaVariable(const char *variable, const QString &defecto)
{
    const QByteArray valor = qgetenv(variable);
    return valor.startsWith('/') ? host::nameFromDisk(valor) : defecto;
}

// What Flatpak runs has directories of its own.
bool esDeFlatpak(const QString &programa)
{
    return programa.count(u'.') >= 2;
}

QString resuelto(QString lugar, const Entorno &entorno, const QString &programa)
{
    const QString casa = host::nameFromDisk(qgetenv("HOME"));
    const QString suyo = casa + u"/.var/app/"_s + programa;
    const bool flatpak = esDeFlatpak(programa);
    const auto deEscritorio = [](QStandardPaths::StandardLocation lugarDelUsuario) {
        return QStandardPaths::writableLocation(lugarDelUsuario);
    };
    const std::pair<QString, QString> valores[] = {
        { u"{home}"_s, casa },
        { u"{config}"_s,
            flatpak ? suyo + u"/config"_s : deLaVariable("XDG_CONFIG_HOME", casa + u"/.config"_s) },
        { u"{data}"_s,
            flatpak ? suyo + u"/data"_s : deLaVariable("XDG_DATA_HOME", casa + u"/.local/share"_s) },
        { u"{documents}"_s, deEscritorio(QStandardPaths::DocumentsLocation) },
        { u"{pictures}"_s, deEscritorio(QStandardPaths::PicturesLocation) },
        { u"{desktop}"_s, deEscritorio(QStandardPaths::DesktopLocation) },
        { u"{work}"_s, entorno.trabajo },
        { u"{games}"_s, entorno.juegos },
    };
    for (const auto &[marca, valor] : valores) {
        if (lugar.startsWith(marca))
            return valor.isEmpty() ? QString() : valor + lugar.sliced(marca.size());
    }
    return lugar;
}

// Nanoseconds since 1970; none for what isn't there.
std::optional<qint64> momentoDe(const QString &ruta)
{
    struct stat estado { };
    if (stat(host::findOnDisk(ruta).constData(), &estado) != 0)
        return std::nullopt;
    return qint64(estado.st_mtim.tv_sec) * 1'000'000'000 + estado.st_mtim.tv_nsec;
}

template <typename Lectura> QStringList siSePuede(Lectura &&lectura)
{
    try {
        return lectura();
    } catch (const host::Failure &) {
        return {};
    }
}

// The directories that a place stands for.
QStringList directoriosDe(const QString &lugar)
{
    const bool conOtros = lugar.endsWith(u"/*");
    const QString base = conOtros ? lugar.chopped(2) : lugar;
    QStringList directorios { base };
    if (conOtros) {
        for (const QString &otro : siSePuede([&] { return host::listDirectories(base); }))
            directorios += base + u'/' + otro;
    }
    return directorios;
}

} // namespace

bool EsImagen(const QString &ruta)
{
    try {
        const QByteArray bytes = host::readBytes(ruta, converter::TellingBytes);
        return converter::kindOf(
                   { reinterpret_cast<const std::uint8_t *>(bytes.constData()), std::size_t(bytes.size()) })
            != converter::Kind::None;
    } catch (const host::Failure &) {
        return false;
    }
}

QStringList LugaresDeFotos(const Entorno &entorno)
{
    const QString programa = entorno.programa.sliced(host::lastSeparator(entorno.programa) + 1);
    QStringList lugares;
    for (const Costumbre &costumbre : costumbres()) {
        if (!costumbre.programas.contains(programa))
            continue;
        for (const QString &lugar : costumbre.lugares)
            lugares += resuelto(lugar, entorno, programa);
    }
    // Many write where they were started, or beside the game.
    lugares += resuelto(u"{work}"_s, entorno, programa);
    lugares += resuelto(u"{games}"_s, entorno, programa);
    lugares.removeAll(QString());
    lugares.removeDuplicates();
    return lugares;
}

std::optional<QString> FotoMasNueva(const QStringList &lugares, const Intervalo &intervalo,
    const std::function<bool(const QString &ruta)> &vale)
{
    constexpr qint64 enMilisegundo = 1'000'000;
    const qint64 desde = intervalo.desde.toMSecsSinceEpoch() * enMilisegundo;
    const qint64 hasta = intervalo.hasta ? intervalo.hasta->toMSecsSinceEpoch() * enMilisegundo
                                         : std::numeric_limits<qint64>::max();
    std::vector<std::pair<qint64, QString>> candidatas;
    for (const QString &lugar : lugares) {
        for (const QString &directorio : directoriosDe(lugar)) {
            for (const QString &nombre : siSePuede([&] { return host::listFiles(directorio); })) {
                const QString ruta = host::withClosingSeparator(directorio) + nombre;
                const std::optional<qint64> momento = momentoDe(ruta);
                if (momento && *momento >= desde && *momento <= hasta)
                    candidatas.emplace_back(*momento, ruta);
            }
        }
    }
    std::ranges::sort(candidatas, std::greater());
    const auto suya =
        std::ranges::find_if(candidatas, [&](const auto &candidata) { return vale(candidata.second); });
    return suya == candidatas.end() ? std::nullopt : std::optional(suya->second);
}

} // namespace companion
