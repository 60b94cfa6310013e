// The pairs that the catalogue configures: program, directories, list.
#include "companion/revision.h"

#include "companion/impedimento.h"
#include "companion/otrosistema.h"

#include "finder/juegos.h"

#include "core/catalogo.h"
#include "core/lineas.h"
#include "core/romelegida.h"
#include "core/rutas.h"

#include "host/encoding.h"
#include "host/letters.h"
#include "host/paths.h"
#include "host/process.h"
#include "host/textsource.h"

#include "launch/piezas.h"

#include <QHash>
#include <QSet>

#include <optional>

using namespace Qt::StringLiterals;

namespace companion {

namespace {

class RevisorDePareja {
public:
    RevisorDePareja(Sesion &sesion, const Pareja &pareja, const LineasDeEmulador &lineas, Revision &revision)
        : m_sesion(sesion)
        , M(sesion.M)
        , m_palabras(sesion.palabras)
        , m_pareja(pareja)
        , m_lineas(lineas)
        , m_revision(revision)
        , m_tipo(TipoDe(sesion.M, pareja))
    {
    }

    void Programa();
    void Lista();

    Cuenta cuenta;

private:
    // Of a line of the catalogue, or where that is missing of the emulator's.
    void halla(const QString &clase, const QString &dicho, int linea)
    {
        m_revision.push_back(
            { clase, u"Zembro.emu"_s, linea > 0 ? linea : m_lineas.nombre, nombre(), dicho });
    }
    void hallaEn(const QString &clase, const QString &dicho, const QString &ruta, int linea = 0)
    {
        m_revision.push_back({ clase, ruta, linea, nombre(), dicho });
    }
    QString nombre() const { return m_pareja.nombreSistema + u" / "_s + m_pareja.nombreEmulador; }
    void Juegos(const Listado &listado);
    void NoListados(const QString &directorio);
    void NadaListado(const QString &directorio);
    void OtrasCosas(const QStringList &nombres, const QString &directorio);
    void SoloPorMayusculas(const QStringList &nombres, const QString &directorio);

    Sesion &m_sesion;
    core::Modulo &M;
    const Palabras &m_palabras;
    const Pareja &m_pareja;
    const LineasDeEmulador m_lineas;
    Revision &m_revision;
    const int m_tipo;
    bool m_arranca = false; // the program, as far as is known, and on this machine
};

// The line of Zembro.rom, counted from 1, of the second record with this description; 0 if none is.
int lineaDeDescripcion(const core::Modulo &M, const QString &descripcion)
{
    const QString texto = TextoDelPrograma(M, u"Zembro.rom"_s);
    int numero = 0;
    int veces = 0;
    for (const core::LineaConFin &linea : core::EnLineas(texto)) {
        ++numero;
        host::TextSource fuente(linea.linea.toString());
        if (fuente.atEnd() || fuente.readField().isEmpty() || fuente.atEnd())
            continue;
        veces += fuente.readField() == descripcion;
        if (veces == 2)
            return numero;
    }
    return 0;
}

void RevisorDePareja::Programa()
{
    if (m_lineas.EXE == 0)
        return; // told of the file
    const QString exe = core::RutaDeLinea(M.Cat_EXE(m_pareja.sistema, m_pareja.fila));
    const launch::Programa programa = launch::ProgramaDe(exe);
    const QString &enDisco = programa.ExeCorto.enDisco;
    if (enDisco.isEmpty()) {
        const QString otro = ProgramaParecido(exe);
        if (!FaltaDeUnidad(exe, m_palabras).isEmpty())
            return; // told of the drive
        halla(u"no-program"_s, NoHayPrograma(exe, m_palabras), m_lineas.EXE);
        if (!otro.isEmpty())
            halla(u"similar-program"_s, m_palabras.Zbo_Parecido.arg(otro), m_lineas.EXE);
        return;
    }
    if (const QString pegado = ProgramaPegado(M, m_pareja); !pegado.isEmpty())
        return halla(u"parameters-joined"_s, m_palabras.Zbo_ParPegado.arg(pegado), m_lineas.XDI);
    if (EncargoDe(M, m_pareja).corredor != launch::Corredor::Ninguno)
        return;
    if (const std::optional<Impedimento> falta = ImpedimentoDe(enDisco, m_palabras))
        return halla(falta->clase, falta->texto, m_lineas.EXE);
    m_arranca = true;
    RevisaMaquinaDeMAME(m_sesion, m_pareja, m_lineas, m_revision);
}

void RevisorDePareja::Lista()
{
    if (m_lineas.XDI > 0 && (m_tipo < 0 || m_tipo > 8 || m_tipo == 4))
        halla(u"no-type"_s, m_palabras.Zbo_SinTipo, m_lineas.XDI);
    const QString directorio = DirectorioDeJuegos(M, m_pareja);
    if (m_lineas.ROM == 0 || (directorio.isEmpty() && core::CargaSoloElEmulador(m_tipo)))
        return;
    if (core::FicherosSueltos(m_tipo) && core::CargaExtensiones(M, m_pareja.sistema) == 0)
        halla(u"no-extension"_s, m_palabras.Zbo_SinExt.arg(m_pareja.nombreSistema), m_lineas.XDI);
    try {
        const Listado listado = companion::Lista(m_sesion, m_pareja);
        cuenta.listados = listado.recuento.entradas.size();
        // Without its separator the directory's name runs into those of the files.
        if (!core::UnDirectorioPorJuego(m_tipo) && directorio != host::withClosingSeparator(directorio))
            return;
        if (listado.recuento.interrumpido)
            halla(u"list-cut"_s, m_palabras.Zbo_ListaCortada, m_lineas.ROM);
        NoListados(directorio);
        Juegos(listado);
        if (m_arranca)
            cuenta.sinVerificar =
                RevisaJuegosDeMAME(m_sesion, m_pareja, m_lineas, listado.recuento.entradas, m_revision);
    } catch (const host::Failure &fallo) {
        if (!FaltaDeUnidad(directorio, m_palabras).isEmpty())
            return; // told of the drive
        halla(u"no-list"_s, m_palabras.Zbo_NoSeLista.arg(TextoDeDirectorio(fallo, m_palabras)), m_lineas.ROM);
    }
}

void RevisorDePareja::NoListados(const QString &directorio)
{
    const core::ExtensionesEnVigor extensiones(M, core::CargaExtensiones(M, m_pareja.sistema));
    const QStringList nombres =
        core::UnDirectorioPorJuego(m_tipo) ? host::listDirectories(directorio) : host::listFiles(directorio);
    QStringList listados;
    for (qsizetype i = 0; i < nombres.size(); ++i) {
        const QString mayus = host::upper(nombres[i]);
        bool fuera = false;
        if (core::UnDirectorioPorJuego(m_tipo))
            cuenta.filtrados += fuera = M.Arch_Mayus(static_cast<int>(i)).isEmpty();
        else if (nombres[i] == finder::NombreDeNota && !extensiones.VecesQueEncaja(mayus))
            continue; // the line of text that the program itself puts there
        else if (core::FicherosSueltos(m_tipo))
            cuenta.otraExtension += fuera = extensiones.VecesQueEncaja(mayus) == 0;
        else
            cuenta.otroTipo += fuera = !mayus.endsWith(u"ZIP");
        if (core::FicherosSueltos(m_tipo) && extensiones.VecesQueEncaja(mayus) > 1)
            hallaEn(u"listed-twice"_s, m_palabras.Zbo_DosVeces.arg(nombres[i]), directorio + nombres[i]);
        if (!fuera)
            listados += nombres[i];
    }
    OtrasCosas(nombres, directorio);
    SoloPorMayusculas(listados, directorio);
    RevisaJuegos(m_sesion, m_pareja, directorio, listados, m_revision);
    if (cuenta.listados == 0)
        NadaListado(directorio);
}

// What is no game by its kind: directories among files, files among directories, pipes, links to nothing.
void RevisorDePareja::OtrasCosas(const QStringList &nombres, const QString &directorio)
{
    const QSet<QString> vistos(nombres.begin(), nombres.end());
    for (const QByteArray &bytes : host::listInDiskOrder(directorio)) {
        const QString nombre = host::nameFromDisk(bytes);
        if (nombre.startsWith(u'.'))
            cuenta.ocultos += nombre;
        else if (!vistos.contains(nombre) && nombre != finder::NombreDeNota)
            cuenta.otraCosa += nombre;
    }
    cuenta.otraCosa.sort();
    cuenta.ocultos.sort();
}

// Of these a launch finds one, whichever was chosen.
void RevisorDePareja::SoloPorMayusculas(const QStringList &nombres, const QString &directorio)
{
    QHash<QString, QString> vistos;
    for (const QString &nombre : nombres) {
        const QString mayus = host::upper(nombre);
        if (!vistos.contains(mayus)) {
            vistos.insert(mayus, nombre);
            continue;
        }
        const QString jugado = host::trueSpelling(directorio + host::lower(nombre));
        hallaEn(u"names-differ-in-case"_s,
            m_palabras.Zbo_FichIguales.arg(
                vistos[mayus], nombre, jugado.sliced(jugado.lastIndexOf(u'/') + 1)),
            directorio + nombre);
    }
}

// Why nothing is: what lies there isn't what the type takes.
void RevisorDePareja::NadaListado(const QString &directorio)
{
    const qsizetype fuera = cuenta.otraExtension + cuenta.otroTipo + cuenta.filtrados;
    if (fuera > 0)
        return halla(u"nothing-listed"_s, m_palabras.Zbo_NadaEncaja.arg(fuera), m_lineas.XDI);
    QStringList otros =
        core::UnDirectorioPorJuego(m_tipo) ? host::listFiles(directorio) : host::listDirectories(directorio);
    otros.removeAll(finder::NombreDeNota);
    const QString &dicho =
        core::UnDirectorioPorJuego(m_tipo) ? m_palabras.Zbo_SoloFicheros : m_palabras.Zbo_SoloDirs;
    if (!otros.isEmpty())
        halla(u"type-and-content"_s, dicho.arg(directorio).arg(otros.size()), m_lineas.XDI);
}

void RevisorDePareja::Juegos(const Listado &listado)
{
    QHash<QString, int> veces;
    const LectorDeJuegos lector(M, m_pareja);
    for (const QString &entrada : listado.recuento.entradas) {
        const Juego juego = lector.De(entrada);
        if (++veces[entrada] == 2 && juego.descrito)
            hallaEn(u"description-twice"_s, m_palabras.Zbo_MismaDesc.arg(entrada), u"Zembro.rom"_s,
                lineaDeDescripcion(M, entrada));
        if (veces[entrada] == 1 && juego.captura.isEmpty())
            cuenta.sinCaptura.push_back({ entrada, lector.CapturaBuscada(entrada) });
    }
}

} // namespace

QString TextoDeDirectorio(const host::Failure &fallo, const Palabras &palabras)
{
    const QString texto = TextoDe(fallo, palabras);
    return texto.startsWith(palabras.Zbo_FalloDir) ? texto + u"; "_s + palabras.Zbo_HazDir : texto;
}

Cuenta RevisaPareja(Sesion &sesion, const Pareja &pareja, const LineasDelCatalogo &lineas, Revision &revision)
{
    RevisorDePareja revisor(sesion, pareja, lineas.De(pareja.sistema, pareja.fila), revision);
    revisor.Programa();
    RevisaOtroSistema(sesion, pareja, lineas.De(pareja.sistema, pareja.fila), revision);
    revisor.Lista();
    return revisor.cuenta;
}

} // namespace companion
