// The form of the second step: its load, the locks between its marks, and browsing.

#include "maintenance/configuracion2.h"

#include "core/basededatos.h"
#include "core/rutas.h"

#include "host/failure.h"
#include "host/paths.h"

using namespace Qt::StringLiterals;

namespace maintenance {

namespace {

const QColor Claro(255, 224, 192); // of a special case that can be marked
const QColor Apagado(192, 64, 0);
const QColor Gris(128, 128, 128);
constexpr unsigned int ColorDeVentana = 0x80000005;
constexpr unsigned int ColorDeLetras = 0x80000012;

void ponCerrojo(forms::Label *palabra, forms::CheckBox *marca, bool abierto)
{
    palabra->SetForeColor(abierto ? Claro : Apagado);
    marca->setEnabled(abierto);
}

} // namespace

Configuracion2::Configuracion2(core::Modulo &modulo, const dialogs::Teja &teja,
    forms::FormHolder<dialogs::Examinar> &examinar, const QString &sistema, const QString &emulador)
    : Form(u"Configuracion2"_s, 3720, 6720, Border::FixedSingle)
    , M(modulo)
    , m_examinar(examinar)
    , m_sistema(sistema)
    , m_emulador(emulador)
{
    Monta();
    Conecta();
    AplicaCerrojos();
    SetTile(teja.imagen, teja.ancho, teja.alto);
    PonExaminar();
    Texto2->SetCaption(sistema + u" -> "_s + emulador);
    M.Config2_Cambios = core::SituacionDe(M, sistema, emulador);
    if (M.Config2_Cambios == core::EmuladorYaConfigurado) {
        core::LeePrevios(M, emulador);
        Casilla1->SetText(M.EXE_Previo);
        Casilla2->SetText(M.ROM_Previo);
        Casilla3->SetText(M.IMG_Previo);
        Casilla4->SetText(M.PAR1_Previo);
        Casilla5->SetText(M.PAR2_Previo);
        PonMarcas(core::TipoAMarcas(M.XDI_Previo));
    }
    Casilla1->setFocus();
}

void Configuracion2::Conecta()
{
    Boton1->Click = [this] { BuscaEjecutable(); };
    Boton2->Click = [this] { BuscaDirectorio(*Casilla2); };
    Boton3->Click = [this] { BuscaDirectorio(*Casilla3); };
    for (forms::TextBox *ruta : { Casilla1, Casilla2, Casilla3 })
        ruta->SetTip();
    ConectaPistas();
    for (forms::CheckBox *marca : { Check1, Check2, Check4 })
        marca->Click = [this] { AplicaCerrojos(); };
    Disco1->Release = [this] { Graba(); };
    Flecha1->Release = [this] { Unload(); };
}

core::Casillas Configuracion2::Textos() const
{
    return { Casilla1->Text(), Casilla2->Text(), Casilla3->Text(), Casilla4->Text(), Casilla5->Text() };
}

core::Marcas Configuracion2::Marcas() const
{
    return { Check1->Value() == 1, Check2->Value() == 1, Check3->Value() == 1, Check4->Value() == 1 };
}

void Configuracion2::PonMarcas(const core::Marcas &marcas)
{
    Check4->SetValue(marcas.check4);
    Check1->SetValue(marcas.check1);
    Check2->SetValue(marcas.check2);
    Check3->SetValue(marcas.check3);
}

void Configuracion2::AplicaCerrojos()
{
    const core::Cerrojos cerrojos = core::CerrojosDe(Marcas());
    ponCerrojo(TXT_1DIR, Check1, cerrojos.check1);
    ponCerrojo(TXT_Comp, Check2, cerrojos.check2);
    ponCerrojo(TXT_AutoComp, Check3, cerrojos.check3);
    if (!cerrojos.check3)
        Check3->SetValue(0);
    // Its text stays, and is saved.
    Casilla5->setEnabled(cerrojos.casilla5);
    QPalette colores = Casilla5->palette();
    colores.setColor(QPalette::Base, cerrojos.casilla5 ? forms::colourFromNumber(ColorDeVentana) : Gris);
    colores.setColor(QPalette::Text, forms::colourFromNumber(ColorDeLetras)); // it can still be read
    Casilla5->setPalette(colores);
    PonPistas(); // the blanks in them depend on the marks
}

void Configuracion2::Prepara()
{
    PonTextos();
    NombraControles();
    if (M.Config_Origen == core::SistemaConocido)
        QuitaEspeciales();
    Reconoce();
    MiraRutas();
}

void Configuracion2::PonExaminar()
{
    for (forms::CommandButton *boton : { Boton1, Boton2, Boton3 })
        boton->SetCaption(M.TXT_Examinar);
}

void Configuracion2::PonTextos()
{
    PonExaminar(); // the language may be another one than at the load
    SetCaption(M.TXT_TituloCFG2);
    TXT_CFGDe->SetCaption(M.TXT_CFGDe);
    TXT_CFGGeneral->SetCaption(M.TXT_CFGGeneral);
    TXT_EXE->SetCaption(M.TXT_EXE);
    TXT_ROM->SetCaption(M.TXT_ROM);
    TXT_IMG->SetCaption(M.TXT_IMG);
    TXT_PAR->SetCaption(M.TXT_PAR);
    TXT_Especial->SetCaption(M.TXT_Especial);
    TXT_1DIR->SetCaption(M.TXT_1DIR);
    TXT_Comp->SetCaption(M.TXT_Comp);
    TXT_AutoComp->SetCaption(M.TXT_AutoComp);
    TXT_SoloEXE->SetCaption(M.TXT_SoloEXE);
    if (M.Config_Origen == core::SistemaConocido)
        TXT_Aviso->SetCaption(M.TXT_AvisoTipo0);
    else
        TXT_Aviso->SetCaption(
            M.Config_Origen == core::SistemaRecreativo ? M.TXT_AvisoTipo1 : M.TXT_AvisoNuevo);
}

void Configuracion2::NombraControles()
{
    const auto examinar = [this](const QString &que) { return M.TXT_Examinar + u' ' + que; };
    const std::pair<QWidget *, QString> nombres[] = {
        { Casilla1, M.TXT_EXE },
        { Boton1, examinar(M.TXT_EXE) },
        { Casilla2, M.TXT_ROM },
        { Boton2, examinar(M.TXT_ROM) },
        { Casilla3, M.TXT_IMG },
        { Boton3, examinar(M.TXT_IMG) },
        { Casilla4, M.Palabras.Zem_Casilla4 },
        { Casilla5, M.Palabras.Zem_Casilla5 },
        { Check4, M.TXT_SoloEXE },
        { Check1, M.TXT_1DIR },
        { Check2, M.TXT_Comp },
        { Check3, M.TXT_AutoComp },
        { Disco1, TXT_Grabar->Caption() },
        { Flecha1, TXT_Volver->Caption() },
    };
    for (const auto &[control, nombre] : nombres)
        control->setAccessibleName(nombre);
}

void Configuracion2::BuscaEjecutable()
{
    const QString texto = Casilla1->Text();
    const qsizetype separador = host::lastSeparator(texto);
    if (!CargaExaminar(separador < 0 ? texto : texto.first(separador + 1)))
        return;
    if (!Examina())
        return;
    const bool cerrada = M.RutaExaminar.endsWith(u'\\'); // a drive itself
    const QString cierre = cerrada ? QString() : QString(host::separatorOf(M.RutaExaminar));
    Casilla1->SetText(core::ValorDeRuta(M.RutaExaminar + cierre + M.ArchivoExaminar));
}

void Configuracion2::BuscaDirectorio(forms::TextBox &casilla)
{
    bool aceptado = false;
    if (CargaExaminar(casilla.Text())) {
        m_examinar->SetOuterWidth(SinArchivos);
        m_examinar->Archivos->hide();
        aceptado = Examina();
    }
    casilla.setFocus();
    if (aceptado)
        casilla.SetText(core::ValorDeRuta(M.RutaExaminar));
}

// Failures are ignored here. False if there is no browser then.
bool Configuracion2::CargaExaminar(const QString &inicio)
{
    try {
        dialogs::Examinar &examinar = *m_examinar;
        examinar.Directorios->SetPath(core::RutaDeValor(inicio));
    } catch (const host::Failure &) {
        // Loaded, it stays where its load has put it.
    }
    return m_examinar.isLoaded();
}

// False if the user went back. Closed by its box it counts as accepted, with the answers of the time before.
bool Configuracion2::Examina()
{
    m_examinar->PonTextos(TXT_Volver->Caption());
    m_examinar.ShowModal(nullptr);
    return M.Respuesta_Opcion != 1;
}

} // namespace maintenance
