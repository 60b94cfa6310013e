// The language files: layout, keys, and the blanks at the ends of texts that the program joins.
#include "sources.h"

#include "core/textos.h"

#include <gmock/gmock.h>

#include <QMap>

using namespace Qt::StringLiterals;

namespace {

const QString Spanish = u"LNG/ZB-ESP.LNG"_s;
const QString English = u"LNG/ZB-ENG.LNG"_s;

QStringList settings(const QString &file)
{
    QStringList lines = sources::lines(file);
    lines.removeIf([](const QString &line) { return line.startsWith(u'\''); });
    return lines;
}

// Texts by key, the key without its points; of a key that comes twice the last, as the program has it.
QMap<QString, QString> texts(const QString &file)
{
    QMap<QString, QString> read;
    core::TextosIdioma variables;
    core::LectorDeTextos reader(
        variables, [&read](const QString &name, const QString &text) { read[name] = text; });
    for (const QString &line : sources::lines(file))
        reader.Linea(line);
    for (const core::ClaveDeTexto &key : core::ClavesDeTexto()) {
        if (key.variable)
            read[key.nombre.toString()] = variables.*(key.variable);
    }
    return read;
}

QStringList allKeys()
{
    QStringList keys;
    for (const core::ClaveDeTexto &key : core::ClavesDeTexto())
        keys += key.nombre.toString().leftJustified(core::AnchoClave, u'.');
    keys.sort();
    return keys;
}

class LanguageFile : public testing::TestWithParam<QString> { };

INSTANTIATE_TEST_SUITE_P(Delivered, LanguageFile, testing::Values(Spanish, English),
    [](const auto &file) { return file.index == 0 ? "Spanish" : "English"; });

} // namespace

TEST_P(LanguageFile, HoldsEveryKeyOnceAndNoOther)
{
    QStringList keys;
    for (const QString &line : settings(GetParam()))
        keys += line.left(core::AnchoClave);
    keys.sort();
    EXPECT_EQ(keys, allKeys());
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
    EXPECT_FALSE(sources::lines(GetParam()).contains(QString()));
}

TEST_P(LanguageFile, IsReadBackAsItWasAfterDelivery)
{
    EXPECT_TRUE(sources::survivesDelivery(sources::delivered(GetParam())));
}

TEST_P(LanguageFile, HasATextForEveryKey)
{
    const QMap<QString, QString> read = texts(GetParam());
    EXPECT_EQ(read.size(), core::TotalClaves);
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

TEST(LanguageFiles, HoldTheSameKeys)
{
    QStringList spanish;
    QStringList english;
    for (const QString &line : settings(Spanish))
        spanish += line.left(core::AnchoClave);
    for (const QString &line : settings(English))
        english += line.left(core::AnchoClave);
    EXPECT_EQ(spanish, english);
}

// Shown before any language is read, by cutting the line at its columns.
TEST(LanguageFiles, NameTheirLanguageAndAuthor)
{
    EXPECT_EQ(texts(Spanish)[u"TXT_InfoLNG"_s], u"Lng: Español - Autor: Dorvel");
    EXPECT_EQ(texts(English)[u"TXT_InfoLNG"_s], u"Lng: English - Author: Dorvel");
}

TEST(LanguageFiles, AskInSpanishBetweenBothQuestionMarks)
{
    for (const auto &[key, text] : texts(Spanish).asKeyValueRange()) {
        const bool markFollows = key == u"Msg_BorrarEmu1" || key == u"Msg_BorrarSis1";
        EXPECT_EQ(text.count(u'¿'), text.count(u'?') + (markFollows ? 1 : 0)) << key.toStdString();
    }
}
