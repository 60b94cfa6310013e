#include "forms/messageicons.h"

#include "forms/units.h"

#include <QIconEngine>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

constexpr qreal Side = 32; // of the square that the signs are drawn in

struct Look {
    QRgb edge;
    QRgb top;
    QRgb bottom;
    QRgb letters;
    const char16_t *letter;
};

Look lookOf(MessageSign sign)
{
    constexpr QRgb SignLetter = qRgb(192, 255, 192);
    constexpr QRgb SignRim = qRgb(48, 200, 200);
    switch (sign) {
    case MessageSign::Warning:
        return { qRgb(255, 200, 80), qRgb(255, 190, 80), qRgb(214, 122, 16), qRgb(26, 12, 2), u"!" };
    case MessageSign::Failure:
        return { qRgb(255, 150, 140), qRgb(216, 64, 56), qRgb(128, 16, 24), qRgb(255, 255, 255), u"" };
    case MessageSign::Information:
        return { SignRim, qRgb(74, 93, 166), qRgb(27, 38, 84), SignLetter, u"i" };
    case MessageSign::Question:
        break;
    }
    return { SignRim, qRgb(74, 93, 166), qRgb(27, 38, 84), SignLetter, u"?" };
}

QPainterPath outlineOf(MessageSign sign)
{
    QPainterPath path;
    if (sign != MessageSign::Warning) {
        path.addEllipse(QPointF(Side / 2, Side / 2), 14, 14);
        return path;
    }
    path.moveTo(16, 3);
    path.lineTo(30, 28);
    path.lineTo(2, 28);
    path.closeSubpath();
    return path;
}

QPainterPath letterOf(const QString &letter, qreal middle)
{
    QFont font = arial(8.25, true);
    font.setPixelSize(20);
    QPainterPath path;
    path.addText(0, 0, font, letter);
    const QRectF place = path.boundingRect();
    return path.translated(Side / 2 - place.center().x(), middle - place.center().y());
}

class Engine final : public QIconEngine {
public:
    explicit Engine(MessageSign sign)
        : m_sign(sign)
    {
    }

    QIconEngine *clone() const override { return new Engine(m_sign); }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }

    void paint(QPainter *painter, const QRect &place, QIcon::Mode, QIcon::State) override
    {
        const Look look = lookOf(m_sign);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(place.topLeft());
        painter->scale(place.width() / Side, place.height() / Side);
        QLinearGradient face(0, 2, 0, Side - 2);
        face.setColorAt(0, QColor(look.top));
        face.setColorAt(1, QColor(look.bottom));
        painter->setPen(QPen(QColor(look.edge), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->setBrush(face);
        painter->drawPath(outlineOf(m_sign));
        drawLetter(*painter, look);
        painter->restore();
    }

private:
    void drawLetter(QPainter &painter, const Look &look) const
    {
        if (m_sign == MessageSign::Failure) {
            painter.setPen(QPen(QColor(look.letters), 3.5, Qt::SolidLine, Qt::RoundCap));
            painter.drawLine(QPointF(11, 11), QPointF(21, 21));
            painter.drawLine(QPointF(21, 11), QPointF(11, 21));
            return;
        }
        const qreal middle = m_sign == MessageSign::Warning ? 19 : Side / 2;
        painter.fillPath(letterOf(QString::fromUtf16(look.letter), middle), QColor(look.letters));
    }

    MessageSign m_sign;
};

} // namespace

QIcon messageIcon(MessageSign sign)
{
    return QIcon(new Engine(sign));
}

} // namespace forms
