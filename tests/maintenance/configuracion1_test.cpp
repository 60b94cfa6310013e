// The first step: the lists, additions and removals.

#include "configuraciontest.h"

#include "tests/support/ordinaryuser.h"

#include "forms/commandbutton.h"

#include <QAccessible>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class Configuracion1Test : public ConfiguracionTest {
protected:
    static forms::ListBox &systemsOf(const forms::Form &form)
    {
        return controlOf<forms::ListBox>(form, u"Lista1"_s);
    }
    static forms::ListBox &emulatorsOf(const forms::Form &form)
    {
        return controlOf<forms::ListBox>(form, u"Lista2"_s);
    }
    static QString pair(const forms::Form &form) { return captionOf(form, u"Texto5"_s); }
    static void press(const forms::Form &form, const QString &button)
    {
        click(controlOf<QWidget>(form, button));
    }

    // An end of the process while the screen is being loaded: it never comes up.
    std::optional<ProcessEnd> endOfOpening()
    {
        return endOf([this] { click(control(u"Boton1b"_s)); });
    }

    static QByteArray system(const QByteArray &name, int emulators)
    {
        QByteArray block = '-' + name + "\r\nWEB1=\r\n*.ZIP\r\n'\r\n";
        for (int e = 1; e <= emulators; ++e)
            block += "+E" + QByteArray::number(e).rightJustified(3, '0') + "\r\nWEB2=\r\n";
        return block + Closing;
    }

    const QByteArray Alfa = "-Alfa\r\nWEB1=http://alfa\r\n*.ZIP\r\n*.BIN\r\n'\r\n+A2\r\nWEB2=http://a2\r\n"
                            "+a1\r\nWEB2=\r\n"
        + Closing;
    const QByteArray Beta = "-beta\r\nWEB1=\r\n*.ROM\r\n'\r\n+B1\r\nWEB2=http://b1\r\n" + Closing;
};

} // namespace

TEST_F(Configuracion1Test, TheWordsAreThoseOfTheLanguage)
{
    begin();
    configure([](forms::Form &form) {
        EXPECT_EQ(form.Caption(), u"TXT_TituloCFG1"_s);
        for (const QString &label : { u"TXT_Aceptar"_s, u"TXT_Volver"_s, u"TXT_Escoge"_s, u"TXT_Sistemas"_s,
                 u"TXT_Emuladores"_s, u"TXT_Sevaaañadir"_s, u"TXT_Añadir"_s, u"TXT_Borrar"_s,
                 u"TXT_Extensiones"_s, u"TXT_Leyenda"_s })
            EXPECT_EQ(captionOf(form, label), label);
        EXPECT_EQ(captionOf(form, u"TXT_Webs"_s), u"Webs"_s);
        for (const auto &[sign, text] : { std::pair(u"Texto8"_s, u"+"_s), std::pair(u"Texto10"_s, u"-"_s),
                 std::pair(u"Texto12"_s, u"E"_s), std::pair(u"Texto14"_s, u"W"_s) })
            EXPECT_EQ(captionOf(form, sign), text);
    });
}

TEST_F(Configuracion1Test, ItOpensOnTheFirstSystemWithItsFirstEmulator)
{
    begin();
    configure([](forms::Form &form) {
        EXPECT_THAT(entriesOf(systemsOf(form)), ElementsAre(u"Alfa"_s, u"beta"_s));
        EXPECT_THAT(entriesOf(emulatorsOf(form)), ElementsAre(u"a1"_s, u"A2"_s));
        EXPECT_EQ(systemsOf(form).Text(), u"Alfa"_s);
        EXPECT_EQ(emulatorsOf(form).Text(), u"a1"_s);
        EXPECT_EQ(emulatorsOf(form).ItemData(0), 1);
        EXPECT_EQ(pair(form), u"Alfa -> a1"_s);
        EXPECT_EQ(form.focusWidget(), &systemsOf(form));
    });
}

TEST_F(Configuracion1Test, AClickOnASystemShowsItsEmulators_AndOnAnEmulatorThePair)
{
    begin();
    configure([](forms::Form &form) {
        select(systemsOf(form), u"beta"_s);
        EXPECT_THAT(entriesOf(emulatorsOf(form)), ElementsAre(u"B1"_s));
        EXPECT_EQ(pair(form), u"beta -> B1"_s);
        select(systemsOf(form), u"Alfa"_s);
        select(emulatorsOf(form), u"A2"_s);
        EXPECT_EQ(pair(form), u"Alfa -> A2"_s);
    });
}

TEST_F(Configuracion1Test, GoingBackClosesItWithNothingChanged)
{
    begin();
    configure([](forms::Form &form) {
        ::press(controlOf<QWidget>(form, u"Flecha2"_s));
        EXPECT_TRUE(form.isVisible());
        release(controlOf<QWidget>(form, u"Flecha2"_s));
        EXPECT_FALSE(form.isVisible());
    });
    expectFilesUnchanged();
    EXPECT_TRUE(portada->isActiveWindow());
}

TEST_F(Configuracion1Test, ThePressOnAcceptShowsThePressedPicture_AndTheReleaseOpensTheSecondStep)
{
    begin();
    configure([this](forms::Form &form) {
        auto &accept = controlOf<forms::PictureButton>(form, u"Aceptar2"_s);
        ::press(accept, Qt::RightButton);
        EXPECT_TRUE(accept.ShowsPressed());
        atModal(u"Configuracion2"_s, [&](forms::Form &second) {
            EXPECT_FALSE(accept.ShowsPressed());
            press(second, u"Flecha1"_s);
        });
        releaseAt(accept, QPoint(-30, -30), Qt::RightButton);
        EXPECT_TRUE(form.isVisible());
    });
}

TEST_F(Configuracion1Test, ANewSystemIsOnTheDiskAtOnceAndSelected)
{
    begin();
    configure([this](forms::Form &form) {
        atInput(u"Msg_AñadirSis"_s, {}, u"  Aleph & Co"_s);
        press(form, u"Mas1"_s);
        expectFiles(
            "' all\r\n" + Alfa + Beta + "-  Aleph & Co\r\nWEB1=\r\n*.ZIP\r\n'\r\n" + Closing + "[EOF]\r\n",
            catalogue,
            "' notes\r\nAlfa\r\nGAME.ZIP,\"A game\"\r\n'\r\nbeta\r\n'\r\n  Aleph & Co\r\n'\r\n[EOF]\r\n"
            "Parametros especificos\r\n'\r\nfin\r\nfin,\"fin\"\r\n");
        EXPECT_THAT(entriesOf(systemsOf(form)), ElementsAre(u"  Aleph & Co"_s, u"Alfa"_s, u"beta"_s));
        EXPECT_EQ(systemsOf(form).Text(), u"  Aleph & Co"_s);
        EXPECT_THAT(entriesOf(emulatorsOf(form)), IsEmpty());
        EXPECT_EQ(pair(form), u"  Aleph & Co -> "_s);
    });
}

TEST_F(Configuracion1Test, WhereNothingCanBeWrittenItIsTold_AndNothingChanges)
{
    begin();
    configure([this](forms::Form &form) {
        const AsOrdinaryUser user(files.path());
        const QStringList systems = entriesOf(systemsOf(form));
        atInput(u"Msg_AñadirSis"_s, {}, u"New"_s);
        atNotWritten();
        press(form, u"Mas1"_s);
        atInput(u"Msg_AñadirEmu"_s, {}, u"New"_s);
        atNotWritten();
        press(form, u"Boton_Mas2"_s);
        atQuestion(u"Msg_BorrarEmu"_s, emulatorsOf(form).Text(), true);
        atNotWritten();
        press(form, u"Boton_Menos2"_s);
        atQuestion(u"Msg_BorrarSis"_s, systemsOf(form).Text(), true);
        atNotWritten();
        press(form, u"Menos1"_s);
        EXPECT_EQ(entriesOf(systemsOf(form)), systems);
    });
    expectFilesUnchanged();
}

TEST_F(Configuracion1Test, AKnownSystemInAnotherCaseIsRefused)
{
    begin();
    configure([this](forms::Form &form) {
        for (const QString &name : { u"BETA"_s, u"alfa"_s }) {
            atInput(u"Msg_AñadirSis"_s, {}, name);
            atWarning(u"Msg_SisYaAñadido"_s);
            press(form, u"Mas1"_s);
        }
    });
    expectFilesUnchanged();
}

TEST_F(Configuracion1Test, ANameThatIsEmptyOrTakenBackAddsNothing)
{
    begin();
    configure([this](forms::Form &form) {
        for (const auto &[button, key] :
            { std::pair(u"Mas1"_s, u"Msg_AñadirSis"_s), std::pair(u"Boton_Mas2"_s, u"Msg_AñadirEmu"_s) }) {
            atInput(key, {}, {});
            press(form, button);
            atInput(key, {}, u"New"_s, false);
            press(form, button);
        }
    });
    expectFilesUnchanged();
}

TEST_F(Configuracion1Test, AnEmptyDatabaseTakesNoSystemAndEndsTheProgramForAnEmulator)
{
    database = "' all\r\n[EOF]\r\n";
    begin();
    std::optional<ProcessEnd> end = endOfConfiguring([this](forms::Form &form) {
        EXPECT_EQ(pair(form), u" -> "_s);
        for (const QString &button :
            { u"Mas1"_s, u"Menos1"_s, u"Boton_Menos2"_s, u"Boton_E"_s, u"Boton_W1"_s, u"Boton_W2"_s })
            press(form, button);
        atInput(u"Msg_AñadirEmu"_s, {}, u"E"_s);
        press(form, u"Boton_Mas2"_s);
    });
    ASSERT_TRUE(end);
    EXPECT_THAT(end->text.toStdString(), HasSubstr("(ERR380)"));
    expectFilesUnchanged();
}

TEST_F(Configuracion1Test, ANewEmulatorIsTheLastOfItsSystemAndSelected)
{
    begin();
    configure([this](forms::Form &form) {
        atInput(u"Msg_AñadirEmu"_s, {}, u"A0"_s);
        press(form, u"Boton_Mas2"_s);
        EXPECT_THAT(entriesOf(emulatorsOf(form)), ElementsAre(u"A0"_s, u"a1"_s, u"A2"_s));
        EXPECT_EQ(systemsOf(form).Text(), u"Alfa"_s);
        EXPECT_EQ(emulatorsOf(form).Text(), u"A0"_s);
        EXPECT_EQ(emulatorsOf(form).ItemData(0), 2);
        EXPECT_EQ(pair(form), u"Alfa -> A0"_s);
    });
    const QByteArray withIt = Alfa.chopped(Closing.size()) + "+A0\r\nWEB2=\r\n" + Closing;
    expectFiles("' all\r\n" + withIt + Beta + "[EOF]\r\n", catalogue, notes);
}

TEST_F(Configuracion1Test, AnEmulatorOfTheSameSystemInAnotherCaseIsRefused_OneOfAnotherSystemIsNot)
{
    begin();
    configure([this](forms::Form &form) {
        atInput(u"Msg_AñadirEmu"_s, {}, u"A1"_s);
        atWarning(u"Msg_EmuYaAñadido"_s);
        press(form, u"Boton_Mas2"_s);
        expectFilesUnchanged();
        select(systemsOf(form), u"beta"_s);
        atInput(u"Msg_AñadirEmu"_s, {}, u"A1"_s);
        press(form, u"Boton_Mas2"_s);
        EXPECT_EQ(pair(form), u"beta -> A1"_s);
    });
    const QByteArray withIt = Beta.chopped(Closing.size()) + "+A1\r\nWEB2=\r\n" + Closing;
    expectFiles("' all\r\n" + Alfa + withIt + "[EOF]\r\n", catalogue, notes);
}

TEST_F(Configuracion1Test, AnEmulatorGoesOnlyAfterTheQuestion)
{
    begin();
    configure([this](forms::Form &form) {
        atQuestion(u"Msg_BorrarEmu"_s, u"a1"_s, false);
        press(form, u"Boton_Menos2"_s);
        expectFilesUnchanged();
        select(emulatorsOf(form), u"A2"_s);
        atQuestion(u"Msg_BorrarEmu"_s, u"A2"_s, true);
        press(form, u"Boton_Menos2"_s);
        EXPECT_THAT(entriesOf(emulatorsOf(form)), ElementsAre(u"a1"_s));
        EXPECT_EQ(systemsOf(form).Text(), u"Alfa"_s);
        EXPECT_EQ(pair(form), u"Alfa -> a1"_s);
    });
    expectFiles("' all\r\n-Alfa\r\nWEB1=http://alfa\r\n*.ZIP\r\n*.BIN\r\n'\r\n+a1\r\nWEB2=\r\n" + Closing
            + Beta + "[EOF]\r\n",
        catalogue, notes);
}

TEST_F(Configuracion1Test, TheOnlyEmulatorLeavesItsSystemWithNone)
{
    begin();
    configure([this](forms::Form &form) {
        select(systemsOf(form), u"beta"_s);
        atQuestion(u"Msg_BorrarEmu"_s, u"B1"_s, true);
        press(form, u"Boton_Menos2"_s);
        EXPECT_THAT(entriesOf(emulatorsOf(form)), IsEmpty());
        EXPECT_EQ(pair(form), u"beta -> "_s);
        press(form, u"Boton_Menos2"_s); // asks nothing
    });
}

TEST_F(Configuracion1Test, AnEmulatorThatAnotherSystemHasConfiguredIsRefused)
{
    catalogue =
        "' "
        "mine\r\n-Other\r\nWEB1=\r\n*.ZIP\r\n'\r\n+a1\r\nWEB2=\r\nEXE=\r\nXDI=0\r\nROM=\r\nIMG=\r\nPAR1=\r\n"
        "PAR2=\r\n"
        + Closing + "[EOF]\r\n";
    begin();
    configure([this](forms::Form &form) {
        atQuestion(u"Msg_BorrarEmu"_s, u"a1"_s, true);
        atWarning(u"Msg_YaAñadido"_s);
        press(form, u"Boton_Menos2"_s);
        EXPECT_EQ(pair(form), u"Alfa -> a1"_s);
    });
    expectFilesUnchanged();
}

TEST_F(Configuracion1Test, ASystemGoesWithItsNotesAndItsParameters)
{
    notes = "' notes\r\nAlfa\r\nGAME.ZIP,\"A game\"\r\n'\r\nbeta\r\nX.ROM,\"X\"\r\n'\r\n[EOF]\r\nParametros "
            "especificos\r\nGAME.ZIP,ALFA,a1,-x\r\nX.ROM,beta,B1,-y\r\n'\r\nfin\r\nfin,\"fin\"\r\n";
    begin();
    configure([this](forms::Form &form) {
        atQuestion(u"Msg_BorrarSis"_s, u"Alfa"_s, false);
        press(form, u"Menos1"_s);
        expectFilesUnchanged();
        atQuestion(u"Msg_BorrarSis"_s, u"Alfa"_s, true);
        press(form, u"Menos1"_s);
        EXPECT_THAT(entriesOf(systemsOf(form)), ElementsAre(u"beta"_s));
        EXPECT_EQ(pair(form), u"beta -> B1"_s);
    });
    expectFiles("' all\r\n" + Beta + "[EOF]\r\n", catalogue,
        "' notes\r\nbeta\r\nX.ROM,\"X\"\r\n'\r\n[EOF]\r\nParametros "
        "especificos\r\nX.ROM,beta,B1,-y\r\n'\r\nfin\r\n"
        "fin,\"fin\"\r\n");
}

TEST_F(Configuracion1Test, ASystemWithoutTheApostropheOfItsNotesGoesWithoutThoseOfTheNext)
{
    notes = "' notes\r\nAlfa\r\nGAME.ZIP,\"A game\"\r\nbeta\r\nX.ROM,\"X\"\r\n'\r\n[EOF]\r\nParametros "
            "especificos\r\n'\r\nfin\r\nfin,\"fin\"\r\n";
    begin();
    configure([this](forms::Form &form) {
        atQuestion(u"Msg_BorrarSis"_s, u"Alfa"_s, true);
        press(form, u"Menos1"_s);
    });
    expectFiles("' all\r\n" + Beta + "[EOF]\r\n", catalogue,
        "' notes\r\nbeta\r\nX.ROM,\"X\"\r\n'\r\n[EOF]\r\nParametros "
        "especificos\r\n'\r\nfin\r\nfin,\"fin\"\r\n");
}

TEST_F(Configuracion1Test, ASystemInUseIsRefused)
{
    catalogue = "' mine\r\n-Alfa\r\nWEB1=\r\n*.ZIP\r\n" + Closing + "[EOF]\r\n";
    begin();
    configure([this](forms::Form &form) {
        atQuestion(u"Msg_BorrarSis"_s, u"Alfa"_s, true);
        atWarning(u"Msg_YaAñadido"_s);
        press(form, u"Menos1"_s);
    });
    expectFilesUnchanged();
}

TEST_F(Configuracion1Test, TheLastSystemCanGo)
{
    database = "' all\r\n" + Beta + "[EOF]\r\n";
    begin();
    configure([this](forms::Form &form) {
        atQuestion(u"Msg_BorrarSis"_s, u"beta"_s, true);
        press(form, u"Menos1"_s);
        EXPECT_THAT(entriesOf(systemsOf(form)), IsEmpty());
        EXPECT_THAT(entriesOf(emulatorsOf(form)), IsEmpty());
        EXPECT_EQ(pair(form), u" -> "_s);
    });
}

TEST_F(Configuracion1Test, InsertAndDeleteActOnTheListThatHasTheFocus)
{
    begin();
    configure([this](forms::Form &form) {
        const struct {
            forms::ListBox &list;
            QString added;
            QString removed;
            QString name;
        } lists[] = { { systemsOf(form), u"Msg_AñadirSis"_s, u"Msg_BorrarSis"_s, u"Alfa"_s },
            { emulatorsOf(form), u"Msg_AñadirEmu"_s, u"Msg_BorrarEmu"_s, u"a1"_s } };
        for (const auto &expected : lists) {
            expected.list.setFocus();
            atInput(expected.added, {}, u"x"_s, false);
            strike(form, Qt::Key_Insert);
            atQuestion(expected.removed, expected.name, false);
            strike(form, Qt::Key_Delete);
        }
    });
    expectFilesUnchanged();
}

TEST_F(Configuracion1Test, EnterEscapeAndADoubleClickInTheListsDoNothing)
{
    begin();
    configure([](forms::Form &form) {
        for (forms::ListBox *list : { &systemsOf(form), &emulatorsOf(form) }) {
            list->setFocus();
            for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape })
                strike(form, key);
            doubleClickRow(*list, 1);
        }
        EXPECT_TRUE(form.isVisible());
        EXPECT_EQ(pair(form), u"beta -> B1"_s); // what was clicked alone
    });
    expectFilesUnchanged();
}

TEST_F(Configuracion1Test, TabReachesEveryControlInTheOrderOfTheScreen)
{
    begin();
    configure([](forms::Form &form) {
        controlOf<QWidget>(form, u"Mas1"_s).setFocus();
        QStringList way;
        for (int i = 0; i < 11; ++i) {
            way += form.focusWidget()->objectName();
            strike(form, Qt::Key_Tab);
        }
        EXPECT_THAT(way,
            ElementsAre(u"Mas1"_s, u"Menos1"_s, u"Boton_E"_s, u"Boton_W1"_s, u"Lista1"_s, u"Boton_Mas2"_s,
                u"Boton_Menos2"_s, u"Boton_W2"_s, u"Lista2"_s, u"Aceptar2"_s, u"Flecha2"_s));
        EXPECT_EQ(form.focusWidget()->objectName(), u"Mas1"_s);
        controlOf<QWidget>(form, u"Flecha2"_s).setFocus();
        strike(form, Qt::Key_Space);
        EXPECT_FALSE(form.isVisible());
    });
}

TEST_F(Configuracion1Test, ButtonsAndListsHaveNamesForScreenReaders_AndThoseWithoutAWordATip)
{
    begin();
    configure([](forms::Form &form) {
        const std::pair<QString, QString> names[] = { { u"Mas1"_s, u"Añadir un sistema"_s },
            { u"Menos1"_s, u"Quitar el sistema"_s }, { u"Boton_E"_s, u"Extensiones del sistema"_s },
            { u"Boton_W1"_s, u"Página web del sistema"_s }, { u"Boton_Mas2"_s, u"Añadir un emulador"_s },
            { u"Boton_Menos2"_s, u"Quitar el emulador"_s }, { u"Boton_W2"_s, u"Página web del emulador"_s },
            { u"Lista1"_s, u"TXT_Sistemas"_s }, { u"Lista2"_s, u"TXT_Emuladores"_s },
            { u"Aceptar2"_s, u"TXT_Aceptar"_s }, { u"Flecha2"_s, u"TXT_Volver"_s } };
        for (const auto &[control, name] : names) {
            QAccessibleInterface *reader =
                QAccessible::queryAccessibleInterface(&controlOf<QWidget>(form, control));
            ASSERT_TRUE(reader);
            EXPECT_EQ(reader->text(QAccessible::Name), name) << control.toStdString();
            const QString key = control == u"Mas1" || control == u"Boton_Mas2" ? u"Ins"_s
                : control == u"Menos1" || control == u"Boton_Menos2"           ? u"Supr"_s
                                                                               : QString();
            const bool letter = control == u"Boton_E" || control == u"Boton_W1" || control == u"Boton_W2";
            const QString tip = key.isEmpty() ? name : u"%1 (%2)"_s.arg(name, key);
            EXPECT_EQ(
                QTextDocumentFragment::fromHtml(controlOf<QWidget>(form, control).toolTip()).toPlainText(),
                letter || !key.isEmpty() ? tip : QString());
            EXPECT_EQ(reader->text(QAccessible::Description), key) << control.toStdString();
            EXPECT_EQ(reader->role(), control.startsWith(u"Lista") ? QAccessible::List : QAccessible::Button);
        }
    });
}

TEST_F(Configuracion1Test, AMissingOrEmptyDatabaseEndsTheProgram)
{
    begin();
    files.write(u"Zembro.sye"_s, "");
    std::optional<ProcessEnd> end = endOfOpening();
    ASSERT_TRUE(end);
    EXPECT_THAT(end->text.toStdString(), HasSubstr("(ERR62)"));

    M->Ficheros.closeAll();
    files.remove(u"Zembro.sye"_s);
    end = endOfOpening();
    ASSERT_TRUE(end);
    EXPECT_THAT(end->text.toStdString(), HasSubstr("(ERR53)"));
    EXPECT_THAT(end->text.toStdString(), HasSubstr("Zembro.sye"));
}

TEST_F(Configuracion1Test, AFileThatIsMissingOrEmptyWhenItIsToChangeEndsTheProgram)
{
    const struct {
        QString file;
        QString button;
        QString question;
    } changes[] = { { u"Zembro.sye"_s, u"Mas1"_s, u"Msg_AñadirSis"_s },
        { u"Zembro.rom"_s, u"Mas1"_s, u"Msg_AñadirSis"_s },
        { u"Zembro.sye"_s, u"Boton_Mas2"_s, u"Msg_AñadirEmu"_s },
        { u"Zembro.rom"_s, u"Menos1"_s, u"Msg_BorrarSis"_s },
        { u"Zembro.sye"_s, u"Boton_Menos2"_s, u"Msg_BorrarEmu"_s } };
    for (const auto &change : changes) {
        for (const bool empty : { false, true }) {
            renew();
            begin();
            const auto end = endOfConfiguring([&, this](forms::Form &form) {
                files.remove(change.file);
                if (empty)
                    files.write(change.file, {});
                if (change.question.startsWith(u"Msg_A"))
                    atInput(change.question, {}, u"New"_s);
                else
                    atQuestion(change.question, change.button == u"Menos1" ? u"Alfa"_s : u"a1"_s, true);
                press(form, change.button);
            });
            ASSERT_TRUE(end) << change.file.toStdString() << ' ' << change.button.toStdString();
            EXPECT_THAT(end->text.toStdString(), HasSubstr(empty ? "(ERR62)" : "(ERR53)"));
            EXPECT_THAT(end->text.toStdString(), HasSubstr(change.file.toStdString()));
        }
    }
}

TEST_F(Configuracion1Test, The152ndSystemIsOnTheDisk_AndEndsTheProgramThenAndAtEachLaterOpening)
{
    database = "' all\r\n";
    for (int s = 0; s < 151; ++s)
        database += system("S" + QByteArray::number(s).rightJustified(3, '0'), 1);
    const QByteArray full = database;
    database += "[EOF]\r\n";
    begin();
    std::optional<ProcessEnd> end = endOfConfiguring([this](forms::Form &form) {
        EXPECT_EQ(systemsOf(form).ListCount(), 151);
        atInput(u"Msg_AñadirSis"_s, {}, u"S151"_s);
        press(form, u"Mas1"_s);
    });
    ASSERT_TRUE(end);
    EXPECT_THAT(end->text.toStdString(), HasSubstr("(ERR9)"));
    EXPECT_EQ(files.read(u"Zembro.sye"_s), full + system("S151", 0) + "[EOF]\r\n");

    M->Ficheros.closeAll(); // as a new process has them
    end = endOfOpening();
    ASSERT_TRUE(end);
    EXPECT_THAT(end->text.toStdString(), HasSubstr("(ERR9)"));
}

TEST_F(Configuracion1Test, A150thEmulatorLeavesNoneSelected_AndThe151stEndsTheProgram)
{
    database = "' all\r\n" + system("Alfa", 150) + system("Beta", 149) + "[EOF]\r\n";
    begin();
    std::optional<ProcessEnd> end = endOfConfiguring([this](forms::Form &form) {
        EXPECT_EQ(emulatorsOf(form).ListCount(), 150);
        EXPECT_EQ(pair(form), u"Alfa -> "_s);
        EXPECT_EQ(M->BD_Emulador, 150);
        select(systemsOf(form), u"Beta"_s);
        EXPECT_EQ(pair(form), u"Beta -> E001"_s);
        EXPECT_EQ(M->BD_Emulador, 0);
        select(systemsOf(form), u"Alfa"_s);
        atInput(u"Msg_AñadirEmu"_s, {}, u"E151"_s);
        press(form, u"Boton_Mas2"_s);
    });
    ASSERT_TRUE(end);
    EXPECT_THAT(end->text.toStdString(), HasSubstr("(ERR9)"));
    EXPECT_EQ(
        files.read(u"Zembro.sye"_s), "' all\r\n" + system("Alfa", 151) + system("Beta", 149) + "[EOF]\r\n");
}
