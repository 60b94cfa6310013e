#include "opcionestest.h"

#include "core/palabras.h"
#include "core/textos.h"

#include "forms/commandbutton.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;

void PrintTo(const Box &box, std::ostream *out)
{
    *out << (box.warning ? "warning " : "notice ") << box.title.toStdString() << " / "
         << box.text.toStdString() << " / " << box.words.join(u',').toStdString();
}

OpcionesTest::OpcionesTest()
{
    writeLanguage(u"ZB-ESP.LNG"_s, u"S:"_s);
    writeLanguage(u"ZB-ENG.LNG"_s, u"E:"_s);
    m_screens = std::make_unique<options::Pantallas>(*M, *portada);
}

OpcionesTest::~OpcionesTest() = default;

void OpcionesTest::renewJoined()
{
    m_screens.reset();
    renew();
    m_screens = std::make_unique<options::Pantallas>(*M, *portada);
}

void OpcionesTest::writeLanguage(const QString &file, const QString &letter)
{
    QStringList lines;
    for (const core::ClaveDeTexto &key : core::ClavesDeTexto())
        lines << languageLine(key.nombre.toString(), letter + key.nombre.toString());
    for (const core::ClaveDePalabra &key : core::ClavesDePalabras())
        lines << languageLine(key.nombre.toString(), letter + key.nombre.toString());
    files.writeLines(u"LNG/"_s + file, lines);
}

void OpcionesTest::at(const QString &form, const std::function<void(forms::Form &)> &act)
{
    atModal(form, [act](forms::Form &shown) {
        act(shown);
        if (shown.isVisible())
            click(controlOf<QWidget>(shown, u"Flecha2"_s));
    });
}

void OpcionesTest::open(
    const QString &button, const QString &form, const std::function<void(forms::Form &)> &act)
{
    at(form, act);
    click(control(button));
}

void OpcionesTest::options(const std::function<void(forms::Form &)> &act)
{
    open(u"Boton2b"_s, u"Opciones1"_s, act);
}

void OpcionesTest::advanced(const std::function<void(forms::Form &)> &act)
{
    options([this, &act](forms::Form &form) {
        at(u"Opciones2"_s, act);
        click(controlOf<QWidget>(form, u"Boton_CFGAv"_s));
    });
}

std::optional<ProcessEnd> OpcionesTest::endOfOptions(const std::function<void(forms::Form &)> &act)
{
    std::optional<ProcessEnd> end;
    options([&](forms::Form &form) {
        end = endOf([&] { act(form); });
        form.Unload(); // the process would be gone
    });
    return end;
}

Box OpcionesTest::save(forms::Form &form)
{
    Box box;
    announceBox(box);
    click(controlOf<QWidget>(form, u"Disco1"_s));
    return box;
}

void OpcionesTest::announceBox(Box &box)
{
    atModal(u"Caja"_s, [&box](forms::Form &form) {
        auto &accept = controlOf<QWidget>(form, u"Aceptar2"_s);
        box.warning = accept.isHidden();
        box.title = form.Caption();
        box.text = captionOf(form, u"Texto2"_s);
        box.words = { captionOf(form, u"TXT_Aceptar"_s), captionOf(form, u"TXT_Volver"_s) };
        click(box.warning ? controlOf<QWidget>(form, u"Flecha2"_s) : accept);
    });
}

forms::ComboBox &OpcionesTest::comboOf(const forms::Form &form, const QString &name)
{
    return controlOf<forms::ComboBox>(form, name);
}

QString OpcionesTest::captionOf(const forms::Form &form, const QString &label)
{
    return controlOf<forms::Label>(form, label).Caption();
}

QStringList OpcionesTest::textsOf(const forms::Form &form)
{
    QStringList texts { u"caption "_s + form.Caption() };
    const auto add = [&texts](const QWidget &control, const QString &text) {
        if (!text.isEmpty())
            texts << control.objectName() + u' ' + text;
    };
    for (const QWidget *control : form.findChildren<QWidget *>()) {
        add(*control, control->accessibleName());
        if (const auto *label = dynamic_cast<const forms::Label *>(control))
            add(*control, label->Caption());
        if (const auto *button = dynamic_cast<const forms::CommandButton *>(control))
            add(*control, button->Caption());
        const auto *combo = dynamic_cast<const forms::ComboBox *>(control);
        for (int i = 0; combo && i < combo->ListCount(); ++i)
            add(*control, combo->List(i));
    }
    for (const QAction *entry : form.findChildren<QAction *>())
        texts << entry->objectName() + u' ' + entry->text();
    return texts;
}

void OpcionesTest::expectPlaces(const forms::Form &form, const std::vector<Stands> &controls)
{
    for (const Stands &expected : controls)
        EXPECT_EQ(controlOf<QWidget>(form, expected.name).geometry(), expected.place)
            << expected.name.toStdString();
}

void OpcionesTest::expectTiled(forms::Form &form)
{
    constexpr int Bare = 7; // no control lies so far to the left; the word under the arrow grows
    const QImage tile = portada->Teja().imagen.toImage().convertToFormat(QImage::Format_RGB32);
    ASSERT_FALSE(tile.isNull());
    const QImage shown = pictureOf(form);
    QSet<QRgb> colours;
    int different = 0;
    for (int y = 0; y < controlOf<QWidget>(form, u"Flecha2"_s).y(); ++y) {
        for (int x = 0; x < Bare; ++x) {
            const QRgb expected = tile.pixel(x % tile.width(), y % tile.height());
            colours << expected;
            different += shown.pixel(x, y) == expected ? 0 : 1;
        }
    }
    EXPECT_EQ(different, 0) << form.objectName().toStdString();
    EXPECT_GT(colours.size(), 1);
}

std::vector<qint64> OpcionesTest::stampOfSettings()
{
    struct stat status { };
    EXPECT_EQ(stat(files.path(u"Zembro.cfg"_s).toUtf8().constData(), &status), 0);
    return { qint64(status.st_ino), status.st_mtim.tv_sec, status.st_mtim.tv_nsec };
}

Box OpcionesTest::warningOf(const QString &message)
{
    Box box = noticeOf(message);
    box.warning = true;
    return box;
}

Box OpcionesTest::noticeOf(const QString &message)
{
    return { u"S:"_s + message + u'0', u"S:"_s + message + u'1', { u"S:TXT_Aceptar"_s, u"S:TXT_Volver"_s },
        false };
}
