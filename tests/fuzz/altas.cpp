// Additions to the catalogue and to the database.
#include "core/altas.h"
#include "catalogos.h"
#include "temas.h"

#include "core/modulo.h"

#include "host/encoding.h"
#include "host/paths.h"

using namespace Qt::StringLiterals;

namespace pelusa {

namespace {

core::EmuladorNuevo emuladorNuevo(Entrada &entrada)
{
    core::EmuladorNuevo nuevo;
    nuevo.nombre = UnaLinea(entrada);
    nuevo.web2 = entrada.Numero(2) == 0 ? QString() : u"WEB2="_s + UnaLinea(entrada);
    nuevo.exe = UnaLinea(entrada);
    nuevo.tipo = QString::number(entrada.Numero(9));
    nuevo.rom = UnaLinea(entrada);
    nuevo.img = UnaLinea(entrada);
    nuevo.par1 = UnaLinea(entrada);
    nuevo.par2 = UnaLinea(entrada);
    return nuevo;
}

EmuladorLeido leido(const core::EmuladorNuevo &nuevo)
{
    return { u'+' + nuevo.nombre,
        { u"EXE="_s + nuevo.exe, u"XDI="_s + nuevo.tipo, u"ROM="_s + host::withClosingSeparator(nuevo.rom),
            u"IMG="_s + host::withClosingSeparator(nuevo.img), u"PAR1="_s + nuevo.par1,
            u"PAR2="_s + nuevo.par2, nuevo.web2 } };
}

constexpr int SinValores = 7;

SistemaLeido sistemaLeido(const QString &nombre)
{
    return { {}, {}, { { u'-' + nombre, QStringList(SinValores) } } };
}

// A system ahead of the end of the data, with what it brings along.
void sistema(const QString &texto, const QString &despues, const QString &nombre, const SistemaLeido &nuevo)
{
    ExigeSoloAñade(texto, despues);
    std::optional<Catalogo> seria = Leido(texto);
    if (!seria || !EsRegular(texto) || SistemaDe(*seria, u'-' + nombre) >= 0
        || seria->size() + 1 >= core::MaxSistemas)
        return;
    *seria << nuevo;
    ExigeCatalogo(despues, *seria, "the new system is read back, and nothing else changes");
}

void enBase(const QString &texto, const QString &nombre)
{
    SistemaLeido nuevo = sistemaLeido(nombre);
    nuevo.web1 = u"WEB1="_s;
    nuevo.extensiones = QStringList { u"*.ZIP"_s };
    sistema(texto, core::ConSistemaEnBase(texto, nombre), nombre, nuevo);
}

void configurado(const QString &texto, const QString &nombre, const core::EmuladorNuevo &emulador)
{
    const core::SistemaNuevo pedido { nombre, u"WEB1=x"_s, { u"*.ZIP"_s, u"*.Ñ"_s }, emulador };
    SistemaLeido nuevo = sistemaLeido(nombre);
    nuevo.web1 = pedido.web1;
    nuevo.extensiones = pedido.extensiones;
    nuevo.emuladores << leido(emulador);
    sistema(texto, core::ConSistemaConfigurado(texto, pedido), nombre, nuevo);
}

// An emulator as the last of its system.
void emulador(
    const QString &texto, const QString &despues, const QString &sistema, const EmuladorLeido &nuevo)
{
    ExigeSoloAñade(texto, despues);
    ExigeOtrosComoEran(texto, despues, sistema);
    std::optional<Catalogo> seria = Leido(texto);
    if (!seria || !EsRegular(texto))
        return;
    const qsizetype suyo = SistemaDe(*seria, u'-' + sistema);
    if (suyo >= 0 && (*seria)[suyo].emuladores.size() >= core::MaxSistemas)
        return;
    if (suyo >= 0)
        (*seria)[suyo].emuladores << nuevo;
    ExigeCatalogo(despues, *seria, "the new emulator is read back, and nothing else changes");
}

} // namespace

void probarAltas(Bytes bytes)
{
    Entrada entrada(bytes);
    const int clase = entrada.Numero(4);
    const int cual = entrada.Numero(64);
    const QString nombre = UnaLinea(entrada);
    const core::EmuladorNuevo nuevo = emuladorNuevo(entrada);
    const QString texto = host::decodeText(entrada.Resto()).text;
    const QString delTexto = NombresCon(u'-', texto).value(cual, nombre);
    EmuladorLeido deBase { u'+' + nuevo.nombre, QStringList(SinValores) };
    deBase.valores.last() = u"WEB2="_s;
    switch (clase) {
    case 0:
        enBase(texto, nombre);
        break;
    case 1:
        configurado(texto, nombre, nuevo);
        break;
    case 2:
        emulador(texto, core::ConEmuladorEnBase(texto, u'-' + delTexto, nuevo.nombre), delTexto, deBase);
        break;
    default:
        emulador(texto, core::ConEmuladorConfigurado(texto, u'-' + delTexto, nuevo), delTexto, leido(nuevo));
    }
}

} // namespace pelusa
