// The files as they are delivered: in Windows-1252, every line closed by carriage return and line feed.
#include "languages.h"
#include "sources.h"

#include "host/encoding.h"
#include "host/numberedfiles.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QStringList deliveredTexts()
{
    QStringList files { u"Zembro.sye"_s, u"Zembro.emu"_s, u"Zembro.rom"_s, u"Zembro.txt"_s, u"Zembro.faq"_s,
        u"Zembro.cfg"_s };
    for (const languages::Language &language : languages::delivered())
        files += language.file;
    return files;
}

QByteArray inTheCodePage(const QString &text)
{
    return host::encodeText({ text, host::Encoding::Windows1252, false });
}

} // namespace

class Delivery : public testing::TestWithParam<QString> { };

TEST_P(Delivery, IsTheSourceInTheCodePageWithItsLineEnds)
{
    const QByteArray bytes = host::readBytes(QStringLiteral(DELIVERED "/") + GetParam());
    EXPECT_EQ(bytes, inTheCodePage(sources::delivered(GetParam())));
    EXPECT_EQ(bytes.count('\n'), bytes.count("\r\n"));
    EXPECT_TRUE(bytes.endsWith("\r\n"));
}

INSTANTIATE_TEST_SUITE_P(Files, Delivery, testing::ValuesIn(deliveredTexts()));

TEST(DeliveredSettings, AreTheMarkOfTheFirstRun)
{
    EXPECT_EQ(host::readBytes(QStringLiteral(DELIVERED "/Zembro.cfg")), "VACIO\r\n");
}

TEST(DeliveredCatalogue, HasItsLinesInTheOrderInWhichTheyAreWritten)
{
    const QStringList beginnings { u"'"_s, u"-Atari 2600"_s, u"WEB1="_s, u"*.ZIP"_s, u"*.A26"_s, u"*.BIN"_s,
        u"'"_s, u"+Stella"_s, u"WEB2="_s, u"EXE=@STELLA@"_s, u"XDI=0"_s, u"ROM=demo/"_s, u"IMG=demo/"_s,
        u"PAR1="_s, u"PAR2="_s, u'\'' + QString(70, u'-'), u"["_s };
    const QStringList lines = sources::lines(u"Zembro.emu"_s);
    ASSERT_EQ(lines.size(), beginnings.size());
    for (qsizetype i = 0; i < lines.size(); ++i)
        EXPECT_TRUE(lines[i].startsWith(beginnings[i])) << lines[i].toStdString();
    EXPECT_EQ(lines[10], u"XDI=0"_s);
    EXPECT_TRUE(lines[11].endsWith(u'/'));
    EXPECT_TRUE(lines[12].endsWith(u'/'));
    EXPECT_EQ(lines[15].size(), 71);
}
