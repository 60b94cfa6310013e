// The database of systems and emulators, and the configured catalogue that copies from it.
#include "sources.h"

#include "core/catalogo.h"

#include "host/letters.h"

#include <gmock/gmock.h>

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::IsSupersetOf;
using testing::UnorderedElementsAreArray;

namespace {

const QString Database = u"Zembro.sye"_s;
const QString Configured = u"Zembro.emu"_s;
const QString ClosingLine = u'\'' + QString(70, u'-');

QStringList namesOf(const std::vector<sources::System> &systems)
{
    QStringList names;
    for (const sources::System &system : systems)
        names += system.name;
    return names;
}

// The lines of one system as the layout has them.
QStringList layoutOf(const sources::System &system)
{
    QStringList lines { u'-' + system.name, u"WEB1="_s + system.web };
    for (const QString &extension : system.extensions)
        lines += u"*."_s + extension;
    lines += u"'"_s;
    for (qsizetype e = 0; e < system.emulators.size(); ++e)
        lines << u'+' + system.emulators[e] << u"WEB2="_s + system.emulatorWebs[e];
    return lines << ClosingLine;
}

void expectNoneTwice(const QStringList &names)
{
    QSet<QString> seen;
    for (const QString &name : names) {
        EXPECT_FALSE(seen.contains(host::upper(name))) << name.toStdString();
        seen += host::upper(name);
    }
}

bool isPlainName(const QString &name)
{
    return !name.isEmpty() && name == name.trimmed() && !name.contains(u',') && !name.contains(u'"')
        && !name.startsWith(u'\'') && !name.startsWith(u'[') && !name.startsWith(u"Parametros");
}

} // namespace

// Nothing else stands in the file: every line is what the reader takes it for.
TEST(Database, IsMadeOfCommentsBlocksAndTheEndMarker)
{
    QStringList expected;
    for (const QString &line : sources::lines(Database)) {
        if (!line.startsWith(u'\''))
            break;
        expected += line;
    }
    ASSERT_FALSE(expected.isEmpty());
    for (const sources::System &system : sources::systems(Database))
        expected += layoutOf(system);
    expected += u"[EOF]"_s;
    EXPECT_EQ(sources::lines(Database), expected);
}

TEST(Database, NamesTheSystemsWithSettingsOfTheirOwn)
{
    const QStringList known { u"Atari 2600"_s, u"Atari 5200"_s, u"Lynx"_s, u"Colecovision"_s, u"Game Gear"_s,
        u"Game Boy"_s, u"Mega Drive/Genesis"_s, u"NES"_s, u"Nintendo 64"_s, u"Super Nintendo"_s,
        u"PC-Engine/TG16"_s, u"Vectrex"_s, u"Amiga"_s, u"Atari ST"_s, u"Amstrad CPC"_s, u"MSX"_s,
        u"Spectrum"_s, u"Commodore 64"_s, u"Master System"_s, u"Virtual Boy"_s, u"Play Station"_s,
        u"Amstrad PCW"_s, u"Apple II"_s, u"Macintosh"_s, u"Sinclair QL"_s, u"X68000"_s, u"Atari 7800"_s,
        u"Arcade"_s, u"Neo-Geo"_s };
    EXPECT_THAT(namesOf(sources::systems(Database)), IsSupersetOf(known));
}

// Saving and removing take the first line of a name, whichever system it stands under.
TEST(Database, NamesEverySystemAndEveryEmulatorOnce)
{
    const std::vector<sources::System> systems = sources::systems(Database);
    expectNoneTwice(namesOf(systems));
    QStringList emulators;
    for (const sources::System &system : systems)
        emulators += system.emulators;
    expectNoneTwice(emulators);
}

// The names are bare fields and header lines of the notes.
TEST(Database, HasNamesThatTheNotesCanHold)
{
    for (const sources::System &system : sources::systems(Database)) {
        EXPECT_TRUE(isPlainName(system.name)) << system.name.toStdString();
        for (const QString &emulator : system.emulators)
            EXPECT_TRUE(isPlainName(emulator)) << emulator.toStdString();
    }
}

// A user who installs one emulator of a system takes the first that he sees.
TEST(Database, HasEmulatorsForWindowsAloneBehindAllOthersOfTheirSystem)
{
    const QStringList windowsOnly { u"Altirra"_s, u"AppleWin"_s, u"blueMSX"_s, u"CCS64"_s, u"Cxbx-Reloaded"_s,
        u"CD-i Emulator"_s, u"Spectaculator"_s, u"WinAPE"_s, u"WinUAE"_s };
    QStringList found;
    for (const sources::System &system : sources::systems(Database)) {
        bool behind = false;
        for (const QString &emulator : system.emulators) {
            const bool forWindows = windowsOnly.contains(emulator);
            EXPECT_TRUE(forWindows || !behind) << system.name.toStdString() << ' ' << emulator.toStdString();
            behind = behind || forWindows;
            if (forWindows)
                found += emulator;
        }
    }
    EXPECT_THAT(found, UnorderedElementsAreArray(windowsOnly));
}

// A system without emulators would give its count of extensions to the one behind it.
TEST(Database, HasAnEmulatorForEverySystem)
{
    for (const sources::System &system : sources::systems(Database))
        EXPECT_FALSE(system.emulators.isEmpty()) << system.name.toStdString();
}

TEST(Database, KnowsSixtySystemsAndAHundredAndFiftyEmulatorsOrMore)
{
    const std::vector<sources::System> systems = sources::systems(Database);
    qsizetype emulators = 0;
    for (const sources::System &system : systems)
        emulators += system.emulators.size();
    EXPECT_GE(systems.size(), 60U);
    EXPECT_GE(emulators, 150);
}

// The user adds systems and emulators of his own to it.
TEST(Database, LeavesRoomInTheTables)
{
    const std::vector<sources::System> systems = sources::systems(Database);
    EXPECT_LE(systems.size(), 120U);
    for (const sources::System &system : systems) {
        EXPECT_LE(system.emulators.size(), 120) << system.name.toStdString();
        EXPECT_LE(system.extensions.size(), 120) << system.name.toStdString();
    }
}

// A directory of ROMs is named after its system, with a hyphen for each slash.
TEST(Database, HasNamesThatGiveEachSystemADirectoryOfItsOwn)
{
    QStringList directories;
    for (const QString &name : namesOf(sources::systems(Database))) {
        directories += QString(name).replace(u'/', u'-');
        EXPECT_FALSE(name.startsWith(u'.') || name.contains(u'\\')) << name.toStdString();
    }
    expectNoneTwice(directories);
}

TEST(Database, HasAWebAddressForEverySystemAndEveryEmulator)
{
    const QRegularExpression address(u"^https?://[a-z0-9][a-z0-9.-]+\\.[a-z]+(/[!-~]*)?$"_s);
    for (const sources::System &system : sources::systems(Database)) {
        QStringList addresses = system.emulatorWebs;
        addresses += system.web;
        for (const QString &web : std::as_const(addresses))
            EXPECT_TRUE(address.match(web).hasMatch())
                << system.name.toStdString() << ' ' << web.toStdString();
    }
}

// In a ZIP the first extension is tried on the first file alone, so one that no unpacked ROM has comes first.
// Longer ones never fit, nor do small letters; a single letter, without the point ahead of it, fits every
// name that ends in it.
TEST(Database, HasZipFirstAndShortExtensionsInCapitals)
{
    for (const sources::System &system : sources::systems(Database)) {
        ASSERT_FALSE(system.extensions.isEmpty()) << system.name.toStdString();
        EXPECT_EQ(system.extensions.first(), u"ZIP") << system.name.toStdString();
        for (const QString &extension : system.extensions) {
            EXPECT_TRUE(extension.size() >= 2 && extension.size() <= 3) << extension.toStdString();
            EXPECT_EQ(extension, host::upper(extension).trimmed()) << system.name.toStdString();
        }
    }
}

// A file that fits two extensions would be listed twice.
TEST(Database, HasNoExtensionThatEndsLikeAnotherOfItsSystem)
{
    for (const sources::System &system : sources::systems(Database)) {
        for (qsizetype i = 0; i < system.extensions.size(); ++i) {
            for (qsizetype j = 0; j < system.extensions.size(); ++j)
                EXPECT_FALSE(i != j && system.extensions[i].endsWith(system.extensions[j]))
                    << system.name.toStdString() << ' ' << system.extensions[j].toStdString();
        }
    }
}

TEST(Database, IsReadBackAsItWasAfterDelivery)
{
    EXPECT_TRUE(sources::survivesDelivery(sources::delivered(Database)));
}

TEST(ConfiguredCatalogue, RepeatsNamesWebsAndExtensionsOfTheDatabase)
{
    const std::vector<sources::System> database = sources::systems(Database);
    const std::vector<sources::System> configured = sources::systems(Configured);
    EXPECT_FALSE(configured.empty());
    for (const sources::System &system : configured) {
        const auto known = std::find_if(database.begin(), database.end(),
            [&system](const sources::System &other) { return other.name == system.name; });
        ASSERT_NE(known, database.end()) << system.name.toStdString();
        EXPECT_EQ(system.web, known->web);
        EXPECT_EQ(system.extensions, known->extensions);
        for (qsizetype e = 0; e < system.emulators.size(); ++e) {
            const qsizetype same = known->emulators.indexOf(system.emulators[e]);
            ASSERT_GE(same, 0) << system.emulators[e].toStdString();
            EXPECT_EQ(system.emulatorWebs[e], known->emulatorWebs[same]);
        }
    }
}

// Writers put new blocks ahead of it.
TEST(ConfiguredCatalogue, ClosesWithTheEndMarkerAndHasNoOther)
{
    const QStringList lines = sources::lines(Configured);
    EXPECT_EQ(lines.filter(QRegularExpression(u"^\\["_s)), QStringList(u"[EOF]"_s));
    EXPECT_EQ(lines.last(), u"[EOF]");
}
