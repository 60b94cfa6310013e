// The texts of the language on the main screen, and the catalogue in its two lists.

#include "mundotest.h"

#include "host/desktopquestions.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

class TextosTest : public PortadaTest {
protected:
    void startWith(const QStringList &lines)
    {
        files.writeLines(u"LNG/ZB-ESP.LNG"_s, lines);
        start();
    }
};

TEST_F(TextosTest, LabelsAndMenuEntriesTakeTheirTextsDirectly)
{
    const QStringList labels { u"TXT_Describir"_s, u"TXT_Borrar"_s, u"TXT_VerAyuda"_s, u"TXT_VerConfig"_s,
        u"TXT_Configurar"_s, u"TXT_Opciones"_s, u"TXT_Utilidades"_s, u"TXT_Ayuda"_s, u"TXT_AcercaDe"_s };
    QStringList lines = languageLines();
    for (const QString &label : labels)
        lines << languageLine(label, u"<"_s + label.mid(4) + u">"_s);
    lines << languageLine(u"Menu_Describir"_s, u"&Uno"_s) << languageLine(u"Menu_Borrar"_s, u"&Dos"_s)
          << languageLine(u"Menu_Parametros"_s, u"T&res"_s);
    startWith(lines);
    for (const QString &label : labels)
        EXPECT_EQ(caption(label), u"<"_s + label.mid(4) + u">"_s);
    EXPECT_EQ(portada->Menu_Describir->Caption(), u"&Uno"_s);
    EXPECT_EQ(portada->Menu_Borrar->Caption(), u"&Dos"_s);
    EXPECT_EQ(portada->Menu_Parametros->Caption(), u"T&res"_s);
}

TEST_F(TextosTest, QuestionsAreAnsweredInTheLanguage)
{
    startWith(languageLines() << languageLine(u"TXT_Si"_s, u"Oui"_s) << languageLine(u"TXT_No"_s, u"Non"_s)
                              << languageLine(u"TXT_Aceptar"_s, u"D'accord"_s)
                              << languageLine(u"Zem_Cancelar"_s, u"Annuler"_s));
    EXPECT_EQ(host::answerWords().yes, u"Oui"_s);
    EXPECT_EQ(host::answerWords().no, u"Non"_s);
    EXPECT_EQ(host::answerWords().accept, u"D'accord"_s);
    EXPECT_EQ(host::answerWords().cancel, u"Annuler"_s);
}

TEST_F(TextosTest, MissingKeysLeaveTheWordsOfTheDesign)
{
    startWith(languageLines());
    EXPECT_EQ(caption(u"TXT_Describir"_s), u"Describir"_s);
    EXPECT_EQ(caption(u"TXT_AcercaDe"_s), u"Acerca..."_s);
    EXPECT_EQ(portada->Menu_Borrar->Caption(), u"&Borrar la ROM"_s);
    EXPECT_EQ(M->TXT_Grabar, QString());
}

TEST_F(TextosTest, OtherKeysGoToTheSharedTexts)
{
    startWith(languageLines() << languageLine(u"Msg_EmuYaAñadido0"_s, u"Atención, \"ya está\""_s)
                              << u"' TXT_Volver......=\"no\""_s
                              << languageLine(u"TXT_Desconocida"_s, u"nada"_s)
                              << languageLine(u"TXT_Si"_s, u"No"_s) << languageLine(u"TXT_Si"_s, u"Sí"_s)
                              << u"TXT_No............  x"_s);
    EXPECT_EQ(M->Msg_EmuYaAñadido0, u"Atención, \"ya está\""_s);
    EXPECT_EQ(M->TXT_Volver, u"Volver"_s);
    EXPECT_EQ(M->TXT_Si, u"Sí"_s);
    EXPECT_EQ(M->TXT_No, QString());
    EXPECT_FALSE(M->Ficheros.isOpen(1));
}

TEST_F(TextosTest, AnotherLanguageReplacesWhatItHolds)
{
    startWith(languageLines() << languageLine(u"TXT_Borrar"_s, u"Borrar esto"_s));
    files.writeLines(u"LNG/ZB-ENG.LNG"_s, { languageLine(u"TXT_Jugar"_s, u"Play"_s) });
    M->LanguageFile = u"ZB-ENG.LNG"_s;
    portada->Textos();
    EXPECT_EQ(M->TXT_Jugar, u"Play"_s);
    EXPECT_EQ(M->TXT_Cargar, u"Cargar"_s);
    EXPECT_EQ(caption(u"TXT_Borrar"_s), u"Borrar esto"_s);
}

class CombosTest : public MundoTest {
protected:
    // The lists after a failure: empty, and dead to the user.
    void expectInert()
    {
        EXPECT_THAT(entries(systems()), IsEmpty());
        EXPECT_THAT(entries(emulators()), IsEmpty());
        EXPECT_EQ(M->Combo1Listo, 0);
        EXPECT_EQ(M->Combo2Listo, 0);
    }
    void fillFrom(const QStringList &lines)
    {
        files.writeLines(u"Zembro.emu"_s, lines);
        portada->Llena_Combos();
    }
};

TEST_F(CombosTest, ItemsCarryTheirPlaceInTheTables)
{
    startAt(Alfa, 0);
    EXPECT_EQ(systems().ItemData(0), 1);
    EXPECT_EQ(systems().ItemData(1), 2);
    EXPECT_EQ(systems().ItemData(2), 0);
    EXPECT_EQ(emulators().ItemData(0), 1);
    EXPECT_EQ(emulators().ItemData(1), 0);
    EXPECT_EQ(M->TotalSistemas, 3);
}

TEST_F(CombosTest, TablesKeepTheWholeLines)
{
    startAt(Alfa, 0);
    EXPECT_EQ(M->Cat_Nombre(1, 0), u"-alfa"_s);
    EXPECT_EQ(M->Cat_Nombre(1, 2), u"+Alto"_s);
    EXPECT_EQ(M->Cat_XDI(1, 1), u"XDI=2"_s);
    EXPECT_EQ(M->Cat_EXT(1, 0), u"*.SMS"_s);
    EXPECT_EQ(M->Cat_EXE(1, 0), QString());
}

TEST_F(CombosTest, TablesAloneLeaveTheListsAndTheFlagsToTheCaller)
{
    startAt(Alfa, 0);
    M->SoloTablas = 1;
    fillFrom({ u"-Otro"_s, u"+Emu"_s, u"XDI=7"_s });
    EXPECT_THAT(entries(systems()), ElementsAre(u"alfa"_s, u"Medio"_s, u"Zeta"_s));
    EXPECT_EQ(emulators().Text(), u"Alto"_s);
    EXPECT_EQ(M->Cat_Nombre(0, 0), u"-Otro"_s);
    EXPECT_EQ(M->Cat_XDI(0, 1), u"XDI=7"_s);
    EXPECT_EQ(M->Cat_Nombre(1, 0), QString());
    EXPECT_EQ(M->Combo1Listo, 0);
    EXPECT_EQ(M->Combo2Listo, 0);
    EXPECT_EQ(M->TotalSistemas, 3);
}

TEST_F(CombosTest, FillingListsNoROMs)
{
    startAt(Alfa, 0);
    files.writeSize(u"alfa/c.sms"_s, 10);
    portada->Llena_Combos();
    EXPECT_THAT(listed(), ElementsAre(u"a.sms"_s, u"b.sms"_s));
    EXPECT_EQ(emulators().Text(), u"Alto"_s);
    EXPECT_EQ(M->Combo1Listo, 1);
    EXPECT_EQ(M->Combo2Listo, 1);
}

TEST_F(CombosTest, MissingFileEmptiesTheLists)
{
    startAt(Alfa, 0);
    files.remove(u"Zembro.emu"_s);
    portada->Llena_Combos();
    expectInert();
    EXPECT_EQ(M->Cat_Nombre(0, 0), QString());
}

TEST_F(CombosTest, EmptyFileEmptiesTheLists)
{
    startAt(Alfa, 0);
    files.write(u"Zembro.emu"_s, {});
    portada->Llena_Combos();
    expectInert();
}

TEST_F(CombosTest, FileWithoutASystemKeepsTheirNumber)
{
    startAt(Alfa, 0);
    fillFrom({ u"' nothing"_s, u"[EOF]"_s });
    expectInert();
    EXPECT_EQ(M->TotalSistemas, 3);
    EXPECT_FALSE(M->Ficheros.isOpen(1));
}

TEST_F(CombosTest, MoreThanTheTablesTakeEmptiesTheListsAndLeavesTheFileOpen)
{
    const struct {
        QString line;
        int limit;
    } cases[] = { { u"-S"_s, 151 }, { u"+E"_s, 150 }, { u"*.X"_s, 151 } };
    for (const auto &table : cases) {
        QStringList lines { u"-Zero"_s };
        if (table.line == u"-S")
            lines.clear();
        for (int i = 0; i < table.limit; ++i)
            lines << table.line + QString::number(i);
        renew();
        startAt(Alfa, 0);
        fillFrom(lines);
        EXPECT_FALSE(M->Ficheros.isOpen(1)) << table.line.toStdString();
        EXPECT_GT(systems().ListCount(), 0) << table.line.toStdString();
        fillFrom(lines << table.line);
        expectInert();
        EXPECT_TRUE(M->Ficheros.isOpen(1)) << table.line.toStdString();
        files.writeCatalogue(systemsOfCatalogue);
    }
}

TEST_F(CombosTest, LineOfASystemAheadOfTheFirstEmptiesTheLists)
{
    for (const QString &line : { u"+E"_s, u"EXE="_s, u"XDI=0"_s, u"ROM="_s, u"IMG="_s, u"PAR1="_s, u"PAR2="_s,
             u"*.ZIP"_s, u"WEB1="_s, u"WEB2="_s }) {
        renew();
        files.writeCatalogue(systemsOfCatalogue);
        startAt(Alfa, 0);
        fillFrom({ line, u"-Zeta"_s });
        expectInert();
    }
}

TEST_F(CombosTest, LastPositionsAreTakenFromTheSettingsInMemory)
{
    startAt(Alfa, 0);
    M->UltimoSistema = u"1"_s;
    M->UltimoEmulador = u"1"_s;
    portada->Llena_Combos();
    EXPECT_EQ(systems().Text(), u"Medio"_s);
    EXPECT_EQ(emulators().Text(), u"Solo"_s);
    EXPECT_EQ(M->TipoEmu, u"6"_s);
    EXPECT_EQ(word(), u"Cargar"_s);
}

TEST_F(CombosTest, SystemWithoutEmulatorsLeavesTheFlagsDownUnlessNoneIsAskedFor)
{
    startAt(Alfa, 0);
    M->UltimoSistema = M->UltimoEmulador = u"0"_s;
    fillFrom({ u"-Solo"_s });
    EXPECT_EQ(systems().Text(), u"Solo"_s);
    EXPECT_EQ(M->Combo1Listo, 0);
    M->UltimoEmulador = u"696969"_s;
    portada->Llena_Combos();
    EXPECT_EQ(M->Combo1Listo, 1);
    EXPECT_EQ(M->Combo2Listo, 1);
}
