// Words of the program that language files may lack: they have a Spanish text built in. In a language file
// they stand under their own keys, like all others.
#pragma once

#include <QString>

#include <span>

namespace core {

struct Palabras {
    // Throwing a ROM away.
    QString Zem_Papelera0 = QStringLiteral("Papelera");
    QString Zem_Papelera1 = QStringLiteral("¿Mover a la papelera?");
    QString Zem_NoPapelera0 = QStringLiteral("Sin papelera");
    QString Zem_NoPapelera1 = QStringLiteral("La papelera no admite este archivo: se queda donde está.");

    // Describing one, or giving it parameters.
    QString Zem_NoNota0 = QStringLiteral("Sin anotar");
    QString Zem_NoNota1 = QStringLiteral("Este nombre de archivo no se puede anotar.");
    QString Zem_NoDescrip1 = QStringLiteral("Sin comas detrás de unas comillas.");
    QString Zem_NoLinea1 = QStringLiteral("Zembro.rom no tiene la línea que habría que cambiar.");
    QString Zem_Comillas0 = QStringLiteral("Descripción cortada");
    QString Zem_Comillas1 = QStringLiteral("Se lee solo lo que hay delante de las comillas.");
    QString Zem_NoParam0 = QStringLiteral("Sin grabar");
    QString Zem_NoParam1 = QStringLiteral("Sin comas, y sin comillas al principio.");
    // In the place of the box's words where what is typed would not be found.
    QString Zem_PideNota = QStringLiteral("Sin efecto mientras la ROM no tenga descripción:");
    QString Zem_NoCampo0 = QStringLiteral("Sin anotar");
    QString Zem_NoCampo1 = QStringLiteral("El nombre de sistema o emulador no se puede anotar.");

    // Saving the advanced options.
    QString Zem_NoFiltro0 = QStringLiteral("Sin grabar");
    QString Zem_NoFiltro1 = QStringLiteral("Sin coma delante, ni nombres en blanco, ni VACIO.");
    QString Zem_NoFinal0 = QStringLiteral("Sin grabar");
    QString Zem_NoFinal1 = QStringLiteral("La palabra no admite el signo =, ni VACIO tras una coma.");

    // Adding a system or an emulator, and what another program has changed meanwhile.
    QString Zem_NoNombre0 = QStringLiteral("Sin añadir");
    QString Zem_NoNombre1 = QStringLiteral("Este nombre no se puede usar: pon otro.");
    QString Zem_Cambiado0 = QStringLiteral("Nada ha cambiado");
    QString Zem_Cambiado1 = QStringLiteral("Otro programa ha cambiado el archivo entretanto.");

    // What can't be kept, as it lies where nothing can be written.
    QString Zem_SoloLeer0 = QStringLiteral("Sin grabar");
    QString Zem_SoloLeer1 = QStringLiteral("No se puede escribir en el directorio del programa.");
    QString Zem_SoloIdioma1 = QStringLiteral("No se puede escribir aquí: el idioma no se recuerda.");
    QString Zem_SoloFin1 = QStringLiteral("No se puede escribir aquí: la selección no se recuerda.");
    QString Zem_SoloCapt1 = QStringLiteral("No se puede escribir en el directorio de las capturas.");
    QString Zem_SoloTamano1 = QStringLiteral("El tamaño no se puede guardar en Zembro.tam.");

    // Playing one out of an archive.
    QString Zem_NoZip0 = QStringLiteral("ZIP ilegible");
    QString Zem_NoZip1 = QStringLiteral("El ZIP está dañado, o es demasiado antiguo.");
    QString Zem_NoJunto0 = QStringLiteral("Sin descomprimir");
    QString Zem_NoJunto1 = QStringLiteral("No se puede escribir en el directorio del emulador.");

    // What the desktop lacks.
    QString Zem_Falta0 = QStringLiteral("Falta un programa");
    QString Zem_FaltaEditor = QStringLiteral("No hay ningún editor de textos instalado.");
    QString Zem_FaltaEdit = QStringLiteral("No hay ningún editor para el terminal, o ningún terminal.");
    QString Zem_FaltaTerm = QStringLiteral("No hay ningún terminal instalado.");
    QString Zem_FaltaGestor = QStringLiteral("No hay ningún gestor de archivos instalado.");

    // A program for another system, and what runs it.
    QString Zem_FaltaDOSBox = QStringLiteral("Este emulador es de DOS: instala DOSBox.");
    QString Zem_FaltaWine = QStringLiteral("Este emulador es de Windows: instala Wine.");
    QString Zem_NoDOS0 = QStringLiteral("DOS no lo admite");
    QString Zem_NombreDOS = QStringLiteral("DOS no abre un archivo de este nombre: cámbialo.");
    QString Zem_LargoDOS = QStringLiteral("La línea de órdenes pasa de 126 caracteres.");
    QString Zem_NoWindows0 = QStringLiteral("Windows no lo admite");
    QString Zem_NombreWin = QStringLiteral("Windows no abre un archivo de este nombre: cámbialo.");
    QString Zem_SignoDOS = QStringLiteral("Los parámetros tienen un signo que DOS no admite.");
    QString Zem_NoTmp0 = QStringLiteral("No arranca");
    QString Zem_NoTmp1 = QStringLiteral("El directorio temporal está lleno o no se puede usar.");
    QString Zem_SinUnidad = QStringLiteral("Falta la unidad %1:");

    // What a game saved and that couldn't go to its place: %1 is that, %2 where it lies.
    QString Zem_NoVuelve0 = QStringLiteral("Partida guardada aparte");
    QString Zem_NoVuelve1 = QStringLiteral(
        "Lo que guardó el juego no se pudo llevar a %1. Está en %2, y el programa lo intentará otra vez.");

    // Names of controls that show no word, as screen readers say them.
    QString Zem_Lista1 = QStringLiteral("Juegos");
    QString Zem_Combo1 = QStringLiteral("Sistema");
    QString Zem_Combo2 = QStringLiteral("Emulador");
    QString Zem_Menos2a = QStringLiteral("Quitar el sistema");
    QString Zem_Menos2b = QStringLiteral("Quitar el emulador");
    QString Zem_Titulo1 = QStringLiteral("Mover la ventana");
    QString Zem_Graf_TV = QStringLiteral("Televisor");
    QString Zem_Captura = QStringLiteral("Captura");
    QString Zem_OFF = QStringLiteral("Apagar el televisor");
    QString Zem_WEB1 = QStringLiteral("Página web del sistema");
    QString Zem_WEB2 = QStringLiteral("Página web del emulador");
    QString Zem_Mas1 = QStringLiteral("Añadir un sistema");
    QString Zem_Boton_Mas2 = QStringLiteral("Añadir un emulador");
    QString Zem_Boton_E = QStringLiteral("Extensiones del sistema");
    QString Zem_Casilla4 = QStringLiteral("Parámetros delante de la ROM");
    QString Zem_Casilla5 = QStringLiteral("Parámetros detrás de la ROM");
    QString Zem_Discos = QStringLiteral("Unidades");
    QString Zem_Directorios = QStringLiteral("Directorios");
    QString Zem_Archivos = QStringLiteral("Archivos");
    QString Zem_D1 = QStringLiteral("Consola en el directorio del emulador");
    QString Zem_E1 = QStringLiteral("Explorar el directorio del emulador");
    QString Zem_Flecha2 = QStringLiteral("Salir");
    QString Zem_Editor = QStringLiteral("Texto");
    QString Zem_FlechaE2 = QStringLiteral("Cerrar el texto");
    QString Zem_Edit2 = QStringLiteral("Abrir en el editor del terminal");
    QString Zem_BlocNotas2 = QStringLiteral("Abrir en el editor");

    // What an empty box offers, %1 is the key and %2 the text; of a path that leads nowhere.
    QString Zem_Pista = QStringLiteral("%1 escribe: %2");
    QString Zem_NoEsta = QStringLiteral("No se encuentra en este ordenador.");

    // The size that was picked; %1 is a number of hundredths.
    QString Zem_Tamano = QStringLiteral("Tamaño: %1 %, al volver a abrir el programa.");
    QString Zem_NoTamano = QStringLiteral("QT_SCALE_FACTOR decide el tamaño: aquí no se elige.");

    // Names of keys, as they stand on the keyboard.
    QString Zem_Ctrl = QStringLiteral("Ctrl");
    QString Zem_Mayus = QStringLiteral("Mayús");
    QString Zem_Espacio = QStringLiteral("Espacio");
    QString Zem_Ins = QStringLiteral("Ins");
    QString Zem_Supr = QStringLiteral("Supr");

    // Of a button of the desktop's boxes.
    QString Zem_Cancelar = QStringLiteral("Cancelar");

    // Who made the program, and where they are reached.
    QString Zem_Logotipo = QStringLiteral("Logotipo");
    QString Zem_Autores = QStringLiteral("Los autores de Zembrolix");
    QString Zem_Correo = QStringLiteral("Correo de los autores:");
    QString Zem_Web = QStringLiteral("Página web del programa:");
    QString Zem_Redir = QStringLiteral("La misma, por otra dirección:");
};

struct ClaveDePalabra {
    QStringView nombre; // the key in the file
    QString Palabras::*variable;
};

std::span<const ClaveDePalabra> ClavesDePalabras();

// Takes the word out of a line of a language file, if it is one of these.
void LeePalabra(Palabras &palabras, const QString &linea);

} // namespace core
