#include "mensajetest.h"

#include <QImage>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Ten pixels wide, six high: red above, green below, and a blue dot in the top left corner.
dialogs::Teja tile()
{
    QImage image(10, 6, QImage::Format_RGB32);
    image.fill(Qt::red);
    for (int y = 3; y < 6; ++y) {
        for (int x = 0; x < 10; ++x)
            image.setPixelColor(x, y, Qt::green);
    }
    image.setPixelColor(0, 0, Qt::blue);
    return { QPixmap::fromImage(image), 150, 90 };
}

} // namespace

MensajeTest::MensajeTest()
    : owner(u"Owner"_s, 6165, 5715, forms::Form::Border::None)
    , box(
          M, [this] { return &owner; }, &tile)
{
    owner.ShowModeless(nullptr);
    EXPECT_TRUE(waitUntil([this] { return owner.isActiveWindow(); }));
}

void MensajeTest::show(int type, std::function<void(forms::Form &)> act)
{
    show(type, u"Mensaje"_s, std::move(act));
}

void MensajeTest::show(int type, const QString &message, std::function<void(forms::Form &)> act)
{
    atModal(u"Caja"_s, std::move(act));
    box.Mensaje(type, message, u"Título"_s, u"Sí"_s, u"No"_s, u"entrada"_s);
}

forms::Label &labelOf(const forms::Form &form, const QString &name)
{
    return controlOf<forms::Label>(form, name);
}

forms::PictureButton &buttonOf(const forms::Form &form, const QString &name)
{
    return controlOf<forms::PictureButton>(form, name);
}
