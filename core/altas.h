// Additions to the catalogue files and changes in them, from text to text. Every line that isn't meant comes
// out byte for byte; new lines end in CR LF.
//
// The anchors are line beginnings: "[" ends the data, "'-" closes a system, "'" ends a block.
#pragma once

#include <QString>
#include <QStringList>

namespace core {

// An apostrophe and 70 hyphens: the line that closes a system.
QString LineaDeCierre();

// Zembro.sye.

// A system with no web page, "*.ZIP" and no emulators ahead of each line that begins with "[".
QString ConSistemaEnBase(const QString &texto, const QString &sistema);

// An emulator with no web page, the last of the system that this "-" line opens. A system without a closing
// line gets one.
QString ConEmuladorEnBase(const QString &texto, const QString &lineaDeSistema, const QString &emulador);

// Zembro.emu.

// An emulator as its block of eight lines tells it. web2 is the whole line of the database, empty if it has
// none: an empty line then stands in the block. The directories get their closing separator here.
struct EmuladorNuevo {
    QString nombre;
    QString web2;
    QString exe;
    QString tipo;
    QString rom;
    QString img;
    QString par1;
    QString par2;
};
QStringList LineasDeEmulador(const EmuladorNuevo &emulador);

// A system with its first emulator. web1 is the whole line of the database; extensiones are whole lines too.
struct SistemaNuevo {
    QString nombre;
    QString web1;
    QStringList extensiones;
    EmuladorNuevo emulador;
};

// The system ahead of each line that begins with "[".
QString ConSistemaConfigurado(const QString &texto, const SistemaNuevo &sistema);

// The emulator as the last of the system that this "-" line opens.
QString ConEmuladorConfigurado(
    const QString &texto, const QString &lineaDeSistema, const EmuladorNuevo &emulador);

// The block in the place of the first one of that name in the file, whichever system that belongs to. The old
// block runs up to the next line that begins with an apostrophe, or with what opens another emulator or
// system or ends the data, and goes whole, unknown lines too.
QString ConEmuladorCambiado(const QString &texto, const EmuladorNuevo &emulador);

// Both files: the same change keeps them equal.

// The extensions in upper case, up to the first empty one, behind the system's "WEB1" line, and a closing
// apostrophe, in the place of all up to the next line that begins with an apostrophe. The line that closes
// the system stays, and so does an emulator. 151 extensions leave no room for the closing apostrophe.
QString ConExtensiones(const QString &texto, const QString &sistema, const QStringList &extensiones);

// The address behind the "-" line in the place of all up to the block's "WEB1" line, if it has one.
QString ConWebDeSistema(const QString &texto, const QString &sistema, const QString &direccion);

// The address behind the emulator's "+" line in the block of its system, in the place of all up to its "WEB2"
// line, if it has one.
QString ConWebDeEmulador(
    const QString &texto, const QString &sistema, const QString &emulador, const QString &direccion);

} // namespace core
