// Where every control of the main screen stands: one table a kind, in twips, in the order of the screen.

#include "mainscreen/disposicion.h"

#include "mainscreen/portada.h"

#include "core/info.h"

#include "dialogs/coloca.h"

using namespace Qt::StringLiterals;

namespace mainscreen {

namespace {

constexpr int Ancho = 6165;
constexpr int Alto = 5715;

using Tele =
    forms::Image *Portada::*; // the container of a control: the television set, or none for the screen itself

enum class Letra { Normal, Negrita, Terminal };

struct FilaImagen {
    forms::Image *Portada::*control;
    QStringView nombre;
    Tele dentroDe;
    forms::Place lugar;
    bool conDibujo; // artwork of its own name
    bool visible;
};

const FilaImagen Imagenes[] = {
    { &Portada::Titulo1, u"Titulo1", nullptr, { 1200, 100, 3600, 675 }, true, true },
    { &Portada::Graf_TV, u"Graf_TV", nullptr, { 2520, 1080, 3480, 3360 }, true, true },
    { &Portada::Graf_Imagen, u"Graf_Imagen", &Portada::Graf_TV, { 300, 320, 2880, 2160 }, false, true },
    { &Portada::X2, u"X2", &Portada::Graf_TV, { 680, 3000, 195, 120 }, false, true },
    { &Portada::X3, u"X3", &Portada::Graf_TV, { 930, 3000, 195, 120 }, false, true },
    { &Portada::X4, u"X4", &Portada::Graf_TV, { 1180, 3000, 195, 120 }, false, true },
    { &Portada::X5, u"X5", &Portada::Graf_TV, { 1440, 3000, 195, 120 }, false, true },
    { &Portada::OFF, u"OFF", &Portada::Graf_TV, { 2680, 3000, 255, 135 }, false, true },
    { &Portada::Boton, u"Boton", &Portada::Graf_TV, { 680, 3000, 195, 120 }, true, true },
    { &Portada::BotonARR, u"BotonARR", &Portada::Graf_TV, { 3025, 2640, 250, 120 }, true, false },
    { &Portada::BotonABJ, u"BotonABJ", nullptr, { 5195, 4075, 280, 130 }, true, false },
    { &Portada::Fondo, u"Fondo", nullptr, { -2520, -2400, 2955, 2955 }, true, false },
    { &Portada::IMGDescripcionLarga, u"IMGDescripcionLarga", nullptr, { 0, 0, 360, 315 }, false, false },
};

struct FilaEtiqueta {
    forms::Label *Portada::*control;
    QStringView nombre;
    Tele dentroDe;
    forms::Place lugar;
    QStringView texto;
    Letra letra;
    QRgb color;
    bool centrada;
};

constexpr QRgb Cian = qRgb(192, 255, 255);
constexpr QRgb Verde = qRgb(192, 255, 192);
constexpr QRgb Blanco = qRgb(255, 255, 255);
constexpr QRgb Negro = qRgb(0, 0, 0);
constexpr QRgb Rojo = qRgb(255, 0, 0);

const FilaEtiqueta Etiquetas[] = {
    { &Portada::TXT_InfoRoms, u"TXT_InfoRoms", nullptr, { 120, 1125, 2250, 195 }, u"...", Letra::Terminal,
        Cian, true },
    { &Portada::TXT_Info, u"TXT_Info", &Portada::Graf_TV, { 720, 15, 2085, 210 }, u"Ninguna ROM encontrada",
        Letra::Negrita, Negro, true },
    { &Portada::WEB1, u"WEB1", &Portada::Graf_TV, { 0, 3120, 480, 210 }, u"ROMS", Letra::Negrita, Rojo,
        false },
    { &Portada::WEB2, u"WEB2", nullptr, { 2540, 4545, 345, 210 }, u"WEB", Letra::Negrita, Rojo, false },
    { &Portada::TXT_Describir, u"TXT_Describir", nullptr, { 600, 3930, 705, 210 }, u"Describir",
        Letra::Normal, Verde, false },
    { &Portada::TXT_Borrar, u"TXT_Borrar", nullptr, { 1800, 3930, 615, 210 }, u"Borrar", Letra::Normal, Verde,
        false },
    { &Portada::TXT_dB, u"TXT_dB", nullptr, { 5895, 4515, 195, 210 }, u"dB", Letra::Normal, Verde, false },
    { &Portada::TXT_VerAyuda, u"TXT_VerAyuda", nullptr, { 780, 5055, 1620, 210 }, u"Ver ayuda del emu",
        Letra::Normal, Verde, false },
    { &Portada::TXT_VerConfig, u"TXT_VerConfig", nullptr, { 780, 5280, 1620, 210 }, u"Ver config. del emu",
        Letra::Normal, Verde, false },
    { &Portada::TXT_Boton, u"TXT_Boton", nullptr, { 2610, 5400, 315, 210 }, u"-----", Letra::Negrita, Blanco,
        true },
    { &Portada::TXT_Configurar, u"TXT_Configurar", nullptr, { 3740, 4560, 1740, 210 },
        u"Configurar emuladores", Letra::Normal, Verde, false },
    { &Portada::TXT_Opciones, u"TXT_Opciones", nullptr, { 3740, 4800, 1740, 210 }, u"Opciones del programa",
        Letra::Normal, Verde, false },
    { &Portada::TXT_Utilidades, u"TXT_Utilidades", nullptr, { 3740, 5040, 740, 210 }, u"Utilidades",
        Letra::Normal, Verde, false },
    { &Portada::TXT_AcercaDe, u"TXT_AcercaDe", nullptr, { 3735, 5280, 740, 210 }, u"Acerca...", Letra::Normal,
        Verde, false },
    { &Portada::TXT_Ayuda, u"TXT_Ayuda", nullptr, { 4850, 5040, 640, 210 }, u"Ayuda", Letra::Normal, Verde,
        false },
    { &Portada::TXT_FAQ, u"TXT_FAQ", nullptr, { 4850, 5280, 640, 210 }, u"FAQ", Letra::Normal, Verde, false },
};

struct FilaBoton {
    forms::PictureButton *Portada::*control;
    QStringView nombre;
    QStringView pulsado;
    forms::Place lugar;
    int anchoPulsado;
    bool visible;
};

const FilaBoton Botones[] = {
    { &Portada::JugarB1, u"JugarB1", u"JugarB2", { 2490, 4850, 540, 540 }, 540, true },
    { &Portada::BotonA2, u"BotonA2", u"BotonA1", { 120, 3960, 450, 150 }, 420, true },
    { &Portada::BotonB2, u"BotonB2", u"BotonB1", { 1320, 3960, 450, 150 }, 420, true },
    { &Portada::Menos2a, u"Menos2a", u"Menos1a", { 150, 4260, 270, 270 }, 270, true },
    { &Portada::Menos2b, u"Menos2b", u"Menos1b", { 150, 4600, 270, 270 }, 270, true },
    { &Portada::BotonC2, u"BotonC2", u"BotonC1", { 250, 5080, 450, 150 }, 420, true },
    { &Portada::BotonD2, u"BotonD2", u"BotonD1", { 250, 5320, 450, 150 }, 420, true },
    { &Portada::Boton1b, u"Boton1b", u"Boton1a", { 3220, 4600, 450, 150 }, 420, true },
    { &Portada::Boton2b, u"Boton2b", u"Boton2a", { 3220, 4840, 450, 150 }, 420, true },
    { &Portada::Boton3b, u"Boton3b", u"Boton3a", { 3220, 5080, 450, 150 }, 420, true },
    { &Portada::Boton4b, u"Boton4b", u"Boton4a", { 3220, 5320, 450, 150 }, 420, true },
    { &Portada::Boton5b, u"Boton5b", u"Boton5a", { 4500, 5090, 255, 120 }, 270, true },
    { &Portada::Boton6b, u"Boton6b", u"Boton6a", { 4500, 5330, 255, 120 }, 270, true },
    { &Portada::E1, u"E1", u"E2", { 5620, 4700, 255, 270 }, 255, true },
    { &Portada::D1, u"D1", u"D2", { 5620, 4940, 270, 225 }, 270, true },
    { &Portada::Flecha2, u"Flecha2", u"Flecha1", { 5640, 5160, 465, 465 }, 465, true },
    { &Portada::FlechaE2, u"FlechaE2", u"FlechaE1", { 0, 0, 465, 465 }, 465, false },
    { &Portada::Edit2, u"Edit2", u"Edit1", { 4920, 5160, 465, 465 }, 465, false },
    { &Portada::BlocDeNotas2, u"BlocDeNotas2", u"BlocDeNotas1", { 5520, 5160, 465, 465 }, 465, false },
};

QFont letraDe(Letra letra)
{
    switch (letra) {
    case Letra::Negrita:
        return forms::arial(8.25, true);
    case Letra::Terminal:
        return forms::terminal(6, true);
    case Letra::Normal:
        break;
    }
    return forms::arial(8.25);
}

QWidget *padre(Portada &portada, Tele dentroDe)
{
    return dentroDe ? static_cast<QWidget *>(portada.*dentroDe) : &portada;
}

void montaImagen(Portada &portada, const FilaImagen &fila)
{
    auto *imagen = new forms::Image(padre(portada, fila.dentroDe));
    imagen->setObjectName(fila.nombre.toString());
    forms::move(*imagen, fila.lugar);
    if (fila.conDibujo)
        imagen->SetArtwork(fila.nombre.toString());
    imagen->setVisible(fila.visible);
    portada.*fila.control = imagen;
}

void montaEtiqueta(Portada &portada, const FilaEtiqueta &fila)
{
    auto *etiqueta = new forms::Label(padre(portada, fila.dentroDe));
    etiqueta->setObjectName(fila.nombre.toString());
    etiqueta->setFont(letraDe(fila.letra));
    etiqueta->SetForeColor(fila.color);
    etiqueta->setAlignment((fila.centrada ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignTop);
    etiqueta->SetPlace(fila.lugar);
    etiqueta->SetCaption(fila.texto.toString());
    portada.*fila.control = etiqueta;
}

void montaBoton(Portada &portada, const FilaBoton &fila)
{
    auto *boton = new forms::PictureButton(fila.nombre.toString(), fila.pulsado.toString(), &portada);
    boton->SetPlace(fila.lugar, fila.anchoPulsado);
    boton->setVisible(fila.visible);
    portada.*fila.control = boton;
}

void montaCasillaDB(Portada &portada)
{
    portada.Check1 = dialogs::coloca(new forms::CheckBox(&portada), u"Check1"_s, { 5640, 4460, 200, 255 });
    portada.Check1->setText(u"DB"_s);
    portada.Check1->setFont(forms::arial(6, true));
    QPalette colores = portada.Check1->palette();
    for (const auto papel : { QPalette::WindowText, QPalette::Text })
        colores.setColor(papel, Blanco);
    for (const auto papel : { QPalette::Window, QPalette::Base })
        colores.setColor(papel, Negro);
    portada.Check1->setPalette(colores);
}

void montaSeleccionYLista(Portada &portada)
{
    portada.Lista1 = dialogs::coloca(new forms::ListBox(&portada), u"Lista1"_s, { 120, 1320, 2295, 2580 });
    portada.Combo1 = dialogs::coloca(new forms::ComboBox(&portada), u"Combo1"_s, { 480, 4200, 1935, 330 });
    portada.Combo2 = dialogs::coloca(new forms::ComboBox(&portada), u"Combo2"_s, { 480, 4560, 1935, 330 });
    montaCasillaDB(portada);

    portada.File1 = dialogs::coloca(new forms::ListBox(&portada), u"File1"_s, {});
    portada.Dir1 = dialogs::coloca(new forms::ListBox(&portada), u"Dir1"_s, {});
    portada.File1->hide();
    portada.Dir1->hide();

    portada.Editor = dialogs::coloca(new forms::TextArea(&portada), u"Editor"_s, { 120, 1080, 5895, 4035 });
    portada.Editor->hide();
}

void montaMenus(Portada &portada)
{
    auto *lista = new forms::PopupMenu(u"Menu_Lista1"_s, &portada);
    portada.Menu_Lista1 = lista;
    portada.Menu_Describir = lista->AddEntry(u"Menu_Describir"_s, u"Poner una &descripción"_s);
    portada.Menu_Borrar = lista->AddEntry(u"Menu_Borrar"_s, u"&Borrar la ROM"_s);
    portada.Menu_Parametros = lista->AddEntry(u"Menu_Parametros"_s, u"&Añadir parámetros específicos"_s);

    auto *imagen = new forms::PopupMenu(u"Menu_Graf_Imagen"_s, &portada);
    portada.Menu_Graf_Imagen = imagen;
    portada.Menu_ZoomX2 = imagen->AddEntry(u"Menu_ZoomX2"_s, u"Zoom x&2"_s);
    portada.Menu_ZoomX3 = imagen->AddEntry(u"Menu_ZoomX3"_s, u"Zoom x&3"_s);
    portada.Menu_ZoomX4 = imagen->AddEntry(u"Menu_ZoomX4"_s, u"Zoom x&4"_s);
    portada.Menu_ZoomX5 = imagen->AddEntry(u"Menu_ZoomX5"_s, u"Zoom x&5"_s);
    portada.Menu_OFF = imagen->AddEntry(u"Menu_OFF"_s, u"&OFF"_s);
}

} // namespace

forms::Place LugarDePortada()
{
    return { 0, 0, Ancho, Alto };
}

void Disposicion::Monta(Portada &portada)
{
    portada.SetCaption(u"Zembrolix v2.0"_s);
    portada.SetBackground(u"Portada"_s);
    portada.setFont(forms::arial(8.25));

    const QColor verdeMarco(0, 128, 128);
    portada.Shape1 =
        dialogs::coloca(new forms::Shape(verdeMarco, &portada), u"Shape1"_s, { 3100, 4485, 2415, 1095 });
    portada.Shape2 =
        dialogs::coloca(new forms::Shape(verdeMarco, &portada), u"Shape2"_s, { 150, 4980, 2280, 600 });
    for (const FilaImagen &fila : Imagenes)
        montaImagen(portada, fila);
    montaSeleccionYLista(portada);
    for (const FilaBoton &fila : Botones)
        montaBoton(portada, fila);
    for (const FilaEtiqueta &fila : Etiquetas)
        montaEtiqueta(portada, fila);
    // The light top of the set, between its round corners.
    portada.TXT_Info->SetRoom({ 150, 15, 3165, 210 });
    portada.TXT_Info->SetShortening(core::InfoQueCabe);
    montaMenus(portada);
    // What happens over a control is that control's alone, and not what it stands in.
    for (QWidget *control : portada.findChildren<QWidget *>())
        control->setAttribute(Qt::WA_NoMousePropagation);
}

} // namespace mainscreen
