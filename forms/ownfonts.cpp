#include "forms/ownfonts.h"

#include "host/failure.h"
#include "host/paths.h"

#include <QFontDatabase>

using namespace Qt::StringLiterals;

namespace forms {

QStringList addOwnFonts()
{
    const QString directory = host::programFile(u"fonts"_s);
    QStringList families;
    try {
        for (const QString &file : host::listFiles(directory, u"*.ttf"_s)) {
            const int added = QFontDatabase::addApplicationFont(directory + u'/' + file);
            if (added >= 0)
                families += QFontDatabase::applicationFontFamilies(added);
        }
    } catch (const host::Failure &) {
        // No such directory: the machine's fonts have to do.
    }
    families.removeDuplicates();
    return families;
}

} // namespace forms
