// Every text fits the place where the screens show it.
#include "sources.h"

#include "core/textos.h"

#include "forms/units.h"

#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QMap>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

enum class Font { Plain, Bold, Terminal, Courier };

// The room of a text, in twips: a label with what it may grow into where it stands alone, or the inside of a
// button or a caption. A label of two lines or more wraps its text.
struct Room {
    QStringView key;
    Font font;
    int width;
    int height;
};

constexpr int InfoWidth = 2085; // TXT_Info, in the television set
constexpr int InfoRomsWidth = 2250, InfoRomsHeight = 195;
constexpr int Line = 210; // the height of most labels
constexpr int BoxTitle = 2200; // the caption of the message box, that has no buttons of its own
constexpr int InputWidth = 2205, InputHeight = 435; // the message box over the input, and asking
constexpr int NoticeWidth = 2415,
              NoticeHeight = 700; // the message box that tells or warns, down to its button
constexpr int ComboWidth = 1515; // what the arrow leaves of a drop-down list

const Room Rooms[] = {
    // The main screen. TXT_Boton grows to both sides, up to the frames.
    { u"TXT_NingunaROM", Font::Bold, InfoWidth, Line },
    { u"TXT_BaseDeDatos", Font::Bold, InfoWidth, Line },
    { u"TXT_Leyendo", Font::Bold, InfoWidth, Line },
    { u"TXT_Añadiendo", Font::Bold, InfoWidth, Line },
    { u"TXT_EmuNoSelec", Font::Terminal, InfoRomsWidth, InfoRomsHeight },
    { u"TXT_Describir", Font::Plain, 705, Line },
    { u"TXT_Borrar", Font::Plain, 615, Line },
    { u"TXT_VerAyuda", Font::Plain, 1620, Line },
    { u"TXT_VerConfig", Font::Plain, 1620, Line },
    { u"TXT_Configurar", Font::Plain, 1740, Line },
    { u"TXT_Opciones", Font::Plain, 1740, Line },
    { u"TXT_Utilidades", Font::Plain, 740, Line },
    { u"TXT_Ayuda", Font::Plain, 640, Line },
    { u"TXT_AcercaDe", Font::Plain, 740, Line },
    { u"TXT_Jugar", Font::Bold, 660, Line },
    { u"TXT_Cargar", Font::Bold, 660, Line },
    // Labels under the buttons of all other screens.
    { u"TXT_Grabar", Font::Plain, 690, Line },
    { u"TXT_Volver", Font::Plain, 585, Line },
    { u"TXT_Aceptar", Font::Plain, 760, Line },
    // Systems and emulators.
    { u"TXT_TituloCFG1", Font::Bold, 2500, Line },
    { u"TXT_Escoge", Font::Plain, 3540, Line },
    { u"TXT_Sistemas", Font::Plain, 1695, Line },
    { u"TXT_Emuladores", Font::Plain, 1695, Line },
    { u"TXT_Sevaaañadir", Font::Plain, 3500, Line },
    { u"TXT_Añadir", Font::Plain, 650, Line },
    { u"TXT_Extensiones", Font::Plain, 650, Line },
    { u"TXT_Leyenda", Font::Plain, 900, Line },
    // The configuration of an emulator.
    { u"TXT_TituloCFG2", Font::Bold, 2500, Line },
    { u"TXT_Examinar", Font::Plain, 840, Line },
    { u"TXT_CFGDe", Font::Bold, 3480, Line },
    { u"TXT_CFGGeneral", Font::Bold, 2100, Line },
    { u"TXT_EXE", Font::Plain, 3255, Line },
    { u"TXT_ROM", Font::Plain, 3255, Line },
    { u"TXT_IMG", Font::Plain, 3255, Line },
    { u"TXT_PAR", Font::Plain, 3255, Line },
    { u"TXT_SoloEXE", Font::Plain, 3210, Line },
    { u"TXT_Especial", Font::Bold, 3255, Line },
    { u"TXT_1DIR", Font::Plain, 2895, Line },
    { u"TXT_Comp", Font::Plain, 2895, 495 },
    { u"TXT_AutoComp", Font::Plain, 2850, 450 },
    { u"TXT_AvisoTipo0", Font::Plain, 1935, 735 },
    { u"TXT_AvisoTipo1", Font::Plain, 1935, 735 },
    { u"TXT_AvisoNuevo", Font::Plain, 1935, 735 },
    // Options.
    { u"TXT_TituloOp1", Font::Bold, 1600, Line },
    { u"TXT_Editor", Font::Plain, 2415, Line },
    { u"TXT_EditorDOS", Font::Plain, 1950, Line },
    { u"TXT_EditorWIN", Font::Plain, 1950, Line },
    { u"TXT_Idioma", Font::Plain, 2415, Line },
    { u"TXT_InfoLNG", Font::Plain, 2400, Line },
    { u"TXT_EditarLNG", Font::Plain, 2415, 480 },
    { u"Boton_CFGAv", Font::Plain, 2200, Line },
    { u"TXT_TituloOp2", Font::Bold, 1900, Line },
    { u"TXT_Guardar", Font::Plain, 2370, 690 },
    { u"TXT_GuardarAviso", Font::Plain, 2175, 495 },
    { u"TXT_Filtros", Font::Plain, 2535, 480 },
    { u"TXT_FinDOS", Font::Plain, 2175, 615 },
    { u"TXT_FinDOSAviso", Font::Plain, 2535, 660 },
    { u"TXT_Si", Font::Plain, 320, Line },
    { u"TXT_No", Font::Plain, 320, Line },
    // Utilities.
    { u"TXT_TituloUtil", Font::Bold, 1100, Line },
    { u"TXT_Convertir", Font::Plain, 1935, 615 },
    // The message box: over its input, and telling or warning. What is joined is measured below.
    { u"Msg_AñadirEmu1", Font::Plain, InputWidth, InputHeight },
    { u"Msg_AñadirSis1", Font::Plain, InputWidth, InputHeight },
    { u"Msg_NuevaWWW1", Font::Plain, InputWidth, InputHeight },
    { u"Msg_NuevaWWWROMS1", Font::Plain, InputWidth, InputHeight },
    { u"Msg_Parametros1", Font::Plain, InputWidth, InputHeight },
    { u"Msg_EXT1", Font::Plain, InputWidth, InputHeight },
    { u"Msg_Descripcion1", Font::Plain, InputWidth, InputHeight },
    { u"Msg_EmuYaAñadido1", Font::Courier, NoticeWidth, NoticeHeight },
    { u"Msg_SisYaAñadido1", Font::Courier, NoticeWidth, NoticeHeight },
    { u"Msg_EmuNoWeb1", Font::Courier, NoticeWidth, NoticeHeight },
    { u"Msg_SisNoWeb1", Font::Courier, NoticeWidth, NoticeHeight },
    { u"Msg_ZipSinRoms1", Font::Courier, NoticeWidth, NoticeHeight },
    { u"Msg_NoEXE1", Font::Courier, NoticeWidth, NoticeHeight },
    { u"Msg_NoDIR1", Font::Courier, NoticeWidth, NoticeHeight },
    { u"Msg_Casillas1", Font::Courier, NoticeWidth, NoticeHeight },
    { u"Msg_NingunaROM1", Font::Courier, NoticeWidth, NoticeHeight },
    { u"Msg_CFGGrabada1", Font::Courier, NoticeWidth, NoticeHeight },
    { u"Msg_SinCambios1", Font::Courier, NoticeWidth, NoticeHeight },
    { u"Msg_GrabacionOK1", Font::Courier, NoticeWidth, NoticeHeight },
    { u"Msg_NingunPCX1", Font::Courier, NoticeWidth, NoticeHeight },
    { u"Msg_NoEmuLD1", Font::Courier, NoticeWidth, NoticeHeight },
    { u"Msg_YaAñadido1", Font::Courier, NoticeWidth, NoticeHeight },
    { u"Msg_ArchGrande1", Font::Courier, NoticeWidth, NoticeHeight },
    { u"Msg_AyudaNoEnc1", Font::Courier, NoticeWidth, NoticeHeight },
    { u"Msg_CFGNoEnc1", Font::Courier, NoticeWidth, NoticeHeight },
};

QFontMetrics metrics(Font font)
{
    switch (font) {
    case Font::Bold:
        return QFontMetrics(forms::arial(8.25, true));
    case Font::Terminal:
        return QFontMetrics(forms::terminal(6, true));
    case Font::Courier:
        return QFontMetrics(forms::courier(9.75));
    case Font::Plain:
        break;
    }
    return QFontMetrics(forms::arial(8.25));
}

void expectFits(const QString &text, const Room &room)
{
    const QFontMetrics letters = metrics(room.font);
    const int width = forms::pixels(room.width);
    const int height = forms::pixels(room.height);
    const int flags = height >= 2 * letters.lineSpacing() ? Qt::TextWordWrap : Qt::TextSingleLine;
    const QRect needed = letters.boundingRect(QRect(0, 0, width, 1000), flags, text);
    EXPECT_LE(needed.width(), width) << text.toStdString();
    EXPECT_LE(needed.height(), height) << text.toStdString();
}

class TextsOfLanguage : public testing::TestWithParam<QString> {
protected:
    TextsOfLanguage()
    {
        for (const QString &line : sources::lines(GetParam())) {
            if (!line.startsWith(u'\''))
                m_texts[line.left(core::AnchoClave)] = core::TextoDeLinea(line);
        }
    }

    QString text(const QString &key) const
    {
        return m_texts.value(key.leftJustified(core::AnchoClave, u'.'));
    }

    QMap<QString, QString> m_texts;
};

INSTANTIATE_TEST_SUITE_P(Delivered, TextsOfLanguage,
    testing::Values(u"LNG/ZB-ESP.LNG"_s, u"LNG/ZB-ENG.LNG"_s),
    [](const auto &file) { return file.index == 0 ? "Spanish" : "English"; });

QString longest(const QStringList &names)
{
    return *std::max_element(names.begin(), names.end(), [](const QString &one, const QString &other) {
        const QFontMetrics letters = metrics(Font::Plain);
        return letters.horizontalAdvance(one) < letters.horizontalAdvance(other);
    });
}

QStringList titles()
{
    QStringList keys;
    for (const core::ClaveDeTexto &key : core::ClavesDeTexto()) {
        const QString name = key.nombre.toString();
        if (name.startsWith(u"Msg_") && (name.endsWith(u'0') || name.endsWith(u"XX")))
            keys += name;
    }
    return keys;
}

} // namespace

TEST(FitOfTexts, IsMeasuredForEveryKey)
{
    // A menu is as wide as its entries.
    QStringList measured { u"Menu_Describir"_s, u"Menu_Borrar"_s, u"Menu_Parametros"_s, u"TXT_Cargando"_s,
        u"TXT_Directorios"_s, u"Msg_BorrarSis1"_s, u"Msg_BorrarEmu1"_s, u"Msg_IMGTrans1I"_s,
        u"Msg_IMGTrans1D"_s, u"Msg_IMGTransMI"_s, u"Msg_IMGTransMD"_s, u"Msg_NoDiscoI1"_s,
        u"Msg_NoDiscoD1"_s };
    measured += titles();
    for (const Room &room : Rooms)
        measured += room.key.toString();
    QStringList keys;
    for (const core::ClaveDeTexto &key : core::ClavesDeTexto())
        keys += key.nombre.toString();
    measured.sort();
    keys.sort();
    EXPECT_EQ(measured, keys);
}

TEST_P(TextsOfLanguage, FitTheirPlaces)
{
    for (const Room &room : Rooms)
        expectFits(text(room.key.toString()), room);
}

TEST_P(TextsOfLanguage, FitTheTitleOfTheMessageBox)
{
    for (const QString &key : titles())
        expectFits(text(key), { {}, Font::Bold, BoxTitle, Line });
}

TEST_P(TextsOfLanguage, FitWhenTheyAreShownInCapitals)
{
    expectFits(text(u"TXT_Cargando"_s).toUpper(), { {}, Font::Bold, InfoWidth, Line });
}

TEST_P(TextsOfLanguage, FitBehindTheLargestCountOfDirectories)
{
    expectFits(u"6667 "_s + text(u"TXT_Directorios"_s) + u"  "_s,
        { {}, Font::Terminal, InfoRomsWidth, InfoRomsHeight });
}

TEST_P(TextsOfLanguage, FitWithTheLongestNameOfTheDatabase)
{
    QStringList systems;
    QStringList emulators;
    for (const sources::System &system : sources::systems(u"Zembro.sye"_s)) {
        systems += system.name;
        emulators += system.emulators;
    }
    const Room question { {}, Font::Plain, InputWidth, InputHeight };
    expectFits(text(u"Msg_BorrarSis1"_s) + longest(systems) + u'?', question);
    expectFits(text(u"Msg_BorrarEmu1"_s) + longest(emulators) + u'?', question);
}

TEST_P(TextsOfLanguage, FitAroundANumberOrADrive)
{
    const Room notice { {}, Font::Courier, NoticeWidth, NoticeHeight };
    expectFits(text(u"Msg_IMGTrans1I"_s) + u" 1 "_s + text(u"Msg_IMGTrans1D"_s), notice);
    expectFits(text(u"Msg_IMGTransMI"_s) + u" 5001 "_s + text(u"Msg_IMGTransMD"_s), notice);
    expectFits(text(u"Msg_NoDiscoI1"_s) + u" /MEDIA/CDROM0 "_s + text(u"Msg_NoDiscoD1"_s), notice);
}

TEST(NamesOfTheDatabase, FitTheDropDownListsAndThePairOfBoth)
{
    for (const sources::System &system : sources::systems(u"Zembro.sye"_s)) {
        expectFits(system.name, { {}, Font::Plain, ComboWidth, Line });
        expectFits(system.name + u" -> "_s + longest(system.emulators), { {}, Font::Plain, 3120, Line });
        for (const QString &emulator : system.emulators)
            expectFits(emulator, { {}, Font::Plain, ComboWidth, Line });
    }
}
