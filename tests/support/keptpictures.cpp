#include "tests/support/keptpictures.h"

#include <QDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

// The edges of letters and drawings differ a little between versions of the libraries that draw them.
constexpr int Near = 24; // levels of a colour channel; a pixel past it differs
constexpr double ShareAllowed = 0.001; // of all pixels: less than a button takes
constexpr double MeanAllowed = 0.2; // levels over all channels

int distance(QRgb a, QRgb b)
{
    return std::max(
        { std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b)) });
}

struct Difference {
    double mean = 0;
    double share = 0;
    QImage picture; // white where they differ most
};

Difference differenceOf(const QImage &shown, const QImage &kept)
{
    Difference result { 0, 0, QImage(shown.size(), QImage::Format_RGB32) };
    const double pixels = static_cast<double>(shown.width()) * shown.height();
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            const int far = distance(shown.pixel(x, y), kept.pixel(x, y));
            result.mean += far / pixels;
            result.share += far > Near ? 1 / pixels : 0;
            result.picture.setPixel(x, y, qRgb(far, far, far));
        }
    }
    return result;
}

} // namespace

void expectAsKept(const QImage &shown, const QString &name, const QString &kept, const QString &differences)
{
    const QString file = kept + u'/' + name + u".png"_s;
    if (qEnvironmentVariableIsSet("RENEW_PICTURES")) {
        ASSERT_TRUE(QDir().mkpath(kept) && shown.save(file)) << file.toStdString();
        return;
    }
    const QImage before(file);
    ASSERT_EQ(shown.size(), before.size()) << "no such picture: " << file.toStdString();
    const Difference difference = differenceOf(shown, before);
    if (difference.mean <= MeanAllowed && difference.share <= ShareAllowed)
        return;
    const QString left = differences + u'/' + name;
    difference.picture.save(left + u"-difference.png"_s);
    shown.save(left + u".png"_s);
    ADD_FAILURE() << name.toStdString() << " differs by " << difference.mean << " levels, and in "
                  << difference.share * 100 << "% of its pixels; see " << differences.toStdString();
}
