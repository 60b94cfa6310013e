// The notes as delivered, read and rewritten by the program's own functions.
#include "sources.h"

#include "core/notas.h"
#include "core/parrom.h"

#include <gmock/gmock.h>

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

const QString Notes = u"Zembro.rom"_s;

// Past the lines up to the one that equals the header; at the end where there is none.
host::TextSource behind(const QString &header)
{
    host::TextSource source(sources::delivered(Notes));
    while (!source.atEnd() && source.readLine() != header) { }
    return source;
}

} // namespace

// Without a block a system's list stays empty.
TEST(Notes, HoldABlockThatIsClosedForEverySystemOfTheDatabase)
{
    const QStringList lines = sources::lines(Notes);
    for (const sources::System &system : sources::systems(u"Zembro.sye"_s)) {
        EXPECT_EQ(lines.count(system.name), 1) << system.name.toStdString();
        host::TextSource source = behind(system.name);
        QString key;
        while (!source.atEnd() && (key = source.readField()) != u"'") {
            EXPECT_FALSE(core::CampoOVacio(source).isEmpty()) << key.toStdString();
            EXPECT_EQ(key, key.toUpper()) << system.name.toStdString();
        }
        EXPECT_EQ(key, u"'") << system.name.toStdString();
    }
}

TEST(Notes, HoldTheBlocksOfTheDatabaseInItsOrderAndNoOther)
{
    QStringList names;
    for (const sources::System &system : sources::systems(u"Zembro.sye"_s))
        names += system.name;
    const QStringList lines = sources::lines(Notes);
    const qsizetype end = lines.indexOf(QRegularExpression(u"^\\[.*"_s));
    ASSERT_GT(end, 0);
    QStringList headers = lines.first(end);
    headers.removeIf([](const QString &line) { return line.startsWith(u'\'') || line.contains(u','); });
    EXPECT_EQ(headers, names);
}

// New blocks go ahead of every line with a bracket, and the parameters are found by their header.
TEST(Notes, HoldOneEndOfTheBlocksAheadOfTheParameters)
{
    const QStringList lines = sources::lines(Notes);
    EXPECT_EQ(lines.filter(QRegularExpression(u"^\\["_s)).size(), 1);
    const qsizetype end = lines.indexOf(QRegularExpression(u"^\\[.*"_s));
    EXPECT_EQ(lines.value(end + 1), u"Parametros especificos");
    EXPECT_EQ(lines.filter(QRegularExpression(u"^Parametros"_s)).size(), 1);
}

TEST(Notes, CloseTheParametersWithARecordOfFourFields)
{
    const QStringList lines = sources::lines(Notes);
    EXPECT_EQ(lines.last(3), QStringList({ u"'"_s, u"fin"_s, u"fin,\"fin\""_s }));
}

// Every line comes back: the closing record, and no empty line to lose.
TEST(Notes, StayAsTheyAreWhenParametersAreChangedThatNoROMHas)
{
    const QString text = sources::delivered(Notes);
    EXPECT_EQ(core::ConParametrosCambiados(text, { u"NONE.BIN"_s, u"NES"_s, u"FCEUX"_s, u"-x"_s }), text);
    EXPECT_EQ(core::ConParametrosCambiados(text, { u"NONE.BIN"_s, u"NES"_s, u"FCEUX"_s, QString() }), text);
}

TEST(Notes, StayAsTheyAreWhenADescriptionIsChangedThatNoROMHas)
{
    const QString text = sources::delivered(Notes);
    EXPECT_EQ(core::ConDescripcionCambiada(text, u"No such game"_s, u"NONE.BIN"_s, u"Game"_s), text);
}

TEST(Notes, TakeParametersAndGiveThemBack)
{
    const QString text = sources::delivered(Notes);
    const QString added =
        core::ConParametrosNuevos(text, { u"NONE.BIN"_s, u"NES"_s, u"FCEUX"_s, u"-Sound 1"_s });
    host::TextSource source(added);
    EXPECT_EQ(core::ParametrosDe(source, u"none.bin"_s), u"-Sound 1");
    EXPECT_EQ(core::ConParametrosCambiados(added, { u"NONE.BIN"_s, u"NES"_s, u"FCEUX"_s, QString() }), text);
}

TEST(Notes, TakeADescriptionAtTheTopOfEverySystemsBlock)
{
    const QString text = sources::delivered(Notes);
    for (const sources::System &system : sources::systems(u"Zembro.sye"_s)) {
        QString expected = text;
        const QString header = u"\r\n"_s + system.name + u"\r\n"_s;
        ASSERT_EQ(text.count(header), 1) << system.name.toStdString();
        expected.replace(header, header + u"NONE.BIN,\"A game\"\r\n"_s);
        EXPECT_EQ(core::ConDescripcionNueva(text, system.name, u"NONE.BIN"_s, u"A game"_s), expected);
    }
}

TEST(Notes, AreReadBackAsTheyWereAfterDelivery)
{
    EXPECT_TRUE(sources::survivesDelivery(sources::delivered(Notes)));
}
