#include "options/primerainstalacion.h"

#include "options/montaje.h"

#include "core/ajustes.h"
#include "core/idiomas.h"

#include "dialogs/etiqueta.h"

#include "host/failure.h"
#include "host/letters.h"
#include "host/paths.h"

using namespace Qt::StringLiterals;

namespace options {

PrimeraInstalacion::PrimeraInstalacion(core::Modulo &modulo)
    : Form(u"PrimeraInstalacion"_s, 2820, 2310, Border::None)
    , M(modulo)
{
    Monta();
    List1->Selection = [this] { List1_Selection(); };
    Aceptar2->Press = [this] { Aceptar2_Press(); };
    Aceptar2->Release = [this] { Aceptar2_Release(); };
    Carga();
}

void PrimeraInstalacion::Monta()
{
    SetBackground(u"PrimeraInstalacion"_s);
    SetCaption(u"Zembrolix"_s);
    List1 = new forms::ListBox(this);
    List1->setObjectName(u"List1"_s);
    forms::move(*List1, { 360, 270, 1335, 1425 });
    File1 = new forms::ListBox(this);
    File1->setObjectName(u"File1"_s);
    forms::move(*File1, { 360, 240, 975, 870 });
    File1->hide();

    Label1 = montaje::PonEtiqueta(*this, u"Label1"_s, { 1800, 270, 975, 615 },
        u"Idioma   Language     Lingua"_s, QColor(128, 255, 255));
    Label1->setWordWrap(true);
    Aceptar2 = montaje::PonPareja(*this, u"Aceptar2"_s, u"Aceptar1"_s, { 1800, 960, 465, 405 });
    TXT_Aceptar = dialogs::palabra(this, u"TXT_Aceptar"_s, u"OK"_s, { 1875, 1440, 255, 210 });
    Aceptar2->setAccessibleName(TXT_Aceptar->Caption());
    List1->setAccessibleName(Label1->Caption());
    Label6 = montaje::PonEtiqueta(*this, u"Label6"_s, { 170, 1800, 2430, 255 },
        u"Lng: Español - Autor: Dorvel"_s, QColor(128, 255, 128), Qt::AlignHCenter);
}

void PrimeraInstalacion::Carga()
{
    const QStringList ficheros = core::FicherosDeIdioma();
    for (int i = 0; i < ficheros.size(); ++i) {
        List1->AddItem(host::upper(ficheros[i]));
        M.ListaLNG(i) = core::CreditoDeIdioma(M, ficheros[i]);
    }
    List1->SetText(u"ZB-ESP.LNG"_s);
}

void PrimeraInstalacion::List1_Selection()
{
    Label6->SetCaption(M.ListaLNG(List1->ListIndex()));
}

// Without a language among those offered no start would get past the reading of its texts.
bool PrimeraInstalacion::FaltaElegir() const
{
    return List1->ListCount() > 0 && List1->ListIndex() < 0;
}

// On the press already: a release that never comes leaves the settings written.
void PrimeraInstalacion::Aceptar2_Press()
{
    if (FaltaElegir())
        return;
    // What lies there has no name that the settings give back; once mended, the first run comes again.
    if (List1->ListCount() == 0 && host::exists(host::programFile(u"LNG"_s)))
        throw host::Failure(
            host::FileNotFound, u"find a language file that can be chosen"_s, host::programFile(u"LNG/"_s));
    const QString ajustes = core::AjustesPorDefecto(List1->Text());
    try {
        M.Ficheros.replace(host::programFile(u"Zembro.cfg"_s), u"Zembro.tmp"_s, ajustes);
    } catch (const host::ReadOnlyPlace &) {
        M.AjustesSinGrabar = ajustes; // the main screen tells so, in the language chosen
    }
}

void PrimeraInstalacion::Aceptar2_Release()
{
    if (!FaltaElegir())
        Unload();
}

} // namespace options
