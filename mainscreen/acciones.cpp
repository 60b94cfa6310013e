// What is done to the selected ROM without starting it: thrown away, described, given parameters of its own.
// Controls: BotonA2, BotonB2, Menu_Lista1. Zembro.rom keeps the notes of ROMs that are gone: one of the same
// name gets them back.

#include "mainscreen/escritura.h"
#include "mainscreen/portada.h"

#include "core/arranque.h"
#include "core/campos.h"
#include "core/lista.h"
#include "core/notas.h"
#include "core/romelegida.h"
#include "core/rutas.h"

#include "host/paths.h"
#include "host/questions.h"
#include "host/trash.h"

#include "launch/piezas.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace mainscreen {

void Portada::ConectaAcciones()
{
    BotonA2->Release = Menu_Describir->Click = [this] { Describir(); };
    BotonB2->Release = Menu_Borrar->Click = [this] { Borrar(); };
    Menu_Parametros->Click = [this] { Menu_Parametros_Click(); };
}

void Portada::Lista1_KeyDown(int tecla)
{
    switch (tecla) {
    case forms::EnterKey:
        Jugar();
        break;
    case forms::DeleteKey:
        Borrar();
        break;
    case forms::InsertKey:
        Describir();
        break;
    }
}

bool Portada::HayROMElegida() const
{
    return !Combo2->Text().isEmpty() && Lista1->ListIndex() >= 0;
}

void Portada::Borrar()
{
    if (!HayROMElegida())
        return;
    const int indice = Lista1->ListIndex();
    const QString directorio = core::RutaDeLinea(M.Cat_ROM(Sistema(), Emulador() + 1));
    M.TipoEmu = core::TipoDe(M.Cat_XDI(Sistema(), Emulador() + 1));
    M.Nota_CampoTexto = core::FicheroDeEntrada(M, core::Numero(M.TipoEmu), Lista1->Text());
    // Without a name it would be the whole directory.
    if (M.Nota_CampoTexto.isEmpty())
        return;
    const QString ruta = directorio + M.Nota_CampoTexto;
    const QString enDisco = host::trueSpelling(ruta);
    BorrarAPapelera(enDisco);
    // Another file may answer to the name in another case.
    if (host::exists(ruta) && host::trueSpelling(ruta) == enDisco)
        return;
    Lista1->RemoveItem(indice);
    Lista1->SetListIndex(indice == 0 ? 0 : indice - 1);
}

void Portada::BorrarAPapelera(const QString &ruta)
{
    const core::Palabras &palabras = M.Palabras;
    const QString nombre = QFileInfo(ruta).fileName();
    if (!host::exists(ruta)
        || !host::questions().askYesNo(palabras.Zem_Papelera0, palabras.Zem_Papelera1 + u"\n\n"_s + nombre))
        return;
    if (!host::moveToTrash(ruta))
        Advierte(palabras.Zem_NoPapelera0, palabras.Zem_NoPapelera1);
}

void Portada::Describir()
{
    if (!HayROMElegida())
        return;
    const int indice = Lista1->ListIndex();
    const QString entrada = Lista1->Text();
    const int nota = core::NotaConTexto(M, entrada);
    Mensaje(1, M.Msg_Descripcion1, M.Msg_Descripcion0, M.TXT_Aceptar, M.TXT_Volver, entrada);
    if (M.Respuesta_Caja == entrada || M.Respuesta_Opcion == 1)
        return;
    const QString descripcion = M.Respuesta_Caja;
    M.TipoEmu = core::TipoDe(M.Cat_XDI(Sistema(), Emulador() + 1));
    const int tipo = core::Numero(M.TipoEmu);
    if (!core::FicherosSueltos(tipo) && !core::UnDirectorioPorJuego(tipo) && !core::UnZipPorJuego(tipo))
        return;
    if (!core::SePuedeDescribir(nota < 0 ? core::ClaveNueva(tipo, entrada) : M.Nota_Clave(nota))) {
        NoSeAnota();
        return;
    }
    if (!core::EsDescripcionEntera(descripcion)) {
        Advierte(M.Palabras.Zem_NoNota0, M.Palabras.Zem_NoDescrip1);
        return;
    }
    bool guardada = false;
    if (!Escribe(M, *this, [&] { guardada = GuardaDescripcion(tipo, nota, entrada, descripcion); }))
        return;
    if (!guardada) {
        Advierte(M.Palabras.Zem_NoNota0, M.Palabras.Zem_NoLinea1);
        return;
    }
    const QString leida = core::DescripcionLeida(descripcion);
    CambiaEntrada(indice, leida);
    if (leida != descripcion)
        Advierte(M.Palabras.Zem_Comillas0, M.Palabras.Zem_Comillas1);
}

void Portada::CambiaEntrada(int indice, const QString &descripcion)
{
    JugarB1->setFocus();
    Lista1->RemoveItem(indice);
    Lista1->AddItem(descripcion);
    // With the old notes still: the line of facts shows the new text as a file's.
    Lista1->SetText(descripcion);
    Lista1->setFocus();
    core::RecargaNotas(M, Combo1->Text());
}

// Some names would come back from the file as others, or leave no key.
void Portada::NoSeAnota()
{
    Advierte(M.Palabras.Zem_NoNota0, M.Palabras.Zem_NoNota1);
}

bool Portada::GuardaDescripcion(int tipo, int nota, const QString &entrada, const QString &descripcion)
{
    const QString sistema = Combo1->Text();
    if (nota >= 0)
        M.ArchivoExaminar = M.Nota_Clave(nota);
    bool guardada = false;
    ReescribeNotas([&](const QString &texto) {
        if (nota >= 0) {
            guardada = core::HayDescripcion(texto, entrada, M.ArchivoExaminar);
            return core::ConDescripcionCambiada(texto, entrada, M.ArchivoExaminar, descripcion);
        }
        const QString despues =
            core::ConDescripcionNueva(texto, sistema, core::ClaveNueva(tipo, entrada), descripcion);
        guardada = despues != texto;
        return despues;
    });
    return guardada;
}

void Portada::Menu_Parametros_Click()
{
    QString clave = core::ClaveDeParametros(M, Lista1->Text());
    bool valen = core::SeEncuentranSusParametros(M, Lista1->Text());
    // Of a game without a description the name that its launch looks for.
    const QString enDOS = clave == Lista1->Text()
        ? launch::ClaveEnDOS(core::RutaDeLinea(M.Cat_EXE(Sistema(), Emulador() + 1)),
            core::RutaDeLinea(M.Cat_ROM(Sistema(), Emulador() + 1)), clave)
        : QString();
    if (!enDOS.isEmpty()) {
        clave = enDOS;
        valen = true;
    }
    const QString actuales = LeeParametros(clave);
    Mensaje(1, valen ? M.Msg_Parametros1 : M.Palabras.Zem_PideNota, M.Msg_Parametros0, M.TXT_Aceptar,
        M.TXT_Volver, actuales);
    if (M.Respuesta_Caja == actuales || M.Respuesta_Opcion == 1)
        return;
    const core::Parametros nuevos { clave, Combo1->Text(), Combo2->Text(), M.Respuesta_Caja };
    if (!SePuedenAnotar(nuevos))
        return;
    Escribe(M, *this, [&] {
        ReescribeNotas([&](const QString &texto) {
            return actuales.isEmpty() ? core::ConParametrosNuevos(texto, nuevos)
                                      : core::ConParametrosCambiados(texto, nuevos);
        });
    });
}

// What would not come back from the file is refused with a word.
bool Portada::SePuedenAnotar(const core::Parametros &parametros)
{
    const core::Palabras &palabras = M.Palabras;
    if (!core::SePuedeEscribir(parametros.clave))
        NoSeAnota();
    else if (!core::CabeEnUnCampo(parametros.sistema) || !core::CabeEnUnCampo(parametros.emulador))
        Advierte(palabras.Zem_NoCampo0, palabras.Zem_NoCampo1);
    else if (!core::SonParametrosEnteros(parametros.texto))
        Advierte(palabras.Zem_NoParam0, palabras.Zem_NoParam1);
    else
        return true;
    return false;
}

QString Portada::LeeParametros(const QString &clave)
{
    QString parametros;
    const QString fichero = host::programFile(u"Zembro.rom"_s);
    core::LeeFichero(fichero, [&] {
        M.Ficheros.openForInput(1, fichero);
        host::TextSource notas(M.Ficheros.rest(1));
        M.Ficheros.closeAll();
        parametros = core::ParametrosEscritos(notas, clave, Combo1->Text(), Combo2->Text());
    });
    return parametros;
}

void Portada::ReescribeNotas(const std::function<QString(const QString &)> &cambio)
{
    M.Ficheros.rewrite(host::programFile(u"Zembro.rom"_s), u"Zembro.tmp"_s, cambio);
}

} // namespace mainscreen
