// The program-wide state: one instance of one struct, read and written by every screen directly.
#pragma once

#include "core/palabras.h"
#include "core/tabla.h"
#include "core/textos.h"

#include "host/numberedfiles.h"

#include <QString>
#include <QStringList>

namespace core {

inline constexpr int MaxSistemas =
    151; // systems of a catalogue; emulators of a system, the system itself included
inline constexpr int MaxROMs = 6667; // entries of a ROM directory; notes of a system
inline constexpr int MaxIdiomas = 101; // language files offered at the first run
inline constexpr int NingunEmulador = 696969; // UltimoEmulador: no emulator is to be selected

struct Modulo : TextosIdioma {
    host::NumberedFiles Ficheros; // text files: number 1 for reading, 1 and 2 in a rewrite

    // Catalogue, the lines as they stand in the file, prefix included. Emulator 0 is the system itself; an
    // empty name ends a system's emulators.
    Tabla2<QString> Cat_Nombre { MaxSistemas, MaxSistemas };
    Tabla2<QString> Cat_EXE { MaxSistemas, MaxSistemas };
    Tabla2<QString> Cat_XDI { MaxSistemas, MaxSistemas }; // the last character is the emulator's type
    Tabla2<QString> Cat_ROM { MaxSistemas, MaxSistemas };
    Tabla2<QString> Cat_IMG { MaxSistemas, MaxSistemas };
    Tabla2<QString> Cat_PAR1 { MaxSistemas, MaxSistemas };
    Tabla2<QString> Cat_PAR2 { MaxSistemas, MaxSistemas };
    Tabla2<QString> Cat_EXT { MaxSistemas, MaxSistemas }; // by system and running number of the extension
    Tabla<QString> Cat_WEB1 { MaxSistemas };
    Tabla2<QString> Cat_WEB2 { MaxSistemas, MaxSistemas };
    int Indice_Sistema = 0;
    int Indice_Emulador = 0;
    int TotalSistemas = 0;

    // The database's lines while a system is being chosen for configuring.
    Tabla2<QString> BD_Nombre { MaxSistemas, MaxSistemas };
    Tabla2<QString> BD_WEB2 { MaxSistemas, MaxSistemas };
    Tabla2<QString> BD_EXT { MaxSistemas, MaxSistemas };
    Tabla<QString> BD_WEB1 { MaxSistemas };
    int BD_Sistema = 0;
    int BD_Emulador = 0;
    int BD_TotalSistemas = 0;

    // The list of ROMs.
    Tabla<QString> Arch_Nombre { MaxROMs }; // the entry as the file system spells it
    Tabla<QString> Arch_Mayus { MaxROMs }; // the same in upper case
    Tabla<QString> Nota_Clave { MaxROMs }; // keys of the selected system's notes; an empty one ends them
    Tabla<QString> Nota_Texto { MaxROMs }; // the descriptions
    Tabla<QString> ExtActivas { MaxSistemas }; // extensions of the selected system without "*."

    Tabla<QString> Filtros { MaxSistemas }; // directories that are no games
    QString FiltrosTexto; // the same, joined by commas

    // Settings, as the text of their values.
    QString UltimoSistema;
    QString UltimoEmulador;
    QString GuardarUltimo;
    QString TypeOfEditor;
    QString MsgEndDOS;
    QString LanguageFile;
    QString DebugMode;

    // View and guards.
    int VerBaseDeDatos = 0; // 1: the tables show the whole database
    int SoloTablas = 0; // 1: Llena_Combos leaves the combos alone
    int Combo1Listo = 0; // 0 while the combos are being filled: their handlers list nothing
    int Combo2Listo = 0;
    int RestaurarROM = 0; // 1: Llena_Lista selects ROMGuardada
    int EmuConfigurado = 0; // 1: the next selection in Combo2 lists whatever the directory
    QString TipoEmu; // one character, compared as a number
    int NumLista = 0; // entries scanned by the last Llena_Lista, plus 1
    int IndiceRutas = 0;
    Tabla<QString> RutasROM { 3 }; // "ROM" lines of the last two emulators selected, in slots 1 and 2
    int NumROMsBorradas = 0;
    int ZoomActual = 0;

    QString SistemaGuardado;
    QString EmuladorGuardado;
    QString ROMGuardada;

    QString Nota_CampoClave;
    QString Nota_CampoTexto;
    QString Combo1Previo; // a combo's text at its last change by typing: always empty, they are for picking
    QString Combo2Previo;
    int ImagenCambio = 0;
    int Lista1Cambio = 0; // 1 while the black picture shows
    QStringList OrdenBlocDeNotas; // command lines of the outside editors for the file on show
    QStringList OrdenEdit;
    QString TituloDOS;
    QString RutaTrabajo;
    QString DirActual;
    QString ArchivoZip;
    QString DirectorioDestino;

    // The two steps of configuring.
    int Lista1Lista = 0;
    int CambioConfig1 = 0;
    int Config_Origen = 0;
    int Config2_Cambios = 0;
    QString EXE_Previo;
    QString XDI_Previo;
    QString ROM_Previo;
    QString IMG_Previo;
    QString PAR1_Previo;
    QString PAR2_Previo;
    QString ExtTexto;
    int ExtLargo = 0;

    // What stood in the option screens when they were opened.
    int TypeOfEditorPrevio = 0;
    QString IdiomaPrevio;
    int IdiomaCambiado = 0; // 0 while the lists of the options are being filled: their handlers do nothing
    bool GuardarUltimoNuevo = false;
    QString FiltrosNuevo; // the message of the end, in spite of its name

    Tabla<QString> ListaLNG { MaxIdiomas };
    core::Palabras Palabras; // of the language, as its file gives them or as they are built in

    QString AjustesSinGrabar; // those of a first run where nothing can be written, in the place of Zembro.cfg
    bool SoloLecturaDicha = false; // the user knows that nothing can be kept in this directory

    // Answers of the message box.
    QString Respuesta_Caja;
    int Respuesta_Opcion = 0;
    QString RespuestaMensaje;

    // Answers of the file browser.
    QString RutaExaminar;
    QString ArchivoExaminar;
};

// The number that a type digit stands for; -1 for any other text, which then equals no type.
int Numero(const QString &texto);

// The number that a setting's text stands for: its leading digits, 0 where there are none.
int NumeroDeAjuste(const QString &texto);

// The emulator's type: the last character of its "XDI" line, empty for an empty line.
QString TipoDe(const QString &lineaXDI);

// What a catalogue line holds behind its prefix of so many characters.
QString Valor(const QString &linea, int prefijo);

// The same; fails with 5 for a line that is shorter than its prefix.
QString ValorExigido(const QString &linea, int prefijo);

} // namespace core
