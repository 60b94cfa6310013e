#include "host/namesin.h"

#include "host/directory.h"
#include "host/encoding.h"
#include "host/paths.h"

#include <climits>

namespace host {

NamesIn::NamesIn(const QString &directory)
    : m_directory(directory)
{
    if (!directory.isEmpty() && lastSeparator(directory) == directory.size() - 1)
        m_found = findOnDisk(directory);
    if (!m_found.isEmpty())
        m_listing = Directory::at(m_found);
}

QString NamesIn::trueSpelling(const QString &path) const
{
    const QString name = path.sliced(m_directory.size());
    const bool isEntry = m_listing && !name.isEmpty() && name.size() <= NAME_MAX && lastSeparator(name) < 0
        && !name.contains(QChar::Null) && !name.endsWith(u'.') && !name.endsWith(u' ');
    if (!isEntry)
        return host::trueSpelling(path);
    const QString found = m_listing->find(name);
    return found.isEmpty() ? QString() : nameFromDisk(joined(m_found, nameToDisk(found)));
}

} // namespace host
