// The settings: reading any file, and changes one after the other of a file that the program has written.
#include "entrada.h"
#include "mundo.h"
#include "temas.h"

#include "core/ajustes.h"
#include "core/lineas.h"
#include "core/modulo.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/letters.h"

using namespace Qt::StringLiterals;

namespace pelusa {

namespace {

constexpr int MaxCambios = 8;

void lectura(const QByteArray &bytes)
{
    PonFichero("Zembro.cfg", bytes);
    core::Modulo M;
    bool primera = false;
    const int vacio =
        Fallo({ host::PastEndOfFile }, "looking for the first run", [&] { primera = core::EsPrimeraVez(M); });
    Exige(vacio == 0 || host::decodeText(bytes).text.isEmpty(), "only an empty file fails so");
    M.Ficheros.closeAll();
    const QString texto = host::decodeText(bytes).text;
    Exige(!primera || texto.contains(core::MarcaVacio), "only the mark brings the first run");
    const int fallo = Fallo({ host::InvalidArgument, host::OutOfRange, host::PastEndOfFile },
        "reading the settings", [&] { core::LeeAjustes(M); });
    if (fallo != 0)
        return;
    const std::vector<core::LineaConFin> lineas = core::EnLineas(texto);
    const auto esFinal = [&](const QString &valor, size_t linea) {
        Exige(linea < lineas.size() && lineas[linea].linea.endsWith(valor), "a value ends its line", valor);
        Exige(!valor.contains(u'='), "a value holds no further sign", valor);
    };
    esFinal(M.UltimoSistema, 11);
    esFinal(M.UltimoEmulador, 12);
    esFinal(M.GuardarUltimo, 13);
    esFinal(M.TypeOfEditor, 14);
    esFinal(M.MsgEndDOS, 15);
    esFinal(M.LanguageFile, 16);
    esFinal(M.DebugMode, 17);
    QStringList filtros;
    for (int i = 0; !M.Filtros(i).isEmpty(); ++i)
        filtros << M.Filtros(i);
    ExigeIgual(M.FiltrosTexto, filtros.join(u','), "the text of the filters is all of them");
}

// What the settings should be after changes.
struct Ajustes {
    QString sistema = u"0"_s;
    QString emulador = u"0"_s;
    QString guardar = u"1"_s;
    QString editor = u"1"_s;
    QString fin = u"Finalizado"_s;
    QString idioma;
    QStringList filtros;
};

Ajustes leidos(const QString &texto)
{
    PonFichero("Zembro.cfg", host::encodeText({ texto }));
    core::Modulo M;
    Exige(!core::EsPrimeraVez(M), "a change doesn't bring the first run back", texto);
    core::LeeAjustes(M);
    return { M.UltimoSistema, M.UltimoEmulador, M.GuardarUltimo, M.TypeOfEditor, M.MsgEndDOS, M.LanguageFile,
        M.FiltrosTexto.split(u',') };
}

void compara(const Ajustes &son, const Ajustes &serian)
{
    const char *propiedad = "what was written is read back, and the other settings stay";
    ExigeIgual(son.sistema, serian.sistema, propiedad);
    ExigeIgual(son.emulador, serian.emulador, propiedad);
    ExigeIgual(son.guardar, serian.guardar, propiedad);
    ExigeIgual(son.editor, serian.editor, propiedad);
    ExigeIgual(son.fin, serian.fin, propiedad);
    ExigeIgual(son.idioma, serian.idioma, propiedad);
    ExigeIgual(son.filtros.join(u','), serian.filtros.join(u','), propiedad);
}

// A text of one line, as a text box has it.
QString enUnaLinea(QString texto)
{
    return texto.remove(u'\r').remove(u'\n');
}

struct Cambio {
    core::Ajuste ajuste;
    QStringList lineas;
};

Cambio unCambio(Entrada &entrada, Ajustes &seran)
{
    switch (entrada.Numero(5)) {
    case 0: {
        const int sistema = entrada.Numero(256);
        const int emulador = entrada.Numero(256) - 1;
        seran.sistema = QString::number(sistema);
        seran.emulador = QString::number(emulador);
        return { core::Ajuste::UltimaSeleccion, core::LineasDeUltimaSeleccion(sistema, emulador) };
    }
    case 1: {
        const int valor = entrada.Numero(2);
        seran.guardar = QString::number(valor);
        return { core::Ajuste::GuardarUltimo, { core::LineaDeGuardarUltimo(valor) } };
    }
    case 2: {
        const int valor = entrada.Numero(2);
        seran.editor = QString::number(valor);
        return { core::Ajuste::TypeOfEditor, { core::LineaDeEditor(valor) } };
    }
    case 3:
        seran.fin = enUnaLinea(entrada.Texto());
        if (!core::VuelveMsgEndDOS(seran.fin))
            seran.fin = u"Fin"_s;
        return { core::Ajuste::MsgEndDOS, { core::LineaDeMsgEndDOS(seran.fin) } };
    default:
        seran.idioma = host::upper(enUnaLinea(entrada.Nombre()).remove(u'=').remove(u',') + u".LNG"_s);
        return { core::Ajuste::LanguageFile, { core::LineaDeIdioma(seran.idioma) } };
    }
}

// A list that is taken at the save; an empty one is no list at the next start.
QString filtros(Entrada &entrada, Ajustes &seran)
{
    const QString texto = enUnaLinea(entrada.Texto());
    QStringList escritos;
    Fallo({ host::OutOfRange }, "parting the filters", [&] { escritos = core::FiltrosDeTexto(texto); });
    if (texto.isEmpty() || escritos.isEmpty() || !core::VuelvenFiltros(texto))
        return {};
    seran.filtros.clear();
    for (QString filtro : escritos) {
        while (filtro.endsWith(u' '))
            filtro.chop(1);
        seran.filtros << host::upper(filtro);
    }
    while (seran.filtros.last().isEmpty()) // blank names at the end are read as the end
        seran.filtros.removeLast();
    return texto;
}

void cambios(Entrada &entrada)
{
    Ajustes seran;
    seran.idioma = u"ZB-ESP.LNG"_s;
    QString texto = core::AjustesPorDefecto(seran.idioma);
    seran.filtros = leidos(texto).filtros;
    Exige(seran.filtros.size() == 19, "the filters are those of a first run");
    for (int i = 0; i < MaxCambios && !entrada.Acabada(); ++i) {
        if (entrada.Numero(4) == 0) {
            const QString nuevos = filtros(entrada, seran);
            if (!nuevos.isEmpty())
                texto = core::ConFiltros(texto, core::FiltrosDeTexto(nuevos));
        } else {
            const Cambio cambio = unCambio(entrada, seran);
            texto = core::ConAjuste(texto, cambio.ajuste, cambio.lineas);
            ExigeIgual(core::ConAjuste(texto, cambio.ajuste, cambio.lineas), texto, "twice is the same");
        }
        compara(leidos(texto), seran);
    }
}

// Of any file no line comes up that wasn't there, but the new ones.
void cualquiera(Entrada &entrada)
{
    Ajustes seran;
    const Cambio cambio = unCambio(entrada, seran);
    const QString texto = host::decodeText(entrada.Resto()).text;
    QStringList lineas = cambio.lineas;
    for (const core::LineaConFin &linea : core::EnLineas(texto))
        lineas << linea.linea.toString();
    const QString despues = core::ConAjuste(texto, cambio.ajuste, cambio.lineas);
    for (const core::LineaConFin &linea : core::EnLineas(despues))
        Exige(lineas.contains(linea.linea), "every line was there or is new", linea.linea.toString());
    const QString filtrado = core::ConFiltros(texto, { u"f"_s });
    const QString delante = texto.first(std::max<qsizetype>(texto.indexOf(u"[Filters]"), 0));
    Exige(delante.isEmpty() || filtrado.startsWith(delante), "what stands ahead stays", filtrado);
}

} // namespace

void probarAjustes(Bytes bytes)
{
    Entrada entrada(bytes);
    switch (entrada.Numero(3)) {
    case 0:
        lectura(entrada.Resto());
        break;
    case 1:
        cambios(entrada);
        break;
    default:
        cualquiera(entrada);
    }
}

} // namespace pelusa
