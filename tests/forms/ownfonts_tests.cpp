// Fonts beside the program.
#include "forms/ownfonts.h"

#include "host/paths.h"

#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

class OwnFonts : public testing::Test {
protected:
    void SetUp() override { host::setProgramDirectory(m_directory.path()); }
    void TearDown() override
    {
        QFontDatabase::removeAllApplicationFonts();
        host::setProgramDirectory({});
    }

    QString fonts() const
    {
        QDir(m_directory.path()).mkpath(u"fonts"_s);
        return m_directory.filePath(u"fonts/"_s);
    }
    void copyFont(const QString &name) const
    {
        const QString machines = u"/usr/share/fonts/truetype/liberation/"_s;
        ASSERT_TRUE(QFile::copy(machines + name, fonts() + name));
    }

private:
    QTemporaryDir m_directory;
};

TEST_F(OwnFonts, AreThoseOfTheDirectory)
{
    copyFont(u"LiberationMono-Regular.ttf"_s);
    copyFont(u"LiberationMono-Bold.ttf"_s);
    copyFont(u"LiberationSans-Regular.ttf"_s);
    EXPECT_EQ(forms::addOwnFonts(), (QStringList { u"Liberation Mono"_s, u"Liberation Sans"_s }));
}

TEST_F(OwnFonts, WhatIsNoFontIsPassedOver)
{
    QFile other(fonts() + u"A.ttf"_s);
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    other.write("no font");
    other.close();
    copyFont(u"LiberationMono-Regular.ttf"_s);
    EXPECT_EQ(forms::addOwnFonts(), QStringList { u"Liberation Mono"_s });
}

TEST_F(OwnFonts, NoneWithoutTheDirectory)
{
    EXPECT_EQ(forms::addOwnFonts(), QStringList());
}

} // namespace
