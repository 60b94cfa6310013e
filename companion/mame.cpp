#include "companion/mame.h"

#include "companion/porque.h"

#include "core/rutas.h"

#include "finder/eleccion.h"
#include "finder/lugares.h"

#include "host/reading.h"

#include "launch/piezas.h"

using namespace Qt::StringLiterals;

namespace companion {

namespace {

// It begins to write at once; a disk that has to wake up takes its time.
constexpr std::chrono::minutes PacienciaConMame(1);

} // namespace

QString MAMEDe(const core::Modulo &M, const std::vector<Pareja> &parejas)
{
    for (const Pareja &pareja : parejas) {
        const QString exe = core::RutaDeLinea(M.Cat_EXE(pareja.sistema, pareja.fila));
        const QString enDisco = finder::EsMAME(exe) ? launch::ProgramaDe(exe).ExeCorto.enDisco : QString();
        if (!enDisco.isEmpty())
            return enDisco;
    }
    return finder::RutaDePrograma({ u"mame"_s, u"org.mamedev.MAME"_s }, finder::LugaresDeLaMaquina());
}

QString LeeListaDeMAME(
    const QString &mame, const Palabras &palabras, const std::function<void(const QByteArray &)> &toma)
{
    const host::ProcessEnd final = host::readProgram({ mame, u"-listxml"_s }, {}, PacienciaConMame, toma);
    if (final.signal)
        return palabras.Zbo_PorLaSenal.arg(NombreDeSenal(*final.signal));
    const int estado = final.status.value_or(0);
    return estado == 0 ? QString() : palabras.Zbo_ConElEstado.arg(estado);
}

} // namespace companion
