#include "host/shortnames.h"

#include "host/letters.h"

#include <QSet>

#include <algorithm>
#include <map>

namespace host {

namespace {

QString numbered(const QString &form, int number)
{
    const qsizetype point = form.lastIndexOf(u'.');
    const QString mark = u'~' + QString::number(number);
    return point < 0 ? form + mark : form.first(point) + mark + form.sliced(point);
}

class Assignment {
public:
    explicit Assignment(const QStringList &names);

    QHash<QString, QString> forms;

private:
    void givePlainForms();
    void giveNumberedForms();
    bool mayHavePlainForm(const QString &name) const;

    QSet<QString> m_names;
    QHash<QString, QString> m_firstByUpper; // which name is found under an upper-cased one in any case
    QSet<QString> m_taken; // upper-cased names and forms
    std::map<QString, QStringList> m_rivals; // by the upper-cased form that they collide on
};

Assignment::Assignment(const QStringList &names)
    : m_names(names.begin(), names.end())
{
    for (const QString &name : names) {
        const QString key = upper(name);
        m_taken.insert(key);
        if (!m_firstByUpper.contains(key))
            m_firstByUpper.insert(key, name);
        const QString form = plainShortForm(name);
        if (form != name)
            m_rivals[upper(form)].append(name);
    }
    for (auto &[key, rivals] : m_rivals)
        std::stable_partition(
            rivals.begin(), rivals.end(), [&key = key](const QString &name) { return upper(name) == key; });
    givePlainForms();
    giveNumberedForms();
}

// The plain form must lead to its owner, so it is free only if no other name is found under it.
bool Assignment::mayHavePlainForm(const QString &name) const
{
    const QString form = plainShortForm(name);
    const QString found = m_firstByUpper.value(upper(form), name);
    return found == name && !m_names.contains(form);
}

void Assignment::givePlainForms()
{
    for (auto &[key, rivals] : m_rivals) {
        if (!mayHavePlainForm(rivals.first()))
            continue;
        forms.insert(rivals.first(), plainShortForm(rivals.first()));
        m_taken.insert(key);
        rivals.removeFirst();
    }
}

// Only after all the plain ones, so that none of them is taken by a number.
void Assignment::giveNumberedForms()
{
    for (const auto &[key, rivals] : m_rivals) {
        int number = 2;
        for (const QString &name : rivals) {
            const QString form = plainShortForm(name);
            while (m_taken.contains(upper(numbered(form, number))))
                ++number;
            forms.insert(name, numbered(form, number));
            m_taken.insert(upper(numbered(form, number)));
        }
    }
}

} // namespace

QString plainShortForm(const QString &name)
{
    QString form = lower(name);
    const qsizetype lastPoint = form.lastIndexOf(u'.');
    for (qsizetype i = 0; i < form.size(); ++i) {
        if (form[i].isSpace() || (form[i] == u'.' && i != lastPoint))
            form[i] = u'_';
    }
    return form;
}

QHash<QString, QString> assignShortForms(const QStringList &names)
{
    return Assignment(names).forms;
}

} // namespace host
