// The second step: what it shows, the locks between its marks, and browsing.

#include "configuraciontest.h"

#include "forms/checks.h"

#include "host/paths.h"

#include <QFile>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QColor Bright(255, 224, 192);
const QColor Dim(192, 64, 0);

class Configuracion2Test : public ConfiguracionTest {
protected:
    Configuracion2Test()
    {
        database = "' all\r\n" + system("NES", { "Nes1", "Nes2" }) + system("Arcade", { "Mame", "Other" })
            + system("Neo-Geo", { "Neo" }) + system("Own", { "Mame" }) + system("Empty", {}) + "[EOF]\r\n";
        notes = "[EOF]\r\nParametros especificos\r\n'\r\nfin\r\nfin,\"fin\"\r\n";
        setCatalogue("3");
        files.write(u"bin/emu.exe"_s, "x");
        files.write(u"bin/tool"_s, "x");
        EXPECT_TRUE(QFile::setPermissions(files.path(u"bin/tool"_s),
            QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther));
        files.makeDirectory(u"roms"_s);
    }

    static QByteArray system(const QByteArray &name, const QList<QByteArray> &emulators)
    {
        QByteArray block = '-' + name + "\r\nWEB1=\r\n*.ZIP\r\n'\r\n";
        for (const QByteArray &emulator : emulators)
            block += '+' + emulator + "\r\nWEB2=\r\n";
        return block + Closing;
    }
    // The one system configured is the arcade, with the emulator Mame of this type.
    void setCatalogue(const QByteArray &type, const QByteArray &name = "Arcade")
    {
        catalogue = "' mine\r\n-" + name
            + "\r\nWEB1=\r\n*.ZIP\r\n'\r\n+Mame\r\nWEB2=\r\nEXE=/bin/mame\r\nXDI=" + type
            + "\r\nROM=/roms/\r\nIMG=/img/\r\nPAR1=-a b\r\nPAR2=-c\r\n" + Closing + "[EOF]\r\n";
    }

    static QString box(const forms::Form &form, const QString &name)
    {
        return controlOf<forms::TextBox>(form, name).Text();
    }
    static QStringList boxes(const forms::Form &form)
    {
        QStringList texts;
        for (const QString &name :
            { u"Casilla1"_s, u"Casilla2"_s, u"Casilla3"_s, u"Casilla4"_s, u"Casilla5"_s })
            texts += box(form, name);
        return texts;
    }
    static forms::CheckBox &check(const forms::Form &form, int number)
    {
        return controlOf<forms::CheckBox>(form, u"Check%1"_s.arg(number));
    }
    static QString marks(const forms::Form &form)
    {
        QString set;
        for (int i = 1; i <= 4; ++i)
            set += check(form, i).Value() == 1 ? QString::number(i) : QString();
        return set;
    }
    static QString enabled(const forms::Form &form)
    {
        QString open;
        for (int i = 1; i <= 4; ++i)
            open += check(form, i).isEnabled() ? QString::number(i) : QString();
        return open;
    }
    static QColor colourOf(const forms::Form &form, const QString &label)
    {
        return controlOf<forms::Label>(form, label).ForeColor();
    }
    static QRect placeOf(const forms::Form &form, const QString &name)
    {
        return controlOf<QWidget>(form, name).geometry();
    }
    static void mark(const forms::Form &form, int number) { click(check(form, number)); }

    // Presses a browse button, and drives the browser.
    void browse(forms::Form &form, const QString &button, const std::function<void(forms::Form &)> &act)
    {
        atModal(u"Examinar"_s, act);
        click(controlOf<QWidget>(form, button));
    }
    static forms::DirectoryList &tree(const forms::Form &browser)
    {
        return controlOf<forms::DirectoryList>(browser, u"Directorios"_s);
    }
    static void accept(const forms::Form &browser) { click(controlOf<QWidget>(browser, u"Aceptar2"_s)); }
    static void goBack(const forms::Form &browser) { click(controlOf<QWidget>(browser, u"Flecha2"_s)); }
};

} // namespace

TEST_F(Configuracion2Test, TheWordsAreThoseOfTheLanguage)
{
    begin();
    configurePair(u"Own"_s, u"Mame"_s, [](forms::Form &form) {
        EXPECT_EQ(form.Caption(), u"TXT_TituloCFG2"_s);
        for (const QString &label : { u"TXT_CFGDe"_s, u"TXT_CFGGeneral"_s, u"TXT_EXE"_s, u"TXT_ROM"_s,
                 u"TXT_IMG"_s, u"TXT_PAR"_s, u"TXT_Especial"_s, u"TXT_1DIR"_s, u"TXT_Comp"_s,
                 u"TXT_AutoComp"_s, u"TXT_SoloEXE"_s, u"TXT_Grabar"_s, u"TXT_Volver"_s })
            EXPECT_EQ(captionOf(form, label), label);
        for (const QString &button : { u"Boton1"_s, u"Boton2"_s, u"Boton3"_s })
            EXPECT_EQ(controlOf<forms::CommandButton>(form, button).Caption(), u"TXT_Examinar"_s);
        EXPECT_EQ(captionOf(form, u"Texto2"_s), u"Own -> Mame"_s);
        EXPECT_EQ(captionOf(form, u"Texto7"_s), u"EXE"_s);
        EXPECT_EQ(captionOf(form, u"Texto8"_s), u"ROM"_s);
    });
}

TEST_F(Configuracion2Test, LoadedInAnotherLanguageItSpeaksTheNewOneOnceShown)
{
    begin();
    M->TXT_Examinar = u"old"_s;
    forms::FormHolder<dialogs::Examinar> browser(
        []() -> std::unique_ptr<dialogs::Examinar> { return nullptr; });
    maintenance::Configuracion2 second(*M, {}, browser, u"Own"_s, u"Mame"_s);
    M->TXT_Examinar = u"new"_s;
    second.Prepara();
    for (const forms::CommandButton *button : { second.Boton1, second.Boton2, second.Boton3 })
        EXPECT_EQ(button->Caption(), u"new"_s);
}

TEST_F(Configuracion2Test, EachKindOfSystemHasItsWarning)
{
    begin();
    const struct {
        QString system;
        QString emulator;
        QString warning;
        int origin;
    } kinds[] = { { u"NES"_s, u"Nes1"_s, u"TXT_AvisoTipo0"_s, 0 },
        { u"Arcade"_s, u"Mame"_s, u"TXT_AvisoTipo1"_s, 1 },
        { u"Neo-Geo"_s, u"Neo"_s, u"TXT_AvisoTipo1"_s, 1 }, { u"Own"_s, u"Mame"_s, u"TXT_AvisoNuevo"_s, 2 } };
    for (const auto &kind : kinds) {
        configurePair(kind.system, kind.emulator, [&](forms::Form &form) {
            EXPECT_EQ(captionOf(form, u"TXT_Aviso"_s), kind.warning);
            EXPECT_EQ(M->Config_Origen, kind.origin);
            EXPECT_EQ(controlOf<QWidget>(form, u"Check1"_s).isVisible(), kind.origin != 0);
        });
    }
}

TEST_F(Configuracion2Test, OfAKnownSystemTheSpecialCasesAreGone)
{
    setCatalogue("2", "NES");
    database.replace("+Nes1", "+Mame");
    begin();
    configurePair(u"NES"_s, u"Mame"_s, [](forms::Form &form) {
        for (const QString &name :
            { u"TXT_Especial"_s, u"Shape2"_s, u"TXT_1DIR"_s, u"TXT_Comp"_s, u"Check1"_s, u"Check2"_s })
            EXPECT_TRUE(controlOf<QWidget>(form, name).isHidden()) << name.toStdString();
        for (const QString &name : { u"TXT_AutoComp"_s, u"Check3"_s }) {
            EXPECT_FALSE(controlOf<QWidget>(form, name).isHidden());
            EXPECT_GT(placeOf(form, name).top(), form.height()); // cut off
        }
        EXPECT_EQ(form.height(), 336); // 5420 twips with the frame
        EXPECT_EQ(placeOf(form, u"Disco1"_s), designPlace(120, 4300, 435, 435));
        EXPECT_EQ(placeOf(form, u"Flecha1"_s), designPlace(750, 4300, 615, 375));
        EXPECT_EQ(placeOf(form, u"TXT_Grabar"_s).top(), 319);
        EXPECT_EQ(placeOf(form, u"TXT_Volver"_s).top(), 319);
        EXPECT_EQ(placeOf(form, u"Shape3"_s), designPlace(1560, 4200, 2055, 735));
        EXPECT_EQ(placeOf(form, u"TXT_Aviso"_s), designPlace(1640, 4200, 1935, 735));
        EXPECT_EQ(marks(form), QString());
        EXPECT_EQ(enabled(form), u"124"_s);
        EXPECT_EQ(box(form, u"Casilla1"_s), u"/bin/mame"_s);
    });
}

TEST_F(Configuracion2Test, OfAKnownSystemAStoredFiveComesBackAsItself)
{
    setCatalogue("5", "NES");
    database.replace("+Nes1", "+Mame");
    begin();
    configurePair(u"NES"_s, u"Mame"_s, [this](forms::Form &form) {
        EXPECT_EQ(marks(form), u"4"_s);
        EXPECT_EQ(enabled(form), u"124"_s);
        atWarning(u"Msg_SinCambios"_s);
        click(controlOf<QWidget>(form, u"Disco1"_s));
        EXPECT_TRUE(form.isVisible());
    });
    expectFilesUnchanged();
}

TEST_F(Configuracion2Test, PathsThatAreCutOffShowInFullAsTips)
{
    const QByteArray deep = "/" + QByteArray(60, 'x') + "/";
    catalogue.replace("/bin/mame", deep + "mame").replace("/roms/", deep).replace("-a b", deep);
    begin();
    configurePair(u"Arcade"_s, u"Mame"_s, [&deep](forms::Form &form) {
        const auto tip = [&form](const QString &name) {
            return controlOf<QWidget>(form, name).accessibleDescription();
        };
        const QString missing = u"No se encuentra en este ordenador."_s;
        EXPECT_EQ(tip(u"Casilla1"_s), missing + u'\n' + QString::fromLatin1(deep) + u"mame"_s);
        EXPECT_EQ(tip(u"Casilla2"_s), missing + u'\n' + QString::fromLatin1(deep));
        EXPECT_EQ(tip(u"Casilla3"_s), missing); // it fits
        EXPECT_EQ(tip(u"Casilla4"_s), QString());
        write(form, u"Casilla3"_s, QString(60, u'i'));
        EXPECT_EQ(tip(u"Casilla3"_s), missing + u'\n' + QString(60, u'i'));
    });
}

TEST_F(Configuracion2Test, AConfiguredEmulatorComesBackAsItIsStored)
{
    begin();
    configurePair(u"Arcade"_s, u"Mame"_s, [this](forms::Form &form) {
        EXPECT_THAT(boxes(form), ElementsAre(u"/bin/mame"_s, u"/roms/"_s, u"/img/"_s, u"-a b"_s, u"-c"_s));
        EXPECT_EQ(marks(form), u"23"_s);
        EXPECT_EQ(M->Config2_Cambios, 2);
        EXPECT_EQ(form.focusWidget()->objectName(), u"Casilla1"_s);
    });
}

TEST_F(Configuracion2Test, ANewEmulatorOfAConfiguredSystemInheritsNothing)
{
    begin();
    configurePair(u"Arcade"_s, u"Other"_s, [this](forms::Form &form) {
        EXPECT_THAT(boxes(form).join(QString()).toStdString(), IsEmpty());
        EXPECT_EQ(marks(form), QString());
        EXPECT_EQ(M->Config2_Cambios, 1);
    });
}

TEST_F(Configuracion2Test, AnEmulatorOfASystemThatIsntConfiguredOpensEmpty)
{
    begin();
    configurePair(u"Own"_s, u"Mame"_s, [this](forms::Form &form) {
        EXPECT_THAT(boxes(form).join(QString()).toStdString(), IsEmpty());
        EXPECT_EQ(M->Config2_Cambios, 0);
    });
}

TEST_F(Configuracion2Test, OfTwoEmulatorsOfOneNameTheFirstInTheFileIsShown)
{
    setCatalogue("3");
    catalogue = catalogue.chopped(7)
        + "-Own\r\nWEB1=\r\n*.ZIP\r\n'\r\n+Mame\r\nWEB2=\r\nEXE=/second\r\nXDI=1\r\nROM=\r\n"
          "IMG=\r\nPAR1=\r\nPAR2=\r\n"
        + Closing + "[EOF]\r\n";
    begin();
    configurePair(u"Own"_s, u"Mame"_s, [this](forms::Form &form) {
        EXPECT_EQ(M->Config2_Cambios, 2);
        EXPECT_EQ(box(form, u"Casilla1"_s), u"/bin/mame"_s);
        EXPECT_EQ(marks(form), u"23"_s);
    });
}

TEST_F(Configuracion2Test, AStoredTypeComesBackAsItsMarks)
{
    const std::pair<QByteArray, QString> types[] = { { "0", u""_s }, { "1", u"1"_s }, { "2", u"2"_s },
        { "3", u"23"_s }, { "4", u""_s }, { "5", u"14"_s }, { "6", u"24"_s }, { "7", u"234"_s },
        { "8", u""_s }, { "", u""_s } };
    for (const auto &[type, expected] : types) {
        renew();
        setCatalogue(type);
        begin();
        configurePair(u"Arcade"_s, u"Mame"_s, [&expected, &type](forms::Form &form) {
            EXPECT_EQ(marks(form), expected) << type.constData();
            EXPECT_EQ(enabled(form),
                expected.contains(u'1')       ? u"14"_s
                    : expected.contains(u'2') ? u"234"_s
                                              : u"124"_s);
        });
    }
}

TEST_F(Configuracion2Test, OneDirectoryForEachGameAndAllInOneExcludeEachOther)
{
    begin();
    configurePair(u"Own"_s, u"Mame"_s, [](forms::Form &form) {
        EXPECT_EQ(enabled(form), u"124"_s);
        EXPECT_EQ(colourOf(form, u"TXT_AutoComp"_s), Dim);
        EXPECT_EQ(colourOf(form, u"TXT_1DIR"_s), Bright);
        EXPECT_EQ(colourOf(form, u"TXT_Comp"_s), Bright);

        mark(form, 1);
        EXPECT_EQ(marks(form), u"1"_s);
        EXPECT_EQ(enabled(form), u"14"_s);
        EXPECT_EQ(colourOf(form, u"TXT_Comp"_s), Dim);
        mark(form, 2); // locked
        EXPECT_EQ(marks(form), u"1"_s);
        mark(form, 1);
        EXPECT_EQ(colourOf(form, u"TXT_Comp"_s), Bright);

        mark(form, 2);
        EXPECT_EQ(enabled(form), u"234"_s);
        EXPECT_EQ(colourOf(form, u"TXT_1DIR"_s), Dim);
        EXPECT_EQ(colourOf(form, u"TXT_AutoComp"_s), Bright);
        mark(form, 3);
        EXPECT_EQ(marks(form), u"23"_s);
        mark(form, 2);
        EXPECT_EQ(marks(form), QString()); // the third goes with the second
        EXPECT_EQ(enabled(form), u"124"_s);
        EXPECT_EQ(colourOf(form, u"TXT_1DIR"_s), Bright);
        EXPECT_EQ(colourOf(form, u"TXT_AutoComp"_s), Dim);
    });
}

TEST_F(Configuracion2Test, WithoutAGameTheParametersBehindItAreGreyed_AndTheirTextStays)
{
    begin();
    configurePair(u"Own"_s, u"Mame"_s, [](forms::Form &form) {
        auto &last = controlOf<forms::TextBox>(form, u"Casilla5"_s);
        const auto paper = [&last] { return last.palette().color(QPalette::Active, QPalette::Base); };
        write(form, u"Casilla5"_s, u"-x"_s);
        EXPECT_EQ(paper(), QColor(Qt::white));
        mark(form, 4);
        EXPECT_FALSE(last.isEnabled());
        EXPECT_EQ(paper(), QColor(128, 128, 128));
        EXPECT_EQ(last.Text(), u"-x"_s);
        EXPECT_TRUE(controlOf<QWidget>(form, u"Casilla4"_s).isEnabled());
        EXPECT_EQ(enabled(form), u"124"_s);
        mark(form, 4);
        EXPECT_TRUE(last.isEnabled());
        EXPECT_EQ(paper(), QColor(Qt::white));
    });
}

TEST_F(Configuracion2Test, TheExecutableIsBrowsedFor)
{
    begin();
    configurePair(u"Own"_s, u"Mame"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, files.path(u"bin/old.exe"_s));
        browse(form, u"Boton1"_s, [this](forms::Form &browser) {
            EXPECT_EQ(browser.Caption(), u"TXT_Examinar"_s);
            EXPECT_EQ(captionOf(browser, u"TXT_Volver"_s), u"TXT_Volver"_s);
            EXPECT_EQ(tree(browser).Path(), files.path(u"bin"_s));
            auto &programs = controlOf<forms::ListBox>(browser, u"Archivos"_s);
            EXPECT_TRUE(programs.isVisible());
            EXPECT_THAT(entriesOf(programs), ElementsAre(u"emu.exe"_s, u"tool"_s));
            select(programs, u"tool"_s);
            accept(browser);
        });
        EXPECT_EQ(box(form, u"Casilla1"_s), u"bin/tool");
    });
}

TEST_F(Configuracion2Test, WithoutAFileTheExecutableIsTheDirectoryAndASeparator_AtTheRootTwo)
{
    begin();
    configurePair(u"Own"_s, u"Mame"_s, [this](forms::Form &form) {
        write(form, u"Casilla1"_s, files.path(u"BIN\\old.exe"_s));
        browse(form, u"Boton1"_s, [](forms::Form &browser) { accept(browser); });
        EXPECT_EQ(box(form, u"Casilla1"_s), u"bin/");
        write(form, u"Casilla1"_s, u"/x"_s);
        browse(form, u"Boton1"_s, [](forms::Form &browser) { accept(browser); });
        EXPECT_EQ(box(form, u"Casilla1"_s), u"//"_s);
    });
}

TEST_F(Configuracion2Test, DirectoriesAreBrowsedForWithoutTheListOfFiles)
{
    begin();
    configurePair(u"Own"_s, u"Mame"_s, [this](forms::Form &form) {
        for (const auto &[button, name] :
            { std::pair(u"Boton2"_s, u"Casilla2"_s), std::pair(u"Boton3"_s, u"Casilla3"_s) }) {
            write(form, name, files.path(u"roms/"_s));
            browse(form, button, [this](forms::Form &browser) {
                EXPECT_EQ(tree(browser).Path(), files.path(u"roms"_s));
                EXPECT_TRUE(controlOf<QWidget>(browser, u"Archivos"_s).isHidden());
                EXPECT_EQ(browser.width(), 138); // 2160 twips with the frame
                accept(browser);
            });
            EXPECT_EQ(box(form, name), u"roms");
            EXPECT_EQ(form.focusWidget()->objectName(), name);
        }
    });
}

TEST_F(Configuracion2Test, OutsideTheProgramsDirectoryAndForThatItselfTheAnswerIsTheWholePath)
{
    const QTemporaryDir outside;
    begin();
    configurePair(u"Own"_s, u"Mame"_s, [&](forms::Form &form) {
        for (const QString &directory : { outside.path(), files.path() }) {
            write(form, u"Casilla2"_s, directory);
            browse(form, u"Boton2"_s, [](forms::Form &browser) { accept(browser); });
            EXPECT_EQ(box(form, u"Casilla2"_s), directory);
        }
    });
}

// What the boxes hold stays as it is; only the browser starts where it leads.
TEST_F(Configuracion2Test, APathFromTheProgramsDirectoryIsBrowsedThere)
{
    const QString working = host::currentDirectory();
    begin();
    configurePair(u"Own"_s, u"Mame"_s, [&](forms::Form &form) {
        host::changeDirectory(u"/"_s);
        for (const auto &[button, name, value, place] :
            { std::tuple(u"Boton1"_s, u"Casilla1"_s, u"BIN\\old.exe"_s, u"bin"_s),
                std::tuple(u"Boton2"_s, u"Casilla2"_s, u"roms/"_s, u"roms"_s),
                std::tuple(u"Boton3"_s, u"Casilla3"_s, u"bin/../roms"_s, u"roms"_s) }) {
            write(form, name, value);
            browse(form, button, [&](forms::Form &browser) {
                EXPECT_EQ(tree(browser).Path(), files.path(place));
                goBack(browser);
            });
            EXPECT_EQ(box(form, name), value);
        }
        host::changeDirectory(working);
    });
}

TEST_F(Configuracion2Test, ABadPathLeavesTheBrowserOnTheProgramsDirectory)
{
    begin();
    configurePair(u"Own"_s, u"Mame"_s, [this](forms::Form &form) {
        const QString own = QFileInfo(files.path()).canonicalFilePath();
        for (const auto &[button, name] : { std::pair(u"Boton1"_s, u"Casilla1"_s),
                 std::pair(u"Boton2"_s, u"Casilla2"_s), std::pair(u"Boton3"_s, u"Casilla3"_s) }) {
            for (const QString &typed : { QString(), u"nothing"_s, u"/no/such/place/"_s }) {
                write(form, name, typed);
                browse(form, button, [&own](forms::Form &browser) {
                    EXPECT_EQ(tree(browser).Path(), own);
                    goBack(browser);
                });
                EXPECT_EQ(box(form, name), typed); // as it was
            }
        }
        EXPECT_EQ(form.focusWidget()->objectName(), u"Casilla3"_s);
    });
}

TEST_F(Configuracion2Test, TheBrowsersBoxForClosingAnswersWithWhatWasPickedLast)
{
    begin();
    configurePair(u"Own"_s, u"Mame"_s, [this](forms::Form &form) {
        const auto closeIt = [](forms::Form &browser) { wishClose(browser); };
        browse(form, u"Boton1"_s, closeIt);
        EXPECT_EQ(box(form, u"Casilla1"_s), u"/"_s);
        write(form, u"Casilla2"_s, files.path(u"roms"_s));
        browse(form, u"Boton2"_s, [](forms::Form &browser) { accept(browser); });
        browse(form, u"Boton3"_s, closeIt);
        EXPECT_EQ(box(form, u"Casilla3"_s), u"roms");
    });
}

TEST_F(Configuracion2Test, ABrowserThatCannotBeLoadedChangesNothing)
{
    begin();
    configurePair(u"Own"_s, u"Mame"_s, [this](forms::Form &form) {
        const QString typed = files.path(u"bin/typed"_s);
        const QString own = host::programDirectory();
        for (const int number : { 1, 2, 3 }) {
            const QString text = u"Casilla"_s + QString::number(number);
            const QString button = u"Boton"_s + QString::number(number);
            write(form, text, typed);
            host::setProgramDirectory(u"/nowhere"_s);
            EXPECT_FALSE(endOf([&] { click(controlOf<QWidget>(form, button)); }));
            EXPECT_EQ(box(form, text), typed);
            EXPECT_EQ(form.focusWidget()->objectName(), number > 1 ? text : u"Boton1"_s);
            host::setProgramDirectory(own);
            browse(form, button, [](forms::Form &browser) { goBack(browser); });
        }
    });
}

TEST_F(Configuracion2Test, AVolumeThatIsntThereGivesTheNoticeOverTheBrowser)
{
    begin();
    configurePair(u"Own"_s, u"Mame"_s, [this](forms::Form &form) {
        browse(form, u"Boton2"_s, [this](forms::Form &browser) {
            auto &drives = controlOf<forms::ComboBox>(browser, u"Discos"_s);
            drives.AddItem(u"/mnt/nowhere"_s);
            atModal(u"Caja"_s, [](forms::Form &notice) {
                EXPECT_EQ(notice.Caption(), u"Msg_NoDiscoX0"_s);
                EXPECT_EQ(captionOf(notice, u"Texto2"_s), u"Msg_NoDiscoI1 /MNT/NOWHERE Msg_NoDiscoD1"_s);
                click(controlOf<QWidget>(notice, u"Aceptar2"_s));
            });
            pick(drives, u"/mnt/nowhere"_s);
            goBack(browser);
        });
    });
}

TEST_F(Configuracion2Test, GoingBackSavesNothingAndLeavesTheFirstStepOpen)
{
    begin();
    configure([this](forms::Form &first) {
        atModal(u"Configuracion2"_s, [](forms::Form &second) {
            write(second, u"Casilla1"_s, u"x"_s);
            press(controlOf<QWidget>(second, u"Flecha1"_s));
            EXPECT_TRUE(second.isVisible());
            release(controlOf<QWidget>(second, u"Flecha1"_s));
            EXPECT_FALSE(second.isVisible());
        });
        click(controlOf<QWidget>(first, u"Aceptar2"_s));
        EXPECT_TRUE(first.isVisible());
        atModal(u"Configuracion2"_s, [](forms::Form &second) {
            EXPECT_EQ(box(second, u"Casilla1"_s), u"/bin/mame"_s); // loaded anew
            click(controlOf<QWidget>(second, u"Flecha1"_s));
        });
        click(controlOf<QWidget>(first, u"Aceptar2"_s));
    });
    expectFilesUnchanged();
}

TEST_F(Configuracion2Test, WithoutAnEmulatorItIsRefused_AndLoadedAnewForTheNextOne)
{
    begin();
    configure([this](forms::Form &first) {
        auto &systems = controlOf<forms::ListBox>(first, u"Lista1"_s);
        select(systems, u"Empty"_s);
        EXPECT_EQ(captionOf(first, u"Texto5"_s), u"Empty -> "_s);
        atWarning(u"Msg_NoEmuLD"_s);
        click(controlOf<QWidget>(first, u"Aceptar2"_s));
        EXPECT_EQ(M->Config_Origen, -1);
        EXPECT_EQ(M->Config2_Cambios, 0);
        EXPECT_TRUE(first.isVisible());
    });
    // Also where the first step has been closed meanwhile.
    configurePair(u"Arcade"_s, u"Mame"_s, [this](forms::Form &second) {
        EXPECT_EQ(captionOf(second, u"Texto2"_s), u"Arcade -> Mame"_s);
        EXPECT_EQ(box(second, u"Casilla1"_s), u"/bin/mame"_s);
        EXPECT_EQ(M->Config2_Cambios, 2);
        EXPECT_EQ(M->Config_Origen, 1);
    });
}

TEST_F(Configuracion2Test, ItIsDrivenByKeysThroughout)
{
    begin();
    configurePair(u"Own"_s, u"Mame"_s, [](forms::Form &form) {
        QStringList way;
        for (int i = 0; i < 13; ++i) {
            way += form.focusWidget()->objectName();
            if (way.last() == u"Check2"_s)
                strike(form, Qt::Key_Space);
            strike(form, Qt::Key_Tab);
        }
        EXPECT_THAT(way,
            ElementsAre(u"Casilla1"_s, u"Boton1"_s, u"Casilla2"_s, u"Boton2"_s, u"Casilla3"_s, u"Boton3"_s,
                u"Casilla4"_s, u"Casilla5"_s, u"Check4"_s, u"Check1"_s, u"Check2"_s, u"Check3"_s,
                u"Disco1"_s));
        EXPECT_EQ(marks(form), u"2"_s);
        EXPECT_EQ(form.focusWidget()->objectName(), u"Flecha1"_s);
        for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Escape })
            strike(form, key);
        EXPECT_TRUE(form.isVisible());
        strike(form, Qt::Key_Space);
        EXPECT_FALSE(form.isVisible());
    });
}

TEST_F(Configuracion2Test, ControlsHaveNamesForScreenReaders)
{
    begin();
    configurePair(u"Own"_s, u"Mame"_s, [](forms::Form &form) {
        const std::pair<QString, QString> names[] = { { u"Casilla1"_s, u"TXT_EXE"_s },
            { u"Boton1"_s, u"TXT_Examinar TXT_EXE"_s }, { u"Boton3"_s, u"TXT_Examinar TXT_IMG"_s },
            { u"Casilla4"_s, u"Parámetros delante de la ROM"_s },
            { u"Casilla5"_s, u"Parámetros detrás de la ROM"_s }, { u"Check1"_s, u"TXT_1DIR"_s },
            { u"Check2"_s, u"TXT_Comp"_s }, { u"Check3"_s, u"TXT_AutoComp"_s },
            { u"Check4"_s, u"TXT_SoloEXE"_s }, { u"Disco1"_s, u"TXT_Grabar"_s },
            { u"Flecha1"_s, u"TXT_Volver"_s } };
        for (const auto &[control, name] : names)
            EXPECT_EQ(controlOf<QWidget>(form, control).accessibleName(), name);
    });
}
