// Which system a program is for, by tables of beginnings.

#include "tests/host/disktest.h"

#include "core/clasedeprograma.h"

using namespace Qt::StringLiterals;
using core::ClaseDePrograma;
using core::ClasePorBytes;

namespace {

QByteArray elf(char clase, char maquina)
{
    return QByteArray("\x7f"
                      "ELF")
        + QByteArray(1, clase) + QByteArray("\x01\x01") + QByteArray(9, '\0') + QByteArray("\x02\x00", 2)
        + QByteArray(1, maquina) + QByteArray(1, '\0');
}

const QByteArray Propia = elf('\x02', '\x3e');

// A program for DOS whose second header stands so far in; `sistema` at its place in it.
QByteArray mz(quint32 lugar, const QByteArray &firma, char sistema = 0)
{
    QByteArray bytes = "MZ" + QByteArray(0x3a, '\x11');
    for (int i = 0; i < 4; ++i)
        bytes += static_cast<char>(lugar >> (8 * i));
    if (lugar > 0x10000)
        return bytes;
    bytes = bytes.leftJustified(static_cast<qsizetype>(lugar), '\0') + firma;
    return bytes.leftJustified(static_cast<qsizetype>(lugar) + 0x36, '\0') + QByteArray(1, sistema);
}

ClaseDePrograma clase(const QByteArray &principio, QStringView nombre = u"emu")
{
    return ClasePorBytes(principio, Propia, nombre);
}

} // namespace

TEST(ClaseDePrograma, OfThisSystemAreItsOwnFormatAndScripts)
{
    EXPECT_EQ(clase(Propia), ClaseDePrograma::DeEstaMaquina);
    EXPECT_EQ(clase("#!/bin/sh\n"), ClaseDePrograma::DeEstaMaquina);
    EXPECT_EQ(clase("#!"), ClaseDePrograma::DeEstaMaquina);
    EXPECT_EQ(clase(elf('\x02', '\x28')), ClaseDePrograma::OtraMaquina);
    EXPECT_EQ(clase(elf('\x01', '\x3e')), ClaseDePrograma::OtraMaquina);
    EXPECT_EQ(clase(elf('\x01', '\x03')), ClaseDePrograma::DeEstaMaquina);
    EXPECT_EQ(clase(Propia.first(12)), ClaseDePrograma::Desconocida);
}

TEST(ClaseDePrograma, ANameProvesNothingWhereTheBytesTell)
{
    for (const QStringView nombre : { u"CVTGIF15.EXE", u"emu.com", u"EMU.BAT" }) {
        EXPECT_EQ(clase(Propia, nombre), ClaseDePrograma::DeEstaMaquina);
        EXPECT_EQ(clase("#!/bin/sh\n", nombre), ClaseDePrograma::DeEstaMaquina);
    }
    EXPECT_EQ(clase(mz(0x80, QByteArray("PE\0\0", 4)), u"emu.com"), ClaseDePrograma::Windows);
    EXPECT_EQ(clase("no program", u"emu.exe"), ClaseDePrograma::Desconocida);
}

TEST(ClaseDePrograma, TheSecondHeaderTellsWindowsFromDOS)
{
    for (const quint32 lugar : { 0x40u, 0x80u, 0xfff0u - 0x40u }) {
        EXPECT_EQ(clase(mz(lugar, QByteArray("PE\0\0", 4))), ClaseDePrograma::Windows);
        EXPECT_EQ(clase(mz(lugar, "NE", 2)), ClaseDePrograma::Windows);
        EXPECT_EQ(clase(mz(lugar, "NE", 0)), ClaseDePrograma::Windows) << "early ones don't tell";
        EXPECT_EQ(clase(mz(lugar, "NE", 1)), ClaseDePrograma::DOS) << "of OS/2";
        EXPECT_EQ(clase(mz(lugar, QByteArray("LE\0\0", 4))), ClaseDePrograma::DOS);
        EXPECT_EQ(clase(mz(lugar, "LX")), ClaseDePrograma::DOS);
        EXPECT_EQ(clase(mz(lugar, "PE??")), ClaseDePrograma::DOS);
        EXPECT_EQ(clase(mz(lugar, "\0\0")), ClaseDePrograma::DOS);
    }
    for (const quint32 lugar : { 0x10001u, 0x7fffffffu, 0xffffffffu })
        EXPECT_EQ(clase(mz(lugar, {})), ClaseDePrograma::DOS);
}

TEST(ClaseDePrograma, APlainOneIsForDOSHoweverShort)
{
    EXPECT_EQ(clase("MZ"), ClaseDePrograma::DOS);
    EXPECT_EQ(clase("ZM\x90"), ClaseDePrograma::DOS);
    EXPECT_EQ(clase("MZ" + QByteArray(0x3d, '\0')), ClaseDePrograma::DOS);
    EXPECT_EQ(clase("MZ" + QByteArray(0x100, '\0')), ClaseDePrograma::DOS)
        << "the second header is the first";
}

TEST(ClaseDePrograma, WhatHasNoHeaderIsToldByItsName)
{
    EXPECT_EQ(clase("\xb4\x09", u"/x/NES.COM"), ClaseDePrograma::DOS);
    EXPECT_EQ(clase("\xb4\x09", u"nes.Com"), ClaseDePrograma::DOS);
    EXPECT_EQ(clase("@echo off\r\n", u"GO.BAT"), ClaseDePrograma::DOS);
    EXPECT_EQ(clase("\xb4\x09", u"NES.EXE"), ClaseDePrograma::Desconocida);
    EXPECT_EQ(clase("\xb4\x09", u"com"), ClaseDePrograma::Desconocida);
    EXPECT_EQ(clase({}, u"nes.com"), ClaseDePrograma::Desconocida);
    EXPECT_EQ(clase(QByteArray(0xff00, 'x'), u"nes.com"), ClaseDePrograma::DOS);
    EXPECT_EQ(clase(QByteArray(0xff01, 'x'), u"nes.com"), ClaseDePrograma::Desconocida)
        << "fits in no segment";
}

using ClaseDeFichero = DiskTest;

TEST_F(ClaseDeFichero, IsReadFromTheDisk)
{
    makeFile("Nes.exe", mz(0x1000, QByteArray("PE\0\0", 4)));
    makeFile("big.com", QByteArray(100'000, 'x'));
    EXPECT_EQ(core::ClaseDe(path(u"NES.EXE"_s)), ClaseDePrograma::Windows);
    EXPECT_EQ(core::ClaseDe(path(u"big.com"_s)), ClaseDePrograma::Desconocida);
    EXPECT_EQ(core::ClaseDe(u"/proc/self/exe"_s), ClaseDePrograma::DeEstaMaquina);
    EXPECT_EQ(core::ClaseDe(path(u"none"_s)), ClaseDePrograma::Desconocida);
    EXPECT_EQ(core::ClaseDe(path()), ClaseDePrograma::Desconocida);
}

TEST(ClaseDePrograma, De32BitsSonLosDeIntelCorrientesYLosDe16)
{
    const auto pe = [](const QByteArray &maquina) {
        return "MZ" + QByteArray(0x3a, '\0') + QByteArray("\x40\0\0\0PE\0\0", 8) + maquina;
    };
    EXPECT_TRUE(core::EsDe32Bits(pe("\x4c\x01")));
    EXPECT_FALSE(core::EsDe32Bits(pe("\x64\x86")));
    EXPECT_FALSE(core::EsDe32Bits(pe({})));
    EXPECT_TRUE(core::EsDe32Bits(
        "MZ" + QByteArray(0x3a, '\0') + QByteArray("\x40\0\0\0NE", 6) + QByteArray(80, '\0')));
    for (const QByteArray &otro :
        { QByteArray("MZ") + QByteArray(100, '\0'), QByteArray("#!/bin/sh"), QByteArray() })
        EXPECT_FALSE(core::EsDe32Bits(otro));
}
