// Reading the notes and the parameters of ROMs, and finding a ROM by its note.
#include "entrada.h"
#include "mundo.h"
#include "temas.h"

#include "core/info.h"
#include "core/lineas.h"
#include "core/notas.h"
#include "core/parrom.h"
#include "core/romelegida.h"

#include "host/encoding.h"
#include "host/failure.h"
#include "host/letters.h"
#include "host/textsource.h"

#include "launch/busquedarom.h"

using namespace Qt::StringLiterals;

namespace pelusa {

namespace {

QStringList lineasDe(const QString &texto)
{
    QStringList lineas;
    for (const core::LineaConFin &linea : core::EnLineas(texto))
        lineas << linea.linea.toString();
    return lineas;
}

void busqueda(const core::Modulo &M, int total)
{
    for (int i = 0; i < total && !M.Nota_Clave(i).isEmpty(); ++i) {
        const QString texto = M.Nota_Texto(i);
        const int nota = core::NotaConTexto(M, texto);
        Exige(nota >= 0 && nota <= i && M.Nota_Texto(nota) == texto, "a note is found by its text", texto);
        int visitas = 0;
        core::BuscaROM(M, texto, [&visitas](const core::FichaDeROM &) { ++visitas; });
        Exige(visitas > 0, "a note gives facts", texto);
        for (const int tipo : { 0, 1, 2, 3 }) {
            const launch::Busqueda hallada = launch::BuscaROM(M, tipo, texto);
            Exige(hallada.nota == nota, "the launch finds the same note", texto);
            Exige(hallada.nombre.startsWith(hallada.clave), "the file is named by its key", hallada.nombre);
            Exige(core::FicheroDeEntrada(M, tipo, texto).startsWith(host::upper(hallada.clave)),
                "the file is named by its key", hallada.clave);
        }
    }
}

void notas(core::Modulo &M, const QString &sistema)
{
    int cargadas = 0;
    const int fallo = Fallo({ host::OutOfRange, host::PastEndOfFile }, "loading the notes",
        [&] { cargadas = core::CargaNotas(M, sistema); });
    if (fallo == 0)
        busqueda(M, cargadas);
    core::Modulo otro;
    int recargadas = 0;
    const int otroFallo = Fallo({ host::OutOfRange }, "loading the notes anew",
        [&] { recargadas = core::RecargaNotas(otro, sistema); });
    if (fallo != 0)
        return;
    Exige(otroFallo == 0 && recargadas == cargadas, "what can be loaded is loaded anew", sistema);
    for (int i = 0; i < cargadas; ++i) {
        ExigeIgual(otro.Nota_Clave(i), M.Nota_Clave(i), "a note is the same loaded anew");
        ExigeIgual(otro.Nota_Texto(i), M.Nota_Texto(i), "a note is the same loaded anew");
    }
}

// The dialog reads by three fields, the launch by one: whatever the first finds, the other finds too or
// something ahead of it.
void parametros(const QString &texto, const QString &clave, const QString &sistema, const QString &emulador)
{
    host::TextSource delLanzamiento(texto);
    const QString primeros = core::ParametrosDe(delLanzamiento, clave);
    Exige(primeros.isEmpty() || texto.contains(primeros), "parameters stand in the file", primeros);
    host::TextSource delDialogo(texto);
    QString escritos;
    const int fallo = Fallo({ host::PastEndOfFile }, "reading parameters",
        [&] { escritos = core::ParametrosEscritos(delDialogo, clave, sistema, emulador); });
    Exige(escritos.isEmpty() || (fallo == 0 && texto.contains(escritos)), "parameters stand in the file",
        escritos);
}

} // namespace

void probarNotas(Bytes bytes)
{
    Entrada entrada(bytes);
    const QString clave = entrada.Nombre();
    const QString emulador = entrada.Texto();
    const QByteArray orden = entrada.Campo();
    const QByteArray resto = entrada.Resto();
    const QString texto = host::decodeText(resto).text;
    Entrada pasos({ reinterpret_cast<const std::uint8_t *>(orden.constData()), std::size_t(orden.size()) });
    const QString sistema = pasos.UnoDe(lineasDe(texto));
    PonFichero("Zembro.rom", resto);
    core::Modulo M;
    notas(M, sistema);
    parametros(texto, clave, sistema, emulador);
}

} // namespace pelusa
