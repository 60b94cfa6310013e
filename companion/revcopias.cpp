// All files of the program directory, and which copy of them holds what they have lost.
#include "companion/copias.h"
#include "companion/perdidos.h"
#include "companion/revision.h"

#include "core/remiendos.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/paths.h"

#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// What several lines lead to and isn't there has gone elsewhere.
void revisaLugares(const Sesion &sesion, Revision &revision)
{
    const QString fichero = u"Zembro.emu"_s;
    for (const Perdido &perdido : LugaresPerdidos(TextoDelPrograma(sesion.M, fichero)))
        revision.push_back(
            { u"lost-place"_s, fichero, perdido.primera, {}, TextoDe(perdido, sesion.palabras) });
}

// What ends in CR CR LF, or was cut between the two, is read with a CR behind its text.
void revisaRetornos(const Sesion &sesion, const QString &fichero, Revision &revision)
{
    const std::vector<size_t> lineas = core::LineasConRetorno(TextoDelPrograma(sesion.M, fichero));
    if (!lineas.empty())
        revision.push_back({ u"stray-return"_s, fichero, static_cast<int>(lineas.front()) + 1, {},
            sesion.palabras.Zbo_Retornos.arg(lineas.size()) });
}

bool estaVacio(const QString &texto)
{
    return texto.trimmed().isEmpty();
}

// Whether nothing stands in a file, whichever comes of it.
bool revisaVacio(const Sesion &sesion, const QString &fichero, Revision &revision)
{
    const QString texto = TextoDelPrograma(sesion.M, fichero);
    if (estaVacio(texto))
        revision.push_back({ u"empty-file"_s, fichero, 0, {}, sesion.palabras.Zbo_FichVacio });
    return SeReponeDeUnaCopia(fichero, texto);
}

} // namespace

bool SeReponeDeUnaCopia(const QString &fichero, const QString &texto)
{
    const QStringList copias = estaVacio(texto) ? Copias() : QStringList();
    return std::ranges::any_of(copias, [&](const QString &copia) {
        try {
            return !estaVacio(host::decodeText(FicherosDeCopia(copia).value(fichero)).text);
        } catch (const host::Failure &) {
            return false; // one that can't be read is no help
        }
    });
}

void RevisaFicheros(Sesion &sesion, Revision &revision)
{
    const Palabras &palabras = sesion.palabras;
    for (const QString &fichero : { u"Zembro.emu"_s, u"Zembro.sye"_s, u"Zembro.rom"_s, u"Zembro.cfg"_s }) {
        try {
            revisaRetornos(sesion, fichero, revision);
        } catch (const host::Failure &) {
            continue; // a finding of what follows
        }
    }
    for (const QString &fichero : { u"Zembro.emu"_s, u"Zembro.sye"_s })
        Revisa(revision, fichero, palabras, [&] {
            if (!revisaVacio(sesion, fichero, revision))
                RevisaCatalogo(sesion, fichero, revision);
        });
    Revisa(revision, u"Zembro.emu"_s, palabras, [&] { revisaLugares(sesion, revision); });
    Revisa(revision, u"Zembro.rom"_s, palabras, [&] {
        if (!revisaVacio(sesion, u"Zembro.rom"_s, revision))
            RevisaNotas(sesion, revision);
    });
    Revisa(revision, u"Zembro.cfg"_s, palabras, [&] { RevisaAjustes(sesion, revision); });
    Revisa(revision, u"LNG"_s, palabras, [&] { RevisaIdiomas(sesion, revision); });
}

QString SenaDe(const Hallazgo &hallazgo)
{
    return QStringList { hallazgo.clase, hallazgo.fichero, hallazgo.pareja, hallazgo.texto }.join(u'\n');
}

namespace {

// What is found where something was lost; what was added, or lies elsewhere, no copy brings back.
bool esDeAlgoPerdido(const Hallazgo &hallazgo)
{
    static const QSet<QString> clases { u"block-without-end"_s, u"missing-mark"_s, u"missing-line"_s,
        u"line-without-emulator"_s, u"line-ahead-of-systems"_s, u"system-without-emulator"_s,
        u"malformed-line"_s, u"cut-record"_s, u"open-quotes"_s, u"no-name"_s, u"system-without-notes"_s,
        u"notes-without-name"_s, u"no-settings"_s, u"setting-missing"_s, u"setting-out-of-place"_s,
        u"setting-out-of-range"_s, u"unreadable-settings"_s, u"unreadable"_s, u"empty-file"_s };
    return !hallazgo.seRemienda && hallazgo.copia.isEmpty() && clases.contains(hallazgo.clase);
}

// The findings of a file if it were that of a copy.
QSet<QString> hallados(Sesion &sesion, const QString &fichero, const QString &texto)
{
    sesion.M.Ficheros.readInstead(host::programFile(fichero), texto);
    Revision revision;
    RevisaFicheros(sesion, revision);
    QSet<QString> senas;
    for (const Hallazgo &hallazgo : revision) {
        if (hallazgo.fichero == fichero)
            senas += SenaDe(hallazgo);
    }
    return senas;
}

} // namespace

void MarcaCopias(Sesion &sesion, Revision &revision)
{
    if (std::ranges::none_of(revision, esDeAlgoPerdido))
        return;
    for (const QString &copia : Copias()) {
        Ficheros ficheros;
        try {
            ficheros = FicherosDeCopia(copia);
        } catch (const host::Failure &) {
            continue;
        }
        for (auto fichero = ficheros.cbegin(); fichero != ficheros.cend(); ++fichero) {
            const auto esSuyo = [&](const Hallazgo &hallazgo) {
                return hallazgo.fichero == fichero.key() && esDeAlgoPerdido(hallazgo);
            };
            if (std::ranges::none_of(revision, esSuyo))
                continue;
            const QSet<QString> senas =
                hallados(sesion, fichero.key(), host::decodeText(fichero.value()).text);
            for (Hallazgo &hallazgo : revision) {
                if (esSuyo(hallazgo) && !senas.contains(SenaDe(hallazgo)))
                    hallazgo.copia = copia;
            }
        }
    }
}

} // namespace companion
