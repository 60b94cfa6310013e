// Two catalogues of the tests, line for line, and the change of a file by a function from text to text.
#pragma once

#include "directoriodeprograma.h"

inline const QByteArray Cierre =
    "'----------------------------------------------------------------------\r\n";

// Zembro.sye: three systems with two, one and three emulators.
inline const QByteArray Alfa = "-Alfa\r\nWEB1=http://alfa\r\n*.ZIP\r\n*.BIN\r\n'\r\n"
                               "+A1\r\nWEB2=http://a1\r\n+A2\r\nWEB2=\r\n"
    + Cierre;
inline const QByteArray Beta = "-Beta\r\nWEB1=\r\n*.ROM\r\n'\r\n+B1\r\nWEB2=http://b1\r\n" + Cierre;
inline const QByteArray Gamma = "-Gamma\r\nWEB1=http://gamma\r\n*.ZIP\r\n'\r\n"
                                "+G1\r\nWEB2=1\r\n+G2\r\nWEB2=2\r\n+G3\r\nWEB2=3\r\n"
    + Cierre;
inline const QByteArray Cabecera = "' caf\xE9\n'\r\n";
inline const QByteArray Fin = "[EOF]\r\n' behind\n\r\nlast";

// A block of Zembro.emu's emulator, from its "+" line to its last.
inline QByteArray BloqueDe(const QByteArray &nombre)
{
    return '+' + nombre + "\r\nWEB2=w" + nombre + "\r\nEXE=/bin/" + nombre + "\r\nXDI=0\r\nROM=/roms/"
        + nombre + "/\r\nIMG=\r\nPAR1=-f " + nombre + "\r\nPAR2=\r\n";
}

// Zembro.emu: the same systems, with emulators in the given order.
inline QByteArray SistemaDe(const QByteArray &cabeza, const QList<QByteArray> &emuladores)
{
    QByteArray bytes = cabeza;
    for (const QByteArray &emulador : emuladores)
        bytes += "'\r\n" + BloqueDe(emulador);
    return bytes + Cierre;
}

inline const QByteArray CabezaAlfa = "-Alfa\r\nWEB1=http://alfa\r\n*.ZIP\r\n*.BIN\r\n";
inline const QByteArray CabezaBeta = "-Beta\r\nWEB1=\r\n*.ROM\r\n";
inline const QByteArray CabezaGamma = "-Gamma\r\nWEB1=http://gamma\r\n*.ZIP\r\n";

class CatalogosDePrueba : public DirectorioDePrograma {
protected:
    using Cambio = std::function<QString(const QString &)>;

    // What the bytes of a file become, through a rewrite of the file on the disk.
    QByteArray Cambiado(const QByteArray &bytes, const Cambio &cambio)
    {
        Pon(QStringLiteral("Zembro.emu"), bytes);
        Reescribe(QStringLiteral("Zembro.emu"), cambio);
        return Bytes(QStringLiteral("Zembro.emu"));
    }
};
