// Pictures of rows at the scales that desktops give, against the same letters where they have all the room.
#include "drive.h"

#include "forms/colours.h"
#include "forms/combobox.h"
#include "forms/form.h"
#include "forms/listbox.h"
#include "forms/plaintext.h"

#include <QAbstractItemView>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QTest>

#include <gmock/gmock.h>

#include <climits>
#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

namespace {

const QString Letters = u"Ágjpqy_"_s;
constexpr int Rows = 6;

QImage pictureOf(QWidget &widget, qreal scale)
{
    QPixmap picture((QSizeF(widget.size()) * scale).toSize());
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::magenta);
    widget.render(&picture);
    return picture.toImage().convertToFormat(QImage::Format_RGB32);
}

// The letters on whole dots, cut to where they leave the ground.
QImage freeLetters(const QFont &font, qreal scale, int start, const QColor &ground, const QColor &ink)
{
    QPixmap picture(QSize(100, 60) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(ground);
    QPainter painter(&picture);
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(QPointF(std::round(start * scale) + 0.1, std::round(30 * scale) + 0.1) / scale, Letters);
    painter.end();
    const QImage image = picture.toImage().convertToFormat(QImage::Format_RGB32);
    QRect drawn;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != ground)
                drawn |= QRect(x, y, 1, 1);
        }
    }
    return image.copy(drawn);
}

bool nearInk(const QImage &letters, const QPoint &dot, QRgb ground)
{
    const QRect around = QRect(dot - QPoint(1, 1), QSize(3, 3)) & letters.rect();
    for (int y = around.top(); y <= around.bottom(); ++y) {
        for (int x = around.left(); x <= around.right(); ++x) {
            if (letters.pixel(x, y) != ground)
                return true;
        }
    }
    return false;
}

// How many of the letters' dots, and of those that touch them in the row, are others in the picture, with the
// letters at this point of it.
int differences(
    const QImage &picture, const QRect &row, const QImage &letters, const QPoint &place, QRgb ground)
{
    int count = 0;
    for (int y = -1; y <= letters.height(); ++y) {
        for (int x = -1; x <= letters.width(); ++x) {
            const QPoint dot(x, y);
            const bool inside = letters.rect().contains(dot);
            const QRgb wanted = inside ? letters.pixel(dot) : ground;
            if ((inside && wanted != ground) || (row.contains(place + dot) && nearInk(letters, dot, ground)))
                count += picture.pixel(place + dot) != wanted;
        }
    }
    return count;
}

class RowPictures : public testing::TestWithParam<qreal> {
protected:
    RowPictures()
    {
        list.setGeometry(9, 7, 120, 100);
        other.setGeometry(200, 7, 20, 20);
    }

    void fillAround(int row)
    {
        list.Clear();
        for (int i = 0; i < Rows; ++i)
            list.AddItem(i == row ? Letters : u"nnn"_s);
    }

    struct Dots {
        QImage picture; // of the form
        QRgb colour;
        QRect place; // pixels of the picture that they stand around
        int size; // of one of them, pixels
    };

    Dots dotsAround(int row)
    {
        drive::show(form);
        list.setFocus();
        fillAround(Rows);
        list.SetListIndex(row);
        const QRectF place(
            list.visualRect(list.currentIndex()).translated(list.viewport()->mapTo(&form, QPoint())));
        return { pictureOf(form, GetParam()), forms::dotsOn(list.palette().color(QPalette::Highlight)).rgb(),
            QTransform::fromScale(GetParam(), GetParam()).mapRect(place).toRect(),
            std::max(qRound(GetParam()), 1) };
    }

    QImage pictureOfRows(int first, int count)
    {
        list.Clear();
        for (int i = first; i < first + count; ++i)
            list.AddItem(Letters + QString::number(i));
        list.SetListIndex(count - 1);
        return pictureOf(list, GetParam());
    }

    // The letters of the row, found by the dots that differ least.
    void expectWhole(int row, const QImage &picture, bool selected)
    {
        const qreal scale = GetParam();
        const QPalette colours = list.palette();
        const QColor ground = colours.color(selected ? QPalette::Highlight : QPalette::Base);
        const QColor ink = colours.color(selected ? QPalette::HighlightedText : QPalette::Text);
        const QRect logical = list.visualRect(list.model()->index(row, 0));
        const QPoint corner = list.viewport()->mapTo(&form, logical.topLeft());
        const QRectF exact(QPointF(corner) * scale, QSizeF(logical.size()) * scale);
        // Without the dots that it shares with its neighbours.
        const QRect own(QPoint(qCeil(exact.left()), qCeil(exact.top())),
            QPoint(qFloor(exact.right()) - 1, qFloor(exact.bottom()) - 1));
        int least = INT_MAX;
        int high = 0;
        // Where they start on a whole dot their distances are rounded in more than one way.
        for (int start = 20; start < 24 && least != 0; ++start) {
            const QImage letters = freeLetters(list.font(), scale, start, ground, ink);
            high = letters.height();
            for (int y = own.top() - 2; y + high <= own.bottom() + 3; ++y) {
                for (int x = own.left(); x < own.left() + 6 * scale; ++x)
                    least = std::min(least, differences(picture, own, letters, QPoint(x, y), ground.rgb()));
            }
        }
        EXPECT_EQ(least, 0) << "row " << row << ", " << high << " dots of " << own.height();
    }

    forms::Form form { u"Form"_s, 4000, 2000, forms::Form::Border::None };
    forms::ListBox list { &form };
    forms::ListBox other { &form };
};

TEST_P(RowPictures, LettersAreWholeInEveryRow)
{
    drive::show(form);
    other.setFocus();
    for (int row = 0; row < Rows; ++row) {
        fillAround(row);
        for (const int selected : { row, (row + 3) % Rows }) {
            list.SetListIndex(selected);
            expectWhole(row, pictureOf(form, GetParam()), row == selected);
        }
    }
}

TEST_P(RowPictures, TheDotsOfTheFocusLeaveTheLettersOut)
{
    drive::show(form);
    list.setFocus();
    for (int row = 0; row < Rows; ++row) {
        fillAround(row);
        list.SetListIndex(row);
        const QImage picture = pictureOf(form, GetParam());
        expectWhole(row, picture, true);
    }
}

TEST_P(RowPictures, TheDotsOfTheFocusAreAsWideAtTheListsEdgesAsTheyAreHigh)
{
    const auto [picture, colour, dots, size] = dotsAround(2);
    for (const bool right : { false, true }) {
        std::map<int, int> widths; // how many lines begin with so many dots
        for (int y = dots.top() + 2 * size; y <= dots.bottom() - 2 * size; ++y) {
            int width = 0;
            while (width < 3 * size
                && picture.pixel(right ? dots.right() - width : dots.left() + width, y) == colour)
                ++width;
            ++widths[width];
        }
        widths.erase(0);
        EXPECT_THAT(widths, testing::ElementsAre(testing::Pair(size, testing::Gt(1)))) << right;
    }
}

TEST_P(RowPictures, TheDotsOfTheFocusAreAsHighAtTheListsTop)
{
    const auto [picture, colour, dots, size] = dotsAround(0);
    std::map<int, int> heights; // how many columns begin with so many dots
    for (int x = dots.center().x(); x <= dots.right() - 2 * size; ++x) {
        int height = 0;
        while (height < 3 * size && picture.pixel(x, dots.top() + height) == colour)
            ++height;
        ++heights[height];
    }
    heights.erase(0);
    EXPECT_THAT(heights, testing::ElementsAre(testing::Pair(size, testing::Gt(1))));
}

TEST_P(RowPictures, AStripThatIsPaintedAloneShowsWhatTheWholeShows)
{
    list.Clear();
    for (int i = 0; i < Rows; ++i)
        list.AddItem(u"ÅÑgjpqy_"_s);
    list.SetListIndex(2);
    const QImage whole = pictureOf(list, GetParam());
    for (int y = 0; y + 3 <= list.height(); ++y) {
        const QRect strip(0, y, list.width(), 3);
        const QRect inside = QTransform::fromScale(GetParam(), GetParam())
                                 .mapRect(QRectF(strip))
                                 .toRect()
                                 .adjusted(0, 1, 0, -1);
        QPixmap picture((QSizeF(list.size()) * GetParam()).toSize());
        picture.setDevicePixelRatio(GetParam());
        picture.fill(Qt::magenta);
        list.render(&picture, strip.topLeft(), strip);
        EXPECT_EQ(picture.toImage().convertToFormat(QImage::Format_RGB32).copy(inside), whole.copy(inside))
            << y;
    }
}

TEST_P(RowPictures, BelowTheLastWholeRowNothingOfTheNextShows)
{
    constexpr int Many = 40;
    list.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    drive::show(form);
    const int high = list.fontMetrics().height();
    for (const int rest : { 0, 1, 5, high - 1 }) {
        list.resize(120, Rows * high + rest + 2 * list.frameWidth());
        const QImage alone = pictureOfRows(0, Rows);
        const QImage last = pictureOfRows(Many - Rows, Rows);
        EXPECT_EQ(pictureOfRows(0, Many), last) << rest;
        list.scrollToTop();
        list.SetListIndex(Rows - 1);
        EXPECT_EQ(pictureOf(list, GetParam()), alone) << rest;
        fillAround(Rows - 1);
        list.AddItem(Letters);
        expectWhole(Rows - 1, pictureOf(form, GetParam()), false);
    }
}

// What the toolkit is asked for when the pointer rests on a row.
QString tipOf(QAbstractItemView &view, int row)
{
    return drive::tipAt(*view.viewport(), view.visualRect(view.model()->index(row, 0)).center());
}

class RowTips : public testing::Test {
protected:
    RowTips()
    {
        list.setGeometry(9, 7, 120, 100);
        list.AddItem(u"short"_s);
        list.AddItem(Long);
        drive::show(form);
    }

    const QString Long = u"<b>A name</b> & one that has no room in the list"_s;
    forms::Form form { u"Form"_s, 4000, 2000, forms::Form::Border::None };
    forms::ListBox list { &form };
};

TEST_F(RowTips, AreTheWholeEntryWhereItIsCutOff)
{
    EXPECT_EQ(tipOf(list, 0), QString());
    EXPECT_EQ(tipOf(list, 1), forms::asTipOfLines(Long));
    list.resize(list.fontMetrics().horizontalAdvance(Long) + 20, 100);
    EXPECT_EQ(tipOf(list, 1), QString());
}

TEST_F(RowTips, AreThoseThatTheRowHasItself)
{
    list.SetLook(0, { {}, u"own"_s });
    list.SetLook(1, { {}, u"own"_s });
    EXPECT_EQ(tipOf(list, 0), u"own"_s);
    EXPECT_EQ(tipOf(list, 1), u"own"_s);
}

TEST_F(RowTips, AreNoneWhereTheScreenHasItsOwn)
{
    list.SetTips(false);
    EXPECT_EQ(tipOf(list, 1), QString());
}

class OpenLists : public testing::Test {
protected:
    OpenLists()
    {
        combo.setGeometry(9, 7, 120, 22);
        combo.AddItem(Long);
        combo.AddItem(u"Other"_s);
    }
    QAbstractItemView &open()
    {
        drive::show(form);
        combo.showPopup();
        return *combo.view();
    }

    const QString Long = u"A name that has no room in the list"_s;
    forms::Form form { u"Form"_s, 4000, 2000, forms::Form::Border::None };
    forms::ComboBox combo { &form };
};

TEST_F(OpenLists, ShowTheRowOfTheKeysAsTheOneToBePicked_AlsoWhileNoneIs)
{
    QAbstractItemView &view = open();
    ASSERT_EQ(combo.ListIndex(), -1);
    ASSERT_EQ(view.currentIndex().row(), 0);
    const QImage picture = pictureOf(*view.viewport(), 1);
    const QRect shown = picture.rect();
    const QRect row = view.visualRect(view.currentIndex()) & shown;
    const QColor ground = picture.pixelColor(row.right() - 1, row.center().y());
    EXPECT_EQ(ground, combo.palette().color(QPalette::Highlight));
    int white = 0;
    for (int x = row.left(); x <= row.right(); ++x)
        white += picture.pixelColor(x, row.top()) == QColor(Qt::white);
    EXPECT_GT(white, row.width() / 3);
    const QRect other = view.visualRect(view.model()->index(1, 0)) & shown;
    EXPECT_NE(picture.pixelColor(other.right() - 1, other.center().y()), ground);
    combo.hidePopup();
}

TEST_F(OpenLists, EndTheirLongEntriesInDots_WholeAsATip)
{
    QAbstractItemView &view = open();
    EXPECT_EQ(tipOf(view, 0), forms::asTipOfLines(Long));
    EXPECT_EQ(tipOf(view, 1), QString());
    const QImage cut = pictureOf(*view.viewport(), 1);
    const int left = view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view) + 1;
    combo.setItemText(
        0, view.fontMetrics().elidedText(Long, Qt::ElideRight, view.viewport()->width() - left));
    EXPECT_EQ(pictureOf(*view.viewport(), 1), cut);
    combo.hidePopup();
}

TEST_F(OpenLists, ShutTheyShowALongNameInDots_WholeAsATip)
{
    combo.SetListIndex(0);
    drive::show(form);
    const auto tip = [this] { return drive::tipAt(combo, QPoint(5, 5)); };
    EXPECT_EQ(tip(), forms::asTipOfLines(Long));
    const QImage cut = pictureOf(combo, 1);
    QString part = Long;
    int equal = 0;
    while (part.size() > 1) {
        part.chop(1);
        combo.setItemText(0, part + u'…');
        equal += pictureOf(combo, 1) == cut && tip().isEmpty();
    }
    EXPECT_GE(equal, 1);
    combo.SetListIndex(1);
    EXPECT_EQ(tip(), QString());
}

INSTANTIATE_TEST_SUITE_P(Scales, RowPictures, testing::Values(1, 1.1, 1.25, 1.33, 1.5, 1.75, 2, 2.5, 3),
    [](const auto &scale) { return "Percent" + std::to_string(std::lround(scale.param * 100)); });

} // namespace
