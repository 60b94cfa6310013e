// The captures of the pairs that the catalogue configures.
#include "companion/gifs.h"
#include "companion/revision.h"

#include "core/catalogo.h"

#include "host/paths.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

class RevisorDeCapturas {
public:
    RevisorDeCapturas(const Sesion &sesion, const Pareja &pareja, Revision &revision)
        : m_palabras(sesion.palabras)
        , m_directorio(DirectorioDeCapturas(sesion.M, pareja))
        , m_pareja(pareja.nombreSistema + u" / "_s + pareja.nombreEmulador)
        , m_revision(revision)
    {
    }

    void Mira(const GifsDeJuegos &gifs)
    {
        for (const GifsDeJuegos::Malo &malo : gifs.malos)
            halla(ClaseDe(malo.estado), malo.nombre, TextoDe(malo.estado, malo.nombre, m_palabras));
        for (const GifsDeJuegos::Iguales &par : gifs.iguales)
            halla(u"capture-twice"_s, par.otro, m_palabras.Zbo_CapIguales.arg(par.uno, par.otro, par.seVe));
        for (const GifSuelto &suelto : gifs.sueltos)
            Suelto(suelto);
    }

private:
    void halla(const QString &clase, const QString &nombre, const QString &dicho)
    {
        m_revision.push_back({ clase, m_directorio + nombre, 0, m_pareja, dicho });
    }
    void Suelto(const GifSuelto &suelto)
    {
        if (suelto.captura.isEmpty())
            halla(u"capture-without-game"_s, suelto.nombre, m_palabras.Zbo_CapturaSola.arg(suelto.nombre));
        else if (suelto.hace)
            halla(u"capture-spelling"_s, suelto.nombre,
                m_palabras.Zbo_CapturaMal.arg(suelto.nombre, suelto.captura));
        else
            halla(u"capture-unused"_s, suelto.nombre,
                m_palabras.Zbo_CapSobra.arg(suelto.nombre, suelto.captura));
    }

    const Palabras &m_palabras;
    const QString m_directorio;
    const QString m_pareja;
    Revision &m_revision;
};

} // namespace

void RevisaCapturas(
    Sesion &sesion, const std::vector<Pareja> &parejas, const LineasDelCatalogo &lineas, Revision &revision)
{
    QSet<QString> vistos;
    for (const Pareja &pareja : parejas) {
        const LineasDeEmulador suyas = lineas.De(pareja.sistema, pareja.fila);
        if (suyas.IMG == 0)
            continue; // told of the file
        try {
            const QString directorio = CapturasEnDisco(sesion.M, pareja);
            if (directorio.isEmpty() || vistos.contains(directorio))
                continue;
            vistos.insert(directorio);
            // Where no game is listed, that is what is amiss.
            if (const std::optional<GifsDeJuegos> gifs = GifsDe(sesion, directorio))
                RevisorDeCapturas(sesion, pareja, revision).Mira(*gifs);
        } catch (const host::Failure &fallo) {
            revision.push_back({ u"no-captures"_s, u"Zembro.emu"_s, suyas.IMG,
                pareja.nombreSistema + u" / "_s + pareja.nombreEmulador,
                sesion.palabras.Zbo_SinCapturas.arg(TextoDeDirectorio(fallo, sesion.palabras)) });
        }
    }
}

} // namespace companion
