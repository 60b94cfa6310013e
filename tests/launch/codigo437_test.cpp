#include "launch/codigo437.h"

#include <gtest/gtest.h>

#include <optional>

using namespace Qt::StringLiterals;

TEST(Codigo437, HasTheLettersOfItsPageAndNoOthers)
{
    EXPECT_EQ(launch::EnCodigo437(u"ñÑáü~ a"_s), QByteArray("\xA4\xA5\xA0\x81~ a"));
    EXPECT_EQ(launch::EnCodigo437(u"Ç\u00A0■"_s), QByteArray("\x80\xFF\xFE"));
    EXPECT_EQ(launch::EnCodigo437(QString()), QByteArray());
    EXPECT_EQ(launch::DeCodigo437("\xA4\xA5\xA0\x81~ a\xFF"), u"ñÑáü~ a\u00A0"_s);
    for (const QString &otro : { u"Ã"_s, u"\n"_s, u"\u007f"_s, u"\u0000"_s, u"\uF7A4"_s })
        EXPECT_EQ(launch::EnCodigo437(otro), std::nullopt);
}
