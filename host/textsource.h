// Free-format reading of a text: whole lines, or fields that end at a comma or a line end.
#pragma once

#include <QString>

namespace host {

class TextSource {
public:
    explicit TextSource(QString text);

    bool atEnd() const { return m_position >= m_text.size(); }

    // The next line without its end. CR LF and LF end a line, and so does the end of the text. Fails with 62
    // at the end.
    QString readLine();

    // Passes the lines up to the first that begins so, and that one; all of them if there is none, and then
    // the answer is no.
    bool passLine(QStringView beginning);

    // The next field. Leading blanks are skipped; a field that begins with a double quote runs to the next
    // one, and what follows up to the next comma or line end is dropped; any other runs to the next comma or
    // line end, without its trailing blanks. Fails with 62 at the end.
    QString readField();

    // What hasn't been read yet.
    QStringView rest() const { return QStringView(m_text).sliced(m_position); }

    // The same as a text of its own, which at the beginning costs no copy.
    QString restOfText() const { return m_text.mid(m_position); }

private:
    QString readQuotedField();
    qsizetype fieldEnd(qsizetype from) const; // index of the next comma or line end, or the size of the text
    QStringView takeUntil(
        qsizetype end); // up to the delimiter at this index, and behind it; -1: all the rest

    QString m_text;
    qsizetype m_position = 0;
};

} // namespace host
