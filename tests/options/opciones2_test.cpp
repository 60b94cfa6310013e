// The advanced options: what acts at once, and the three lines that one press of the disk may write.

#include "opcionestest.h"

#include "tests/support/ordinaryuser.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

class Opciones2Test : public OpcionesTest {
protected:
    Opciones2Test()
    {
        start();
        m_first = settings();
    }

    static forms::TextBox &filtersOf(const forms::Form &form) { return box(form, u"CajaTexto1"_s); }
    static forms::TextBox &wordOf(const forms::Form &form) { return box(form, u"CajaTexto2"_s); }
    static forms::OptionButton &yes(const forms::Form &form)
    {
        return controlOf<forms::OptionButton>(form, u"Opcion1"_s);
    }
    static forms::OptionButton &no(const forms::Form &form)
    {
        return controlOf<forms::OptionButton>(form, u"Opcion2"_s);
    }

    // As a user does: all of the box is marked and typed over.
    static void write(forms::TextBox &where, const QString &text)
    {
        click(where);
        strike(*where.window(), Qt::Key_A, Qt::ControlModifier);
        strike(*where.window(), Qt::Key_Delete);
        type(*where.window(), text);
        EXPECT_EQ(where.Text(), text);
    }

    // The settings after these filters were typed and saved.
    QByteArray savedWithFilters(const QString &text)
    {
        advanced([&](forms::Form &form) {
            write(filtersOf(form), text);
            EXPECT_EQ(save(form), noticeOf(u"Msg_GrabacionOK"_s));
        });
        return settings();
    }
    // The settings up to the filters, and these behind them.
    QByteArray upToFilters(const QByteArray &rest) const
    {
        const QByteArray section = "[Filters]\r\n";
        return m_first.left(m_first.indexOf(section) + section.size()) + rest;
    }

    QByteArray m_first; // the settings at the start

private:
    static forms::TextBox &box(const forms::Form &form, const QString &name)
    {
        return controlOf<forms::TextBox>(form, name);
    }
};

} // namespace

TEST_F(Opciones2Test, ControlsStandInTheirPlaces)
{
    advanced([this](forms::Form &form) {
        expectPlaces(form,
            {
                { u"TXT_Guardar"_s, designPlace(120, 120, 2370, 690) },
                { u"Opcion1"_s, designPlace(600, 840, 255, 255) },
                { u"Opcion2"_s, designPlace(1320, 840, 255, 255) },
                { u"CajaTexto1"_s, designPlace(120, 2400, 2355, 285) },
                { u"CajaTexto2"_s, designPlace(120, 3720, 2415, 285) },
                { u"Disco1"_s, designPlace(120, 4900, 435, 435) },
                { u"Flecha2"_s, designPlace(750, 4950, 615, 375) },
            });
        for (const QString &line : { u"Line1"_s, u"Linea3"_s })
            EXPECT_EQ(controlOf<QWidget>(form, line).height(), 1);
        EXPECT_EQ(form.size(), QSize(177, 379));
        EXPECT_EQ(form.Control(u"Disco2"_s), form.Control(u"Disco1"_s));
        EXPECT_EQ(form.Control(u"Flecha1"_s), form.Control(u"Flecha2"_s));
        EXPECT_EQ(form.palette().color(QPalette::Window), QColor(0, 0, 64));
        expectTiled(form);
        EXPECT_FALSE(form.windowFlags().testAnyFlags(Qt::WindowMinMaxButtonsHint));
        EXPECT_EQ(form.geometry().center().x(), portada->geometry().center().x());
    });
}

TEST_F(Opciones2Test, LabelsOfTheDesignStandWhereTheyAreBroughtIn)
{
    const options::Opciones2 form(*M, *portada);
    EXPECT_EQ(form.Caption(), u"Opciones avanzadas"_s);
    const struct {
        QString name;
        QString text;
        QRect place;
    } labels[] = {
        { u"TXT_Guardar"_s,
            u"¿Quieres comenzar siempre el programa con el último emulador  y sistema que hayas escogido?"_s,
            designPlace(120, 120, 2370, 690) },
        { u"TXT_Si"_s, u"Si"_s, designPlace(860, 870, 135, 195) },
        { u"TXT_No"_s, u"No"_s, designPlace(1575, 870, 210, 195) },
        { u"TXT_GuardarAviso"_s, u"(Escoge NO si quieres usar el programa desde CD-ROM)"_s,
            designPlace(120, 1200, 2175, 495) },
        { u"TXT_Filtros"_s, u"Directorios para ser filtrados, en emuladores que funcionan x DIRs"_s,
            designPlace(120, 1920, 2535, 495) },
        { u"TXT_FinDOS"_s, u"¿Que mensaje pone en la ventana del DOS al acabar un programa?"_s,
            designPlace(120, 3000, 2175, 615) },
        { u"TXT_FinDOSAviso"_s,
            u"(Si no pones este mensaje en el idioma de tu windows, la ventana del DOS no se cerrará)"_s,
            designPlace(120, 4080, 2535, 660) },
        { u"TXT_Grabar"_s, u"Grabar"_s, designPlace(90, 5385, 510, 210) },
        { u"TXT_Volver"_s, u"Volver"_s, designPlace(735, 5385, 705, 210) },
    };
    for (const auto &expected : labels) {
        SCOPED_TRACE(expected.name.toStdString());
        const auto &label = controlOf<forms::Label>(form, expected.name);
        EXPECT_EQ(label.Caption(), expected.text);
        EXPECT_EQ(label.geometry().topLeft(), expected.place.topLeft());
        EXPECT_EQ(label.height(), expected.place.height());
    }
}

TEST_F(Opciones2Test, TheWordsAreThoseOfTheLanguage)
{
    advanced([](forms::Form &form) {
        EXPECT_EQ(form.Caption(), u"S:TXT_TituloOp2"_s);
        for (const QString &label :
            { u"TXT_Volver"_s, u"TXT_Grabar"_s, u"TXT_Guardar"_s, u"TXT_GuardarAviso"_s, u"TXT_Filtros"_s,
                u"TXT_FinDOS"_s, u"TXT_FinDOSAviso"_s, u"TXT_Si"_s, u"TXT_No"_s })
            EXPECT_EQ(captionOf(form, label), u"S:"_s + label);
    });
}

TEST_F(Opciones2Test, TwoWordsAreThoseOfTheScreenThatOpensIt)
{
    options([this](forms::Form &form) {
        controlOf<forms::Label>(form, u"TXT_Volver"_s).SetCaption(u"back"_s);
        controlOf<forms::Label>(form, u"TXT_Grabar"_s).SetCaption(u"write"_s);
        at(u"Opciones2"_s, [this](forms::Form &second) {
            EXPECT_EQ(captionOf(second, u"TXT_Volver"_s), u"back"_s);
            EXPECT_EQ(captionOf(second, u"TXT_Grabar"_s), u"write"_s);
            EXPECT_THAT(save(second).words, ElementsAre(u"S:TXT_Aceptar"_s, u"back"_s));
        });
        click(controlOf<QWidget>(form, u"Boton_CFGAv"_s));
    });
}

TEST_F(Opciones2Test, EveryControlHasAName)
{
    advanced([](forms::Form &form) {
        for (const auto &[control, name] :
            { std::pair(u"Opcion1"_s, u"S:TXT_Guardar S:TXT_Si"_s),
                std::pair(u"Opcion2"_s, u"S:TXT_Guardar S:TXT_No"_s),
                std::pair(u"CajaTexto1"_s, u"S:TXT_Filtros"_s), std::pair(u"CajaTexto2"_s, u"S:TXT_FinDOS"_s),
                std::pair(u"Disco1"_s, u"S:TXT_Grabar"_s), std::pair(u"Flecha2"_s, u"S:TXT_Volver"_s) })
            EXPECT_EQ(controlOf<QWidget>(form, control).accessibleName(), name) << control.toStdString();
    });
}

TEST_F(Opciones2Test, ItShowsTheSettingsInForce)
{
    advanced([](forms::Form &form) {
        EXPECT_TRUE(yes(form).Value());
        EXPECT_FALSE(no(form).Value());
        EXPECT_EQ(filtersOf(form).Text(), u"CFG,ROMS"_s);
        EXPECT_EQ(wordOf(form).Text(), u"Finalizado"_s);
    });
    M->GuardarUltimo = u"0"_s;
    advanced([](forms::Form &form) { EXPECT_TRUE(no(form).Value()); });
    M->GuardarUltimo = u"2"_s;
    advanced([](forms::Form &form) {
        EXPECT_FALSE(yes(form).Value());
        EXPECT_FALSE(no(form).Value());
    });
    EXPECT_EQ(M->GuardarUltimo, u"2"_s);
}

TEST_F(Opciones2Test, AnOptionActsAtOnceAndIsNotWritten)
{
    const auto stamp = stampOfSettings();
    advanced([this](forms::Form &form) {
        click(no(form));
        EXPECT_EQ(M->GuardarUltimo, u"0"_s);
        EXPECT_FALSE(yes(form).Value());
        click(yes(form));
        EXPECT_EQ(M->GuardarUltimo, u"1"_s);
        strike(form, Qt::Key_Right);
        EXPECT_EQ(M->GuardarUltimo, u"0"_s);
    });
    EXPECT_EQ(stampOfSettings(), stamp);
    // The exit goes by it.
    const auto end = endOf([this] { portada->Flecha2->Release.raise(); });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 0);
    EXPECT_EQ(stampOfSettings(), stamp);
}

TEST_F(Opciones2Test, AnUnsavedOptionCountsAsSavedOnceTheScreenIsOpenedAgain)
{
    advanced([](forms::Form &form) { click(no(form)); });
    advanced([this](forms::Form &form) {
        EXPECT_TRUE(no(form).Value());
        EXPECT_EQ(save(form), warningOf(u"Msg_SinCambios"_s));
    });
    EXPECT_EQ(M->GuardarUltimo, u"0"_s);
    EXPECT_EQ(settings(), m_first);
}

TEST_F(Opciones2Test, UnsavedTextsAreGoneOnceTheScreenIsOpenedAgain)
{
    advanced([](forms::Form &form) {
        write(filtersOf(form), u"X"_s);
        write(wordOf(form), u"Y"_s);
    });
    advanced([](forms::Form &form) {
        EXPECT_EQ(filtersOf(form).Text(), u"CFG,ROMS"_s);
        EXPECT_EQ(wordOf(form).Text(), u"Finalizado"_s);
    });
    EXPECT_EQ(M->MsgEndDOS, u"Finalizado"_s);
}

TEST_F(Opciones2Test, SavingWithoutAChangeSaysSoAndLeavesTheFileAlone)
{
    const auto stamp = stampOfSettings();
    advanced([this](forms::Form &form) { EXPECT_EQ(save(form), warningOf(u"Msg_SinCambios"_s)); });
    EXPECT_EQ(stampOfSettings(), stamp);
}

TEST_F(Opciones2Test, SavingTheOptionWritesItsLineAlone)
{
    advanced([this](forms::Form &form) {
        click(no(form));
        EXPECT_EQ(save(form), noticeOf(u"Msg_GrabacionOK"_s));
        EXPECT_EQ(
            settings(), QByteArray(m_first).replace("SaveLastEmu&Sis = 1\r\n", "SaveLastEmu&Sis = 0\r\n"));
        EXPECT_EQ(save(form), warningOf(u"Msg_SinCambios"_s));
        click(yes(form));
        EXPECT_EQ(save(form), noticeOf(u"Msg_GrabacionOK"_s));
    });
    EXPECT_EQ(settings(), m_first);
    EXPECT_FALSE(files.exists(u"Zembro.tmp"_s));
}

TEST_F(Opciones2Test, SavingTheWordWritesItAsTypedAndItCountsAtOnce)
{
    advanced([this](forms::Form &form) {
        write(wordOf(form), u" Done, x "_s);
        EXPECT_EQ(M->MsgEndDOS, u"Finalizado"_s);
        EXPECT_EQ(save(form), noticeOf(u"Msg_GrabacionOK"_s));
        EXPECT_EQ(M->MsgEndDOS, u" Done, x "_s);
        EXPECT_EQ(save(form), warningOf(u"Msg_SinCambios"_s));
    });
    EXPECT_EQ(
        settings(), QByteArray(m_first).replace("MsgEndDOS = Finalizado\r\n", "MsgEndDOS =  Done, x \r\n"));
}

TEST_F(Opciones2Test, AnEmptyWordIsWrittenWithNothingBehindTheKey)
{
    advanced([this](forms::Form &form) {
        write(wordOf(form), {});
        save(form);
    });
    EXPECT_EQ(settings(), QByteArray(m_first).replace("MsgEndDOS = Finalizado\r\n", "MsgEndDOS = \r\n"));
    EXPECT_EQ(M->MsgEndDOS, QString());
}

TEST_F(Opciones2Test, AllThreeChangesAreSavedInOnePress)
{
    advanced([this](forms::Form &form) {
        click(no(form));
        write(filtersOf(form), u"Snap"_s);
        write(wordOf(form), u"Fin"_s);
        EXPECT_EQ(save(form), noticeOf(u"Msg_GrabacionOK"_s));
        EXPECT_EQ(save(form), warningOf(u"Msg_SinCambios"_s));
    });
    QByteArray expected = upToFilters("SNAP\r\n\r\n[EOF]\r\n");
    expected.replace("SaveLastEmu&Sis = 1", "SaveLastEmu&Sis = 0").replace("= Finalizado", "= Fin");
    EXPECT_EQ(settings(), expected);
}

TEST_F(Opciones2Test, FiltersAreWrittenInCapitalsAndStayAsTypedUntilTheNextStart)
{
    EXPECT_EQ(savedWithFilters(u"roms,Snap"_s), upToFilters("ROMS\r\nSNAP\r\n\r\n[EOF]\r\n"));
    EXPECT_EQ(M->FiltrosTexto, u"roms,Snap"_s);
    EXPECT_EQ(M->Filtros(0), u"CFG"_s); // the table of the list
    advanced([](forms::Form &form) { EXPECT_EQ(filtersOf(form).Text(), u"roms,Snap"_s); });
    renewJoined();
    start();
    EXPECT_EQ(M->FiltrosTexto, u"ROMS,SNAP"_s);
    EXPECT_EQ(M->Filtros(1), u"SNAP"_s);
}

TEST_F(Opciones2Test, NoFilterIsWrittenAsAnEmptyLine_AndTheNextStartEnds)
{
    EXPECT_EQ(savedWithFilters({}), upToFilters("\r\n\r\n[EOF]\r\n"));
    renewJoined();
    const auto end = load();
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 1);
    EXPECT_TRUE(end->text.contains(files.path(u"Zembro.cfg"_s))) << end->text.toStdString();
}

TEST_F(Opciones2Test, FiltersThatStopTheNextStartAreRefused_AndStayInTheBox)
{
    for (const QString &text : { u"VACIO"_s, u"cfg, vacio"_s, u",CFG"_s, u"  "_s }) {
        advanced([&](forms::Form &form) {
            click(no(form));
            write(wordOf(form), u"Fin"_s);
            write(filtersOf(form), text);
            EXPECT_EQ(save(form), warningOf(u"Zem_NoFiltro"_s));
            EXPECT_EQ(filtersOf(form).Text(), text);
            EXPECT_EQ(wordOf(form).Text(), u"Fin"_s);
            EXPECT_EQ(save(form), warningOf(u"Zem_NoFiltro"_s));
            click(yes(form));
        });
        EXPECT_EQ(settings(), m_first) << text.toStdString();
        EXPECT_EQ(M->FiltrosTexto, u"CFG,ROMS"_s);
        EXPECT_EQ(M->MsgEndDOS, u"Finalizado"_s);
    }
}

TEST_F(Opciones2Test, AWordThatWouldNotComeBackIsRefused_AndStaysInTheBox)
{
    for (const QString &text : { u"Fin="_s, u"a=b"_s, u"x,VACIO"_s }) {
        advanced([&](forms::Form &form) {
            write(filtersOf(form), u"Snap"_s);
            write(wordOf(form), text);
            EXPECT_EQ(save(form), warningOf(u"Zem_NoFinal"_s));
            EXPECT_EQ(filtersOf(form).Text(), u"Snap"_s);
            EXPECT_EQ(wordOf(form).Text(), text);
        });
        EXPECT_EQ(settings(), m_first) << text.toStdString();
        EXPECT_EQ(M->FiltrosTexto, u"CFG,ROMS"_s);
        EXPECT_EQ(M->MsgEndDOS, u"Finalizado"_s);
    }
}

// A file written by hand may hold such a word; another change is saved beside it.
TEST_F(Opciones2Test, ARefusedTextThatStandsAlreadyDoesNotHinderAnotherChange)
{
    M->FiltrosTexto = u",CFG"_s;
    M->MsgEndDOS = u"a=b"_s;
    advanced([this](forms::Form &form) {
        click(no(form));
        EXPECT_EQ(save(form), noticeOf(u"Msg_GrabacionOK"_s));
    });
    EXPECT_EQ(settings(), QByteArray(m_first).replace("SaveLastEmu&Sis = 1", "SaveLastEmu&Sis = 0"));
}

TEST_F(Opciones2Test, TwoCommasEndTheListOfFilters)
{
    EXPECT_EQ(savedWithFilters(u"CFG,,ROMS"_s), upToFilters("CFG\r\n\r\n[EOF]\r\n"));
    EXPECT_EQ(M->FiltrosTexto, u"CFG,,ROMS"_s);
}

TEST_F(Opciones2Test, ACommaAtTheEndAddsNoFilter)
{
    EXPECT_EQ(savedWithFilters(u"CFG,X,"_s), upToFilters("CFG\r\nX\r\n\r\n[EOF]\r\n"));
}

TEST_F(Opciones2Test, BlanksAroundAFilterStayWithIt)
{
    EXPECT_EQ(savedWithFilters(u"CFG, roms ,x"_s), upToFilters("CFG\r\n ROMS \r\nX\r\n\r\n[EOF]\r\n"));
}

TEST_F(Opciones2Test, TheTextOfTheFiltersTakesThePlaceOfTheLastAnswer)
{
    M->Respuesta_Caja = u"answer"_s;
    advanced([this](forms::Form &form) {
        write(wordOf(form), u"Fin"_s);
        controlOf<forms::PictureButton>(form, u"Disco1"_s).Press.raise();
        EXPECT_EQ(M->Respuesta_Caja, u"answer"_s);
        write(filtersOf(form), u"a,b"_s);
        atModal(u"Caja"_s, [this](forms::Form &box) {
            EXPECT_EQ(M->Respuesta_Caja, u"a,b"_s);
            click(controlOf<QWidget>(box, u"Aceptar2"_s));
        });
        click(controlOf<QWidget>(form, u"Disco1"_s));
    });
}

TEST_F(Opciones2Test, AHundredAndOneFiltersAreWritten)
{
    QStringList names;
    for (int i = 0; i < 101; ++i)
        names << u"D%1"_s.arg(i);
    advanced([&](forms::Form &form) {
        filtersOf(form).SetText(names.join(u',') + u',');
        EXPECT_EQ(save(form), noticeOf(u"Msg_GrabacionOK"_s));
    });
    EXPECT_EQ(settings(), upToFilters(names.join(u"\r\n"_s).toLatin1() + "\r\n\r\n[EOF]\r\n"));
}

TEST_F(Opciones2Test, OneFilterMoreEndsTheProgram_WithTheOptionWrittenBefore)
{
    std::optional<ProcessEnd> end;
    advanced([&](forms::Form &form) {
        click(no(form));
        filtersOf(form).SetText(u'a' + QString(101, u',') + u'x');
        end = endOf([&] { controlOf<forms::PictureButton>(form, u"Disco1"_s).Release.raise(); });
        form.Unload(); // the process would be gone
    });
    ASSERT_TRUE(end);
    EXPECT_EQ(end->status, 1);
    EXPECT_TRUE(end->text.contains(u"(ERR9)"_s)) << end->text.toStdString();
    EXPECT_EQ(settings(), QByteArray(m_first).replace("SaveLastEmu&Sis = 1", "SaveLastEmu&Sis = 0"));
}

TEST_F(Opciones2Test, AFileWithoutTheSectionKeepsItsLines)
{
    const QByteArray whole = m_first.left(m_first.indexOf("[Filters]"));
    files.write(u"Zembro.cfg"_s, whole);
    EXPECT_EQ(savedWithFilters(u"X"_s), whole);
    EXPECT_FALSE(files.exists(u"Zembro.tmp"_s));
}

TEST_F(Opciones2Test, AMissingSettingsFileEndsTheSaving)
{
    std::optional<ProcessEnd> end;
    advanced([&](forms::Form &form) {
        write(wordOf(form), u"Fin"_s);
        files.remove(u"Zembro.cfg"_s);
        end = endOf([&] { controlOf<forms::PictureButton>(form, u"Disco1"_s).Release.raise(); });
        form.Unload(); // the process would be gone
    });
    ASSERT_TRUE(end);
    EXPECT_TRUE(end->text.endsWith(files.path(u"Zembro.cfg"_s))) << end->text.toStdString();
}

TEST_F(Opciones2Test, TheCloseBoxGoesBack_AndEscapeDoesNothing)
{
    advanced([](forms::Form &form) {
        strike(form, Qt::Key_Escape);
        EXPECT_TRUE(form.isVisible());
        wishClose(form);
        EXPECT_FALSE(form.isVisible());
    });
}

TEST_F(Opciones2Test, WhileItStandsTheOptionsGetNoInput)
{
    options([this](forms::Form &first) {
        at(u"Opciones2"_s, [&first](forms::Form &) {
            click(controlOf<QWidget>(first, u"Flecha2"_s));
            EXPECT_TRUE(first.isVisible());
        });
        click(controlOf<QWidget>(first, u"Boton_CFGAv"_s));
        EXPECT_TRUE(first.isVisible());
    });
}

TEST_F(Opciones2Test, AnyMouseButtonSavesAndGoesBackWhereverItIsReleased)
{
    for (const Qt::MouseButton button : { Qt::RightButton, Qt::MiddleButton }) {
        advanced([&](forms::Form &form) {
            auto &disk = controlOf<forms::PictureButton>(form, u"Disco1"_s);
            Box box;
            announceBox(box);
            press(disk, button);
            EXPECT_TRUE(disk.ShowsPressed());
            EXPECT_EQ(box, Box());
            releaseAt(disk, QPoint(60, -60), button);
            EXPECT_FALSE(disk.ShowsPressed());
            EXPECT_EQ(box, warningOf(u"Msg_SinCambios"_s));
            auto &arrow = controlOf<forms::PictureButton>(form, u"Flecha2"_s);
            press(arrow, button);
            EXPECT_TRUE(arrow.ShowsPressed());
            EXPECT_TRUE(form.isVisible());
            releaseAt(arrow, QPoint(-60, -60), button);
            EXPECT_FALSE(form.isVisible());
        });
    }
}

TEST_F(Opciones2Test, EverythingIsReachedByTabInTheOrderOfTheScreen)
{
    advanced([](forms::Form &form) {
        QStringList order;
        yes(form).setFocus();
        do {
            order << form.focusWidget()->objectName();
            strike(form, Qt::Key_Tab);
        } while (form.focusWidget()->objectName() != order.first() && order.size() < 20);
        EXPECT_THAT(
            order, ElementsAre(u"Opcion1"_s, u"CajaTexto1"_s, u"CajaTexto2"_s, u"Disco1"_s, u"Flecha2"_s));
    });
}

TEST_F(Opciones2Test, WhatCannotBeKeptIsTold_AndStaysInTheBoxes)
{
    startAt(Zeta, 0);
    const QByteArray before = settings();
    advanced([this](forms::Form &form) {
        controlOf<forms::TextBox>(form, u"CajaTexto1"_s).SetText(u"ONE,TWO"_s);
        controlOf<forms::TextBox>(form, u"CajaTexto2"_s).SetText(u"Over"_s);
        {
            const AsOrdinaryUser user(files.path());
            EXPECT_EQ(save(form), warningOf(u"Zem_SoloLeer"_s));
        }
        EXPECT_EQ(controlOf<forms::TextBox>(form, u"CajaTexto1"_s).Text(), u"ONE,TWO"_s);
        EXPECT_EQ(save(form), noticeOf(u"Msg_GrabacionOK"_s)); // where it can be written again
    });
    EXPECT_NE(settings(), before);
}
