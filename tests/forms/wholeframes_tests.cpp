#include "drive.h"

#include "forms/form.h"
#include "forms/label.h"
#include "forms/listbox.h"
#include "forms/wholeframes.h"

#include <QImage>
#include <QPaintEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// Which part of the window was painted last.
class Painted final : public QObject {
public:
    explicit Painted(QWidget &window) { window.installEventFilter(this); }

    QRect last;
    QRegion region;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            last = static_cast<QPaintEvent *>(event)->rect();
            region = static_cast<QPaintEvent *>(event)->region();
        }
        return false;
    }
};

class FramesOfAForm : public testing::Test {
protected:
    FramesOfAForm()
        : form(u"form"_s, 3000, 3000, forms::Form::Border::None)
        , label(&form)
    {
        label.SetPlace({ 300, 300, 900, 300 });
        form.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&form));
        QTest::qWait(50);
    }

    QRect paintedAfterTheLabelChanges()
    {
        const Painted painted(form);
        label.SetCaption(u"other"_s);
        QTest::qWait(50);
        return painted.last;
    }

    forms::Form form;
    forms::Label label;
};

// A list with a bar, on a form that is shown while frames of this factor are seen to.
class ListOnAForm {
public:
    explicit ListOnAForm(double factor)
        : frames(factor)
        , form(u"form"_s, 3000, 3000, forms::Form::Border::None)
        , list(&form, false)
    {
        list.setGeometry(20, 20, 100, 80);
        for (int i = 0; i < 30; ++i)
            list.AddItem(u"game"_s);
        form.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&form));
        QTest::qWait(50);
    }

    QRegion paintedOf(QWidget &widget)
    {
        const Painted painted(widget);
        form.repaint();
        return painted.region;
    }

    forms::WholeFrames frames;
    forms::Form form;
    forms::ListBox list;
};

} // namespace

TEST(WholeFrames, LeaveNothingOutOfWhatLiesBelowAControlAtAFraction)
{
    for (const double factor : { 0.625, 1.25, 1.5 }) {
        ListOnAForm on(factor);
        EXPECT_EQ(on.paintedOf(on.form), QRegion(on.form.rect())) << factor;
        EXPECT_EQ(on.paintedOf(on.list), QRegion(on.list.rect())) << factor;
        QWidget &bar = *on.list.verticalScrollBar();
        EXPECT_EQ(on.paintedOf(*bar.parentWidget()), QRegion(bar.parentWidget()->rect())) << factor;
    }
}

TEST(WholeFrames, LeaveTheToolkitItsWayAtAWholeFactor)
{
    for (const double factor : { 0.0, 1.0, 2.0 }) {
        ListOnAForm on(factor);
        EXPECT_FALSE(on.paintedOf(on.form).contains(on.list.geometry().center())) << factor;
        EXPECT_TRUE(on.list.viewport()->autoFillBackground()) << factor;
    }
}

TEST(WholeFrames, GiveAControlItsGround)
{
    ListOnAForm on(1.5);
    QPalette colours = on.list.palette();
    colours.setColor(QPalette::Base, Qt::yellow);
    on.list.setPalette(colours);
    on.list.Clear();
    EXPECT_EQ(drive::colourAt(on.list, on.list.rect().center()), QColor(Qt::yellow));
    EXPECT_EQ(drive::colourAt(on.list, { 2, 2 }), QColor(Qt::yellow));
}

TEST(WholeFrames, LeaveTheCornerBetweenTwoBarsItsColour)
{
    const forms::WholeFrames frames(1.5);
    forms::Form form(u"form"_s, 3000, 3000, forms::Form::Border::None);
    QPlainTextEdit text(&form);
    text.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    text.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    text.setGeometry(20, 20, 120, 100);
    QPalette colours = text.palette();
    colours.setColor(QPalette::Base, Qt::yellow);
    colours.setColor(QPalette::Shadow, Qt::blue);
    text.setPalette(colours);
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
    EXPECT_EQ(drive::colourAt(text, text.rect().center()), QColor(Qt::yellow));
    const QPoint last = text.rect().bottomRight() - QPoint(text.frameWidth(), text.frameWidth());
    EXPECT_EQ(drive::colourAt(text, last), QColor(Qt::blue));
    EXPECT_EQ(drive::colourAt(text, last - QPoint(8, 8)), QColor(Qt::blue));
}

TEST(WholeFrames, GiveATipASizeThatIsNotCut)
{
    EXPECT_EQ(forms::uncut({ 101, 100 }, 1.25), QSize(102, 100));
    EXPECT_EQ(forms::uncut({ 102, 103 }, 1.25), QSize(102, 103));
    EXPECT_EQ(forms::uncut({ 97, 1 }, 1.5), QSize(97, 1));
    EXPECT_EQ(forms::uncut({ 101, 103 }, 1.75), QSize(101, 103 + 1));
    EXPECT_EQ(forms::uncut({ 0, 7 }, 1.1), QSize(0, 7));
    EXPECT_EQ(forms::uncut({ 1, 12 }, 1.1), QSize(5, 15));
    EXPECT_EQ(forms::uncut({ 10, 30 }, 1.1), QSize(10, 30));

    const forms::WholeFrames frames(1.25);
    QWidget tip(nullptr, Qt::ToolTip);
    tip.resize(101, 21);
    tip.show();
    EXPECT_EQ(tip.size(), QSize(102, 22));
    QWidget menu(nullptr, Qt::Popup);
    menu.resize(101, 21);
    menu.show();
    EXPECT_EQ(menu.size(), QSize(101, 21));
}

TEST(WholeFrames, ShowTheLastPixelsBeyondAWindowsEnd)
{
    QImage picture(4, 3, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    for (int x = 0; x < 3; ++x) {
        picture.setPixelColor(x, 0, Qt::red);
        picture.setPixelColor(x, 1, x == 2 ? Qt::green : Qt::blue);
    }
    forms::lengthenEdges(picture, { 3, 2 });
    EXPECT_EQ(picture.pixelColor(3, 0), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(3, 1), QColor(Qt::green));
    EXPECT_EQ(picture.pixelColor(0, 2), QColor(Qt::blue));
    EXPECT_EQ(picture.pixelColor(3, 2), QColor(Qt::green));

    const QImage whole = picture;
    forms::lengthenEdges(picture, { 4, 3 });
    forms::lengthenEdges(picture, { 5, 4 });
    EXPECT_EQ(picture, whole);
}

TEST(WholeFrames, AreNeededAtAFractionOfAnEnlargement)
{
    for (const double factor : { 0.5, 0.625, 0.75, 1.25, 1.5 }) {
        EXPECT_TRUE(forms::needsWholeFrames(2 * factor, factor)) << factor;
        EXPECT_TRUE(forms::needsWholeFrames(3 * factor, factor)) << factor;
        EXPECT_FALSE(forms::needsWholeFrames(factor, factor)) << factor;
    }
    EXPECT_FALSE(forms::needsWholeFrames(2, 1));
    EXPECT_FALSE(forms::needsWholeFrames(4, 2));
    EXPECT_FALSE(forms::needsWholeFrames(2, 0)) << "none is set";
}

TEST_F(FramesOfAForm, AreThePartsThatChange)
{
    EXPECT_EQ(paintedAfterTheLabelChanges(), label.geometry());
    const forms::WholeFrames unneeded(1);
    EXPECT_TRUE(paintedAfterTheLabelChanges().isEmpty()) << "nothing changed";
}

TEST_F(FramesOfAForm, AreWholeWhereTheyAreNeeded)
{
    const forms::WholeFrames frames(0.5); // the test's windows have a ratio of 1
    EXPECT_EQ(paintedAfterTheLabelChanges(), form.rect());
}
