// Whatever comes from outside shows letter by letter as it is, wherever it shows: names, descriptions, paths
// and the words of a language that are marks of the toolkit, and name a file that nobody may open.
#include "tests/support/opens.h"
#include "tests/support/portadatest.h"

#include "core/palabras.h"
#include "core/textos.h"

#include "dialogs/mensaje.h"

#include "forms/commandbutton.h"
#include "forms/directorylist.h"

#include "host/paths.h"

#include "maintenance/bajas.h"
#include "maintenance/pasos.h"

#include "options/pantallas.h"
#include "options/primerainstalacion.h"

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QImage>
#include <QLabel>
#include <QSet>
#include <QToolTip>
#include <QWindow>

using namespace Qt::StringLiterals;
using testing::IsSupersetOf;

namespace {

class OutsideTexts : public PortadaTest {
protected:
    OutsideTexts()
    {
        EXPECT_TRUE(QImage(2, 2, QImage::Format_RGB32).save(files.path(u"named.png"_s)));
        m_named = std::make_unique<OpensOf>(files.path(u"named.png"_s));
        // No slash, so that files can have it in their names too.
        mark = u"<img src="_s + files.path(u"named.png"_s).replace(u"/"_s, u"&#47;"_s) + u"><b>R&D [*]"_s;
        writeLanguages();
        const QString roms = files.path(u"roms "_s + mark + u'/');
        const EmulatorEntry emulator { u"E "_s + mark, u"0"_s, roms, roms, files.path(u"e "_s + mark) };
        const std::vector<SystemEntry> systems { { u"S "_s + mark, { u"BIN"_s }, { emulator } } };
        files.writeCatalogue(systems);
        files.writeDatabase(systems);
        files.writeNotes({ { u"S "_s + mark, { { u"B "_s + mark + u".BIN"_s, u"D "_s + mark } } } });
        for (const QString &name : { u"a "_s, u"b "_s })
            files.writeSize(u"roms "_s + mark + u'/' + name + mark + u".bin"_s, 1024);
        files.makeDirectory(u"roms "_s + mark + u"/deeper "_s + mark);
        files.write(u"roms "_s + mark + u"/p "_s + mark + u".exe"_s, "x");
        files.write(u"readme.txt"_s, mark.toLatin1()); // beside the emulator
        renew();
        m_removals = std::make_unique<maintenance::Bajas>(*M, *portada);
        m_steps = std::make_unique<maintenance::Pasos>(*M, *portada);
        m_options = std::make_unique<options::Pantallas>(*M, *portada);
    }
    ~OutsideTexts() override
    {
        QToolTip::hideText();
        EXPECT_EQ(m_named->count(), 0);
    }

    // Every text of a form, by its eye, by the pointer that rests on it, and by the ear.
    void look(forms::Form &form)
    {
        SCOPED_TRACE(form.objectName().toStdString());
        form.grab();
        EXPECT_EQ(form.windowHandle()->title(), form.Caption());
        expectPlain(u"Caption"_s, form.Caption());
        expectHeard(form);
        const auto controls = form.findChildren<QWidget *>();
        for (QWidget *control : controls) {
            if (control->window() != &form || control->isHidden())
                continue;
            expectHeard(*control);
            rest(*control, control->rect().center());
            if (auto *label = qobject_cast<QLabel *>(control)) {
                EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
            }
            if (auto *list = dynamic_cast<forms::ListBox *>(control))
                lookAt(*list);
            if (auto *combo = dynamic_cast<forms::ComboBox *>(control))
                lookAt(*combo);
        }
        if (auto *menu = form.findChild<QMenu *>(u"Menu_Lista1"_s)) {
            for (const QAction *entry : menu->actions())
                expectPlain(entry->objectName(), entry->text());
        }
    }

    // Drives the modal form of this name: looks, acts, and closes it.
    void at(const QString &form, const std::function<void(forms::Form &)> &act = {})
    {
        atModal(form, [this, act](forms::Form &window) {
            look(window);
            if (act)
                act(window);
            for (const QString &way : { u"Flecha2"_s, u"Flecha1"_s, u"Aceptar2"_s }) {
                if (window.isVisible() && window.Control(way) && window.Control(way)->isVisible())
                    click(*window.Control(way));
            }
        });
    }

    void writeLanguages() const
    {
        QStringList lines;
        for (const core::ClaveDeTexto &key : core::ClavesDeTexto())
            lines << languageLine(key.nombre.toString(), key.nombre.toString() + u' ' + mark);
        for (const core::ClaveDePalabra &key : core::ClavesDePalabras())
            lines << languageLine(key.nombre.toString(), key.nombre.toString() + u' ' + mark);
        files.writeLines(u"LNG/ZB-ESP.LNG"_s, lines);
        files.writeLines(u"LNG/ZB-"_s + mark + u".LNG"_s, lines);
    }

    QString mark;
    QSet<QString> shown; // names of what has shown it

private:
    // Where it shows the mark it shows all of it, and nothing else that would be one.
    void expectPlain(const QString &name, QString text)
    {
        if (text.contains(mark, Qt::CaseInsensitive))
            shown << name;
        text.remove(mark, Qt::CaseInsensitive)
            .remove(u" -> "_s); // the sign between a system and its emulator
        for (const QChar sign : u"<>&*"_s)
            EXPECT_FALSE(text.contains(sign)) << name.toStdString() << ": " << text.toStdString();
    }

    void expectHeard(QWidget &widget)
    {
        QAccessibleInterface *told = QAccessible::queryAccessibleInterface(&widget);
        ASSERT_NE(told, nullptr);
        for (const QAccessible::Text kind :
            { QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help })
            expectPlain(widget.objectName(), told->text(kind));
    }

    void rest(QWidget &widget, const QPoint &point)
    {
        QToolTip::hideText();
        QHelpEvent event(QEvent::ToolTip, point, widget.mapToGlobal(point));
        QApplication::sendEvent(&widget, &event);
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (!window->isVisible() || !window->inherits("QTipLabel"))
                continue;
            window->grab();
            const QString text = QAccessible::queryAccessibleInterface(window)->text(QAccessible::Name);
            EXPECT_NE(text, QString());
            expectPlain(u"tip of "_s + widget.objectName() + widget.parentWidget()->objectName(), text);
        }
    }

    void lookAt(forms::ListBox &list)
    {
        QAccessibleInterface *told = QAccessible::queryAccessibleInterface(&list);
        for (int row = 0; row < list.ListCount(); ++row) {
            expectPlain(list.objectName(), told->child(row)->text(QAccessible::Name));
            list.scrollTo(list.model()->index(row, 0));
            const QPoint middle = list.visualRect(list.model()->index(row, 0)).center();
            rest(*list.viewport(), { 5, middle.y() });
            moveTo(*list.viewport(), { 5, middle.y() });
        }
    }

    void lookAt(forms::ComboBox &combo)
    {
        for (int row = 0; row < combo.ListCount(); ++row)
            expectPlain(combo.objectName(), combo.List(row));
        if (!combo.isEnabled())
            return;
        combo.showPopup();
        combo.view()->window()->grab();
        rest(*combo.view()->viewport(), { 5, 5 });
        combo.hidePopup();
    }

    std::unique_ptr<OpensOf> m_named;
    std::unique_ptr<maintenance::Bajas> m_removals;
    std::unique_ptr<maintenance::Pasos> m_steps;
    std::unique_ptr<options::Pantallas> m_options;
};

} // namespace

TEST_F(OutsideTexts, AreTextOnTheMainScreen)
{
    start();
    ASSERT_EQ(list().ListCount(), 2);
    for (const int row : { 0, 1 }) {
        clickRow(list(), row);
        look(*portada);
    }
    moveTo(*list().viewport(), { 5, 5 });
    EXPECT_TRUE(control(u"IMGDescripcionLarga"_s).isVisible());
    EXPECT_TRUE(popsUp(*portada->Menu_Lista1, [this] { clickRow(list(), 0, Qt::RightButton); }));
    click(control(u"BotonC2"_s));
    look(*portada);
    EXPECT_EQ(control<forms::TextArea>(u"Editor"_s).Text(), mark);
    click(control(u"FlechaE2"_s));
    click(control(u"Check1"_s)); // the database
    look(*portada);
    EXPECT_THAT(shown,
        IsSupersetOf({ u"Lista1"_s, u"Combo1"_s, u"Combo2"_s, u"TXT_Info"_s, u"TXT_Boton"_s,
            u"TXT_Describir"_s, u"Menu_Borrar"_s }));
}

TEST_F(OutsideTexts, AreTextInTheConfiguringOfAnEmulator)
{
    start();
    at(u"Configuracion1"_s, [this](forms::Form &first) {
        clickRow(controlOf<forms::ListBox>(first, u"Lista1"_s), 0);
        clickRow(controlOf<forms::ListBox>(first, u"Lista2"_s), 0);
        look(first);
        at(u"Configuracion2"_s, [this](forms::Form &second) {
            at(u"Examinar"_s);
            click(controlOf<QWidget>(second, u"Boton2"_s));
            host::changeDirectory(files.path());
        });
        click(controlOf<QWidget>(first, u"Aceptar2"_s));
        at(u"Caja"_s);
        click(controlOf<QWidget>(first, u"Boton_Mas2"_s));
    });
    click(control(u"Boton1b"_s));
    EXPECT_THAT(shown,
        IsSupersetOf({ u"Caption"_s, u"Lista1"_s, u"Lista2"_s, u"Texto5"_s, u"Texto2"_s,
            u"tip of Casilla1Configuracion2"_s, u"Boton1"_s, u"Directorios"_s,
            u"tip of qt_scrollarea_viewportDirectorios"_s, u"Texto1"_s }));
}

TEST_F(OutsideTexts, AreTextInTheOptions)
{
    start();
    for (const QString &button : { u"Boton2b"_s, u"Boton3b"_s, u"Boton4b"_s }) {
        at(button == u"Boton2b"_s        ? u"Opciones1"_s
                : button == u"Boton3b"_s ? u"Utilidades"_s
                                         : u"AcercaDe"_s,
            [this, button](forms::Form &form) {
                if (button != u"Boton2b"_s)
                    return;
                at(u"Opciones2"_s);
                click(controlOf<QWidget>(form, u"Boton_CFGAv"_s));
            });
        click(control(button));
    }
    EXPECT_THAT(shown,
        IsSupersetOf({ u"Combo2"_s, u"Boton_CFGAv"_s, u"Boton2"_s, u"TXT_InfoLNG"_s, u"TXT_Convertir"_s,
            u"Label4"_s, u"Logotipo"_s }));
}

TEST_F(OutsideTexts, AreTextInTheMessageBox)
{
    start();
    for (const int type : { 1, 2, 3, 4 }) {
        shown.clear();
        at(u"Caja"_s);
        portada->Mensaje(type, mark, mark, mark, mark, mark);
        EXPECT_THAT(shown,
            IsSupersetOf({ u"Caption"_s, type < 3 ? u"Texto1"_s : u"Texto2"_s,
                type == 3 ? u"TXT_Volver"_s : u"TXT_Aceptar"_s }));
        EXPECT_EQ(shown.contains(u"Casilla"_s), type == 1);
    }
}

TEST_F(OutsideTexts, AreTextInTheFirstRun)
{
    mark = u"<b>R&D [*]"_s; // the settings give back no name of a language with an equal sign
    writeLanguages();
    options::PrimeraInstalacion screen(*M);
    screen.show();
    for (int row = 0; row < screen.List1->ListCount(); ++row) {
        clickRow(*screen.List1, row);
        look(screen);
    }
    EXPECT_THAT(shown, IsSupersetOf({ u"List1"_s, u"Label6"_s }));
}
