// The two documents of the program, shown by a text editor: each in Spanish, and in English behind a line
// that says so.
#include "languages.h"
#include "sources.h"

#include "core/ajustes.h"
#include "core/capturas.h"
#include "core/documentos.h"
#include "core/lista.h"
#include "core/modulo.h"

#include "mainscreen/portada.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QRegularExpression>
#include <QShortcut>

using namespace Qt::StringLiterals;
using testing::Contains;

namespace {

struct Document {
    const char *name;
    QString file; // from the directory of the data
    bool english;
    QString language; // whose words it quotes
};

void PrintTo(const Document &document, std::ostream *out)
{
    *out << document.name;
}

const Document Documents[] = {
    { "Manual", u"Zembro.txt"_s, false, u"LNG/ZB-ESP.LNG"_s },
    { "Questions", u"Zembro.faq"_s, false, u"LNG/ZB-ESP.LNG"_s },
    { "EnglishManual", u"Zembro.txt"_s, true, u"LNG/ZB-ENG.LNG"_s },
    { "EnglishQuestions", u"Zembro.faq"_s, true, u"LNG/ZB-ENG.LNG"_s },
};

// Quoted, but no words of a screen.
const QStringList OtherQuotes { u"-"_s, u"*."_s, u"+"_s, u"_"_s, u"="_s, u"P"_s, u".P"_s, u"ZIP"_s,
    u"*.ZIP"_s, u"pcx"_s, u"$@"_s, u"El castillo"_s, u"The castle"_s, u"Finalizado - STELLA"_s,
    u"Finalizado - stella"_s, u"Cannot find any of these files"_s };

// The lines of one language.
QStringList linesOf(const Document &document)
{
    static const QRegularExpression border(u"^=+ IN ENGLISH =+$"_s);
    const QStringList lines = sources::lines(document.file);
    EXPECT_EQ(lines.filter(border).size(), 1);
    const qsizetype place = lines.indexOf(border);
    return document.english ? lines.sliced(place + 1) : lines.first(place);
}

QString wordsOf(const Document &document)
{
    return linesOf(document).join(u' ').simplified();
}

// What the screens say in the language of the document.
QStringList screenWords(const Document &document)
{
    const auto &all = languages::delivered();
    const auto found = std::find_if(
        all.begin(), all.end(), [&](const auto &language) { return language.file == document.language; });
    QStringList words;
    for (const QString &text : languages::texts(*found))
        words += QString(text).remove(u'&');
    return words;
}

class DocumentTest : public testing::TestWithParam<Document> { };

INSTANTIATE_TEST_SUITE_P(Delivered, DocumentTest, testing::ValuesIn(Documents),
    [](const auto &tested) { return tested.param.name; });

class ManualTest : public testing::TestWithParam<Document> { };

INSTANTIATE_TEST_SUITE_P(Delivered, ManualTest, testing::Values(Documents[0], Documents[2]),
    [](const auto &tested) { return tested.param.name; });

// "Ctrl+2 a Ctrl+5" tells of four.
QStringList keysOfCell(QString cell, const QString &to)
{
    cell.replace(u"Mayús"_s, u"Shift"_s);
    const QStringList ends = cell.split(u' ' + to + u' ');
    if (ends.size() == 1)
        return cell.split(u", "_s);
    QStringList keys;
    for (char digit = ends[0].back().toLatin1(); digit <= ends[1].back().toLatin1(); ++digit)
        keys += ends[0].chopped(1) + QLatin1Char(digit);
    return keys;
}

} // namespace

TEST_P(DocumentTest, IsReadBackAsItWasAfterDelivery)
{
    EXPECT_TRUE(sources::survivesDelivery(sources::delivered(GetParam().file)));
}

TEST_P(DocumentTest, FitsAWindowOfEightyColumns)
{
    for (const QString &line : linesOf(GetParam())) {
        EXPECT_LE(line.size(), 76) << line.toStdString();
        EXPECT_FALSE(line.endsWith(u' ') || line.contains(u'\t')) << line.toStdString();
    }
}

// Longer texts are cut in the program's own viewer.
TEST_P(DocumentTest, FitsTheViewerWhole)
{
    EXPECT_LE(sources::delivered(GetParam().file).size(), core::LargoDeDocumento);
}

// Who opens it finds the Spanish text first.
TEST_P(DocumentTest, SaysAtItsBeginningWhereTheEnglishTextIs)
{
    const QStringList lines = sources::lines(GetParam().file);
    EXPECT_TRUE(lines.first(3).join(u' ').contains(u"behind the line IN ENGLISH"_s));
}

TEST_P(DocumentTest, QuotesTheScreensAsTheySpeak)
{
    static const QRegularExpression quoted(u"\"([^\"]*)\""_s);
    const QStringList words = screenWords(GetParam());
    int quotes = 0;
    for (const auto &match : quoted.globalMatch(wordsOf(GetParam()))) {
        const QString quote = match.captured(1);
        const bool said = std::any_of(
            words.begin(), words.end(), [&](const QString &text) { return text.startsWith(quote); });
        EXPECT_TRUE(said || OtherQuotes.contains(quote)) << quote.toStdString();
        quotes += said ? 1 : 0;
    }
    EXPECT_GT(quotes, 3);
}

TEST_P(DocumentTest, NamesSettingsThatTheFileHas)
{
    const QString settings = core::AjustesPorDefecto(u"ZB-ESP.LNG"_s);
    static const QRegularExpression setting(u"[A-Z][A-Za-z&]+ = \\d"_s);
    int named = 0;
    for (const auto &match : setting.globalMatch(wordsOf(GetParam()))) {
        EXPECT_TRUE(settings.contains(match.captured().chopped(1))) << match.captured().toStdString();
        ++named;
    }
    EXPECT_GT(named, 0);
    EXPECT_TRUE(wordsOf(GetParam()).contains(core::MarcaVacio));
}

// What a translation says of the files is what the Spanish text says.
TEST(Documents, SpeakOfTheSameThingsInBothLanguages)
{
    static const QRegularExpression thing(
        u"Zembro\\.\\w+|Cvtgif15\\.exe|DebugMode|SaveLastEmu&Sis|\\b(?:EXE|XDI|ROM|IMG|PAR1|PAR2|WEB1|WEB2)="_s);
    for (const auto &[spanish, english] : { std::pair(0, 2), std::pair(1, 3) }) {
        QStringList things[2];
        for (const int which : { 0, 1 }) {
            for (const auto &match : thing.globalMatch(wordsOf(Documents[which == 0 ? spanish : english])))
                things[which] += match.captured();
            things[which].sort();
            things[which].removeDuplicates();
        }
        EXPECT_EQ(things[0], things[1]);
        EXPECT_FALSE(things[0].isEmpty());
    }
    static const QRegularExpression empty(u"^$"_s);
    // The Spanish text has a line on the English one besides.
    EXPECT_EQ(linesOf(Documents[1]).filter(empty).size(), linesOf(Documents[3]).filter(empty).size() + 1);
}

TEST_P(ManualTest, TellsEveryKeyOfTheMainScreenAndNoOther)
{
    const bool spanish = !GetParam().english;
    QStringList told;
    for (const QString &line : linesOf(GetParam())) {
        static const QRegularExpression row(u"^ {4}((?:F\\d|Ctrl).*?)(?: {2,}|$)"_s);
        if (const auto match = row.match(line); match.hasMatch())
            told += keysOfCell(match.captured(1), spanish ? u"a"_s : u"to"_s);
    }
    const auto M = std::make_unique<core::Modulo>();
    const mainscreen::Portada portada(*M);
    QStringList taken;
    for (const auto *shortcut : portada.findChildren<QShortcut *>())
        taken += shortcut->key().toString();
    for (const auto *button : portada.findChildren<QAbstractButton *>())
        taken += button->shortcut().toString();
    // The list takes these itself, as the lists of choice have another use for them.
    if (portada.Lista1->FindNext)
        taken += { u"F4"_s, u"Shift+F4"_s };
    taken.removeAll(QString());
    told.sort();
    taken.sort();
    EXPECT_EQ(told, taken);
}

TEST_P(ManualTest, TellsTheLimitsAsTheyAre)
{
    QStringList limits;
    for (const QString &line : linesOf(GetParam())) {
        static const QRegularExpression row(u"^ {4}(\\d+) {3,}"_s);
        if (const auto match = row.match(line); match.hasMatch())
            limits += match.captured(1);
    }
    const QList<int> expected { core::MaxSistemas - 1, core::MaxROMs, core::MaxROMs - 1, core::MaxCapturas,
        core::MaxIdiomas, core::FiltrosMirados - 1, 3, core::LargoDeDocumento };
    QStringList numbers;
    for (const int limit : expected)
        numbers += QString::number(limit);
    EXPECT_EQ(limits, numbers);
}

TEST_P(ManualTest, NamesEveryFileThatTheStartAsksFor)
{
    const QStringList lines = linesOf(GetParam());
    for (const QString &file : { u"Zembro.sye"_s, u"Zembro.emu"_s, u"Zembro.rom"_s, u"Zembro.cfg"_s,
             u"Zembro.txt"_s, u"Zembro.faq"_s, u"Cvtgif15.exe"_s, u"LNG"_s })
        EXPECT_THAT(lines, Contains(testing::Truly([&](const QString &line) {
            return line.startsWith(u"    "_s + file + u' ');
        }))) << file.toStdString();
}
