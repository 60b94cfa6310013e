// ZIP archives for tests, byte by byte: also such as no honest tool makes.
#pragma once

#include <QByteArray>
#include <QList>

struct MiembroZip {
    QByteArray nombre;
    QByteArray datos = "data";
    bool utf8 = false; // the name is marked as UTF-8
    quint32 atributos = 0; // external ones: bit 0 read-only, the upper half a Unix mode
    bool enUnix = false; // made on a Unix
    bool sumaFalsa = false; // the checksum doesn't agree with the data
    bool comprimido = false; // deflated
    bool datosRotos = false; // what is kept of them is damaged in its middle
};

QByteArray Zip(const QList<MiembroZip> &miembros);

// With the traditional cipher, always the same bytes. Of wrong passwords one in 256 passes its check.
QByteArray ZipCifrado(const QList<MiembroZip> &miembros, const QByteArray &contraseña);
