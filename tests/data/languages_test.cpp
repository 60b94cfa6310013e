// The language files: layout, keys, and the blanks at the ends of texts that the program joins.
#include "languages.h"
#include "sources.h"

#include "companion/palabras.h"

#include "core/palabras.h"
#include "core/textos.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QRegularExpression>

using namespace Qt::StringLiterals;
using languages::Language;
using languages::settings;
using languages::texts;

namespace {

QStringList keysOf(const Language &language)
{
    QStringList keys;
    for (const QString &line : settings(language))
        keys += line.left(core::AnchoClave);
    return keys;
}

class LanguageFile : public testing::TestWithParam<Language> { };

INSTANTIATE_TEST_SUITE_P(Delivered, LanguageFile, testing::ValuesIn(languages::delivered()),
    [](const auto &tested) { return tested.param.name; });

} // namespace

TEST_P(LanguageFile, HoldsEveryKeyOnceAndNoOther)
{
    QStringList keys = keysOf(GetParam());
    keys.sort();
    EXPECT_EQ(keys, languages::knownKeys());
}

// Whoever compares two of them finds each text on the same line.
TEST_P(LanguageFile, HoldsItsLinesInTheOrderOfTheOthers)
{
    const QStringList lines = sources::lines(GetParam().file);
    const QStringList model = sources::lines(languages::delivered().front().file);
    ASSERT_EQ(lines.size(), model.size());
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const bool comment = model[i].startsWith(u'\'');
        EXPECT_EQ(lines[i].startsWith(u'\''), comment) << lines[i].toStdString();
        const qsizetype columns = comment ? 1 : core::AnchoClave;
        EXPECT_EQ(lines[i].left(columns), model[i].left(columns));
    }
}

TEST_P(LanguageFile, HasItsTextsBetweenTheSeparatorAndTheClosingQuote)
{
    for (const QString &line : settings(GetParam())) {
        ASSERT_GT(line.size(), core::AnchoPrefijo + 1) << line.toStdString();
        EXPECT_EQ(line.mid(core::AnchoClave, 2), u"=\"") << line.toStdString();
        EXPECT_TRUE(line.endsWith(u'"')) << line.toStdString();
    }
}

// The reader fails on an empty line, and the program with it.
TEST_P(LanguageFile, HasNoEmptyLine)
{
    EXPECT_FALSE(sources::lines(GetParam().file).contains(QString()));
}

TEST_P(LanguageFile, IsReadBackAsItWasAfterDelivery)
{
    EXPECT_TRUE(sources::survivesDelivery(sources::delivered(GetParam().file)));
}

TEST_P(LanguageFile, HasATextForEveryKey)
{
    const QMap<QString, QString> read = texts(GetParam());
    EXPECT_EQ(read.size(), languages::knownKeys().size());
    for (const auto &[key, text] : read.asKeyValueRange())
        EXPECT_FALSE(text.isEmpty()) << key.toStdString();
}

// The name and a question mark follow these two. The blanks around a number or a drive come from the program.
TEST_P(LanguageFile, EndsInABlankOnlyWhereANameFollows)
{
    const QStringList questions { u"Msg_BorrarEmu1"_s, u"Msg_BorrarSis1"_s };
    for (const auto &[key, text] : texts(GetParam()).asKeyValueRange()) {
        const QString blank = questions.contains(key) ? u" "_s : QString();
        EXPECT_EQ(text, text.trimmed() + blank) << key.toStdString();
        EXPECT_FALSE(text.contains(u"  "_s)) << key.toStdString();
    }
}

TEST_P(LanguageFile, GivesEachMenuEntryAShortcutOfItsOwn)
{
    QString shortcuts;
    for (const auto &[key, text] : texts(GetParam()).asKeyValueRange()) {
        EXPECT_EQ(text.count(u'&'), key.startsWith(u"Menu_") ? 1 : 0) << key.toStdString();
        if (key.startsWith(u"Menu_"))
            shortcuts += text.sliced(text.indexOf(u'&') + 1, 1).toUpper();
    }
    ASSERT_EQ(shortcuts.size(), 3);
    EXPECT_FALSE(shortcuts.sliced(1).contains(shortcuts[0])) << shortcuts.toStdString();
    EXPECT_NE(shortcuts[1], shortcuts[2]) << shortcuts.toStdString();
}

// Shown before any language is read, by cutting the line at its columns.
TEST_P(LanguageFile, NamesItsLanguageAndAuthor)
{
    EXPECT_EQ(texts(GetParam())[u"TXT_InfoLNG"_s], GetParam().credit);
}

// The message tells the user to answer with this word.
TEST_P(LanguageFile, NamesTheAnswerAsItIsWrittenOnTheScreen)
{
    const QMap<QString, QString> read = texts(GetParam());
    const QStringList words = read[u"TXT_GuardarAviso"_s].split(u' ');
    EXPECT_TRUE(words.contains(read[u"TXT_No"_s].toUpper()));
}

TEST_P(LanguageFile, NamesTheFilesOfLanguagesAsTheyAreCalled)
{
    EXPECT_TRUE(texts(GetParam())[u"TXT_EditarLNG"_s].contains(u"ZB-xxx.LNG"_s));
}

TEST(LanguageFiles, AreAllThatLieInTheirDirectory)
{
    QStringList names;
    for (const Language &language : languages::delivered())
        names += language.file.section(u'/', 1);
    names.sort();
    EXPECT_EQ(QDir(QStringLiteral(DATA_SOURCES "/LNG")).entryList(QDir::Files, QDir::Name), names);
}

TEST(LanguageFiles, SayInSpanishWhatIsBuiltIn)
{
    const core::Palabras builtIn;
    const QMap<QString, QString> read = texts(languages::delivered().front());
    for (const core::ClaveDePalabra &key : core::ClavesDePalabras())
        EXPECT_EQ(read[key.nombre.toString()], builtIn.*key.variable);
}

// English where there is no language file.
TEST(LanguageFiles, SayInEnglishWhatZembroHasBuiltIn)
{
    const companion::Palabras builtIn;
    const QMap<QString, QString> read = texts(languages::delivered().at(1));
    for (const companion::ClaveDePalabra &key : companion::ClavesDePalabras())
        EXPECT_EQ(read[key.nombre.toString()], builtIn.*key.variable);
}

// What stands for a name, a number or a line in the text of every language.
TEST_P(LanguageFile, NamesInItsTextsForZembroWhatTheEnglishOneNames)
{
    static const QRegularExpression marks(u"%[0-9]|--[a-z]+|[A-Z]{4,}"_s);
    const auto marksOf = [](const QString &text) {
        QStringList found;
        for (const QRegularExpressionMatch &match : marks.globalMatch(text))
            found += match.captured();
        found.sort();
        return found;
    };
    const QMap<QString, QString> english = texts(languages::delivered().at(1));
    const QMap<QString, QString> read = texts(GetParam());
    for (const QString &key : languages::companionKeys())
        EXPECT_EQ(marksOf(read[key]), marksOf(english[key])) << key.toStdString();
}

TEST(LanguageFiles, AskInSpanishBetweenBothQuestionMarks)
{
    for (const auto &[key, text] : texts(languages::delivered().front()).asKeyValueRange()) {
        const bool markFollows = key == u"Msg_BorrarEmu1" || key == u"Msg_BorrarSis1";
        EXPECT_EQ(text.count(u'¿'), text.count(u'?') + (markFollows ? 1 : 0)) << key.toStdString();
    }
}

// Else a line could end ahead of the mark.
TEST(LanguageFiles, TieInFrenchEveryDoubleMarkToItsWord)
{
    const QRegularExpression loose(u"(^|[^\\x{A0}])[?!;]|[^\\x{A0}]:"_s);
    for (const auto &[key, text] : texts(languages::delivered().at(3)).asKeyValueRange()) {
        EXPECT_FALSE(text.contains(loose)) << key.toStdString();
    }
}
