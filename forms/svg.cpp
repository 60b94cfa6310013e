#include "forms/svg.h"

#include <QPainter>
#include <QSvgRenderer>

namespace forms {

QSize pixelsOf(const QSize &size, qreal scale)
{
    return (QSizeF(size) * scale).toSize();
}

QImage renderSvg(const QString &file, const QSize &pixels)
{
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(file).render(&painter, QRectF(image.rect()));
    return image;
}

} // namespace forms
