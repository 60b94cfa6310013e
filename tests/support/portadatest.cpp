#include "tests/support/portadatest.h"

#include "core/arranque.h"

#include "forms/guard.h"

#include <QApplication>

namespace {

QColor middleOf(const forms::Image &image)
{
    const QImage picture = image.Picture().toImage();
    return picture.isNull() ? QColor() : picture.pixelColor(picture.width() / 2, picture.height() / 2);
}

} // namespace

PortadaTest::PortadaTest()
{
    renew();
}

void PortadaTest::renew()
{
    portada.reset();
    M = std::make_unique<core::Modulo>();
    portada = std::make_unique<mainscreen::Portada>(*M);
    portada->MuestraPrimeraInstalacion = [this] { firstRunShown = true; };
}

std::optional<ProcessEnd> PortadaTest::load()
{
    bool starting = true;
    forms::setFatalWords([&starting](const host::Failure &failure) {
        return forms::FatalWords { core::TituloDeFallo, core::TextoDeFallo(failure, starting) };
    });
    const std::optional<ProcessEnd> end = endOf([this] { forms::guarded([this] { portada->Carga(); }); });
    forms::setFatalWords([](const host::Failure &failure) {
        return forms::FatalWords { core::TituloDeFallo, core::TextoDeFallo(failure, false) };
    });
    return end;
}

void PortadaTest::start()
{
    const std::optional<ProcessEnd> end = load();
    ASSERT_FALSE(end) << end->text.toStdString();
    ASSERT_TRUE(waitUntil([this] { return QApplication::activeWindow() == portada.get(); }));
}

QString PortadaTest::caption(const QString &label)
{
    return control<forms::Label>(label).Caption();
}

QColor PortadaTest::colour(const QString &label)
{
    return control<forms::Label>(label).ForeColor();
}

QStringList PortadaTest::listed()
{
    QStringList texts;
    for (int i = 0; i < list().ListCount(); ++i)
        texts << list().List(i);
    return texts;
}

QStringList PortadaTest::entries(const forms::ComboBox &combo) const
{
    QStringList texts;
    for (int i = 0; i < combo.ListCount(); ++i)
        texts << combo.List(i);
    return texts;
}

QString PortadaTest::focused() const
{
    const QWidget *widget = portada->focusWidget();
    return widget ? widget->objectName() : QString();
}

QColor PortadaTest::capture()
{
    return middleOf(control<forms::Image>(QStringLiteral("Graf_Imagen")));
}

QColor PortadaTest::zoomed()
{
    return middleOf(controlOf<forms::Image>(portada->Aumento, QStringLiteral("Imagen")));
}
