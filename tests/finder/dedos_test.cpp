// Emulators for DOS that are found below the drives.

#include "finder/dedos.h"

#include "core/catalogo.h"

#include "host/failure.h"

#include "maquina.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>

#include <memory>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QByteArray ForDos = "MZ" + QByteArray(100'000, '\0');
const QByteArray ForWindows =
    "MZ" + QByteArray(0x3a, '\0') + QByteArray("\x40\0\0\0PE\0\0", 8) + QByteArray(100'000, '\0');

class BelowTheDrives : public testing::Test {
protected:
    std::vector<finder::FichaDOS> cards =
        finder::LeeFichasDOS(u"# a comment\nNESticle\tNES\tnesticle.exe\t64-2048\t0\t-\t-\n"
                             "Two\tNES\ttwo.exe 2.com\t64-2048\t0\t-a\t-b\n"_s);
    Maquina maquina;

    void SetUp() override
    {
        ASSERT_TRUE(QDir().mkpath(maquina.Ruta(u"c"_s)));
        ASSERT_TRUE(QDir().mkpath(maquina.Ruta(u"d"_s)));
    }
    std::vector<host::Drive> drives() const
    {
        return { { u'C', maquina.Ruta(u"c"_s) }, { u'D', maquina.Ruta(u"d"_s) } };
    }
    QStringList found(finder::Alcance reach = {}) const
    {
        QStringList said;
        for (const finder::EnUnidad &one : finder::RecorreUnidades(cards, drives(), reach))
            said << one.ficha->ficha.emulador + u' ' + one.dicho;
        return said;
    }
};

} // namespace

TEST_F(BelowTheDrives, AreKnownByNameInAnyCase_SizeAndFirstBytes)
{
    maquina.PonFichero(u"c/EMUS/Nes/NESTICLE.EXE"_s, ForDos);
    maquina.PonFichero(u"d/2.Com"_s, ForDos);
    EXPECT_THAT(found(), ElementsAre(u"NESticle C:\\EMUS\\Nes\\NESTICLE.EXE"_s, u"Two D:\\2.Com"_s));
}

TEST_F(BelowTheDrives, OthersOfTheirNamesAreNoneOfThem)
{
    maquina.PonFichero(u"c/a/nesticle.exe"_s, ForDos.first(65'535)); // too small
    maquina.PonFichero(u"c/b/nesticle.exe"_s, "MZ" + QByteArray(2048 * 1024, '\0')); // too large
    maquina.PonFichero(u"c/c/nesticle.exe"_s, ForWindows);
    maquina.PonFichero(u"c/d/nesticle.exe"_s, QByteArray(100'000, 'x'));
    maquina.PonFichero(u"c/e/nesticle.exe/readme"_s, ForDos);
    maquina.PonFichero(u"c/f/nesticle.exe.old"_s, ForDos);
    EXPECT_THAT(found(), IsEmpty());
    maquina.PonFichero(u"c/g/nesticle.exe"_s, ForDos.first(65'536));
    EXPECT_THAT(found(), ElementsAre(u"NESticle C:\\g\\nesticle.exe"_s));
}

TEST_F(BelowTheDrives, TheFirstOneCounts_ThoseLessDeepAhead)
{
    maquina.PonFichero(u"d/nesticle.exe"_s, ForDos);
    maquina.PonFichero(u"c/a/b/nesticle.exe"_s, ForDos);
    maquina.PonFichero(u"c/z/nesticle.exe"_s, ForDos);
    EXPECT_THAT(found(), ElementsAre(u"NESticle C:\\z\\nesticle.exe"_s));
}

TEST_F(BelowTheDrives, TheSearchIsBounded)
{
    maquina.PonFichero(u"c/1/2/3/4/5/6/nesticle.exe"_s, ForDos);
    maquina.PonFichero(u"d/1/2/3/4/5/6/7/two.exe"_s, ForDos);
    EXPECT_THAT(found(), ElementsAre(u"NESticle C:\\1\\2\\3\\4\\5\\6\\nesticle.exe"_s));
    EXPECT_THAT(found({ 5, 20000 }), IsEmpty());
    EXPECT_THAT(found({ 6, 6 }), IsEmpty());
    EXPECT_EQ(found({ 7, 20000 }).size(), 2);
}

TEST_F(BelowTheDrives, LinksAreNotFollowed)
{
    maquina.PonFichero(u"elsewhere/nesticle.exe"_s, ForDos);
    ASSERT_TRUE(QFile::link(maquina.Ruta(u"c"_s), maquina.Ruta(u"c/round"_s)));
    ASSERT_TRUE(QFile::link(maquina.Ruta(u"elsewhere"_s), maquina.Ruta(u"c/away"_s)));
    ASSERT_TRUE(QFile::link(maquina.Ruta(u"elsewhere/nesticle.exe"_s), maquina.Ruta(u"c/nesticle.exe"_s)));
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(BelowTheDrives, ADriveThatIsMissingOrTheWholeDiskIsPassedOver)
{
    maquina.PonFichero(u"d/nesticle.exe"_s, ForDos);
    const auto all = finder::RecorreUnidades(
        cards, { { u'A', u"/none/at all"_s }, { u'Z', u"/"_s }, { u'D', maquina.Ruta(u"d"_s) } }, { 20, 20 });
    ASSERT_EQ(all.size(), 1U);
    EXPECT_EQ(all[0].dicho, u"D:\\nesticle.exe");
}

TEST_F(BelowTheDrives, WhatADriveCantSayIsNamedByTheDisk)
{
    maquina.PonFichero(u"c/a\\b/nesticle.exe"_s, ForDos);
    EXPECT_THAT(found(), ElementsAre(u"NESticle "_s + maquina.Ruta(u"c/a\\b/nesticle.exe"_s)));
}

TEST_F(BelowTheDrives, TheyAreFindingsOfTheirSystem_UnlessTheCatalogueHasThem)
{
    maquina.PonFichero(u"c/two.exe"_s, ForDos);
    const auto seen = finder::RecorreUnidades(cards, drives());
    const auto base = std::make_unique<core::Modulo>();
    const auto catalogue = std::make_unique<core::Modulo>();
    EXPECT_THAT(finder::HallazgosDOS(*base, *catalogue, seen, u"/z"_s).size(), 0U)
        << "a system that the database doesn't have";
    finder::LeeTablas(*base, u"-NES\nWEB1=\n*.NES\n'\n+Nestopia\nWEB2=\n'---\n[EOF]\n"_s);
    const auto findings = finder::HallazgosDOS(*base, *catalogue, seen, u"/z"_s);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].sistema, u"NES");
    EXPECT_EQ(findings[0].programa, maquina.Ruta(u"c/two.exe"_s));
    EXPECT_EQ(core::LineasDeEmulador(findings[0].emulador),
        QStringList({ u"+Two"_s, u"WEB2="_s, u"EXE=C:\\two.exe"_s, u"XDI=0"_s, u"ROM=/z/roms/NES/"_s,
            u"IMG=/z/capturas/NES/"_s, u"PAR1=-a"_s, u"PAR2=-b"_s }));
    finder::LeeTablas(*catalogue, u"-Mine\n'\n+Two\nEXE=/x\n'---\n[EOF]\n"_s);
    EXPECT_THAT(finder::HallazgosDOS(*base, *catalogue, seen, u"/z"_s).size(), 0U);
}

TEST_F(BelowTheDrives, OneThatIsConfiguredUnderAnotherNameIsNotOfferedAgain)
{
    maquina.PonFichero(u"c/two.exe"_s, ForDos);
    const host::OtherDrives ours(drives());
    const auto seen = finder::RecorreUnidades(cards, drives());
    const auto base = std::make_unique<core::Modulo>();
    const auto catalogue = std::make_unique<core::Modulo>();
    finder::LeeTablas(*base, u"-NES\nWEB1=\n*.NES\n'\n+Nestopia\nWEB2=\n'---\n[EOF]\n"_s);
    finder::LeeTablas(*catalogue, u"-NES\n'\n+My Two\nEXE=c:/TWO.EXE\n'---\n[EOF]\n"_s);
    EXPECT_THAT(finder::HallazgosDOS(*base, *catalogue, seen, u"/z"_s).size(), 0U);
    finder::LeeTablas(*catalogue, u"-Other\n'\n+My Two\nEXE=c:/TWO.EXE\n'---\n[EOF]\n"_s);
    EXPECT_THAT(finder::HallazgosDOS(*base, *catalogue, seen, u"/z"_s).size(), 1U) << "for another system";
}

TEST(TableOfDosEmulators, RefusesWhatItCantRead)
{
    const QString good = u"A\tNES\ta.exe\t1-2\t0\t-\t-"_s;
    EXPECT_EQ(finder::LeeFichasDOS(good).size(), 1U);
    for (const QString &bad :
        { u"A\tNES\ta.exe\t1-2\t0\t-"_s, u"A\tNES\ta.exe\t2-1\t0\t-\t-"_s, u"A\tNES\ta.exe\t2\t0\t-\t-"_s,
            u"A\t\ta.exe\t1-2\t0\t-\t-"_s, u"A\tNES\ta.exe\t1-2\t9\t-\t-"_s, good + u'\n' + good })
        EXPECT_THROW(finder::LeeFichasDOS(bad), host::Failure) << bad.toStdString();
}

// The main screen's lists are as wide as the longest name of the database.
TEST(TableOfDosEmulators, AsDeliveredHasSystemsOfTheDatabaseAndNamesOfItsOwn)
{
    QFile file(QStringLiteral(DATA_SOURCES "/Zembro.sye"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const auto base = std::make_unique<core::Modulo>();
    finder::LeeTablas(*base, QString::fromUtf8(file.readAll()));
    QStringList systems;
    for (int s = 0; s <= base->Indice_Sistema; ++s)
        systems << core::Valor(base->Cat_Nombre(s, 0), 1);
    const QSet<QString> names = finder::NombresConfigurados(*base);
    qsizetype longest = 0;
    for (const QString &name : names)
        longest = std::max(longest, name.size() - 1);
    const auto delivered = finder::LeeFichasDOS(finder::TablaDOSDelPrograma());
    EXPECT_GT(delivered.size(), 15U);
    for (const finder::FichaDOS &card : delivered) {
        const QString &name = card.ficha.emulador;
        EXPECT_TRUE(systems.contains(card.sistema)) << name.toStdString();
        EXPECT_FALSE(names.contains(u'+' + name)) << name.toStdString();
        EXPECT_LE(name.size(), longest) << name.toStdString();
        EXPECT_EQ(card.ficha.tipo, u"0") << name.toStdString();
        EXPECT_EQ(card.ficha.par1 + card.ficha.par2, (card.ficha.par1 + card.ficha.par2).toLower());
    }
}
