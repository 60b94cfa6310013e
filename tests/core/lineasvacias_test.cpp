// Blank lines among the records of the notes, which hide what stands behind them.
#include "core/lineasvacias.h"

#include "core/lineas.h"
#include "core/notas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QStringList Sistemas { u"Alfa"_s, u"Beta"_s };

std::vector<size_t> vacias(const QString &lineas)
{
    return core::VaciasEntreRegistros(QString(lineas).replace(u'|', u"\r\n"_s), Sistemas);
}

} // namespace

TEST(BlankLines, AmongRecordsAreFound_WithBlanksInThemToo)
{
    EXPECT_THAT(vacias(u"Alfa||A,\"a\"|  |\t|B,\"b\"||'|Beta|'|"_s), ElementsAre(1u, 3u, 4u, 6u));
    EXPECT_THAT(vacias(u"[EOF]|Parametros especificos||A,Alfa,One,-a||B,Alfa,One,-b||'|fin|"_s),
        ElementsAre(2u, 4u, 6u));
}

TEST(BlankLines, OutsideOfBlocksAndBehindTheLastRecordOfAnOpenOneStay)
{
    EXPECT_THAT(
        vacias(u"|' head||Alfa|A,\"a\"|'||Beta|'||[EOF]||Parametros especificos|'||fin||"_s), IsEmpty());
    EXPECT_THAT(
        vacias(u"Alfa|A,\"a\"||Beta|B,\"b\"||[EOF]||Parametros especificos|A,Alfa,One,-a||"_s), IsEmpty());
    EXPECT_THAT(vacias(u"Other||A,\"a\"|'|[EOF]||A,\"a\"||'|"_s), IsEmpty());
}

TEST(BlankLines, ThatMayBeAFieldStay)
{
    EXPECT_THAT(vacias(u"Alfa|A||B,\"b\"|'|"_s), IsEmpty());
    EXPECT_THAT(vacias(u"Alfa|A|||B,\"b\"|'|"_s), ElementsAre(3u));
    EXPECT_THAT(vacias(u"Parametros especificos|A,Alfa,One||B,Alfa,One,-b|'|"_s), IsEmpty());
}

TEST(BlankLines, AreTakenAwayAndNothingElse)
{
    const QString roto =
        u"Alfa\r\n \r\nA,\"a\"\r\n\r\nB\n\n'\r\n\r\n[EOF]\r\nParametros especificos\r\n\r\n'\r\n"_s;
    EXPECT_EQ(core::SinVaciasEntreRegistros(roto, Sistemas),
        u"Alfa\r\nA,\"a\"\r\nB\n\n'\r\n\r\n[EOF]\r\nParametros especificos\r\n'\r\n"_s);
    const QString entero = u"Alfa\nA,\"a\"\n'\n\n[EOF]\n"_s;
    EXPECT_EQ(core::SinVaciasEntreRegistros(entero, Sistemas), entero);
}

TEST(ClosingLines, AreWhatTheReaderTakesForOne)
{
    for (const QString &linea : { u"'"_s, u" '"_s, u"' "_s, u"  '  "_s, u"\"'\""_s, u"',x"_s })
        EXPECT_TRUE(core::CierraLasNotas(linea)) << linea.toStdString();
    for (const QString &linea : { u""_s, u"  "_s, u"'x"_s, u"'----"_s, u"A,'"_s, u"\t'"_s, u"\"' \""_s })
        EXPECT_FALSE(core::CierraLasNotas(linea)) << linea.toStdString();
}
