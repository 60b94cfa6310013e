#include "configuraciontest.h"

#include "core/textos.h"

using namespace Qt::StringLiterals;

namespace {

void expectWords(const forms::Form &box, const QString &key, const QString &label, const QString &text)
{
    const auto caption = [&box](const QString &name) { return controlOf<forms::Label>(box, name).Caption(); };
    EXPECT_EQ(box.Caption(), key + u'0');
    EXPECT_EQ(caption(label), text);
    EXPECT_EQ(caption(u"TXT_Aceptar"_s), u"TXT_Aceptar"_s);
    EXPECT_EQ(caption(u"TXT_Volver"_s), u"TXT_Volver"_s);
}

} // namespace

ConfiguracionTest::ConfiguracionTest()
{
    QStringList lines;
    for (const core::ClaveDeTexto &key : core::ClavesDeTexto())
        lines += languageLine(key.nombre.toString(), key.nombre.toString());
    files.writeLines(u"LNG/ZB-ESP.LNG"_s, lines);
    database =
        "' "
        "all\r\n-Alfa\r\nWEB1=http://alfa\r\n*.ZIP\r\n*.BIN\r\n'\r\n+A2\r\nWEB2=http://a2\r\n+a1\r\nWEB2=\r\n"
        + Closing + "-beta\r\nWEB1=\r\n*.ROM\r\n'\r\n+B1\r\nWEB2=http://b1\r\n" + Closing + "[EOF]\r\n";
    catalogue = "' mine\r\n[EOF]\r\n";
    notes = "' notes\r\nAlfa\r\nGAME.ZIP,\"A game\"\r\n'\r\nbeta\r\n'\r\n[EOF]\r\nParametros "
            "especificos\r\n'\r\nfin\r\n"
            "fin,\"fin\"\r\n";
}

void ConfiguracionTest::begin()
{
    files.write(u"Zembro.sye"_s, database);
    files.write(u"Zembro.emu"_s, catalogue);
    files.write(u"Zembro.rom"_s, notes);
    m_settings = files.read(u"Zembro.cfg"_s);
    m_removals = std::make_unique<maintenance::Bajas>(*M, *portada);
    m_steps = std::make_unique<maintenance::Pasos>(*M, *portada);
    start();
}

void ConfiguracionTest::configure(const std::function<void(forms::Form &)> &act)
{
    atModal(u"Configuracion1"_s, [act](forms::Form &form) {
        act(form);
        if (form.isVisible())
            click(controlOf<QWidget>(form, u"Flecha2"_s));
    });
    click(control(u"Boton1b"_s));
}

void ConfiguracionTest::configurePair(
    const QString &system, const QString &emulator, const std::function<void(forms::Form &)> &act)
{
    configure([=, this](forms::Form &first) {
        select(controlOf<forms::ListBox>(first, u"Lista1"_s), system);
        select(controlOf<forms::ListBox>(first, u"Lista2"_s), emulator);
        atModal(u"Configuracion2"_s, [act](forms::Form &second) {
            act(second);
            if (second.isVisible())
                click(controlOf<QWidget>(second, u"Flecha1"_s));
        });
        click(controlOf<QWidget>(first, u"Aceptar2"_s));
    });
}

std::optional<ProcessEnd> ConfiguracionTest::endOfConfiguring(const std::function<void(forms::Form &)> &act)
{
    std::optional<ProcessEnd> end;
    configure([&](forms::Form &form) { end = endOf([&] { act(form); }); });
    return end;
}

void ConfiguracionTest::atBox(
    const QString &key, const QString &label, const QString &text, const QString &button)
{
    atModal(u"Caja"_s, [=](forms::Form &box) {
        expectWords(box, key, label, text);
        click(controlOf<QWidget>(box, button));
    });
}

void ConfiguracionTest::atInput(const QString &key, const QString &offer, const QString &typed, bool accepted)
{
    atModal(u"Caja"_s, [=](forms::Form &box) {
        auto &input = controlOf<forms::TextBox>(box, u"Casilla"_s);
        expectWords(box, key, u"Texto1"_s, key + u'1');
        EXPECT_EQ(input.Text(), offer);
        write(box, u"Casilla"_s, typed);
        click(controlOf<QWidget>(box, accepted ? u"Aceptar2"_s : u"Flecha2"_s));
    });
}

void ConfiguracionTest::atQuestion(const QString &key, const QString &name, bool accepted)
{
    atBox(key, u"Texto1"_s, key + u'1' + name + u'?', accepted ? u"Aceptar2"_s : u"Flecha2"_s);
}

void ConfiguracionTest::atWarning(const QString &key)
{
    atBox(key, u"Texto2"_s, key + u'1', u"Flecha2"_s);
}

void ConfiguracionTest::atNotice(const QString &key)
{
    atBox(key, u"Texto2"_s, key + u'1', u"Aceptar2"_s);
}

void ConfiguracionTest::atNotWritten()
{
    M->Palabras.Zem_SoloLeer0 = u"Zem_SoloLeer0"_s;
    M->Palabras.Zem_SoloLeer1 = u"Zem_SoloLeer1"_s;
    atWarning(u"Zem_SoloLeer"_s);
}

void ConfiguracionTest::expectFiles(
    const QByteArray &newDatabase, const QByteArray &newCatalogue, const QByteArray &newNotes)
{
    EXPECT_EQ(files.read(u"Zembro.sye"_s), newDatabase);
    EXPECT_EQ(files.read(u"Zembro.emu"_s), newCatalogue);
    EXPECT_EQ(files.read(u"Zembro.rom"_s), newNotes);
    EXPECT_EQ(files.read(u"Zembro.cfg"_s), m_settings);
    EXPECT_FALSE(files.exists(u"Zembro.tmp"_s));
}

void ConfiguracionTest::expectFilesUnchanged()
{
    expectFiles(database, catalogue, notes);
}

void ConfiguracionTest::write(forms::Form &form, const QString &box, const QString &text)
{
    auto &input = controlOf<forms::TextBox>(form, box);
    click(input);
    strike(form, Qt::Key_A, Qt::ControlModifier);
    strike(form, Qt::Key_Delete);
    type(form, text);
    EXPECT_EQ(input.Text(), text);
}

void ConfiguracionTest::select(forms::ListBox &list, const QString &text)
{
    const QStringList entries = entriesOf(list);
    ASSERT_TRUE(entries.contains(text)) << text.toStdString();
    clickRow(list, static_cast<int>(entries.indexOf(text)));
}

QStringList ConfiguracionTest::entriesOf(const forms::ListBox &list)
{
    QStringList entries;
    for (int i = 0; i < list.ListCount(); ++i)
        entries += list.List(i);
    return entries;
}

QString ConfiguracionTest::captionOf(const forms::Form &form, const QString &label)
{
    return controlOf<forms::Label>(form, label).Caption();
}
