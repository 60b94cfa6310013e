// The files that the start needs, and the words of a fatal end.
#include "directoriodeprograma.h"

#include "core/arranque.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const QStringList Necesarios { u"Zembro.emu"_s, u"Zembro.rom"_s, u"Zembro.sye"_s, u"Zembro.cfg"_s,
    u"Zembro.faq"_s, u"Zembro.txt"_s, u"Cvtgif15.exe"_s };

class Comprobacion : public DirectorioDePrograma {
protected:
    void PonTodo() const
    {
        for (const QString &nombre : Necesarios)
            Pon(nombre, "");
        Pon(u"LNG/ZB-ESP.LNG"_s, "");
    }

    // What the failure is about; empty if there is none.
    QString Falta() const
    {
        try {
            core::CompruebaFicheros();
        } catch (const host::Failure &fallo) {
            EXPECT_EQ(fallo.number(), host::FileNotFound);
            return fallo.about();
        }
        return {};
    }
};

} // namespace

TEST_F(Comprobacion, IsContent_WhereEveryFileIsThere)
{
    PonTodo();
    EXPECT_EQ(Falta(), QString());
}

TEST_F(Comprobacion, FailsAsNotFoundForEachOfTheFiles_AndNamesIt)
{
    PonTodo();
    for (const QString &nombre : Necesarios) {
        Borra(nombre);
        EXPECT_EQ(Falta(), Ruta(nombre));
        Pon(nombre, "");
    }
}

TEST_F(Comprobacion, NamesTheFirstOfSeveralInTheirOrder)
{
    for (const QString &nombre : Necesarios) {
        EXPECT_EQ(Falta(), Ruta(nombre));
        Pon(nombre, "");
    }
    EXPECT_EQ(Falta(), Ruta(u"LNG"_s));
}

TEST_F(Comprobacion, FilesAreFoundInAnyCase)
{
    for (const QString &nombre : Necesarios)
        Pon(nombre.toUpper(), "");
    Pon(u"lng/zb-esp.lng"_s, "");
    EXPECT_EQ(Falta(), QString());
}

TEST_F(Comprobacion, FailsForALinkThatLeadsNowhere)
{
    PonTodo();
    Borra(u"Zembro.faq"_s);
    ASSERT_TRUE(QFile::link(Ruta(u"none"_s), Ruta(u"Zembro.faq"_s)));
    EXPECT_EQ(Falta(), Ruta(u"Zembro.faq"_s));
}

TEST_F(Comprobacion, FailsAsNotFound_WithoutALanguageFile)
{
    PonTodo();
    Borra(u"LNG/ZB-ESP.LNG"_s);
    EXPECT_EQ(Falta(), Ruta(u"LNG"_s));
    Pon(u"LNG/readme.txt"_s, "");
    EXPECT_EQ(Falta(), Ruta(u"LNG"_s));
    Pon(u"LNG/any.lng"_s, "");
    EXPECT_EQ(Falta(), QString());
}

TEST(TextoDeFallo, ListsTheFilesThatTheStartNeeds_ForOneThatIsMissingThen)
{
    EXPECT_EQ(core::TextoDeFallo(host::Failure(53, u"open a file"_s, u"/p/Zembro.emu"_s), true),
        u"Cannot find any of these files:\n"
        u"¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯¯\n"
        u"In the program directory\n"
        u"   Zembro.cfg\n"
        u"   Zembro.emu\n"
        u"   Zembro.rom\n"
        u"   Zembro.sye\n"
        u"   Zembro.txt\n"
        u"   Zembro.faq\n"
        u"   Cvtgif15.exe\n"
        u"In LNG subdirectory any *.LNG file\n"
        u"Failed to open a file: /p/Zembro.emu");
    EXPECT_EQ(core::TituloDeFallo, u"ERROR");
}

TEST(TextoDeFallo, TellsTheNumberAndWhatFailedOnWhat_Otherwise)
{
    EXPECT_EQ(core::TextoDeFallo(host::Failure(62, u"read a line"_s, u"/p/Zembro.cfg"_s), true),
        u"An unknown error has occurred. (ERR62)\nFailed to read a line: /p/Zembro.cfg");
    EXPECT_EQ(core::TextoDeFallo(host::Failure(53, u"open a file"_s, u"/p/Zembro.rom"_s), false),
        u"An unknown error has occurred. (ERR53)\nFailed to open a file: /p/Zembro.rom");
}

TEST(TextoDeFallo, CutsWhatHasNoEnd)
{
    const QString largo(301, u'x');
    const QString justo(300, u'y');
    EXPECT_EQ(core::TextoDeFallo(host::Failure(5, largo, largo), false),
        u"An unknown error has occurred. (ERR5)\nFailed to "_s + largo.first(300) + u"...: "_s
            + largo.first(300) + u"..."_s);
    EXPECT_EQ(core::TextoDeFallo(host::Failure(5, justo, justo), false),
        u"An unknown error has occurred. (ERR5)\nFailed to "_s + justo + u": "_s + justo);
    const QString raro = QStringLiteral("\U00010428").repeated(300);
    EXPECT_EQ(core::TextoDeFallo(host::Failure(5, raro, raro), false),
        u"An unknown error has occurred. (ERR5)\nFailed to "_s + raro + u": "_s + raro);
}

namespace {

host::Failure falloAlLeer(const host::Failure &fallo)
{
    try {
        core::LeeFichero(u"/p/Zembro.cfg"_s, [&fallo] { throw fallo; });
    } catch (const host::Failure &resultado) {
        return resultado;
    }
    return host::Failure(0, u"nothing"_s);
}

} // namespace

TEST(LeeFichero, NamesTheFileInAFailureOfSomethingElse_WithThatInBrackets)
{
    const host::Failure fallo = falloAlLeer(host::Failure(5, u"read a setting"_s, u"DebugMode"_s));
    EXPECT_EQ(fallo.number(), 5);
    EXPECT_EQ(fallo.operation(), u"read a setting (DebugMode)");
    EXPECT_EQ(fallo.about(), u"/p/Zembro.cfg");
}

TEST(LeeFichero, NamesTheFileInAFailureOfNothing)
{
    const host::Failure fallo = falloAlLeer(host::Failure(9, u"index a table"_s));
    EXPECT_EQ(fallo.number(), 9);
    EXPECT_EQ(fallo.operation(), u"index a table");
    EXPECT_EQ(fallo.about(), u"/p/Zembro.cfg");
}

TEST(LeeFichero, LeavesAFailureOfTheFileAsItIs)
{
    const host::Failure fallo = falloAlLeer(host::Failure(53, u"open a file"_s, u"/p/Zembro.cfg"_s));
    EXPECT_EQ(fallo.number(), 53);
    EXPECT_EQ(fallo.operation(), u"open a file");
    EXPECT_EQ(fallo.about(), u"/p/Zembro.cfg");
}
