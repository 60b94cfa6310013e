// The gestures that play, and what the main screen shows of a launch. The emulator is a script that counts
// its runs.

#include "lanzamientotest.h"

#include "tests/support/witness.h"

#include <QApplication>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

TEST_F(LanzamientoTest, PlayButtonPlaysOnTheReleaseWhereverThatIs)
{
    startAt(Zeta, 0);
    auto &button = control<forms::PictureButton>(u"JugarB1"_s);
    press(button, Qt::MiddleButton);
    EXPECT_TRUE(button.ShowsPressed());
    EXPECT_EQ(runs(), 0);
    releaseAt(button, QPoint(200, -100), Qt::MiddleButton);
    EXPECT_FALSE(button.ShowsPressed());
    EXPECT_EQ(runs(), 1);
}

TEST_F(LanzamientoTest, PlayButtonGivesWayOnceAheadOfPlaying)
{
    startAt(Zeta, 0);
    bool ran = false;
    press(control(u"JugarB1"_s));
    QTimer::singleShot(0, portada.get(), [&] {
        ran = true;
        EXPECT_EQ(info(), u"ONE.NES 1Kb  [NOR]"_s);
        EXPECT_EQ(runs(), 0);
        EXPECT_FALSE(control<forms::PictureButton>(u"JugarB1"_s).ShowsPressed());
    });
    release(control(u"JugarB1"_s));
    EXPECT_TRUE(ran);
    EXPECT_EQ(runs(), 1);
}

TEST_F(LanzamientoTest, EnterPlaysOnceFromEveryPlaceThatTakesIt)
{
    startAt(Zeta, 0);
    for (const QString &name : { u"Lista1"_s, u"Combo1"_s, u"Combo2"_s, u"Graf_TV"_s, u"Titulo1"_s,
             u"IMGDescripcionLarga"_s, u"Graf_Imagen"_s, u"BotonA2"_s, u"D1"_s }) {
        for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Enter }) {
            control(name).show();
            focus(name);
            strike(*portada, key);
            EXPECT_EQ(runs(), 1) << name.toStdString();
        }
    }
}

TEST_F(LanzamientoTest, EnterPlaysFromTheScreenItself)
{
    startAt(Zeta, 0);
    list().clearFocus();
    portada->setFocus();
    ASSERT_EQ(focused(), u"Portada"_s);
    strike(*portada, Qt::Key_Return);
    EXPECT_EQ(runs(), 1);
}

TEST_F(LanzamientoTest, ClickOnTheTitleOrTheTelevisionTakesTheFocusForEnter)
{
    startAt(Zeta, 0);
    for (const QString &name : { u"Titulo1"_s, u"Graf_TV"_s }) {
        list().setFocus();
        clickAt(control(name), QPoint(4, 30)); // beside what the television holds
        EXPECT_EQ(focused(), name);
    }
}

TEST_F(LanzamientoTest, KeyHeldDownPlaysOnce)
{
    startAt(Zeta, 0);
    for (const QString &name : { u"Lista1"_s, u"Combo1"_s, u"Titulo1"_s }) {
        focus(name);
        strike(*portada, Qt::Key_Return);
        focus(name);
        repeatKey(*portada, Qt::Key_Return);
        repeatKey(*portada, Qt::Key_Return);
        EXPECT_EQ(runs(), 1) << name.toStdString();
    }
}

TEST_F(LanzamientoTest, OtherKeysPlayNothing)
{
    startAt(Zeta, 0);
    for (const Qt::Key key : { Qt::Key_Space, Qt::Key_Escape, Qt::Key_Down, Qt::Key_J })
        strike(*portada, key);
    EXPECT_EQ(runs(), 0);
}

TEST_F(LanzamientoTest, EnterThatPicksFromADropDownListDoesNotPlay)
{
    startAt(Zeta, 0);
    systems().setFocus();
    dropDown(systems());
    strike(*QApplication::activePopupWidget(), Qt::Key_Return);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(runs(), 0);
}

TEST_F(LanzamientoTest, DoubleClickInTheListPlays)
{
    startAt(Zeta, 0);
    doubleClickRow(list(), 1);
    EXPECT_EQ(runs(), 1);
    EXPECT_EQ(list().Text(), u"two.nes"_s);
}

TEST_F(LanzamientoTest, DoubleClickOnTheTipPlays)
{
    startAt(Zeta, 0);
    QWidget &tip = control(u"IMGDescripcionLarga"_s);
    tip.show();
    tip.raise();
    doubleClick(tip);
    EXPECT_EQ(runs(), 1);
}

TEST_F(LanzamientoTest, DoubleClickOnThePlayButtonPlaysTwice)
{
    startAt(Zeta, 0);
    doubleClick(control(u"JugarB1"_s));
    EXPECT_EQ(runs(), 2);
}

TEST_F(LanzamientoTest, NothingPlaysWithoutAnEmulator)
{
    startWithoutEmulator(Zeta);
    click(control(u"JugarB1"_s));
    strike(*portada, Qt::Key_Return);
    EXPECT_EQ(runs(), 0);
    EXPECT_EQ(info(), u"Ninguna ROM"_s);
}

TEST_F(LanzamientoTest, NothingPlaysInTheDatabase)
{
    startAt(Zeta, 0);
    click(control(u"Check1"_s));
    pick(systems(), u"Nueva"_s);
    click(control(u"JugarB1"_s));
    EXPECT_EQ(runs(), 0);
}

TEST_F(LanzamientoTest, EnterPlaysNothingInTheDatabaseAlsoWhereItNamesAnExecutable)
{
    files.writeLines(u"Zembro.sye"_s,
        { u"-Nueva"_s, u"WEB1="_s, u"*.NEW"_s, u"'"_s, u"+Solita"_s, u"WEB2="_s,
            u"EXE="_s + files.path(u"bin/emu"_s), u"XDI=5"_s, u"'-"_s, u"-Otra"_s, u"WEB1="_s, u"'"_s,
            u"+Sola"_s, u"WEB2="_s, u"EXE="_s, u"XDI=9"_s, u"'-"_s, u"[EOF]"_s });
    startAt(Zeta, 0);
    click(control(u"Check1"_s));
    for (const QString &system : { u"Nueva"_s, u"Otra"_s }) {
        pick(systems(), system);
        ASSERT_EQ(emulators().ListIndex(), 0);
        for (const QString &name : { u"Combo1"_s, u"Combo2"_s, u"Titulo1"_s, u"Graf_TV"_s }) {
            focus(name);
            strike(*portada, Qt::Key_Return);
            strike(*portada, Qt::Key_Enter);
        }
        portada->setFocus();
        ASSERT_EQ(focused(), u"Portada"_s);
        strike(*portada, Qt::Key_Return);
        EXPECT_EQ(runs(), 0) << system.toStdString();
        EXPECT_EQ(info(), u"Base de datos"_s);
        EXPECT_EQ(colour(u"TXT_Info"_s), QColor(0, 0, 128));
    }
    EXPECT_EQ(M->Cat_EXE(0, 1), u"EXE="_s + files.path(u"bin/emu"_s));
}

TEST_F(LanzamientoTest, LineShowsTheLoadingInRedCapitalsAtOnce)
{
    startAt(Zeta, 0);
    QStringList painted;
    const Witness paints(control(u"TXT_Info"_s), QEvent::Paint,
        [&] { painted << colour(u"TXT_Info"_s).name() + u' ' + info(); });
    click(control(u"JugarB1"_s));
    EXPECT_THAT(painted, testing::Contains(u"#c00000 CARGANDO"_s));
    EXPECT_EQ(info(), u"ONE.NES 1Kb  [NOR]"_s);
    EXPECT_EQ(colour(u"TXT_Info"_s), QColor(Qt::black));
}

TEST_F(LanzamientoTest, EndSelectsTheEntryAnewAndGivesTheListTheFocus)
{
    startAt(Zeta, 0);
    clickRow(list(), 1);
    files.writeGif(u"zetacap/two.gif"_s, Qt::green);
    ASSERT_EQ(capture(), QColor(Qt::black));
    focus(u"Combo1"_s);
    strike(*portada, Qt::Key_Return);
    EXPECT_EQ(runs(), 1);
    EXPECT_EQ(list().Text(), u"two.nes"_s);
    EXPECT_EQ(capture(), QColor(Qt::green));
    EXPECT_EQ(focused(), u"Lista1"_s);
}

TEST_F(LanzamientoTest, EmulatorWithoutROMsSaysSoAtTheEnd)
{
    files.remove(u"zeta"_s);
    startAt(Zeta, 0);
    click(control(u"JugarB1"_s));
    EXPECT_EQ(runs(), 1);
    EXPECT_EQ(info(), u"Ninguna ROM"_s);
    EXPECT_EQ(colour(u"TXT_Info"_s), QColor(Qt::black));
}

TEST_F(LanzamientoTest, WhereNothingStartsTheLineLosesItsRedAndShowsTheFactsAgain)
{
    configure(u"0"_s);
    startAt(Zeta, 0);
    ASSERT_EQ(info(), u"ONE.NES 1Kb  [NOR]"_s);
    files.remove(u"bin/emu"_s);
    QStringList painted;
    const Witness paints(control(u"TXT_Info"_s), QEvent::Paint,
        [&] { painted << colour(u"TXT_Info"_s).name() + u' ' + info(); });
    click(control(u"JugarB1"_s));
    EXPECT_THAT(painted, testing::Contains(u"#c00000 CARGANDO"_s));
    EXPECT_EQ(runs(), 0);
    EXPECT_EQ(info(), u"ONE.NES 1Kb  [NOR]"_s);
    EXPECT_EQ(colour(u"TXT_Info"_s), QColor(Qt::black));
}

TEST_F(LanzamientoTest, ScreenLivesWhileTheEmulatorRuns)
{
    startAt(Zeta, 0);
    QStringList seen;
    duringARun([this] { click(control(u"JugarB1"_s)); },
        [&] {
            seen << colour(u"TXT_Info"_s).name() + u' ' + info();
            clickRow(list(), 1);
            seen << info();
        });
    EXPECT_THAT(seen, ElementsAre(u"#000000 ONE.NES 1Kb  [NOR]"_s, u"two.nes 2Kb  [NOR]"_s));
    EXPECT_EQ(list().Text(), u"Juego uno"_s); // what was played is selected again
}

TEST_F(LanzamientoTest, LeavingWhileTheEmulatorRunsSavesEndsTheProgramAndLetsTheEmulatorLive)
{
    startAt(Alfa, 0);
    pick(systems(), u"Zeta"_s);
    duringARun([this] { click(control(u"JugarB1"_s)); },
        [this] {
            const std::optional<ProcessEnd> end = endOf([this] { click(control(u"Flecha2"_s)); });
            ASSERT_TRUE(end);
            EXPECT_EQ(end->status, 0);
            EXPECT_EQ(end->text, QString());
            EXPECT_TRUE(files.read(u"Zembro.cfg"_s).contains("LastSisUsed = 2\r\n"));
            EXPECT_FALSE(files.exists(u"bin/ended"_s));
        });
    EXPECT_TRUE(files.exists(u"bin/ended"_s));
}

TEST_F(LanzamientoTest, EntryIsGoneFromTheListOfAnotherSystemThatWasPickedMeanwhile)
{
    startAt(Zeta, 0);
    duringARun([this] { click(control(u"JugarB1"_s)); },
        [this] {
            pick(systems(), u"alfa"_s);
            pick(emulators(), u"Alto"_s);
        });
    EXPECT_THAT(listed(), ElementsAre(u"a.sms"_s, u"b.sms"_s));
    EXPECT_EQ(list().ListIndex(), -1);
    EXPECT_EQ(summary(), u"2 ROMS - 0.01MB"_s);
    EXPECT_EQ(colour(u"TXT_Info"_s), QColor(Qt::black));
}

TEST_F(LanzamientoTest, DatabaseOpenedMeanwhileStaysEmptyAtTheEnd)
{
    startAt(Zeta, 0);
    duringARun([this] { click(control(u"JugarB1"_s)); }, [this] { click(control(u"Check1"_s)); });
    EXPECT_EQ(M->VerBaseDeDatos, 1);
    EXPECT_EQ(list().ListCount(), 0);
    EXPECT_EQ(info(), u"Ninguna ROM"_s);
    EXPECT_FALSE(control(u"JugarB1"_s).isEnabled());
}

TEST_F(LanzamientoTest, OfTwoEntriesOfOneTextTheFirstIsSelectedAtTheEnd)
{
    files.writeNotes({ { u"Zeta"_s, { { u"ONE.NES"_s, u"Juego"_s }, { u"TWO.NES"_s, u"Juego"_s } } } });
    startAt(Zeta, 0);
    ASSERT_THAT(listed(), ElementsAre(u"Juego"_s, u"Juego"_s));
    clickRow(list(), 1);
    click(control(u"JugarB1"_s));
    EXPECT_EQ(runs(), 1);
    EXPECT_EQ(list().ListIndex(), 0);
}

namespace {

// Follows all that is delivered in the program while the watch runs, one pass for each tick of a timer: lets
// the screen settle first, then notes whatever else comes, and calls back at the end.
class Passes final : public QObject {
public:
    explicit Passes(std::function<bool()> running, std::function<void()> over)
        : m_running(std::move(running))
        , m_over(std::move(over))
    {
        qApp->installEventFilter(this);
    }

    QStringList others;

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        constexpr int Settled = 50;
        constexpr int Last = 150;
        const bool tick = event->type() == QEvent::Timer;
        if (m_passes >= Last || (m_passes == 0 && !m_running()))
            return false;
        if (tick && ++m_passes == Last)
            m_over();
        else if (!tick && m_passes > Settled)
            others << QString::fromLatin1(receiver->metaObject()->className()) + u' ' + receiver->objectName()
                    + u' ' + QString::number(event->type());
        return false;
    }

private:
    std::function<bool()> m_running;
    std::function<void()> m_over;
    int m_passes = 0;
};

} // namespace

TEST_F(LanzamientoTest, PassOfTheWatchThatChangesNothingPostsNothing)
{
    makeEmulator("touch started\nfor _ in $(seq 500); do [ -e go ] && break; sleep 0.01; done\n");
    for (const bool withROMs : { true, false }) {
        if (!withROMs)
            files.remove(u"zeta"_s);
        renew();
        startAt(Zeta, 0);
        Passes passes(
            [this] { return files.exists(u"bin/started"_s); }, [this] { files.write(u"bin/go"_s, {}); });
        click(control(u"JugarB1"_s));
        ASSERT_TRUE(files.exists(u"bin/go"_s));
        EXPECT_THAT(passes.others, testing::IsEmpty()) << (withROMs ? "with ROMs" : "without");
        EXPECT_EQ(info(), withROMs ? u"ONE.NES 1Kb  [NOR]"_s : u"Ninguna ROM"_s);
        files.remove(u"bin/go"_s);
        files.remove(u"bin/started"_s);
    }
}

TEST_F(LanzamientoTest, ZipWithoutAROMIsToldInABoxOverTheScreen)
{
    files.write(u"zeta/bad.zip"_s, "no archive");
    files.writeLines(u"LNG/ZB-ESP.LNG"_s,
        languageLines() << languageLine(u"Msg_ZipSinRoms0"_s, u"Zip"_s)
                        << languageLine(u"Msg_ZipSinRoms1"_s, u"No hay nada"_s));
    systemsOfCatalogue[0].extensions = { u"ZIP"_s };
    configure(u"0"_s);
    startAt(Zeta, 0);
    ASSERT_THAT(listed(), ElementsAre(u"bad.zip"_s));
    bool told = false;
    atModal(u"Caja"_s, [&](forms::Form &form) {
        told = true;
        EXPECT_EQ(form.Caption(), u"Zip"_s);
        EXPECT_EQ(controlOf<forms::Label>(form, u"Texto2"_s).Caption(), u"No hay nada"_s);
        EXPECT_EQ(controlOf<forms::Label>(form, u"TXT_Aceptar"_s).Caption(), u"Aceptar"_s);
        EXPECT_FALSE(controlOf<QWidget>(form, u"Flecha2"_s).isVisible());
        click(controlOf<QWidget>(form, u"Aceptar2"_s));
    });
    click(control(u"JugarB1"_s));
    EXPECT_TRUE(told);
    EXPECT_EQ(runs(), 0);
}

TEST_F(LanzamientoTest, EnterOnTheCheckBoxPlaysNothing)
{
    startAt(Zeta, 0);
    focus(u"Check1"_s);
    strike(*portada, Qt::Key_Return);
    EXPECT_EQ(runs(), 0);
}
