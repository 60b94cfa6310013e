// One picture of all of the toolkit's controls together, in their states, against the one in docs/pictures.
// It is taken at the scale of QT_SCALE_FACTOR.

#include "forms/application.h"
#include "forms/checks.h"
#include "forms/combobox.h"
#include "forms/commandbutton.h"
#include "forms/label.h"
#include "forms/listbox.h"
#include "forms/pieces.h"
#include "forms/pictures.h"
#include "forms/popupmenu.h"
#include "forms/textbox.h"

#include "host/desktopquestions.h"

#include "tests/support/keptpictures.h"

#include <QAbstractItemView>
#include <QDialog>
#include <QMessageBox>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <QToolTip>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize Size(640, 500);

// Sits on a sheet like that of the screens; everything is put there by its place in pixels.
class Sheet {
public:
    Sheet()
        : m_picture(Size * scale())
    {
        m_picture.setDevicePixelRatio(scale());
        QPainter painter(&m_picture);
        const QPixmap tile = forms::artwork(u"Fondo"_s, { 197, 197 }, scale());
        for (int y = 0; y < Size.height(); y += 197) {
            for (int x = 0; x < Size.width(); x += 197)
                painter.drawPixmap(x, y, tile);
        }
    }

    void put(QWidget &widget, int x, int y) { QPainter(&m_picture).drawPixmap(x, y, widget.grab()); }

    // A window with a line around it, as a window manager would draw one.
    void putWindow(const QPixmap &picture, int x, int y)
    {
        const QRect place(QPoint(x, y), picture.deviceIndependentSize().toSize());
        QPainter painter(&m_picture);
        painter.drawPixmap(place.topLeft(), picture);
        forms::drawFrame(painter, place.adjusted(-1, -1, 1, 1), QColor(0, 128, 128));
    }

    QImage picture() const
    {
        QImage pixels = m_picture.toImage();
        pixels.setDevicePixelRatio(1);
        return pixels;
    }

private:
    static qreal scale() { return qApp->devicePixelRatio(); }
    QPixmap m_picture;
};

// What the box that this opens looks like; it is closed then.
QPixmap box(const std::function<void()> &open)
{
    QPixmap picture;
    QTimer::singleShot(200, [&picture] {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        picture = dialog->grab();
        dialog->reject();
    });
    open();
    return picture;
}

void fill(QStringList entries, const std::function<void(const QString &)> &add)
{
    std::for_each(entries.cbegin(), entries.cend(), add);
}

const QStringList Systems { u"Amstrad CPC"_s, u"Arcade"_s, u"Atari 2600"_s, u"Game Boy"_s, u"MSX"_s,
    u"Sega Master System"_s, u"Spectrum"_s, u"Super Nintendo"_s, u"Vectrex"_s };

class Controls final : public QWidget {
public:
    Controls()
    {
        setAttribute(Qt::WA_NoSystemBackground);
        resize(Size);
        buttons();
        marks();
        boxes();
        combos();
        lists();
    }

    QList<QWidget *> focused; // those that are to be drawn with the focus

private:
    template <class Kind> Kind *place(Kind *control, int x, int y, int width, int height)
    {
        control->setGeometry(x, y, width, height);
        return control;
    }

    void buttons()
    {
        auto *rest = place(new forms::CommandButton(this), 15, 30, 65, 20);
        auto *pressed = place(new forms::CommandButton(this), 88, 30, 65, 20);
        auto *focus = place(new forms::CommandButton(this), 161, 30, 65, 20);
        auto *off = place(new forms::CommandButton(this), 234, 30, 65, 20);
        for (forms::CommandButton *button : { rest, pressed, focus, off })
            button->SetCaption(u"Examinar..."_s);
        pressed->setDown(true);
        off->setEnabled(false);
        focused += focus;
        int x = 307;
        for (const QString &letter : { u"+"_s, u"-"_s, u"E"_s, u"W"_s }) {
            auto *small = place(new forms::CommandButton(this), x, 32, 16, 16);
            small->SetCaption(letter);
            x += 17;
        }
    }

    void marks()
    {
        for (int i = 0; i < 5; ++i) {
            auto *check = place(new forms::CheckBox(this), 15 + 24 * i, 75, 17, 17);
            auto *option = place(new forms::OptionButton(this), 165 + 24 * i, 75, 17, 17);
            option->setAutoExclusive(false);
            check->SetValue(i % 2);
            option->SetValue(i % 2);
            check->setEnabled(i < 4);
            option->setEnabled(i < 4);
            if (i == 2 || i == 3)
                focused << check << option;
        }
    }

    void boxes()
    {
        place(new forms::TextBox(this), 15, 120, 145, 19)->SetText(u"/home/ana/juegos"_s);
        auto *focus = place(new forms::TextBox(this), 168, 120, 145, 19);
        focus->SetText(u"-fullscreen"_s);
        focused += focus;
        auto *area = place(new forms::TextArea(this), 15, 147, 298, 60);
        area->SetColours(QColor(0, 0, 192), QColor(192, 192, 192));
        area->SetText(u"Un texto de la consola, en sus colores.\nSegunda línea\nTercera\nCuarta\nQuinta"_s);
    }

    void combos()
    {
        for (int i = 0; i < 3; ++i) {
            auto *combo = place(new forms::ComboBox(this), 15 + 152 * (i % 2), 235 + 28 * (i / 2), 145, 22);
            fill(Systems, [combo](const QString &name) { combo->AddItem(name); });
            combo->SetListIndex(2);
            combo->setEnabled(i < 2);
            if (i == 1)
                focused += combo;
        }
    }

    void lists()
    {
        auto *list = place(new forms::ListBox(this), 330, 75, 130, 132);
        list->SetHorizontalBar();
        fill(Systems, [list](const QString &name) { list->AddItem(name); });
        list->AddItem(u"Una noche entre las estrellas (versión larga)"_s);
        list->SetListIndex(2);
        focused += list;
    }
};

void putFocused(Sheet &sheet, Controls &controls)
{
    for (QWidget *control : controls.focused) {
        control->setFocus();
        QApplication::processEvents();
        sheet.put(*control, control->x(), control->y());
    }
}

void putPopups(Sheet &sheet)
{
    QWidget window;
    window.resize(Size);
    forms::ComboBox combo(&window);
    combo.setGeometry(0, 0, 145, 22);
    fill(Systems + QStringList { u"Virtual Boy"_s, u"WonderSwan"_s },
        [&combo](const QString &name) { combo.AddItem(name); });
    combo.SetListIndex(3);
    window.show();
    combo.showPopup();
    QApplication::processEvents();
    sheet.put(combo, 475, 75);
    sheet.put(*combo.view()->parentWidget(), 475, 97);
    combo.hidePopup();

    forms::PopupMenu menu(u"Menu"_s, &window);
    menu.AddEntry(u"a"_s, u"Poner una &descripción"_s);
    QAction *chosen = menu.AddEntry(u"b"_s, u"&Borrar la ROM"_s)->action();
    menu.AddEntry(u"c"_s, u"&Añadir parámetros específicos"_s);
    menu.addSeparator();
    QAction *marked = menu.addAction(u"Zoom x2\tCtrl+2"_s);
    marked->setCheckable(true);
    marked->setChecked(true);
    menu.addAction(u"OFF\tCtrl+0"_s)->setEnabled(false);
    menu.addMenu(u"Más"_s)->addAction(u"Nada"_s);
    menu.setActiveAction(chosen);
    menu.popup({ 0, 0 });
    QApplication::processEvents();
    sheet.put(menu, 15, 300);
    menu.close();

    QToolTip::showText({ 50, 50 }, u"Ocultar el sistema (Supr)"_s, &window);
    QApplication::processEvents();
    for (QWidget *tip : QApplication::topLevelWidgets()) {
        if (tip->inherits("QTipLabel"))
            sheet.put(*tip, 475, 32);
    }
    QToolTip::hideText();
}

void putBoxes(Sheet &sheet)
{
    host::DesktopQuestions questions;
    host::setAnswerWords({ u"Sí"_s, u"No"_s, u"Aceptar"_s, u"Cancelar"_s });
    sheet.putWindow(box([&] { questions.askYesNo(u"Borrar"_s, u"¿Borrar prisma.bin?"_s); }), 250, 300);
    sheet.putWindow(box([&] { questions.askText(u"Clave del archivo:"_s); }), 250, 405);
    sheet.putWindow(box([&] { questions.tell(u"Orden"_s, u"stella prisma.bin"_s); }), 460, 405);
    // As a fatal end shows it, which no picture outlives.
    sheet.putWindow(box([] {
        QMessageBox failure(QMessageBox::Critical, u"Fallo"_s, u"No se pudo leer."_s, QMessageBox::Ok);
        failure.exec();
    }),
        460, 300);
}

} // namespace

TEST(Controls, LookAsInThePictureOfThemAll)
{
    QApplication::setCursorFlashTime(0); // it blinks
    Controls controls;
    controls.show();
    QApplication::processEvents();
    if (QWidget *first = QApplication::focusWidget())
        first->clearFocus();
    Sheet sheet;
    sheet.put(controls, 0, 0);
    putFocused(sheet, controls);
    putPopups(sheet);
    putBoxes(sheet);
    const QString name = u"controls-%1x"_s.arg(qApp->devicePixelRatio());
    expectAsKept(sheet.picture(), name, QStringLiteral(KEPT_PICTURES), QStringLiteral(BUILD_DIRECTORY));
}
