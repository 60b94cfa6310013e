// Letters typed in the list: the entry that they find, and the keys that go on from it.

#include "mundotest.h"

#include <QApplication>
#include <QTest>

#include <vector>

using namespace Qt::StringLiterals;

using BusquedaTest = MundoTest;

TEST_F(BusquedaTest, LettersTypedInTheListJumpToTheEntry)
{
    startAt(Zeta, 0);
    list().setFocus();
    type(*portada, u"tw"_s);
    EXPECT_EQ(list().Text(), u"two.nes"_s);
    EXPECT_EQ(info(), u"two.nes 2Kb  [NOR]"_s);
}

TEST_F(BusquedaTest, LettersWithWhichNoEntryBeginsFindOneThatHoldsThemAndF4GoesOn)
{
    startAt(Zeta, 0);
    list().Clear();
    for (const QString &text : { u"Alpha"_s, u"The Légend"_s, u"Two"_s, u"LEGENDS II"_s, u"The End"_s })
        list().AddItem(text);
    list().setFocus();
    strike(*portada, Qt::Key_F4); // nothing was typed yet
    EXPECT_EQ(list().Text(), QString());
    type(*portada, u"gend"_s);
    EXPECT_EQ(list().Text(), u"The Légend"_s);
    for (const QString &next : { u"LEGENDS II"_s, u"The Légend"_s }) {
        strike(*portada, Qt::Key_F4);
        EXPECT_EQ(list().Text(), next);
    }
    strike(*portada, Qt::Key_F4, Qt::ShiftModifier);
    EXPECT_EQ(list().Text(), u"LEGENDS II"_s);
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    type(*portada, u"tw"_s);
    EXPECT_EQ(list().Text(), u"Two"_s);
}

// The toolkit's own search counts a letter typed again for a step to the next entry.
TEST_F(BusquedaTest, LettersWithWhichEntriesBeginDoWhatTheyAlwaysDid)
{
    startAt(Zeta, 0);
    list().Clear();
    for (const QString &text : { u"The One"_s, u"Atta"_s, u"Two"_s, u"The End"_s })
        list().AddItem(text);
    const auto after = [&](const QString &letters) {
        QTest::qWait(QApplication::keyboardInputInterval() + 50);
        list().setFocus();
        list().SetListIndex(0);
        type(*portada, letters);
        return list().Text();
    };
    const std::vector<QString> typed { u"t"_s, u"tt"_s, u"ttt"_s, u"two"_s, u"the e"_s, u"a"_s };
    std::vector<QString> found;
    for (const QString &letters : typed)
        found.push_back(after(letters));
    list().Find = {};
    for (size_t i = 0; i < typed.size(); ++i)
        EXPECT_EQ(after(typed[i]), found[i]) << typed[i].toStdString();
}

TEST_F(BusquedaTest, EveryStepOfASearchTellsOfItsEntryOnce)
{
    startAt(Zeta, 0);
    list().setFocus();
    list().SetListIndex(0);
    ASSERT_NE(list().Text(), u"two.nes"_s);
    int told = 0;
    list().Selection = [&] { ++told; };
    type(*portada, u".nes"_s);
    EXPECT_EQ(list().Text(), u"two.nes"_s);
    EXPECT_EQ(told, 1);
    strike(*portada, Qt::Key_F4); // it is the only one
    EXPECT_EQ(told, 1);
}
