// Pictures that other programs wrote: NAME-PROGRAM.pcx is NAME.ppm. make_fixtures.py made them.

#include "../host/disktest.h"
#include "converter/gif.h"
#include "pcxfile.h"

#include <QDir>
#include <QFile>
#include <QImage>

using namespace Qt::StringLiterals;

namespace {

constexpr QImage::Format Format = QImage::Format_RGB32;

class Fixture : public testing::TestWithParam<QString> {
protected:
    QByteArray bytes() const
    {
        QFile file(FIXTURES "/"_L1 + GetParam());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QImage expected() const
    {
        const QImage image(FIXTURES "/"_L1 + GetParam().section(u'-', 0, 0) + ".ppm"_L1);
        EXPECT_FALSE(image.isNull());
        return image.convertToFormat(Format);
    }
};

// Nothing if they are alike.
std::string firstDifference(const converter::Picture &picture, const QImage &image)
{
    if (QSize(picture.width, picture.height) != image.size())
        return "the size";
    auto pixel = picture.pixels.begin();
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            converter::Colour is;
            if (picture.palette.empty())
                is = { *pixel++, *pixel++, *pixel++ };
            else
                is = picture.palette.at(*pixel++);
            if (qRgb(is.red, is.green, is.blue) != image.pixel(x, y))
                return "the pixel " + std::to_string(x) + ", " + std::to_string(y);
        }
    }
    return {};
}

QStringList fixtures()
{
    return QDir(FIXTURES ""_L1).entryList({ u"*.pcx"_s });
}

TEST_P(Fixture, IsReadPixelByPixel)
{
    EXPECT_EQ(firstDifference(converter::readPcx(span(bytes())), expected()), "");
}

TEST_P(Fixture, HasItsExactColoursInTheGif_UpTo256)
{
    const std::string gif = converter::writeGif(converter::readPcx(span(bytes())));
    const QImage written = QImage::fromData(QByteArray::fromStdString(gif), "GIF").convertToFormat(Format);
    ASSERT_EQ(written.size(), expected().size());
    EXPECT_EQ(written == expected(), !GetParam().startsWith("true-"_L1));
}

// At every seventh byte, as decoding takes its time. Some of them end in bytes that aren't needed, which may
// be gone.
TEST_P(Fixture, IsWholeOrRefused_CutShortAnywhere)
{
    const QByteArray whole = bytes();
    const QImage image = expected();
    for (qsizetype length = 0; length < whole.size(); length += 7) {
        const QByteArray cut = whole.first(length);
        if (complaintAbout(cut).empty()) {
            ASSERT_EQ(firstDifference(converter::readPcx(span(cut)), image), "") << length;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Pcx, Fixture, testing::ValuesIn(fixtures()),
    [](const auto &fixture) { return fixture.param.chopped(4).replace(u'-', u'_').toStdString(); });

TEST(Fixtures, AreThere)
{
    EXPECT_EQ(fixtures().size(), 34);
}

} // namespace
