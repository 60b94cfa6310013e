#include "tests/support/browser.h"

#include <QDesktopServices>

namespace {

const QStringList Schemes { QStringLiteral("http"), QStringLiteral("https"), QStringLiteral("mailto") };

} // namespace

Browser::Browser()
{
    for (const QString &scheme : Schemes)
        QDesktopServices::setUrlHandler(scheme, this, "open");
}

Browser::~Browser()
{
    for (const QString &scheme : Schemes)
        QDesktopServices::unsetUrlHandler(scheme);
}

void Browser::open(const QUrl &url)
{
    opened.append(url.toString());
}
