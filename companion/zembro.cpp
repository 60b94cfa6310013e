#include "companion/zembro.h"

#include "companion/ayuda.h"
#include "companion/idioma.h"
#include "companion/imprimible.h"
#include "companion/ordenes.h"

#include "host/paths.h"

#include <QCommandLineParser>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

const QString OpcionVersion = u"version"_s;

// Reads the options that it knows. What is wrong with them is `error`, told in the words of the language.
class Lector {
public:
    explicit Lector(std::vector<Opcion> opciones)
        : m_opciones(std::move(opciones))
    {
        for (const Opcion &opcion : m_opciones)
            m_parser.addOption(QCommandLineOption(opcion.nombre, {}, opcion.valor));
    }

    QCommandLineParser &Parser() { return m_parser; }

    void Lee(const QStringList &argumentos, Pedido &pedido)
    {
        m_bien = m_parser.parse(QStringList { u"zembro"_s } + argumentos);
        pedido.argumentos = m_parser.positionalArguments();
        for (const Opcion &opcion : m_opciones) {
            if (!m_parser.isSet(opcion.nombre))
                continue;
            pedido.opciones[opcion.nombre] +=
                opcion.valor.isEmpty() ? QStringList { QString() } : m_parser.values(opcion.nombre);
        }
    }

    QString Error(const Palabras &palabras) const
    {
        if (m_bien)
            return {};
        const QStringList desconocidas = m_parser.unknownOptionNames();
        if (!desconocidas.isEmpty())
            return palabras.Zbo_NoOpcion.arg(
                (desconocidas.first().size() > 1 ? u"--"_s : u"-"_s) + desconocidas.first());
        return m_parser.errorText().startsWith(u"Missing") ? palabras.Zbo_NoValor : palabras.Zbo_SinValor;
    }

private:
    std::vector<Opcion> m_opciones;
    QCommandLineParser m_parser;
    bool m_bien = true;
};

std::vector<Opcion> conComunes(std::vector<Opcion> opciones)
{
    opciones.insert(opciones.end(), OpcionesComunes().begin(), OpcionesComunes().end());
    return opciones;
}

// Of its text files any, or what copies of them are kept in.
bool hayFicherosDelPrograma()
{
    return std::ranges::any_of(std::initializer_list<QString> { u"Zembro.cfg"_s, u"Zembro.emu"_s,
                                   u"Zembro.rom"_s, u"Zembro.sye"_s, u"copias"_s },
        [](const QString &nombre) { return host::exists(host::programFile(nombre)); });
}

int corre(const Orden &orden, Sesion &sesion)
{
    const Cabida cabida = CabidaDe(orden.argumentos);
    const qsizetype dados = sesion.Argumentos().size();
    if (dados < cabida.minimo || dados > cabida.maximo)
        return sesion.Falla(sesion.palabras.Zbo_Uso.arg(Sinopsis(orden)));
    if (!orden.sinDirectorio && !hayFicherosDelPrograma())
        return sesion.Falla(
            sesion.palabras.Zbo_NoDir.arg(host::programDirectory()) + u' ' + sesion.palabras.Zbo_QueDir);
    try {
        return orden.haz(sesion);
    } catch (const host::Failure &fallo) {
        return sesion.Falla(TextoDe(fallo, sesion.palabras));
    }
}

// False if there is no such directory.
bool VaAlDirectorio(const Pedido &pedido)
{
    const QStringList directorios = pedido.opciones.value(u"directory"_s);
    if (directorios.isEmpty())
        return true;
    try {
        host::setProgramDirectory(host::directoryPath(directorios.last()));
        return true;
    } catch (const host::Failure &) {
        return false;
    }
}

// What was asked for without a command, or wrongly; none where a command is to run.
std::optional<int> sinOrden(const Sesion &sesion, const Orden *orden, const QString &nombre)
{
    const Palabras &palabras = sesion.palabras;
    if (sesion.Tiene(OpcionVersion)) {
        if (sesion.EnJson())
            sesion.Json({ { u"version"_s, QStringLiteral(ZEMBRO_VERSION) } });
        else
            sesion.Escribe(QStringLiteral("zembro " ZEMBRO_VERSION));
        return Bien;
    }
    if (!nombre.isEmpty() && !orden)
        return sesion.Falla(palabras.Zbo_NoOrden.arg(nombre));
    if (sesion.Tiene(u"help"_s)) {
        DaAyuda(sesion, orden);
        return Bien;
    }
    if (orden)
        return std::nullopt;
    if (sesion.EnJson())
        return sesion.Falla(palabras.Zbo_NoSePide);
    DaAyuda(sesion, orden);
    return NoPudo;
}

int responde(const QStringList &argumentos, const Consola &consola, Palabras &palabras)
{
    Pedido pedido;
    Lector generales(conComunes({ { OpcionVersion, {}, &Palabras::Zbo_OpVersion } }));
    generales.Parser().setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    generales.Lee(argumentos, pedido);
    const QString nombre = pedido.argumentos.value(0);
    const Orden *orden = OrdenDe(nombre);
    Lector suyas(conComunes(orden ? orden->opciones : std::vector<Opcion>()));
    suyas.Lee(pedido.argumentos.mid(1), pedido);

    const bool hayDirectorio = VaAlDirectorio(pedido);
    const auto M = std::make_unique<core::Modulo>();
    palabras = LeeIdioma(*M);
    Sesion sesion(pedido, palabras, *M, consola);
    const QString error = generales.Error(palabras) + (orden ? suyas.Error(palabras) : QString());
    if (!error.isEmpty())
        return sesion.Falla(error);
    if (const std::optional<int> estado = sinOrden(sesion, orden, nombre))
        return *estado;
    if (!hayDirectorio)
        return sesion.Falla(palabras.Zbo_NoDir.arg(sesion.Valor(u"directory"_s)));
    return corre(*orden, sesion);
}

} // namespace

int Zembro(const QStringList &argumentos, const Consola &consola)
{
    Palabras palabras;
    const int estado = responde(argumentos, consola, palabras);
    if (!consola.queda || consola.queda())
        return estado;
    const QString motivo = qt_error_string(errno);
    consola.error("zembro: " + Imprimible(palabras.Zbo_NoSale.arg(motivo)).toUtf8() + '\n');
    return NoPudo;
}

} // namespace companion
