// What the controls tell: the tips of those that no word stands beside, and what assistive programs are told
// of the drawn ones.

#include "mundotest.h"

#include "tests/support/browser.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QTextDocumentFragment>
#include <QToolTip>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

class AsistenciaTest : public MundoTest {
protected:
    AsistenciaTest()
    {
        systemsOfCatalogue[0].emulators[0].executable = files.path(u"emu/uno"_s);
        files.writeCatalogue(systemsOfCatalogue);
        files.write(u"emu/readme.txt"_s, "text");
    }
    QString tipOf(const QString &name)
    {
        return QTextDocumentFragment::fromHtml(control(name).toolTip()).toPlainText();
    }
    // What rests under the pointer over a control tells, as the toolkit shows it.
    QString tipUnderThePointer(const QString &name)
    {
        QToolTip::hideText();
        QWidget &wanted = control(name);
        const QPoint centre = wanted.mapTo(portada.get(), wanted.rect().center());
        QWidget *met = portada->childAt(centre);
        QHelpEvent rest(QEvent::ToolTip, met->mapFrom(portada.get(), centre), portada->mapToGlobal(centre));
        QApplication::sendEvent(met, &rest);
        return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
    }
    QAccessibleInterface &told(const QString &name)
    {
        return *QAccessible::queryAccessibleInterface(&control(name));
    }
    void pressByAssistance(const QString &name)
    {
        ASSERT_TRUE(
            told(name).actionInterface()->actionNames().contains(QAccessibleActionInterface::pressAction()))
            << name.toStdString();
        told(name).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }
    QString chosenMark()
    {
        QString chosen;
        for (const QString &mark : { u"X2"_s, u"X3"_s, u"X4"_s, u"X5"_s })
            chosen += told(mark).state().checked ? mark : QString();
        return chosen;
    }
};

} // namespace

TEST_F(AsistenciaTest, ControlsWithoutAWordShowTheirNameAndTheirKeyAsATip)
{
    QStringList language = languageLines();
    language << languageLine(u"Zem_Ctrl"_s, u"Strg"_s) << languageLine(u"Zem_Flecha2"_s, u"<b>R&D"_s);
    files.writeLines(u"LNG/ZB-ESP.LNG"_s, language);
    startAt(Zeta, 0);
    const std::pair<QString, QString> expected[] = { { u"Menos2a"_s, u"Quitar el sistema"_s },
        { u"Menos2b"_s, u"Quitar el emulador"_s }, { u"Check1"_s, M->TXT_BaseDeDatos },
        { u"E1"_s, u"Explorar el directorio del emulador (Strg+E)"_s },
        { u"D1"_s, u"Consola en el directorio del emulador (Strg+T)"_s },
        { u"Flecha2"_s, u"<b>R&D (Strg+Q)"_s }, { u"X2"_s, u"Zoom x2 (Strg+2)"_s },
        { u"X5"_s, u"Zoom x5 (Strg+5)"_s }, { u"OFF"_s, u"Apagar el televisor (Strg+0)"_s },
        { u"FlechaE2"_s, u"Cerrar el texto (Strg+W)"_s },
        { u"Edit2"_s, u"Abrir en el editor del terminal"_s },
        { u"BlocDeNotas2"_s, u"Abrir en el editor"_s } };
    for (const auto &[name, tip] : expected) {
        EXPECT_EQ(tipOf(name), tip) << name.toStdString();
        EXPECT_FALSE(told(name).text(QAccessible::Description).contains(u'<') && name != u"Flecha2");
    }
    // A word stands beside these.
    for (const QString &name : { u"BotonA2"_s, u"Boton1b"_s, u"JugarB1"_s, u"Lista1"_s, u"Combo1"_s })
        EXPECT_EQ(tipOf(name), QString()) << name.toStdString();
}

TEST_F(AsistenciaTest, TipsComeWhereverThePointerRestsOnTheirControl_TheLitMarkToo)
{
    startAt(Zeta, 0);
    const QStringList marks { u"X2"_s, u"X3"_s, u"X4"_s, u"X5"_s };
    for (const QString &lit : marks) {
        click(control(lit));
        for (const QString &name : marks
                + QStringList {
                    u"OFF"_s, u"Menos2a"_s, u"Menos2b"_s, u"Check1"_s, u"E1"_s, u"D1"_s, u"Flecha2"_s }) {
            EXPECT_FALSE(tipOf(name).isEmpty());
            EXPECT_EQ(tipUnderThePointer(name), tipOf(name))
                << name.toStdString() << ", " << lit.toStdString();
        }
    }
    click(control(u"BotonC2"_s));
    ASSERT_TRUE(portada->Editor->isVisible());
    for (const QString &name : { u"FlechaE2"_s, u"Edit2"_s, u"BlocDeNotas2"_s })
        EXPECT_EQ(tipUnderThePointer(name), tipOf(name)) << name.toStdString();
    QToolTip::hideText();
}

TEST_F(AsistenciaTest, TipsFollowTheLanguage)
{
    files.writeLines(u"LNG/A.LNG"_s, languageLines() << languageLine(u"Zem_Flecha2"_s, u"Leave"_s));
    startAt(Zeta, 0);
    EXPECT_EQ(tipOf(u"Flecha2"_s), u"Salir (Ctrl+Q)"_s);
    M->LanguageFile = u"A.LNG"_s;
    portada->Textos();
    EXPECT_EQ(tipOf(u"Flecha2"_s), u"Leave (Ctrl+Q)"_s);
}

TEST_F(AsistenciaTest, DrawnControlsAreWhatTheyLookLike_AndTellTheirKey)
{
    startAt(Zeta, 0);
    struct Expected {
        QString name;
        QAccessible::Role role;
        QString key;
    };
    const Expected all[] = { { u"X2"_s, QAccessible::RadioButton, u"Ctrl+2"_s },
        { u"X5"_s, QAccessible::RadioButton, u"Ctrl+5"_s }, { u"OFF"_s, QAccessible::Button, u"Ctrl+0"_s },
        { u"Graf_Imagen"_s, QAccessible::Button, u"Espacio"_s },
        { u"Titulo1"_s, QAccessible::Button, QString() }, { u"WEB1"_s, QAccessible::Link, u"Ctrl+1"_s },
        { u"WEB2"_s, QAccessible::Link, u"Ctrl+Mayús+1"_s },
        { u"Flecha2"_s, QAccessible::Button, u"Ctrl+Q"_s }, { u"Check1"_s, QAccessible::CheckBox, QString() },
        { u"Menos2a"_s, QAccessible::Button, QString() } };
    for (const Expected &expected : all) {
        EXPECT_EQ(told(expected.name).role(), expected.role) << expected.name.toStdString();
        EXPECT_EQ(told(expected.name).text(QAccessible::Description), expected.key);
        EXPECT_FALSE(told(expected.name).text(QAccessible::Name).isEmpty()) << expected.name.toStdString();
        EXPECT_TRUE(told(expected.name)
                        .actionInterface()
                        ->actionNames()
                        .contains(QAccessibleActionInterface::pressAction()))
            << expected.name.toStdString();
    }
    EXPECT_TRUE(told(u"WEB1"_s).state().linked);
    EXPECT_EQ(told(u"TXT_Borrar"_s).role(), QAccessible::StaticText);
    EXPECT_EQ(told(u"TXT_Borrar"_s).text(QAccessible::Name), control<forms::Label>(u"TXT_Borrar"_s).text());
}

TEST_F(AsistenciaTest, APressedMarkIsTheChosenOne)
{
    startAt(Zeta, 0);
    EXPECT_EQ(chosenMark(), u"X2"_s);
    pressByAssistance(u"X4"_s);
    EXPECT_EQ(M->ZoomActual, 4);
    EXPECT_EQ(chosenMark(), u"X4"_s);
    pressByAssistance(u"OFF"_s);
    EXPECT_EQ(M->ZoomActual, 0);
    EXPECT_EQ(chosenMark(), QString());
}

TEST_F(AsistenciaTest, APressOnTheCaptureEnlargesIt_AndTheNextEndsIt)
{
    startAt(Zeta, 0);
    pressByAssistance(u"Graf_Imagen"_s);
    EXPECT_TRUE(portada->Aumento.isVisible());
    pressByAssistance(u"Graf_Imagen"_s);
    EXPECT_FALSE(portada->Aumento.isVisible());
}

TEST_F(AsistenciaTest, APressOnALinkOpensItsPage)
{
    Browser browser;
    startAt(Zeta, 0);
    M->Cat_WEB1(0) = u"WEB1=http://a.example/"_s;
    M->Cat_WEB2(0, 1) = u"WEB2=http://b.example/"_s;
    pressByAssistance(u"WEB1"_s);
    pressByAssistance(u"WEB2"_s);
    EXPECT_THAT(browser.opened, ElementsAre(u"http://a.example/"_s, u"http://b.example/"_s));
}

TEST_F(AsistenciaTest, APressOnTheDatabaseBoxChangesIt)
{
    startAt(Zeta, 0);
    EXPECT_FALSE(told(u"Check1"_s).state().checked);
    pressByAssistance(u"Check1"_s);
    EXPECT_EQ(portada->Check1->Value(), 1);
    EXPECT_TRUE(told(u"Check1"_s).state().checked);
}

TEST_F(AsistenciaTest, TheListUnderAnOpenTextIsNotToldAsPartOfTheWindow)
{
    startAt(Zeta, 0);
    QAccessibleInterface &window = *QAccessible::queryAccessibleInterface(portada.get());
    QAccessibleInterface &games = told(u"Lista1"_s);
    EXPECT_GE(window.indexOfChild(&games), 0);
    const int before = window.childCount();
    click(control(u"BotonC2"_s));
    ASSERT_TRUE(portada->Editor->isVisible());
    EXPECT_EQ(window.indexOfChild(&games), -1);
    click(control(u"FlechaE2"_s));
    EXPECT_GE(window.indexOfChild(&games), 0);
    EXPECT_EQ(window.childCount(), before);
    for (int i = 0; i < window.childCount(); ++i)
        EXPECT_EQ(window.indexOfChild(window.child(i)), i);
}

TEST_F(AsistenciaTest, WhatAnOpenTextCoversIsNotToldAsShowing)
{
    startAt(Zeta, 0);
    for (const QString &name : { u"Combo1"_s, u"BotonA2"_s, u"TXT_Borrar"_s, u"Graf_Imagen"_s, u"X2"_s })
        EXPECT_FALSE(told(name).state().offscreen) << name.toStdString();
    click(control(u"BotonC2"_s));
    ASSERT_TRUE(portada->Editor->isVisible());
    for (const QString &name : { u"Combo1"_s, u"BotonA2"_s, u"TXT_Borrar"_s, u"Graf_Imagen"_s, u"X2"_s })
        EXPECT_TRUE(told(name).state().offscreen || told(name).state().invisible) << name.toStdString();
    for (const QString &name :
        { u"BotonA2"_s, u"BotonB2"_s, u"Menos2a"_s, u"E1"_s, u"Graf_Imagen"_s, u"Combo1"_s, u"Combo2"_s })
        EXPECT_FALSE(told(name).state().focused) << name.toStdString();
    EXPECT_FALSE(told(u"FlechaE2"_s).state().offscreen);
    EXPECT_FALSE(told(u"Titulo1"_s).state().offscreen);
    click(control(u"FlechaE2"_s));
    for (const QString &name : { u"Combo1"_s, u"BotonA2"_s, u"TXT_Borrar"_s, u"Graf_Imagen"_s, u"X2"_s })
        EXPECT_FALSE(told(name).state().offscreen) << name.toStdString();
}
