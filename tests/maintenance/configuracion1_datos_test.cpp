// The first step: extensions and web addresses, in both catalogue files.

#include "configuraciontest.h"

#include "tests/support/ordinaryuser.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class Configuracion1DatosTest : public ConfiguracionTest {
protected:
    Configuracion1DatosTest()
    {
        database = databaseOf(Alfa);
        catalogue = catalogueOf("http://alfa", "*.ZIP\r\n*.BIN\r\n'\r\n", "http://a2");
        files.writeSize(u"roms/one.bin"_s, 1024);
        files.writeSize(u"roms/two.rom"_s, 1024);
    }

    static QByteArray databaseOf(const QByteArray &alfa)
    {
        return "' all\r\n" + alfa + "-beta\r\nWEB1=\r\n*.ROM\r\n'\r\n+B1\r\nWEB2=http://b1\r\n" + Closing
            + "[EOF]\r\n";
    }
    // A catalogue of the one system Alfa with its emulators A2 and a1.
    QByteArray catalogueOf(const QByteArray &web1, const QByteArray &extensions, const QByteArray &web2) const
    {
        const QByteArray rest = "\r\nEXE=/bin/emu\r\nXDI=0\r\nROM=" + files.path(u"roms/"_s).toUtf8()
            + "\r\nIMG=\r\nPAR1=\r\nPAR2=\r\n";
        return "' mine\r\n-Alfa\r\nWEB1=" + web1 + "\r\n" + extensions + "+A2\r\nWEB2=" + web2 + rest
            + "'\r\n+a1\r\nWEB2=" + rest + Closing + "[EOF]\r\n";
    }

    static forms::ListBox &systemsOf(const forms::Form &form)
    {
        return controlOf<forms::ListBox>(form, u"Lista1"_s);
    }
    static forms::ListBox &emulatorsOf(const forms::Form &form)
    {
        return controlOf<forms::ListBox>(form, u"Lista2"_s);
    }
    static void press(const forms::Form &form, const QString &button)
    {
        click(controlOf<QWidget>(form, button));
    }

    // Changes a text of the first system or its emulator A2 by a button.
    void change(const QString &button, const QString &key, const QString &offer, const QString &typed)
    {
        configure([=, this](forms::Form &form) {
            select(emulatorsOf(form), u"A2"_s);
            atInput(key, offer, typed);
            press(form, button);
        });
    }

    const QByteArray Emulators = "+A2\r\nWEB2=http://a2\r\n+a1\r\nWEB2=\r\n";
    const QByteArray Alfa = "-Alfa\r\nWEB1=http://alfa\r\n*.ZIP\r\n*.BIN\r\n'\r\n" + Emulators + Closing;
};

} // namespace

TEST_F(Configuracion1DatosTest, ExtensionsTypedInLowerCaseAreStoredInUpperCaseInBothFiles)
{
    begin();
    change(u"Boton_E"_s, u"Msg_EXT"_s, u"ZIP,BIN"_s, u"rom,7z"_s);
    expectFiles(databaseOf("-Alfa\r\nWEB1=http://alfa\r\n*.ROM\r\n*.7Z\r\n'\r\n" + Emulators + Closing),
        catalogueOf("http://alfa", "*.ROM\r\n*.7Z\r\n'\r\n", "http://a2"), notes);
}

TEST_F(Configuracion1DatosTest, ABlankStaysInAnExtension_AndAnEmptyOneEndsThem)
{
    begin();
    change(u"Boton_E"_s, u"Msg_EXT"_s, u"ZIP,BIN"_s, u"zip, d64,,bin"_s);
    expectFiles(databaseOf("-Alfa\r\nWEB1=http://alfa\r\n*.ZIP\r\n*. D64\r\n'\r\n" + Emulators + Closing),
        catalogueOf("http://alfa", "*.ZIP\r\n*. D64\r\n'\r\n", "http://a2"), notes);
}

TEST_F(Configuracion1DatosTest, TheAddressOfTheSystemChangesInBothFiles)
{
    begin();
    change(u"Boton_W1"_s, u"Msg_NuevaWWWROMS"_s, u"http://alfa"_s, u"http://new"_s);
    expectFiles(databaseOf("-Alfa\r\nWEB1=http://new\r\n*.ZIP\r\n*.BIN\r\n'\r\n" + Emulators + Closing),
        catalogueOf("http://new", "*.ZIP\r\n*.BIN\r\n'\r\n", "http://a2"), notes);
}

TEST_F(Configuracion1DatosTest, TheAddressOfTheEmulatorChangesInBothFiles)
{
    begin();
    change(u"Boton_W2"_s, u"Msg_NuevaWWW"_s, u"http://a2"_s, u"http://new"_s);
    expectFiles(
        databaseOf("-Alfa\r\nWEB1=http://alfa\r\n*.ZIP\r\n*.BIN\r\n'\r\n+A2\r\nWEB2=http://new\r\n+a1\r\n"
                   "WEB2=\r\n"
            + Closing),
        catalogueOf("http://alfa", "*.ZIP\r\n*.BIN\r\n'\r\n", "http://new"), notes);
}

TEST_F(Configuracion1DatosTest, WhereNothingCanBeWrittenItIsTold_AndNothingChanges)
{
    begin();
    {
        const AsOrdinaryUser user(files.path());
        configure([this](forms::Form &form) {
            atInput(u"Msg_EXT"_s, u"ZIP,BIN"_s, u"rom"_s);
            atNotWritten();
            click(controlOf<QWidget>(form, u"Boton_E"_s));
        });
    }
    expectFilesUnchanged();
}

TEST_F(Configuracion1DatosTest, AnEmptiedBoxIsAnAnswer)
{
    begin();
    change(u"Boton_W1"_s, u"Msg_NuevaWWWROMS"_s, u"http://alfa"_s, {});
    change(u"Boton_W2"_s, u"Msg_NuevaWWW"_s, u"http://a2"_s, {});
    change(u"Boton_E"_s, u"Msg_EXT"_s, u"ZIP,BIN"_s, {});
    expectFiles(databaseOf("-Alfa\r\nWEB1=\r\n'\r\n+A2\r\nWEB2=\r\n+a1\r\nWEB2=\r\n" + Closing),
        catalogueOf("", "'\r\n", ""), notes);
}

TEST_F(Configuracion1DatosTest, AnOfferThatStaysOrIsTakenBackChangesNothing)
{
    begin();
    configure([this](forms::Form &form) {
        select(emulatorsOf(form), u"A2"_s);
        const struct {
            QString button;
            QString key;
            QString offer;
        } inputs[] = { { u"Boton_E"_s, u"Msg_EXT"_s, u"ZIP,BIN"_s },
            { u"Boton_W1"_s, u"Msg_NuevaWWWROMS"_s, u"http://alfa"_s },
            { u"Boton_W2"_s, u"Msg_NuevaWWW"_s, u"http://a2"_s } };
        for (const auto &input : inputs) {
            atInput(input.key, input.offer, input.offer);
            press(form, input.button);
            atInput(input.key, input.offer, u"x"_s, false);
            press(form, input.button);
        }
        select(emulatorsOf(form), u"a1"_s);
        atInput(u"Msg_NuevaWWW"_s, {}, {}); // a blank address
        press(form, u"Boton_W2"_s);
        select(systemsOf(form), u"beta"_s); // the lists still follow
        EXPECT_THAT(entriesOf(emulatorsOf(form)), ElementsAre(u"B1"_s));
    });
    expectFilesUnchanged();
}

TEST_F(Configuracion1DatosTest, OfASystemThatIsntConfiguredTheDatabaseAloneChanges)
{
    begin();
    configure([this](forms::Form &form) {
        select(systemsOf(form), u"beta"_s);
        atInput(u"Msg_EXT"_s, u"ROM"_s, u"a,b"_s);
        press(form, u"Boton_E"_s);
        atInput(u"Msg_NuevaWWWROMS"_s, {}, u"http://beta"_s);
        press(form, u"Boton_W1"_s);
        atInput(u"Msg_NuevaWWW"_s, u"http://b1"_s, u"http://B"_s);
        press(form, u"Boton_W2"_s);
    });
    expectFiles("' all\r\n" + Alfa
            + "-beta\r\nWEB1=http://beta\r\n*.A\r\n*.B\r\n'\r\n+B1\r\nWEB2=http://B\r\n" + Closing
            + "[EOF]\r\n",
        catalogue, notes);
}

TEST_F(Configuracion1DatosTest, AfterAChangeTheSystemsLeadTheEmulatorsNoMore_UntilTheListsAreFilledAnew)
{
    begin();
    configure([this](forms::Form &form) {
        atInput(u"Msg_NuevaWWWROMS"_s, u"http://alfa"_s, u"http://new"_s);
        press(form, u"Boton_W1"_s);
        select(systemsOf(form), u"beta"_s);
        EXPECT_THAT(entriesOf(emulatorsOf(form)), ElementsAre(u"a1"_s, u"A2"_s));
        EXPECT_EQ(captionOf(form, u"Texto5"_s), u"Alfa -> a1"_s);
        atInput(u"Msg_AñadirSis"_s, {}, u"Gamma"_s);
        press(form, u"Mas1"_s);
        select(systemsOf(form), u"beta"_s);
        EXPECT_THAT(entriesOf(emulatorsOf(form)), ElementsAre(u"B1"_s));
        EXPECT_EQ(captionOf(form, u"Texto5"_s), u"beta -> B1"_s);
    });
}

TEST_F(Configuracion1DatosTest, AfterAChangeTheSystemPickedIsPairedWithTheEmulatorsOfTheFormerOne)
{
    begin();
    configure([this](forms::Form &form) {
        atInput(u"Msg_NuevaWWWROMS"_s, u"http://alfa"_s, u"http://new"_s);
        press(form, u"Boton_W1"_s);
        select(systemsOf(form), u"beta"_s);
        atModal(u"Configuracion2"_s, [](forms::Form &second) {
            EXPECT_EQ(captionOf(second, u"Texto2"_s), u"beta -> a1"_s);
            press(second, u"Flecha1"_s);
        });
        press(form, u"Aceptar2"_s);
    });
}

TEST_F(Configuracion1DatosTest, AShorterListKeepsItsOldTailUntilTheNextStart)
{
    begin();
    change(u"Boton_E"_s, u"Msg_EXT"_s, u"ZIP,BIN"_s, u"rom"_s);
    change(u"Boton_E"_s, u"Msg_EXT"_s, u"ROM,BIN"_s, u"ROM,BIN"_s);
    EXPECT_EQ(files.read(u"Zembro.sye"_s),
        databaseOf("-Alfa\r\nWEB1=http://alfa\r\n*.ROM\r\n'\r\n" + Emulators + Closing));
}

TEST_F(Configuracion1DatosTest, ASystemWithoutExtensionsEndsTheProgram)
{
    database = databaseOf("-Alfa\r\nWEB1=http://alfa\r\n'\r\n" + Emulators + Closing);
    begin();
    const std::optional<ProcessEnd> end =
        endOfConfiguring([](forms::Form &form) { press(form, u"Boton_E"_s); });
    ASSERT_TRUE(end);
    EXPECT_THAT(end->text.toStdString(), HasSubstr("(ERR5)"));
    EXPECT_THAT(end->text.toStdString(), HasSubstr("Alfa"));
    expectFilesUnchanged();
}

TEST_F(Configuracion1DatosTest, ASystemBehindOneWithoutEmulatorsEndsTheProgramToo)
{
    database = databaseOf("-Alfa\r\nWEB1=http://alfa\r\n*.ZIP\r\n'\r\n" + Closing);
    begin();
    const std::optional<ProcessEnd> end = endOfConfiguring([](forms::Form &form) {
        select(systemsOf(form), u"beta"_s);
        press(form, u"Boton_E"_s);
    });
    ASSERT_TRUE(end);
    EXPECT_THAT(end->text.toStdString(), HasSubstr("(ERR5)"));
}

TEST_F(Configuracion1DatosTest, AMissingFileEndsTheProgram_WithTheDatabaseChangedWhereItIsTheCatalogue)
{
    for (const QString &missing : { u"Zembro.sye"_s, u"Zembro.emu"_s }) {
        renew();
        begin();
        const std::optional<ProcessEnd> end = endOfConfiguring([&, this](forms::Form &form) {
            files.remove(missing);
            atInput(u"Msg_NuevaWWWROMS"_s, u"http://alfa"_s, u"x"_s);
            press(form, u"Boton_W1"_s);
        });
        ASSERT_TRUE(end);
        EXPECT_THAT(end->text.toStdString(), HasSubstr("(ERR53)"));
        EXPECT_THAT(end->text.toStdString(), HasSubstr(missing.toStdString()));
    }
    EXPECT_EQ(files.read(u"Zembro.sye"_s),
        databaseOf("-Alfa\r\nWEB1=x\r\n*.ZIP\r\n*.BIN\r\n'\r\n" + Emulators + Closing));
}

TEST_F(Configuracion1DatosTest, TheMainScreensTablesAreFreshAndItsCombosAndItsListUntouched)
{
    begin();
    ASSERT_THAT(listed(), ElementsAre(u"one.bin"_s));
    change(u"Boton_E"_s, u"Msg_EXT"_s, u"ZIP,BIN"_s, u"rom"_s);
    EXPECT_EQ(M->Cat_EXT(0, 0), u"*.ROM"_s);
    EXPECT_EQ(M->Cat_EXT(0, 1), QString());
    EXPECT_EQ(M->SoloTablas, 0);
    EXPECT_EQ(systems().Text(), u"Alfa"_s);
    EXPECT_EQ(emulators().Text(), u"a1"_s);
    EXPECT_THAT(listed(), ElementsAre(u"one.bin"_s));
    portada->Llena_Lista();
    EXPECT_THAT(listed(), ElementsAre(u"two.rom"_s));
}

// Dead, the combos would pair one system's name with another's emulators, and a removal would take the wrong
// one.
TEST_F(Configuracion1DatosTest, TheMainScreensCombosStayAlive)
{
    catalogue = catalogue.chopped(7)
        + "-beta\r\nWEB1=\r\n*.ROM\r\n'\r\n+B1\r\nWEB2=http://b1\r\nEXE=\r\nXDI=0\r\nROM=\r\n"
          "IMG=\r\nPAR1=\r\nPAR2=\r\n"
        + Closing + "[EOF]\r\n";
    begin();
    change(u"Boton_W1"_s, u"Msg_NuevaWWWROMS"_s, u"http://alfa"_s, u"x"_s);
    pick(systems(), u"beta"_s);
    EXPECT_THAT(entries(emulators()), ElementsAre(u"B1"_s));
}
