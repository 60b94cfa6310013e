// All repairs of the notes in one: whose name is gone, and what thousands of mangled files come to.
#include "core/notasremendadas.h"

#include "core/lineas.h"
#include "core/modulo.h"
#include "core/notas.h"
#include "core/parrom.h"

#include "host/failure.h"
#include "host/letters.h"
#include "host/paths.h"
#include "host/textsource.h"

#include <QSet>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype CamposDeParametros = 4;
const QStringList Configurados { u"Alfa"_s, u"Beta"_s };
const QStringList Conocidos { u"Alfa"_s, u"Beta"_s, u"Gamma, the third"_s };
const QString Enteras =
    u"' head\r\n' of two lines\r\n"
    "Alfa\r\nGAME.BIN,\"A game\"\r\n\"B, C.BIN\",\"B and C\"\r\n'\r\n"
    "Beta\r\n[X] ONE.ZIP,\"One\"\r\nTWO,\"It's two, you see\"\r\n'\r\n'----\r\n"
    "Gamma, the third\r\nLAST.BIN,\"The last\"\r\n'\r\n"
    "[EOF]\r\nParametros especificos\r\nGAME.BIN,Alfa,One,-a\r\nTWO,Beta,Two,-b -c\r\n'\r\n"
    "fin\r\nfin,\"fin\"\r\n"_s;

QString sin(const QString &lineas)
{
    EXPECT_TRUE(Enteras.contains(lineas));
    return QString(Enteras).replace(lineas, QString());
}

// The games of which there are files.
const std::map<QString, QStringList> Juegos { { u"Alfa"_s, { u"GAME.BIN"_s, u"B, C.BIN"_s } },
    { u"Beta"_s, { u"[X] ONE.ZIP"_s, u"TWO"_s } }, { u"Gamma, the third"_s, { u"LAST.BIN"_s } } };

bool hayJuego(const QString &sistema, const QString &clave)
{
    return Juegos.at(sistema).contains(clave);
}

QStringList deQuien(const QStringList &claves)
{
    QStringList suyos;
    for (const QString &sistema : Conocidos) {
        if (std::ranges::any_of(claves, [&](const QString &clave) { return hayJuego(sistema, clave); }))
            suyos += sistema;
    }
    return suyos;
}

QString remendadas(const QString &texto)
{
    return core::NotasRemendadas(texto, Configurados, Conocidos, { deQuien, hayJuego });
}

// What the main screen's readers make of a text.
class Lectores {
public:
    // What shows of the systems' games, as "system: KEY" with the description, and what their launches get.
    std::map<QString, QString> Muestran(const QString &texto)
    {
        M->Ficheros.readInstead(m_fichero, texto);
        std::map<QString, QString> visto;
        for (const QString &sistema : Conocidos) {
            const int cuantas = notasDe(sistema);
            for (const QString &clave : Juegos.at(sistema)) {
                int i = 0;
                while (i < cuantas && host::upper(M->Nota_Clave(i)) != clave)
                    ++i;
                if (i < cuantas)
                    visto[sistema + u": "_s + clave] = M->Nota_Texto(i);
                host::TextSource fuente(texto);
                QString parametros = core::ParametrosDe(fuente, clave);
                while (parametros.endsWith(u'\r'))
                    parametros.chop(1); // no part of what the line says
                if (!parametros.isEmpty())
                    visto[clave] = parametros;
            }
        }
        return visto;
    }

private:
    int notasDe(const QString &sistema)
    {
        try {
            return core::CargaNotas(*M, sistema);
        } catch (const host::Failure &) {
            M->Ficheros.closeAll();
            return 0; // the list comes up empty
        }
    }

    const QString m_fichero = host::programFile(u"Zembro.rom"_s);
    const std::unique_ptr<core::Modulo> M = std::make_unique<core::Modulo>();
};

// What showed ahead of the repairs, and doesn't behind them. A game that got what is no description
// may get one instead.
QStringList seDejaDeVer(Lectores &lectores, const QString &roto, const QString &sano)
{
    const std::map<QString, QString> despues = lectores.Muestran(sano);
    QStringList falta;
    for (const auto &[juego, texto] : lectores.Muestran(roto)) {
        const auto suyo = despues.find(juego);
        if (suyo == despues.end()
            || (suyo->second != texto && !sano.contains(u",\""_s + suyo->second + u'"')))
            falta += juego + u" = "_s + texto;
    }
    return falta;
}

// What each line with anything to say says: its fields, the first one whichever its case; of a line that is
// no record the line. Returns at its end aren't its own.
QSet<QString> loDicho(const QString &texto)
{
    QSet<QString> dicho;
    const QString sinRetornos = core::SinRetornosSueltos(texto);
    for (const core::LineaConFin &linea : core::EnLineas(sinRetornos)) {
        const QString entera = linea.linea.toString();
        if (entera.isEmpty())
            continue;
        if (entera.count(u'"') % 2 != 0 || !entera.contains(u',')) {
            dicho.insert(entera);
            continue;
        }
        host::TextSource fuente(entera);
        QStringList campos;
        while (!fuente.atEnd())
            campos += fuente.readField();
        for (qsizetype i = 0; i < (campos.size() == CamposDeParametros ? 3 : 1); ++i)
            campos[i] = host::upper(campos[i]);
        dicho.insert(campos.join(u'\n'));
    }
    return dicho;
}

class Destrozo {
public:
    explicit Destrozo(unsigned semilla)
        : m_azar(semilla)
    {
    }

    QString De(const QString &texto)
    {
        QString roto = texto;
        for (int veces = uno(4); veces >= 0; --veces)
            roto = unGolpe(roto);
        return roto;
    }

private:
    int uno(qsizetype hasta)
    {
        return static_cast<int>(m_azar() % static_cast<unsigned>(std::max<qsizetype>(hasta, 1)));
    }

    QString unGolpe(const QString &texto)
    {
        const QString deBloques[] = { u"Alfa"_s, u"Beta"_s, u"Gamma, the third"_s, u"'"_s, u"[EOF]"_s };
        const QString sueltos[] = { u"'"_s, u"\""_s, u","_s, u"["_s, u"\r"_s, u"\r\n"_s, u"\n"_s, u" "_s,
            u"x"_s, u"'\r\n"_s };
        QStringList lineas = texto.split(u'\n');
        const qsizetype donde = uno(lineas.size());
        const qsizetype otra = uno(lineas.size());
        switch (uno(11)) {
        case 0:
            return texto.first(uno(texto.size()));
        case 1:
            return QString(texto).remove(uno(texto.size()), 1 + uno(3));
        case 2:
            return QString(texto).insert(uno(texto.size()), sueltos[uno(std::size(sueltos))]);
        case 3:
        case 4:
            lineas.removeAt(donde);
            break;
        case 5:
            lineas.insert(donde, lineas[otra]);
            break;
        case 6:
            lineas.swapItemsAt(donde, otra);
            break;
        case 7:
        case 8:
            lineas.insert(donde, deBloques[uno(std::size(deBloques))] + u'\r');
            break;
        case 9:
            lineas.removeIf([&, cual = deBloques[uno(std::size(deBloques))] + u'\r'](
                                const QString &linea) { return linea == cual; });
            break;
        default:
            lineas[donde] = host::lower(lineas[donde]);
        }
        return lineas.join(u'\n');
    }

    std::mt19937 m_azar;
};

} // namespace

TEST(AllMendedNotes, GetTheNameBackThatStoodAboveThem)
{
    EXPECT_EQ(remendadas(Enteras), Enteras);
    for (const QString &nombre : Conocidos)
        EXPECT_EQ(remendadas(sin(nombre + u"\r\n"_s)), Enteras) << nombre.toStdString();
    // With the apostrophe behind them.
    EXPECT_EQ(remendadas(sin(u"Beta\r\n"_s).replace(u"see\"\r\n'\r\n"_s, u"see\"\r\n"_s)), Enteras);
}

TEST(AllMendedNotes, StayWithoutAName_AndNoEmptyBlockTakesTheirPlace_WhereSeveralWouldDo)
{
    const QString dosFaltan =
        sin(u"Beta\r\n"_s).replace(u"Gamma, the third\r\nLAST.BIN,\"The last\"\r\n'\r\n"_s, QString());
    const QString sinDos = sin(u"Beta\r\n"_s).replace(u"Alfa\r\n"_s, QString());
    const QString conOtraCosa = sin(u"Beta\r\n"_s).replace(u"TWO,\""_s, u"TWO\""_s);
    for (const QString &texto : { dosFaltan, sinDos, conOtraCosa })
        EXPECT_EQ(remendadas(texto), texto);
    EXPECT_EQ(core::NotasSinNombre(sinDos, Conocidos).size(), 2u);
    // An unknown system's block is its own, and so is what stands ahead of all of them.
    EXPECT_TRUE(
        core::NotasSinNombre(QString(Enteras).replace(u"Gamma, the third"_s, u"Delta"_s), Conocidos).empty());
}

// A stray apostrophe in the middle of one's notes, while another system has none.
TEST(AllMendedNotes, StayWithoutAName_WhereTheirGamesAreAnotherSystemsOrNobodys)
{
    const QString sinGamma = sin(u"Gamma, the third\r\nLAST.BIN,\"The last\"\r\n'\r\n"_s);
    const QString conSuelto = QString(sinGamma).replace(u"game\"\r\n"_s, u"game\"\r\n'\r\n"_s);
    const QString deDos = sin(u"Gamma, the third\r\n"_s).replace(u"LAST.BIN"_s, u"TWO,\"2\"\r\nLAST.BIN"_s);
    const QString deNadie = sin(u"Gamma, the third\r\n"_s).replace(u"LAST.BIN"_s, u"GONE.BIN"_s);
    for (const QString &texto : { conSuelto, deDos, deNadie }) {
        EXPECT_EQ(core::NotasSinNombre(texto, Conocidos).size(), 1u);
        EXPECT_EQ(remendadas(texto), texto);
    }
}

TEST(AllMendedNotes, GetAnEmptyBlockWhereTheirsIsGoneAltogether)
{
    EXPECT_EQ(remendadas(sin(u"Alfa\r\nGAME.BIN,\"A game\"\r\n\"B, C.BIN\",\"B and C\"\r\n'\r\n"_s)),
        sin(u"Alfa\r\nGAME.BIN,\"A game\"\r\n\"B, C.BIN\",\"B and C\"\r\n'\r\n"_s)
            .replace(u"[EOF]"_s, u"Alfa\r\n'\r\n[EOF]"_s));
}

// What stands for a closing line in the middle of another one lets itself be seen when that is gone.
TEST(AllMendedNotes, ComeToRestWhereOneRepairMakesRoomForAnother)
{
    const QString roto = QString(Enteras)
                             .replace(u"-b -c\r\n'\r\n"_s, u"-b -c\r'\r\n"_s)
                             .replace(u"fin,"_s, u"GAME.BIN,Alfa,One,-a\r\nfin,"_s);
    const QString sano = remendadas(roto);
    EXPECT_TRUE(sano.contains(u"-b -c\r'\r\n'\r\nfin\r\nfin,"_s)) << sano.toStdString();
    EXPECT_EQ(remendadas(sano), sano);
}

// Two headings of one name, with or without notes between them: what the second has joins the first.
TEST(AllMendedNotes, AreOneBlock_WhereTheHeadingStandsTwice)
{
    const QString partidas = QString(Enteras).replace(u"\"B, C"_s, u"Alfa\r\n\"B, C"_s);
    const QString seguidas = QString(Enteras).replace(u"Alfa\r\nGAME"_s, u"Alfa\r\nAlfa\r\nGAME"_s);
    for (const QString &texto : { partidas, seguidas })
        EXPECT_EQ(remendadas(texto), Enteras) << texto.toStdString();
}

// The reader takes two fields at a time, so that an odd line out of place may bring it back into step.
TEST(AllMendedNotes, StayAsTheyAre_WhereLessOfThemWouldShow)
{
    const QString enCabeza = u"Alfa\r\n"_s + QString(Enteras).replace(u"' of two lines\r\n"_s, QString());
    const QString conSuelto =
        QString(Enteras).replace(u"Alfa\r\n"_s, u"Alfa\r\nAlfa\r\n"_s).replace(u"\"B, C"_s, u"'\r\n\"B, C"_s);
    for (const QString &texto : { enCabeza, conSuelto }) {
        EXPECT_EQ(remendadas(texto), texto);
        EXPECT_THAT(core::NotasSinCierre(texto, Conocidos), testing::Not(testing::IsEmpty()));
    }
}

// What a system shows of the next one's, as its own block isn't closed, shows no more where none of its
// games has that name.
TEST(AllMendedNotes, AreClosedWhereTheNextOnesShow_UnlessAGameHasOneOfThose)
{
    const QString abierto = QString(Enteras).replace(u"C\"\r\n'\r\n"_s, u"C\"\r\n"_s);
    EXPECT_EQ(remendadas(abierto), Enteras);
    const QString compartido = QString(Enteras)
                                   .replace(u"\"B, C.BIN\",\"B and C\"\r\n'\r\n"_s, QString())
                                   .replace(u"Beta\r\n"_s, u"Beta\r\nodd\r\n\"B, C.BIN\",\"Of Beta\"\r\n"_s);
    EXPECT_EQ(Lectores().Muestran(compartido).at(u"Alfa: B, C.BIN"_s), u"Of Beta"_s);
    EXPECT_EQ(remendadas(compartido), compartido);
}

TEST(AllMendedNotes, HowEverMangledComeToRestAtOnce_AndLoseNothingThatTheySaid)
{
    Destrozo destrozo(20260501);
    Lectores lectores;
    int cambiados = 0;
    for (int i = 0; i < 4'000; ++i) {
        const QString roto = destrozo.De(Enteras);
        const QString sano = remendadas(roto);
        cambiados += sano != roto;
        ASSERT_EQ(remendadas(sano), sano) << i << '\n' << roto.toStdString();
        const QStringList falta = sano == roto ? QStringList() : seDejaDeVer(lectores, roto, sano);
        ASSERT_THAT(falta, testing::IsEmpty()) << i << '\n' << roto.toStdString();
        const QSet<QString> perdido = loDicho(roto) - loDicho(sano);
        ASSERT_TRUE(perdido.isEmpty())
            << i << '\n'
            << roto.toStdString() << "\n--- lost ---\n"
            << QStringList(perdido.begin(), perdido.end()).join(u" | "_s).toStdString();
    }
    EXPECT_GT(cambiados, 1'500);
}

TEST(AllMendedNotes, LoseTheBlankLinesThatHideWhatStandsBehindThem)
{
    const QString enteras = QString(Enteras).replace(u"Beta,Two"_s, u"Beta,Duo"_s);
    const auto con = [&](QStringView delante, QStringView vacias) {
        return QString(enteras).replace(delante.toString(), vacias.toString() + delante.toString());
    };
    for (const QStringView delante :
        { u"GAME.BIN,\"", u"\"B, C.BIN\",", u"TWO,\"", u"GAME.BIN,Alfa", u"'\r\nfin" }) {
        for (const QStringView vacias : { u"\r\n", u" \r\n", u"\r\n\r\n", u"\t\r\n" })
            EXPECT_EQ(remendadas(con(delante, vacias)), enteras) << delante.toString().toStdString();
    }
}

// Out of step a description that is a game's name is read as a key, which shows nothing of anybody's.
TEST(AllMendedNotes, LoseThemAlsoWhereADescriptionIsCalledAsAGame)
{
    const QString enteras = QString(Enteras).replace(u"\"A game\""_s, u"\"game.bin\""_s);
    const QString roto = QString(enteras).replace(u"GAME.BIN,\""_s, u"\r\nGAME.BIN,\""_s);
    EXPECT_EQ(remendadas(roto), enteras);
}

// An apostrophe with blanks around it ends a block for the reader.
TEST(AllMendedNotes, AreNoBlocksWithoutAnEnd_WhereBlanksStandBesideTheApostrophe)
{
    const QString conBlancos = QString(Enteras).replace(u"C\"\r\n'\r\n"_s, u"C\"\r\n ' \r\n"_s);
    EXPECT_THAT(core::NotasSinCierre(conBlancos, Conocidos), testing::IsEmpty());
    EXPECT_EQ(remendadas(conBlancos), conBlancos);
    const QString enMedio = QString(Enteras).replace(u"A game\"\r\n"_s, u"A game\"\r\n '\r\n"_s);
    EXPECT_THAT(core::NotasSinNombre(enMedio, Conocidos), testing::SizeIs(1));
}
