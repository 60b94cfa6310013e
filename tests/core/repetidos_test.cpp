// What stands twice in the notes on single ROMs.
#include "core/repetidos.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QStringList Sistemas { u"Alfa"_s, u"Beta"_s };
const QString Fin = u"[EOF]\r\nParametros especificos\r\n"_s;

QString lineas(const std::vector<core::Repetido> &repetidos)
{
    QStringList textos;
    for (const core::Repetido &uno : repetidos)
        textos += u"%1-%2"_s.arg(uno.primero).arg(uno.otro);
    return textos.join(u' ');
}

QString bloques(const QString &texto)
{
    return lineas(core::BloquesRepetidos(texto, Sistemas));
}

QString parametros(const QString &registros)
{
    return lineas(core::ParametrosRepetidos(Fin + registros + u"'\r\n"_s));
}

QString sinRepetidos(const QString &texto)
{
    return core::SinRepetidos(texto, Sistemas);
}

} // namespace

TEST(BlocksThatStandTwice, AreToldWithTheFirst)
{
    EXPECT_EQ(bloques(u"Alfa\r\n'\r\nBeta\r\n'\r\nAlfa\r\n'\r\nAlfa\r\n'\r\n[EOF]\r\n"_s), u"0-4 0-6"_s);
    EXPECT_EQ(bloques(u"Alfa\r\n'\r\nBeta\r\n'\r\n[EOF]\r\nAlfa\r\n'\r\n"_s), QString());
    EXPECT_EQ(bloques(u"Other\r\n'\r\nOther\r\n'\r\n"_s), QString());
    EXPECT_EQ(bloques(QString()), QString());
}

TEST(BlocksThatStandTwice, BecomeOneWhereTheySayNothingAgainstEachOther)
{
    EXPECT_EQ(sinRepetidos(
                  u"Alfa\r\nA.BIN,\"A\"\r\n'\r\nBeta\r\n'\r\nAlfa\na.bin,\"A\"\nB.BIN,\"B\"\n\n'\n"_s + Fin),
        u"Alfa\r\nA.BIN,\"A\"\r\nB.BIN,\"B\"\n'\r\nBeta\r\n'\r\n"_s + Fin);
    EXPECT_EQ(sinRepetidos(u"Alfa\r\n'\r\nAlfa\r\nA.BIN,\"A\"\r\n'\r\nAlfa\r\nB.BIN,\"B\"\r\n'\r\n"_s),
        u"Alfa\r\nA.BIN,\"A\"\r\nB.BIN,\"B\"\r\n'\r\n"_s);
}

TEST(BlocksThatStandTwice, StayWhereTheyContradictEachOther_OrHoldAnythingElse)
{
    for (const QString &otro : { u"A.BIN,\"Another\"\r\n'\r\n"_s, u"what is this\r\n'\r\n"_s,
             u"B.BIN,\"open\r\n'\r\n"_s, u"B.BIN,\"B\"\r\n"_s }) {
        const QString texto = u"Alfa\r\nA.BIN,\"A\"\r\n'\r\nAlfa\r\n"_s + otro + Fin;
        EXPECT_EQ(sinRepetidos(texto), texto);
    }
}

TEST(ParametersThatStandTwice, AreToldWhereTheyDifferOrAreOfOnePair)
{
    EXPECT_EQ(parametros(u"A.BIN,Alfa,One,-a\r\na.bin,Alfa,One,-b\r\n"_s), u"2-3"_s);
    EXPECT_EQ(parametros(u"A.BIN,Alfa,One,-a\r\nA.BIN,Alfa,Two,-b\r\n"_s), u"2-3"_s);
    EXPECT_EQ(parametros(u"A.BIN,Alfa,One,-a\r\nA.BIN,alfa,one,-a\r\n"_s), u"2-3"_s);
    EXPECT_EQ(parametros(u"A.BIN,Alfa,One,-a\r\nA.BIN,Alfa,Two,-a\r\nB.BIN,Alfa,One,-b\r\n"_s), QString());
    EXPECT_EQ(parametros(u"A.BIN,Alfa,One,-a\r\n'\r\nA.BIN,Alfa,One,-b\r\n"_s), QString());
}

TEST(ParametersThatStandTwice, GoWhereTheySayTheSame)
{
    EXPECT_EQ(sinRepetidos(Fin + u"A.BIN,Alfa,One,-a\r\na.bin,ALFA,One,-a\r\nA.BIN,Alfa,One,-b\r\n'\r\n"_s),
        Fin + u"A.BIN,Alfa,One,-a\r\nA.BIN,Alfa,One,-b\r\n'\r\n"_s);
    EXPECT_EQ(sinRepetidos(QString()), QString());
}
