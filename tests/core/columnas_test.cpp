// Which texts need letters of one width.
#include "core/columnas.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Columnas, DrawingsAndTablesNeedThem)
{
    const QString con[] = {
        u"┌──┐"_s,
        u"a ░ b"_s,
        u"ÄÄÄÄ"_s, // lines of a console in the code page of a desktop
        u"Key     What it does\nF1      Help\nF2      Settings"_s,
        u"one\ttwo\nlonger\tword\nx\ty"_s,
        u"|a|b|\r\n|c|d|\r\n|e|f|"_s,
        u"  /\\_/\\\n ( o.o )\n  > ^ <"_s,
        // A character beyond U+FFFF is one of a column, ahead of a gap, of a tab and of a stroke.
        u"😀😀  uno\nab  dos\n𝔊b  tres"_s,
        u"𐐨𐐨𐐨𐐨\tuno\nabcd\tdos\n𐐨\ttres"_s,
        u"😀|uno\na|dos\nb|tres"_s,
        u"Keys:\n+-----+-------+\n| F1  | Help  |\n| F10 | Exit  |\n+-----+-------+\nThat is all."_s,
        u"+-----+-------+\n| F10 | Leave |\n+-----+-------+"_s,
        u" +----+\r\n | F1 |\r\n +----+"_s,
        u"Key  | What\n=====+======\nF1   | Help"_s,
        u"prose\n\n--F1--  help\n--F22-  more\n--F3--  less\nprose"_s,
    };
    for (const QString &texto : con)
        EXPECT_TRUE(core::TieneColumnas(texto)) << qPrintable(texto);
}

TEST(Columnas, ProseAndSettingsDoNot)
{
    const QString sin[] = {
        QString(), u"Read me.\nIt is short, and goes on\nfor three lines."_s,
        u"    one\n    two\n    three"_s, // an indent is no column
        u"Heading\n-------\n\nText"_s, u"[video]\nscale=2\nname=x"_s,
        u"Sentence one.  Two.\nAnother one, longer.  Three.\nYet.  More of it."_s,
        u"Key     What it does\nF1      Help\n\nF2      Settings"_s, // two lines are no table
        u"C++ and more\n+----+\nC++ and less"_s, // a line between texts is no table
        u"+ one\n+ two\n+ three"_s, u"a + b\n+\n+"_s, u"größer Äpfel ÄÄÄ 20°"_s, u"\ta\n\tb\n\tc"_s,
        u"😀😀  uno\nabcd  dos\nabcd  tres"_s, // not below one another
        u"𐐨𐐨 - -\n𐐨𐐨 - -\n𐐨𐐨 - -"_s, // as many letters as signs
        u"😀 a b\n😀 a b\n😀 a b"_s, // one sign, two letters
    };
    for (const QString &texto : sin)
        EXPECT_FALSE(core::TieneColumnas(texto)) << qPrintable(texto);
}
