#include "core/configuracion.h"

#include "core/basededatos.h"
#include "core/catalogo.h"
#include "core/rutas.h"

#include "host/paths.h"

#include <iterator>

using namespace Qt::StringLiterals;

namespace core {

namespace {

constexpr int MaxBusquedaDePareja = 150; // systems, and emulators of one, that the search for a pair looks at
constexpr int SoloEmulador = 5; // what check4 adds to the digit

const QString SistemaDeDiscos = u"Play Station"_s;

} // namespace

QString MarcasATipo(const Marcas &marcas)
{
    static constexpr Marcas tipos[] = { {}, { true }, { false, true }, { false, true, true } };
    for (size_t tipo = 0; tipo < std::size(tipos); ++tipo) {
        const Marcas conCheck4 { tipos[tipo].check1, tipos[tipo].check2, tipos[tipo].check3, true };
        if (marcas == tipos[tipo])
            return QString::number(tipo);
        if (marcas == conCheck4)
            return QString::number(tipo + SoloEmulador);
    }
    return {};
}

Marcas TipoAMarcas(const QString &tipo)
{
    switch (NumeroDeAjuste(tipo)) {
    case 1:
        return { true, false, false, false };
    case 2:
        return { false, true, false, false };
    case 3:
        return { false, true, true, false };
    case 5:
        return { true, false, false, true };
    case 6:
        return { false, true, false, true };
    case 7:
        return { false, true, true, true };
    default:
        return {};
    }
}

Cerrojos CerrojosDe(const Marcas &marcas)
{
    return { !marcas.check2, !marcas.check1, marcas.check2, !marcas.check4 };
}

bool FaltaEjecutable(const QString &exe)
{
    const QString ruta = RutaDeValor(exe);
    const bool esFichero = host::exists(ruta) && !host::exists(host::withClosingSeparator(ruta));
    return !exe.isEmpty() && !esFichero;
}

bool FaltaDirectorio(const QString &ruta)
{
    return !ruta.isEmpty() && !host::exists(host::withClosingSeparator(RutaDeValor(ruta)));
}

Rechazo RechazoDe(const QString &sistema, int origen, const Casillas &casillas, const Marcas &marcas)
{
    if (casillas.exe.isEmpty())
        return Rechazo::SinEXE;
    if (casillas.rom.isEmpty() && sistema != SistemaDeDiscos)
        return Rechazo::SinDirectorio;
    if (origen == SistemaRecreativo && !marcas.check1 && !marcas.check2 && !marcas.check3)
        return Rechazo::SinMarcas;
    return Rechazo::Ninguno;
}

QString DirectorioDeROMs(const QString &sistema, const QString &casilla2)
{
    const bool deDiscos = sistema == SistemaDeDiscos || sistema == u"PSX";
    return casilla2.isEmpty() && deDiscos ? u"C:\\NoDir"_s : casilla2;
}

bool SinCambios(const Modulo &M, const Casillas &casillas, const QString &tipo)
{
    return casillas.exe == M.EXE_Previo && casillas.rom == M.ROM_Previo && casillas.img == M.IMG_Previo
        && casillas.par1 == M.PAR1_Previo && casillas.par2 == M.PAR2_Previo
        && NumeroDeAjuste(tipo) == NumeroDeAjuste(M.XDI_Previo);
}

namespace {

// Between a directory for each game and archives the entries of the list are others.
bool cambiaDeEntradas(int anterior, int nuevo)
{
    const auto deArchivos = [](int tipo) { return tipo == 2 || tipo == 3; };
    return (anterior == 1 && deArchivos(nuevo)) || (deArchivos(anterior) && nuevo == 1);
}

} // namespace

Renovacion RenovacionTras(const Modulo &M, const Casillas &casillas, const QString &tipo)
{
    const bool otraRuta = M.RutasROM(1) != M.RutasROM(2);
    if (casillas.rom != M.ROM_Previo || cambiaDeEntradas(NumeroDeAjuste(M.XDI_Previo), NumeroDeAjuste(tipo)))
        return Renovacion::Lista;
    if (casillas.img != M.IMG_Previo)
        return otraRuta ? Renovacion::CapturaYLista : Renovacion::Captura;
    const bool otrosParametros = casillas.par1 != M.PAR1_Previo || casillas.par2 != M.PAR2_Previo;
    return otrosParametros && otraRuta ? Renovacion::Lista : Renovacion::Nada;
}

Webs LeeWebs(Modulo &M, const QString &sistema, const QString &emulador, int numero)
{
    Webs webs;
    bool enSistema = false;
    bool enEmulador = false;
    M.Ficheros.openForInput(numero, host::programFile(u"Zembro.sye"_s));
    do {
        const QString linea = M.Ficheros.readLine(numero);
        if (linea == u'-' + sistema)
            enSistema = true;
        if (enSistema && linea.startsWith(u"WEB1"))
            webs.sistema = linea;
        if (enSistema && linea == u'+' + emulador)
            enEmulador = true;
        if (enEmulador && linea.startsWith(u"WEB2")) {
            webs.emulador = linea;
            enSistema = enEmulador = false;
        }
    } while (!M.Ficheros.atEnd(numero));
    M.Ficheros.close(numero);
    return webs;
}

namespace {

// Moves Indice_Emulador along a row to an emulator.
Situacion situacionEnFila(Modulo &M, const QString &emulador)
{
    M.Indice_Emulador = 0;
    for (int paso = 0; paso < MaxBusquedaDePareja; ++paso) {
        const QString &linea = M.Cat_Nombre(M.Indice_Sistema, ++M.Indice_Emulador);
        if (linea.isEmpty())
            return SinEmuladorConfigurado;
        if (Valor(linea, 1) == emulador)
            return EmuladorYaConfigurado;
    }
    return SinEmuladorConfigurado;
}

} // namespace

Situacion SituacionDe(Modulo &M, const QString &sistema, const QString &emulador)
{
    M.Indice_Sistema = M.Indice_Emulador = 0;
    for (int paso = 0; paso < MaxBusquedaDePareja; ++paso) {
        const QString &linea = M.Cat_Nombre(M.Indice_Sistema, 0);
        if (!linea.startsWith(u'-'))
            break;
        if (Valor(linea, 1) == sistema)
            return situacionEnFila(M, emulador);
        ++M.Indice_Sistema;
    }
    return SinSistemaConfigurado;
}

void LeePrevios(Modulo &M, const QString &emulador)
{
    const struct {
        QLatin1StringView prefijo;
        QString &previo;
        int largo;
    } claves[] = { { "EXE"_L1, M.EXE_Previo, PrefijoRuta }, { "XDI"_L1, M.XDI_Previo, PrefijoRuta },
        { "ROM"_L1, M.ROM_Previo, PrefijoRuta }, { "IMG"_L1, M.IMG_Previo, PrefijoRuta },
        { "PAR1"_L1, M.PAR1_Previo, PrefijoParametro }, { "PAR2"_L1, M.PAR2_Previo, PrefijoParametro } };
    bool dentro = false;
    bool leido = false;
    M.Ficheros.openForInput(1, host::programFile(u"Zembro.emu"_s));
    do {
        const QString linea = M.Ficheros.readLine(1);
        if (linea == u'+' + emulador)
            dentro = true;
        for (const auto &clave : claves) {
            if (dentro && linea.startsWith(clave.prefijo))
                clave.previo = Valor(linea, clave.largo);
        }
        leido = dentro && linea.startsWith(u"PAR2");
    } while (!leido && !M.Ficheros.atEnd(1));
    M.Ficheros.close(1);
}

} // namespace core
