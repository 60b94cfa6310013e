#include "disktest.h"

#include "host/directory.h"
#include "host/encoding.h"
#include "host/letters.h"
#include "host/paths.h"
#include "host/shortnames.h"

#include <QSet>

#include <random>

using namespace Qt::StringLiterals;
using namespace host;

namespace {

// Names that get into each other's way: case, blanks, points, numbers, capitals that are no pair, invalid
// bytes.
QByteArray randomName(std::mt19937 &random)
{
    static const QList<QByteArray> pieces { "a", "A", ".", " ", "_", "~", "2", "3", "\\", "~2", "ß", "Σ", "σ",
        "ς", "ı", "I", "\u212A", "k", "\u00A0", "\xFF" };
    QByteArray name;
    do {
        name.clear();
        for (std::size_t left = 1 + random() % 4; left > 0; --left)
            name += pieces[qsizetype(random() % std::size_t(pieces.size()))];
    } while (name == "." || name == "..");
    return name;
}

QSet<QByteArray> randomNames(std::mt19937 &random, qsizetype count)
{
    QSet<QByteArray> names;
    while (names.size() < count)
        names.insert(randomName(random));
    return names;
}

Directory directoryOf(const QSet<QByteArray> &names)
{
    std::vector<Directory::Entry> entries;
    for (const QByteArray &bytes : names)
        entries.push_back({ nameFromDisk(bytes), 0 });
    return Directory(std::move(entries));
}

bool isShort(const QString &form)
{
    const auto isBlank = [](QChar character) { return character.isSpace(); };
    return form == lower(form) && form.count(u'.') <= 1 && std::none_of(form.begin(), form.end(), isBlank);
}

class ShortPaths : public DiskTest {
protected:
    // The short form of a file in the directory, without the directory.
    QString form(const QString &name) const
    {
        const QString whole = GetShortPathNameA(path(name));
        const QString above = GetShortPathNameA(path()) + u'/';
        return whole.startsWith(above) ? whole.sliced(above.size()) : u"elsewhere: "_s + whole;
    }
};

} // namespace

TEST_F(ShortPaths, BlanksAndInnerPointsBecomeUnderscores)
{
    makeFile("The Game v1.2 (E).ZIP");
    makeFile(".Hidden Thing");
    makeFile(".config.d.txt");
    makeFile("No Point");
    EXPECT_EQ(form(u"The Game v1.2 (E).ZIP"_s), u"the_game_v1_2_(e).zip"_s);
    EXPECT_EQ(form(u".Hidden Thing"_s), u".hidden_thing"_s);
    EXPECT_EQ(form(u".config.d.txt"_s), u"_config_d.txt"_s);
    EXPECT_EQ(form(u"No Point"_s), u"no_point"_s);
}

TEST_F(ShortPaths, EachComponentIsShortened)
{
    makeDirectory("My Roms");
    makeDirectory("My Roms/Sub.Dir.1");
    makeFile("My Roms/Sub.Dir.1/a B.zip");
    EXPECT_EQ(form(u"MY ROMS\\sub.dir.1\\A B.ZIP"_s), u"my_roms/sub_dir.1/a_b.zip"_s);
    EXPECT_EQ(form(u"my_roms/SUB_DIR.1/A_B.zip"_s), u"my_roms/sub_dir.1/a_b.zip"_s);
}

TEST_F(ShortPaths, ClosingSeparatorIsKept)
{
    makeDirectory("My Roms");
    EXPECT_EQ(form(u"My Roms/"_s), u"my_roms/"_s);
    EXPECT_EQ(form(u"My Roms\\"_s), u"my_roms/"_s);
    EXPECT_EQ(form(u"My Roms"_s), u"my_roms"_s);
    EXPECT_EQ(GetShortPathNameA(u"/"_s), u"/"_s);
}

TEST_F(ShortPaths, IsEmpty_WhereThereIsNoSuchPath)
{
    EXPECT_EQ(GetShortPathNameA(path(u"none"_s)), QString());
    EXPECT_EQ(GetShortPathNameA(QString()), QString());
}

TEST_F(ShortPaths, RelativePathBecomesAbsolute)
{
    makeDirectory("My Roms");
    makeFile("My Roms/a b");
    changeDirectory(path(u"My Roms"_s));
    EXPECT_EQ(GetShortPathNameA(u"A B"_s), GetShortPathNameA(path()) + u"/my_roms/a_b"_s);
    EXPECT_EQ(GetShortPathNameA(u"./a b"_s), GetShortPathNameA(path()) + u"/my_roms/a_b"_s);
    EXPECT_EQ(
        GetShortPathNameA(u"../my roms/a b"_s), GetShortPathNameA(path()) + u"/my_roms/../my_roms/a_b"_s);
}

TEST_F(ShortPaths, LinksAreNotFollowed)
{
    makeDirectory("Real Dir");
    makeLink("Real Dir", "My Link");
    makeFile("Real Dir/a b");
    EXPECT_EQ(form(u"My Link/a b"_s), u"my_link/a_b"_s);
}

TEST_F(ShortPaths, LinkThatLeadsNowhereHasNone)
{
    makeFile("target");
    makeLink("target", "a b");
    makeLink("nowhere", "c d");
    makeLink("e f", "e f");
    EXPECT_EQ(form(u"a b"_s), u"a_b"_s);
    EXPECT_EQ(GetShortPathNameA(path(u"c d"_s)), QString());
    EXPECT_EQ(GetShortPathNameA(path(u"e f"_s)), QString());
}

TEST_F(ShortPaths, NameThatHasTheFormKeepsIt)
{
    makeFile("a_b.zip");
    makeFile("A B.zip");
    makeFile("a b.zip");
    EXPECT_EQ(form(u"a_b.zip"_s), u"a_b.zip"_s);
    EXPECT_EQ(form(u"A B.zip"_s), u"a_b~2.zip"_s);
    EXPECT_EQ(form(u"a b.zip"_s), u"a_b~3.zip"_s);
}

TEST_F(ShortPaths, NameThatDiffersInCaseAloneComesFirst)
{
    makeFile("A B.zip");
    makeFile("A_B.zip");
    makeFile("a_B.zip");
    EXPECT_EQ(form(u"A_B.zip"_s), u"a_b.zip"_s);
    EXPECT_EQ(form(u"a_B.zip"_s), u"a_b~2.zip"_s);
    EXPECT_EQ(form(u"A B.zip"_s), u"a_b~3.zip"_s);
}

TEST_F(ShortPaths, NumberedFormsAvoidTheNamesInTheDirectory)
{
    makeFile("a b.zip");
    makeFile("a_b.zip");
    makeFile("A_B~2.ZIP");
    makeFile("a b~3.zip");
    EXPECT_EQ(form(u"a b.zip"_s), u"a_b~4.zip"_s);
    EXPECT_EQ(form(u"A_B~2.ZIP"_s), u"a_b~2.zip"_s);
    EXPECT_EQ(form(u"a b~3.zip"_s), u"a_b~3.zip"_s);
}

TEST_F(ShortPaths, NumberStandsAtTheEnd_WhereThereIsNoPoint)
{
    makeFile("a b");
    makeFile("a_b");
    EXPECT_EQ(form(u"a b"_s), u"a_b~2"_s);
}

TEST_F(ShortPaths, NumberStandsInFront_WhereThePointBeginsTheName)
{
    makeFile(".a b");
    makeFile(".a_b");
    EXPECT_EQ(form(u".a b"_s), u"~2.a_b"_s);
    EXPECT_EQ(form(u".a_b"_s), u".a_b"_s);
}

// The plain form of "A B" would be found as "A_B" in any case, and is itself the name of another file.
TEST_F(ShortPaths, PlainFormIsNotGivenAway_WhereAFileHasThatVeryName)
{
    makeFile("A_B");
    makeFile("a_b");
    makeFile("A B");
    EXPECT_EQ(form(u"a_b"_s), u"a_b"_s);
    EXPECT_EQ(form(u"A_B"_s), u"a_b~2"_s);
    EXPECT_EQ(form(u"A B"_s), u"a_b~3"_s);
}

// "a b~2" has its plain form, also where another one is to be numbered that comes ahead of it.
TEST_F(ShortPaths, PlainFormsAreGivenAheadOfNumberedOnes)
{
    makeFile("A B");
    makeFile("a b");
    makeFile("a b~2");
    EXPECT_EQ(form(u"A B"_s), u"a_b"_s);
    EXPECT_EQ(form(u"a b~2"_s), u"a_b~2"_s);
    EXPECT_EQ(form(u"a b"_s), u"a_b~3"_s);
}

TEST_F(ShortPaths, FormIsFoundInAnyCase)
{
    makeFile("The Game.ZIP");
    EXPECT_EQ(findOnDisk(path(u"the_game.zip"_s)), place("The Game.ZIP"));
    EXPECT_EQ(findOnDisk(path(u"THE_GAME.ZIP"_s)), place("The Game.ZIP"));
}

TEST_F(ShortPaths, NameOfItsOwnIsFoundAheadOfAForm)
{
    makeFile("The Game.ZIP");
    makeFile("THE_GAME.zip");
    EXPECT_EQ(findOnDisk(path(u"the_game.zip"_s)), place("THE_GAME.zip"));
}

TEST_F(ShortPaths, OtherBlanksAreBlanksToo)
{
    makeFile("a\tb\u00A0"
             "c\nd");
    EXPECT_EQ(form(u"a\tb\u00A0c\nd"_s), u"a_b_c_d"_s);
}

// In memory, so that many directories can be tried.
TEST(ShortNames, LeadBackToTheirOwnNames_WhateverElseLiesInTheDirectory)
{
    std::mt19937 random(83);
    for (int round = 0; round < 400; ++round) {
        const QSet<QByteArray> names = randomNames(random, 40);
        const Directory directory = directoryOf(names);
        QSet<QString> forms;
        for (const QByteArray &bytes : names) {
            const QString form = directory.shortForm(nameFromDisk(bytes));
            forms.insert(form);
            ASSERT_TRUE(isShort(form)) << bytes.toPercentEncoding().constData();
            const bool isName = names.contains(nameToDisk(form));
            ASSERT_EQ(nameToDisk(isName ? form : directory.find(form)), bytes) << form.toStdString();
        }
        ASSERT_EQ(forms.size(), names.size());
    }
}

TEST(ShortNames, AskedForASingleName_AreThoseOfTheWholeDirectory)
{
    std::mt19937 random(19);
    for (int round = 0; round < 200; ++round) {
        const QSet<QByteArray> names = randomNames(random, 1 + round % 40);
        const Directory whole = directoryOf(names);
        EXPECT_EQ(whole.find(u"none~1"_s), QString()); // names them all
        for (const QByteArray &bytes : names) {
            const QString name = nameFromDisk(bytes);
            ASSERT_EQ(directoryOf(names).shortForm(name), whole.shortForm(name)) << bytes.constData();
        }
        ASSERT_EQ(directoryOf(names).shortForm(u"not there.x y"_s), u"not there.x y"_s);
    }
}

TEST(ShortNames, OfLettersThatAreWrittenInSeveralWays_Collide)
{
    // The Kelvin sign is a K, and both small s are an S.
    const Directory directory = directoryOf({ "\xE2\x84\xAA b", "K_B", "\xC5\xBF c", "s_c" });
    EXPECT_EQ(directory.shortForm(u"\u212A b"_s), u"k_b~2"_s);
    const Directory other = directoryOf({ "\xC5\xBF c", "s_c" });
    EXPECT_EQ(other.shortForm(u"\u017F c"_s), assignShortForms({ u"s_c"_s, u"\u017F c"_s })[u"\u017F c"_s]);
}

TEST(ShortNames, DependOnTheNamesAlone_AndNotOnTheOrderInWhichTheyAreRead)
{
    std::mt19937 random(3);
    for (int round = 0; round < 50; ++round) {
        const QSet<QByteArray> names = randomNames(random, 40);
        // A set of another size walks its elements in another order.
        QSet<QByteArray> shuffled;
        shuffled.reserve(4096);
        shuffled.unite(names);
        const Directory one = directoryOf(names);
        const Directory other = directoryOf(shuffled);
        for (const QByteArray &bytes : names)
            ASSERT_EQ(one.shortForm(nameFromDisk(bytes)), other.shortForm(nameFromDisk(bytes)));
    }
}

TEST_F(ShortPaths, LeadBackToTheirOwnFiles_WhateverElseLiesInTheDirectory)
{
    std::mt19937 random(38);
    for (int round = 0; round < 8; ++round) {
        const QByteArray directory = "Round " + QByteArray::number(round);
        makeDirectory(directory);
        const QSet<QByteArray> names = randomNames(random, 60);
        for (const QByteArray &name : names)
            makeFile(directory + '/' + name);
        for (const QByteArray &name : names) {
            const QByteArray file = place(directory + '/' + name);
            const QString form = GetShortPathNameA(nameFromDisk(file));
            ASSERT_EQ(findOnDisk(form), file) << form.toStdString();
            ASSERT_EQ(GetShortPathNameA(form), form);
        }
    }
}

TEST(ShortNames, ThousandsThatCollideAreNamedInNoTime)
{
    QStringList names;
    for (int i = 0; i < 3000; ++i)
        names.append(u"game"_s + QString(1 + i % 50, u' ') + QString(1 + i / 50, u'.') + u"zip"_s);
    names.sort();
    const QHash<QString, QString> forms = assignShortForms(names);
    EXPECT_EQ(forms.size(), 3000);
    const QList<QString> all = forms.values();
    EXPECT_EQ(QSet<QString>(all.begin(), all.end()).size(), 3000);
}

TEST_F(ShortPaths, NamesInADirectoryThatCannotBeListedHaveTheirPlainForm)
{
    makeDirectory("closed");
    makeDirectory("closed/My Games");
    makeFile("closed/My Games/A. B.nes");
    setMode("closed", 0711);
    const int status = inChildOfOrdinaryUser([this] {
        const QString whole = GetShortPathNameA(path(u"closed/My Games/A. B.nes"_s));
        return whole == GetShortPathNameA(path()) + u"/closed/my_games/a__b.nes"_s ? 0 : 1;
    });
    setMode("closed", 0755);
    EXPECT_EQ(status, 0);
}

TEST_F(ShortPaths, OfTheLongestNamesLeadToTheirFilesToo)
{
    const QByteArray longest(255, 'a');
    for (const QByteArray &name : { longest, longest.toUpper(), 'A' + longest.sliced(1) })
        makeFile(name);
    for (const QByteArray &name : { longest, longest.toUpper(), 'A' + longest.sliced(1) }) {
        const QString form = GetShortPathNameA(path(QString::fromLatin1(name)));
        EXPECT_EQ(findOnDisk(form), place(name));
        EXPECT_EQ(GetShortPathNameA(form), form);
    }
}
