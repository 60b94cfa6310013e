#include "forms/plaintext.h"

#include "forms/shownpart.h"

#include <QWidget>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

QString tip(const QString &text, const QString &blanks)
{
    if (text.isEmpty())
        return {};
    const QString letters = shownPart(text).toHtmlEscaped().replace(u'\n', u"<br>"_s);
    return u"<p style=\"white-space:"_s + blanks + u"\">"_s + letters + u"</p>"_s;
}

} // namespace

QString asTip(const QString &text)
{
    return tip(text, u"pre"_s);
}

QString asTipOfLines(const QString &text)
{
    constexpr qsizetype Line = 80; // letters that stand in a line on any screen
    return tip(text, text.size() > Line ? u"pre-wrap"_s : u"pre"_s);
}

QString asCaption(const QString &text)
{
    return QString(text).replace(u'&', u"&&"_s);
}

QString asTitle(const QString &text)
{
    constexpr qsizetype Longest = 512;
    QString title = beginningOf(text, Longest);
    if (title.size() < text.size())
        title += u'…';
    return title.replace(u"[*]"_s, u"[*][*]"_s);
}

void SetTip(QWidget &control, const QString &text)
{
    control.setToolTip(asTip(text));
    control.setAccessibleDescription(text);
}

void SetTipOfName(QWidget &control, const QString &key)
{
    const QString name = control.accessibleName();
    control.setToolTip(asTip(key.isEmpty() ? name : u"%1 (%2)"_s.arg(name, key)));
    control.setAccessibleDescription(key);
}

} // namespace forms
