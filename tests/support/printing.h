// How the test programs show the toolkit's values.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QRect>
#include <QString>

#include <ostream>

inline void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray &bytes, std::ostream *out)
{
    *out << '"' << bytes.toPercentEncoding(" \\/.~=-_+'[](),;:&").toStdString() << '"';
}

inline void PrintTo(const QRect &rect, std::ostream *out)
{
    *out << rect.x() << ',' << rect.y() << ' ' << rect.width() << 'x' << rect.height();
}

inline void PrintTo(const QColor &colour, std::ostream *out)
{
    *out << colour.name(QColor::HexArgb).toStdString();
}
