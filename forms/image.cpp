#include "forms/image.h"

#include "forms/pictures.h"

#include <QPainter>

namespace forms {

Image::Image(QWidget *parent)
    : Control(parent)
{
    setMouseTracking(true);
}

void Image::SetPicture(const QPixmap &picture)
{
    if (m_artwork.isEmpty() && picture.cacheKey() == m_picture.cacheKey())
        return;
    m_picture = picture;
    m_artwork.clear();
    update();
}

void Image::SetArtwork(const QString &name)
{
    if (name == m_artwork)
        return;
    m_picture = {};
    m_artwork = name;
    update();
}

void Image::SetBorder(bool single)
{
    m_border = single;
    update();
}

void Image::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!m_artwork.isEmpty())
        painter.drawPixmap(rect(), artwork(m_artwork, size(), devicePixelRatioF()));
    else if (!m_picture.isNull())
        painter.drawPixmap(rect(), m_picture);
    if (m_border) {
        painter.setPen(Qt::black);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

} // namespace forms
