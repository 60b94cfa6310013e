// The first run: the languages it offers, the settings it writes, and the start around it.

#include "tests/support/ordinaryuser.h"
#include "tests/support/portadatest.h"

#include "options/primerainstalacion.h"

#include <QFontInfo>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// The settings as first written, with a language.
QByteArray firstSettings(const QByteArray &language)
{
    return "'                +----------------------------------+\r\n"
           "'                |            Zembrolix             |\r\n"
           "'                |  =- Archivo de configuracion -=  |\r\n"
           "'                |     =- Configuration file -=     |\r\n"
           "'                +----------------------------------+\r\n"
           "'\r\n"
           "'          * Please don't manipulate this file manually\r\n"
           "'          * Por favor no manipular este archivo manualmente\r\n"
           "'\r\n"
           "\r\n"
           "[General]\r\n"
           "LastSisUsed = 0\r\n"
           "LastEmuUsed = 0\r\n"
           "SaveLastEmu&Sis = 1\r\n"
           "TypeOfEditor = 1\r\n"
           "MsgEndDOS = Finalizado\r\n"
           "LanguageFile = "
        + language
        + "\r\n"
          "DebugMode = 0\r\n"
          "\r\n"
          "[Filters]\r\n"
          "ARTWORK\r\nCABINETS\r\nCFG\r\nDATAS\r\nFLYERS\r\nHI\r\nICONS\r\nIMAGES\r\nINP\r\nLOGS\r\nMEMCARD\r"
          "\nPCX\r\n"
          "ROMS\r\nSAMPLES\r\nSAVES\r\nSNAP\r\nTRACPLAY\r\nZIPROMS\r\nZIPSAMPL\r\n"
          "\r\n"
          "[EOF]\r\n";
}

QStringList entriesOf(const forms::ListBox &list)
{
    QStringList entries;
    for (int i = 0; i < list.ListCount(); ++i)
        entries << list.List(i);
    return entries;
}

} // namespace

class PrimeraInstalacionTest : public ScreenTest {
protected:
    PrimeraInstalacionTest() { files.write(u"Zembro.cfg"_s, "VACIO"); }

    void addLanguage(const QString &name, const QString &credits)
    {
        files.writeLines(u"LNG/"_s + name, { u"' x"_s, languageLine(u"TXT_InfoLNG"_s, credits) });
    }
    // Shows the form; `act` drives it, and has to close it.
    void show(std::function<void(forms::Form &)> act)
    {
        atModal(u"PrimeraInstalacion"_s, std::move(act));
        forms::FormHolder<options::PrimeraInstalacion> holder(
            [this] { return std::make_unique<options::PrimeraInstalacion>(M); });
        holder.ShowModal(nullptr);
    }
    static forms::ListBox &list(const forms::Form &form)
    {
        return controlOf<forms::ListBox>(form, u"List1"_s);
    }
    static QString credits(const forms::Form &form)
    {
        return controlOf<forms::Label>(form, u"Label6"_s).Caption();
    }
    static forms::PictureButton &accept(const forms::Form &form)
    {
        return controlOf<forms::PictureButton>(form, u"Aceptar2"_s);
    }

    ProgramDirectory files;
    core::Modulo M;
};

TEST_F(PrimeraInstalacionTest, ControlsStandInTheirPlaces)
{
    const options::PrimeraInstalacion form(M);
    const struct {
        QString name;
        QRect place;
    } controls[] = {
        { u"List1"_s, designPlace(360, 270, 1335, 1425) },
        { u"Label1"_s, designPlace(1800, 270, 975, 615) },
        { u"Aceptar2"_s, designPlace(1800, 960, 465, 405) },
        { u"TXT_Aceptar"_s, designPlace(1875, 1440, 255, 210) },
        { u"Label6"_s, designPlace(170, 1800, 2430, 255) },
        { u"File1"_s, designPlace(360, 240, 975, 870) },
    };
    for (const auto &expected : controls)
        EXPECT_EQ(controlOf<QWidget>(form, expected.name).geometry(), expected.place)
            << expected.name.toStdString();
    EXPECT_EQ(form.size(), QSize(188, 154));
    EXPECT_TRUE(form.windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(form.Control(u"Aceptar1"_s), form.Control(u"Aceptar2"_s));
    EXPECT_TRUE(controlOf<QWidget>(form, u"File1"_s).isHidden());
}

TEST_F(PrimeraInstalacionTest, LabelsHaveTheirWordsAndColours)
{
    const options::PrimeraInstalacion form(M);
    const struct {
        QString name;
        QString text;
        QColor colour;
        bool centred;
    } labels[] = {
        { u"Label1"_s, u"Idioma   Language     Lingua"_s, QColor(128, 255, 255), false },
        { u"TXT_Aceptar"_s, u"OK"_s, QColor(192, 255, 192), true },
        { u"Label6"_s, u"Lng: Español"_s, QColor(128, 255, 128), true },
    };
    for (const auto &expected : labels) {
        SCOPED_TRACE(expected.name.toStdString());
        const auto &label = controlOf<forms::Label>(form, expected.name);
        EXPECT_EQ(label.Caption(), expected.text);
        EXPECT_EQ(label.ForeColor(), expected.colour);
        EXPECT_EQ(label.alignment().testFlag(Qt::AlignHCenter), expected.centred);
        EXPECT_EQ(QFontInfo(label.font()).family(), u"Liberation Sans"_s);
        EXPECT_EQ(label.font().pixelSize(), 11);
    }
    EXPECT_TRUE(controlOf<forms::Label>(form, u"Label1"_s).wordWrap());
}

TEST_F(PrimeraInstalacionTest, BackgroundIsPaintedOverItAll)
{
    options::PrimeraInstalacion form(M);
    const QColor bare = form.palette().color(QPalette::Window);
    const QImage picture = pictureOf(form);
    for (const QPoint corner : { QPoint(0, 0), QPoint(187, 0), QPoint(0, 153), QPoint(187, 153) })
        EXPECT_NE(picture.pixelColor(corner), bare) << corner.x() << ',' << corner.y();
}

TEST_F(PrimeraInstalacionTest, LanguagesAreListedInUpperCaseInTheOrderOfTheirNames)
{
    addLanguage(u"zb-eng.lng"_s, u"English"_s);
    addLanguage(u"Zb-Ita.Lng"_s, u"Italiano"_s);
    addLanguage(u"AB-CAT.LNG"_s, u"Català"_s);
    files.write(u"LNG/notes.txt"_s, "x");
    files.makeDirectory(u"LNG/ZB-DIR.LNG"_s);
    const options::PrimeraInstalacion form(M);
    EXPECT_THAT(entriesOf(list(form)),
        ElementsAre(u"AB-CAT.LNG"_s, u"ZB-ENG.LNG"_s, u"ZB-ESP.LNG"_s, u"ZB-ITA.LNG"_s));
    EXPECT_EQ(list(form).Text(), u"ZB-ESP.LNG"_s);
    EXPECT_EQ(credits(form), u"Lng: Español"_s);
    EXPECT_EQ(M.ListaLNG(0), u"Català"_s);
    EXPECT_EQ(M.ListaLNG(1), u"English"_s);
    EXPECT_EQ(M.ListaLNG(3), u"Italiano"_s);
    EXPECT_FALSE(M.Ficheros.isOpen(1));
}

TEST_F(PrimeraInstalacionTest, LanguagesThatTheSettingsWouldNotGiveBackAreNotOffered)
{
    addLanguage(u"A=B.LNG"_s, u"No"_s);
    addLanguage(u"a,vacio,b.lng"_s, u"No"_s);
    addLanguage(u"ZB-ITA.LNG"_s, u"Italiano"_s);
    const options::PrimeraInstalacion form(M);
    EXPECT_THAT(entriesOf(list(form)), ElementsAre(u"ZB-ESP.LNG"_s, u"ZB-ITA.LNG"_s));
    EXPECT_EQ(M.ListaLNG(1), u"Italiano"_s);
}

TEST_F(PrimeraInstalacionTest, WithoutTheOwnLanguageNoneIsSelected)
{
    files.remove(u"LNG/ZB-ESP.LNG"_s);
    addLanguage(u"ZB-ENG.LNG"_s, u"English"_s);
    const options::PrimeraInstalacion form(M);
    EXPECT_EQ(list(form).ListIndex(), -1);
    EXPECT_EQ(credits(form), u"Lng: Español - Autor: Dorvel"_s);
}

TEST_F(PrimeraInstalacionTest, ClickShowsTheCreditsOfTheLanguage)
{
    addLanguage(u"ZB-ENG.LNG"_s, u"Lng: English"_s);
    files.writeLines(u"LNG/ZB-ITA.LNG"_s, { u"' none"_s });
    show([](forms::Form &form) {
        clickRow(list(form), 0);
        EXPECT_EQ(credits(form), u"Lng: English"_s);
        clickRow(list(form), 2);
        EXPECT_EQ(list(form).Text(), u"ZB-ITA.LNG"_s);
        EXPECT_EQ(credits(form), QString());
        clickRow(list(form), 1);
        EXPECT_EQ(credits(form), u"Lng: Español"_s);
        click(accept(form));
    });
}

TEST_F(PrimeraInstalacionTest, CreditsAreCutByPositionAndFromTheFirstLineOfTheirKey)
{
    files.writeLines(u"LNG/ZB-A.LNG"_s,
        { u"TXT_Jugar.........=\"x\""_s, u"TXT_InfoLNG=\"una línea torcida\""_s,
            languageLine(u"TXT_InfoLNG"_s, u"otra"_s) });
    const options::PrimeraInstalacion form(M);
    EXPECT_EQ(M.ListaLNG(0), u"ea torcida"_s);
}

TEST_F(PrimeraInstalacionTest, OnlyTheFirstHundredAndOneLanguagesAreOffered)
{
    for (int i = 0; i < 101; ++i)
        addLanguage(u"A%1.LNG"_s.arg(i, 3, 10, QChar(u'0')), QString::number(i));
    const options::PrimeraInstalacion form(M);
    EXPECT_EQ(list(form).ListCount(), 101);
    EXPECT_EQ(list(form).List(100), u"A100.LNG"_s);
    EXPECT_EQ(M.ListaLNG(100), u"100"_s);
    EXPECT_EQ(list(form).ListIndex(), -1);
}

TEST_F(PrimeraInstalacionTest, PressWritesTheSettingsAndTheReleaseCloses)
{
    show([this](forms::Form &form) {
        EXPECT_EQ(files.read(u"Zembro.cfg"_s), QByteArray("VACIO"));
        press(accept(form));
        EXPECT_TRUE(accept(form).ShowsPressed());
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(files.read(u"Zembro.cfg"_s), firstSettings("ZB-ESP.LNG"));
        EXPECT_FALSE(files.exists(u"Zembro.tmp"_s));
        release(accept(form));
        EXPECT_FALSE(form.isVisible());
    });
}

TEST_F(PrimeraInstalacionTest, ChosenLanguageIsTheOneLineThatVaries)
{
    addLanguage(u"zb-eng.lng"_s, u"English"_s);
    show([](forms::Form &form) {
        clickRow(list(form), 0);
        click(accept(form));
    });
    EXPECT_EQ(files.read(u"Zembro.cfg"_s), firstSettings("ZB-ENG.LNG"));
}

TEST_F(PrimeraInstalacionTest, AcceptingWaitsUntilALanguageIsSelected)
{
    files.remove(u"LNG/ZB-ESP.LNG"_s);
    addLanguage(u"ZB-ENG.LNG"_s, u"English"_s);
    show([this](forms::Form &form) {
        click(accept(form));
        EXPECT_TRUE(form.isVisible());
        EXPECT_FALSE(accept(form).ShowsPressed());
        EXPECT_EQ(files.read(u"Zembro.cfg"_s), QByteArray("VACIO"));
        clickRow(list(form), 0);
        click(accept(form));
        EXPECT_FALSE(form.isVisible());
    });
    EXPECT_EQ(files.read(u"Zembro.cfg"_s), firstSettings("ZB-ENG.LNG"));
}

TEST_F(PrimeraInstalacionTest, WithoutTheirDirectoryAnEmptyLanguageIsWritten)
{
    files.remove(u"LNG/ZB-ESP.LNG"_s);
    addLanguage(u"A=B.LNG"_s, u"No"_s);
    show([this](forms::Form &form) {
        files.remove(u"LNG"_s);
        click(accept(form));
    });
    EXPECT_EQ(files.read(u"Zembro.cfg"_s), firstSettings(""));
}

TEST_F(PrimeraInstalacionTest, AnyMouseButtonAcceptsAndTheReleaseMayFallAnywhere)
{
    for (const Qt::MouseButton button : { Qt::RightButton, Qt::MiddleButton }) {
        files.write(u"Zembro.cfg"_s, "VACIO");
        show([button](forms::Form &form) {
            press(accept(form), button);
            releaseAt(accept(form), QPoint(-100, 60), button);
            EXPECT_FALSE(form.isVisible());
        });
        EXPECT_EQ(files.read(u"Zembro.cfg"_s), firstSettings("ZB-ESP.LNG"));
    }
}

TEST_F(PrimeraInstalacionTest, NoKeyAndNoWishOfTheWindowSystemClosesIt)
{
    show([this](forms::Form &form) {
        for (const Qt::Key key : { Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space }) {
            strike(form, key);
            EXPECT_TRUE(form.isVisible()) << key;
        }
        wishClose(form);
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(files.read(u"Zembro.cfg"_s), QByteArray("VACIO"));
        click(accept(form));
    });
}

TEST_F(PrimeraInstalacionTest, StandsInTheMiddleOfTheScreen)
{
    show([](forms::Form &form) {
        EXPECT_EQ(form.geometry().center(), form.screen()->availableGeometry().center());
        click(accept(form));
    });
}

// The start of the program with its first run, joined as in the program.
class PrimerArranqueTest : public PortadaTest {
protected:
    PrimerArranqueTest()
        : m_first([this] { return std::make_unique<options::PrimeraInstalacion>(*M); })
    {
        files.write(u"Zembro.cfg"_s, "VACIO\r\n");
        files.writeLines(u"LNG/ZB-ENG.LNG"_s,
            { languageLine(u"TXT_NingunaROM"_s, u"No ROM"_s), languageLine(u"TXT_InfoLNG"_s, u"English"_s) });
        join();
    }
    void join()
    {
        portada->MuestraPrimeraInstalacion = [this] { m_first.ShowModal(nullptr); };
    }

private:
    forms::FormHolder<options::PrimeraInstalacion> m_first;
};

TEST_F(PrimerArranqueTest, ChosenLanguageIsThatOfTheStart)
{
    atModal(u"PrimeraInstalacion"_s, [this](forms::Form &form) {
        EXPECT_FALSE(portada->isVisible());
        clickRow(controlOf<forms::ListBox>(form, u"List1"_s), 0);
        click(controlOf<QWidget>(form, u"Aceptar2"_s));
    });
    start();
    EXPECT_EQ(M->LanguageFile, u"ZB-ENG.LNG"_s);
    EXPECT_EQ(info(), u"No ROM"_s);
    EXPECT_EQ(M->Filtros(18), u"ZIPSAMPL"_s);
    EXPECT_EQ(M->Filtros(19), QString());
}

TEST_F(PrimerArranqueTest, SecondStartShowsNoFirstRun)
{
    atModal(
        u"PrimeraInstalacion"_s, [](forms::Form &form) { click(controlOf<QWidget>(form, u"Aceptar2"_s)); });
    start();
    renew();
    join();
    start(); // an unannounced form fails
    EXPECT_EQ(M->LanguageFile, u"ZB-ESP.LNG"_s);
}

TEST_F(PrimerArranqueTest, FirstSystemAndItsFirstEmulatorComeUp)
{
    files.writeSize(u"r/a.bin"_s, 1024);
    files.writeCatalogue({ { u"Zeta"_s, { u"BIN"_s }, { { u"Emu"_s, u"0"_s, files.path(u"r/"_s) } } },
        { u"alfa"_s, { u"BIN"_s },
            { { u"Dos"_s, u"0"_s, files.path(u"r/"_s) }, { u"Beta"_s, u"5"_s, files.path(u"r/"_s) } } } });
    files.writeNotes({ { u"Zeta"_s, {} }, { u"alfa"_s, {} } });
    atModal(
        u"PrimeraInstalacion"_s, [](forms::Form &form) { click(controlOf<QWidget>(form, u"Aceptar2"_s)); });
    start();
    EXPECT_EQ(systems().Text(), u"alfa"_s);
    EXPECT_EQ(emulators().Text(), u"Beta"_s);
    EXPECT_THAT(listed(), ElementsAre(u"a.bin"_s));
}

TEST_F(PrimerArranqueTest, InADirectoryThatCannotBeWrittenTheLanguageHolds_AndIsToldNotToBeKept)
{
    QStringList told;
    atModal(u"PrimeraInstalacion"_s, [this](forms::Form &form) {
        clickRow(controlOf<forms::ListBox>(form, u"List1"_s), 0);
        const AsOrdinaryUser user(files.path());
        click(controlOf<QWidget>(form, u"Aceptar2"_s));
    });
    atModal(u"Caja"_s, [this, &told](forms::Form &form) {
        EXPECT_TRUE(portada->isVisible());
        told << form.Caption() << controlOf<forms::Label>(form, u"Texto2"_s).Caption();
        click(controlOf<QWidget>(form, u"Flecha2"_s));
    });
    start();
    EXPECT_THAT(told,
        ElementsAre(M->Palabras.Zem_SoloLeer0, u"No se puede escribir aquí: el idioma no se recuerda."_s));
    EXPECT_EQ(M->LanguageFile, u"ZB-ENG.LNG"_s);
    EXPECT_EQ(info(), u"No ROM"_s);
    EXPECT_EQ(M->Filtros(18), u"ZIPSAMPL"_s);
    EXPECT_TRUE(M->SoloLecturaDicha);
    EXPECT_EQ(files.read(u"Zembro.cfg"_s), QByteArray("VACIO\r\n"));
    EXPECT_FALSE(files.exists(u"Zembro.tmp"_s));
}

// Not all that keeps from writing is the directory.
TEST_F(PrimerArranqueTest, SettingsThatAloneCannotBeWrittenEndTheFirstRunAndKeepItsMark)
{
    atModal(u"PrimeraInstalacion"_s, [this](forms::Form &form) {
        std::optional<ProcessEnd> end;
        {
            EXPECT_EQ(chmod(files.path(u"Zembro.cfg"_s).toUtf8().constData(), 0444), 0);
            const AsOrdinaryUser user(files.path(), 0777);
            // Not by the mouse, whose delivery the end of the process would leave half done.
            end = endOf([&] { controlOf<forms::PictureButton>(form, u"Aceptar2"_s).Press.raise(); });
        }
        form.Unload(); // the process would be gone
        ASSERT_TRUE(end) << "the first run goes on";
        EXPECT_EQ(end->status, 1);
        EXPECT_EQ(end->title, u"ERROR"_s);
        EXPECT_TRUE(end->text.startsWith(u"An unknown error has occurred. (ERR75)\n"))
            << end->text.toStdString();
        EXPECT_TRUE(end->text.endsWith(u": "_s + files.path(u"Zembro.cfg"_s))) << end->text.toStdString();
    });
    EXPECT_TRUE(load());
    EXPECT_EQ(files.read(u"Zembro.cfg"_s), QByteArray("VACIO\r\n"));
    EXPECT_FALSE(files.exists(u"Zembro.tmp"_s));
}

TEST_F(PrimerArranqueTest, LanguagesNoneOfWhichCanBeChosenEndTheFirstRunAndKeepItsMark)
{
    files.remove(u"LNG/ZB-ESP.LNG"_s);
    files.remove(u"LNG/ZB-ENG.LNG"_s);
    files.writeLines(u"LNG/A=B.LNG"_s, { languageLine(u"TXT_InfoLNG"_s, u"A"_s) });
    atModal(u"PrimeraInstalacion"_s, [this](forms::Form &form) {
        EXPECT_EQ(controlOf<forms::ListBox>(form, u"List1"_s).ListCount(), 0);
        const std::optional<ProcessEnd> end =
            endOf([&] { controlOf<forms::PictureButton>(form, u"Aceptar2"_s).Press.raise(); });
        form.Unload(); // the process would be gone
        ASSERT_TRUE(end) << "the first run goes on";
        EXPECT_EQ(end->status, 1);
        EXPECT_TRUE(
            end->text.endsWith(u"\nIn LNG subdirectory any *.LNG file\nFailed to find a language file that "
                               "can be chosen: "_s
                + files.path(u"LNG/"_s)))
            << end->text.toStdString();
    });
    load();
    EXPECT_EQ(files.read(u"Zembro.cfg"_s), QByteArray("VACIO\r\n"));
}

TEST_F(PrimerArranqueTest, CreditsTooShortForTheirTextEndTheStart)
{
    files.writeLines(u"LNG/ZB-ENG.LNG"_s, { u"TXT_InfoLNG"_s });
    const std::optional<ProcessEnd> end = load();
    ASSERT_TRUE(end);
    EXPECT_TRUE(end->text.startsWith(u"An unknown error has occurred. (ERR5)\n")) << end->text.toStdString();
    EXPECT_EQ(files.read(u"Zembro.cfg"_s), QByteArray("VACIO\r\n"));
}
