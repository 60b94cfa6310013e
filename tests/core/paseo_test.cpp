// A random walk through the operations on the catalogues and the notes, step by step against the model: no
// line is lost or mixed that an operation doesn't mean to change. Names are unique, as those that the program
// matches are, and as odd as they are let in. What is removed from the catalogue is what another copy of the
// program has seen in it some steps ago. The walk is the same for a seed.
#include "paseo.h"

#include "core/bajas.h"
#include "core/basededatos.h"
#include "core/catalogo.h"
#include "core/notas.h"

#include "host/letters.h"

#include <iostream>
#include <iterator>
#include <string>

using namespace Qt::StringLiterals;

namespace {

constexpr int Pasos = 1500; // of each walk that change something
constexpr size_t MaxSistemas = 9;
constexpr size_t MaxEmuladores = 5;

QString nueva(const QString &linea)
{
    return linea + u"\r\n"_s;
}

template <typename Sistema> Sistema *busca(Fichero<Sistema> &fichero, const QString &nombre)
{
    for (Sistema &sistema : fichero.sistemas) {
        if (sistema.nombre == nombre)
            return &sistema;
    }
    return nullptr;
}

// In the place of the old address and of what stands ahead of it; a line that is none stays.
void ponWeb(
    QStringList &antes, QString &web, QStringList &detras, const QString &clave, const QString &direccion)
{
    if (!web.startsWith(clave))
        detras = antes + QStringList { web } + detras;
    antes.clear();
    web = nueva(clave + u'=' + direccion);
}

EmuladorDeCatalogo escrito(const core::EmuladorNuevo &nuevo)
{
    return { nuevo.nombre, nueva(u"'"_s), {}, nueva(u'+' + nuevo.nombre), {}, nueva(nuevo.web2),
        { nueva(u"EXE="_s + nuevo.exe), nueva(u"XDI="_s + nuevo.tipo), nueva(u"ROM="_s + nuevo.rom + u'/'),
            nueva(u"IMG="_s + nuevo.img), nueva(u"PAR1="_s + nuevo.par1), nueva(u"PAR2="_s) } };
}

} // namespace

core::EmuladorNuevo Paseo::Configurado(const QString &nombre, const QString &web2)
{
    const QString numero = QString::number(Azar(1000));
    return { nombre, Azar(4) == 0 ? QString() : web2.trimmed(), u"/bin/"_s + numero, QString::number(Azar(4)),
        u"/roms/"_s + numero, u"/img/"_s, u"-p "_s + numero, QString() };
}

SistemaDeBase *Paseo::SistemaConEmuladores()
{
    SistemaDeBase &sistema = m_sye.sistemas[Azar(m_sye.sistemas.size())];
    return sistema.emuladores.empty() ? nullptr : &sistema;
}

EmuladorDeCatalogo *Paseo::EmuladorConfigurado(const QString &nombre)
{
    for (SistemaDeCatalogo &sistema : m_emu.sistemas) {
        for (EmuladorDeCatalogo &emulador : sistema.emuladores) {
            if (emulador.nombre == nombre)
                return &emulador;
        }
    }
    return nullptr;
}

void Paseo::AñadeSistema()
{
    if (m_sye.sistemas.size() == MaxSistemas)
        return;
    const QString nombre = NombreNuevo(u"S"_s);
    m_sye.sistemas.push_back({ nombre, nueva(u'-' + nombre), {}, nueva(u"WEB1="_s), { nueva(u"*.ZIP"_s) },
        nueva(u"'"_s), {}, {}, nueva(core::LineaDeCierre()), {} });
    PonSye(core::ConSistemaEnBase(m_textoSye, nombre));
    m_rom.sistemas.push_back({ nombre, nueva(nombre), {}, nueva(u"'"_s) });
    PonRom(core::ConSistemaNuevo(m_textoRom, nombre));
}

void Paseo::AñadeEmulador()
{
    SistemaDeBase &sistema = m_sye.sistemas[Azar(m_sye.sistemas.size())];
    if (sistema.emuladores.size() == MaxEmuladores)
        return;
    const QString nombre = NombreNuevo(u"E"_s);
    sistema.emuladores.push_back({ nombre, nueva(u'+' + nombre), {}, nueva(u"WEB2="_s), {} });
    PonSye(core::ConEmuladorEnBase(m_textoSye, u'-' + sistema.nombre, nombre));
}

void Paseo::BorraEmulador()
{
    SistemaDeBase *sistema = SistemaConEmuladores();
    if (!sistema)
        return;
    const size_t cual = Azar(sistema->emuladores.size());
    const EmuladorDeBase quitado = sistema->emuladores[cual];
    if (EmuladorConfigurado(quitado.nombre))
        return;
    QStringList &delante = cual == 0 ? sistema->detrasDelApostrofo : sistema->emuladores[cual - 1].detras;
    delante += quitado.detras;
    sistema->emuladores.erase(sistema->emuladores.begin() + static_cast<std::ptrdiff_t>(cual));
    PonSye(core::SinEmuladorEnBase(m_textoSye, sistema->nombre, quitado.nombre));
}

void Paseo::BorraSistema()
{
    const size_t cual = Azar(m_sye.sistemas.size());
    const QString nombre = m_sye.sistemas[cual].nombre;
    if (m_sye.sistemas.size() == 1 || busca(m_emu, nombre))
        return;
    QStringList &delante = cual == 0 ? m_sye.cabecera : m_sye.sistemas[cual - 1].detras;
    delante += m_sye.sistemas[cual].detras;
    m_sye.sistemas.erase(m_sye.sistemas.begin() + static_cast<std::ptrdiff_t>(cual));
    PonSye(core::SinSistema(m_textoSye, nombre));
    QuitaDeNotas(nombre);
}

// The first of its two rewrites drops every empty line outside the section, and writes the section anew.
void Paseo::QuitaDeNotas(const QString &sistema)
{
    const auto sinVacias = [](QStringList &lineas) {
        lineas.removeIf([](const QString &linea) { return linea == u"\n" || linea == u"\r\n"; });
    };
    sinVacias(m_rom.cabecera);
    sinVacias(m_rom.detras);
    for (NotasDeUnSistema &notas : m_rom.sistemas)
        sinVacias(notas.notas);
    std::erase_if(
        m_rom.parametros, [&](const RegistroDeParametros &registro) { return registro.sistema == sistema; });
    PonRom(core::SinParametrosDeSistema(m_textoRom, host::upper(sistema)));
    std::erase_if(m_rom.sistemas, [&](const NotasDeUnSistema &notas) { return notas.nombre == sistema; });
    PonRom(core::SinNotasDeSistema(m_textoRom, sistema, core::SistemasDelTexto(m_textoSye)));
}

void Paseo::CambiaExtensiones()
{
    SistemaDeBase &sistema = m_sye.sistemas[Azar(m_sye.sistemas.size())];
    const QStringList extensiones = Extensiones();
    sistema.extensiones.clear();
    for (const QString &extension : extensiones)
        sistema.extensiones += nueva(u"*."_s + extension);
    sistema.apostrofo = nueva(u"'"_s);
    PonSye(core::ConExtensiones(m_textoSye, sistema.nombre, extensiones));
    SistemaDeCatalogo *configurado = busca(m_emu, sistema.nombre);
    // A system saved without an address has no place for them.
    if (configurado && configurado->web.startsWith(u"WEB1")) {
        configurado->extensiones = sistema.extensiones;
        const bool suelto = configurado->emuladores.empty() || !configurado->apostrofoSuelto.isEmpty();
        (suelto ? configurado->apostrofoSuelto : configurado->emuladores.front().apostrofo) = nueva(u"'"_s);
    }
    PonEmu(core::ConExtensiones(m_textoEmu, sistema.nombre, extensiones));
}

void Paseo::CambiaWebDeSistema()
{
    SistemaDeBase &sistema = m_sye.sistemas[Azar(m_sye.sistemas.size())];
    const QString direccion = u"http://%1"_s.arg(Azar(1000));
    ponWeb(sistema.antesDeWeb, sistema.web, sistema.extensiones, u"WEB1"_s, direccion);
    PonSye(core::ConWebDeSistema(m_textoSye, sistema.nombre, direccion));
    if (SistemaDeCatalogo *configurado = busca(m_emu, sistema.nombre))
        ponWeb(configurado->antesDeWeb, configurado->web, configurado->extensiones, u"WEB1"_s, direccion);
    PonEmu(core::ConWebDeSistema(m_textoEmu, sistema.nombre, direccion));
}

void Paseo::CambiaWebDeEmulador()
{
    SistemaDeBase *sistema = SistemaConEmuladores();
    if (!sistema)
        return;
    EmuladorDeBase &emulador = sistema->emuladores[Azar(sistema->emuladores.size())];
    const QString direccion = u"http://%1"_s.arg(Azar(1000));
    ponWeb(emulador.antesDeWeb, emulador.web, emulador.detras, u"WEB2"_s, direccion);
    PonSye(core::ConWebDeEmulador(m_textoSye, sistema->nombre, emulador.nombre, direccion));
    // The rewrite follows also where the pair isn't configured.
    if (EmuladorDeCatalogo *configurado = EmuladorConfigurado(emulador.nombre))
        ponWeb(configurado->antesDeWeb, configurado->web, configurado->resto, u"WEB2"_s, direccion);
    PonEmu(core::ConWebDeEmulador(m_textoEmu, sistema->nombre, emulador.nombre, direccion));
}

void Paseo::Guarda()
{
    SistemaDeBase *sistema = SistemaConEmuladores();
    if (!sistema)
        return;
    const EmuladorDeBase &emulador = sistema->emuladores[Azar(sistema->emuladores.size())];
    SistemaDeCatalogo *configurado = busca(m_emu, sistema->nombre);
    if (EmuladorDeCatalogo *antes = EmuladorConfigurado(emulador.nombre))
        GuardaCambios(*antes, emulador);
    else if (configurado)
        GuardaEmulador(*configurado, emulador);
    else
        GuardaSistema(*sistema, emulador);
}

void Paseo::GuardaSistema(const SistemaDeBase &sistema, const EmuladorDeBase &emulador)
{
    const core::EmuladorNuevo nuevo = Configurado(emulador.nombre, emulador.web);
    const QStringList extensiones { u"*.ZIP"_s, u"*.n"_s };
    const QString web = Azar(4) == 0 ? QString() : sistema.web.trimmed();
    m_emu.sistemas.push_back({ sistema.nombre, nueva(u'-' + sistema.nombre), {}, nueva(web),
        { nueva(extensiones[0]), nueva(extensiones[1]) }, {}, { escrito(nuevo) },
        nueva(core::LineaDeCierre()), {} });
    PonEmu(core::ConSistemaConfigurado(m_textoEmu, { sistema.nombre, web, extensiones, nuevo }));
}

void Paseo::GuardaEmulador(SistemaDeCatalogo &sistema, const EmuladorDeBase &emulador)
{
    const core::EmuladorNuevo nuevo = Configurado(emulador.nombre, emulador.web);
    sistema.emuladores.push_back(escrito(nuevo));
    PonEmu(core::ConEmuladorConfigurado(m_textoEmu, u'-' + sistema.nombre, nuevo));
}

void Paseo::GuardaCambios(EmuladorDeCatalogo &configurado, const EmuladorDeBase &emulador)
{
    const core::EmuladorNuevo nuevo = Configurado(emulador.nombre, emulador.web);
    EmuladorDeCatalogo despues = escrito(nuevo);
    despues.apostrofo = configurado.apostrofo;
    despues.antes = configurado.antes;
    configurado = despues;
    PonEmu(core::ConEmuladorCambiado(m_textoEmu, nuevo));
}

void Paseo::LeeTablas()
{
    m_tablas = core::CatalogoDe(m_textoEmu);
    m_leido = m_emu;
}

// True if the file, the system and all ahead of it alike, is what was read.
bool Paseo::EsElLeido(size_t fila)
{
    if (m_emu.sistemas.size() <= fila)
        return false;
    for (size_t i = 0; i <= fila; ++i) {
        if (TextoDe(m_emu.sistemas[i]) != TextoDe(m_leido.sistemas[i]))
            return false;
    }
    return true;
}

void Paseo::QuitaSistema()
{
    if (!m_tablas || Azar(2) == 0)
        LeeTablas();
    if (m_leido.sistemas.empty())
        return;
    const size_t fila = Azar(m_leido.sistemas.size());
    const std::optional<QString> sin =
        core::SinSistemaDeLaFila(*m_tablas, static_cast<int>(fila), m_textoEmu);
    if (!sin) {
        ASSERT_FALSE(EsElLeido(fila));
        ++m_cambiados;
        return;
    }
    m_atrasados += !EsElLeido(fila);
    const QString &nombre = m_leido.sistemas[fila].nombre;
    ASSERT_TRUE(busca(m_emu, nombre));
    const size_t cual = static_cast<size_t>(busca(m_emu, nombre) - m_emu.sistemas.data());
    QStringList &delante = cual == 0 ? m_emu.cabecera : m_emu.sistemas[cual - 1].detras;
    delante += m_emu.sistemas[cual].detras;
    m_emu.sistemas.erase(m_emu.sistemas.begin() + static_cast<std::ptrdiff_t>(cual));
    PonEmu(*sin);
}

void Paseo::QuitaEmulador()
{
    if (!m_tablas || Azar(2) == 0)
        LeeTablas();
    if (m_leido.sistemas.empty())
        return;
    const size_t fila = Azar(m_leido.sistemas.size());
    const SistemaDeCatalogo &visto = m_leido.sistemas[fila];
    if (visto.emuladores.empty())
        return;
    const size_t cual = Azar(visto.emuladores.size());
    const std::optional<QString> sin =
        core::SinEmuladorDeLaFila(*m_tablas, static_cast<int>(fila), static_cast<int>(cual) + 1, m_textoEmu);
    if (!sin) {
        ASSERT_FALSE(EsElLeido(fila));
        ++m_cambiados;
        return;
    }
    m_atrasados += !EsElLeido(fila);
    SistemaDeCatalogo *sistema = busca(m_emu, visto.nombre);
    ASSERT_TRUE(sistema);
    ASSERT_EQ(sistema->emuladores.size(), visto.emuladores.size());
    ASSERT_EQ(sistema->emuladores[cual].nombre, visto.emuladores[cual].nombre);
    QuitaDelModelo(*sistema, cual);
    PonEmu(*sin);
}

void Paseo::QuitaDelModelo(SistemaDeCatalogo &sistema, size_t cual)
{
    const size_t total = sistema.emuladores.size();
    const EmuladorDeCatalogo quitado = sistema.emuladores[cual];
    sistema.emuladores.erase(sistema.emuladores.begin() + static_cast<std::ptrdiff_t>(cual));
    if (total == 1) {
        sistema.apostrofoSuelto.clear();
        sistema.cierre = nueva(core::LineaDeCierre());
    } else if (cual < total - 1) {
        // Its own apostrophe stays, and the one behind it goes.
        EmuladorDeCatalogo &siguiente = sistema.emuladores[cual];
        siguiente.apostrofo = quitado.apostrofo;
        siguiente.antes = quitado.antes + siguiente.antes;
    }
}

void Paseo::Describe()
{
    NotasDeUnSistema &notas = m_rom.sistemas[Azar(m_rom.sistemas.size())];
    const QString clave = u"[K%1], THE"_s.arg(Azar(1000));
    notas.notas.prepend(nueva(u'"' + clave + u"\",\"d\""_s));
    PonRom(core::ConDescripcionNueva(m_textoRom, notas.nombre, clave, u"d"_s));
}

void Paseo::DaParametros()
{
    const QString sistema = m_rom.sistemas[Azar(m_rom.sistemas.size())].nombre;
    const core::Parametros parametros { u"K"_s, sistema, u"E"_s, u"-p"_s };
    const QString cabecera = u"Parametros especificos\r\n"_s;
    const QString linea = core::ConParametrosNuevos(cabecera, parametros).sliced(cabecera.size());
    host::TextSource fuente(linea);
    fuente.readField();
    ASSERT_EQ(fuente.readField(), sistema);
    m_rom.parametros.insert(m_rom.parametros.begin(), { sistema, linea });
    PonRom(core::ConParametrosNuevos(m_textoRom, parametros));
}

// Lines of the user's own wherever they may stand, and other line ends.
void Paseo::EscribeAMano()
{
    SistemaDeBase &base = m_sye.sistemas[Azar(m_sye.sistemas.size())];
    base.linea = ConFin(u'-' + base.nombre);
    for (QStringList *lineas :
        { &base.antesDeWeb, &base.extensiones, &base.detrasDelApostrofo, &base.detras, &m_sye.cabecera })
        *lineas += Propias();
    for (EmuladorDeBase &emulador : base.emuladores) {
        emulador.antesDeWeb += Propias();
        emulador.detras += Propias();
    }
    m_textoSye = TextoDe(m_sye);
    if (SistemaDeCatalogo *sistema = busca(m_emu, base.nombre)) {
        sistema->cierre = ConFin(u"'- closed"_s);
        for (QStringList *lineas : { &sistema->antesDeWeb, &sistema->extensiones, &sistema->detras })
            *lineas += Propias();
        for (EmuladorDeCatalogo &emulador : sistema->emuladores) {
            emulador.apostrofo = ConFin(u"' next"_s);
            for (QStringList *lineas : { &emulador.antes, &emulador.antesDeWeb, &emulador.resto })
                *lineas += Propias();
        }
        m_textoEmu = TextoDe(m_emu);
    }
    m_rom.sistemas[Azar(m_rom.sistemas.size())].notas += Propias();
    m_textoRom = TextoDe(m_rom);
}

constexpr struct {
    const char *nombre;
    void (Paseo::*hace)();
    size_t peso;
} Operaciones[] = { { "add a system", &Paseo::AñadeSistema, 4 },
    { "add an emulator", &Paseo::AñadeEmulador, 4 }, { "delete an emulator", &Paseo::BorraEmulador, 2 },
    { "delete a system", &Paseo::BorraSistema, 8 }, { "extensions", &Paseo::CambiaExtensiones, 2 },
    { "address of a system", &Paseo::CambiaWebDeSistema, 2 },
    { "address of an emulator", &Paseo::CambiaWebDeEmulador, 2 }, { "save", &Paseo::Guarda, 8 },
    { "remove a system", &Paseo::QuitaSistema, 2 }, { "remove an emulator", &Paseo::QuitaEmulador, 5 },
    { "describe", &Paseo::Describe, 2 }, { "parameters", &Paseo::DaParametros, 2 },
    { "lines of the user's own", &Paseo::EscribeAMano, 4 } };

TEST_P(Paseo, ChangesNoLineThatItDoesntMeanTo)
{
    std::cout << "seed " << GetParam() << '\n';
    std::vector<size_t> baraja;
    for (size_t i = 0; i < std::size(Operaciones); ++i)
        baraja.insert(baraja.end(), Operaciones[i].peso, i);
    std::vector<int> cambios(std::size(Operaciones));
    int hechos = 0;
    for (int paso = 0; hechos < Pasos; ++paso) {
        ASSERT_LT(paso, 4 * Pasos) << "most steps change nothing";
        const size_t cual = baraja[Azar(baraja.size())];
        SCOPED_TRACE(testing::Message() << "step " << paso << ": " << Operaciones[cual].nombre);
        const QString antes = Textos();
        (this->*Operaciones[cual].hace)();
        if (HasFatalFailure())
            return;
        const bool cambia = Textos() != antes;
        cambios[cual] += cambia;
        hechos += cambia;
    }
    for (size_t i = 0; i < std::size(Operaciones); ++i)
        EXPECT_GT(cambios[i], 20) << Operaciones[i].nombre;
    EXPECT_GT(m_rechazados, 20);
    EXPECT_GT(m_cambiados, 20);
    EXPECT_GT(m_atrasados, 5);
}

INSTANTIATE_TEST_SUITE_P(Semillas, Paseo, testing::Range(1u, 8u),
    [](const auto &caso) { return "Seed" + std::to_string(caso.param); });
