// Arguments as one line, and back.
#include "launch/shell.h"

#include "host/encoding.h"

#include <gtest/gtest.h>

#include <QProcess>

using namespace Qt::StringLiterals;
using launch::DeShell;
using launch::EnShell;

namespace {

const QStringList Raros { u"plain"_s, QString(), u"with blank"_s, u"it's"_s, u"$HOME `id` \"x\" \\"_s,
    u"a\nb\x1b[2J\t'"_s, u"ñandú 日本 𐐨 😀"_s, u"-dash"_s, u"\u202egnp.exe"_s, u"\u009b31m"_s,
    host::nameFromDisk("a\xff\\x41'"), u"*"_s, u"~"_s, u"#"_s };

} // namespace

TEST(EnShell, IsPlainWhereItCanBe)
{
    EXPECT_EQ(EnShell({ u"/usr/bin/a"_s, u"-x=1"_s, u"b c"_s, QString(), u"it's"_s }),
        u"/usr/bin/a -x=1 'b c' '' 'it'\\''s'"_s);
    EXPECT_EQ(EnShell({ u"a\x1b"_s, host::nameFromDisk("\xff") }), u"$'a\\x1B' $'\\xFF'"_s);
    EXPECT_EQ(EnShell({}), QString());
}

TEST(EnShell, HoldsNothingThatATerminalObeys)
{
    for (const QChar letra : EnShell(Raros))
        EXPECT_TRUE(letra.isPrint() || letra.isSurrogate()) << int(letra.unicode());
}

TEST(EnShell, ComesBack)
{
    EXPECT_EQ(DeShell(EnShell(Raros)), Raros);
    EXPECT_EQ(DeShell(QString()), QStringList());
    EXPECT_EQ(DeShell(u"'open"_s), QStringList { u"open"_s });
}

TEST(EnShell, IsTakenApartByAShellAsItWas)
{
    QProcess bash;
    bash.start(u"bash"_s, { u"-c"_s, u"printf '%s\\0' "_s + EnShell(Raros) });
    ASSERT_TRUE(bash.waitForFinished());
    QByteArray esperado;
    for (const QString &uno : Raros)
        esperado += host::nameToDisk(uno) + '\0';
    EXPECT_EQ(bash.readAllStandardOutput(), esperado);
}
