// Reading the table of executables and parameters.

#include "finder/fichas.h"

#include "host/failure.h"

#include "maquina.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using finder::LeeFichas;

namespace {

int numberOfFailure(const QString &texto)
{
    try {
        LeeFichas(texto);
    } catch (const host::Failure &failure) {
        return failure.number();
    }
    return 0;
}

} // namespace

TEST(Table, GivesFiveColumnsOfALine)
{
    const auto fichas = LeeFichas(u"mGBA GB\tmgba-qt mgba\t3\t-f  -x\t-y\n"_s);
    ASSERT_EQ(fichas.size(), 1U);
    EXPECT_EQ(fichas[0].emulador, u"mGBA GB");
    EXPECT_EQ(fichas[0].ejecutables, QStringList({ u"mgba-qt"_s, u"mgba"_s }));
    EXPECT_EQ(fichas[0].tipo, u"3");
    EXPECT_EQ(fichas[0].par1, u"-f  -x");
    EXPECT_EQ(fichas[0].par2, u"-y");
}

TEST(Table, HasNoParametersWhereAHyphenStands)
{
    const auto fichas = LeeFichas(u"Stella\tstella\t0\t-\t-"_s);
    ASSERT_EQ(fichas.size(), 1U);
    EXPECT_EQ(fichas[0].par1, QString());
    EXPECT_EQ(fichas[0].par2, QString());
}

TEST(Table, PassesOverCommentsAndEmptyLinesAndTakesBothLineEnds)
{
    const auto fichas = LeeFichas(u"# A\tB\r\n\r\nA\ta\t0\t-\t-\r\n\nB\tb\t0\t-\t-\n"_s);
    ASSERT_EQ(fichas.size(), 2U);
    EXPECT_EQ(fichas[0].par2, QString());
    EXPECT_EQ(fichas[1].emulador, u"B");
}

TEST(Table, FailsWhereALineHasNotItsFiveColumnsOrNoType)
{
    EXPECT_EQ(numberOfFailure(u"A\ta\t0\t-"_s), 5);
    EXPECT_EQ(numberOfFailure(u"A\ta\t0\t-\t-\t-"_s), 5);
    EXPECT_EQ(numberOfFailure(u"A\t\t0\t-\t-"_s), 5);
    EXPECT_EQ(numberOfFailure(u"A\ta\t4\t-\t-"_s), 5);
    EXPECT_EQ(numberOfFailure(u"A\ta\t9\t-\t-"_s), 5);
    EXPECT_EQ(numberOfFailure(u"A\ta\t00\t-\t-"_s), 5);
    EXPECT_EQ(numberOfFailure(u"A\ta\t8\t-\t-"_s), 0);
}

TEST(Table, FailsWhereAnEmulatorComesTwice)
{
    EXPECT_EQ(numberOfFailure(u"A\ta\t0\t-\t-\nA\tb\t0\t-\t-"_s), 5);
}

TEST(Parameters, BringABlankWhereTheCommandLineJoinsThemToAName)
{
    const auto texts = [](const QString &tipo, const QString &par1, const QString &par2) {
        const finder::Parametros both = finder::ParametrosDe({ {}, {}, tipo, par1, par2 });
        return QStringList { both.par1, both.par2 };
    };
    EXPECT_EQ(texts(u"0"_s, u"-a"_s, u"-b"_s), QStringList({ u"-a"_s, u"-b"_s }));
    EXPECT_EQ(texts(u"2"_s, u"-a"_s, u"-b"_s), QStringList({ u"-a"_s, u"-b"_s }));
    EXPECT_EQ(texts(u"3"_s, u"-a"_s, u"-b"_s), QStringList({ u"-a"_s, u" -b"_s }));
    EXPECT_EQ(texts(u"3"_s, QString(), QString()), QStringList({ QString(), QString() }));
    EXPECT_EQ(texts(u"5"_s, u"-a"_s, u"-b"_s), QStringList({ u" -a"_s, u"-b"_s }));
    EXPECT_EQ(texts(u"8"_s, QString(), QString()), QStringList({ QString(), QString() }));
}

TEST(Mark, IsWhatStandsBehindItsName)
{
    EXPECT_EQ(finder::MarcaDe(u"--libretro {nucleo:mgba} -x"_s, u"nucleo"_s), u"mgba");
    EXPECT_EQ(finder::MarcaDe(u"--libretro {nucleo:mgba"_s, u"nucleo"_s), QString());
    EXPECT_EQ(finder::MarcaDe(u"-rompath {roms}"_s, u"nucleo"_s), QString());
}
