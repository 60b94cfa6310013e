// The files of the program directory.
#include "companion/revision.h"

#include "core/ajustes.h"
#include "core/bloques.h"
#include "core/catalogo.h"
#include "core/idiomas.h"
#include "core/lineas.h"
#include "core/notas.h"
#include "core/remiendos.h"
#include "core/romelegida.h"
#include "core/textos.h"

#include "host/encoding.h"
#include "host/letters.h"
#include "host/numberedfiles.h"
#include "host/paths.h"
#include "host/textsource.h"

#include <QSet>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

int numeroDe(size_t indice)
{
    return static_cast<int>(indice) + 1;
}

QString valorDe(QStringView linea)
{
    return linea.sliced(1).toString();
}

qsizetype camposDe(const QString &linea)
{
    host::TextSource fuente(linea);
    qsizetype campos = 0;
    while (!fuente.atEnd()) {
        fuente.readField();
        ++campos;
    }
    return campos;
}

// A name that stands twice, in any case, is found once.
class Repetidos {
public:
    bool EsOtra(const QString &nombre)
    {
        const QString mayus = host::upper(nombre);
        const bool estaba = m_vistos.contains(mayus);
        m_vistos.insert(mayus);
        return estaba;
    }
    void Empieza() { m_vistos.clear(); }

private:
    QSet<QString> m_vistos;
};

bool seLee(QStringView linea)
{
    return linea.trimmed().isEmpty() || linea.startsWith(u'\'') || linea.startsWith(u'[')
        || core::EsDelCatalogo(linea);
}

} // namespace

QString TextoDelPrograma(const QString &fichero)
{
    return host::decodeText(host::readBytes(host::programFile(fichero))).text;
}

QStringList SistemasConocidos()
{
    QStringList nombres;
    for (const QString &fichero : { u"Zembro.emu"_s, u"Zembro.sye"_s }) {
        QString texto;
        try {
            texto = TextoDelPrograma(fichero);
        } catch (const host::Failure &) {
            continue; // a finding of its own
        }
        for (const core::LineaConFin &linea : core::EnLineas(texto)) {
            if (linea.linea.startsWith(u'-'))
                nombres += valorDe(linea.linea);
        }
    }
    nombres.removeDuplicates();
    return nombres;
}

void RevisaCatalogo(const Sesion &sesion, const QString &fichero, Revision &revision)
{
    const Palabras &palabras = sesion.palabras;
    const QString texto = TextoDelPrograma(fichero);
    const std::vector<core::LineaConFin> lineas = core::EnLineas(texto);
    const auto halla = [&](const QString &clase, size_t linea, const QString &dicho) {
        revision.push_back({ clase, fichero, numeroDe(linea), {}, dicho });
    };
    Repetidos sistemas;
    Repetidos emuladores;
    for (size_t i = 0; i < lineas.size(); ++i) {
        const QStringView linea = lineas[i].linea;
        if (!seLee(linea))
            halla(u"unread-line"_s, i, palabras.Zbo_NoLeida.arg(linea));
        if (linea.startsWith(u'-')) {
            emuladores.Empieza();
            if (sistemas.EsOtra(valorDe(linea)))
                halla(u"name-twice"_s, i, palabras.Zbo_Repetido.arg(valorDe(linea)));
        }
        if (linea.startsWith(u'+') && emuladores.EsOtra(valorDe(linea)))
            halla(u"name-twice"_s, i, palabras.Zbo_Repetido.arg(valorDe(linea)));
        if (linea.startsWith(u"*.") && linea.size() > 5)
            halla(u"long-extension"_s, i, palabras.Zbo_ExtLarga.arg(linea));
    }
    for (const core::SinCierre &hueco : core::BloquesSinCierre(texto))
        halla(u"block-without-end"_s, hueco.inicio,
            palabras.Zbo_SinCierre.arg(valorDe(lineas[hueco.inicio].linea)));
    if (!core::TieneMarcaFinal(texto))
        revision.push_back({ u"missing-mark"_s, fichero, 0, {}, palabras.Zbo_SinMarca });
}

namespace {

// Whether the file of a note's key is in a directory of the system's emulators; true where none can be
// listed.
class Ficheros {
public:
    Ficheros(const core::Modulo &M, const QString &sistema)
    {
        for (const Pareja &pareja : Parejas(M)) {
            if (pareja.nombreSistema != sistema)
                continue;
            try {
                for (const QString &nombre : host::listFilesAndDirectories(DirectorioDeJuegos(M, pareja)))
                    m_nombres.insert(host::upper(nombre));
                m_hay = true;
            } catch (const host::Failure &) {
                m_todos = false; // told of the pair
            }
        }
    }

    bool Falta(const QString &clave) const
    {
        const QString mayus = host::upper(clave);
        return m_hay && m_todos && !m_nombres.contains(mayus) && !m_nombres.contains(mayus + u".ZIP"_s);
    }

private:
    QSet<QString> m_nombres;
    bool m_hay = false;
    bool m_todos = true;
};

// The records of one system's notes, up to its apostrophe.
void revisaSistema(const Sesion &sesion, const std::vector<core::LineaConFin> &lineas, size_t desde,
    const QString &sistema, Revision &revision)
{
    const QString fichero = u"Zembro.rom"_s;
    const Ficheros ficheros(sesion.M, sistema);
    Repetidos claves;
    for (size_t i = desde; i < lineas.size(); ++i) {
        const QString linea = lineas[i].linea.toString();
        if (linea == u"'" || linea.startsWith(u'['))
            return;
        const auto halla = [&](const QString &clase, const QString &dicho) {
            revision.push_back({ clase, fichero, numeroDe(i), {}, dicho });
        };
        if (linea.isEmpty())
            continue;
        if (camposDe(linea) != 2) {
            halla(u"cut-record"_s, sesion.palabras.Zbo_Cortado.arg(linea));
            continue;
        }
        const QString clave = host::TextSource(linea).readField();
        if (claves.EsOtra(clave))
            halla(u"name-twice"_s, sesion.palabras.Zbo_Repetido.arg(clave));
        else if (ficheros.Falta(clave))
            halla(u"note-without-file"_s, sesion.palabras.Zbo_SinFichero.arg(clave));
    }
}

constexpr qsizetype CamposDeParametros = 4;

void revisaParametros(const Sesion &sesion, const std::vector<core::LineaConFin> &lineas, Revision &revision)
{
    const QString fichero = u"Zembro.rom"_s;
    const auto cabecera = std::ranges::find_if(lineas,
        [](const core::LineaConFin &linea) { return linea.linea.startsWith(u"Parametros especificos"); });
    if (cabecera == lineas.end()) {
        revision.push_back({ u"missing-mark"_s, fichero, 0, {}, sesion.palabras.Zbo_SinSeccion });
        return;
    }
    QSet<QString> anotadas;
    for (auto linea = lineas.begin(); linea != cabecera; ++linea) {
        const QString clave = linea->linea.toString().section(u',', 0, 0);
        anotadas.insert(host::upper(clave));
    }
    const auto sinNotas = std::make_unique<core::Modulo>();
    for (size_t i = static_cast<size_t>(cabecera - lineas.begin()) + 1; i < lineas.size(); ++i) {
        const QString linea = lineas[i].linea.toString();
        if (linea.startsWith(u'\''))
            return;
        const QString clave =
            host::TextSource(linea).atEnd() ? QString() : host::TextSource(linea).readField();
        if (!linea.isEmpty() && camposDe(linea) != CamposDeParametros)
            revision.push_back(
                { u"cut-record"_s, fichero, numeroDe(i), {}, sesion.palabras.Zbo_Cortado.arg(linea) });
        else if (!linea.isEmpty() && !anotadas.contains(host::upper(clave))
            && !core::SeEncuentranSusParametros(*sinNotas, clave))
            revision.push_back({ u"lost-parameters"_s, fichero, numeroDe(i), {},
                sesion.palabras.Zbo_ParPerdidos.arg(clave) });
    }
    revision.push_back({ u"missing-mark"_s, fichero, 0, {}, sesion.palabras.Zbo_SinSeccion });
}

} // namespace

void RevisaNotas(Sesion &sesion, Revision &revision)
{
    const QString fichero = u"Zembro.rom"_s;
    const QString texto = TextoDelPrograma(fichero);
    const std::vector<core::LineaConFin> lineas = core::EnLineas(texto);
    const QStringList conocidos = SistemasConocidos();
    for (const core::SinCierre &hueco : core::NotasSinCierre(texto, conocidos))
        revision.push_back({ u"block-without-end"_s, fichero, numeroDe(hueco.inicio), {},
            sesion.palabras.Zbo_SinApostrofo.arg(lineas[hueco.inicio].linea) });
    QStringList vistos;
    for (const Pareja &pareja : Parejas(sesion.M)) {
        if (vistos.contains(pareja.nombreSistema))
            continue;
        vistos += pareja.nombreSistema;
        const auto suya = std::ranges::find_if(
            lineas, [&](const core::LineaConFin &linea) { return linea.linea == pareja.nombreSistema; });
        if (suya == lineas.end())
            revision.push_back({ u"system-without-notes"_s, fichero, 0, {},
                sesion.palabras.Zbo_SinNotas.arg(pareja.nombreSistema) });
        else
            revisaSistema(sesion, lineas, static_cast<size_t>(suya - lineas.begin()) + 1,
                pareja.nombreSistema, revision);
    }
    revisaParametros(sesion, lineas, revision);
}

void RevisaAjustes(Sesion &sesion, Revision &revision)
{
    const QString fichero = u"Zembro.cfg"_s;
    core::Modulo &M = sesion.M;
    const auto halla = [&](int linea, const QString &valor) {
        revision.push_back(
            { u"setting-out-of-range"_s, fichero, linea, {}, sesion.palabras.Zbo_MalAjuste.arg(valor) });
    };
    M.Ficheros.closeAll();
    if (core::EsPrimeraVez(M))
        return;
    try {
        core::LeeAjustes(M);
    } catch (const host::Failure &fallo) {
        M.Ficheros.closeAll();
        revision.push_back({ u"unreadable-settings"_s, fichero, 0, {}, TextoDe(fallo) });
        return;
    }
    const auto fuera = [](const QString &valor, int maximo) {
        bool bien = false;
        const int numero = valor.toInt(&bien);
        return !bien || numero < 0 || numero > maximo;
    };
    if (fuera(M.UltimoSistema, std::max(M.Indice_Sistema, 0)))
        halla(12, M.UltimoSistema);
    if (M.UltimoEmulador.toInt() != core::NingunEmulador && fuera(M.UltimoEmulador, core::MaxSistemas))
        halla(13, M.UltimoEmulador);
    if (fuera(M.GuardarUltimo, 1))
        halla(14, M.GuardarUltimo);
    if (fuera(M.TypeOfEditor, 1))
        halla(15, M.TypeOfEditor);
    if (!host::exists(host::programFile(u"LNG/"_s + M.LanguageFile)))
        halla(17, M.LanguageFile);
    if (fuera(M.DebugMode, 1))
        halla(18, M.DebugMode);
}

namespace {

// A name follows these two, and a question mark: their blank is part of the text.
const QStringList ConBlancoFinal { u"Msg_BorrarEmu1"_s, u"Msg_BorrarSis1"_s };

void revisaIdioma(const Sesion &sesion, const QString &fichero, Revision &revision)
{
    const QString texto = TextoDelPrograma(fichero);
    const std::vector<core::LineaConFin> lineas = core::EnLineas(texto);
    QSet<QString> claves;
    for (size_t i = 0; i < lineas.size(); ++i) {
        const QString linea = lineas[i].linea.toString();
        if (linea.startsWith(u'\''))
            continue;
        try {
            const QString dicho = core::TextoDeLinea(linea);
            QString clave = linea.left(core::AnchoClave);
            while (clave.endsWith(u'.'))
                clave.chop(1);
            claves.insert(clave);
            if (ConBlancoFinal.contains(clave) && !dicho.endsWith(u' '))
                revision.push_back(
                    { u"lost-blank"_s, fichero, numeroDe(i), {}, sesion.palabras.Zbo_SinBlanco.arg(clave) });
        } catch (const host::Failure &) {
            revision.push_back(
                { u"short-line"_s, fichero, numeroDe(i), {}, sesion.palabras.Zbo_LineaCorta.arg(linea) });
        }
    }
    for (const core::ClaveDeTexto &clave : core::ClavesDeTexto()) {
        if (!claves.contains(clave.nombre.toString()))
            revision.push_back(
                { u"missing-key"_s, fichero, 0, {}, sesion.palabras.Zbo_SinClave.arg(clave.nombre) });
    }
}

} // namespace

void RevisaIdiomas(const Sesion &sesion, Revision &revision)
{
    for (const QString &fichero : core::FicherosDeIdioma())
        revisaIdioma(sesion, u"LNG/"_s + fichero, revision);
}

std::vector<Remiendo> Remiendos()
{
    const auto catalogo = [](const QString &texto) {
        return core::ConMarcaFinal(core::ConBloquesCerrados(texto));
    };
    const auto notas = [](const QString &texto) {
        QString resultado = core::ConNotasCerradas(texto, SistemasConocidos());
        const auto M = core::CatalogoDe(TextoDelPrograma(u"Zembro.emu"_s));
        for (int s = 0; s <= M->Indice_Sistema; ++s) {
            const QString sistema = core::Valor(M->Cat_Nombre(s, 0), 1);
            const std::vector<core::LineaConFin> lineas = core::EnLineas(resultado);
            const bool esta = std::ranges::any_of(
                lineas, [&](const core::LineaConFin &linea) { return linea.linea == sistema; });
            if (!esta)
                resultado = core::ConSistemaNuevo(resultado, sistema);
        }
        return resultado;
    };
    return { { u"Zembro.emu"_s, catalogo }, { u"Zembro.sye"_s, catalogo }, { u"Zembro.rom"_s, notas } };
}

} // namespace companion
