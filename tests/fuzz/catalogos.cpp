#include "catalogos.h"

#include "tema.h"

#include "core/catalogo.h"
#include "core/lineas.h"

#include "host/failure.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace pelusa {

namespace {

constexpr QStringView Valores[] = { u"EXE", u"XDI", u"ROM", u"IMG", u"PAR1", u"PAR2", u"WEB2" };

bool esValor(QStringView linea)
{
    return std::ranges::any_of(Valores, [linea](QStringView clave) { return linea.startsWith(clave); });
}

bool seLee(QStringView linea)
{
    return esValor(linea) || linea.startsWith(u'-') || linea.startsWith(u'+') || linea.startsWith(u"*.")
        || linea.startsWith(u"WEB1");
}

core::Modulo &tablas()
{
    static core::Modulo M;
    return M;
}

QString enTexto(const Catalogo &catalogo)
{
    QStringList lineas;
    for (const SistemaLeido &sistema : catalogo) {
        lineas << sistema.emuladores.value(0).nombre << sistema.web1 << sistema.extensiones;
        for (const EmuladorLeido &emulador : sistema.emuladores)
            lineas << emulador.nombre << emulador.valores;
    }
    return lineas.join(u'\n');
}

EmuladorLeido emulador(const core::Modulo &M, int s, int e)
{
    return { M.Cat_Nombre(s, e),
        { M.Cat_EXE(s, e), M.Cat_XDI(s, e), M.Cat_ROM(s, e), M.Cat_IMG(s, e), M.Cat_PAR1(s, e),
            M.Cat_PAR2(s, e), M.Cat_WEB2(s, e) } };
}

QString conFin(const core::LineaConFin &linea)
{
    return linea.linea.toString() + (linea.fin.isEmpty() ? u"\r\n"_s : linea.fin.toString());
}

bool esParte(const QStringList &corta, const QStringList &larga)
{
    auto lugar = larga.begin();
    for (const QString &linea : corta) {
        lugar = std::find(lugar, larga.end(), linea);
        if (lugar == larga.end())
            return false;
        ++lugar;
    }
    return true;
}

} // namespace

std::optional<Catalogo> Leido(const QString &texto)
{
    core::Modulo &M = tablas();
    try {
        core::LectorDeCatalogo lector(M);
        for (const core::LineaConFin &linea : core::EnLineas(texto))
            lector.Linea(linea.linea.toString());
    } catch (const host::Failure &) {
        return {};
    }
    Catalogo catalogo;
    for (int s = 0; s <= M.Indice_Sistema; ++s) {
        SistemaLeido sistema { M.Cat_WEB1(s), {}, { emulador(M, s, 0) } };
        // Behind a system without emulators the next one's stand further back.
        for (int k = 0; k < core::MaxSistemas; ++k) {
            if (!M.Cat_EXT(s, k).isEmpty())
                sistema.extensiones << M.Cat_EXT(s, k);
        }
        for (int e = 1; e < core::MaxSistemas && !M.Cat_Nombre(s, e).isEmpty(); ++e)
            sistema.emuladores << emulador(M, s, e);
        catalogo << sistema;
    }
    return catalogo;
}

qsizetype SistemaDe(const Catalogo &catalogo, const QString &linea)
{
    const auto hallado = std::ranges::find_if(
        catalogo, [&linea](const SistemaLeido &sistema) { return sistema.emuladores[0].nombre == linea; });
    return hallado == catalogo.end() ? -1 : hallado - catalogo.begin();
}

qsizetype EmuladorDe(const SistemaLeido &sistema, const QString &linea)
{
    for (qsizetype e = 1; e < sistema.emuladores.size(); ++e) {
        if (sistema.emuladores[e].nombre == linea)
            return e;
    }
    return -1;
}

qsizetype DueñoDe(const Catalogo &catalogo, const QString &linea)
{
    for (qsizetype s = 0; s < catalogo.size(); ++s) {
        if (EmuladorDe(catalogo[s], linea) > 0)
            return s;
    }
    return -1;
}

void ExigeCatalogo(const QString &texto, const Catalogo &seria, const char *propiedad)
{
    const std::optional<Catalogo> es = Leido(texto);
    Exige(es.has_value(), "a changed catalogue can be read", texto);
    ExigeIgual(enTexto(*es), enTexto(seria), propiedad);
}

bool EsRegular(const QString &texto)
{
    QSet<QString> nombres;
    bool dentro = false;
    bool enCabeza = false;
    bool fin = false;
    int direcciones = 0;
    int emuladores = 0;
    for (const core::LineaConFin &linea : core::EnLineas(texto)) {
        const QStringView l = linea.linea;
        const bool abre = l.startsWith(u'-');
        const bool nombra = abre || l.startsWith(u'+');
        const bool deCabeza = l.startsWith(u"*.") || l.startsWith(u"WEB1");
        if ((fin && seLee(l)) || (!dentro && seLee(l) && !abre) || (dentro && abre))
            return false;
        if ((nombra && nombres.contains(l.toString())) || (deCabeza && !enCabeza))
            return false;
        if ((l.startsWith(u'+') && enCabeza) || (l.startsWith(u"*.") && direcciones == 0))
            return false;
        if ((esValor(l) && emuladores == 0) || (l.startsWith(u"WEB1") && ++direcciones > 1))
            return false;
        if ((l.startsWith(u"'-") && !dentro) || (l.startsWith(u'[') && (dentro || fin)))
            return false;
        if (nombra)
            nombres.insert(l.toString());
        fin = fin || l.startsWith(u'[');
        dentro = abre || (dentro && !l.startsWith(u"'-"));
        enCabeza = abre || (enCabeza && !l.startsWith(u'\'') && !l.startsWith(u'+'));
        emuladores = abre ? 0 : emuladores + (nombra ? 1 : 0);
        direcciones = abre ? 0 : direcciones;
    }
    return fin && !dentro;
}

QStringList LineasDe(const QString &texto)
{
    QStringList lineas;
    for (const core::LineaConFin &linea : core::EnLineas(texto))
        lineas << conFin(linea);
    return lineas;
}

QStringList LineasDeOtros(const QString &texto, const QString &sistema)
{
    QStringList lineas;
    bool dentro = false;
    bool cerrado = false;
    for (const core::LineaConFin &linea : core::EnLineas(texto)) {
        const QStringView l = linea.linea;
        if (cerrado || l.startsWith(u'-') || l.startsWith(u'['))
            dentro = l == u'-' + sistema;
        cerrado = l.startsWith(u"'-");
        if (!dentro)
            lineas << conFin(linea);
    }
    return lineas;
}

void ExigeSoloAñade(const QString &antes, const QString &despues)
{
    Exige(esParte(LineasDe(antes), LineasDe(despues)), "every old line stays, in its order", antes, despues);
}

void ExigeSoloQuita(const QString &antes, const QString &despues, const QString &nueva)
{
    const QStringList lineas = LineasDe(despues);
    const QStringList antiguas = LineasDe(antes);
    bool cierto = esParte(lineas, antiguas);
    for (qsizetype i = 0; !cierto && !nueva.isEmpty() && i < lineas.size(); ++i) {
        QStringList sinNueva = lineas;
        cierto = sinNueva.takeAt(i) == nueva + u"\r\n"_s && esParte(sinNueva, antiguas);
    }
    Exige(cierto, "no line comes up", antes, despues);
}

void ExigeOtrosComoEran(const QString &antes, const QString &despues, const QString &sistema)
{
    Exige(LineasDeOtros(antes, sistema) == LineasDeOtros(despues, sistema),
        "the lines of others are what they were", antes, despues);
}

QString UnaLinea(Entrada &entrada)
{
    return entrada.Texto().remove(u'\r').remove(u'\n');
}

QStringList NombresCon(QChar signo, const QString &texto)
{
    QStringList nombres;
    for (const core::LineaConFin &linea : core::EnLineas(texto)) {
        if (linea.linea.startsWith(signo))
            nombres << linea.linea.sliced(1).toString();
    }
    return nombres;
}

} // namespace pelusa
