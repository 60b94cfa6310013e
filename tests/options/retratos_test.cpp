// Pictures of the screens of the options in German, whose words are the longest, against kept ones.

#include "opcionestest.h"

#include "tests/support/keptpictures.h"

#include <QApplication>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class RetratosDeOpcionesTest : public OpcionesTest {
protected:
    RetratosDeOpcionesTest()
    {
        QFile language(QStringLiteral(DELIVERED "/LNG/ZB-DEU.LNG"));
        EXPECT_TRUE(language.open(QIODevice::ReadOnly));
        files.write(u"LNG/ZB-DEU.LNG"_s, language.readAll());
        Settings settings;
        settings.LanguageFile = u"ZB-DEU.LNG"_s;
        settings.LastSisUsed = QString::number(Zeta);
        files.writeSettings(settings);
        QApplication::setCursorFlashTime(0); // it blinks
        start();
    }

    static void expectAsKept(forms::Form &form)
    {
        ::expectAsKept(pictureOf(form), form.objectName(), QStringLiteral(KEPT_PICTURES),
            QStringLiteral(BUILD_DIRECTORY));
    }
};

} // namespace

TEST_F(RetratosDeOpcionesTest, TheOptions)
{
    options(&expectAsKept);
}

TEST_F(RetratosDeOpcionesTest, TheAdvancedOptions)
{
    advanced(&expectAsKept);
}

TEST_F(RetratosDeOpcionesTest, TheUtilities)
{
    open(u"Boton3b"_s, u"Utilidades"_s, &expectAsKept);
}

TEST_F(RetratosDeOpcionesTest, WhatItTellsOfItself)
{
    open(u"Boton4b"_s, u"AcercaDe"_s, &expectAsKept);
}
