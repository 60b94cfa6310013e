#include "disktest.h"

#include "host/textsource.h"

#include <optional>

using namespace Qt::StringLiterals;
using host::TextSource;
using testing::ElementsAre;

namespace {

QStringList lines(const QString &text)
{
    TextSource source(text);
    QStringList result;
    while (!source.atEnd())
        result.append(source.readLine());
    return result;
}

QStringList fields(const QString &text)
{
    TextSource source(text);
    QStringList result;
    while (!source.atEnd())
        result.append(source.readField());
    return result;
}

} // namespace

TEST(TextLines, EndAtEitherKindOfEnd)
{
    EXPECT_THAT(lines(u"one\r\ntwo\nthree\r\n"_s), ElementsAre(u"one"_s, u"two"_s, u"three"_s));
}

TEST(TextLines, LastOneCounts_WithoutAnEnd)
{
    EXPECT_THAT(lines(u"one\r\ntwo"_s), ElementsAre(u"one"_s, u"two"_s));
}

TEST(TextLines, EmptyOnesCount)
{
    EXPECT_THAT(lines(u"\r\n\none\r\n\r\n"_s), ElementsAre(QString(), QString(), u"one"_s, QString()));
}

TEST(TextLines, LoseOneCarriageReturnAndNothingElse)
{
    EXPECT_THAT(lines(u" a \r\r\nb\rc \t\r\n"_s), ElementsAre(u" a \r"_s, u"b\rc \t"_s));
    EXPECT_THAT(lines(u"a\r"_s), ElementsAre(u"a\r"_s));
}

TEST(TextLines, ReadingPastTheEndFails)
{
    TextSource empty { QString() };
    EXPECT_TRUE(empty.atEnd());
    EXPECT_EQ(failureOf([&] { empty.readLine(); }), host::PastEndOfFile);
    EXPECT_EQ(failureOf([&] { empty.readField(); }), host::PastEndOfFile);

    TextSource one(u"a\n"_s);
    EXPECT_EQ(one.readLine(), u"a"_s);
    EXPECT_TRUE(one.atEnd());
    EXPECT_EQ(failureOf([&] { one.readLine(); }), host::PastEndOfFile);
}

TEST(TextLines, ArePassedUpToTheFirstThatBeginsSo)
{
    const auto restBehind = [](const QString &text, qsizetype read) -> std::optional<QString> {
        host::TextSource source(text);
        for (qsizetype i = 0; i < read; ++i)
            source.readField();
        return source.passLine(u"End") ? std::optional(source.rest().toString()) : std::nullopt;
    };
    EXPECT_EQ(restBehind(u"End"_s, 0), u"");
    EXPECT_EQ(restBehind(u"Ends here\r\nx"_s, 0), u"x");
    EXPECT_EQ(restBehind(u"The End\nEn\nEnd of it\nEnd"_s, 0), u"End");
    EXPECT_EQ(restBehind(u"a,End\nb"_s, 0), std::nullopt);
    EXPECT_EQ(restBehind(u"a,End\nb"_s, 1), u"b"); // a line begins where the field ended
    EXPECT_EQ(restBehind(QString(), 0), std::nullopt);
    host::TextSource source(u"none\nof them"_s);
    EXPECT_FALSE(source.passLine(u"End"));
    EXPECT_TRUE(source.atEnd());
}

TEST(TextFields, EndAtCommasAndLineEnds)
{
    EXPECT_THAT(fields(u"a,b\r\nc,d\n"_s), ElementsAre(u"a"_s, u"b"_s, u"c"_s, u"d"_s));
}

TEST(TextFields, LoseTheBlanksAroundThem)
{
    EXPECT_THAT(fields(u"  a b  ,   c \r\n"_s), ElementsAre(u"a b"_s, u"c"_s));
}

TEST(TextFields, QuotedOnesKeepCommasAndBlanks)
{
    EXPECT_THAT(fields(u"GAME,\" A game, or two \"\r\nNEXT,\"\"\r\n"_s),
        ElementsAre(u"GAME"_s, u" A game, or two "_s, u"NEXT"_s, QString()));
}

TEST(TextFields, WhatFollowsAClosingQuoteIsDropped)
{
    EXPECT_THAT(
        fields(u"\"The \"best\" game\",b\r\n\"c\" d\r\ne"_s), ElementsAre(u"The "_s, u"b"_s, u"c"_s, u"e"_s));
}

TEST(TextFields, QuoteInsideAPlainOneIsText)
{
    EXPECT_THAT(fields(u"a \"b\",c"_s), ElementsAre(u"a \"b\""_s, u"c"_s));
}

TEST(TextFields, QuotedOneRunsOverLineEnds)
{
    EXPECT_THAT(fields(u"\"a\r\nb\",c"_s), ElementsAre(u"a\r\nb"_s, u"c"_s));
}

TEST(TextFields, QuotedOneRunsToTheEnd_WithoutAClosingQuote)
{
    EXPECT_THAT(fields(u"a,\"b,c\r\n"_s), ElementsAre(u"a"_s, u"b,c\r\n"_s));
}

TEST(TextFields, LoneApostropheIsOne)
{
    EXPECT_THAT(fields(u"'\r\n'----\r\n"_s), ElementsAre(u"'"_s, u"'----"_s));
}

TEST(TextFields, EmptyLinesAndNeighbouringCommasGiveEmptyOnes)
{
    EXPECT_THAT(
        fields(u"\r\n,a,,b\n\n"_s), ElementsAre(QString(), QString(), u"a"_s, QString(), u"b"_s, QString()));
    EXPECT_THAT(fields(u"   \r\na"_s), ElementsAre(QString(), u"a"_s));
}

TEST(TextFields, NoneStandsBehindAClosingComma)
{
    TextSource source(u"a,"_s);
    EXPECT_EQ(source.readField(), u"a"_s);
    EXPECT_EQ(failureOf([&] { source.readField(); }), host::PastEndOfFile);
}

TEST(TextFields, LoseOneCarriageReturnAheadOfALineEnd)
{
    EXPECT_THAT(fields(u"a\r,b\r\r\nc \r\n"_s), ElementsAre(u"a\r"_s, u"b\r"_s, u"c"_s));
}

TEST(TextFields, GoOnWhereALineEnded)
{
    TextSource source(u"head, line\r\na,b\r\ntail, line\r\n"_s);
    EXPECT_EQ(source.readLine(), u"head, line"_s);
    EXPECT_EQ(source.readField(), u"a"_s);
    EXPECT_EQ(source.readField(), u"b"_s);
    EXPECT_EQ(source.readLine(), u"tail, line"_s);
    EXPECT_TRUE(source.atEnd());
}

TEST(TextFields, LineGoesOnWhereAFieldEnded)
{
    TextSource source(u"a, rest of it\r\n"_s);
    EXPECT_EQ(source.readField(), u"a"_s);
    EXPECT_EQ(source.readLine(), u" rest of it"_s);
}

TEST(TextLines, MillionsOfCharactersAreReadAsOneLine)
{
    const QString line(2'000'000, u'x');
    EXPECT_EQ(lines(line + u"\r\nb"_s), (QStringList { line, u"b"_s }));
    EXPECT_EQ(fields(line + u"\r\nb"_s), (QStringList { line, u"b"_s }));
}

TEST(TextFields, LoseBlanksAroundThemButNotTabs)
{
    EXPECT_THAT(fields(u"  \ta\t  ,b"_s), ElementsAre(u"\ta\t"_s, u"b"_s));
}

TEST(TextRest, IsWhatHasNotBeenRead_AndNothingAtTheEnd)
{
    for (const QString &text :
        { u"a\r\nlast"_s, u"a\nlast\n"_s, u"a,last"_s, u"a,\"last\""_s, u"a,last,"_s }) {
        TextSource source(text);
        EXPECT_EQ(source.rest(), text);
        EXPECT_EQ(source.readField(), u"a"_s);
        EXPECT_TRUE(source.rest().contains(u"last"_s)) << text.toStdString();
        EXPECT_EQ(source.readField(), u"last"_s);
        EXPECT_TRUE(source.atEnd());
        EXPECT_EQ(source.rest(), QString()) << text.toStdString();
    }
    TextSource line(u"last"_s);
    line.readLine();
    EXPECT_EQ(line.rest(), QString());
    EXPECT_EQ(TextSource(QString()).rest(), QString());
}
