// What a text box says beside its text: a hint that can be taken over, a fault of what stands there.
#include "drive.h"

#include "forms/colours.h"
#include "forms/form.h"
#include "forms/plaintext.h"
#include "forms/textbox.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QTest>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

class TellingTextBoxes : public testing::Test {
protected:
    TellingTextBoxes()
    {
        box.setGeometry(10, 10, 145, 19);
        drive::show(form);
        box.setFocus();
    }

    void takeOver() { QTest::keyClick(&box, Qt::Key_Space, Qt::ControlModifier); }
    QString described()
    {
        return QAccessible::queryAccessibleInterface(&box)->text(QAccessible::Description);
    }
    // Smoothed letters are a little lighter than their colour.
    static void expectNear(const QColor &seen, const QColor &colour)
    {
        const int apart = std::max({ std::abs(seen.red() - colour.red()),
            std::abs(seen.green() - colour.green()), std::abs(seen.blue() - colour.blue()) });
        EXPECT_LE(apart, 8) << seen.name().toStdString() << " for " << colour.name().toStdString();
    }
    QColor letters() const { return box.palette().color(QPalette::Text); }
    // The darkest point of what the box shows inside its frame, without the cursor.
    QColor strongestInk()
    {
        box.clearFocus();
        const QImage picture = box.grab().toImage();
        QColor strongest = Qt::white;
        for (int y = 4; y < picture.height() - 4; ++y) {
            for (int x = 4; x < picture.width() - 4; ++x) {
                if (const QColor colour = picture.pixelColor(x, y);
                    colour.lightness() < strongest.lightness())
                    strongest = colour;
            }
        }
        return strongest;
    }

    forms::Form form { u"Form"_s, 6000, 3000, forms::Form::Border::FixedSingle };
    forms::TextBox box { &form };
};

} // namespace

TEST_F(TellingTextBoxes, AHintIsNoTextUntilItIsTakenOver)
{
    int changes = 0;
    box.Change = [&] { ++changes; };
    box.SetHint(u"/usr/games/one"_s, u"Ctrl+Space: /usr/games/one"_s);
    EXPECT_EQ(box.Text(), QString());
    EXPECT_EQ(changes, 0);
    takeOver();
    EXPECT_EQ(box.Text(), u"/usr/games/one");
    EXPECT_EQ(changes, 1);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), QString());
}

TEST_F(TellingTextBoxes, AHintIsTakenOverByItsKeyAloneAndIntoAnEmptyBoxAlone)
{
    box.SetHint(u"-x"_s, u"words"_s);
    QTest::keyClick(&box, Qt::Key_Space, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(box.Text(), QString());
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_EQ(box.Text(), u" ");
    takeOver();
    EXPECT_EQ(box.Text(), u" ");
    box.SetText({});
    box.SetHint({}, u"words"_s);
    takeOver();
    EXPECT_EQ(box.Text(), QString());
}

// Of a path the beginning and the end tell which it is.
TEST_F(TellingTextBoxes, AHintTooWideIsShortenedInItsMiddleAndTakenOverWhole)
{
    const QString wide = u"/begin/"_s + QString(60, u'm') + u"/end/"_s;
    box.SetHint(wide, u"words"_s);
    const QString shown = box.placeholderText();
    EXPECT_TRUE(shown.startsWith(u"/begin") && shown.contains(u'…') && shown.endsWith(u"/end/"))
        << shown.toStdString();
    EXPECT_LE(box.fontMetrics().horizontalAdvance(shown), box.width());
    takeOver();
    EXPECT_EQ(box.Text(), wide);
    EXPECT_EQ(box.placeholderText(), QString());
}

TEST_F(TellingTextBoxes, AHintSaysItsWordsWhileTheBoxIsEmpty)
{
    box.SetHint(u"<b>"_s, u"Ctrl+Space: <b>"_s);
    EXPECT_EQ(described(), u"Ctrl+Space: <b>");
    EXPECT_EQ(box.toolTip(), forms::asTip(u"Ctrl+Space: <b>"_s));
    takeOver();
    EXPECT_EQ(described(), QString());
    EXPECT_EQ(box.toolTip(), QString());
    box.SetText({});
    EXPECT_EQ(described(), u"Ctrl+Space: <b>");
    box.SetHint({}, u"Ctrl+Space: "_s);
    EXPECT_EQ(described(), QString());
}

TEST_F(TellingTextBoxes, AHintIsGreyAndATextIsBlack)
{
    box.SetHint(u"IIIIIII"_s, u"words"_s);
    const QColor grey = strongestInk();
    box.SetText(u"IIIIIII"_s);
    const QColor black = strongestInk();
    expectNear(grey, forms::controlColours().color(QPalette::PlaceholderText));
    expectNear(black, forms::inkColour());
}

TEST_F(TellingTextBoxes, AFaultReddensTheLettersAndSaysWhy)
{
    box.SetTip();
    box.SetText(u"IIIIIII"_s);
    box.SetFault(u"Not there."_s);
    expectNear(strongestInk(), forms::faultColour());
    EXPECT_EQ(described(), u"Not there.");
    const QString wide(60, u'm');
    box.SetText(wide);
    EXPECT_EQ(described(), u"Not there.\n"_s + wide);
    box.SetFault({});
    EXPECT_EQ(letters(), forms::inkColour());
    EXPECT_EQ(described(), wide);
}

// The hint of an empty box isn't what the fault is of.
TEST_F(TellingTextBoxes, AFaultTakenBackByTheChangeLeavesTheHint)
{
    box.SetHint(u"/games"_s, u"Ctrl+Space: /games"_s);
    box.Change = [this] { box.SetFault(box.Text() == u"/no" ? u"Not there."_s : QString()); };
    box.SetText(u"/no"_s);
    EXPECT_EQ(letters(), forms::faultColour());
    box.SetText({});
    EXPECT_EQ(letters(), forms::inkColour());
    EXPECT_EQ(described(), u"Ctrl+Space: /games");
}

TEST_F(TellingTextBoxes, AChangeComesOnceForATextOfManyLines)
{
    QStringList seen;
    box.Change = [&] { seen += box.Text(); };
    box.SetText(u"one\ntwo"_s);
    EXPECT_EQ(seen, QStringList { u"one"_s });
}

TEST_F(TellingTextBoxes, WhatAScreenSaysOfABoxStays)
{
    box.setAccessibleDescription(u"of the screen"_s);
    box.SetText(u"text"_s);
    EXPECT_EQ(box.accessibleDescription(), u"of the screen");
}
