// Zembro.emu and Zembro.sye: lines that nobody reads, or that give another one's value.
#include "companion/revision.h"

#include "core/bloques.h"
#include "core/catalogo.h"
#include "core/lineas.h"
#include "core/remiendos.h"

#include "host/letters.h"
#include "host/paths.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

constexpr QStringView ClavesExigidas[] = { u"EXE", u"XDI", u"ROM", u"IMG" }; // of an emulator
constexpr QStringView Claves[] = { u"EXE", u"XDI", u"ROM", u"IMG", u"PAR1", u"PAR2", u"WEB1", u"WEB2" };
constexpr qsizetype LetrasDeExtension = 5; // "*." and three

// The key that the reader sees at the beginning of a line; empty for none.
QStringView claveDe(QStringView linea)
{
    const auto suya =
        std::ranges::find_if(Claves, [&](QStringView clave) { return linea.startsWith(clave); });
    return suya == std::end(Claves) ? QStringView() : *suya;
}

class RevisorDeCatalogo {
public:
    RevisorDeCatalogo(const Sesion &sesion, const QString &fichero, Revision &revision)
        : m_palabras(sesion.palabras)
        , m_fichero(fichero)
        , m_deConfigurados(fichero == u"Zembro.emu")
        , m_revision(revision)
    {
    }

    void Linea(const QString &linea);
    void Fin() { acabaSistema(); }

private:
    void halla(const QString &clase, const QString &dicho, int linea = 0)
    {
        m_revision.push_back({ clase, m_fichero, linea > 0 ? linea : m_numero, {}, dicho });
    }
    void sistema(const QString &nombre);
    void emulador(const QString &nombre);
    void extension(const QString &linea);
    void valor(QStringView clave, const QString &linea);
    void acabaEmulador();
    void acabaSistema();
    void nombre(const QString &nombre, QSet<QString> &vistos);

    const Palabras &m_palabras;
    const QString m_fichero;
    const bool m_deConfigurados;
    Revision &m_revision;

    int m_numero = 0;
    int m_sistemas = 0;
    int m_emuladores = 0; // of the system
    int m_lineaDeSistema = 0;
    int m_lineaDeEmulador = 0;
    QString m_sistema;
    QString m_emulador;
    QSet<QString> m_nombresDeSistemas;
    QSet<QString> m_nombresDeEmuladores;
    QSet<QString> m_clavesDelEmulador;
    bool m_cortado = false; // the reader has stopped
};

void RevisorDeCatalogo::Linea(const QString &linea)
{
    ++m_numero;
    if (linea.trimmed().isEmpty() || linea.startsWith(u'\'') || linea.startsWith(u'['))
        return;
    if (!core::EsDelCatalogo(linea))
        return halla(u"unread-line"_s, m_palabras.Zbo_NoLeida.arg(linea));
    if (m_sistemas == 0 && !linea.startsWith(u'-')) {
        if (!m_cortado)
            halla(u"line-ahead-of-systems"_s, m_palabras.Zbo_Delante.arg(linea));
        m_cortado = true;
        return;
    }
    if (linea.startsWith(u'-'))
        sistema(linea.sliced(1));
    else if (linea.startsWith(u'+'))
        emulador(linea.sliced(1));
    else if (linea.startsWith(u"*."))
        extension(linea);
    else
        valor(claveDe(linea), linea);
}

void RevisorDeCatalogo::nombre(const QString &nombre, QSet<QString> &vistos)
{
    if (nombre.trimmed().isEmpty())
        halla(u"no-name"_s, m_palabras.Zbo_SinNombre);
    else if (vistos.contains(host::upper(nombre)))
        halla(u"name-twice"_s, m_palabras.Zbo_Repetido.arg(nombre));
    vistos.insert(host::upper(nombre));
}

void RevisorDeCatalogo::sistema(const QString &nuevo)
{
    acabaSistema();
    if (++m_sistemas == core::MaxSistemas + 1)
        halla(u"too-many"_s, m_palabras.Zbo_Demasiados.arg(nuevo));
    m_sistema = nuevo;
    m_lineaDeSistema = m_numero;
    m_emuladores = 0;
    m_nombresDeEmuladores.clear();
    nombre(nuevo, m_nombresDeSistemas);
}

void RevisorDeCatalogo::emulador(const QString &nuevo)
{
    acabaEmulador();
    if (++m_emuladores == core::MaxSistemas)
        halla(u"too-many"_s, m_palabras.Zbo_Demasiados.arg(nuevo));
    m_emulador = nuevo;
    m_lineaDeEmulador = m_numero;
    nombre(nuevo, m_nombresDeEmuladores);
}

void RevisorDeCatalogo::extension(const QString &linea)
{
    const QString letras = linea.sliced(2);
    if (linea.size() > LetrasDeExtension)
        halla(u"long-extension"_s, m_palabras.Zbo_ExtLarga.arg(linea));
    else if (letras != host::upper(letras) || letras != letras.trimmed() || letras.isEmpty())
        halla(u"useless-extension"_s, m_palabras.Zbo_ExtMala.arg(linea));
    if (m_emuladores > 0)
        halla(u"extension-behind-emulator"_s, m_palabras.Zbo_ExtDetras.arg(linea));
}

void RevisorDeCatalogo::valor(QStringView clave, const QString &linea)
{
    if (linea.size() <= clave.size() || linea[clave.size()] != u'=')
        halla(u"malformed-line"_s, m_palabras.Zbo_SinIgual.arg(clave, linea));
    if (clave == u"WEB1")
        return;
    if (m_emuladores == 0)
        return halla(u"line-without-emulator"_s, m_palabras.Zbo_SinMas.arg(linea));
    if (m_clavesDelEmulador.contains(clave.toString()))
        halla(u"line-twice"_s, m_palabras.Zbo_DosLineas.arg(linea, clave, m_emulador));
    m_clavesDelEmulador.insert(clave.toString());
    if (clave.startsWith(u"PAR") && linea.count(u'"') % 2 != 0)
        halla(u"open-quotes"_s, m_palabras.Zbo_ParComillas.arg(linea));
    const QString ruta = linea.mid(clave.size() + 1);
    if (clave != u"ROM" && clave != u"IMG")
        return;
    if (core::SobranBlancos(ruta, LoQueHayEn))
        halla(u"blanks-behind-path"_s, m_palabras.Zbo_BlancosRuta.arg(linea));
    else if (ruta != core::ConSeparadorFinal(ruta, LoQueHayEn))
        halla(u"no-closing-separator"_s, m_palabras.Zbo_SinBarra.arg(linea));
}

void RevisorDeCatalogo::acabaEmulador()
{
    for (const QStringView clave : ClavesExigidas) {
        if (m_deConfigurados && m_emuladores > 0 && !m_clavesDelEmulador.contains(clave.toString()))
            halla(u"missing-line"_s, m_palabras.Zbo_FaltaLinea.arg(m_emulador, clave), m_lineaDeEmulador);
    }
    m_clavesDelEmulador.clear();
}

void RevisorDeCatalogo::acabaSistema()
{
    acabaEmulador();
    if (m_deConfigurados && m_sistemas > 0 && m_emuladores == 0)
        halla(u"system-without-emulator"_s, m_palabras.Zbo_SinEmulador.arg(m_sistema), m_lineaDeSistema);
}

} // namespace

void RevisaCatalogo(const Sesion &sesion, const QString &fichero, Revision &revision)
{
    const QString texto = TextoDelPrograma(sesion.M, fichero);
    const std::vector<core::LineaConFin> lineas = core::EnLineas(texto);
    RevisorDeCatalogo revisor(sesion, fichero, revision);
    for (const core::LineaConFin &linea : lineas)
        revisor.Linea(linea.linea.toString());
    revisor.Fin();
    for (const core::SinCierre &hueco : core::BloquesSinCierre(texto))
        revision.push_back({ u"block-without-end"_s, fichero, static_cast<int>(hueco.inicio) + 1, {},
            sesion.palabras.Zbo_SinCierre.arg(lineas[hueco.inicio].linea.sliced(1)) });
    if (!core::TieneMarcaFinal(texto))
        revision.push_back({ u"missing-mark"_s, fichero, static_cast<int>(lineas.size()), {},
            sesion.palabras.Zbo_SinMarca });
}

} // namespace companion
