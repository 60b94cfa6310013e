#include "launch/dosbox.h"

#include "launch/apodos.h"

#include "host/encoding.h"

#include <algorithm>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace launch {

namespace {

constexpr qsizetype MasLargoElLugar = 200; // DOSBox keeps a whole path of this disk in 512 bytes

// In a configuration a quote can't be said, nor a line end; what isn't ASCII is read by one DOSBox as it
// stands and by another by a code page.
bool seDiceEnLaConfiguracion(const QByteArray &lugar)
{
    return lugar.size() <= MasLargoElLugar
        && std::ranges::none_of(lugar, [](char c) { return c == '"' || c < ' ' || c >= 127; });
}

// With several drives for CDs DOSBox wants their letters in a row.
std::vector<bool> comoCD(const std::vector<UnidadesDOS::Montaje> &montajes)
{
    std::vector<bool> cd;
    char siguiente = 0;
    for (const UnidadesDOS::Montaje &montaje : montajes) {
        cd.push_back(montaje.esCD && (siguiente == 0 || montaje.letra == siguiente));
        if (cd.back())
            siguiente = static_cast<char>(montaje.letra + 1);
    }
    return cd;
}

// What the shell of DOS is told, from the drives on.
QByteArrayList lineas(const Encargo &encargo)
{
    QByteArrayList dichas;
    const std::vector<bool> cd = comoCD(encargo.montajes);
    for (std::size_t i = 0; i < encargo.montajes.size(); ++i) {
        const UnidadesDOS::Montaje &montaje = encargo.montajes[i];
        dichas += QByteArray("mount ") + montaje.letra + " \"" + montaje.lugar + '"'
            + (cd[i] ? " -t cdrom" : "") + " >nul";
    }
    if (encargo.programaDOS.isEmpty())
        return dichas;
    const qsizetype corte = encargo.programaDOS.lastIndexOf('\\');
    const bool lotes = encargo.programaDOS.endsWith(".BAT");
    dichas += encargo.programaDOS.first(2);
    dichas += "cd " + encargo.programaDOS.sliced(2, std::max<qsizetype>(corte - 2, 1));
    dichas += (lotes ? "call " : "") + encargo.programaDOS + encargo.colaDOS;
    dichas += "exit";
    // A percent sign names a variable, unless it is doubled.
    for (QByteArray &linea : dichas)
        linea.replace('%', "%%");
    return dichas;
}

} // namespace

QByteArray ConfiguracionDOS(const Encargo &encargo)
{
    QByteArray texto = "[autoexec]\r\n@echo off\r\n";
    // The user's own configuration may have given the letters to other places.
    for (const UnidadesDOS::Montaje &montaje : encargo.montajes)
        texto += QByteArray("mount -u ") + montaje.letra + " >nul\r\n";
    for (const QByteArray &linea : lineas(encargo))
        texto += linea + "\r\n";
    return texto;
}

QStringList ArgumentosDeDOSBox(Encargo encargo)
{
    QStringList argumentos = encargo.argumentos;
    for (UnidadesDOS::Montaje &montaje : encargo.montajes) {
        if (!montaje.apodos.empty())
            montaje.lugar = LugarPrevisto(montaje.letra);
    }
    for (const QByteArray &linea : lineas(encargo))
        argumentos += { u"-c"_s, host::nameFromDisk(linea) };
    return argumentos;
}

CarpetaDOS::CarpetaDOS(Encargo encargo)
{
    if (m_carpeta.Ruta().isEmpty() || !enlaza(encargo.montajes)
        || !m_carpeta.Escribe("dosbox.conf", ConfiguracionDOS(encargo)))
        return;
    m_argumentos = encargo.argumentos;
    if (!encargo.herramienta.endsWith(u"dosbox-staging")) // which takes the user's own anyway
        m_argumentos += u"-userconf"_s;
    m_argumentos += { u"-conf"_s, m_carpeta.Ruta() + u"/dosbox.conf"_s };
}

// A place that can't be said is reached by a link.
bool CarpetaDOS::enlaza(std::vector<UnidadesDOS::Montaje> &montajes)
{
    const QByteArray lugar = host::nameToDisk(m_carpeta.Ruta());
    for (UnidadesDOS::Montaje &montaje : montajes) {
        if (!montaje.apodos.empty()) {
            montaje.lugar = HazCarpetaDeApodos(m_carpeta, montaje);
            if (montaje.lugar.isEmpty())
                return false;
        }
        if (seDiceEnLaConfiguracion(montaje.lugar))
            continue;
        const QByteArray enlace = lugar + '/' + montaje.letra;
        if (symlink(montaje.lugar.constData(), enlace.constData()) != 0)
            return false;
        montaje.lugar = enlace;
    }
    return std::ranges::all_of(
        montajes, [](const UnidadesDOS::Montaje &montaje) { return seDiceEnLaConfiguracion(montaje.lugar); });
}

} // namespace launch
