#include "forms/clippedtext.h"

#include <QFontMetricsF>
#include <QStringList>
#include <QTextLayout>
#include <QTextOption>

namespace forms {

namespace {

constexpr QChar Ellipsis = u'…';

// What stands from here to the end of its paragraph, marked where the text goes on behind it.
QString shortened(const QString &text, int start, const QFontMetricsF &metrics, int width)
{
    const qsizetype end = text.indexOf(QChar::LineSeparator, start);
    QString rest = text.mid(start, end < 0 ? -1 : end - start);
    if (end >= 0 && metrics.horizontalAdvance(rest) <= width)
        rest += Ellipsis;
    return metrics.elidedText(rest, Qt::ElideRight, width);
}

} // namespace

std::optional<QString> clippedText(const QString &text, const QFont &font, const QSize &room)
{
    const QString whole = QString(text).replace(u'\n', QChar::LineSeparator);
    const QFontMetricsF metrics(font);
    QTextLayout layout(whole, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WordWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    qreal bottom = 0;
    int lastStart = 0;
    bool cut = false;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(room.width());
        bottom += line.height() + (lines.isEmpty() ? 0 : metrics.leading());
        cut = !lines.isEmpty() && bottom > room.height();
        if (cut)
            break;
        lastStart = line.textStart();
        lines += whole.mid(lastStart, line.textLength()).remove(QChar::LineSeparator).trimmed();
    }
    layout.endLayout();
    if (!cut)
        return {};
    lines.last() = shortened(whole, lastStart, metrics, room.width());
    return lines.join(u'\n');
}

} // namespace forms
