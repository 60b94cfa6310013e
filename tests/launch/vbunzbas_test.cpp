// Unpacking: real archives, hostile ones, passwords, a disk that runs full.
#include "launch/vbunzbas.h"

#include "launch/destino.h"

#include "escenario.h"
#include "zipdeprueba.h"

#include <QDirIterator>

#include <algorithm>
#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using Answer = host::Questions::Answer;

namespace {

class DescomprimirTest : public DiskTest {
protected:
    DescomprimirTest()
    {
        makeDirectory("to");
        launch::OlvidaSaltarContraseña();
    }
    ~DescomprimirTest() override { launch::PonEspacioLibre({}); }

    Respuestas respuestas;

    QStringList descomprimeArchivo(const QString &archivo = u"a.zip"_s) const
    {
        return launch::Descomprimir(path(archivo), path(u"to"_s)).ficheros;
    }
    QStringList descomprime(const QList<MiembroZip> &miembros) const
    {
        makeFile("a.zip", Zip(miembros));
        return descomprimeArchivo();
    }

    // Everything under the destination, directories with a slash behind them, sorted.
    QByteArrayList desempaquetado() const;
};

QByteArrayList DescomprimirTest::desempaquetado() const
{
    const QString destino = path(u"to"_s);
    QByteArrayList todo;
    QDirIterator entradas(destino, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
        QDirIterator::Subdirectories);
    while (entradas.hasNext()) {
        const QByteArray nombre = entradas.next().sliced(destino.size() + 1).toUtf8();
        const bool directorio = entradas.fileInfo().isDir() && !entradas.fileInfo().isSymLink();
        todo << (directorio ? nombre + '/' : nombre);
    }
    std::sort(todo.begin(), todo.end());
    return todo;
}

TEST_F(DescomprimirTest, UnpacksEveryMember_AndTellsTheirOrder)
{
    EXPECT_EQ(descomprime({ { "b.nes", "bee" }, { "a.txt", "" } }), QStringList({ u"b.nes"_s, u"a.txt"_s }));
    EXPECT_EQ(desempaquetado(), QByteArrayList({ "a.txt", "b.nes" }));
    EXPECT_EQ(bytes("to/b.nes"), "bee");
    EXPECT_EQ(bytes("to/a.txt"), "");
}

TEST_F(DescomprimirTest, KeepsTheArchivesOwnSpelling)
{
    EXPECT_EQ(descomprime({ { "Castle of DOOM.NES" } }), QStringList({ u"Castle of DOOM.NES"_s }));
    EXPECT_EQ(desempaquetado(), QByteArrayList({ "Castle of DOOM.NES" }));
}

TEST_F(DescomprimirTest, RecreatesSubdirectories_WhoseFilesAreNotAmongTheDirectOnes)
{
    EXPECT_EQ(descomprime({ { "sub/", "" }, { "sub/in.nes" }, { "other/deep/in.nes" }, { "top.nes" } }),
        QStringList({ u"top.nes"_s }));
    EXPECT_EQ(desempaquetado(),
        QByteArrayList({ "other/", "other/deep/", "other/deep/in.nes", "sub/", "sub/in.nes", "top.nes" }));
}

TEST_F(DescomprimirTest, ABackslashInAMembersNameIsASeparator)
{
    descomprime({ { "sub\\in.nes" }, { "empty\\", "" }, { "mixed\\a/b.nes" } });
    EXPECT_EQ(desempaquetado(),
        QByteArrayList({ "empty/", "mixed/", "mixed/a/", "mixed/a/b.nes", "sub/", "sub/in.nes" }));
}

TEST_F(DescomprimirTest, ABackslashSeparatesAlsoInAnArchiveMadeOnAUnix)
{
    descomprime({ { .nombre = "sub\\in.nes", .atributos = 0100644U << 16, .sistema = EnUnix } });
    EXPECT_EQ(desempaquetado(), QByteArrayList({ "sub/", "sub/in.nes" }));
}

TEST_F(DescomprimirTest, NamesAreInCodePage437_UnlessTheyAreMarkedAsUtf8)
{
    descomprime({ { "a\xa4o.nes" }, { .nombre = "\xc3\xb1u.nes", .utf8 = true } });
    EXPECT_EQ(desempaquetado(), QByteArrayList({ "a\xc3\xb1o.nes", "\xc3\xb1u.nes" }));
}

TEST_F(DescomprimirTest, AMarkedNameThatIsNoUtf8IsPassedOver)
{
    descomprime({ { .nombre = "bad\xff.nes", .utf8 = true }, { "good.nes" } });
    EXPECT_EQ(desempaquetado(), QByteArrayList({ "good.nes" }));
}

TEST_F(DescomprimirTest, NoMemberLeadsOut_ByUpperDirectoriesOrAbsoluteNames)
{
    makeDirectory("to/in");
    const QList<MiembroZip> miembros { { "../up.nes" }, { "..\\..\\up2.nes" }, { "in/../../up3.nes" },
        { "/absolute.nes" }, { "\\\\host\\share.nes" }, { place("outside.nes") }, { "..", "x" },
        { "./here.nes" } };
    descomprime(miembros);
    EXPECT_EQ(names(), QByteArrayList({ "a.zip", "to" }));
    const QByteArrayList encontrado = desempaquetado();
    EXPECT_TRUE(encontrado.contains("up.nes"));
    EXPECT_TRUE(encontrado.contains("up2.nes"));
    EXPECT_TRUE(encontrado.contains("in/up3.nes"));
    EXPECT_TRUE(encontrado.contains("absolute.nes"));
    EXPECT_TRUE(encontrado.contains("host/share.nes"));
    EXPECT_TRUE(encontrado.contains(place("outside.nes").mid(1)));
    EXPECT_TRUE(encontrado.contains("here.nes"));
}

TEST_F(DescomprimirTest, NoMemberLeadsOutThroughALinkThatIsThere)
{
    makeDirectory("outside");
    makeFile("outside/kept", "kept");
    makeLink("../outside", "to/link");
    makeLink("../outside/kept", "to/file.nes");
    respuestas.sobreescribir = { Answer::Yes };
    descomprime({ { "link/in.nes" }, { "link/deep/in.nes" }, { "file.nes", "new" } });
    EXPECT_EQ(desempaquetado(), QByteArrayList({ "file.nes", "link" }));
    EXPECT_EQ(bytes("outside/kept"), "kept");
    EXPECT_FALSE(exists("outside/in.nes"));
    EXPECT_FALSE(exists("outside/deep"));
    EXPECT_EQ(bytes("to/file.nes"), "new");
}

TEST_F(DescomprimirTest, LinksInTheArchiveAreSkipped_AndWhatWouldGoThroughThem)
{
    makeDirectory("outside");
    const MiembroZip enlace {
        .nombre = "link", .datos = "../outside", .atributos = 0120777U << 16, .sistema = EnUnix
    };
    descomprime({ enlace, { "link/in.nes" } });
    EXPECT_EQ(desempaquetado(), QByteArrayList({ "link/", "link/in.nes" }));
    EXPECT_FALSE(exists("outside/in.nes"));
}

TEST_F(DescomprimirTest, OtherThingsThanFilesAndDirectoriesAreSkipped)
{
    const MiembroZip zocalo { .nombre = "socket", .atributos = 0140644U << 16, .sistema = EnUnix };
    const MiembroZip aparato { .nombre = "device", .atributos = 0020644U << 16, .sistema = EnUnix };
    descomprime({ zocalo, aparato, { "a.nes" } });
    EXPECT_EQ(desempaquetado(), QByteArrayList({ "a.nes" }));
}

TEST_F(DescomprimirTest, TheReadOnlyMarkIsRestored_AndNoOtherMode)
{
    const MiembroZip enDos { .nombre = "dos.nes", .atributos = 1 };
    const MiembroZip enUnix { .nombre = "unix.nes", .atributos = 0100444U << 16, .sistema = EnUnix };
    const MiembroZip ejecutable { .nombre = "run.nes", .atributos = 0104777U << 16, .sistema = EnUnix };
    descomprime({ enDos, enUnix, ejecutable, { "plain.nes" } });
    EXPECT_EQ(mode("to/dos.nes") & 0222, 0U);
    EXPECT_EQ(mode("to/unix.nes") & 0222, 0U);
    EXPECT_EQ(mode("to/run.nes"), mode("to/plain.nes"));
    EXPECT_EQ(mode("to/plain.nes") & 0600, 0600U);
    EXPECT_EQ(mode("to/plain.nes") & 07111, 0U);
}

class MarcaDeSoloLectura : public DescomprimirTest, public testing::WithParamInterface<int> { };

INSTANTIATE_TEST_SUITE_P(
    Sistemas, MarcaDeSoloLectura, testing::Values(EnFat, EnHpfs, EnNtfs, EnNtfsDeInfoZip, EnVfat));

TEST_P(MarcaDeSoloLectura, IsRestored_OfMembersOfEverySystemThatHasIt)
{
    const int sistema = GetParam();
    descomprime({ { .nombre = "marked.nes", .atributos = 1, .sistema = sistema },
        { .nombre = "free.nes", .atributos = 0x20, .sistema = sistema } });
    EXPECT_EQ(mode("to/marked.nes") & 0222, 0U);
    EXPECT_EQ(mode("to/free.nes") & 0600, 0600U);
}

TEST_P(MarcaDeSoloLectura, IsRestored_BehindOtherBytesAndAheadOfAComment)
{
    const QList<MiembroZip> miembros { { "first.nes" },
        { .nombre = "marked.nes", .atributos = 1, .sistema = GetParam() } };
    makeFile("a.zip", ZipTrasOtrosBytes(miembros, "MZ and a program that unpacks itself", "PK\5\6 no end"));
    EXPECT_EQ(descomprimeArchivo(), QStringList({ u"first.nes"_s, u"marked.nes"_s }));
    EXPECT_EQ(mode("to/first.nes") & 0600, 0600U);
    EXPECT_EQ(mode("to/marked.nes") & 0222, 0U);
}

TEST_P(MarcaDeSoloLectura, IsRestored_WhereverTheReadingsOfTheArchiveBreak)
{
    // The directory's record begins at another place of the blocks each time.
    for (int resto = 0; resto < 8; ++resto) {
        descomprime({ { "big.nes", QByteArray(65536 - 143 + resto, 'b') },
            { .nombre = "marked.nes", .atributos = 1, .sistema = GetParam() } });
        EXPECT_EQ(mode("to/marked.nes") & 0222, 0U) << resto;
        ASSERT_EQ(unlink(place("to/marked.nes").constData()), 0);
        ASSERT_EQ(unlink(place("to/big.nes").constData()), 0);
    }
}

TEST_F(DescomprimirTest, OnOtherSystemsTheSameBitIsNoReadOnlyMark)
{
    for (const int sistema : { 1, 2, 4, 5, 7, 8, 9, 12, 13, 15, 16, 17, 18, 19, 255 }) {
        const QByteArray nombre = QByteArray::number(sistema);
        descomprime({ { .nombre = nombre, .atributos = 1, .sistema = sistema } });
        EXPECT_EQ(mode("to/" + nombre) & 0600, 0600U) << sistema;
    }
}

class MetodoDeOtroTiempo : public DescomprimirTest, public testing::WithParamInterface<int> {
protected:
    launch::Desempaquetado resultadoDe(const QList<MiembroZip> &miembros) const
    {
        makeFile("a.zip", Zip(miembros));
        return launch::Descomprimir(path(u"a.zip"_s), path(u"to"_s));
    }
};

// Shrunk, reduced by four degrees, imploded.
INSTANTIATE_TEST_SUITE_P(Metodos, MetodoDeOtroTiempo, testing::Values(1, 2, 3, 4, 5, 6));

TEST_P(MetodoDeOtroTiempo, MembersThatCanNotBeReadAreNamed_InTheArchivesOrder)
{
    const launch::Desempaquetado d =
        resultadoDe({ { .nombre = "b.nes", .metodo = GetParam() }, { "plain.nes" },
            { .nombre = "a.nes", .metodo = GetParam() }, { .nombre = "sub/c.nes", .metodo = GetParam() } });
    EXPECT_EQ(d.ficheros, QStringList({ u"plain.nes"_s }));
    EXPECT_EQ(d.ilegibles, QStringList({ u"b.nes"_s, u"a.nes"_s }));
    EXPECT_FALSE(d.nadaLegible);
    EXPECT_EQ(desempaquetado(), QByteArrayList({ "plain.nes", "sub/" }));
}

TEST_P(MetodoDeOtroTiempo, WhereNoMemberCanBeReadThatIsTold)
{
    EXPECT_TRUE(resultadoDe({ { .nombre = "a.nes", .metodo = GetParam() } }).nadaLegible);
    EXPECT_TRUE(resultadoDe({ { "sub/", "" }, { .nombre = "sub/a.nes", .metodo = GetParam() } }).nadaLegible);
    EXPECT_FALSE(resultadoDe({ { .nombre = "a.nes", .metodo = GetParam() }, { "sub/read.me" } }).nadaLegible);
}

TEST_F(DescomprimirTest, DamagedMembersAloneAreNothingReadable)
{
    makeFile("a.zip", Zip({ { .nombre = "a.nes", .sumaFalsa = true } }));
    EXPECT_TRUE(launch::Descomprimir(path(u"a.zip"_s), path(u"to"_s)).nadaLegible);
}

TEST_F(DescomprimirTest, WhatTheUserOrTheDiskKeptOutIsNotCalledUnreadable)
{
    const auto nadaLegible = [this](const QByteArray &archivo) {
        makeFile("a.zip", archivo);
        const launch::Desempaquetado d = launch::Descomprimir(path(u"a.zip"_s), path(u"to"_s));
        return d.nadaLegible || !d.ilegibles.isEmpty();
    };
    EXPECT_FALSE(nadaLegible("no archive"));
    EXPECT_FALSE(nadaLegible(Zip({})));
    EXPECT_FALSE(nadaLegible(Zip({ { "only/", "" } })));
    makeFile("to/a.nes", "old");
    respuestas.sobreescribir = { Answer::No };
    EXPECT_FALSE(nadaLegible(Zip({ { "a.nes" } })));
    respuestas.contraseñas = { u"one"_s, u"two"_s, u"three"_s, u""_s };
    EXPECT_FALSE(nadaLegible(ZipCifrado({ { "b.nes" }, { "c.nes" } }, "sesame")));
    launch::PonEspacioLibre([](int) { return 1000; });
    EXPECT_FALSE(nadaLegible(Zip({ { "d.nes" } })));
}

TEST_F(DescomprimirTest, AMemberThatDoesNotAgreeWithItsChecksumLeavesNothing)
{
    EXPECT_EQ(descomprime({ { "a.nes" }, { .nombre = "bad.nes", .sumaFalsa = true }, { "c.nes" } }),
        QStringList({ u"a.nes"_s, u"c.nes"_s }));
    EXPECT_EQ(desempaquetado(), QByteArrayList({ "a.nes", "c.nes" }));
}

TEST_F(DescomprimirTest, ADamagedMemberLeavesTheFileThatWasThere)
{
    makeFile("to/bad.nes", "old");
    respuestas.sobreescribir = { Answer::Yes };
    descomprime({ { .nombre = "bad.nes", .sumaFalsa = true } });
    EXPECT_EQ(bytes("to/bad.nes"), "old");
}

TEST_F(DescomprimirTest, AnArchiveCutShortGivesItsWholeMembersAlone)
{
    const QByteArray entero = Zip({ { "a.nes", "first" }, { "b.nes", QByteArray(100000, 'b') } });
    makeFile("a.zip", entero.first(50000));
    descomprimeArchivo();
    EXPECT_EQ(desempaquetado(), QByteArrayList({ "a.nes" }));
}

TEST_F(DescomprimirTest, WhatIsNoArchiveGivesNothing)
{
    makeFile("text.zip", "no archive");
    makeFile("empty.zip", "");
    makeDirectory("directory.zip");
    ASSERT_EQ(mkfifo(place("pipe.zip").constData(), 0600), 0);
    for (const QString &nombre :
        { u"text.zip"_s, u"empty.zip"_s, u"directory.zip"_s, u"pipe.zip"_s, u"none.zip"_s })
        EXPECT_EQ(descomprimeArchivo(nombre), QStringList()) << nombre.toStdString();
    EXPECT_EQ(desempaquetado(), QByteArrayList());
}

TEST_F(DescomprimirTest, AMissingDestinationIsNotMade)
{
    makeFile("a.zip", Zip({ { "a.nes" } }));
    EXPECT_EQ(launch::Descomprimir(path(u"a.zip"_s), path(u"none"_s)).ficheros, QStringList());
    EXPECT_FALSE(exists("none"));
}

TEST_F(DescomprimirTest, ABlankAtTheEndOfTheNameIsTriedAsItStands_ThenWithout)
{
    makeFile("a.zip", Zip({ { "without.nes" } }));
    EXPECT_EQ(descomprimeArchivo(u"a.zip "_s), QStringList({ u"without.nes"_s }));
    makeFile("a.zip ", Zip({ { "with.nes" } }));
    EXPECT_EQ(descomprimeArchivo(u"a.zip "_s), QStringList({ u"with.nes"_s }));
}

TEST_F(DescomprimirTest, TheArchiveIsFoundInAnyCase)
{
    makeFile("Game.ZIP", Zip({ { "a.nes" } }));
    EXPECT_EQ(descomprimeArchivo(u"game.zip "_s), QStringList({ u"a.nes"_s }));
}

TEST_F(DescomprimirTest, AnExistingFileIsReplacedOnYes_KeptOnNo)
{
    makeFile("to/a.nes", "old a");
    makeFile("to/b.nes", "old b");
    respuestas.sobreescribir = { Answer::Yes, Answer::No };
    EXPECT_EQ(descomprime({ { "a.nes", "new a" }, { "b.nes", "new b" }, { "c.nes", "new c" } }),
        QStringList({ u"a.nes"_s, u"c.nes"_s }));
    EXPECT_EQ(bytes("to/a.nes"), "new a");
    EXPECT_EQ(bytes("to/b.nes"), "old b");
    EXPECT_EQ(respuestas.preguntas,
        QStringList({ u"VBUnZip32 - File Already Exists!: Overwrite a.nes?"_s,
            u"VBUnZip32 - File Already Exists!: Overwrite b.nes?"_s }));
}

TEST_F(DescomprimirTest, CancelKeepsAllThatExists_WithoutAFurtherQuestion)
{
    makeFile("to/a.nes", "old a");
    makeFile("to/b.nes", "old b");
    respuestas.sobreescribir = { Answer::Cancel };
    EXPECT_EQ(descomprime({ { "a.nes" }, { "b.nes" }, { "c.nes" } }), QStringList({ u"c.nes"_s }));
    EXPECT_EQ(bytes("to/a.nes"), "old a");
    EXPECT_EQ(bytes("to/b.nes"), "old b");
}

TEST_F(DescomprimirTest, AReadOnlyFileIsReplacedOnYes)
{
    makeFile("to/a.nes", "old");
    setMode("to/a.nes", 0444);
    respuestas.sobreescribir = { Answer::Yes };
    descomprime({ { "a.nes", "new" } });
    EXPECT_EQ(bytes("to/a.nes"), "new");
}

TEST_F(DescomprimirTest, ALinkIsReplacedOnYesOnly_EvenOneThatLeadsNowhere)
{
    makeLink("nowhere", "to/a.nes");
    makeLink("nowhere", "to/b.nes");
    respuestas.sobreescribir = { Answer::No, Answer::Yes };
    EXPECT_EQ(descomprime({ { "a.nes" }, { "b.nes", "new" } }), QStringList({ u"b.nes"_s }));
    EXPECT_EQ(bytes("to/a.nes"), std::nullopt);
    EXPECT_EQ(bytes("to/b.nes"), "new");
    EXPECT_FALSE(exists("to/nowhere"));
}

TEST_F(DescomprimirTest, AFileDoesNotTakeTheNameOfADirectory)
{
    makeDirectory("to/a.nes");
    makeFile("to/a.nes/kept");
    EXPECT_EQ(descomprime({ { "a.nes" }, { "b.nes" } }), QStringList({ u"b.nes"_s }));
    EXPECT_EQ(desempaquetado(), QByteArrayList({ "a.nes/", "a.nes/kept", "b.nes" }));
}

TEST_F(DescomprimirTest, AnEncryptedMemberIsUnpackedWithItsPassword_AskedForOnce)
{
    makeFile("a.zip", ZipCifrado({ { "a.nes", "secret a" }, { "b.nes", "secret b" } }, "sesame"));
    respuestas.contraseñas = { u"sesame"_s };
    EXPECT_EQ(descomprimeArchivo(), QStringList({ u"a.nes"_s, u"b.nes"_s }));
    EXPECT_EQ(bytes("to/a.nes"), "secret a");
    EXPECT_EQ(bytes("to/b.nes"), "secret b");
    EXPECT_EQ(respuestas.preguntas, QStringList({ u"Please Enter The Password!"_s }));
}

TEST_F(DescomprimirTest, AWrongPasswordIsAskedForAgain)
{
    makeFile("a.zip", ZipCifrado({ { "a.nes", "secret" } }, "sesame"));
    respuestas.contraseñas = { u"wrong"_s, u"sesame"_s };
    EXPECT_EQ(descomprimeArchivo(), QStringList({ u"a.nes"_s }));
    EXPECT_EQ(bytes("to/a.nes"), "secret");
}

TEST_F(DescomprimirTest, AfterThreeWrongPasswordsAMemberIsGivenUp_AndTheNextIsTried)
{
    makeFile("a.zip", ZipCifrado({ { "a.nes", "secret a" }, { "b.nes", "secret b" } }, "sesame"));
    respuestas.contraseñas = { u"one"_s, u"two"_s, u"three"_s, u"sesame"_s };
    EXPECT_EQ(descomprimeArchivo(), QStringList({ u"b.nes"_s }));
    EXPECT_EQ(desempaquetado(), QByteArrayList({ "b.nes" }));
    EXPECT_EQ(respuestas.preguntas.size(), 4);
}

TEST_F(DescomprimirTest, AWrongPasswordThatPassesTheCheckLeavesNothing)
{
    const QByteArray archivo = ZipCifrado({ { "a.nes", "secret" } }, "sesame");
    makeFile("a.zip", archivo);
    // The check is a single byte: one of these passes it, and then the data don't agree with their checksum.
    int preguntas = 0;
    for (int i = 0; i < 2000 && preguntas % 3 == 0; ++i) {
        respuestas.contraseñas = { u"x%1"_s.arg(3 * i), u"x%1"_s.arg(3 * i + 1), u"x%1"_s.arg(3 * i + 2) };
        EXPECT_EQ(descomprimeArchivo(), QStringList());
        preguntas = int(respuestas.preguntas.size());
    }
    EXPECT_NE(preguntas % 3, 0);
    EXPECT_EQ(desempaquetado(), QByteArrayList());
}

TEST_F(DescomprimirTest, APasswordIsTriedAsOlderSystemsWriteItAndAsThisOneDoes)
{
    for (const QByteArray &comoBytes : { QByteArray("contrase\xf1"
                                                    "a"),
             QByteArray("contrase\xc3\xb1"
                        "a") }) {
        makeFile("a.zip", ZipCifrado({ { "a.nes", "secret" } }, comoBytes));
        respuestas.contraseñas = { u"contraseña"_s };
        EXPECT_EQ(descomprimeArchivo(), QStringList({ u"a.nes"_s }));
        ASSERT_EQ(unlink(place("to/a.nes").constData()), 0);
    }
    EXPECT_EQ(respuestas.preguntas.size(), 2);
}

TEST_F(DescomprimirTest, OfAPasswordOnlyTheFirst256BytesCount)
{
    const QByteArray larga(256, 'p');
    makeFile("a.zip", ZipCifrado({ { "a.nes", "secret" } }, larga));
    respuestas.contraseñas = { QString::fromLatin1(larga) + u"beyond"_s };
    EXPECT_EQ(descomprimeArchivo(), QStringList({ u"a.nes"_s }));
    EXPECT_EQ(bytes("to/a.nes"), "secret");

    makeFile("b.zip", ZipCifrado({ { "b.nes", "secret" } }, larga.chopped(1)));
    respuestas.contraseñas = { QString::fromLatin1(larga), QString::fromLatin1(larga.chopped(1)) };
    EXPECT_EQ(descomprimeArchivo(u"b.zip"_s), QStringList({ u"b.nes"_s }));
    EXPECT_EQ(respuestas.preguntas.size(), 3);
}

TEST_F(DescomprimirTest, AfterAPromptLeftEmptyNothingIsUnpacked_AndNoFurtherPromptComes)
{
    makeFile("a.zip", ZipCifrado({ { "a.nes" }, { "b.nes" } }, "sesame"));
    respuestas.contraseñas = { u""_s };
    EXPECT_EQ(descomprimeArchivo(), QStringList());
    EXPECT_EQ(descomprimeArchivo(), QStringList());
    EXPECT_EQ(desempaquetado(), QByteArrayList());
    EXPECT_EQ(respuestas.preguntas.size(), 1);
}

TEST_F(DescomprimirTest, TheRestOfAnArchiveIsUnpacked_WhereThePromptWasLeftEmpty)
{
    makeFile("a.zip", ZipCifrado({ { "a.nes" } }, "sesame"));
    respuestas.contraseñas = { u""_s };
    descomprimeArchivo();
    EXPECT_EQ(descomprime({ { "plain.nes" } }), QStringList({ u"plain.nes"_s }));
}

TEST_F(DescomprimirTest, StopsWhereTheDiskWouldBeLeftWithTooLittle)
{
    constexpr qint64 Minimo = 100 * 1024 * 1024;
    qint64 libre = Minimo + 10;
    launch::PonEspacioLibre([&](int) { return libre; });
    EXPECT_EQ(
        descomprime({ { "fits.nes", "0123456789" }, { "toobig.nes", "01234567890" }, { "after.nes", "0" } }),
        QStringList({ u"fits.nes"_s }));
    EXPECT_EQ(desempaquetado(), QByteArrayList({ "fits.nes" }));
}

TEST_F(DescomprimirTest, EmptyMembersAndDirectoriesStopThereToo)
{
    launch::PonEspacioLibre([](int) { return 1000; });
    EXPECT_EQ(descomprime({ { "dir/", "" }, { "sub/in.nes", "" }, { "empty.nes", "" } }), QStringList());
    EXPECT_EQ(desempaquetado(), QByteArrayList());
}

TEST_F(DescomprimirTest, TheRoomLeftIsThatOfTheDestinationsOwnDisk)
{
    EXPECT_FALSE(launch::Destino("/proc").QuedaSitio()) << "a disk without any room";
    EXPECT_TRUE(launch::Destino(place("to")).QuedaSitio());
}

TEST_F(DescomprimirTest, StopsInTheMiddleOfAMember_AndLeavesNoHalfFile)
{
    constexpr qint64 Minimo = 100 * 1024 * 1024;
    int bloques = 0;
    launch::PonEspacioLibre([&](int) { return ++bloques < 3 ? Minimo * 2 : Minimo; });
    EXPECT_EQ(descomprime({ { "big.nes", QByteArray(1000000, 'x') } }), QStringList());
    EXPECT_EQ(bloques, 3);
    EXPECT_EQ(desempaquetado(), QByteArrayList());
}

TEST_F(DescomprimirTest, AWriteThatFailsLeavesNoHalfFile)
{
    makeFile("a.zip", Zip({ { "small.nes", "ok" }, { "big.nes", QByteArray(1000000, 'x') } }));
    const int resultado = inChild([this] {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limite { 300000, 300000 };
        if (setrlimit(RLIMIT_FSIZE, &limite) != 0)
            return 1;
        return descomprimeArchivo() == QStringList({ u"small.nes"_s }) ? 0 : 2;
    });
    EXPECT_EQ(resultado, 0);
    EXPECT_EQ(desempaquetado(), QByteArrayList({ "small.nes" }));
}

TEST_F(DescomprimirTest, NamesThatAreTooLongOrTooDeepLeaveTheOthersAlone)
{
    const QByteArray larga(300, 'n');
    const QByteArray honda = QByteArray("d/").repeated(3000) + "x.nes";
    descomprime({ { larga }, { larga + "/x.nes" }, { "good.nes" }, { honda }, { "last.nes" } });
    EXPECT_TRUE(exists("to/good.nes"));
    EXPECT_TRUE(exists("to/last.nes"));
    EXPECT_FALSE(exists("to/d"));
}

TEST_F(DescomprimirTest, UnpacksThousandsOfMembers)
{
    QList<MiembroZip> miembros;
    for (int i = 0; i < 20000; ++i)
        miembros << MiembroZip { "game" + QByteArray::number(i) + ".nes", "g" };
    const QStringList ficheros = descomprime(miembros);
    EXPECT_EQ(ficheros.size(), 20000);
    EXPECT_EQ(ficheros.value(19999), u"game19999.nes"_s);
    EXPECT_EQ(bytes("to/game19999.nes"), "g");
}

TEST_F(DescomprimirTest, UnpacksDeflatedMembers)
{
    const QByteArray texto = QByteArray("a line that comes again\n").repeated(20000);
    EXPECT_EQ(descomprime({ { .nombre = "a.nes", .datos = texto, .comprimido = true }, { "b.nes", "stored" },
                  { .nombre = "empty.nes", .datos = "", .comprimido = true } }),
        QStringList({ u"a.nes"_s, u"b.nes"_s, u"empty.nes"_s }));
    EXPECT_EQ(bytes("to/a.nes"), texto);
    EXPECT_EQ(bytes("to/b.nes"), "stored");
    EXPECT_EQ(bytes("to/empty.nes"), "");
}

TEST_F(DescomprimirTest, ADamagedDeflatedMemberLeavesNothing)
{
    QByteArray texto;
    for (int i = 0; i < 20000; ++i)
        texto += QByteArray::number(i * 7919 % 10007) + '\n';
    EXPECT_EQ(
        descomprime({ { "a.nes" },
            { .nombre = "bad.nes", .datos = texto, .comprimido = true, .datosRotos = true }, { "c.nes" } }),
        QStringList({ u"a.nes"_s, u"c.nes"_s }));
    EXPECT_EQ(desempaquetado(), QByteArrayList({ "a.nes", "c.nes" }));
}

TEST_F(DescomprimirTest, AnEncryptedDeflatedMemberIsUnpackedWithItsPassword)
{
    const QByteArray texto = QByteArray("secret ").repeated(1000);
    makeFile("a.zip", ZipCifrado({ { .nombre = "a.nes", .datos = texto, .comprimido = true } }, "sesame"));
    respuestas.contraseñas = { u"sesame"_s };
    EXPECT_EQ(descomprimeArchivo(), QStringList({ u"a.nes"_s }));
    EXPECT_EQ(bytes("to/a.nes"), texto);
}

TEST(PartesDe, CutsAtBothSeparators_AndDropsWhatLeadsElsewhere)
{
    using launch::PartesDe;
    EXPECT_EQ(PartesDe("a/b\\c"), QByteArrayList({ "a", "b", "c" }));
    EXPECT_EQ(PartesDe("/a//b/"), QByteArrayList({ "a", "b" }));
    EXPECT_EQ(PartesDe("../a/./..\\b"), QByteArrayList({ "a", "b" }));
    EXPECT_EQ(PartesDe("..."), QByteArrayList({ "..." }));
    EXPECT_EQ(PartesDe(""), QByteArrayList());
    EXPECT_EQ(PartesDe("/../."), QByteArrayList());
}

} // namespace
