// The options: what acts at once, what is written, and what an unsaved change is worth.

#include "opcionestest.h"

#include "tests/support/ordinaryuser.h"

#include "tests/support/desktoptools.h"

#include "forms/commandbutton.h"

#include <QFontInfo>

using namespace Qt::StringLiterals;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace {

class Opciones1Test : public OpcionesTest {
protected:
    static void chooseLook(forms::Form &form, const QString &look) { pick(comboOf(form, u"Combo1"_s), look); }
    static void chooseLanguage(forms::Form &form, const QString &file)
    {
        pick(comboOf(form, u"Combo2"_s), file);
    }
    static QString language(const forms::Form &form) { return comboOf(form, u"Combo2"_s).Text(); }

    QColor back() { return control(u"Editor"_s).palette().color(QPalette::Base); }
    QColor ink() { return control(u"Editor"_s).palette().color(QPalette::Text); }

    QByteArray changed(const QByteArray &line, const QByteArray &newLine)
    {
        QByteArray expected = m_first;
        EXPECT_EQ(expected.count(line + "\r\n"), 1);
        return expected.replace(line + "\r\n", newLine + "\r\n");
    }
    void begin(int system = Zeta, int emulator = 0)
    {
        startAt(system, emulator);
        m_first = settings();
    }

    QByteArray m_first; // the settings at the start

    const QString Console = u"S:TXT_EditorDOS"_s;
    const QString System = u"S:TXT_EditorWIN"_s;
    const QString English = u"ZB-ENG.LNG"_s;
    const QString Spanish = u"ZB-ESP.LNG"_s;
};

// The texts of a form that are still in the language of the start.
QStringList stillSpanish(QStringList texts)
{
    texts.removeIf([](const QString &text) { return !text.contains(u"S:"_s); });
    return texts;
}

} // namespace

TEST_F(Opciones1Test, ControlsStandInTheirPlaces)
{
    begin();
    options([this](forms::Form &form) {
        expectPlaces(form,
            {
                { u"TXT_Idioma"_s, designPlace(120, 1080, 2415, 255) },
                { u"Combo1"_s, designPlace(120, 480, 2415, 315) },
                { u"Combo2"_s, designPlace(120, 1320, 2415, 315) },
                { u"TXT_InfoLNG"_s, designPlace(120, 1800, 2400, 210) },
                { u"TXT_EditarLNG"_s, designPlace(120, 2280, 2415, 495) },
                { u"Boton2"_s, designPlace(120, 2760, 495, 315) },
                { u"Boton_CFGAv"_s, designPlace(120, 3360, 2415, 255) },
                { u"Disco1"_s, designPlace(120, 3840, 435, 435) },
                { u"Flecha2"_s, designPlace(800, 3880, 615, 375) },
            });
        for (const QString &line : { u"Line1"_s, u"Linea1"_s, u"Linea3"_s })
            EXPECT_EQ(controlOf<QWidget>(form, line).height(), 1);
        EXPECT_EQ(form.size(), QSize(177, 308));
        EXPECT_EQ(form.Control(u"Disco2"_s), form.Control(u"Disco1"_s));
        EXPECT_EQ(form.Control(u"Flecha1"_s), form.Control(u"Flecha2"_s));
        EXPECT_EQ(form.palette().color(QPalette::Window), QColor(0, 0, 64));
        expectTiled(form);
        EXPECT_EQ(form.geometry().center(), portada->geometry().center());
        const Qt::WindowFlags flags = form.windowFlags();
        EXPECT_TRUE(flags.testFlag(Qt::WindowCloseButtonHint));
        EXPECT_FALSE(flags.testAnyFlags(Qt::WindowMinMaxButtonsHint));
    });
}

TEST_F(Opciones1Test, LabelsOfTheDesignStandWhereTheyAreBroughtIn)
{
    begin();
    const options::Opciones1 form(*M, *portada);
    EXPECT_EQ(form.Caption(), u"Opciones"_s);
    const struct {
        QString name;
        QString text;
        QRect place;
        bool centred;
    } labels[] = {
        { u"TXT_Editor"_s, u"Editor de ayuda y configuración:"_s, designPlace(120, 240, 2340, 210), false },
        { u"TXT_Idioma"_s, u"Archivo de idioma usado:"_s, designPlace(120, 1080, 2415, 255), false },
        { u"TXT_InfoLNG"_s, u"Idioma Español, Autor:Dorvel"_s, designPlace(120, 1800, 2400, 210), true },
        { u"TXT_EditarLNG"_s, u"Editar el arch. ZB-xxx.LNG para cambiar los textos del programa."_s,
            designPlace(120, 2280, 2415, 495), false },
        { u"TXT_Grabar"_s, u"Grabar"_s, designPlace(90, 4320, 510, 210), true },
        { u"TXT_Volver"_s, u"Volver"_s, designPlace(735, 4320, 705, 210), true },
    };
    for (const auto &expected : labels) {
        SCOPED_TRACE(expected.name.toStdString());
        const auto &label = controlOf<forms::Label>(form, expected.name);
        EXPECT_EQ(label.Caption(), expected.text);
        EXPECT_EQ(label.geometry().topLeft(), expected.place.topLeft());
        EXPECT_EQ(label.height(), expected.place.height());
        EXPECT_EQ(label.alignment().testFlag(Qt::AlignHCenter), expected.centred);
    }
    EXPECT_EQ(controlOf<forms::CommandButton>(form, u"Boton2"_s).Caption(), u"OK"_s);
    EXPECT_EQ(controlOf<forms::CommandButton>(form, u"Boton_CFGAv"_s).Caption(), u"Opciones avanzadas"_s);
}

TEST_F(Opciones1Test, TheListsShowWhatIsInForce)
{
    files.write(u"LNG/readme.txt"_s, "x");
    begin();
    options([this](forms::Form &form) {
        auto &looks = comboOf(form, u"Combo1"_s);
        EXPECT_THAT(entries(looks), ElementsAre(Console, System));
        EXPECT_EQ(looks.ItemData(0), 0);
        EXPECT_EQ(looks.ItemData(1), 1);
        EXPECT_EQ(looks.Text(), System);
        auto &languages = comboOf(form, u"Combo2"_s);
        EXPECT_THAT(entries(languages), ElementsAre(English, Spanish));
        EXPECT_EQ(languages.ItemData(0), 0);
        EXPECT_EQ(languages.ItemData(1), 1);
        EXPECT_EQ(languages.Text(), Spanish);
    });
    EXPECT_EQ(M->TypeOfEditorPrevio, 1);
    EXPECT_EQ(M->IdiomaPrevio, Spanish);
    EXPECT_EQ(M->IdiomaCambiado, 1);
}

TEST_F(Opciones1Test, FillingTheListsChangesNothing)
{
    begin();
    portada->Editor->SetColours(Qt::red, Qt::green);
    M->TXT_Grabar = u"changed"_s;
    options([](forms::Form &) {});
    EXPECT_EQ(back(), QColor(Qt::red));
    EXPECT_EQ(M->TXT_Grabar, u"changed"_s);
}

TEST_F(Opciones1Test, TheWordsAreThoseOfTheLanguage)
{
    begin();
    options([](forms::Form &form) {
        EXPECT_EQ(form.Caption(), u"S:TXT_TituloOp1"_s);
        for (const QString &label : { u"TXT_Volver"_s, u"TXT_Grabar"_s, u"TXT_Editor"_s, u"TXT_Idioma"_s,
                 u"TXT_InfoLNG"_s, u"TXT_EditarLNG"_s })
            EXPECT_EQ(captionOf(form, label), u"S:"_s + label);
        EXPECT_EQ(controlOf<forms::CommandButton>(form, u"Boton2"_s).Caption(), u"S:TXT_Si"_s);
        EXPECT_EQ(controlOf<forms::CommandButton>(form, u"Boton_CFGAv"_s).Caption(), u"S:Boton_CFGAv"_s);
    });
}

TEST_F(Opciones1Test, EveryControlHasAName)
{
    begin();
    options([](forms::Form &form) {
        for (const auto &[control, name] : { std::pair(u"Combo1"_s, u"S:TXT_Editor"_s),
                 std::pair(u"Combo2"_s, u"S:TXT_Idioma"_s), std::pair(u"Boton2"_s, u"S:TXT_EditarLNG"_s),
                 std::pair(u"Disco1"_s, u"S:TXT_Grabar"_s), std::pair(u"Flecha2"_s, u"S:TXT_Volver"_s) })
            EXPECT_EQ(controlOf<QWidget>(form, control).accessibleName(), name) << control.toStdString();
    });
}

TEST_F(Opciones1Test, APickedLookShowsInTheEditorAtOnceAndIsNotWritten)
{
    begin();
    const auto stamp = stampOfSettings();
    options([this](forms::Form &form) {
        chooseLook(form, Console);
        EXPECT_EQ(back(), QColor(0, 0, 192));
        EXPECT_EQ(ink(), QColor(192, 192, 192));
        EXPECT_EQ(M->TypeOfEditor, u"0"_s);
        chooseLook(form, System);
        EXPECT_EQ(back(), QColor(Qt::white));
        EXPECT_EQ(ink(), QColor(Qt::black));
        EXPECT_EQ(M->TypeOfEditor, u"1"_s);
    });
    EXPECT_EQ(stampOfSettings(), stamp);
}

TEST_F(Opciones1Test, APickedLanguageReachesEveryTextOfBothScreensAtOnce)
{
    begin();
    options([this](forms::Form &form) {
        EXPECT_FALSE(stillSpanish(textsOf(form)).isEmpty());
        EXPECT_FALSE(stillSpanish(textsOf(*portada)).isEmpty());
        chooseLanguage(form, English);
        EXPECT_THAT(stillSpanish(textsOf(form)), ElementsAre());
        EXPECT_THAT(stillSpanish(textsOf(*portada)), ElementsAre());
        EXPECT_EQ(M->LanguageFile, English);
        EXPECT_EQ(form.Caption(), u"E:TXT_TituloOp1"_s);
        EXPECT_EQ(controlOf<forms::CommandButton>(form, u"Boton2"_s).Caption(), u"E:TXT_Si"_s);
        EXPECT_EQ(word(), u"E:TXT_Jugar"_s);
        auto &looks = comboOf(form, u"Combo1"_s);
        EXPECT_THAT(entries(looks), ElementsAre(u"E:TXT_EditorDOS"_s, u"E:TXT_EditorWIN"_s));
        EXPECT_EQ(looks.Text(), u"E:TXT_EditorWIN"_s);
    });
    EXPECT_EQ(settings(), m_first);
}

TEST_F(Opciones1Test, AnotherLanguageKeepsAnUnsavedLook)
{
    begin();
    options([this](forms::Form &form) {
        chooseLook(form, Console);
        chooseLanguage(form, English);
        EXPECT_EQ(comboOf(form, u"Combo1"_s).Text(), u"E:TXT_EditorDOS"_s);
    });
    EXPECT_EQ(M->TypeOfEditor, u"0"_s);
}

TEST_F(Opciones1Test, InAnEmptyListTheMainScreenSaysThatNoRomWasFound)
{
    begin();
    list().Clear();
    options([this](forms::Form &form) { chooseLanguage(form, English); });
    EXPECT_EQ(info(), u"E:TXT_NingunaROM"_s);
}

TEST_F(Opciones1Test, InAFilledListTheMainScreenKeepsItsFacts)
{
    begin();
    const QString facts = info();
    const QString count = summary();
    options([this](forms::Form &form) { chooseLanguage(form, English); });
    EXPECT_EQ(info(), facts);
    EXPECT_EQ(summary(), count);
}

TEST_F(Opciones1Test, WithoutAnEmulatorTheMainScreenAsksForOneWhateverTheLastType)
{
    startWithoutEmulator(Alfa);
    M->TipoEmu = u"1"_s;
    const QString before = word();
    options([this](forms::Form &form) { chooseLanguage(form, English); });
    EXPECT_EQ(summary(), u"E:TXT_EmuNoSelec"_s);
    EXPECT_EQ(word(), before);
}

TEST_F(Opciones1Test, TheWordOfTheButtonGoesByTheType)
{
    begin(Medio, 0); // type 1
    options([this](forms::Form &form) {
        for (const auto &[type, expected] : { std::pair(u"0"_s, u"E:TXT_Jugar"_s),
                 std::pair(u"1"_s, u"E:TXT_Jugar"_s), std::pair(u"2"_s, u"E:TXT_Jugar"_s),
                 std::pair(u"3"_s, u"E:TXT_Jugar"_s), std::pair(u"4"_s, u"before"_s),
                 std::pair(u"5"_s, u"E:TXT_Cargar"_s), std::pair(u"6"_s, u"E:TXT_Cargar"_s),
                 std::pair(u"7"_s, u"E:TXT_Cargar"_s), std::pair(u"8"_s, u"E:TXT_Cargar"_s) }) {
            M->TipoEmu = type;
            portada->TXT_Boton->SetCaption(u"before"_s);
            portada->TXT_InfoRoms->SetCaption(u"count"_s);
            chooseLanguage(form, English);
            EXPECT_EQ(word(), expected) << type.toStdString();
            const bool directories = type == u"1"_s || type == u"6"_s;
            EXPECT_EQ(summary(), directories ? u"0 E:TXT_Directorios"_s : u"count"_s) << type.toStdString();
        }
    });
}

TEST_F(Opciones1Test, TheLanguageInUsePickedAgainIsReadAnewAndIsNoChange)
{
    begin();
    writeLanguage(Spanish, u"new "_s);
    Box box;
    options([&](forms::Form &form) {
        chooseLanguage(form, Spanish);
        EXPECT_EQ(captionOf(form, u"TXT_Idioma"_s), u"new TXT_Idioma"_s);
        box = save(form);
    });
    EXPECT_EQ(box.title, u"new Msg_SinCambios0"_s);
    EXPECT_TRUE(box.warning);
}

TEST_F(Opciones1Test, SavingWithoutAChangeSaysSoAndLeavesTheFileAlone)
{
    begin();
    const auto stamp = stampOfSettings();
    options([this](forms::Form &form) { EXPECT_EQ(save(form), warningOf(u"Msg_SinCambios"_s)); });
    EXPECT_EQ(stampOfSettings(), stamp);
    EXPECT_EQ(settings(), m_first);
}

TEST_F(Opciones1Test, SavingAChangedLookWritesItsLineAlone)
{
    begin();
    options([this](forms::Form &form) {
        chooseLook(form, Console);
        EXPECT_EQ(save(form), noticeOf(u"Msg_GrabacionOK"_s));
        EXPECT_EQ(settings(), changed("TypeOfEditor = 1", "TypeOfEditor = 0"));
        EXPECT_EQ(save(form), warningOf(u"Msg_SinCambios"_s));
        chooseLook(form, System);
        EXPECT_EQ(save(form), noticeOf(u"Msg_GrabacionOK"_s));
    });
    EXPECT_EQ(settings(), m_first);
    EXPECT_FALSE(files.exists(u"Zembro.tmp"_s));
}

TEST_F(Opciones1Test, SavingAChangedLanguageWritesItsLineAlone)
{
    begin();
    options([this](forms::Form &form) {
        chooseLanguage(form, English);
        const Box box = save(form);
        EXPECT_EQ(box.title, u"E:Msg_GrabacionOK0"_s);
        EXPECT_EQ(box.text, u"E:Msg_GrabacionOK1"_s);
        EXPECT_THAT(box.words, ElementsAre(u"E:TXT_Aceptar"_s, u"E:TXT_Volver"_s));
        EXPECT_FALSE(box.warning);
        EXPECT_TRUE(save(form).warning);
    });
    EXPECT_EQ(settings(), changed("LanguageFile = ZB-ESP.LNG", "LanguageFile = ZB-ENG.LNG"));
    renewJoined();
    start();
    EXPECT_EQ(word(), u"E:TXT_Jugar"_s);
}

TEST_F(Opciones1Test, BothChangedTakeTwoSaves_TheLookFirst)
{
    begin();
    options([this](forms::Form &form) {
        chooseLanguage(form, English);
        chooseLook(form, u"E:TXT_EditorDOS"_s);
        EXPECT_EQ(save(form).title, u"E:Msg_GrabacionOK0"_s);
        const QByteArray afterOne = changed("TypeOfEditor = 1", "TypeOfEditor = 0");
        EXPECT_EQ(settings(), afterOne);
        EXPECT_EQ(save(form).title, u"E:Msg_GrabacionOK0"_s);
        EXPECT_EQ(settings(), QByteArray(afterOne).replace("ZB-ESP.LNG", "ZB-ENG.LNG"));
        EXPECT_EQ(save(form).title, u"E:Msg_SinCambios0"_s);
    });
}

TEST_F(Opciones1Test, AnUnsavedChangeCountsAsSavedOnceTheScreenIsOpenedAgain)
{
    begin();
    options([this](forms::Form &form) {
        chooseLook(form, Console);
        chooseLanguage(form, English);
    });
    EXPECT_EQ(back(), QColor(0, 0, 192));
    options([this](forms::Form &form) {
        EXPECT_EQ(comboOf(form, u"Combo1"_s).Text(), u"E:TXT_EditorDOS"_s);
        EXPECT_EQ(language(form), English);
        EXPECT_EQ(save(form).title, u"E:Msg_SinCambios0"_s);
    });
    EXPECT_EQ(settings(), m_first);
}

TEST_F(Opciones1Test, ALanguageThatIsNotAmongTheFilesLeavesTheListWithoutSelection)
{
    writeLanguage(u"spanish.txt"_s, u"S:"_s);
    Settings other;
    other.LastSisUsed = u"2"_s;
    other.LanguageFile = u"spanish.txt"_s;
    files.writeSettings(other);
    start();
    m_first = settings();
    options([this](forms::Form &form) {
        EXPECT_EQ(language(form), QString());
        EXPECT_EQ(M->IdiomaPrevio, QString());
        EXPECT_EQ(save(form), warningOf(u"Msg_SinCambios"_s));
        chooseLanguage(form, Spanish);
        EXPECT_EQ(save(form), noticeOf(u"Msg_GrabacionOK"_s));
    });
    EXPECT_EQ(settings(), changed("LanguageFile = spanish.txt", "LanguageFile = ZB-ESP.LNG"));
}

TEST_F(Opciones1Test, NamesOfLanguagesAreInCapitalsOnTheScreenAndInTheFile)
{
    writeLanguage(u"zb-fra.lng"_s, u"F:"_s);
    begin();
    options([this](forms::Form &form) {
        EXPECT_THAT(entries(comboOf(form, u"Combo2"_s)), Contains(u"ZB-FRA.LNG"_s));
        EXPECT_THAT(entries(comboOf(form, u"Combo2"_s)), Not(Contains(u"zb-fra.lng"_s)));
        chooseLanguage(form, u"ZB-FRA.LNG"_s);
        EXPECT_EQ(captionOf(form, u"TXT_Idioma"_s), u"F:TXT_Idioma"_s);
        save(form);
    });
    EXPECT_EQ(settings(), changed("LanguageFile = ZB-ESP.LNG", "LanguageFile = ZB-FRA.LNG"));
}

TEST_F(Opciones1Test, ALanguageThatTheNextStartWouldNotFindIsRefusedWithAWord_AndShownUntilTheEnd)
{
    writeLanguage(u"A=B.LNG"_s, u"X:"_s);
    begin();
    options([this](forms::Form &form) {
        chooseLanguage(form, u"A=B.LNG"_s);
        EXPECT_EQ(word(), u"X:TXT_Jugar"_s);
        const Box box = save(form);
        EXPECT_EQ(box.title, M->Palabras.Zem_NoFinal0);
        EXPECT_EQ(box.text, M->Palabras.Zem_NoNombre1);
        EXPECT_TRUE(box.warning);
        EXPECT_EQ(settings(), m_first);
        chooseLanguage(form, English);
        EXPECT_EQ(save(form).title, u"E:Msg_GrabacionOK0"_s);
    });
    EXPECT_EQ(settings(), changed("LanguageFile = ZB-ESP.LNG", "LanguageFile = ZB-ENG.LNG"));
}

TEST_F(Opciones1Test, AHundredAndOneLanguagesAreListed_TheLastOfThemNeverSelected)
{
    files.remove(u"LNG/ZB-ENG.LNG"_s);
    for (int i = 0; i < 100; ++i)
        files.write(u"LNG/A%1.LNG"_s.arg(i, 3, 10, QChar(u'0')), "' \r\n");
    begin();
    options([this](forms::Form &form) {
        EXPECT_EQ(comboOf(form, u"Combo2"_s).ListCount(), 101);
        EXPECT_EQ(comboOf(form, u"Combo2"_s).List(100), Spanish);
        EXPECT_EQ(language(form), QString());
    });
    files.write(u"LNG/B.LNG"_s, "' \r\n");
    const auto end = endOf([this] { portada->Boton2b->Release.raise(); });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 1);
    EXPECT_TRUE(end->text.contains(u"(ERR9)"_s)) << end->text.toStdString();
    EXPECT_TRUE(end->text.endsWith(files.path(u"LNG"_s))) << end->text.toStdString();
}

TEST_F(Opciones1Test, AMissingSettingsFileEndsTheSaving)
{
    begin();
    const auto end = endOfOptions([this](forms::Form &form) {
        chooseLook(form, Console);
        files.remove(u"Zembro.cfg"_s);
        controlOf<forms::PictureButton>(form, u"Disco1"_s).Release.raise();
    });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 1);
    EXPECT_TRUE(end->text.contains(u"(ERR53)"_s)) << end->text.toStdString();
    EXPECT_TRUE(end->text.endsWith(files.path(u"Zembro.cfg"_s))) << end->text.toStdString();
}

TEST_F(Opciones1Test, ALanguageFileThatHasVanishedEndsTheProgram)
{
    begin();
    const auto end = endOfOptions([this](forms::Form &form) {
        files.remove(u"LNG/ZB-ENG.LNG"_s);
        comboOf(form, u"Combo2"_s).SetText(English);
    });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 1);
    EXPECT_TRUE(end->text.contains(u"ZB-ENG.LNG"_s)) << end->text.toStdString();
}

TEST_F(Opciones1Test, ALookThatIsNoneOfTheTwoEndsTheProgram)
{
    Settings other;
    other.TypeOfEditor = u"2"_s;
    files.writeSettings(other);
    start();
    const auto end = endOf([this] { portada->Boton2b->Release.raise(); });
    ASSERT_TRUE(end);
    EXPECT_TRUE(end->text.contains(u"(ERR380)"_s)) << end->text.toStdString();
}

TEST_F(Opciones1Test, TheEditorGetsTheLanguageFileInItsTrueSpellingAsOneArgument)
{
    files.remove(u"LNG/ZB-ESP.LNG"_s);
    writeLanguage(u"zb-esp.lng"_s, u"S:"_s);
    const DesktopTools tools(files);
    tools.install(u"leafpad"_s);
    for (const QString &look : { Console, System }) {
        begin();
        options([&](forms::Form &form) {
            chooseLook(form, look);
            click(controlOf<QWidget>(form, u"Boton2"_s));
            EXPECT_TRUE(form.isVisible());
        });
        EXPECT_TRUE(tools.recorded().startsWith(u"leafpad|"_s + files.path(u"LNG/zb-esp.lng"_s) + u'|'));
        renewJoined();
    }
}

TEST_F(Opciones1Test, WithoutAnyLanguageFileTheEditorGetsTheNameAllTheSame)
{
    const DesktopTools tools(files);
    tools.install(u"leafpad"_s);
    begin();
    files.remove(u"LNG/ZB-ESP.LNG"_s);
    files.remove(u"LNG/ZB-ENG.LNG"_s);
    options([](forms::Form &form) {
        EXPECT_EQ(comboOf(form, u"Combo2"_s).ListCount(), 0);
        EXPECT_EQ(language(form), QString());
        click(controlOf<QWidget>(form, u"Boton2"_s));
    });
    EXPECT_TRUE(tools.recorded().startsWith(u"leafpad|"_s + files.path(u"LNG/ZB-ESP.LNG"_s) + u'|'));
}

TEST_F(Opciones1Test, AMissingEditorIsToldAndOneThatDoesNotStartIsNot)
{
    const DesktopTools tools(files);
    begin();
    options([&](forms::Form &form) {
        Box box;
        announceBox(box);
        click(controlOf<QWidget>(form, u"Boton2"_s));
        EXPECT_TRUE(box.warning);
        EXPECT_EQ(box.title, u"S:Zem_Falta0"_s);
        EXPECT_EQ(box.text, u"S:Zem_FaltaEditor"_s);
        tools.broken(u"leafpad"_s);
        click(controlOf<QWidget>(form, u"Boton2"_s)); // a box would be unexpected
    });
    EXPECT_EQ(settings(), m_first);
}

TEST_F(Opciones1Test, AnyMouseButtonSavesAndGoesBackWhereverItIsReleased)
{
    begin();
    for (const Qt::MouseButton button : { Qt::RightButton, Qt::MiddleButton }) {
        options([&](forms::Form &form) {
            auto &disk = controlOf<forms::PictureButton>(form, u"Disco1"_s);
            Box box;
            announceBox(box);
            press(disk, button);
            EXPECT_TRUE(disk.ShowsPressed());
            releaseAt(disk, QPoint(60, -60), button);
            EXPECT_FALSE(disk.ShowsPressed());
            EXPECT_EQ(box, warningOf(u"Msg_SinCambios"_s));
            auto &arrow = controlOf<forms::PictureButton>(form, u"Flecha2"_s);
            press(arrow, button);
            EXPECT_TRUE(arrow.ShowsPressed());
            releaseAt(arrow, QPoint(-60, -60), button);
            EXPECT_FALSE(form.isVisible());
        });
    }
}

TEST_F(Opciones1Test, TheCloseBoxGoesBackAndUndoesNothing_AndEscapeDoesNothing)
{
    begin();
    options([this](forms::Form &form) {
        chooseLanguage(form, English);
        strike(form, Qt::Key_Escape);
        EXPECT_TRUE(form.isVisible());
        wishClose(form);
        EXPECT_FALSE(form.isVisible());
    });
    EXPECT_EQ(M->LanguageFile, English);
    EXPECT_EQ(settings(), m_first);
}

TEST_F(Opciones1Test, EverythingIsReachedByTabInTheOrderOfTheScreen)
{
    begin();
    options([](forms::Form &form) {
        QStringList order;
        comboOf(form, u"Combo1"_s).setFocus();
        do {
            order << form.focusWidget()->objectName();
            strike(form, Qt::Key_Tab);
        } while (form.focusWidget()->objectName() != order.first() && order.size() < 20);
        EXPECT_THAT(order,
            ElementsAre(u"Combo1"_s, u"Combo2"_s, u"Boton2"_s, u"Boton_CFGAv"_s, u"Disco1"_s, u"Flecha2"_s));
    });
}

TEST_F(Opciones1Test, WhatCannotBeKeptIsTold_AndHoldsForThisRun)
{
    startAt(Zeta, 0);
    const QByteArray before = settings();
    options([this](forms::Form &form) {
        const AsOrdinaryUser user(files.path());
        comboOf(form, u"Combo1"_s).SetListIndex(0);
        EXPECT_EQ(save(form), warningOf(u"Zem_SoloLeer"_s));
        comboOf(form, u"Combo1"_s).SetListIndex(1);
        comboOf(form, u"Combo2"_s).SetText(u"ZB-ENG.LNG"_s);
        EXPECT_TRUE(save(form).warning);
        EXPECT_EQ(captionOf(form, u"TXT_Grabar"_s), u"E:TXT_Grabar"_s);
    });
    EXPECT_EQ(settings(), before);
}
