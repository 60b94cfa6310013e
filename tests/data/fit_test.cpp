// Every text is shown whole where the screens show it, in every language.
#include "configscreens.h"
#include "languages.h"
#include "optionscreens.h"
#include "room.h"
#include "sources.h"

#include "tests/support/programdirectory.h"
#include "tests/support/screentest.h"

#include "core/textos.h"

#include "dialogs/caja.h"

#include "mainscreen/portada.h"

#include "options/primerainstalacion.h"

#include "host/numberedfiles.h"

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;
using languages::Language;
using room::showsWhole;

namespace {

// What the main screen's labels show of the language, besides its labels named after their keys.
struct Shown {
    QString label;
    QString key;
};

const Shown ShownByPortada[] = {
    { u"TXT_Info"_s, u"TXT_NingunaROM"_s },
    { u"TXT_Info"_s, u"Zem_SinUnidad"_s },
    { u"TXT_Info"_s, u"TXT_BaseDeDatos"_s },
    { u"TXT_Info"_s, u"TXT_Leyendo"_s },
    { u"TXT_Info"_s, u"TXT_Añadiendo"_s },
    { u"TXT_InfoRoms"_s, u"TXT_EmuNoSelec"_s },
    { u"TXT_Boton"_s, u"TXT_Jugar"_s },
    { u"TXT_Boton"_s, u"TXT_Cargar"_s },
};

const QStringList LabelsOfPortada { u"TXT_Describir"_s, u"TXT_Borrar"_s, u"TXT_VerAyuda"_s,
    u"TXT_VerConfig"_s, u"TXT_Configurar"_s, u"TXT_Opciones"_s, u"TXT_Utilidades"_s, u"TXT_Ayuda"_s,
    u"TXT_AcercaDe"_s };

// Messages by the type of their box, without the final digit: 0 is the caption, 1 the text.
const QStringList Inputs { u"Msg_AñadirEmu"_s, u"Msg_AñadirSis"_s, u"Msg_NuevaWWW"_s, u"Msg_NuevaWWWROMS"_s,
    u"Msg_Parametros"_s, u"Msg_EXT"_s, u"Msg_Descripcion"_s };
const QString AskForNote = u"Zem_PideNota"_s; // in the place of the words for parameters
const QStringList Questions { u"Msg_BorrarEmu"_s, u"Msg_BorrarSis"_s };
const QStringList Warnings { u"Msg_EmuYaAñadido"_s, u"Msg_SisYaAñadido"_s, u"Msg_NoEXE"_s, u"Msg_NoDIR"_s,
    u"Msg_Casillas"_s, u"Msg_NingunaROM"_s, u"Msg_SinCambios"_s, u"Msg_NingunPCX"_s, u"Msg_NoEmuLD"_s,
    u"Msg_YaAñadido"_s, u"Msg_AyudaNoEnc"_s, u"Msg_CFGNoEnc"_s, u"Zem_NoPapelera"_s, u"Zem_NoNota"_s,
    u"Zem_NoParam"_s, u"Zem_NoNombre"_s, u"Zem_Cambiado"_s, u"Zem_NoCampo"_s, u"Zem_NoFiltro"_s,
    u"Zem_NoFinal"_s, u"Zem_Comillas"_s, u"Zem_SoloLeer"_s };
const QStringList Notices { u"Msg_EmuNoWeb"_s, u"Msg_SisNoWeb"_s, u"Msg_ZipSinRoms"_s, u"Msg_CFGGrabada"_s,
    u"Msg_GrabacionOK"_s, u"Msg_ArchGrande"_s, u"Zem_NoZip"_s, u"Zem_NoJunto"_s, u"Zem_NoTmp"_s };

const QStringList JoinedInNotices { u"Msg_IMGTransXX"_s, u"Msg_IMGTrans1I"_s, u"Msg_IMGTrans1D"_s,
    u"Msg_IMGTransMI"_s, u"Msg_IMGTransMD"_s, u"Msg_NoDiscoX0"_s, u"Msg_NoDiscoI1"_s, u"Msg_NoDiscoD1"_s };

// Warnings under one caption.
const QString NotNoted = u"Zem_NoNota0"_s;
const QStringList NotDescribed { u"Zem_NoDescrip1"_s, u"Zem_NoLinea1"_s };
const QString NotWritten = u"Zem_SoloLeer0"_s;
const QStringList NotKept { u"Zem_SoloFin1"_s, u"Zem_SoloCapt1"_s, u"Zem_SoloIdioma1"_s,
    u"Zem_SoloTamano1"_s };
const QString MissingTool = u"Zem_Falta0"_s;
const QStringList MissingTools { u"Zem_FaltaEditor"_s, u"Zem_FaltaEdit"_s, u"Zem_FaltaTerm"_s,
    u"Zem_FaltaGestor"_s, u"Zem_FaltaDOSBox"_s, u"Zem_FaltaWine"_s };
const QString NotForDOS = u"Zem_NoDOS0"_s;
const QStringList ReasonsOfDOS { u"Zem_NombreDOS"_s, u"Zem_LargoDOS"_s, u"Zem_SignoDOS"_s };
const QString NotForWindows = u"Zem_NoWindows0"_s;
const QString ReasonOfWindows = u"Zem_NombreWin"_s;

// As wide as what they show, or shown to nobody: menu entries, plain boxes, tips, and what screen readers
// say.
const QStringList Unbound { u"Menu_Describir"_s, u"Menu_Borrar"_s, u"Menu_Parametros"_s, u"Zem_Papelera0"_s,
    u"Zem_Papelera1"_s, u"Zem_Lista1"_s, u"Zem_Combo1"_s, u"Zem_Combo2"_s, u"Zem_Menos2a"_s, u"Zem_Menos2b"_s,
    u"Zem_Titulo1"_s, u"Zem_Graf_TV"_s, u"Zem_Captura"_s, u"Zem_OFF"_s, u"Zem_WEB1"_s, u"Zem_WEB2"_s,
    u"Zem_Mas1"_s, u"Zem_Boton_Mas2"_s, u"Zem_Boton_E"_s, u"Zem_Casilla4"_s, u"Zem_Casilla5"_s,
    u"Zem_Discos"_s, u"Zem_Directorios"_s, u"Zem_Archivos"_s, u"Zem_D1"_s, u"Zem_E1"_s, u"Zem_Flecha2"_s,
    u"Zem_Editor"_s, u"Zem_FlechaE2"_s, u"Zem_Edit2"_s, u"Zem_BlocNotas2"_s, u"Zem_Pista"_s, u"Zem_NoEsta"_s,
    u"Zem_Tamano"_s, u"Zem_NoTamano"_s, u"Zem_Ctrl"_s, u"Zem_Mayus"_s, u"Zem_Espacio"_s, u"Zem_Ins"_s,
    u"Zem_Supr"_s, u"Zem_Cancelar"_s, u"Zem_Logotipo"_s, u"Zem_NoVuelve0"_s, u"Zem_NoVuelve1"_s };

class TextsOfLanguage : public ScreenTest, public testing::WithParamInterface<Language> {
protected:
    TextsOfLanguage()
        : m_texts(languages::texts(GetParam()))
    {
    }

    QString text(const QString &key) const
    {
        EXPECT_TRUE(m_texts.contains(key)) << key.toStdString();
        return m_texts.value(key);
    }

    std::unique_ptr<core::Modulo> M = std::make_unique<core::Modulo>();

private:
    QMap<QString, QString> m_texts;
};

INSTANTIATE_TEST_SUITE_P(Delivered, TextsOfLanguage, testing::ValuesIn(languages::delivered()),
    [](const auto &tested) { return tested.param.name; });

class TextsOfPortada : public TextsOfLanguage {
protected:
    TextsOfPortada()
        : portada(*M)
    {
        for (const QString &label : LabelsOfPortada)
            labelOf(label).SetCaption(text(label));
        portada.show();
    }

    forms::Label &labelOf(const QString &name) { return controlOf<forms::Label>(portada, name); }

    void expectShown(const QString &label, const QString &caption)
    {
        labelOf(label).SetCaption(caption);
        EXPECT_TRUE(showsWhole(labelOf(label)));
    }

    mainscreen::Portada portada;
};

INSTANTIATE_TEST_SUITE_P(Delivered, TextsOfPortada, testing::ValuesIn(languages::delivered()),
    [](const auto &tested) { return tested.param.name; });

class TextsOfCaja : public TextsOfLanguage {
protected:
    enum class Box { Input, Question, Warning, Notice };

    void expectShown(Box box, const QString &title, const QString &message)
    {
        constexpr int Tile = 10;
        QPixmap tile(Tile, Tile);
        tile.fill(Qt::black);
        dialogs::Caja caja(*M, { tile, forms::twips(Tile), forms::twips(Tile) });
        if (box == Box::Input)
            caja.PreparaEntrada(message, title, {});
        else if (box == Box::Question)
            caja.PreparaPregunta(message, title);
        else if (box == Box::Warning)
            caja.PreparaAdvertencia(message, title);
        else
            caja.PreparaAviso(message, title);
        caja.TXT_Aceptar->SetCaption(text(u"TXT_Aceptar"_s));
        caja.TXT_Volver->SetCaption(text(u"TXT_Volver"_s));
        caja.show();
        for (const forms::Label *label : { caja.Texto1, caja.Texto2, caja.TXT_Aceptar }) {
            if (!label->isHidden()) {
                EXPECT_TRUE(showsWhole(*label));
            }
        }
        // The larger arrow of a warning reaches under its word.
        if (!caja.TXT_Volver->isHidden()) {
            EXPECT_TRUE(showsWhole(*caja.TXT_Volver, box == Box::Warning ? caja.Flecha2 : nullptr));
        }
        EXPECT_TRUE(room::titleTakes(title, forms::twips(caja.width()), false));
    }

    void expectMessages(Box box, const QStringList &messages)
    {
        for (const QString &message : messages)
            expectShown(box, text(message + u'0'), text(message + u'1'));
    }
};

INSTANTIATE_TEST_SUITE_P(Delivered, TextsOfCaja, testing::ValuesIn(languages::delivered()),
    [](const auto &tested) { return tested.param.name; });

QString longest(const QStringList &names)
{
    return *std::max_element(names.begin(), names.end(), [](const QString &one, const QString &other) {
        const QFontMetrics letters(forms::arial(8.25));
        return letters.horizontalAdvance(one) < letters.horizontalAdvance(other);
    });
}

QStringList keysOf(const QStringList &messages)
{
    QStringList keys;
    for (const QString &message : messages)
        keys << message + u'0' << message + u'1';
    return keys;
}

// The keys of the language files whose texts these screens show: their texts in a language that says each as
// its own key.
template <class Screens> QStringList keysShownBy()
{
    const ProgramDirectory files;
    QStringList lines;
    for (const QString &key : languages::knownKeys())
        lines << languageLine(key, key);
    files.writeLines(u"LNG/KEYS.LNG"_s, lines);
    const auto M = std::make_unique<core::Modulo>();
    const Screens screens(*M, u"KEYS.LNG"_s);
    QStringList texts;
    for (const forms::Form *form : screens.all())
        texts += room::textsOf(*form);
    texts.removeIf([](const QString &text) { return !languages::knownKeys().contains(text); });
    return texts;
}

template <class Screens> void expectWholeInLanguage(core::Modulo &M, const Language &shown)
{
    const ProgramDirectory files;
    for (const Language &language : languages::delivered())
        files.write(language.file, host::readBytes(QStringLiteral(DELIVERED "/") + language.file));
    const Screens screens(M, shown.file.section(u'/', 1));
    for (forms::Form *form : screens.all()) {
        SCOPED_TRACE(form->objectName().toStdString());
        form->show();
        room::expectWhole(*form);
    }
}

} // namespace

TEST(FitOfTexts, IsMeasuredForEveryKey)
{
    QStringList measured = LabelsOfPortada + Unbound + JoinedInNotices + MissingTools + NotDescribed + NotKept
        + ReasonsOfDOS + keysOf(Inputs + Questions + Warnings + Notices)
        + QStringList { u"TXT_Cargando"_s, u"TXT_Directorios"_s, MissingTool, NotForDOS, NotForWindows,
              ReasonOfWindows, AskForNote, NotNoted };
    for (const Shown &shown : ShownByPortada)
        measured += shown.key;
    measured += keysShownBy<ConfigScreens>() + keysShownBy<OptionScreens>();
    measured += languages::companionKeys(); // a terminal has room for any
    for (QString &key : measured)
        key = key.leftJustified(core::AnchoClave, u'.');
    measured.removeDuplicates();
    measured.sort();
    EXPECT_EQ(measured, languages::knownKeys());
}

TEST_P(TextsOfPortada, ShowWholeBesideTheirButtons)
{
    for (const QString &label : LabelsOfPortada)
        EXPECT_TRUE(showsWhole(labelOf(label))) << label.toStdString();
}

TEST_P(TextsOfPortada, ShowWholeInTheLabelsThatTellTheState)
{
    for (const Shown &shown : ShownByPortada)
        expectShown(shown.label, text(shown.key));
}

TEST_P(TextsOfPortada, ShowWholeInCapitals)
{
    expectShown(u"TXT_Info"_s, text(u"TXT_Cargando"_s).toUpper());
}

TEST_P(TextsOfPortada, ShowWholeBehindTheLargestCountOfDirectories)
{
    expectShown(u"TXT_InfoRoms"_s, u"6667 "_s + text(u"TXT_Directorios"_s) + u"  "_s);
}

TEST_P(TextsOfLanguage, ShowWholeOnTheScreensOfConfiguring)
{
    expectWholeInLanguage<ConfigScreens>(*M, GetParam());
}

TEST_P(TextsOfLanguage, ShowWholeOnTheScreensOfTheOptions)
{
    expectWholeInLanguage<OptionScreens>(*M, GetParam());
}

TEST_P(TextsOfLanguage, ShowTheirCreditWholeAtTheFirstRun)
{
    const ProgramDirectory files;
    for (const Language &language : languages::delivered())
        files.write(language.file, host::readBytes(QStringLiteral(DELIVERED "/") + language.file));
    options::PrimeraInstalacion screen(*M);
    screen.show();
    screen.List1->SetText(GetParam().file.section(u'/', 1));
    EXPECT_EQ(screen.Label6->Caption(), GetParam().credit);
    EXPECT_TRUE(showsWhole(*screen.Label6));
}

TEST_P(TextsOfCaja, ShowWholeAboveTheInput)
{
    expectMessages(Box::Input, Inputs);
}

TEST_P(TextsOfCaja, ShowWholeInWarnings)
{
    expectMessages(Box::Warning, Warnings);
}

TEST_P(TextsOfCaja, ShowWholeInWarningsOfRefusedDescriptions)
{
    for (const QString &reason : NotDescribed)
        expectShown(Box::Warning, text(NotNoted), text(reason));
    for (const QString &reason : NotKept)
        expectShown(Box::Warning, text(NotWritten), text(reason));
}

TEST_P(TextsOfCaja, ShowWholeInWarningsOfMissingTools)
{
    for (const QString &tool : MissingTools)
        expectShown(Box::Warning, text(MissingTool), text(tool));
}

TEST_P(TextsOfCaja, ShowWholeInNoticesOfWhatDOSRefuses)
{
    for (const QString &reason : ReasonsOfDOS)
        expectShown(Box::Notice, text(NotForDOS), text(reason));
    expectShown(Box::Notice, text(NotForWindows), text(ReasonOfWindows));
}

TEST_P(TextsOfCaja, ShowWholeInNotices)
{
    expectMessages(Box::Notice, Notices);
}

TEST_P(TextsOfCaja, ShowWholeWhereParametersWouldNotBeFound)
{
    expectShown(Box::Input, text(u"Msg_Parametros0"_s), text(AskForNote));
}

TEST_P(TextsOfCaja, ShowWholeInQuestionsWithTheLongestNameOfTheDatabase)
{
    QStringList systems;
    QStringList emulators;
    for (const sources::System &system : sources::systems(u"Zembro.sye"_s)) {
        systems += system.name;
        emulators += system.emulators;
    }
    expectShown(
        Box::Question, text(u"Msg_BorrarSis0"_s), text(u"Msg_BorrarSis1"_s) + longest(systems) + u'?');
    expectShown(
        Box::Question, text(u"Msg_BorrarEmu0"_s), text(u"Msg_BorrarEmu1"_s) + longest(emulators) + u'?');
}

TEST_P(TextsOfCaja, ShowWholeAroundANumberOrADrive)
{
    const QString converted = text(u"Msg_IMGTransXX"_s);
    expectShown(Box::Notice, converted, text(u"Msg_IMGTrans1I"_s) + u" 1 "_s + text(u"Msg_IMGTrans1D"_s));
    expectShown(Box::Notice, converted, text(u"Msg_IMGTransMI"_s) + u" 5001 "_s + text(u"Msg_IMGTransMD"_s));
    expectShown(Box::Notice, text(u"Msg_NoDiscoX0"_s),
        text(u"Msg_NoDiscoI1"_s) + u" /MEDIA/CDROM0 "_s + text(u"Msg_NoDiscoD1"_s));
}

TEST(NamesOfTheDatabase, FitTheDropDownListsAndThePairOfBoth)
{
    const QFontMetrics letters(forms::arial(8.25));
    constexpr int ComboWidth = 1515; // twips: what the arrow leaves
    constexpr int PairWidth = 3120;
    for (const sources::System &system : sources::systems(u"Zembro.sye"_s)) {
        ASSERT_FALSE(system.emulators.isEmpty()) << system.name.toStdString();
        const QString pair = system.name + u" -> "_s + longest(system.emulators);
        EXPECT_LE(letters.horizontalAdvance(pair), forms::pixels(PairWidth)) << pair.toStdString();
        for (const QString &name : system.emulators + QStringList { system.name })
            EXPECT_LE(letters.horizontalAdvance(name), forms::pixels(ComboWidth)) << name.toStdString();
    }
}
