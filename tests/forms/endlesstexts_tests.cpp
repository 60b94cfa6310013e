// Texts of a million letters, really painted.
#include "drive.h"

#include "forms/combobox.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/listbox.h"
#include "forms/popupmenu.h"
#include "forms/shape.h"
#include "forms/shownpart.h"
#include "forms/textbox.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QPixmap>
#include <QTest>

#include <ctime>
#include <functional>
#include <ostream>

using namespace Qt::StringLiterals;

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr qint64 Bound = 2500; // milliseconds
#else
constexpr qint64 Bound = 250;
#endif

struct Letters {
    const char *name;
    QString piece;
};

void PrintTo(const Letters &letters, std::ostream *out)
{
    *out << letters.name;
}

class EndlessTexts : public testing::TestWithParam<Letters> {
protected:
    // Of the processor, in milliseconds, so that others on the machine don't count.
    static qint64 workOf(const std::function<void()> &step)
    {
        const std::clock_t before = std::clock();
        step();
        return qint64(std::clock() - before) * 1000 / CLOCKS_PER_SEC;
    }

    static qint64 workToPaint(QWidget &window)
    {
        return workOf([&] {
            drive::show(window);
            window.grab();
        });
    }

    const QString text = GetParam().piece.repeated(1'000'000 / GetParam().piece.size());
    forms::Form form { u"Form"_s, 3000, 3000, forms::Form::Border::None };
};

} // namespace

TEST_P(EndlessTexts, AreSoonPaintedInAList)
{
    forms::ListBox list(&form);
    list.setGeometry(0, 0, 150, 100);
    list.AddItem(u"Short"_s);
    list.AddItem(text);
    list.SetText(text);
    EXPECT_LT(workToPaint(form), Bound);
    EXPECT_EQ(list.Text(), text);
}

TEST_P(EndlessTexts, AreSoonPaintedInADropDownListAndInItsOpenOne)
{
    forms::ComboBox combo(&form);
    combo.setGeometry(0, 0, 150, 22);
    combo.AddItem(u"Short"_s);
    combo.AddItem(text);
    combo.SetText(text);
    EXPECT_LT(workToPaint(form), Bound);
    EXPECT_LT(workOf([&] {
        combo.showPopup();
        combo.view()->grab();
        combo.hidePopup();
    }),
        Bound);
    EXPECT_EQ(combo.Text(), text);
}

TEST_P(EndlessTexts, AreSoonPaintedInALabelOfOneLineAndOfMany)
{
    forms::Label line(&form);
    line.SetPlace({ 120, 120, 2000, 210 });
    line.SetCaption(text);
    forms::Label lines(&form);
    lines.SetPlace({ 120, 500, 2000, 1200 });
    lines.SetCaption(text);
    EXPECT_LT(workToPaint(form), Bound);
    EXPECT_EQ(lines.text(), text);
}

TEST_P(EndlessTexts, AreSoonPaintedAsTheHeadingOfAFrame)
{
    forms::Shape frame(Qt::black, &form);
    frame.setGeometry(5, 10, 150, 60);
    forms::Label heading(&form);
    heading.SetPlace({ 120, 120, 1500, 210 });
    heading.SetCaption(text);
    frame.SetHeading(&heading);
    EXPECT_LT(workToPaint(form), Bound);
}

TEST_P(EndlessTexts, AreSoonPaintedInABoxToTypeInto_AlsoAtEachKey)
{
    forms::TextBox box(&form);
    box.setGeometry(0, 0, 150, 22);
    EXPECT_LT(workOf([&] { box.SetText(text); }) + workToPaint(form), Bound);
    EXPECT_TRUE(box.Text() == text);
    EXPECT_LT(workOf([&] {
        QTest::keyClick(&box, 'y');
        form.grab();
    }),
        Bound);
    EXPECT_TRUE(box.Text() == u'y' + text);
}

TEST_P(EndlessTexts, AreSoonMeasuredInAMenu)
{
    forms::PopupMenu menu(u"Menu"_s, &form);
    forms::MenuEntry *entry = menu.AddEntry(u"Entry"_s, text);
    EXPECT_LT(workOf([&] { menu.sizeHint(); }), Bound);
    EXPECT_EQ(entry->Caption(), text);
    entry->SetCaption(u"Short"_s);
    EXPECT_EQ(menu.actions().constFirst()->text(), u"Short"_s);
}

INSTANTIATE_TEST_SUITE_P(Kinds, EndlessTexts,
    testing::Values(Letters { "Latin", u"x"_s }, Letters { "HebrewAndBlanks", u"אב "_s },
        Letters { "Chinese", u"字"_s }, Letters { "Null", QString(QChar::Null) }));

TEST(ShownPart, IsTheBeginningAndNeverEndsInHalfACharacter)
{
    EXPECT_EQ(forms::shownPart(u"Short"_s), u"Short"_s);
    EXPECT_EQ(forms::shownPart(QString(2000, u'x')).size(), 2000);
    EXPECT_EQ(forms::shownPart(QString(2001, u'x')).size(), 2000);
    EXPECT_EQ(forms::shownPart(u'x' + u"😀"_s.repeated(2000)), u'x' + u"😀"_s.repeated(999));
    EXPECT_EQ(forms::shownPart(u"😀"_s.repeated(2000)), u"😀"_s.repeated(1000));
}
