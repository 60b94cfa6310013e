// Notes and parameters written one after the other, against a simple picture of what should stand in the
// file.
#include "entrada.h"
#include "mundo.h"
#include "parametros.h"
#include "temas.h"

#include "core/lineas.h"
#include "core/nombres.h"
#include "core/notas.h"
#include "core/parrom.h"
#include "core/romelegida.h"

#include "host/encoding.h"
#include "host/letters.h"
#include "host/textsource.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace pelusa {

namespace {

constexpr int MaxPasos = 12;

struct Nota {
    QString clave;
    QString texto;
};

struct NotasDeSistema {
    QString sistema;
    QList<Nota> notas;
};

struct Cuaderno {
    QList<NotasDeSistema> sistemas; // in the file's order
    QList<core::Parametros> parametros;
};

QStringList lineasDe(const QString &texto)
{
    QStringList lineas;
    for (const core::LineaConFin &linea : core::EnLineas(texto))
        lineas << linea.linea.toString();
    return lineas;
}

core::Modulo &tablas()
{
    static core::Modulo M;
    return M;
}

void comparaNotas(const NotasDeSistema &serian)
{
    core::Modulo &M = tablas();
    M.Ficheros.closeAll();
    const int total = core::CargaNotas(M, serian.sistema);
    QStringList son;
    for (int i = 0; i < total; ++i)
        son << M.Nota_Clave(i) << M.Nota_Texto(i);
    QStringList seria;
    for (const Nota &nota : serian.notas)
        seria << nota.clave << nota.texto;
    ExigeIgual(son.join(u'\n'), seria.join(u'\n'), "the notes of each system are those that were written");
}

void comparaTodo(const QString &texto, const Cuaderno &cuaderno)
{
    PonFichero("Zembro.rom", host::encodeText({ texto }));
    for (const NotasDeSistema &sistema : cuaderno.sistemas)
        comparaNotas(sistema);
    for (const core::Parametros &unos : cuaderno.parametros) {
        const auto esDeLaClave = [&unos](const core::Parametros &otros) {
            return host::sameName(otros.clave, unos.clave);
        };
        const auto esLosMismos = [&](const core::Parametros &otros) {
            return esDeLaClave(otros) && host::sameName(otros.sistema, unos.sistema)
                && host::sameName(otros.emulador, unos.emulador);
        };
        host::TextSource delLanzamiento(texto);
        ExigeIgual(core::ParametrosDe(delLanzamiento, unos.clave),
            std::ranges::find_if(cuaderno.parametros, esDeLaClave)->texto,
            "the launch reads what was written");
        host::TextSource delDialogo(texto);
        ExigeIgual(core::ParametrosEscritos(delDialogo, unos.clave, unos.sistema, unos.emulador),
            std::ranges::find_if(cuaderno.parametros, esLosMismos)->texto,
            "the dialog reads what was written");
    }
}

void compara(const QString &texto, const Cuaderno &cuaderno)
{
    try {
        comparaTodo(texto, cuaderno);
    } catch (const Incumplido &incumplido) {
        throw Incumplido(std::string(incumplido.what()) + "\nin\n" + texto.toStdString());
    }
}

// The files to begin with: as it comes with the program, and two with a system behind the parameters.
QString principio(Entrada &entrada, Cuaderno &cuaderno)
{
    switch (entrada.Numero(3)) {
    case 0:
        return u"' comment\r\n[Fin]\r\nParametros especificos\r\n'\r\nfin\r\nfin,\"fin\"\r\n"_s;
    case 1:
        cuaderno.sistemas << NotasDeSistema { u"Behind"_s,
            { { u"A, B"_s, u"one"_s }, { u"C"_s, u"two"_s } } };
        return u"Parametros especificos\r\n'\r\nBehind\r\n\"A, B\",\"one\"\r\nC,\"two\"\r\n'\r\n[Fin]\r\n"_s;
    default:
        cuaderno.sistemas << NotasDeSistema { u"Empty, one"_s, {} }
                          << NotasDeSistema { u"Next"_s, { { u"X"_s, u"x"_s } } };
        return u"Parametros especificos\r\n'\r\nEmpty, one\r\n'\r\nNext\r\nX,\"x\"\r\n'\r\n[Fin]\r\n"_s;
    }
}

// A text of one line.
QString unaLinea(Entrada &entrada)
{
    return entrada.Texto().remove(u'\r').remove(u'\n');
}

class Pasos {
public:
    explicit Pasos(Entrada &entrada)
        : m_entrada(entrada)
        , m_texto(principio(entrada, m_cuaderno))
    {
    }

    void Uno();
    void Compara() const { compara(m_texto, m_cuaderno); }

private:
    void sistemaNuevo();
    void descripcionNueva();
    void descripcionCambiada();
    void parametrosNuevos();
    void parametrosCambiados();
    void sinSistema();

    NotasDeSistema *unSistema();
    core::Parametros unosParametros();

    Entrada &m_entrada;
    Cuaderno m_cuaderno;
    QString m_texto;
};

NotasDeSistema *Pasos::unSistema()
{
    const int cual = m_entrada.Numero(8);
    return m_cuaderno.sistemas.isEmpty() ? nullptr : &m_cuaderno.sistemas[cual % m_cuaderno.sistemas.size()];
}

// Only names that the screens take.
void Pasos::sistemaNuevo()
{
    const QString nombre = unaLinea(m_entrada);
    if (!core::SirveDeSistema(nombre) || lineasDe(m_texto).contains(nombre))
        return;
    m_texto = core::ConSistemaNuevo(m_texto, nombre);
    m_cuaderno.sistemas << NotasDeSistema { nombre, {} };
}

void Pasos::descripcionNueva()
{
    NotasDeSistema *sistema = unSistema();
    const QString clave = m_entrada.Nombre();
    const QString descripcion = unaLinea(m_entrada).remove(u'"');
    if (!sistema)
        return;
    const QString antes = m_texto;
    m_texto = core::ConDescripcionNueva(m_texto, sistema->sistema, clave, descripcion);
    if (core::SePuedeDescribir(clave) && core::EsDescripcionEntera(descripcion))
        sistema->notas.prepend({ host::upper(clave), descripcion });
    else
        ExigeIgual(m_texto, antes, "what can't be written changes nothing");
}

// The first note in the file with that text, whichever system it belongs to.
void Pasos::descripcionCambiada()
{
    const NotasDeSistema *sistema = unSistema();
    const int cual = m_entrada.Numero(8);
    const QString clave = m_entrada.Nombre();
    const QString descripcion = unaLinea(m_entrada).remove(u'"');
    if (!sistema || sistema->notas.isEmpty() || !core::SePuedeDescribir(clave)
        || !core::EsDescripcionEntera(descripcion))
        return;
    const QString anterior = sistema->notas[cual % sistema->notas.size()].texto;
    m_texto = core::ConDescripcionCambiada(m_texto, anterior, clave, descripcion);
    for (NotasDeSistema &uno : m_cuaderno.sistemas) {
        for (Nota &nota : uno.notas) {
            if (nota.texto == anterior) {
                nota = { host::upper(clave), descripcion };
                return;
            }
        }
    }
}

core::Parametros Pasos::unosParametros()
{
    core::Parametros parametros;
    parametros.clave = m_entrada.Nombre();
    const NotasDeSistema *sistema = unSistema();
    parametros.sistema = sistema ? sistema->sistema : u"None"_s;
    parametros.emulador = unaLinea(m_entrada);
    if (!core::SirveDeEmulador(parametros.emulador))
        parametros.emulador = u"Emu"_s;
    parametros.texto = unaLinea(m_entrada);
    if (!core::SonParametrosEnteros(parametros.texto))
        parametros.texto = u"-x"_s;
    return parametros;
}

void Pasos::parametrosNuevos()
{
    core::Parametros nuevos = unosParametros();
    if (!core::SePuedeEscribir(nuevos.clave))
        return;
    m_texto = core::ConParametrosNuevos(m_texto, nuevos);
    nuevos.texto = ParametrosLeidos(nuevos.texto);
    m_cuaderno.parametros.prepend(nuevos);
}

void Pasos::parametrosCambiados()
{
    core::Parametros nuevos = unosParametros();
    const int cual = m_entrada.Numero(8);
    if (m_cuaderno.parametros.isEmpty())
        return;
    nuevos.clave = m_cuaderno.parametros[cual % m_cuaderno.parametros.size()].clave;
    m_texto = core::ConParametrosCambiados(m_texto, nuevos);
    const bool seVan = nuevos.texto.isEmpty();
    nuevos.texto = ParametrosLeidos(nuevos.texto);
    QList<core::Parametros> quedan;
    for (const core::Parametros &unos : std::as_const(m_cuaderno.parametros)) {
        const bool propios = host::sameName(unos.clave, nuevos.clave);
        if (!propios)
            quedan << unos;
        else if (!seVan)
            quedan << nuevos;
    }
    m_cuaderno.parametros = quedan;
}

void Pasos::sinSistema()
{
    const NotasDeSistema *sistema = unSistema();
    if (!sistema)
        return;
    const QString nombre = sistema->sistema;
    m_texto = core::SinNotasDeSistema(core::SinParametrosDeSistema(m_texto, nombre), nombre);
    m_cuaderno.sistemas.removeIf([&nombre](const NotasDeSistema &uno) { return uno.sistema == nombre; });
    m_cuaderno.parametros.removeIf(
        [&nombre](const core::Parametros &unos) { return host::sameName(unos.sistema, nombre); });
}

void Pasos::Uno()
{
    switch (m_entrada.Numero(6)) {
    case 0:
        return sistemaNuevo();
    case 1:
        return descripcionNueva();
    case 2:
        return descripcionCambiada();
    case 3:
        return parametrosNuevos();
    case 4:
        return parametrosCambiados();
    default:
        return sinSistema();
    }
}

} // namespace

void probarAnotaciones(Bytes bytes)
{
    Entrada entrada(bytes);
    Pasos pasos(entrada);
    pasos.Compara();
    for (int i = 0; i < MaxPasos && !entrada.Acabada(); ++i) {
        pasos.Uno();
        pasos.Compara();
    }
}

} // namespace pelusa
