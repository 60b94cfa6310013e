#include "drive.h"

#include "forms/form.h"
#include "forms/label.h"
#include "forms/plaintext.h"
#include "forms/shape.h"
#include "forms/wholetext.h"

#include <QAccessible>
#include <QApplication>
#include <QEnterEvent>
#include <QTest>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace {

// Counts what a label is sent while it lives.
class Witness final : public QObject {
public:
    explicit Witness(QObject &watched) { watched.installEventFilter(this); }
    int seen = 0;

protected:
    bool eventFilter(QObject *, QEvent *) override
    {
        ++seen;
        return false;
    }
};

class Labels : public testing::Test {
protected:
    Labels() { label.SetPlace({ 600, 600, 600, 210 }); }

    int natural(const QString &text) const { return label.fontMetrics().horizontalAdvance(text); }

    const QString wide = u"Configurar emuladores"_s;
    forms::Form form { u"Form"_s, 6000, 3000, forms::Form::Border::None };
    forms::Label label { &form };
};

TEST_F(Labels, ACaptionThatFits_StaysInItsPlace)
{
    label.SetCaption(u"WEB"_s);
    EXPECT_EQ(label.Caption(), u"WEB"_s);
    EXPECT_EQ(label.geometry(), QRect(40, 40, 40, 14));
}

TEST_F(Labels, ACaptionTooWide_GetsTheWidthOfItsText)
{
    label.SetCaption(wide);
    EXPECT_EQ(label.geometry(), QRect(40, 40, natural(wide), 14));
    EXPECT_GT(label.width(), 40);
}

TEST_F(Labels, AShorterCaption_TakesTheLabelBackToItsPlace)
{
    label.SetCaption(wide);
    label.SetCaption(u"WEB"_s);
    EXPECT_EQ(label.geometry(), QRect(40, 40, 40, 14));
}

TEST_F(Labels, ALabelMovedFromOutside_GrowsFromThere)
{
    label.SetCaption(wide);
    forms::move(label, { 150, 150, 600, 210 });
    label.SetCaption(wide + u"!"_s);
    EXPECT_EQ(label.geometry(), QRect(10, 10, natural(wide + u"!"_s), 14));
    label.SetCaption(u"WEB"_s);
    EXPECT_EQ(label.geometry(), QRect(10, 10, 40, 14));
}

TEST_F(Labels, ACentredCaption_GrowsToBothSides)
{
    label.setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    label.SetCaption(u"Grabar todo"_s);
    const int missing = natural(u"Grabar todo"_s) - 40;
    ASSERT_GT(missing, 0);
    EXPECT_EQ(label.geometry(), QRect(40 - missing / 2, 40, 40 + missing, 14));
}

TEST_F(Labels, AGrowingCaption_StopsAtAVisibleControlOnly)
{
    QWidget neighbour(&form);
    neighbour.setGeometry(90, 30, 20, 20);
    label.SetCaption(wide);
    EXPECT_EQ(label.geometry(), QRect(40, 40, 50, 14));
    neighbour.hide();
    label.SetCaption(wide + u"!"_s);
    EXPECT_EQ(label.width(), natural(wide + u"!"_s));
}

TEST_F(Labels, AControlThatCameAfterTheCaption_CountsWhenTheFormShows)
{
    label.SetCaption(wide);
    QWidget neighbour(&form);
    neighbour.setGeometry(90, 30, 20, 20);
    drive::show(form);
    EXPECT_EQ(label.geometry(), QRect(40, 40, 50, 14));
}

TEST_F(Labels, InsideAShape_ACaptionGrowsUpToItsLine)
{
    forms::Shape shape(Qt::cyan, &form);
    shape.setGeometry(30, 30, 60, 40);
    label.SetCaption(wide);
    EXPECT_EQ(label.geometry(), QRect(40, 40, 49, 14));
}

TEST_F(Labels, APlaceOfTwoLines_WrapsInsteadOfGrowing)
{
    label.SetPlace({ 600, 600, 1200, 435 });
    label.SetCaption(wide);
    EXPECT_TRUE(label.wordWrap());
    EXPECT_EQ(label.geometry(), QRect(40, 40, 80, 29));
}

TEST_F(Labels, AWrappedCaption_GrowsForAWordTooWideAlone)
{
    label.SetPlace({ 600, 600, 600, 435 });
    label.SetCaption(wide);
    EXPECT_EQ(label.width(), natural(u"emuladores"_s));
}

TEST_F(Labels, ALargerFont_GrowsTheLabel)
{
    label.SetCaption(u"Opciones"_s);
    label.setFont(forms::arial(16.5));
    EXPECT_EQ(label.width(), natural(u"Opciones"_s));
    EXPECT_GT(label.width(), 40);
}

TEST_F(Labels, ANameThatIsReadFromTheRight_TurnsNothingRoundBehindIt)
{
    const QString line = u"\u0627\u0644\u0639.a26 245Kb  [NOR]"_s;
    label.SetCaption(line);
    const QImage shown = label.grab().toImage();
    label.SetCaption(QChar(0x200E) + line); // says that it begins at the left
    EXPECT_EQ(shown, label.grab().toImage());
}

TEST_F(Labels, MarkupInACaption_IsText)
{
    label.SetCaption(u"<b>x</b> & y"_s);
    EXPECT_EQ(label.width(), natural(u"<b>x</b> & y"_s));
}

TEST_F(Labels, TheSameCaptionAndColour_PostNothing)
{
    label.SetCaption(wide);
    label.SetForeColor(Qt::yellow);
    drive::show(form);
    QTest::qWait(0);
    QCoreApplication::sendPostedEvents();
    Witness ofLabel(label);
    Witness ofForm(form);
    label.SetCaption(wide);
    label.SetForeColor(Qt::yellow);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(ofLabel.seen, 0);
    EXPECT_EQ(ofForm.seen, 0);
}

TEST_F(Labels, TheColour_IsTheTexts)
{
    label.SetForeColor(QColor(192, 255, 192));
    EXPECT_EQ(label.ForeColor(), QColor(192, 255, 192));
    EXPECT_TRUE(label.styleSheet().isEmpty());
}

TEST_F(Labels, AShape_LetsTheMouseThroughToTheForm)
{
    forms::Shape shape(Qt::cyan, &form);
    shape.setGeometry(0, 0, 100, 100);
    int clicks = 0;
    label.SetCaption(u"x"_s);
    label.Click = [&] { ++clicks; };
    drive::show(form);
    drive::click(form, Qt::LeftButton, { 45, 45 });
    EXPECT_EQ(clicks, 1);
}

TEST_F(Labels, AHeadingOnAShape_InterruptsItsLineBehindItsWordsAlone)
{
    const QColor teal(0, 128, 128);
    forms::Shape shape(teal, &form);
    shape.setGeometry(10, 30, 150, 60);
    forms::Label heading(&form);
    heading.SetPlace({ 450, 345, 1500, 210 });
    heading.SetCaption(u"iii"_s);
    shape.SetHeading(&heading);
    drive::show(form);
    const int words = heading.fontMetrics().horizontalAdvance(u"iii"_s);
    EXPECT_EQ(drive::colourAt(form, { 26, 30 }), teal);
    EXPECT_NE(drive::colourAt(form, { 27, 30 }), teal);
    EXPECT_NE(drive::colourAt(form, { 30 + words + 2, 30 }), teal);
    EXPECT_EQ(drive::colourAt(form, { 30 + words + 3, 30 }), teal);
    EXPECT_EQ(drive::colourAt(form, { 30, 89 }), teal);
    heading.hide();
    EXPECT_EQ(drive::colourAt(form, { 28, 30 }), teal);
}

TEST_F(Labels, AShape_PaintsItsFrameAlone)
{
    form.SetBackColour(Qt::black);
    forms::Shape shape(QColor(0, 128, 128), &form);
    shape.setGeometry(200, 10, 30, 20);
    drive::show(form);
    EXPECT_EQ(drive::colourAt(form, { 200, 10 }), QColor(0, 128, 128));
    EXPECT_EQ(drive::colourAt(form, { 229, 29 }), QColor(0, 128, 128));
    EXPECT_EQ(drive::colourAt(form, { 201, 11 }), QColor(Qt::black));
    EXPECT_EQ(drive::colourAt(form, { 228, 28 }), QColor(Qt::black));
}

TEST_F(Labels, ALabelThatMustNotGrow_ClipsItsCaption)
{
    label.SetGrowing(false);
    label.SetCaption(wide);
    EXPECT_EQ(label.width(), forms::pixels(600));
    label.SetGrowing(true);
    EXPECT_EQ(label.width(), natural(wide));
}

class ClippedLabels : public Labels {
protected:
    ClippedLabels()
    {
        label.SetGrowing(false);
        const int high = 2 * label.fontMetrics().lineSpacing() + label.fontMetrics().height() / 2;
        label.SetPlace({ 600, 600, 1200, forms::twips(high) });
        form.SetBackColour(Qt::white);
        drive::show(form);
    }
    int lowestInk() // from the label's top
    {
        const QImage picture = form.grab(label.geometry()).toImage();
        for (int y = picture.height() - 1; y >= 0; --y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixelColor(x, y) != QColor(Qt::white))
                    return y;
            }
        }
        return -1;
    }
    QString tip() { return drive::tipAt(label, label.rect().center()); }
};

TEST_F(ClippedLabels, EndBehindTheirLastWholeLine_AndShowAllAsATip)
{
    label.SetCaption(u"gjq\ngjq"_s);
    const int twoLines = lowestInk();
    label.SetCaption(u"gjq\ngjq\ngjq\ngjq"_s);
    EXPECT_EQ(lowestInk(), twoLines);
    EXPECT_EQ(tip(), forms::asTipOfLines(u"gjq\ngjq\ngjq\ngjq"_s));
}

// The rows of the picture that show ink, counted from each line's own top.
QSet<int> inkedRows(const QImage &picture)
{
    QSet<int> rows;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) < 250)
                rows << y;
        }
    }
    return rows;
}

TEST_F(ClippedLabels, ShowTheFeetOfTheirLastLineAtEveryScale)
{
    for (const double points : { 8.25, 9.75 }) {
        label.setFont(forms::arial(points));
        for (const double scale : { 1.0, 1.25, 1.5, 2.0, 3.0 }) {
            const auto picture = [&](const QString &caption, int height) {
                label.SetPlace({ 600, 600, 1200, forms::twips(height) });
                label.SetCaption(caption);
                QImage shown(label.size() * scale, QImage::Format_RGB32);
                shown.setDevicePixelRatio(scale);
                shown.fill(Qt::white);
                label.render(&shown);
                return inkedRows(shown);
            };
            const int room = label.fontMetrics().height() * 5 / 2;
            EXPECT_EQ(picture(u"Ágjq\nÁgjq\nÁgjq"_s, room), picture(u"Ágjq\nÁgjq"_s, 60))
                << points << ' ' << scale;
        }
    }
}

TEST_F(ClippedLabels, EndInAnEllipsisWhereTheTextGoesOn)
{
    const auto picture = [this](const QString &caption) {
        label.SetCaption(caption);
        return label.grab().toImage();
    };
    const QImage marked = picture(u"Erase\nthis one…"_s);
    EXPECT_EQ(picture(u"Erase\nthis one\ngjq"_s), marked);
    EXPECT_EQ(label.Caption(), u"Erase\nthis one\ngjq"_s);
    const QString second = u"one long name of an emulator"_s;
    const QImage shortened =
        picture(u"Erase\n"_s + label.fontMetrics().elidedText(second, Qt::ElideRight, label.width()));
    EXPECT_EQ(picture(u"Erase\n"_s + second), shortened);
}

TEST_F(ClippedLabels, ThatHaveRoomLookAsTheToolkitPaintsThem_WithoutATip)
{
    label.SetCaption(u"gjq\ngjq"_s);
    const QImage picture = label.grab().toImage();
    label.SetGrowing(true);
    EXPECT_EQ(label.grab().toImage(), picture);
    EXPECT_EQ(tip(), QString());
}

TEST_F(Labels, ARoom_EndsItsGrowth)
{
    label.SetRoom({ 600, 600, 900, 210 });
    label.SetCaption(wide);
    EXPECT_EQ(label.geometry(), QRect(40, 40, 60, 14));
}

TEST_F(Labels, ACaptionWithoutRoom_IsPaintedShortAndStaysWholeOtherwise)
{
    label.SetRoom({ 600, 600, 900, 210 });
    label.SetShortening([](const QString &text, const auto &fits) {
        QString part = text;
        while (!part.isEmpty() && !fits(part))
            part.chop(1);
        return part;
    });
    label.SetCaption(u"AAAAAAAAAA iiii"_s);
    EXPECT_EQ(label.Caption(), u"AAAAAAAAAA iiii"_s);
    EXPECT_LT(label.Shown().size(), label.Caption().size());
    EXPECT_LE(natural(label.Shown()), 60);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name), u"AAAAAAAAAA iiii"_s);
    const QImage picture = label.grab().toImage();
    label.SetCaption(label.Shown());
    EXPECT_EQ(label.grab().toImage(), picture.copy(label.rect()));
    EXPECT_EQ(label.Shown(), label.Caption());
}

class ShortenedLabels : public Labels {
protected:
    ShortenedLabels()
    {
        label.SetRoom({ 600, 600, 900, 210 });
        label.SetShortening(
            [](const QString &text, const auto &fits) { return fits(text) ? text : u"..."_s; });
        drive::show(form);
    }
    void enter()
    {
        const QPointF middle = label.rect().center();
        QEnterEvent event(middle, label.mapTo(&form, middle), label.mapToGlobal(middle));
        QApplication::sendEvent(&label, &event);
    }
    void leave()
    {
        QEvent event(QEvent::Leave);
        QApplication::sendEvent(&label, &event);
    }
    const forms::WholeText *whole() const
    {
        for (const QObject *child : form.children()) {
            const auto *text = dynamic_cast<const forms::WholeText *>(child);
            if (text && text->isVisible())
                return text;
        }
        return nullptr;
    }
};

TEST_F(ShortenedLabels, ShowTheirWholeCaptionUnderThePointer)
{
    label.SetCaption(u"AAAAAAAAAA iiii"_s);
    EXPECT_FALSE(whole());
    enter();
    ASSERT_TRUE(whole());
    EXPECT_EQ(whole()->Text(), u"AAAAAAAAAA iiii"_s);
    EXPECT_EQ(form.childAt(label.geometry().center()), &label);
    EXPECT_EQ(whole()->y(), label.y());
    EXPECT_NEAR(whole()->geometry().center().x(), label.geometry().center().x(), 1);
    EXPECT_GT(whole()->width(), natural(whole()->Text()));
    label.SetCaption(u"BBBBBBBBBB iiii"_s);
    EXPECT_EQ(whole()->Text(), u"BBBBBBBBBB iiii"_s);
    leave();
    EXPECT_FALSE(whole());
    enter();
    label.SetCaption(u"A"_s);
    EXPECT_FALSE(whole());
    leave();
    enter();
    EXPECT_FALSE(whole());
    label.SetCaption(u"AAAAAAAAAA iiii"_s);
    EXPECT_TRUE(whole()) << "the pointer rests on it already";
    leave();
    label.SetCaption(u"BBBBBBBBBB iiii"_s);
    EXPECT_FALSE(whole());
}

TEST_F(ShortenedLabels, BreakTheirWholeCaptionBetweenItsWords)
{
    const int letters = form.width() * 6 / 10 / natural(u"W"_s);
    const QString word(letters, u'W'); // two have no room in a line, three would have on two lines
    label.SetCaption(word + u' ' + word + u' ' + word);
    enter();
    ASSERT_TRUE(whole());
    const int line = label.fontMetrics().height();
    EXPECT_GE(whole()->height(), 3 * line);
    EXPECT_LT(whole()->height(), 4 * line);
    EXPECT_LT(whole()->width(), natural(word) + 10);
    leave();
}

TEST_F(ShortenedLabels, ShowAllOfACaptionWiderThanTheWindow_OnSeveralLines)
{
    label.SetCaption(QString(60, u'W'));
    enter();
    ASSERT_TRUE(whole());
    EXPECT_TRUE(form.rect().contains(whole()->geometry()));
    EXPECT_GE(whole()->height(), 2 * label.fontMetrics().height());
    const QImage picture = const_cast<forms::WholeText *>(whole())->grab().toImage();
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(255, 255, 192));
    label.hide();
    EXPECT_FALSE(whole());
}

} // namespace
