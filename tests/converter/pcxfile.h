// PCX files made by hand, header field by header field, for the kinds that no program writes any more, and
// pictures as text.
#pragma once

#include "converter/pcx.h"

#include <QByteArray>

#include <gmock/gmock.h>

#include <string>

// The fields that a test doesn't name are those of a picture in black and white, 8 pixels wide and 1 high.
struct PcxFile {
    int maker = 10;
    int version = 5;
    int encoding = 1;
    int bits = 1;
    int left = 0;
    int top = 0;
    int right = 7;
    int bottom = 0;
    QByteArray colours = {}; // in hexadecimal; what it leaves of the 48 bytes is zero
    int planes = 1;
    int bytesPerLine = 2;
    int paletteKind = 1;
    QByteArray data = {}; // in hexadecimal, what stands behind the header

    QByteArray bytes() const;
};

converter::Bytes span(const QByteArray &bytes);

// The colours of the pixels, in hexadecimal, a line of the picture a line: "FF0000 000000\n".
std::string pixelsOf(const converter::Picture &picture);
std::string pixelsOf(const PcxFile &file);

// What reading it says; empty if it can be read.
std::string complaintAbout(const QByteArray &bytes);
std::string complaintAbout(const PcxFile &file);

// A palette of 256 colours with its mark, in hexadecimal: colour i is i, 255 - i, 7.
QByteArray endPalette();
