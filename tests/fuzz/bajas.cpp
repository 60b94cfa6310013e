// Removals from the catalogue and from the database.
#include "core/bajas.h"
#include "catalogos.h"
#include "temas.h"

#include "core/altas.h"
#include "core/catalogo.h"
#include "core/lineas.h"

#include "host/encoding.h"
#include "host/failure.h"

using namespace Qt::StringLiterals;

namespace pelusa {

namespace {

// Of any file, whole.
void sistema(const QString &texto, const QString &nombre)
{
    const QString despues = core::SinSistema(texto, nombre);
    ExigeSoloQuita(texto, despues);
    Exige(
        LineasDe(despues) == LineasDeOtros(texto, nombre), "a system goes, and nothing else", texto, despues);
    ExigeIgual(core::SinSistema(despues, nombre), despues, "twice is the same");
    std::optional<Catalogo> seria = EsRegular(texto) ? Leido(texto) : std::nullopt;
    if (!seria)
        return;
    seria->removeIf([&](const SistemaLeido &uno) { return uno.emuladores[0].nombre == u'-' + nombre; });
    ExigeCatalogo(despues, *seria, "a system goes, and nothing else");
}

void sinEmulador(const QString &despues, Catalogo seria, qsizetype s, qsizetype e)
{
    seria[s].emuladores.remove(e);
    ExigeCatalogo(despues, seria, "an emulator goes, and nothing else");
}

void deLaBase(const QString &texto, const QString &nombre, const QString &emulador)
{
    const QString despues = core::SinEmuladorEnBase(texto, nombre, emulador);
    ExigeSoloQuita(texto, despues);
    ExigeOtrosComoEran(texto, despues, nombre);
    const std::optional<Catalogo> antes = EsRegular(texto) ? Leido(texto) : std::nullopt;
    const qsizetype s = antes ? SistemaDe(*antes, u'-' + nombre) : -1;
    const qsizetype e = s < 0 ? -1 : EmuladorDe((*antes)[s], u'+' + emulador);
    if (e < 0)
        return;
    // What only the catalogue has would stay behind the address.
    for (const QString &valor : (*antes)[s].emuladores[e].valores.first(6)) {
        if (!valor.isEmpty())
            return;
    }
    if (!(*antes)[s].emuladores[e].valores.last().isEmpty())
        sinEmulador(despues, *antes, s, e);
}

void lee(core::Modulo &M, const QString &texto)
{
    core::LectorDeCatalogo lector(M);
    for (const core::LineaConFin &linea : core::EnLineas(texto))
        lector.Linea(linea.linea.toString());
    M.TotalSistemas = M.Indice_Sistema + 1;
}

// By the tables of an older file: where that system has changed since, nothing goes.
void deLasTablas(Entrada &entrada, const QString &texto, int s, int e)
{
    core::Modulo M;
    try {
        lee(M, texto);
    } catch (const host::Failure &) {
        return;
    }
    const std::optional<Catalogo> antes = Leido(texto);
    if (!EsRegular(texto) || antes->isEmpty())
        return;
    s %= int(antes->size());
    const SistemaLeido &suyo = (*antes)[s];
    const QString nombre = suyo.emuladores[0].nombre.sliced(1);
    const QStringList nombres = NombresCon(u'-', texto);
    const QString tocado = entrada.Numero(2) == 0 ? QString() : nombres[entrada.Numero(int(nombres.size()))];
    const QString ahora =
        tocado.isNull() ? texto : core::ConEmuladorEnBase(texto, u'-' + tocado, u"\u00A0added meanwhile"_s);
    const std::optional<QString> sin = core::SinSistemaDeLaFila(M, s, ahora);
    Exige(sin.has_value() == (tocado.isNull() || tocado != nombre), "a changed system stays", ahora);
    if (sin)
        Exige(LineasDe(*sin) == LineasDeOtros(ahora, nombre), "a system goes, and nothing else", ahora, *sin);
    if (suyo.emuladores.size() < 2)
        return;
    e = 1 + e % int(suyo.emuladores.size() - 1);
    const std::optional<QString> sinUno = core::SinEmuladorDeLaFila(M, s, e, ahora);
    Exige(sinUno.has_value() == sin.has_value(), "a changed system keeps its emulators", ahora);
    if (!sinUno)
        return;
    ExigeSoloQuita(ahora, *sinUno, core::LineaDeCierre());
    ExigeOtrosComoEran(ahora, *sinUno, nombre);
    sinEmulador(*sinUno, *Leido(ahora), s, e);
}

// Of any file, each by itself.
void sueltas(const QString &texto, const QString &nombre, const QString &emulador, int total)
{
    const QString sinUnico = core::SinUnicoEmulador(texto, nombre);
    ExigeSoloQuita(texto, sinUnico, core::LineaDeCierre());
    ExigeOtrosComoEran(texto, sinUnico, nombre);
    const QString sinUltimo = core::SinUltimoEmulador(texto, nombre, total);
    ExigeSoloQuita(texto, sinUltimo);
    ExigeOtrosComoEran(texto, sinUltimo, nombre);
    const QString sinUno = core::SinEmulador(texto, emulador);
    ExigeSoloQuita(texto, sinUno);
    const std::optional<Catalogo> antes = Leido(texto);
    const qsizetype s = antes ? DueñoDe(*antes, u'+' + emulador) : -1;
    if (s < 0)
        return;
    // One behind its system's closing line stands in no block.
    const QString dueño = (*antes)[s].emuladores[0].nombre.sliced(1);
    if (!NombresCon(u'+', LineasDeOtros(texto, dueño).join(QString())).contains(emulador))
        ExigeOtrosComoEran(texto, sinUno, dueño);
}

} // namespace

void probarBajas(Bytes bytes)
{
    Entrada entrada(bytes);
    const int clase = entrada.Numero(4);
    const int cualSistema = entrada.Numero(64);
    const int cualEmulador = entrada.Numero(64);
    const QByteArray campo = entrada.Campo();
    Entrada pasos({ reinterpret_cast<const std::uint8_t *>(campo.constData()), std::size_t(campo.size()) });
    const QString texto = host::decodeText(entrada.Resto()).text;
    const QString nombre = NombresCon(u'-', texto).value(cualSistema, u"None"_s);
    const QString emulador = NombresCon(u'+', texto).value(cualEmulador, u"None"_s);
    switch (clase) {
    case 0:
        sistema(texto, nombre);
        break;
    case 1:
        deLaBase(texto, nombre, emulador);
        break;
    case 2:
        sueltas(texto, nombre, emulador, pasos.Numero(8));
        break;
    default:
        deLasTablas(pasos, texto, cualSistema, cualEmulador);
    }
}

} // namespace pelusa
