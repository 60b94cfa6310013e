// Numbers as the desktop's language writes them. The run's own locale decides, so each locale has a run of
// its own.
#include "core/info.h"
#include "core/lista.h"

#include "host/numbers.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ostream>

using namespace Qt::StringLiterals;

void PrintTo(const QString &texto, std::ostream *salida)
{
    *salida << '"' << texto.toStdString() << '"';
}

namespace {

struct Signos {
    QString locale;
    QString decimal;
    QString grupo;
};

const Signos SignosDe[] = {
    { u"C.UTF-8"_s, u"."_s, u","_s },
    { u"de_DE.UTF-8"_s, u","_s, u"."_s },
    { u"es_ES.UTF-8"_s, u","_s, u"."_s }, // whose own grouping begins at five digits
    { u"fr_FR.UTF-8"_s, u","_s, u"\u202F"_s },
    { u"de_CH.UTF-8"_s, u"."_s, u"\u2019"_s },
};

class Numeros : public testing::Test {
protected:
    void SetUp() override
    {
        for (const Signos &signos : SignosDe) {
            if (signos.locale == qEnvironmentVariable("LC_ALL"))
                m_signos = signos;
        }
        ASSERT_FALSE(m_signos.locale.isEmpty()) << "a locale that this test doesn't know";
    }

    // With the signs of this run: "1.234,5" in a language that writes it so.
    QString con(QString numero) const
    {
        return numero.replace(u'.', u'D').replace(u',', m_signos.grupo).replace(u'D', m_signos.decimal);
    }

    static QString Info(int tipo, const core::FichaDeROM &ficha)
    {
        return core::LineaDeInfo(tipo, ficha, 1234567LL * 1024);
    }

private:
    Signos m_signos;
};

} // namespace

TEST_F(Numeros, AreInGroupsOfThreeWithTheDesktopsSigns)
{
    EXPECT_EQ(host::systemNumberSigns().decimal, con(u"."_s));
    EXPECT_EQ(host::systemNumberSigns().group, con(u","_s));
    EXPECT_EQ(host::formatGrouped(1234567), con(u"1,234,567"_s));
    EXPECT_EQ(host::formatGrouped(1234), con(u"1,234"_s));
    EXPECT_EQ(host::formatGrouped(999), u"999"_s);
    EXPECT_EQ(host::formatTwoDecimals(1234.5), con(u"1234.5"_s));
    EXPECT_EQ(host::formatTwoDecimals(0.125), con(u"0.13"_s));
}

TEST_F(Numeros, OfTheLineOfFactsAreInGroups_ButForANotedZip)
{
    for (const int tipo : { 0, 5 }) {
        EXPECT_EQ(Info(tipo, { u"A.BIN"_s, true }), u"A.BIN "_s + con(u"1,234,567"_s) + u"Kb  [NOR]"_s);
        EXPECT_EQ(Info(tipo, { u"a.bin"_s, false }), u"a.bin "_s + con(u"1,234,567"_s) + u"Kb  [NOR]"_s);
    }
    for (const int tipo : { 2, 3, 7, 8 }) {
        EXPECT_EQ(Info(tipo, { u"A"_s, true }), u"A.ZIP  1234567Kb [ZIP]"_s);
        EXPECT_EQ(Info(tipo, { u"a.zip"_s, false }), u"A.ZIP "_s + con(u"1,234,567"_s) + u"Kb [ZIP]"_s);
    }
}

TEST_F(Numeros, OfTheSummaryHaveTheDesktopsDecimalSign_ButForTheFixedOne)
{
    core::Recuento recuento;
    recuento.bytes = 1234.25 * 1024 * 1024;
    recuento.exploradas = 3;
    EXPECT_EQ(core::Resumen(0, 1234, recuento, u"x"_s), u"1234 ROMS - "_s + con(u"1234.25"_s) + u"MB"_s);
    EXPECT_EQ(core::Resumen(1, 1234, recuento, u"x"_s), u"1234 x"_s);
    EXPECT_EQ(core::ResumenVacio, u"0 ROMS - 0,00MB"_s);
}
