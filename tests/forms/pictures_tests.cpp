#include "drive.h"

#include "tests/support/opens.h"
#include "tests/support/slowpicture.h"

#include "forms/form.h"
#include "forms/image.h"
#include "forms/knownpictures.h"
#include "forms/pictures.h"
#include "forms/rendered.h"
#include "forms/sharp.h"

#include "host/failure.h"
#include "host/lengths.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// A GIF of one red pixel.
const QByteArray redGif =
    QByteArray::fromBase64("R0lGODlhAQABAIAAAP8AAP///yH5BAAAAAAALAAAAAABAAEAAAICRAEAOw==");

class Pictures : public testing::Test {
protected:
    QString write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(directory.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }

    static int failureOf(const QString &path)
    {
        try {
            forms::LoadPicture(path);
        } catch (const host::Failure &failure) {
            return failure.number();
        }
        return 0;
    }

    const QTemporaryDir directory;
};

TEST_F(Pictures, AFileThatStaysAsItWas_IsNotLoadedAgain)
{
    const QString path = write(u"PONG.GIF"_s, redGif);
    QTest::qSleep(30); // a change later than that leaves another time
    const QPixmap first = forms::LoadPicture(path);
    EXPECT_EQ(forms::LoadPicture(path).cacheKey(), first.cacheKey());
    QByteArray greenGif = redGif;
    greenGif.replace(QByteArray("\xFF\x00\x00", 3), QByteArray("\x00\xFF\x00", 3));
    write(u"PONG.GIF"_s, greenGif);
    EXPECT_EQ(forms::LoadPicture(path).toImage().pixelColor(0, 0), QColor(Qt::green));
    write(u"PONG.GIF"_s, redGif);
    EXPECT_EQ(forms::LoadPicture(path).toImage().pixelColor(0, 0), QColor(Qt::red));
    ASSERT_TRUE(QFile::remove(path));
    EXPECT_EQ(failureOf(path), host::FileNotFound);
}

TEST_F(Pictures, AGif_IsLoaded)
{
    const QPixmap picture = forms::LoadPicture(write(u"PONG.GIF"_s, redGif));
    EXPECT_EQ(picture.size(), QSize(1, 1));
    EXPECT_EQ(picture.toImage().pixelColor(0, 0), QColor(Qt::red));
}

TEST_F(Pictures, AFileInAnotherCase_IsFound)
{
    write(u"Pong.gif"_s, redGif);
    EXPECT_EQ(forms::LoadPicture(directory.filePath(u"PONG.GIF"_s)).size(), QSize(1, 1));
}

TEST_F(Pictures, AMissingFile_FailsWith53)
{
    EXPECT_EQ(failureOf(directory.filePath(u"none.gif"_s)), 53);
}

TEST_F(Pictures, WhatIsNoPicture_FailsWith481)
{
    EXPECT_EQ(failureOf(write(u"text.gif"_s, "no picture")), 481);
    EXPECT_EQ(failureOf(write(u"empty.gif"_s, "")), 481);
    EXPECT_EQ(failureOf(write(u"cut.gif"_s, redGif.first(12))), 481);
}

class PicturesKnown : public Pictures {
protected:
    // Written so long ago that a further change shows.
    QString writeSettled(const QString &name, const QByteArray &bytes) const
    {
        QString path = write(name, bytes);
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return host::LengthsIn(place).states({ path }).front().has_value(); }, 20'000));
        return path;
    }

    int checkFails(const QStringList &paths)
    {
        try {
            known.Check(place, paths, [this] { ++toldLater; });
        } catch (const host::Failure &failure) {
            return failure.number();
        }
        return 0;
    }

    const QString place = directory.path() + u'/';
    forms::KnownPictures known;
    int toldLater = 0; // how often
};

TEST_F(PicturesKnown, AreReadOnceWhileTheirFilesStayAsTheyAre)
{
    const QString one = writeSettled(u"one.gif"_s, redGif);
    const QString two = writeSettled(u"two.gif"_s, redGif);
    const OpensOf opensOfOne(one);
    const OpensOf opensOfTwo(two);
    EXPECT_EQ(checkFails({ one }), 0);
    EXPECT_EQ(checkFails({ one, place + u"TWO.GIF"_s }), 0);
    EXPECT_EQ(checkFails({ one, two }), 0);
    EXPECT_EQ(opensOfOne.count(), 1);
    EXPECT_EQ(opensOfTwo.count(), 1);
}

TEST_F(PicturesKnown, AreLookedAtAnewWhereTheirFilesChange)
{
    const QString one = writeSettled(u"one.gif"_s, redGif);
    EXPECT_EQ(checkFails({ one }), 0);
    QByteArray broken = redGif;
    broken[0] = 'X';
    write(u"one.gif"_s, broken); // in place, and as long
    EXPECT_EQ(checkFails({ one }), 481);
    EXPECT_EQ(checkFails({ one }), 481);
    writeSettled(u"one.gif"_s, redGif);
    EXPECT_EQ(checkFails({ one }), 0);
    EXPECT_TRUE(QFile::remove(one));
    EXPECT_EQ(checkFails({ one }), 53);
}

TEST_F(PicturesKnown, AMissingOneIsFoundBeforeAnyIsRead)
{
    const QString one = writeSettled(u"one.gif"_s, redGif);
    const OpensOf opens(one);
    EXPECT_EQ(checkFails({ one, place + u"none.gif"_s }), 53);
    EXPECT_EQ(opens.count(), 0);
    // In another directory, which is no entry of this one.
    EXPECT_TRUE(QDir(place).mkdir(u"sub"_s));
    const QString below = write(u"sub/two.gif"_s, redGif);
    EXPECT_EQ(checkFails({ below }), 0);
    EXPECT_EQ(checkFails({ place + u"sub"_s }), 53);
}

// So many and so slow that the last one doesn't fit into a frame.
class PicturesPutOff : public PicturesKnown {
protected:
    PicturesPutOff()
    {
        paths << write(u"slow.gif"_s, slowPng());
        for (int i = 0; i < 10; ++i)
            paths << write(u"%1.gif"_s.arg(i), redGif);
    }

    // Behind those.
    void isDecodedLaterAndOnce(const QString &last)
    {
        paths << last;
        const OpensOf opens(last);
        EXPECT_EQ(checkFails(paths), 0);
        EXPECT_EQ(opens.count(), 0);
        EXPECT_TRUE(QTest::qWaitFor([&] { return opens.count() > 0; }));
        EXPECT_EQ(checkFails(paths), 0);
        QTest::qWait(200);
        EXPECT_EQ(opens.count(), 0);
        EXPECT_EQ(toldLater, 0);
    }

    QStringList paths;
};

TEST_F(PicturesPutOff, AreDecodedWhileIdle)
{
    paths << writeSettled(u"text.gif"_s, "no picture");
    EXPECT_EQ(checkFails(paths), 0) << "waits for the last one";
    EXPECT_EQ(toldLater, 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return toldLater > 0; }));
    EXPECT_EQ(checkFails(paths), 481) << "has forgotten what it found";
    QTest::qWait(50);
    EXPECT_EQ(toldLater, 1);
}

TEST_F(PicturesPutOff, AreDroppedByTheNextCheck)
{
    const QString text = write(u"text.gif"_s, "no picture");
    const OpensOf opens(text);
    EXPECT_EQ(checkFails(paths + QStringList { text }), 0);
    EXPECT_EQ(checkFails(paths), 0);
    QTest::qWait(50);
    EXPECT_EQ(toldLater, 0);
    EXPECT_EQ(opens.count(), 0);
}

TEST_F(PicturesPutOff, ThatCanBeLoadedAreToldNoMore)
{
    isDecodedLaterAndOnce(writeSettled(u"last.gif"_s, redGif));
}

// So many that they aren't even looked at.
class ThousandsOfPictures : public PicturesPutOff {
protected:
    ThousandsOfPictures()
    {
        for (int i = 0; i < 1000; ++i)
            paths << write(u"more %1.gif"_s.arg(i), redGif);
    }
};

TEST_F(ThousandsOfPictures, AreLookedAtWhileIdle)
{
    const QString text = writeSettled(u"text.gif"_s, "no picture");
    EXPECT_EQ(checkFails({ text }), 481);
    paths << text;
    EXPECT_EQ(checkFails(paths), 0) << "was seen to be the one known";
    EXPECT_TRUE(QTest::qWaitFor([this] { return toldLater > 0; }));
    QTest::qWait(50);
    EXPECT_EQ(toldLater, 1);
}

TEST_F(ThousandsOfPictures, AreMissedWhereOneGoesMeanwhile)
{
    EXPECT_EQ(checkFails(paths), 0);
    EXPECT_TRUE(QFile::remove(paths.back()));
    EXPECT_TRUE(QTest::qWaitFor([this] { return toldLater > 0; }));
    EXPECT_EQ(checkFails(paths), 53);
    QTest::qWait(50);
    EXPECT_EQ(toldLater, 1);
}

TEST_F(ThousandsOfPictures, AreAllDecodedInTheEndAndKnownFromThenOn)
{
    isDecodedLaterAndOnce(writeSettled(u"last.gif"_s, redGif));
}

TEST_F(ThousandsOfPictures, AreDroppedByTheNextCheck)
{
    EXPECT_EQ(checkFails(paths), 0);
    EXPECT_TRUE(QFile::remove(paths.back()));
    EXPECT_EQ(checkFails({ paths.front() }), 0);
    QTest::qWait(200);
    EXPECT_EQ(toldLater, 0);
}

TEST_F(ThousandsOfPictures, AreNotShownWhereOneOfThemIsMissing)
{
    paths << place + u"none.gif"_s;
    EXPECT_EQ(checkFails(paths), 53);
}

TEST_F(PicturesKnown, ManyAreLookedAtWhileIdleToo)
{
    const QString one = writeSettled(u"one.gif"_s, redGif);
    EXPECT_EQ(checkFails({ one }), 0);
    EXPECT_EQ(checkFails(QStringList(50'000, one) << write(u"text.gif"_s, "no picture")), 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return toldLater > 0; }));
}

TEST_F(PicturesPutOff, AreReadAgainWhereTheirDirectoryWasAway)
{
    paths << writeSettled(u"last.gif"_s, redGif);
    EXPECT_EQ(checkFails(paths), 0);
    const QString away = directory.path() + u".away"_s;
    ASSERT_TRUE(QDir().rename(directory.path(), away));
    EXPECT_TRUE(QTest::qWaitFor([this] { return toldLater > 0; }));
    ASSERT_TRUE(QDir().rename(away, directory.path()));
    EXPECT_EQ(checkFails({ paths.back() }), 0);
}

TEST_F(PicturesKnown, AFewAreDecodedAtOnceHoweverSlow)
{
    const QString slow = write(u"slow.gif"_s, slowPng());
    EXPECT_EQ(checkFails({ slow, write(u"text.gif"_s, "no picture") }), 481);
    QTest::qWait(50);
    EXPECT_EQ(toldLater, 0);
}

TEST_F(Pictures, Artwork_IsDrawnAtItsSizeAndRatio)
{
    const QPixmap drawn = forms::artwork(u"Rest2"_s, QSize(20, 30), 1.5);
    EXPECT_EQ(drawn.size(), QSize(30, 45));
    EXPECT_EQ(drawn.devicePixelRatio(), 1.5);
    EXPECT_EQ(drawn.toImage().pixelColor(10, 40), QColor(Qt::red));
    EXPECT_EQ(drawn.toImage().pixelColor(20, 40), QColor(Qt::white));
}

// Few rectangles, and so many that they are no rectangle any more.
class PicturesInPart : public testing::TestWithParam<std::tuple<int, double>> { };

TEST_P(PicturesInPart, AreDrawnThereAndNowhereElse)
{
    const auto [rectangles, ratio] = GetParam();
    QPixmap picture(QSize(40, 40) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::red);
    QImage drawn(QSize(40, 40) * ratio, QImage::Format_RGB32);
    drawn.setDevicePixelRatio(ratio);
    drawn.fill(Qt::white);
    QRegion part;
    for (int i = 0; i < rectangles; ++i)
        part += QRect(3 * i, 2 * i, 2, 2);
    QPainter painter(&drawn);
    painter.setClipRegion(part); // as the toolkit does ahead of a widget's painting
    const QImage before = drawn;
    forms::drawPart(painter, part, picture);
    painter.setClipping(false);
    painter.end();
    QImage expected = before;
    painter.begin(&expected);
    for (const QRect &rectangle : part)
        painter.fillRect(rectangle, Qt::red);
    painter.end();
    EXPECT_EQ(drawn, expected);
}

INSTANTIATE_TEST_SUITE_P(
    Parts, PicturesInPart, testing::Combine(testing::Values(1, 3, 12), testing::Values(1.0, 2.0)));

TEST_F(Pictures, Artwork_RenderedForItsSizeAndRatio_IsTakenAsItIs)
{
    // The rendered one is blue, the drawing is red at its left.
    const auto left = [](const QSize &size, qreal ratio) {
        return forms::artwork(u"Rendered"_s, size, ratio).toImage().pixelColor(1, 1);
    };
    EXPECT_EQ(left({ 12, 13 }, 2), QColor(Qt::blue));
    EXPECT_EQ(forms::artwork(u"Rendered"_s, { 12, 13 }, 2).devicePixelRatio(), 2);
    EXPECT_EQ(left({ 12, 13 }, 1), QColor(Qt::red));
    EXPECT_EQ(left({ 24, 26 }, 2), QColor(Qt::red));
    EXPECT_EQ(left({ 24, 26 }, 1), QColor(Qt::red));
}

TEST_F(Pictures, Packed_ComeBackAsTheyWere)
{
    QImage image(3, 2, QImage::Format_ARGB32_Premultiplied);
    image.fill(QColor(10, 20, 30, 40));
    image.setPixelColor(2, 1, Qt::green);
    const QByteArray bytes = forms::packed(image);
    EXPECT_EQ(forms::unpacked(bytes), image);
    for (const QByteArray &damaged : { QByteArray(), bytes.first(7), bytes.chopped(1), bytes + 'x' })
        EXPECT_TRUE(forms::unpacked(damaged).isNull()) << damaged.size();
}

TEST_F(Pictures, Artwork_IsDrawnOnceForEachSizeAndRatio)
{
    const QPixmap first = forms::artwork(u"Rest2"_s, QSize(12, 13), 1);
    EXPECT_EQ(forms::artwork(u"Rest2"_s, QSize(12, 13), 1).cacheKey(), first.cacheKey());
    EXPECT_NE(forms::artwork(u"Rest1"_s, QSize(12, 13), 1).cacheKey(), first.cacheKey());
    EXPECT_NE(forms::artwork(u"Rest2"_s, QSize(13, 12), 1).cacheKey(), first.cacheKey());
    EXPECT_NE(forms::artwork(u"Rest2"_s, QSize(12, 13), 2).cacheKey(), first.cacheKey());
}

TEST_F(Pictures, ANameWithoutADrawing_GivesAnEmptyPicture)
{
    EXPECT_TRUE(forms::artwork(u"Nothing"_s, QSize(10, 10), 1).isNull());
}

TEST_F(Pictures, AnIcon_IsDrawnInTheSizesThatDesktopsAskFor)
{
    const QIcon icon = forms::artworkIcon(u"Rest2"_s);
    for (const int side : { 16, 24, 32, 48, 64 })
        EXPECT_EQ(icon.actualSize({ side, side }), QSize(side, side));
}

class Images : public testing::Test {
protected:
    Images()
    {
        form.SetBackColour(Qt::black);
        image.setGeometry(10, 10, 40, 20);
    }

    static QPixmap solid(Qt::GlobalColor colour)
    {
        QPixmap picture(3, 3);
        picture.fill(colour);
        return picture;
    }

    forms::Form form { u"Form"_s, 3000, 3000, forms::Form::Border::None };
    forms::Image image { &form };
};

TEST_F(Images, APicture_IsStretchedOverTheWholeImage)
{
    const QPixmap picture = solid(Qt::green);
    image.SetPicture(picture);
    drive::show(form);
    EXPECT_EQ(drive::colourAt(form, { 10, 10 }), QColor(Qt::green));
    EXPECT_EQ(drive::colourAt(form, { 49, 29 }), QColor(Qt::green));
    EXPECT_EQ(drive::colourAt(form, { 50, 30 }), QColor(Qt::black));
    EXPECT_EQ(image.Picture().cacheKey(), picture.cacheKey());
}

TEST_F(Images, APictureOfOneColour_IsToldFromOneWithAnother)
{
    drive::show(form);
    for (const QPoint spot : { QPoint(0, 0), QPoint(1, 1), QPoint(2, 2) }) {
        QImage spotted = solid(Qt::green).toImage();
        spotted.setPixelColor(spot, Qt::blue);
        image.SetPicture(QPixmap::fromImage(spotted));
        EXPECT_NE(drive::colourAt(image, { 6 + spot.x() * 13, 3 + spot.y() * 6 }), QColor(Qt::green));
        image.SetPicture(solid(Qt::green));
        EXPECT_EQ(drive::colourAt(image, { 6 + spot.x() * 13, 3 + spot.y() * 6 }), QColor(Qt::green));
    }
    QPixmap clear(3, 3);
    clear.fill(Qt::transparent);
    image.SetPicture(clear);
    EXPECT_EQ(drive::colourAt(image, { 10, 10 }), drive::colourAt(form, { 1, 1 }));
}

TEST_F(Images, APictureMadeForTheScreensPixels_IsDrawnInThem)
{
    for (const double scale : { 1.0, 1.1, 1.25, 1.33, 1.5, 1.75, 2.0, 2.5, 3.0 }) {
        QImage lines(qCeil(90 * scale), qCeil(19 * scale), QImage::Format_RGB32);
        lines.setDevicePixelRatio(scale);
        for (int x = 0; x < lines.width(); ++x) {
            for (int y = 0; y < lines.height(); ++y)
                lines.setPixelColor(x, y, x % 2 == 0 && y % 2 == 0 ? Qt::black : Qt::white);
        }
        image.SetPicture(QPixmap::fromImage(lines));
        for (int at = 7; at < 11; ++at) {
            image.setGeometry(at, at, 90, 19);
            QImage shown(form.size() * scale, QImage::Format_RGB32);
            shown.setDevicePixelRatio(scale);
            form.render(&shown);
            const QRect part(qRound(at * scale), qRound(at * scale), qFloor(90 * scale), qFloor(19 * scale));
            QImage expected = lines.copy(QRect(QPoint(0, 0), part.size()));
            QImage met = shown.copy(part);
            met.setDevicePixelRatio(1);
            expected.setDevicePixelRatio(1);
            EXPECT_EQ(met, expected) << scale << ' ' << at;
        }
    }
}

TEST_F(Images, Artwork_IsDrawnAtTheImagesSize)
{
    image.SetPicture(solid(Qt::green));
    image.SetArtwork(u"Rest2"_s);
    drive::show(form);
    EXPECT_EQ(drive::colourAt(form, { 25, 20 }), QColor(Qt::red));
    EXPECT_EQ(drive::colourAt(form, { 35, 20 }), QColor(Qt::white));
    EXPECT_TRUE(image.Picture().isNull());
    image.SetPicture(solid(Qt::green));
    EXPECT_EQ(drive::colourAt(form, { 25, 20 }), QColor(Qt::green));
}

TEST_F(Images, ABorder_IsOneDarkLineInsideTheEdge)
{
    image.SetPicture(solid(Qt::green));
    image.SetBorder(true);
    drive::show(form);
    EXPECT_EQ(drive::colourAt(image, { 0, 0 }), QColor(Qt::black));
    EXPECT_EQ(drive::colourAt(image, { 39, 19 }), QColor(Qt::black));
    EXPECT_EQ(drive::colourAt(image, { 1, 1 }), QColor(Qt::green));
}

TEST_F(Images, AClick_BringsTheFocusWhereTheScreenSaysSo)
{
    drive::show(form);
    drive::click(image);
    EXPECT_FALSE(image.hasFocus());
    image.setFocusPolicy(Qt::ClickFocus);
    drive::click(image);
    EXPECT_TRUE(image.hasFocus());
}

} // namespace
