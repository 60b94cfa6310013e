#include "drive.h"

#include "forms/directorylist.h"
#include "forms/form.h"

#include "host/failure.h"

#include <QDir>
#include <QPixmap>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

class DirectoryLists : public testing::Test {
protected:
    DirectoryLists()
    {
        for (const QString &name : { u"Zeta"_s, u"alfa/inner"_s, u".hidden"_s })
            QDir(path()).mkpath(name);
        QFile file(path(u"file"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        list.setGeometry(10, 10, 150, 150);
        list.Change = [this] { ++changes; };
    }

    QString path(const QString &name = {}) const
    {
        return name.isEmpty() ? m_directory.path() : m_directory.filePath(name);
    }
    int rowOf(const QString &name) const
    {
        int row = list.ListCount() - 1;
        while (row >= 0 && list.List(row) != name)
            --row;
        return row;
    }
    void openByMouse(const QString &name)
    {
        list.scrollTo(list.model()->index(rowOf(name), 0));
        drive::doubleClick(
            *list.viewport(), Qt::LeftButton, list.visualRect(list.model()->index(rowOf(name), 0)).center());
    }
    QStringList below() const // the rows behind the open directory's
    {
        QStringList names;
        for (int row = list.ListIndex() + 1; row < list.ListCount(); ++row)
            names += list.List(row);
        return names;
    }
    int failureOf(const QString &typed)
    {
        try {
            list.SetPath(typed);
        } catch (const host::Failure &failure) {
            return failure.number();
        }
        return 0;
    }

    QTemporaryDir m_directory;
    forms::Form form { u"Form"_s, 3000, 3000, forms::Form::Border::None };
    forms::DirectoryList list { &form };
    int changes = 0;
};

TEST_F(DirectoryLists, ThePath_ShowsTheWayToItAndWhatLiesInIt)
{
    list.SetPath(path() + u'/');
    EXPECT_EQ(list.Path(), path());
    EXPECT_EQ(changes, 1);
    QStringList way = path().split(u'/', Qt::SkipEmptyParts);
    way.prepend(u"/"_s);
    for (int row = 0; row < way.size(); ++row)
        EXPECT_EQ(list.List(row), way[row]);
    EXPECT_EQ(list.ListIndex(), way.size() - 1);
    EXPECT_THAT(below(), ElementsAre(u"alfa"_s, u"Zeta"_s));
}

TEST_F(DirectoryLists, WhereABarBelowWasNeededBeforeTheFormShowed_TheBottomIsBlank)
{
    form.SetBackColour(Qt::black);
    QDir(path()).mkpath(u"wide/"_s + QString(60, u'm'));
    for (const int rest : { 0, 1, 5, 11 }) {
        form.hide();
        list.resize(150, 140 + rest);
        list.SetPath(path(u"wide"_s));
        list.SetPath(path(u"alfa/inner"_s));
        drive::show(form);
        const QImage picture = list.grab().toImage();
        const QRect inside = list.contentsRect();
        const int end =
            list.viewport()->y() + list.visualRect(list.model()->index(list.ListCount() - 1, 0)).bottom();
        for (int y = end + 1; y <= inside.bottom(); ++y)
            ASSERT_EQ(picture.pixelColor(inside.center().x(), y), QColor(Qt::white)) << rest << ' ' << y;
    }
}

TEST_F(DirectoryLists, TheSamePathAgain_IsNoChange)
{
    list.SetPath(path());
    list.SetPath(path(u"."_s));
    EXPECT_EQ(changes, 1);
}

TEST_F(DirectoryLists, ADoubleClick_OpensTheDirectoryOfTheRow)
{
    list.SetPath(path());
    drive::show(form);
    openByMouse(u"alfa"_s);
    EXPECT_EQ(list.Path(), path(u"alfa"_s));
    EXPECT_EQ(changes, 2);
    EXPECT_THAT(below(), ElementsAre(u"inner"_s));
    openByMouse(QDir(path()).dirName());
    EXPECT_EQ(list.Path(), path());
    openByMouse(u"/"_s);
    EXPECT_EQ(list.Path(), u"/"_s);
    EXPECT_EQ(list.ListIndex(), 0);
}

TEST_F(DirectoryLists, ASingleClick_OnlyMarksTheRow)
{
    list.SetPath(path());
    drive::show(form);
    list.scrollTo(list.model()->index(rowOf(u"Zeta"_s), 0));
    drive::click(
        *list.viewport(), Qt::LeftButton, list.visualRect(list.model()->index(rowOf(u"Zeta"_s), 0)).center());
    EXPECT_EQ(list.Text(), u"Zeta"_s);
    EXPECT_EQ(list.Path(), path());
    EXPECT_EQ(changes, 1);
}

TEST_F(DirectoryLists, ADoubleClickOfTheRightButton_OpensNothing)
{
    list.SetPath(path());
    drive::show(form);
    list.scrollTo(list.model()->index(rowOf(u"Zeta"_s), 0));
    drive::doubleClick(*list.viewport(), Qt::RightButton,
        list.visualRect(list.model()->index(rowOf(u"Zeta"_s), 0)).center());
    EXPECT_EQ(list.Path(), path());
}

TEST_F(DirectoryLists, TheKeys_MarkAndEnterOpens)
{
    list.SetPath(path());
    drive::show(form);
    list.setFocus();
    drive::key(form, Qt::Key_Down);
    EXPECT_EQ(list.Text(), u"alfa"_s);
    drive::key(form, Qt::Key_Return);
    EXPECT_EQ(list.Path(), path(u"alfa"_s));
    drive::key(form, Qt::Key_Up);
    drive::key(form, Qt::Key_Enter);
    EXPECT_EQ(list.Path(), path());
    EXPECT_EQ(changes, 3);
}

TEST_F(DirectoryLists, APathThatIsNoDirectory_FailsAndTheOpenOneStays)
{
    list.SetPath(path());
    for (const QString &none : { path(u"none"_s), path(u"file"_s), QString() })
        EXPECT_EQ(failureOf(none), 76) << none.toStdString();
    EXPECT_EQ(list.Path(), path());
    EXPECT_THAT(below(), ElementsAre(u"alfa"_s, u"Zeta"_s));
}

TEST_F(DirectoryLists, ADirectoryThatHasGone_StaysClosed)
{
    list.SetPath(path());
    drive::show(form);
    ASSERT_TRUE(QDir(path()).rmdir(u"Zeta"_s));
    openByMouse(u"Zeta"_s);
    EXPECT_EQ(list.Path(), path());
    EXPECT_EQ(changes, 1);
}

TEST_F(DirectoryLists, TheOpenDirectoryIsInView_WhateverLiesInIt)
{
    for (int i = 0; i < 50; ++i)
        QDir(path()).mkpath(u"d%1"_s.arg(i));
    drive::show(form);
    list.SetPath(path());
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualRect(list.currentIndex()).center()));
    list.SetPath(path(u"alfa"_s));
    EXPECT_TRUE(list.viewport()->rect().contains(
        list.visualRect(list.model()->index(list.ListCount() - 1, 0)).center()));
}

// The folders are those of the main screen, in yellow, drawn in the screen's own pixels.
TEST_F(DirectoryLists, TheirFoldersAreYellow_OpenOnesOthersThanShutOnes)
{
    list.SetPath(path());
    const auto pictureOf = [this](const QString &name) {
        return list.model()->index(rowOf(name), 0).data(Qt::DecorationRole).value<QPixmap>().toImage();
    };
    const auto yellow = [](const QImage &picture) {
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor colour = picture.pixelColor(x, y);
                if (colour.alpha() == 255) {
                    EXPECT_GT(colour.red(), colour.blue() + 40) << x << ' ' << y;
                    count += colour.red() > 200;
                }
            }
        }
        return count;
    };
    const QImage open = pictureOf(u"/"_s);
    const QImage shut = pictureOf(u"Zeta"_s);
    EXPECT_GT(yellow(open), 30);
    EXPECT_GT(yellow(shut), 30);
    EXPECT_NE(open, shut.copy(shut.width() - open.width(), 0, open.width(), open.height()));
}

// Where a directory's picture stands on the list, and how it looks on its own.
TEST_F(DirectoryLists, TheirFoldersAreDrawnPixelByPixel_AlsoInTheSelectedRow)
{
    list.SetPath(path(u"Zeta"_s));
    list.SetListIndex(1);
    const auto picture = [this](int row) {
        return list.model()->index(row, 0).data(Qt::DecorationRole).value<QPixmap>().toImage();
    };
    for (int row = 0; row < 3; ++row) {
        const QImage folder = picture(row).convertToFormat(QImage::Format_ARGB32);
        const QImage shown = list.viewport()->grab(list.visualRect(list.model()->index(row, 0))).toImage();
        int found = 0;
        for (int left = 0; left < 6; ++left) {
            for (int top = 0; top < 6; ++top) {
                bool same = true;
                for (int y = 0; y < folder.height() && same; ++y) {
                    for (int x = 0; x < folder.width() && same; ++x)
                        same = qAlpha(folder.pixel(x, y)) < 255
                            || shown.pixel(left + x, top + y) == folder.pixel(x, y);
                }
                found += same;
            }
        }
        EXPECT_EQ(found, 1) << row;
    }
}

} // namespace
