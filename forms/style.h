// How the toolkit's own controls look: the common style's measures, painted in the program's colours, with no
// change under the pointer.
#pragma once

#include "forms/ownedge.h"

#include <QProxyStyle>

namespace forms {

class Style final : public QProxyStyle {
public:
    Style();

    using QProxyStyle::polish;
    void polish(QWidget *widget) override;

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
        QStyleHintReturn *returned) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
        const QWidget *widget) const override;
    QIcon standardIcon(
        StandardPixmap which, const QStyleOption *option, const QWidget *widget) const override;

    void drawItemText(QPainter *painter, const QRect &place, int flags, const QPalette &palette, bool enabled,
        const QString &text, QPalette::ColorRole role) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
        const QWidget *widget) const override;

private:
    void drawMark(
        ControlElement element, const QStyleOption &option, QPainter &painter, const QWidget *widget) const;

    OwnEdge m_edge; // of the desktop's boxes
};

} // namespace forms
