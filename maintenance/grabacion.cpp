#include "maintenance/grabacion.h"

#include "core/basededatos.h"
#include "core/catalogo.h"
#include "core/lugares.h"

#include "forms/yield.h"

#include "host/paths.h"
#include "host/replacement.h"

#include "mainscreen/escritura.h"
#include "mainscreen/portada.h"

#include "maintenance/configuracion1.h"
#include "maintenance/configuracion2.h"
#include "maintenance/reescritura.h"
#include "maintenance/relectura.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace maintenance {

namespace {

const QString Zembro_emu = u"Zembro.emu"_s;
constexpr int MaxEmuladores = core::MaxSistemas - 1;

} // namespace

Grabacion::Grabacion(
    core::Modulo &modulo, mainscreen::Portada &portada, Configuracion1 &paso1, Configuracion2 &paso2)
    : M(modulo)
    , P(portada)
    , m_paso1(paso1)
    , m_paso2(paso2)
    , m_sistema(paso1.Lista1->Text())
    , m_emulador(paso1.Lista2->Text())
    , m_casillas(paso2.Textos())
    , m_tipo(core::MarcasATipo(paso2.Marcas()))
{
}

// Another kind of save than these three saves nothing.
void Grabacion::Graba()
{
    if (EsRechazada())
        return;
    m_paso2.Casilla2->SetText(core::DirectorioDeROMs(m_sistema, m_casillas.rom));
    if (M.Config2_Cambios < core::SinSistemaConfigurado || M.Config2_Cambios > core::EmuladorYaConfigurado)
        return;
    MiraSituacion();
    if (M.Config2_Cambios == core::EmuladorYaConfigurado && core::SinCambios(M, m_casillas, m_tipo)) {
        Mensaje(3, M.Msg_SinCambios1, M.Msg_SinCambios0);
        return;
    }
    // Both steps stay, with what is typed in them.
    if (host::liesInReadOnlyPlace(host::programFile(Zembro_emu))) {
        mainscreen::AvisaDeSoloLectura(M, P, M.Palabras.Zem_SoloLeer1);
        return;
    }
    OcultaPasos();
    bool escrito = false;
    if (!mainscreen::Escribe(M, P, [&] { escrito = Escribe(); })) {
        m_paso1.Unload();
        m_paso2.Unload();
        return;
    }
    OcultaPasos();
    if (!escrito) {
        AvisaDeCambio();
        return;
    }
    switch (M.Config2_Cambios) {
    case core::SinSistemaConfigurado:
        MuestraSistema();
        break;
    case core::SinEmuladorConfigurado:
        MuestraEmulador();
        break;
    default:
        MuestraCambio();
        break;
    }
    Cierra();
}

// The catalogue as it is now decides of which kind the save is: another copy may have added the pair, or
// taken it out, since the form was filled.
void Grabacion::MiraSituacion()
{
    const int antes = std::exchange(M.Config2_Cambios, SituacionEn(textoDe(M, Zembro_emu)));
    if (M.Config2_Cambios != antes && M.Config2_Cambios == core::EmuladorYaConfigurado)
        core::LeePrevios(M, m_emulador);
}

core::Situacion Grabacion::SituacionEn(const QString &texto) const
{
    return core::SituacionDe(*core::CatalogoDe(texto), m_sistema, m_emulador);
}

// The kind and the addresses are those of the files as they are under the lock of the rewrite. False, with
// nothing written, where the change would be another emulator's of the same name, added meanwhile.
bool Grabacion::Escribe()
{
    return reescribeSi(M, Zembro_emu, [this](const QString &texto) -> std::optional<QString> {
        const core::Webs webs = core::LeeWebs(M, m_sistema, m_emulador, NumeroDeLectura);
        const core::EmuladorNuevo nuevo = Bloque(webs);
        const core::Situacion situacion = SituacionEn(texto);
        M.Config2_Cambios = situacion;
        if (situacion == core::SinSistemaConfigurado)
            return core::ConSistemaConfigurado(
                texto, { m_sistema, webs.sistema, core::ExtensionesDeBase(M, Fila()), nuevo });
        if (situacion == core::SinEmuladorConfigurado)
            return core::ConEmuladorConfigurado(texto, u'-' + m_sistema, nuevo);
        if (!core::PrimeroDelSistema(M, m_sistema, m_emulador, texto))
            return {};
        return core::ConEmuladorCambiado(texto, nuevo);
    });
}

// The steps close: what they show was filled from tables that hold no more.
void Grabacion::AvisaDeCambio()
{
    releeTodo(M, P);
    avisaDeCambio(M, P);
    m_paso1.Unload();
    m_paso2.Unload();
    P.Lista1->setFocus();
}

bool Grabacion::EsRechazada()
{
    switch (core::RechazoDe(m_sistema, M.Config_Origen, m_casillas, m_paso2.Marcas())) {
    case core::Rechazo::SinEXE:
        Mensaje(3, M.Msg_NoEXE1, M.Msg_NoEXE0);
        return true;
    case core::Rechazo::SinDirectorio:
        Mensaje(3, M.Msg_NoDIR1, M.Msg_NoDIR0);
        return true;
    case core::Rechazo::SinMarcas:
        Mensaje(3, M.Msg_Casillas1, M.Msg_Casillas0);
        return true;
    case core::Rechazo::Ninguno:
        break;
    }
    return false;
}

void Grabacion::MuestraSistema()
{
    P.Llena_Combos();
    M.Combo2Listo = 0;
    RellenaCombos();
    M.Combo2Listo = 1;
    P.Llena_Lista();
    P.RecuerdaRutaElegida();
}

// Combo2 is left as Llena_Combos left it: alive, its event lists the games and remembers the directory.
void Grabacion::MuestraEmulador()
{
    P.Llena_Combos();
    RellenaCombos();
}

void Grabacion::MuestraCambio()
{
    if (M.Config_Origen == core::SistemaRecreativo)
        M.EmuConfigurado = 1;
    LeeTablas();
    M.Combo1Listo = M.Combo2Listo = 1;
    const int sistema = P.Combo1->ItemData(P.Combo1->ListIndex());
    const int emulador = P.Combo2->ItemData(P.Combo2->ListIndex()) + 1;
    M.TipoEmu = core::TipoDe(M.Cat_XDI(sistema, emulador));
    P.PalabraDelBoton();
    P.RecuerdaRutaElegida();
    Renueva(core::RenovacionTras(M, m_casillas, m_tipo));
    M.EmuConfigurado = 0;
    if (P.Lista1->ListCount() > 0 && m_casillas.img.isEmpty())
        P.PonNegro();
}

// The combos keep their contents where they show the pair already, and still lead to what they name.
void Grabacion::LeeTablas()
{
    if (P.Combo1->Text() == m_sistema && P.Combo2->Text() == m_emulador) {
        leeSoloTablas(M, P);
        if (combosAlDia(M, P))
            return;
    }
    P.Llena_Combos();
    M.Combo2Listo = 0;
    RellenaCombos();
}

void Grabacion::Renueva(core::Renovacion renovacion)
{
    using core::Renovacion;
    if (renovacion == Renovacion::Captura || renovacion == Renovacion::CapturaYLista)
        P.Lista1->SetListIndex(P.Lista1->ListIndex());
    if (renovacion == Renovacion::Lista || renovacion == Renovacion::CapturaYLista)
        P.Llena_Lista();
}

core::EmuladorNuevo Grabacion::Bloque(const core::Webs &webs) const
{
    return { m_emulador, webs.emulador, m_casillas.exe, m_tipo, m_paso2.Casilla2->Text(), m_casillas.img,
        m_casillas.par1, m_casillas.par2 };
}

// The main screen shows while the work goes on, and takes no input.
void Grabacion::OcultaPasos()
{
    m_paso2.hide();
    m_paso1.hide();
    forms::DoEventsWithoutInput();
}

// Where the system has as many emulators as the table takes, none is selected.
void Grabacion::RellenaCombos()
{
    M.Combo1Listo = 0;
    P.Combo1->SetText(m_sistema);
    M.Combo1Listo = 1;
    P.Combo2->Clear();
    M.Indice_Emulador = P.LlenaEmuladores();
    if (M.Indice_Emulador == MaxEmuladores)
        return;
    M.Indice_Emulador = 0;
    P.Combo2->SetText(m_emulador);
}

void Grabacion::Cierra()
{
    if (P.Lista1->ListCount() == 0) {
        P.TXT_Info->SetCaption(M.TXT_NingunaROM);
        Mensaje(3, M.Msg_NingunaROM1, M.Msg_NingunaROM0);
    } else {
        Mensaje(4, M.Msg_CFGGrabada1, M.Msg_CFGGrabada0);
    }
    m_paso1.Unload();
    m_paso2.Unload();
    P.Lista1->setFocus();
}

void Grabacion::Mensaje(int tipo, const QString &mensaje, const QString &titulo)
{
    P.Mensaje(tipo, mensaje, titulo, M.TXT_Aceptar, m_paso2.TXT_Volver->Caption(), QString());
}

int Grabacion::Fila() const
{
    return m_paso1.Lista1->ItemData(m_paso1.Lista1->ListIndex());
}

} // namespace maintenance
