#include "launch/wine.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

TEST(RutasDeWindows, AreOnTheNearestDrive)
{
    const std::vector<host::Drive> unidades { { u'C', u"/w/drive_c"_s }, { u'Z', u"/"_s } };
    const auto ruta = [&](const QString &enDisco) { return launch::RutaDeWindows(enDisco, unidades); };
    EXPECT_EQ(ruta(u"/w/drive_c/a b/x.exe"_s), u"C:\\a b\\x.exe"_s);
    EXPECT_EQ(ruta(u"/w/drive_c"_s), u"C:\\"_s);
    EXPECT_EQ(ruta(u"/w/drive_cd/x"_s), u"Z:\\w\\drive_cd\\x"_s);
    EXPECT_EQ(ruta(u"/roms/"_s), u"Z:\\roms\\"_s);
    EXPECT_EQ(ruta(u"/w/../roms/./x"_s), u"Z:\\roms\\x"_s);
    EXPECT_EQ(ruta(u"mario.nes"_s), u"mario.nes"_s);
    EXPECT_EQ(ruta(u"/a:b/x"_s), u"/a:b/x"_s) << "Windows has no such name";
    EXPECT_EQ(ruta(u"/control/com10/auxiliary.c"_s), u"Z:\\control\\com10\\auxiliary.c"_s);
    EXPECT_TRUE(launch::SeDiceEnWindows(u"/roms/./../x/"_s));
    EXPECT_EQ(ruta(u"/nul/x"_s), u"/nul/x"_s);
    EXPECT_EQ(ruta(u"/a\\b"_s), u"/a\\b"_s);
    EXPECT_EQ(launch::RutaDeWindows(u"/x"_s, { { u'C', u"/w"_s } }), u"/x"_s);
}
