// One function a topic, each in the file of its name.
#pragma once

#include "tema.h"

namespace pelusa {

void probarCodificacion(Bytes bytes); // bytes and text, names on the disk, upper and lower case
void probarCampos(Bytes bytes); // lines and fields of a text
void probarCatalogo(Bytes bytes); // reading the catalogue and the database
void probarAjustes(Bytes bytes); // reading the settings, and changing them
void probarIdiomas(Bytes bytes); // language files
void probarDocumentos(Bytes bytes); // texts that emulators come with
void probarNotas(Bytes bytes); // reading notes and parameters
void probarNombresCortos(Bytes bytes); // short forms of names
void probarRutas(Bytes bytes); // paths and what they lead to
void probarUnidades(Bytes bytes); // drives, and what programs of other systems get of paths
void probarOrdenes(Bytes bytes); // command lines, and the file chosen out of an archive
void probarArchivos(Bytes bytes); // unpacking
void probarPcx(Bytes bytes); // pictures for the converter
void probarAltas(Bytes bytes); // additions to the catalogue and the database
void probarBajas(Bytes bytes); // removals from them
void probarCambios(Bytes bytes); // changes in them
void probarCapturas(Bytes bytes); // pictures for the screen
void probarNotasEscritas(Bytes bytes); // changes of any file of notes
void probarAnotaciones(Bytes bytes); // notes and parameters, one after the other

} // namespace pelusa
