// The table as delivered, against the database.

#include "finder/hallazgos.h"

#include "core/basededatos.h"
#include "core/catalogo.h"

#include "maquina.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QHash>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

QString textOf(const QString &name)
{
    QFile file(QStringLiteral(DATA_SOURCES "/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return QString::fromUtf8(file.readAll());
}

// The system of each emulator of the database.
QHash<QString, QString> systemsByEmulator()
{
    const auto base = std::make_unique<core::Modulo>();
    finder::LeeTablas(*base, textOf(u"Zembro.sye"_s));
    QHash<QString, QString> systems;
    for (int s = 0; s <= base->Indice_Sistema; ++s) {
        for (int e = 1; e <= core::TotalEmuladores(*base, s); ++e)
            systems[core::Valor(base->Cat_Nombre(s, e), 1)] = core::Valor(base->Cat_Nombre(s, 0), 1);
    }
    return systems;
}

std::vector<finder::Ficha> delivered()
{
    return finder::LeeFichas(textOf(u"emuladores.tsv"_s));
}

} // namespace

TEST(DeliveredTable, KnowsEmulatorsOfTheDatabaseOnly)
{
    const QHash<QString, QString> systems = systemsByEmulator();
    for (const finder::Ficha &ficha : delivered())
        EXPECT_TRUE(systems.contains(ficha.emulador)) << ficha.emulador.toStdString();
}

// Whatever else stands there would reach the emulator in small letters.
TEST(DeliveredTable, HasItsParametersInSmallLetters)
{
    for (const finder::Ficha &ficha : delivered()) {
        EXPECT_EQ(ficha.par1, ficha.par1.toLower()) << ficha.emulador.toStdString();
        EXPECT_EQ(ficha.par2, ficha.par2.toLower()) << ficha.emulador.toStdString();
    }
}

TEST(DeliveredTable, HasExecutablesWithoutPaths)
{
    for (const finder::Ficha &ficha : delivered()) {
        for (const QString &executable : ficha.ejecutables)
            EXPECT_FALSE(executable.contains(u'/')) << ficha.emulador.toStdString();
    }
}

// The form shows no special cases for the systems that are no arcades, and takes no other type for those that
// are.
TEST(DeliveredTable, HasTheTypesThatTheConfigurationTakes)
{
    const QHash<QString, QString> systems = systemsByEmulator();
    for (const finder::Ficha &ficha : delivered()) {
        const core::OrigenDeSistema origin = core::OrigenDe(systems.value(ficha.emulador));
        if (origin == core::SistemaConocido) {
            EXPECT_TRUE(ficha.tipo == u"0" || ficha.tipo == u"5") << ficha.emulador.toStdString();
        }
        if (origin == core::SistemaRecreativo) {
            EXPECT_TRUE(ficha.tipo != u"0" && ficha.tipo != u"5") << ficha.emulador.toStdString();
        }
    }
}

// Only these get the name of the game alone.
TEST(DeliveredTable, TellsEveryEmulatorThatReadsZipsWhereTheGamesAre)
{
    for (const finder::Ficha &ficha : delivered())
        EXPECT_EQ(ficha.par1.contains(u"{roms}"_s), ficha.tipo == u"3") << ficha.emulador.toStdString();
}

TEST(DeliveredTable, HasNoOtherBracesThanTheTwoMarks)
{
    for (const finder::Ficha &ficha : delivered()) {
        QString rest = ficha.par1;
        const QString core = finder::MarcaDe(rest, u"nucleo"_s);
        rest.remove(u"{nucleo:"_s + core + u'}').remove(u"{roms}"_s);
        EXPECT_FALSE(rest.contains(u'{') || rest.contains(u'}')) << ficha.emulador.toStdString();
        EXPECT_FALSE(ficha.par2.contains(u'{')) << ficha.emulador.toStdString();
    }
}
