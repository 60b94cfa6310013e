// The language files: keys, the layout of their lines, lost blanks.
#include "companion/revision.h"

#include "core/idiomas.h"
#include "core/lineas.h"
#include "core/palabras.h"
#include "core/textos.h"

#include "host/failure.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// A name follows these two, and a question mark: their blank is part of the text.
const QStringList ConBlancoFinal { u"Msg_BorrarEmu1"_s, u"Msg_BorrarSis1"_s };

constexpr qsizetype MaxNombradas = 4; // of many keys that are missing

QStringList clavesPropias()
{
    QStringList claves;
    for (const core::ClaveDePalabra &clave : core::ClavesDePalabras())
        claves += clave.nombre.toString();
    for (const ClaveDePalabra &clave : ClavesDePalabras())
        claves += clave.nombre.toString();
    return claves;
}

QStringList clavesDeSiempre()
{
    QStringList claves;
    for (const core::ClaveDeTexto &clave : core::ClavesDeTexto())
        claves += clave.nombre.toString();
    return claves;
}

class RevisorDeIdioma {
public:
    RevisorDeIdioma(const Sesion &sesion, const QString &fichero, Revision &revision)
        : m_palabras(sesion.palabras)
        , m_fichero(fichero)
        , m_revision(revision)
    {
    }

    void Linea(const QString &linea);
    void Fin();

private:
    void halla(const QString &clase, const QString &dicho, int linea)
    {
        m_revision.push_back({ clase, m_fichero, linea, {}, dicho });
    }

    const Palabras &m_palabras;
    const QString m_fichero;
    Revision &m_revision;
    const QStringList m_deSiempre = clavesDeSiempre();
    const QStringList m_propias = clavesPropias();
    const QSet<QString> m_conocidas { [this] {
        QSet<QString> todas(m_deSiempre.begin(), m_deSiempre.end());
        return todas.unite(QSet<QString>(m_propias.begin(), m_propias.end()));
    }() };
    QSet<QString> m_claves;
    int m_numero = 0;
};

void RevisorDeIdioma::Linea(const QString &linea)
{
    ++m_numero;
    if (linea.startsWith(u'\''))
        return;
    QString dicho;
    try {
        dicho = core::TextoDeLinea(linea);
    } catch (const host::Failure &) {
        return halla(u"short-line"_s, m_palabras.Zbo_LineaCorta.arg(linea), m_numero);
    }
    QString clave = linea.left(core::AnchoClave);
    while (clave.endsWith(u'.'))
        clave.chop(1);
    if (!m_conocidas.contains(clave))
        return halla(u"unknown-key"_s, m_palabras.Zbo_ClaveAjena.arg(linea), m_numero);
    if (m_claves.contains(clave))
        halla(u"key-twice"_s, m_palabras.Zbo_ClaveDoble.arg(clave), m_numero);
    m_claves.insert(clave);
    // The reader cuts them off by their place alone.
    const bool abre = linea.sliced(core::AnchoClave).startsWith(u"=\"");
    if (abre != linea.endsWith(u'"'))
        halla(u"lost-quotes"_s, m_palabras.Zbo_SinComillas.arg(clave), m_numero);
    else if (ConBlancoFinal.contains(clave) && !dicho.endsWith(u' '))
        halla(u"lost-blank"_s, m_palabras.Zbo_SinBlanco.arg(clave), m_numero);
}

void RevisorDeIdioma::Fin()
{
    for (const QString &clave : m_deSiempre) {
        if (!m_claves.contains(clave))
            halla(u"missing-key"_s, m_palabras.Zbo_SinClave.arg(clave), m_numero);
    }
    QStringList faltan;
    for (const QString &clave : m_propias) {
        if (!m_claves.contains(clave))
            faltan += clave;
    }
    if (faltan.isEmpty())
        return;
    const QString resto = faltan.size() > MaxNombradas ? u", …"_s : QString();
    halla(u"missing-words"_s,
        m_palabras.Zbo_FaltanPal.arg(
            QString::number(faltan.size()), faltan.mid(0, MaxNombradas).join(u", "_s) + resto),
        m_numero);
}

} // namespace

void RevisaIdiomas(const Sesion &sesion, Revision &revision)
{
    const QStringList ficheros = core::FicherosDeIdioma();
    if (ficheros.isEmpty())
        revision.push_back({ u"no-language"_s, u"LNG"_s, 0, {}, sesion.palabras.Zbo_SinIdiomas });
    for (const QString &nombre : ficheros) {
        const QString fichero = u"LNG/"_s + nombre;
        Revisa(revision, fichero, sesion.palabras, [&] {
            RevisorDeIdioma revisor(sesion, fichero, revision);
            const QString texto = TextoDelPrograma(sesion.M, fichero);
            for (const core::LineaConFin &linea : core::EnLineas(texto))
                revisor.Linea(linea.linea.toString());
            revisor.Fin();
        });
    }
}

} // namespace companion
