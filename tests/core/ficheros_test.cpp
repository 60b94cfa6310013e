// The files of the program as the readers and the rewrites use them: one directory, two numbers, one scratch
// file.
#include "directoriodeprograma.h"

#include "core/ajustes.h"
#include "core/catalogo.h"
#include "core/idiomas.h"
#include "core/lista.h"
#include "core/notas.h"

#include "host/paths.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

const QByteArray CatalogoBueno = "-Console\r\n*.BIN\r\n'\r\n+Emulator\r\nXDI=0\r\n[EOF]\r\n";
const QByteArray NotasBuenas =
    "Console\r\nA,\"a\"\r\n'\r\n[\r\nParametros especificos\r\n'\r\nfin\r\nfin,\"fin\"\r\n";

class Ficheros : public DirectorioDePrograma {
protected:
    int Abre()
    {
        return NumeroDeFallo([this] { M.Ficheros.openForInput(1, host::programFile(u"Zembro.emu"_s)); });
    }

    int AñadeNota()
    {
        return NumeroDeFallo([this] {
            Reescribe(u"Zembro.rom"_s, [](const QString &texto) {
                return core::ConDescripcionNueva(texto, u"Console"_s, u"B"_s, u"b"_s);
            });
        });
    }
};

} // namespace

TEST_F(Ficheros, LieInTheProgramDirectory_WhateverTheWorkingDirectory)
{
    Pon(u"Zembro.emu"_s, CatalogoBueno);
    Pon(u"elsewhere/Zembro.emu"_s, "-Wrong\r\n");
    const QString anterior = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(Ruta(u"elsewhere"_s)));
    core::LeeCatalogo(M);
    EXPECT_TRUE(QDir::setCurrent(anterior));
    EXPECT_EQ(M.Cat_Nombre(0, 0), u"-Console");
}

TEST_F(Ficheros, ProgramDirectoryIsReadAnewAtEachUse)
{
    Pon(u"one/Zembro.emu"_s, "-One\r\n");
    Pon(u"two/Zembro.emu"_s, "-Two\r\n");
    for (const auto &[directorio, nombre] :
        { std::pair(u"one"_s, u"-One"_s), std::pair(u"two"_s, u"-Two"_s) }) {
        host::setProgramDirectory(Ruta(directorio));
        core::LeeCatalogo(M);
        EXPECT_EQ(M.Cat_Nombre(0, 0), nombre);
    }
}

TEST_F(Ficheros, NumberStaysInUseAfterAFailedLoad_UntilAllAreClosed)
{
    Pon(u"Zembro.emu"_s, "EXE=ahead of a system\r\n");
    Pon(u"Zembro.rom"_s, "Other\r\n'\r\n");
    Pon(u"Zembro.cfg"_s, "");
    Pon(u"LNG/A.LNG"_s, "TXT_InfoLNG\r\n");
    const std::pair<const char *, std::function<void()>> cargas[] = {
        { "catalogue", [this] { core::LeeCatalogo(M); } },
        { "notes", [this] { core::CargaNotas(M, u"Console"_s); } },
        { "notes of the list", [this] { core::CargaNotasEnMayusculas(M, u"Console"_s); } },
        { "first run", [this] { core::EsPrimeraVez(M); } },
        { "settings", [this] { core::LeeAjustes(M); } },
        { "credit", [this] { core::CreditoDeIdioma(M, u"A.LNG"_s); } },
    };
    for (const auto &[nombre, carga] : cargas) {
        EXPECT_NE(NumeroDeFallo(carga), 0) << nombre;
        EXPECT_EQ(Abre(), host::FileAlreadyOpen) << nombre;
        for (const auto &[otra, otraCarga] : cargas)
            EXPECT_EQ(NumeroDeFallo(otraCarga), host::FileAlreadyOpen) << otra << " after " << nombre;
        EXPECT_EQ(AñadeNota(), host::FileAlreadyOpen) << nombre;
        M.Ficheros.closeAll();
        EXPECT_EQ(Abre(), 0) << nombre;
        M.Ficheros.closeAll();
    }
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), "Other\r\n'\r\n");
}

TEST_F(Ficheros, NumbersStayInUseAfterAFailedRewrite_AndTheFileIsAsItWas)
{
    Pon(u"Zembro.rom"_s, NotasBuenas);
    Pon(u"Zembro.emu"_s, CatalogoBueno);
    EXPECT_EQ(NumeroDeFallo([this] {
        Reescribe(u"Zembro.rom"_s, [](const QString &) -> QString { throw host::Failure(9, u"change"_s); });
    }),
        host::OutOfRange);
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), NotasBuenas);
    EXPECT_EQ(Nombres(), (QStringList { u"Zembro.emu"_s, u"Zembro.rom"_s }));
    EXPECT_EQ(Abre(), host::FileAlreadyOpen);
    EXPECT_EQ(AñadeNota(), host::FileAlreadyOpen);
    M.Ficheros.closeAll();
    EXPECT_EQ(AñadeNota(), 0);
}

TEST_F(Ficheros, RewritesOfTwoFilesRunOneAfterTheOther)
{
    Pon(u"Zembro.rom"_s, NotasBuenas);
    Pon(u"Zembro.cfg"_s, "[General]\r\nLastSisUsed = 0\r\nLastEmuUsed = 0\r\nSaveLastEmu&Sis = 1\r\n");
    EXPECT_EQ(AñadeNota(), 0);
    Reescribe(u"Zembro.cfg"_s, [](const QString &texto) {
        return core::ConAjuste(texto, core::Ajuste::UltimaSeleccion, core::LineasDeUltimaSeleccion(1, 2));
    });
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), "Console\r\nB,\"b\"\r\n" + NotasBuenas.mid(9));
    EXPECT_EQ(
        Bytes(u"Zembro.cfg"_s), "[General]\r\nLastSisUsed = 1\r\nLastEmuUsed = 2\r\nSaveLastEmu&Sis = 1\r\n");
    EXPECT_EQ(Nombres(), (QStringList { u"Zembro.cfg"_s, u"Zembro.rom"_s }));
}

TEST_F(Ficheros, ALeftOverScratchFileIsOverwrittenWithoutAWord)
{
    Pon(u"Zembro.rom"_s, NotasBuenas);
    Pon(u"Zembro.tmp"_s, QByteArray(10000, 'x'));
    EXPECT_EQ(AñadeNota(), 0);
    EXPECT_EQ(Bytes(u"Zembro.rom"_s), "Console\r\nB,\"b\"\r\n" + NotasBuenas.mid(9));
    EXPECT_EQ(Nombres(), QStringList { u"Zembro.rom"_s });
}

TEST_F(Ficheros, ARewriteKeepsTheSpellingOnTheDisk)
{
    Pon(u"ZEMBRO.ROM"_s, NotasBuenas);
    EXPECT_EQ(AñadeNota(), 0);
    EXPECT_EQ(Nombres(), QStringList { u"ZEMBRO.ROM"_s });
    EXPECT_TRUE(Bytes(u"ZEMBRO.ROM"_s).contains("B,\"b\""));
}

TEST_F(Ficheros, ARewriteOfAMissingFileFailsAndMakesNone)
{
    EXPECT_EQ(AñadeNota(), host::FileNotFound);
    EXPECT_EQ(Nombres(), QStringList());
}
