// Pictures of other kinds than PCX, as other programs wrote them: NAME-PROGRAM.ENDING. make_fixtures.py made
// them.

#include "converter/anypicture.h"
#include "converter/gif.h"
#include "converter/magick.h"
#include "pcxfile.h"

#include <QDir>
#include <QFile>
#include <QImage>

#include <cmath>

using namespace Qt::StringLiterals;
using converter::Kind;
using converter::Picture;

namespace {

constexpr int MostWide = 640;

QByteArray fixture(const QString &name)
{
    QFile file(FIXTURES "/others/"_L1 + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

QImage expectedOf(const QString &name)
{
    const QImage image(FIXTURES "/"_L1 + name + ".ppm"_L1);
    EXPECT_FALSE(image.isNull()) << name.toStdString();
    return image.convertToFormat(QImage::Format_RGB32);
}

Picture read(const QByteArray &bytes)
{
    return converter::readPicture(span(bytes), converter::kindOf(span(bytes)), MostWide);
}

QImage imageOf(const Picture &picture)
{
    EXPECT_TRUE(picture.palette.empty());
    QImage image(picture.width, picture.height, QImage::Format_RGB32);
    auto pixel = picture.pixels.begin();
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x, pixel += 3)
            image.setPixel(x, y, qRgb(pixel[0], pixel[1], pixel[2]));
    }
    return image;
}

QImage image(const QString &name)
{
    return imageOf(read(fixture(name)));
}

// The greatest of all channels.
int difference(const QImage &one, const QImage &other)
{
    EXPECT_EQ(one.size(), other.size());
    int greatest = 0;
    for (int y = 0; y < std::min(one.height(), other.height()); ++y) {
        for (int x = 0; x < std::min(one.width(), other.width()); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            greatest = std::max({ greatest, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                std::abs(qBlue(a) - qBlue(b)) });
        }
    }
    return greatest;
}

QString refusal(const QByteArray &bytes)
{
    try {
        read(bytes);
    } catch (const converter::TooLarge &failure) {
        return u"large: "_s + QString::fromUtf8(failure.what());
    } catch (const std::exception &failure) {
        return u"damaged: "_s + QString::fromUtf8(failure.what());
    }
    return {};
}

QStringList exactOnes()
{
    return QDir(FIXTURES "/others"_L1)
        .entryList({ u"true-*"_s, u"all256-*"_s, u"grey-*"_s, u"mono-*"_s }, QDir::Files);
}

QStringList all()
{
    return QDir(FIXTURES "/others"_L1).entryList(QDir::Files);
}

class Exact : public testing::TestWithParam<QString> { };
class Cut : public testing::TestWithParam<QString> { };

std::string nameOf(const testing::TestParamInfo<QString> &info)
{
    return QString(info.param).replace(u'-', u'_').replace(u'.', u'_').toStdString();
}

} // namespace

TEST_P(Exact, IsReadPixelByPixel)
{
    EXPECT_EQ(difference(image(GetParam()), expectedOf(GetParam().section(u'-', 0, 0))), 0);
}

INSTANTIATE_TEST_SUITE_P(Fixtures, Exact, testing::ValuesIn(exactOnes()), nameOf);

// What can be gone stands behind the first picture.
TEST_P(Cut, IsWholeOrRefused)
{
    const QByteArray whole = fixture(GetParam());
    const QImage expected = imageOf(read(whole));
    const qsizetype step = std::max<qsizetype>(1, whole.size() / 40);
    for (qsizetype length = 0; length < whole.size(); length += step) {
        const QByteArray cut = whole.first(length);
        if (refusal(cut).isEmpty()) {
            ASSERT_EQ(difference(imageOf(read(cut)), expected), 0) << length << " of " << whole.size();
        }
    }
    const bool several = GetParam().startsWith(u"several-") || GetParam().startsWith(u"part-");
    EXPECT_TRUE(several || !refusal(whole.first(whole.size() / 2)).isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Fixtures, Cut, testing::ValuesIn(all()), nameOf);

TEST(AnyPicture, FixturesAreThere)
{
    EXPECT_EQ(exactOnes().size(), 16);
    EXPECT_EQ(all().size(), 32);
}

TEST(AnyPicture, OfALossyKindIsNearIt_AndInRGBWhateverItWasIn)
{
    for (const QString &name : { u"lossy-pillow.jpg"_s, u"lossy-progressive.jpg"_s, u"lossy-cmyk.jpg"_s })
        EXPECT_LT(difference(image(name), expectedOf(u"true"_s)), 80) << name.toStdString();
}

// Its palette has 16 bits a channel, of which that program leaves the lower ones at nothing.
TEST(AnyPicture, OfATiffWithAPaletteHasItsColours)
{
    EXPECT_LE(difference(image(u"palette-pillow.tif"_s), expectedOf(u"all256"_s)), 1);
}

TEST(AnyPicture, StandsUpright)
{
    QTransform turn;
    turn.rotate(90);
    const QImage upright = expectedOf(u"true"_s).transformed(turn);
    EXPECT_EQ(difference(image(u"turned-pillow.tif"_s), upright), 0);
    EXPECT_LT(difference(image(u"turned-pillow.jpg"_s), upright), 80);
}

TEST(AnyPicture, LiesOnBlackWhereItCanBeSeenThrough)
{
    const QImage whole = expectedOf(u"true"_s);
    QImage half = whole;
    for (int y = 0; y < whole.height(); ++y) {
        for (int x = 0; x < whole.width(); ++x) {
            const QRgb is = whole.pixel(x, y);
            half.setPixel(x, y, qRgb(qRed(is) * 128 / 255, qGreen(is) * 128 / 255, qBlue(is) * 128 / 255));
        }
    }
    for (const QString &name : { u"half-pillow.png"_s, u"half-pillow.tif"_s, u"half-pillow.webp"_s })
        EXPECT_LE(difference(image(name), half), 1) << name.toStdString();
}

TEST(AnyPicture, IsTheFirstOfSeveral)
{
    for (const QString &ending : { u"png"_s, u"gif"_s, u"webp"_s, u"tif"_s }) {
        const QImage first = image(u"several-pillow."_s + ending);
        EXPECT_EQ(first.size(), QSize(60, 40)) << ending.toStdString();
        EXPECT_EQ(first.pixel(30, 20), qRgb(255, 0, 0)) << ending.toStdString();
    }
}

TEST(AnyPicture, LiesWhereItLiesInTheAnimation)
{
    for (const auto &[name, size] : { std::pair(u"part-webpmux.webp"_s, QSize(40, 30)),
             std::pair(u"part-imagemagick.gif"_s, QSize(60, 40)) }) {
        const QImage first = image(name);
        EXPECT_EQ(first.size(), size) << name.toStdString();
        EXPECT_EQ(first.pixel(5, 4), qRgb(0, 0, 0)) << name.toStdString();
        EXPECT_EQ(first.pixel(6, 4), qRgb(255, 0, 0)) << name.toStdString();
        EXPECT_EQ(first.pixel(25, 13), qRgb(255, 0, 0)) << name.toStdString();
        EXPECT_EQ(first.pixel(26, 14), qRgb(0, 0, 0)) << name.toStdString();
    }
}

TEST(AnyPicture, IsAtMostSoWide_InItsProportions)
{
    const QImage narrow = image(u"large-pillow.png"_s);
    ASSERT_EQ(narrow.size(), QSize(640, 448));
    const QImage whole = QImage::fromData(fixture(u"large-pillow.png"_s));
    EXPECT_EQ(narrow.pixel(10, 400), whole.pixel(16, 625));
}

TEST(AnyPicture, OfPCXIsAtMostSoWideToo)
{
    PcxFile file = { .bits = 8, .right = 1299, .bottom = 1, .planes = 3, .bytesPerLine = 1300 };
    file.data = QByteArray(1300, '\x40').toHex() + QByteArray(1300, '\x41').toHex()
        + QByteArray(1300, '\x42').toHex();
    file.data += file.data;
    const QImage narrow = imageOf(read(file.bytes()));
    EXPECT_EQ(narrow.size(), QSize(640, 1));
    EXPECT_EQ(narrow.pixel(639, 0), qRgb(0x40, 0x41, 0x42));
}

TEST(AnyPicture, ThatIsTooLargeIsRefusedByItsHeader)
{
    converter::startLibrary();
    converter::limitLibrary();
    const QString most = u"at most 40 million of them are read, and 65535 a side"_s;
    QByteArray png = fixture(u"true-pillow.png"_s);
    png.replace(16, 8, QByteArray::fromHex("000186A0000186A0"));
    EXPECT_EQ(refusal(png), u"large: 100000 by 100000 pixels; "_s + most);
    QByteArray jpeg = fixture(u"lossy-pillow.jpg"_s);
    jpeg.replace(jpeg.indexOf(QByteArray::fromHex("FFC0")) + 5, 4, QByteArray::fromHex("EA60EA60"));
    EXPECT_EQ(refusal(jpeg), u"large: "_s + most);
    QByteArray gif = fixture(u"part-imagemagick.gif"_s);
    gif.replace(6, 4, QByteArray::fromHex("FFFFFFFF"));
    EXPECT_EQ(refusal(gif), u"large: 65535 by 65535 pixels; "_s + most);
    QByteArray webp = fixture(u"part-webpmux.webp"_s);
    webp.replace(24, 6, QByteArray::fromHex("FF3F00FF3F00"));
    EXPECT_EQ(refusal(webp), u"large: 16384 by 16384 pixels; "_s + most);
}

TEST(AnyPicture, OfAKindThatIsNoneIsRefused)
{
    EXPECT_EQ(
        refusal("<svg xmlns='http://www.w3.org/2000/svg'/>"), u"damaged: it is no picture of a known kind"_s);
    EXPECT_EQ(refusal("push graphic-context"), u"damaged: it is no picture of a known kind"_s);
}
