#include "disktest.h"

#include "host/letters.h"

using namespace Qt::StringLiterals;
using namespace host;

TEST(Letters, UpperTurnsEachCharacterIntoOne)
{
    EXPECT_EQ(upper(u"señor ÿ straße ﬁ 1"), u"SEÑOR Ÿ STRAßE ﬁ 1"_s);
}

TEST(Letters, OfAsciiTheLettersAloneHaveCases)
{
    QString all;
    for (char16_t letter = 0; letter < 128; ++letter)
        all += letter;
    QString capitals = all;
    QString small = all;
    for (char16_t place = 0; place < 26; ++place) {
        capitals[u'a' + place] = char16_t(u'A' + place);
        small[u'A' + place] = char16_t(u'a' + place);
    }
    EXPECT_EQ(upper(all), capitals);
    EXPECT_EQ(lower(all), small);
    EXPECT_EQ(upper(all + u'é'), capitals + u'É');
    EXPECT_EQ(lower(all + u'É'), small + u'é');
}

TEST(Letters, LowerTurnsEachCharacterIntoOne)
{
    EXPECT_EQ(lower(u"SEÑOR Ÿ ÉÜ [1]"), u"señor ÿ éü [1]"_s);
}

TEST(Letters, CharactersBeyondTheBasicPlaneHaveCasesToo)
{
    EXPECT_EQ(upper(u"\U00010428"), u"\U00010400"_s);
    EXPECT_EQ(lower(u"\U00010400"), u"\U00010428"_s);
}

TEST(Letters, HalvesOfPairsStayAsTheyAre)
{
    const QString halves = QString(QChar(0xDC00)) + u'a' + QChar(0xD801);
    EXPECT_EQ(upper(halves), QString(QChar(0xDC00)) + u'A' + QChar(0xD801));
}

TEST(Letters, CodesCompareOneByOne)
{
    EXPECT_LT(compareCodes(u"B", u"a"), 0);
    EXPECT_GT(compareCodes(u"b", u"B"), 0);
    EXPECT_EQ(compareCodes(u"ñ", u"ñ"), 0);
    EXPECT_LT(compareCodes(u"", u"a"), 0);
    EXPECT_LT(compareCodes(u"ab", u"abc"), 0);
    EXPECT_GT(compareCodes(u"abc", u"ab"), 0);
    EXPECT_EQ(compareCodes(u"", u""), 0);
}

TEST(Letters, CodesBeyondTheBasicPlaneComeLast)
{
    // By UTF-16 units the pair would come first.
    EXPECT_LT(compareCodes(u"\uFFFD", u"\U00010000"), 0);
    EXPECT_LT(compareNames(u"\uFFFD", u"\U00010000"), 0);
}

TEST(Letters, NamesCompareByTheirCapitals)
{
    EXPECT_EQ(compareNames(u"ÑandÚ", u"ñANDú"), 0);
    EXPECT_LT(compareNames(u"a", u"B"), 0);
    // The underscore stands behind the capitals, but ahead of the small letters.
    EXPECT_GT(compareNames(u"_", u"a"), 0);
    EXPECT_GT(compareNames(u"ñ", u"z"), 0);
}

TEST(Letters, SameNameIsTheSameInAnyCase)
{
    EXPECT_TRUE(sameName(u"Zembro.CFG", u"ZEMBRO.cfg"));
    EXPECT_FALSE(sameName(u"Zembro.cfg", u"Zembro.cf"));
    EXPECT_FALSE(sameName(u"straße", u"STRASSE"));
}

TEST(Letters, EachLetterHasAnotherOfItsOwnSize)
{
    for (char32_t code = 0; code <= QChar::LastValidCodePoint; ++code) {
        if (QChar::isSurrogate(code))
            continue;
        const QString letter = QString::fromUcs4(&code, 1);
        const char32_t capital = QChar::toUpper(code);
        ASSERT_EQ(QChar::requiresSurrogates(capital), QChar::requiresSurrogates(code)) << unsigned(code);
        ASSERT_EQ(QChar::requiresSurrogates(QChar::toLower(code)), QChar::requiresSurrogates(code))
            << unsigned(code);
        ASSERT_EQ(upper(letter), QString::fromUcs4(&capital, 1)) << unsigned(code);
    }
}

TEST(Letters, TextsAreOrderedByCodePoints_AlsoWhereTheyPartWithinAPair)
{
    const QString high(QChar(0xD83D));
    const QString inOrder[] = { u""_s, u"a"_s, u"aa"_s, u"b"_s, high, high + u'a', high + high,
        high + u"\uFFFD"_s, u"\uFFFD"_s, u"😀"_s, u"😀a"_s, u"😁"_s };
    for (size_t i = 0; i < std::size(inOrder); ++i) {
        for (size_t j = 0; j < std::size(inOrder); ++j) {
            const int order = i < j ? -1 : int(i > j);
            EXPECT_EQ(host::compareCodes(inOrder[i], inOrder[j]), order) << i << ' ' << j;
            EXPECT_EQ(host::compareCodes(u"x"_s + inOrder[i], u"x"_s + inOrder[j]), order) << i << ' ' << j;
        }
    }
}

TEST(Letters, ColumnsCountCharacters)
{
    const QString text = u"a😀ñ"_s;
    EXPECT_EQ(host::behindFirst(text, 0), 0);
    EXPECT_EQ(host::behindFirst(text, 1), 1);
    EXPECT_EQ(host::behindFirst(text, 2), 3);
    EXPECT_EQ(host::behindFirst(text, 9), 4);
    EXPECT_EQ(host::startOfLast(text, 0), 4);
    EXPECT_EQ(host::startOfLast(text, 1), 3);
    EXPECT_EQ(host::startOfLast(text, 2), 1);
    EXPECT_EQ(host::startOfLast(text, 9), 0);
    EXPECT_EQ(host::startOfLast(QString(), 1), 0);
}

TEST(Letters, AHalfOnItsOwnCountsAsACharacter)
{
    const QString text = QString(QChar(0xDE00)) + QChar(0xDE00) + QChar(0xD83D);
    EXPECT_EQ(host::behindFirst(text, 1), 1);
    EXPECT_EQ(host::startOfLast(text, 2), 1);
    EXPECT_EQ(host::startOfLast(text, 3), 0);
}
