// The line of facts and the capture of the selected entry. Controls: TXT_Info, Graf_Imagen, Imagen of
// Aumento. An entry that several notes share is looked up in every one of them, and the last one's result
// stands.

#include "mainscreen/portada.h"

#include "core/info.h"
#include "core/rutas.h"

#include "forms/pictures.h"

#include "host/lengths.h"

namespace mainscreen {

void Portada::LLena_INFO()
{
    if (Combo2->Text().isEmpty())
        return;
    QString linea;
    try {
        const int sistema = Sistema();
        const int emulador = Emulador() + 1;
        M.TipoEmu = core::TipoDe(M.Cat_XDI(sistema, emulador));
        if (Lista1->ListIndex() < 0)
            return;
        const QString directorio = core::RutaExigida(M.Cat_ROM(sistema, emulador));
        const host::LengthsIn largos(directorio);
        linea = core::UltimaLineaDeInfo(
            M, Lista1->Text(), core::Numero(M.TipoEmu), directorio,
            [&](const QStringList &nombres) { return largos.ofAll(nombres); },
            [&](const QString &ruta) { return largos.lists(ruta); });
    } catch (const host::Failure &) {
        // The label keeps its text.
    }
    if (!linea.isEmpty())
        PonInfo(linea);
}

void Portada::Lista1_Selection()
{
    LLena_INFO();
    PonPuntero(RelojDeArena);
    M.Lista1Cambio = 0;
    BotonARR->hide();
    if (M.ZoomActual == 0 && M.ImagenCambio == 0) {
        SinCaptura();
        return;
    }
    M.ImagenCambio = 0;
    if (!Combo2->Text().isEmpty())
        M.TipoEmu = core::TipoDe(M.Cat_XDI(Sistema(), Emulador() + 1));
    try {
        CargaCaptura();
        PonPuntero(PunteroNormal);
    } catch (const host::Failure &) {
        SinCaptura();
    }
}

void Portada::CargaCaptura()
{
    Graf_Imagen->show();
    const QString directorio = core::RutaExigida(M.Cat_IMG(Sistema(), Emulador() + 1));
    QStringList rutas = core::CapturasDe(M, Lista1->Text(), core::Numero(M.TipoEmu), directorio);
    if (rutas.isEmpty())
        return;
    const QString ruta = rutas.takeLast();
    const QPixmap captura = forms::LoadPicture(ruta);
    Aumento.Conocidas.Check(directorio, rutas, [this, captura = captura.cacheKey()] {
        if (Graf_Imagen->Picture().cacheKey() == captura)
            SinCaptura();
    });
    Graf_Imagen->SetPicture(captura);
    Aumento.Imagen->SetPicture(captura);
}

void Portada::SinCaptura()
{
    M.Lista1Cambio = 1;
    PonNegro();
    if (!BotonABJ->isHidden())
        BotonARR->show();
    PonPuntero(PunteroNormal);
}

void Portada::PonNegro()
{
    Aumento.Imagen->SetPicture(Aumento.Negro->Picture());
    Graf_Imagen->SetPicture(Aumento.Negro->Picture());
}

} // namespace mainscreen
