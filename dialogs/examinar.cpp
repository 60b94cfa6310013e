#include "dialogs/examinar.h"

#include "dialogs/coloca.h"
#include "dialogs/etiqueta.h"

#include "host/failure.h"
#include "host/letters.h"
#include "host/paths.h"
#include "host/volumes.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace dialogs {

namespace {

const QString Patron = u"*.exe;*.com;*.bat"_s; // of program files, besides those that the user may execute

} // namespace

Examinar::Examinar(core::Modulo &modulo, const Teja &teja, Aviso aviso)
    : Form(u"Examinar"_s, 3975, 3330, Border::FixedWithCloseBox)
    , M(modulo)
    , m_aviso(std::move(aviso))
{
    SetTile(teja.imagen, teja.ancho, teja.alto);
    Monta();
    LlenaDiscos();
    Discos->Selection = [this] { Discos_Selection(); };
    Directorios->Change = [this] { Directorios_Change(); };
    Aceptar2->Release = [this] { Acepta(); };
    Flecha2->Release = [this] {
        M.Respuesta_Opcion = 1;
        Unload();
    };
    M.Respuesta_Opcion = 0;
    Directorios->SetPath(host::programDirectory());
    Directorios->setFocus();
}

void Examinar::Monta()
{
    SetCaption(u"Examinar..."_s);
    SetBackColour(QColor(0, 0, 64));
    Discos = coloca(new forms::ComboBox(this, false), u"Discos"_s, { 120, 120, 1815, 315 });
    Directorios = coloca(new forms::DirectoryList(this), u"Directorios"_s, { 120, 600, 1815, 1890 });
    Archivos = coloca(new forms::ListBox(this, true), u"Archivos"_s, { 2040, 120, 1815, 3015 });
    Archivos->SetHorizontalBar();
    Aceptar2 = new forms::PictureButton(u"Aceptar2"_s, u"Aceptar1"_s, this);
    Aceptar2->SetPlace({ 180, 2620, 465, 405 });
    Flecha2 = new forms::PictureButton(u"Flecha2"_s, u"Flecha1"_s, this);
    Flecha2->SetPlace({ 790, 2640, 615, 375 });
    TXT_Aceptar = palabra(this, u"TXT_Aceptar"_s, u"Aceptar"_s, { 90, 3080, 585, 210 });
    TXT_Volver = palabra(this, u"TXT_Volver"_s, u"Volver"_s, { 800, 3075, 720, 210 });
}

void Examinar::PonTextos(const QString &volver)
{
    SetCaption(M.TXT_Examinar);
    TXT_Aceptar->SetCaption(M.TXT_Aceptar);
    TXT_Volver->SetCaption(volver);
    const std::pair<QWidget *, QString> nombres[] = {
        { Discos, M.Palabras.Zem_Discos },
        { Directorios, M.Palabras.Zem_Directorios },
        { Archivos, M.Palabras.Zem_Archivos },
        { Aceptar2, M.TXT_Aceptar },
        { Flecha2, volver },
    };
    for (const auto &[control, nombre] : nombres)
        control->setAccessibleName(nombre);
}

// Opens on the volume of the working directory, wherever Directorios then goes.
void Examinar::LlenaDiscos()
{
    const QStringList volumenes = host::volumes();
    for (const QString &volumen : volumenes)
        Discos->AddItem(volumen);
    Discos->SetText(host::volumeOf(volumenes, host::currentDirectory()));
}

// A volume that can't be opened goes on showing, beside the directory that was open before.
void Examinar::Discos_Selection()
{
    const QString volumen = Discos->Text();
    try {
        if (!host::isVolumeReady(volumen))
            throw host::Failure(host::PathNotFound, u"open a volume"_s, volumen);
        Directorios->SetPath(volumen);
    } catch (const host::Failure &) {
        m_aviso(M.Msg_NoDiscoI1 + u' ' + host::upper(volumen) + u' ' + M.Msg_NoDiscoD1, M.Msg_NoDiscoX0,
            TXT_Aceptar->Caption(), TXT_Volver->Caption());
    }
}

void Examinar::Directorios_Change()
{
    Archivos->Clear();
    for (const QString &archivo : host::listPrograms(Directorios->Path(), Patron))
        Archivos->AddItem(archivo);
}

void Examinar::Acepta()
{
    M.RutaExaminar = Directorios->PathAsEntered();
    M.ArchivoExaminar = Archivos->Text();
    Unload();
}

} // namespace dialogs
