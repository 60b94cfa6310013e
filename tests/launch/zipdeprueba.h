// ZIP archives for tests, byte by byte: also such as no honest tool makes.
#pragma once

#include <QByteArray>
#include <QList>

// Systems that a member may be made on.
enum SistemaZip { EnFat = 0, EnUnix = 3, EnHpfs = 6, EnNtfs = 10, EnNtfsDeInfoZip = 11, EnVfat = 14 };

struct MiembroZip {
    QByteArray nombre;
    QByteArray datos = "data";
    bool utf8 = false; // the name is marked as UTF-8
    quint32 atributos = 0; // external ones: bit 0 read-only, the upper half a Unix mode
    int sistema = 0; // that it was made on, by its number in the format
    bool sumaFalsa = false; // the checksum doesn't agree with the data
    bool comprimido = false; // deflated
    int metodo = 0; // the number of another method, which its data don't keep to
    bool datosRotos = false; // what is kept of them is damaged in its middle
};

QByteArray Zip(const QList<MiembroZip> &miembros);

// The same, behind other bytes that its positions don't count, with a comment at its end.
QByteArray ZipTrasOtrosBytes(
    const QList<MiembroZip> &miembros, const QByteArray &otros, const QByteArray &comentario);

// With the traditional cipher, always the same bytes. Of wrong passwords one in 256 passes its check.
QByteArray ZipCifrado(const QList<MiembroZip> &miembros, const QByteArray &contraseña);
