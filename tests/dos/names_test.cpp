// The names that DOSBox shows, against what the real one shows.
#include "dostest.h"

#include "host/paths.h"
#include "host/process.h"

#include "launch/nombresdos.h"

#include <map>
#include <random>
#include <set>

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned Seed = 1;

// Names made to collide: few stems, blanks and points anywhere, every length, every byte that a name may
// have.
class Names {
public:
    QByteArray next()
    {
        QByteArray name;
        switch (number(8)) {
        case 0:
            name = bytes(1 + number(14), 1, 255);
            break;
        case 1:
            name = bytes(1 + number(40), ' ', '~') + '.' + bytes(number(6), 'a', 'z');
            break;
        case 2:
            name = QByteArray(1 + number(4), '.') + word() + '.' + word();
            break;
        case 3:
            name = word() + '~' + QByteArray::number(number(120)) + '.' + ending();
            break;
        case 4:
            name = word().first(1 + number(3)) + '.' + ending();
            break;
        default:
            name = word() + (number(2) ? " " : "") + QByteArray::number(number(300)) + '.' + ending();
        }
        return name.replace('/', '_').left(200);
    }

private:
    int number(int below) { return std::uniform_int_distribution(0, below - 1)(m_random); }
    QByteArray bytes(int count, int first, int last)
    {
        QByteArray result;
        while (count-- > 0)
            result += static_cast<char>(first + number(last - first + 1));
        return result;
    }
    QByteArray word()
    {
        static const QByteArrayList words { "Super Mario", "SuperMan", "zelda", "Zelda II", "supermario bros",
            "SUPERM", "a b c", "legend" };
        QByteArray result = words[number(static_cast<int>(words.size()))];
        return number(2) ? result : result.toUpper();
    }
    QByteArray ending()
    {
        static const QByteArrayList endings { "nes", "NES", "smc", "html", "z", "", "tar.gz", "n e" };
        return endings[number(static_cast<int>(endings.size()))];
    }

    std::mt19937 m_random { Seed };
};

class NamesOfDosBox : public DosTest { };

// The text of the file "entry N", by the name that DOS was shown.
std::map<QByteArray, QByteArray> listed(const QByteArray &out)
{
    const QByteArrayList fields = out.split('\0');
    std::map<QByteArray, QByteArray> shown;
    for (qsizetype i = 0; i + 1 < fields.size(); i += 2)
        shown[fields[i]] = fields[i + 1];
    return shown;
}

} // namespace

TEST_F(NamesOfDosBox, AreThoseThatAreGivenToFiveHundredHostileFiles)
{
    if (host::findInPath(u"dosbox"_s).isEmpty())
        GTEST_SKIP() << "Its kin name some of them otherwise.";
    Names names;
    std::set<QByteArray> made { "LISTS.COM", "SUB", ".", ".." };
    makeDirectory("emu/SUB");
    PutProgram("lists.com", "emu/LISTS.COM");
    int count = 0;
    while (count < 500) {
        const QByteArray name = names.next();
        if (made.insert(name).second)
            makeFile("emu/" + name, "entry " + QByteArray::number(++count));
    }
    Select(5, path(u"emu/LISTS.COM"_s), {});
    Juega();

    const std::map<QByteArray, QByteArray> shown = listed(bytes("emu/SUB/OUT").value_or("nothing"));
    const QByteArrayList entries = host::listInDiskOrder(path(u"emu"_s));
    const QByteArrayList given = launch::NombresDOS(entries);
    ASSERT_EQ(entries.size(), 502);
    std::set<QByteArray> expected { ".", ".." };
    int openable = 0;
    for (qsizetype i = 0; i < entries.size(); ++i) {
        expected.insert(given[i]);
        if (given[i].endsWith('.'))
            continue; // DOS isn't shown it at all
        ASSERT_TRUE(shown.contains(given[i])) << entries[i].toPercentEncoding(" ").constData() << " is not "
                                              << given[i].toPercentEncoding("~").constData();
        if (!launch::SeAbreEnDOS(given[i]) || given.count(given[i]) > 1 || entries[i] == "SUB")
            continue;
        ++openable;
        EXPECT_EQ(shown.at(given[i]), bytes("emu/" + entries[i])->left(15)) << entries[i].constData();
    }
    for (const auto &[name, content] : shown)
        EXPECT_TRUE(expected.contains(name)) << name.toPercentEncoding("~").constData();
    EXPECT_GT(openable, 300);
}

TEST(NamesOfDos, AreEightAndThreeInCapitals)
{
    using launch::NombresDOS;
    EXPECT_EQ(NombresDOS({ "mario.nes", "Super Mario.nes", "super mario 2.nes", "a.html", "A.HTM" }),
        (QByteArrayList { "MARIO.NES", "SUPERM~1.NES", "SUPERM~2.NES", "A~1.HTM", "A.HTM" }));
    EXPECT_EQ(NombresDOS({ "b.nes", "B.NES" }), (QByteArrayList { "B.NES", "B~1.NES" }));
    EXPECT_EQ(NombresDOS({ "end.", ".profile" }), (QByteArrayList { "END", "PROFIL~1" }));
    EXPECT_EQ(NombresDOS({}), QByteArrayList());
}

TEST(NamesOfDos, SomeCannotBeOpened)
{
    using launch::SeAbreEnDOS;
    for (const char *name : { "A", "MARIO.NES", "SUPERM~1.NES", "12345678.123", "(A)!.X", "A&B'C.X", "CONS.X",
             "COM0", "COM10.A", "A.CON" })
        EXPECT_TRUE(SeAbreEnDOS(name)) << name;
    for (const char *name :
        { "", ".", "..", "A.", "A.B.C", "123456789", "A.1234", "A B", "A+\xA4", "\xC3\x91.X", "A=B", "A*.X",
            "A?.X", "A\"", "A<B", "A\nB", ".X", "A[1]", "CON", "con.NES", "NUL .X", "COM1.A", "LPT9" })
        EXPECT_FALSE(SeAbreEnDOS(name)) << name;
}
