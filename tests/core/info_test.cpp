// From an entry of the list back to its file: the look-up, the line of facts, the capture's path.
#include "azar.h"
#include "directoriodeprograma.h"

#include "core/info.h"
#include "core/listado.h"
#include "core/notas.h"

#include "host/lengths.h"
#include "host/paths.h"

using namespace Qt::StringLiterals;
using core::FichaDeROM;

namespace {

class Informacion : public DirectorioDePrograma {
protected:
    void PonNotas(const QList<std::pair<QString, QString>> &notas)
    {
        for (int i = 0; i < notas.size(); ++i) {
            M.Nota_Clave(i) = notas[i].first;
            M.Nota_Texto(i) = notas[i].second;
        }
    }

    QString LineaDe(int tipo, const QString &texto) const
    {
        const host::LengthsIn largos(Ruta(QString()));
        return core::UltimaLineaDeInfo(
            M, texto, tipo, Ruta(QString()),
            [&](const QStringList &nombres) { return largos.ofAll(nombres); },
            [&](const QString &ruta) { return largos.lists(ruta); });
    }

    // What an entry stands for, one after the other: "KEY*" with a note, "name" without.
    QStringList Buscadas(const QString &texto) const
    {
        QStringList halladas;
        core::BuscaROM(M, texto, [&halladas](const FichaDeROM &ficha) {
            halladas += ficha.conNota ? ficha.nombre + u'*' : ficha.nombre;
        });
        return halladas;
    }
};

} // namespace

TEST_F(Informacion, EntryStandsForTheKeyOfItsNote)
{
    PonNotas({ { u"A.BIN"_s, u"One"_s }, { u"B.BIN"_s, u"Two"_s } });
    EXPECT_EQ(Buscadas(u"Two"_s), QStringList { u"B.BIN*"_s });
}

TEST_F(Informacion, EntryStandsForItself_WithoutANote)
{
    PonNotas({ { u"A.BIN"_s, u"One"_s } });
    EXPECT_EQ(Buscadas(u"b.bin"_s), QStringList { u"b.bin"_s });
    EXPECT_EQ(Buscadas(u"one"_s), QStringList { u"one"_s });
}

TEST_F(Informacion, EntryStandsForEachNoteOfItsTextInTurn)
{
    PonNotas({ { u"A.BIN"_s, u"Same"_s }, { u"B.BIN"_s, u"Other"_s }, { u"C.BIN"_s, u"Same"_s } });
    EXPECT_EQ(Buscadas(u"Same"_s), (QStringList { u"A.BIN*"_s, u"C.BIN*"_s }));
}

TEST_F(Informacion, KeyShowsInUpperCase_AlsoWhereTheTableHoldsItInLowerCase)
{
    PonNotas({ { u"a.bin"_s, u"One"_s } });
    EXPECT_EQ(Buscadas(u"One"_s), QStringList { u"A.BIN*"_s });
    EXPECT_EQ(M.Nota_Clave(0), u"a.bin");
}

TEST_F(Informacion, NotesEndAtTheFirstEmptyKey_ButTheFirstIsAlwaysTried)
{
    PonNotas({ { QString(), u"One"_s }, { QString(), u"Two"_s }, { u"C"_s, u"Three"_s } });
    EXPECT_EQ(Buscadas(u"One"_s), QStringList { u"*"_s });
    EXPECT_EQ(Buscadas(u"Two"_s), QStringList { u"Two"_s });
    EXPECT_EQ(Buscadas(u"Three"_s), QStringList { u"Three"_s });
}

TEST_F(Informacion, NothingSelectedHitsTheEmptyFirstNote_OfASystemWithoutNotes)
{
    EXPECT_EQ(Buscadas(QString()), QStringList { u"*"_s });
}

TEST_F(Informacion, LookUpRunsOffAFullTable_BehindItsHits)
{
    for (int i = 0; i < core::MaxROMs; ++i) {
        M.Nota_Clave(i) = u"K%1"_s.arg(i);
        M.Nota_Texto(i) = u"T%1"_s.arg(i);
    }
    QStringList halladas;
    const auto apunta = [&halladas](const FichaDeROM &ficha) { halladas += ficha.nombre; };
    EXPECT_EQ(NumeroDeFallo([&] { core::BuscaROM(M, u"T6666"_s, apunta); }), host::OutOfRange);
    EXPECT_EQ(halladas, QStringList { u"K6666"_s });
    EXPECT_EQ(NumeroDeFallo([&] { core::BuscaROM(M, u"none"_s, apunta); }), host::OutOfRange);
    EXPECT_EQ(halladas, QStringList { u"K6666"_s });
}

TEST_F(Informacion, CapturesOfATextAreEachNotesOnce_TheLastOnesAtTheEnd)
{
    PonNotas({ { u"A.B"_s, u"One"_s }, { u"B.C"_s, u"One"_s }, { u"X.Y"_s, u"Two"_s }, { u"A.D"_s, u"One"_s },
        { u"Point"_s, u"Three"_s }, { u"X.Z"_s, u"Three"_s } });
    const auto capturas = [this](const QString &texto, int tipo) {
        return core::CapturasDe(M, texto, tipo, u"C/"_s);
    };
    EXPECT_EQ(capturas(u"One"_s, 0), (QStringList { u"C/B.GIF"_s, u"C/A.GIF"_s }));
    EXPECT_EQ(capturas(u"One"_s, 2), (QStringList { u"C/A.B.GIF"_s, u"C/B.C.GIF"_s, u"C/A.D.GIF"_s }));
    EXPECT_EQ(capturas(u"One"_s, 4), QStringList());
    EXPECT_EQ(capturas(u"Two"_s, 5), QStringList { u"C/X.GIF"_s });
    EXPECT_EQ(capturas(u"none.bin"_s, 5), QStringList { u"C/none.GIF"_s });
    EXPECT_EQ(NumeroDeFallo([&] { capturas(u"Three"_s, 0); }), host::InvalidArgument);
    EXPECT_EQ(NumeroDeFallo([&] { capturas(u"none"_s, 0); }), host::InvalidArgument);
}

struct CasoDeInfo {
    int tipo;
    FichaDeROM ficha;
    qint64 largo;
    QString linea;
    QString fichero; // whose length it is
};

void PrintTo(const CasoDeInfo &caso, std::ostream *salida)
{
    *salida << caso.tipo << ", " << caso.ficha.nombre.toStdString() << (caso.ficha.conNota ? "*, " : ", ")
            << caso.largo;
}

class LineaDeInfo : public testing::TestWithParam<CasoDeInfo> { };

TEST_P(LineaDeInfo, TellsNameSizeAndKind)
{
    const CasoDeInfo &caso = GetParam();
    EXPECT_EQ(core::LineaDeInfo(caso.tipo, caso.ficha, caso.largo), caso.linea);
    EXPECT_EQ(core::FicheroMedido(caso.tipo, caso.ficha).value_or(QString()), caso.fichero);
}

INSTANTIATE_TEST_SUITE_P(Sueltos, LineaDeInfo,
    testing::Values(
        CasoDeInfo { 0, { u"GAME.BIN"_s, true }, 40960, u"GAME.BIN 40Kb  [NOR]"_s, u"GAME.BIN"_s },
        CasoDeInfo { 5, { u"GAME.ZIP"_s, true }, 40960, u"GAME.ZIP 40Kb  [ZIP]"_s, u"GAME.ZIP"_s },
        // Without a note the name keeps its case.
        CasoDeInfo { 0, { u"Game.bin"_s, false }, 40960, u"Game.bin 40Kb  [NOR]"_s, u"Game.bin"_s },
        CasoDeInfo { 5, { u"Game.Zip"_s, false }, 40960, u"Game.Zip 40Kb  [ZIP]"_s, u"Game.Zip"_s },
        CasoDeInfo { 0, { u"GAMEZIP"_s, true }, 1024, u"GAMEZIP 1Kb  [ZIP]"_s, u"GAMEZIP"_s },
        // Whole Kb, half away from zero, nothing for what rounds to none.
        CasoDeInfo { 0, { u"G.BIN"_s, false }, 1000, u"G.BIN 1Kb  [NOR]"_s, u"G.BIN"_s },
        CasoDeInfo { 0, { u"NAME"_s, false }, 400, u"NAME Kb  [NOR]"_s, u"NAME"_s },
        CasoDeInfo { 0, { u"NAME"_s, true }, 0, u"NAME Kb  [NOR]"_s, u"NAME"_s },
        CasoDeInfo { 0, { u"NAME"_s, true }, 511, u"NAME Kb  [NOR]"_s, u"NAME"_s },
        CasoDeInfo { 0, { u"NAME"_s, true }, 512, u"NAME 1Kb  [NOR]"_s, u"NAME"_s },
        CasoDeInfo { 0, { u"NAME"_s, true }, 1535, u"NAME 1Kb  [NOR]"_s, u"NAME"_s },
        CasoDeInfo { 0, { u"NAME"_s, true }, 1536, u"NAME 2Kb  [NOR]"_s, u"NAME"_s },
        CasoDeInfo { 0, { u"NAME"_s, true }, 2560, u"NAME 3Kb  [NOR]"_s, u"NAME"_s },
        CasoDeInfo { 0, { u"NAME"_s, true }, 1234567LL * 1024, u"NAME 1,234,567Kb  [NOR]"_s, u"NAME"_s }));

INSTANTIATE_TEST_SUITE_P(Directorios, LineaDeInfo,
    testing::Values(CasoDeInfo { 1, { u"GAME"_s, true }, 0, u"GAME [DIR]"_s, QString() },
        CasoDeInfo { 6, { u"GAME"_s, true }, 0, u"GAME [DIR]"_s, QString() },
        CasoDeInfo { 1, { u"Game.x"_s, false }, 0, u"GAME.X [DIR]"_s, QString() }));

INSTANTIATE_TEST_SUITE_P(Zips, LineaDeInfo,
    testing::Values(
        // With a note: two blanks ahead of the number, and no separators in it.
        CasoDeInfo { 2, { u"GAME"_s, true }, 40960, u"GAME.ZIP  40Kb [ZIP]"_s, u"GAME.ZIP"_s },
        CasoDeInfo {
            3, { u"GAME"_s, true }, 1234567LL * 1024, u"GAME.ZIP  1234567Kb [ZIP]"_s, u"GAME.ZIP"_s },
        CasoDeInfo { 7, { u"GAME"_s, true }, 512, u"GAME.ZIP  1Kb [ZIP]"_s, u"GAME.ZIP"_s },
        CasoDeInfo { 8, { u"GAME.ZIP"_s, true }, 2048, u"GAME.ZIP.ZIP  2Kb [ZIP]"_s, u"GAME.ZIP.ZIP"_s },
        // Without: the name in upper case, the separators stay.
        CasoDeInfo { 2, { u"Game.zip"_s, false }, 40960, u"GAME.ZIP 40Kb [ZIP]"_s, u"Game.zip"_s },
        CasoDeInfo {
            3, { u"Game.zip"_s, false }, 1234567LL * 1024, u"GAME.ZIP 1,234,567Kb [ZIP]"_s, u"Game.zip"_s },
        CasoDeInfo { 7, { u"Game.zip"_s, false }, 400, u"GAME.ZIP Kb [ZIP]"_s, u"Game.zip"_s },
        CasoDeInfo { 8, { u"Game.zip"_s, false }, 512, u"GAME.ZIP 1Kb [ZIP]"_s, u"Game.zip"_s }));

INSTANTIATE_TEST_SUITE_P(Otros, LineaDeInfo,
    testing::Values(CasoDeInfo { 4, { u"GAME"_s, true }, 1024, QString(), QString() },
        CasoDeInfo { 4, { u"GAME"_s, false }, 1024, QString(), QString() },
        CasoDeInfo { -1, { u"GAME"_s, true }, 1024, QString(), QString() },
        CasoDeInfo { 9, { u"GAME"_s, false }, 1024, QString(), QString() }));

TEST(LineaDeInfo, FailsAsATypeMismatch_ForANotedZipWhoseSizeRoundsToNothing)
{
    for (const int tipo : { 2, 3, 7, 8 }) {
        for (const qint64 largo : { 0, 511 }) {
            EXPECT_EQ(NumeroDeFallo([&] {
                core::LineaDeInfo(tipo, { u"GAME"_s, true }, largo);
            }),
                host::TypeMismatch)
                << tipo << ' ' << largo;
        }
    }
}

TEST_F(Informacion, OfAFileThatIsGoneThereIsNoLine)
{
    PonNotas({ { u"GONE.ZIP"_s, u"Gone"_s } });
    for (const int tipo : { 0, 2, 3, 5, 7, 8 }) {
        for (const QString &texto : { u"Gone"_s, u"GONE.ZIP"_s })
            EXPECT_EQ(LineaDe(tipo, texto), QString()) << tipo;
    }
}

TEST_F(Informacion, LengthIsFoundByAKeyInUpperCase)
{
    Pon(u"mario.nes"_s, QByteArray(2048, 'x'));
    Pon(u"Castle.zip"_s, QByteArray(3072, 'x'));
    PonNotas({ { u"MARIO.NES"_s, u"Mario"_s }, { u"CASTLE"_s, u"Castle"_s } });
    EXPECT_EQ(LineaDe(0, u"Mario"_s), u"MARIO.NES 2Kb  [NOR]");
    EXPECT_EQ(LineaDe(3, u"Castle"_s), u"CASTLE.ZIP  3Kb [ZIP]");
}

namespace {

// The line of the notes A, B, C, D of one text, and the files asked for their length. Of those in `seguras`
// a listing tells that they are there; a look at one in `perdidas` fails.
struct DeVarias {
    QString linea;
    QStringList miradas;
};

DeVarias LineaDeVarias(core::Modulo &M, int tipo, const QStringList &seguras, const QStringList &perdidas,
    const QStringList &pequeñas = {})
{
    DeVarias todo;
    todo.linea = core::UltimaLineaDeInfo(
        M, u"Same"_s, tipo, QString(),
        [&](const QStringList &nombres) {
            QList<qint64> largos;
            for (const QString &nombre : nombres) {
                todo.miradas += nombre;
                if (perdidas.contains(nombre))
                    break;
                largos += pequeñas.contains(nombre) ? 511 : 2048;
            }
            return largos;
        },
        [&](const QString &ruta) { return seguras.contains(ruta); });
    return todo;
}

} // namespace

TEST_F(Informacion, OfManyNotesOfOneText_TheLastOneIsLookedAt_AndThoseThatNothingTellsOf)
{
    PonNotas({ { u"A"_s, u"Same"_s }, { u"B"_s, u"Same"_s }, { u"C"_s, u"Same"_s }, { u"D"_s, u"Same"_s } });
    const QStringList todas { u"A"_s, u"B"_s, u"C"_s, u"D"_s };
    const auto caso = [&](const QStringList &seguras, const QStringList &perdidas) {
        return LineaDeVarias(M, 0, seguras, perdidas);
    };
    EXPECT_EQ(caso(todas, {}).linea, u"D 2Kb  [NOR]");
    EXPECT_EQ(caso(todas, {}).miradas, QStringList { u"D"_s });
    EXPECT_EQ(caso({ u"A"_s, u"C"_s }, {}).miradas, (QStringList { u"B"_s, u"D"_s }));
    EXPECT_EQ(caso({}, { u"B"_s }).linea, u"A 2Kb  [NOR]");
    EXPECT_EQ(caso(todas, { u"D"_s }).linea, u"C 2Kb  [NOR]");
    EXPECT_EQ(caso(todas, { u"D"_s, u"C"_s }).linea, u"B 2Kb  [NOR]");
    EXPECT_EQ(caso({}, { u"A"_s }).linea, QString());
    EXPECT_EQ(caso(todas, todas).linea, QString());
    const auto deZip = [&](const QStringList &pequeñas) {
        return LineaDeVarias(M, 2, {}, {}, pequeñas).linea;
    };
    EXPECT_EQ(deZip({}), u"D.ZIP  2Kb [ZIP]");
    EXPECT_EQ(deZip({ u"C.ZIP"_s }), u"B.ZIP  2Kb [ZIP]");
    EXPECT_EQ(deZip({ u"D.ZIP"_s }), u"C.ZIP  2Kb [ZIP]");
    EXPECT_EQ(deZip({ u"A.ZIP"_s }), QString());
}

TEST_F(Informacion, OfManyZips_EachIsLookedAt)
{
    PonNotas({ { u"A"_s, u"Same"_s }, { u"B"_s, u"Same"_s } });
    const QStringList todas { u"A.ZIP"_s, u"B.ZIP"_s, u"A"_s, u"B"_s };
    EXPECT_EQ(LineaDeVarias(M, 3, todas, { u"A.ZIP"_s }).linea, QString());
    EXPECT_EQ(LineaDeVarias(M, 3, todas, { u"B.ZIP"_s }).linea, u"A.ZIP  2Kb [ZIP]");
}

struct CasoDeCaptura {
    int tipo;
    FichaDeROM ficha;
    QString ruta;
};

void PrintTo(const CasoDeCaptura &caso, std::ostream *salida)
{
    *salida << caso.tipo << ", " << caso.ficha.nombre.toStdString() << (caso.ficha.conNota ? "*" : "");
}

class RutaDeCaptura : public testing::TestWithParam<CasoDeCaptura> { };

TEST_P(RutaDeCaptura, IsADirectoryAndTheNameByType)
{
    EXPECT_EQ(core::RutaDeCaptura(GetParam().tipo, u"D/"_s, GetParam().ficha), GetParam().ruta);
}

INSTANTIATE_TEST_SUITE_P(Casos, RutaDeCaptura,
    testing::Values(CasoDeCaptura { 1, { u"GAME.X"_s, true }, u"D/GAME.X.GIF"_s },
        CasoDeCaptura { 6, { u"GAME.X"_s, false }, u"D/GAME.X.GIF"_s },
        CasoDeCaptura { 1, { u"GAME"_s, false }, u"D/GAME.GIF"_s },
        CasoDeCaptura { 2, { u"GAME"_s, true }, u"D/GAME.GIF"_s },
        CasoDeCaptura { 3, { u"GAME.V1.X"_s, true }, u"D/GAME.V1.X.GIF"_s },
        CasoDeCaptura { 7, { u"Game.zip"_s, false }, u"D/Game.GIF"_s },
        CasoDeCaptura { 8, { u"Game.v1.zip"_s, false }, u"D/Game.GIF"_s },
        CasoDeCaptura { 0, { u"GAME.V1.BIN"_s, true }, u"D/GAME.GIF"_s },
        CasoDeCaptura { 5, { u"Game.v1.bin"_s, false }, u"D/Game.GIF"_s },
        CasoDeCaptura { 0, { u".bin"_s, false }, u"D/.GIF"_s },
        CasoDeCaptura { 4, { u"GAME"_s, true }, QString() },
        CasoDeCaptura { 4, { u"GAME"_s, false }, QString() },
        CasoDeCaptura { -1, { u"GAME.X"_s, false }, QString() }));

TEST(RutaDeCaptura, IsTheBareName_WithoutADirectory)
{
    EXPECT_EQ(core::RutaDeCaptura(0, QString(), { u"GAME.BIN"_s, true }), u"GAME.GIF");
}

TEST(RutaDeCaptura, FailsAsInvalid_ForANameWithoutThePointThatItIsCutAt)
{
    for (const auto &[tipo, conNota] :
        { std::pair(0, true), std::pair(0, false), std::pair(5, true), std::pair(5, false),
            std::pair(2, false), std::pair(3, false), std::pair(7, false), std::pair(8, false) }) {
        EXPECT_EQ(NumeroDeFallo([&] {
            core::RutaDeCaptura(tipo, u"D/"_s, { u"GAME"_s, conNota });
        }),
            host::InvalidArgument)
            << tipo << conNota;
    }
}

TEST(InfoQueCabe, LosesTheMiddleOfTheNameAndKeepsTheSizeAndTheMark)
{
    struct Caso {
        QString linea;
        int letras; // that have room
        QString queda;
    };
    const QString acentos = u"A\u0301E\u0301I\u0301O\u0301U\u0301"_s; // letters of two characters
    const Caso casos[] = {
        { u"Uno.bin 1Kb  [NOR]"_s, 18, u"Uno.bin 1Kb  [NOR]"_s },
        { u"Uno.bin 1Kb  [NOR]"_s, 17, u"Uno…in 1Kb  [NOR]"_s },
        { u"ABCDEFGH.ZIP 2Kb  [ZIP]"_s, 18, u"ABC…ZIP 2Kb  [ZIP]"_s },
        { u"ABCDEFGH.ZIP  2345Kb [ZIP]"_s, 20, u"ABC…IP  2345Kb [ZIP]"_s },
        { u"GAME OF TWO Kb  [ZIP]"_s, 17, u"GAM…TWO Kb  [ZIP]"_s },
        { u"A LONG NAME [DIR]"_s, 12, u"A L…ME [DIR]"_s },
        { u"1 234Kb [DIR] IN A NAME.BIN 1,234Kb  [NOR]"_s, 23, u"1 23…BIN 1,234Kb  [NOR]"_s },
        { u"Ninguna ROM encontrada"_s, 9, u"Ning…rada"_s },
        { acentos, 7, u"A\u0301E\u0301…U\u0301"_s },
        { acentos, 6, u"A\u0301…U\u0301"_s },
        { u"Uno.bin 1Kb  [NOR]"_s, 3, u"… 1Kb  [NOR]"_s },
        { QString(), 0, QString() },
    };
    for (const Caso &caso : casos) {
        const auto cabe = [&](const QString &parte) { return parte.size() <= caso.letras; };
        EXPECT_EQ(core::InfoQueCabe(caso.linea, cabe), caso.queda) << qPrintable(caso.linea);
    }
}

TEST(InfoQueCabe, ANameWithoutEnd_AsksForNoMoreThanAFewLines)
{
    int preguntas = 0;
    const auto cabe = [&](const QString &parte) { return ++preguntas, parte.size() <= 30; };
    const QString queda = core::InfoQueCabe(QString(1'000'000, u'x') + u" 1Kb  [NOR]"_s, cabe);
    EXPECT_EQ(queda, QString(9, u'x') + u'…' + QString(9, u'x') + u" 1Kb  [NOR]"_s);
    EXPECT_LT(preguntas, 20);
}

TEST_F(Informacion, NotesByTheirTextsAnswerAsTheWalkThroughAllOfThem)
{
    Dado dado(7);
    const QStringList claves { u""_s, u"A.BIN"_s, u"b.bin"_s, u"C.ZIP"_s };
    const QStringList textos { u""_s, u"One"_s, u"Two"_s, u"one"_s, u"A.BIN"_s };
    for (int mundo = 0; mundo < 500; ++mundo) {
        core::VaciaLista(M);
        const int notas = dado.hasta(8);
        for (int i = 0; i < notas; ++i) {
            M.Nota_Clave(i) = claves[dado.hasta(int(claves.size()) - 1)];
            M.Nota_Texto(i) = textos[dado.hasta(int(textos.size()) - 1)];
        }
        const core::NotasPorTexto porTexto(M);
        for (const QString &texto : textos) {
            QStringList halladas;
            porTexto.Busca(texto, [&halladas](const FichaDeROM &ficha) {
                halladas += ficha.conNota ? ficha.nombre + u'*' : ficha.nombre;
            });
            ASSERT_EQ(halladas, Buscadas(texto));
            ASSERT_EQ(porTexto.Primera(texto), core::NotaConTexto(M, texto));
        }
    }
}

TEST_F(Informacion, NotesByTheirTextsRunOffAFullTableToo)
{
    for (int i = 0; i < M.Nota_Clave.tamaño(); ++i) {
        M.Nota_Clave(i) = u"K"_s + QString::number(i);
        M.Nota_Texto(i) = i == 5 ? u"One"_s : u"Many"_s;
    }
    const core::NotasPorTexto porTexto(M);
    int visitas = 0;
    EXPECT_THROW(porTexto.Busca(u"One"_s, [&](const FichaDeROM &) { ++visitas; }), host::Failure);
    EXPECT_EQ(visitas, 1);
    EXPECT_EQ(porTexto.Primera(u"One"_s), 5);
    EXPECT_EQ(porTexto.Primera(u"None"_s), -1);
}
