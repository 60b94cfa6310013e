// The main screen: it lives from the start of the process to its end, and owns the run.
//
// One class, one file a topic: arranque (start and exit), seleccion, lista, informacion, zoom, lanzamiento,
// acciones, documentos, superficie, teclado, nombres, and disposicion, the table of where every control
// stands.
#pragma once

#include "core/modulo.h"

#include "dialogs/mensaje.h"

#include "forms/checks.h"
#include "forms/combobox.h"
#include "forms/form.h"
#include "forms/image.h"
#include "forms/label.h"
#include "forms/listbox.h"
#include "forms/picturebutton.h"
#include "forms/popupmenu.h"
#include "forms/shape.h"
#include "forms/textbox.h"

#include "launch/pantalla.h"

#include "mainscreen/aumento.h"

#include <functional>
#include <vector>

class QShortcut;

namespace core {
struct Parametros;
}

namespace mainscreen {

class Portada : public forms::Form, private launch::Pantalla {
public:
    // Builds the screen and wires its topics; Carga brings it to life.
    explicit Portada(core::Modulo &modulo);
    ~Portada() override;

    // The start of the program, up to a listed ROM. Has no failure handler: what fails here ends the process.
    void Carga();

    // Shown modally when the settings haven't been written yet; joined in main.
    std::function<void()> MuestraPrimeraInstalacion;

    // Operations that the secondary screens call too; input and output are the shared state and the controls.
    void Textos();
    void Llena_Combos();
    void Llena_Lista();
    void LLena_INFO();
    void Jugar();
    void Borrar();
    void Describir();
    void Edit(const QString &ruta); // loads a text into the Editor; fails with 53 or 75
    void PrepararEditor();
    void RestaurarEditor();
    void ColoresDelEditor(int tipo); // 0 those of a console, 1 the system's; others change nothing
    // Starts an outside editor; an empty command shows what is missing.
    void AbreEnEditor(const QStringList &orden, const QString &falta);
    // Brings the labels that tell the state into the language that was just read.
    void EstadoEnIdioma();
    void Mensaje(int Tipo, const QString &mensaje, const QString &TituloVentana, const QString &Boton1,
        const QString &Boton2, const QString &MeterEnCajaDeTexto);

    int LlenaEmuladores(); // those of the system selected in Combo1 into Combo2; returns their number
    void PalabraDelBoton(); // by TipoEmu
    void RecuerdaRutaElegida(); // the selected emulator's "ROM" line, in the next of the two slots
    void PonNegro(); // in the place of the capture, on both screens

    // The tile of the secondary screens.
    dialogs::Teja Teja() const;

    // Selection.
    forms::ComboBox *Combo1, *Combo2;
    forms::CheckBox *Check1;
    forms::Label *TXT_dB;
    forms::PictureButton *Menos2a, *Menos2b;

    // List.
    forms::ListBox *Lista1;
    forms::ListBox *File1, *Dir1; // hidden, and empty: they keep their names
    forms::Label *TXT_InfoRoms;

    // Information, preview and zoom.
    forms::Image *Graf_TV, *Graf_Imagen;
    forms::Label *TXT_Info;
    forms::Image *X2, *X3, *X4, *X5, *OFF;
    forms::Image *Boton, *BotonARR, *BotonABJ;
    mainscreen::Aumento Aumento;

    // Actions.
    forms::PictureButton *JugarB1;
    forms::Label *TXT_Boton;
    forms::PictureButton *BotonA2, *BotonB2;
    forms::Label *TXT_Describir, *TXT_Borrar;
    forms::PictureButton *Boton1b, *Boton2b, *Boton3b, *Boton4b;
    forms::Label *TXT_Configurar, *TXT_Opciones, *TXT_Utilidades, *TXT_AcercaDe;
    forms::PopupMenu *Menu_Lista1;
    forms::MenuEntry *Menu_Describir, *Menu_Borrar, *Menu_Parametros;
    forms::PopupMenu *Menu_Graf_Imagen;
    forms::MenuEntry *Menu_ZoomX2, *Menu_ZoomX3, *Menu_ZoomX4, *Menu_ZoomX5, *Menu_OFF;

    // Documents.
    forms::PictureButton *BotonC2, *BotonD2, *Boton5b, *Boton6b, *D1, *E1;
    forms::Label *TXT_VerAyuda, *TXT_VerConfig, *TXT_Ayuda, *TXT_FAQ;
    forms::TextArea *Editor;
    forms::PictureButton *FlechaE2, *Edit2, *BlocDeNotas2;

    // Surface.
    forms::Image *Titulo1;
    forms::PictureButton *Flecha2;
    forms::Image *IMGDescripcionLarga, *Fondo;
    forms::Label *WEB1, *WEB2;
    forms::Shape *Shape1, *Shape2;

private:
    void ConectaArranque();
    void ConectaSeleccion();
    void ConectaLista();
    void ConectaZoom();
    void ConectaLanzamiento();
    void ConectaAcciones();
    void ConectaDocumentos();
    void ConectaSuperficie();
    void ConectaTeclado();
    void ConectaLectores();
    void ConectaTamano();

    // Start and exit.
    void LeeConfiguracion();
    void ApagaEditor();
    void MuestraVentana();
    void MuestraEstado();
    void Flecha2_Press();
    void Flecha2_Release();
    void GuardaSeleccion();

    // Selection.
    void Combo1_Selection();
    void Combo2_Selection();
    void Check1_Click();
    void EntraEnBaseDeDatos();
    void SaleDeBaseDeDatos();
    void RestauraSeleccion();
    void RellenaCombo1();
    void RellenaCombo2();
    void SistemaSinEmulador();
    void RecuerdaRuta(const QString &ruta);
    bool CambiaDeDirectorio();
    void ListaElegida();
    void ActivaConCatalogo(bool activo);

    // List.
    void LlenaTablasDeLista();
    QStringList EntradasDeLista() const;
    void ActivaParaLista(bool activo);

    // Information and preview.
    void Lista1_Selection();
    void CargaCaptura();
    void SinCaptura();

    // Zoom.
    void Graf_Imagen_MouseDown(int boton);
    void EligeZoom(int zoom);
    void OFF_Click();
    void Menu_OFF_Click();
    void ApagaTelevisor();
    void PonLupa();

    // Launching: what the pipeline asks of the screen.
    QString TextoCombo2() const override;
    int Sistema() const override;
    int Emulador() const override;
    int EntradasLista1() const override;
    QString TextoLista1() const override;
    void MuestraCargando() override;
    void InfoEnNegro() override;
    void InfoEnColorDelSistema() override;
    void MuestraNingunaROM() override;
    void SeleccionaEnLista1(const QString &texto) override;
    void EnfocaLista1() override;
    void Cede(int descriptor, int milisegundos) override;
    void CierraVentana(const QString &titulo) override;
    void Aviso(const QString &titulo, const QString &texto) override;

    // Actions.
    void Lista1_KeyDown(int tecla);
    bool HayROMElegida() const;
    void BorrarAPapelera(const QString &ruta);
    void NoSeAnota();
    bool SePuedenAnotar(const core::Parametros &parametros);
    bool GuardaDescripcion(int tipo, int nota, const QString &entrada, const QString &descripcion);
    void CambiaEntrada(int indice, const QString &descripcion);
    void Menu_Parametros_Click();
    QString LeeParametros(const QString &clave);
    void ReescribeNotas(const std::function<QString(const QString &)> &cambio);

    // Documents.
    void BotonC2_Release();
    void BotonD2_Release();
    QString RutaDelEmulador() const;
    void NoHayDocumento(const QString &titulo, const QString &texto);
    void MuestraDocumento(const QString &ruta, const std::function<void()> &prepara);
    void FlechaE2_Release();
    std::vector<QWidget *> OcultosPorElEditor() const;
    void MuestraTextoPropio(const QString &fichero);
    void E1_Release();
    void D1_Release();
    void EsperaHerramienta(const QStringList &orden, const QString &falta);

    // Surface.
    void Lista1_MouseDown(int boton);
    void Graf_TV_MouseDown(int boton);
    void Lista1_MouseMove(const forms::Mouse &raton);
    void EscribeConsejo(const QString &texto);
    void IMGDescripcionLarga_Click();
    void IMGDescripcionLarga_Wheel(const QWheelEvent &rueda);
    void WEB1_MouseUp();
    void WEB2_MouseUp();
    void AbreWeb(const QString &linea, const QString &titulo, const QString &texto);
    void PulsaWeb(forms::Label &web);
    void Escape();
    void OrdenaFoco();
    void DejaElTecladoAlEditor(bool abierto);
    void NombraControles();
    void AvisaDelZoom(); // assistive programs, of the mark that is chosen now
    QString TeclaDe(const QWidget &control) const; // its accelerator in words, empty for none
    void Advierte(const QString &titulo, const QString &texto); // the message box, type 3

    enum Puntero : int { PunteroNormal = 0, RelojDeArena = 11 };
    void PonPuntero(Puntero puntero);
    void PonInfo(const QString &texto);
    void PonInfoRoms(const QString &texto);

    core::Modulo &M;
    dialogs::CajaDeMensajes m_mensajes;
    int m_recuento = 0; // entries that the running Llena_Lista has looked at
    void PideTamano(bool mayor); // of the next start
    double m_tamanoPedido = 0; // as a factor; 0: none since the start
    int m_ruedaDelTitulo = 0; // what it was turned, in eighths of a degree, short of a step
    std::vector<QShortcut *> m_teclasDelTelevisor; // and of the links
    int ElementoBajoRaton = 0; // the entry of Lista1 last found under the pointer
};

} // namespace mainscreen
