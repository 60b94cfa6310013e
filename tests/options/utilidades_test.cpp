// The conversion of captures: which files, in what order, what is told of it, and what goes on meanwhile.

#include "opcionestest.h"

#include "tests/support/ordinaryuser.h"

#include "forms/commandbutton.h"

#include "host/paths.h"

#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QRegularExpression>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class UtilidadesTest : public OpcionesTest {
protected:
    UtilidadesTest() { converter("printf '%s|' \"$@\" >> ../record; : > \"$1.gif\""); }

    // What stands in the converter's place; it runs in the directory of the captures.
    void converter(const QByteArray &script)
    {
        files.write(u"Cvtgif15.exe"_s, "#!/bin/sh\n" + script + "\n");
        QFile(files.path(u"Cvtgif15.exe"_s))
            .setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    // One capture after the other waits until there is a file of this name beside the settings.
    void converterWaitsFor(const QString &name)
    {
        converter("while [ ! -e ../" + name.toUtf8()
            + " ]; do /bin/sleep 0.01; done\nprintf '%s|' \"$1\" >> "
              "../record; : > \"$1.gif\"");
    }
    void realConverter()
    {
        files.remove(u"Cvtgif15.exe"_s);
        ASSERT_TRUE(QFile::link(QStringLiteral(CONVERTER), files.path(u"Cvtgif15.exe"_s)));
    }

    // A capture of four pixels in one colour.
    static QByteArray pcx(const QColor &colour)
    {
        QByteArray bytes(128, '\0');
        bytes[0] = 10; // the mark, version 5, run lengths, 8 bits
        bytes[1] = 5;
        bytes[2] = 1;
        bytes[3] = 8;
        bytes[8] = 1; // from 0,0 to 1,1
        bytes[10] = 1;
        bytes[65] = 1; // one plane of two bytes a line
        bytes[66] = 2;
        bytes += QByteArray(4, '\x01') + '\x0c';
        QByteArray palette(768, '\0');
        palette[3] = char(colour.red());
        palette[4] = char(colour.green());
        palette[5] = char(colour.blue());
        return bytes + palette;
    }
    void writeCaptures(const QStringList &names)
    {
        for (const QString &name : names)
            files.write(u"zetacap/"_s + name, pcx(Qt::blue));
    }
    QStringList captures() const
    {
        return host::listFilesAndDirectories(files.path(u"zetacap"_s))
            .filter(QRegularExpression(u"pcx$"_s, QRegularExpression::CaseInsensitiveOption));
    }
    QString record() const
    {
        return files.exists(u"record"_s) ? QString::fromUtf8(files.read(u"record"_s)) : QString();
    }

    void utilities(const std::function<void(forms::Form &)> &act)
    {
        open(u"Boton3b"_s, u"Utilidades"_s, act);
    }
    static forms::CommandButton &convertButton(const forms::Form &form)
    {
        return controlOf<forms::CommandButton>(form, u"Boton1"_s);
    }
    // Presses the button, and takes the box that comes.
    Box convert(forms::Form &form)
    {
        Box box;
        announceBox(box);
        click(convertButton(form));
        return box;
    }
    Box converted()
    {
        Box box;
        utilities([&](forms::Form &form) { box = convert(form); });
        return box;
    }
    std::optional<ProcessEnd> endOfConverting()
    {
        std::optional<ProcessEnd> end;
        utilities([&](forms::Form &form) {
            end = endOf([&] { convertButton(form).Click.raise(); });
            form.Unload(); // the process would be gone
        });
        return end;
    }
    static Box report(const QString &text)
    {
        return { u"S:Msg_IMGTransXX"_s, text, { u"S:TXT_Aceptar"_s, u"S:TXT_Volver"_s }, false };
    }
    // Runs once the run has begun, within it.
    static void meanwhile(const std::function<void()> &act) { QTimer::singleShot(0, qApp, act); }
};

} // namespace

TEST_F(UtilidadesTest, ControlsStandInTheirPlacesWithTheWordsOfTheLanguage)
{
    startAt(Zeta, 0);
    utilities([this](forms::Form &form) {
        expectPlaces(form,
            {
                { u"TXT_Convertir"_s, designPlace(120, 120, 1935, 615) },
                { u"Boton1"_s, designPlace(120, 840, 495, 315) },
                { u"Flecha2"_s, designPlace(200, 1500, 615, 375) },
            });
        EXPECT_EQ(controlOf<QWidget>(form, u"Linea1"_s).height(), 1);
        EXPECT_EQ(form.size(), QSize(142, 148));
        EXPECT_EQ(form.Control(u"Flecha1"_s), form.Control(u"Flecha2"_s));
        EXPECT_EQ(form.geometry().center(), portada->geometry().center());
        EXPECT_EQ(form.palette().color(QPalette::Window), QColor(0, 0, 64));
        expectTiled(form);
        EXPECT_TRUE(form.windowFlags().testFlag(Qt::WindowCloseButtonHint));
        EXPECT_EQ(form.Caption(), u"S:TXT_TituloUtil"_s);
        EXPECT_EQ(captionOf(form, u"TXT_Convertir"_s), u"S:TXT_Convertir"_s);
        EXPECT_EQ(captionOf(form, u"TXT_Volver"_s), u"S:TXT_Volver"_s);
        EXPECT_EQ(convertButton(form).Caption(), u"S:TXT_Si"_s);
        EXPECT_EQ(convertButton(form).accessibleName(), u"S:TXT_Convertir"_s);
        EXPECT_EQ(controlOf<QWidget>(form, u"Flecha2"_s).accessibleName(), u"S:TXT_Volver"_s);
    });
}

TEST_F(UtilidadesTest, WithoutAnEmulatorNothingHappens)
{
    startWithoutEmulator(Alfa);
    utilities([](forms::Form &form) {
        click(convertButton(form)); // a box would be unexpected
        EXPECT_TRUE(convertButton(form).isEnabled());
    });
}

TEST_F(UtilidadesTest, WithoutACaptureItSaysSo)
{
    startAt(Zeta, 0);
    utilities([this](forms::Form &form) { EXPECT_EQ(convert(form), warningOf(u"Msg_NingunPCX"_s)); });
    files.remove(u"zetacap"_s);
    EXPECT_EQ(converted(), warningOf(u"Msg_NingunPCX"_s));
}

TEST_F(UtilidadesTest, WithoutADirectoryOfCapturesTheWorkingDirectoryStaysAsItIs)
{
    files.write(u"here.pcx"_s, pcx(Qt::blue));
    startAt(Medio, 0);
    host::changeDirectory(files.path());
    EXPECT_EQ(converted(), warningOf(u"Msg_NingunPCX"_s));
    EXPECT_TRUE(files.exists(u"here.pcx"_s));
}

TEST_F(UtilidadesTest, ALineShorterThanItsPrefixEndsTheProgram)
{
    startAt(Zeta, 0);
    M->Cat_IMG(0, 1) = u"IMG"_s;
    const auto end = endOfConverting();
    ASSERT_TRUE(end);
    EXPECT_TRUE(end->text.contains(u"(ERR5)"_s)) << end->text.toStdString();
}

TEST_F(UtilidadesTest, AHundredCapturesAreConverted_OneOfThemDamaged)
{
    realConverter();
    QStringList names;
    for (int i = 0; i < 100; ++i)
        names << u"Game %1.pcx"_s.arg(i, 2, 10, QChar(u'0'));
    writeCaptures(names);
    files.write(u"zetacap/Game 41.pcx"_s, "no picture");
    startAt(Zeta, 0);
    EXPECT_EQ(converted(), report(u"S:Msg_IMGTransMI 100 S:Msg_IMGTransMD"_s));
    EXPECT_THAT(captures(), IsEmpty());
    for (int i = 0; i < 100; ++i) {
        const QString name = u"zetacap/Game %1.GIF"_s.arg(i, 2, 10, QChar(u'0'));
        EXPECT_EQ(files.exists(name), i != 41) << name.toStdString();
        if (i != 41) {
            EXPECT_EQ(QImage(files.path(name)).pixelColor(1, 1), QColor(Qt::blue)) << name.toStdString();
        }
    }
}

TEST_F(UtilidadesTest, OneCaptureIsToldInTheSingular)
{
    writeCaptures({ u"a.pcx"_s });
    startAt(Zeta, 0);
    EXPECT_EQ(converted(), report(u"S:Msg_IMGTrans1I 1 S:Msg_IMGTrans1D"_s));
}

TEST_F(UtilidadesTest, ADirectoryOfCapturesCountsFromTheProgramsDirectory)
{
    writeCaptures({ u"a.pcx"_s });
    systemsOfCatalogue[0].emulators[0].captures = u"zetacap/"_s;
    files.writeCatalogue(systemsOfCatalogue);
    startAt(Zeta, 0);
    host::changeDirectory(u"/"_s);
    EXPECT_EQ(converted(), report(u"S:Msg_IMGTrans1I 1 S:Msg_IMGTrans1D"_s));
    EXPECT_THAT(captures(), testing::Not(testing::Contains(u"a.pcx"_s)));
}

TEST_F(UtilidadesTest, WhereNothingCanBeWrittenNoCaptureIsTouched)
{
    writeCaptures({ u"a.pcx"_s, u"b.pcx"_s });
    startAt(Zeta, 0);
    utilities([this](forms::Form &form) {
        const AsOrdinaryUser user(files.path());
        EXPECT_EQ(convert(form),
            (Box { u"S:Zem_SoloLeer0"_s, u"S:Zem_SoloCapt1"_s, warningOf(u"Msg_NingunPCX"_s).words, true }));
    });
    EXPECT_EQ(captures().size(), 2);
    EXPECT_EQ(record(), QString());
}

TEST_F(UtilidadesTest, EachNameIsOneArgumentWhateverItHolds_InTheOrderOfNames)
{
    writeCaptures({ u"b $(x) \"q\" 'a';.PCX"_s, u"A.Pcx"_s, u"Nopcx"_s, u"-v.pcx"_s });
    files.write(u"zetacap/other.pcxx"_s, "x");
    startAt(Zeta, 0);
    EXPECT_EQ(converted(), report(u"S:Msg_IMGTransMI 4 S:Msg_IMGTransMD"_s));
    EXPECT_EQ(record(), u"-v.pcx|A.Pcx|b $(x) \"q\" 'a';.PCX|Nopcx|"_s);
    EXPECT_THAT(captures(), IsEmpty());
    EXPECT_TRUE(files.exists(u"zetacap/other.pcxx"_s));
    EXPECT_TRUE(files.exists(u"zetacap/A.Pcx.gif"_s));
}

TEST_F(UtilidadesTest, ADirectoryNamedLikeACaptureEndsTheRunWithItsName)
{
    realConverter();
    writeCaptures({ u"a.pcx"_s, u"b.pcx"_s, u"d.pcx"_s });
    files.write(u"zetacap/c.pcx/kept"_s, "x");
    startAt(Zeta, 0);
    const auto end = endOfConverting();
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 1);
    EXPECT_TRUE(end->text.endsWith(files.path(u"zetacap/c.pcx"_s))) << end->text.toStdString();
    EXPECT_THAT(captures(), ElementsAre(u"c.pcx"_s, u"d.pcx"_s));
    EXPECT_TRUE(files.exists(u"zetacap/a.GIF"_s));
    EXPECT_TRUE(files.exists(u"zetacap/b.GIF"_s));
    EXPECT_FALSE(files.exists(u"zetacap/d.GIF"_s));
    EXPECT_TRUE(files.exists(u"zetacap/c.pcx/kept"_s));
}

TEST_F(UtilidadesTest, ANewRunGoesOnWithWhatAFatalOneLeft)
{
    realConverter();
    writeCaptures({ u"a.pcx"_s, u"d.pcx"_s, u"e.pcx"_s });
    files.write(u"zetacap/c.pcx/kept"_s, "x");
    startAt(Zeta, 0);
    ASSERT_TRUE(endOfConverting());
    files.remove(u"zetacap/c.pcx"_s);
    renewJoined();
    startAt(Zeta, 0);
    EXPECT_EQ(converted(), report(u"S:Msg_IMGTransMI 2 S:Msg_IMGTransMD"_s));
    EXPECT_THAT(captures(), IsEmpty());
    for (const QString &name : { u"a"_s, u"d"_s, u"e"_s })
        EXPECT_TRUE(files.exists(u"zetacap/"_s + name + u".GIF"_s)) << name.toStdString();
}

TEST_F(UtilidadesTest, ACaptureThatMayNotBeWrittenStaysAndEndsTheRun)
{
    writeCaptures({ u"a.pcx"_s });
    EXPECT_EQ(chmod(files.path(u"zetacap/a.pcx"_s).toUtf8().constData(), 0444), 0);
    startAt(Zeta, 0);
    const auto end = endOfConverting();
    ASSERT_TRUE(end);
    EXPECT_TRUE(end->text.contains(u"(ERR75)"_s)) << end->text.toStdString();
    EXPECT_THAT(captures(), ElementsAre(u"a.pcx"_s));
}

TEST_F(UtilidadesTest, WithoutAConverterTheCapturesGoAllTheSame)
{
    writeCaptures({ u"a.pcx"_s, u"b.pcx"_s });
    startAt(Zeta, 0);
    files.remove(u"Cvtgif15.exe"_s);
    EXPECT_EQ(converted(), report(u"S:Msg_IMGTransMI 2 S:Msg_IMGTransMD"_s));
    EXPECT_THAT(captures(), IsEmpty());
}

TEST_F(UtilidadesTest, MoreCapturesThanOneRunHoldsEndTheProgramBeforeTheFirst)
{
    for (int i = 0; i < 5002; ++i)
        files.write(u"zetacap/%1.pcx"_s.arg(i), {});
    startAt(Zeta, 0);
    const auto end = endOfConverting();
    ASSERT_TRUE(end);
    EXPECT_TRUE(end->text.contains(u"(ERR9)"_s)) << end->text.toStdString();
    EXPECT_EQ(captures().size(), 5002);
    EXPECT_EQ(record(), QString());
}

TEST_F(UtilidadesTest, DuringTheRunThePointerWaitsAndTheControlsAreDisabled)
{
    writeCaptures({ u"a.pcx"_s });
    converterWaitsFor(u"go"_s);
    startAt(Zeta, 0);
    utilities([this](forms::Form &form) {
        auto &arrow = controlOf<forms::PictureButton>(form, u"Flecha2"_s);
        meanwhile([&] {
            EXPECT_EQ(form.cursor().shape(), Qt::WaitCursor);
            EXPECT_FALSE(convertButton(form).isEnabled());
            EXPECT_FALSE(arrow.isEnabled());
            click(arrow);
            EXPECT_TRUE(form.isVisible());
            EXPECT_EQ(M->TituloDOS, u"CVTGIF15"_s);
            EXPECT_EQ(M->RutaTrabajo, files.path(u"zetacap/"_s));
            EXPECT_EQ(host::currentDirectory(), files.path(u"zetacap"_s));
            files.write(u"go"_s, {});
        });
        EXPECT_FALSE(convert(form).warning);
        EXPECT_EQ(form.cursor().shape(), Qt::ArrowCursor);
        EXPECT_TRUE(convertButton(form).isEnabled());
        EXPECT_TRUE(arrow.isEnabled());
        EXPECT_EQ(host::currentDirectory(), files.path());
    });
}

TEST_F(UtilidadesTest, TheNewCaptureShowsOnTheMainScreen)
{
    realConverter();
    files.write(u"zetacap/ONE.PCX"_s, pcx(Qt::green));
    startAt(Zeta, 0);
    EXPECT_EQ(list().Text(), u"Juego uno"_s);
    EXPECT_EQ(capture(), QColor(Qt::red));
    converted();
    EXPECT_EQ(capture(), QColor(Qt::green));
    EXPECT_EQ(list().Text(), u"Juego uno"_s);
}

TEST_F(UtilidadesTest, WhereNoGameIsListedNoneIsSelectedAfterwards)
{
    writeCaptures({ u"a.pcx"_s });
    startAt(Zeta, 0);
    list().Clear();
    EXPECT_EQ(converted(), report(u"S:Msg_IMGTrans1I 1 S:Msg_IMGTrans1D"_s));
    EXPECT_EQ(list().ListIndex(), -1);
    EXPECT_EQ(list().ListCount(), 0);
}

TEST_F(UtilidadesTest, WhereNoGameIsSelectedNoneIsAfterwards)
{
    writeCaptures({ u"a.pcx"_s });
    startAt(Zeta, 0);
    list().SetListIndex(-1);
    EXPECT_EQ(converted(), report(u"S:Msg_IMGTrans1I 1 S:Msg_IMGTrans1D"_s));
    EXPECT_EQ(list().ListIndex(), -1);
}

TEST_F(UtilidadesTest, ClosedDuringTheRunTheScreenIsAliveAndTheRunGoesOn)
{
    writeCaptures({ u"a.pcx"_s, u"b.pcx"_s });
    converterWaitsFor(u"go"_s);
    startAt(Zeta, 0);
    atModal(u"Utilidades"_s, [this](forms::Form &form) {
        meanwhile([&] {
            wishClose(form);
            EXPECT_FALSE(form.isVisible());
            portada->activateWindow();
            EXPECT_TRUE(waitUntil([this] { return portada->isActiveWindow(); }));
            clickRow(list(), 1);
            EXPECT_EQ(list().ListIndex(), 1);
            EXPECT_THAT(captures(), ElementsAre(u"a.pcx"_s, u"b.pcx"_s));
            files.write(u"go"_s, {});
        });
        EXPECT_EQ(convert(form), report(u"S:Msg_IMGTransMI 2 S:Msg_IMGTransMD"_s));
        EXPECT_FALSE(form.isVisible());
    });
    click(control(u"Boton3b"_s));
    EXPECT_EQ(record(), u"a.pcx|b.pcx|"_s);
    EXPECT_THAT(captures(), IsEmpty());
    EXPECT_EQ(list().ListIndex(), 1);
    utilities([](forms::Form &form) { EXPECT_TRUE(convertButton(form).isEnabled()); });
}

TEST_F(UtilidadesTest, OpenedAgainDuringTheRunItIsTheSameScreenAndTheRunGoesOn)
{
    writeCaptures({ u"a.pcx"_s, u"b.pcx"_s });
    converterWaitsFor(u"go"_s);
    startAt(Zeta, 0);
    atModal(u"Utilidades"_s, [this](forms::Form &form) {
        meanwhile([&] {
            wishClose(form);
            click(control(u"Boton3b"_s));
            EXPECT_TRUE(form.isVisible());
            EXPECT_FALSE(convertButton(form).isEnabled());
            files.write(u"go"_s, {});
        });
        EXPECT_EQ(convert(form), report(u"S:Msg_IMGTransMI 2 S:Msg_IMGTransMD"_s));
        EXPECT_TRUE(form.isVisible());
        click(controlOf<QWidget>(form, u"Flecha2"_s));
    });
    click(control(u"Boton3b"_s));
    EXPECT_EQ(record(), u"a.pcx|b.pcx|"_s);
}

TEST_F(UtilidadesTest, AWorkingDirectoryMovedMeanwhileCostsNothing)
{
    writeCaptures({ u"a.pcx"_s, u"b.pcx"_s });
    files.write(u"medio/a.pcx"_s, "another");
    files.write(u"medio/b.pcx"_s, "another");
    converterWaitsFor(u"go"_s);
    startAt(Zeta, 0);
    utilities([this](forms::Form &form) {
        meanwhile([this] {
            host::changeDirectory(files.path(u"medio"_s));
            files.write(u"go"_s, {});
        });
        convert(form);
    });
    EXPECT_TRUE(files.exists(u"zetacap/b.pcx.gif"_s));
    EXPECT_THAT(captures(), IsEmpty());
    EXPECT_TRUE(files.exists(u"medio/a.pcx"_s));
    EXPECT_TRUE(files.exists(u"medio/b.pcx"_s));
}

TEST_F(UtilidadesTest, ItsLoadingLoadsTheOptionsToo)
{
    startAt(Zeta, 0);
    utilities([](forms::Form &) {});
    EXPECT_EQ(M->IdiomaCambiado, 1);
    EXPECT_EQ(M->IdiomaPrevio, u"ZB-ESP.LNG"_s);
    writeLanguage(u"ZB-NEW.LNG"_s, u"N:"_s);
    options([](forms::Form &form) { EXPECT_EQ(comboOf(form, u"Combo2"_s).ListCount(), 2); });
    options([](forms::Form &form) { EXPECT_EQ(comboOf(form, u"Combo2"_s).ListCount(), 3); });
}

TEST_F(UtilidadesTest, MoreLanguagesThanTheOptionsHoldEndTheProgramHere)
{
    startAt(Zeta, 0);
    for (int i = 0; i < 100; ++i)
        files.write(u"LNG/A%1.LNG"_s.arg(i), "' \r\n");
    const auto end = endOf([this] { portada->Boton3b->Release.raise(); });
    ASSERT_TRUE(end);
    EXPECT_TRUE(end->text.contains(u"(ERR9)"_s)) << end->text.toStdString();
}

TEST_F(UtilidadesTest, TheArrowAndTheCloseBoxGoBack_AndEscapeDoesNothing)
{
    startAt(Zeta, 0);
    utilities([](forms::Form &form) {
        auto &arrow = controlOf<forms::PictureButton>(form, u"Flecha2"_s);
        press(arrow, Qt::RightButton);
        EXPECT_TRUE(arrow.ShowsPressed());
        releaseAt(arrow, QPoint(90, 0), Qt::RightButton);
        EXPECT_FALSE(form.isVisible());
    });
    utilities([](forms::Form &form) {
        strike(form, Qt::Key_Escape);
        EXPECT_TRUE(form.isVisible());
        wishClose(form);
        EXPECT_FALSE(form.isVisible());
    });
}
