// The help and the settings that emulators come with: the search, and the reading.
#include "directoriodeprograma.h"

#include "core/documentos.h"

using namespace Qt::StringLiterals;

namespace {

class Documentos : public DirectorioDePrograma { };

QByteArray Letras(int cuantos, char letra = 'a')
{
    return QByteArray(cuantos, letra);
}

} // namespace

TEST_F(Documentos, DirectoryEndsInThePathsLastSeparator)
{
    EXPECT_EQ(core::DirectorioDe(u"/e/emu.exe"_s), u"/e/"_s);
    EXPECT_EQ(core::DirectorioDe(u"C:\\e\\emu.exe"_s), u"C:\\e\\"_s);
    EXPECT_EQ(core::DirectorioDe(u"emu"_s), QString());
}

TEST_F(Documentos, HelpHasSixteenCandidatesInOrder)
{
    EXPECT_EQ(core::CandidatosDeAyuda(u"/e/Emu.exe"_s),
        (QStringList { u"/e/readme.txt"_s, u"/e/Emu.TXT"_s, u"/e/Emu.DOC"_s, u"/e/readme."_s,
            u"/e/docs\\manual.txt"_s, u"/e/readmee.txt"_s, u"/e/changes.txt"_s, u"/e/beta.txt"_s,
            u"/e/english.txt"_s, u"/e/Emu.ENG"_s, u"/e/read.me"_s, u"/e/release.txt"_s, u"/e/read_me.txt"_s,
            u"/e/readme98.txt"_s, u"/e/vsmc.doc"_s, u"/e/wrjvspsm doc"_s }));
}

TEST_F(Documentos, SettingsHaveElevenCandidatesInOrder)
{
    EXPECT_EQ(core::CandidatosDeConfiguracion(u"e\\Emu.exe"_s),
        (QStringList { u"e\\Emu.INI"_s, u"e\\Emu.CFG"_s, u"e\\gen.ini"_s, u"e\\joy.cfg"_s, u"e\\mame.cfg"_s,
            u"e\\defctrls.ini"_s, u"e\\settings.cfg"_s, u"e\\kgen98.cfg"_s, u"e\\nemu64.ini"_s,
            u"e\\neorage.ini"_s, u"e\\nez.cfg"_s }));
}

TEST_F(Documentos, NameWithoutAnEndingOfThreeLettersStaysWhole)
{
    const std::pair<QString, QString> nombres[] = { { u"stella"_s, u"stella"_s }, { u"a"_s, u"a"_s },
        { u".exe"_s, u""_s }, { u"emu.bin"_s, u"emu"_s }, { u"emu.x86_64"_s, u"emu.x86_64"_s },
        { u""_s, u""_s }, { u"e.sh"_s, u"e.sh"_s } };
    for (const auto &[nombre, base] : nombres)
        EXPECT_EQ(core::CandidatosDeConfiguracion(u"/e/"_s + nombre).first(), u"/e/"_s + base + u".INI"_s);
}

TEST_F(Documentos, FirstCandidateThatExistsWins)
{
    Pon(u"e/Emu.txt"_s, "2");
    Pon(u"e/docs/manual.txt"_s, "5");
    const QStringList candidatos = core::CandidatosDeAyuda(Ruta(u"e/Emu.exe"_s));
    EXPECT_EQ(core::PrimeroQueExiste(candidatos), candidatos[1]);
    Pon(u"e/README.TXT"_s, "1");
    EXPECT_EQ(core::PrimeroQueExiste(candidatos), candidatos[0]);
}

TEST_F(Documentos, EveryCandidateIsFound)
{
    const auto cada = [this](const QStringList &candidatos, const QStringList &nombres) {
        ASSERT_EQ(candidatos.size(), nombres.size());
        for (qsizetype i = 0; i < nombres.size(); ++i) {
            Pon(u"e/"_s + nombres[i], "x");
            EXPECT_EQ(core::PrimeroQueExiste(candidatos), candidatos[i]);
            Borra(u"e/"_s + nombres[i]);
        }
        EXPECT_EQ(core::PrimeroQueExiste(candidatos), std::nullopt);
    };
    cada(core::CandidatosDeAyuda(Ruta(u"e/emu.exe"_s)),
        { u"Readme.txt"_s, u"emu.txt"_s, u"EMU.doc"_s, u"README"_s, u"docs/Manual.txt"_s, u"readmee.txt"_s,
            u"changes.txt"_s, u"beta.txt"_s, u"english.txt"_s, u"emu.eng"_s, u"read.me"_s, u"release.txt"_s,
            u"read_me.txt"_s, u"readme98.txt"_s, u"vsmc.doc"_s, u"wrjvspsm doc"_s });
    cada(core::CandidatosDeConfiguracion(Ruta(u"e/emu.exe"_s)),
        { u"emu.ini"_s, u"Emu.cfg"_s, u"gen.ini"_s, u"joy.cfg"_s, u"mame.cfg"_s, u"defctrls.ini"_s,
            u"settings.cfg"_s, u"kgen98.cfg"_s, u"nemu64.ini"_s, u"neorage.ini"_s, u"nez.cfg"_s });
}

TEST_F(Documentos, DirectoryOfThatNameCountsAndCannotBeRead)
{
    PonDirectorio(u"e/readme.txt"_s);
    Pon(u"e/emu.txt"_s, "x");
    const QStringList candidatos = core::CandidatosDeAyuda(Ruta(u"e/emu.exe"_s));
    EXPECT_EQ(core::PrimeroQueExiste(candidatos), candidatos[0]);
    EXPECT_EQ(NumeroDeFallo([&] { core::LeeDocumento(candidatos[0]); }), host::PathAccess);
}

TEST_F(Documentos, FileThatIsGoneCannotBeRead)
{
    EXPECT_EQ(NumeroDeFallo([&] { core::LeeDocumento(Ruta(u"gone"_s)); }), host::FileNotFound);
}

TEST_F(Documentos, TextIsReadAsItStandsWithoutItsTrailingBlanks)
{
    Pon(u"d"_s, " one\r\ntwo\n\tthree \xE9  ");
    const core::Documento documento = core::LeeDocumento(Ruta(u"d"_s));
    EXPECT_EQ(documento.texto, u" one\r\ntwo\n\tthree é"_s);
    EXPECT_FALSE(documento.cortado);
}

TEST_F(Documentos, LimitIsThirtyTwoThousandBytes)
{
    Pon(u"d"_s, Letras(31999) + "b");
    EXPECT_FALSE(core::LeeDocumento(Ruta(u"d"_s)).cortado);
    EXPECT_EQ(core::LeeDocumento(Ruta(u"d"_s)).texto.size(), 32000);
    Pon(u"d"_s, Letras(31999) + "bc");
    EXPECT_TRUE(core::LeeDocumento(Ruta(u"d"_s)).cortado);
    EXPECT_EQ(core::LeeDocumento(Ruta(u"d"_s)).texto, QString::fromLatin1(Letras(31999) + "b"));
}

TEST_F(Documentos, BlanksAtTheCutGoToo)
{
    Pon(u"d"_s, "x" + Letras(40000, ' '));
    EXPECT_EQ(core::LeeDocumento(Ruta(u"d"_s)).texto, u"x"_s);
}

TEST_F(Documentos, Utf8StaysUtf8WhereTheCutFallsIntoACharacter)
{
    const QByteArray caracteres[] = { "é", "€", "🎮" };
    for (const QByteArray &caracter : caracteres) {
        for (int dentro = 1; dentro < caracter.size(); ++dentro) {
            Pon(u"d"_s, "ñ" + Letras(32000 - 2 - dentro) + caracter + "rest");
            EXPECT_EQ(core::LeeDocumento(Ruta(u"d"_s)).texto,
                u"ñ"_s + QString::fromLatin1(Letras(32000 - 2 - dentro)));
        }
        Pon(u"d"_s, Letras(32000 - int(caracter.size())) + caracter + "rest");
        EXPECT_TRUE(core::LeeDocumento(Ruta(u"d"_s)).texto.endsWith(QString::fromUtf8(caracter)));
    }
}

TEST_F(Documentos, TextOfTheOldCodePageIsCutAtTheByte)
{
    Pon(u"d"_s, "\xE9\x20" + Letras(31997) + "\xC3" + "rest");
    EXPECT_TRUE(core::LeeDocumento(Ruta(u"d"_s)).texto.endsWith(u"aÃ"_s));
}

TEST_F(Documentos, EmptyFileIsAnEmptyText)
{
    Pon(u"d"_s, "");
    EXPECT_EQ(core::LeeDocumento(Ruta(u"d"_s)).texto, QString());
}
