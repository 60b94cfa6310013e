#include "forms/plaintext.h"

#include "forms/shownpart.h"

#include <QWidget>

using namespace Qt::StringLiterals;

namespace forms {

QString asTip(const QString &text)
{
    if (text.isEmpty())
        return {};
    const QString letters = shownPart(text).toHtmlEscaped().replace(u'\n', u"<br>"_s);
    return u"<p style=\"white-space:pre\">"_s + letters + u"</p>"_s;
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
