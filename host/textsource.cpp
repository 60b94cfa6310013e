#include "host/textsource.h"

#include "host/failure.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace host {

TextSource::TextSource(QString text)
    : m_text(std::move(text))
{
}

QString TextSource::readLine()
{
    if (atEnd())
        throw Failure(PastEndOfFile, u"read a line past the end"_s);
    return takeUntil(m_text.indexOf(u'\n', m_position)).toString();
}

bool TextSource::passLine(QStringView beginning)
{
    for (qsizetype from = m_position;;) {
        const qsizetype place = m_text.indexOf(beginning, from);
        if (place < 0) {
            m_position = m_text.size();
            return false;
        }
        if (place == m_position || m_text.at(place - 1) == u'\n') {
            takeUntil(m_text.indexOf(u'\n', place));
            return true;
        }
        from = place + 1;
    }
}

QString TextSource::readField()
{
    if (atEnd())
        throw Failure(PastEndOfFile, u"read a field past the end"_s);
    while (!atEnd() && m_text.at(m_position) == u' ')
        ++m_position;
    if (!atEnd() && m_text.at(m_position) == u'"')
        return readQuotedField();
    QStringView field = takeUntil(fieldEnd(m_position));
    while (field.endsWith(u' '))
        field.chop(1);
    return field.toString();
}

QString TextSource::readQuotedField()
{
    const qsizetype begin = m_position + 1;
    const qsizetype quote = m_text.indexOf(u'"', begin);
    const qsizetype end = quote < 0 ? m_text.size() : quote;
    const QString field = m_text.sliced(begin, end - begin);
    takeUntil(fieldEnd(end));
    return field;
}

qsizetype TextSource::fieldEnd(qsizetype from) const
{
    const auto end =
        std::find_if(m_text.begin() + from, m_text.end(), [](QChar c) { return c == u',' || c == u'\n'; });
    return end - m_text.begin();
}

QStringView TextSource::takeUntil(qsizetype end)
{
    const bool endsHere = end >= 0 && end < m_text.size();
    QStringView piece = QStringView(m_text).sliced(m_position, (endsHere ? end : m_text.size()) - m_position);
    m_position += piece.size() + (endsHere ? 1 : 0);
    if (endsHere && m_text.at(end) == u'\n' && piece.endsWith(u'\r'))
        piece.chop(1);
    return piece;
}

} // namespace host
