#include "options/acercade.h"

#include "options/creditos.h"
#include "options/montaje.h"

#include "dialogs/coloca.h"
#include "dialogs/etiqueta.h"

#include "forms/shape.h"

#include "mainscreen/portada.h"

using namespace Qt::StringLiterals;

namespace options {

namespace {

constexpr int Ancho = 3900; // client area, twips
constexpr int Alto = 4140;

} // namespace

AcercaDe::AcercaDe(core::Modulo &modulo, mainscreen::Portada &portada)
    : Form(u"AcercaDe"_s, Ancho, Alto, Border::FixedWithCloseBox)
    , M(modulo)
    , P(portada)
{
    Monta();
    MontaDirecciones();
    Flecha2 = montaje::PonPareja(*this, u"Flecha2"_s, u"Flecha1"_s, { 200, 3420, 615, 375 });
    TXT_Volver = dialogs::palabra(this, u"TXT_Volver"_s, u"Volver"_s, { 120, 3840, 780, 210 });
    Flecha2->Release = [this] { Unload(); };
    montaje::PonFondo(*this, P.Teja());
    // No link has the focus until the user takes it there: a blank typed ahead opens nothing.
    setFocus();
}

void AcercaDe::Monta()
{
    using namespace montaje;

    SetCaption(u"Acerca de..."_s);
    Logotipo = dialogs::coloca(new forms::Image(this), u"Logotipo"_s, { 120, 120, 1440, 1260 });
    Logotipo->SetArtwork(u"Logotipo"_s);

    dialogs::etiqueta(this, u"Label1"_s, creditos::Programa.toString(), { 1680, 180, 2100, 375 }, Qt::white,
        forms::arial(15.75, true), Qt::AlignLeft);
    PonEtiqueta(*this, u"Label2"_s, { 1680, 600, 600, 210 }, creditos::Version.toString(), CianClaro);
    PonEtiqueta(*this, u"Label3"_s, { 2280, 600, 1500, 210 }, creditos::Licencia.toString(), CianClaro);
    Label4 = PonEtiqueta(*this, u"Label4"_s, { 1680, 930, 2100, 210 }, M.Palabras.Zem_Autores, VerdeClaro);
}

void AcercaDe::MontaDirecciones()
{
    using namespace montaje;

    const QColor verdeMarco(0, 128, 128);
    constexpr int Margen = 270;
    dialogs::coloca(new forms::Shape(verdeMarco, this), u"Shape1"_s, { 120, 1530, Ancho - 240, 1740 });

    const auto rotulo = [this](const QString &nombre, int arriba, const QString &texto) {
        return PonEtiqueta(*this, nombre, { Margen, arriba, 3360, 210 }, texto, VerdeClaro);
    };
    const auto enlace = [this](const QString &nombre, int arriba, const creditos::Direccion &direccion) {
        return new Enlace(
            this, nombre, Margen, arriba, direccion.texto.toString(), direccion.destino.toString());
    };
    TXT_Correo1 = rotulo(u"TXT_Correo1"_s, 1620, M.Palabras.Zem_Correo);
    Link_Correo1 = enlace(u"Link_Correo1"_s, 1845, creditos::Correo);
    TXT_Web1 = rotulo(u"TXT_Web1"_s, 2175, M.Palabras.Zem_Web);
    Link_Web1 = enlace(u"Link_Web1"_s, 2400, creditos::Web);
    TXT_Redir = rotulo(u"TXT_Redir"_s, 2730, M.Palabras.Zem_Redir);
    Link_Redir = enlace(u"Link_Redir"_s, 2955, creditos::Redireccion);
}

void AcercaDe::PonTextos()
{
    SetCaption(P.TXT_AcercaDe->Caption());
    TXT_Volver->SetCaption(M.TXT_Volver);
    Label4->SetCaption(M.Palabras.Zem_Autores);
    TXT_Correo1->SetCaption(M.Palabras.Zem_Correo);
    TXT_Web1->SetCaption(M.Palabras.Zem_Web);
    TXT_Redir->SetCaption(M.Palabras.Zem_Redir);
    Logotipo->setAccessibleName(M.Palabras.Zem_Logotipo);
    Link_Correo1->setAccessibleName(TXT_Correo1->Caption() + u' ' + Link_Correo1->Caption());
    Link_Web1->setAccessibleName(TXT_Web1->Caption() + u' ' + Link_Web1->Caption());
    Link_Redir->setAccessibleName(TXT_Redir->Caption() + u' ' + Link_Redir->Caption());
    Flecha2->setAccessibleName(TXT_Volver->Caption());
}

} // namespace options
