#include "finder/incorporacion.h"

#include "core/bloques.h"
#include "core/catalogo.h"
#include "core/rutas.h"

#include "host/letters.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace finder {

namespace {

using core::LineaConFin;
using core::Modulo;

constexpr size_t MaxEntradas = core::MaxSistemas - 1; // of either list

core::SistemaNuevo sistemaDe(const Modulo &base, const Hallazgo &hallazgo, const QString &directorio)
{
    int s = 0;
    while (base.Cat_Nombre(s, 0) != u'-' + hallazgo.sistema)
        ++s;
    core::SistemaNuevo sistema { hallazgo.sistema, base.Cat_WEB1(s), {}, hallazgo.emulador };
    core::EmuladorNuevo &emulador = sistema.emulador;
    for (QString *ruta : { &emulador.exe, &emulador.rom, &emulador.img })
        *ruta = core::ValorDeRuta(*ruta, directorio);
    for (int k = 0; !base.Cat_EXT(s, k).isEmpty(); ++k)
        sistema.extensiones += base.Cat_EXT(s, k);
    return sistema;
}

bool esDeUnaLinea(const core::EmuladorNuevo &emulador)
{
    const QString valores = emulador.exe + emulador.rom + emulador.img + emulador.par1 + emulador.par2;
    return std::none_of(valores.begin(), valores.end(), [](QChar c) { return c < u' '; });
}

// Where a line begins in its text.
qsizetype lugarDe(const QString &texto, const LineaConFin &linea)
{
    return linea.linea.data() - texto.constData();
}

// The line that ends the data: the first "[" behind all that the reader keeps.
std::optional<size_t> lineaDelFin(const std::vector<LineaConFin> &lineas)
{
    std::optional<size_t> fin;
    for (size_t i = 0; i < lineas.size(); ++i) {
        if (core::EsDelCatalogo(lineas[i].linea))
            fin.reset();
        else if (!fin && lineas[i].linea.startsWith(u'['))
            fin = i;
    }
    return fin;
}

// True if extensions stand behind the last emulator: the reader counts on from there.
bool extensionesSueltas(const std::vector<LineaConFin> &lineas)
{
    bool sueltas = false;
    for (const LineaConFin &linea : lineas)
        sueltas = linea.linea.startsWith(u"*.") || (sueltas && !linea.linea.startsWith(u'+'));
    return sueltas;
}

std::optional<Motivo> motivoContraSistema(const std::vector<LineaConFin> &lineas, const QString &sistema)
{
    size_t sistemas = 0;
    const QString mayus = host::upper(u'-' + sistema);
    for (const LineaConFin &linea : lineas) {
        if (!linea.linea.startsWith(u'-'))
            continue;
        ++sistemas;
        if (host::upper(linea.linea.toString()) == mayus)
            return Motivo::OtraGrafia;
    }
    if (sistemas >= MaxEntradas)
        return Motivo::Lleno;
    if (extensionesSueltas(lineas))
        return Motivo::TrasSistemaVacio;
    return lineaDelFin(lineas) ? std::nullopt : std::optional(Motivo::SinFin);
}

QString conSistema(
    const QString &texto, const std::vector<LineaConFin> &lineas, const core::SistemaNuevo &sistema)
{
    const size_t fin = *lineaDelFin(lineas);
    const qsizetype desde = lugarDe(texto, lineas[fin]);
    const qsizetype hasta = desde + lineas[fin].linea.size() + lineas[fin].fin.size();
    return texto.left(desde) + core::ConSistemaConfigurado(texto.sliced(desde, hasta - desde), sistema)
        + texto.sliced(hasta);
}

// Only the first block of the system gets it.
QString conEmulador(const QString &texto, const std::vector<LineaConFin> &lineas,
    const std::vector<core::Bloque> &bloques, const core::SistemaNuevo &sistema)
{
    const qsizetype hasta = bloques.size() > 1 ? lugarDe(texto, lineas[bloques[1].inicio]) : texto.size();
    return core::ConEmuladorConfigurado(texto.left(hasta), u'-' + sistema.nombre, sistema.emulador)
        + texto.sliced(hasta);
}

size_t emuladoresDe(const std::vector<LineaConFin> &lineas, const core::Bloque &bloque)
{
    const size_t siguiente = core::PrimeraConInicio(lineas, bloque.inicio + 1, lineas.size(), u"-");
    size_t total = 0;
    for (size_t i = bloque.inicio; i < siguiente; ++i)
        total += lineas[i].linea.startsWith(u'+') ? 1 : 0;
    return total;
}

// The lines that the reader keeps, system by system: first the system's own, then those of each emulator.
using Lectura = std::vector<std::vector<QStringList>>;

Lectura lecturaDe(const QString &texto)
{
    Lectura lectura;
    for (const LineaConFin &linea : core::EnLineas(texto)) {
        if (!core::EsDelCatalogo(linea.linea))
            continue;
        if (linea.linea.startsWith(u'-'))
            lectura.push_back({ {} });
        else if (linea.linea.startsWith(u'+') && !lectura.empty())
            lectura.back().emplace_back();
        if (!lectura.empty())
            lectura.back().back() += linea.linea.toString();
    }
    return lectura;
}

bool encaja(const QString &antes, const QString &despues, const core::SistemaNuevo &sistema)
{
    QStringList suyas = core::LineasDeEmulador(sistema.emulador);
    suyas.removeIf([](const QString &linea) { return !core::EsDelCatalogo(linea); });
    Lectura lectura = lecturaDe(antes);
    const auto suyo = std::find_if(lectura.begin(), lectura.end(),
        [&](const std::vector<QStringList> &uno) { return uno[0][0] == u'-' + sistema.nombre; });
    if (suyo != lectura.end()) {
        suyo->push_back(suyas);
        return lecturaDe(despues) == lectura;
    }
    QStringList cabeza { u'-' + sistema.nombre, sistema.web1 };
    cabeza += sistema.extensiones;
    cabeza.removeAll(QString());
    lectura.push_back({ cabeza, suyas });
    return lecturaDe(despues) == lectura;
}

// The text with it, or why it can't have it.
std::optional<Motivo> pon(
    QString &texto, const Modulo &base, const Hallazgo &hallazgo, const QString &directorio)
{
    if (!esDeUnaLinea(hallazgo.emulador))
        return Motivo::NoVuelve;
    const std::vector<LineaConFin> lineas = core::EnLineas(texto);
    const std::vector<core::Bloque> bloques = core::BloquesDe(lineas, u'-' + hallazgo.sistema);
    const core::SistemaNuevo sistema = sistemaDe(base, hallazgo, directorio);
    if (bloques.empty()) {
        if (const std::optional<Motivo> motivo = motivoContraSistema(lineas, hallazgo.sistema))
            return motivo;
    } else if (emuladoresDe(lineas, bloques[0]) >= MaxEntradas) {
        return Motivo::Lleno;
    }
    QString nuevo =
        bloques.empty() ? conSistema(texto, lineas, sistema) : conEmulador(texto, lineas, bloques, sistema);
    if (!encaja(texto, nuevo, sistema))
        return Motivo::NoEncaja;
    texto = std::move(nuevo);
    return std::nullopt;
}

} // namespace

Incorporacion Incorpora(const QString &texto, const Modulo &base, const std::vector<Hallazgo> &hallazgos,
    const QString &directorio)
{
    Incorporacion resultado { texto, {}, {} };
    for (const Hallazgo &hallazgo : hallazgos) {
        if (const std::optional<Motivo> motivo = pon(resultado.texto, base, hallazgo, directorio))
            resultado.descartados.push_back({ hallazgo, *motivo });
        else
            resultado.puestos.push_back(hallazgo);
    }
    return resultado;
}

} // namespace finder
