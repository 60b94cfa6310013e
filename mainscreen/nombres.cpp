// The names under which screen readers know the controls, in the language of the screen: the word beside a
// control, or one of its own where it stands without any.

#include "mainscreen/portada.h"

namespace mainscreen {

void Portada::NombraControles()
{
    const auto sinTecla = [](QString entrada) { return entrada.remove(u'&'); };
    const core::Palabras &palabras = M.Palabras;
    const std::pair<QWidget *, QString> nombres[] = {
        { Lista1, palabras.Zem_Lista1 },
        { BotonA2, TXT_Describir->Caption() },
        { BotonB2, TXT_Borrar->Caption() },
        { Menos2a, palabras.Zem_Menos2a },
        { Combo1, palabras.Zem_Combo1 },
        { Menos2b, palabras.Zem_Menos2b },
        { Combo2, palabras.Zem_Combo2 },
        { BotonC2, TXT_VerAyuda->Caption() },
        { BotonD2, TXT_VerConfig->Caption() },
        { JugarB1, M.TXT_Jugar },
        { Titulo1, palabras.Zem_Titulo1 },
        { Graf_TV, palabras.Zem_Graf_TV },
        { Graf_Imagen, palabras.Zem_Captura },
        { X2, sinTecla(Menu_ZoomX2->Caption()) },
        { X3, sinTecla(Menu_ZoomX3->Caption()) },
        { X4, sinTecla(Menu_ZoomX4->Caption()) },
        { X5, sinTecla(Menu_ZoomX5->Caption()) },
        { OFF, palabras.Zem_OFF },
        { WEB1, palabras.Zem_WEB1 },
        { WEB2, palabras.Zem_WEB2 },
        { Boton1b, TXT_Configurar->Caption() },
        { Boton2b, TXT_Opciones->Caption() },
        { Boton3b, TXT_Utilidades->Caption() },
        { Boton4b, TXT_AcercaDe->Caption() },
        { Boton5b, TXT_Ayuda->Caption() },
        { Boton6b, TXT_FAQ->Caption() },
        { Check1, M.TXT_BaseDeDatos },
        { E1, palabras.Zem_E1 },
        { D1, palabras.Zem_D1 },
        { Flecha2, palabras.Zem_Flecha2 },
        { Editor, palabras.Zem_Editor },
        { FlechaE2, palabras.Zem_FlechaE2 },
        { Edit2, palabras.Zem_Edit2 },
        { BlocDeNotas2, palabras.Zem_BlocNotas2 },
    };
    for (const auto &[control, nombre] : nombres)
        control->setAccessibleName(nombre);
}

} // namespace mainscreen
