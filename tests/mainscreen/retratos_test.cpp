// Pictures of the main screen in its states, against kept ones.

#include "mundotest.h"

#include "tests/support/keptpictures.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class RetratosTest : public MundoTest {
protected:
    RetratosTest()
    {
        systemsOfCatalogue[0].emulators[0].executable = files.path(u"emu/uno"_s);
        files.writeCatalogue(systemsOfCatalogue);
        files.write(u"emu/readme.txt"_s, "Press any key to begin.\r\nA second line.\r\n");
        QFile language(QStringLiteral(DELIVERED "/LNG/ZB-ESP.LNG"));
        EXPECT_TRUE(language.open(QIODevice::ReadOnly));
        files.write(u"LNG/ZB-ESP.LNG"_s, language.readAll());
    }

    void startWith(const QString &editor, int game)
    {
        Settings settings;
        settings.LastSisUsed = QString::number(Zeta);
        settings.TypeOfEditor = editor;
        files.writeSettings(settings);
        start();
        clickRow(list(), game);
        moveTo(control(u"Graf_TV"_s), QPoint(6, 60));
    }

    void expectAsKept(const QString &name)
    {
        ::expectAsKept(
            pictureOf(*portada), name, QStringLiteral(KEPT_PICTURES), QStringLiteral(BUILD_DIRECTORY));
    }
};

} // namespace

TEST_F(RetratosTest, WithACapture)
{
    startWith(u"1"_s, 0);
    expectAsKept(u"capture"_s);
}

TEST_F(RetratosTest, WithoutACapture)
{
    startWith(u"1"_s, 1);
    expectAsKept(u"no-capture"_s);
}

TEST_F(RetratosTest, WithTheSetOff)
{
    startWith(u"1"_s, 0);
    click(control(u"OFF"_s));
    expectAsKept(u"off"_s);
}

TEST_F(RetratosTest, WithAButtonHeldDown)
{
    startWith(u"1"_s, 0);
    control<forms::PictureButton>(u"JugarB1"_s).Release = [] {};
    press(control(u"JugarB1"_s));
    expectAsKept(u"pressed"_s);
    release(control(u"JugarB1"_s));
}

TEST_F(RetratosTest, WithTheEditorInEitherOfItsColours)
{
    for (const auto &[editor, name] :
        { std::pair(u"0"_s, u"editor-console"_s), std::pair(u"1"_s, u"editor-system"_s) }) {
        startWith(editor, 0);
        click(control(u"BotonC2"_s));
        ASSERT_TRUE(portada->Editor->isVisible());
        portada->Editor->setCursorWidth(0); // it blinks
        expectAsKept(name);
        renew();
    }
}
