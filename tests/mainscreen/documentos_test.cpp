// The texts of an emulator and of the program: what is found, what the screen shows while one is open, and
// what is started. The desktop's tools are scripts that record what they were given.

#include "mundotest.h"

#include "tests/support/desktoptools.h"

#include <QDir>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

const QStringList Hidden { u"D1"_s, u"Check1"_s, u"TXT_dB"_s, u"TXT_Boton"_s, u"BotonC2"_s, u"BotonD2"_s,
    u"Boton3b"_s, u"Boton4b"_s, u"TXT_Ayuda"_s, u"TXT_AcercaDe"_s, u"TXT_VerAyuda"_s, u"TXT_VerConfig"_s,
    u"Flecha2"_s, u"JugarB1"_s, u"Menos2b"_s, u"Boton5b"_s, u"Boton6b"_s, u"TXT_Utilidades"_s, u"TXT_FAQ"_s,
    u"Shape1"_s, u"Shape2"_s };
const QStringList Covered { u"E1"_s, u"Boton1b"_s, u"Boton2b"_s, u"Menos2a"_s, u"WEB2"_s };
const QStringList Shown { u"Editor"_s, u"FlechaE2"_s, u"Edit2"_s, u"BlocDeNotas2"_s };

class DocumentosTest : public MundoTest {
protected:
    DocumentosTest()
    {
        files.write(u"emu/Emu.exe"_s, "x");
        systemsOfCatalogue[0].emulators[0].executable = files.path(u"emu/Emu.exe"_s);
        files.writeCatalogue(systemsOfCatalogue);
    }
    bool isShown(const QString &name) { return !control(name).isHidden(); }
    QString text() { return control<forms::TextArea>(u"Editor"_s).Text(); }
    // What the next message box says, left by the arrow.
    void expectWarning(const QString &title, const QString &text)
    {
        atModal(u"Caja"_s, [this, title, text](forms::Form &form) {
            ++warnings;
            EXPECT_EQ(form.Caption(), title);
            EXPECT_EQ(controlOf<forms::Label>(form, u"Texto2"_s).Caption(), text);
            click(controlOf<QWidget>(form, u"Flecha2"_s));
        });
    }

    const DesktopTools tools { files };
    int warnings = 0;
};

} // namespace

TEST_F(DocumentosTest, HelpOpensInTheEditorAndTheArrowClosesIt)
{
    files.write(u"emu/readme.txt"_s, "Read \xE9\r\nme  ");
    startAt(Zeta, 0);
    click(control(u"BotonC2"_s));
    EXPECT_EQ(text(), u"Read é\nme"_s);
    for (const QString &name : Hidden)
        EXPECT_FALSE(isShown(name)) << name.toStdString();
    for (const QString &name : Shown)
        EXPECT_TRUE(isShown(name)) << name.toStdString();
    EXPECT_EQ(control(u"Editor"_s).geometry(), forms::inPixels({ 120, 1080, 5895, 4035 }));
    EXPECT_EQ(control(u"FlechaE2"_s).geometry(), QRect(0, 0, 31, 31));
    EXPECT_EQ(control(u"Edit2"_s).geometry(), QRect(328, 344, 31, 31));
    EXPECT_EQ(control(u"BlocDeNotas2"_s).geometry(), QRect(368, 344, 31, 31));
    for (const QString &name : Covered) {
        EXPECT_TRUE(isShown(name));
        EXPECT_NE(portada->childAt(control(name).geometry().center()), &control(name));
    }
    click(control(u"FlechaE2"_s));
    for (const QString &name : Hidden)
        EXPECT_TRUE(isShown(name)) << name.toStdString();
    for (const QString &name : Shown)
        EXPECT_FALSE(isShown(name)) << name.toStdString();
}

TEST_F(DocumentosTest, EscapeClosesTheText)
{
    files.write(u"emu/readme.txt"_s, "Read me");
    startAt(Zeta, 0);
    click(control(u"BotonC2"_s));
    ASSERT_TRUE(isShown(u"Editor"_s));
    strike(*portada, Qt::Key_Escape);
    for (const QString &name : Hidden)
        EXPECT_TRUE(isShown(name)) << name.toStdString();
    for (const QString &name : Shown)
        EXPECT_FALSE(isShown(name)) << name.toStdString();
    EXPECT_TRUE(list().hasFocus());
}

TEST_F(DocumentosTest, TableKeepsItsColumnsAndProseWraps)
{
    startAt(Zeta, 0);
    auto &editor = *portada->Editor;
    const auto shown = [&](const char *bytes) {
        files.write(u"emu/readme.txt"_s, bytes);
        click(control(u"BotonC2"_s));
        const QFontMetrics metrics = editor.fontMetrics();
        const bool one = metrics.horizontalAdvance(u"iiii"_s) == metrics.horizontalAdvance(u"MMMM"_s);
        const bool wraps = editor.lineWrapMode() != QPlainTextEdit::NoWrap;
        click(control(u"FlechaE2"_s));
        return std::pair(one, wraps);
    };
    EXPECT_EQ(shown("F1    Help\nF10   Settings\nEnd   Leave"), std::pair(true, false));
    EXPECT_EQ(shown("A text of one line."), std::pair(false, true));
}

TEST_F(DocumentosTest, SettingsOpenTheSameWay)
{
    files.write(u"emu/emu.cfg"_s, "key=1");
    startAt(Zeta, 0);
    click(control(u"BotonD2"_s));
    EXPECT_EQ(text(), u"key=1"_s);
    for (const QString &name : Hidden)
        EXPECT_FALSE(isShown(name)) << name.toStdString();
}

TEST_F(DocumentosTest, EditorHasTheColoursOfItsKind)
{
    for (const auto &[kind, back, ink] : { std::tuple(u"0"_s, QColor(0, 0, 192), QColor(192, 192, 192)),
             std::tuple(u"1"_s, QColor(Qt::white), QColor(Qt::black)) }) {
        Settings settings;
        settings.LastSisUsed = u"2"_s;
        settings.TypeOfEditor = kind;
        files.writeSettings(settings);
        restart();
        EXPECT_EQ(control(u"Editor"_s).palette().color(QPalette::Base), back);
        EXPECT_EQ(control(u"Editor"_s).palette().color(QPalette::Text), ink);
    }
}

TEST_F(DocumentosTest, FirstCandidateWins)
{
    files.write(u"emu/Emu.txt"_s, "second");
    files.write(u"emu/ReadMe.TXT"_s, "first");
    startAt(Zeta, 0);
    click(control(u"BotonC2"_s));
    EXPECT_EQ(text(), u"first"_s);
}

TEST_F(DocumentosTest, WithoutAnyCandidateItIsSaidOnceAndTheScreenStays)
{
    startAt(Zeta, 0);
    M->Msg_AyudaNoEnc0 = u"Ayuda"_s;
    M->Msg_AyudaNoEnc1 = u"no help"_s;
    M->Msg_CFGNoEnc0 = u"Config"_s;
    M->Msg_CFGNoEnc1 = u"no settings"_s;
    for (const auto &[button, title, why] : { std::tuple(u"BotonC2"_s, u"Ayuda"_s, u"no help"_s),
             std::tuple(u"BotonD2"_s, u"Config"_s, u"no settings"_s) }) {
        atModal(u"Caja"_s, [&, title, why](forms::Form &form) {
            ++warnings;
            EXPECT_EQ(form.Caption(), title);
            EXPECT_EQ(controlOf<forms::Label>(form, u"Texto2"_s).Caption(), why);
            EXPECT_FALSE(portada->isEnabled());
            EXPECT_EQ(controlOf<forms::Label>(form, u"TXT_Volver"_s).Caption(), u"Volver"_s);
            click(controlOf<QWidget>(form, u"Flecha2"_s));
        });
        click(control(button));
        EXPECT_TRUE(portada->isEnabled());
        EXPECT_EQ(focused(), u"Lista1"_s);
        for (const QString &name : Hidden)
            EXPECT_TRUE(isShown(name)) << name.toStdString();
        EXPECT_FALSE(isShown(u"Editor"_s));
    }
    EXPECT_EQ(warnings, 2);
}

TEST_F(DocumentosTest, TooLongAFileIsToldAndCut)
{
    files.write(u"emu/readme.txt"_s, QByteArray(32000, 'a'));
    startAt(Zeta, 0);
    M->Msg_ArchGrande0 = u"Grande"_s;
    M->Msg_ArchGrande1 = u"too long"_s;
    click(control(u"BotonC2"_s));
    EXPECT_EQ(text().size(), 32000);
    click(control(u"FlechaE2"_s));
    files.write(u"emu/readme.txt"_s, QByteArray(32000, 'a') + "b");
    atModal(u"Caja"_s, [&](forms::Form &form) {
        ++warnings;
        EXPECT_EQ(form.Caption(), u"Grande"_s);
        EXPECT_EQ(controlOf<forms::Label>(form, u"Texto2"_s).Caption(), u"too long"_s);
        EXPECT_EQ(text(), QString());
        click(controlOf<QWidget>(form, u"Aceptar2"_s));
    });
    click(control(u"BotonC2"_s));
    EXPECT_EQ(warnings, 1);
    EXPECT_EQ(text(), QString(32000, u'a'));
}

TEST_F(DocumentosTest, WhatIsTypedIsNeitherSavedNorAskedAbout)
{
    files.write(u"emu/readme.txt"_s, "text");
    startAt(Zeta, 0);
    click(control(u"BotonC2"_s));
    EXPECT_EQ(focused(), u"Editor"_s);
    type(*portada, u"new "_s);
    strike(*portada, Qt::Key_Return);
    EXPECT_EQ(text(), u"new \ntext"_s);
    click(control(u"FlechaE2"_s));
    EXPECT_EQ(files.read(u"emu/readme.txt"_s), "text");
    click(control(u"BotonC2"_s));
    EXPECT_EQ(text(), u"text"_s);
}

TEST_F(DocumentosTest, CandidateThatCannotBeReadIsFatal)
{
    files.makeDirectory(u"emu/readme.txt"_s);
    startAt(Zeta, 0);
    const auto end = endOf([&] { click(control(u"BotonC2"_s)); });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 1);
    EXPECT_TRUE(end->text.contains(u"readme.txt"_s));
}

TEST_F(DocumentosTest, BothEditorsGetTheFileAsOneArgument)
{
    files.write(u"emu/readme.txt"_s, "text");
    for (const QString &tool : { u"leafpad"_s, u"xterm"_s, u"nano"_s })
        tools.install(tool);
    startAt(Zeta, 0);
    click(control(u"BotonC2"_s));
    const QString file = files.path(u"emu/readme.txt"_s);
    EXPECT_THAT(M->OrdenBlocDeNotas, ElementsAre(files.path(u"tools/leafpad"_s), file));
    EXPECT_THAT(
        M->OrdenEdit, ElementsAre(files.path(u"tools/xterm"_s), u"-e"_s, files.path(u"tools/nano"_s), file));
    click(control(u"BlocDeNotas2"_s));
    EXPECT_TRUE(tools.recorded().startsWith(u"leafpad|"_s + file + u'|'));
    click(control(u"Edit2"_s));
    EXPECT_TRUE(tools.recorded().startsWith(u"xterm|-e|"_s + files.path(u"tools/nano|"_s) + file + u'|'));
    EXPECT_TRUE(isShown(u"Editor"_s));
    const QStringList inEditor = M->OrdenBlocDeNotas;
    const QStringList inTerminal = M->OrdenEdit;
    click(control(u"FlechaE2"_s));
    EXPECT_EQ(M->OrdenBlocDeNotas, inEditor);
    EXPECT_EQ(M->OrdenEdit, inTerminal);
}

TEST_F(DocumentosTest, NobodyWaitsForAnOutsideEditor)
{
    files.write(u"emu/readme.txt"_s, "text");
    const QByteArray place = files.path().toUtf8();
    for (const QString &tool : { u"leafpad"_s, u"xterm"_s })
        tools.runs(tool, "while [ ! -e '" + place + "/go' ]; do :; done\n: >> '" + place + "/over'\n");
    tools.install(u"nano"_s);
    startAt(Zeta, 0);
    click(control(u"BotonC2"_s));
    // Lets a watch end that there shouldn't be.
    QTimer::singleShot(3000, portada.get(), [&] { files.write(u"go"_s, {}); });
    for (const QString &button : { u"BlocDeNotas2"_s, u"Edit2"_s }) {
        click(control(button));
        EXPECT_FALSE(files.exists(u"go"_s)) << button.toStdString();
    }
    files.write(u"go"_s, {});
    EXPECT_TRUE(waitUntil([&] { return files.exists(u"over"_s); }));
}

TEST_F(DocumentosTest, WordsGrowAgainAsTheyDidWhereATextIsClosed)
{
    files.write(u"emu/readme.txt"_s, "text");
    startAt(Zeta, 0);
    const QStringList words { u"TXT_Boton"_s, u"TXT_Utilidades"_s, u"TXT_AcercaDe"_s, u"TXT_VerAyuda"_s,
        u"TXT_VerConfig"_s, u"TXT_Ayuda"_s, u"TXT_FAQ"_s };
    for (const QString &name : words) {
        auto &label = control<forms::Label>(name);
        const QString word = label.Caption();
        label.SetCaption(word + u" and a long word"_s);
        const QRect place = label.geometry();
        click(control(u"BotonC2"_s));
        click(control(u"FlechaE2"_s));
        EXPECT_EQ(label.geometry(), place) << name.toStdString();
        label.SetCaption(word);
    }
}

TEST_F(DocumentosTest, MissingToolsAreToldAndNothingChanges)
{
    files.write(u"emu/readme.txt"_s, "text");
    startAt(Zeta, 0);
    const QString directory = QDir::currentPath();
    const QString noEditor = u"No hay ningún editor de textos instalado."_s;
    const auto misses = [this](const QString &button, const QString &text) {
        expectWarning(u"Falta un programa"_s, text);
        click(control(button));
    };
    misses(u"Boton5b"_s, noEditor);
    misses(u"Boton6b"_s, noEditor);
    misses(u"D1"_s, u"No hay ningún terminal instalado."_s);
    misses(u"E1"_s, u"No hay ningún gestor de archivos instalado."_s);
    click(control(u"BotonC2"_s));
    misses(u"Edit2"_s, u"No hay ningún editor para el terminal, o ningún terminal."_s);
    misses(u"BlocDeNotas2"_s, noEditor);
    EXPECT_EQ(warnings, 6);
    EXPECT_EQ(QDir::currentPath(), directory);
    EXPECT_EQ(text(), u"text"_s);
}

TEST_F(DocumentosTest, ToolThatFailsToStartDoesSoInSilence)
{
    files.write(u"emu/readme.txt"_s, "text");
    for (const QString &tool : { u"leafpad"_s, u"xterm"_s, u"nano"_s, u"thunar"_s })
        tools.broken(tool);
    startAt(Zeta, 0);
    for (const QString &button :
        { u"Boton5b"_s, u"D1"_s, u"E1"_s, u"BotonC2"_s, u"Edit2"_s, u"BlocDeNotas2"_s })
        click(control(button));
    EXPECT_TRUE(isShown(u"Editor"_s));
}

TEST_F(DocumentosTest, OwnTextsAreWatchedUntilTheirEditorCloses)
{
    tools.install(u"leafpad"_s);
    startAt(Zeta, 0);
    for (const auto &[button, name] :
        { std::pair(u"Boton5b"_s, u"Zembro.txt"_s), std::pair(u"Boton6b"_s, u"Zembro.faq"_s) }) {
        click(control(button));
        // The watch has ended, so the tool has.
        ASSERT_TRUE(files.exists(u"record"_s));
        EXPECT_TRUE(tools.recorded().startsWith(u"leafpad|"_s + files.path(name) + u'|'));
        EXPECT_FALSE(control<forms::PictureButton>(button).ShowsPressed());
    }
}

TEST_F(DocumentosTest, ConsoleBeginsInTheEmulatorsDirectory)
{
    tools.install(u"xterm"_s);
    startAt(Zeta, 0);
    click(control(u"D1"_s));
    EXPECT_EQ(tools.recorded(), u"xterm|"_s + files.path(u"emu"_s) + u'|');
}

TEST_F(DocumentosTest, ConsoleWhoseDirectoryIsGoneIsFatal)
{
    tools.install(u"xterm"_s);
    startAt(Zeta, 0);
    files.remove(u"emu"_s);
    const auto end = endOf([&] { click(control(u"D1"_s)); });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 1);
}

TEST_F(DocumentosTest, FileManagerOpensTheEmulatorsDirectory)
{
    tools.install(u"thunar"_s);
    startAt(Zeta, 0);
    click(control(u"E1"_s));
    ASSERT_TRUE(files.exists(u"record"_s));
    EXPECT_TRUE(tools.recorded().startsWith(u"thunar|"_s + files.path(u"emu/"_s) + u'|'));
}

TEST_F(DocumentosTest, EmulatorByItsBareNameMeansTheProgramsDirectory)
{
    const QString before = QDir::currentPath();
    for (const QString &tool : { u"xterm"_s, u"thunar"_s })
        tools.install(tool);
    startAt(Zeta, 0);
    M->Cat_EXE(0, 1) = u"EXE=emu"_s;
    click(control(u"E1"_s));
    EXPECT_EQ(tools.recorded(), u"thunar|"_s + files.path() + u"/|"_s + before + u'|');
    click(control(u"D1"_s));
    EXPECT_EQ(tools.recorded(), u"xterm|"_s + files.path() + u'|');
    EXPECT_TRUE(QDir::setCurrent(before));
}

TEST_F(DocumentosTest, EmulatorWithoutAPathMeansTheCurrentDirectory)
{
    for (const QString &tool : { u"xterm"_s, u"thunar"_s })
        tools.install(tool);
    startAt(Zeta, 0);
    M->Cat_EXE(0, 1) = u"EXE="_s;
    const QString directory = QDir::currentPath();
    click(control(u"D1"_s));
    EXPECT_EQ(tools.recorded(), u"xterm|"_s + directory + u'|');
    click(control(u"E1"_s));
    EXPECT_EQ(tools.recorded(), u"thunar|"_s + directory + u'|' + directory + u'|');
    EXPECT_EQ(QDir::currentPath(), directory);
}

TEST_F(DocumentosTest, WithoutAnEmulatorTheButtonsOnlyRelease)
{
    startWithoutEmulator(Alfa);
    for (const QString &button : { u"BotonC2"_s, u"BotonD2"_s, u"D1"_s, u"E1"_s }) {
        click(control(button));
        EXPECT_FALSE(control<forms::PictureButton>(button).ShowsPressed());
    }
    EXPECT_FALSE(isShown(u"Editor"_s));
}
