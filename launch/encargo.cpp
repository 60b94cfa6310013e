#include "launch/encargo.h"

#include "launch/codigo437.h"
#include "launch/intenta.h"
#include "launch/nombresdos.h"
#include "launch/rescate.h"
#include "launch/wine.h"

#include "core/catalogo.h"
#include "core/clasedeprograma.h"
#include "core/rutas.h"

#include "host/encoding.h"
#include "host/letters.h"
#include "host/paths.h"
#include "host/process.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace launch {

namespace {

constexpr qsizetype MasLargaLaCola = 126;

// Absolute, in its true spelling; empty if there is no such file.
QString enDisco(const QString &programa)
{
    const QString encontrado = host::trueSpelling(programa);
    return encontrado.isEmpty() || encontrado.startsWith(u'/') ? encontrado
                                                               : host::currentDirectory() + u'/' + encontrado;
}

QString primeraDe(const QStringList &nombres)
{
    for (const QString &nombre : nombres) {
        const QString ruta = host::findInPath(nombre);
        if (!ruta.isEmpty())
            return ruta;
    }
    return {};
}

QString nombreDe(const QString &ruta)
{
    return ruta.sliced(ruta.lastIndexOf(u'/') + 1);
}

bool obedeceElInterprete(const QString &texto)
{
    return std::ranges::any_of(texto, [](QChar c) { return QStringView(u"<>|").contains(c); });
}

class EncargoDOS {
public:
    Encargo encargo;

    void Prefiere(const Lugares &lugares)
    {
        m_unidades.Prefiere(lugares.exe);
        m_unidades.Prefiere(lugares.rom);
    }
    void Programa(const QString &programa)
    {
        const std::optional<QByteArray> dicho = m_unidades.Ruta(programa);
        encargo.programaDOS = dicho.value_or(QByteArray());
        if (!dicho)
            traba(Traba::Nombre, programa);
    }
    void Pieza(const LineaDeOrden::Pieza &pieza)
    {
        const bool absoluta = pieza.ruta && pieza.enDisco.startsWith(u'/');
        const QString &texto = pieza.ruta ? pieza.enDisco : pieza.texto;
        const std::optional<QByteArray> dicho =
            absoluta ? m_unidades.RutaOApodo(pieza.enDisco) : EnCodigo437(texto);
        const bool soloNombre = pieza.ruta && !absoluta && !texto.isEmpty();
        if (!dicho || (!absoluta && obedeceElInterprete(texto))
            || (soloNombre && !SeAbreEnDOS(host::nameToDisk(host::upper(texto)))))
            return traba(pieza.ruta ? Traba::Nombre : Traba::Signo, pieza.ruta ? nombreDe(texto) : texto);
        encargo.colaDOS += *dicho;
        if (!pieza.ruta)
            m_unidades.Nombra(texto);
    }
    void Ademas(const Lugares &lugares)
    {
        m_unidades.NombraLaDe(lugares.rom);
        for (const QString &parametro : lugares.parametros)
            m_unidades.Nombra(parametro);
    }
    void Termina()
    {
        while (encargo.colaDOS.endsWith(' '))
            encargo.colaDOS.chop(1);
        if (encargo.colaDOS.size() > MasLargaLaCola)
            traba(Traba::Largo, QString::fromLatin1(encargo.colaDOS));
        if (m_trabada) {
            encargo.programaDOS.clear();
            encargo.colaDOS.clear();
        }
        encargo.montajes = m_unidades.Montajes();
    }

private:
    // The first one counts.
    void traba(Traba cual, const QString &en)
    {
        m_trabada = true;
        if (encargo.traba != Traba::Ninguna)
            return;
        encargo.traba = cual;
        encargo.trabadoEn = en;
    }

    UnidadesDOS m_unidades;
    bool m_trabada = false; // also where a tool is missing, which counts first
};

Encargo paraDOS(const LineaDeOrden &orden, const QString &programa, const Lugares &lugares)
{
    EncargoDOS dos;
    dos.encargo.corredor = Corredor::DOSBox;
    dos.encargo.herramienta = primeraDe({ u"dosbox"_s, u"dosbox-x"_s, u"dosbox-staging"_s });
    dos.encargo.argumentos = { dos.encargo.herramienta };
    if (dos.encargo.herramienta.isEmpty())
        dos.encargo.traba = Traba::SinHerramienta;
    dos.Prefiere(lugares);
    dos.Programa(programa);
    for (std::size_t i = 1; i < orden.Piezas().size(); ++i)
        dos.Pieza(orden.Piezas()[i]);
    dos.Ademas(lugares);
    dos.Termina();
    return dos.encargo;
}

Encargo paraWindows(const LineaDeOrden &orden, const QString &programa)
{
    Encargo encargo;
    encargo.corredor = Corredor::Wine;
    encargo.herramienta = primeraDe({ u"wine"_s, u"wine64"_s });
    if (encargo.herramienta.isEmpty())
        encargo.traba = Traba::SinHerramienta;
    else if (!SeDiceEnWindows(programa))
        encargo.traba = Traba::Nombre;
    if (encargo.traba == Traba::Nombre)
        encargo.trabadoEn = programa;
    encargo.orden = orden;
    encargo.programa = programa;
    encargo.apodos = ApodosDeWindows(orden);
    encargo.argumentos = ArgumentosDeWine(encargo, [&encargo](const QString &enDisco) {
        for (const UnidadesDOS::Montaje &montaje : encargo.apodos) {
            if (host::nameFromDisk(montaje.lugar + '/' + montaje.apodos[0].fichero) == enDisco)
                return host::nameFromDisk(LugarPrevisto(montaje.letra) + '/' + montaje.apodos[0].nombre);
        }
        return enDisco;
    });
    return encargo;
}

} // namespace

Lugares LugaresDe(const core::Modulo &M, int sistema, int fila)
{
    Lugares lugares;
    Intenta([&] { lugares.exe = core::RutaDeLinea(M.Cat_EXE(sistema, fila)); });
    Intenta([&] { lugares.rom = core::RutaDeLinea(M.Cat_ROM(sistema, fila)); });
    for (const auto *tabla : { &M.Cat_PAR1, &M.Cat_PAR2 })
        Intenta([&] { lugares.parametros += core::Valor((*tabla)(sistema, fila), core::PrefijoParametro); });
    return lugares;
}

Encargo EncargoDe(const LineaDeOrden &orden, const Lugares &lugares)
{
    Encargo encargo;
    encargo.argumentos = orden.Argumentos();
    const QString programa = enDisco(encargo.argumentos.value(0));
    switch (programa.isEmpty() ? core::ClaseDePrograma::Desconocida : core::ClaseDe(programa)) {
    case core::ClaseDePrograma::DOS:
        return paraDOS(orden, programa, lugares);
    case core::ClaseDePrograma::Windows:
        return paraWindows(orden, programa);
    default:
        return encargo;
    }
}

QString TextoDe(Traba traba, Corredor corredor, const core::Palabras &palabras)
{
    switch (traba) {
    case Traba::SinHerramienta:
        return corredor == Corredor::Wine ? palabras.Zem_FaltaWine : palabras.Zem_FaltaDOSBox;
    case Traba::Nombre:
        return corredor == Corredor::Wine ? palabras.Zem_NombreWin : palabras.Zem_NombreDOS;
    case Traba::Largo:
        return palabras.Zem_LargoDOS;
    case Traba::Signo:
        return palabras.Zem_SignoDOS;
    case Traba::Ninguna:
        break;
    }
    return {};
}

QString TituloDe(Traba traba, Corredor corredor, const core::Palabras &palabras)
{
    if (traba == Traba::SinHerramienta)
        return palabras.Zem_Falta0;
    return corredor == Corredor::Wine ? palabras.Zem_NoWindows0 : palabras.Zem_NoDOS0;
}

} // namespace launch
