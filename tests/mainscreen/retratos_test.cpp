// Pictures of the main screen in its states, against kept ones. RENEW_PICTURES=1 keeps what is shown now.

#include "mundotest.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

const QString Kept = QStringLiteral(KEPT_PICTURES "/");
const QString Differences = QStringLiteral(BUILD_DIRECTORY "/");

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

class RetratosTest : public MundoTest {
protected:
    RetratosTest()
    {
        systemsOfCatalogue[0].emulators[0].executable = files.path(u"emu/uno"_s);
        files.writeCatalogue(systemsOfCatalogue);
        files.write(u"emu/readme.txt"_s, "Press any key to begin.\r\nA second line.\r\n");
        QFile language(QStringLiteral(DELIVERED "/LNG/ZB-ESP.LNG"));
        EXPECT_TRUE(language.open(QIODevice::ReadOnly));
        files.write(u"LNG/ZB-ESP.LNG"_s, language.readAll());
    }

    void startWith(const QString &editor, int game)
    {
        Settings settings;
        settings.LastSisUsed = QString::number(Zeta);
        settings.TypeOfEditor = editor;
        files.writeSettings(settings);
        start();
        clickRow(list(), game);
        moveTo(control(u"Graf_TV"_s), QPoint(6, 60));
    }

    void expectAsKept(const QString &name)
    {
        const QImage shown = pictureOf(*portada);
        const QString file = Kept + name + u".png"_s;
        if (qEnvironmentVariableIsSet("RENEW_PICTURES")) {
            ASSERT_TRUE(QDir().mkpath(Kept) && shown.save(file)) << file.toStdString();
            return;
        }
        const QImage kept(file);
        ASSERT_EQ(shown.size(), kept.size()) << "no such picture: " << file.toStdString();
        const Difference difference = differenceOf(shown, kept);
        if (difference.mean <= MeanAllowed && difference.share <= ShareAllowed)
            return;
        difference.picture.save(Differences + name + u"-difference.png"_s);
        shown.save(Differences + name + u".png"_s);
        ADD_FAILURE() << name.toStdString() << " differs by " << difference.mean << " levels, and in "
                      << difference.share * 100 << "% of its pixels; see " << Differences.toStdString();
    }
};

} // namespace

TEST_F(RetratosTest, WithACapture)
{
    startWith(u"1"_s, 0);
    expectAsKept(u"capture"_s);
}

TEST_F(RetratosTest, WithoutACapture)
{
    startWith(u"1"_s, 1);
    expectAsKept(u"no-capture"_s);
}

TEST_F(RetratosTest, WithTheSetOff)
{
    startWith(u"1"_s, 0);
    click(control(u"OFF"_s));
    expectAsKept(u"off"_s);
}

TEST_F(RetratosTest, WithAButtonHeldDown)
{
    startWith(u"1"_s, 0);
    control<forms::PictureButton>(u"JugarB1"_s).Release = [] {};
    press(control(u"JugarB1"_s));
    expectAsKept(u"pressed"_s);
    release(control(u"JugarB1"_s));
}

TEST_F(RetratosTest, WithTheEditorInEitherOfItsColours)
{
    for (const auto &[editor, name] :
        { std::pair(u"0"_s, u"editor-console"_s), std::pair(u"1"_s, u"editor-system"_s) }) {
        startWith(editor, 0);
        click(control(u"BotonC2"_s));
        ASSERT_TRUE(portada->Editor->isVisible());
        portada->Editor->setCursorWidth(0); // it blinks
        expectAsKept(name);
        renew();
    }
}
