// The texts that come with an emulator, and the program's own. Controls: BotonC2, BotonD2, Boton5b, Boton6b,
// D1, E1; the Editor, which lies over the lower half of the screen while it is open, with FlechaE2, Edit2 and
// BlocDeNotas2. What is typed in the Editor is never saved: files are changed in the desktop's editors.

#include "mainscreen/portada.h"

#include "core/columnas.h"
#include "core/documentos.h"
#include "core/rutas.h"

#include "forms/assistance.h"

#include "host/paths.h"
#include "host/process.h"
#include "host/tools.h"

#include "launch/esperaremulador.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace mainscreen {

namespace {

// For programs that start in another directory.
QString absoluta(const QString &ruta)
{
    const QString enDisco = host::trueSpelling(ruta);
    return QFileInfo(enDisco.isEmpty() ? ruta : enDisco).absoluteFilePath();
}

// One that is there but fails to start does so in silence.
void arranca(const QStringList &orden)
{
    try {
        host::Process::start(orden);
    } catch (const host::Failure &) {
        return;
    }
}

} // namespace

void Portada::ConectaDocumentos()
{
    BotonC2->Release = [this] { BotonC2_Release(); };
    BotonD2->Release = [this] { BotonD2_Release(); };
    Boton5b->Release = [this] { MuestraTextoPropio(u"Zembro.txt"_s); };
    Boton6b->Release = [this] { MuestraTextoPropio(u"Zembro.faq"_s); };
    E1->Release = [this] { E1_Release(); };
    D1->Release = [this] { D1_Release(); };
    FlechaE2->Release = [this] { FlechaE2_Release(); };
    Edit2->Release = [this] { AbreEnEditor(M.OrdenEdit, M.Palabras.Zem_FaltaEdit); };
    BlocDeNotas2->Release = [this] { AbreEnEditor(M.OrdenBlocDeNotas, M.Palabras.Zem_FaltaEditor); };
}

void Portada::BotonC2_Release()
{
    if (Combo2->Text().isEmpty())
        return;
    if (const auto ruta = core::PrimeroQueExiste(core::CandidatosDeAyuda(RutaDelEmulador())))
        MuestraDocumento(*ruta, [this] { PrepararEditor(); });
    else
        NoHayDocumento(M.Msg_AyudaNoEnc0, M.Msg_AyudaNoEnc1);
}

void Portada::BotonD2_Release()
{
    if (Combo2->Text().isEmpty())
        return;
    if (const auto ruta = core::PrimeroQueExiste(core::CandidatosDeConfiguracion(RutaDelEmulador())))
        MuestraDocumento(*ruta, [this] { RestaurarEditor(); });
    else
        NoHayDocumento(M.Msg_CFGNoEnc0, M.Msg_CFGNoEnc1);
}

QString Portada::RutaDelEmulador() const
{
    return core::RutaDeLinea(M.Cat_EXE(Sistema(), Emulador() + 1));
}

void Portada::NoHayDocumento(const QString &titulo, const QString &texto)
{
    setEnabled(false);
    Advierte(titulo, texto);
    setEnabled(true);
    Lista1->setFocus();
}

void Portada::MuestraDocumento(const QString &ruta, const std::function<void()> &prepara)
{
    Editor->show();
    prepara();
    M.OrdenBlocDeNotas = host::editorCommand(absoluta(ruta));
    M.OrdenEdit = host::terminalEditorCommand(absoluta(ruta));
    Edit(ruta);
    Editor->setFocus();
    forms::TellOfCover(*this);
}

void Portada::Edit(const QString &ruta)
{
    Editor->SetText(QString());
    const core::Documento documento = core::LeeDocumento(ruta);
    if (documento.cortado)
        Aviso(M.Msg_ArchGrande0, M.Msg_ArchGrande1);
    Editor->SetColumns(core::TieneColumnas(documento.texto), core::AnchoDeTabulador);
    Editor->SetText(documento.texto);
}

void Portada::PrepararEditor()
{
    for (QWidget *control : OcultosPorElEditor())
        control->hide();
    forms::move(*Editor, { 120, 1080, 5895, 4035 });
    Editor->raise();
    DejaElTecladoAlEditor(true);
    for (forms::PictureButton *boton : { FlechaE2, Edit2, BlocDeNotas2 })
        boton->show();
}

void Portada::RestaurarEditor()
{
    PrepararEditor();
}

void Portada::ColoresDelEditor(int tipo)
{
    if (tipo == 0)
        Editor->SetColours(forms::colourFromNumber(0xC00000), forms::colourFromNumber(0xC0C0C0));
    else if (tipo == 1)
        Editor->SetColours(forms::colourFromNumber(0x80000005), forms::colourFromNumber(0));
}

void Portada::FlechaE2_Release()
{
    DejaElTecladoAlEditor(false);
    Lista1->setFocus();
    for (QWidget *control : std::initializer_list<QWidget *> { Editor, FlechaE2, Edit2, BlocDeNotas2 })
        control->hide();
    for (QWidget *control : OcultosPorElEditor())
        control->show();
    forms::TellOfCover(*this);
}

// Labels last: shown again, once the Editor has gone, they grow into the room that the others leave. The
// frames go too, which would stand there cut in half.
std::vector<QWidget *> Portada::OcultosPorElEditor() const
{
    return { Shape1, Shape2, D1, Check1, BotonC2, BotonD2, Boton3b, Boton4b, Flecha2, JugarB1, Menos2b,
        Boton5b, Boton6b, TXT_dB, TXT_Boton, TXT_Ayuda, TXT_AcercaDe, TXT_VerAyuda, TXT_VerConfig,
        TXT_Utilidades, TXT_FAQ };
}

void Portada::AbreEnEditor(const QStringList &orden, const QString &falta)
{
    if (orden.isEmpty())
        Advierte(M.Palabras.Zem_Falta0, falta);
    else
        arranca(orden);
}

void Portada::MuestraTextoPropio(const QString &fichero)
{
    EsperaHerramienta(host::editorCommand(absoluta(host::programFile(fichero))), M.Palabras.Zem_FaltaEditor);
}

void Portada::E1_Release()
{
    if (Combo2->Text().isEmpty())
        return;
    const QString directorio = core::DirectorioDe(RutaDelEmulador());
    const QString enDisco = directorio.isEmpty() ? host::currentDirectory() : absoluta(directorio);
    EsperaHerramienta(host::fileManagerCommand(enDisco), M.Palabras.Zem_FaltaGestor);
}

void Portada::D1_Release()
{
    if (Combo2->Text().isEmpty())
        return;
    const QStringList terminal = host::terminalCommand();
    if (terminal.isEmpty()) {
        Advierte(M.Palabras.Zem_Falta0, M.Palabras.Zem_FaltaTerm);
        return;
    }
    const QString directorio = core::DirectorioDe(RutaDelEmulador());
    if (!directorio.isEmpty())
        host::changeDirectory(directorio);
    arranca(terminal);
}

void Portada::EsperaHerramienta(const QStringList &orden, const QString &falta)
{
    if (orden.isEmpty()) {
        Advierte(M.Palabras.Zem_Falta0, falta);
        return;
    }
    try {
        launch::EsperarEmulador(M, *this, launch::LineaDeOrden::DeArgumentos(orden));
    } catch (const host::Failure &) {
        return;
    }
}

} // namespace mainscreen
