#include "mainscreen/portada.h"

#include "mainscreen/disposicion.h"

#include "core/arranque.h"

#include "forms/pictures.h"

#include "host/desktopquestions.h"
#include "host/paths.h"

using namespace Qt::StringLiterals;

namespace mainscreen {

Portada::Portada(core::Modulo &modulo)
    : Form(u"Portada"_s, LugarDePortada().width, LugarDePortada().height, Border::None)
    , M(modulo)
    , m_mensajes(
          modulo, [this] { return this; }, [this] { return Teja(); })
{
    Disposicion::Monta(*this);
    ConectaArranque();
    ConectaSeleccion();
    ConectaLista();
    ConectaZoom();
    ConectaLanzamiento();
    ConectaAcciones();
    ConectaDocumentos();
    ConectaSuperficie();
    ConectaTeclado();
    ConectaLectores();
    ConectaTamano();
}

Portada::~Portada()
{
    // What its controls raise when they are hidden still finds the members.
    hide();
}

void Portada::Mensaje(int Tipo, const QString &mensaje, const QString &TituloVentana, const QString &Boton1,
    const QString &Boton2, const QString &MeterEnCajaDeTexto)
{
    m_mensajes.Mensaje(Tipo, mensaje, TituloVentana, Boton1, Boton2, MeterEnCajaDeTexto);
}

dialogs::Teja Portada::Teja() const
{
    const forms::Place lugar = forms::placeOf(*Fondo);
    return { forms::artwork(Fondo->objectName(), Fondo->size(), devicePixelRatioF()), lugar.width,
        lugar.height };
}

void Portada::Textos()
{
    const auto directo = [this](const QString &nombre, const QString &texto) {
        for (forms::MenuEntry *entrada : { Menu_Describir, Menu_Borrar, Menu_Parametros }) {
            if (entrada->action()->objectName() == nombre)
                entrada->SetCaption(texto);
        }
        if (auto *etiqueta = dynamic_cast<forms::Label *>(Control(nombre)))
            etiqueta->SetCaption(texto);
    };
    M.Palabras = {};
    core::LectorDeTextos lector(M, directo);
    const QString fichero = host::programFile(u"LNG/"_s + M.LanguageFile);
    core::LeeFichero(fichero, [&] {
        M.Ficheros.openForInput(1, fichero);
        do {
            const QString linea = M.Ficheros.readLine(1);
            lector.Linea(linea);
            core::LeePalabra(M.Palabras, linea);
        } while (!M.Ficheros.atEnd(1));
    });
    M.Ficheros.closeAll();
    NombraControles();
    host::setAnswerWords({ M.TXT_Si, M.TXT_No, M.TXT_Aceptar, M.Palabras.Zem_Cancelar });
}

} // namespace mainscreen
