// The screen without a mouse: the way of Tab, the keys of the controls and of their menus, and their names.
#include "mundotest.h"

#include "tests/support/browser.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

using SinRatonTest = MundoTest;

TEST_F(SinRatonTest, EveryButtonIsReachedByTab)
{
    startAt(Zeta, 0);
    list().setFocus();
    QStringList way;
    for (int i = 0; i < 60 && (way.isEmpty() || focused() != u"Lista1"); ++i) {
        way << focused();
        QTest::keyClick(portada->windowHandle(), Qt::Key_Tab);
    }
    EXPECT_THAT(way,
        ElementsAre(u"Lista1"_s, u"BotonA2"_s, u"BotonB2"_s, u"Menos2a"_s, u"Combo1"_s, u"Menos2b"_s,
            u"Combo2"_s, u"BotonC2"_s, u"BotonD2"_s, u"JugarB1"_s, u"Graf_Imagen"_s, u"Boton1b"_s,
            u"Boton2b"_s, u"Boton3b"_s, u"Boton5b"_s, u"Boton4b"_s, u"Boton6b"_s, u"Check1"_s, u"E1"_s,
            u"D1"_s, u"Flecha2"_s));
}

TEST_F(SinRatonTest, AcceleratorsPressTheirButtons)
{
    startAt(Zeta, 0);
    const std::pair<QString, QKeyCombination> keys[] = { { u"Boton5b"_s, Qt::Key_F1 },
        { u"Boton6b"_s, Qt::SHIFT | Qt::Key_F1 }, { u"BotonC2"_s, Qt::Key_F2 }, { u"BotonD2"_s, Qt::Key_F3 },
        { u"Boton1b"_s, Qt::Key_F5 }, { u"Boton2b"_s, Qt::Key_F6 }, { u"Boton3b"_s, Qt::Key_F7 },
        { u"Boton4b"_s, Qt::Key_F8 }, { u"JugarB1"_s, Qt::Key_F9 }, { u"E1"_s, Qt::CTRL | Qt::Key_E },
        { u"D1"_s, Qt::CTRL | Qt::Key_T }, { u"Flecha2"_s, Qt::CTRL | Qt::Key_Q } };
    for (const auto &[name, key] : keys) {
        auto &button = control<forms::PictureButton>(name);
        int released = 0;
        button.Release = [&] { ++released; };
        strike(*portada, key.key(), key.keyboardModifiers());
        EXPECT_TRUE(waitUntil([&] { return released == 1; })) << name.toStdString();
        EXPECT_FALSE(button.ShowsPressed());
    }
}

TEST_F(SinRatonTest, KeysOfTheTelevision)
{
    startAt(Zeta, 0);
    for (int zoom = 3; zoom <= 5; ++zoom) {
        strike(*portada, Qt::Key(Qt::Key_0 + zoom), Qt::ControlModifier);
        EXPECT_EQ(M->ZoomActual, zoom);
    }
    strike(*portada, Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(M->ZoomActual, 0);
    const Browser browser;
    M->Cat_WEB1(0) = u"WEB1=http://a.example/"_s;
    M->Cat_WEB2(0, 1) = u"WEB2=http://b.example/"_s;
    strike(*portada, Qt::Key_1, Qt::ControlModifier);
    strike(*portada, Qt::Key_1, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(browser.opened, ElementsAre(u"http://a.example/"_s, u"http://b.example/"_s));
}

TEST_F(SinRatonTest, ShiftAndF10OpenTheMenuOfTheControl)
{
    startAt(Zeta, 0);
    const auto askIn = [this](const QString &name) {
        control(name).setFocus();
        QTest::keyClick(portada->windowHandle(), Qt::Key_F10, Qt::ShiftModifier);
    };
    EXPECT_TRUE(popsUp(*portada->Menu_Lista1, [&] { askIn(u"Lista1"_s); }));
    EXPECT_TRUE(popsUp(*portada->Menu_Graf_Imagen, [&] { askIn(u"Graf_Imagen"_s); }));
    list().SetListIndex(-1);
    EXPECT_FALSE(popsUp(*portada->Menu_Lista1, [&] { askIn(u"Lista1"_s); }));
}

TEST_F(SinRatonTest, MenuByKeysOpensUnderTheSelectedRow_OrInTheMiddleWhereThatCanNotBeSeen)
{
    startAt(Zeta, 0);
    list().Clear();
    for (int row = 0; row < 60; ++row)
        list().AddItem(u"game %1"_s.arg(row, 2));
    const auto opensAt = [this] {
        list().setFocus();
        QPoint place;
        const auto note = QObject::connect(portada->Menu_Lista1, &QMenu::aboutToShow, portada.get(),
            [&] { QTimer::singleShot(0, portada.get(), [&] { place = portada->Menu_Lista1->pos(); }); });
        EXPECT_TRUE(popsUp(*portada->Menu_Lista1,
            [this] { QTest::keyClick(portada->windowHandle(), Qt::Key_F10, Qt::ShiftModifier); }));
        QObject::disconnect(note);
        return list().viewport()->mapFromGlobal(place);
    };
    for (const int row : { 0, 3 }) {
        list().SetListIndex(row);
        const QRect shown = list().visualRect(list().model()->index(row, 0));
        EXPECT_EQ(opensAt().y(), shown.bottom() + 1) << row;
    }
    list().scrollToBottom();
    EXPECT_EQ(opensAt(), list().viewport()->rect().center());
}

TEST_F(SinRatonTest, MenuKeyOpensTheMenuOfTheControl)
{
    startAt(Zeta, 0);
    const auto askIn = [this](const QString &name) {
        QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
        QApplication::sendEvent(&control(name), &key);
    };
    EXPECT_TRUE(popsUp(*portada->Menu_Lista1, [&] { askIn(u"Lista1"_s); }));
    EXPECT_TRUE(popsUp(*portada->Menu_Graf_Imagen, [&] { askIn(u"Graf_Imagen"_s); }));
    list().SetListIndex(-1);
    EXPECT_FALSE(popsUp(*portada->Menu_Lista1, [&] { askIn(u"Lista1"_s); }));
}

TEST_F(SinRatonTest, ControlsAreNamedInTheChosenLanguage)
{
    QStringList language = languageLines();
    language << languageLine(u"Zem_Flecha2"_s, u"Leave"_s) << languageLine(u"TXT_Describir"_s, u"Describe"_s);
    files.writeLines(u"LNG/ZB-ESP.LNG"_s, language);
    startAt(Zeta, 0);
    EXPECT_EQ(control(u"Flecha2"_s).accessibleName(), u"Leave"_s);
    EXPECT_EQ(control(u"BotonA2"_s).accessibleName(), u"Describe"_s);
    EXPECT_EQ(control(u"Menos2a"_s).accessibleName(), u"Quitar el sistema"_s);
    EXPECT_EQ(control(u"JugarB1"_s).accessibleName(), u"Jugar"_s);
    for (QWidget *widget : portada->findChildren<QWidget *>()) {
        const bool button = dynamic_cast<forms::PictureButton *>(widget);
        const bool child = widget->parentWidget() == portada.get() || widget->objectName() == u"Graf_Imagen";
        const bool retired = widget->objectName() == u"File1" || widget->objectName() == u"Dir1";
        if (child && !retired && (button || (widget->focusPolicy() & Qt::TabFocus))) {
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
        }
    }
}

TEST_F(SinRatonTest, WordsOfTheLastLanguageDoNotStayBehind)
{
    files.writeLines(u"LNG/A.LNG"_s, languageLines() << languageLine(u"Zem_Flecha2"_s, u"Leave"_s));
    files.writeLines(u"LNG/B.LNG"_s, languageLines());
    startAt(Zeta, 0);
    M->LanguageFile = u"A.LNG"_s;
    portada->Textos();
    EXPECT_EQ(control(u"Flecha2"_s).accessibleName(), u"Leave"_s);
    M->LanguageFile = u"B.LNG"_s;
    portada->Textos();
    EXPECT_EQ(control(u"Flecha2"_s).accessibleName(), u"Salir"_s);
}
