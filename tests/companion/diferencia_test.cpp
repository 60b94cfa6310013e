#include "companion/diferencia.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Diferencia, ShowsWhatChangesWithThreeLinesAround)
{
    EXPECT_EQ(companion::Diferencia(u"f"_s, u"1\n2\n3\n4\n5\n6\n7\n8\n"_s, u"1\n2\n3\n4\nx\n6\n7\n8\n"_s),
        QStringList({ u"--- f"_s, u"+++ f"_s, u"@@ -2,7 +2,7 @@"_s, u" 2"_s, u" 3"_s, u" 4"_s, u"-5"_s,
            u"+x"_s, u" 6"_s, u" 7"_s, u" 8"_s }));
    EXPECT_EQ(companion::Diferencia(u"f"_s, u"a\r\n"_s, u"a\r\n"_s), QStringList());
    EXPECT_EQ(companion::Diferencia(u"f"_s, QString(), u"a\n"_s),
        QStringList({ u"--- f"_s, u"+++ f"_s, u"@@ -0,0 +1,1 @@"_s, u"+a"_s }));
}

TEST(Diferencia, ShowsEndsOfLinesWhereNothingElseChanges)
{
    EXPECT_EQ(companion::Diferencia(u"f"_s, u"1\r\n2\r\n"_s, u"1\r\n2\n"_s),
        QStringList({ u"--- f"_s, u"+++ f"_s, u"@@ -1,2 +1,2 @@"_s, u" 1\r"_s, u"-2\r"_s, u"+2"_s }));
    EXPECT_EQ(companion::Diferencia(u"f"_s, u"1\n"_s, u"1"_s),
        QStringList({ u"--- f"_s, u"+++ f"_s, u"@@ -1,1 +1,1 @@"_s, u"-1"_s,
            u"+1  \\ No newline at end of file"_s }));
    EXPECT_EQ(companion::Diferencia(u"f"_s, u"1\n2\n"_s, u"1\r\nx\n"_s),
        QStringList({ u"--- f"_s, u"+++ f"_s, u"@@ -1,2 +1,2 @@"_s, u" 1"_s, u"-2"_s, u"+x"_s }));
}
