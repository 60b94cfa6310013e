#include "companion/viejo.h"

#include "core/bloques.h"
#include "core/catalogo.h"
#include "core/notas.h"
#include "core/rutas.h"

#include "host/failure.h"
#include "host/letters.h"
#include "host/numberedfiles.h"
#include "host/paths.h"
#include "host/textsource.h"

#include <QDir>

#include <algorithm>
#include <memory>
#include <set>
#include <utility>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// The readers of the program's files read those of this directory.
class EnOtroDirectorio {
public:
    explicit EnOtroDirectorio(const QString &ruta)
        : m_propio(host::programDirectory())
    {
        host::setProgramDirectory(ruta);
    }
    ~EnOtroDirectorio() { host::setProgramDirectory(m_propio); }
    EnOtroDirectorio(const EnOtroDirectorio &) = delete;
    EnOtroDirectorio &operator=(const EnOtroDirectorio &) = delete;

private:
    QString m_propio;
};

QString textoDe(const QString &ruta)
{
    return host::exists(ruta) ? host::decodeText(host::readBytes(ruta)).text : QString();
}

QString rutaViva(const QString &linea, const QString &directorio)
{
    const QString valor = core::Valor(linea, core::PrefijoRuta);
    const QString ruta = core::RutaDeValor(valor, directorio);
    if (!core::EsRutaRelativa(valor))
        return ruta;
    // Without what leads up and down again, by whichever separator.
    const QString llana = QDir::cleanPath(QString(ruta).replace(u'\\', u'/'));
    const bool cerrada = valor.endsWith(u'/') || valor.endsWith(u'\\');
    return cerrada ? host::withClosingSeparator(llana) : llana;
}

EmuladorViejo emuladorDe(const core::Modulo &M, int sistema, int fila, const QString &directorio)
{
    EmuladorViejo viejo { core::Valor(M.Cat_Nombre(sistema, 0), 1), M.Cat_WEB1(sistema), {}, {} };
    for (int k = 0; k < M.Cat_EXT.columnas() && !M.Cat_EXT(sistema, k).isEmpty(); ++k)
        viejo.extensiones += M.Cat_EXT(sistema, k);
    viejo.emulador = { core::Valor(M.Cat_Nombre(sistema, fila), 1), M.Cat_WEB2(sistema, fila),
        rutaViva(M.Cat_EXE(sistema, fila), directorio), core::TipoDe(M.Cat_XDI(sistema, fila)),
        rutaViva(M.Cat_ROM(sistema, fila), directorio), rutaViva(M.Cat_IMG(sistema, fila), directorio),
        core::Valor(M.Cat_PAR1(sistema, fila), core::PrefijoParametro),
        core::Valor(M.Cat_PAR2(sistema, fila), core::PrefijoParametro) };
    return viejo;
}

std::vector<EmuladorViejo> emuladoresDe(const core::Modulo &M, const QString &directorio)
{
    std::vector<EmuladorViejo> todos;
    for (int sistema = 0; !M.Cat_Nombre(sistema, 0).isEmpty(); ++sistema) {
        for (int fila = 1; fila <= core::TotalEmuladores(M, sistema); ++fila)
            todos.push_back(emuladorDe(M, sistema, fila, directorio));
    }
    return todos;
}

NotasViejas notasDe(const QString &sistema)
{
    const auto M = std::make_unique<core::Modulo>();
    NotasViejas notas { sistema, {} };
    try {
        const int total = core::CargaNotas(*M, sistema);
        for (int i = 0; i < total; ++i)
            notas.notas.push_back({ M->Nota_Clave(i), M->Nota_Texto(i) });
    } catch (const host::Failure &) {
        // It has none.
    }
    return notas;
}

std::vector<core::Parametros> parametrosDe(const QString &texto)
{
    std::vector<core::Parametros> todos;
    host::TextSource fuente(texto);
    if (!fuente.passLine(u"Parametros"))
        return todos;
    while (!fuente.atEnd()) {
        const core::RegistroLeido registro = core::LeeRegistro(fuente);
        if (registro.EsCierre())
            break;
        todos.push_back(registro.campos);
    }
    return todos;
}

using Tres = std::tuple<QString, QString, QString>;

// What the lists would show of a catalogue: systems, emulators, programs.
std::multiset<Tres> parejasDe(const QString &texto)
{
    const std::unique_ptr<core::Modulo> M = core::CatalogoDe(texto);
    std::multiset<Tres> parejas;
    for (const EmuladorViejo &uno : emuladoresDe(*M, {}))
        parejas.insert({ uno.sistema, uno.emulador.nombre, uno.emulador.exe });
    return parejas;
}

// With a block for the system's notes, if it has none.
QString conBloque(const QString &texto, const QString &sistema)
{
    const std::vector<core::LineaConFin> lineas = core::EnLineas(texto);
    const auto esSuya = [&sistema](const core::LineaConFin &linea) { return linea.linea == sistema; };
    return std::ranges::any_of(lineas, esSuya) ? texto : core::ConSistemaNuevo(texto, sistema);
}

} // namespace

DirectorioViejo LeeViejo(const QString &ruta)
{
    DirectorioViejo viejo { ruta, {}, {}, {}, {}, {} };
    const EnOtroDirectorio alli(ruta);
    const QString catalogo = textoDe(host::programFile(u"Zembro.emu"_s));
    const QString notas = textoDe(host::programFile(u"Zembro.rom"_s));
    viejo.emuladores = emuladoresDe(*core::CatalogoDe(catalogo), ruta);
    QStringList sistemas;
    for (const EmuladorViejo &uno : viejo.emuladores) {
        if (!sistemas.contains(uno.sistema))
            sistemas += uno.sistema;
    }
    for (const QString &sistema : std::as_const(sistemas))
        viejo.notas.push_back(notasDe(sistema));
    viejo.parametros = parametrosDe(notas);
    viejo.textoDeUnidades = textoDe(host::programFile(u"Zembro.uni"_s));
    viejo.unidades = host::drivesIn(viejo.textoDeUnidades, ruta);
    return viejo;
}

std::optional<QString> ConEmuladorViejo(const QString &texto, const EmuladorViejo &uno)
{
    if (core::TieneEmulador(texto, uno.sistema, uno.emulador.nombre))
        return std::nullopt;
    const QString nuevo = core::TieneSistema(texto, uno.sistema)
        ? core::ConEmuladorConfigurado(texto, u'-' + uno.sistema, uno.emulador)
        : core::ConSistemaConfigurado(texto, { uno.sistema, uno.web1, uno.extensiones, uno.emulador });
    std::multiset<Tres> esperadas = parejasDe(texto);
    esperadas.insert({ uno.sistema, uno.emulador.nombre, uno.emulador.exe });
    return parejasDe(nuevo) == esperadas ? nuevo : texto;
}

Anotado ConNotasViejas(const QString &texto, const DirectorioViejo &viejo)
{
    Anotado anotado { texto };
    // A system without a block lists no games.
    for (const NotasViejas &unas : viejo.notas) {
        anotado.texto = conBloque(anotado.texto, unas.sistema);
        const core::Descritas descritas =
            core::ConDescripciones(anotado.texto, unas.sistema, unas.notas, core::LasQueHay::Quedan);
        anotado.texto = descritas.texto;
        anotado.descripciones += descritas.nuevas;
    }
    // A launch takes the first record of a game, whichever emulator it is for.
    std::set<QString> claves;
    for (const core::Parametros &propios : parametrosDe(texto))
        claves.insert(host::upper(propios.clave));
    for (auto uno = viejo.parametros.rbegin(); uno != viejo.parametros.rend(); ++uno) {
        const QString nuevo = claves.contains(host::upper(uno->clave))
            ? anotado.texto
            : core::ConParametrosNuevos(anotado.texto, *uno);
        anotado.parametros += nuevo != anotado.texto;
        anotado.texto = nuevo;
    }
    return anotado;
}

QString ConUnidadesViejas(const std::optional<QString> &texto, const std::vector<host::Drive> &actuales,
    const std::vector<host::Drive> &viejas)
{
    QString nuevo = texto.value_or(QString());
    std::set<QChar> letras;
    for (const host::Drive &unidad : actuales)
        letras.insert(unidad.letter);
    const bool faltan = std::ranges::any_of(
        viejas, [&](const host::Drive &unidad) { return !letras.contains(unidad.letter); });
    if (!faltan)
        return nuevo;
    if (!nuevo.isEmpty() && !nuevo.endsWith(u'\n'))
        nuevo += u"\r\n"_s;
    const auto pon = [&nuevo](const host::Drive &unidad) {
        const QString linea = host::lineOf(unidad);
        nuevo += linea.isEmpty() ? QString() : linea + u"\r\n"_s;
    };
    if (!texto)
        std::ranges::for_each(actuales, pon);
    for (const host::Drive &unidad : viejas) {
        if (letras.insert(unidad.letter).second)
            pon(unidad);
    }
    return nuevo;
}

} // namespace companion
