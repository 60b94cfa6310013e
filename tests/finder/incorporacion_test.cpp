// Emulators added to catalogues as users and other programs leave them: nothing that was there changes.

#include "finder/incorporacion.h"

#include "core/catalogo.h"

#include "maquina.h"

#include <gmock/gmock.h>

#include <memory>
#include <random>

using namespace Qt::StringLiterals;
using finder::Motivo;

namespace {

const QString Closing = u"'----------------------------------------------------------------------\r\n"_s;

finder::Hallazgo found(const QString &system, const QString &name)
{
    finder::Hallazgo result;
    result.sistema = system;
    result.emulador = { name, u"WEB2="_s, u"/bin/"_s + name, u"0"_s, u"/roms/"_s, {}, {}, {} };
    return result;
}

const std::unique_ptr<core::Modulo> &base()
{
    static const std::unique_ptr<core::Modulo> M = [] {
        auto tables = std::make_unique<core::Modulo>();
        finder::LeeTablas(*tables, u"-NES\nWEB1=n\n*.NES\n+x\n-Oric\nWEB1=o\n*.TAP\n+y\n[EOF]\n"_s);
        return tables;
    }();
    return M;
}

std::unique_ptr<core::Modulo> tables(const QString &text)
{
    auto M = std::make_unique<core::Modulo>();
    finder::LeeTablas(*M, text);
    return M;
}

// What the text gains, and where; fails unless all else is there still.
QString gain(const QString &before, const QString &after)
{
    qsizetype start = 0;
    while (start < before.size() && start < after.size() && before[start] == after[start])
        ++start;
    const qsizetype longer = after.size() - before.size();
    EXPECT_GE(longer, 0);
    EXPECT_EQ(after.left(start) + after.sliced(start + longer), before);
    return after.sliced(start, longer);
}

QStringList extensions(const core::Modulo &M, int s)
{
    QStringList lines;
    for (int k = 0; k < core::MaxSistemas; ++k) {
        if (!M.Cat_EXT(s, k).isEmpty())
            lines += M.Cat_EXT(s, k);
    }
    return lines;
}

// All that the tables of the earlier catalogue hold stands in those of the later one, in the same place.
void expectKept(const core::Modulo &before, const core::Modulo &after)
{
    using core::Modulo;
    for (int s = 0; s <= before.Indice_Sistema; ++s) {
        EXPECT_EQ(before.Cat_WEB1(s), after.Cat_WEB1(s));
        EXPECT_EQ(extensions(before, s), extensions(after, s));
        for (int e = 0; e <= core::TotalEmuladores(before, s); ++e) {
            for (const auto table :
                { &Modulo::Cat_Nombre, &Modulo::Cat_EXE, &Modulo::Cat_XDI, &Modulo::Cat_ROM, &Modulo::Cat_IMG,
                    &Modulo::Cat_PAR1, &Modulo::Cat_PAR2, &Modulo::Cat_WEB2 })
                EXPECT_EQ((before.*table)(s, e), (after.*table)(s, e));
        }
    }
}

finder::Incorporacion with(const QString &text, const std::vector<finder::Hallazgo> &findings)
{
    finder::Incorporacion result = finder::Incorpora(text, *base(), findings, u"/program"_s);
    expectKept(*tables(text), *tables(result.texto));
    return result;
}

Motivo refusal(const QString &text, const finder::Hallazgo &finding)
{
    const finder::Incorporacion result = with(text, { finding });
    EXPECT_EQ(result.texto, text);
    EXPECT_TRUE(result.puestos.empty());
    EXPECT_EQ(result.descartados.size(), 1U);
    return result.descartados.at(0).motivo;
}

} // namespace

TEST(Addition, IsRefused_WhereNoLineEndsTheCatalogue)
{
    EXPECT_EQ(refusal(u""_s, found(u"NES"_s, u"E"_s)), Motivo::SinFin);
    EXPECT_EQ(refusal(u"-Oric\r\n+a\r\n"_s, found(u"NES"_s, u"E"_s)), Motivo::SinFin);
    EXPECT_EQ(refusal(u"[x\r\n-Oric\r\n+a\r\n"_s, found(u"NES"_s, u"E"_s)), Motivo::SinFin);
}

TEST(Addition, GoesToItsSystem_WhereNoLineEndsTheCatalogue)
{
    const QString before = u"-NES\r\n+a\r\n"_s;
    const finder::Incorporacion result = with(before, { found(u"NES"_s, u"E"_s) });
    ASSERT_EQ(result.puestos.size(), 1U);
    EXPECT_TRUE(gain(before, result.texto).startsWith(u"'\r\n+E\r\n"));
}

// A bracket within a system would let the rest of that pass to the new one.
TEST(Addition, StandsOnceAheadOfTheBracketBehindAllSystems)
{
    const QString first = u"-Oric\r\n+a\r\n[not yet\r\n+b\r\n"_s + Closing;
    const QString last = u"[EOF]\r\n[again]\r\nmy own words\r\n"_s;
    const finder::Incorporacion result = with(first + last, { found(u"NES"_s, u"E"_s) });
    ASSERT_EQ(result.puestos.size(), 1U);
    EXPECT_TRUE(result.texto.startsWith(first + u"-NES\r\nWEB1=n\r\n*.NES\r\n'\r\n+E\r\n"_s));
    EXPECT_TRUE(result.texto.endsWith(Closing + last));
    EXPECT_EQ(result.texto.count(u"-NES\r\n"), 1);
}

TEST(Addition, StandsOnce_InASystemThatIsThereTwice)
{
    const QString twice = u"-NES\r\n+a\r\n"_s + Closing + u"-NES\r\n+b\r\n"_s + Closing + u"[EOF]\r\n"_s;
    const finder::Incorporacion result = with(twice, { found(u"NES"_s, u"E"_s) });
    ASSERT_EQ(result.puestos.size(), 1U);
    EXPECT_EQ(result.texto.count(u"+E\r\n"), 1);
    EXPECT_EQ(tables(result.texto)->Cat_Nombre(0, 2), u"+E");
}

TEST(Addition, IsRefused_WhereTheListsAreFull)
{
    QString systems;
    for (int s = 0; s < 150; ++s)
        systems += u"-S%1\r\n+E%1\r\n"_s.arg(s) + Closing;
    EXPECT_EQ(refusal(systems + u"[EOF]\r\n"_s, found(u"NES"_s, u"E"_s)), Motivo::Lleno);
    QString emulators = u"-NES\r\n"_s;
    for (int e = 0; e < 150; ++e)
        emulators += u"+E%1\r\n"_s.arg(e);
    EXPECT_EQ(refusal(emulators + Closing + u"[EOF]\r\n"_s, found(u"NES"_s, u"E"_s)), Motivo::Lleno);
    const QString room = emulators.chopped(7) + Closing + u"[EOF]\r\n"_s;
    EXPECT_EQ(with(room, { found(u"NES"_s, u"A"_s), found(u"NES"_s, u"B"_s) }).puestos.size(), 1U);
}

TEST(Addition, IsRefused_WhereItsSystemIsThereInOtherCapitals)
{
    EXPECT_EQ(refusal(u"-nes\r\n+a\r\n[EOF]\r\n"_s, found(u"NES"_s, u"E"_s)), Motivo::OtraGrafia);
}

TEST(Addition, IsRefused_WhereAPathWouldEndItsLine)
{
    finder::Hallazgo finding = found(u"NES"_s, u"E"_s);
    finding.emulador.rom = u"/a\n+b/"_s;
    EXPECT_EQ(refusal(u"[EOF]\r\n"_s, finding), Motivo::NoVuelve);
}

TEST(Addition, IsRefused_BehindASystemWhoseExtensionsWouldCountOn)
{
    EXPECT_EQ(refusal(u"-Mine\r\n*.ZIP\r\n[EOF]\r\n"_s, found(u"NES"_s, u"E"_s)), Motivo::TrasSistemaVacio);
    EXPECT_EQ(with(u"-Mine\r\n*.ZIP\r\n+a\r\n[EOF]\r\n"_s, { found(u"NES"_s, u"E"_s) }).puestos.size(), 1U);
}

TEST(Addition, IsRefused_WhereLinesWouldPassToIt)
{
    EXPECT_EQ(refusal(u"-NES\r\n'--\r\nEXE=/x\r\n[EOF]\r\n"_s, found(u"NES"_s, u"E"_s)), Motivo::NoEncaja);
    EXPECT_EQ(refusal(u"-NES\r\n'--\r\n+b\r\n[EOF]\r\n"_s, found(u"NES"_s, u"E"_s)), Motivo::NoEncaja);
}

TEST(Addition, KeepsLineEndsAndUnknownLines)
{
    const QString before = u"my words\n-NES\n*.NES\nnote\n'\n+a\nEXE=x\n\nodd\n'--\n[EOF]"_s;
    const finder::Incorporacion result = with(before, { found(u"NES"_s, u"E"_s), found(u"Oric"_s, u"F"_s) });
    EXPECT_EQ(result.puestos.size(), 2U);
    EXPECT_TRUE(result.texto.startsWith(u"my words\n-NES\n*.NES\nnote\n'\n+a\nEXE=x\n\nodd\n'\r\n+E\r\n"));
    EXPECT_TRUE(result.texto.endsWith(Closing + u"[EOF]"_s));
}

// Lines of every kind in any order: whatever the reader makes of them, it makes of them afterwards too.
TEST(Addition, ChangesNothingThatWasThere_InAnyCatalogue)
{
    const QStringList pieces { u"-NES"_s, u"-Oric"_s, u"-Mine"_s, u"+a"_s, u"+b"_s, u"EXE=/x"_s, u"ROM=/r/"_s,
        u"*.ZIP"_s, u"WEB1=w"_s, u"WEB2=v"_s, u"'"_s, u"'--"_s, u"[EOF]"_s, u""_s, u"word"_s };
    std::minstd_rand random(20);
    int added = 0;
    for (int round = 0; round < 400; ++round) {
        QString text = u"-First\r\n"_s;
        for (auto lines = random() % 14; lines > 0; --lines)
            text += pieces[static_cast<qsizetype>(random()) % pieces.size()] + u"\r\n"_s;
        const finder::Incorporacion result =
            with(text, { found(u"NES"_s, u"E"_s), found(u"Oric"_s, u"F"_s) });
        const auto after = tables(result.texto);
        for (const finder::Hallazgo &finding : result.puestos) {
            int count = 0;
            for (int s = 0; s <= after->Indice_Sistema; ++s) {
                for (int e = 1; e <= core::TotalEmuladores(*after, s); ++e) {
                    if (after->Cat_Nombre(s, e) != u'+' + finding.emulador.nombre)
                        continue;
                    ++count;
                    EXPECT_EQ(after->Cat_Nombre(s, 0), u'-' + finding.sistema) << text.toStdString();
                    EXPECT_EQ(after->Cat_EXE(s, e), u"EXE="_s + finding.emulador.exe) << text.toStdString();
                }
            }
            EXPECT_EQ(count, 1) << text.toStdString();
            ++added;
        }
    }
    EXPECT_GT(added, 200);
}
